#pragma once

#include "EditoreDiProva.h"

/// What heads each of the editor's lists of elements.
constexpr QLatin1String Separatore("------------------");

/// The element or handle of the editor's preview with that name.
inline QGraphicsObject *Controllo(Form2 &editor, const QString &nome)
{
    return ElementoAnteprima(*editor.Anteprima(), nome);
}

#pragma once

#include "EditoreDiProva.h"
#include "documento/CopiaRecupero.h"
#include "editor/Form2.h"
#include "support/ArchivioDiProva.h"
#include "support/DocumentoDiProva.h"

#include <QDir>
#include <QTest>

inline QStringList Copie(const ArchivioDiProva &prova)
{
    return QDir(prova.CartellaStato() + QStringLiteral("/plakera"))
        .entryList({QStringLiteral("*.recupero")}, QDir::Files);
}

inline CopiaRecupero CopieDi(const ArchivioDiProva &prova)
{
    CopiaRecupero copie(prova.CartellaStato() + QStringLiteral("/plakera"), prova.Percorso());
    copie.Parte(prova.ByteDelFile());
    return copie;
}

/// One finished edit: field 1 goes to x, as at the release of a drag.
inline void SpostaCampo(StatoProgramma &stato, double x)
{
    Modifica(stato, [x](Modello &modello) { modello.Campi[1].X = x; });
}

/// An editor that has made the edit and then died: nothing of its closing runs.
inline void ModificaEMuore(ArchivioDiProva &prova, double x)
{
    StatoProgramma stato = prova.AltroStato();
    Form2 editor(stato);
    QVERIFY(editor.Form_Load());
    SpostaCampo(stato, x);
}

/// A model with so many elements of each kind that was open when the program died, field 1 gone to
/// x and not saved.
class LavoroLasciato : public ArchivioDiProva
{
public:
    explicit LavoroLasciato(int perGenere, double x = 50)
    {
        Riempie(perGenere);
        Scrive();
        ModificaEMuore(*this, x);
    }
};

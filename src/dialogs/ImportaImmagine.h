#pragma once

#include "documento/StatoProgramma.h"
#include "grafica/FiguraEsterna.h"

#include <QSizeF>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class QWidget;

/// Brings a picture of any folder and format into the models folder. What goes wrong is told, and
/// nothing is written then.
class ImportaImmagine
{
public:
    /// finestra: in front of which questions and messages open. Both must outlive it.
    ImportaImmagine(StatoProgramma &stato, QWidget *finestra);
    ~ImportaImmagine();

    /// Asks for the file, and writes it as fine as its natural size on the sheet needs it; its name
    /// in the folder. Empty when nothing has been written.
    QString Importa();

    /// The box that the picture brought in last has got, mm: its file is written again, as fine as
    /// that needs it, where it is not so already. True when it was.
    bool Adegua(const QSizeF &riquadro);

private:
    struct Importata;

    QString ChiedeFile();
    QString Porta(const QString &fonte);
    /// Nothing when the user has given up.
    std::optional<FiguraEsterna::File> Converte(const FiguraEsterna::Riquadro &riquadro);
    QStringList NomiPresi() const;

    StatoProgramma &stato_;
    QWidget *finestra_;
    std::unique_ptr<Importata> importata_;
};

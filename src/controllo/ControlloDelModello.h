#pragma once

#include "controllo/Condizioni.h"
#include "controllo/FileVisti.h"
#include "controllo/Memoria.h"
#include "controllo/Rilievo.h"

#include <QList>

class Documento;

/// The check of the open model against this computer: its fonts, the files on its disk, the paper
/// of its printer. What takes long to find out is remembered from one check to the next.
class ControlloDelModello
{
public:
    /// Path of the scan, in the spelling found on disk.
    using FileDellaScansione = std::function<QString(const ImmagineSfondo &)>;

    /// cartellaModelli ends in a separator.
    ControlloDelModello(QString cartellaModelli, FileDellaScansione fileDellaScansione);

    /// Nothing is said about paper until this has named one.
    void ImpostaFoglio(const std::optional<FoglioStampante> &foglio) { foglio_ = foglio; }
    bool FoglioNoto() const { return foglio_.has_value(); }

    /// The next check looks at the disk and the fonts again: they may have changed.
    void Rivede();

    QList<Rilievo> Esamina(const Documento &documento);

private:
    struct Testo
    {
        QSizeF Misura; ///< mm
        QString Mancanti;
    };

    const Testo &Noto(const AspettoTesto &aspetto);
    StatoFile Immagine(const QString &nome);
    StatoFile Scansione(const ImmagineSfondo &sfondo);

    QString cartellaModelli_;
    FileDellaScansione fileDellaScansione_;
    std::optional<FoglioStampante> foglio_;
    FileVisti file_;
    Memoria<AspettoTesto, Testo> testi_;
    Memoria<QString, StatoFile> immagini_;
    Memoria<QString, StatoFile> scansioni_;
};

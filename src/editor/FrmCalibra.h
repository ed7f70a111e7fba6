#pragma once

#include "model/Modello.h"

#include <QDialog>
#include <QImage>
#include <QRectF>
#include <QSize>
#include <QSizeF>

#include <memory>
#include <optional>

namespace Ui {
class FrmCalibra;
}

/// "Calibra...": says how large the scan is, by its resolution or by two points of it whose
/// distance is known, and puts it where it belongs on the sheet. It changes nothing but its own
/// Posto.
class FrmCalibra : public QDialog
{
    Q_OBJECT
public:
    struct Scansione
    {
        QImage Immagine; ///< as fine as it is to be seen
        QSize Pixel;     ///< of the file
        QSizeF Naturale; ///< mm, as the file states
        QRectF Posto;    ///< mm of the sheet, where it lies now; empty where it has no size yet
    };

    /// The scan of the model. Throws ErroreSistema 53 or 481 for its file and
    /// SfondoDelModello::NumeroNonLetto.
    static Scansione Legge(const ImmagineSfondo &sfondo);

    FrmCalibra(const Scansione &scansione, const Modello &modello, QWidget *padre);
    ~FrmCalibra() override;

    /// Where the scan is to lie, mm of the sheet.
    QRectF Posto() const { return posto_; }

private:
    void RiempieRisoluzioni();
    void Collegamenti();
    void Aggiorna();
    /// As the user has said; nothing, with the reason in perche, as long as that is not enough.
    std::optional<QSizeF> Misura(QString &perche) const;
    std::optional<QSizeF> MisuraDaRisoluzione(QString &perche) const;
    std::optional<QSizeF> MisuraDaPunti(QString &perche) const;
    void PrendeInMano(int indice);

    std::unique_ptr<Ui::FrmCalibra> ui_;
    Scansione scansione_;
    QRectF posto_;
};

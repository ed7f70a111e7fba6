#pragma once

#include <QRectF>

#include <array>

class ContornoCarta;
class QGraphicsScene;

/// The dashed outlines of the paper on the sheet, behind every element and in front of the scan.
/// The mouse does not know them.
class ContorniCarta
{
public:
    /// In mm of paper from the origin of the model; an empty one is not drawn. What lies off the
    /// sheet is not seen.
    struct Posti
    {
        QRectF A4;
        QRectF Carta;      ///< of the default printer
        QRectF Stampabile; ///< the part of it that the printer reaches
    };

    /// scena owns the outlines and must outlive this object.
    explicit ContorniCarta(QGraphicsScene &scena);

    /// An outline as large as one before it, but for a hair, is drawn once.
    void Imposta(const Posti &posti, double zoom);
    void SegueZoom(double zoom);
    void ImpostaInVista(bool inVista);
    /// How the outlines are told apart, for a hint.
    static QString Legenda();

private:
    void Mostra();

    std::array<QRectF, 3> posti_; ///< mm of paper
    std::array<ContornoCarta *, 3> contorni_{};
    double zoom_ = 1;
    bool inVista_ = true;
};

#include "print/Sovrapposizione.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>

#include <algorithm>
#include <cmath>

using namespace Tracciati;

namespace {

constexpr double PuntiMassimi = 600;
constexpr double PixelMassimi = 40e6;
/// Of one patch, and of those that are computed together at least.
constexpr int PixelPezza = 2'000'000;
constexpr qint64 PixelInsieme = 4'000'000;
constexpr qint64 BytePerPixel = 4;

constexpr int RigheStriscia = 256;

constexpr QRgb Nero = 0xFF000000;

QRgb Colore(const Segno &segno)
{
    return std::visit([](const auto &s) { return s.Colore; }, segno);
}

/// From the font's units around the start of the baseline to printer pixels.
QTransform DalFont(const Testo &testo)
{
    return QTransform::fromScale(testo.Scala, testo.Scala) *
           QTransform::fromTranslate(testo.Base.x(), testo.Base.y());
}

QRectF Ingombro(const Segno &segno, QPaintDevice *stampante)
{
    if (const auto *testo = std::get_if<Testo>(&segno)) {
        return DalFont(*testo).mapRect(
            QFontMetricsF(testo->Font, stampante).boundingRect(testo->Stringa));
    }
    if (const auto *linea = std::get_if<Linea>(&segno)) {
        const double m = linea->Spessore / 2;
        return QRectF(linea->Estremi.p1(), linea->Estremi.p2()).normalized().adjusted(-m, -m, m, m);
    }
    return std::get<Barra>(segno).Posto;
}

QList<QRectF> Ingombri(const Foglio &foglio, QPaintDevice *stampante)
{
    QList<QRectF> ingombri;
    for (const Segno &segno : foglio.Segni) {
        // One pixel more: the edges of letters may be rounded outwards.
        ingombri.append(Ingombro(segno, stampante).adjusted(-1, -1, 1, 1));
    }
    return ingombri;
}

/// Where pictures meet coloured marks or earlier pictures. ingombri are those of the marks.
QList<QRectF> Incontri(const Foglio &foglio, const QList<QRectF> &ingombri, const QRectF &area)
{
    QList<QRectF> ostacoli;
    for (qsizetype i = 0; i < ingombri.size(); ++i) {
        if (Colore(foglio.Segni.at(i)) != Nero) {
            ostacoli.append(ingombri.at(i));
        }
    }
    QList<QRectF> incontri;
    for (const Figura &figura : foglio.Figure) {
        const QRectF posto = figura.Posto & area;
        for (const QRectF &ostacolo : std::as_const(ostacoli)) {
            if (const QRectF incontro = posto & ostacolo; !incontro.isEmpty()) {
                incontri.append(incontro);
            }
        }
        ostacoli.append(figura.Posto);
    }
    return incontri;
}

/// The meetings as disjoint rectangles on a grid of scala grid pixels to a printer pixel.
QRegion SullaGriglia(const QList<QRectF> &incontri, double scala)
{
    QRegion regione;
    for (const QRectF &incontro : incontri) {
        regione += QRectF(incontro.topLeft() * scala, incontro.size() * scala).toAlignedRect();
    }
    return regione;
}

double Pixel(const QRegion &regione)
{
    double pixel = 0;
    for (const QRect &rettangolo : regione) {
        pixel += double(rettangolo.width()) * rettangolo.height();
    }
    return pixel;
}

void ScriveComeTracciato(QPainter &pittore, const Testo &testo)
{
    // As outlines: letters are smoothed even by a painter that is told not to.
    QPainterPath tracciato;
    tracciato.addText({0, 0}, testo.Font, testo.Stringa);
    pittore.fillPath(DalFont(testo).map(tracciato), QColor::fromRgb(testo.Colore));
}

/// ANDs the picture with the rows of the page from prima on, as many as a strip has.
void SovrapponeStriscia(QImage &pagina, int prima, const QRectF &luogo, const QImage &immagine,
                        const QTransform &trasformazione)
{
    QImage velo(pagina.width(), std::min(RigheStriscia, pagina.height() - prima),
                QImage::Format_RGB32);
    velo.fill(Qt::white);
    {
        QPainter pittore(&velo);
        pittore.setTransform(trasformazione * QTransform::fromTranslate(0, -prima));
        // Magnified pixels stay square, as the printer shows them beside the patch.
        const QRectF posto = trasformazione.mapRect(luogo);
        pittore.setRenderHint(QPainter::SmoothPixmapTransform,
                              posto.width() < immagine.width() ||
                                  posto.height() < immagine.height());
        pittore.drawImage(luogo, immagine);
    }
    for (int y = 0; y < velo.height(); ++y) {
        auto *sotto = reinterpret_cast<QRgb *>(pagina.scanLine(prima + y));
        const auto *sopra = reinterpret_cast<const QRgb *>(velo.constScanLine(y));
        std::transform(sotto, sotto + pagina.width(), sopra, sotto,
                       [](QRgb a, QRgb b) { return a & b; });
    }
}

/// A patch that is being computed.
struct Bozza
{
    QRect Rettangolo;          ///< on the grid
    QTransform Trasformazione; ///< from printer pixels to those of the patch
    QRectF Coperto;            ///< printer pixels
    QImage Pagina;
};

/// The rectangles of the region, each no larger than a patch may be.
QList<QRect> Rettangoli(const QRegion &regione)
{
    QList<QRect> rettangoli;
    for (const QRect &intero : regione) {
        const int righe = std::max(1, PixelPezza / intero.width());
        for (int y = 0; y < intero.height(); y += righe) {
            rettangoli.append(QRect(intero.x(), intero.y() + y, intero.width(),
                                    std::min(righe, intero.height() - y)));
        }
    }
    return rettangoli;
}

/// The marks of the page within the rectangle, without its pictures.
Bozza Abbozza(const Foglio &foglio, const QList<QRectF> &ingombri, const QRect &rettangolo,
              double scala)
{
    Bozza bozza{rettangolo, {}, {}, QImage(rettangolo.size(), QImage::Format_RGB32)};
    if (bozza.Pagina.isNull()) {
        throw std::bad_alloc();
    }
    bozza.Pagina.fill(Qt::white);
    bozza.Trasformazione.translate(-rettangolo.x(), -rettangolo.y());
    bozza.Trasformazione.scale(scala, scala);
    bozza.Coperto = bozza.Trasformazione.inverted().mapRect(QRectF(bozza.Pagina.rect()));
    // No smoothing: a half-covered pixel ANDed with a colour would be neither of the two.
    QPainter pittore(&bozza.Pagina);
    pittore.setTransform(bozza.Trasformazione);
    for (qsizetype i = 0; i < ingombri.size(); ++i) {
        const Segno &segno = foglio.Segni.at(i);
        if (!ingombri.at(i).intersects(bozza.Coperto)) {
            continue;
        }
        if (const auto *testo = std::get_if<Testo>(&segno)) {
            ScriveComeTracciato(pittore, *testo);
        } else {
            Sovrapposizione::Dipinge(pittore, segno);
        }
    }
    return bozza;
}

void Sovrappone(Bozza &bozza, const QRectF &luogo, const QImage &immagine)
{
    for (int y = 0; y < bozza.Pagina.height(); y += RigheStriscia) {
        SovrapponeStriscia(bozza.Pagina, y, luogo, immagine, bozza.Trasformazione);
    }
}

} // namespace

void Sovrapposizione::Dipinge(QPainter &pittore, const Segno &segno)
{
    if (const auto *testo = std::get_if<Testo>(&segno)) {
        pittore.setFont(testo->Font);
        pittore.setPen(QColor::fromRgb(testo->Colore));
        const QTransform prima = pittore.transform();
        pittore.setTransform(DalFont(*testo), true);
        pittore.drawText(QPointF(0, 0), testo->Stringa);
        pittore.setTransform(prima);
    } else if (const auto *linea = std::get_if<Linea>(&segno)) {
        pittore.setPen(
            QPen(QColor::fromRgb(linea->Colore), linea->Spessore, Qt::SolidLine, Qt::FlatCap));
        pittore.drawLine(linea->Estremi);
    } else {
        const auto &barra = std::get<Barra>(segno);
        pittore.fillRect(barra.Posto, QColor::fromRgb(barra.Colore));
    }
}

void Sovrapposizione::Stende(const Foglio &foglio, QPaintDevice *stampante, const QRectF &area,
                             double puntiPerPollice, qint64 byte,
                             const std::function<QImage(const Figura &)> &carica,
                             const std::function<void(const Pezza &)> &posa)
{
    if (foglio.Figure.isEmpty()) {
        return;
    }
    const QList<QRectF> ingombri = Ingombri(foglio, stampante);
    const QList<QRectF> incontri = Incontri(foglio, ingombri, area);
    if (incontri.isEmpty()) {
        return;
    }
    double scala = std::min(1.0, PuntiMassimi / puntiPerPollice);
    QRegion regione = SullaGriglia(incontri, scala);
    if (const double pixel = Pixel(regione); pixel > PixelMassimi) {
        scala *= std::sqrt(PixelMassimi / pixel);
        regione = SullaGriglia(incontri, scala);
    }
    // The AND does not mind the order, so that a batch asks for each file only once, and first for
    // the one that was used last: it may still be in memory, where two scans have no place.
    QList<Figura> figure = foglio.Figure;
    std::stable_sort(figure.begin(), figure.end(),
                     [](const Figura &a, const Figura &b) { return a.Percorso < b.Percorso; });
    if (figure.constLast().Percorso == foglio.Figure.constLast().Percorso) {
        std::reverse(figure.begin(), figure.end());
    }
    const qint64 insieme = std::max(PixelInsieme, byte / BytePerPixel);
    const QList<QRect> rettangoli = Rettangoli(regione);
    for (auto prossimo = rettangoli.begin(); prossimo != rettangoli.end();) {
        QList<Bozza> bozze;
        qint64 pixel = 0;
        do {
            bozze.append(Abbozza(foglio, ingombri, *prossimo, scala));
            pixel += qint64(prossimo->width()) * prossimo->height();
            ++prossimo;
        } while (prossimo != rettangoli.end() &&
                 pixel + qint64(prossimo->width()) * prossimo->height() <= insieme);
        for (const Figura &figura : std::as_const(figure)) {
            QImage immagine;
            for (Bozza &bozza : bozze) {
                if (figura.Posto.intersects(bozza.Coperto)) {
                    immagine = immagine.isNull() ? carica(figura) : immagine;
                    Sovrappone(bozza, figura.Posto, immagine);
                }
            }
        }
        std::reverse(figure.begin(), figure.end());
        for (const Bozza &bozza : std::as_const(bozze)) {
            const QRect &r = bozza.Rettangolo;
            posa({QRectF(r.x() / scala, r.y() / scala, r.width() / scala, r.height() / scala),
                  bozza.Pagina});
        }
    }
}

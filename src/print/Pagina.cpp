#include "print/Pagina.h"

#include "base/ErroreSistema.h"
#include "base/Misure.h"
#include "platform/Immagini.h"
#include "platform/Testo.h"
#include "print/Sovrapposizione.h"

#include <QFontMetricsF>
#include <QPageLayout>

#include <algorithm>
#include <cmath>

namespace {

/// Beyond this no coordinate can reach any sheet, and the painter's numbers would run over.
constexpr double MillimetriMassimi = 100'000;
/// Fonts are set in twentieths of a point and scaled: printer pixels would round their size, and a
/// line of 11-point text would be a third of a millimetre out.
constexpr int UnitaPerPunto = 20;
constexpr double UnitaPerPollice = 72.0 * UnitaPerPunto;
/// More pixels than this per inch are lost on paper.
constexpr double PuntiImmagine = 600;
/// A larger picture from a JPEG travels as JPEG: without loss a scan would take a hundred
/// megabytes.
constexpr qint64 PixelSenzaPerdita = 2'000'000;

bool Raggiungibile(double millimetri)
{
    return std::abs(millimetri) <= MillimetriMassimi; // false for what is no number
}

/// The part of the stretch from..to that can matter, ordered. to may be infinite.
std::pair<double, double> Tratto(double da, double a)
{
    const auto [minimo, massimo] = std::minmax(da, a);
    return {std::max(minimo, -MillimetriMassimi), std::min(massimo, MillimetriMassimi)};
}

} // namespace

Pagina::Pagina(Destinazione &destinazione)
    : destinazione_(destinazione)
    , dispositivo_(destinazione.Dispositivo())
{
    destinazione.Prepara();
    if (!pittore_.begin(&dispositivo_)) {
        throw destinazione.Rifiuto();
    }
    risoluzione_ = dispositivo_.logicalDpiX();
    pixelPerMillimetro_ = risoluzione_ / Misure::MillimetriPerPollice;
    area_ = QRectF(0, 0, InPixel(Larghezza()), InPixel(Altezza()));
    // The printer engines put their origin at a whole point near the corner, up to 0.18 mm off.
    const QPageLayout foglio = dispositivo_.pageLayout();
    const QPointF angolo = foglio.paintRect(QPageLayout::Millimeter).topLeft();
    const QPointF origine = foglio.paintRectPixels(risoluzione_).topLeft();
    pittore_.translate(QPointF(InPixel(angolo.x()), InPixel(angolo.y())) - origine);
    Font({}, 0);
}

Pagina::~Pagina()
{
    if (!finita_) {
        destinazione_.Rinuncia();
    }
}

double Pagina::Larghezza() const
{
    return dispositivo_.pageLayout().paintRect(QPageLayout::Millimeter).width();
}

double Pagina::Altezza() const
{
    return dispositivo_.pageLayout().paintRect(QPageLayout::Millimeter).height();
}

void Pagina::Font(const QString &famiglia, int punti, bool grassetto)
{
    font_ = CarattereDiTesto(famiglia, grassetto, UnitaPerPunto * int(PuntiDiTesto(punti)));
    const QFontMetricsF misure(font_, &dispositivo_);
    const double millimetri = Misure::MillimetriPerPollice / UnitaPerPollice;
    ascendente_ = misure.ascent() * millimetri;
    interlinea_ = misure.lineSpacing() * millimetri;
}

void Pagina::Stampa(const QString &testo)
{
    if (!testo.isEmpty() && Raggiungibile(posizione_.x()) && Raggiungibile(posizione_.y())) {
        const QPointF base(InPixel(posizione_.x()), InPixel(posizione_.y() + ascendente_));
        const double scala = risoluzione_ / UnitaPerPollice;
        foglio_.Segni.append(Tracciati::Testo{base, font_, scala, SuUnaRiga(testo), colore_});
    }
    posizione_ = {0, posizione_.y() + interlinea_};
}

void Pagina::Linea(double x1, double y1, double x2, double y2)
{
    posizione_ = {x2, y2};
    if (Raggiungibile(x1) && Raggiungibile(y1) && Raggiungibile(x2) && Raggiungibile(y2)) {
        const QLineF estremi(InPixel(x1), InPixel(y1), InPixel(x2), InPixel(y2));
        foglio_.Segni.append(Tracciati::Linea{estremi, InPixel(LineaSottile), colore_});
    }
}

void Pagina::Barra(double x, double y, double larghezza, double altezza, QRgb colore)
{
    const auto [sinistra, destra] = Tratto(x, x + larghezza);
    const auto [sopra, sotto] = Tratto(y, y + altezza);
    if (!(destra > sinistra) || !(sotto > sopra)) { // also when one is no number
        return;
    }
    const QRectF posto(QPointF(InPixel(sinistra), InPixel(sopra)),
                       QPointF(InPixel(destra), InPixel(sotto)));
    foglio_.Segni.append(Tracciati::Barra{posto, colore | 0xFF000000});
}

QImage Pagina::CaricaOpaca(const QString &percorso, const QSizeF &millimetri)
{
    const QSizeF pixel = (millimetri * (PuntiImmagine / Misure::MillimetriPerPollice))
                             .boundedTo(QSizeF(1e6, 1e6))
                             .expandedTo(QSizeF(1, 1));
    const QSize massimo = pixel.toSize();
    for (const Caricata &nota : std::as_const(caricate_)) {
        if (nota.Percorso == percorso && nota.Massimo == massimo) {
            return nota.Immagine; // the printer, too, gets its pixels only once
        }
    }
    QImage immagine = Immagini::CaricaEntro(percorso, massimo);
    if (immagine.hasAlphaChannel()) {
        QImage bianca(immagine.size(), QImage::Format_RGB32);
        bianca.fill(Qt::white);
        QPainter(&bianca).drawImage(0, 0, immagine);
        immagine = bianca;
    }
    caricate_.append({percorso, massimo, immagine});
    return immagine;
}

void Pagina::FiguraAnd(const QString &percorso, const QRectF &millimetri)
{
    const QImage immagine = CaricaOpaca(percorso, millimetri.size());
    const QRectF posto(InPixel(millimetri.x()), InPixel(millimetri.y()),
                       InPixel(millimetri.width()), InPixel(millimetri.height()));
    const bool grande = qint64(immagine.width()) * immagine.height() > PixelSenzaPerdita;
    const bool jpeg = percorso.endsWith(QLatin1String("jpg"), Qt::CaseInsensitive) ||
                      percorso.endsWith(QLatin1String("jpeg"), Qt::CaseInsensitive);
    if (posto.intersects(area_)) {
        foglio_.Figure.append({posto, immagine, !(grande && jpeg)});
    }
}

void Pagina::DipingeImmagine(const QRectF &posto, const QImage &immagine, bool senzaPerdita)
{
    pittore_.setRenderHint(QPainter::LosslessImageRendering, senzaPerdita);
    pittore_.drawImage(posto, immagine);
}

void Pagina::Dipinge()
{
    for (const Tracciati::Figura &figura : std::as_const(foglio_.Figure)) {
        DipingeImmagine(figura.Posto, figura.Immagine, figura.SenzaPerdita);
    }
    for (const Tracciati::Segno &segno : std::as_const(foglio_.Segni)) {
        Sovrapposizione::Dipinge(pittore_, segno);
    }
    const auto pezze = Sovrapposizione::Pezze(foglio_, &dispositivo_, area_, risoluzione_);
    for (const Sovrapposizione::Pezza &pezza : pezze) {
        DipingeImmagine(pezza.Posto, pezza.Immagine, true);
    }
}

void Pagina::Fine()
{
    Dipinge();
    finita_ = true;
    if (!pittore_.end()) {
        throw destinazione_.Rifiuto();
    }
    destinazione_.Consegna();
}

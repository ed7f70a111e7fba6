#include "print/Pagina.h"

#include "base/ErroreSistema.h"
#include "base/Unita.h"
#include "grafica/Testo.h"
#include "print/Sovrapposizione.h"
#include "sistema/Memoria.h"

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
/// And on a screen, at the size of the paper and somewhat larger.
constexpr double PuntiSulloSchermo = 200;
/// What a picture and the part of the page that is computed from it may take together: the printer
/// engine needs its own beside them.
constexpr qint64 ByteInsieme = 235'000'000;

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
    TieneMemoriaLiberata();
    destinazione.Prepara();
    if (!pittore_.begin(&dispositivo_)) {
        throw destinazione.Rifiuto();
    }
    pittore_.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform,
                            destinazione.SulloSchermo());
    risoluzione_ = dispositivo_.logicalDpiX();
    pixelPerMillimetro_ = risoluzione_ / Unita::MillimetriPerPollice;
    area_ = QRectF(0, 0, InPixel(Larghezza()), InPixel(Altezza()));
    // The printer engines put their origin at a whole point near the corner, up to 0.18 mm off.
    const QPageLayout foglio = dispositivo_.pageLayout();
    const QPointF angolo = foglio.paintRect(QPageLayout::Millimeter).topLeft();
    const QPointF origine = foglio.paintRectPixels(risoluzione_).topLeft();
    pittore_.translate(QPointF(InPixel(angolo.x()), InPixel(angolo.y())) - origine);
}

Pagina::~Pagina()
{
    if (!finita_) {
        destinazione_.Rinuncia();
    }
}

void Pagina::Avanza() const
{
    if (avanza_) {
        // What is computed after the last picture counts as one more.
        const int tutte = std::max(figurePreviste_, figureFatte_) + 1;
        avanza_(double(figureFatte_) / tutte);
    }
}

QSize Pagina::PixelPer(const QSizeF &millimetri) const
{
    const double punti = destinazione_.SulloSchermo() ? PuntiSulloSchermo : PuntiImmagine;
    return (millimetri * (punti / Unita::MillimetriPerPollice))
        .boundedTo(QSizeF(1e6, 1e6))
        .expandedTo(QSizeF(1, 1))
        .toSize();
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
    famiglia_ = famiglia;
    punti_ = punti;
    grassetto_ = grassetto;
    misurato_ = false;
}

void Pagina::MisuraFont()
{
    font_ = CarattereDiTesto(famiglia_, grassetto_, UnitaPerPunto * int(PuntiDiTesto(punti_)));
    const QFontMetricsF misure(font_, &dispositivo_);
    const double millimetri = Unita::MillimetriPerPollice / UnitaPerPollice;
    ascendente_ = misure.ascent() * millimetri;
    interlinea_ = misure.lineSpacing() * millimetri;
    misurato_ = true;
}

void Pagina::Stampa(const QString &testo)
{
    if (!misurato_) {
        MisuraFont();
    }
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

void Pagina::PrevedeFigura(const QString &percorso, const QSizeF &millimetri)
{
    figure_.Prevede(percorso, PixelPer(millimetri));
    ++figurePreviste_;
}

void Pagina::FiguraAnd(const QString &percorso, const QRectF &millimetri)
{
    Avanza();
    ++figureFatte_;
    const QSize pixel = PixelPer(millimetri.size());
    const FigureInMemoria::Figura figura = figure_.Carica(percorso, pixel);
    const QRectF posto(InPixel(millimetri.x()), InPixel(millimetri.y()),
                       InPixel(millimetri.width()), InPixel(millimetri.height()));
    if (posto.intersects(area_)) {
        foglio_.Figure.append({posto, percorso, pixel});
        // At once, or all pictures of the page would be in memory together.
        DipingeFigura(posto, figura);
    }
}

void Pagina::DipingeFigura(const QRectF &posto, const FigureInMemoria::Figura &figura)
{
    const QTransform daiPixel = QTransform::fromScale(posto.width() / figura.Immagine.width(),
                                                      posto.height() / figura.Immagine.height()) *
                                QTransform::fromTranslate(posto.x(), posto.y());
    for (const PartiDiFigura::Parte &parte : figura.Parti) {
        Avanza();
        DipingeImmagine(daiPixel.mapRect(QRectF(parte.Posto)), parte.Immagine, !figura.ComeJpeg);
    }
}

void Pagina::DipingeImmagine(const QRectF &posto, const QImage &immagine, bool senzaPerdita)
{
    pittore_.setRenderHint(QPainter::LosslessImageRendering, senzaPerdita);
    if (!destinazione_.FigureSuPuntiInteri()) {
        pittore_.drawImage(posto, immagine);
        return;
    }
    // The nearest points, edge by edge, so that neighbours still meet. A translation of the painter
    // would take such a device yet another point off, and a size that falls short of a whole number
    // by the last digit would lose a point.
    constexpr double UltimaCifra = 1e-6;
    const QTransform trasformazione = pittore_.transform();
    const QRectF sulDispositivo = trasformazione.mapRect(posto);
    const QPoint angolo(qRound(sulDispositivo.left()), qRound(sulDispositivo.top()));
    const QPoint opposto(qRound(sulDispositivo.right()), qRound(sulDispositivo.bottom()));
    pittore_.resetTransform();
    pittore_.drawImage(QRectF(angolo, opposto).adjusted(0, 0, UltimaCifra, UltimaCifra), immagine);
    pittore_.setTransform(trasformazione);
}

void Pagina::Dipinge()
{
    for (const Tracciati::Segno &segno : std::as_const(foglio_.Segni)) {
        Sovrapposizione::Dipinge(pittore_, segno);
    }
    Sovrapposizione::Stende(
        foglio_, &dispositivo_, area_, risoluzione_, ByteInsieme - figure_.ByteAlMassimo(),
        [this](const Tracciati::Figura &figura) {
            Avanza();
            return figure_.Carica(figura.Percorso, figura.Pixel).Immagine;
        },
        [this](const Sovrapposizione::Pezza &pezza) {
            Avanza();
            DipingeImmagine(pezza.Posto, pezza.Immagine, true);
        });
}

void Pagina::Fine()
{
    Dipinge();
    Avanza();
    finita_ = true;
    if (!pittore_.end()) {
        throw destinazione_.Rifiuto();
    }
    destinazione_.Consegna();
}

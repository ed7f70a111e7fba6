#include "preview/GuideFoglio.h"

#include "documento/StatoProgramma.h"
#include "model/FoglioCarta.h"
#include "model/Numeri.h"
#include "preview/GeometriaAnteprima.h"

#include <QGraphicsScene>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double PianoGuideFoglio =
    1.5e9;                        // in front of elements and rows, behind the lines of a drag
constexpr double ZonaDiPresa = 3; // pixels

constexpr std::array Versi{Qt::Vertical, Qt::Horizontal};

double Lungo(Qt::Orientation verso, QPointF punto)
{
    return verso == Qt::Vertical ? punto.x() : punto.y();
}

int Ultimo(Qt::Orientation verso)
{
    return static_cast<int>(verso == Qt::Vertical ? FoglioCarta::Larghezza : FoglioCarta::Altezza);
}

/// More than any place on the sheet.
constexpr int FuoriDalFoglio = 1000;

constexpr QLatin1String
    ConITasti("   (frecce: sposta, Invio: lascia, Canc: toglie, Esc: rinuncia, F8: la prossima)");

QString Descrizione(Qt::Orientation verso, std::optional<int> posto)
{
    const bool verticale = verso == Qt::Vertical;
    const QString nome =
        verticale ? QStringLiteral("Guida verticale   ") : QStringLiteral("Guida orizzontale   ");
    return posto ? nome + (verticale ? u'X' : u'Y') + QStringLiteral(" %1   mm").arg(*posto)
                 : nome + QStringLiteral("fuori dal foglio: al rilascio viene tolta");
}

} // namespace

GuideFoglio::GuideFoglio(QGraphicsScene &scena, const GeometriaAnteprima &geometria,
                         const StatoProgramma &stato)
    : scena_(scena)
    , geometria_(geometria)
    , stato_(stato)
{
}

const QList<int> &GuideFoglio::Poste(Qt::Orientation verso) const
{
    return poste_.at(verso == Qt::Vertical ? 0 : 1);
}

QList<int> &GuideFoglio::Elenco(Qt::Orientation verso)
{
    return poste_.at(verso == Qt::Vertical ? 0 : 1);
}

QList<double> GuideFoglio::InVista(Qt::Orientation verso) const
{
    QList<double> posti;
    for (const int posto : Poste(verso)) {
        posti.append(posto / stato_.zoom);
    }
    if (mano_ && mano_->verso == verso && mano_->ora) {
        posti.append(*mano_->ora / stato_.zoom);
    }
    return posti;
}

std::optional<GuideFoglio::Guida> GuideFoglio::Sotto(Qt::Orientation verso, QPointF punto) const
{
    std::optional<Guida> trovata;
    double distanza = geometria_.Millimetri(ZonaDiPresa);
    for (const int posto : Poste(verso)) {
        const double sua = std::abs(posto / stato_.zoom - Lungo(verso, punto));
        if (sua <= distanza) {
            trovata = Guida{verso, posto};
            distanza = sua;
        }
    }
    return trovata;
}

std::optional<GuideFoglio::Guida> GuideFoglio::Sotto(QPointF punto) const
{
    const std::optional<Guida> verticale = Sotto(Qt::Vertical, punto);
    return verticale ? verticale : Sotto(Qt::Horizontal, punto);
}

Qt::CursorShape GuideFoglio::PuntatoreIn(QPointF punto) const
{
    std::optional<Qt::Orientation> verso;
    if (mano_ && !mano_->aiTasti) {
        verso = mano_->verso;
    } else if (const std::optional<Guida> guida = Sotto(punto)) {
        verso = guida->verso;
    }
    if (!verso) {
        return Qt::ArrowCursor;
    }
    return *verso == Qt::Vertical ? Qt::SplitHCursor : Qt::SplitVCursor;
}

void GuideFoglio::Prende(Qt::Orientation verso, std::optional<int> posto, QPointF punto)
{
    Lascia();
    const double scarto = posto ? Lungo(verso, punto) * stato_.zoom - *posto : 0;
    if (posto) {
        Elenco(verso).removeOne(*posto);
    }
    mano_ = Mano{verso, posto, posto, scarto};
}

void GuideFoglio::Porta(QPointF punto, QPointF visto)
{
    if (!mano_) {
        return;
    }
    const Qt::Orientation verso = mano_->verso;
    const double lungo = Lungo(verso, punto);
    const double posto = Numeri::Ar(lungo * stato_.zoom - mano_->scarto);
    const bool fuori = lungo < Lungo(verso, visto) || posto < 0 || posto > Ultimo(verso);
    mano_->portata = true;
    mano_->ora = fuori ? std::nullopt : std::optional(static_cast<int>(posto));
    Mostra();
    emit Detto(Descrizione(verso, mano_->ora));
}

void GuideFoglio::PrendeIn(Qt::Orientation verso, int posto)
{
    Lascia();
    const int sulFoglio = std::clamp(posto, 0, Ultimo(verso));
    const bool gia = Elenco(verso).removeOne(sulFoglio);
    mano_ = Mano{verso, gia ? std::optional(sulFoglio) : std::nullopt, sulFoglio, 0, true, true};
    Mostra();
    emit Detto(Descrizione(verso, sulFoglio) + ConITasti);
}

bool GuideFoglio::PrendeProssima()
{
    const int ora = mano_.value().ora.value();
    const QList<int> &altre = Poste(mano_->verso);
    if (altre.isEmpty() || altre == QList<int>{ora}) {
        return false;
    }
    const auto dopo = [ora](int posto) {
        return posto > ora ? posto - ora : posto + FuoriDalFoglio;
    };
    PrendeIn(mano_->verso, *std::min_element(altre.cbegin(), altre.cend(),
                                             [&](int a, int b) { return dopo(a) < dopo(b); }));
    return true;
}

void GuideFoglio::Sposta(int millimetri)
{
    if (InManoAiTasti()) {
        mano_->ora = std::clamp(mano_->ora.value() + millimetri, 0, Ultimo(mano_->verso));
        Mostra();
        emit Detto(Descrizione(mano_->verso, mano_->ora) + ConITasti);
    }
}

void GuideFoglio::Toglie()
{
    if (mano_) {
        mano_->ora = std::nullopt;
        Lascia();
    }
}

void GuideFoglio::Interrompe()
{
    if (InManoAiTasti()) {
        Lascia();
    } else {
        Rinuncia();
    }
}

void GuideFoglio::Lascia()
{
    if (const std::optional<Mano> mano = std::exchange(mano_, std::nullopt)) {
        if (mano->ora) {
            Aggiunge(mano->verso, *mano->ora);
        }
        if (mano->aiTasti || (mano->portata && !mano->ora)) {
            emit Detto({});
        }
        Mostra();
    }
}

bool GuideFoglio::Rinuncia()
{
    if (!mano_) {
        return false;
    }
    mano_->ora = mano_->prima;
    Lascia();
    return true;
}

void GuideFoglio::Aggiunge(Qt::Orientation verso, int posto)
{
    if (!Elenco(verso).contains(posto)) {
        Elenco(verso).append(posto);
    }
}

void GuideFoglio::Svuota()
{
    mano_.reset();
    for (QList<int> &elenco : poste_) {
        elenco.clear();
    }
    Mostra();
}

LineaGuida &GuideFoglio::Linea(int k)
{
    if (k == linee_.size()) {
        auto *linea = new LineaGuida(QStringLiteral("Guida(%1)").arg(k + 1));
        linea->setZValue(PianoGuideFoglio);
        scena_.addItem(linea);
        linee_.append(linea);
    }
    return *linee_.at(k);
}

void GuideFoglio::Mostra()
{
    int usate = 0;
    for (const Qt::Orientation verso : Versi) {
        for (const double posto : InVista(verso)) {
            const QPointF da = verso == Qt::Vertical ? QPointF(posto, 0) : QPointF(0, posto);
            const QPointF a = verso == Qt::Vertical ? QPointF(posto, geometria_.AltezzaFoglio())
                                                    : QPointF(geometria_.LarghezzaFoglio(), posto);
            Linea(usate++).Mostra(da, a, Colore);
        }
    }
    for (int k = usate; k < linee_.size(); ++k) {
        linee_.at(k)->setVisible(false);
    }
    emit Cambiate();
}

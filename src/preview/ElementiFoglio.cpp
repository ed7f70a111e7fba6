#include "preview/ElementiFoglio.h"

#include "base/ErroreSistema.h"
#include "documento/StatoProgramma.h"
#include "model/Numeri.h"
#include "model/Tavolozza.h"
#include "preview/GeometriaAnteprima.h"
#include "preview/PrimoPiano.h"

#include <QGraphicsScene>

#include <algorithm>

namespace {

// Elements are stacked by a counter that stays far below these.
constexpr double PianoRighe = 1e9;
constexpr double PianoGuide = 2e9;
constexpr double PianoManiglie = 3e9;

// Pixels.
constexpr double LatoManiglia = 11;
constexpr double LatoMinimoManiglia = 5;
constexpr double LatoMinimoPuntabile = 4;

} // namespace

ElementiFoglio::ElementiFoglio(StatoProgramma &stato, const GeometriaAnteprima &geometria,
                               QGraphicsScene &scena)
    : stato_(stato)
    , geometria_(geometria)
    , scena_(scena)
    , contorni_(scena, stato.selezione)
    , LineXX_(new LineaGuida(QStringLiteral("LineXX")))
    , LineYY_(new LineaGuida(QStringLiteral("LineYY")))
{
    maniglie_ = {new Maniglia(QStringLiteral("S1"), QColor(0x1f5fbf)),
                 new Maniglia(QStringLiteral("S2"), QColor(0x2e8b57)),
                 new Maniglia(QStringLiteral("S3"), QColor(0xc05a12))};
    for (const Genere genere : Generi) {
        ManigliaDi(genere).setZValue(PianoManiglie);
        scena_.addItem(&ManigliaDi(genere));
        stato_.selezione.Lascia(genere); // a new sheet shows no handle
    }
    for (LineaGuida *linea : {LineXX_, LineYY_}) {
        linea->setZValue(PianoGuide);
        scena_.addItem(linea);
    }
    connect(&stato_.selezione, &Selezione::Cambiata, this, &ElementiFoglio::SegueSelezione);
    connect(&stato_.selezione, &Selezione::SceltiCambiati, this, &ElementiFoglio::SegueScelti);
    SegueScelti();
}

ControlloElemento &ElementiFoglio::Elemento(Genere genere, int i) const
{
    ControlloElemento *controllo = elementi_.at(Posto(genere))[i];
    if (controllo == nullptr) {
        throw ErroreSistema(ErroreSistema::Indice);
    }
    return *controllo;
}

ControlloTesto &ElementiFoglio::ControlloTestoDi(Genere genere, int i) const
{
    return static_cast<ControlloTesto &>(Elemento(genere, i));
}

Maniglia &ElementiFoglio::ManigliaDi(Genere genere) const
{
    return *maniglie_.at(Posto(genere));
}

bool ElementiFoglio::InVista(Genere genere, int i) const
{
    const ControlloElemento *controllo = elementi_.at(Posto(genere))[i];
    return controllo != nullptr && controllo->isVisible();
}

void ElementiFoglio::Crea(Genere genere, int i)
{
    ControlloElemento *&controllo = elementi_.at(Posto(genere))[i];
    if (i == 0) {
        throw ErroreSistema(ErroreSistema::Indice); // slot 0 holds no element
    }
    if (controllo == nullptr) {
        if (genere == Genere::Immagine) {
            controllo = new RiquadroImmagine(i);
        } else {
            controllo = new ControlloTesto(genere, i);
        }
        scena_.addItem(controllo);
        creati_.append(controllo);
    }
    MandaDavanti(*controllo);
    controllo->setVisible(true);
}

void ElementiFoglio::Nasconde(Genere genere, int i)
{
    Elemento(genere, i).setVisible(false);
    NascondeManiglia(genere);
}

void ElementiFoglio::NascondeManiglia(Genere genere)
{
    stato_.selezione.Lascia(genere);
}

void ElementiFoglio::SegueSelezione(Genere genere)
{
    const int i = stato_.selezione.Attivo(genere);
    Maniglia &maniglia = ManigliaDi(genere);
    maniglia.setVisible(i != 0);
    if (i != 0) {
        maniglia.ImpostaPuntatore(Qt::SizeAllCursor);
        maniglia.Tag = QString::number(i);
    }
}

void ElementiFoglio::SegueScelti()
{
    contorni_.Mostra(
        [this](Chiave chiave) { return Elemento(chiave.genere, chiave.indice).Posto(); });
}

void ElementiFoglio::Aggiunge(Controllo &controllo)
{
    scena_.addItem(&controllo);
}

void ElementiFoglio::MandaDavanti(Controllo &controllo)
{
    controllo.setZValue(++cima_);
}

void ElementiFoglio::MandaInFondo(Genere genere, int i)
{
    ControlloElemento &controllo = Elemento(genere, i);
    // Pointing does this at every mouse move: the one already at the back is not painted again.
    if (controllo.zValue() != fondo_ || fondo_ == 0) {
        controllo.setZValue(--fondo_);
    }
}

double ElementiFoglio::Area(Genere genere, int i) const
{
    switch (genere) {
    case Genere::Campo: {
        // On the screen, not in the model: it depends on the zoom and on the text shown.
        const QSizeF misura = Elemento(genere, i).Posto().size();
        return misura.width() * misura.height();
    }
    case Genere::Cornice:
        return stato_.Aperto().Cornici[i].Larghezza * stato_.Aperto().Cornici[i].Altezza;
    case Genere::Immagine:
        break;
    }
    return stato_.Aperto().Immagini[i].Larghezza * stato_.Aperto().Immagini[i].Altezza;
}

void ElementiFoglio::PrimoPiano(Genere genere)
{
    QList<double> aree;
    for (int i = 1; i <= stato_.Aperto().UltimoSlot(genere); ++i) {
        aree.append(Area(genere, i));
    }
    for (const int i : PrimoPiano::Ordine(aree)) {
        MandaDavanti(Elemento(genere, i));
    }
    Maniglia &maniglia = ManigliaDi(genere);
    double piu = PianoManiglie;
    for (const Maniglia *altra : maniglie_) {
        piu = std::max(piu, altra->zValue() + 1);
    }
    maniglia.setZValue(piu);
}

void ElementiFoglio::CampineriTranne(int i)
{
    if (i == 0 || stato_.selezione.Attivo(Genere::Campo) != i) {
        stato_.selezione.Lascia(Genere::Campo);
        ManigliaDi(Genere::Campo).ImpostaPuntatore(Qt::ArrowCursor);
    }
    if (campoAcceso_ != 0 && campoAcceso_ != i) {
        ControlloTesto &campo = ControlloTestoDi(Genere::Campo, campoAcceso_);
        campo.ImpostaColore(Qt::black);
        campo.ImpostaBordo(false, Qt::black);
        campoAcceso_ = 0;
    }
}

void ElementiFoglio::Accende(int i)
{
    const QColor blu(Tavolozza::Rgb(Tavolozza::BluChiaro));
    ControlloTesto &campo = ControlloTestoDi(Genere::Campo, i);
    campo.ImpostaColore(blu);
    campo.ImpostaBordo(true, blu);
    campoAcceso_ = i;
}

void ElementiFoglio::Seleziona(Genere genere, int i)
{
    Elemento(genere, i); // only one that has a control
    stato_.selezione.Sceglie({genere, i});
    Posiziona(genere, i);
}

void ElementiFoglio::AncoraManiglia(Genere genere, int i)
{
    const QRectF posto = Elemento(genere, i).Posto();
    // A handle as large as its element would leave nothing of it to point at. A field is taken by
    // its handle only, never by an edge, so its handle may be as high as its line.
    const double altezza = genere == Genere::Campo ? posto.height() : posto.height() / 2;
    const double lato =
        std::clamp(std::min(posto.width() / 2, altezza), geometria_.Millimetri(LatoMinimoManiglia),
                   geometria_.Millimetri(LatoManiglia));
    ManigliaDi(genere).Colloca(QRectF(posto.topLeft(), QSizeF(lato, lato)));
}

void ElementiFoglio::RiancoraManiglie()
{
    for (const Genere genere : Generi) {
        if (const int i = stato_.selezione.Attivo(genere); i != 0) {
            AncoraManiglia(genere, i);
        }
    }
}

void ElementiFoglio::RinominaManiglie()
{
    for (const Genere genere : Generi) {
        if (const int i = stato_.selezione.Attivo(genere); i != 0) {
            ScriveSuggerimentoManiglia(genere, i);
        }
    }
}

void ElementiFoglio::MostraGuide(QPointF angolo, const QColor &colore)
{
    LineXX_->Mostra({0, angolo.y()}, {geometria_.LarghezzaFoglio(), angolo.y()}, colore);
    LineYY_->Mostra({angolo.x(), 0}, {angolo.x(), geometria_.AltezzaFoglio()}, colore);
}

void ElementiFoglio::NascondeGuide()
{
    LineXX_->setVisible(false);
    LineYY_->setVisible(false);
}

Maniglia *ElementiFoglio::ManigliaIn(QPointF punto) const
{
    Maniglia *trovata = nullptr;
    for (Maniglia *maniglia : maniglie_) {
        if (maniglia->isVisible() && maniglia->Posto().contains(punto) &&
            (trovata == nullptr || maniglia->zValue() > trovata->zValue())) {
            trovata = maniglia;
        }
    }
    return trovata;
}

bool ElementiFoglio::Tocca(const ControlloElemento &controllo, QPointF punto) const
{
    const double minimo = geometria_.Millimetri(LatoMinimoPuntabile);
    const QRectF &posto = controllo.Posto();
    const double x = punto.x() - posto.left();
    const double y = punto.y() - posto.top();
    return x >= 0 && y >= 0 && x <= std::max(posto.width(), minimo) &&
           y <= std::max(posto.height(), minimo);
}

ControlloElemento *ElementiFoglio::ElementoIn(QPointF punto) const
{
    ControlloElemento *trovato = nullptr;
    for (ControlloElemento *controllo : creati_) {
        if (Tocca(*controllo, punto) && controllo->isVisible() &&
            (trovato == nullptr || controllo->zValue() > trovato->zValue())) {
            trovato = controllo;
        }
    }
    return trovato;
}

void ElementiFoglio::TogliRighe()
{
    for (int k = 0; k < righeInUso_; ++k) {
        righe_.at(k)->setVisible(false);
    }
    righeInUso_ = 0;
}

void ElementiFoglio::AggiungeRiga(const QRectF &posto, const TestoScalato::Aspetto &aspetto,
                                  const QString &testo, double punti)
{
    const QRectF foglio(0, 0, geometria_.LarghezzaFoglio(), geometria_.AltezzaFoglio());
    if (!posto.intersects(foglio)) {
        return;
    }
    if (righeInUso_ == righe_.size()) {
        auto *nuova = new Riga(righeInUso_ + 1);
        nuova->setZValue(PianoRighe + righeInUso_);
        scena_.addItem(nuova);
        righe_.append(nuova);
    }
    Riga *riga = righe_.at(righeInUso_++);
    riga->Imposta(posto, aspetto, testo, punti);
    riga->setVisible(true);
}

#include "preview/PartiAnteprima.h"

#include "documento/StatoProgramma.h"
#include "finestre/AvvisoCasella.h"
#include "finestre/EtichettaAbbreviata.h"
#include "finestre/Finestre.h"
#include "model/Numeri.h"
#include "preview/CorniceFuoco.h"
#include "preview/FoglioAccessibile.h"
#include "preview/PulsantiStriscia.h"
#include "preview/Righelli.h"
#include "preview/VistaFoglio.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int PassoFreccia = 5; // mm of screen, one click on a scroll bar's arrow
constexpr double PuntiStriscia = 8;
constexpr double PuntiAngolo = 6.5;

QWidget *CreaArea(QWidget *finestra, const QString &nome)
{
    auto *area = new QWidget(finestra);
    area->setObjectName(nome);
    return area;
}

QLineEdit *CreaCasella(QWidget *finestra, const QString &nome, const QString &descrizione,
                       bool solaLettura)
{
    auto *casella = new QLineEdit(finestra);
    casella->setObjectName(nome);
    casella->setAccessibleName(descrizione);
    casella->setToolTip(descrizione);
    casella->setReadOnly(solaLettura);
    casella->setFocusPolicy(solaLettura ? Qt::ClickFocus : Qt::StrongFocus);
    return casella;
}

} // namespace

PartiAnteprima::PartiAnteprima(QWidget *finestra, const StatoProgramma &stato)
    : geometria(::PixelPerMillimetro(finestra), stato.zoom)
{
    CreaFoglio(finestra, stato);
    CreaScorrimento(finestra);
    CreaStriscia(finestra);
}

PartiAnteprima::~PartiAnteprima() = default;

void PartiAnteprima::CreaFoglio(QWidget *finestra, const StatoProgramma &stato)
{
    const QSize pixel = geometria.PixelFoglio();
    const int spessore = geometria.Pixel(GeometriaAnteprima::SpessoreRighello);

    // An index pays for itself when most items stand still and few are looked for; here every
    // gesture moves one, and a plain walk is fast enough for 300 elements and the simulated rows,
    // some thousands at most.
    scena.setItemIndexMethod(QGraphicsScene::NoIndex);
    scena.setSceneRect(0, 0, geometria.LarghezzaFoglio(), geometria.AltezzaFoglio());
    AreaFoglio = CreaArea(finestra, QStringLiteral("AreaFoglio"));
    AreaFoglio->setBackgroundRole(QPalette::Mid);
    AreaFoglio->setAutoFillBackground(true);
    InstallaFoglioAccessibile(); // before anything asks what the sheet is
    P1 = new VistaFoglio(&scena, geometria, stato, AreaFoglio);
    P1->setObjectName(QStringLiteral("P1"));
    P1->setAccessibleName(QStringLiteral("foglio"));
    P1->setGeometry(QRect(QPoint(0, 0), pixel));
    Fuoco = new CorniceFuoco(P1, finestra);
    P1Left0 = P1->x();
    P1Top0 = P1->y();

    AreaRighelloX = CreaArea(finestra, QStringLiteral("AreaRighelloX"));
    RighelloX = new RighelloFoglio(Qt::Horizontal, geometria.PixelPerMillimetro(), AreaRighelloX);
    RighelloX->setObjectName(QStringLiteral("RighelloX"));
    RighelloX->setGeometry(P1Left0, 0, pixel.width(), spessore);
    AreaRighelloY = CreaArea(finestra, QStringLiteral("AreaRighelloY"));
    RighelloY = new RighelloFoglio(Qt::Vertical, geometria.PixelPerMillimetro(), AreaRighelloY);
    RighelloY->setObjectName(QStringLiteral("RighelloY"));
    RighelloX->setAccessibleName(QStringLiteral("righello orizzontale, in centimetri"));
    RighelloY->setAccessibleName(QStringLiteral("righello verticale, in centimetri"));
    RighelloY->setGeometry(0, P1Top0, spessore, pixel.height());
}

void PartiAnteprima::CreaScorrimento(QWidget *finestra)
{
    ScrollX = new QScrollBar(Qt::Horizontal, finestra);
    ScrollX->setObjectName(QStringLiteral("ScrollX"));
    ScrollX->setRange(0, geometria.MassimoScrollX());
    ScrollY = new QScrollBar(Qt::Vertical, finestra);
    ScrollY->setObjectName(QStringLiteral("ScrollY"));
    ScrollX->setAccessibleName(QStringLiteral("scorrimento orizzontale del foglio"));
    ScrollY->setAccessibleName(QStringLiteral("scorrimento verticale del foglio"));
    ScrollY->setRange(0, geometria.MassimoScrollY());
    for (QScrollBar *barra : {ScrollX, ScrollY}) {
        barra->setSingleStep(PassoFreccia);
        barra->setFocusPolicy(Qt::TabFocus);
    }
    // The style does not show which of them has the keys.
    FuocoX = new CorniceFuoco(ScrollX, finestra);
    FuocoY = new CorniceFuoco(ScrollY, finestra);
}

void PartiAnteprima::CreaStriscia(QWidget *finestra)
{
    Text1 = new EtichettaAbbreviata(finestra);
    Text1->ImpostaModo(Qt::ElideRight);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setTextFormat(Qt::PlainText);
    PX = CreaCasella(finestra, QStringLiteral("PX"),
                     QStringLiteral("posizione orizzontale del puntatore (mm di schermo)"), true);
    PY = CreaCasella(finestra, QStringLiteral("PY"),
                     QStringLiteral("posizione verticale del puntatore (mm di schermo)"), true);
    const auto didascalia = [finestra](const QString &testo, QWidget *casella) {
        auto *etichetta = new QLabel(testo, finestra);
        etichetta->setObjectName(QStringLiteral("Etichetta") + casella->objectName());
        etichetta->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        return etichetta;
    };
    EtichettaPX = didascalia(QStringLiteral("X"), PX);
    EtichettaPY = didascalia(QStringLiteral("Y"), PY);
    Label1 = new QLabel(QStringLiteral(" Zoom anteprima 1:"), finestra);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    TextZoom = CreaCasella(finestra, QStringLiteral("TextZoom"),
                           QStringLiteral("riduzione dell'anteprima, da 1 a 3"), false);
    Label1->setBuddy(TextZoom);
    Sorveglia(TextZoom, Numeri::AvvisoDiLettura);
    LL = CreaCasella(finestra, QStringLiteral("LL"), QStringLiteral("elemento in lavorazione"),
                     true);
    for (QWidget *parte : std::initializer_list<QWidget *>{Text1, EtichettaPX, PX, EtichettaPY, PY,
                                                           Label1, TextZoom, LL}) {
        QFont carattere = parte->font();
        // The box in the corner is as narrow as the scroll bar and still shows "C1(100)".
        carattere.setPointSizeF(parte == LL ? PuntiAngolo : PuntiStriscia);
        parte->setFont(carattere);
    }
    Pulsanti = new PulsantiStriscia(finestra);
    Pulsanti->setObjectName(QStringLiteral("Pulsanti"));
    LL->setFrame(false);
    LL->setAlignment(Qt::AlignCenter);
}

void PartiAnteprima::Dispone(QSize interna)
{
    const auto d = GeometriaAnteprima::Dispone(geometria.Millimetri(interna.width()),
                                               geometria.Millimetri(interna.height()));
    const auto colloca = [this](QWidget *controllo, const QRectF &posto) {
        controllo->setGeometry(geometria.Pixel(posto));
    };
    colloca(AreaFoglio, d.AreaFoglio);
    colloca(Fuoco, d.AreaFoglio);
    colloca(FuocoX, d.ScrollX);
    colloca(FuocoY, d.ScrollY);
    colloca(AreaRighelloX, d.AreaRighelloX);
    colloca(AreaRighelloY, d.AreaRighelloY);
    colloca(ScrollX, d.ScrollX);
    colloca(ScrollY, d.ScrollY);
    colloca(Text1, d.Text1);
    colloca(EtichettaPX, d.EtichettaPX);
    colloca(PX, d.PX);
    colloca(EtichettaPY, d.EtichettaPY);
    colloca(PY, d.PY);
    colloca(Label1, d.Label1);
    colloca(TextZoom, d.TextZoom);
    colloca(LL, d.LL);
    DisponePulsanti(geometria.Pixel(d.FinePulsanti));
    ScrollX->setPageStep(std::max(1, static_cast<int>(d.AreaFoglio.width()) - PassoFreccia));
    ScrollY->setPageStep(std::max(1, static_cast<int>(d.AreaFoglio.height()) - PassoFreccia));
}

void PartiAnteprima::DisponePulsanti(int fine)
{
    const int larghezza = Pulsanti->sizeHint().width();
    Pulsanti->setGeometry(fine - larghezza, Text1->y(), larghezza, Text1->height());
    // The strip's own text has the room between the boxes and the buttons that stand on it.
    const int distanza = geometria.Pixel(4);
    Text1->setContentsMargins(TextZoom->geometry().right() + distanza, 0,
                              Text1->width() - Pulsanti->x() + distanza, 0);
}

QSizeF PartiAnteprima::VistaInMillimetri() const
{
    return {geometria.Millimetri(AreaFoglio->width()), geometria.Millimetri(AreaFoglio->height())};
}

QRect PartiAnteprima::AccantoAlFoglio() const
{
    const int inizio = std::clamp(P1->geometry().right() + 1, 0, AreaFoglio->width());
    return {AreaFoglio->mapToGlobal(QPoint(inizio, 0)),
            QSize(AreaFoglio->width() - inizio, AreaFoglio->height())};
}

void PartiAnteprima::ScorreX()
{
    const int sinistra = P1Left0 - geometria.Pixel(ScrollX->value());
    P1->move(sinistra, P1->y());
    RighelloX->move(sinistra, RighelloX->y());
}

void PartiAnteprima::ScorreY()
{
    const int alto = P1Top0 - geometria.Pixel(ScrollY->value());
    P1->move(P1->x(), alto);
    RighelloY->move(RighelloY->x(), alto);
}

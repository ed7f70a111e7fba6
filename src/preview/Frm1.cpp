#include "preview/Frm1.h"

#include "base/ErroreSistema.h"
#include "documento/StatoProgramma.h"
#include "finestre/EtichettaAbbreviata.h"
#include "finestre/Finestre.h"
#include "finestre/Guardia.h"
#include "model/Numeri.h"
#include "preview/AccessoFoglio.h"
#include "preview/AttrezziFoglio.h"
#include "preview/ElementiFoglio.h"
#include "preview/ManiSulFoglio.h"
#include "preview/PartiAnteprima.h"
#include "preview/Righelli.h"
#include "preview/TastiFoglio.h"
#include "preview/VistaFoglio.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>

namespace {

constexpr double MillimetriPerScatto = 15; // of screen, one notch of the wheel
constexpr int CifreSingole = 7;            // of a single-precision number
constexpr qsizetype NomeLeggibile = 60;

QString NumeroSingolo(double valore)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(static_cast<float>(valore), 'g', CifreSingole);
}

void Scrive(QLineEdit *casella, const QString &testo)
{
    if (casella->text() != testo) {
        casella->setText(testo);
    }
}

/// The scale that the zoom box asks for; 0 when it holds no number.
double ZoomScritto(const QString &testo)
{
    try {
        return Numeri::Val(testo);
    } catch (const ErroreSistema &) {
        // Beyond a double is beyond the range, which the box corrects without a message.
        return testo.trimmed().startsWith(u'-') ? -GeometriaAnteprima::ZoomMinimo
                                                : GeometriaAnteprima::ZoomMassimo + 1;
    }
}

} // namespace

Frm1::Frm1(StatoProgramma &stato, QWidget *padre)
    : QWidget(padre, Qt::Window)
    , stato_(stato)
{
    setObjectName(QStringLiteral("Frm1"));
    setWindowTitle(QStringLiteral("Anteprima Plakera"));
    // Pointing selects whichever window is active, so it explains too.
    setAttribute(Qt::WA_AlwaysShowToolTips);
    Form_Load();
    CollegaSegnali();
    Form_Resize();
}

Frm1::~Frm1() = default;

void Frm1::Form_Load()
{
    parti_ = std::make_unique<PartiAnteprima>(this, stato_);
    ImpostaHelp(this);
    elementi_ = std::make_unique<ElementiFoglio>(stato_, parti_->geometria, parti_->scena);
    attrezzi_ = std::make_unique<AttrezziFoglio>(*this, *parti_, stato_, *elementi_);
    attrezzi_->AggiungeComandi(*this);
    mani_ = std::make_unique<ManiSulFoglio>(stato_, parti_->geometria, *elementi_, *parti_->P1,
                                            attrezzi_->guide, attrezzi_->aggancio);
    tasti_ = std::make_unique<TastiFoglio>(stato_, *this, *parti_, attrezzi_->guide);
    parti_->TextZoom->setText(Numeri::CstrX(stato_.zoom, {}));
    parti_->TextZoom->installEventFilter(this);
    parti_->P1->setFocus(); // otherwise the zoom box takes the keys that are meant for the sheet
    Righello();
}

void Frm1::CollegaSegnali()
{
    Collega(parti_->ScrollX, &QScrollBar::valueChanged, this, &Frm1::ScrollX_Change);
    Collega(parti_->ScrollY, &QScrollBar::valueChanged, this, &Frm1::ScrollY_Change);
    Collega(&stato_.documento, &Documento::Cambiato, this, &Frm1::SegueDocumento);
    connect(mani_.get(), &AvvisiFoglio::ElementoPuntato, this, &Frm1::ElementoPuntato);
    connect(mani_.get(), &AvvisiFoglio::PaginaRichiesta, this, &Frm1::PaginaRichiesta);
    connect(mani_.get(), &AvvisiFoglio::RichiestaProprieta, this, &Frm1::RichiestaProprieta);
    connect(tasti_.get(), &TastiFoglio::RichiestaProprieta, this, &Frm1::RichiestaProprieta);
    Collega(tasti_.get(), &TastiFoglio::ElementoInMano, this, &Frm1::MostraElemento);
    connect(&stato_.selezione, &Selezione::SceltiCambiati, this, [this] { avvisato_ = false; });
    Collega(mani_.get(), &AvvisiFoglio::FoglioPuntato, this, &Frm1::MostraPuntatore);
    Collega(mani_.get(), &AvvisiFoglio::FoglioSorvolato, this, &Frm1::MostraSorvolo);
    Collega(mani_.get(), &AvvisiFoglio::ElementoInMano, this, &Frm1::MostraElemento);
    // After the sheet itself: what it tells of the elements is what they have become.
    accesso_ = std::make_unique<AccessoFoglio>(stato_, parti_->geometria, *elementi_, *parti_->P1);
    Collega(accesso_.get(), &AccessoFoglio::RichiestaProprieta, this,
            [this](Genere genere, int i) { emit RichiestaProprieta(genere, i); });
    Collega(accesso_.get(), &AccessoFoglio::SceltaRichiesta, this, &Frm1::Sceglie);
}

void Frm1::Form_Resize()
{
    // The window is as wide as the screen and leaves the editor's strip above it. Both are taken
    // with the window's frame, or the frame would fall off the screen.
    const QMargins cornice =
        windowHandle() == nullptr ? QMargins() : windowHandle()->frameMargins();
    const QSize interna =
        parti_->geometria.MisuraInterna(screen()->availableGeometry().size(), cornice);
    if (interna != minimumSize() || interna != maximumSize()) {
        setFixedSize(interna);
    }
    parti_->Dispone(size());
}

void Frm1::resizeEvent(QResizeEvent *)
{
    Guardia(this, [this] { Form_Resize(); });
}

void Frm1::moveEvent(QMoveEvent *)
{
    // The frame is known only once the window manager has drawn it, and it moves the window then.
    Guardia(this, [this] { Form_Resize(); });
}

void Frm1::showEvent(QShowEvent *)
{
    Guardia(this, [this] { Form_Resize(); });
}

void Frm1::closeEvent(QCloseEvent *evento)
{
    // What is being dragged belongs to what the user is asked to save.
    Guardia(this, [this] { mani_->Interrompe(); });
    if (evento->spontaneous()) {
        evento->ignore();
        emit ChiusuraRichiesta();
    }
}

void Frm1::wheelEvent(QWheelEvent *evento)
{
    evento->accept();
    if (evento->modifiers() & Qt::ControlModifier) {
        Guardia(this, [&] { attrezzi_->zoom.Gira(*evento); });
        return;
    }
    const bool traverso = evento->modifiers() & Qt::ShiftModifier;
    const QPoint giro = traverso ? evento->angleDelta().transposed() : evento->angleDelta();
    // A touch pad turns by less than a millimetre at a time; what is left over adds up.
    giroRuota_ -= QPointF(giro) * MillimetriPerScatto / QWheelEvent::DefaultDeltasPerStep;
    const QPoint interi(static_cast<int>(giroRuota_.x()), static_cast<int>(giroRuota_.y()));
    giroRuota_ -= interi;
    parti_->ScrollX->setValue(parti_->ScrollX->value() + interi.x());
    parti_->ScrollY->setValue(parti_->ScrollY->value() + interi.y());
}

bool Frm1::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (oggetto == parti_->TextZoom && evento->type() == QEvent::KeyRelease) {
        Guardia(this, [this] { TextZoom_KeyUp(); });
    }
    return QWidget::eventFilter(oggetto, evento);
}

void Frm1::ScrollX_Change()
{
    parti_->ScorreX();
}

void Frm1::ScrollY_Change()
{
    parti_->ScorreY();
}

void Frm1::TextZoom_KeyUp()
{
    double valore = ZoomScritto(parti_->TextZoom->text());
    if (valore == 0) {
        return;
    }
    const double corretto =
        std::clamp(valore, GeometriaAnteprima::ZoomMinimo, GeometriaAnteprima::ZoomMassimo);
    if (corretto != valore) {
        parti_->TextZoom->setText(QString::number(corretto));
        valore = corretto;
    }
    if (valore == stato_.zoom) {
        return;
    }
    const PuntatoreOccupato occupato;
    stato_.zoom = valore;
    emit SfondoDaRidisegnare();
    Righello();
    for (const Genere genere : Generi) {
        for (int i = 1; i <= stato_.Aperto().UltimoSlot(genere); ++i) {
            Impostazioni(genere, i);
            Posiziona(genere, i);
        }
    }
    elementi_->RiancoraManiglie();
    elementi_->RinominaManiglie();
    attrezzi_->SegueZoom(stato_.zoom);
    emit RigheDaRidisegnare();
    parti_->P1->viewport()->update(); // the background follows the zoom by itself
}

bool Frm1::ImpostaZoom(double zoom)
{
    if (mani_->Occupate()) {
        return false; // the drag under way goes by places on the screen
    }
    parti_->TextZoom->setText(Numeri::CstrX(zoom, {}));
    TextZoom_KeyUp();
    return true;
}

void Frm1::MostraContorni(const ContorniCarta::Posti &posti)
{
    attrezzi_->contorni.Imposta(posti, stato_.zoom);
}

void Frm1::MostraPuntatore(QPointF punto)
{
    parti_->PX->setText(NumeroSingolo(punto.x()));
    parti_->PY->setText(NumeroSingolo(punto.y()));
}

void Frm1::MostraSorvolo(QPointF punto)
{
    if (avvisato_) {
        return;
    }
    parti_->Text1->setText(
        QStringLiteral("X %1   Y %2   mm")
            .arg(Numeri::Decimi(punto.x() * stato_.zoom), Numeri::Decimi(punto.y() * stato_.zoom)));
}

void Frm1::MostraElemento(Genere genere, int i)
{
    avvisato_ = false;
    const Modello &modello = stato_.Aperto();
    QString testo = NomeDi(genere) + u' ' + modello.Nome(genere, i).left(NomeLeggibile);
    const auto aggiunge = [&testo](const QString &etichetta, double millimetri) {
        testo += QStringLiteral("   ") + etichetta + u' ' + Numeri::Decimi(millimetri);
    };
    modello.Con(genere, [&](const auto &tabella) {
        aggiunge(QStringLiteral("X"), tabella[i].X);
        aggiunge(QStringLiteral("Y"), tabella[i].Y);
        if constexpr (requires { tabella[i].Larghezza; }) {
            aggiunge(QStringLiteral("larghezza"), tabella[i].Larghezza);
            aggiunge(QStringLiteral("altezza"), tabella[i].Altezza);
        }
    });
    parti_->Text1->setText(testo + QStringLiteral("   mm"));
    Scrive(parti_->LL, elementi_->Elemento(genere, i).objectName());
}

QPixmap Frm1::Ritratto()
{
    return parti_->P1->grab();
}

void Frm1::PortaInVista(Chiave chiave)
{
    const QRectF posto = elementi_->Elemento(chiave.genere, chiave.indice).Posto();
    const QSizeF vista = parti_->VistaInMillimetri();
    const auto porta = [](QScrollBar *barra, double inizio, double fine, double larghezza) {
        constexpr int Margine = 5; // mm of screen
        if (inizio < barra->value() || fine > barra->value() + larghezza) {
            barra->setValue(static_cast<int>(inizio) - Margine);
        }
    };
    porta(parti_->ScrollX, posto.left(), posto.right(), vista.width());
    porta(parti_->ScrollY, posto.top(), posto.bottom(), vista.height());
}

QRect Frm1::AccantoAlFoglio() const
{
    return parti_->AccantoAlFoglio();
}

void Frm1::keyPressEvent(QKeyEvent *evento)
{
    bool preso = false;
    if (evento->key() == Qt::Key_Escape) {
        Guardia(this, [&] {
            preso = mani_->Rinuncia() || attrezzi_->guide.Rinuncia();
            if (!preso && !stato_.selezione.Scelti().isEmpty()) {
                stato_.selezione.SvuotaScelti();
                preso = true;
            }
        });
    }
    if (!preso) {
        QWidget::keyPressEvent(evento);
    }
}

void Frm1::Righello()
{
    const GeometriaAnteprima &geometria = parti_->geometria;
    parti_->RighelloX->Mostra(CalcolaRighello(geometria.LarghezzaFoglio(), stato_.zoom));
    parti_->RighelloY->Mostra(CalcolaRighello(geometria.AltezzaFoglio(), stato_.zoom));
}

void Frm1::AggiungeComando(QAction *comando, GruppoComandi gruppo)
{
    addAction(comando);
    parti_->Pulsanti->Aggiunge(comando, gruppo);
    parti_->Dispone(size());
}

QList<QAction *> Frm1::ComandiDelFoglio() const
{
    return attrezzi_->Comandi();
}

void Frm1::Avverte(const QString &testo)
{
    avvisato_ = true;
    parti_->Text1->setText(testo);
}

void Frm1::RitiraAvviso(const QString &testo)
{
    if (parti_->Text1->text() == testo) {
        avvisato_ = false;
        parti_->Text1->clear();
    }
}

int Frm1::ScorrimentoX() const
{
    return parti_->ScrollX->value();
}

int Frm1::ScorrimentoY() const
{
    return parti_->ScrollY->value();
}

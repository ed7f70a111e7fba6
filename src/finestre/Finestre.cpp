#include "finestre/Finestre.h"

#include "base/Unita.h"
#include "finestre/FiltroAnsi.h"
#include "finestre/TestiDiQt.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QPlainTextEdit>
#include <QScreen>

#include <limits>

// Outside any namespace, as Qt's macro demands.
static void CaricaRisorse()
{
    Q_INIT_RESOURCE(traduzioni);
}

namespace {

/// Qt cuts what is longer without a word.
constexpr int LunghezzaDiQt = 32767;

/// The room that a title bar and borders may take, not known before a window is shown.
constexpr QSize Bordi(16, 48);

class FiltroRotella : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject *oggetto, QEvent *evento) override
    {
        if (evento->type() != QEvent::Wheel) {
            return QObject::eventFilter(oggetto, evento);
        }
        evento->ignore(); // so that it goes on to the list's parent
        return true;
    }
};

QScreen *SchermoDi(const QWidget *finestra)
{
    QScreen *schermo = finestra != nullptr ? finestra->screen() : nullptr;
    return schermo != nullptr ? schermo : QGuiApplication::primaryScreen();
}

/// The rectangle moved, not resized, into the limits; its top-left corner wins when it is larger.
QPoint Entro(const QRect &limiti, const QRect &rettangolo)
{
    const int x = qMin(rettangolo.x(), limiti.right() + 1 - rettangolo.width());
    const int y = qMin(rettangolo.y(), limiti.bottom() + 1 - rettangolo.height());
    return {qMax(x, limiti.x()), qMax(y, limiti.y())};
}

} // namespace

void CentraForm(QWidget *finestra)
{
    if (!finestra->testAttribute(Qt::WA_Resized)) {
        finestra->adjustSize();
    }
    const QScreen *schermo = SchermoDi(finestra);
    QRect posto(QPoint(), finestra->frameGeometry().size());
    posto.moveTopLeft(schermo->geometry().topLeft() +
                      QPoint((schermo->geometry().width() - posto.width()) / 2,
                             (schermo->geometry().height() - posto.height()) / 2));
    finestra->move(Entro(schermo->availableGeometry(), posto));
}

QSize EntroLoSchermo(const QWidget *finestra, const QSize &misura)
{
    return misura.boundedTo(SchermoDi(finestra)->availableSize() - Bordi);
}

void ImpostaHelp(QWidget *finestra)
{
    finestra->setProperty(ProprietaGuida, ArgomentoGuida);
    for (QWidget *controllo : finestra->findChildren<QWidget *>()) {
        controllo->setProperty(ProprietaGuida, ArgomentoGuida);
    }
}

int ArgomentoDi(const QWidget *controllo)
{
    while (controllo != nullptr) {
        const int argomento = controllo->property(ProprietaGuida).toInt();
        if (argomento != 0) {
            return argomento;
        }
        // The window below a dialog is no part of it; an open list belongs to its control.
        const bool finito = controllo->isWindow() && controllo->windowType() != Qt::Popup;
        controllo = finito ? nullptr : controllo->parentWidget();
    }
    return 0;
}

void ImpostaLingua()
{
    CaricaRisorse();
    auto *testi = new TestiDiQt(QCoreApplication::instance());
    if (testi->load(QStringLiteral(":/qtbase_it.qm"))) {
        QCoreApplication::installTranslator(testi);
    }
}

double PixelPerMillimetro(const QWidget *finestra)
{
    return SchermoDi(finestra)->logicalDotsPerInch() / Unita::MillimetriPerPollice;
}

PuntatoreOccupato::PuntatoreOccupato()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

PuntatoreOccupato::~PuntatoreOccupato()
{
    QApplication::restoreOverrideCursor();
}

TastiPrestati::TastiPrestati()
    : davanti_(QApplication::activeWindow())
{
}

TastiPrestati::~TastiPrestati()
{
    if (davanti_ != nullptr && davanti_->isVisible() && !davanti_->isActiveWindow()) {
        davanti_->activateWindow();
    }
}

void LimitaAlCodice(QWidget *finestra)
{
    for (QLineEdit *casella : finestra->findChildren<QLineEdit *>()) {
        if (casella->maxLength() == LunghezzaDiQt) {
            casella->setMaxLength(std::numeric_limits<int>::max());
        }
        if (casella->validator() == nullptr) {
            casella->setValidator(new ValidatoreAnsi(casella));
            casella->installEventFilter(new FiltroTasti(casella));
        }
    }
    for (QPlainTextEdit *casella : finestra->findChildren<QPlainTextEdit *>()) {
        casella->installEventFilter(new FiltroTasti(casella));
        QObject::connect(casella, &QPlainTextEdit::textChanged, casella,
                         [casella] { ToglieNonAnsi(casella); });
    }
}

void FermaRotella(QWidget *finestra)
{
    for (QComboBox *elenco : finestra->findChildren<QComboBox *>()) {
        elenco->installEventFilter(new FiltroRotella(elenco));
    }
}

void LimitaElenchi(QWidget *finestra)
{
    constexpr int Righe = 20;
    for (QComboBox *elenco : finestra->findChildren<QComboBox *>()) {
        elenco->setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
        elenco->setMaxVisibleItems(Righe);
    }
}

#include "finestre/Attesa.h"

#include "finestre/Finestre.h"
#include "finestre/Messaggi.h"

#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QProgressDialog>
#include <QTimer>

namespace {

constexpr int MillisecondiSenzaAvviso = 1000;

/// Waits that long at most, with the window painted but deaf.
void AttendeInSilenzio(const LavoroInDisparte &lavoro)
{
    const PuntatoreOccupato occupato;
    QEventLoop attesa;
    QObject::connect(&lavoro, &LavoroInDisparte::Finito, &attesa, &QEventLoop::quit);
    QTimer scadenza;
    scadenza.setSingleShot(true);
    QObject::connect(&scadenza, &QTimer::timeout, &attesa, &QEventLoop::quit);
    scadenza.start(MillisecondiSenzaAvviso);
    attesa.exec(QEventLoop::ExcludeUserInputEvents);
}

/// The pointer that waits would say that the button does not work.
class PuntatoreLibero
{
public:
    PuntatoreLibero() { QApplication::setOverrideCursor(Qt::BusyCursor); }
    ~PuntatoreLibero() { QApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(PuntatoreLibero)
};

/// False when the user gives up.
bool AttendeConAvviso(QWidget *padre, const QString &testo, const LavoroInDisparte &lavoro)
{
    QProgressDialog avviso(padre);
    avviso.setObjectName(QStringLiteral("Attesa"));
    avviso.setWindowTitle(Messaggi::Titolo);
    auto *etichetta = new QLabel(testo);
    etichetta->setTextFormat(Qt::PlainText); // file names may look like something else
    avviso.setLabel(etichetta);
    avviso.setCancelButtonText(QStringLiteral("Annulla"));
    avviso.setRange(0, 0); // how much is left nobody knows
    avviso.setWindowModality(
        Qt::ApplicationModal); // what is waited for is no other window's either
    QObject::connect(&lavoro, &LavoroInDisparte::Finito, &avviso, &QDialog::accept);
    QObject::connect(&avviso, &QProgressDialog::canceled, &avviso, &QDialog::reject);
    const PuntatoreLibero puntatore;
    return avviso.exec() == QDialog::Accepted;
}

} // namespace

bool EsegueConAttesa(QWidget *padre, const QString &testo, const LavoroInDisparte::Lavoro &lavoro)
{
    LavoroInDisparte disparte;
    disparte.Avvia(lavoro);
    AttendeInSilenzio(disparte);
    if (disparte.InCorso() && !AttendeConAvviso(padre, testo, disparte)) {
        return false;
    }
    disparte.Verifica();
    return true;
}

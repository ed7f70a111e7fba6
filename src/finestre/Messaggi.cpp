#include "finestre/Messaggi.h"

#include "finestre/Finestre.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <cstdio>

namespace {

bool soloErroreStandard = false;
int emessi = 0;

void ScriveErroreStandard(QString testo)
{
    testo.replace(u'\n', u' ');
    std::fprintf(stderr, "%s\n", qUtf8Printable(testo));
    ++emessi;
}

/// The text with the middle of what is too long left out. Names and paths come from files and may
/// be of any length: a box taller than the screen would have its buttons outside of it.
QString Leggibile(const QString &testo)
{
    constexpr qsizetype CaratteriPerRiga = 400;
    constexpr qsizetype RigheMassime = 24;
    const QString omesso = QStringLiteral(" […] ");
    QStringList righe = testo.split(u'\n');
    if (righe.size() > RigheMassime) {
        righe.erase(righe.begin() + RigheMassime / 2, righe.end() - RigheMassime / 2);
        righe.insert(RigheMassime / 2, omesso);
    }
    for (QString &riga : righe) {
        if (riga.size() > CaratteriPerRiga) {
            riga = riga.left(CaratteriPerRiga / 2) + omesso + riga.right(CaratteriPerRiga / 2);
        }
    }
    return righe.join(u'\n');
}

/// While a box is open the pointer is the normal one, even in the middle of a busy command.
class PuntatoreNormale
{
public:
    PuntatoreNormale() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~PuntatoreNormale() { QGuiApplication::restoreOverrideCursor(); }
    PuntatoreNormale(const PuntatoreNormale &) = delete;
    PuntatoreNormale &operator=(const PuntatoreNormale &) = delete;
};

int Esegue(QDialog &riquadro)
{
    if (QGuiApplication::overrideCursor() == nullptr) {
        return riquadro.exec();
    }
    const PuntatoreNormale normale;
    return riquadro.exec();
}

/// Qt keeps a place for the icon and indents the text beside it, also where there is none.
void SenzaRientro(const QMessageBox &riquadro)
{
    auto *testo = riquadro.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    auto *griglia = qobject_cast<QGridLayout *>(riquadro.layout());
    if (testo == nullptr || griglia == nullptr) {
        return; // a box of the system's own
    }
    testo->setIndent(0);
    testo->setContentsMargins({});
    QLayoutItem *posto = griglia->itemAtPosition(0, 0);
    if (posto != nullptr && posto->spacerItem() != nullptr) {
        griglia->removeItem(posto);
        delete posto;
        griglia->removeWidget(testo);
        griglia->addWidget(testo, 0, 0, 1, griglia->columnCount());
    }
}

/// The title says what is asked for: it must not be cut between the frame's icon and buttons.
void AllargaPerIlTitolo(QInputDialog &riquadro)
{
    constexpr int IconaEBottoni = 160; // device-independent pixels
    riquadro.minimumSizeHint();        // makes the box's layout
    auto *casella = riquadro.findChild<QLineEdit *>();
    if (casella == nullptr || riquadro.layout() == nullptr) {
        return;
    }
    QFont carattere = riquadro.font();
    carattere.setBold(true); // as many frames write their titles
    const int titolo = QFontMetrics(carattere).horizontalAdvance(riquadro.windowTitle());
    const QSize misura = EntroLoSchermo(&riquadro, QSize(titolo + IconaEBottoni, 0));
    // The layout gives the box its least size anew; only what stands in it can ask for more.
    const QMargins margini = riquadro.layout()->contentsMargins();
    casella->setMinimumWidth(misura.width() - margini.left() - margini.right());
}

/// The label shows the text letter for letter: it belongs to the box below it, which would make a
/// mnemonic of an "&", and what looks like markup would be taken for it.
void ScriveRichiesta(QInputDialog &riquadro, QString richiesta)
{
    riquadro.setLabelText(richiesta.replace(u'&', QStringLiteral("&&")));
    riquadro.minimumSizeHint(); // makes the box's layout
    if (auto *etichetta = riquadro.findChild<QLabel *>()) {
        etichetta->setTextFormat(Qt::PlainText);
    }
}

void MostraRiquadro(QWidget *padre, const QString &testo, QMessageBox::Icon icona)
{
    if (soloErroreStandard) {
        ScriveErroreStandard(testo);
        return;
    }
    QMessageBox riquadro(icona, Messaggi::Titolo, Leggibile(testo), QMessageBox::Ok, padre);
    riquadro.setTextFormat(Qt::PlainText);
    riquadro.button(QMessageBox::Ok)->setText(QStringLiteral("OK"));
    if (icona == QMessageBox::NoIcon) {
        SenzaRientro(riquadro);
    }
    Esegue(riquadro);
}

/// A question with the system's buttons in Italian.
class RiquadroDomanda : public QMessageBox
{
public:
    RiquadroDomanda(QWidget *padre, const QString &testo, StandardButtons bottoni)
        : QMessageBox(QMessageBox::Question, Messaggi::Titolo, Leggibile(testo), bottoni, padre)
    {
        setTextFormat(Qt::PlainText);
        Intitola(Yes, QStringLiteral("&Sì"));
        Intitola(No, QStringLiteral("&No"));
        Intitola(Cancel, QStringLiteral("Annulla"));
    }

    /// Neither Escape nor the close box answers: a No that nobody chose would lose work.
    void VuoleRisposta() { vuoleRisposta_ = true; }
    /// Escape and the close box end the box without any of its buttons.
    void SiRinuncia() { siRinuncia_ = true; }

    void reject() override
    {
        if (!vuoleRisposta_) {
            QMessageBox::reject();
        }
    }

protected:
    void keyPressEvent(QKeyEvent *evento) override
    {
        if (evento->key() == Qt::Key_Escape && siRinuncia_) {
            done(QDialog::Rejected);
        } else if (!vuoleRisposta_ || evento->key() != Qt::Key_Escape) {
            QMessageBox::keyPressEvent(evento);
        }
    }
    void closeEvent(QCloseEvent *evento) override
    {
        if (vuoleRisposta_) {
            evento->ignore();
        } else if (siRinuncia_) {
            done(QDialog::Rejected); // a message box would press No
        } else {
            QMessageBox::closeEvent(evento);
        }
    }

private:
    void Intitola(StandardButton quale, const QString &titolo)
    {
        if (QAbstractButton *bottone = button(quale)) {
            bottone->setText(titolo);
        }
    }

    bool vuoleRisposta_ = false;
    bool siRinuncia_ = false;
};

Messaggi::Scelta SceltaDi(int bottone)
{
    switch (bottone) {
    case QMessageBox::Yes:
        return Messaggi::Scelta::Si;
    case QMessageBox::No:
        return Messaggi::Scelta::No;
    default:
        return Messaggi::Scelta::Annulla;
    }
}

} // namespace

void Messaggi::Mostra(QWidget *padre, const QString &testo)
{
    MostraRiquadro(padre, testo, QMessageBox::NoIcon);
}

void Messaggi::MostraCritico(QWidget *padre, const QString &testo)
{
    MostraRiquadro(padre, testo, QMessageBox::Critical);
}

bool Messaggi::Domanda(QWidget *padre, const QString &testo, Risposta predefinita)
{
    if (soloErroreStandard) {
        return predefinita == Risposta::Si;
    }
    RiquadroDomanda riquadro(padre, testo, QMessageBox::Yes | QMessageBox::No);
    riquadro.setDefaultButton(predefinita == Risposta::Si ? QMessageBox::Yes : QMessageBox::No);
    if (predefinita == Risposta::No) {
        riquadro.setEscapeButton(QMessageBox::No);
    } else {
        riquadro.VuoleRisposta();
    }
    return Esegue(riquadro) == QMessageBox::Yes;
}

Messaggi::Scelta Messaggi::DomandaRinunciabile(QWidget *padre, const QString &testo,
                                               Risposta predefinita)
{
    if (soloErroreStandard) {
        return predefinita == Risposta::Si ? Scelta::Si : Scelta::No;
    }
    RiquadroDomanda riquadro(padre, testo, QMessageBox::Yes | QMessageBox::No);
    riquadro.setDefaultButton(predefinita == Risposta::Si ? QMessageBox::Yes : QMessageBox::No);
    riquadro.SiRinuncia();
    return SceltaDi(Esegue(riquadro));
}

Messaggi::Scelta Messaggi::DomandaAnnullabile(QWidget *padre, const QString &testo,
                                              Scelta predefinita)
{
    if (soloErroreStandard) {
        return Scelta::No;
    }
    RiquadroDomanda riquadro(padre, testo,
                             QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    riquadro.setDefaultButton(predefinita == Scelta::Si   ? QMessageBox::Yes
                              : predefinita == Scelta::No ? QMessageBox::No
                                                          : QMessageBox::Cancel);
    riquadro.setEscapeButton(QMessageBox::Cancel);
    return SceltaDi(Esegue(riquadro));
}

int Messaggi::DomandaAScelta(QWidget *padre, const QString &testo, const QStringList &bottoni,
                             int rinuncia)
{
    if (soloErroreStandard) {
        return rinuncia;
    }
    RiquadroDomanda riquadro(padre, testo, QMessageBox::NoButton);
    QList<QAbstractButton *> inOrdine;
    for (qsizetype i = 0; i < bottoni.size(); ++i) {
        // One role, so that they stand in the order in which they were given on every system.
        QPushButton *bottone = riquadro.addButton(bottoni[i], QMessageBox::ActionRole);
        inOrdine.append(bottone);
        if (i == rinuncia) {
            riquadro.setDefaultButton(bottone);
            riquadro.setEscapeButton(bottone);
        }
    }
    Esegue(riquadro);
    return int(inOrdine.indexOf(riquadro.clickedButton()));
}

std::optional<QString> Messaggi::ChiedeTesto(QWidget *padre, const QString &titolo,
                                             const QString &richiesta, const QString &proposta)
{
    if (soloErroreStandard) {
        return std::nullopt;
    }
    QInputDialog riquadro(padre);
    riquadro.setWindowTitle(Leggibile(titolo));
    ScriveRichiesta(riquadro, Leggibile(richiesta));
    riquadro.setTextValue(proposta);
    riquadro.setOkButtonText(QStringLiteral("OK"));
    riquadro.setCancelButtonText(QStringLiteral("Annulla"));
    AllargaPerIlTitolo(riquadro);
    if (Esegue(riquadro) != QDialog::Accepted) {
        return std::nullopt;
    }
    return riquadro.textValue();
}

void Messaggi::SoloErroreStandard()
{
    soloErroreStandard = true;
}

int Messaggi::Emessi()
{
    return emessi;
}

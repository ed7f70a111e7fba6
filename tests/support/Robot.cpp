#include "support/Robot.h"

#include <QApplication>
#include <QDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>

namespace {

/// Ends a dialog that is not the one an answer was meant for, and the test with it.
void Rifiuta(QDialog *dialogo, const char *perche)
{
    QTest::qFail(perche, __FILE__, __LINE__);
    dialogo->done(QDialog::Rejected);
}

void Preme(QDialog *dialogo, QMessageBox::StandardButton bottone)
{
    auto *riquadro = qobject_cast<QMessageBox *>(dialogo);
    if (riquadro != nullptr && riquadro->button(bottone) != nullptr) {
        riquadro->button(bottone)->click();
    } else {
        Rifiuta(dialogo, "a box without the button that should answer it");
    }
}

} // namespace

Robot::Robot()
{
    timer_.setInterval(1);
    connect(&timer_, &QTimer::timeout, this, &Robot::Guarda);
    timer_.start();
}

Robot::~Robot()
{
    if (!guardato_ && (inattesi_ > 0 || !risposte_.isEmpty())) {
        const QString testo = QStringLiteral("%1 unexpected boxes, %2 answers left: %3")
                                  .arg(inattesi_)
                                  .arg(risposte_.size())
                                  .arg(testi_.join(u'|'));
        QTest::qFail(qPrintable(testo), __FILE__, __LINE__);
    }
}

Robot &Robot::Ok()
{
    return Agisce([](QDialog *d) { Preme(d, QMessageBox::Ok); });
}

Robot &Robot::Si()
{
    return Agisce([](QDialog *d) { Preme(d, QMessageBox::Yes); });
}

Robot &Robot::No()
{
    return Agisce([](QDialog *d) { Preme(d, QMessageBox::No); });
}

Robot &Robot::Digita(const QString &testo)
{
    return Agisce([testo](QDialog *d) {
        if (auto *ingresso = qobject_cast<QInputDialog *>(d)) {
            ingresso->setTextValue(testo);
            ingresso->accept();
        } else {
            Rifiuta(d, "a text for a box that takes none");
        }
    });
}

Robot &Robot::Annulla()
{
    return Agisce([](QDialog *d) { d->done(QDialog::Rejected); });
}

Robot &Robot::Agisce(std::function<void(QDialog *)> azione)
{
    risposte_.append(std::move(azione));
    return *this;
}

Robot &Robot::AgisceSuAttesa(std::function<void(QDialog *)> azione)
{
    guardaAttese_ = true;
    return Agisce(std::move(azione));
}

void Robot::Guarda()
{
    auto *dialogo = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    // What only says that something takes its time asks nothing, and comes on slow machines only.
    if (dialogo == nullptr || !dialogo->isVisible() || visti_.contains(dialogo) ||
        (!guardaAttese_ && qobject_cast<const QProgressDialog *>(dialogo) != nullptr)) {
        return;
    }
    visti_.append(dialogo);
    // The same object shown again, or another one at the same address, is a new box.
    connect(dialogo, &QDialog::finished, this, [this, dialogo] { visti_.removeAll(dialogo); });
    connect(dialogo, &QObject::destroyed, this, [this, dialogo] { visti_.removeAll(dialogo); });
    Annota(dialogo);
    if (risposte_.isEmpty()) {
        ++inattesi_;
        // Also a question that neither Escape nor its close box ends must not hold the test up.
        dialogo->done(QDialog::Rejected);
        return;
    }
    // Queued, because an answer may open a further box, and this timer does not fire while it is
    // being handled.
    QMetaObject::invokeMethod(
        dialogo, [dialogo, risposta = risposte_.takeFirst()] { risposta(dialogo); },
        Qt::QueuedConnection);
}

void Robot::Annota(QDialog *dialogo)
{
    titoli_.append(dialogo->windowTitle());
    if (const auto *riquadro = qobject_cast<QMessageBox *>(dialogo)) {
        testi_.append(riquadro->text());
        predefiniti_.append(riquadro->defaultButton() != nullptr ? riquadro->defaultButton()->text()
                                                                 : QString());
    } else if (const auto *ingresso = qobject_cast<QInputDialog *>(dialogo)) {
        // An "&" is written twice to be shown once.
        testi_.append(ingresso->labelText().replace(QStringLiteral("&&"), QStringLiteral("&")));
        predefiniti_.append(ingresso->textValue());
    } else {
        testi_.append(dialogo->objectName());
        predefiniti_.append(QString());
    }
}

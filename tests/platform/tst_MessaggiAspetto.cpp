// How message boxes look to whoever reads them.

#include "platform/Messaggi.h"

#include "support/Robot.h"

#include <QDialog>
#include <QImage>
#include <QLayout>
#include <QTest>

namespace {

/// The leftmost column of the picture above a height in which something stands, pixels.
int PrimaColonnaScritta(const QImage &foto, int altezza)
{
    for (int x = 0; x < foto.width(); ++x) {
        for (int y = 2; y < altezza; ++y) {
            if (foto.pixel(x, y) != foto.pixel(2, 2)) {
                return x;
            }
        }
    }
    return foto.width();
}

} // namespace

class tst_MessaggiAspetto : public QObject
{
    Q_OBJECT
private slots:
    void SenzaIconaIlTestoCominciaAlMargine();
    void ConLIconaIlTestoNeStaLontano();
};

void tst_MessaggiAspetto::SenzaIconaIlTestoCominciaAlMargine()
{
    Robot robot;
    int prima = -1;
    int margine = 0;
    robot.Agisce([&](QDialog *d) {
        margine = d->layout()->contentsMargins().left();
        prima = PrimaColonnaScritta(d->grab().toImage(), d->height() / 3);
        d->accept();
    });
    Messaggi::Mostra(nullptr, QStringLiteral("HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH"));
    QVERIFY(robot.Soddisfatto());
    QVERIFY2(prima >= margine && prima <= margine + 3,
             qPrintable(QStringLiteral("%1 pixels, margin %2").arg(prima).arg(margine)));
}

void tst_MessaggiAspetto::ConLIconaIlTestoNeStaLontano()
{
    Robot robot;
    int rientro = 0;
    robot.Agisce([&](QDialog *d) {
        const auto *testo = d->findChild<QWidget *>(QStringLiteral("qt_msgbox_label"));
        const auto *icona = d->findChild<QWidget *>(QStringLiteral("qt_msgboxex_icon_label"));
        if (testo != nullptr && icona != nullptr) {
            rientro = testo->x() - icona->geometry().right();
        }
        d->accept();
    });
    Messaggi::MostraCritico(nullptr, QStringLiteral("HHHHHHHHHHHHHHHH"));
    QVERIFY(robot.Soddisfatto());
    QVERIFY(rientro > 0);
}

QTEST_MAIN(tst_MessaggiAspetto)
#include "tst_MessaggiAspetto.moc"

// How message boxes look to whoever reads them.

#include "finestre/Messaggi.h"

#include "support/Robot.h"

#include <QDialog>
#include <QFontMetrics>
#include <QImage>
#include <QLayout>
#include <QScreen>
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
    void IlTitoloDiUnaDomandaNonSiTaglia_data();
    void IlTitoloDiUnaDomandaNonSiTaglia();
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

void tst_MessaggiAspetto::IlTitoloDiUnaDomandaNonSiTaglia_data()
{
    QTest::addColumn<QString>("titolo");
    QTest::newRow("corto") << QStringLiteral("Nuovo modello di stampa");
    QTest::newRow("con un percorso")
        << QStringLiteral("caricamento immagine C:\\Archivi\\Archivio_2026\\ini\\Scansione.jpg");
    QTest::newRow("oltre lo schermo") << QString(300, u'M');
}

void tst_MessaggiAspetto::IlTitoloDiUnaDomandaNonSiTaglia()
{
    QFETCH(QString, titolo);
    Robot robot;
    int larghezza = 0;
    int serve = 0;
    int schermo = 0;
    robot.Agisce([&](QDialog *d) {
        constexpr int Bottoni = 120; // what a frame takes for its buttons
        larghezza = d->width();
        serve = d->fontMetrics().horizontalAdvance(titolo) + Bottoni;
        schermo = d->screen()->availableGeometry().width();
        d->reject();
    });
    Messaggi::ChiedeTesto(nullptr, titolo, QStringLiteral("nome"), QString());
    QVERIFY(robot.Soddisfatto());
    const int atteso = qMin(serve, schermo * 9 / 10);
    QVERIFY2(larghezza >= atteso && larghezza <= schermo,
             qPrintable(QStringLiteral("%1 wide, needs %2").arg(larghezza).arg(serve)));
}

QTEST_MAIN(tst_MessaggiAspetto)
#include "tst_MessaggiAspetto.moc"

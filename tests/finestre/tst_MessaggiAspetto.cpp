// How message boxes look to whoever reads them.

#include "finestre/Messaggi.h"

#include "support/Robot.h"

#include <QDialog>
#include <QFontMetrics>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QScreen>
#include <QTest>

#include <functional>

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
    void OgniRiquadroMostraITestiAllaLettera_data();
    void OgniRiquadroMostraITestiAllaLettera();
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

void tst_MessaggiAspetto::OgniRiquadroMostraITestiAllaLettera_data()
{
    using Apre = std::function<void(const QString &)>;
    QTest::addColumn<Apre>("apre");
    QTest::addColumn<QString>("testo");
    const std::pair<const char *, Apre> riquadri[] = {
        {"messaggio", [](const QString &t) { Messaggi::Mostra(nullptr, t); }},
        {"critico", [](const QString &t) { Messaggi::MostraCritico(nullptr, t); }},
        {"domanda",
         [](const QString &t) { Messaggi::Domanda(nullptr, t, Messaggi::Risposta::No); }},
        {"domanda rinunciabile",
         [](const QString &t) {
             Messaggi::DomandaRinunciabile(nullptr, t, Messaggi::Risposta::No);
         }},
        {"domanda a scelta",
         [](const QString &t) {
             Messaggi::DomandaAScelta(nullptr, t, {QStringLiteral("Lascia")}, 0);
         }},
        {"testo",
         [](const QString &t) { Messaggi::ChiedeTesto(nullptr, QString(), t, QString()); }},
    };
    for (const auto &[nome, apre] : riquadri) {
        QTest::addRow("%s, e commerciale", nome) << apre << QStringLiteral("Rossi & Figli R&S");
        QTest::addRow("%s, come un marcatore", nome) << apre << QStringLiteral("<b>Rossi</b>");
    }
}

void tst_MessaggiAspetto::OgniRiquadroMostraITestiAllaLettera()
{
    QFETCH(const std::function<void(const QString &)>, apre);
    QFETCH(const QString, testo);
    QImage mostrato;
    QImage atteso;
    Robot robot;
    robot.Agisce([&](QDialog *d) {
        auto *etichetta = d->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        if (etichetta == nullptr) {
            etichetta = d->findChild<QLabel *>();
        }
        mostrato = etichetta->grab().toImage();
        // The same letters in the same place of the same box, which nothing takes for anything.
        etichetta->setBuddy(nullptr);
        etichetta->setTextFormat(Qt::PlainText);
        etichetta->setText(testo);
        atteso = etichetta->grab().toImage();
        d->reject();
    });
    apre(testo);
    QVERIFY(robot.Soddisfatto());
    QVERIFY(!mostrato.isNull());
    QCOMPARE(mostrato, atteso);
}

QTEST_MAIN(tst_MessaggiAspetto)
#include "tst_MessaggiAspetto.moc"

#include "dialogs/DialogoImmagine.h"

#include <QCheckBox>

using namespace Controlli;

/// "proporzioni" beside width and height of a picture.
class tst_Proporzioni : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }
    void SpenteAllInizioNonCambianoNulla();
    void LAltraMisuraSegue_data();
    void LAltraMisuraSegue();
    void DopoUnAltraImmagineLeSue();
    void SenzaImmagineNulla();
    void ConfermateSiScrivono();
    void ConLaVirgolaDellaLocale();

private:
    /// A picture of 40 x 15 mm, chosen already; its boxes hold 40 and 15.
    static void Prepara(DialogoImmagine &p)
    {
        p.CambiaSeconda([](Immagine &immagine) {
            immagine.Nome = QStringLiteral("logo.bmp");
            immagine.Larghezza = 40;
            immagine.Altezza = 15;
        });
        p.Aggiunge("logo.bmp", Figura("bmp", 40, 15));
    }
    static void Spunta(DialogoImmagine &p) { Trova<QCheckBox>(p.dialogo, "Proporzioni")->click(); }
};

void tst_Proporzioni::SpenteAllInizioNonCambianoNulla()
{
    DialogoImmagine p;
    Prepara(p);
    QVERIFY(!Trova<QCheckBox>(p.dialogo, "Proporzioni")->isChecked());
    Digita(p.dialogo, "Largh", QStringLiteral("80"));
    QCOMPARE(Testo(p.dialogo, "Alt"), QStringLiteral("15"));
}

void tst_Proporzioni::LAltraMisuraSegue_data()
{
    QTest::addColumn<QString>("scritta");
    QTest::addColumn<QString>("testo");
    QTest::addColumn<QString>("altra");
    QTest::addColumn<QString>("attesa");
    const auto riga = [](const char *nome, const char *scritta, const char *testo,
                         const char *altra, const char *attesa) {
        QTest::newRow(nome) << QString::fromUtf8(scritta) << QString::fromUtf8(testo)
                            << QString::fromUtf8(altra) << QString::fromUtf8(attesa);
    };
    riga("width", "Largh", "80", "Alt", "30");
    riga("height", "Alt", "30", "Largh", "80");
    riga("hundredths", "Largh", "10", "Alt", "3.75");
    riga("rounded to hundredths", "Alt", "10", "Largh", "26.67");
    riga("decimals", "Largh", "2.4", "Alt", "0.9");
    riga("no number", "Largh", "x", "Alt", "15");
    riga("zero", "Largh", "0", "Alt", "15");
    riga("negative", "Largh", "-8", "Alt", "15");
}

void tst_Proporzioni::LAltraMisuraSegue()
{
    QFETCH(QString, scritta);
    QFETCH(QString, testo);
    QFETCH(QString, altra);
    QFETCH(QString, attesa);
    DialogoImmagine p;
    Prepara(p);
    Spunta(p);
    const QByteArray casella = scritta.toLatin1();
    Digita(p.dialogo, casella.constData(), testo);
    QCOMPARE(Testo(p.dialogo, altra.toLatin1().constData()), attesa);
    QCOMPARE(Testo(p.dialogo, casella.constData()), testo);
}

void tst_Proporzioni::DopoUnAltraImmagineLeSue()
{
    DialogoImmagine p;
    Prepara(p);
    Spunta(p);
    p.Aggiunge("quadrata.bmp", Figura("bmp", 10, 10));
    p.Clicca("quadrata.bmp");
    Digita(p.dialogo, "Largh", QStringLiteral("33"));
    QCOMPARE(Testo(p.dialogo, "Alt"), QStringLiteral("33"));
}

void tst_Proporzioni::SenzaImmagineNulla()
{
    DialogoImmagine p; // its picture has no file
    Spunta(p);
    const QString altezza = Testo(p.dialogo, "Alt");
    Digita(p.dialogo, "Largh", QStringLiteral("33"));
    QCOMPARE(Testo(p.dialogo, "Alt"), altezza);
}

void tst_Proporzioni::ConfermateSiScrivono()
{
    DialogoImmagine p;
    Prepara(p);
    Spunta(p);
    Digita(p.dialogo, "Alt", QStringLiteral("10"));
    QCOMPARE(p.Seconda().Larghezza, 40.0); // not before the confirm
    p.Conferma();
    QCOMPARE(p.Seconda().Larghezza, 26.67);
    QCOMPARE(p.Seconda().Altezza, 10.0);
}

void tst_Proporzioni::ConLaVirgolaDellaLocale()
{
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    DialogoImmagine p;
    Prepara(p);
    Spunta(p);
    Digita(p.dialogo, "Largh", QStringLiteral("10,4"));
    QCOMPARE(Testo(p.dialogo, "Alt"), QStringLiteral("3,9"));
}

QTEST_MAIN(tst_Proporzioni)
#include "tst_Proporzioni.moc"

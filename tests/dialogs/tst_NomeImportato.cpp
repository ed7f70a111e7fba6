#include "dialogs/NomeImportato.h"

#include "base/Ansi.h"
#include "sistema/Percorsi.h"

#include <QTest>

/// What a picture from elsewhere is called in the models folder.
class tst_NomeImportato : public QObject
{
    Q_OBJECT
private slots:
    void Base_data();
    void Base();
    void SempreUnNomeCheUnModelloTiene_data() { Base_data(); }
    void SempreUnNomeCheUnModelloTiene();
    void Libero_data();
    void Libero();
};

void tst_NomeImportato::Base_data()
{
    QTest::addColumn<QString>("fonte");
    QTest::addColumn<QString>("base");
    const auto riga = [](const char *nome, const char *fonte, const char *base) {
        QTest::newRow(nome) << QString::fromUtf8(fonte) << QString::fromUtf8(base);
    };
    riga("plain", "/x/logo.png", "logo");
    riga("two dots", "/x/logo.2026.png", "logo.2026");
    riga("no extension", "/x/logo", "logo");
    riga("accents of the code page", "/x/Città è più.png", "Città è più");
    riga("accent in two pieces", "/x/citta\u0300.png", "città");
    riga("letters beyond the code page", "/x/Łódź ő.png", "_ódz o");
    riga("another script", "/x/商标.png", "__");
    riga("beyond 16 bits", "/x/a\U0001F600b.png", "a_b");
    riga("control character", "/x/a\tb.png", "a_b");
    riga("what Windows refuses", "/x/a:b?c*d\"e<f>g|h.png", "a_b_c_d_e_f_g_h");
    riga("hidden", "/x/.logo.png", "logo");
    riga("only an extension", "/x/.png", "immagine");
    riga("blanks around", "/x/  logo  .png", "logo");
    QTest::newRow("long") << QStringLiteral("/x/") + QString(240, u'a') + QStringLiteral(".png")
                          << QString(100, u'a');
}

void tst_NomeImportato::Base()
{
    QFETCH(QString, fonte);
    QFETCH(QString, base);
    QCOMPARE(NomeImportato::Base(fonte), base);
}

void tst_NomeImportato::SempreUnNomeCheUnModelloTiene()
{
    QFETCH(QString, fonte);
    const QString nome =
        NomeImportato::Libero(NomeImportato::Base(fonte), QStringLiteral(".jpg"), {});
    QVERIFY(Percorsi::NomeFileValido(nome));
    QVERIFY(Ansi::Rappresentabile(nome));
}

void tst_NomeImportato::Libero_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QStringList>("presi");
    QTest::addColumn<QString>("nome");
    const auto riga = [](const char *nome, const char *base, const QStringList &presi,
                         const char *atteso) {
        QTest::newRow(nome) << QString::fromUtf8(base) << presi << QString::fromUtf8(atteso);
    };
    riga("free", "logo", {}, "logo.jpg");
    riga("taken", "logo", {QStringLiteral("logo.jpg")}, "logo_2.jpg");
    riga("taken in other letters", "logo", {QStringLiteral("LOGO.Jpg")}, "logo_2.jpg");
    riga("two taken", "logo", {QStringLiteral("logo.jpg"), QStringLiteral("Logo_2.JPG")},
         "logo_3.jpg");
    riga("other extension", "logo", {QStringLiteral("logo.bmp")}, "logo.jpg");
    riga("accents too", "CITTÀ", {QStringLiteral("città.jpg")}, "CITTÀ_2.jpg");
    riga("a device of Windows", "con", {}, "_con.jpg");
    riga("a device, taken", "con", {QStringLiteral("_CON.jpg")}, "_con_2.jpg");
}

void tst_NomeImportato::Libero()
{
    QFETCH(QString, base);
    QFETCH(QStringList, presi);
    QFETCH(QString, nome);
    QCOMPARE(NomeImportato::Libero(base, QStringLiteral(".jpg"), presi), nome);
}

QTEST_APPLESS_MAIN(tst_NomeImportato)
#include "tst_NomeImportato.moc"

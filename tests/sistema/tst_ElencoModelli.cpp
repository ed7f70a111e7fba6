#include "sistema/ElencoModelli.h"

#include <QTest>

class tst_ElencoModelli : public QObject
{
    Q_OBJECT

private slots:
    void Nomi_data();
    void Nomi();
};

void tst_ElencoModelli::Nomi_data()
{
    QTest::addColumn<QStringList>("file");
    QTest::addColumn<QStringList>("nomi");
    const auto riga = [](const char *titolo, const char *file, const char *nomi) {
        QTest::newRow(titolo) << QString::fromLatin1(file).split(u'|', Qt::SkipEmptyParts)
                              << QString::fromLatin1(nomi).split(u'|', Qt::SkipEmptyParts);
    };
    riga("nessun file", "", "");
    riga("le tre estensioni", "a.mod|b.Mod|c.MOD", "a|b|c");
    riga("estensione mista", "a.mOd", "a");
    riga("doppia estensione", "Fattura_pers.Mod_nuovo.Mod|x.mod.MOD",
         "Fattura_pers.Mod_nuovo|x.mod");
    riga("punti nel nome", "v1.2.mod", "v1.2");
    riga("stesso nome, vale quello esatto", "DDT.MOD|DDT.mod|ddt.Mod|z.mod", "ddt|z");
    riga("stesso nome, nessuno esatto", "DDT.MOD|ddt.mod", "DDT");
}

void tst_ElencoModelli::Nomi()
{
    QFETCH(QStringList, file);
    QTEST(ElencoModelli::Nomi(file), "nomi");
}

QTEST_GUILESS_MAIN(tst_ElencoModelli)
#include "tst_ElencoModelli.moc"

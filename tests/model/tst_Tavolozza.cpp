#include "model/Tavolozza.h"

#include "support/Errori.h"

#include <QTest>

class tst_Tavolozza : public QObject
{
    Q_OBJECT

private slots:
    void Colori_data();
    void Colori();
    void FuoriDallaTavolozza();
};

void tst_Tavolozza::Colori_data()
{
    QTest::addColumn<int>("indice");
    QTest::addColumn<quint32>("rgb");

    const auto riga = [](const char *nome, int indice, int rosso, int verde, int blu) {
        QTest::newRow(nome) << indice << static_cast<quint32>(rosso << 16 | verde << 8 | blu);
    };
    riga("nero", 0, 0, 0, 0);
    riga("blu", 1, 0, 0, 128);
    riga("verde", 2, 0, 128, 0);
    riga("ciano", 3, 0, 128, 128);
    riga("rosso", 4, 128, 0, 0);
    riga("magenta", 5, 128, 0, 128);
    riga("giallo scuro", 6, 128, 128, 0);
    riga("grigio chiaro", 7, 192, 192, 192);
    riga("grigio", 8, 128, 128, 128);
    riga("blu chiaro", 9, 0, 0, 255);
    riga("verde chiaro", 10, 0, 255, 0);
    riga("ciano chiaro", 11, 0, 255, 255);
    riga("rosso chiaro", 12, 255, 0, 0);
    riga("magenta chiaro", 13, 255, 0, 255);
    riga("giallo", 14, 255, 255, 0);
    riga("bianco", 15, 255, 255, 255);
}

void tst_Tavolozza::Colori()
{
    QFETCH(int, indice);
    QFETCH(quint32, rgb);
    QCOMPARE(Tavolozza::Rgb(indice), rgb);
    QCOMPARE(Tavolozza::RgbONero(indice), rgb);
}

void tst_Tavolozza::FuoriDallaTavolozza()
{
    for (const int indice : {-32768, -1, 16, 32767}) {
        QCOMPARE(ErroreDi([indice] { Tavolozza::Rgb(indice); }), 5);
        QCOMPARE(Tavolozza::RgbONero(indice), 0u);
    }
}

QTEST_GUILESS_MAIN(tst_Tavolozza)
#include "tst_Tavolozza.moc"

#include "preview/Banco.h"
#include "support/ImmaginiDiProva.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

class tst_ImmaginiSulFoglio : public QObject
{
    Q_OBJECT
private slots:
    void ImmagineRiempieIlRiquadro();
    void ImmagineIlleggibileNonMostraQuellaDiPrima_data();
    void ImmagineIlleggibileNonMostraQuellaDiPrima();
    void ImmagineToltaPerUnMomentoRimane();
    void ImmagineRilettaSoloSeCambiata();
    void ImmagineFuoriCartellaIgnorata();
};

void tst_ImmaginiSulFoglio::ImmagineRiempieIlRiquadro()
{
    Banco banco;
    QImage meta(40, 10, QImage::Format_RGB32);
    meta.fill(Qt::red);
    for (int x = 20; x < 40; ++x) {
        for (int y = 0; y < 10; ++y) {
            meta.setPixel(x, y, 0xff0000ff);
        }
    }
    meta.save(banco.cartella.filePath(QStringLiteral("Logo.BMP")));
    banco.Immagine(20, 20, 60, 30, QStringLiteral("logo.bmp"));
    const QImage foglio = banco.Fotografia();
    QCOMPARE(ColoreFoto(foglio, {23, 35}), 0xff0000u);
    QCOMPARE(ColoreFoto(foglio, {48, 23}), 0xff0000u);
    QCOMPARE(ColoreFoto(foglio, {52, 47}), 0x0000ffu);
    QCOMPARE(ColoreFoto(foglio, {77, 35}), 0x0000ffu);
    QCOMPARE(ColoreFoto(foglio, {82, 35}), 0xffffffu);
    // Decoded at the size on the screen.
    const QSizeF misura = QSizeF(60, 30) / MillimetriPerPixel * foglio.devicePixelRatio();
    QVERIFY(std::abs(banco.C3(1)->Figura().width() - misura.width()) <= 1);
    QVERIFY(std::abs(banco.C3(1)->Figura().height() - misura.height()) <= 1);
}

void tst_ImmaginiSulFoglio::ImmagineIlleggibileNonMostraQuellaDiPrima_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QByteArray>("byte");
    QTest::newRow("missing") << QStringLiteral("manca.bmp") << QByteArray();
    QTest::newRow("no picture") << QStringLiteral("rotta.bmp") << QByteArray("BMnonsense");
    QTest::newRow("no name") << QString() << QByteArray();
}

void tst_ImmaginiSulFoglio::ImmagineIlleggibileNonMostraQuellaDiPrima()
{
    QFETCH(QString, nome);
    QFETCH(QByteArray, byte);
    Banco banco;
    ImmaginiDiProva::Tinta({8, 8}, 0xff00ff00)
        .save(banco.cartella.filePath(QStringLiteral("verde.bmp")));
    if (!byte.isEmpty()) {
        ImmaginiDiProva::Scrive(banco.cartella.filePath(nome), byte);
    }
    banco.Immagine(20, 20, 60, 30, QStringLiteral("verde.bmp"));
    QCOMPARE(ColoreFoto(banco.Fotografia(), {50, 35}), 0x00ff00u);
    banco.Cambia([&](Modello &modello) { modello.Immagini[1].Nome = nome; });
    banco.frm->PosizionaImmagine(1);
    QCOMPARE(ColoreFoto(banco.Fotografia(), {50, 35}), 0xffffffu);
    // A box that never had one stays empty.
    banco.Immagine(120, 20, 60, 30, nome);
    QCOMPARE(ColoreFoto(banco.Fotografia(), {150, 35}), 0xffffffu);
    banco.Cambia([&](Modello &modello) { modello.Immagini[1].Nome = QStringLiteral("verde.bmp"); });
    banco.frm->PosizionaImmagine(1);
    QCOMPARE(ColoreFoto(banco.Fotografia(), {50, 35}), 0x00ff00u);
}

void tst_ImmaginiSulFoglio::ImmagineToltaPerUnMomentoRimane()
{
    Banco banco;
    const QString percorso = banco.cartella.filePath(QStringLiteral("verde.bmp"));
    ImmaginiDiProva::Tinta({8, 8}, 0xff00ff00).save(percorso);
    banco.Immagine(20, 20, 60, 30, QStringLiteral("verde.bmp"));
    QCOMPARE(ColoreFoto(banco.Fotografia(), {50, 35}), 0x00ff00u);
    QVERIFY(QFile::remove(percorso));
    banco.Cambia([&](Modello &modello) { modello.Immagini[1].Larghezza = 90; });
    banco.frm->PosizionaImmagine(1);
    QCOMPARE(ColoreFoto(banco.Fotografia(), {105, 35}), 0x00ff00u);
}

void tst_ImmaginiSulFoglio::ImmagineRilettaSoloSeCambiata()
{
    Banco banco;
    const QString percorso = banco.cartella.filePath(QStringLiteral("a.bmp"));
    ImmaginiDiProva::Tinta({8, 8}, 0xff00ff00).save(percorso);
    banco.Immagine(20, 20, 60, 30, QStringLiteral("a.bmp"));
    banco.Fotografia();
    const qint64 chiave = banco.C3(1)->Figura().cacheKey();
    banco.Cambia([&](Modello &modello) { modello.Immagini[1].X = 50; });
    banco.frm->PosizionaImmagine(1);
    banco.Fotografia();
    QCOMPARE(banco.C3(1)->Figura().cacheKey(), chiave);

    ImmaginiDiProva::Tinta({8, 8}, 0xff0000ff).save(percorso);
    QFile file(percorso);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(60),
                             QFileDevice::FileModificationTime));
    file.close();
    banco.frm->PosizionaImmagine(1);
    QCOMPARE(ColoreFoto(banco.Fotografia(), {80, 35}), 0x0000ffu);
}

void tst_ImmaginiSulFoglio::ImmagineFuoriCartellaIgnorata()
{
    Banco banco;
    QTemporaryDir altra;
    ImmaginiDiProva::Tinta({8, 8}, 0xff00ff00).save(altra.filePath(QStringLiteral("x.bmp")));
    banco.Immagine(20, 20, 60, 30,
                   QStringLiteral("../%1/x.bmp").arg(QFileInfo(altra.path()).fileName()));
    QCOMPARE(ColoreFoto(banco.Fotografia(), {50, 35}), 0xffffffu);
}

QTEST_MAIN(tst_ImmaginiSulFoglio)
#include "tst_ImmaginiSulFoglio.moc"

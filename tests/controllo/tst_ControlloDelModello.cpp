#include "ModelloSano.h"

#include "model/FileModello.h"
#include "support/FileDiProva.h"
#include "support/Tempi.h"

#include <QDir>
#include <QDirIterator>
#include <QTest>

namespace {

constexpr auto Invalida = "questa non è un'immagine";

} // namespace

/// The check against the files and the fonts of a real system.
class tst_ControlloDelModello : public QObject
{
    Q_OBJECT
private slots:
    void IModelliCampioneSonoSenzaRilievi_data();
    void IModelliCampioneSonoSenzaRilievi();
    void IlDiscoSiRivedeQuandoSiChiede();
    void UnaImmagineCheCambiaNomeSiGuardaSubito();
    void UnFileUgualeNonSiRilegge();
    void TrecentoElementiCostanoPoco();
};

void tst_ControlloDelModello::IModelliCampioneSonoSenzaRilievi_data()
{
    QTest::addColumn<QString>("percorso");
    QTest::addColumn<double>("bordo");
    const QDir campione(QStringLiteral(CARTELLA_CAMPIONE));
    QDirIterator modelli(campione.path(), {QStringLiteral("*.mod")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (modelli.hasNext()) {
        const QString percorso = modelli.next();
        for (const double bordo : {0.0, 4.2, 5.0}) {
            QTest::addRow("%s, %.1f mm", qPrintable(campione.relativeFilePath(percorso)), bordo)
                << percorso << bordo;
        }
    }
}

void tst_ControlloDelModello::IModelliCampioneSonoSenzaRilievi()
{
    QFETCH(QString, percorso);
    QFETCH(double, bordo);
    Modello modello;
    FileModello::Carica(modello, percorso);
    Documento documento;
    documento.Prende(modello, false);
    ControlloDelModello controllo(QFileInfo(percorso).path() + Percorsi::Separatore(),
                                  [](const ImmagineSfondo &sfondo) { return sfondo.File; });
    controllo.ImpostaFoglio(FoglioStampante{QRectF(-bordo, -bordo, 210, 297),
                                            QRectF(0, 0, 210 - 2 * bordo, 297 - 2 * bordo)});
    QStringList righe;
    for (const Rilievo &rilievo : controllo.Esamina(documento)) {
        righe.append(rilievo.SuUnaLinea());
    }
    QVERIFY2(righe.isEmpty(), qPrintable(righe.join(u'\n')));
}

void tst_ControlloDelModello::IlDiscoSiRivedeQuandoSiChiede()
{
    ModelloSano sano;
    QCOMPARE(sano.Righe(), QStringList());
    QVERIFY(QFile::remove(sano.In("logo.bmp")));
    QVERIFY(QFile::remove(sano.In("scansione.bmp")));
    // Steps do not go to the disk.
    QCOMPARE(sano.Righe(), QStringList());
    sano.Controllo().Rivede();
    QCOMPARE(sano.Rilievi().size(), 2);
    sano.Scrive("logo.bmp", Invalida);
    sano.Controllo().Rivede();
    const QList<Rilievo> rilievi = sano.Rilievi();
    QCOMPARE(rilievi.size(), 2);
    QVERIFY(rilievi.constFirst().Testo.contains(QStringLiteral("non si può leggere")));
}

void tst_ControlloDelModello::UnaImmagineCheCambiaNomeSiGuardaSubito()
{
    ModelloSano sano;
    QCOMPARE(sano.Righe(), QStringList());
    sano.Aperto.Immagini[1].Nome = QStringLiteral("manca.bmp");
    QCOMPARE(sano.Rilievi().size(), 1);
    // A name that has been away for a round is looked at again.
    QVERIFY(QFile::remove(sano.In("logo.bmp")));
    QCOMPARE(sano.Rilievi().size(), 1);
    sano.Aperto.Immagini[1].Nome = QStringLiteral("logo.bmp");
    QCOMPARE(sano.Rilievi().size(), 1);
}

void tst_ControlloDelModello::UnFileUgualeNonSiRilegge()
{
    const QTemporaryDir cartella;
    const QString file = cartella.filePath(QStringLiteral("figura"));
    FileVisti visti;
    ImmaginiDiProva::Scrive(file, ImmaginiDiProva::JpegCmyk());
    const QDateTime ora = QFileInfo(file).lastModified();
    QCOMPARE(visti.Immagine(file), StatoFile::Buono);
    // Other bytes under the same time and length: only who reads the file would see them.
    ImmaginiDiProva::Scrive(file, QByteArray(ImmaginiDiProva::JpegCmyk().size(), 'x'));
    QFile aperto(file);
    QVERIFY(aperto.open(QIODevice::ReadWrite) &&
            aperto.setFileTime(ora, QFileDevice::FileModificationTime));
    aperto.close();
    QCOMPARE(visti.Immagine(file), StatoFile::Buono);
    Invecchia(file, 100);
    QCOMPARE(visti.Immagine(file), StatoFile::Illeggibile);
    QVERIFY(QFile::remove(file));
    QCOMPARE(visti.Immagine(file), StatoFile::Mancante);
    QVERIFY(QDir().mkdir(file));
    QCOMPARE(visti.Immagine(file), StatoFile::Cartella);
    QVERIFY(QDir().rmdir(file));
    ImmaginiDiProva::Scrive(file, ImmaginiDiProva::JpegCmyk());
    QCOMPARE(visti.Immagine(file), StatoFile::Buono);
}

void tst_ControlloDelModello::TrecentoElementiCostanoPoco()
{
    ModelloSano sano;
    const auto posto = [](int k) { return QPoint(2 + k % 10 * 19, k / 10 * 25); };
    for (int k = 4; k <= 100; ++k) {
        const QPoint qui = posto(k);
        sano.Campo(qPrintable(QStringLiteral("Campo%1").arg(k)), qui.x(), qui.y(), "prova");
    }
    for (int k = 3; k <= 100; ++k) {
        const QPoint qui = posto(k);
        sano.Cornice(qPrintable(QStringLiteral("Etichetta%1").arg(k)), qui.x(), qui.y() + 8, 18, 8)
            .Testo = QString::number(k);
        sano.Immagine("logo.bmp", qui.x(), qui.y() + 16, 15, 8);
    }
    Documento documento;
    documento.Prende(sano.Aperto, false);
    const qsizetype rilievi = sano.Controllo().Esamina(documento).size();
    constexpr int Giri = 50;
    const TempoDiLavoro tempo;
    for (int giro = 0; giro < Giri; ++giro) {
        QCOMPARE(sano.Controllo().Esamina(documento).size(), rilievi);
    }
    QVERIFY2(tempo.Entro(5 * Giri), qPrintable(QString::number(tempo.MilliSecondi() / Giri)));
}

QTEST_MAIN(tst_ControlloDelModello)
#include "tst_ControlloDelModello.moc"

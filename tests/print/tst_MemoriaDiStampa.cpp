#include "FoglioDiProva.h"

#include "model/FileModello.h"
#include "support/ImmaginiRare.h"

#include <QApplication>
#include <QFileInfo>
#include <QTest>
#include <QtEndian>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ImmaginiDiProva;
using ImmaginiRare::JpegABlocchi;

namespace {

constexpr double MiBMassimi = 300;
constexpr const char *SoloStampa = "--stampa";

/// What printing a model file needs at most of memory, in a process of its own; -1 when it fails or
/// does not give so many messages.
double MiBDiStampa(const QString &modello, const QString &pdf, int avvisi)
{
    const QByteArray programma = QFile::encodeName(QCoreApplication::applicationFilePath());
    const QByteArray daStampare = QFile::encodeName(modello);
    const QByteArray stampato = QFile::encodeName(pdf);
    const pid_t figlio = fork();
    if (figlio == 0) {
        execl(programma.constData(), programma.constData(), SoloStampa, daStampare.constData(),
              stampato.constData(), nullptr);
        _exit(127);
    }
    int stato = 0;
    rusage uso{};
    wait4(figlio, &stato, 0, &uso);
    return WIFEXITED(stato) && WEXITSTATUS(stato) == avvisi ? double(uso.ru_maxrss) / 1024 : -1;
}

/// As many pixels as a bitmap may have.
constexpr QSize PiuGrande(7440, 10752);

qint64 ByteBmp(const QSize &pixel, int bit)
{
    return (qint64(pixel.width()) * bit + 31) / 32 * 4 * pixel.height();
}

/// The header of a bitmap and the beginning of its first row, which is coloured.
QByteArray TestaBmp(const QSize &pixel, int bit)
{
    QByteArray testa = InFormato(Tinta({1, 1}, 0), "bmp").left(54);
    qToLittleEndian(qint32(pixel.width()), testa.data() + 18);
    qToLittleEndian(qint32(pixel.height()), testa.data() + 22);
    qToLittleEndian(quint16(bit), testa.data() + 28);
    return testa + QByteArray(300, '\x55').replace(0, 1, "\xAA");
}

/// What that process does: the exit status tells how many messages there were.
int Stampa(const QString &percorso, const QString &pdf)
{
    const QFileInfo file(percorso);
    Modello modello;
    modello.NomeFile = file.fileName();
    FileModello::Carica(modello, percorso);
    int avvisi = 0;
    StampaModello(modello, file.path() + QDir::separator(), *Stampanti::SuPdf(pdf), false,
                  [&avvisi](const QString &) { ++avvisi; });
    return avvisi;
}

} // namespace

/// A page needs no more memory than it may, whatever its pictures.
class tst_MemoriaDiStampa : public QObject
{
    Q_OBJECT

private slots:
    void memoriaLimitata_data();
    void memoriaLimitata();
    void memoriaDellaPiuGrande_data();
    void memoriaDellaPiuGrande();
    void memoriaDiDueSovrapposte_data();
    void memoriaDiDueSovrapposte();
    void memoriaDellaRifiutata_data();
    void memoriaDellaRifiutata();

private:
    /// Prints the model in a process of its own.
    static void StampaEntroILimiti(const FoglioDiProva &foglio, int avvisi = 0);
};

void tst_MemoriaDiStampa::StampaEntroILimiti(const FoglioDiProva &foglio, int avvisi)
{
    const QString modello = foglio.Cartella() + QStringLiteral("Prova.Mod");
    FileModello::Salva(foglio.Aperto, modello, QLocale::c());
    const double mib = MiBDiStampa(modello, foglio.Pdf(), avvisi);
    qInfo("%.0f MiB", mib);
    QVERIFY2(mib > 0 && mib <= MiBMassimi, qPrintable(QString::number(mib)));
    QCOMPARE(LettorePdf(foglio.Pdf()).Pagine(), 1);
}

void tst_MemoriaDiStampa::memoriaLimitata_data()
{
    QTest::addColumn<int>("scansioni");
    QTest::addColumn<QByteArray>("formato");
    QTest::addColumn<QList<QRectF>>("posti");
    const QRectF foglio(0, 0, 210, 297);
    QTest::newRow("a scan in six sizes") << 1 << QByteArray("jpeg") << SeiPosti();
    QTest::newRow("a scan in several sizes, over each other")
        << 1 << QByteArray("jpeg")
        << QList<QRectF>{foglio, {5, 5, 190, 120}, {5, 150, 100, 80}, {150, 200, 20, 28}};
    QTest::newRow("two scans over each other")
        << 2 << QByteArray("jpeg") << QList<QRectF>{foglio, {5, 5, 200, 140}};
    QTest::newRow("two whole scans over each other")
        << 2 << QByteArray("jpeg") << QList<QRectF>{foglio, foglio};
    QTest::newRow("a scan without loss") << 1 << QByteArray("bmp") << QList<QRectF>{foglio};
}

void tst_MemoriaDiStampa::memoriaLimitata()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the sanitizer's own memory would be measured");
#endif
    QFETCH(int, scansioni);
    QFETCH(QByteArray, formato);
    QFETCH(QList<QRectF>, posti);
    FoglioDiProva foglio;
    for (int k = 0; k < posti.size(); ++k) {
        const QString nome =
            QStringLiteral("s%1.%2").arg(k % scansioni).arg(QLatin1String(formato));
        const bool nuova = k < scansioni;
        foglio.ConImmagine(nome,
                           !nuova ? QByteArray() : InFormato(ModuloA4(), formato.constData(), 600),
                           posti.at(k));
    }
    StampaEntroILimiti(foglio);
}

void tst_MemoriaDiStampa::memoriaDellaPiuGrande_data()
{
    QTest::addColumn<QByteArray>("testa");
    QTest::addColumn<qint64>("byte");
    QTest::newRow("BMP of 24 bits") << TestaBmp(PiuGrande, 24) << ByteBmp(PiuGrande, 24);
    QTest::newRow("JPEG at 1200 dots per inch")
        << ImmaginiRare::JpegA1200PuntiPerPollice() << qint64(0);
    QTest::newRow("progressive JPEG")
        << ImmaginiRare::JpegDiScansioni({11500, 11500}, 9) << qint64(0);
    QTest::newRow("JPEG whose decoder keeps a component on its own")
        << ImmaginiRare::JpegDiUnaScansione({6688, 6688}, 3, 1, false) << qint64(0);
    QTest::newRow("grey JPEG at 1200 dots per inch")
        << JpegABlocchi({9921, 14031}, 1, [](int, int x, int y) { return 30 + (x + y) % 190; })
        << qint64(0);
}

void tst_MemoriaDiStampa::memoriaDellaPiuGrande()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the sanitizer's own memory would be measured");
#endif
    QFETCH(QByteArray, testa);
    QFETCH(qint64, byte);
    FoglioDiProva foglio;
    foglio.ConImmagine(QStringLiteral("grande.bmp"), testa,
                       {0, 0, byte > 0 ? 105.0 : 210.0, byte > 0 ? 148.0 : 297.0});
    // The rows are a hole in the file: black, but for the first row, which keeps the colours.
    QVERIFY(QFile::resize(foglio.Cartella() + QStringLiteral("grande.bmp"), testa.size() + byte));
    StampaEntroILimiti(foglio);
}

void tst_MemoriaDiStampa::memoriaDiDueSovrapposte_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::newRow("progressive JPEG") << ImmaginiRare::JpegDiScansioni({11500, 11500}, 9);
    QTest::newRow("grey JPEG at 1200 dots per inch")
        << JpegABlocchi({9921, 14031}, 1, [](int, int x, int y) { return 30 + (x + y) % 190; });
}

void tst_MemoriaDiStampa::memoriaDiDueSovrapposte()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the sanitizer's own memory would be measured");
#endif
    QFETCH(QByteArray, byte);
    FoglioDiProva foglio;
    foglio.ConImmagine(QStringLiteral("a.jpg"), byte, {0, 0, 210, 297});
    foglio.ConImmagine(QStringLiteral("b.jpg"), byte, {0, 0, 210, 297});
    StampaEntroILimiti(foglio);
}

void tst_MemoriaDiStampa::memoriaDellaRifiutata_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::newRow("progressive JPEG of one scan, in colours")
        << ImmaginiRare::JpegDiUnaScansione({17000, 17000}, 3, 3, true);
    QTest::newRow("progressive JPEG of one scan, grey")
        << ImmaginiRare::JpegDiUnaScansione({11600, 11600}, 1, 1, true);
    QTest::newRow("JPEG whose scan lacks components")
        << ImmaginiRare::JpegDiUnaScansione({17000, 17000}, 3, 1, false);
}

void tst_MemoriaDiStampa::memoriaDellaRifiutata()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the sanitizer's own memory would be measured");
#endif
    QFETCH(QByteArray, byte);
    FoglioDiProva foglio;
    foglio.ConImmagine(QStringLiteral("grande.jpg"), byte, {0, 0, 210, 297});
    StampaEntroILimiti(foglio, 1);
}

int main(int argc, char *argv[])
{
    const QApplication programma(argc, argv);
    const QStringList argomenti = QApplication::arguments();
    if (argomenti.value(1) == QLatin1String(SoloStampa)) {
        return Stampa(argomenti.value(2), argomenti.value(3));
    }
    tst_MemoriaDiStampa prove;
    return QTest::qExec(&prove, argc, argv);
}

#include "tst_MemoriaDiStampa.moc"

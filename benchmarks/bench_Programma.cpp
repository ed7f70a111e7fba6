#include "Misura.h"
#include "model/FileModello.h"
#include "support/ArchivioDiProva.h"
#include "support/ImmaginiDiProva.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/// The program as a whole process, on the X server that the benchmark runs under (without a window
/// manager: windows stand where they are put).
class bench_Programma : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void Avvio();
    void PdfDaRigaDiComando_data();
    void PdfDaRigaDiComando();
    void ScansioneInSeiMisure();
    void Memoria();

private:
    std::unique_ptr<ArchivioDiProva> prova_;
    QTemporaryDir impostazioni_;
};

using namespace ImmaginiDiProva;

namespace {

constexpr int PerGenere = 100;
constexpr QSize Pixel(160, 160);
const QByteArray Plakera = CARTELLA_PROGRAMMI "/plakera";
const QByteArray Aperto = CARTELLA_PROGRAMMI "/../benchmarks/editor_aperto";
const QByteArray Vuota = CARTELLA_PROGRAMMI "/../benchmarks/finestra_vuota";

/// A child process whose resources are accounted when it has ended.
class Processo
{
public:
    explicit Processo(const QList<QByteArray> &argomenti)
    {
        std::vector<char *> lista;
        for (const QByteArray &argomento : argomenti) {
            lista.push_back(const_cast<char *>(argomento.constData()));
        }
        lista.push_back(nullptr);
        figlio_ = fork();
        if (figlio_ == 0) {
            const int nulla = open("/dev/null", O_WRONLY);
            dup2(nulla, STDERR_FILENO);
            execv(lista.front(), lista.data());
            _exit(127);
        }
    }
    /// The exit status, and the peak resident memory in KiB.
    int Attende(long &memoria)
    {
        int stato = 0;
        rusage uso{};
        wait4(figlio_, &stato, 0, &uso);
        memoria = uso.ru_maxrss;
        return WIFEXITED(stato) ? WEXITSTATUS(stato) : -1;
    }
    long Termina()
    {
        long memoria = 0;
        kill(figlio_, SIGKILL);
        Attende(memoria);
        return memoria;
    }

private:
    pid_t figlio_;
};

/// The pixel in the middle of the screen; black while no window covers it.
QRgb PixelCentrale()
{
    QScreen *schermo = QGuiApplication::primaryScreen();
    const QPoint centro = schermo->geometry().center();
    return schermo->grabWindow(0, centro.x(), centro.y(), 1, 1).toImage().pixel(0, 0) & 0xFFFFFF;
}

/// Milliseconds from the start of the program to its window on the screen, and its peak memory.
double PrimaFinestra(const QByteArray &programma, long &memoria)
{
    constexpr int Limite = 10'000;
    QElapsedTimer tempo;
    tempo.start();
    while (PixelCentrale() != 0 && tempo.elapsed() < Limite) {
        usleep(1000); // the window before is still going
    }
    tempo.restart();
    Processo processo({programma});
    while (PixelCentrale() == 0 && tempo.elapsed() < Limite) {
        usleep(200);
    }
    const double avvio = static_cast<double>(tempo.nsecsElapsed()) / 1e6;
    memoria = processo.Termina();
    return avvio;
}

QByteArrayList Fotografie()
{
    QByteArrayList fotografie;
    for (int k = 1; k <= PerGenere; ++k) {
        fotografie.append(InFormato(Fotografia(Pixel, unsigned(k)), "jpeg"));
    }
    return fotografie;
}

/// An archive whose model has so many elements of each kind, with these picture files.
std::unique_ptr<ArchivioDiProva> Riempito(const QByteArrayList &figure)
{
    auto prova = std::make_unique<ArchivioDiProva>();
    prova->Riempie(PerGenere);
    for (int k = 1; k <= PerGenere; ++k) {
        // Named as Riempie names them; the bytes tell the format.
        Scrive(prova->Stato().CartellaModelli + QStringLiteral("immagine%1.bmp").arg(k),
               figure.at(k - 1));
    }
    prova->Scrive();
    return prova;
}

double Meta(std::vector<double> valori)
{
    std::nth_element(valori.begin(), valori.begin() + valori.size() / 2, valori.end());
    return valori[valori.size() / 2];
}

} // namespace

void bench_Programma::initTestCase()
{
    prova_ = Riempito(Fotografie());
    QFile ini(impostazioni_.filePath(QStringLiteral("vastrel.ini")));
    QVERIFY(ini.open(QIODevice::WriteOnly));
    ini.write("[INI]\ndirtxt=" CARTELLA_CAMPIONE "\n");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(impostazioni_.path()));
}

void bench_Programma::Avvio()
{
    const int Prove = UnGiro() ? 1 : 15;
    std::vector<double> nostre;
    std::vector<double> vuote;
    long memoria = 0;
    for (int i = 0; i < Prove; ++i) {
        vuote.push_back(PrimaFinestra(Vuota, memoria));
        nostre.push_back(PrimaFinestra(Plakera, memoria));
    }
    qInfo("first window: %.1f ms, an empty Qt window %.1f ms", Meta(nostre), Meta(vuote));
    Riporta("start to first window / empty Qt window", Meta(nostre) / Meta(vuote), 1.5, "x");
}

void bench_Programma::PdfDaRigaDiComando_data()
{
    QTest::addColumn<QByteArrayList>("figure");
    QTest::addColumn<double>("meta");
    QByteArrayList disegni;
    QByteArrayList tinte;
    for (int k = 1; k <= PerGenere; ++k) {
        disegni.append(InFormato(Disegno(Pixel, QStringLiteral("Ditta %1").arg(k)), "bmp"));
        tinte.append(InFormato(Tinta({64, 48}, QColor::fromHsv(k * 3, 200, 200).rgb()), "bmp"));
    }
    QTest::newRow("photographs") << Fotografie() << 120.0;
    // Lossless: two thirds of it are the deflate of Qt's PDF engine, which knows no faster level.
    QTest::newRow("drawings with text") << disegni << 120.0;
    QTest::newRow("small flat pictures") << tinte << 60.0;
}

void bench_Programma::PdfDaRigaDiComando()
{
    QFETCH(QByteArrayList, figure);
    QFETCH(double, meta);
    const auto prova = Riempito(figure);
    const QByteArray pdf = QFile::encodeName(impostazioni_.filePath(QStringLiteral("f.pdf")));
    const QByteArray modello = QFile::encodeName(prova->Percorso());
    int stato = 0;
    const double tempo = Mediana(9, [&] {
        long memoria = 0;
        stato = Processo({Plakera, "--modello", modello, "--pdf", pdf}).Attende(memoria);
    });
    QCOMPARE(stato, 0);
    Riporta("300 elements to PDF, " + QByteArray(QTest::currentDataTag()), tempo, meta);
}

void bench_Programma::ScansioneInSeiMisure()
{
    ArchivioDiProva prova;
    Scrive(prova.Stato().CartellaModelli + QStringLiteral("scansione.jpg"),
           InFormato(ModuloA4(), "jpeg", 600));
    for (int k = 0; k < 6; ++k) {
        prova.AggiungeImmagine(QStringLiteral("scansione.jpg"), 5, 5, 200 - k * 30, 282 - k * 42);
    }
    prova.Scrive();
    const QByteArray pdf = QFile::encodeName(impostazioni_.filePath(QStringLiteral("s.pdf")));
    long memoria = 0;
    QCOMPARE(Processo({Plakera, "--modello", QFile::encodeName(prova.Percorso()), "--pdf", pdf})
                 .Attende(memoria),
             0);
    Riporta("peak memory, a scan in six sizes to PDF", double(memoria) / 1024, 300, "MiB");
}

void bench_Programma::Memoria()
{
    const QByteArray archivio = QFile::encodeName(prova_->Stato().CartellaModelli);
    const QByteArray modello = QFile::encodeName(prova_->Stato().NomeFile);
    long memoria = 0;
    QCOMPARE(Processo({Aperto, archivio, modello}).Attende(memoria), 0);
    long vuota = 0;
    PrimaFinestra(Vuota, vuota);
    qInfo("peak memory: %.1f MiB, an empty Qt window %.1f MiB", double(memoria) / 1024,
          double(vuota) / 1024);
    Riporta("peak memory with 300 elements", double(memoria) / 1024, 60, "MiB");
}

QTEST_MAIN(bench_Programma)
#include "bench_Programma.moc"

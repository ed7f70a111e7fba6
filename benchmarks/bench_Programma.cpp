#include "Misura.h"
#include "model/FileModello.h"
#include "support/ArchivioDiProva.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
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
    void PdfDaRigaDiComando();
    void Memoria();

private:
    QString Modello300() const { return prova_.Percorso(); }

    ArchivioDiProva prova_;
    QTemporaryDir impostazioni_;
};

namespace {

constexpr int PerGenere = 100;
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

double Meta(std::vector<double> valori)
{
    std::nth_element(valori.begin(), valori.begin() + valori.size() / 2, valori.end());
    return valori[valori.size() / 2];
}

} // namespace

void bench_Programma::initTestCase()
{
    prova_.Riempie(PerGenere);
    for (int k = 1; k <= PerGenere; ++k) {
        QImage figura(64, 48, QImage::Format_RGB32);
        figura.fill(QColor::fromHsv(k * 3, 200, 200));
        QVERIFY(
            figura.save(prova_.Stato().CartellaModelli + QStringLiteral("immagine%1.bmp").arg(k)));
    }
    prova_.Scrive();
    QFile ini(impostazioni_.filePath(QStringLiteral("vastrel.ini")));
    QVERIFY(ini.open(QIODevice::WriteOnly));
    ini.write("[INI]\ndirtxt=" CARTELLA_CAMPIONE "\n");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(impostazioni_.path()));
}

void bench_Programma::Avvio()
{
    constexpr int Prove = 15;
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

void bench_Programma::PdfDaRigaDiComando()
{
    const QByteArray pdf = QFile::encodeName(impostazioni_.filePath(QStringLiteral("f.pdf")));
    const QByteArray modello = QFile::encodeName(Modello300());
    int stato = 0;
    const double tempo = Mediana(9, [&] {
        long memoria = 0;
        stato = Processo({Plakera, "--modello", modello, "--pdf", pdf}).Attende(memoria);
    });
    QCOMPARE(stato, 0);
    Riporta("300 elements to PDF, whole process", tempo, 120);
}

void bench_Programma::Memoria()
{
    const QByteArray archivio = QFile::encodeName(prova_.Stato().CartellaModelli);
    const QByteArray modello = QFile::encodeName(prova_.Aperto().NomeFile);
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

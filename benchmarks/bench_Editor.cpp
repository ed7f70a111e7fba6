#include "Misura.h"
#include "editor/Form2.h"
#include "finestre/Finestre.h"
#include "preview/Frm1.h"
#include "sistema/CartellaStato.h"
#include "support/ArchivioDiProva.h"
#include "support/Finestre.h"

#include <QDir>
#include <QEventLoop>
#include <QImage>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <ctime>
#include <memory>

/// The editor with its windows on a real screen.
class bench_Editor : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void Apertura();
    void TrascinamentoA60Hz_data();
    void TrascinamentoA60Hz();
    void Scansione();
    void Riposo();

private:
    void Stende();

    ArchivioDiProva piena_;
    ArchivioDiProva vuota_;
    QString scansione_;
};

namespace {

constexpr int PerGenere = 100;

/// Notes when a widget has been painted.
class Pittura : public QObject
{
public:
    int volte = 0;
    QElapsedTimer *ultimo = nullptr;

    bool eventFilter(QObject *, QEvent *evento) override
    {
        if (evento->type() == QEvent::Paint) {
            ++volte;
        }
        return false;
    }
};

QWidget *Foglio(Form2 &editor)
{
    return Trova<QGraphicsView>(*editor.Anteprima(), "P1")->viewport();
}

void AttendePittura(Pittura &pittura, int volte)
{
    while (pittura.volte < volte) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

/// The editor opened to its painted preview.
std::unique_ptr<Form2> Apre(ArchivioDiProva &archivio)
{
    // What the measurement before left unsaved must not be offered.
    QDir(CartellaStato()).removeRecursively();
    auto editor = std::make_unique<Form2>(archivio.Stato());
    if (!editor->Form_Load()) {
        qFatal("the model does not load");
    }
    Pittura pittura;
    Foglio(*editor)->installEventFilter(&pittura);
    editor->Anteprima()->show();
    editor->show();
    AttendePittura(pittura, 1);
    return editor;
}

double MilliSecondiCpu()
{
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

} // namespace

void bench_Editor::initTestCase()
{
    piena_.Riempie(PerGenere);
    for (int k = 1; k <= PerGenere; ++k) {
        QImage figura(300, 160, QImage::Format_RGB32);
        figura.fill(QColor::fromHsv(k * 3, 200, 200));
        QVERIFY(
            figura.save(piena_.Stato().CartellaModelli + QStringLiteral("immagine%1.bmp").arg(k)));
    }
    piena_.Scrive();
    vuota_.Scrive();
    // An A4 sheet scanned at 600 dpi: 4960 x 7016 pixels.
    QImage pagina(4960, 7016, QImage::Format_RGB32);
    pagina.fill(QColor(240, 240, 230));
    QPainter penna(&pagina);
    for (int y = 200; y < pagina.height(); y += 200) {
        penna.fillRect(200, y, 4500, 12, Qt::darkGray);
    }
    penna.end();
    scansione_ = piena_.Stato().CartellaModelli + QStringLiteral("scansione.jpg");
    QVERIFY(pagina.save(scansione_));
}

void bench_Editor::Stende()
{
    piena_.DaAprire().Sfondo = {scansione_,          QStringLiteral("210"), QStringLiteral("297"),
                                QStringLiteral("0"), QStringLiteral("0"),   1};
    piena_.Scrive();
}

void bench_Editor::Apertura()
{
    // A first opening of each, so that both find fonts and file cache warm.
    Apre(vuota_);
    Apre(piena_);
    const double vuoto = Mediana(9, [this] { Apre(vuota_); });
    const double pieno = Mediana(9, [this] { Apre(piena_); });
    qInfo("opening: %.1f ms with 300 elements, %.1f ms without", pieno, vuoto);
    Riporta("opening 300 elements beyond an empty model", pieno - vuoto, 60);
}

void bench_Editor::TrascinamentoA60Hz_data()
{
    QTest::addColumn<bool>("scansione");
    QTest::newRow("no scan") << false;
    QTest::newRow("full-page scan") << true;
}

void bench_Editor::TrascinamentoA60Hz()
{
    QFETCH(const bool, scansione);
    if (scansione) {
        Stende();
    }
    const auto editor = Apre(piena_);
    QWidget *foglio = Foglio(*editor);
    Frm1 &anteprima = *editor->Anteprima();
    anteprima.SelezionaCampo(45);
    const double scala = PixelPerMillimetro(&anteprima);
    const auto *maniglia = ElementoAnteprima(anteprima, QStringLiteral("S1"));
    QVERIFY(maniglia != nullptr);
    const QPoint presa = (maniglia->pos() * scala).toPoint() + QPoint(3, 3);
    QTest::mouseMove(foglio, presa);
    QTest::mousePress(foglio, Qt::LeftButton, {}, presa);

    constexpr int Passi = 100;
    constexpr int Periodo = 16; // ms
    Pittura pittura;
    foglio->installEventFilter(&pittura);
    std::vector<double> ritardi;
    double cpu = 0;
    int senzaPittura = 0;
    for (int k = 1; k <= Passi; ++k) {
        const int prima = pittura.volte;
        QElapsedTimer passo;
        passo.start();
        const double inizio = MilliSecondiCpu();
        QMouseEvent mosso(QEvent::MouseMove, presa + QPoint(4 * (k % 25), 2 * k),
                          foglio->mapToGlobal(presa + QPoint(4 * (k % 25), 2 * k)), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(foglio, &mosso);
        while (pittura.volte == prima && passo.elapsed() < Periodo) {
            QCoreApplication::processEvents();
        }
        cpu += MilliSecondiCpu() - inizio;
        ritardi.push_back(static_cast<double>(passo.nsecsElapsed()) / 1e6);
        senzaPittura += pittura.volte == prima ? 1 : 0;
        QTest::qSleep(qMax(0, Periodo - static_cast<int>(passo.elapsed())));
    }
    QTest::mouseRelease(foglio, Qt::LeftButton, {}, presa + QPoint(50, 50));
    piena_.Stato().documento.Salvato();
    std::sort(ritardi.begin(), ritardi.end());
    const QByteArray caso = QByteArray(", ") + QTest::currentDataTag();
    Riporta("100 drag steps, processor" + caso, cpu, 100);
    Riporta("motion to repaint, 95th percentile" + caso, ritardi[Passi * 95 / 100], 3);
    Riporta("drag steps without a repaint" + caso, senzaPittura, 0, "");
}

void bench_Editor::Scansione()
{
    Stende();
    std::unique_ptr<Form2> editor;
    Riporta("open 300 elements over a 35-megapixel scan",
            Mediana(1, [&] { editor = Apre(piena_); }), 1500);
    Riporta("nudge the scan",
            Mediana(9,
                    [&] {
                        Preme(*editor, "SfondoSpostaDx");
                        Foglio(*editor)->repaint();
                    }),
            50);
    auto *zoom = Trova<QLineEdit>(*editor->Anteprima(), "TextZoom");
    int k = 0;
    Riporta("zoom change over the scan",
            Mediana(9,
                    [&] {
                        zoom->setText(QString::number(1 + ++k % 5 * .4));
                        QTest::keyClick(zoom, Qt::Key_End);
                        Foglio(*editor)->repaint();
                    }),
            100);
    auto *scorre = Trova<QScrollBar>(*editor->Anteprima(), "ScrollY");
    Riporta("scroll over the scan",
            Mediana(21,
                    [&] {
                        scorre->setValue(scorre->value() + 3);
                        QCoreApplication::processEvents();
                    }),
            16);
    piena_.Stato().documento.Salvato();
}

void bench_Editor::Riposo()
{
    const auto editor = Apre(piena_);
    QTest::qWait(500);
    constexpr int Attesa = 10'000; // ms
    QEventLoop giro;
    QTimer fine;
    fine.setSingleShot(true);
    connect(&fine, &QTimer::timeout, &giro, &QEventLoop::quit);
    fine.start(Attesa);
    const double inizio = MilliSecondiCpu();
    giro.exec();
    // None but for the one timer of this loop, which takes a fraction of a millisecond.
    Riporta("processor in 10 s of rest", MilliSecondiCpu() - inizio, 1);
    piena_.Stato().documento.Salvato();
}

QTEST_MAIN(bench_Editor)
#include "bench_Editor.moc"

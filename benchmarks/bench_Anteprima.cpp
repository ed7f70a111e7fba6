#include "Misura.h"
#include "preview/Banco.h"

#include <QPainter>

#include <ctime>

/// The preview of 300 elements (100 of each kind, 100 different pictures): what the hand feels.
/// Figures are processor time, the repaint included.
class bench_Anteprima : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { banco_.reset(); }

    void Apertura();
    void PassoDiTrascinamento_data();
    void PassoDiTrascinamento();
    void TrascinareTuttiGliScelti_data();
    void TrascinareTuttiGliScelti();
    void RidipinteSoloLeParti();
    void CambioDiZoom();
    void PrimoPiano();
    void PuntareSulFoglio();

private:
    double PassoConScelti(const QList<Chiave> &scelti);
    void Riempie();
    void StendeScansione();

    std::unique_ptr<Banco> banco_;
};

namespace {

constexpr int PerGenere = 100;
constexpr int Passi = 100;

/// Average milliseconds of processor time of one turn.
template <typename Azione>
double MilliSecondi(int volte, Azione &&azione)
{
    const std::clock_t inizio = std::clock();
    for (int k = 0; k < volte; ++k) {
        azione(k);
    }
    return 1000.0 * static_cast<double>(std::clock() - inizio) / CLOCKS_PER_SEC / volte;
}

/// Counts the pixels that reach the screen.
class Contatore : public QObject
{
public:
    qint64 pixel = 0;

    bool eventFilter(QObject *, QEvent *evento) override
    {
        if (evento->type() == QEvent::Paint) {
            for (const QRect &parte : static_cast<QPaintEvent *>(evento)->region()) {
                pixel += qint64(parte.width()) * parte.height();
            }
        }
        return false;
    }
};

} // namespace

void bench_Anteprima::init()
{
    banco_ = std::make_unique<Banco>();
    for (int k = 1; k <= PerGenere; ++k) {
        QImage figura(300, 100, QImage::Format_RGB32);
        figura.fill(QColor::fromHsv(k * 3, 200, 200));
        QVERIFY(figura.save(banco_->cartella.filePath(QStringLiteral("figura%1.jpg").arg(k))));
    }
}

void bench_Anteprima::Riempie()
{
    for (int k = 0; k < PerGenere; ++k) {
        const double x = k % 10 * 19;
        const int decina = k / 10;
        const double y = decina * 14;
        banco_->Campo(QStringLiteral("campo%1").arg(k), x, y,
                      QStringLiteral("Campo di prova %1").arg(k));
        banco_->Cornice(x, y, 18, 12);
        banco_->Immagine(x + 1, y + 5, 10, 6, QStringLiteral("figura%1.jpg").arg(k + 1));
    }
    banco_->frm->PrimoPianoImmagini();
    banco_->frm->PrimoPianoCornici();
    banco_->frm->PrimoPianoCampi();
    QCoreApplication::processEvents();
    banco_->Fotografia(); // every picture decoded
}

void bench_Anteprima::StendeScansione()
{
    QImage pagina(1654, 2339, QImage::Format_RGB32);
    pagina.fill(Qt::lightGray);
    QPainter penna(&pagina);
    for (int k = 0; k < 60; ++k) {
        penna.drawText(100, 100 + k * 35, QStringLiteral("riga del modulo prestampato"));
    }
    penna.end();
    const QString percorso = banco_->cartella.filePath(QStringLiteral("scansione.jpg"));
    QVERIFY(pagina.save(percorso));
    banco_->frm->DipingeSfondo(percorso, QRectF(0, 0, 210, 297));
    QCoreApplication::processEvents();
}

void bench_Anteprima::Apertura()
{
    Riporta("create and paint 300 elements", MilliSecondi(1, [this](int) { Riempie(); }), 60);
}

void bench_Anteprima::PassoDiTrascinamento_data()
{
    QTest::addColumn<int>("genere");
    QTest::addColumn<bool>("scansione");
    static constexpr const char *Nomi[] = {"field", "frame", "image"};
    for (int genere = 0; genere < 3; ++genere) {
        QTest::addRow("%s", Nomi[genere]) << genere << false;
        QTest::addRow("%s over a scan", Nomi[genere]) << genere << true;
    }
}

void bench_Anteprima::PassoDiTrascinamento()
{
    QFETCH(int, genere);
    QFETCH(bool, scansione);
    Riempie();
    if (scansione) {
        StendeScansione();
    }
    banco_->frm->Seleziona(static_cast<Genere>(genere), 45);
    const QPointF presa = banco_->S(genere + 1)->Posto().topLeft() + QPointF(1, 1);
    banco_->Muove(presa);
    banco_->Preme(presa);
    const double passo = MilliSecondi(Passi, [&](int k) {
        const int giu = k / 2;
        banco_->Muove(presa + QPointF(k % 50, giu));
        QCoreApplication::processEvents();
    });
    banco_->Rilascia(presa);
    Riporta(QByteArray("drag step, ") + QTest::currentDataTag(), passo, 1);
}

double bench_Anteprima::PassoConScelti(const QList<Chiave> &scelti)
{
    constexpr int Campo = 45;
    banco_->stato.selezione.ImpostaScelti(scelti);
    banco_->frm->Seleziona(Genere::Campo, Campo);
    const QPointF presa = banco_->S(1)->Posto().topLeft() + QPointF(1, 1);
    banco_->Muove(presa);
    banco_->Preme(presa);
    banco_->Muove(presa + QPointF(5, 5)); // the picture of the others is made once
    QCoreApplication::processEvents();
    const double passo = MilliSecondi(Passi, [&](int k) {
        const int giu = 5 + k / 5;
        banco_->Muove(presa + QPointF(5 + k % 20, giu));
        QCoreApplication::processEvents();
    });
    QTest::keyClick(banco_->frm.get(), Qt::Key_Escape);
    banco_->Rilascia(presa);
    return passo;
}

void bench_Anteprima::TrascinareTuttiGliScelti_data()
{
    QTest::addColumn<bool>("scansione");
    QTest::newRow("") << false;
    QTest::newRow(" over a scan") << true;
}

void bench_Anteprima::TrascinareTuttiGliScelti()
{
    QFETCH(bool, scansione);
    Riempie();
    if (scansione) {
        StendeScansione();
    }
    QList<Chiave> tutti;
    for (const Genere genere : Generi) {
        for (int i = 1; i <= PerGenere; ++i) {
            tutti.append({genere, i});
        }
    }
    const double uno = PassoConScelti({{Genere::Campo, 45}});
    const double trecento = PassoConScelti(tutti);
    Riporta(QByteArray("300 chosen dragged / one") + QTest::currentDataTag(), trecento / uno, 3,
            "");
}

void bench_Anteprima::RidipinteSoloLeParti()
{
    Riempie();
    StendeScansione();
    banco_->frm->SelezionaCampo(45);
    const QPointF presa = banco_->S(1)->Posto().topLeft() + QPointF(1, 1);
    banco_->Preme(presa);
    banco_->Muove(presa + QPointF(3, 3));
    QCoreApplication::processEvents();
    Contatore contatore;
    banco_->Vista()->installEventFilter(&contatore);
    for (int k = 0; k < Passi; ++k) {
        const int giu = k / 2;
        banco_->Muove(presa + QPointF(k % 50, giu));
        QCoreApplication::processEvents();
    }
    banco_->Vista()->removeEventFilter(&contatore);
    banco_->Rilascia(presa);
    const QSize foglio = banco_->Vista()->size();
    // Of the sheet at each step: the field at both its places and four guide lines.
    Riporta("repainted at a drag step",
            100.0 * double(contatore.pixel) / Passi / foglio.width() / foglio.height(), 5,
            "% of the sheet");
}

void bench_Anteprima::CambioDiZoom()
{
    Riempie();
    StendeScansione();
    const QStringList zoom{QStringLiteral("2.5"), QStringLiteral("1"), QStringLiteral("3"),
                           QStringLiteral("1.7"), QStringLiteral("1")};
    Riporta("zoom change",
            MilliSecondi(static_cast<int>(zoom.size()),
                         [&](int k) {
                             banco_->Zoom(zoom.at(k));
                             QCoreApplication::processEvents();
                         }),
            50);
}

void bench_Anteprima::PrimoPiano()
{
    Riempie();
    Riporta("restack all three kinds",
            MilliSecondi(Passi,
                         [this](int) {
                             banco_->frm->PrimoPianoImmagini();
                             banco_->frm->PrimoPianoCornici();
                             banco_->frm->PrimoPianoCampi();
                         }),
            2);
}

void bench_Anteprima::PuntareSulFoglio()
{
    Riempie();
    StendeScansione();
    Riporta("point at the sheet, one move",
            MilliSecondi(Passi,
                         [this](int k) {
                             banco_->Muove({5.0 + k, 5.0 + k});
                             QCoreApplication::processEvents();
                         }),
            1);
}

QTEST_MAIN(bench_Anteprima)
#include "bench_Anteprima.moc"

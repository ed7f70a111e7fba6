#include "FoglioDiProva.h"

#include <QPdfWriter>
#include <QTest>

#include <cmath>

using namespace ImmaginiDiProva;

namespace {

/// A printer of few points that paints pictures onto whole ones.
class StampanteAPunti : public Destinazione
{
public:
    static constexpr int PuntiPerPollice = 100;

    explicit StampanteAPunti(const QString &percorso)
        : scrittore_(percorso)
    {
        scrittore_.setResolution(PuntiPerPollice);
        scrittore_.setPageLayout({QPageSize(QPageSize::A4),
                                  QPageLayout::Portrait,
                                  {4.3, 4.9, 4.3, 4.9},
                                  QPageLayout::Millimeter});
    }
    QPagedPaintDevice &Dispositivo() override { return scrittore_; }
    QString Nome() const override { return {}; }
    void Titolo(const QString & /*titolo*/) override {}
    bool FigureSuPuntiInteri() const override { return true; }
    ErroreSistema Rifiuto() const override { return ErroreSistema(ErroreSistema::Stampante); }
    void Consegna() override {}

private:
    QPdfWriter scrittore_;
};

} // namespace

/// Where the pictures of a model stand on the sheet, and what is said of one that cannot be
/// printed.
class tst_ImmaginiSuCarta : public QObject
{
    Q_OBJECT

private slots:
    void immagine();
    void immagineSenzaMisura();
    void immagineMillimetriInteri();
    void figureSuiPuntiInteriPiuVicini();
    void diagnosi_data();
    void diagnosi();
    void diagnosiTesto();
    void diagnosiConMisureZero();
    void immagineFuoriDallaCartella();
    void immagineSenzaRiguardoAlleMaiuscole();
};

void tst_ImmaginiSuCarta::immagine()
{
    FoglioDiProva foglio;
    foglio.ConImmagine(QStringLiteral("logo.bmp"),
                       InFormato(Tinta({30, 20}, qRgb(10, 200, 90)), "bmp"), {25, 35, 60, 40});
    const LettorePdf pdf = foglio.Stampa();
    const QRectF inchiostro = pdf.Inchiostro();
    QVERIFY2(Vicini(inchiostro, QRectF(25, 35, 60, 40)), Testo(inchiostro));
    QCOMPARE(pdf.Colore(55, 55), qRgb(10, 200, 90));
    QCOMPARE(pdf.Immagini(), 1);
}

void tst_ImmaginiSuCarta::immagineSenzaMisura()
{
    FoglioDiProva foglio;
    foglio.Margini = QMarginsF(5, 6, 7, 8);
    const QByteArray byte = InFormato(Tinta({30, 20}, qRgb(10, 200, 90)), "bmp");
    foglio.ConImmagine(QStringLiteral("foglio.bmp"), byte, {0, 0, 0, 0});
    const QRectF inchiostro = foglio.Stampa().Inchiostro();
    QVERIFY2(Vicini(inchiostro, QRectF(5, 6, 198, 283)), Testo(inchiostro));

    FoglioDiProva quasi; // both sizes round to 0
    quasi.ConImmagine(QStringLiteral("foglio.bmp"), byte, {0, 0, 0.5, 0.4});
    QVERIFY(Vicini(quasi.Stampa().Inchiostro(), QRectF(0, 0, 210, 297)));
}

void tst_ImmaginiSuCarta::immagineMillimetriInteri()
{
    FoglioDiProva foglio;
    const QByteArray byte = InFormato(Tinta({3, 3}, 0), "bmp");
    foglio.ConImmagine(QStringLiteral("a.bmp"), byte, {10.5, 10.5, 10, 10});
    foglio.ConImmagine(QStringLiteral("b.bmp"), byte, {111.5, 11.5, 10.5, 11.5});
    foglio.ConImmagine(QStringLiteral("c.bmp"), byte, {10.51, 100.49, 9.51, 9.49});
    const LettorePdf pdf = foglio.Stampa();
    const QRectF a = pdf.Inchiostro({0, 0, 60, 60});
    const QRectF b = pdf.Inchiostro({100, 0, 60, 60});
    const QRectF c = pdf.Inchiostro({0, 90, 60, 60});
    QVERIFY2(Vicini(a, QRectF(10, 10, 10, 10)), Testo(a));
    QVERIFY2(Vicini(b, QRectF(112, 12, 10, 12)), Testo(b));
    QVERIFY2(Vicini(c, QRectF(11, 100, 10, 9)), Testo(c));
}

void tst_ImmaginiSuCarta::figureSuiPuntiInteriPiuVicini()
{
    constexpr double Punto = 25.4 / StampanteAPunti::PuntiPerPollice;
    FoglioDiProva foglio;
    const QByteArray byte = InFormato(Tinta({3, 3}, 0), "bmp");
    QList<QRectF> posti;
    for (int i = 0; i < 5; ++i) {
        posti.append(QRectF(11 + 31 * i, 12 + 31 * i, 20, 21));
        foglio.ConImmagine(QStringLiteral("%1.bmp").arg(i), byte, posti.last());
    }
    StampanteAPunti stampante(foglio.Pdf());
    StampaModello(foglio.Aperto, foglio.Cartella(), stampante, false, [](const QString &) {});
    const LettorePdf pdf(foglio.Pdf());
    for (const QRectF &posto : posti) {
        const QRectF sulFoglio = posto.translated(4.3, 4.9);
        const QRectF visto = pdf.Inchiostro(sulFoglio.adjusted(-3, -3, 3, 3));
        const QList<std::pair<double, double>> lati{{visto.left(), sulFoglio.left()},
                                                    {visto.top(), sulFoglio.top()},
                                                    {visto.right(), sulFoglio.right()},
                                                    {visto.bottom(), sulFoglio.bottom()}};
        for (const auto &[lato, voluto] : lati) {
            const double punti = lato / Punto; // of which a pixel of the reader is a sixth
            QVERIFY2(std::abs(punti - std::round(punti)) < 0.2, Testo(visto));
            // The page's origin is rounded as well.
            QVERIFY2(std::abs(lato - voluto) < 0.75 * Punto, Testo(visto));
        }
    }
}

void tst_ImmaginiSuCarta::diagnosi_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::addColumn<QRectF>("posto");
    QTest::addColumn<int>("errore");
    const QByteArray buona = InFormato(Tinta({9, 9}, 0), "bmp");
    QTest::newRow("missing file") << QByteArray() << QRectF(1, 2, 3, 4) << 53;
    QTest::newRow("unreadable file") << QByteArray("non un'immagine") << QRectF(1, 2, 3, 4) << 481;
    QTest::newRow("cut file") << buona.left(100) << QRectF(1, 2, 3, 4) << 481;
    QTest::newRow("negative width") << buona << QRectF(1, 2, -3, 4) << 5;
    QTest::newRow("negative height") << buona << QRectF(1, 2, 3, -4) << 5;
    QTest::newRow("no width") << buona << QRectF(1, 2, 0, 4) << 5;
    QTest::newRow("no height") << buona << QRectF(1, 2, 3, 0) << 5;
    QTest::newRow("x beyond 16 bits") << buona << QRectF(1e6, 2, 3, 4) << 6;
    QTest::newRow("height beyond 16 bits") << buona << QRectF(1, 2, 3, 1e300) << 6;
}

void tst_ImmaginiSuCarta::diagnosi()
{
    QFETCH(QByteArray, byte);
    QFETCH(QRectF, posto);
    QFETCH(int, errore);
    FoglioDiProva foglio;
    foglio.ConImmagine(QStringLiteral("guasta.bmp"), byte, posto);
    foglio.ConImmagine(QStringLiteral("sana.bmp"), InFormato(Tinta({9, 9}, 0), "bmp"),
                       {100, 100, 10, 10});
    const QRectF inchiostro = foglio.Stampa().Inchiostro();
    QVERIFY2(Vicini(inchiostro, QRectF(100, 100, 10, 10)), "the next picture is printed");
    QCOMPARE(foglio.Avvisi.size(), 1);
    QVERIFY2(foglio.Avvisi.first().contains(QStringLiteral("ERRORE %1 ").arg(errore)),
             qPrintable(foglio.Avvisi.first()));
}

void tst_ImmaginiSuCarta::diagnosiTesto()
{
    FoglioDiProva foglio;
    foglio.ConImmagine(QStringLiteral("manca.jpg"), {}, {10.5, 21.5, 30.4, 44.6});
    foglio.Stampa();
    QCOMPARE(foglio.Avvisi, QStringList{QStringLiteral("StampaImmagine:  pos. mm. x,y=10,22\n"
                                                       " area stampabile Width,Height = 210, 297\n"
                                                       " xtar=30, 45\n"
                                                       "ERRORE 53 %1\n%2")
                                            .arg(DescrizioneErrore(53),
                                                 foglio.Cartella() + QStringLiteral("manca.jpg"))});
}

void tst_ImmaginiSuCarta::diagnosiConMisureZero()
{
    FoglioDiProva foglio;
    foglio.ConImmagine(QStringLiteral("manca.jpg"), {}, {10, 20, 0, 0});
    foglio.Stampa();
    QCOMPARE(foglio.Avvisi.size(), 1);
    QVERIFY2(foglio.Avvisi.first().contains(QStringLiteral(" xtar=210, 297\n")),
             qPrintable(foglio.Avvisi.first()));
}

void tst_ImmaginiSuCarta::immagineFuoriDallaCartella()
{
    FoglioDiProva foglio;
    QTemporaryDir altrove;
    const QString percorso = altrove.filePath(QStringLiteral("altrui.bmp"));
    Scrive(percorso, InFormato(Tinta({9, 9}, 0), "bmp"));
    const QString relativo = QDir(foglio.Cartella()).relativeFilePath(percorso);
    foglio.ConImmagine(relativo, {}, {10, 10, 10, 10});
    foglio.ConImmagine(QString(relativo).replace(u'/', u'\\'), {}, {10, 10, 10, 10});
    foglio.ConImmagine(percorso, {}, {10, 10, 10, 10});
    foglio.ConImmagine(QStringLiteral(".."), {}, {10, 10, 10, 10});
    QVERIFY(foglio.Stampa().Inchiostro().isEmpty());
    QCOMPARE(foglio.Avvisi.size(), 4);
}

void tst_ImmaginiSuCarta::immagineSenzaRiguardoAlleMaiuscole()
{
    FoglioDiProva foglio;
    Scrive(foglio.Cartella() + QStringLiteral("LOGO.BMP"), InFormato(Tinta({9, 9}, 0), "bmp"));
    foglio.ConImmagine(QStringLiteral("Logo.bmp"), {}, {10, 10, 10, 10});
    QVERIFY(Vicini(foglio.Stampa().Inchiostro(), QRectF(10, 10, 10, 10)));
    QVERIFY(foglio.Avvisi.isEmpty());
}

QTEST_MAIN(tst_ImmaginiSuCarta)
#include "tst_ImmaginiSuCarta.moc"

#include "model/Tavolozza.h"
#include "preview/Righelli.h"

#include <QImage>
#include <QTest>

namespace {

constexpr double Pixel = 96 / 25.4;

int Quante(const SegniRighello &segni, double da)
{
    return static_cast<int>(std::count_if(segni.tacche.begin(), segni.tacche.end(),
                                          [da](const auto &t) { return t.da == da; }));
}

bool CeTacca(const SegniRighello &segni, double posto, double da)
{
    return std::any_of(segni.tacche.begin(), segni.tacche.end(), [&](const auto &t) {
        return std::abs(t.posto - posto) < 1e-9 && t.da == da && t.a == 6;
    });
}

/// A ruler as painted at 96 dpi.
QImage Dipinto(Qt::Orientation verso, double zoom)
{
    const bool orizzontale = verso == Qt::Horizontal;
    const double lunghezza = orizzontale ? 240 : 350;
    RighelloFoglio righello(verso, Pixel, nullptr);
    const int lungo = qRound(lunghezza * Pixel);
    const int spesso = qRound(6.5 * Pixel);
    righello.resize(orizzontale ? QSize(lungo, spesso) : QSize(spesso, lungo));
    righello.Mostra(CalcolaRighello(lunghezza, zoom));
    return righello.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// True when the line of the ruler at a place (mm along, mm across) is a tick.
bool Verde(const QImage &righello, Qt::Orientation verso, double lungo, double traverso)
{
    const double dpr = righello.devicePixelRatio();
    const double scala = Pixel * dpr;
    const int lunghezza = verso == Qt::Horizontal ? righello.width() : righello.height();
    const int l = std::min(qRound(lungo * scala), qRound(lunghezza - dpr));
    const int t = static_cast<int>(traverso * scala);
    const QRgb colore = verso == Qt::Horizontal ? righello.pixel(l, t) : righello.pixel(t, l);
    return (colore & 0xffffff) == Tavolozza::Rgb(Tavolozza::VerdeScuro);
}

} // namespace

class tst_Righelli : public QObject
{
    Q_OBJECT
private slots:
    void AZoom1();
    void OltreZoom1SenzaMillimetri_data();
    void OltreZoom1SenzaMillimetri();
    void UltimaTaccaNonSiPerde_data();
    void UltimaTaccaNonSiPerde();
    void FoglioApertoAdAltroZoom();
    void TaccheDipinte_data();
    void TaccheDipinte();
    void MillimetriDipintiSoloAZoom1();
    void ScritteDentroIlRighello();
    void LoZeroSiVede_data();
    void LoZeroSiVede();
    void Suggerimento();
};

void tst_Righelli::AZoom1()
{
    const SegniRighello segni = CalcolaRighello(240, 1);
    QStringList scritte;
    for (const auto &scritta : segni.scritte) {
        QCOMPARE(scritta.posto, scritta.testo.toInt() * 10.0);
        scritte.append(scritta.testo);
    }
    QCOMPARE(scritte.size(), 25);
    QCOMPARE(scritte.first(), QStringLiteral("0"));
    QCOMPARE(scritte.last(), QStringLiteral("24"));
    QCOMPARE(Quante(segni, 1), 25);  // centimetres
    QCOMPARE(Quante(segni, 4), 24);  // half centimetres: 5, 15 ... 235
    QCOMPARE(Quante(segni, 5), 241); // millimetres
    QVERIFY(CeTacca(segni, 5, 4));
    QVERIFY(CeTacca(segni, 235, 4));
    QVERIFY(CeTacca(segni, 240, 5));
}

void tst_Righelli::OltreZoom1SenzaMillimetri_data()
{
    QTest::addColumn<double>("zoom");
    QTest::newRow("1.001") << 1.001;
    QTest::newRow("1.7") << 1.7;
    QTest::newRow("3") << 3.0;
}

void tst_Righelli::OltreZoom1SenzaMillimetri()
{
    QFETCH(double, zoom);
    const SegniRighello segni = CalcolaRighello(240, zoom);
    QCOMPARE(Quante(segni, 5), 0);
    QVERIFY(CeTacca(segni, 10 / zoom, 1));
    QVERIFY(CeTacca(segni, 5 / zoom, 4));
    QVERIFY(CeTacca(segni, 15 / zoom, 4));
}

void tst_Righelli::UltimaTaccaNonSiPerde_data()
{
    QTest::addColumn<double>("lunghezza");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QString>("ultima");
    QTest::newRow("width at 3") << 240.0 << 3.0 << QStringLiteral("72");
    QTest::newRow("height at 3") << 350.0 << 3.0 << QStringLiteral("105");
    QTest::newRow("width at 1.7") << 240.0 << 1.7 << QStringLiteral("40");
    QTest::newRow("width at 1.1") << 240.0 << 1.1 << QStringLiteral("26");
    QTest::newRow("width at 1.4, whose steps do not add up")
        << 350.0 << 1.4 << QStringLiteral("49");
    QTest::newRow("opened and used at 1.7") << 240 / 1.7 << 1.7 << QStringLiteral("24");
}

void tst_Righelli::UltimaTaccaNonSiPerde()
{
    QFETCH(double, lunghezza);
    QFETCH(double, zoom);
    QTEST(CalcolaRighello(lunghezza, zoom).scritte.last().testo, "ultima");
}

void tst_Righelli::FoglioApertoAdAltroZoom()
{
    // Opened at zoom 2 (sheet of 120 mm), back at zoom 1: half the paper's centimetres fit.
    const SegniRighello segni = CalcolaRighello(120, 1);
    QCOMPARE(segni.scritte.last().testo, QStringLiteral("12"));
    QCOMPARE(Quante(segni, 5), 121);
}

void tst_Righelli::TaccheDipinte_data()
{
    QTest::addColumn<Qt::Orientation>("verso");
    QTest::addColumn<double>("zoom");
    for (const double zoom : {1.0, 1.7, 2.5, 3.0}) {
        QTest::addRow("RighelloX at %g", zoom) << Qt::Horizontal << zoom;
        QTest::addRow("RighelloY at %g", zoom) << Qt::Vertical << zoom;
    }
}

void tst_Righelli::TaccheDipinte()
{
    QFETCH(Qt::Orientation, verso);
    QFETCH(double, zoom);
    const QImage righello = Dipinto(verso, zoom);
    const double lunghezza = verso == Qt::Horizontal ? 240 : 350;
    for (const auto &tacca : CalcolaRighello(lunghezza, zoom).tacche) {
        QVERIFY2(Verde(righello, verso, tacca.posto, tacca.da + 0.5),
                 qPrintable(QString::number(tacca.posto)));
        QVERIFY(Verde(righello, verso, tacca.posto, 5.7));
        QVERIFY(!Verde(righello, verso, tacca.posto, 6.4));
    }
    // A centimetre tick begins at 1 mm, a half one at 4.
    QVERIFY(!Verde(righello, verso, 100 / zoom, 0.5));
    QVERIFY(Verde(righello, verso, 100 / zoom, 1.5));
    QVERIFY(!Verde(righello, verso, 105 / zoom, 3.5));
}

void tst_Righelli::MillimetriDipintiSoloAZoom1()
{
    QVERIFY(Verde(Dipinto(Qt::Horizontal, 1), Qt::Horizontal, 23, 5.5));
    QVERIFY(!Verde(Dipinto(Qt::Horizontal, 1.001), Qt::Horizontal, 23, 5.5));
}

void tst_Righelli::ScritteDentroIlRighello()
{
    // Two digits end at their tick, in the 2 mm that a label has before it.
    RighelloFoglio righello(Qt::Horizontal, Pixel, nullptr);
    const QFontMetricsF misure(righello.font());
    QVERIFY(misure.horizontalAdvance(QStringLiteral("24")) <= 2.2 * Pixel);
    // The digits of "10" stand in the two millimetres before the tick and nowhere below 4 mm.
    const QImage immagine = Dipinto(Qt::Horizontal, 1);
    const double scala = Pixel * immagine.devicePixelRatio();
    const QRgb sfondo = immagine.pixel(qRound(96.5 * scala), 1);
    int scuri = 0;
    for (int x = qRound(98 * scala); x < qRound(99.9 * scala); ++x) {
        for (int y = 0; y < qRound(3 * scala); ++y) {
            scuri += immagine.pixel(x, y) != sfondo ? 1 : 0;
        }
    }
    QVERIFY(scuri > 10);
}

void tst_Righelli::LoZeroSiVede_data()
{
    TaccheDipinte_data();
}

void tst_Righelli::LoZeroSiVede()
{
    QFETCH(Qt::Orientation, verso);
    QFETCH(double, zoom);
    const auto scuri = [](const QImage &righello, Qt::Orientation lungo) {
        // Beside the tick at 0 and before the next one; across, above the half centimetre's ticks.
        const double scala = Pixel * righello.devicePixelRatio();
        const QRgb sfondo = righello.pixel(righello.width() - 1, righello.height() - 1);
        int quanti = 0;
        for (int l = qRound(0.3 * scala); l < qRound(1.6 * scala); ++l) {
            for (int t = 0; t < qRound(3 * scala); ++t) {
                const QRgb colore =
                    lungo == Qt::Horizontal ? righello.pixel(l, t) : righello.pixel(t, l);
                const bool tacca = (colore & 0xffffff) == Tavolozza::Rgb(Tavolozza::VerdeScuro);
                quanti += colore != sfondo && !tacca ? 1 : 0;
            }
        }
        return quanti;
    };
    QVERIFY(scuri(Dipinto(verso, zoom), verso) > 5);
}

void tst_Righelli::Suggerimento()
{
    QCOMPARE(RighelloFoglio(Qt::Vertical, Pixel, nullptr).toolTip(),
             QStringLiteral("righello in millimetri"));
}

QTEST_MAIN(tst_Righelli)
#include "tst_Righelli.moc"

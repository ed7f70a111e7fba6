#include "preview/TestoScalato.h"
#include "support/Tempi.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString Arial = QStringLiteral("Arial");
const QString Frase = QStringLiteral("Spett.le Ditta ROSSI MARIO & C. S.N.C.");

TestoScalato Testo(const QString &testo, const TestoScalato::Aspetto &aspetto = {Arial})
{
    TestoScalato t;
    t.Imposta(aspetto, testo);
    return t;
}

/// Text at (10, 10) mm on white, at a scale in pixels per mm.
QImage Dipinto(const TestoScalato &testo, double punti, double scala = 96 / 25.4)
{
    QImage immagine(qRound(100 * scala), qRound(30 * scala), QImage::Format_RGB32);
    immagine.fill(Qt::white);
    QPainter penna(&immagine);
    penna.scale(scala, scala);
    testo.Disegna(penna, {10, 10}, punti, Qt::black, QRectF(0, 0, 100, 30));
    return immagine;
}

/// The smallest rectangle around everything dark, mm.
QRectF Inchiostro(const QImage &immagine, double scala = 96 / 25.4, int soglia = 128)
{
    QRect trovato;
    for (int y = 0; y < immagine.height(); ++y) {
        for (int x = 0; x < immagine.width(); ++x) {
            if (qGray(immagine.pixel(x, y)) < soglia) {
                trovato |= QRect(x, y, 1, 1);
            }
        }
    }
    return {QPointF(trovato.topLeft()) / scala, QSizeF(trovato.size()) / scala};
}

} // namespace

class tst_TestoScalato : public QObject
{
    Q_OBJECT
private slots:
    void LargoComeInStampa_data();
    void LargoComeInStampa();
    void MisureProporzionaliAiPunti();
    void DipintoLargoComeMisurato_data();
    void DipintoLargoComeMisurato();
    void CimaDellaRigaAllAngolo();
    void Barrato();
    void GrassettoPiuLargo();
    void SpaziFinaliContano();
    void CambiaSoloSeAltro();
    void CaratteriDiControlloComeSpazi();
    void DimensioneImpossibile_data();
    void DimensioneImpossibile();
    void FontInesistente();
    void TestoLunghissimoDipintoInFretta();
};

void tst_TestoScalato::LargoComeInStampa_data()
{
    QTest::addColumn<int>("punti");
    QTest::addColumn<bool>("grassetto");
    for (const int punti : {6, 8, 9, 11, 14, 20, 40}) {
        QTest::addRow("%d points", punti) << punti << false;
        QTest::addRow("%d points, bold", punti) << punti << true;
    }
}

void tst_TestoScalato::LargoComeInStampa()
{
    QFETCH(int, punti);
    QFETCH(bool, grassetto);
    QTemporaryDir cartella;
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setOutputFileName(cartella.filePath(QStringLiteral("x.pdf")));
    QFont font(Arial, punti);
    font.setBold(grassetto);
    const QFontMetricsF misure(font, &stampante);
    const double stampato = misure.horizontalAdvance(Frase) * 25.4 / stampante.logicalDpiX();
    const double mostrato = Testo(Frase, {Arial, grassetto}).Misura(punti).width();
    QVERIFY2(std::abs(mostrato / stampato - 1) < 0.01,
             qPrintable(QStringLiteral("%1 mm, printed %2").arg(mostrato).arg(stampato)));
    const double riga = (misure.ascent() + misure.descent()) * 25.4 / stampante.logicalDpiX();
    QVERIFY(std::abs(Testo(Frase, {Arial, grassetto}).Misura(punti).height() / riga - 1) < 0.02);
}

void tst_TestoScalato::MisureProporzionaliAiPunti()
{
    const TestoScalato testo = Testo(Frase);
    for (const double zoom : {1.0, 1.7, 2.5, 3.0}) {
        QCOMPARE(testo.Misura(11 / zoom).width(), testo.Misura(11).width() / zoom);
        QCOMPARE(testo.Misura(11 / zoom).height(), testo.Misura(11).height() / zoom);
    }
}

void tst_TestoScalato::DipintoLargoComeMisurato_data()
{
    QTest::addColumn<double>("punti");
    for (const double punti : {11.0, 11 / 1.7, 6 / 2.5, 5 / 3.0}) {
        QTest::addRow("%g points", punti) << punti;
    }
}

void tst_TestoScalato::DipintoLargoComeMisurato()
{
    QFETCH(double, punti);
    // Upright strokes at both ends: what is painted is what is measured, less the side bearings.
    const TestoScalato testo = Testo(QStringLiteral("HxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxH"));
    const QRectF inchiostro = Inchiostro(Dipinto(testo, punti), 96 / 25.4, 240);
    const double misurato = testo.Misura(punti).width();
    const double bianco = 0.16 * punti * 25.4 / 72; // the bearings of two capitals
    QVERIFY2(std::abs(inchiostro.width() + bianco - misurato) < 0.6,
             qPrintable(QStringLiteral("%1 %2").arg(inchiostro.width()).arg(misurato)));
}

void tst_TestoScalato::CimaDellaRigaAllAngolo()
{
    // The baseline lies one ascent below the corner, as the printer sets it.
    const double scala = 20;
    QFont font(Arial);
    font.setPixelSize(1000);
    font.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF misure(font);
    const double corpo = 20 * 25.4 / 72;
    const QRectF inchiostro = Inchiostro(Dipinto(Testo(QStringLiteral("HHH")), 20, scala), scala);
    QVERIFY(std::abs(inchiostro.bottom() - (10 + misure.ascent() / 1000 * corpo)) < 0.1);
    QVERIFY(std::abs(inchiostro.left() - (10 + misure.leftBearing(u'H') / 1000 * corpo)) < 0.1);
}

void tst_TestoScalato::Barrato()
{
    const double scala = 10;
    const QImage liscio = Dipinto(Testo(QStringLiteral("o   o")), 20, scala);
    const QImage barrato = Dipinto(Testo(QStringLiteral("o   o"), {Arial, false, true}), 20, scala);
    const double larghezza = Testo(QStringLiteral("o   o")).Misura(20).width();
    // In the gap between the letters only the stroke paints, one line for the whole width.
    const int centro = qRound((10 + larghezza / 2) * scala);
    int righe = 0;
    for (int y = 0; y < barrato.height(); ++y) {
        QCOMPARE(qGray(liscio.pixel(centro, y)), 255);
        righe += qGray(barrato.pixel(centro, y)) < 128 ? 1 : 0;
    }
    QCOMPARE(righe, 1);
    QVERIFY(Inchiostro(barrato, scala).width() >= larghezza - 0.2);
}

void tst_TestoScalato::GrassettoPiuLargo()
{
    QVERIFY(Testo(Frase, {Arial, true}).Misura(11).width() >
            Testo(Frase).Misura(11).width() * 1.02);
}

void tst_TestoScalato::SpaziFinaliContano()
{
    QVERIFY(Testo(QStringLiteral("ab   ")).Misura(11).width() >
            Testo(QStringLiteral("ab")).Misura(11).width() + 2);
    QCOMPARE(Testo(QString()).Misura(11).width(), 0.0);
    QVERIFY(Testo(QString()).Misura(11).height() > 3);
}

void tst_TestoScalato::CambiaSoloSeAltro()
{
    TestoScalato testo;
    QVERIFY(testo.Imposta({Arial}, QString()));
    QVERIFY(!testo.Imposta({Arial}, QString()));
    QVERIFY(testo.Imposta({Arial}, Frase));
    QVERIFY(!testo.Imposta({Arial}, Frase));
    QVERIFY(testo.Imposta({Arial, true}, Frase));
    QVERIFY(testo.Imposta({Arial, true, true}, Frase));
}

void tst_TestoScalato::CaratteriDiControlloComeSpazi()
{
    const QString conControlli = QStringLiteral("a\nb\tc") + QChar(0x2028) + u'd';
    QCOMPARE(Testo(conControlli).Misura(11), Testo(QStringLiteral("a b c d")).Misura(11));
    QCOMPARE(Testo(conControlli).Testo(), conControlli);
}

void tst_TestoScalato::DimensioneImpossibile_data()
{
    QTest::addColumn<double>("punti");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -12.0;
    QTest::newRow("largest 16-bit") << 32767.0;
    QTest::newRow("smallest 16-bit") << -32768.0;
    QTest::newRow("1e300") << 1e300;
    QTest::newRow("no number") << qQNaN();
}

void tst_TestoScalato::DimensioneImpossibile()
{
    QFETCH(double, punti);
    const TestoScalato testo = Testo(Frase);
    const QSizeF misura = testo.Misura(punti);
    QVERIFY(misura.width() > 0 && misura.width() < 1e6);
    QVERIFY(misura.height() > 0 && misura.height() < 1e4);
    Dipinto(testo, punti);
}

void tst_TestoScalato::FontInesistente()
{
    for (const QString &famiglia : {QStringLiteral("NonEsiste123"), QString(), QString(3000, u'x'),
                                    QStringLiteral("a,b;\"c\"")}) {
        const TestoScalato testo = Testo(Frase, {famiglia});
        QVERIFY(testo.Misura(11).width() > 20);
        QCOMPARE(testo.Misura(11), Testo(Frase, {QStringLiteral("Arial")}).Misura(11));
        QCOMPARE(Dipinto(testo, 11), Dipinto(Testo(Frase, {QStringLiteral("Arial")}), 11));
        QVERIFY(!Inchiostro(Dipinto(testo, 11)).isEmpty());
    }
}

void tst_TestoScalato::TestoLunghissimoDipintoInFretta()
{
    const TestoScalato testo = Testo(QString(10000, u'W'));
    QVERIFY(testo.Misura(11).width() > 10000); // far beyond any sheet
    Dipinto(testo, 11);
    const TempoDiLavoro tempo;
    for (int k = 0; k < 20; ++k) {
        Dipinto(testo, 11);
    }
    // Only what is exposed is drawn; all of it would take ten times as long.
    QVERIFY2(tempo.Entro(20 * 30), qPrintable(QString::number(tempo.MilliSecondi())));
}

QTEST_MAIN(tst_TestoScalato)
#include "tst_TestoScalato.moc"

#include "FoglioDiProva.h"

#include "base/Unita.h"
#include "grafica/Testo.h"

#include <QFontDatabase>
#include <QPainterPath>
#include <QRawFont>
#include <QTest>

#include <algorithm>

using Unita::MillimetriPerPunto;

namespace {

/// The face that stands for a family, measured in its own design units, apart from all printing.
QRawFont Disegno(const QString &famiglia, bool grassetto)
{
    QFont font(famiglia);
    font.setBold(grassetto);
    font.setPixelSize(1000);
    font.setHintingPreference(QFont::PreferNoHinting);
    return QRawFont::fromFont(font);
}

double LarghezzaDisegnata(const QString &testo, const QString &famiglia, double punti,
                          bool grassetto)
{
    const QRawFont font = Disegno(famiglia, grassetto);
    double unita = 0;
    for (const QPointF &passo : font.advancesForGlyphIndexes(font.glyphIndexesForString(testo))) {
        unita += passo.x();
    }
    return unita / 1000 * punti * MillimetriPerPunto;
}

// What a face is called in the PDF. Where Qt does not ask the face itself, on Windows, it makes the
// name of the family that was asked for, the slant and the weight.
bool Grassetto(const LettorePdf::Carattere &carattere)
{
    return carattere.Nome.contains(QLatin1String("Bold")) ||
           carattere.Nome.endsWith(QLatin1String("-700"));
}

bool ComeArial(const LettorePdf::Carattere &carattere)
{
    return carattere.Nome.contains(QLatin1String("Sans")) ||
           carattere.Nome.startsWith(QLatin1String("Arial-"));
}

} // namespace

/// How texts come out of the test print: where they stand, how wide they are and in which face.
class tst_TestoSuCarta : public QObject
{
    Q_OBJECT

private slots:
    void campoInMillimetri_data();
    void campoInMillimetri();
    void lunghezzaGiusta_data();
    void lunghezzaGiusta();
    void fontMancanteComeArial();
    void grassetto();
    void etichetta();
    void fontSconosciuto();
    void senzaFontODimensione_data();
    void senzaFontODimensione();
};

void tst_TestoSuCarta::campoInMillimetri_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<int>("punti");
    QTest::newRow("origin") << 0.0 << 0.0 << 11;
    QTest::newRow("middle") << 100.0 << 150.0 << 11;
    QTest::newRow("fractions") << 33.37 << 41.91 << 8;
    QTest::newRow("large") << 20.0 << 250.0 << 36;
    QTest::newRow("small") << 190.5 << 280.25 << 6;
}

void tst_TestoSuCarta::campoInMillimetri()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(int, punti);
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("HHH"), x, y, punti);
    const LettorePdf pdf = foglio.Stampa();

    const QRectF inchiostro = pdf.Inchiostro();
    const QRawFont disegno = Disegno(QStringLiteral("Arial"), false);
    const double mm = punti * MillimetriPerPunto;
    const QRectF lettera =
        disegno.pathForGlyph(disegno.glyphIndexesForString(QStringLiteral("H")).first())
            .boundingRect();
    QVERIFY2(Vicini(inchiostro.left(), x + lettera.left() / 1000 * mm), Testo(inchiostro));
    // The top of the line is at y: the foot of the letters stands one ascent below it.
    QVERIFY2(Vicini(inchiostro.bottom(), y + disegno.ascent() / 1000 * mm), Testo(inchiostro));
    QVERIFY2(Vicini(inchiostro.height(), lettera.height() / 1000 * mm), Testo(inchiostro));
    QVERIFY2(Vicini(pdf.Parola1(QStringLiteral("HHH")).left(), x), Testo(inchiostro));
}

void tst_TestoSuCarta::lunghezzaGiusta_data()
{
    QTest::addColumn<QString>("famiglia");
    QTest::addColumn<int>("punti");
    QTest::addColumn<bool>("grassetto");
    for (const char *famiglia : {"Arial", "Times New Roman", "Courier New", "DejaVu Sans"}) {
        for (const int punti : {7, 11, 12}) {
            for (const bool grassetto : {false, true}) {
                QTest::addRow("%s %d%s", famiglia, punti, grassetto ? " bold" : "")
                    << QString::fromLatin1(famiglia) << punti << grassetto;
            }
        }
    }
}

void tst_TestoSuCarta::lunghezzaGiusta()
{
    QFETCH(QString, famiglia);
    QFETCH(int, punti);
    QFETCH(bool, grassetto);
    FoglioDiProva foglio;
    const QString testo = QStringLiteral("0123456789").repeated(6);
    Campo &campo = foglio.ConCampo(QStringLiteral("A"), testo, 10, 20, punti);
    campo.Font = famiglia;
    campo.Grassetto = grassetto ? Vero : Falso;
    const QRectF parola = foglio.Stampa().Parola1(testo);
    const double larghezza = LarghezzaDisegnata(testo, famiglia, punti, grassetto);
    QVERIFY2(Vicini(parola.width(), larghezza),
             qPrintable(QStringLiteral("%1 instead of %2").arg(parola.width()).arg(larghezza)));
}

void tst_TestoSuCarta::fontMancanteComeArial()
{
    const QString testo = QStringLiteral("SpettabileDitta");
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), testo, 10, 20).Font = QStringLiteral("Mai Esistito");
    foglio.ConCampo(QStringLiteral("B"), testo, 10, 40).Font = QStringLiteral("Serif");
    foglio.ConCampo(QStringLiteral("C"), testo, 10, 60);
    // The dialogs do not offer it either, though the system would set something for it.
    const QString taciuto = QStringLiteral("Times");
    if (QFontDatabase::hasFamily(taciuto)) {
        QSKIP("here it is a font like any other");
    }
    foglio.ConCampo(QStringLiteral("D"), testo, 10, 80).Font = taciuto;
    const LettorePdf pdf = foglio.Stampa();
    QCOMPARE(pdf.Caratteri().size(), 1); // one face for all four
    QCOMPARE(pdf.Parole().size(), 4);
    const double larghezza = LarghezzaDisegnata(testo, QStringLiteral("Arial"), 11, false);
    for (const auto &parola : pdf.Parole()) {
        QVERIFY(Vicini(parola.Millimetri.width(), larghezza));
    }
}

void tst_TestoSuCarta::grassetto()
{
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("chiaro"), 10, 10);
    foglio.ConCampo(QStringLiteral("B"), QStringLiteral("scuro"), 10, 20).Grassetto = Vero;
    const LettorePdf pdf = foglio.Stampa();
    const auto caratteri = pdf.Caratteri();
    for (const auto &carattere : caratteri) {
        QVERIFY(carattere.Incorporato);
    }
    QCOMPARE(caratteri.size(), 2);
    QCOMPARE(std::count_if(caratteri.begin(), caratteri.end(), Grassetto), 1);
}

void tst_TestoSuCarta::etichetta()
{
    FoglioDiProva foglio;
    Cornice &cornice = foglio.ConCornice({40, 60, 50, 20}, 0);
    cornice.Testo = QStringLiteral("Importo");
    cornice.ColoreTesto = 12;
    cornice.Dimensione = 14;
    cornice.Grassetto = Vero;
    const LettorePdf pdf = foglio.Stampa();
    const QRectF parola = pdf.Parola1(QStringLiteral("Importo"));
    QVERIFY2(Vicini(parola.left(), 41) && Vicini(parola.top(), 60.4), Testo(parola));
    QVERIFY(Vicini(parola.width(), LarghezzaDisegnata(cornice.Testo, cornice.Font, 14, true)));
    QVERIFY(pdf.Inchiostro(parola, [](QRgb c) { return c == qRgb(255, 0, 0); }).width() > 10);
    QCOMPARE(pdf.Caratteri().size(), 1);
    QVERIFY(Grassetto(pdf.Caratteri().first()));
}

void tst_TestoSuCarta::fontSconosciuto()
{
    FoglioDiProva foglio;
    foglio.ConCampo(QStringLiteral("A"), QStringLiteral("prova"), 10, 10).Font =
        QStringLiteral("Carattere Che Non Esiste");
    foglio.ConCampo(QStringLiteral("B"), QStringLiteral("prova2"), 10, 20).Font.clear();
    const LettorePdf pdf = foglio.Stampa();
    QVERIFY(pdf.Testi().contains(QStringLiteral("prova")));
    QVERIFY(pdf.Testi().contains(QStringLiteral("prova2")));
    for (const auto &carattere : pdf.Caratteri()) {
        QVERIFY2(ComeArial(carattere), qPrintable(carattere.Nome));
    }
}

void tst_TestoSuCarta::senzaFontODimensione_data()
{
    QTest::addColumn<QString>("font");
    QTest::addColumn<int>("dimensione");
    QTest::newRow("no font") << QString() << 8;
    QTest::newRow("size 0") << QStringLiteral("Arial") << 0;
    QTest::newRow("size -5") << QStringLiteral("Arial") << -5;
    QTest::newRow("neither") << QString() << 0;
}

void tst_TestoSuCarta::senzaFontODimensione()
{
    QFETCH(QString, font);
    QFETCH(int, dimensione);
    FoglioDiProva foglio;
    const QString testo = QStringLiteral("0123456789").repeated(4);
    foglio.ConCampo(QStringLiteral("A"), testo, 10, 10, dimensione).Font = font;
    const QString scritta = QStringLiteral("9876543210").repeated(4);
    Cornice &cornice = foglio.ConCornice({10, 30, 80, 10}, 0);
    cornice.Testo = scritta;
    cornice.Font = font;
    cornice.Dimensione = qint16(dimensione);
    const LettorePdf pdf = foglio.Stampa();
    // As wide as what measuring, and with it the preview, says.
    const double larghezza = MisuraTesto(testo, font, dimensione, false).width();
    QVERIFY(Vicini(larghezza, LarghezzaDisegnata(testo, QStringLiteral("Arial"), 8, false)));
    QVERIFY(Vicini(pdf.Parola1(testo).width(), larghezza));
    QVERIFY(Vicini(pdf.Parola1(scritta).width(), larghezza));
}

QTEST_MAIN(tst_TestoSuCarta)
#include "tst_TestoSuCarta.moc"

#include "FoglioDiProva.h"

#include <QTest>

#include <cmath>

namespace {

/// Middles of the ink runs along a straight line of the sheet, mm from its start.
QList<double> Tratti(const LettorePdf &pdf, const QPointF &inizio, bool orizzontale,
                     double lunghezza)
{
    const double passo = 25.4 / LettorePdf::PuntiPerPollice;
    QList<double> mezzi;
    double da = -1;
    for (double d = 0; d < lunghezza; d += passo) {
        const QPointF p = inizio + (orizzontale ? QPointF(d, 0) : QPointF(0, d));
        const bool inchiostro = (pdf.Colore(p.x(), p.y()) & 0xFFFFFF) != 0xFFFFFF;
        if (inchiostro && da < 0) {
            da = d;
        } else if (!inchiostro && da >= 0) {
            mezzi.append((da + d) / 2);
            da = -1;
        }
    }
    return mezzi;
}

} // namespace

class tst_Retino : public QObject
{
    Q_OBJECT

private slots:
    void foglio_data();
    void foglio();
    void area200Millimetri();
    void areaMinuscola();
};

void tst_Retino::foglio_data()
{
    QTest::addColumn<QSizeF>("misura");
    QTest::addColumn<QMarginsF>("margini");
    QTest::newRow("A4 without margins") << QSizeF(210, 297) << QMarginsF();
    QTest::newRow("200 mm wide") << QSizeF(210, 297) << QMarginsF(5, 5, 5, 5);
    QTest::newRow("a printer's usual margins") << QSizeF(210, 297) << QMarginsF(4.2, 4.9, 4.2, 4.9);
    QTest::newRow("A5 across") << QSizeF(210, 148) << QMarginsF(3, 3, 3, 3);
    QTest::newRow("bounds just short of whole centimetres") << QSizeF(194.68, 294.7) << QMarginsF();
    QTest::newRow("uneven area") << QSizeF(157.3, 203.8) << QMarginsF(1.4, 2.6, 3.1, 0.5);
}

void tst_Retino::foglio()
{
    QFETCH(QSizeF, misura);
    QFETCH(QMarginsF, margini);
    FoglioDiProva prova;
    prova.Misura = misura;
    prova.Margini = margini;
    const double w = misura.width() - margini.left() - margini.right();
    const double h = misura.height() - margini.top() - margini.bottom();
    const LettorePdf pdf = prova.Retino();
    QCOMPARE(pdf.Pagine(), 1);
    const QPointF origine(margini.left(), margini.top());

    // Both rulers, from the corner: every tick at its place and of its length.
    const auto righello = [&](bool orizzontale, double lunghezza) {
        const auto punto = [&](double lungo, double dentro) {
            return origine + (orizzontale ? QPointF(lungo, dentro) : QPointF(dentro, lungo));
        };
        // 1 mm inside, all ticks; 2.5 mm inside, those of the centimetres; between 12 and 15, none
        // but the grid's neighbours.
        const double fine = lunghezza - 3;
        QList<double> tutte = Tratti(pdf, punto(2, 1), orizzontale, fine - 2);
        QList<double> numerate = Tratti(pdf, punto(2, 2.6), orizzontale, fine - 2);
        QList<double> attese;
        QList<double> atteseNumerate;
        // Only the numbers at the top have a bound rounded to a whole millimetre.
        const double ultima = lunghezza - 5;
        const double ultimaNumerata = orizzontale ? std::nearbyint(ultima) : ultima;
        for (int v = 5; v <= std::max(ultima, ultimaNumerata); v += 5) {
            if (v <= (v % 10 == 0 ? ultimaNumerata : ultima)) {
                attese.append(v);
            }
            if (v % 10 == 0 && v <= ultimaNumerata) {
                atteseNumerate.append(v);
            }
        }
        QCOMPARE(tutte.size(), attese.size());
        QCOMPARE(numerate.size(), atteseNumerate.size());
        for (qsizetype i = 0; i < attese.size(); ++i) {
            QVERIFY2(Vicini(tutte[i] + 2, attese[i]), qPrintable(QString::number(tutte[i] + 2)));
        }
        for (qsizetype i = 0; i < atteseNumerate.size(); ++i) {
            QVERIFY(Vicini(numerate[i] + 2, atteseNumerate[i]));
        }
    };
    righello(true, w);
    righello(false, h);

    // Grid lines, looked at between two of the other direction.
    const auto griglia = [&](bool orizzontale, double lunghezza, double altra) {
        const QPointF inizio = origine + (orizzontale ? QPointF(15.5, 25) : QPointF(25, 15.5));
        const QList<double> linee = Tratti(pdf, inizio, orizzontale, lunghezza - 31);
        QList<double> attese;
        for (int v = 20; v <= lunghezza - 15; v += 10) {
            attese.append(v);
        }
        QCOMPARE(linee.size(), attese.size());
        for (qsizetype i = 0; i < attese.size(); ++i) {
            QVERIFY2(Vicini(linee[i] + 15.5, attese[i]), qPrintable(QString::number(linee[i])));
        }
        // From 15 mm inside to 15 mm inside.
        const QPointF lungo = origine + (orizzontale ? QPointF(20, 10.5) : QPointF(10.5, 20));
        const QRectF zona = orizzontale ? QRectF(lungo.x() - 0.5, lungo.y(), 1, altra - 21)
                                        : QRectF(lungo.x(), lungo.y() - 0.5, altra - 21, 1);
        const QRectF linea = pdf.Inchiostro(zona).translated(-origine);
        const double da = orizzontale ? linea.top() : linea.left();
        const double a = orizzontale ? linea.bottom() : linea.right();
        QVERIFY2(Vicini(da, 15) && Vicini(a, altra - 15), Testo(linea));
    };
    griglia(true, w, h);
    griglia(false, h, w);

    // The far edges stand 1 mm inside.
    const QRectF destra =
        pdf.Inchiostro(QRectF(origine + QPointF(w - 2, 12), QSizeF(1.8, 1))).translated(-origine);
    QVERIFY2(Vicini(destra.center().x(), w - 1), Testo(destra));
    const QRectF fondo =
        pdf.Inchiostro(QRectF(origine + QPointF(12, h - 2), QSizeF(1, 1.8))).translated(-origine);
    QVERIFY2(Vicini(fondo.center().y(), h - 1), Testo(fondo));

    // Numbers: 2 mm before their tick, beside its end, in 8-point Arial.
    const auto numero = [&](int v, const QPointF &posto) {
        const QString testo = QString::number(v);
        int trovati = 0;
        for (const auto &parola : pdf.Parole()) {
            const QRectF r = parola.Millimetri.translated(-origine);
            if (parola.Testo == testo && Vicini(r.left(), posto.x()) &&
                Vicini(r.top(), posto.y())) {
                ++trovati;
                // Digits of Arial are 0.556 em wide; 8 points are 2.822 mm.
                QVERIFY(Vicini(r.width(), testo.size() * 0.556 * 8 * 25.4 / 72));
            }
        }
        QCOMPARE(trovati, 1);
    };
    qsizetype numeri = 0;
    for (int x = 10; x <= std::nearbyint(w - 5); x += 10, ++numeri) {
        numero(x, QPointF(x - 2, 3));
    }
    for (int y = 10; y <= h - 5; y += 10, ++numeri) {
        numero(y, QPointF(3, y - 2));
    }
    QCOMPARE(pdf.Parole().size(), numeri);
    QCOMPARE(pdf.Caratteri().size(), 1);
}

void tst_Retino::area200Millimetri()
{
    FoglioDiProva prova;
    prova.Margini = {5, 5, 5, 5};
    const LettorePdf pdf = prova.Retino();
    const QStringList testi = pdf.Testi();
    QVERIFY(testi.contains(QStringLiteral("190")));
    QCOMPARE(testi.count(QStringLiteral("200")), 1); // only down the left edge
    const QList<double> tacche = Tratti(pdf, {7, 6}, true, 195);
    QVERIFY(Vicini(tacche.first() + 2, 5));
    QVERIFY(Vicini(tacche.last() + 2, 195));
    const QList<double> linee = Tratti(pdf, {20.5, 30}, true, 169);
    QVERIFY(Vicini(linee.first() + 15.5, 20) && Vicini(linee.last() + 15.5, 180));
}

void tst_Retino::areaMinuscola()
{
    FoglioDiProva prova;
    prova.Misura = {14, 9};
    QVERIFY(prova.Retino().Testi().isEmpty());
}

QTEST_MAIN(tst_Retino)
#include "tst_Retino.moc"

#include "preview/TestoScalato.h"

#include "base/Unita.h"
#include "grafica/Testo.h"
#include "preview/Tratti.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace {

constexpr int PixelRiferimento = 100;
constexpr double LarghezzaRiga = 1e7; // reference pixels; Qt's layout ends at 3.3e7
constexpr qsizetype GlifiPerPezzo = 64;
constexpr double PuntiMinimi = 1;
constexpr double PuntiMassimi = 3000;

double Scala(double punti)
{
    return TestoScalato::PuntiMostrabili(punti) * Unita::MillimetriPerPunto / PixelRiferimento;
}

} // namespace

double TestoScalato::PuntiMostrabili(double punti)
{
    return std::isnan(punti) ? PuntiMinimi : std::clamp(punti, PuntiMinimi, PuntiMassimi);
}

bool TestoScalato::Imposta(const Aspetto &aspetto, const QString &testo)
{
    if (composto_ && aspetto == aspetto_ && testo == testo_) {
        return false;
    }
    aspetto_ = aspetto;
    testo_ = testo;
    Compone();
    composto_ = true;
    return true;
}

void TestoScalato::Compone()
{
    const QFont font = CarattereDiTesto(aspetto_.famiglia, aspetto_.grassetto, PixelRiferimento);
    const QFontMetricsF misure(font);
    salita_ = misure.ascent();
    altezza_ = misure.ascent() + misure.descent();
    yBarra_ = salita_ - misure.strikeOutPos();

    QTextOption opzioni;
    opzioni.setWrapMode(QTextOption::NoWrap);
    QTextLayout impaginato(SuUnaRiga(testo_), font);
    impaginato.setTextOption(opzioni);
    impaginato.beginLayout();
    QTextLine riga = impaginato.createLine();
    larghezza_ = 0;
    pezzi_.clear();
    if (riga.isValid()) {
        riga.setLineWidth(LarghezzaRiga);
        riga.setPosition({0, 0});
        // Trailing blanks count: the control is as wide as what the printer advances over.
        larghezza_ = riga.horizontalAdvance();
    }
    impaginato.endLayout();
    if (riga.isValid()) {
        for (const QGlyphRun &sequenza : riga.glyphRuns()) {
            AggiungePezzi(sequenza);
        }
    }
}

void TestoScalato::AggiungePezzi(const QGlyphRun &sequenza)
{
    const QList<quint32> glifi = sequenza.glyphIndexes();
    const QList<QPointF> posti = sequenza.positions();
    for (qsizetype primo = 0; primo < glifi.size(); primo += GlifiPerPezzo) {
        const qsizetype quanti = std::min(GlifiPerPezzo, glifi.size() - primo);
        QGlyphRun parte = sequenza;
        parte.setGlyphIndexes(glifi.mid(primo, quanti));
        parte.setPositions(posti.mid(primo, quanti));
        const auto [minimo, massimo] =
            std::minmax_element(posti.begin() + primo, posti.begin() + primo + quanti,
                                [](QPointF a, QPointF b) { return a.x() < b.x(); });
        // A glyph can reach out of its own advance: two ems either side cover any of them.
        pezzi_.append(
            {parte, minimo->x() - 2 * PixelRiferimento, massimo->x() + 2 * PixelRiferimento});
    }
}

QSizeF TestoScalato::Misura(double punti) const
{
    return QSizeF(larghezza_, altezza_) * Scala(punti);
}

void TestoScalato::Disegna(QPainter &penna, QPointF angolo, double punti, const QColor &colore,
                           const QRectF &esposto) const
{
    const double scala = Scala(punti);
    const double da = (esposto.left() - angolo.x()) / scala;
    const double a = (esposto.right() - angolo.x()) / scala;
    penna.save();
    penna.translate(angolo);
    penna.scale(scala, scala);
    penna.setPen(colore);
    for (const Pezzo &pezzo : pezzi_) {
        if (pezzo.a >= da && pezzo.da <= a) {
            // The runs of a laid-out line already stand on its baseline.
            penna.drawGlyphRun({0, 0}, pezzo.glifi);
        }
    }
    if (aspetto_.barrato && larghezza_ > 0) {
        Tratti(penna).Orizzontale(yBarra_, 0, larghezza_, colore);
    }
    penna.restore();
}

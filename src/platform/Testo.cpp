#include "platform/Testo.h"

#include "base/Misure.h"

#include <QFontMetricsF>
#include <QStringList>

#include <algorithm>

QFont CarattereDiTesto(const QString &famiglia, bool grassetto, int pixel)
{
    QFont carattere;
    // As a list: a name is one family, whatever commas it has.
    carattere.setFamilies({famiglia.trimmed().isEmpty() ? QStringLiteral("Arial") : famiglia});
    carattere.setStyleHint(QFont::SansSerif);
    carattere.setPixelSize(pixel);
    carattere.setBold(grassetto);
    carattere.setHintingPreference(QFont::PreferNoHinting);
    return carattere;
}

double PuntiDiTesto(double punti)
{
    constexpr double PuntiNormali = 8;
    constexpr double PuntiMassimi = 1638;
    return punti > 0 ? std::min(punti, PuntiMassimi) : PuntiNormali; // also when it is no number
}

QSizeF MisuraTesto(const QString &testo, const QString &font, double punti, bool grassetto)
{
    // Measured at one large size and scaled down: what the font engine rounds to whole pixels
    // becomes too small to matter.
    constexpr int PixelDiRiferimento = 1000;
    const QFontMetricsF metrica(CarattereDiTesto(font, grassetto, PixelDiRiferimento));
    const double scala = PuntiDiTesto(punti) * Misure::MillimetriPerPunto / PixelDiRiferimento;
    return QSizeF(metrica.horizontalAdvance(testo), metrica.height()) * scala;
}

QString SuUnaRiga(const QString &testo)
{
    constexpr qsizetype CaratteriMassimi = 5000;
    QString riga = testo.left(CaratteriMassimi);
    for (QChar &carattere : riga) {
        if (carattere.category() == QChar::Other_Control ||
            carattere == QChar(QChar::LineSeparator) ||
            carattere == QChar(QChar::ParagraphSeparator)) {
            carattere = u' ';
        }
    }
    return riga;
}

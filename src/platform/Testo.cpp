#include "platform/Testo.h"

#include <QFont>
#include <QFontMetricsF>

QSizeF MisuraTesto(const QString &testo, const QString &font, double punti, bool grassetto)
{
    if (!(punti > 0)) {
        return {0, 0};
    }
    // Measured at one large size and scaled down: what the font engine rounds to whole pixels
    // becomes too small to matter.
    constexpr int PixelDiRiferimento = 1000;
    constexpr double MillimetriPerPunto = 25.4 / 72;
    QFont carattere(font);
    carattere.setPixelSize(PixelDiRiferimento);
    carattere.setBold(grassetto);
    carattere.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF metrica(carattere);
    const double scala = punti * MillimetriPerPunto / PixelDiRiferimento;
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

#include "finestre/Suggerimenti.h"

#include <QStringList>
#include <QTextDocument>

namespace {

/// A hint is as wide as its longest line and a window cannot be wider than any screen.
constexpr qsizetype CaratteriPerRiga = 200;

} // namespace

QString PerSuggerimento(const QString &testo)
{
    QStringList righe = testo.split(u'\r');
    for (QString &riga : righe) {
        if (riga.size() > CaratteriPerRiga) {
            riga = riga.left(CaratteriPerRiga) + QChar(0x2026);
        }
    }
    const QString semplice = righe.join(u'\n');
    return Qt::mightBeRichText(semplice) ? Qt::convertFromPlainText(semplice, Qt::WhiteSpacePre)
                                         : semplice;
}

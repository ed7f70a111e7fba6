#include "catalogue/TabellaFont.h"

#include "finestre/Messaggi.h"
#include "print/Stampanti.h"

void RiempieElencoFont(QWidget *padre, const QStringList &font, QStringList &elenco)
{
    elenco = font.mid(0, Stampanti::FontAlMassimo);
    if (font.size() > Stampanti::FontAlMassimo) {
        Messaggi::Mostra(padre, QStringLiteral("troppi fonts installati"));
    }
}

#include "finestre/ApriManuale.h"

#include "finestre/Messaggi.h"
#include "sistema/Impostazioni.h"
#include "sistema/Percorsi.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

namespace {

constexpr QLatin1String CartellaFamiglia("c:\\K19");

/// cartella, sotto and nome joined by the separator that the folder's own path uses.
QString Unisce(const QString &cartella, QLatin1String sotto, const QString &nome)
{
    const bool diWindows = cartella.contains(u'\\') && !cartella.contains(u'/');
    const QString barra = diWindows ? QStringLiteral("\\") : Percorsi::Separatore();
    return cartella + barra + sotto + barra + nome;
}

} // namespace

QString CartellaProgramma()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
}

void ApriManuale(const QString &chiave, const QString &cartellaProgramma, const Apritore &apre)
{
    const QString inizio = cartellaProgramma.left(CartellaFamiglia.size());
    if (inizio.toUpper() != QString(CartellaFamiglia).toUpper()) {
        apre(Unisce(cartellaProgramma, QLatin1String("XtHelpPdf"), chiave + QLatin1String(".pdf")));
        return;
    }
    const QString vastrel = Impostazioni::CartellaVastrel();
    const bool word = Messaggi::Domanda(QApplication::activeWindow(), QStringLiteral("apro Word"),
                                        Messaggi::Risposta::Si);
    apre(word ? Unisce(vastrel, QLatin1String("XtHelpWord"), chiave + QLatin1String(".doc"))
              : Unisce(vastrel, QLatin1String("XtHelpPdf"), chiave + QLatin1String(".pdf")));
}

void ApriGuida(int argomento, const ApritoreArgomento &apreArgomento, const Apritore &apre)
{
    const QString vastrel = Impostazioni::CartellaVastrel();
    const QString guida = vastrel.isEmpty()
                              ? QString()
                              : Percorsi::Risolve(Unisce(vastrel, QLatin1String("ManualeVastrel"),
                                                         QStringLiteral("Vastrel.hlp")));
    if (argomento != 0 && QFileInfo(guida).isFile()) {
        apreArgomento(guida, argomento);
    } else {
        ApriManuale(ChiaveManuale, CartellaProgramma(), apre);
    }
}

#include "editor/DomandeSulModello.h"

#include "documento/StatoProgramma.h"
#include "finestre/Messaggi.h"

#include <QLocale>
#include <QWidget>

QWidget *DomandeSulModello::Padre() const
{
    return editor_.isVisible() ? &editor_ : nullptr;
}

void DomandeSulModello::Avvisa(const QString &testo)
{
    Messaggi::Mostra(Padre(), testo);
}

ModelloSuFile::Interlocutore::Risposta
DomandeSulModello::RiprendeLavoro(const CopiaRecupero::Trovata &lavoro)
{
    QString domanda =
        QStringLiteral("Il modello %1 ha modifiche non salvate del %2, rimaste da una chiusura "
                       "imprevista.\nVuoi riprenderle?")
            .arg(stato_.NomeFile,
                 QLocale(QLocale::Italian).toString(lavoro.scritta, QLocale::ShortFormat));
    if (lavoro.fileCambiato) {
        domanda += QStringLiteral("\n\nAttenzione: da allora il file è cambiato; riprendendo "
                                  "queste modifiche e salvando, i cambiamenti andranno persi.");
    }
    if (lavoro.interrotta) {
        domanda += QStringLiteral("\n\nAttenzione: un salvataggio è stato interrotto e il file è "
                                  "rimasto incompleto.");
    }
    const auto predefinita = lavoro.fileCambiato ? Messaggi::Scelta::No : Messaggi::Scelta::Si;
    switch (Messaggi::DomandaAnnullabile(Padre(), domanda, predefinita)) {
    case Messaggi::Scelta::Si:
        return Risposta::Si;
    case Messaggi::Scelta::No:
        return Risposta::No;
    case Messaggi::Scelta::Annulla:
        break;
    }
    return Risposta::Annulla;
}

bool DomandeSulModello::SostituisceFileCambiato()
{
    return Messaggi::Domanda(Padre(),
                             QStringLiteral("Il file %1 è stato cambiato da un altro programma "
                                            "dopo l'apertura.\nLO VUOI SOSTITUIRE?")
                                 .arg(stato_.NomeFile),
                             Messaggi::Risposta::No);
}

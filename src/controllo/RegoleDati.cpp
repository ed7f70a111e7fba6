// What is wrong with an element by itself, wherever it stands.

#include "controllo/Regole.h"

#include "grafica/Testo.h"
#include "model/MaschereStampa.h"
#include "model/Numeri.h"

#include <QHash>

#include <algorithm>

namespace {

/// Digits behind the decimal separator of a text as it is printed.
qsizetype Decimali(const QString &testo)
{
    const qsizetype virgola = testo.indexOf(u',');
    return virgola < 0 ? 0 : std::count_if(testo.begin() + virgola, testo.end(), [](QChar c) {
        return c.isDigit();
    });
}

/// Digits before it.
qsizetype Intere(const QString &testo)
{
    const QString intero = testo.section(u',', 0, 0);
    return std::count_if(intero.begin(), intero.end(), [](QChar c) { return c.isDigit(); });
}

/// Why the test text is none that the mask would give; empty where it may be one.
QString Discordanza(const QString &maschera, const QString &testo)
{
    if (testo.size() > maschera.size()) {
        return QStringLiteral("il testo di prova ha più caratteri (%1) della maschera (%2)")
            .arg(testo.size())
            .arg(maschera.size());
    }
    if (!MaschereStampa::Numerica(maschera)) {
        return {};
    }
    if (std::any_of(testo.begin(), testo.end(), [](QChar c) { return c.isLetter(); })) {
        return QStringLiteral("il testo di prova contiene lettere mentre la maschera è numerica");
    }
    // The last place of a mask is one more than it prints.
    const QString forma = MaschereStampa::Forma(maschera);
    const qsizetype intereStampate = forma.section(u',', 0, 0).count(u'#');
    if (Intere(testo) > intereStampate) {
        return QStringLiteral("il testo di prova ha più cifre intere (%1) di quante ne stampa la "
                              "maschera (%2)")
            .arg(Intere(testo))
            .arg(intereStampate);
    }
    const qsizetype stampati = forma.section(u',', 1).count(u'#');
    const qsizetype provati = Decimali(testo);
    return provati <= stampati
               ? QString()
               : QStringLiteral(
                     "il testo di prova ha più decimali (%1) di quanti ne stampa la maschera"
                     " (%2)")
                     .arg(provati)
                     .arg(stampati);
}

bool AreaInUso(const Esame &esame)
{
    const ParametriRighe &righe = esame.Aperto().Righe;
    const QList<Chiave> campi = esame.Presenti(Genere::Campo);
    return righe.yInizio != righe.yFine ||
           std::any_of(campi.begin(), campi.end(), [&](Chiave chiave) {
               return CampoDiRiga(esame.Aperto().Campi[chiave.indice]);
           });
}

void GiudicaFont(Esame &esame, const TestoSulFoglio &testo)
{
    const QString font = SuUnaRiga(testo.Aspetto.Font);
    if (font.isEmpty()) {
        esame.Aggiunge(SpecieRilievo::FontMancante, testo.Di,
                       QStringLiteral("il testo non ha un font e sulla carta esce in Arial: "
                                      "sceglierne uno."));
    } else if (!esame.Stanti().HaFont(testo.Aspetto.Font)) {
        esame.Aggiunge(
            SpecieRilievo::FontMancante, testo.Di,
            QStringLiteral("il font \"%1\" manca su questo computer e sulla carta il testo "
                           "esce in Arial, con altre larghezze: scegliere un font dell'elenco "
                           "o installare questo.")
                .arg(font));
    }
}

} // namespace

void Regole::FontMancanti(Esame &esame)
{
    for (const auto *testi : {&esame.Testi(), &esame.Vuoti()}) {
        for (const TestoSulFoglio &testo : *testi) {
            GiudicaFont(esame, testo);
        }
    }
}

void Regole::CaratteriMancanti(Esame &esame)
{
    for (const TestoSulFoglio &testo : esame.Testi()) {
        const QString mancanti = esame.Stanti().CaratteriMancanti(testo.Aspetto);
        if (!mancanti.isEmpty()) {
            esame.Aggiunge(SpecieRilievo::CaratteriMancanti, testo.Di,
                           QStringLiteral("il font \"%1\" non ha %2 e sulla carta al suo posto "
                                          "esce un segno di un altro font o un quadratino: "
                                          "cambiare il testo o il font.")
                               .arg(SuUnaRiga(testo.Aspetto.Font), mancanti));
        }
    }
}

void Regole::FileDelleImmagini(Esame &esame)
{
    for (const Chiave &chiave : esame.Presenti(Genere::Immagine)) {
        const StatoFile stato = esame.Stanti().Immagine(esame.Aperto().Di(chiave).Nome);
        if (stato == StatoFile::Mancante) {
            esame.Aggiunge(SpecieRilievo::FileImmagine, chiave,
                           QStringLiteral("il file manca dalla cartella dei modelli e sulla carta "
                                          "il posto resta vuoto: rimetterlo nella cartella o "
                                          "scegliere un'altra immagine."));
        } else if (stato == StatoFile::Cartella) {
            esame.Aggiunge(SpecieRilievo::FileImmagine, chiave,
                           QStringLiteral("è una cartella, non un file, e sulla carta il posto "
                                          "resta vuoto: scegliere un'immagine."));
        } else if (stato == StatoFile::Illeggibile) {
            esame.Aggiunge(SpecieRilievo::FileImmagine, chiave,
                           QStringLiteral("il file non si può leggere come immagine e sulla carta "
                                          "il posto resta vuoto: sostituirlo con una copia buona, "
                                          "BMP, GIF o JPEG."));
        }
    }
}

void Regole::NomiDoppi(Esame &esame)
{
    QHash<QString, Chiave> visti;
    for (const Chiave &chiave : esame.Presenti(Genere::Campo)) {
        const QString nome = esame.Aperto().Di(chiave).Nome.toCaseFolded();
        const auto primo = visti.constFind(nome);
        if (primo == visti.constEnd()) {
            visti.insert(nome, chiave);
            continue;
        }
        esame.Aggiunge(
            SpecieRilievo::NomeDoppio, chiave,
            QStringLiteral("si chiama come un altro campo, %1 (le maiuscole non contano), e sulla "
                           "carta Vastrel ne riempie uno solo: rinominarlo o eliminarlo.")
                .arg(SuUnaRiga(esame.Aperto().Di(*primo).Nome)));
    }
}

void Regole::MaschereETesti(Esame &esame)
{
    for (const Chiave &chiave : esame.Presenti(Genere::Campo)) {
        const Campo &campo = esame.Aperto().Campi[chiave.indice];
        const QString discordanza =
            campo.NonStampato() ? QString() : Discordanza(campo.Maschera, campo.Testo);
        if (!discordanza.isEmpty()) {
            esame.Aggiunge(
                SpecieRilievo::MascheraETesto, chiave,
                discordanza +
                    QStringLiteral(
                        ", e il dato vero sulla carta esce diverso dalla prova: correggere il "
                        "testo o la maschera."));
        }
    }
}

void Regole::CampiFuoriRiga(Esame &esame)
{
    for (const auto &[slot, y] : esame.Stanti().FuoriRiga) {
        const Chiave chiave{Genere::Campo, slot};
        if (slot > esame.Aperto().UltimoSlot(Genere::Campo) ||
            !esame.Aperto().Presente(Genere::Campo, slot) ||
            !CampoDiRiga(esame.Aperto().Campi[slot]) || esame.Aperto().Campi[slot].NonStampato()) {
            continue;
        }
        esame.Aggiunge(SpecieRilievo::CampoFuoriRiga, chiave,
                       QStringLiteral("nel file sta a Y %1 mm mentre le righe cominciano a %2 mm, "
                                      "e Vastrel lo stampa fuori dalla sua riga: salvare il "
                                      "modello, che lo riporta all'inizio delle righe.")
                           .arg(Numeri::Decimi(y), Numeri::Decimi(esame.Aperto().Righe.yInizio)));
    }
}

void Regole::AreaRighe(Esame &esame)
{
    const ParametriRighe &righe = esame.Aperto().Righe;
    if (!AreaInUso(esame)) {
        return;
    }
    if (righe.yFine <= righe.yInizio) {
        esame.Aggiunge(SpecieRilievo::RigheCapovolte, Rilievo::Luogo::Righe,
                       QStringLiteral("la fine delle righe (%1 mm) non sta sotto l'inizio (%2 mm) "
                                      "e sulla carta le righe non trovano posto: correggere la "
                                      "pagina \"Posizione righe\".")
                           .arg(Numeri::Decimi(righe.yFine), Numeri::Decimi(righe.yInizio)));
    }
    if (!(righe.Interlinea > 0)) {
        esame.Aggiunge(SpecieRilievo::InterlineaNulla, Rilievo::Luogo::Righe,
                       QStringLiteral("l'interlinea è di %1 mm e sulla carta le righe non scendono "
                                      "una sotto l'altra: scriverne una maggiore di zero nella "
                                      "pagina \"Posizione righe\".")
                           .arg(Numeri::Decimi(righe.Interlinea)));
    }
    if (!(righe.InterlineaDescr > 0)) {
        esame.Aggiunge(SpecieRilievo::InterlineaNulla, Rilievo::Luogo::Righe,
                       QStringLiteral("l'interlinea nelle descrizioni multilinea è di %1 mm e "
                                      "sulla carta le righe di una descrizione lunga non scendono "
                                      "una sotto l'altra: scriverne una maggiore di zero nella "
                                      "pagina \"Posizione righe\".")
                           .arg(Numeri::Decimi(righe.InterlineaDescr)));
    }
}

void Regole::ScansioneMancante(Esame &esame)
{
    const ImmagineSfondo &sfondo = esame.Aperto().Sfondo;
    const StatoFile stato =
        sfondo.File.isEmpty() ? StatoFile::Buono : esame.Stanti().Scansione(sfondo);
    if (stato != StatoFile::Buono) {
        esame.Aggiunge(SpecieRilievo::Scansione, Rilievo::Luogo::Sfondo,
                       QStringLiteral("%1; sulla carta non cambia nulla, ma "
                                      "l'anteprima resta senza il modulo: sceglierlo di nuovo "
                                      "nella pagina \"Immagine sfondo\" o cancellarne il nome.")
                           .arg((stato == StatoFile::Cartella
                                     ? QStringLiteral("%1 è una cartella, non un file")
                                     : QStringLiteral("il file %1 manca"))
                                    .arg(SuUnaRiga(sfondo.File))));
    }
}

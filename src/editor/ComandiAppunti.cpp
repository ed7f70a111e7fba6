#include "editor/ComandiAppunti.h"

#include "documento/Passo.h"
#include "documento/StatoProgramma.h"
#include "editor/ImmaginiIncollate.h"
#include "finestre/Comandi.h"
#include "finestre/Finestre.h"
#include "finestre/Guardia.h"
#include "finestre/Messaggi.h"
#include "grafica/Testo.h"
#include "model/FoglioCarta.h"
#include "preview/Frm1.h"
#include "preview/MisuraSuCarta.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

namespace {

constexpr double Scarto = 5; // mm, between one paste and the next

const Incolla::Parole &DiIncolla()
{
    static const Incolla::Parole parole{QStringLiteral("incolla"), QStringLiteral("incollare"),
                                        QStringLiteral("gli appunti ne hanno")};
    return parole;
}

const Incolla::Parole &DiDuplica()
{
    static const Incolla::Parole parole{QStringLiteral("duplica"), QStringLiteral("duplicare"),
                                        QStringLiteral("quelli da duplicare sono")};
    return parole;
}

QString NomeBreve(const QString &nome)
{
    constexpr qsizetype NomeLeggibile = 60;
    return SuUnaRiga(nome.left(NomeLeggibile));
}

/// The elements for the strip: a single one by its name.
QString Quali(const Modello &modello, const QList<Chiave> &chiavi)
{
    return chiavi.size() == 1 ? NomeBreve(modello.Di(chiavi.constFirst()).Nome)
                              : QStringLiteral("%1 elementi").arg(chiavi.size());
}

QString NotaSuiNomi(const QStringList &rinominati)
{
    constexpr qsizetype NomiDetti = 3;
    QStringList detti;
    for (const QString &nome : rinominati.first(qMin(rinominati.size(), NomiDetti))) {
        detti.append(NomeBreve(nome));
    }
    const QString altri = rinominati.size() > NomiDetti ? QStringLiteral("...") : QString();
    return (rinominati.size() == 1 ? QStringLiteral("nome già usato, diventa %1")
                                   : QStringLiteral("nomi già usati, diventano %1"))
               .arg(detti.join(QStringLiteral(", ")) + altri) +
           QStringLiteral(": Vastrel stampa i campi solo con il loro nome esatto");
}

/// One line of all, which begins with a capital.
QString Frase(const QStringList &note)
{
    QString frase = note.join(QStringLiteral("; "));
    if (!frase.isEmpty()) {
        frase[0] = frase[0].toUpper();
    }
    return frase;
}

} // namespace

ComandiAppunti::ComandiAppunti(StatoProgramma &stato, QWidget &editor, Frm1 &anteprima)
    : stato_(stato)
    , editor_(editor)
    , anteprima_(anteprima)
{
    Crea(QStringLiteral("Copia"), QStringLiteral("Copia"), QKeySequence(Qt::CTRL | Qt::Key_C),
         &ComandiAppunti::Copia);
    Crea(QStringLiteral("Taglia"), QStringLiteral("Taglia"), QKeySequence(Qt::CTRL | Qt::Key_X),
         &ComandiAppunti::Taglia);
    Crea(QStringLiteral("Duplica"), QStringLiteral("Duplica"), QKeySequence(Qt::CTRL | Qt::Key_D),
         &ComandiAppunti::Duplica);
    deiScelti_ = comandi_;
    Crea(QStringLiteral("Incolla"), QStringLiteral("Incolla"), QKeySequence(Qt::CTRL | Qt::Key_V),
         &ComandiAppunti::IncollaSpostato);
    Crea(QStringLiteral("IncollaSulPosto"), QStringLiteral("Incolla nello stesso posto"),
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V), &ComandiAppunti::IncollaSulPosto);
    AggiungeFinestra(editor_);
    AggiungeFinestra(anteprima_);
    connect(&stato_.selezione, &Selezione::SceltiCambiati, this, &ComandiAppunti::Abilita);
    Abilita();
}

void ComandiAppunti::AggiungeFinestra(QWidget &finestra)
{
    finestra.addActions(comandi_);
}

void ComandiAppunti::Crea(const QString &nome, const QString &testo, const QKeySequence &tasti,
                          Comando comando)
{
    QAction *azione = CreaComando(this, nome, testo, {tasti});
    azione->setAutoRepeat(false);
    Collega(azione, &QAction::triggered, &editor_, [this, comando] {
        if (!Occupato()) {
            (this->*comando)();
        }
    });
    comandi_.append(azione);
}

void ComandiAppunti::Abilita()
{
    for (QAction *azione : std::as_const(deiScelti_)) {
        azione->setEnabled(!stato_.selezione.Scelti().isEmpty());
    }
}

bool ComandiAppunti::Occupato() const
{
    return stato_.documento.ModificaInCorso() || QApplication::activeModalWidget() != nullptr ||
           QApplication::mouseButtons() != Qt::NoButton;
}

ElementiCopiati ComandiAppunti::CopiatiDagliScelti() const
{
    return ElementiCopiati::Da(stato_.Aperto(), stato_.selezione.Scelti(), stato_.CartellaModelli);
}

bool ComandiAppunti::CopiaNegliAppunti()
{
    const ElementiCopiati elementi = CopiatiDagliScelti();
    if (elementi.Ordine.isEmpty()) {
        anteprima_.Avverte(QStringLiteral("Un'immagine senza file non si può copiare"));
        return false;
    }
    QApplication::clipboard()->setMimeData(Appunti::Compone(elementi).release());
    incollati_.clear();
    anteprima_.Avverte(QStringLiteral("Negli appunti: ") +
                       Quali(elementi.Elementi, elementi.Ordine));
    return true;
}

void ComandiAppunti::Copia()
{
    CopiaNegliAppunti();
}

void ComandiAppunti::Taglia()
{
    if (!CopiaNegliAppunti()) {
        return;
    }
    QList<Chiave> tagliati = stato_.selezione.Scelti();
    tagliati.removeIf([this](Chiave chiave) {
        return !stato_.Aperto().Presente(chiave.genere, chiave.indice); // not in the clipboard
    });
    Passo passo(stato_.documento,
                QStringLiteral("taglia ") + stato_.documento.Denominazione(tagliati));
    for (const Chiave &chiave : std::as_const(tagliati)) {
        passo.Elimina(chiave);
    }
}

void ComandiAppunti::Duplica()
{
    ElementiCopiati elementi = CopiatiDagliScelti();
    const qsizetype tutti = stato_.selezione.Scelti().size();
    elementi.Ordine.removeIf([](Chiave chiave) { return chiave.genere == Genere::Immagine; });
    QStringList note;
    if (elementi.Ordine.size() < tutti) {
        note.append(QStringLiteral("le immagini non si duplicano: un file si può usare una volta "
                                   "sola"));
    }
    if (CiSta(elementi, DiDuplica())) {
        Aggiunge(elementi, DiDuplica(), Scarto, false, note);
    }
}

void ComandiAppunti::IncollaAppunti(bool sulPosto)
{
    const QMimeData *contenuto = QApplication::clipboard()->mimeData();
    std::optional<ElementiCopiati> elementi = Appunti::Legge(contenuto);
    if (!elementi) {
        anteprima_.Avverte(QStringLiteral("Gli appunti non contengono elementi di Plakera"));
        return;
    }
    const QByteArray adesso =
        contenuto->data(Appunti::TipoElementi) + contenuto->data(Appunti::TipoOrigine);
    if (adesso != incollati_) {
        incollati_ = adesso;
        volte_ = 0;
    }
    ImmaginiIncollate immagini(*elementi, stato_.Aperto(), stato_.CartellaModelli);
    immagini.Sceglie();
    if (!CiSta(*elementi, DiIncolla())) {
        return;
    }
    immagini.Chiede(
        [this](const QString &nome, const QString &nuovo) { return PuoCopiare(nome, nuovo); });
    {
        const PuntatoreOccupato occupato;
        immagini.Copia();
    }
    const double scarto = sulPosto ? 0 : Scarto * (volte_ + 1);
    if (Aggiunge(*elementi, DiIncolla(), scarto, sulPosto, immagini.Note()) && !sulPosto) {
        ++volte_;
    }
}

bool ComandiAppunti::CiSta(const ElementiCopiati &elementi, const Incolla::Parole &parole)
{
    const QString perche = Incolla::SenzaPosto(stato_.Aperto(), elementi, parole);
    if (!perche.isEmpty()) {
        Messaggi::Mostra(Padre(), perche);
    }
    return perche.isEmpty();
}

bool ComandiAppunti::Aggiunge(const ElementiCopiati &elementi, const Incolla::Parole &parole,
                              double scarto, bool sulPosto, QStringList note)
{
    constexpr QSizeF Foglio(FoglioCarta::Larghezza, FoglioCarta::Altezza);
    const Incolla::Esito esito =
        elementi.Ordine.isEmpty() ? Incolla::Esito{}
                                  : Incolla::Aggiunge(stato_.documento, elementi, parole,
                                                      {scarto, sulPosto, Foglio, &MisuraSuCarta});
    if (!esito.rinominati.isEmpty()) {
        note.append(NotaSuiNomi(esito.rinominati));
    }
    if (!esito.nuovi.isEmpty()) {
        // The last: on a narrow strip the end is what is left out.
        note.append(QStringLiteral("nel modello: ") + Quali(stato_.Aperto(), esito.nuovi));
        stato_.selezione.ImpostaScelti(esito.nuovi);
        anteprima_.ImpilaPerArea();
        anteprima_.PortaInVista(esito.nuovi.constFirst());
    }
    anteprima_.Avverte(Frase(note));
    return !esito.nuovi.isEmpty();
}

bool ComandiAppunti::PuoCopiare(const QString &nome, const QString &nuovo)
{
    return Messaggi::Domanda(Padre(),
                             QStringLiteral("La cartella del modello ha già un altro file con il "
                                            "nome %1.\nCOPIO L'IMMAGINE COME %2 ?")
                                 .arg(nome, nuovo),
                             Messaggi::Risposta::No);
}

QWidget *ComandiAppunti::Padre() const
{
    return anteprima_.isActiveWindow() ? static_cast<QWidget *>(&anteprima_) : &editor_;
}

#include "documento/Documento.h"

#include "documento/Passo.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>
#include <QUndoStack>

#include <utility>

namespace {

constexpr int UnioneVietata = -1; // the history's own word for a step that joins none
constexpr int UnionePossibile = 1;

std::map<int, double> CampiFuoriRiga(const Modello &modello)
{
    std::map<int, double> fuori;
    for (int i = 1; i <= modello.UltimoSlot(Genere::Campo); ++i) {
        const Campo &campo = modello.Campi[i];
        if (CampoDiRiga(campo) && campo.Y != modello.Righe.yInizio) {
            fuori.emplace(i, campo.Y);
        }
    }
    return fuori;
}

} // namespace

/// A step of the history. It holds the other side of its change and swaps it with the document's.
class Documento::Fatto : public QUndoCommand
{
public:
    Fatto(Documento &documento, Differenza differenza, const QString &testo, QString unione,
          int entroMillisecondi)
        : QUndoCommand(testo)
        , documento_(documento)
        , differenza_(std::move(differenza))
        , unione_(std::move(unione))
        , entroMillisecondi_(entroMillisecondi)
        , unioni_(documento.unioni_)
        , numero_(++documento.passi_)
    {
        eta_.start();
    }

    int Numero() const { return numero_; }

    void undo() override { documento_.Percorre(differenza_); }

    void redo() override
    {
        if (std::exchange(nuovo_, false)) {
            return; // the change has been made already
        }
        documento_.Percorre(differenza_);
    }

    int id() const override { return unione_.isEmpty() ? UnioneVietata : UnionePossibile; }

    bool mergeWith(const QUndoCommand *altro) override
    {
        // A step is handed over when the history takes it, and thrown away once it has joined.
        auto *dopo = const_cast<Fatto *>(static_cast<const Fatto *>(altro));
        if (dopo->unione_ != unione_ || dopo->unioni_ != unioni_ ||
            (entroMillisecondi_ > 0 && eta_.elapsed() > entroMillisecondi_)) {
            return false;
        }
        differenza_.Unisce(std::move(dopo->differenza_));
        eta_.start();
        // Typed and taken back by hand: there is nothing left to undo.
        setObsolete(differenza_.Uguale(documento_.stato_));
        return true;
    }

private:
    Documento &documento_;
    Differenza differenza_;
    QString unione_;
    int entroMillisecondi_;
    int unioni_;
    int numero_;
    QElapsedTimer eta_;
    bool nuovo_ = true;
};

Documento::Documento()
    : storia_(std::make_unique<QUndoStack>())
{
    storia_->setUndoLimit(PassiTenuti);
    connect(storia_.get(), &QUndoStack::indexChanged, this, &Documento::StoriaCambiata);
}

Documento::~Documento() = default;

QString Documento::Denominazione(Chiave chiave) const
{
    const QString &nome = Aperto().Di(chiave).Nome;
    if (!nome.isEmpty()) {
        return nome;
    }
    return !Voce(chiave).isEmpty()
               ? Voce(chiave)
               : QString(NomeDi(chiave.genere)).toLower() + u' ' + QString::number(chiave.indice);
}

QString Documento::Denominazione(const QList<Chiave> &chiavi) const
{
    return chiavi.size() == 1 ? Denominazione(chiavi.constFirst())
                              : QStringLiteral("%1 elementi").arg(chiavi.size());
}

bool Documento::InVista(Chiave chiave) const
{
    // An image gets its name with its picture; in a file a blank name means an absent element.
    const bool nuovo = chiave.indice > ultimiAllApertura_.at(Posto(chiave.genere));
    return chiave.indice <= Aperto().UltimoSlot(chiave.genere) &&
           (Aperto().Presente(chiave.genere, chiave.indice) || (nuovo && !Eliminato(chiave)));
}

void Documento::Prende(Modello modello, bool variato)
{
    DimenticaStoria();
    stato_ = {};
    stato_.modello = std::move(modello);
    fuoriRiga_ = CampiFuoriRiga(Aperto());
    stato_.modello.ArrotondaTutti();
    tocchi_ = {};
    tocchi_.Tipo = tocchi_.Righe = tocchi_.Sfondo = true;
    for (const Genere genere : Generi) {
        ultimiAllApertura_.at(Posto(genere)) = Aperto().UltimoSlot(genere);
        for (int i = 1; i <= Aperto().UltimoSlot(genere); ++i) {
            stato_.Voce({genere, i}) = Aperto().Nome(genere, i);
            tocchi_.Aggiunge({genere, i});
        }
    }
    ImpostaVariato(variato);
    Avvisa(Cambiamento::Origine::Apertura);
}

void Documento::ImpostaVariato(bool variato)
{
    if (variato_ != variato) {
        variato_ = variato;
        emit VariatoCambiato();
    }
}

void Documento::SegnaVariato()
{
    ImpostaVariato(true);
}

void Documento::Salvato()
{
    ImpostaVariato(false);
    // Steps after a save join none before it: undoing must be able to stop at what was saved.
    ChiudeUnione();
    storia_->setClean();
    if (!std::exchange(fuoriRiga_, {}).empty()) {
        emit RigheRaddrizzate();
    }
}

void Documento::DimenticaStoria()
{
    storia_->clear();
}

bool Documento::PuoAnnullare() const
{
    return !ModificaInCorso() && storia_->canUndo();
}

bool Documento::PuoRipristinare() const
{
    return !ModificaInCorso() && storia_->canRedo();
}

QString Documento::TestoAnnulla() const
{
    return storia_->undoText();
}

QString Documento::TestoRipristina() const
{
    return storia_->redoText();
}

int Documento::NumeroDelPasso(int indice) const
{
    const auto *passo = static_cast<const Fatto *>(storia_->command(indice));
    return passo == nullptr ? 0 : passo->Numero();
}

int Documento::UltimoPasso() const
{
    return NumeroDelPasso(storia_->index() - 1);
}

void Documento::Annulla()
{
    if (PuoAnnullare()) {
        const int numero = UltimoPasso();
        ChiudeUnione();
        storia_->undo();
        Conclude();
        emit PassoPercorso(numero, true);
    }
}

void Documento::Ripristina()
{
    if (PuoRipristinare()) {
        ChiudeUnione();
        storia_->redo();
        Conclude();
        emit PassoPercorso(UltimoPasso(), false);
    }
}

void Documento::ChiudeUnione()
{
    ++unioni_;
    Conclude();
}

void Documento::Colloca(Chiave chiave)
{
    if (aperto_ != nullptr || percorre_) {
        // In the middle of a gesture the coordinates are the mouse's; what undo and redo bring back
        // is what was there, though they select it.
        return;
    }
    if (stato_.modello.Arrotonda(chiave.genere, chiave.indice)) {
        tocchi_.Aggiunge(chiave);
        Avvisa(Cambiamento::Origine::Comando);
    }
}

void Documento::Avvisa(Cambiamento::Origine origine)
{
    if (tocchi_.Vuoto()) {
        return;
    }
    // Who follows may select, and so place, an element: that is told by itself.
    Cambiamento cambiamento = std::exchange(tocchi_, {});
    cambiamento.origine = origine;
    emit Cambiato(cambiamento);
}

void Documento::Conclude()
{
    if (std::exchange(daConcludere_, false)) {
        emit ModificaConclusa();
    }
}

bool Documento::Registra(const StatoDocumento &prima, const QString &testo, const QString &unione,
                         int entroMillisecondi)
{
    Differenza differenza(prima, stato_);
    if (differenza.Vuota()) {
        return false;
    }
    storia_->push(new Fatto(*this, std::move(differenza), testo, unione, entroMillisecondi));
    emit StoriaCambiata(); // a step that joins another does not move the history's index
    return true;
}

void Documento::Percorre(Differenza &differenza)
{
    differenza.Scambia(stato_);
    differenza.Segnala(tocchi_);
    ImpostaVariato(true);
    daConcludere_ = true;
    const QScopedValueRollback<bool> percorre(percorre_, true);
    Avvisa(Cambiamento::Origine::Storia);
}

StoriaSospesa::StoriaSospesa(Documento &documento)
    : documento_(documento)
{
    ++documento_.sospesa_;
}

StoriaSospesa::~StoriaSospesa()
{
    if (--documento_.sospesa_ == 0) {
        emit documento_.StoriaCambiata();
    }
}

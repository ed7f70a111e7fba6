#pragma once

#include "documento/Cambiamento.h"
#include "documento/StatoDocumento.h"

#include <QObject>
#include <QString>

#include <map>
#include <memory>

class Passo;
class QUndoStack;

/// The one open model: its only writer and its only herald. Every change happens inside a Passo,
/// every view reads Aperto() and follows Cambiato. It knows no window.
class Documento : public QObject
{
    Q_OBJECT
public:
    /// Undo steps that are kept; the oldest go first.
    static constexpr int PassiTenuti = 250;

    Documento();
    ~Documento() override;

    const Modello &Aperto() const { return stato_.modello; }
    /// What the editor's list of the kind shows for the element.
    const QString &Voce(Chiave chiave) const { return stato_.Voce(chiave); }
    /// What steps call the element: its name, or while it has none what the list shows, or else its
    /// kind and number ("immagine 3").
    QString Denominazione(Chiave chiave) const;
    /// The same of several elements: that of a single one, or their number.
    QString Denominazione(const QList<Chiave> &chiavi) const;
    /// True when the element has been deleted since the model was opened. Its Voce says so too, but
    /// an element that is there may be named like a deleted one.
    bool Eliminato(Chiave chiave) const { return stato_.Eliminato(chiave); }

    /// True when the sheet shows the element: it is there, or it is new and has no name yet.
    bool InVista(Chiave chiave) const;

    /// The row fields that the model had elsewhere than at the start of the rows when it was
    /// opened, by slot, with their Y then, mm; none once it has been saved. Opening has put them in
    /// their row, but Vastrel prints what the file holds.
    const std::map<int, double> &FuoriRiga() const { return fuoriRiga_; }

    /// Another model is open from now on: elements stand where placing puts them, the lists show
    /// their names, there is nothing to undo. variato: it holds work that no file holds.
    void Prende(Modello modello, bool variato);

    /// The modified flag. Undoing does not clear it: the file on disk is then another than the one
    /// the user last confirmed, whatever the model looks like.
    bool Variato() const { return variato_; }
    /// As the editor's Salva does before it asks.
    void SegnaVariato();
    /// The model is what the file holds; the history stays.
    void Salvato();
    /// Nothing can be undone from here on.
    void DimenticaStoria();

    /// A step is open or the history suspended: a gesture or a dialog is under way.
    bool ModificaInCorso() const { return aperto_ != nullptr || sospesa_ > 0; }
    bool PuoAnnullare() const;
    bool PuoRipristinare() const;
    /// What the next undo or redo is about ("sposta Doc_Numero"); empty when there is none.
    QString TestoAnnulla() const;
    QString TestoRipristina() const;
    /// Which step of the history stands last: no other ever has its number. 0 for none.
    int UltimoPasso() const;
    /// Takes the last step back, or does it again. Nothing in the middle of an edit: a dialog or a
    /// gesture has to end first.
    void Annulla();
    void Ripristina();
    /// A later step joins no earlier one, and what was typed is a finished edit: the text box has
    /// been left.
    void ChiudeUnione();

    /// Puts an element where its rules want it, when selecting or zooming shows it: no step of its
    /// own and no modification. What there is to round was left by the step that last moved the
    /// element, and goes and comes with that step.
    void Colloca(Chiave chiave);

signals:
    void Cambiato(const Cambiamento &cambiamento);
    /// A finished edit, undo or redo has changed the model.
    void ModificaConclusa();
    void VariatoCambiato();
    /// The file holds again what the document shows: FuoriRiga has been emptied.
    void RigheRaddrizzate();
    /// The step of that number has been taken back, or (annullato false) done again.
    void PassoPercorso(int numero, bool annullato);
    /// PuoAnnullare, PuoRipristinare or their texts are others.
    void StoriaCambiata();

private:
    friend class Passo;
    friend class StoriaSospesa;
    class Fatto;

    void ImpostaVariato(bool variato);
    void Avvisa(Cambiamento::Origine origine);
    void Conclude();
    /// False when the model is as it was before.
    bool Registra(const StatoDocumento &prima, const QString &testo, const QString &unione,
                  int entroMillisecondi);
    void Percorre(Differenza &differenza);
    int NumeroDelPasso(int indice) const;

    StatoDocumento stato_;
    bool variato_ = false;
    std::array<int, Generi.size()> ultimiAllApertura_{}; ///< slots
    std::map<int, double> fuoriRiga_;
    std::unique_ptr<QUndoStack> storia_;
    int passi_ = 0;  ///< the number of the youngest step
    int unioni_ = 0; ///< grows when earlier steps are closed to later ones

    Cambiamento tocchi_; ///< not yet told to the views
    bool daConcludere_ = false;
    Passo *aperto_ = nullptr; ///< the outermost open step
    int sospesa_ = 0;         ///< StoriaSospesa that live
    bool percorre_ = false;   ///< undo or redo is being told to the views
};

/// While one lives, undo and redo wait: what somebody has in hand, and may change any moment, must
/// not become another beneath it.
class StoriaSospesa
{
public:
    /// documento must outlive it.
    explicit StoriaSospesa(Documento &documento);
    ~StoriaSospesa();
    Q_DISABLE_COPY_MOVE(StoriaSospesa)

private:
    Documento &documento_;
};

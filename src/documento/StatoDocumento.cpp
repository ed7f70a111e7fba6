#include "documento/StatoDocumento.h"

#include <algorithm>
#include <utility>

namespace {

std::array<qint16, Generi.size()> NumeriDi(const Modello &modello)
{
    return {modello.NumCampi, modello.NumCornici, modello.NumImmagini};
}

// The slot that holds a record of the same kind; the model may be a constant one.
auto &RecordDi(auto &modello, const Campo &, int i)
{
    return modello.Campi[i];
}

auto &RecordDi(auto &modello, const Cornice &, int i)
{
    return modello.Cornici[i];
}

auto &RecordDi(auto &modello, const Immagine &, int i)
{
    return modello.Immagini[i];
}

/// A count that a refused addition has raised beyond the table is the same to every reader: nothing
/// to take back.
std::optional<std::array<qint16, Generi.size()>> NumeriSeDiversi(const Modello &prima,
                                                                 const Modello &dopo)
{
    const bool uguali = std::all_of(Generi.begin(), Generi.end(), [&](Genere genere) {
        return prima.UltimoSlot(genere) == dopo.UltimoSlot(genere);
    });
    return uguali ? std::nullopt : std::optional(NumeriDi(prima));
}

template <typename Valore>
std::optional<Valore> SeDiverso(const Valore &prima, const Valore &dopo)
{
    return prima == dopo ? std::nullopt : std::optional<Valore>(prima);
}

template <typename Valore>
void ScambiaSe(std::optional<Valore> &tenuto, Valore &nello)
{
    if (tenuto) {
        std::swap(*tenuto, nello);
    }
}

template <typename Valore>
bool UgualeSe(const std::optional<Valore> &tenuto, const Valore &altro)
{
    return !tenuto || *tenuto == altro;
}

template <typename Valore>
void UnisceSe(std::optional<Valore> &primo, const std::optional<Valore> &secondo)
{
    if (!primo) {
        primo = secondo;
    }
}

} // namespace

Differenza::Differenza(const StatoDocumento &prima, const StatoDocumento &dopo)
    : numeri_(NumeriSeDiversi(prima.modello, dopo.modello))
    , tipo_(SeDiverso(prima.modello.Tipo, dopo.modello.Tipo))
    , righe_(SeDiverso(prima.modello.Righe, dopo.modello.Righe))
    , sfondo_(SeDiverso(prima.modello.Sfondo, dopo.modello.Sfondo))
{
    Raccoglie(Genere::Campo, prima, dopo, &Modello::Campi);
    Raccoglie(Genere::Cornice, prima, dopo, &Modello::Cornici);
    Raccoglie(Genere::Immagine, prima, dopo, &Modello::Immagini);
    pezzi_.shrink_to_fit();
    mosse_.shrink_to_fit();
}

template <typename Record>
void Differenza::Raccoglie(Genere genere, const StatoDocumento &prima, const StatoDocumento &dopo,
                           Tabella<Record> Modello::*tabella)
{
    // Slots above the count too: an addition writes into one, and undo clears it again.
    for (int i = 1; i <= Tabella<Record>::UltimoSlot; ++i) {
        const Chiave chiave{genere, i};
        const Record &record = (prima.modello.*tabella)[i];
        Record mosso = (dopo.modello.*tabella)[i];
        const bool stessoPosto = record.X == mosso.X && record.Y == mosso.Y;
        mosso.X = record.X;
        mosso.Y = record.Y;
        if (!(record == mosso) || prima.Voce(chiave) != dopo.Voce(chiave) ||
            prima.Eliminato(chiave) != dopo.Eliminato(chiave)) {
            pezzi_.push_back({chiave, record, prima.Voce(chiave), prima.Eliminato(chiave)});
        } else if (!stessoPosto) {
            mosse_.push_back({chiave, record.X, record.Y});
        }
    }
}

bool Differenza::Vuota() const
{
    return pezzi_.empty() && mosse_.empty() && !numeri_ && !tipo_ && !righe_ && !sfondo_;
}

bool Differenza::Uguale(const StatoDocumento &stato) const
{
    const Modello &modello = stato.modello;
    return UgualeSe(numeri_, NumeriDi(modello)) && UgualeSe(tipo_, modello.Tipo) &&
           UgualeSe(righe_, modello.Righe) && UgualeSe(sfondo_, modello.Sfondo) &&
           std::all_of(mosse_.begin(), mosse_.end(),
                       [&](const Mossa &mossa) {
                           const Elemento &elemento = modello.Di(mossa.chiave);
                           return elemento.X == mossa.x && elemento.Y == mossa.y;
                       }) &&
           std::all_of(pezzi_.begin(), pezzi_.end(), [&](const Pezzo &pezzo) {
               return pezzo.voce == stato.Voce(pezzo.chiave) &&
                      pezzo.eliminato == stato.Eliminato(pezzo.chiave) &&
                      std::visit(
                          [&](const auto &record) {
                              return record == RecordDi(modello, record, pezzo.chiave.indice);
                          },
                          pezzo.record);
           });
}

void Differenza::Scambia(StatoDocumento &stato)
{
    Modello &modello = stato.modello;
    for (Mossa &mossa : mosse_) {
        Elemento &elemento = modello.Di(mossa.chiave);
        std::swap(mossa.x, elemento.X);
        std::swap(mossa.y, elemento.Y);
    }
    for (Pezzo &pezzo : pezzi_) {
        std::visit(
            [&](auto &record) {
                std::swap(record, RecordDi(modello, record, pezzo.chiave.indice));
            },
            pezzo.record);
        std::swap(pezzo.voce, stato.Voce(pezzo.chiave));
        std::swap(pezzo.eliminato, stato.Eliminato(pezzo.chiave));
    }
    if (numeri_) {
        const auto adesso = NumeriDi(modello);
        for (const Genere genere : Generi) {
            modello.Numero(genere) = numeri_->at(Posto(genere));
        }
        numeri_ = adesso;
    }
    ScambiaSe(tipo_, modello.Tipo);
    ScambiaSe(righe_, modello.Righe);
    ScambiaSe(sfondo_, modello.Sfondo);
}

void Differenza::UnisceMossa(const Mossa &mossa)
{
    const auto stessa = [&](const auto &mio) { return mio.chiave == mossa.chiave; };
    if (std::none_of(mosse_.begin(), mosse_.end(), stessa) &&
        std::none_of(pezzi_.begin(), pezzi_.end(), stessa)) {
        mosse_.push_back(mossa);
    }
}

void Differenza::UniscePezzo(Pezzo &&pezzo)
{
    const auto stesso = [&](const auto &mio) { return mio.chiave == pezzo.chiave; };
    if (std::any_of(pezzi_.begin(), pezzi_.end(), stesso)) {
        return;
    }
    const auto mossa = std::find_if(mosse_.begin(), mosse_.end(), stesso);
    if (mossa != mosse_.end()) {
        // First moved, then changed: back to where it was before both.
        std::visit(
            [&](Elemento &elemento) {
                elemento.X = mossa->x;
                elemento.Y = mossa->y;
            },
            pezzo.record);
        mosse_.erase(mossa);
    }
    pezzi_.push_back(std::move(pezzo));
}

void Differenza::Unisce(Differenza &&successiva)
{
    for (const Mossa &mossa : successiva.mosse_) {
        UnisceMossa(mossa);
    }
    for (Pezzo &pezzo : successiva.pezzi_) {
        UniscePezzo(std::move(pezzo));
    }
    UnisceSe(numeri_, successiva.numeri_);
    UnisceSe(tipo_, successiva.tipo_);
    UnisceSe(righe_, successiva.righe_);
    UnisceSe(sfondo_, successiva.sfondo_);
}

void Differenza::Segnala(Cambiamento &cambiamento) const
{
    for (const Mossa &mossa : mosse_) {
        cambiamento.Aggiunge(mossa.chiave);
    }
    for (const Pezzo &pezzo : pezzi_) {
        cambiamento.Aggiunge(pezzo.chiave);
    }
    cambiamento.Tipo |= tipo_.has_value();
    cambiamento.Righe |= righe_.has_value();
    cambiamento.Sfondo |= sfondo_.has_value();
}

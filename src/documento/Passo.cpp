#include "documento/Passo.h"

#include <utility>

namespace {

constexpr QLatin1String Eliminato(" ELIMINATO: ");

} // namespace

Passo::Passo(Documento &documento, const QString &testo, const Unione &unione)
    : documento_(documento)
    , testo_(testo)
    , unione_(unione)
{
    if (documento_.aperto_ == nullptr) {
        documento_.aperto_ = this;
        prima_ = std::make_unique<StatoDocumento>(documento_.stato_);
        variatoPrima_ = documento_.variato_;
        daConcluderePrima_ = documento_.daConcludere_;
    }
}

Passo::~Passo()
{
    documento_.Avvisa(Cambiamento::Origine::Comando);
    if (documento_.aperto_ == this) {
        documento_.aperto_ = nullptr;
        if (!documento_.Registra(*prima_, testo_, unione_.chiave, unione_.entroMillisecondi) &&
            soloSeCambia_) {
            documento_.daConcludere_ = daConcluderePrima_;
        }
    }
    if (unione_.chiave.isEmpty() || unione_.entroMillisecondi > 0) {
        documento_.Conclude();
    }
}

void Passo::Nomina(const QString &testo)
{
    documento_.aperto_->testo_ = testo;
}

void Passo::Rinuncia()
{
    const Passo &primo = *documento_.aperto_;
    Differenza differenza(*primo.prima_, documento_.stato_);
    differenza.Scambia(documento_.stato_);
    differenza.Segnala(documento_.tocchi_);
    documento_.daConcludere_ = primo.daConcluderePrima_;
    documento_.ImpostaVariato(primo.variatoPrima_);
    documento_.Avvisa(Cambiamento::Origine::Storia);
}

void Passo::Mostra(Cambiamento::Origine origine)
{
    documento_.Avvisa(origine);
}

void Passo::SegnaVariato()
{
    documento_.daConcludere_ = true;
    documento_.ImpostaVariato(true);
}

void Passo::Tocca(Chiave chiave)
{
    documento_.tocchi_.Aggiunge(chiave);
    SegnaVariato();
}

void Passo::ImpostaTipo(const QString &tipo)
{
    Aperto().Tipo = tipo;
    documento_.tocchi_.Tipo = true;
    SegnaVariato();
}

void Passo::ImpostaSfondo(const ImmagineSfondo &sfondo)
{
    Aperto().Sfondo = sfondo;
    documento_.tocchi_.Sfondo = true;
    SegnaVariato();
}

void Passo::ImpostaRighe(const ParametriRighe &righe)
{
    Aperto().Righe = righe;
    documento_.tocchi_.Righe = true;
    SegnaVariato();
    for (int k = 1; k <= Aperto().UltimoSlot(Genere::Campo); ++k) {
        if (CampoDiRiga(Aperto().Campi[k])) {
            Colloca({Genere::Campo, k});
        }
    }
}

Chiave Passo::Aggiunge(Genere genere, QPointF posto, QTime ora)
{
    const Chiave chiave{
        genere, Aperto().Aggiunge(genere, posto.x(), posto.y(), ora.minute(), ora.second())};
    RinominaVoce(chiave);
    Colloca(chiave);
    return chiave;
}

template <typename Record>
Chiave Passo::AggiungeRecord(Genere genere, Tabella<Record> &tabella, const Record &record)
{
    const Chiave chiave{genere, Aperto().UltimoSlot(genere) + 1};
    tabella[chiave.indice] = record;
    Aperto().Numero(genere) = static_cast<qint16>(chiave.indice);
    RinominaVoce(chiave);
    Colloca(chiave);
    return chiave;
}

Chiave Passo::Aggiunge(const Campo &campo)
{
    return AggiungeRecord(Genere::Campo, Aperto().Campi, campo);
}

Chiave Passo::Aggiunge(const Cornice &cornice)
{
    return AggiungeRecord(Genere::Cornice, Aperto().Cornici, cornice);
}

Chiave Passo::Aggiunge(const Immagine &immagine)
{
    return AggiungeRecord(Genere::Immagine, Aperto().Immagini, immagine);
}

template <typename Record>
void Passo::ScriveRecord(Chiave chiave, Record &vecchio, const Record &nuovo)
{
    vecchio = nuovo;
    if (!nuovo.Nome.isEmpty()) {
        Stato().Eliminato(chiave) = false; // the dialog may give a deleted one's number a name
    }
    Colloca(chiave);
}

void Passo::Scrive(int n, const Campo &campo)
{
    ScriveRecord({Genere::Campo, n}, Aperto().Campi[n], campo);
}

void Passo::Scrive(int n, const Cornice &cornice)
{
    ScriveRecord({Genere::Cornice, n}, Aperto().Cornici[n], cornice);
}

void Passo::Scrive(int n, const Immagine &immagine)
{
    ScriveRecord({Genere::Immagine, n}, Aperto().Immagini[n], immagine);
}

void Passo::RinominaVoce(Chiave chiave)
{
    Stato().Voce(chiave) = Aperto().Di(chiave).Nome;
    Tocca(chiave);
}

void Passo::Elimina(Chiave chiave)
{
    if (!Aperto().Di(chiave).Nome.isEmpty()) {
        SegnaVariato();
    }
    Aperto().Di(chiave).Nome.clear();
    Stato().Voce(chiave).prepend(Eliminato);
    Stato().Eliminato(chiave) = true;
    documento_.tocchi_.Aggiunge(chiave);
}

void Passo::SpostaTutti(Genere genere, double dx, double dy)
{
    for (int k = 1; k <= Aperto().UltimoSlot(genere); ++k) {
        Elemento &elemento = Aperto().Di({genere, k});
        elemento.X += dx;
        elemento.Y += dy;
        Colloca({genere, k});
    }
}

void Passo::Trascina(Chiave chiave, QPointF posto)
{
    Elemento &elemento = Aperto().Di(chiave);
    elemento.X = posto.x();
    elemento.Y = posto.y();
    Tocca(chiave);
}

void Passo::Ridimensiona(Chiave chiave, QSizeF misura)
{
    Aperto().Con(chiave.genere, [&](auto &tabella) {
        if constexpr (requires { tabella[0].Larghezza; }) {
            tabella[chiave.indice].Larghezza = misura.width();
            tabella[chiave.indice].Altezza = misura.height();
            Tocca(chiave);
        }
    });
}

void Passo::Colloca(Chiave chiave)
{
    Aperto().Arrotonda(chiave.genere, chiave.indice);
    Tocca(chiave);
}

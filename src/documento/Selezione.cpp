#include "documento/Selezione.h"

#include "documento/Documento.h"

#include <utility>

Selezione::Selezione(const Documento &documento)
    : documento_(documento)
{
    connect(&documento, &Documento::Cambiato, this, &Selezione::Segue);
}

void Selezione::Sceglie(Chiave chiave)
{
    documento_.Aperto().Di(chiave); // checks the number
    if (!documento_.InVista(chiave)) {
        return;
    }
    attivi_.at(Posto(chiave.genere)) = chiave.indice;
    emit Cambiata(chiave.genere);
}

void Selezione::Lascia(Genere genere)
{
    if (Attivo(genere) != 0) {
        attivi_.at(Posto(genere)) = 0;
        emit Cambiata(genere);
    }
}

void Selezione::ImpostaScelti(const QList<Chiave> &chiavi)
{
    QList<Chiave> scelti;
    for (const Chiave &chiave : chiavi) {
        documento_.Aperto().Di(chiave); // checks the number
        if (documento_.InVista(chiave) && !scelti.contains(chiave)) {
            scelti.append(chiave);
        }
    }
    if (scelti != scelti_) {
        scelti_ = std::move(scelti);
        emit SceltiCambiati();
    }
}

void Selezione::AggiungeScelti(const QList<Chiave> &chiavi)
{
    ImpostaScelti(scelti_ + chiavi);
}

void Selezione::AlternaScelto(Chiave chiave)
{
    QList<Chiave> scelti = scelti_;
    if (!scelti.removeOne(chiave)) {
        scelti.append(chiave);
    }
    ImpostaScelti(scelti);
}

void Selezione::SceglieConClick(Chiave chiave, bool aggiunge)
{
    if (aggiunge) {
        AlternaScelto(chiave);
    } else {
        ImpostaScelti({chiave});
    }
}

void Selezione::Segue(const Cambiamento &cambiamento)
{
    if (cambiamento.origine == Cambiamento::Origine::Gesto) {
        return; // it moves what is there
    }
    const bool altroModello = cambiamento.origine == Cambiamento::Origine::Apertura;
    QList<Chiave> rimasti = scelti_;
    rimasti.removeIf([&](Chiave chiave) { return altroModello || !documento_.InVista(chiave); });
    ImpostaScelti(rimasti);
    for (const Genere genere : Generi) {
        if (const int i = Attivo(genere); i != 0 && !documento_.InVista({genere, i})) {
            Lascia(genere);
        }
    }
}

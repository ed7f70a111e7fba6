#include "documento/Selezione.h"

#include "documento/Documento.h"

Selezione::Selezione(const Documento &documento)
    : documento_(documento)
{
    connect(&documento, &Documento::Cambiato, this, &Selezione::Segue);
}

void Selezione::Sceglie(Chiave chiave)
{
    documento_.Aperto().Di(chiave); // checks the number
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

void Selezione::Segue()
{
    for (const Genere genere : Generi) {
        if (const int i = Attivo(genere); i != 0 && !documento_.InVista({genere, i})) {
            Lascia(genere);
        }
    }
}

// What the preview does with the elements on its sheet: showing and following them, and what others
// may ask of them.

#include "documento/StatoProgramma.h"
#include "preview/AccessoFoglio.h"
#include "preview/ElementiFoglio.h"
#include "preview/Frm1.h"
#include "preview/ManiSulFoglio.h"
#include "preview/PartiAnteprima.h"
#include "preview/VistaFoglio.h"

void Frm1::RiancoraManiglie()
{
    elementi_->RiancoraManiglie();
}

void Frm1::RinominaManiglie()
{
    elementi_->RinominaManiglie();
}

void Frm1::CreaElemento(Genere genere, int i)
{
    elementi_->Crea(genere, i);
}

void Frm1::NascondiElemento(Genere genere, int i)
{
    elementi_->Nasconde(genere, i);
}

void Frm1::NascondiManiglie()
{
    for (const Genere genere : Generi) {
        NascondiManiglia(genere);
    }
}

void Frm1::NascondiManiglia(Genere genere)
{
    elementi_->NascondeManiglia(genere);
}

void Frm1::Impostazioni(Genere genere, int i)
{
    elementi_->Imposta(genere, i);
}

void Frm1::Posiziona(Genere genere, int i)
{
    elementi_->Posiziona(genere, i);
}

void Frm1::MostraModello()
{
    for (const Genere genere : Generi) {
        for (int i = 1; i <= stato_.Aperto().UltimoSlot(genere); ++i) {
            CreaElemento(genere, i);
            Impostazioni(genere, i);
            Posiziona(genere, i);
            if (!stato_.documento.InVista({genere, i})) {
                NascondiElemento(genere, i);
            }
        }
    }
    NascondiManiglie();
    ImpilaPerArea();
    accesso_->Rilegge();
}

void Frm1::SegueDocumento(const Cambiamento &cambiamento)
{
    const QList<Chiave> elementi = cambiamento.Elementi();
    for (const Chiave &chiave : elementi) {
        switch (cambiamento.origine) {
        case Cambiamento::Origine::Gesto:
            elementi_->Ricolloca(chiave.genere, chiave.indice);
            break;
        case Cambiamento::Origine::Posto:
            Posiziona(chiave.genere, chiave.indice);
            break;
        case Cambiamento::Origine::Comando:
        case Cambiamento::Origine::Storia:
            AggiornaElemento(chiave);
            break;
        case Cambiamento::Origine::Apertura:
            return; // MostraModello builds the sheet
        }
    }
    RiancoraManiglie();
    if (elementi.size() > 1) {
        RinominaManiglie(); // each element placed has put its own name on them
    }
}

void Frm1::AggiornaElemento(Chiave chiave)
{
    const bool inVista = elementi_->InVista(chiave.genere, chiave.indice);
    if (!stato_.documento.InVista(chiave)) {
        if (inVista) {
            NascondiElemento(chiave.genere, chiave.indice);
        }
        return;
    }
    if (!inVista) {
        CreaElemento(chiave.genere, chiave.indice);
    }
    Impostazioni(chiave.genere, chiave.indice);
    Posiziona(chiave.genere, chiave.indice);
}

void Frm1::Seleziona(Genere genere, int i)
{
    elementi_->Seleziona(genere, i);
}

void Frm1::Sceglie(Chiave chiave)
{
    mani_->Sceglie(chiave);
}

void Frm1::PrimoPiano(Genere genere)
{
    elementi_->PrimoPiano(genere);
}

void Frm1::ImpilaPerArea()
{
    PrimoPianoImmagini();
    PrimoPianoCornici();
    PrimoPianoCampi(); // in front of both, as the editor stacks them
}

void Frm1::Sposta(Genere genere, int i, Qt::MouseButtons bottoni, Qt::KeyboardModifiers, double x,
                  double y)
{
    mani_->Sposta(genere, i, bottoni, x, y);
}

void Frm1::RidimensionaCornice(int i, Qt::MouseButtons bottoni, double x, double y)
{
    mani_->RidimensionaCornice(i, bottoni, x, y);
}

void Frm1::RidimensionaImmagine(int i, Qt::MouseButtons bottoni, double x, double y)
{
    mani_->RidimensionaImmagine(i, bottoni, x, y);
}

void Frm1::Campineri()
{
    elementi_->Campineri();
}

QSizeF Frm1::MisuraControllo(Genere genere, int i) const
{
    return elementi_->Elemento(genere, i).Posto().size();
}

void Frm1::PulisceSfondo()
{
    parti_->P1->PulisceSfondo();
}

void Frm1::DimenticaSfondo()
{
    parti_->P1->DimenticaSfondo();
}

void Frm1::ImpostaOpacitaSfondo(double opacita)
{
    parti_->P1->ImpostaOpacitaSfondo(opacita);
}

void Frm1::DipingeSfondo(const QString &percorso, const QRectF &millimetri)
{
    parti_->P1->DipingeSfondo(percorso, millimetri);
}

void Frm1::TogliRigheSimulate()
{
    elementi_->TogliRighe();
}

void Frm1::AggiungeRigheSimulate(const QList<RigaSimulata> &righe)
{
    for (const RigaSimulata &riga : righe) {
        elementi_->AggiungeRiga(riga.posto, {riga.font, riga.grassetto, false}, riga.testo,
                                riga.punti);
    }
}

#include "preview/SfondoDelModello.h"

#include "finestre/Finestre.h"
#include "model/Numeri.h"
#include "preview/Frm1.h"
#include "sistema/Percorsi.h"

namespace {

double Letto(const ImmagineSfondo &sfondo, QString ImmagineSfondo::*membro)
{
    try {
        return Numeri::Val(sfondo.*membro);
    } catch (const ErroreSistema &errore) {
        throw SfondoDelModello::NumeroNonLetto(errore, membro);
    }
}

} // namespace

QString SfondoDelModello::File(const ImmagineSfondo &sfondo)
{
    return Percorsi::EstraeNomeFile(sfondo.File) == sfondo.File ? sfondo.File
                                                                : Percorsi::Risolve(sfondo.File);
}

QRectF SfondoDelModello::Posto(const ImmagineSfondo &sfondo)
{
    const double x = Letto(sfondo, &ImmagineSfondo::XPos);
    const double y = Letto(sfondo, &ImmagineSfondo::YPos);
    const double larghezza = Letto(sfondo, &ImmagineSfondo::Ximmagine);
    return {x, y, larghezza, Letto(sfondo, &ImmagineSfondo::Yimmagine)};
}

bool SfondoDelModello::Visibile(const ImmagineSfondo &sfondo)
{
    return sfondo.Visualizza != 0 && !sfondo.File.isEmpty();
}

void SfondoDelModello::Disegna(const ImmagineSfondo &sfondo, Frm1 &anteprima)
{
    anteprima.PulisceSfondo();
    if (Visibile(sfondo)) {
        const QRectF posto = Posto(sfondo);
        const PuntatoreOccupato occupato;
        anteprima.DipingeSfondo(File(sfondo), posto);
    }
}

QString SfondoDelModello::NonCaricato(const ImmagineSfondo &sfondo, const ErroreSistema &errore)
{
    return QStringLiteral("impossibile caricare l'immagine di sfondo %1\n%2")
        .arg(sfondo.File, errore.Messaggio());
}

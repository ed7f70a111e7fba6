#include "fuzz/Pretende.h"

#include "documento/Documento.h"
#include "documento/Incolla.h"
#include "model/FileModello.h"

#include <QMimeData>

#include <cmath>

namespace {

const Incolla::Parole Parole{QStringLiteral("incolla"), QStringLiteral("incollare"),
                             QStringLiteral("gli appunti ne hanno")};

/// A field and a frame that have names which others may want, and a row area.
Modello Aperto()
{
    Modello modello;
    modello.Righe.yInizio = 95.5;
    modello.AggiungeCampo(10, 10);
    modello.AggiungeCornice(10, 10, 0, 0);
    return modello;
}

bool SulFoglio(const Elemento &elemento)
{
    return std::isfinite(elemento.X) && std::isfinite(elemento.Y) && std::abs(elemento.X) < 1e5 &&
           std::abs(elemento.Y) < 1e5;
}

/// Nothing that is pasted is off by more than the model can bear, and it is one step.
void ProvaIncolla(const ElementiCopiati &elementi, bool sulPosto)
{
    Documento documento;
    documento.Prende(Aperto(), false);
    const Modello prima = documento.Aperto();
    if (!Incolla::SenzaPosto(prima, elementi, Parole).isEmpty()) {
        return;
    }
    const Incolla::Dove dove{5, sulPosto, {240, 350}, [](const Modello &modello, Chiave chiave) {
                                 const Elemento &elemento = modello.Di(chiave);
                                 return QSizeF(elemento.Nome.size(), elemento.X);
                             }};
    const Incolla::Esito esito = Incolla::Aggiunge(documento, elementi, Parole, dove);
    PRETENDE(esito.nuovi.size() == elementi.Ordine.size());
    for (const Chiave &chiave : esito.nuovi) {
        PRETENDE(documento.InVista(chiave));
        PRETENDE(SulFoglio(documento.Aperto().Di(chiave)));
    }
    documento.Annulla();
    PRETENDE(documento.Aperto() == prima);
    PRETENDE(!documento.PuoAnnullare());
}

} // namespace

/// Any bytes under our types are nothing or just what a copy writes. The first zero byte ends the
/// origin, which stands before the elements.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *dati, std::size_t quanti)
{
    const QByteArray byte(reinterpret_cast<const char *>(dati), static_cast<qsizetype>(quanti));
    const qsizetype zero = byte.indexOf('\0');
    const QByteArray righe = byte.mid(zero + 1);
    QMimeData contenuto;
    contenuto.setData(Appunti::TipoOrigine, byte.first(qMax(zero, qsizetype(0))));
    contenuto.setData(Appunti::TipoElementi, righe);
    const std::optional<ElementiCopiati> letti = Appunti::Legge(&contenuto);
    if (!letti) {
        return 0;
    }
    const Modello &elementi = letti->Elementi;
    PRETENDE(FileModello::ComponiElementi(elementi, QLocale::c()) == righe);
    PRETENDE(letti->Ordine.size() ==
             elementi.NumCampi + elementi.NumCornici + elementi.NumImmagini);
    const auto ancora = Appunti::Compone(*letti);
    PRETENDE(ancora->data(Appunti::TipoElementi) == righe);
    const std::optional<ElementiCopiati> riletti = Appunti::Legge(ancora.get());
    PRETENDE(riletti && riletti->Ordine == letti->Ordine);
    PRETENDE(riletti->CartellaFonte == letti->CartellaFonte);
    ProvaIncolla(*letti, false);
    ProvaIncolla(*letti, true);
    return 0;
}

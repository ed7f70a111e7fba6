#include "model/FileModello.h"

#include "base/Ansi.h"
#include "base/ErroreSistema.h"
#include "model/FileModelloRighe.h"

#include <utility>

namespace {

using namespace FileModello;

/// The lines of a file, one after the other. A line ends at CR, and an LF that follows is skipped;
/// an LF elsewhere belongs to the line.
class LettoreRighe
{
public:
    explicit LettoreRighe(QByteArrayView byte)
        : resto_(byte)
    {
    }

    bool Fine() const { return resto_.isEmpty(); }

    QByteArrayView Riga()
    {
        if (Fine()) {
            throw ErroreSistema(ErroreSistema::FineFile);
        }
        const qsizetype fine = resto_.indexOf('\r');
        if (fine < 0) {
            return std::exchange(resto_, QByteArrayView());
        }
        const QByteArrayView riga = resto_.first(fine);
        const bool seguito = fine + 1 < resto_.size() && resto_[fine + 1] == '\n';
        resto_ = resto_.sliced(fine + (seguito ? 2 : 1));
        return riga;
    }

    void Salta(int righe)
    {
        for (int i = 0; i < righe; ++i) {
            Riga();
        }
    }

    double Numero() { return Numeri::LeggeNumero(Riga()); }
    qint16 Intero() { return Numeri::Intero16(Numero()); }
    qint16 Booleano() { return Numero() != 0 ? Vero : Falso; }

    /// Each value from a line of its own, by its type.
    template <typename... Valori>
    void Legge(Valori &...valori)
    {
        (Valore(valori), ...);
    }

private:
    void Valore(QString &testo) { testo = Ansi::DaByte(Riga()); }
    void Valore(double &numero) { numero = Numero(); }
    void Valore(qint16 &intero) { intero = Intero(); }

    QByteArrayView resto_;
};

qint16 LeggeVisualizza(LettoreRighe &lettore)
{
    constexpr qint16 UltimoValore = 2;
    const qint16 valore = lettore.Intero();
    if (valore < 0 || valore > UltimoValore) {
        throw ErroreSistema(ErroreSistema::ValoreProprieta);
    }
    return valore;
}

void LeggeTestata(LettoreRighe &lettore, Modello &modello)
{
    ImmagineSfondo &sfondo = modello.Sfondo;
    ParametriRighe &righe = modello.Righe;
    lettore.Legge(modello.Tipo);
    lettore.Salta(1);
    lettore.Legge(sfondo.File, sfondo.Ximmagine, sfondo.Yimmagine, sfondo.XPos, sfondo.YPos);
    lettore.Legge(righe.yInizio, righe.yFine, righe.Interlinea);
    sfondo.Visualizza = LeggeVisualizza(lettore);
    lettore.Legge(righe.SeguePag);
    if (righe.SeguePag.isEmpty()) {
        righe.SeguePag = Modello::SeguePagPredefinito;
    }
    lettore.Legge(righe.InterlineaDescr);
    lettore.Salta(RigheLibere);
}

void LeggeCampi(LettoreRighe &lettore, Modello &modello)
{
    while (!lettore.Fine() && lettore.Riga() != FineCampi) {
        Campo &campo = modello.Campi[++modello.NumCampi];
        lettore.Legge(campo.Nome, campo.Testo, campo.Maschera, campo.X, campo.Y, campo.Font,
                      campo.Dimensione);
        campo.Grassetto = lettore.Booleano();
        lettore.Legge(campo.MascheraDefault, campo.Descrizione);
        lettore.Riga();
    }
}

void LeggeCornici(LettoreRighe &lettore, Modello &modello)
{
    while (!lettore.Fine() && lettore.Riga() != FineCornici) {
        Cornice &cornice = modello.Cornici[++modello.NumCornici];
        lettore.Legge(cornice.Nome, cornice.Testo, cornice.X, cornice.Y, cornice.Font,
                      cornice.Dimensione);
        cornice.Grassetto = lettore.Booleano();
        lettore.Legge(cornice.Descrizione, cornice.Altezza, cornice.Larghezza, cornice.Bordo,
                      cornice.ColoreCornice, cornice.ColoreTesto);
    }
}

void LeggeImmagini(LettoreRighe &lettore, Modello &modello)
{
    while (!lettore.Fine() && lettore.Riga() != FineImmagini) {
        Immagine &immagine = modello.Immagini[++modello.NumImmagini];
        lettore.Legge(immagine.Nome, immagine.X, immagine.Y, immagine.Descrizione, immagine.Altezza,
                      immagine.Larghezza, immagine.Bordo);
        lettore.Riga();
    }
}

void LeggeElementi(LettoreRighe &lettore, Modello &modello)
{
    LeggeCampi(lettore, modello);
    LeggeCornici(lettore, modello);
    LeggeImmagini(lettore, modello);
}

void Svuota(Modello &modello)
{
    for (const Genere genere : Generi) {
        modello.Numero(genere) = 0;
    }
}

} // namespace

void FileModello::Analizza(const QByteArray &byte, Modello &modello)
{
    Svuota(modello);
    LettoreRighe lettore(byte);
    LeggeTestata(lettore, modello);
    LeggeElementi(lettore, modello);
}

void FileModello::AnalizzaElementi(const QByteArray &byte, Modello &modello)
{
    Svuota(modello);
    LettoreRighe lettore(byte);
    LeggeElementi(lettore, modello);
}

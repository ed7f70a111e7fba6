#include "model/Modello.h"

#include "model/Numeri.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr QLatin1String FontNuovo("Arial");
constexpr qint16 DimensioneNuova = 11;
constexpr int CaratteriMascheraNuova = 30;

/// True when the value was another; what is no number stays the same.
bool Cambia(double &valore, double nuovo)
{
    const double vecchio = std::exchange(valore, nuovo);
    return vecchio != nuovo && !(std::isnan(vecchio) && std::isnan(nuovo));
}

/// "Nuova", the minute and the second, of that time or the next one whose name no frame has: two
/// frames of one name could not be confirmed. An hour has far more names than a model has frames.
QString NomeCorniceNuova(const Modello &modello, int minuto, int secondo)
{
    constexpr int SecondiPerMinuto = 60;
    constexpr int SecondiPerOra = 3600;
    for (int istante = minuto * SecondiPerMinuto + secondo;; ++istante) {
        const int nellOra = istante % SecondiPerOra;
        QString nome = QStringLiteral("Nuova") + QString::number(nellOra / SecondiPerMinuto) +
                       QString::number(nellOra % SecondiPerMinuto);
        if (!modello.NomePreso(Genere::Cornice, nome)) {
            return nome;
        }
    }
}

} // namespace

qint16 &Modello::Numero(Genere genere)
{
    switch (genere) {
    case Genere::Campo:
        return NumCampi;
    case Genere::Cornice:
        return NumCornici;
    case Genere::Immagine:
        break;
    }
    return NumImmagini;
}

qint16 Modello::Numero(Genere genere) const
{
    return const_cast<Modello *>(this)->Numero(genere);
}

int Modello::UltimoSlot(Genere genere) const
{
    return std::min<int>(Numero(genere), Tabella<Campo>::UltimoSlot);
}

Elemento &Modello::Di(Chiave chiave)
{
    return Con(chiave.genere, [&](auto &t) -> Elemento & { return t[chiave.indice]; });
}

const Elemento &Modello::Di(Chiave chiave) const
{
    return Con(chiave.genere, [&](const auto &t) -> const Elemento & { return t[chiave.indice]; });
}

QString &Modello::Nome(Genere genere, int indice)
{
    return Di({genere, indice}).Nome;
}

const QString &Modello::Nome(Genere genere, int indice) const
{
    return Di({genere, indice}).Nome;
}

bool Modello::Presente(Genere genere, int indice) const
{
    return !Nome(genere, indice).isEmpty();
}

int Modello::AggiungeCampo(double x, double y)
{
    const int n = ++NumCampi;
    Campo &campo = Campi[n];
    campo = Campo{};
    campo.Nome = QStringLiteral("nuovocampo") + QString::number(n);
    campo.Testo = campo.Nome;
    campo.Descrizione = campo.Nome;
    campo.Maschera = QString(CaratteriMascheraNuova, u'$');
    campo.MascheraDefault = campo.Maschera;
    campo.X = x;
    campo.Y = y;
    campo.Font = FontNuovo;
    campo.Dimensione = DimensioneNuova;
    return n;
}

bool Modello::NomePreso(Genere genere, const QString &nome, int tranne) const
{
    for (int i = 1; i <= UltimoSlot(genere); ++i) {
        if (i != tranne && Nome(genere, i).compare(nome, Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return false;
}

int Modello::AggiungeCornice(double x, double y, int minuto, int secondo)
{
    const int n = ++NumCornici;
    Cornice &cornice = Cornici[n];
    // The text colour is the one value that a new frame does not set: the slot's own stays.
    const qint16 coloreTesto = cornice.ColoreTesto;
    cornice = Cornice{};
    cornice.ColoreTesto = coloreTesto;
    cornice.Nome = NomeCorniceNuova(*this, minuto, secondo);
    cornice.Testo = cornice.Nome;
    cornice.X = x;
    cornice.Y = y;
    cornice.Font = FontNuovo;
    cornice.Dimensione = DimensioneNuova;
    cornice.Descrizione = QStringLiteral("nuovaCornice") + QString::number(n);
    cornice.Altezza = 10;
    cornice.Larghezza = 20;
    cornice.Bordo = 1;
    return n;
}

int Modello::AggiungeImmagine(double x, double y)
{
    const int n = ++NumImmagini;
    Immagine &immagine = Immagini[n];
    immagine = Immagine{};
    immagine.X = x;
    immagine.Y = y;
    immagine.Descrizione = QStringLiteral("nuovaImmagine") + QString::number(n);
    immagine.Altezza = 10;
    immagine.Larghezza = 50;
    immagine.Bordo = 1;
    return n;
}

int Modello::Aggiunge(Genere genere, double x, double y, int minuto, int secondo)
{
    switch (genere) {
    case Genere::Campo:
        return AggiungeCampo(x, y);
    case Genere::Cornice:
        return AggiungeCornice(x, y, minuto, secondo);
    case Genere::Immagine:
        break;
    }
    return AggiungeImmagine(x, y);
}

bool Modello::Arrotonda(Genere genere, int indice)
{
    switch (genere) {
    case Genere::Campo: {
        Campo &campo = Campi[indice];
        const bool y = Cambia(campo.Y, CampoDiRiga(campo) ? Righe.yInizio : Numeri::Ar(campo.Y));
        return Cambia(campo.X, Numeri::Ar(campo.X)) || y;
    }
    case Genere::Cornice: {
        Cornice &cornice = Cornici[indice];
        bool cambiata = false;
        for (double *valore : {&cornice.Larghezza, &cornice.Altezza, &cornice.X, &cornice.Y}) {
            cambiata = Cambia(*valore, Numeri::Ar(*valore)) || cambiata;
        }
        return cambiata;
    }
    case Genere::Immagine:
        break;
    }
    return false;
}

void Modello::ArrotondaTutti()
{
    for (const Genere genere : Generi) {
        for (int i = 1; i <= UltimoSlot(genere); ++i) {
            Arrotonda(genere, i);
        }
    }
}

bool Campo::NonStampato() const
{
    return Maschera.compare(MascheraNonStampata, Qt::CaseInsensitive) == 0;
}

Cornice::Bordatura Cornice::TipoBordo() const
{
    const double tipo = std::trunc(Bordo);
    if (tipo == 1) {
        return Bordatura::Rettangolo;
    }
    return tipo == 2 ? Bordatura::LineaSuperiore : Bordatura::Nessuna;
}

double Cornice::SpessoreBordo() const
{
    constexpr double Predefinito = 0.3;
    const double frazione = Bordo - std::trunc(Bordo);
    return frazione == 0 ? Predefinito : frazione;
}

bool Cornice::BordoInAnteprima() const
{
    return Bordo >= 1;
}

bool Cornice::Ridimensionabile() const
{
    return Bordo != 0 && std::floor(Bordo) != 2;
}

bool CampoDiRiga(const Campo &campo)
{
    return campo.Nome.startsWith(QLatin1String("R_"));
}

#include "model/Modello.h"

#include "model/Numeri.h"

#include <algorithm>

namespace {

constexpr QLatin1String FontNuovo("Arial");
constexpr qint16 DimensioneNuova = 11;
constexpr int CaratteriMascheraNuova = 30;

bool CorniceConNome(const Modello &modello, const QString &nome)
{
    for (int i = 1; i <= modello.UltimoSlot(Genere::Cornice); ++i) {
        if (modello.Cornici[i].Nome.compare(nome, Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return false;
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
        if (!CorniceConNome(modello, nome)) {
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

QString &Modello::Nome(Genere genere, int indice)
{
    return Con(genere, [indice](auto &t) -> QString & { return t[indice].Nome; });
}

const QString &Modello::Nome(Genere genere, int indice) const
{
    return Con(genere, [indice](const auto &t) -> const QString & { return t[indice].Nome; });
}

double &Modello::X(Genere genere, int indice)
{
    return Con(genere, [indice](auto &t) -> double & { return t[indice].X; });
}

double &Modello::Y(Genere genere, int indice)
{
    return Con(genere, [indice](auto &t) -> double & { return t[indice].Y; });
}

QString &Modello::Descrizione(Genere genere, int indice)
{
    return Con(genere, [indice](auto &t) -> QString & { return t[indice].Descrizione; });
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

void Modello::Arrotonda(Genere genere, int indice)
{
    if (genere == Genere::Campo) {
        Campo &campo = Campi[indice];
        campo.Y = CampoDiRiga(campo) ? Righe.yInizio : Numeri::Ar(campo.Y);
        campo.X = Numeri::Ar(campo.X);
    } else if (genere == Genere::Cornice) {
        Cornice &cornice = Cornici[indice];
        for (double *valore : {&cornice.Larghezza, &cornice.Altezza, &cornice.X, &cornice.Y}) {
            *valore = Numeri::Ar(*valore);
        }
    }
}

void Modello::ArrotondaTutti()
{
    for (const Genere genere : Generi) {
        for (int i = 1; i <= UltimoSlot(genere); ++i) {
            Arrotonda(genere, i);
        }
    }
}

bool CampoDiRiga(const Campo &campo)
{
    return campo.Nome.startsWith(QLatin1String("R_"));
}

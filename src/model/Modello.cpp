#include "model/Modello.h"

#include <algorithm>

namespace {

constexpr QLatin1String FontNuovo("Arial");
constexpr qint16 DimensioneNuova = 11;
constexpr int CaratteriMascheraNuova = 30;

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
    cornice.Nome = QStringLiteral("Nuova") + QString::number(minuto) + QString::number(secondo);
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

bool CampoDiRiga(const Campo &campo)
{
    return campo.Nome.startsWith(QLatin1String("R_"));
}

#include "documento/Incolla.h"

#include "documento/Passo.h"

#include <QRectF>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// From da to a on one axis, mm.
struct Tratto
{
    double da = 0;
    double a = 0;
    bool vuoto = true;

    void Unisce(double inizio, double lunghezza)
    {
        const double fine = inizio + std::max(0.0, lunghezza);
        da = vuoto ? inizio : std::min(da, inizio);
        a = vuoto ? fine : std::max(a, fine);
        vuoto = false;
    }
};

/// A place that a model can have: beyond a hundred sheets adding to a number loses its millimetres.
double Sensato(double millimetri)
{
    constexpr double Massimo = 1e4;
    return std::isnan(millimetri) ? 0 : std::clamp(millimetri, -Massimo, Massimo);
}

bool DiRiga(const Modello &elementi, Chiave chiave)
{
    return chiave.genere == Genere::Campo && CampoDiRiga(elementi.Campi[chiave.indice]);
}

/// How far the stretch is to be moved, in whole millimetres: rounding each element to its own would
/// move them against each other.
double DiQuanto(const Tratto &tratto, double foglio, const Incolla::Dove &dove)
{
    const bool fuori = tratto.a < 0 || tratto.da > foglio;
    if (tratto.vuoto || (dove.sulPosto && !fuori)) {
        return 0;
    }
    return std::max(std::ceil(-tratto.da), std::min(dove.scarto, std::floor(foglio - tratto.a)));
}

QPointF DiQuanto(const ElementiCopiati &elementi, const Incolla::Dove &dove)
{
    Tratto x;
    Tratto y;
    for (const Chiave &chiave : elementi.Ordine) {
        const Elemento &elemento = elementi.Elementi.Di(chiave);
        const QSizeF misura = dove.misura(elementi.Elementi, chiave);
        x.Unisce(Sensato(elemento.X), Sensato(misura.width()));
        // Row fields go to the row area, wherever they stood.
        if (!DiRiga(elementi.Elementi, chiave)) {
            y.Unisce(Sensato(elemento.Y), Sensato(misura.height()));
        }
    }
    return {DiQuanto(x, dove.foglio.width(), dove), DiQuanto(y, dove.foglio.height(), dove)};
}

/// The name, or the first of those with a number after it, that no element of the kind has.
QString NomeLibero(const Modello &modello, Genere genere, const QString &nome)
{
    QString libero = nome;
    for (int k = 2; modello.NomePreso(genere, libero); ++k) {
        libero = nome + u'_' + QString::number(k);
    }
    return libero;
}

Chiave AggiungeRecord(Passo &passo, const Modello &elementi, Chiave chiave, QPointF spostamento,
                      const QString &nome)
{
    const auto aggiunge = [&](auto record) {
        record.Nome = nome;
        record.X = Sensato(record.X) + spostamento.x();
        record.Y = Sensato(record.Y) + spostamento.y();
        return passo.Aggiunge(record);
    };
    switch (chiave.genere) {
    case Genere::Campo:
        return aggiunge(elementi.Campi[chiave.indice]);
    case Genere::Cornice:
        return aggiunge(elementi.Cornici[chiave.indice]);
    case Genere::Immagine:
        break;
    }
    return aggiunge(elementi.Immagini[chiave.indice]);
}

QString Quanti(int numero, Genere genere)
{
    static constexpr std::array<QLatin1String, Generi.size()> Plurali{
        QLatin1String("campi"), QLatin1String("cornici"), QLatin1String("immagini")};
    return QString::number(numero) + u' ' +
           (numero == 1 ? QString(NomeDi(genere)).toLower() : QString(Plurali.at(Posto(genere))));
}

bool HaEliminati(const Modello &modello, Genere genere)
{
    for (int i = 1; i <= modello.UltimoSlot(genere); ++i) {
        if (!modello.Presente(genere, i)) {
            return true;
        }
    }
    return false;
}

} // namespace

QString Incolla::SenzaPosto(const Modello &modello, const ElementiCopiati &elementi,
                            const Parole &parole)
{
    constexpr int Massimo = Tabella<Campo>::UltimoSlot;
    QStringList motivi;
    bool eliminati = false;
    for (const Genere genere : Generi) {
        const int usati = modello.UltimoSlot(genere);
        const int quanti = elementi.Quanti(genere);
        if (usati + quanti > Massimo) {
            motivi.append(QStringLiteral("il modello ha %1 su %2 e %3 %4")
                              .arg(Quanti(usati, genere), QString::number(Massimo),
                                   parole.possessore, QString::number(quanti)));
            eliminati = eliminati || HaEliminati(modello, genere);
        }
    }
    if (motivi.isEmpty()) {
        return {};
    }
    QString testo = QStringLiteral("non c'è posto per %1: %2")
                        .arg(parole.infinito, motivi.join(QStringLiteral("; ")));
    if (eliminati) {
        testo += QStringLiteral("\n\nAnche gli elementi eliminati contano, fino a quando il "
                                "modello non viene salvato e riaperto.");
    }
    return testo;
}

Incolla::Esito Incolla::Aggiunge(Documento &documento, const ElementiCopiati &elementi,
                                 const Parole &parole, const Dove &dove)
{
    Esito esito;
    const QPointF spostamento = DiQuanto(elementi, dove);
    Passo passo(documento, parole.verbo);
    for (const Chiave &chiave : elementi.Ordine) {
        const QString &nome = elementi.Elementi.Di(chiave).Nome;
        // The file of an image is its name: whoever copies it has seen to it that it is free.
        const QString libero = chiave.genere == Genere::Immagine
                                   ? nome
                                   : NomeLibero(documento.Aperto(), chiave.genere, nome);
        if (chiave.genere == Genere::Campo && libero != nome) {
            esito.rinominati.append(libero);
        }
        esito.nuovi.append(AggiungeRecord(passo, elementi.Elementi, chiave, spostamento, libero));
    }
    if (!esito.nuovi.isEmpty()) {
        passo.Nomina(parole.verbo + u' ' + documento.Denominazione(esito.nuovi));
    }
    return esito;
}

#include "documento/UltimeCorrezioni.h"

#include "base/ErroreSistema.h"
#include "sistema/Disco.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using CorrezioneGriglia::Spostamento;

namespace {

constexpr qint64 ByteMassimi = 1'000'000;
/// The oldest go first.
constexpr qsizetype ModelliMassimi = 200;

constexpr QLatin1String ChiaveX("a destra");
constexpr QLatin1String ChiaveY("in basso");
constexpr QLatin1String ChiaveModelli("modelli");

/// One entry for each printer; empty for whatever cannot be read.
QJsonObject Letto(const QString &percorso)
{
    try {
        return QJsonDocument::fromJson(Disco::Legge(percorso, ByteMassimi)).object();
    } catch (const ErroreSistema &) {
        return {}; // there need not be any
    }
}

std::optional<int> Millimetri(const QJsonValue &valore)
{
    const double numero = valore.toDouble(std::nan(""));
    // Also false for what is no number.
    if (!(std::abs(numero) <= 2 * CorrezioneGriglia::MillimetriMassimi) ||
        numero != std::floor(numero)) {
        return std::nullopt;
    }
    return int(numero);
}

std::optional<Spostamento> SpostamentoIn(const QJsonObject &voce)
{
    const std::optional<int> dx = Millimetri(voce.value(ChiaveX));
    const std::optional<int> dy = Millimetri(voce.value(ChiaveY));
    if (!dx || !dy) {
        return std::nullopt;
    }
    return Spostamento{*dx, *dy};
}

} // namespace

QString UltimeCorrezioni::Percorso() const
{
    return cartella_ + QStringLiteral("/correzioni.json");
}

std::optional<Spostamento> UltimeCorrezioni::Proposta(const QString &stampante,
                                                      const QString &modello) const
{
    if (cartella_.isEmpty() || stampante.isEmpty()) {
        return std::nullopt;
    }
    const QJsonObject voce = Letto(Percorso()).value(stampante).toObject();
    if (voce.value(ChiaveModelli).toArray().contains(modello)) {
        return std::nullopt;
    }
    const std::optional<Spostamento> spostamento = SpostamentoIn(voce);
    return spostamento && !spostamento->Nullo() ? spostamento : std::nullopt;
}

void UltimeCorrezioni::Scrive(const QJsonObject &tutte) const
{
    Disco::CreaCartellaPrivata(cartella_);
    Disco::SostituisceInPrivato(Percorso(), QJsonDocument(tutte).toJson());
}

UltimeCorrezioni::Cambio UltimeCorrezioni::Ricorda(const QString &stampante, const QString &modello,
                                                   const Spostamento &spostamento) const
{
    if (cartella_.isEmpty() || stampante.isEmpty()) {
        return {};
    }
    QJsonObject tutte = Letto(Percorso());
    const QJsonObject prima = tutte.value(stampante).toObject();
    // Another shift is another finding: the models that have had the one before may need it.
    QJsonArray modelli =
        SpostamentoIn(prima) == spostamento ? prima.value(ChiaveModelli).toArray() : QJsonArray();
    if (!modelli.contains(modello)) {
        modelli.append(modello);
    }
    while (modelli.size() > ModelliMassimi) {
        modelli.removeFirst();
    }
    const QJsonObject dopo{
        {ChiaveX, spostamento.Dx}, {ChiaveY, spostamento.Dy}, {ChiaveModelli, modelli}};
    tutte.insert(stampante, dopo);
    Scrive(tutte);
    return {prima, dopo};
}

void UltimeCorrezioni::Ritira(const QString &stampante, const Cambio &cambio) const
{
    QJsonObject tutte = Letto(Percorso());
    // Also where nothing was ever remembered, for want of a folder or a printer.
    if (cambio.Dopo.isEmpty() || tutte.value(stampante).toObject() != cambio.Dopo) {
        return;
    }
    if (cambio.Prima.isEmpty()) {
        tutte.remove(stampante);
    } else {
        tutte.insert(stampante, cambio.Prima);
    }
    Scrive(tutte);
}

void UltimeCorrezioni::Dimentica(const QString &stampante) const
{
    QJsonObject tutte = Letto(Percorso());
    if (cartella_.isEmpty() || !tutte.contains(stampante)) {
        return;
    }
    tutte.remove(stampante);
    Scrive(tutte);
}

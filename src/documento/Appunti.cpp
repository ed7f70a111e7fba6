#include "documento/Appunti.h"

#include "base/Ansi.h"
#include "base/ErroreSistema.h"
#include "model/FileModello.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>

#include <algorithm>

namespace {

constexpr qsizetype OrigineMassima = qsizetype(64) * 1024; // bytes; paths are far shorter
constexpr QLatin1String VoceCartella("cartella");
constexpr QLatin1String VoceOrdine("ordine");

void CopiaRecord(const Modello &da, Chiave chiave, Modello &a, int n)
{
    switch (chiave.genere) {
    case Genere::Campo:
        a.Campi[n] = da.Campi[chiave.indice];
        break;
    case Genere::Cornice:
        a.Cornici[n] = da.Cornici[chiave.indice];
        break;
    case Genere::Immagine:
        a.Immagini[n] = da.Immagini[chiave.indice];
        break;
    }
}

/// All elements, kind by kind in table order.
QList<Chiave> InOrdineDiTabella(const Modello &elementi)
{
    QList<Chiave> chiavi;
    for (const Genere genere : Generi) {
        for (int i = 1; i <= elementi.UltimoSlot(genere); ++i) {
            chiavi.append({genere, i});
        }
    }
    return chiavi;
}

QByteArray ComponeOrigine(const ElementiCopiati &elementi)
{
    const QList<Chiave> diTabella = InOrdineDiTabella(elementi.Elementi);
    QJsonArray ordine;
    for (const Chiave &chiave : elementi.Ordine) {
        ordine.append(int(diTabella.indexOf(chiave)));
    }
    const QJsonObject origine{{VoceCartella, elementi.CartellaFonte}, {VoceOrdine, ordine}};
    return QJsonDocument(origine).toJson(QJsonDocument::Compact);
}

/// The elements in the order that the origin tells; as they are where it does not name each once.
QList<Chiave> Riordinate(const QList<Chiave> &diTabella, const QJsonArray &ordine)
{
    QList<Chiave> riordinate;
    for (const auto &valore : ordine) {
        const int posto = valore.toInt(-1);
        if (posto < 0 || posto >= diTabella.size() || riordinate.contains(diTabella[posto])) {
            return diTabella;
        }
        riordinate.append(diTabella[posto]);
    }
    return riordinate.size() == diTabella.size() ? riordinate : diTabella;
}

void LeggeOrigine(const QByteArray &byte, ElementiCopiati &elementi)
{
    elementi.Ordine = InOrdineDiTabella(elementi.Elementi);
    if (byte.size() > OrigineMassima) {
        return;
    }
    const QJsonObject origine = QJsonDocument::fromJson(byte).object();
    elementi.Ordine = Riordinate(elementi.Ordine, origine[VoceOrdine].toArray());
    const QString cartella = origine[VoceCartella].toString();
    // A path relative to wherever this program happens to run would lead anywhere, and half of a
    // surrogate pair is no path: the standard library throws its own exception at it.
    if (cartella.isValidUtf16() && !cartella.contains(QChar::Null) &&
        QFileInfo(cartella).isAbsolute()) {
        elementi.CartellaFonte = cartella;
    }
}

/// The elements of the lines, if composing them gives the very same lines: the model file's reader
/// takes much that its writer never writes, files cut short above all.
std::optional<Modello> LeggeElementi(const QByteArray &byte)
{
    if (byte.size() > FileModello::DimensioneMassima) {
        return std::nullopt;
    }
    Modello elementi;
    try {
        FileModello::AnalizzaElementi(byte, elementi);
    } catch (const ErroreSistema &) {
        return std::nullopt; // cut short, too many elements or too large a number: not ours
    }
    const QList<Chiave> chiavi = InOrdineDiTabella(elementi);
    if (chiavi.isEmpty() || FileModello::ComponiElementi(elementi, QLocale::c()) != byte) {
        return std::nullopt;
    }
    return elementi;
}

} // namespace

ElementiCopiati ElementiCopiati::Da(const Modello &modello, const QList<Chiave> &chiavi,
                                    const QString &cartella)
{
    ElementiCopiati copiati;
    copiati.CartellaFonte = QFileInfo(cartella).absoluteFilePath();
    for (const Chiave &chiave : chiavi) {
        if (!modello.Presente(chiave.genere, chiave.indice)) {
            continue;
        }
        const int n = ++copiati.Elementi.Numero(chiave.genere);
        CopiaRecord(modello, chiave, copiati.Elementi, n);
        copiati.Ordine.append({chiave.genere, n});
    }
    return copiati;
}

int ElementiCopiati::Quanti(Genere genere) const
{
    return int(std::count_if(Ordine.begin(), Ordine.end(),
                             [genere](Chiave chiave) { return chiave.genere == genere; }));
}

std::unique_ptr<QMimeData> Appunti::Compone(const ElementiCopiati &elementi)
{
    const QByteArray righe = FileModello::ComponiElementi(elementi.Elementi, QLocale::c());
    auto contenuto = std::make_unique<QMimeData>();
    contenuto->setData(TipoElementi, righe);
    contenuto->setData(TipoOrigine, ComponeOrigine(elementi));
    contenuto->setText(Ansi::DaByte(righe));
    return contenuto;
}

std::optional<ElementiCopiati> Appunti::Legge(const QMimeData *contenuto)
{
    if (contenuto == nullptr || !contenuto->hasFormat(TipoElementi)) {
        return std::nullopt;
    }
    std::optional<Modello> elementi = LeggeElementi(contenuto->data(TipoElementi));
    if (!elementi) {
        return std::nullopt;
    }
    ElementiCopiati copiati;
    copiati.Elementi = std::move(*elementi);
    LeggeOrigine(contenuto->data(TipoOrigine), copiati);
    return copiati;
}

#include "editor/RigheElenco.h"

#include "dialogs/MemoriaCaselle.h"
#include "documento/Passo.h"
#include "finestre/Guardia.h"
#include "grafica/Testo.h"
#include "model/FoglioCarta.h"
#include "model/Numeri.h"
#include "preview/MisuraSuCarta.h"

#include <QColor>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <cmath>

namespace {

struct Intestazione
{
    QLatin1String titolo;
    QLatin1String aiuto;
};

constexpr std::array<Intestazione, RigheElenco::NumeroColonne> Intestazioni{
    Intestazione{QLatin1String("Genere"), QLatin1String("campo, cornice o immagine")},
    Intestazione{QLatin1String("Nome"), QLatin1String("nome dell'elemento")},
    Intestazione{QLatin1String("Testo"), QLatin1String("testo di prova o scritta")},
    Intestazione{QLatin1String("X"), QLatin1String("millimetri dal bordo sinistro del foglio")},
    Intestazione{QLatin1String("Y"), QLatin1String("millimetri dal bordo superiore del foglio")},
    Intestazione{QLatin1String("Larghezza"), QLatin1String("millimetri")},
    Intestazione{QLatin1String("Altezza"), QLatin1String("millimetri")},
    Intestazione{QLatin1String("Font"), QLatin1String("carattere, punti, grassetto")}};

bool Numerica(int colonna)
{
    return colonna >= RigheElenco::ColonnaX && colonna <= RigheElenco::ColonnaAltezza;
}

int Allineamento(int colonna)
{
    return int(Qt::AlignVCenter | (Numerica(colonna) ? Qt::AlignRight : Qt::AlignLeft));
}

/// A grey that can be read on the paper of the lists, light or dark.
QColor Grigio()
{
    constexpr QRgb SuChiaro = qRgb(0x66, 0x66, 0x66);
    constexpr QRgb SuScuro = qRgb(0xa8, 0xa8, 0xa8);
    constexpr int Mezzo = 128;
    return QGuiApplication::palette().color(QPalette::Base).lightness() < Mezzo ? SuScuro
                                                                                : SuChiaro;
}

/// The test text or caption, and the font in words; images have neither.
template <typename Record>
QString TestoDi(const Record &record)
{
    if constexpr (requires { record.Testo; }) {
        return record.Testo;
    }
    return {};
}

template <typename Record>
QString FontDi(const Record &record)
{
    QString testo;
    if constexpr (requires { record.Font; }) {
        testo = record.Font + u' ' + QString::number(record.Dimensione);
        if (record.Grassetto != Falso) {
            testo += QStringLiteral(" grassetto");
        }
    }
    return testo;
}

bool Barrato(const Modello &modello, Chiave chiave)
{
    return chiave.genere == Genere::Campo && modello.Campi[chiave.indice].Barrato();
}

} // namespace

RigheElenco::RigheElenco(Documento &documento, QObject *padre)
    : QAbstractTableModel(padre)
    , documento_(documento)
{
    for (const Genere genere : Generi) {
        righe_.at(Posto(genere)) = documento_.Aperto().UltimoSlot(genere);
    }
    connect(&documento_, &Documento::Cambiato, this, &RigheElenco::SegueDocumento);
}

int RigheElenco::PrimaRiga(Genere genere) const
{
    int riga = 0;
    for (const Genere prima : Generi) {
        if (prima == genere) {
            break;
        }
        riga += righe_.at(Posto(prima));
    }
    return riga;
}

Chiave RigheElenco::ChiaveDi(int riga) const
{
    for (const Genere genere : Generi) {
        if (riga < righe_.at(Posto(genere))) {
            return {genere, riga + 1};
        }
        riga -= righe_.at(Posto(genere));
    }
    return {};
}

int RigheElenco::RigaDi(Chiave chiave) const
{
    const bool presente = chiave.indice >= 1 && chiave.indice <= righe_.at(Posto(chiave.genere));
    return presente ? PrimaRiga(chiave.genere) + chiave.indice - 1 : -1;
}

int RigheElenco::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : righe_[0] + righe_[1] + righe_[2];
}

int RigheElenco::columnCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : NumeroColonne;
}

void RigheElenco::SegueDocumento(const Cambiamento &cambiamento)
{
    if (cambiamento.origine == Cambiamento::Origine::Apertura) {
        beginResetModel();
        misure_.clear();
        for (const Genere genere : Generi) {
            righe_.at(Posto(genere)) = documento_.Aperto().UltimoSlot(genere);
        }
        endResetModel();
        return;
    }
    for (const Genere genere : Generi) {
        AdeguaRighe(genere);
    }
    const bool gesto = cambiamento.origine == Cambiamento::Origine::Gesto;
    for (const Chiave &chiave : cambiamento.Elementi()) {
        if (gesto) {
            Segnala(chiave, ColonnaX, ColonnaAltezza);
        } else {
            misure_.erase(chiave);
            Segnala(chiave, ColonnaGenere, ColonnaFont);
        }
    }
}

void RigheElenco::AdeguaRighe(Genere genere)
{
    int &righe = righe_.at(Posto(genere));
    const int ultimo = documento_.Aperto().UltimoSlot(genere);
    const int prima = PrimaRiga(genere);
    if (ultimo > righe) {
        beginInsertRows({}, prima + righe, prima + ultimo - 1);
        righe = ultimo;
        endInsertRows();
    } else if (ultimo < righe) {
        beginRemoveRows({}, prima + ultimo, prima + righe - 1);
        righe = ultimo;
        endRemoveRows();
    }
}

void RigheElenco::Segnala(Chiave chiave, Colonna da, Colonna a)
{
    if (const int riga = RigaDi(chiave); riga >= 0) {
        emit dataChanged(index(riga, da), index(riga, a));
    }
}

QSizeF RigheElenco::Misura(Chiave chiave) const
{
    if (chiave.genere != Genere::Campo) {
        return MisuraSuCarta(documento_.Aperto(), chiave);
    }
    auto misura = misure_.find(chiave);
    if (misura == misure_.end()) {
        misura = misure_.emplace(chiave, MisuraSuCarta(documento_.Aperto(), chiave)).first;
    }
    return misura->second;
}

QVariant RigheElenco::Ordine(Chiave chiave, int colonna) const
{
    switch (colonna) {
    case ColonnaX:
        return documento_.Aperto().Di(chiave).X;
    case ColonnaY:
        return documento_.Aperto().Di(chiave).Y;
    case ColonnaLarghezza:
        return Misura(chiave).width();
    case ColonnaAltezza:
        return Misura(chiave).height();
    default:
        return Testo(chiave, colonna);
    }
}

QVariant RigheElenco::Testo(Chiave chiave, int colonna) const
{
    const Modello &modello = documento_.Aperto();
    switch (colonna) {
    case ColonnaGenere:
        return QString(NomeDi(chiave.genere));
    case ColonnaNome:
        return SuUnaRiga(documento_.InVista(chiave) ? modello.Di(chiave).Nome
                                                    : documento_.Voce(chiave));
    case ColonnaTesto:
        return SuUnaRiga(modello.Con(
            chiave.genere, [&](const auto &tabella) { return TestoDi(tabella[chiave.indice]); }));
    case ColonnaFont:
        return SuUnaRiga(modello.Con(
            chiave.genere, [&](const auto &tabella) { return FontDi(tabella[chiave.indice]); }));
    default:
        return Numeri::Decimi(Ordine(chiave, colonna).toDouble());
    }
}

QVariant RigheElenco::data(const QModelIndex &indice, int ruolo) const
{
    if (!indice.isValid()) {
        return {};
    }
    const Chiave chiave = ChiaveDi(indice.row());
    const int colonna = indice.column();
    switch (ruolo) {
    case Qt::DisplayRole:
        return Testo(chiave, colonna);
    case Qt::ToolTipRole: // of what is too long for its column
        return Numerica(colonna) ? QVariant() : Testo(chiave, colonna);
    case Qt::EditRole:
        return Numerica(colonna) ? Numeri::NumeroPiano(Ordine(chiave, colonna).toDouble())
                                 : Testo(chiave, colonna);
    case RuoloOrdine:
        return Ordine(chiave, colonna);
    case Qt::TextAlignmentRole:
        return Allineamento(colonna);
    case Qt::ForegroundRole:
        return documento_.InVista(chiave) ? QVariant() : Grigio();
    case Qt::FontRole:
        if (Barrato(documento_.Aperto(), chiave)) {
            QFont font; // all but the stroke is the list's own
            font.setStrikeOut(true);
            return font;
        }
        return {};
    case Qt::AccessibleDescriptionRole:
        return Barrato(documento_.Aperto(), chiave) ? QStringLiteral("non stampato") : QString();
    default:
        return {};
    }
}

QVariant RigheElenco::headerData(int sezione, Qt::Orientation verso, int ruolo) const
{
    if (verso == Qt::Horizontal && sezione >= 0 && sezione < NumeroColonne) {
        const Intestazione &intestazione = Intestazioni.at(static_cast<std::size_t>(sezione));
        switch (ruolo) {
        case Qt::DisplayRole:
            return QString(intestazione.titolo);
        case Qt::ToolTipRole:
        case Qt::AccessibleDescriptionRole:
            return QString(intestazione.aiuto);
        case Qt::TextAlignmentRole:
            return Allineamento(sezione);
        default:
            break;
        }
    }
    return QAbstractTableModel::headerData(sezione, verso, ruolo);
}

bool RigheElenco::Modificabile(Chiave chiave, int colonna) const
{
    if (!documento_.InVista(chiave)) {
        return false;
    }
    // A row field stands at the beginning of the rows, whatever height it is given.
    return colonna == ColonnaX ||
           (colonna == ColonnaY && (chiave.genere != Genere::Campo ||
                                    !CampoDiRiga(documento_.Aperto().Campi[chiave.indice])));
}

Qt::ItemFlags RigheElenco::flags(const QModelIndex &indice) const
{
    if (!indice.isValid()) {
        return Qt::NoItemFlags;
    }
    const Chiave chiave = ChiaveDi(indice.row());
    Qt::ItemFlags segni = Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    segni.setFlag(Qt::ItemIsSelectable, documento_.InVista(chiave));
    segni.setFlag(Qt::ItemIsEditable, Modificabile(chiave, indice.column()));
    return segni;
}

bool RigheElenco::setData(const QModelIndex &indice, const QVariant &valore, int ruolo)
{
    if (ruolo != Qt::EditRole || !(flags(indice) & Qt::ItemIsEditable)) {
        return false;
    }
    const QString testo = valore.toString();
    if (testo == data(indice, Qt::EditRole).toString()) {
        return true; // looked at, not changed: the digits that a text leaves out stay
    }
    const std::optional<double> posto = Numeri::Numerico(testo);
    if (!posto) {
        const QString titolo = Intestazioni.at(static_cast<std::size_t>(indice.column())).titolo;
        emit Avviso(NonNumero(titolo, testo));
        return false;
    }
    return Guardia(nullptr, [&] { Sposta(ChiaveDi(indice.row()), indice.column(), *posto); });
}

void RigheElenco::Sposta(Chiave chiave, int colonna, double posto)
{
    const bool inX = colonna == ColonnaX;
    const double foglio = inX ? FoglioCarta::Larghezza : FoglioCarta::Altezza;
    const double misura = inX ? Misura(chiave).width() : Misura(chiave).height();
    double nuovo = chiave.genere == Genere::Immagine ? posto : Numeri::Ar(posto);
    const double entro = FoglioCarta::Dentro(nuovo, misura, foglio);
    if (entro != nuovo) {
        // What stands at whole millimetres must not be rounded out of the sheet again.
        nuovo = chiave.genere == Genere::Immagine ? entro : std::floor(entro);
    }
    const Elemento &elemento = documento_.Aperto().Di(chiave);
    const QPointF angolo = inX ? QPointF(nuovo, elemento.Y) : QPointF(elemento.X, nuovo);
    if (angolo != QPointF(elemento.X, elemento.Y)) {
        Passo passo(documento_, QStringLiteral("sposta ") + documento_.Denominazione(chiave));
        passo.Trascina(chiave, angolo);
        passo.Colloca(chiave);
    }
    if (entro != posto && entro != Numeri::Ar(posto)) {
        emit Avviso(QStringLiteral("%1: %2 è fuori dal foglio; l'elemento sta a %3 mm")
                        .arg(QString(Intestazioni.at(static_cast<std::size_t>(colonna)).titolo),
                             Numeri::Decimi(posto), Numeri::Decimi(nuovo)));
    }
}

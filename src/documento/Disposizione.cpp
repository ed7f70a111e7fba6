#include "documento/Disposizione.h"

#include "model/FoglioCarta.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace {

/// What a command is for undo, and what it does along each axis.
struct Descrizione
{
    const char16_t *testo;
    bool attraverso;     ///< moves or resizes across the sheet
    bool inGiu;          ///< and down it
    bool misure = false; ///< changes sizes and not places
    double ancora = 0;   ///< of the element, which is put on that of the last one: 0 the near edge
};

const Descrizione &Di(Disponi comando)
{
    static constexpr std::array<Descrizione, 11> Tutte{{
        {u"allinea a sinistra", true, false, false, 0},
        {u"centra in orizzontale", true, false, false, 0.5},
        {u"allinea a destra", true, false, false, 1},
        {u"allinea in alto", false, true, false, 0},
        {u"centra in verticale", false, true, false, 0.5},
        {u"allinea in basso", false, true, false, 1},
        {u"distribuisce in orizzontale", true, false},
        {u"distribuisce in verticale", false, true},
        {u"stessa larghezza", true, false, true},
        {u"stessa altezza", false, true, true},
        {u"stesse misure", true, true, true},
    }};
    return Tutte.at(static_cast<std::size_t>(comando));
}

bool EDistribuzione(Disponi comando)
{
    return comando == Disponi::DistribuisceAttraverso || comando == Disponi::DistribuisceInGiu;
}

/// Counts what a command leaves out, by reason.
class Esclusi
{
public:
    void CampoDiRiga() { ++righe_; }
    void SenzaMisura() { ++senzaMisura_; }
    void Intero() { ++interi_; }

    QString Motivo() const
    {
        QStringList motivi;
        Aggiunge(motivi, righe_, u"i campi di riga stanno all'inizio delle righe");
        Aggiunge(motivi, senzaMisura_, u"campi ed etichette sono grandi quanto il loro testo");
        Aggiunge(motivi, interi_, u"campi e cornici stanno su millimetri interi");
        return motivi.join(QStringLiteral("; "));
    }

private:
    static void Aggiunge(QStringList &motivi, int quanti, const char16_t *perche)
    {
        if (quanti > 0) {
            motivi.append(QStringLiteral("%1: %2").arg(
                quanti == 1 ? QStringLiteral("1 elemento lasciato")
                            : QStringLiteral("%1 elementi lasciati").arg(quanti),
                QString::fromUtf16(perche)));
        }
    }

    int righe_ = 0;
    int senzaMisura_ = 0;
    int interi_ = 0;
};

double Inizio(const QRectF &posto, Qt::Orientation verso)
{
    return verso == Qt::Horizontal ? posto.left() : posto.top();
}

double Lato(const QRectF &posto, Qt::Orientation verso)
{
    return verso == Qt::Horizontal ? posto.width() : posto.height();
}

double LatoFoglio(Qt::Orientation verso)
{
    return verso == Qt::Horizontal ? FoglioCarta::Larghezza : FoglioCarta::Altezza;
}

QPointF Con(const QRectF &posto, Qt::Orientation verso, double inizio)
{
    const double nelFoglio = FoglioCarta::Dentro(inizio, Lato(posto, verso), LatoFoglio(verso));
    return verso == Qt::Horizontal ? QPointF(nelFoglio, posto.top())
                                   : QPointF(posto.left(), nelFoglio);
}

void Mette(Passo &passo, Chiave chiave, QPointF posto)
{
    passo.Trascina(chiave, posto);
    passo.Colloca(chiave);
}

/// As united, but what has no size counts where it stands.
QRectF Insieme(const std::optional<QRectF> &uno, const QRectF &altro)
{
    if (!uno) {
        return altro;
    }
    return {
        QPointF(std::min(uno->left(), altro.left()), std::min(uno->top(), altro.top())),
        QPointF(std::max(uno->right(), altro.right()), std::max(uno->bottom(), altro.bottom()))};
}

QString ChiaveUnione(const QString &cosa, const QList<Chiave> &elementi, double x, double y)
{
    QString chiave = QStringLiteral("%1 %2 %3").arg(cosa).arg(x).arg(y);
    for (const Chiave &elemento : elementi) {
        chiave += QStringLiteral(" %1.%2").arg(Posto(elemento.genere)).arg(elemento.indice);
    }
    return chiave;
}

bool CampoDiRiga(const Modello &modello, Chiave chiave)
{
    return chiave.genere == Genere::Campo && CampoDiRiga(modello.Campi[chiave.indice]);
}

/// As large as its text: no command gives it a size.
bool GrandeQuantoIlTesto(const Modello &modello, Chiave chiave)
{
    return chiave.genere == Genere::Campo ||
           (chiave.genere == Genere::Cornice && modello.Cornici[chiave.indice].Bordo == 0);
}

} // namespace

Disposizione::Disposizione(Documento &documento, MisuraElemento misura)
    : documento_(documento)
    , misura_(std::move(misura))
{
}

QRectF Disposizione::Posto(Chiave chiave) const
{
    const Elemento &elemento = Aperto().Di(chiave);
    return {QPointF(elemento.X, elemento.Y), misura_(chiave)};
}

bool Disposizione::Mobile(Disponi comando, Chiave chiave) const
{
    const Descrizione &descrizione = Di(comando);
    return descrizione.misure ? !GrandeQuantoIlTesto(Aperto(), chiave)
                              : descrizione.attraverso || !CampoDiRiga(Aperto(), chiave);
}

QList<Chiave> Disposizione::Mobili(Disponi comando, const QList<Chiave> &elementi,
                                   QString *motivo) const
{
    QList<Chiave> mobili;
    Esclusi esclusi;
    for (const Chiave &chiave : elementi) {
        if (Mobile(comando, chiave)) {
            mobili.append(chiave);
        } else if (Di(comando).misure) {
            esclusi.SenzaMisura();
        } else {
            esclusi.CampoDiRiga();
        }
    }
    if (motivo != nullptr) {
        *motivo = esclusi.Motivo();
    }
    return mobili;
}

bool Disposizione::Puo(Disponi comando, const QList<Chiave> &elementi) const
{
    if (elementi.size() < 2) {
        return false;
    }
    if (EDistribuzione(comando)) {
        return Mobili(comando, elementi, nullptr).size() > 2;
    }
    return !Mobili(comando, elementi.first(elementi.size() - 1), nullptr).isEmpty();
}

QString Disposizione::Esegue(Disponi comando, const QList<Chiave> &elementi)
{
    if (!Puo(comando, elementi)) {
        return {};
    }
    const Descrizione &descrizione = Di(comando);
    // The last one stays as it is, whatever it is: the others are brought to it.
    const bool alUltimo = !EDistribuzione(comando);
    QString motivo;
    const QList<Chiave> mossi =
        Mobili(comando, alUltimo ? elementi.first(elementi.size() - 1) : elementi, &motivo);
    const QRectF ultimo = Posto(elementi.constLast());
    Passo passo(documento_,
                QString::fromUtf16(descrizione.testo) + u' ' + documento_.Denominazione(elementi));
    passo.SoloSeCambia();
    if (descrizione.misure) {
        Uguaglia(passo, comando, mossi, ultimo.size());
    } else if (alUltimo) {
        Allinea(passo, comando, mossi, ultimo);
    } else {
        Distribuisce(passo, descrizione.attraverso ? Qt::Horizontal : Qt::Vertical, mossi);
    }
    return motivo;
}

void Disposizione::Allinea(Passo &passo, Disponi dove, const QList<Chiave> &mossi,
                           const QRectF &riferimento)
{
    const Descrizione &descrizione = Di(dove);
    const Qt::Orientation verso = descrizione.attraverso ? Qt::Horizontal : Qt::Vertical;
    const double ancora =
        Inizio(riferimento, verso) + Lato(riferimento, verso) * descrizione.ancora;
    for (const Chiave &chiave : mossi) {
        const QRectF posto = Posto(chiave);
        Mette(passo, chiave, Con(posto, verso, ancora - Lato(posto, verso) * descrizione.ancora));
    }
}

void Disposizione::Distribuisce(Passo &passo, Qt::Orientation verso, QList<Chiave> mossi)
{
    const auto inizio = [&](Chiave chiave) { return Inizio(Posto(chiave), verso); };
    std::stable_sort(mossi.begin(), mossi.end(),
                     [&](Chiave a, Chiave b) { return inizio(a) < inizio(b); });
    double occupato = 0; // by all but the last
    for (const Chiave &chiave : mossi.first(mossi.size() - 1)) {
        occupato += Lato(Posto(chiave), verso);
    }
    const double primo = inizio(mossi.constFirst());
    const double spazio =
        (inizio(mossi.constLast()) - primo - occupato) / static_cast<double>(mossi.size() - 1);
    double dove = primo;
    // The outer two stay. What lies between is rounded each for itself, so no error adds up.
    for (const Chiave &chiave : mossi.first(mossi.size() - 1)) {
        const QRectF posto = Posto(chiave);
        if (chiave != mossi.constFirst()) {
            Mette(passo, chiave, Con(posto, verso, dove));
        }
        dove += Lato(posto, verso) + spazio;
    }
}

void Disposizione::Uguaglia(Passo &passo, Disponi quale, const QList<Chiave> &mossi,
                            const QSizeF &misura)
{
    const Descrizione &descrizione = Di(quale);
    for (const Chiave &chiave : mossi) {
        QRectF posto = Posto(chiave);
        if (descrizione.attraverso) {
            posto.setWidth(misura.width());
        }
        if (descrizione.inGiu) {
            posto.setHeight(misura.height());
        }
        passo.Ridimensiona(chiave, posto.size());
        // Where the new size has no room, the element gives way rather than differ from the others.
        const double x = Con(posto, Qt::Horizontal, posto.left()).x();
        Mette(passo, chiave, {x, Con(posto, Qt::Vertical, posto.top()).y()});
    }
}

QString Disposizione::Sposta(const QList<Chiave> &elementi, QPointF millimetri)
{
    Esclusi esclusi;
    QList<Chiave> mossi;
    std::optional<QRectF> inX;
    std::optional<QRectF> inY; // the row fields do not go that way
    const bool aDecimi = millimetri != QPointF(millimetri.toPoint());
    for (const Chiave &chiave : elementi) {
        if (aDecimi && chiave.genere != Genere::Immagine) {
            esclusi.Intero();
        } else if (millimetri.x() == 0 && CampoDiRiga(Aperto(), chiave)) {
            esclusi.CampoDiRiga();
        } else {
            mossi.append(chiave);
            inX = Insieme(inX, Posto(chiave));
            if (!CampoDiRiga(Aperto(), chiave)) {
                inY = Insieme(inY, Posto(chiave));
            }
        }
    }
    if (mossi.isEmpty()) {
        return esclusi.Motivo();
    }
    QPointF scarto;
    if (inX) {
        scarto.setX(FoglioCarta::FinoAlBordo(inX->left(), inX->right(), FoglioCarta::Larghezza,
                                             millimetri.x()));
    }
    if (inY) {
        scarto.setY(FoglioCarta::FinoAlBordo(inY->top(), inY->bottom(), FoglioCarta::Altezza,
                                             millimetri.y()));
    }
    if (!aDecimi) {
        // Stopped at part of a millimetre, each element would be rounded by itself.
        scarto = {std::trunc(scarto.x()), std::trunc(scarto.y())};
    }
    Passo passo(documento_, QStringLiteral("sposta ") + documento_.Denominazione(elementi),
                {ChiaveUnione(QStringLiteral("sposta"), elementi, millimetri.x(), millimetri.y()),
                 MillisecondiDiSeguito});
    passo.SoloSeCambia();
    for (const Chiave &chiave : mossi) {
        const Elemento &elemento = Aperto().Di(chiave);
        Mette(passo, chiave, QPointF(elemento.X, elemento.Y) + scarto);
    }
    return esclusi.Motivo();
}

QString Disposizione::Ingrandisce(const QList<Chiave> &elementi, QSizeF millimetri)
{
    QString motivo;
    const QList<Chiave> mossi = Mobili(Disponi::StesseMisure, elementi, &motivo);
    if (mossi.isEmpty()) {
        return motivo;
    }
    Passo passo(documento_, QStringLiteral("ridimensiona ") + documento_.Denominazione(elementi),
                {ChiaveUnione(QStringLiteral("ridimensiona"), elementi, millimetri.width(),
                              millimetri.height()),
                 MillisecondiDiSeguito});
    passo.SoloSeCambia();
    for (const Chiave &chiave : mossi) {
        const QRectF posto = Posto(chiave);
        const auto lato = [](double prima, double dopo, double spazio) {
            // As with the mouse: not past the sheet, or not farther than it was.
            return dopo > prima ? std::min(dopo, std::max(prima, spazio))
                                : std::min(prima, std::max(dopo, FoglioCarta::MisuraMinima));
        };
        passo.Ridimensiona(chiave, {lato(posto.width(), posto.width() + millimetri.width(),
                                         FoglioCarta::Larghezza - posto.left()),
                                    lato(posto.height(), posto.height() + millimetri.height(),
                                         FoglioCarta::Altezza - posto.top())});
        passo.Colloca(chiave);
    }
    return motivo;
}

void Disposizione::Elimina(const QList<Chiave> &elementi)
{
    Passo passo(documento_, QStringLiteral("elimina ") + documento_.Denominazione(elementi));
    for (const Chiave &chiave : elementi) {
        passo.Elimina(chiave);
    }
}

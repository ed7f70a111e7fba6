#include "preview/AccessoFoglio.h"

#include "documento/Disposizione.h"
#include "documento/OrdineDiLettura.h"
#include "documento/StatoProgramma.h"
#include "preview/ElementiFoglio.h"
#include "preview/GeometriaAnteprima.h"
#include "preview/MisuraSuCarta.h"
#include "preview/VistaFoglio.h"

#include <QApplication>

#include <utility>

AccessoFoglio::AccessoFoglio(StatoProgramma &stato, const GeometriaAnteprima &geometria,
                             const ElementiFoglio &elementi, VistaFoglio &foglio)
    : QObject(&foglio)
    , stato_(stato)
    , geometria_(geometria)
    , elementi_(elementi)
    , foglio_(foglio)
    , ascoltato_(QAccessible::isActive())
{
    QAccessible::installActivationObserver(this);
    connect(&stato_.documento, &Documento::Cambiato, this, &AccessoFoglio::SegueDocumento);
    connect(&stato_.selezione, &Selezione::SceltiCambiati, this, &AccessoFoglio::SegueScelti);
    connect(&stato_.selezione, &Selezione::Cambiata, this, &AccessoFoglio::SegueAttivo);
    connect(this, &AccessoFoglio::AperturaRimandata, this, &AccessoFoglio::ApreOra,
            Qt::QueuedConnection);
}

AccessoFoglio::~AccessoFoglio()
{
    QAccessible::removeActivationObserver(this);
}

AccessoFoglio *AccessoFoglio::Di(const QObject *foglio)
{
    return foglio == nullptr
               ? nullptr
               : foglio->findChild<AccessoFoglio *>(QString(), Qt::FindDirectChildrenOnly);
}

const Modello &AccessoFoglio::Aperto() const
{
    return stato_.Aperto();
}

const QList<Chiave> &AccessoFoglio::InOrdine() const
{
    if (std::exchange(daOrdinare_, false)) {
        inOrdine_ = OrdineDiLettura(stato_.documento);
        inOrdine_.removeIf([this](Chiave chiave) { return !InVista(chiave); });
    }
    return inOrdine_;
}

QAccessibleInterface *AccessoFoglio::Interfaccia(Chiave chiave) const
{
    return elementi_.Creato(chiave.genere, chiave.indice)
               ? QAccessible::queryAccessibleInterface(
                     &elementi_.Elemento(chiave.genere, chiave.indice))
               : nullptr;
}

std::optional<Chiave> AccessoFoglio::ElementoIn(QPoint schermo) const
{
    const ControlloElemento *controllo =
        elementi_.ElementoIn(geometria_.Millimetri(QPointF(foglio_.mapFromGlobal(schermo))));
    return controllo == nullptr ? std::nullopt
                                : std::optional(Chiave{controllo->genere, controllo->indice});
}

bool AccessoFoglio::InVista(Chiave chiave) const
{
    return elementi_.InVista(chiave.genere, chiave.indice) && stato_.documento.InVista(chiave);
}

QRect AccessoFoglio::Rettangolo(Chiave chiave) const
{
    const QRect posto = geometria_.Pixel(elementi_.Elemento(chiave.genere, chiave.indice).Posto());
    return {foglio_.mapToGlobal(posto.topLeft()), posto.size()};
}

bool AccessoFoglio::Scoperto(Chiave chiave) const
{
    const QRect scoperto = foglio_.viewport()->visibleRegion().boundingRect();
    return scoperto.translated(foglio_.mapToGlobal(QPoint(0, 0))).intersects(Rettangolo(chiave));
}

bool AccessoFoglio::Scelto(Chiave chiave) const
{
    return stato_.selezione.EScelto(chiave);
}

bool AccessoFoglio::HaIlFuoco(Chiave chiave) const
{
    const QWidget *fuoco = QApplication::focusWidget();
    return chiave == fuoco_ && foglio_.window()->isActiveWindow() &&
           (fuoco == nullptr || fuoco == foglio_.window() || fuoco == &foglio_);
}

void AccessoFoglio::Apre(Chiave chiave)
{
    // The dialog would keep the screen reader waiting for the answer to its request.
    emit AperturaRimandata(chiave.genere, chiave.indice);
}

void AccessoFoglio::ApreOra(Genere genere, int i)
{
    if (QApplication::activeModalWidget() == nullptr && InVista({genere, i})) {
        emit RichiestaProprieta(genere, i);
    }
}

void AccessoFoglio::Sceglie(Chiave chiave)
{
    if (QApplication::activeModalWidget() == nullptr && InVista(chiave)) {
        emit SceltaRichiesta(chiave);
        stato_.selezione.ImpostaScelti({chiave}); // what the keys work on from here
    }
}

void AccessoFoglio::Sposta(Chiave chiave, QPointF di)
{
    if (QApplication::activeModalWidget() == nullptr && InVista(chiave)) {
        Disposizione(stato_.documento, [this](Chiave quale) {
            return MisuraSuCarta(Aperto(), quale);
        }).Sposta({chiave}, di);
    }
}

void AccessoFoglio::SegueDocumento(const Cambiamento &cambiamento)
{
    daOrdinare_ = true;
    if (!ascoltato_) {
        return;
    }
    const QList<Chiave> prima = inOrdine_; // as a screen reader knows them
    for (const Chiave &chiave : cambiamento.Elementi()) {
        if (!prima.contains(chiave) || !InVista(chiave)) {
            continue;
        }
        ControlloElemento *controllo = &elementi_.Elemento(chiave.genere, chiave.indice);
        if (cambiamento.origine != Cambiamento::Origine::Gesto) {
            QAccessibleEvent nome(controllo, QAccessible::NameChanged);
            QAccessible::updateAccessibility(&nome);
            QAccessibleValueChangeEvent testo(controllo,
                                              Interfaccia(chiave)->text(QAccessible::Value));
            QAccessible::updateAccessibility(&testo);
        }
        QAccessibleEvent posto(controllo, QAccessible::LocationChanged);
        QAccessible::updateAccessibility(&posto);
    }
    Annuncia(prima);
}

void AccessoFoglio::Annuncia(const QList<Chiave> &prima) const
{
    const auto annuncia = [this](Chiave chiave, QAccessible::Event cosa) {
        if (elementi_.Creato(chiave.genere, chiave.indice)) {
            QAccessibleEvent evento(&elementi_.Elemento(chiave.genere, chiave.indice), cosa);
            QAccessible::updateAccessibility(&evento);
        }
    };
    for (const Chiave &chiave : prima) {
        if (!InVista(chiave)) {
            annuncia(chiave, QAccessible::ObjectDestroyed);
        }
    }
    for (const Chiave &chiave : InOrdine()) {
        if (!prima.contains(chiave)) {
            annuncia(chiave, QAccessible::ObjectCreated);
        }
    }
}

void AccessoFoglio::Rilegge()
{
    daOrdinare_ = true;
    if (ascoltato_) {
        const QList<Chiave> prima = inOrdine_; // which Annuncia makes anew
        Annuncia(prima);
    }
}

void AccessoFoglio::SegueScelti()
{
    const QList<Chiave> scelti = stato_.selezione.Scelti();
    const QList<Chiave> prima = std::exchange(detti_, scelti);
    if (!ascoltato_) {
        return;
    }
    const auto annuncia = [this](const QList<Chiave> &quali, const QList<Chiave> &tranne,
                                 QAccessible::Event cosa) {
        for (const Chiave &chiave : quali) {
            if (!tranne.contains(chiave) && elementi_.Creato(chiave.genere, chiave.indice)) {
                QAccessibleEvent evento(&elementi_.Elemento(chiave.genere, chiave.indice), cosa);
                QAccessible::updateAccessibility(&evento);
            }
        }
    };
    annuncia(prima, scelti, QAccessible::SelectionRemove);
    annuncia(scelti, prima, QAccessible::SelectionAdd);
    QAccessibleEvent insieme(&foglio_, QAccessible::SelectionWithin);
    QAccessible::updateAccessibility(&insieme);
}

void AccessoFoglio::SegueAttivo(Genere genere)
{
    // Pointing tells the same element at every mouse move.
    const int attivo = stato_.selezione.Attivo(genere);
    if (std::exchange(attivi_.at(Posto(genere)), attivo) == attivo) {
        return;
    }
    if (attivo != 0) {
        fuoco_ = {genere, attivo};
    } else if (fuoco_.genere == genere) {
        fuoco_ = {};
    }
    if (ascoltato_ && attivo != 0 && HaIlFuoco(fuoco_)) {
        QAccessibleEvent evento(&elementi_.Elemento(genere, attivo), QAccessible::Focus);
        QAccessible::updateAccessibility(&evento);
    }
}

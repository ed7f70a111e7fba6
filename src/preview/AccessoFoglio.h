#pragma once

#include "model/Modello.h"

#include <QAccessible>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QRect>

#include <array>
#include <optional>

class Cambiamento;
class ElementiFoglio;
class GeometriaAnteprima;
class VistaFoglio;
struct StatoProgramma;

/// The sheet for those who do not see it: what screen readers ask of its elements, what they can do
/// with them, and the word that something has changed. Without a screen reader nobody asks, and
/// nothing is told. All that it is made of must outlive it; it belongs to the sheet.
class AccessoFoglio : public QObject, private QAccessible::ActivationObserver
{
    Q_OBJECT
public:
    AccessoFoglio(StatoProgramma &stato, const GeometriaAnteprima &geometria,
                  const ElementiFoglio &elementi, VistaFoglio &foglio);
    ~AccessoFoglio() override;

    /// The sheet has been built: its elements are others than before.
    void Rilegge();

    /// The one of the sheet; null when the sheet has none.
    static AccessoFoglio *Di(const QObject *foglio);

    const StatoProgramma &Stato() const { return stato_; }
    const Modello &Aperto() const;
    VistaFoglio &Foglio() const { return foglio_; }
    /// The elements that the sheet shows as they are read: from the top, and from the left in a
    /// line.
    const QList<Chiave> &InOrdine() const;
    /// Null for an element that has no control.
    QAccessibleInterface *Interfaccia(Chiave chiave) const;
    /// The topmost element at a pixel of the screen.
    std::optional<Chiave> ElementoIn(QPoint schermo) const;
    bool InVista(Chiave chiave) const;
    /// The element's rectangle, pixels of the screen.
    QRect Rettangolo(Chiave chiave) const;
    /// False when it is scrolled out of sight.
    bool Scoperto(Chiave chiave) const;
    bool Scelto(Chiave chiave) const;
    /// The element that was selected last, while the keyboard is not in another control.
    bool HaIlFuoco(Chiave chiave) const;

    // What a screen reader lets its user do. A dialog that is open forbids all of it.

    /// The property dialog, once the screen reader has been answered.
    void Apre(Chiave chiave);
    void Sceglie(Chiave chiave);
    /// By so many mm of paper, as the keys would.
    void Sposta(Chiave chiave, QPointF di);

signals:
    void RichiestaProprieta(Genere genere, int i);
    void SceltaRichiesta(Chiave chiave);
    /// To itself: the dialog is to open when the screen reader has its answer.
    void AperturaRimandata(Genere genere, int i);

private:
    void accessibilityActiveChanged(bool attivo) override { ascoltato_ = attivo; }
    void SegueDocumento(const Cambiamento &cambiamento);
    void ApreOra(Genere genere, int i);
    void SegueScelti();
    void SegueAttivo(Genere genere);
    /// Which ones have gone since, and which have come.
    void Annuncia(const QList<Chiave> &prima) const;

    StatoProgramma &stato_;
    const GeometriaAnteprima &geometria_;
    const ElementiFoglio &elementi_;
    VistaFoglio &foglio_;
    bool ascoltato_;                          ///< by a screen reader
    mutable QList<Chiave> inOrdine_;          ///< as they were when last asked for
    mutable bool daOrdinare_ = true;          ///< an element has moved, come or gone since
    QList<Chiave> detti_;                     ///< the chosen ones, as last told
    std::array<int, Generi.size()> attivi_{}; ///< as last told
    Chiave fuoco_;                            ///< slot 0: none
};

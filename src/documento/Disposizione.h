#pragma once

#include "documento/Passo.h"

#include <QList>
#include <QRectF>

#include <functional>

/// Size of an element on paper, mm; a field's is that of its test text as the printer sets it.
using MisuraElemento = std::function<QSizeF(Chiave)>;

/// What can be made of several elements at once. The last of them is the one to which the others
/// are aligned and made equal.
enum class Disponi {
    Sinistra,
    Centro,
    Destra,
    Alto,
    Mezzo,
    Basso,
    DistribuisceAttraverso,
    DistribuisceInGiu,
    StessaLarghezza,
    StessaAltezza,
    StesseMisure
};

/// Commands on several elements of the open model; each is one step and follows the rules of
/// placing: fields and frames at whole millimetres, row fields at yInizio, all on the sheet. What a
/// command cannot do to an element it leaves alone, and returns in words what and why (empty: it
/// left nothing out).
///
/// The elements must be on the sheet.
class Disposizione
{
public:
    /// documento must outlive it.
    Disposizione(Documento &documento, MisuraElemento misura);

    /// False when the command could change none of the elements.
    bool Puo(Disponi comando, const QList<Chiave> &elementi) const;
    QString Esegue(Disponi comando, const QList<Chiave> &elementi);

    /// Shifts the elements as one group, which the sheet stops as a whole, by mm. A shift by less
    /// than a millimetre is for images alone. Presses that follow each other are one step.
    QString Sposta(const QList<Chiave> &elementi, QPointF millimetri);
    /// Makes frames and images larger by mm, 1 mm at least, up to the edge of the sheet; labels
    /// are as large as their text.
    QString Ingrandisce(const QList<Chiave> &elementi, QSizeF millimetri);
    void Elimina(const QList<Chiave> &elementi);

    /// Where the element stands, mm.
    QRectF Posto(Chiave chiave) const;

private:
    bool Mobile(Disponi comando, Chiave chiave) const;
    /// Those that the command may change, of elementi, and in motivo why the others are left out.
    QList<Chiave> Mobili(Disponi comando, const QList<Chiave> &elementi, QString *motivo) const;
    void Allinea(Passo &passo, Disponi dove, const QList<Chiave> &mossi, const QRectF &riferimento);
    void Distribuisce(Passo &passo, Qt::Orientation verso, QList<Chiave> mossi);
    void Uguaglia(Passo &passo, Disponi quale, const QList<Chiave> &mossi, const QSizeF &misura);
    const Modello &Aperto() const { return documento_.Aperto(); }

    Documento &documento_;
    MisuraElemento misura_;
};

#pragma once

#include "model/Modello.h"

#include <QAbstractTableModel>
#include <QSizeF>

#include <array>
#include <map>

class Cambiamento;
class Documento;

/// The elements of the open model as rows of a table, fields, frames and images, each kind in the
/// order of its slots; deleted ones keep their rows. It follows the document row by row. Of what is
/// shown X and Y can be edited: a new place is one step of the history.
class RigheElenco : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Colonna {
        ColonnaGenere,
        ColonnaNome,
        ColonnaTesto,
        ColonnaX,
        ColonnaY,
        ColonnaLarghezza,
        ColonnaAltezza,
        ColonnaFont,
        NumeroColonne
    };
    /// What a column is sorted by: numbers as numbers.
    static constexpr int RuoloOrdine = Qt::UserRole;

    /// documento must outlive it.
    explicit RigheElenco(Documento &documento, QObject *padre = nullptr);

    Chiave ChiaveDi(int riga) const;
    /// -1 for an element that has no row.
    int RigaDi(Chiave chiave) const;

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int ruolo = Qt::DisplayRole) const override;
    QVariant headerData(int sezione, Qt::Orientation verso,
                        int ruolo = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &indice) const override;
    /// Takes the text of a number of mm, in the manner of the property dialogs. False, with the
    /// element where it was, for a text that is none.
    bool setData(const QModelIndex &indice, const QVariant &valore,
                 int ruolo = Qt::EditRole) override;

signals:
    /// What the user has to be told of a place that was not taken, or not as it was typed.
    void Avviso(const QString &testo);

private:
    void SegueDocumento(const Cambiamento &cambiamento);
    void AdeguaRighe(Genere genere);
    void Segnala(Chiave chiave, Colonna da, Colonna a);
    int PrimaRiga(Genere genere) const;
    QSizeF Misura(Chiave chiave) const;
    QVariant Testo(Chiave chiave, int colonna) const;
    QVariant Ordine(Chiave chiave, int colonna) const;
    bool Modificabile(Chiave chiave, int colonna) const;
    void Sposta(Chiave chiave, int colonna, double posto);

    Documento &documento_;
    std::array<int, Generi.size()> righe_{};  ///< of each kind, as the views know them
    mutable std::map<Chiave, QSizeF> misure_; ///< of the texts, set once, not at each comparison
};

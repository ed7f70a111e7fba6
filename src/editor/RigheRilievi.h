#pragma once

#include "controllo/Rilievo.h"

#include <QAbstractListModel>
#include <QList>

/// The findings as rows of a list.
class RigheRilievi : public QAbstractListModel
{
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    /// The rows begin anew, unless they are what they were.
    void Mostra(const QList<Rilievo> &rilievi);
    const QList<Rilievo> &Rilievi() const { return rilievi_; }
    /// The row that tells the same of the same element; -1 when there is none any more.
    int RigaDi(const Rilievo &rilievo) const;

    int rowCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int ruolo) const override;

private:
    QList<Rilievo> rilievi_;
};

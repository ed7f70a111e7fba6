#pragma once

#include <QIdentityProxyModel>

/// What stands between a file dialog of Qt's own and its list of files: tells kinds, sizes and
/// times in Italian whatever the system speaks.
class FileInItaliano : public QIdentityProxyModel
{
    Q_OBJECT
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    QVariant data(const QModelIndex &indice, int ruolo = Qt::DisplayRole) const override;
};

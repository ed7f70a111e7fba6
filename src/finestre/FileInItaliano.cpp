#include "finestre/FileInItaliano.h"

#include <QFileInfo>
#include <QFileSystemModel>
#include <QLocale>

namespace {

// Of QFileSystemModel.
constexpr int ColonnaDimensione = 1;
constexpr int ColonnaTipo = 2;

QString Dimensione(qint64 byte)
{
    constexpr qint64 Kilobyte = 1024;
    const QLocale italiano(QLocale::Italian, QLocale::Italy);
    return byte < Kilobyte
               ? QStringLiteral("%1 byte").arg(byte)
               : italiano.formattedDataSize(byte, 1, QLocale::DataSizeTraditionalFormat);
}

QString Tipo(const QFileInfo &file)
{
    const QString estensione = file.suffix().toUpper();
    return estensione.isEmpty() ? QStringLiteral("File") : QStringLiteral("File ") + estensione;
}

} // namespace

QVariant FileInItaliano::data(const QModelIndex &indice, int ruolo) const
{
    const auto *file = qobject_cast<const QFileSystemModel *>(sourceModel());
    const bool nostra = indice.column() == ColonnaDimensione || indice.column() == ColonnaTipo;
    if (ruolo != Qt::DisplayRole || !nostra || file == nullptr) {
        return QIdentityProxyModel::data(indice, ruolo);
    }
    const QModelIndex suo = mapToSource(indice);
    const QFileInfo informazioni = file->fileInfo(suo);
    if (!informazioni.isFile()) {
        return QIdentityProxyModel::data(indice, ruolo);
    }
    return indice.column() == ColonnaTipo ? Tipo(informazioni) : Dimensione(file->size(suo));
}

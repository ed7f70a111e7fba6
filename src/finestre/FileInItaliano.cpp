#include "finestre/FileInItaliano.h"

#include <QFileInfo>
#include <QFileSystemModel>
#include <QLocale>

namespace {

// Of QFileSystemModel.
constexpr int ColonnaDimensione = 1;
constexpr int ColonnaTipo = 2;
constexpr int ColonnaData = 3;

const QLocale &Italiano()
{
    static const QLocale Locale(QLocale::Italian, QLocale::Italy);
    return Locale;
}

QString Dimensione(qint64 byte)
{
    constexpr qint64 Kilobyte = 1024;
    return byte < Kilobyte
               ? QStringLiteral("%1 byte").arg(byte)
               : Italiano().formattedDataSize(byte, 1, QLocale::DataSizeTraditionalFormat);
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
    if (ruolo != Qt::DisplayRole || file == nullptr) {
        return QIdentityProxyModel::data(indice, ruolo);
    }
    const QModelIndex suo = mapToSource(indice);
    const bool cartella = file->isDir(suo);
    if (indice.column() == ColonnaData) {
        return Italiano().toString(file->lastModified(suo), QLocale::ShortFormat);
    }
    if (indice.column() == ColonnaTipo && !cartella) {
        return Tipo(file->fileInfo(suo));
    }
    if (indice.column() == ColonnaDimensione && !cartella) {
        return Dimensione(file->size(suo));
    }
    return QIdentityProxyModel::data(indice, ruolo);
}

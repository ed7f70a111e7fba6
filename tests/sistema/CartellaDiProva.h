#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

inline const QByteArray Vecchi("i vecchi byte");
inline const QByteArray Nuovi(9000, 'n');

/// The permission bits of a file or folder itself; -1 when there is none.
inline int ModoDi(const QString &percorso)
{
    struct stat stato
    {
    };
    return lstat(QFile::encodeName(percorso).constData(), &stato) == 0 ? int(stato.st_mode & 07777)
                                                                       : -1;
}

/// A folder for each test function, and the path of a model in it.
class CartellaDiProva
{
protected:
    /// For init.
    void NuovaCartella()
    {
        cartella_ = std::make_unique<QTemporaryDir>();
        QVERIFY(cartella_->isValid());
    }
    /// For cleanup.
    void TogliCartella() { cartella_.reset(); }

    /// As the system names it, links resolved.
    QString CartellaVera() const { return QFileInfo(cartella_->path()).canonicalFilePath(); }
    QString In(const QString &nome) const { return cartella_->filePath(nome); }
    QString File() const { return In(QStringLiteral("Fattura.Mod")); }

    std::unique_ptr<QTemporaryDir> cartella_;
};

#pragma once

#include "finestre/Sfoglia.h"
#include "support/Controlli.h"
#include "support/FileDiProva.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QListView>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <memory>

/// The browser on real folders: <temporary folder>/scansioni with three files and two sub-folders.
class SfogliaDiProva
{
protected:
    /// Before each test.
    void Prepara()
    {
        cartella_ = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(cartella_->path()).mkpath(QStringLiteral("scansioni/Vecchie")));
        QVERIFY(QDir(cartella_->path()).mkpath(QStringLiteral("scansioni/bozze")));
        for (const char *nome : {"b.jpg", "A.bmp", "c.gif"}) {
            ScriveFile(In(QStringLiteral("scansioni/") + QString::fromLatin1(nome)), "x");
        }
        RisultatoSfoglia() = QStringLiteral("di prima");
    }

    QString In(const QString &nome) const
    {
        return QDir::toNativeSeparators(cartella_->filePath(nome));
    }

    static QListView *File(const Sfoglia &s) { return Controlli::Trova<QListView>(s, "File1"); }
    static QTreeWidget *Dir(const Sfoglia &s) { return Controlli::Trova<QTreeWidget>(s, "Dir1"); }
    static QComboBox *Drive(const Sfoglia &s) { return Controlli::Trova<QComboBox>(s, "Drive1"); }
    static QString Etichetta(const Sfoglia &s, const char *nome)
    {
        return Controlli::Trova<QLabel>(s, nome)->text();
    }

    void Mostra(Sfoglia &s, const QString &file) const
    {
        s.FileEntrata()->setText(file);
        s.show();
        QVERIFY(QTest::qWaitForWindowExposed(&s));
    }

    static QStringList NomiFile(const Sfoglia &s)
    {
        QStringList nomi;
        const QAbstractItemModel *modello = File(s)->model();
        for (int i = 0; i < modello->rowCount(); ++i) {
            nomi.append(modello->index(i, 0).data().toString());
        }
        return nomi;
    }

    static QString FileScelto(const Sfoglia &s)
    {
        return File(s)->selectionModel()->selectedIndexes().value(0).data().toString();
    }

    static void ScegliFile(const Sfoglia &s, int riga)
    {
        QListView *elenco = File(s);
        const QModelIndex voce = elenco->model()->index(riga, 0);
        QTest::mouseClick(elenco->viewport(), Qt::LeftButton, Qt::NoModifier,
                          elenco->visualRect(voce).center());
    }

    static void DoppioClic(QAbstractItemView *elenco, const QModelIndex &voce)
    {
        elenco->scrollTo(voce);
        const QPoint punto = elenco->visualRect(voce).center();
        QTest::mouseClick(elenco->viewport(), Qt::LeftButton, Qt::NoModifier, punto);
        QTest::mouseDClick(elenco->viewport(), Qt::LeftButton, Qt::NoModifier, punto);
    }

    std::unique_ptr<QTemporaryDir> cartella_;
};

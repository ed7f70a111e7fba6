#pragma once

#include "catalogue/SelezioneArchivifrm.h"
#include "support/Controlli.h"
#include "support/FileDiProva.h"
#include "support/ImpostazioniDiProva.h"
#include "support/Robot.h"

#include <QApplication>
#include <QDir>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// The start window, whose lists are worked with the mouse.
struct FinestraIniziale
{
    /// Loads the window, which must succeed without a message, and shows it. dati: the data folder;
    /// empty for the one that the settings name.
    void Carica(const QString &dati)
    {
        const Robot robot;
        QVERIFY(Finestra.Form_Load(dati));
        QVERIFY(robot.Soddisfatto());
        Mostra();
    }
    void Mostra()
    {
        Finestra.show();
        QVERIFY(QTest::qWaitForWindowExposed(&Finestra));
        QApplication::setActiveWindow(&Finestra);
    }

    QListWidget *Lista(const char *nome) const
    {
        return Controlli::Trova<QListWidget>(Finestra, nome);
    }
    QStringList Voci(const char *nome) const
    {
        QStringList voci;
        for (int i = 0; i < Lista(nome)->count(); ++i) {
            voci.append(Lista(nome)->item(i)->text());
        }
        return voci;
    }
    /// The chosen entry; empty when there is none.
    QString Scelto(const char *nome) const
    {
        const auto scelti = Lista(nome)->selectedItems();
        return scelti.isEmpty() ? QString() : scelti.first()->text();
    }
    void Clic(const char *lista, const QString &voce,
              Qt::KeyboardModifiers tasti = Qt::NoModifier) const
    {
        const auto trovate = Lista(lista)->findItems(voce, Qt::MatchExactly);
        QCOMPARE(trovate.size(), 1);
        QTest::mouseClick(Lista(lista)->viewport(), Qt::LeftButton, tasti,
                          Lista(lista)->visualItemRect(trovate.first()).center());
    }

    StatoProgramma Stato;
    SelezioneArchivifrm Finestra{Stato};
};

/// The start window over a data folder of its own, with the archive "Contabilita".
class ArchiviDiProva : public FinestraIniziale
{
public:
    ArchiviDiProva() { Crea(QStringLiteral("Contabilita")); }

    QString Dati() const
    {
        return QDir::toNativeSeparators(cartella_.filePath(QStringLiteral("dati")));
    }
    /// A full path below the data folder.
    QString In(const QString &nome) const
    {
        return Dati() + QDir::separator() + QDir::toNativeSeparators(nome);
    }
    /// A full path in the models folder of "Contabilita".
    QString Ini(const QString &nome = QString()) const
    {
        return In(QStringLiteral("Contabilita/ini/") + nome);
    }
    void Crea(const QString &archivio) const
    {
        QVERIFY(QDir().mkpath(In(archivio + QStringLiteral("/ini"))));
    }

    void Carica() { FinestraIniziale::Carica(Dati()); }

private:
    const ImpostazioniDiProva impostazioni_;
    QTemporaryDir cartella_;
};

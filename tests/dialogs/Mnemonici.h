#pragma once

#include "support/Controlli.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QStringList>
#include <QTest>

#include <utility>

/// The captions that a user sees in the window, in no particular order; labels of boxes, buttons
/// and frames. Mnemonics are marked as in the form.
inline QStringList Didascalie(const QWidget &finestra)
{
    QStringList testi;
    for (const QWidget *controllo : finestra.findChildren<QWidget *>()) {
        if (!controllo->isVisible()) {
            continue;
        }
        if (const auto *etichetta = qobject_cast<const QLabel *>(controllo)) {
            testi.append(etichetta->text());
        } else if (const auto *bottone = qobject_cast<const QAbstractButton *>(controllo)) {
            testi.append(bottone->text());
        } else if (const auto *riquadro = qobject_cast<const QGroupBox *>(controllo)) {
            testi.append(riquadro->title());
        }
    }
    return testi;
}

/// The captions that share their mnemonic with another one; minimo fails the test of a window that
/// shows fewer mnemonics than it should.
inline QStringList MnemoniciRipetuti(const QWidget &finestra, int minimo)
{
    QMap<QString, QStringList> perTasto;
    for (const QString &testo : Didascalie(finestra)) {
        const QKeySequence tasto = QKeySequence::mnemonic(testo);
        if (!tasto.isEmpty()) {
            perTasto[tasto.toString()].append(testo);
        }
    }
    QStringList ripetuti;
    if (perTasto.size() < minimo) {
        ripetuti.append(QStringLiteral("only %1 mnemonics").arg(perTasto.size()));
    }
    for (const QStringList &testi : std::as_const(perTasto)) {
        if (testi.size() > 1) {
            ripetuti += testi;
        }
    }
    return ripetuti;
}

/// Controls by name, with what each says.
using Detti = QList<std::pair<const char *, const char *>>;

/// Fails the test unless the buttons say this; mnemonics aside.
inline void VerificaBottoni(const QWidget &finestra, const Detti &attesi)
{
    for (const auto &[nome, testo] : attesi) {
        QCOMPARE(Controlli::Trova<QAbstractButton>(finestra, nome)->text().remove(u'&'),
                 QString::fromUtf8(testo));
    }
}

/// Fails the test unless the controls have these tool tips.
inline void VerificaSuggerimenti(const QWidget &finestra, const Detti &attesi)
{
    for (const auto &[nome, testo] : attesi) {
        QCOMPARE(Controlli::Trova<QWidget>(finestra, nome)->toolTip(), QString::fromUtf8(testo));
    }
}

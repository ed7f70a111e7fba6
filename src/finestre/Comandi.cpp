#include "finestre/Comandi.h"

QString TestoConTasti(const QString &testo, const QList<QKeySequence> &tasti)
{
    return tasti.isEmpty() ? testo
                           : QStringLiteral("%1 (%2)").arg(
                                 testo, tasti.constFirst().toString(QKeySequence::NativeText));
}

QAction *CreaComando(QObject *padre, const QString &nome, const QString &testo,
                     const QList<QKeySequence> &tasti, const QIcon &icona)
{
    auto *comando = new QAction(icona, testo, padre);
    comando->setObjectName(nome);
    comando->setToolTip(TestoConTasti(testo, tasti));
    comando->setShortcuts(tasti);
    comando->setShortcutContext(Qt::WindowShortcut);
    return comando;
}

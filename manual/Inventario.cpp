#include "Inventario.h"

#include "Fotografia.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QTabBar>

namespace {

/// What the model calls its columns.
QStringList Intestazioni(const QAbstractItemModel &modello)
{
    QStringList nomi;
    for (int colonna = 0; colonna < modello.columnCount(); ++colonna) {
        nomi.append(modello.headerData(colonna, Qt::Horizontal).toString());
    }
    return nomi;
}

QStringList Scritte(const QWidget &controllo)
{
    QStringList scritte{controllo.windowTitle(), controllo.toolTip(), controllo.accessibleName()};
    if (const auto *bottone = qobject_cast<const QAbstractButton *>(&controllo)) {
        scritte.append(bottone->text());
    } else if (const auto *etichetta = qobject_cast<const QLabel *>(&controllo)) {
        scritte.append(etichetta->text());
    } else if (const auto *gruppo = qobject_cast<const QGroupBox *>(&controllo)) {
        scritte.append(gruppo->title());
    } else if (const auto *menu = qobject_cast<const QMenu *>(&controllo)) {
        scritte.append(menu->title());
    } else if (const auto *elenco = qobject_cast<const QComboBox *>(&controllo)) {
        for (int i = 0; i < elenco->count(); ++i) {
            scritte.append(elenco->itemText(i));
        }
    } else if (const auto *linguette = qobject_cast<const QTabBar *>(&controllo)) {
        for (int i = 0; i < linguette->count(); ++i) {
            scritte.append(linguette->tabText(i));
        }
    } else if (const auto *vista = qobject_cast<const QAbstractItemView *>(&controllo);
               vista != nullptr && vista->model() != nullptr) {
        scritte.append(Intestazioni(*vista->model()));
    }
    return scritte;
}

} // namespace

Inventario::Inventario()
{
    qApp->installEventFilter(this);
}

bool Inventario::eventFilter(QObject *oggetto, QEvent *evento)
{
    // Once more when it goes: some names change with what is done in the window.
    const bool interessa = evento->type() == QEvent::Show || evento->type() == QEvent::Hide;
    if (interessa && oggetto->isWidgetType()) {
        const auto *finestra = static_cast<const QWidget *>(oggetto);
        if (finestra->isWindow()) {
            Legge(*finestra);
        }
    }
    return QObject::eventFilter(oggetto, evento);
}

void Inventario::Legge(const QWidget &finestra)
{
    LeggeNomi(finestra);
    const QList<QWidget *> controlli = finestra.findChildren<QWidget *>();
    for (const QWidget *controllo : controlli) {
        LeggeNomi(*controllo);
    }
    const QList<QShortcut *> scorciatoie = finestra.findChildren<QShortcut *>();
    for (const QShortcut *scorciatoia : scorciatoie) {
        LeggeTasti({scorciatoia->key()});
    }
}

void Inventario::LeggeNomi(const QWidget &controllo)
{
    const QStringList scritte = Scritte(controllo);
    for (const QString &scritta : scritte) {
        nomi_.insert(scritta.simplified());
    }
    const QList<QAction *> comandi = controllo.actions();
    for (const QAction *comando : comandi) {
        nomi_.insert(comando->text().simplified());
        LeggeTasti(comando->shortcuts());
    }
    if (const auto *bottone = qobject_cast<const QAbstractButton *>(&controllo)) {
        LeggeTasti({bottone->shortcut()});
    }
}

void Inventario::LeggeTasti(const QList<QKeySequence> &tasti)
{
    for (const QKeySequence &quali : tasti) {
        tasti_.insert(quali.toString(QKeySequence::PortableText));
    }
}

void Inventario::Scrive(const QString &file) const
{
    QStringList righe;
    for (const QString &nome : nomi_) {
        righe.append(QStringLiteral("nome\t") + nome);
    }
    for (const QString &tasti : tasti_) {
        righe.append(QStringLiteral("tasti\t") + tasti);
    }
    righe.sort();
    const QByteArray testo = righe.join(u'\n').toUtf8() + '\n';
    QFile uscita(file);
    if (!uscita.open(QIODevice::WriteOnly) || uscita.write(testo) != testo.size()) {
        Fallisce(file + QStringLiteral(": ") + uscita.errorString());
    }
}

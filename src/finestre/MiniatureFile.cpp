#include "finestre/MiniatureFile.h"

#include "base/ErroreSistema.h"
#include "finestre/Guardia.h"
#include "grafica/Immagini.h"

#include <QDir>
#include <QListView>
#include <QPainter>
#include <QPixmap>
#include <QScrollBar>

#include <new>

namespace {

constexpr int RighePerMiniatura = 2; // as high as so many lines of text
constexpr double LarghezzaPerAltezza = 1.5;

/// Null for a file that is no picture which the program can show.
QImage Legge(const LettoreMiniature &lettore, const QString &percorso, const QSize &entro,
             const LavoroInDisparte::Annullato &annullato)
{
    // Without a picture the row has its name.
    try {
        return lettore(percorso, entro, annullato);
    } catch (const ErroreSistema &) {
        return {};
    } catch (const std::bad_alloc &) {
        return {};
    }
}

/// In the middle of a place of that size, so that the names beside stand in a line.
QPixmap NelMezzo(QImage immagine, const QSize &misura, double scala)
{
    QPixmap posto(misura * scala);
    posto.setDevicePixelRatio(scala);
    posto.fill(Qt::transparent);
    immagine.setDevicePixelRatio(scala);
    const QSizeF lati = immagine.deviceIndependentSize();
    const QPointF angolo((misura.width() - lati.width()) / 2,
                         (misura.height() - lati.height()) / 2);
    QPainter(&posto).drawImage(angolo, immagine);
    return posto;
}

} // namespace

MiniatureFile::MiniatureFile(QListView *elenco)
    : QStyledItemDelegate(elenco)
    , elenco_(elenco)
    , lettore_([](const QString &percorso, const QSize &entro,
                  const LavoroInDisparte::Annullato & /*annullato*/) {
        return Immagini::Miniatura(percorso, entro);
    })
{
    avvio_.setSingleShot(true);
    avvio_.setInterval(0);
    Collega(&avvio_, &QTimer::timeout, elenco, [this] { LeggeLaProssima(); });
    Collega(&lavoro_, &LavoroInDisparte::Finito, elenco, [this] { Mostra(); });
    Collega(elenco->verticalScrollBar(), &QScrollBar::valueChanged, elenco,
            [this] { LasciaSeFuoriVista(); });
    elenco->setIconSize(Misura());
    elenco->setItemDelegate(this);
}

void MiniatureFile::ImpostaCartella(const QString &cartella)
{
    lavoro_.Annulla();
    avvio_.stop();
    attese_.clear();
    note_.clear();
    cartella_ = cartella;
}

QSize MiniatureFile::Misura() const
{
    const int alta = elenco_->fontMetrics().height() * RighePerMiniatura;
    return {qRound(alta * LarghezzaPerAltezza), alta};
}

void MiniatureFile::paint(QPainter *penna, const QStyleOptionViewItem &aspetto,
                          const QModelIndex &indice) const
{
    QStyledItemDelegate::paint(penna, aspetto, indice);
    Chiede(indice);
}

QSize MiniatureFile::sizeHint(const QStyleOptionViewItem &aspetto, const QModelIndex &indice) const
{
    constexpr int SopraESotto = 4;
    QSize misura = QStyledItemDelegate::sizeHint(aspetto, indice);
    misura.setHeight(qMax(misura.height(), Misura().height() + SopraESotto));
    return misura;
}

void MiniatureFile::initStyleOption(QStyleOptionViewItem *aspetto, const QModelIndex &indice) const
{
    QStyledItemDelegate::initStyleOption(aspetto, indice);
    // The place is kept where there is nothing to show, so that the names stay where they are.
    aspetto->features |= QStyleOptionViewItem::HasDecoration;
    aspetto->decorationSize = Misura();
    aspetto->icon = Miniatura(indice.data().toString());
}

void MiniatureFile::Chiede(const QModelIndex &indice) const
{
    const QString nome = indice.data().toString();
    if (note_.contains(nome) || (lavoro_.InCorso() && inLettura_ == nome) ||
        attese_.contains(QPersistentModelIndex(indice))) {
        return;
    }
    attese_.append(QPersistentModelIndex(indice));
    if (!lavoro_.InCorso()) {
        avvio_.start();
    }
}

void MiniatureFile::LeggeLaProssima()
{
    while (!attese_.isEmpty() && !lavoro_.InCorso()) {
        const QPersistentModelIndex indice = attese_.takeFirst();
        if (!InVista(indice)) {
            continue; // asked for again when it comes back into sight
        }
        rigaInLettura_ = indice;
        inLettura_ = indice.data().toString();
        const QString percorso = QDir(cartella_).filePath(inLettura_);
        const QSize entro = Misura() * elenco_->devicePixelRatioF();
        letta_ = std::make_shared<QImage>();
        lavoro_.Avvia([letta = letta_, lettore = lettore_, percorso,
                       entro](const LavoroInDisparte::Annullato &via) {
            if (!via()) {
                *letta = Legge(lettore, percorso, entro, via);
            }
        });
    }
}

bool MiniatureFile::InVista(const QPersistentModelIndex &indice) const
{
    return indice.isValid() && elenco_->visualRect(indice).intersects(elenco_->viewport()->rect());
}

void MiniatureFile::LasciaSeFuoriVista()
{
    if (lavoro_.InCorso() && !InVista(rigaInLettura_)) {
        lavoro_.Annulla();
        avvio_.start(); // once the rows that have come into sight have been painted
    }
}

void MiniatureFile::Mostra()
{
    // Known from now on, also after a failure: it is not to be met again at every painting.
    QIcon &nota = note_[inLettura_];
    lavoro_.Verifica();
    if (!letta_->isNull()) {
        nota = QIcon(NelMezzo(*letta_, Misura(), elenco_->devicePixelRatioF()));
    }
    letta_.reset();
    elenco_->viewport()->update();
    LeggeLaProssima();
}

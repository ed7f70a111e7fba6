#pragma once

#include "finestre/LavoroInDisparte.h"

#include <QHash>
#include <QIcon>
#include <QImage>
#include <QList>
#include <QPersistentModelIndex>
#include <QStyledItemDelegate>
#include <QTimer>

#include <functional>
#include <memory>

class QListView;

/// The picture in a file, within so many pixels; it may be null once nobody waits for it any more.
/// Called in another thread. Throws ErroreSistema for what is no picture.
using LettoreMiniature = std::function<QImage(const QString &percorso, const QSize &entro,
                                              const LavoroInDisparte::Annullato &annullato)>;

/// Shows, beside the names of the files in a list, what the pictures among them look like. They are
/// read one after the other, reduced, beside the window, once the row has been painted; a row that
/// has been scrolled away is not read, or no further, and one whose file is no picture that can be
/// read shows none.
class MiniatureFile : public QStyledItemDelegate
{
    Q_OBJECT
public:
    /// A part of the list, whose rows' texts are names of files.
    explicit MiniatureFile(QListView *elenco);

    /// Which pictures are read, and how; without it those that the program shows and prints. Before
    /// the list is filled.
    void ImpostaLettore(const LettoreMiniature &lettore) { lettore_ = lettore; }

    /// The folder of the files that the list names from now on. Forgets what is known, and gives up
    /// what is being read; called before the list is filled.
    void ImpostaCartella(const QString &cartella);

    /// How large the pictures are at most, device-independent pixels.
    QSize Misura() const;
    /// What is shown beside that name; null when nothing is, or nothing yet.
    QIcon Miniatura(const QString &nome) const { return note_.value(nome); }
    /// No row in sight waits for its picture.
    bool Fermo() const { return !lavoro_.InCorso() && attese_.isEmpty(); }

    void paint(QPainter *penna, const QStyleOptionViewItem &aspetto,
               const QModelIndex &indice) const override;
    QSize sizeHint(const QStyleOptionViewItem &aspetto, const QModelIndex &indice) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *aspetto, const QModelIndex &indice) const override;

private:
    void Chiede(const QModelIndex &indice) const;
    void LeggeLaProssima();
    void LasciaSeFuoriVista();
    bool InVista(const QPersistentModelIndex &indice) const;
    void Mostra();

    QListView *elenco_;
    LettoreMiniature lettore_;
    QString cartella_;
    QHash<QString, QIcon> note_; ///< by the file's name; null icons for what is no picture
    mutable QList<QPersistentModelIndex> attese_;
    mutable QTimer avvio_; ///< once the painting under way is over
    LavoroInDisparte lavoro_;
    QString inLettura_;
    QPersistentModelIndex rigaInLettura_;
    std::shared_ptr<QImage> letta_; ///< written by the work
};

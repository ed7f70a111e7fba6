#include "editor/FinestraAttrezzi.h"

#include "preview/Frm1.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QWindow>

namespace {

constexpr int LarghezzaMinima = 360; // device-independent pixels

} // namespace

FinestraAttrezzi::FinestraAttrezzi(Frm1 &anteprima)
    : QWidget(&anteprima, Qt::Tool)
    , anteprima_(anteprima)
{
    setAttribute(Qt::WA_AlwaysShowToolTips);
}

void FinestraAttrezzi::Colloca()
{
    const QMargins cornice = anteprima_.windowHandle() == nullptr
                                 ? QMargins()
                                 : anteprima_.windowHandle()->frameMargins();
    QRect posto = anteprima_.AccantoAlFoglio();
    // Where the sheet leaves too little beside it the window lies on its right part.
    posto.setLeft(qMin(posto.left(), posto.right() + 1 - LarghezzaMinima));
    posto = Parte(posto & anteprima_.screen()->availableGeometry());
    move(posto.topLeft());
    resize(posto.marginsRemoved(cornice).size());
}

void FinestraAttrezzi::Apre()
{
    if (!collocata_) {
        Colloca();
        collocata_ = true;
    }
    if (!isVisible()) {
        Primo()->setFocus();
    }
    show();
    raise();
    activateWindow();
}

void FinestraAttrezzi::Alterna()
{
    if (isVisible() && QApplication::activeWindow() == this) {
        close();
    } else {
        Apre();
    }
}

void FinestraAttrezzi::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(evento);
    }
}

void FinestraAttrezzi::closeEvent(QCloseEvent *evento)
{
    // A tool counts itself as active with the window that it belongs to.
    if (QApplication::activeWindow() == this) {
        anteprima_.activateWindow();
    }
    QWidget::closeEvent(evento);
}

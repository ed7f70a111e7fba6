// The editor as a window: its place on the screen, and its closing.

#include "documento/ModelloSuFile.h"
#include "editor/ComandoElenco.h"
#include "editor/Form2.h"
#include "finestre/DialogoScorrevole.h"
#include "finestre/Finestre.h"
#include "finestre/Guardia.h"
#include "preview/Frm1.h"
#include "ui_Form2.h"

#include <QCloseEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWindow>

void Form2::SistemaFinestre()
{
    if (NonStaSulloSchermo(*this)) {
        FaScorrere();
    }
    const QRect schermo = screen()->availableGeometry();
    move(schermo.topLeft());
    AdattaAllaCornice();
    anteprima_->move(schermo.left(), schermo.top() + AltezzaStriscia());
}

void Form2::FaScorrere()
{
    for (int i = 0; i < ui_->SSTab1->count(); ++i) {
        AvvolgeInUnArea(*ui_->SSTab1->widget(i));
    }
    ui_->SSTab1->updateGeometry(); // it hears of its pages' new sizes only once it is shown
    // The wheel scrolls the page: a list that comes below the pointer meanwhile must not take it.
    FermaRotella(ui_->SSTab1);
    // No more than half of the strip is the commands'; the pages get the rest.
    const int comandi = ui_->comandi->sizeHint().width();
    AvvolgeInUnArea(*ui_->comandi);
    ui_->comandi->setFixedWidth(qMin(comandi, screen()->availableGeometry().width() / 2));
}

int Form2::AltezzaStriscia() const
{
    constexpr double PollicePerTwip = 1.0 / 1440;
    constexpr int Twip = 3000;
    return qRound(Twip * PollicePerTwip * screen()->logicalDotsPerInchY());
}

void Form2::AdattaAllaCornice()
{
    // The editor takes the strip that the preview, which fills the rest of the screen, leaves free;
    // the window's frame belongs to the strip.
    resize(screen()->availableGeometry().width() - cornice_.left() - cornice_.right(),
           AltezzaStriscia() - cornice_.top() - cornice_.bottom());
}

void Form2::GuardaCornice()
{
    const QMargins cornice =
        windowHandle() == nullptr ? QMargins() : windowHandle()->frameMargins();
    // Only then: the size is the user's afterwards.
    if (cornice != cornice_) {
        cornice_ = cornice;
        AdattaAllaCornice();
    }
}

void Form2::showEvent(QShowEvent *)
{
    Guardia(this, [this] { GuardaCornice(); });
}

void Form2::moveEvent(QMoveEvent *)
{
    // The frame is known only once the window manager has drawn it, and it moves the window then.
    Guardia(this, [this] { GuardaCornice(); });
}

void Form2::Chiude()
{
    if (chiuso_ || Form_Unload()) {
        close();
    }
}

bool Form2::Form_Unload()
{
    if (chiude_) {
        return false; // asked already
    }
    const QScopedValueRollback<bool> chiude(chiude_, true);
    if (!SalvareVariazioni()) {
        return false; // closing now would lose the work
    }
    chiuso_ = true;
    stato_.documento.DimenticaStoria();
    if (file_) {
        file_->Chiude(); // saved, or given up in answer to the question
    }
    if (elenco_) {
        elenco_->Chiude();
    }
    if (anteprima_) {
        anteprima_->hide();
    }
    return true;
}

void Form2::closeEvent(QCloseEvent *evento)
{
    evento->ignore();
    Guardia(this, [&] {
        if (chiuso_ || Form_Unload()) {
            evento->accept();
            emit Chiuso();
        }
    });
}

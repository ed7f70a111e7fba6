#pragma once

#include <QWidget>

class Frm1;

/// A tool window of the preview that stands beside the sheet, where the user has left it from then
/// on. Escape closes it.
class FinestraAttrezzi : public QWidget
{
    Q_OBJECT
public:
    /// Opens, with the keyboard in its list, and comes to the front.
    void Apre();
    /// Opens, comes to the front, or closes when it has the keyboard.
    void Alterna();

protected:
    /// anteprima must outlive the window, which belongs to whoever makes it.
    explicit FinestraAttrezzi(Frm1 &anteprima);

    Frm1 &Anteprima() const { return anteprima_; }
    /// Has the keyboard when the window opens.
    virtual QWidget *Primo() const = 0;
    /// Its part of the place beside the sheet, both with their frame.
    virtual QRect Parte(const QRect &accanto) const { return accanto; }

    void keyPressEvent(QKeyEvent *evento) override;
    void closeEvent(QCloseEvent *evento) override;

private:
    void Colloca();

    Frm1 &anteprima_;
    bool collocata_ = false;
};

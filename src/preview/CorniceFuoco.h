#pragma once

#include <QWidget>

/// A line around the part of the window where the sheet shows, for as long as the sheet has the
/// focus. The mouse goes through it.
class CorniceFuoco : public QWidget
{
    Q_OBJECT
public:
    /// Who places it gives it the place of that part in padre. chiHaIlFuoco outlives it.
    CorniceFuoco(QWidget *chiHaIlFuoco, QWidget *padre);

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;
    void paintEvent(QPaintEvent *evento) override;
};

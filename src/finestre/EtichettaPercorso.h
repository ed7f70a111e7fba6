#pragma once

#include <QLabel>

/// A label for a path: where there is no room for all of it, the middle is left out, so that the
/// window need not grow with the path; the tip then shows it whole. text() is the whole path.
class EtichettaPercorso : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *evento) override;
    void paintEvent(QPaintEvent *evento) override;

private:
    QString Visibile() const;
};

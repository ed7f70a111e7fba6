#pragma once

#include <QLabel>

/// A label for a text that may be longer than its room, such as a path: part of it is then left
/// out, so that the window need not grow with it; the tip shows it whole, and so does text().
class EtichettaAbbreviata : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

    /// What is left out; the middle unless told otherwise.
    void ImpostaModo(Qt::TextElideMode modo);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *evento) override;
    void paintEvent(QPaintEvent *evento) override;

private:
    QString Visibile() const;

    Qt::TextElideMode modo_ = Qt::ElideMiddle;
};

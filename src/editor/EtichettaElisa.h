#pragma once

#include <QLabel>

/// A label that shortens a long path in the middle instead of widening its window.
class EtichettaElisa : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *evento) override;
};

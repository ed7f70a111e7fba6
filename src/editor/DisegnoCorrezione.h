#pragma once

#include "documento/CorrezioneGriglia.h"

#include <QList>
#include <QWidget>

/// A sheet with its axes in millimetres, the marks where they should stand (crosses) and where they
/// came out (circles), and an arrow from each circle to its cross: the way the model has to go.
/// What lies close together is drawn further apart, or its way could not be seen.
class DisegnoCorrezione : public QWidget
{
    Q_OBJECT
public:
    explicit DisegnoCorrezione(QWidget *padre = nullptr);

    /// Shows these marks; those that are not typed yet are left out.
    void Mostra(const QList<CorrezioneGriglia::Segno> &segni);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *evento) override;

private:
    void DipingeAssi(QPainter &pittore) const;
    void DipingeSegno(QPainter &pittore, const CorrezioneGriglia::Segno &segno,
                      const QString &nome) const;
    /// From mm of the sheet to pixels of the widget.
    QPointF Punto(QPointF millimetri) const;
    double Scala() const; ///< pixels to a millimetre

    QList<CorrezioneGriglia::Segno> segni_;
};

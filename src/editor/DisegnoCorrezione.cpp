#include "editor/DisegnoCorrezione.h"

#include <QLineF>
#include <QPainter>

#include <cmath>

using CorrezioneGriglia::Segno;

namespace {

constexpr QSizeF Foglio(210, 297); // mm
constexpr double PassoTacche = 50; // mm
constexpr QColor Azzurro(0x1f, 0x6f, 0xb5);
constexpr QColor Rosso(0xb0, 0x1e, 0x1e);
/// Around the sheet, for the numbers of the axes; device-independent pixels, as all below.
constexpr double Margine = 30;
constexpr double RaggioSegno = 5;
constexpr double PuntaFreccia = 6;
/// A shift of a few millimetres would not be seen: arrows show the way, not how far.
constexpr double FrecciaMinima = 26;

} // namespace

DisegnoCorrezione::DisegnoCorrezione(QWidget *padre)
    : QWidget(padre)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void DisegnoCorrezione::Mostra(const QList<Segno> &segni)
{
    segni_ = segni;
    update();
}

QSize DisegnoCorrezione::sizeHint() const
{
    return {260, 350};
}

QSize DisegnoCorrezione::minimumSizeHint() const
{
    return {170, 220};
}

double DisegnoCorrezione::Scala() const
{
    return qMin((width() - Margine - RaggioSegno) / Foglio.width(),
                (height() - Margine - RaggioSegno) / Foglio.height());
}

QPointF DisegnoCorrezione::Punto(QPointF millimetri) const
{
    return QPointF(Margine, Margine) + millimetri * Scala();
}

void DisegnoCorrezione::paintEvent(QPaintEvent *)
{
    QPainter pittore(this);
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.fillRect(QRectF(Punto({0, 0}), Foglio * Scala()), Qt::white);
    DipingeAssi(pittore);
    for (qsizetype i = 0; i < segni_.size(); ++i) {
        DipingeSegno(pittore, segni_.at(i), QString::number(i + 1));
    }
}

void DisegnoCorrezione::DipingeAssi(QPainter &pittore) const
{
    constexpr double Tacca = 4;
    const QRectF foglio(Punto({0, 0}), Foglio * Scala());
    const double alto = pittore.fontMetrics().height();
    pittore.setPen(palette().color(QPalette::WindowText));
    pittore.drawRect(foglio);
    pittore.drawText(QRectF(0, 0, Margine - Tacca, Margine - Tacca),
                     Qt::AlignRight | Qt::AlignBottom, QStringLiteral("mm"));
    for (double x = PassoTacche; x <= Foglio.width(); x += PassoTacche) {
        const QPointF p = Punto({x, 0});
        pittore.drawLine(p, p - QPointF(0, Tacca));
        pittore.drawText(QRectF(p.x() - Margine, foglio.top() - Tacca - alto, 2 * Margine, alto),
                         Qt::AlignCenter, QString::number(x));
    }
    for (double y = PassoTacche; y <= Foglio.height(); y += PassoTacche) {
        const QPointF p = Punto({0, y});
        pittore.drawLine(p, p - QPointF(Tacca, 0));
        pittore.drawText(QRectF(0, p.y() - alto / 2, foglio.left() - Tacca - 1, alto),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(y));
    }
}

void DisegnoCorrezione::DipingeSegno(QPainter &pittore, const Segno &segno,
                                     const QString &nome) const
{
    const QPointF atteso = Punto(segno.Atteso);
    QLineF via(Punto(segno.Uscito), atteso);
    if (via.length() > 0 && via.length() < FrecciaMinima) {
        via = QLineF::fromPolar(FrecciaMinima, via.angle()).translated(via.p2());
        via = QLineF(via.p1() - (via.p2() - via.p1()), via.p1());
    }
    constexpr double Tratto = 2;
    pittore.setPen(QPen(Azzurro, Tratto));
    pittore.drawLine(atteso - QPointF(RaggioSegno, 0), atteso + QPointF(RaggioSegno, 0));
    pittore.drawLine(atteso - QPointF(0, RaggioSegno), atteso + QPointF(0, RaggioSegno));
    pittore.drawText(atteso + QPointF(RaggioSegno + 2, -RaggioSegno), nome);
    pittore.setPen(QPen(Rosso, Tratto));
    pittore.drawEllipse(via.p1(), RaggioSegno, RaggioSegno);
    if (via.length() > RaggioSegno) {
        pittore.drawLine(via);
        for (const double giro : {150.0, 210.0}) {
            QLineF ala = QLineF::fromPolar(PuntaFreccia, via.angle() + giro);
            pittore.drawLine(ala.translated(via.p2()));
        }
    }
}

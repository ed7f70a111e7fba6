#pragma once

#include <QObject>

class GuideFoglio;
class QMouseEvent;
class RighelloFoglio;
struct PartiAnteprima;

/// What the mouse does on the rulers: it pulls a new guide onto the sheet, or takes one by the mark
/// that it has on the ruler across it. Both go wherever the mouse goes until its release.
class ManiSuiRighelli : public QObject
{
    Q_OBJECT
public:
    /// Both outlive it.
    ManiSuiRighelli(GuideFoglio &guide, PartiAnteprima &parti);

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void Preme(const RighelloFoglio &righello, const QMouseEvent &evento);
    void Muove(RighelloFoglio &righello, const QMouseEvent &evento);
    QPointF SulFoglio(const QMouseEvent &evento) const;
    void MostraSegni();

    GuideFoglio &guide_;
    PartiAnteprima &parti_;
};

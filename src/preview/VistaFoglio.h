#pragma once

#include "preview/Sfondo.h"

#include <QGraphicsView>

struct StatoProgramma;
class GeometriaAnteprima;

/// A mouse event on the sheet, in mm of screen from its corner.
struct EventoMouse
{
    QPointF punto;
    Qt::MouseButton bottone = Qt::NoButton; ///< the one that changed
    Qt::MouseButtons bottoni;               ///< those held
    Qt::KeyboardModifiers tasti;
};

/// The hint for a point of the sheet; it goes when the pointer leaves what it is about.
struct Spiegazione
{
    QString testo; ///< may hold carriage returns; empty: none
    QRectF posto;  ///< of what the hint is about, mm of screen
};

/// Who acts on the mouse over the sheet. What these throw ends in a message box.
class AscoltaMouse
{
public:
    virtual ~AscoltaMouse() = default;
    virtual void Preme(const EventoMouse &evento) = 0;
    virtual void Muove(const EventoMouse &evento) = 0;
    virtual void Rilascia(const EventoMouse &evento) = 0;
    virtual void PremeDueVolte(const EventoMouse &evento) = 0;
    /// The mouse has been taken away: what is under way ends as at a release, which will not come.
    virtual void Interrompe() = 0;
    virtual Spiegazione Suggerimento(QPointF punto) const = 0;
};

/// Who acts on the keys while the sheet has the focus. What it throws ends in a message box.
class AscoltaTasti
{
public:
    virtual ~AscoltaTasti() = default;
    /// False when the key means nothing there: it goes on.
    virtual bool Preme(const QKeyEvent &tasto) = 0;
    /// True for a key that must come to Preme although a command has it as its shortcut.
    virtual bool Trattiene(const QKeyEvent &tasto) const = 0;
    /// The sheet has lost the keyboard to something else than a menu.
    virtual void Perde() = 0;
};

/// The sheet `P1`: a view of the whole scene, one scene unit to the millimetre of screen. It never
/// scrolls by itself; the window moves it.
class VistaFoglio : public QGraphicsView
{
    Q_OBJECT
public:
    VistaFoglio(QGraphicsScene *scena, const GeometriaAnteprima &geometria,
                const StatoProgramma &stato, QWidget *padre);

    /// ascolta must outlive the events; null: the mouse does nothing.
    void ImpostaAscolto(AscoltaMouse *ascolta) { ascolta_ = ascolta; }
    /// The same for the keys.
    void ImpostaTasti(AscoltaTasti *tasti) { tasti_ = tasti; }
    void ImpostaPuntatore(Qt::CursorShape puntatore);

    /// As Sfondo::Imposta.
    void DipingeSfondo(const QString &percorso, const QRectF &millimetri);
    void PulisceSfondo();
    /// As Sfondo::Dimentica.
    void DimenticaSfondo();
    /// As Sfondo::ImpostaOpacita.
    void ImpostaOpacitaSfondo(double opacita);

protected:
    void drawBackground(QPainter *penna, const QRectF &rettangolo) override;
    bool event(QEvent *evento) override;
    bool viewportEvent(QEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseMoveEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void mouseDoubleClickEvent(QMouseEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void wheelEvent(QWheelEvent *evento) override;
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void Avvisa(QMouseEvent *evento, void (AscoltaMouse::*azione)(const EventoMouse &));
    void Interrompe();
    void MostraSuggerimento(const QPoint &locale, const QPoint &schermo);

    const GeometriaAnteprima &geometria_;
    const StatoProgramma &stato_;
    AscoltaMouse *ascolta_ = nullptr;
    AscoltaTasti *tasti_ = nullptr;
    Sfondo sfondo_;
};

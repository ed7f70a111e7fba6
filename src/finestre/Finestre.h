#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QString>
#include <QWidget>

/// Help topic of every control.
inline constexpr int ArgomentoGuida = 44;

/// Name of the dynamic property that carries a control's help topic.
inline constexpr auto ProprietaGuida = "HelpContextID";

/// Places the window (frame included, when the window system tells it) at the centre of its screen.
void CentraForm(QWidget *finestra);

/// The size, reduced to what the window's screen has room for below a title bar.
QSize EntroLoSchermo(const QWidget *finestra, const QSize &misura);

/// Gives the window and every control of it help topic 44, so that F1 opens that topic.
void ImpostaHelp(QWidget *finestra);

/// The topic of the control or of its nearest ancestor within its window that has one; 0 when none
/// has, as in the file browser and in message boxes.
int ArgomentoDi(const QWidget *controllo);

/// Italian texts for Qt's own buttons and menus; call once, after the application object exists.
void ImpostaLingua();

/// Device-independent pixels of one millimetre of screen, from the screen's logical resolution.
double PixelPerMillimetro(const QWidget *finestra);

/// Shows the busy pointer while it lives.
class PuntatoreOccupato
{
public:
    PuntatoreOccupato();
    ~PuntatoreOccupato();
    PuntatoreOccupato(const PuntatoreOccupato &) = delete;
    PuntatoreOccupato &operator=(const PuntatoreOccupato &) = delete;
};

/// A command that one window asks for and that opens boxes of another: at its end the keys go back
/// to the one that had them, while that still shows.
class TastiPrestati
{
public:
    TastiPrestati();
    ~TastiPrestati();
    Q_DISABLE_COPY_MOVE(TastiPrestati)

private:
    QPointer<QWidget> davanti_;
};

/// Makes every text box below the window refuse characters that a model file cannot hold, typed or
/// pasted, and lifts the length limit that would cut a long text.
void LimitaAlCodice(QWidget *finestra);

/// Lets the wheel pass over every closed list below the window, which would change what is chosen
/// in it; what lies below the list may scroll instead.
void FermaRotella(QWidget *finestra);

/// Lets every list below the window open on 20 rows at most, with a scroll bar for the others; left
/// to the style, one would cover the whole height of the screen.
void LimitaElenchi(QWidget *finestra);

#pragma once

#include <QImage>
#include <QList>
#include <QMargins>
#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

/// Polls until the condition holds; throws std::runtime_error naming what never came.
void AttendeChe(const QString &cosa, const std::function<bool()> &condizione);

/// Makes the system end the process with the test, however the test ends. For Linux.
void LegaAllaProva(QProcess &processo);

/// An X server of its own with a window manager: its windows, its pictures, and the mouse and the
/// keyboard of whoever sits before it. Positions are the server's pixels. For systems with X11.
class Schermo
{
public:
    /// A window with a frame. Both rectangles are in pixels of the screen.
    struct Finestra
    {
        QString Id;
        QString Titolo;
        QRect Interno;
        QMargins Cornice;

        QRect Ingombro() const { return Interno.marginsAdded(Cornice); }
        bool operator==(const Finestra &) const = default;
    };

    /// Starts the server and the window manager; throws std::runtime_error.
    explicit Schermo(QSize pixel);
    ~Schermo();
    Q_DISABLE_COPY_MOVE(Schermo)

    /// The value of DISPLAY.
    const QString &Nome() const { return nome_; }
    QRect Pixel() const { return QRect(QPoint(), pixel_); }

    QList<Finestra> Finestre() const;
    bool Vede(const QString &titolo) const;
    /// True when the window has given the window manager a picture for its lists.
    bool HaIcona(const Finestra &finestra) const;
    /// Waits for the one window whose title matches the regular expression, holds the keyboard and
    /// stands still.
    Finestra Attende(const QString &titolo) const;
    /// Brings a window to the front as the window manager's own list would.
    Finestra Attiva(const QString &titolo) const;
    void AttendeChiusa(const QString &titolo) const;

    /// AttendeChe that leaves a picture of the screen behind when it fails.
    void AttendeQui(const QString &cosa, const std::function<bool()> &condizione) const;

    QImage Foto() const;

    void Sposta(QPoint punto) const;
    void Clic(QPoint punto, int bottone = 1, int volte = 1) const;
    /// Presses at the first point, moves through all of them and releases at the last; tasto, by
    /// its X name, is held from after the press, when the window manager has no say in it.
    void Trascina(const QList<QPoint> &punti, const QString &tasto = {}) const;
    /// Does something while a key is held, by its X name.
    void Tenendo(const QString &tasto, const std::function<void()> &azione) const;
    /// Keys by their X names, combinations joined by "+".
    void Tasti(const QStringList &tasti) const;
    void Tasto(const QString &tasto, int volte = 1) const;
    /// ASCII only.
    void Scrive(const QString &testo) const;

private:
    struct Esito
    {
        bool riuscito;
        QByteArray uscita;
    };
    Esito Esegue(const QString &programma, const QStringList &argomenti) const;
    void Xdotool(const QStringList &argomenti) const;
    QString Attiva() const;

    QSize pixel_;
    QTemporaryDir dir_;
    QString nome_;
    QProcess server_;
    QProcess gestore_;
};

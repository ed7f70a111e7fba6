#pragma once

#include <QDialog>
#include <QList>
#include <QRect>
#include <QString>
#include <QWidget>

#include <functional>
#include <utility>

/// Throws std::runtime_error.
[[noreturn]] void Fallisce(const QString &motivo);

/// Pictures of windows for the manual: PNG files with two pixels to the unit and a thin line
/// around, which show neutral folders in place of those of this computer.
class Fotografia
{
public:
    /// Each text of vere that a window shows is replaced by the one beside it while it is taken.
    using Cartelle = QList<std::pair<QString, QString>>;
    Fotografia(QString cartella, Cartelle vere);

    /// The windows as they stand on the screen, the last one on top, once they no longer change;
    /// ritaglio is the part of the first one to be taken instead, with what covers it. Throws
    /// std::runtime_error when the picture cannot be written.
    void Ritrae(const QString &nome, const QList<QWidget *> &finestre,
                const QRect &ritaglio = QRect()) const;

    using Azione = std::function<void()>;
    using SulDialogo = std::function<void(QDialog &)>;
    /// Takes the modal dialog of that class that apre opens, after prepara has worked in it; chiude
    /// ends it, or gives it up when there is none. Throws std::runtime_error when no dialog comes,
    /// or another one, and what prepara and chiude throw.
    void AlDialogo(const QString &nome, const char *classe, const Azione &apre,
                   const SulDialogo &chiude = {}, const SulDialogo &prepara = {}) const;

    /// Lets what has been done take effect.
    static void Attende();
    /// The hints in sight.
    static QList<QWidget *> Fumetti();
    /// The window in sight that has the object name; throws std::runtime_error when there is none.
    static QWidget *Finestra(const char *nome);

private:
    QString cartella_;
    Cartelle vere_;
};

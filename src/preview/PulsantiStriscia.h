#pragma once

#include <QWidget>

#include <array>

class QAction;
class QHBoxLayout;

/// The groups of commands on the strip below the sheet, from left to right.
enum class GruppoComandi { Zoom, Viste, Guide, Allineamento, Distribuzione, Misure };

/// The icon buttons on the strip, right of the read-out. A click leaves the focus where it is, so
/// that the sheet keeps the keys; Tab reaches them.
class PulsantiStriscia : public QWidget
{
    Q_OBJECT
public:
    explicit PulsantiStriscia(QWidget *padre);

    /// A button at the end of the group, for a command that outlives it. The command's icon is
    /// drawn for LatoIcona.
    void Aggiunge(QAction *comando, GruppoComandi gruppo);

    static constexpr int LatoIcona = 14; ///< device-independent pixels

private:
    std::array<QHBoxLayout *, 6> gruppi_{};
};

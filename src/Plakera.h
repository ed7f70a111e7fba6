#pragma once

#include "documento/StatoProgramma.h"

#include <QObject>

#include <memory>

class Form2;
class SelezioneArchivifrm;

/// The program: owns the open model, the font table and the windows, and wires them. The windows do
/// not know each other: each says what happened, and Plakera reacts.
class Plakera : public QObject
{
    Q_OBJECT
public:
    explicit Plakera(QObject *padre = nullptr);
    ~Plakera() override;

    /// Loads and shows the start window, or, with a modello, the editor with that file, which the
    /// start window follows. datiIndicati stands in for Vastrel's data folder when it is not empty.
    /// False when the program must end; the reason has been shown.
    bool Avvia(const QString &datiIndicati, const QString &modello = {});

signals:
    /// Something is about to be painted for the first time.
    void Dipinta();
    /// The start window is about to be painted for the first time.
    void Mostrata();

protected:
    /// F1 opens the help topic of the control that has the focus. The first painting starts what
    /// the start could put off.
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    void ApreEditor();
    /// False when the model of stato_ cannot be opened or the user does not go on.
    bool MostraEditor();
    void ChiudeEditor();
    void DopoLaPrimaPittura();
    void OffreLavoro();

    StatoProgramma stato_;
    std::unique_ptr<SelezioneArchivifrm> scelta_;
    std::unique_ptr<Form2> editor_;
    bool dipinta_ = false;  ///< something has been on the screen
    bool mostrata_ = false; ///< the start window has
};

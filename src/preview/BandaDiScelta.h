#pragma once

#include "preview/Controlli.h"
#include "preview/PuntamentoFoglio.h"

/// The rectangle of the band.
class Banda : public Controllo
{
    Q_OBJECT
public:
    Banda();

    void paint(QPainter *penna, const QStyleOptionGraphicsItem *opzioni, QWidget *dove) override;
};

/// A press of the left button on the bare sheet, which still points: dragged, it draws a band and
/// chooses what lies whole inside it, with Shift beside what is chosen already. Released where it
/// was pressed it leaves nothing chosen.
class BandaDiScelta : public PuntamentoFoglio
{
public:
    /// pressione: of the left button, on the bare sheet.
    BandaDiScelta(const ContestoGesto &contesto, const EventoMouse &pressione);
    ~BandaDiScelta() override;

    void Muove(const EventoMouse &evento) override;
    void Conclude(std::optional<QPointF> rilascio) override;
    /// Nothing is chosen by it; a press that has drawn no band goes on.
    bool Rinuncia() override;

private:
    QList<Chiave> Dentro() const;

    QPointF inizio_;
    Qt::KeyboardModifiers tasti_;
    std::unique_ptr<Banda> banda_; ///< once the pointer has left its first place
};

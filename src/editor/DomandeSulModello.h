#pragma once

#include "documento/ModelloSuFile.h"

class QWidget;
struct StatoProgramma;

/// The boxes in which the editor speaks for the file of its model.
class DomandeSulModello final : public ModelloSuFile::Interlocutore
{
public:
    /// Both must outlive it. Until the editor is on the screen its boxes belong to no window.
    DomandeSulModello(const StatoProgramma &stato, QWidget &editor)
        : stato_(stato)
        , editor_(editor)
    {
    }

    void Avvisa(const QString &testo) override;
    Risposta RiprendeLavoro(const CopiaRecupero::Trovata &lavoro) override;
    bool SostituisceFileCambiato() override;

private:
    QWidget *Padre() const;

    const StatoProgramma &stato_;
    QWidget &editor_;
};

#pragma once

#include "documento/CorrezioneGriglia.h"
#include "documento/CorrezioniInStoria.h"
#include "documento/UltimeCorrezioni.h"

#include <QDialog>

#include <memory>
#include <optional>

class QCheckBox;
class QLineEdit;
struct StatoProgramma;

namespace Ui {
class FrmCorrezione;
}

/// Asks where a mark of a printed document should stand and where it came out, tells what that
/// means, and moves the model by whole millimetres. Confirmed, it has done one step.
class FrmCorrezione : public QDialog
{
    Q_OBJECT
public:
    /// stampante is whose last shift may be proposed; empty where there is none. cartella is where
    /// shifts are remembered. stato must outlive the dialog.
    FrmCorrezione(StatoProgramma &stato, const QString &stampante, const QString &cartella,
                  QWidget *padre);
    ~FrmCorrezione() override;

    /// What has been moved; nothing before it is confirmed.
    const CorrezioneGriglia::Parti &Mosse() const { return mosse_; }
    /// What has been remembered of it; nothing where that could not be, or before it is confirmed.
    const std::optional<CorrezioniInStoria::Correzione> &Ricordata() const { return ricordata_; }
    /// What the user is to be told when the dialog has closed; empty when it was given up.
    const QString &Detto() const { return detto_; }

private:
    void Collegamenti();
    void MostraProposta();
    void Aggiorna();
    void Conferma();
    void UsaProposta();
    void DimenticaProposta();
    /// What is typed for the mark; nothing while a box is empty or holds no number of millimetres.
    std::optional<CorrezioneGriglia::Segno> Letto(int segno) const;
    QString Spiega(const CorrezioneGriglia::Esito &esito) const;
    CorrezioneGriglia::Parti Scelte() const;

    std::unique_ptr<Ui::FrmCorrezione> ui_;
    StatoProgramma &stato_;
    QString stampante_;
    UltimeCorrezioni ultime_;
    std::optional<CorrezioneGriglia::Spostamento> proposta_;
    bool usata_ = false; ///< the proposal counts, not the marks
    CorrezioneGriglia::Spostamento spostamento_;
    CorrezioneGriglia::Parti mosse_;
    std::optional<CorrezioniInStoria::Correzione> ricordata_;
    QString detto_;
};

#pragma once

#include "documento/StatoProgramma.h"

#include <QLineEdit>
#include <QWidget>

#include <memory>

class Frm1;

namespace Ui {
class PaginaSfondo;
}

/// The page "Immagine sfondo": the scan of a pre-printed form behind the preview. What the controls
/// hold is the model's ImmagineSfondo, text for text.
class PaginaSfondo : public QWidget
{
    Q_OBJECT
public:
    PaginaSfondo(StatoProgramma &stato, Frm1 &anteprima, QWidget *padre = nullptr);
    ~PaginaSfondo() override;

    void Mostra();

    /// Draws the scan; chiedeDimensione asks first for the percentage of its natural size. A file
    /// that cannot be loaded gives a message and no background.
    void ImpostaImmagineSfondo(bool chiedeDimensione);

    void SfondoSfoglia_Click();
    void VisualizzaImmagineSfondo_Click();
    void Command8_Click();
    /// Lets the user set the scan right; what he takes is one step.
    void Calibra_Click();
    void SfondoSpostaSx_Click();
    void SfondoSpostaDx_Click();
    void SfondoSpostaSu_Click();
    void SfondoSpostaGiu_Click();
    /// Select the whole text, so that typing replaces it.
    void SfondoXimmagine_GotFocus();
    void SfondoYimmagine_GotFocus();
    /// The right button empties the file; the others are the check box's own.
    void VisualizzaImmagineSfondo_MouseDown(Qt::MouseButton bottone);

protected:
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

signals:
    /// The whole text of a box that takes the focus is to be selected.
    void SelezioneChiesta(QLineEdit *casella);

private:
    void Collegamenti();
    void SegueDocumento(const Cambiamento &cambiamento);
    void LegaTesto(QLineEdit *casella, QString ImmagineSfondo::*membro);
    void RidisegnaSeScritta(const QLineEdit *casella);
    void ChiedeDimensione();
    void ScrivePosto(const QRectF &posto);
    /// The strip says that what has been chosen is not shown.
    bool Nascosta() const; ///< a scan is chosen and not shown
    void AvverteSeNascosta() const;
    const QLineEdit *CasellaDi(QString ImmagineSfondo::*membro) const;
    /// The box holds a number beyond a double; the message names it.
    void SegnalaNumero(const QLineEdit *casella, const QString &testo);
    /// Shows the message unless guasto is what the user has been told last.
    void SegnalaGuasto(const QString &guasto, const QString &messaggio);
    void Sposta(QLineEdit *casella, double passo);
    /// From now on a file that cannot be loaded, or a wrong number, is told again.
    void RiprendeMessaggi() { guastoMostrato_.clear(); }

    std::unique_ptr<Ui::PaginaSfondo> ui_;
    StatoProgramma &stato_;
    Frm1 &anteprima_;
    bool scritta_ = false;   ///< a box has been edited since the last one that was finished
    QString guastoMostrato_; ///< what keeps the scan from being shown and the user has been told
};

#pragma once

#include <QDialog>
#include <QPageLayout>

#include <exception>
#include <memory>

class Pagina;
class QPrinter;
class QPrintPreviewWidget;
struct StatoProgramma;

namespace Ui {
class VediStampa;
}

/// The sheet as the test print would put it on the printer's paper, painted by the same routine,
/// with the printable edge drawn around it and, when asked for, the model's scan beneath. Neither
/// of the two ever reaches a printer or a file.
class VediStampa : public QDialog
{
    Q_OBJECT
public:
    /// The page is that of the printer called stampante. stato must outlive the window.
    VediStampa(const StatoProgramma &stato, const QString &stampante, const QPageLayout &pagina,
               QWidget *padre);
    ~VediStampa() override;

    /// Paints the sheet, with the model as it is now; before the window is shown. Throws
    /// StampaAnnullata when the user does not want to wait, and ErroreSistema.
    void Dipinge();
    /// What printing, or exporting, has come to.
    void Dice(const QString &testo);

signals:
    void StampaRichiesta();
    void EsportazioneRichiesta(bool StampaNome);

private:
    void Collegamenti();
    /// Paints again because of a box; without the patience to wait for it the window closes.
    void Ridipinge();
    void DipingeSu(QPrinter &foglio);
    void StendeScansione(Pagina &pagina);
    QString Descrizione(const QString &stampante, const QPageLayout &pagina) const;

    std::unique_ptr<Ui::VediStampa> ui_;
    const StatoProgramma &stato_;
    std::unique_ptr<QPrinter> foglio_;
    QPrintPreviewWidget *vista_; ///< paints on foglio_
    QStringList avvisi_;         ///< what the test print would say
    std::exception_ptr guasto_;  ///< what painting has thrown
};

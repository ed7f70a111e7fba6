#pragma once

#include "documento/StatoProgramma.h"

#include <QMargins>
#include <QWidget>

#include <array>
#include <memory>
#include <optional>

class CartaDellaStampante;
class ComandiScelta;
class ComandiAppunti;
class ComandiStampa;
class ComandiStoria;
class ComandoControlli;
class ComandoElenco;
class ComandoSalva;
class DomandeSulModello;
class FrmCampo;
class FrmCarattere;
class FrmElemento;
class Frm1;
class ModelloSuFile;
class PaginaElementi;
class PaginaRighe;
class PaginaSfondo;
class PaginaSpostamento;

namespace Ui {
class Form2;
}

/// The editor of the one open model: a strip across the top of the screen, with the preview below
/// it. It owns the preview and opens the property dialogs.
class Form2 : public QWidget
{
    Q_OBJECT
public:
    explicit Form2(StatoProgramma &stato, QWidget *padre = nullptr);
    ~Form2() override;

    /// Reads the model and fills the lists and the preview. False when the model cannot be read
    /// (the reader has reported it); the editor must then be closed.
    bool Form_Load();

    Frm1 *Anteprima() const { return anteprima_.get(); }

    /// The modified flag.
    bool Variato() const { return stato_.documento.Variato(); }

    void Aggiungicampo_Click();
    void AggiungiCornice_Click();
    void AggiungiImmagine_Click();
    void VariazioneCampo_Click();
    void VariazioneCornice_Click();
    void VariazioneImmagine_Click();
    /// Index 0, the separator, opens nothing.
    void ApreFrmCampo(int indice);
    void ApreFrmCornice(int indice);
    void ApreFrmImmagine(int indice);

    /// Selects the font, or Arial after a message when the list lacks it, and the first size with
    /// the same numeric value.
    void SettaFont(FrmCarattere &dialogo, const QString &font, const QString &dimensione);
    /// Selects the first catalogue entry whose mask, up to the blank, is the dialog's mask.
    void SettaComboMask(FrmCampo &dialogo);

    void Salva_Click();
    /// Asks when Variato is set, and writes on Yes. False when the writing failed (reported) or the
    /// user would not replace a file that another program changed.
    bool SalvareVariazioni();
    /// What the strip says of row values that were not saved holds until the next step.
    void RitiraNonSalvati();
    void Elimina_Click();
    void Stampa_Click();
    void StampaRetino_Click();
    void Command1_Click(); ///< restack the fields by area
    void Command3_Click(); ///< restack the frames by area
    void Command4_Click(); ///< restack the images by area
    void Command7_Click(); ///< delete all frames
    void ComboCampi_GotFocus();
    void ComboCornici_GotFocus();
    void ComboImmagini_GotFocus();
    void Image1_Click();
    void SSTab1_Click();
    /// Hides the handles and restacks images, frames and fields by area.
    void PPPP();

signals:
    /// The editor has closed itself: the start window shows again.
    void Chiuso();

protected:
    void closeEvent(QCloseEvent *evento) override;
    void showEvent(QShowEvent *evento) override;
    void moveEvent(QMoveEvent *evento) override;

private:
    using Procedura = void (Form2::*)();
    void Collegamenti();
    void CollegaPagina(Genere genere, Procedura aggiunge, Procedura modifica, Procedura primoPiano,
                       Procedura fuocoPreso);
    void CollegaAnteprima();
    void CollegaControlli();
    void CollegaDialogo(FrmElemento &dialogo);
    PaginaElementi &Pagina(Genere genere) const;
    /// The kind whose page shows; none on the others.
    std::optional<Genere> GenereInPagina() const;
    void CreaPagine();
    void MostraVoci(Genere genere);
    void SegueDocumento(const Cambiamento &cambiamento);
    /// Undo and redo show what they have changed.
    void MostraRitrovati(const Cambiamento &cambiamento);
    void Aggiunge(Genere genere);
    void ApreProprieta(Genere genere, int indice);
    void Modifica(Genere genere);
    void MostraDialogo(FrmElemento &dialogo, Chiave chiave);
    void SistemaFinestre();
    /// On a screen too narrow for the window: its pages and its column of commands scroll.
    void FaScorrere();
    int AltezzaStriscia() const; ///< of the editor with its frame, device-independent pixels
    void AdattaAllaCornice();
    void GuardaCornice();
    void MostraPaginaDi(Genere genere);
    bool Form_Unload();
    /// Asks about unsaved work, then closes. The question stands before close(), because while a
    /// close of the program's own is under way the window manager's would go through unasked.
    void Chiude();

    std::unique_ptr<Ui::Form2> ui_;
    StatoProgramma &stato_;
    std::unique_ptr<Frm1> anteprima_;
    std::array<PaginaElementi *, 3> pagineElementi_{};
    PaginaRighe *righe_ = nullptr;
    PaginaSpostamento *spostamento_ = nullptr;
    PaginaSfondo *sfondo_ = nullptr;
    std::unique_ptr<ComandiStoria> storia_;
    std::unique_ptr<ComandiScelta> scelta_;
    std::unique_ptr<ComandiStampa> stampa_;
    std::unique_ptr<ComandiAppunti> appunti_;
    std::unique_ptr<ComandoElenco> elenco_;
    std::unique_ptr<ComandoSalva> salva_;
    std::unique_ptr<ComandoControlli> controlli_;
    std::unique_ptr<CartaDellaStampante> carta_;
    std::unique_ptr<DomandeSulModello> domande_;
    std::unique_ptr<ModelloSuFile> file_;
    QString nonSalvati_;  ///< what the strip says of row values that were not saved
    bool chiude_ = false; ///< the question about unsaved work is open
    bool chiuso_ = false;
    QMargins cornice_; ///< the window manager's, as far as it is known
};

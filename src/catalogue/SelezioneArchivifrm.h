#pragma once

#include "documento/StatoProgramma.h"
#include "sistema/IstanzaUnica.h"

#include <QWidget>

#include <memory>
#include <optional>

struct ModelloIndicato;

namespace Ui {
class SelezioneArchivifrm;
}

/// The start window and catalogue of models: the user picks an archive, then opens one of its
/// models or makes a new one. It lives as long as the program and holds the lock of the one running
/// instance.
class SelezioneArchivifrm : public QWidget
{
    Q_OBJECT
public:
    explicit SelezioneArchivifrm(StatoProgramma &stato, QWidget *padre = nullptr);
    ~SelezioneArchivifrm() override;

    /// The start-up steps. datiIndicati, when not empty, stands in for Vastrel's setting of the
    /// data folder. False when the program must end; the user has been told why.
    bool Form_Load(const QString &datiIndicati);

    /// Chooses the model file at the path, in the lists too when it is of one of their archives,
    /// and sets CartellaModelli and NomeFile as Apri does. The user is told what a file that is
    /// none of theirs is missing. For the time before the window is first shown.
    void Indica(const QString &percorso);

    /// Lists archives and models afresh; what was chosen stays chosen.
    void AggiornaElenchi();

signals:
    /// A model was opened or created: CartellaModelli and Aperto.NomeFile are set and the window
    /// has closed itself.
    void ModelloScelto();

protected:
    /// Shown again after the editor, it lists archives and models afresh.
    void showEvent(QShowEvent *evento) override;
    void moveEvent(QMoveEvent *evento) override;
    bool eventFilter(QObject *oggetto, QEvent *evento) override;

private:
    /// What the user asks to create.
    struct Richiesta
    {
        QString fileTipo; ///< file to copy, in the models folder
        QString testo;    ///< first part of the request for a name
        QString nomeProposto;
    };

    void CollegaSegnali();
    void PosizionaFinestra();
    /// Centres the window once more when its frame is known, which counts too.
    void GuardaCornice();
    bool LeggeCartellaDati(const QString &datiIndicati);
    /// False when the data folder cannot be read; the user has been told, and the list is empty.
    bool ElencaArchivi();
    void SelezionaArchivioPredefinito();
    void ElencaModelli();
    void SvuotaModelli();
    /// Lists archives and models again and chooses the same archive and, in it, the model of that
    /// file name, as far as they are still there.
    void RiprendeElenchi(const QString &nomeFile);
    void RiprendeArchivio();
    void RiprendeModello(const QString &nomeFile);
    void AvvisaFuoriArchivio(const ModelloIndicato &modello);

    void List1_Click();
    /// The end of a click on an archive: lists its models again when the click has not done so by
    /// selecting it.
    void RipeteElenco();
    void List2_Click();
    void Apri_Click();
    void Nuovo_Click();
    void Image1_Click();

    bool ArchivioScelto() const;
    bool ModelloSelezionato() const;
    std::optional<Richiesta> RichiestaScelta();
    bool SovrascritturaAccettata(const QString &nuovoNome);
    bool Esiste(const QString &percorso);
    void Consegna();

    StatoProgramma &stato_;
    std::unique_ptr<Ui::SelezioneArchivifrm> ui_;
    IstanzaUnica istanza_;
    QString cartellaDati_;
    QString archivio_; ///< the chosen archive; empty until there is one, and once it has gone
    bool elencatoColClic_ = false; ///< the models were listed since the mouse was pressed on List1
    bool conCornice_ = false;      ///< centred with its frame; the place is the user's afterwards
    bool riapertura_ = false;      ///< the next showing follows the editor's closing
    bool inElenco_ = true;         ///< the model handed over is one of the lists
};

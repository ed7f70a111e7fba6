#include "editor/ComandiStampa.h"

#include "base/ErroreSistema.h"
#include "documento/StatoProgramma.h"
#include "editor/AttesaDiStampa.h"
#include "editor/VediStampa.h"
#include "finestre/Comandi.h"
#include "finestre/FileInItaliano.h"
#include "finestre/Finestre.h"
#include "finestre/FuocoInVista.h"
#include "finestre/Guardia.h"
#include "finestre/Icone.h"
#include "finestre/IconeStampa.h"
#include "finestre/Messaggi.h"
#include "preview/Frm1.h"
#include "print/FileDiUscita.h"
#include "print/Retino.h"
#include "print/StampaProva.h"
#include "print/Stampanti.h"
#include "sistema/Disco.h"
#include "sistema/Percorsi.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPageLayout>
#include <QScopedValueRollback>
#include <QStandardPaths>
#include <QToolButton>

#include <limits>
#include <optional>
#include <utility>

namespace {

/// Lets the hourglass and the place of a closed question be painted before the program waits for
/// the print system.
void MostraAttesa()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

AttesaDelSistema Aspetta(AttesaDiStampa &attesa)
{
    return [&attesa](const LavoroDelSistema &lavoro) { attesa.Aspetta(lavoro); };
}

/// Nothing where there is no printer, or where the print system is silent.
std::optional<QPageLayout> PaginaDellaStampante(AttesaDiStampa &attesa)
{
    try {
        return Stampanti::PaginaPredefinita(Aspetta(attesa));
    } catch (const ErroreSistema &) {
        return std::nullopt; // a file needs no printer
    }
}

/// Of Qt's own: the system's would not speak Italian everywhere.
void Prepara(QFileDialog &finestra)
{
    finestra.setObjectName(QStringLiteral("FinestraEsportaPdf"));
    finestra.setOption(QFileDialog::DontUseNativeDialog);
    finestra.setOption(QFileDialog::DontConfirmOverwrite); // asked as everywhere else
    finestra.setProxyModel(new FileInItaliano(&finestra));
    finestra.setAcceptMode(QFileDialog::AcceptSave);
    finestra.setFileMode(QFileDialog::AnyFile);
    finestra.setNameFilters(
        {QStringLiteral("Documenti PDF (*.pdf)"), QStringLiteral("Tutti i file (*)")});
    finestra.setDefaultSuffix(QStringLiteral("pdf"));
    finestra.setLabelText(QFileDialog::LookIn, QStringLiteral("Cerca in:"));
    finestra.setLabelText(QFileDialog::FileName, QStringLiteral("&Nome del file:"));
    finestra.setLabelText(QFileDialog::FileType, QStringLiteral("Tipo di file:"));
    finestra.setLabelText(QFileDialog::Accept, QStringLiteral("&Salva"));
    finestra.setLabelText(QFileDialog::Reject, QStringLiteral("&Annulla"));
    // Qt ties the labels to other boxes, or to none.
    using Nome = std::pair<const char *, QString>;
    for (const auto &[casella, nome] : {Nome("lookInCombo", QStringLiteral("Cerca in")),
                                        Nome("fileTypeCombo", QStringLiteral("Tipo di file"))}) {
        if (auto *combo = finestra.findChild<QComboBox *>(QLatin1String(casella))) {
            combo->setAccessibleName(nome);
        }
    }
    // Styles put the frame of the focus within a button; as Qt measures these, Windows' lies below
    // the icon.
    constexpr QSize Intorno(6, 6);
    for (auto *bottone : finestra.findChildren<QToolButton *>()) {
        bottone->setFixedSize(bottone->sizeHint().expandedTo(bottone->minimumSize()) + Intorno);
    }
    MostraFuoco(&finestra);
}

void Prepara(QToolButton *bottone, QAction *comando)
{
    bottone->setDefaultAction(comando);
    bottone->setAccessibleName(comando->text());
    bottone->setIconSize(QSize(LatoIconaComandi, LatoIconaComandi));
}

} // namespace

ComandiStampa::ComandiStampa(StatoProgramma &stato, QWidget &editore, Frm1 &anteprima,
                             const Bottoni &bottoni)
    : stato_(stato)
    , editore_(editore)
    , anteprima_(anteprima)
{
    QAction *stampa = CreaComando(this, QStringLiteral("ComandoStampa"),
                                  QStringLiteral("Stampa di prova"), {Qt::CTRL | Qt::Key_P});
    QAction *vedi =
        CreaComando(this, QStringLiteral("ComandoVediStampa"), QStringLiteral("Vedi stampa"),
                    {Qt::CTRL | Qt::SHIFT | Qt::Key_P}, IconaVediStampa(LatoIconaComandi));
    QAction *esportaPdf =
        CreaComando(this, QStringLiteral("ComandoEsportaPdf"), QStringLiteral("Esporta PDF..."),
                    {Qt::CTRL | Qt::Key_E}, IconaEsporta(LatoIconaComandi));
    Prepara(bottoni.Vedi, vedi);
    Prepara(bottoni.Esporta, esportaPdf);
    // What somebody has in hand is in no state to be printed; its dialog would be below the box.
    const auto seLibero = [this](void (ComandiStampa::*azione)()) {
        return [this, azione] {
            if (!stato_.documento.ModificaInCorso()) {
                const TastiPrestati tasti;
                (this->*azione)();
            }
        };
    };
    Collega(stampa, &QAction::triggered, &editore_, seLibero(&ComandiStampa::StampaRichiesta));
    Collega(vedi, &QAction::triggered, &editore_, seLibero(&ComandiStampa::Vedi));
    Collega(esportaPdf, &QAction::triggered, &editore_, seLibero(&ComandiStampa::EsportaTesti));
    comandi_ = {stampa, vedi, esportaPdf};
    AggiungeFinestra(editore_);
    AggiungeFinestra(anteprima_);
}

void ComandiStampa::AggiungeFinestra(QWidget &finestra)
{
    finestra.addActions(comandi_);
}

QWidget *ComandiStampa::Davanti() const
{
    QWidget *aperta = QApplication::activeModalWidget();
    return aperta != nullptr ? aperta : &editore_;
}

void ComandiStampa::Dice(const QString &testo)
{
    anteprima_.Avverte(testo);
    if (vista_ != nullptr) {
        vista_->Dice(testo);
    }
}

void ComandiStampa::Dipinge(Destinazione &destinazione, bool StampaNome, AttesaDiStampa &attesa)
{
    StampaModello(
        stato_.Aperto(), stato_.CartellaModelli, destinazione, StampaNome,
        [this](const QString &testo) { Messaggi::Mostra(Davanti(), testo); },
        [&](double parte) { attesa.Avanza(parte); });
}

void ComandiStampa::Invia(const QString &cosa, AttesaDiStampa &attesa,
                          const std::function<void(Destinazione &)> &stampa)
{
    const PuntatoreOccupato occupato;
    MostraAttesa();
    try {
        const auto stampante = Stampanti::Predefinita(Aspetta(attesa));
        stampa(*stampante);
        Dice(cosa + QStringLiteral(" inviata a ") + stampante->Nome());
    } catch (const ConsegnaAbbandonata &) {
        Dice(cosa + QStringLiteral(" interrotta: non si sa se il foglio uscirà"));
    } catch (const StampaAnnullata &) {
        Dice(cosa + QStringLiteral(" annullata: il foglio non uscirà"));
    }
}

void ComandiStampa::Stampa(bool StampaNome)
{
    AttesaDiStampa attesa(Davanti(), QStringLiteral("Preparazione della stampa di prova..."));
    Invia(QStringLiteral("Stampa di prova"), attesa,
          [&](Destinazione &stampante) { Dipinge(stampante, StampaNome, attesa); });
}

void ComandiStampa::Vedi()
{
    std::optional<VediStampa> vista;
    try {
        {
            const PuntatoreOccupato occupato;
            MostraAttesa();
            AttesaDiStampa attesa(Davanti(), QString());
            const auto stampante = Stampanti::Predefinita(Aspetta(attesa));
            vista.emplace(stato_, stampante->Nome(), stampante->Dispositivo().pageLayout(),
                          &editore_);
        }
        connect(&*vista, &VediStampa::StampaRichiesta, this, &ComandiStampa::StampaRichiesta);
        Collega(&*vista, &VediStampa::EsportazioneRichiesta, &*vista,
                [this](bool StampaNome) { EsportaPdf(StampaNome); });
        vista->Dipinge();
    } catch (const StampaAnnullata &) {
        return; // who would not wait wants to see nothing
    }
    const QScopedValueRollback aperta(vista_, &*vista);
    vista->exec();
}

void ComandiStampa::StampaGriglia()
{
    AttesaDiStampa attesa(Davanti(), QString());
    Invia(QStringLiteral("Griglia millimetrata"), attesa, StampaRetino);
}

QString ComandiStampa::ChiedeFile()
{
    if (stato_.CartellaEsportazione.isEmpty()) {
        // Not beside the models: that folder is Vastrel's.
        stato_.CartellaEsportazione =
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    }
    // Taken away meanwhile, it leaves the one above it.
    const QString partenza = Percorsi::CartellaEsistente(stato_.CartellaEsportazione);
    QFileDialog finestra(Davanti(), QStringLiteral("Esporta PDF"),
                         partenza.isEmpty() ? QDir::homePath() : partenza);
    Prepara(finestra);
    finestra.selectFile(QFileInfo(stato_.NomeFile).completeBaseName() + QStringLiteral(".pdf"));
    ImpostaHelp(&finestra);
    while (finestra.exec() == QDialog::Accepted) {
        const QString file = QDir::toNativeSeparators(finestra.selectedFiles().value(0));
        stato_.CartellaEsportazione = QFileInfo(file).absolutePath();
        if (!QFileInfo::exists(file) ||
            Messaggi::Domanda(Davanti(),
                              QFileInfo(file).fileName() +
                                  QStringLiteral(" esiste già\nLO VUOI SOSTITUIRE?"),
                              Messaggi::Risposta::No)) {
            return file;
        }
    }
    return {};
}

void ComandiStampa::EsportaPdf(bool StampaNome)
{
    const QString file = ChiedeFile();
    if (file.isEmpty()) {
        return;
    }
    const PuntatoreOccupato occupato;
    MostraAttesa();
    FileDiUscita::Verifica({file}, Percorsi::Risolve(stato_.CartellaModelli + stato_.NomeFile),
                           stato_.Aperto());
    std::optional<QPageLayout> pagina;
    AttesaDiStampa attesa(Davanti(), QStringLiteral("Preparazione del PDF..."));
    try {
        pagina = PaginaDellaStampante(attesa);
        FileDiUscita::Scrive(file, [&](const QString &appoggio) {
            const auto foglio =
                pagina ? Stampanti::SuPdf(appoggio, *pagina) : Stampanti::SuPdf(appoggio);
            Dipinge(*foglio, StampaNome, attesa);
            return Disco::Legge(appoggio, std::numeric_limits<qint64>::max());
        });
    } catch (const StampaAnnullata &) {
        Dice(QStringLiteral("Esportazione annullata: nessun file è stato scritto"));
        return;
    }
    Dice(QStringLiteral("Esportato in %1%2")
             .arg(file,
                  pagina ? QString() : QStringLiteral(" (A4 senza margini: nessuna stampante)")));
}

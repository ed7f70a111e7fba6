#include "Giro.h"

#include "Fotografia.h"

#include "documento/CopiaRecupero.h"
#include "editor/Form2.h"
#include "editor/LavoroRimasto.h"
#include "editor/VediStampa.h"
#include "preview/Frm1.h"
#include "sistema/CartellaStato.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGraphicsView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPageLayout>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include <utility>

namespace {

constexpr int AltezzaStriscia = 22; // of the preview, device-independent pixels

template <typename Controllo>
Controllo *Trova(const QWidget &finestra, const char *nome)
{
    auto *controllo = finestra.findChild<Controllo *>(QString::fromLatin1(nome));
    if (controllo == nullptr) {
        Fallisce(QStringLiteral("no control ") + QString::fromLatin1(nome));
    }
    return controllo;
}

void Preme(const QWidget &finestra, const char *nome)
{
    Trova<QAbstractButton>(finestra, nome)->click();
}

void Scrive(const QWidget &finestra, const char *nome, const QString &testo)
{
    auto *casella = Trova<QLineEdit>(finestra, nome);
    casella->setFocus();
    casella->selectAll();
    casella->insert(testo);
}

/// As if the pointer stood still over the control.
void Sosta(QWidget &controllo)
{
    const QPoint centro = controllo.rect().center();
    QHelpEvent sosta(QEvent::ToolTip, centro, controllo.mapToGlobal(centro));
    QCoreApplication::sendEvent(&controllo, &sosta);
}

} // namespace

Giro::Giro(const QString &dati, const Fotografia &foto)
    : foto_(foto)
    , scelta_(stato_)
    , dati_(dati)
{
    if (!scelta_.Form_Load(dati)) {
        Fallisce(QStringLiteral("the start window does not load"));
    }
}

Giro::~Giro() = default;

void Giro::Fa()
{
    FinestraIniziale();
    Apre(QStringLiteral("Fattura_Rossi.Mod"));
    FinestraDiLavoro();
    PagineDegliElementi();
    Dialoghi();
    Righe();
    Correzione();
    Elenco();
    Stampa();
    Domande();
    Chiude();
    Apre(QStringLiteral("DDT_prestampato.Mod"));
    Sfondo();
    Chiude();
    Apre(QStringLiteral("Prova_Controlli.Mod"));
    Controlli();
    Chiude();
    LavoroInterrotto();
}

void Giro::Apre(const QString &nome)
{
    stato_.CartellaModelli = QDir::toNativeSeparators(dati_ + QStringLiteral("/Contabilita/ini/"));
    stato_.NomeFile = nome;
    editor_ = std::make_unique<Form2>(stato_);
    if (!editor_->Form_Load()) {
        Fallisce(nome + QStringLiteral(" does not open"));
    }
    Anteprima().show();
    Editor().show();
    Editor().activateWindow();
    Fotografia::Attende();
}

void Giro::Chiude()
{
    stato_.documento.Salvato();
    editor_.reset();
}

void Giro::Zoom(double zoom)
{
    Anteprima().ImpostaZoom(zoom);
    Fotografia::Attende();
}

void Giro::Pagina(int quale)
{
    Trova<QTabWidget>(Editor(), "SSTab1")->setCurrentIndex(quale);
    Fotografia::Attende();
}

int Giro::Numero(Genere genere, const QString &nome) const
{
    const Modello &modello = stato_.Aperto();
    for (int i = 1; i <= modello.Numero(genere); ++i) {
        if (modello.Di({genere, i}).Nome == nome) {
            return i;
        }
    }
    Fallisce(QStringLiteral("the model has no ") + nome);
}

void Giro::RitraeLavoro(const QString &nome, const QList<QWidget *> &altre) const
{
    foto_.Ritrae(nome, QList<QWidget *>{&Anteprima(), &Editor()} + altre);
}

void Giro::FinestraIniziale()
{
    scelta_.show();
    auto *modelli = Trova<QListWidget>(scelta_, "List2");
    const auto trovati = modelli->findItems(QStringLiteral("Fattura_Rossi"), Qt::MatchExactly);
    if (trovati.isEmpty()) {
        Fallisce(QStringLiteral("the sample invoice is not listed"));
    }
    modelli->setCurrentItem(trovati.first());
    foto_.Ritrae(QStringLiteral("FinestraIniziale"), {&scelta_});
    foto_.AlDialogo(QStringLiteral("NuovoModello"), "QInputDialog",
                    [this] { Preme(scelta_, "Nuovo"); });
    scelta_.hide();
}

void Giro::FinestraDiLavoro()
{
    RitraeLavoro(QStringLiteral("FinestraLavoro"));
    Zoom(1.5);
    RitraeLavoro(QStringLiteral("Copertina"));
    Zoom(2);
    Anteprima().Sceglie(Campo(QStringLiteral("Cli_RagSoc")));
    foto_.Ritrae(QStringLiteral("Anteprima"), {&Anteprima()});
    Scelti();
    Comandi();
}

void Giro::Scelti()
{
    Zoom(1);
    QList<Chiave> chiavi;
    for (const QString &nome : {QStringLiteral("Cli_RagSoc"), QStringLiteral("Cli_Indirizzo"),
                                QStringLiteral("Cli_CapCitta")}) {
        chiavi.append(Campo(nome));
    }
    stato_.selezione.ImpostaScelti(chiavi);
    auto *foglio = Trova<QGraphicsView>(Anteprima(), "P1");
    foglio->setFocus();
    const QRect intestazione(0, 0, 700, 320);
    foto_.Ritrae(QStringLiteral("Scelti"), {&Anteprima()}, intestazione);
    stato_.selezione.ImpostaScelti({chiavi.constLast()});
    QTest::keyClick(foglio, Qt::Key_F8);
    foto_.Ritrae(QStringLiteral("Guide"), {&Anteprima()}, intestazione);
    QTest::keyClick(foglio, Qt::Key_Return);
    Preme(Anteprima(), "TogliGuide");
    foto_.Ritrae(QStringLiteral("StrisciaAnteprima"), {&Anteprima()},
                 QRect(Anteprima().width() / 2, Anteprima().height() - AltezzaStriscia,
                       Anteprima().width() / 2, AltezzaStriscia));
    stato_.selezione.SvuotaScelti();
}

void Giro::Comandi()
{
    Scrive(Editor(), "Tipo", QStringLiteral("Fattura Rossi"));
    foto_.Ritrae(QStringLiteral("ComandiSemprePresenti"), {Trova<QWidget>(Editor(), "comandi")});
    foto_.AlDialogo(
        QStringLiteral("DomandaSalvare"), "QMessageBox", [this] { Editor().Salva_Click(); },
        [](QDialog &domanda) { QTest::keyClick(&domanda, Qt::Key_N); });
}

void Giro::PagineDegliElementi()
{
    Pagina(0);
    Trova<QComboBox>(Editor(), "ComboCampi")->setCurrentIndex(1);
    foto_.Ritrae(QStringLiteral("PaginaCampi"), {&Editor()});
    Pagina(2);
    foto_.Ritrae(QStringLiteral("PaginaCornici"), {&Editor()});
    Pagina(3);
    foto_.Ritrae(QStringLiteral("PaginaImmagini"), {&Editor()});
    Pagina(0);
}

void Giro::Dialoghi()
{
    foto_.AlDialogo(QStringLiteral("ImpostazioniCampo"), "FrmCampo",
                    [this] { Editor().ApreFrmCampo(Campo(QStringLiteral("Cli_RagSoc")).indice); });
    foto_.AlDialogo(
        QStringLiteral("ImpostazioniCornice"), "FrmCornice", [this] { Editor().ApreFrmCornice(1); },
        [this](QDialog &dialogo) {
            auto *tavolozza = Trova<QToolButton>(dialogo, "TavolozzaCorn");
            tavolozza->menu()->popup(tavolozza->mapToGlobal(QPoint(0, tavolozza->height())));
            Fotografia::Attende();
            foto_.Ritrae(QStringLiteral("Tavolozza"), {&dialogo, tavolozza->menu()});
            tavolozza->menu()->hide();
            Fotografia::Attende();
            Scrive(dialogo, "Bordo", QStringLiteral("1,5"));
            Fotografia::Attende();
            auto *bordo = Trova<QWidget>(dialogo, "Bordo");
            Sosta(*bordo);
            const QPoint posto = bordo->mapTo(&dialogo, QPoint(0, 0));
            foto_.Ritrae(QStringLiteral("CasellaSegnata"),
                         QList<QWidget *>{&dialogo} + Fotografia::Fumetti(),
                         QRect(0, posto.y() - 5, dialogo.width(), 60));
            dialogo.reject();
        });
    foto_.AlDialogo(
        QStringLiteral("ImpostazioniImmagine"), "FrmImmagine",
        [this] { Editor().ApreFrmImmagine(1); },
        [this](QDialog &dialogo) {
            stato_.CartellaImportate = QFileInfo(dati_).path() + QStringLiteral("/immagini");
            foto_.AlDialogo(QStringLiteral("Importa"), "Sfoglia",
                            [&dialogo] { Preme(dialogo, "Importa"); });
            dialogo.reject();
        });
}

void Giro::Righe()
{
    Zoom(1.5);
    Pagina(1);
    Preme(Editor(), "OptSimuloRighe");
    RitraeLavoro(QStringLiteral("PosizioneRighe"));
    Preme(Editor(), "OptSimuloRighe");
}

void Giro::Correzione()
{
    Pagina(4);
    foto_.Ritrae(QStringLiteral("Spostamento"), {&Editor()});
    foto_.AlDialogo(
        QStringLiteral("Correzione"), "FrmCorrezione",
        [this] { Preme(Editor(), "CorreggiDaGriglia"); }, {},
        [](QDialog &dialogo) {
            Scrive(dialogo, "AttesoX1", QStringLiteral("20"));
            Scrive(dialogo, "AttesoY1", QStringLiteral("30"));
            Scrive(dialogo, "UscitoX1", QStringLiteral("18"));
            Scrive(dialogo, "UscitoY1", QStringLiteral("31"));
        });
}

void Giro::Elenco()
{
    Pagina(0);
    Zoom(2);
    Trova<QToolButton>(Anteprima(), "MostraElenco")->click();
    Anteprima().Sceglie(Campo(QStringLiteral("Doc_Numero")));
    RitraeLavoro(QStringLiteral("Elenco"), {Fotografia::Finestra("ElencoElementi")});
    Fotografia::Finestra("ElencoElementi")->close();
}

std::unique_ptr<VediStampa> Giro::Vista()
{
    const QPageLayout pagina(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(5, 5, 5, 5),
                             QPageLayout::Millimeter);
    auto vista = std::make_unique<VediStampa>(stato_, QStringLiteral("Ufficio"), pagina, &Editor());
    vista->Dipinge();
    vista->show();
    Fotografia::Attende();
    return vista;
}

void Giro::Stampa()
{
    const auto vista = Vista();
    auto *foglio = Trova<QWidget>(*vista, "Foglio");
    foto_.Ritrae(QStringLiteral("StampaTesti"), {foglio});
    Preme(*vista, "Nomi");
    foto_.Ritrae(QStringLiteral("StampaNomi"), {foglio});
}

void Giro::Domande()
{
    foto_.AlDialogo(QStringLiteral("DomandaStampa"), "QMessageBox",
                    [this] { Editor().Stampa_Click(); });
}

void Giro::Sfondo()
{
    Zoom(1.5);
    Pagina(5);
    RitraeLavoro(QStringLiteral("ImmagineSfondo"));
    foto_.AlDialogo(
        QStringLiteral("Calibra"), "FrmCalibra", [this] { Preme(Editor(), "SfondoCalibra"); }, {},
        [](QDialog &dialogo) {
            Preme(dialogo, "PerPunti");
            auto *vista = Trova<QGraphicsView>(dialogo, "Vista");
            // The ends of a line of the form, mm of the sheet.
            for (const QPointF punto : {QPointF(7.2, 28.1), QPointF(197.2, 28.1)}) {
                QTest::mouseClick(vista->viewport(), Qt::LeftButton, {},
                                  vista->mapFromScene(punto));
            }
            Scrive(dialogo, "Distanza", QStringLiteral("190"));
        });
    const auto vista = Vista();
    Preme(*vista, "Scansione");
    Preme(*vista, "TuttaLaLarghezza");
    foto_.Ritrae(QStringLiteral("VediStampa"), {vista.get()});
}

void Giro::Controlli()
{
    Zoom(1.5);
    Fotografia::Attende();
    Preme(Editor(), "Controlli");
    QWidget *elenco = Fotografia::Finestra("ElencoRilievi");
    QTest::keyClick(Trova<QAbstractItemView>(*elenco, "Rilievi"), Qt::Key_Down);
    RitraeLavoro(QStringLiteral("Controlli"), {elenco});
    elenco->close();
}

void Giro::LavoroInterrotto()
{
    const QString file = Modelli() + QStringLiteral("Fattura_Verdi.Mod");
    QFile::copy(Modelli() + QStringLiteral("Fattura_Rossi.Mod"), file);
    QFile modello(file);
    if (!modello.open(QIODevice::ReadOnly)) {
        Fallisce(file + QStringLiteral(": ") + modello.errorString());
    }
    {
        CopiaRecupero copia(CartellaStato(), file);
        copia.Parte(modello.readAll());
        copia.Scrive(stato_.Aperto());
    }
    modello.close();
    stato_.NomeFile = QStringLiteral("Fattura_Verdi.Mod");
    foto_.AlDialogo(QStringLiteral("DomandaRecupero"), "QMessageBox", [this] {
        const auto editor = std::make_unique<Form2>(stato_);
        editor->Form_Load();
    });
    stato_.documento.Salvato();
    QFile::remove(file);
    foto_.AlDialogo(QStringLiteral("LavoroRimasto"), "QMessageBox",
                    [this] { OffreLavoroRimasto(&scelta_, stato_); });
}

#include "editor/FrmLavoroRimasto.h"

#include "documento/StatoProgramma.h"
#include "finestre/Finestre.h"
#include "preview/Frm1.h"
#include "sistema/Percorsi.h"
#include "ui_FrmLavoroRimasto.h"

#include <QFileInfo>
#include <QPixmap>
#include <QScreen>

FrmLavoroRimasto::FrmLavoroRimasto(const Modello &modello, const QString &percorso, QWidget *padre)
    : QDialog(padre)
    , ui_(std::make_unique<Ui::FrmLavoroRimasto>())
{
    ui_->setupUi(this);
    setWindowTitle(QStringLiteral("Plakera: lavoro non salvato di ") + modello.NomeFile);
    StatoProgramma stato;
    stato.documento.Prende(modello, false);
    stato.CartellaModelli = QFileInfo(percorso).path() + Percorsi::Separatore();
    Frm1 anteprima(stato);
    anteprima.MostraModello();
    const QPixmap ritratto = anteprima.Ritratto();
    ui_->Foglio->setPixmap(ritratto);
    // Room for the scroll bars and the button.
    constexpr int Intorno = 80;
    resize(
        EntroLoSchermo(this, ritratto.deviceIndependentSize().toSize() + QSize(Intorno, Intorno)));
    connect(ui_->Chiudi, &QPushButton::clicked, this, &QDialog::accept);
}

FrmLavoroRimasto::~FrmLavoroRimasto() = default;

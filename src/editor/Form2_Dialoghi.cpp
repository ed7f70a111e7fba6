// The property dialogs: opening, filling and following them.

#include "dialogs/FrmCampo.h"
#include "dialogs/FrmCornice.h"
#include "dialogs/FrmImmagine.h"
#include "documento/Passo.h"
#include "editor/Form2.h"
#include "editor/PaginaElementi.h"
#include "finestre/DialogoScorrevole.h"
#include "finestre/Finestre.h"
#include "finestre/Guardia.h"
#include "finestre/Messaggi.h"
#include "model/Numeri.h"
#include "preview/Frm1.h"

#include <QComboBox>
#include <QScreen>

void Form2::ApreProprieta(Genere genere, int indice)
{
    switch (genere) {
    case Genere::Campo:
        ApreFrmCampo(indice);
        break;
    case Genere::Cornice:
        ApreFrmCornice(indice);
        break;
    case Genere::Immagine:
        ApreFrmImmagine(indice);
        break;
    }
}

void Form2::ApreFrmCampo(int indice)
{
    if (indice <= 0) {
        return;
    }
    FrmCampo dialogo(stato_, this);
    CollegaDialogo(dialogo);
    Collega(&dialogo, &FrmCampo::SettaComboMaskRichiesto, this,
            [this, &dialogo] { SettaComboMask(dialogo); });
    dialogo.RiempieComboImpostazioni();
    dialogo.Carica(indice);
    const Campo &campo = stato_.Aperto().Campi[indice];
    SettaFont(dialogo, campo.Font, QString::number(campo.Dimensione));
    SettaComboMask(dialogo);
    MostraDialogo(dialogo, {Genere::Campo, indice});
}

void Form2::ApreFrmCornice(int indice)
{
    if (indice <= 0) {
        return;
    }
    FrmCornice dialogo(stato_, this);
    CollegaDialogo(dialogo);
    dialogo.RiempieComboImpostazioni();
    dialogo.Carica(indice);
    const Cornice &cornice = stato_.Aperto().Cornici[indice];
    SettaFont(dialogo, cornice.Font, QString::number(cornice.Dimensione));
    MostraDialogo(dialogo, {Genere::Cornice, indice});
}

void Form2::ApreFrmImmagine(int indice)
{
    if (indice <= 0) {
        return;
    }
    FrmImmagine dialogo(stato_, this);
    CollegaDialogo(dialogo);
    dialogo.Carica(indice);
    MostraDialogo(dialogo, {Genere::Immagine, indice});
}

void Form2::CollegaDialogo(FrmElemento &dialogo)
{
    Collega(&dialogo, &FrmElemento::VoceScelta, this,
            [this](Genere genere, int n) { Pagina(genere).Seleziona(n); });
}

void Form2::MostraDialogo(FrmElemento &dialogo, Chiave chiave)
{
    // Beside the controls of the editor, towards the right edge, so that the sheet's left part,
    // where most elements stand, stays in sight.
    const QRect schermo = screen()->availableGeometry();
    // The dialog gets a frame like the editor's; its position is taken as that of its inside.
    // Left to itself it would be squeezed into two thirds of a small screen.
    AdattaAlloSchermo(dialogo);
    const QSize misura = dialogo.size().grownBy(cornice_);
    constexpr int Distanza = 20; // device-independent pixels
    const int sinistra = qMax(schermo.left(), schermo.right() - misura.width() - Distanza);
    const int sopra = qMax(schermo.top(), qMin(anteprima_->frameGeometry().top(),
                                               schermo.bottom() - misura.height() - Distanza));
    dialogo.move(sinistra + cornice_.left(), sopra + cornice_.top());
    const TastiPrestati tasti; // the dialog is the editor's, whoever asked for it
    // A visit is one step, with all that it wrote at once.
    const Passo visita(stato_.documento,
                       FrmElemento::TestoModifica(stato_.documento.Denominazione(chiave)));
    dialogo.exec();
}

void Form2::SettaFont(FrmCarattere &dialogo, const QString &font, const QString &dimensione)
{
    QComboBox *caratteri = dialogo.Font();
    int posto = caratteri->findText(font, Qt::MatchFixedString);
    if (posto < 0) {
        Messaggi::Mostra(this,
                         QStringLiteral("font %1 non esistente: verrà impostato Arial").arg(font));
        posto = caratteri->findText(QStringLiteral("Arial"), Qt::MatchFixedString);
        if (posto < 0) {
            // A system without Arial still writes its name: Vastrel prints elsewhere too.
            caratteri->addItem(QStringLiteral("Arial"));
            posto = caratteri->count() - 1;
        }
    }
    caratteri->setCurrentIndex(posto);
    QComboBox *dimensioni = dialogo.Dimensioni();
    const double valore = Numeri::Val(dimensione);
    // A size that the list lacks leaves nothing selected rather than a size that is not the
    // element's.
    dimensioni->setCurrentIndex(-1);
    for (int i = 0; i < dimensioni->count(); ++i) {
        if (Numeri::Val(dimensioni->itemText(i)) == valore) {
            dimensioni->setCurrentIndex(i);
            break;
        }
    }
}

void Form2::SettaComboMask(FrmCampo &dialogo)
{
    QComboBox *maschere = dialogo.Maschere();
    const QString maschera = dialogo.MascheraCorrente();
    for (int i = 0; i < maschere->count(); ++i) {
        if (maschere->itemText(i).section(u' ', 0, 0) == maschera) {
            maschere->setCurrentIndex(i);
            break;
        }
    }
}

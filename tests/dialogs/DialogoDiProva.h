#pragma once

#include "dialogs/Chiamante.h"
#include "dialogs/FrmCampo.h"
#include "dialogs/FrmCornice.h"
#include "dialogs/FrmImmagine.h"
#include "support/Controlli.h"
#include "support/DocumentoDiProva.h"
#include "support/Generi.h"
#include "support/Robot.h"

#include <QComboBox>
#include <QTemporaryDir>

#include <memory>

/// Selects an element's font and size as the editor does that opens the dialog; a size that the
/// list lacks leaves none selected.
inline void SceglieCarattere(FrmCarattere &dialogo, const QString &font, qint16 dimensione)
{
    dialogo.Font()->setCurrentText(font);
    dialogo.Dimensioni()->setCurrentIndex(
        dialogo.Dimensioni()->findText(QString::number(dimensione).rightJustified(2)));
}

/// Shows a dialog so that the robot, which looks for modal boxes only, leaves it alone.
inline void MostraDialogo(QDialog &dialogo)
{
    dialogo.setModal(false);
    dialogo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialogo));
    dialogo.activateWindow();
}

/// A model of three elements of each kind, and the property dialog of the second of one kind,
/// loaded as the editor does it.
struct DialogoDiProva
{
    /// nomi: of the elements, with their index for %1. casuale: as the dialog of a field takes it.
    explicit DialogoDiProva(Genere delGenere, const QString &nomi = QStringLiteral("Elemento%1"),
                            SorgenteCasuale casuale = {})
        : genere(delGenere)
    {
        stato.CartellaModelli = cartella.path() + u'/';
        stato.ElencoFont = {QStringLiteral("Arial"), QStringLiteral("Courier New")};
        Cambia(stato, [&nomi](Modello &modello) {
            for (int i = 1; i <= 3; ++i) {
                modello.AggiungeCampo(10 * i, 20 * i);
                modello.AggiungeCornice(10 * i, 20 * i, 0, 0);
                modello.AggiungeImmagine(10 * i, 20 * i);
                modello.Campi[i].Testo = QStringLiteral("prova%1").arg(i);
                const QString nome = nomi.arg(i);
                modello.Campi[i].Nome = modello.Cornici[i].Nome = modello.Immagini[i].Nome = nome;
            }
        });
        switch (genere) {
        case Genere::Campo:
            dialogo = std::make_unique<FrmCampo>(stato, nullptr, std::move(casuale));
            break;
        case Genere::Cornice:
            dialogo = std::make_unique<FrmCornice>(stato);
            break;
        case Genere::Immagine:
            dialogo = std::make_unique<FrmImmagine>(stato);
            break;
        }
        chiamante = std::make_unique<Chiamante>(stato, *dialogo);
        Carica(2);
    }

    /// Throws what the dialog's own procedure throws.
    void Carica(int n)
    {
        switch (genere) {
        case Genere::Campo:
            Carica(static_cast<FrmCampo &>(*dialogo), stato.Aperto().Campi, n);
            break;
        case Genere::Cornice:
            Carica(static_cast<FrmCornice &>(*dialogo), stato.Aperto().Cornici, n);
            break;
        case Genere::Immagine:
            static_cast<FrmImmagine &>(*dialogo).Carica(n);
            break;
        }
    }
    void Mostra() { MostraDialogo(*dialogo); }
    void Apre(int n)
    {
        Carica(n);
        Mostra();
    }

    /// What fields and frames have besides; not for the dialog of an image.
    FrmCarattere &ConCarattere() { return static_cast<FrmCarattere &>(*dialogo); }

    void Conferma() { Controlli::Preme(*dialogo, BottoneConferma(genere)); }
    void Elimina() { Controlli::Preme(*dialogo, BottoneElimina(genere)); }
    const Elemento &Secondo() const { return stato.Aperto().Di({genere, 2}); }
    /// Whether the model is still that one, and the dialog open.
    bool Intatto(const Modello &prima) const
    {
        return stato.Aperto() == prima && dialogo->isVisible();
    }

    /// Fails the test unless the dialog has changed its own element alone, sent the list to that
    /// entry, which reads voce by then, and closed itself after that.
    void VerificaConcluso(const QString &voce) const
    {
        QCOMPARE(chiamante->Cambiati(), QList<int>{2});
        QVERIFY(chiamante->Ricollocati().isEmpty());
        QCOMPARE(chiamante->Scelta(), 2);
        QCOMPARE(chiamante->Voce(), voce);
        QVERIFY(chiamante->InOrdine());
        QVERIFY(!dialogo->isVisible());
    }

    const Genere genere;
    QTemporaryDir cartella;
    StatoProgramma stato;
    std::unique_ptr<FrmElemento> dialogo;
    std::unique_ptr<Chiamante> chiamante;
    Robot robot;

private:
    template <typename Dialogo, typename Tabella>
    static void Carica(Dialogo &dialogo, const Tabella &tabella, int n)
    {
        dialogo.RiempieComboImpostazioni();
        dialogo.Carica(n);
        SceglieCarattere(dialogo, tabella[n].Font, tabella[n].Dimensione);
    }
};

/// The same, shown.
struct DialogoAperto : DialogoDiProva
{
    explicit DialogoAperto(Genere delGenere)
        : DialogoDiProva(delGenere)
    {
        Mostra();
    }
};

// What the random work does in the property dialogs.

#include "Sequenza.h"

#include <QComboBox>
#include <QDialog>
#include <QListWidget>

void Sequenza::Lavora(QDialog &dialogo)
{
    if (!Volte(6)) { // otherwise it is only looked at
        if (dialogo.objectName() == QStringLiteral("FrmCampo")) {
            LavoraCampo(dialogo);
        } else if (dialogo.objectName() == QStringLiteral("FrmCornice")) {
            LavoraCornice(dialogo);
        } else if (dialogo.objectName() == QStringLiteral("FrmImmagine")) {
            LavoraImmagine(dialogo);
        }
    }
    if (dialogo.isVisible()) {
        QTest::keyClick(&dialogo, Qt::Key_Escape);
    }
}

void Sequenza::ScriveCaselle(QDialog &dialogo, std::initializer_list<const char *> testi,
                             std::initializer_list<const char *> numeri)
{
    if (Volte(3)) {
        Controlli::Digita(dialogo, "Nome", UnNome());
    }
    for (const char *casella : testi) {
        if (Volte(3)) {
            Controlli::Digita(dialogo, casella, UnTesto());
        }
    }
    for (const char *casella : numeri) {
        if (Volte(3)) {
            Controlli::Digita(dialogo, casella, TestoMillimetri());
        }
    }
}

void Sequenza::ScegliCarattere(QDialog &dialogo)
{
    if (Volte(3)) {
        SceglieNelCombo(dialogo, "ComboFont", Uno({"Arial", "DejaVu Sans"}));
        SceglieNelCombo(dialogo, "ComboDim", Uno({" 6", " 9", "12", "24", "40"}));
    }
    if (Volte(4)) {
        Controlli::Preme(dialogo, "Bold");
    }
}

void Sequenza::LavoraCampo(QDialog &dialogo)
{
    ScriveCaselle(dialogo, {"Testo", "Descrizione"}, {"X", "Y"});
    ScegliCarattere(dialogo);
    if (Volte(3)) {
        SceglieNelCombo(dialogo, "ComboMask",
                        Uno({"No non stampa", "##,### 2 decimali", "$$$$$$$$ 8  caratteri"}));
        Controlli::Preme(dialogo, "PCambiaMaschera");
    }
    if (Volte(6)) {
        Controlli::Preme(dialogo, "Command2");
    }
    Controlli::Preme(dialogo, Volte(8)   ? "PEliminaCampo"
                              : Volte(5) ? "NonStampaCampo"
                              : Volte(8) ? "PMascheraDefault"
                                         : "PConfemaCampo");
}

void Sequenza::LavoraCornice(QDialog &dialogo)
{
    ScriveCaselle(dialogo, {"Testo", "Descrizione"}, {"X", "Y", "Largh", "Alt"});
    ScegliCarattere(dialogo);
    if (Volte(3)) {
        Controlli::Preme(dialogo, Uno({"OptEtichetta", "OptCornice"}));
    } else if (Volte(3)) {
        Controlli::Digita(dialogo, "Bordo",
                          Uno<QString>({QStringLiteral("0"), QStringLiteral("0.5"),
                                        QStringLiteral("1.2"), QStringLiteral("2")}));
    }
    for (const char *casella : {"ColoreTesto", "ColoreCorn"}) {
        if (Volte(3)) {
            Controlli::Digita(dialogo, casella, QString::number(Numero(18) - 1));
        }
    }
    Controlli::Preme(dialogo, Volte(8)    ? "Elimina"
                              : Volte(10) ? "Command1"
                              : Volte(10) ? "Command2"
                                          : "Confema");
}

void Sequenza::LavoraImmagine(QDialog &dialogo)
{
    if (Volte(3)) {
        auto *elenco = Trova<QListWidget>(dialogo, "FileImmagini");
        QListWidgetItem *voce = elenco->item(Numero(elenco->count()));
        elenco->scrollToItem(voce);
        QTest::mouseClick(elenco->viewport(), Qt::LeftButton, {},
                          elenco->visualItemRect(voce).center());
    } else if (Volte(4)) {
        Controlli::Digita(dialogo, "Nome", Volte(3) ? QString() : UnNome());
    }
    for (const char *casella : {"X", "Y", "Largh", "Alt"}) {
        if (Volte(3)) {
            Controlli::Digita(dialogo, casella, TestoMillimetri());
        }
    }
    if (Volte(6)) {
        Controlli::Preme(dialogo, "Command1");
    }
    Controlli::Preme(dialogo, Volte(6) ? "Elimina" : "Confema");
}

#include "dialogs/FrmCarattere.h"

#include "finestre/Finestre.h"
#include "finestre/Guardia.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>

namespace {

constexpr int DimensioneMinima = 6;
constexpr int DimensioneMassima = 40;
constexpr int CifreDimensione = 2;

} // namespace

void FrmCarattere::Form_Load(const Controlli &controlli, const ControlliCarattere &carattere)
{
    nome_ = controlli.Nome;
    carattere_ = carattere;
    nome_->installEventFilter(this);
    FrmElemento::Form_Load(controlli);
}

void FrmCarattere::RiempieComboImpostazioni()
{
    const PuntatoreOccupato occupato;
    carattere_.ComboFont->clear();
    carattere_.ComboFont->addItems(Stato().ElencoFont);
    carattere_.ComboDim->clear();
    for (int punti = DimensioneMinima; punti <= DimensioneMassima; ++punti) {
        carattere_.ComboDim->addItem(QString::number(punti).rightJustified(CifreDimensione));
    }
}

void FrmCarattere::MostraCarattere(const QString &testo, bool grassetto, qint16 dimensione)
{
    Caselle().Mostra(carattere_.Testo, testo);
    MettePrimo(carattere_.Testo);
    carattere_.Bold->setChecked(grassetto);
    dimensione_ = dimensione;
}

bool FrmCarattere::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (oggetto == nome_ && evento->type() == QEvent::MouseButtonDblClick) {
        Guardia(this, [this] { Nome_DblClick(); });
    }
    return FrmElemento::eventFilter(oggetto, evento);
}

void FrmCarattere::Nome_DblClick()
{
    Caselle().Mostra(carattere_.Testo, Caselle().Testo(nome_));
}

FrmCarattere::Carattere FrmCarattere::CarattereScelto() const
{
    if (carattere_.ComboFont->currentText().isEmpty()) {
        throw Rifiuto{QStringLiteral("Font: nessuno scelto"), carattere_.ComboFont};
    }
    if (carattere_.ComboDim->currentText().isEmpty()) {
        throw Rifiuto{
            QStringLiteral("%1: l'elemento ha %2, che non è nell'elenco; sceglierne una da %3 a %4")
                .arg(carattere_.ComboDim->accessibleName(), QString::number(dimensione_),
                     QString::number(DimensioneMinima), QString::number(DimensioneMassima)),
            carattere_.ComboDim};
    }
    return {carattere_.ComboFont->currentText(), carattere_.Bold->isChecked() ? Vero : Falso,
            Intero16(carattere_.ComboDim, carattere_.ComboDim->currentText())};
}

#include "dialogs/FrmElemento.h"

#include "base/ErroreSistema.h"
#include "finestre/Finestre.h"
#include "finestre/FuocoInVista.h"
#include "finestre/Messaggi.h"
#include "model/Numeri.h"

#include <QPalette>

#include <array>

FrmElemento::FrmElemento(Genere genere, StatoProgramma &stato, QWidget *padre)
    : QDialog(padre)
    , genere_(genere)
    , stato_(stato)
{
    setModal(true);
}

bool FrmElemento::Numero(QLineEdit *casella)
{
    constexpr double Massimo = 400;
    const std::optional<double> valore = Numeri::Numerico(casella->text());
    if (valore && *valore <= Massimo) {
        return true;
    }
    casella->setText(QStringLiteral("0"));
    return false;
}

void FrmElemento::Form_Load(const Controlli &controlli)
{
    controlli_ = controlli;
    // The key of the record is shown, not typed: another number would overwrite another element.
    QPalette tavolozza = controlli_.Num->palette();
    tavolozza.setBrush(QPalette::Base, tavolozza.window());
    controlli_.Num->setPalette(tavolozza);
    ImpostaHelp(this);
    MostraFuoco(this);
    LimitaAlCodice(this);
    FermaRotella(this);
    LimitaElenchi(this);
    MostraDallInizioEntrando(this);
}

void FrmElemento::CaricaElemento(int k)
{
    const Elemento &elemento = Aperto().Di({genere_, k});
    caselle_.Mostra(controlli_.Nome, elemento.Nome);
    caselle_.Mostra(controlli_.Descrizione, elemento.Descrizione);
    caselle_.Mostra(controlli_.X, elemento.X);
    caselle_.Mostra(controlli_.Y, elemento.Y);
    controlli_.Num->setText(QString::number(k));
}

void FrmElemento::MettePrimo(QLineEdit *casella)
{
    casella->setFocus();
    SelezionaDallInizio(casella);
}

int FrmElemento::Indice() const
{
    return Numeri::Intero16(Numeri::Val(controlli_.Num->text()));
}

void FrmElemento::ControllaNomeUnico(int n, const QString &messaggio) const
{
    if (Aperto().NomePreso(genere_, caselle_.Testo(controlli_.Nome), n)) {
        throw Rifiuto{messaggio, controlli_.Nome};
    }
}

void FrmElemento::ControllaNomeScritto() const
{
    if (controlli_.Nome->text().isEmpty()) {
        throw Rifiuto{QStringLiteral("Nome: non può essere vuoto"), controlli_.Nome};
    }
}

double FrmElemento::Doppio(QLineEdit *casella) const
{
    const std::optional<double> valore = caselle_.Numerico(casella);
    if (!valore) {
        throw Rifiuto{NonNumero(casella->accessibleName(), casella->text()), casella};
    }
    return *valore;
}

double FrmElemento::Val(QLineEdit *casella) const
{
    try {
        return caselle_.Val(casella);
    } catch (const ErroreSistema &) {
        throw TroppoGrande(casella, casella->text());
    }
}

qint16 FrmElemento::Intero16(QWidget *controllo, const QString &testo)
{
    const std::optional<double> valore = Numeri::Numerico(testo);
    if (!valore) {
        throw Rifiuto{NonNumero(controllo->accessibleName(), testo), controllo};
    }
    try {
        return Numeri::Intero16(*valore);
    } catch (const ErroreSistema &) {
        throw TroppoGrande(controllo, testo);
    }
}

qint16 FrmElemento::ValIntero16(QLineEdit *casella)
{
    try {
        return Numeri::Intero16(Numeri::Val(casella->text()));
    } catch (const ErroreSistema &) {
        throw TroppoGrande(casella, casella->text());
    }
}

FrmElemento::Rifiuto FrmElemento::TroppoGrande(QWidget *controllo, const QString &testo)
{
    return {NumeroTroppoGrande(controllo->accessibleName(), testo), controllo};
}

FrmElemento::Posto FrmElemento::PostoScritto() const
{
    const double x = Doppio(controlli_.X);
    return {x, Doppio(controlli_.Y)};
}

void FrmElemento::ScriveElemento(Elemento &elemento, const Posto &posto) const
{
    elemento.Nome = caselle_.Testo(controlli_.Nome);
    elemento.X = posto.X;
    elemento.Y = posto.Y;
    elemento.Descrizione = caselle_.Testo(controlli_.Descrizione);
}

QString FrmElemento::TestoModifica(const QString &nome)
{
    return QStringLiteral("modifica ") + nome;
}

void FrmElemento::Conclude(int n)
{
    emit VoceScelta(genere_, n);
    accept();
}

QString FrmElemento::DomandaElimina(Genere genere)
{
    static constexpr std::array<QLatin1String, Generi.size()> Domande{
        QLatin1String("Elimino il campo "), QLatin1String("Elimino Cornice "),
        QLatin1String("Elimino Immagine ")};
    return Domande.at(::Posto(genere));
}

void FrmElemento::ChiedeEliminazione()
{
    const int n = Indice();
    if (Messaggi::Domanda(this, DomandaElimina(genere_) + Aperto().Nome(genere_, n),
                          Messaggi::Risposta::No)) {
        EliminaElemento(n);
    }
}

void FrmElemento::EliminaElemento(int n)
{
    {
        Passo passo(stato_.documento, {});
        passo.Nomina(QStringLiteral("elimina ") + stato_.documento.Denominazione({genere_, n}));
        passo.Elimina({genere_, n});
    }
    Conclude(n);
}

void FrmElemento::Rifiuta(const Rifiuto &rifiuto)
{
    Messaggi::Mostra(this, rifiuto.Messaggio);
    rifiuto.Controllo->setFocus();
    if (auto *casella = qobject_cast<QLineEdit *>(rifiuto.Controllo)) {
        SelezionaDallInizio(casella);
    }
}

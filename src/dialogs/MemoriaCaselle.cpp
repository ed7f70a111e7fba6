#include "dialogs/MemoriaCaselle.h"

#include "model/Numeri.h"

void MostraDallInizio(QLineEdit *casella, const QString &testo)
{
    casella->setText(testo);
    casella->setCursorPosition(0);
}

QString NumeroTroppoGrande(const QString &nome, const QString &testo)
{
    return QStringLiteral("%1: «%2» è un numero troppo grande").arg(nome, testo);
}

void MemoriaCaselle::Mostra(QLineEdit *casella, const QString &testo)
{
    MostraDallInizio(casella, testo);
    riempimenti_.insert(casella, {casella->text(), testo, std::nullopt});
}

void MemoriaCaselle::Mostra(QLineEdit *casella, double valore, const QLocale &locale)
{
    const QString testo = Numeri::NumeroPiano(valore, locale);
    Mostra(casella, testo);
    riempimenti_[casella].Valore = valore;
}

QString MemoriaCaselle::Testo(const QLineEdit *casella) const
{
    const Riempimento *intatto = Intatto(casella);
    return intatto != nullptr ? intatto->Testo : casella->text();
}

std::optional<double> MemoriaCaselle::Numerico(const QLineEdit *casella) const
{
    const Riempimento *intatto = Intatto(casella);
    if (intatto != nullptr && intatto->Valore) {
        return intatto->Valore;
    }
    return Numeri::Numerico(casella->text());
}

double MemoriaCaselle::Val(const QLineEdit *casella) const
{
    const Riempimento *intatto = Intatto(casella);
    if (intatto != nullptr && intatto->Valore) {
        return *intatto->Valore;
    }
    return Numeri::Val(casella->text());
}

const MemoriaCaselle::Riempimento *MemoriaCaselle::Intatto(const QLineEdit *casella) const
{
    const auto trovato = riempimenti_.constFind(casella);
    return trovato != riempimenti_.constEnd() && trovato->Mostrato == casella->text() ? &*trovato
                                                                                      : nullptr;
}

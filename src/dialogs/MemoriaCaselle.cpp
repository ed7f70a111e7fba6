#include "dialogs/MemoriaCaselle.h"

#include "model/Numeri.h"

#include <QFocusEvent>

namespace {

class FiltroFuoco : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject *oggetto, QEvent *evento) override
    {
        if (evento->type() == QEvent::FocusIn) {
            const Qt::FocusReason motivo = static_cast<QFocusEvent *>(evento)->reason();
            auto *casella = static_cast<QLineEdit *>(oggetto);
            // Before the box does: it selects forwards, but leaves alone what is selected already.
            if ((motivo == Qt::TabFocusReason || motivo == Qt::BacktabFocusReason ||
                 motivo == Qt::ShortcutFocusReason) &&
                !casella->hasSelectedText()) {
                SelezionaDallInizio(casella);
            }
        }
        return QObject::eventFilter(oggetto, evento);
    }
};

} // namespace

void MostraDallInizio(QLineEdit *casella, const QString &testo)
{
    casella->setText(testo);
    casella->setCursorPosition(0);
}

QString NonNumero(const QString &nome, const QString &testo)
{
    return testo.trimmed().isEmpty() ? QStringLiteral("%1: manca il numero").arg(nome)
                                     : QStringLiteral("%1: «%2» non è un numero").arg(nome, testo);
}

QString NumeroTroppoGrande(const QString &nome, const QString &testo)
{
    return QStringLiteral("%1: «%2» è un numero troppo grande").arg(nome, testo);
}

void SelezionaDallInizio(QLineEdit *casella)
{
    // Backwards: the cursor, which a box keeps in sight, ends at the beginning.
    const int lunghezza = static_cast<int>(casella->text().size());
    casella->setSelection(lunghezza, -lunghezza);
}

void MostraDallInizioEntrando(QWidget *finestra)
{
    for (QLineEdit *casella : finestra->findChildren<QLineEdit *>()) {
        casella->installEventFilter(new FiltroFuoco(casella));
    }
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

#include "finestre/FiltroAnsi.h"

#include "base/Ansi.h"

#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTextCursor>

#include <algorithm>

namespace {

/// Without the characters that a line of a model file lacks.
QString Filtrato(QString testo)
{
    testo.replace(QLatin1String("\r\n"), QLatin1String(" "));
    testo.replace(u'\r', u' ');
    testo.removeIf([](QChar c) { return !Ansi::Rappresentabile(c); });
    return testo;
}

} // namespace

QString RifiutoDelNome(const QString &nome)
{
    const QList<uint> caratteri = nome.toUcs4();
    const auto estraneo = std::find_if(caratteri.begin(), caratteri.end(), [](uint c) {
        // A CR alone would end the line.
        return c == u'\r' || c > 0xFFFF || !Ansi::Rappresentabile(QChar(c));
    });
    if (estraneo == caratteri.end()) {
        return {};
    }
    const QString carattere = QString::fromUcs4(reinterpret_cast<const char32_t *>(&*estraneo), 1);
    return QStringLiteral("%1\n\nil nome contiene il carattere «%2» (U+%3), che un modello non può "
                          "contenere: il file non si ritroverebbe alla riapertura.\nRinominare il "
                          "file o la cartella senza quel carattere e sceglierlo di nuovo.")
        .arg(nome, carattere, QString::number(*estraneo, 16).toUpper().rightJustified(4, u'0'));
}

QValidator::State ValidatoreAnsi::validate(QString &testo, int &cursore) const
{
    // A line edit takes over a text that its validator has changed.
    const QString filtrato = Filtrato(testo);
    if (filtrato != testo) {
        cursore = static_cast<int>(Filtrato(testo.left(cursore)).size());
        testo = filtrato;
    }
    return Acceptable;
}

bool FiltroTasti::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (evento->type() == QEvent::KeyPress) {
        const QString battuto = static_cast<QKeyEvent *>(evento)->text();
        if (!Ansi::Rappresentabile(battuto)) {
            return true;
        }
    }
    return QObject::eventFilter(oggetto, evento);
}

void ToglieNonAnsi(QPlainTextEdit *casella)
{
    const QString testo = casella->toPlainText();
    if (Ansi::Rappresentabile(testo)) {
        return;
    }
    // One undo step together with the paste that brought the characters in.
    QTextCursor cursore(casella->document());
    cursore.joinPreviousEditBlock();
    for (int i = static_cast<int>(testo.size()) - 1; i >= 0; --i) {
        if (!Ansi::Rappresentabile(testo[i])) {
            cursore.setPosition(i);
            cursore.deleteChar();
        }
    }
    cursore.endEditBlock();
}

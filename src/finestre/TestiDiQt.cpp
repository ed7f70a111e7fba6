#include "finestre/TestiDiQt.h"

QString TestiDiQt::translate(const char *contesto, const char *testo, const char *distinzione,
                             int numero) const
{
    const QString tradotto = QTranslator::translate(contesto, testo, distinzione, numero);
    if (!tradotto.isNull() || qstrcmp(contesto, "QAbstractFileIconProvider") != 0) {
        return tradotto;
    }
    // What kinds of file are called: it was the file dialog's once.
    return QTranslator::translate("QFileDialog", testo, distinzione, numero);
}

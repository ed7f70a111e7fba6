#include "dialogs/NomeImportato.h"

#include "base/Ansi.h"
#include "sistema/Percorsi.h"

#include <QFileInfo>
#include <QSet>

namespace {

constexpr qsizetype LunghezzaMassima = 100; // with room for a number, in every file system

bool Ammesso(char32_t carattere)
{
    return carattere <= 0xFFFF && Ansi::Rappresentabile(QChar(char16_t(carattere))) &&
           QChar::isPrint(carattere) &&
           !QStringLiteral("\\/:*?\"<>|").contains(char16_t(carattere));
}

QString Sostituto(char32_t carattere)
{
    const QString scomposto = QChar::decomposition(carattere);
    const bool lettera =
        !scomposto.isEmpty() && Ammesso(scomposto[0].unicode()) && scomposto[0].isLetterOrNumber();
    return lettera ? scomposto.left(1) : QStringLiteral("_");
}

} // namespace

QString NomeImportato::Base(const QString &fonte)
{
    // A letter and its accent may be stored as two.
    const QList<uint> caratteri =
        QFileInfo(fonte).completeBaseName().normalized(QString::NormalizationForm_C).toUcs4();
    QString base;
    for (const uint carattere : caratteri) {
        base += Ammesso(carattere) ? QString(QChar(char16_t(carattere))) : Sostituto(carattere);
    }
    base = base.trimmed().left(LunghezzaMassima).trimmed();
    while (base.startsWith(u'.')) {
        base.remove(0, 1); // such a file would not be listed
    }
    return base.isEmpty() ? QStringLiteral("immagine") : base;
}

QString NomeImportato::Libero(const QString &base, const QString &estensione,
                              const QStringList &presi)
{
    QSet<QString> occupati;
    for (const QString &nome : presi) {
        occupati.insert(nome.toCaseFolded());
    }
    // Windows keeps names for devices, with any extension.
    const QString mia =
        Percorsi::NomeFileValido(base + estensione) ? base : QStringLiteral("_") + base;
    QString nome = mia + estensione;
    for (int k = 2; occupati.contains(nome.toCaseFolded()); ++k) {
        nome = mia + u'_' + QString::number(k) + estensione;
    }
    return nome;
}

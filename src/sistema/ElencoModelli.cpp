#include "sistema/ElencoModelli.h"

#include <algorithm>

namespace {

QString SenzaEstensione(const QString &file)
{
    return file.endsWith(ElencoModelli::Estensione, Qt::CaseInsensitive)
               ? file.chopped(ElencoModelli::Estensione.size())
               : file;
}

/// The file name that the catalogue forms from its entry for the file.
QString NomeFormato(const QString &file)
{
    return SenzaEstensione(file) + ElencoModelli::Estensione;
}

} // namespace

QStringList ElencoModelli::Nomi(const QStringList &file)
{
    QStringList nomi;
    for (auto primo = file.begin(); primo != file.end();) {
        const auto fine = std::find_if(primo, file.end(), [primo](const QString &altro) {
            return altro.compare(*primo, Qt::CaseInsensitive) != 0;
        });
        const auto esatto = std::find_if(
            primo, fine, [](const QString &nome) { return nome == NomeFormato(nome); });
        nomi.append(SenzaEstensione(esatto != fine ? *esatto : *primo));
        primo = fine;
    }
    return nomi;
}

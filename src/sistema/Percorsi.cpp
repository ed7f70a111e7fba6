#include "sistema/Percorsi.h"

#include "base/ErroreSistema.h"
#include "sistema/Disco.h"
#include "sistema/SuDisco.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

// Nothing that is copied between archives comes near this size.
constexpr qint64 ByteAlMassimo = qint64(512) * 1024 * 1024;

bool Separa(QChar carattere)
{
    return carattere == u'\\' || carattere == QDir::separator();
}

/// Position of the last separator, -1 when there is none.
qsizetype UltimaBarra(QStringView percorso)
{
    const auto barra = std::find_if(percorso.rbegin(), percorso.rend(), Separa);
    return std::distance(barra, percorso.rend()) - 1;
}

QString Nativo(QString percorso)
{
    return QDir::toNativeSeparators(percorso.replace(u'\\', QDir::separator()));
}

bool Esiste(const QString &percorso)
{
    const QFileInfo file(percorso);
    return file.exists() || file.isSymLink();
}

/// Name order without regard to case; names that differ only by case have a fixed order too.
bool Precede(const QString &a, const QString &b)
{
    const int confronto = a.compare(b, Qt::CaseInsensitive);
    return confronto != 0 ? confronto < 0 : a < b;
}

/// The names in a folder that the program can form paths with, in order. Elsewhere than on Windows
/// a name may hold "\\": put after its folder it would be taken for a path, even one that leads out
/// of the folder.
QStringList Elencati(QStringList nomi)
{
    nomi.removeIf([](const QString &nome) { return nome.contains(u'\\'); });
    std::sort(nomi.begin(), nomi.end(), Precede);
    return nomi;
}

/// The spelling of the name in the folder; empty when the folder has no such name.
QString NomeSuDisco(const QString &cartella, const QString &nome)
{
    const QStringList nomi =
        QDir(cartella).entryList(QDir::AllEntries | QDir::Hidden | QDir::System, QDir::Unsorted);
    QString trovato;
    for (const QString &altro : nomi) {
        if (altro.compare(nome, Qt::CaseInsensitive) == 0 &&
            (trovato.isEmpty() || Precede(altro, trovato))) {
            trovato = altro;
        }
    }
    return trovato;
}

/// Length of the path without its closing separators; a root keeps one.
qsizetype SenzaBarreFinali(const QString &percorso, qsizetype fine)
{
    while (fine > 1 && Separa(percorso[fine - 1])) {
        --fine;
    }
    return fine;
}

/// The same failure, its description naming the file.
ErroreSistema ConPercorso(const ErroreSistema &errore, const QString &percorso)
{
    return {errore.numero, errore.descrizione + QStringLiteral(": ") + percorso};
}

void VerificaElencabile(const QString &cartella)
{
    if (!QFileInfo(cartella).isDir()) {
        throw ErroreSistema(ErroreSistema::PercorsoNonTrovato);
    }
    // Only really opening the folder tells whether it can be listed: Qt's listing of one that
    // cannot is merely empty.
    if (SuDisco::SiElenca(cartella)) {
        throw ErroreSistema(ErroreSistema::AccessoFile);
    }
}

/// Names that Windows keeps for devices, whatever extension follows.
bool NomeDiDispositivo(const QString &nome)
{
    static const QStringList dispositivi = {QStringLiteral("CON"),    QStringLiteral("PRN"),
                                            QStringLiteral("AUX"),    QStringLiteral("NUL"),
                                            QStringLiteral("CONIN$"), QStringLiteral("CONOUT$")};
    // Windows takes the superscripts of its own character set for digits.
    static const QString numeri = QStringLiteral("123456789¹²³");
    const QString base = nome.section(u'.', 0, 0).trimmed().toUpper();
    const bool numerato =
        base.size() == 4 && numeri.contains(base[3]) &&
        (base.startsWith(QLatin1String("COM")) || base.startsWith(QLatin1String("LPT")));
    return numerato || dispositivi.contains(base);
}

} // namespace

QString Percorsi::Separatore()
{
    return QDir::separator();
}

QString Percorsi::Risolve(const QString &percorso)
{
    const QString nativo = Nativo(percorso);
    const qsizetype fine = SenzaBarreFinali(nativo, nativo.size());
    // Back to the part that exists as given; a text may hold thousands of components, so no
    // recursion.
    qsizetype esistente = fine;
    QList<qsizetype> inizi; // of the components after it, last first
    while (esistente > 0 && !Separa(nativo[esistente - 1]) && !Esiste(nativo.left(esistente))) {
        inizi.append(UltimaBarra(QStringView(nativo).left(esistente)) + 1);
        esistente = SenzaBarreFinali(nativo, inizi.last());
    }
    QString risolto = SuDisco::ComeSulDisco(nativo.left(esistente));
    qsizetype scritti = esistente; // characters of nativo that risolto stands for
    while (!inizi.isEmpty()) {
        const qsizetype inizio = inizi.takeLast();
        const qsizetype dopo = inizi.isEmpty() ? fine : SenzaBarreFinali(nativo, inizi.last());
        const QString prima = risolto + nativo.mid(scritti, inizio - scritti);
        const QString nome = NomeSuDisco(prima.isEmpty() ? QStringLiteral(".") : prima,
                                         nativo.mid(inizio, dopo - inizio));
        if (nome.isEmpty()) {
            break; // nothing below a part that does not exist can exist either
        }
        risolto = prima + nome;
        scritti = dopo;
    }
    return risolto + nativo.mid(scritti);
}

QString Percorsi::CartellaEsistente(const QString &cartella)
{
    QString esistente = Risolve(cartella);
    while (!esistente.isEmpty() && !QFileInfo(esistente).isDir()) {
        while (esistente.endsWith(QDir::separator())) {
            esistente.chop(1);
        }
        const QString sopra = EstraeUltimaBarra(esistente);
        esistente = sopra == esistente ? QString() : sopra;
    }
    return esistente;
}

QStringList Percorsi::SottoCartelle(const QString &cartella)
{
    QString prefisso = Nativo(cartella);
    VerificaElencabile(prefisso);
    if (!Separa(prefisso.back())) {
        prefisso += QDir::separator();
    }
    QStringList percorsi;
    for (const QString &nome :
         Elencati(QDir(prefisso).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted))) {
        percorsi.append(prefisso + nome);
    }
    return percorsi;
}

QStringList Percorsi::FileConModello(const QString &cartella, const QString &modelli,
                                     NomiConPunto conPunto)
{
    const QString nativa = Nativo(cartella);
    VerificaElencabile(nativa);
    const QStringList nomiCercati = modelli.split(u';', Qt::SkipEmptyParts);
    const QDir dove(nativa);
    QStringList nomi = dove.entryList(nomiCercati, QDir::Files, QDir::Unsorted);
    if (conPunto == NomiConPunto::Sempre) {
        for (const QString &nome :
             dove.entryList(nomiCercati, QDir::Files | QDir::Hidden, QDir::Unsorted)) {
            if (nome.startsWith(u'.') && !nomi.contains(nome)) {
                nomi.append(nome);
            }
        }
    }
    return Elencati(nomi);
}

void Percorsi::Copia(const QString &origine, const QString &destinazione)
{
    const QString da = Risolve(origine);
    const QString a = Risolve(destinazione);
    QByteArray byte;
    try {
        byte = Disco::Legge(da, ByteAlMassimo);
    } catch (const ErroreSistema &errore) {
        throw ConPercorso(errore, da);
    }
    try {
        // What is copied stands where it was, should the copy be cut short.
        Disco::Sostituisce(a, byte, [] {});
    } catch (const ErroreSistema &errore) {
        throw ConPercorso(errore, a);
    }
}

void Percorsi::Elimina(const QString &percorso)
{
    const QString nativo = Risolve(percorso);
    if (!Esiste(nativo)) {
        throw ConPercorso(ErroreSistema(ErroreSistema::FileNonTrovato), nativo);
    }
    if (QFileInfo(nativo).isDir()) {
        throw ConPercorso(ErroreSistema(ErroreSistema::AccessoFile), nativo);
    }
    if (!QFile::remove(nativo)) {
        throw ConPercorso(ErroreSistema(ErroreSistema::AutorizzazioneNegata), nativo);
    }
}

QString Percorsi::ToglieUltimaBarra(const QString &percorso)
{
    const qsizetype barra = UltimaBarra(percorso);
    return barra < 0 ? QString() : percorso.mid(barra + 1);
}

QString Percorsi::EstraeUltimaBarra(const QString &percorso)
{
    const qsizetype barra = UltimaBarra(percorso);
    return barra < 0 ? percorso : percorso.left(barra + 1);
}

QString Percorsi::EstraeNomeFile(const QString &percorso)
{
    return percorso.mid(UltimaBarra(percorso) + 1);
}

bool Percorsi::NomeFileValido(const QString &nome)
{
    if (nome.isEmpty() || nome.endsWith(u'.') || nome.endsWith(u' ') || NomeDiDispositivo(nome)) {
        return false;
    }
    return std::none_of(nome.begin(), nome.end(), [](QChar c) {
        return c < u' ' || c == u'\x7f' || QStringLiteral("\\/:*?\"<>|").contains(c);
    });
}

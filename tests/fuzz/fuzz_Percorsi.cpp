#include "fuzz/Pretende.h"

#include "base/ErroreSistema.h"
#include "grafica/Immagini.h"
#include "sistema/ElencoModelli.h"
#include "sistema/Percorsi.h"
#include "sistema/PercorsoNellaCartella.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstring>

namespace {

bool ConBarra(const QString &testo)
{
    return testo.contains(u'\\') || testo.contains(QDir::separator());
}

QString ConBarreNative(QString testo)
{
    return testo.replace(u'\\', QDir::separator());
}

/// An archive folder with something in it to be found in another spelling.
class Archivio
{
public:
    Archivio()
    {
        PRETENDE(dir_.isValid() && QDir(dir_.path()).mkpath(QStringLiteral("INI/Loghi")));
        for (const char *nome : {"INI/Fattura.MOD", "INI/Logo.JPG", "INI/Loghi/a.bmp"}) {
            QFile file(dir_.filePath(QString::fromLatin1(nome)));
            PRETENDE(file.open(QIODevice::WriteOnly));
        }
    }

    QString Modelli() const { return dir_.path() + QStringLiteral("/INI/"); }

private:
    QTemporaryDir dir_;
};

void ProvaParti(const QString &percorso)
{
    const QString cartella = Percorsi::EstraeUltimaBarra(percorso);
    const QString nome = Percorsi::EstraeNomeFile(percorso);
    const QString ultima = Percorsi::ToglieUltimaBarra(percorso);
    PRETENDE(!ConBarra(nome));
    PRETENDE(Percorsi::EstraeNomeFile(nome) == nome);
    PRETENDE(Percorsi::EstraeUltimaBarra(cartella) == cartella);
    if (ConBarra(percorso)) {
        PRETENDE(cartella + nome == percorso);
        PRETENDE(ConBarra(cartella.right(1)));
        PRETENDE(ultima == nome);
    } else {
        PRETENDE(cartella == percorso);
        PRETENDE(nome == percorso);
        PRETENDE(ultima.isEmpty());
    }
}

/// A name that the catalogue accepts is one file of the folder, whatever it holds.
void ProvaNome(const QString &cartella, const QString &nome)
{
    const QString nomeFile = nome + ElencoModelli::Estensione;
    if (!Percorsi::NomeFileValido(nomeFile)) {
        return;
    }
    const QString percorso = cartella + nomeFile;
    PRETENDE(QDir::cleanPath(percorso) == percorso);
    PRETENDE(Percorsi::EstraeUltimaBarra(percorso) == cartella);
    PRETENDE(Percorsi::EstraeNomeFile(percorso) == nomeFile);
    PRETENDE(Percorsi::EstraeUltimaBarra(Percorsi::Risolve(percorso)) == cartella);
}

/// A picture's name leads to a place inside the folder or nowhere.
void ProvaImmagine(const QString &cartella, const QString &nome)
{
    try {
        const QString percorso = Immagini::PercorsoInCartella(cartella, nome);
        PRETENDE(percorso.startsWith(cartella) && percorso.size() > cartella.size());
        PRETENDE(QDir::cleanPath(percorso) == percorso);
        PRETENDE(Percorsi::Risolve(percorso) == percorso);
        PRETENDE(Immagini::PercorsoInCartella(cartella, percorso.mid(cartella.size())) == percorso);
    } catch (const ErroreSistema &errore) {
        PRETENDE(errore.numero == ErroreSistema::FileNonTrovato);
        PRETENDE(!Percorsi::NomeFileValido(nome));
    }
}

/// Only the case of letters and the separators change.
void ProvaRisolve(const QString &cartella, const QString &resto)
{
    // A path that climbs would be looked for outside the folder.
    if (ConBarreNative(resto).split(QDir::separator()).contains(QLatin1String(".."))) {
        return;
    }
    const QString percorso = cartella + resto;
    const QString risolto = Percorsi::Risolve(percorso);
    PRETENDE(risolto.compare(ConBarreNative(percorso), Qt::CaseInsensitive) == 0);
    PRETENDE(risolto.startsWith(cartella));
    PRETENDE(Percorsi::Risolve(risolto) == risolto);
}

void ProvaSfoglia(const QString &cartella, const QString &nome)
{
    const QString barra = QStringLiteral("\\");
    const QStringList radici{QStringLiteral("C:"), QStringLiteral("/")};
    const QString dentro = PercorsoNellaCartella(radici, cartella, nome, barra);
    PRETENDE(dentro.startsWith(cartella) && dentro.endsWith(nome));
    const qsizetype fra = dentro.size() - cartella.size() - nome.size();
    const bool radice = cartella.endsWith(barra) && radici.contains(cartella.chopped(1));
    PRETENDE(fra == (radice ? 0 : 1));
    if (!ConBarra(nome)) {
        PRETENDE(Percorsi::EstraeNomeFile(dentro) == nome);
    }
}

/// The lines as the model files of a folder, in the order in which a folder is listed.
void ProvaElenco(const QString &testo)
{
    QStringList file;
    for (const QString &riga : testo.split(u'\n')) {
        if (!riga.contains(QChar::Null) && !ConBarra(riga)) {
            file.append(riga +
                        (file.size() % 2 == 0 ? QStringLiteral(".mod") : QStringLiteral(".MOD")));
        }
    }
    std::sort(file.begin(), file.end(), [](const QString &a, const QString &b) {
        const int confronto = a.compare(b, Qt::CaseInsensitive);
        return confronto != 0 ? confronto < 0 : a < b;
    });
    const QStringList nomi = ElencoModelli::Nomi(file);
    PRETENDE(nomi.size() <= file.size() && nomi.isEmpty() == file.isEmpty());
    for (int i = 0; i < nomi.size(); ++i) {
        PRETENDE(file.contains(nomi[i] + ElencoModelli::Estensione, Qt::CaseInsensitive));
        PRETENDE(i == 0 || nomi[i - 1].compare(nomi[i], Qt::CaseInsensitive) != 0);
    }
}

/// The first byte says how the others are a text: a user's, or any 16-bit units.
QString Testo(const unsigned char *dati, std::size_t quanti)
{
    if (quanti == 0) {
        return {};
    }
    if (dati[0] != 0) {
        return QString::fromUtf8(reinterpret_cast<const char *>(dati),
                                 static_cast<qsizetype>(quanti));
    }
    QString testo(static_cast<qsizetype>((quanti - 1) / sizeof(QChar)), Qt::Uninitialized);
    std::memcpy(testo.data(), dati + 1, static_cast<std::size_t>(testo.size()) * sizeof(QChar));
    return testo;
}

} // namespace

/// Any text as a path, as a name and as a list of names.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *dati, std::size_t quanti)
{
    static const Archivio archivio;
    const QString testo = Testo(dati, quanti);
    ProvaParti(testo);
    ProvaNome(archivio.Modelli(), testo);
    ProvaImmagine(archivio.Modelli(), testo);
    ProvaRisolve(archivio.Modelli(), testo);
    ProvaSfoglia(Percorsi::EstraeUltimaBarra(testo), Percorsi::EstraeNomeFile(testo));
    ProvaElenco(testo);
    return 0;
}

#include "sistema/FileTemporaneo.h"

#include "sistema/SuDisco.h"
#include "sistema/SulSupporto.h"

#include <QDateTime>
#include <QDir>
#include <QRandomGenerator>

#include <algorithm>

namespace {

// Names of temporary files are nobody else's, so sweeping cannot hit a user's own copy, and do not
// contain the final name, which may already be as long as the file system allows.
constexpr QLatin1String Prefisso(".plakera-");
constexpr QLatin1String Suffisso(".tmp");
constexpr int CifreCasuali = 16;

// A replacement takes milliseconds, on a slow network share some seconds: what is older by this
// much belongs to no living program.
constexpr qint64 SecondiDiVita = 600;

QString NomeTemporaneo()
{
    const quint64 caso = QRandomGenerator::system()->generate64();
    return Prefisso + QString::number(caso, 16).rightJustified(CifreCasuali, u'0') + Suffisso;
}

bool Temporaneo(const QString &nome)
{
    if (nome.size() != Prefisso.size() + CifreCasuali + Suffisso.size() ||
        !nome.startsWith(Prefisso) || !nome.endsWith(Suffisso)) {
        return false;
    }
    const QStringView caso = QStringView(nome).mid(Prefisso.size(), CifreCasuali);
    return std::all_of(caso.begin(), caso.end(), [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f');
    });
}

} // namespace

FileTemporaneo::FileTemporaneo(const QFileInfo &bersaglio)
    : bersaglio_(bersaglio)
    , file_(bersaglio.dir().filePath(NomeTemporaneo()))
{
}

FileTemporaneo::~FileTemporaneo()
{
    if (creato_) {
        file_.remove();
    }
}

std::error_code FileTemporaneo::Apre(Per chi)
{
    // Unbuffered: a failing write is seen where it happens, not when a buffer is flushed.
    constexpr auto modo = QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered;
    SuDisco::DimenticaErrore();
    // Until it carries the old file's permissions, nobody else may look into the new one.
    creato_ = bersaglio_.exists() || chi == Per::Utente
                  ? file_.open(modo, QFile::ReadOwner | QFile::WriteOwner)
                  : file_.open(modo);
    if (!creato_) {
        return SulSupporto::Causa(bersaglio_.path());
    }
    if (bersaglio_.exists() && chi == Per::ChiPoteva) {
        tieneTutto_ = SuDisco::TieneProprieta(file_.handle(), bersaglio_.filePath());
        if (!tieneTutto_) {
            // File systems without permissions refuse this, and have none to keep.
            file_.setPermissions(bersaglio_.permissions());
        }
    }
    return {};
}

void FileTemporaneo::SpazzaResti() const
{
    // Age is measured against a file just written into the same folder, hence by one and the same
    // clock, even on a server whose clock differs from ours.
    const QDateTime adesso = file_.fileTime(QFileDevice::FileModificationTime);
    const QDir cartella = bersaglio_.dir();
    const QStringList nomi = cartella.entryList({Prefisso + u'*' + Suffisso},
                                                QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString &nome : nomi) {
        const QFileInfo resto(cartella.filePath(nome));
        if (Temporaneo(nome) && resto.lastModified().secsTo(adesso) >= SecondiDiVita) {
            // One that cannot be removed harms nobody; the next call tries again.
            QFile::remove(resto.filePath());
        }
    }
}

void FileTemporaneo::Scrive(const QByteArray &byte)
{
    SulSupporto::Scrive(file_, byte);
}

QString FileTemporaneo::Lascia()
{
    file_.close();
    creato_ = false;
    return file_.fileName();
}

std::error_code FileTemporaneo::PrendeIlPosto()
{
    file_.close();
    const std::error_code codice = SuDisco::PrendeIlPosto(file_.fileName(), bersaglio_.filePath());
    creato_ = bool(codice);
    return codice;
}

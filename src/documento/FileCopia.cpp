#include "documento/FileCopia.h"

#include "model/FileModello.h"
#include "sistema/Disco.h"
#include "sistema/Lucchetto.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace {

using FileCopia::Copia;

constexpr QByteArrayView Firma = "plakera-recupero 2";
/// Written by earlier versions: without riscrittura, and with the checksum of the body alone.
constexpr QByteArrayView FirmaVecchia = "plakera-recupero 1";

constexpr qint64 TestaMassima = qint64(64) * 1024; ///< a path may be long, percent-encoded longer
constexpr qint64 DimensioneMassima = FileModello::DimensioneMassima + TestaMassima;

struct Smontata
{
    Copia copia;
    QByteArray somma;   ///< as the head tells it
    QByteArray coperti; ///< the bytes that it is of
};

/// Takes the next line off the bytes; nothing when none is complete.
std::optional<QByteArray> Riga(const QByteArray &byte, qsizetype &inizio)
{
    const qsizetype fine = byte.indexOf('\n', inizio);
    if (fine < 0) {
        return std::nullopt;
    }
    const QByteArray riga = byte.mid(inizio, fine - inizio);
    inizio = fine + 1;
    return riga;
}

std::optional<Smontata> Smonta(const QByteArray &byte)
{
    qsizetype inizio = 0;
    const auto firma = Riga(byte, inizio);
    if (!firma || (*firma != Firma && *firma != FirmaVecchia)) {
        return std::nullopt;
    }
    const bool vecchia = *firma == FirmaVecchia;
    const auto percorso = Riga(byte, inizio);
    const auto impronta = Riga(byte, inizio);
    const auto riscrittura = vecchia ? QByteArray() : Riga(byte, inizio);
    const qsizetype fineTesta = inizio;
    const auto somma = Riga(byte, inizio);
    if (!percorso || !impronta || !riscrittura || !somma) {
        return std::nullopt;
    }
    const QByteArray corpo = byte.mid(inizio);
    return Smontata{{QUrl::fromPercentEncoding(*percorso), *impronta, *riscrittura, corpo},
                    *somma,
                    vecchia ? corpo : byte.left(fineTesta) + corpo};
}

} // namespace

QByteArray FileCopia::Somma(const QByteArray &byte)
{
    return QCryptographicHash::hash(byte, QCryptographicHash::Sha256).toHex();
}

QByteArray FileCopia::Compone(const Copia &copia)
{
    // The path is percent-encoded, since it may hold a line feed.
    const QByteArray testa = Firma.toByteArray() + '\n' + QUrl::toPercentEncoding(copia.percorso) +
                             '\n' + copia.impronta + '\n' + copia.riscrittura + '\n';
    return testa + Somma(testa + copia.corpo) + '\n' + copia.corpo;
}

std::optional<FileCopia::Copia> FileCopia::Legge(const QString &file)
{
    const std::optional<Smontata> smontata = Smonta(Disco::Legge(file, DimensioneMassima));
    if (!smontata || smontata->somma != Somma(smontata->coperti)) {
        return std::nullopt;
    }
    return smontata->copia;
}

std::optional<FileCopia::Copia> FileCopia::LeggeTesta(const QString &file)
{
    std::optional<Smontata> smontata = Smonta(Disco::LeggeInizio(file, TestaMassima));
    if (!smontata) {
        return std::nullopt;
    }
    smontata->copia.corpo.clear();
    return smontata->copia;
}

QStringList FileCopia::Elenca(const QString &cartella)
{
    if (cartella.isEmpty()) {
        return {}; // to Qt that is the current folder
    }
    const QDir posto(cartella);
    QStringList file;
    for (const QString &nome : posto.entryList({u'*' + Estensione}, QDir::Files, QDir::Time)) {
        file.append(posto.filePath(nome));
    }
    return file;
}

bool FileCopia::InUso(const QString &file)
{
    return Lucchetto(file + EstensioneLucchetto).Prende() == Lucchetto::Esito::Occupato;
}

bool FileCopia::Elimina(const QString &file)
{
    return QFile::remove(file) || !QFileInfo::exists(file);
}

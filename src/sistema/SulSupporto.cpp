#include "sistema/SulSupporto.h"

#include "base/ErroreSistema.h"
#include "sistema/Disco.h"
#include "sistema/SuDisco.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

std::error_code SulSupporto::Causa(const QString &cartella)
{
    if (const std::error_code codice = SuDisco::UltimoErrore()) {
        return codice;
    }
    // Where the system did not say, what can be seen must tell.
    const QFileInfo posto(cartella);
    if (!posto.exists()) {
        return std::make_error_code(std::errc::no_such_file_or_directory);
    }
    if (!posto.isWritable()) {
        return std::make_error_code(std::errc::permission_denied);
    }
    if (QStorageInfo(cartella).bytesAvailable() == 0) {
        return std::make_error_code(std::errc::no_space_on_device);
    }
    return std::make_error_code(std::errc::io_error);
}

void SulSupporto::Fallisce(const std::error_code &codice)
{
    // Replacing may create the file, so what is not there can only be its folder.
    const int numero = Disco::NumeroErrore(codice);
    throw ErroreSistema(numero == ErroreSistema::FileNonTrovato ? ErroreSistema::PercorsoNonTrovato
                                                                : numero);
}

void SulSupporto::Scrive(QFile &file, const QByteArray &byte)
{
    SuDisco::DimenticaErrore();
    if (file.write(byte) != byte.size() || file.error() != QFileDevice::NoError ||
        !file.resize(byte.size())) {
        Fallisce(Causa(QFileInfo(file).path()));
    }
    if (const std::error_code codice = SuDisco::Sincronizza(file.handle())) {
        Fallisce(codice);
    }
}

void SulSupporto::SincronizzaNomi(const QString &cartella)
{
    if (const std::error_code codice = SuDisco::SincronizzaCartella(cartella)) {
        Fallisce(codice);
    }
}

#include "grafica/LettoreImmagine.h"

#include "base/ErroreSistema.h"
#include "base/Unita.h"
#include "grafica/Immagini.h"
#include "grafica/Opacita.h"
#include "grafica/PerditaDiColore.h"
#include "grafica/PixelImmagine.h"
#include "grafica/Rimpicciolimento.h"
#include "grafica/StrisceBmp.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

namespace {

/// Beyond this keeping a picture without loss costs a printed page too much time and place, unless
/// its file does so itself.
constexpr qint64 PixelGrandi = 4'000'000;

} // namespace

LettoreImmagine::LettoreImmagine(const QString &percorso)
    : file_(percorso)
{
    // Only regular files: opening a pipe or a device could wait for ever.
    const QFileInfo informazioni(percorso);
    if (informazioni.isDir()) {
        throw Immagini::Cartella();
    }
    if (!informazioni.isFile()) {
        throw ErroreSistema(ErroreSistema::FileNonTrovato);
    }
    // A file of the system that is made while it is read has no size, and may never end.
    if (file_.size() == 0 || !file_.open(QIODevice::ReadOnly)) {
        NonValida();
    }
    intestazione_ = IntestazioneImmagine::Legge(file_);
    // What Qt would do with a header that does not end is not to be waited for.
    if (intestazione_.InizioDati > 0 && intestazione_.TroppoGrande(file_.size())) {
        throw Immagini::TroppoGrande();
    }
    if (intestazione_.InizioDati <= 0 || !intestazione_.Credibile(file_.size())) {
        NonValida();
    }
    QImageReader lettore;
    Prepara(lettore, file_);
    pixel_ = intestazione_.Formato == "gif" && intestazione_.Pixel.isEmpty() ? lettore.size()
                                                                             : intestazione_.Pixel;
    if (pixel_.isEmpty() || !lettore.canRead()) {
        NonValida();
    }
    const QImageIOHandler::Transformations volta = lettore.transformation();
    ruotata_ = volta & QImageIOHandler::TransformationRotate90;
    copiata_ = volta != QImageIOHandler::TransformationNone;
}

bool LettoreImmagine::ComeJpeg(const QImage &immagine) const
{
    if (intestazione_.Formato != "jpeg") {
        return false;
    }
    if (!intestazione_.ColoriRidotti && intestazione_.Componenti > 1) {
        return immagine.allGray();
    }
    return qint64(immagine.width()) * immagine.height() > PixelGrandi || !PerdeColore(immagine);
}

qint64 LettoreImmagine::Sostenibili(qint64 pixel) const
{
    return copiata_ || intestazione_.InchiostriDiritti() ? pixel / 2 : pixel;
}

qint64 LettoreImmagine::Ingombro(const QImage &esito) const
{
    if (decodificati_ == 0) {
        return esito.sizeInBytes();
    }
    const bool doppia = copiata_ || intestazione_.InchiostriDiritti();
    return decodificati_ * (doppia ? 2 : 1) + (aParte_ ? esito.sizeInBytes() : 0) + file_.size() +
           (intestazione_.PiuScansioni ? intestazione_.ByteCoefficienti() : 0);
}

QSizeF LettoreImmagine::Millimetri() const
{
    const QSizeF stato = intestazione_.PuntiPerPollice;
    const QSizeF punti = ruotata_ ? stato.transposed() : stato;
    return {Pixel().width() * Unita::MillimetriPerPollice / punti.width(),
            Pixel().height() * Unita::MillimetriPerPollice / punti.height()};
}

QImage LettoreImmagine::Decodifica(const QSize &minimo)
{
    QImage immagine = DecodificaIntera(minimo);
    PixelImmagine::A32Bit(immagine);
    return immagine;
}

QImage LettoreImmagine::DecodificaOpaca(const QSize &pixel)
{
    if (intestazione_.Formato == "bmp") {
        if (const StrisceBmp strisce(file_, intestazione_); strisce.Leggibili()) {
            return DecodificaStrisce(strisce, pixel);
        }
    }
    QImage immagine = DecodificaIntera(pixel);
    const QSize esito = pixel.boundedTo(immagine.size());
    if (immagine.depth() < 32) {
        return PixelImmagine::Rimpicciolita(immagine, esito);
    }
    PixelImmagine::A32Bit(immagine);
    Opacita::SuBianco(immagine);
    Rimpicciolisce(immagine, esito);
    return immagine;
}

void LettoreImmagine::Prepara(QImageReader &lettore, QIODevice &dispositivo) const
{
    if (!dispositivo.seek(0)) {
        NonValida();
    }
    // Other formats that Qt knows are not tried: the file's own bytes have named the format.
    lettore.setAutoDetectImageFormat(false);
    lettore.setFormat(intestazione_.Formato);
    lettore.setAutoTransform(true);
    lettore.setDevice(&dispositivo);
}

QImage LettoreImmagine::DecodificaIntera(const QSize &minimo)
{
    QImage immagine = intestazione_.Formato == "bmp"    ? DecodificaBmp()
                      : intestazione_.Formato == "jpeg" ? DecodificaJpeg(minimo)
                                                        : DecodificaGif();
    if (immagine.isNull()) {
        NonValida();
    }
    decodificati_ = immagine.sizeInBytes();
    aParte_ = immagine.depth() < 32;
    return immagine;
}

QImage LettoreImmagine::Legge(QIODevice &dispositivo, const QSize &ridotta) const
{
    QImageReader::setAllocationLimit(PixelImmagine::LimiteMiB);
    QImageReader lettore;
    Prepara(lettore, dispositivo);
    if (ridotta.isValid()) {
        lettore.setScaledSize(ridotta);
    }
    return lettore.read();
}

QImage LettoreImmagine::Legge(QByteArray byte, const QSize &ridotta) const
{
    QBuffer buffer(&byte);
    buffer.open(QIODevice::ReadOnly);
    return Legge(buffer, ridotta);
}

QByteArray LettoreImmagine::Tutto()
{
    if (!file_.seek(0)) {
        NonValida();
    }
    return file_.readAll();
}

void LettoreImmagine::NonValida()
{
    throw ErroreSistema(ErroreSistema::ImmagineNonValida);
}

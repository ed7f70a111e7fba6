#include "grafica/Immagini.h"

#include "base/ErroreSistema.h"
#include "base/Misure.h"
#include "grafica/IntestazioneImmagine.h"
#include "grafica/Opacita.h"
#include "grafica/PerditaDiColore.h"
#include "grafica/Rimpicciolimento.h"
#include "grafica/SeparazioniJpeg.h"
#include "grafica/StrisceBmp.h"
#include "sistema/Percorsi.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <new>
#include <vector>

namespace {

constexpr int LimiteMiB = 512;
constexpr qint64 BytePerPixel = 4;
constexpr qint64 PixelMassimi = LimiteMiB * 1024LL * 1024 / BytePerPixel;
/// A JPEG is decoded at a half, a quarter or an eighth of its size for little cost.
constexpr int RiduzioneMassima = 8;
/// What is decoded at most for a printed page, pixels: an A4 scan at 600 dpi and a margin. Where
/// that is not enough, the picture is taken coarser rather than more memory.
constexpr qint64 PixelDecodificati = 45'000'000;
constexpr qint64 PixelStampati = 36'000'000;
/// Beyond this keeping a picture without loss costs a printed page too much time and place, unless
/// its file does so itself.
constexpr qint64 PixelGrandi = 4'000'000;

[[noreturn]] void NonValida()
{
    throw ErroreSistema(ErroreSistema::ImmagineNonValida);
}

bool Troppi(const QSize &pixel)
{
    return qint64(pixel.width()) * pixel.height() > PixelMassimi;
}

/// The pixel formats that the callers may count on.
void A32Bit(QImage &immagine)
{
    immagine.convertTo(immagine.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

QImage Scalata(const QImage &immagine, const QSize &pixel)
{
    if (immagine.size() == pixel) {
        return immagine;
    }
    QImage scalata = immagine.scaled(pixel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (scalata.isNull()) {
        NonValida();
    }
    A32Bit(scalata);
    return scalata;
}

/// The size with its proportions, made smaller where it has too many pixels.
QSize Entro(const QSize &pixel, qint64 massimi)
{
    const double parte = double(massimi) / (double(pixel.width()) * pixel.height());
    return parte >= 1 ? pixel : (QSizeF(pixel) * std::sqrt(parte)).toSize().expandedTo({1, 1});
}

/// A picture of less than 32 bits to a pixel, opaque and scaled down: never whole in 32.
QImage Rimpicciolita(const QImage &immagine, const QSize &pixel)
{
    constexpr int RigheInsieme = 16;
    QImage esito(pixel, QImage::Format_RGB32);
    if (esito.isNull()) {
        throw std::bad_alloc();
    }
    Rimpicciolimento riduce(immagine.size(), pixel, [&](int nuova) {
        return reinterpret_cast<QRgb *>(esito.scanLine(nuova));
    });
    for (int prima = 0; prima < immagine.height(); prima += RigheInsieme) {
        const int alte = std::min(RigheInsieme, immagine.height() - prima);
        QImage righe = immagine.copy(0, prima, immagine.width(), alte);
        A32Bit(righe);
        Opacita::SuBianco(righe);
        for (int y = 0; y < alte; ++y) {
            riduce.Aggiunge(reinterpret_cast<const QRgb *>(righe.constScanLine(y)));
        }
    }
    return esito;
}

/// An open picture file whose header has been checked.
class Lettore
{
public:
    explicit Lettore(const QString &percorso)
        : file_(percorso)
    {
        // Only regular files: opening a pipe or a device could wait for ever.
        if (!QFileInfo(percorso).isFile()) {
            throw ErroreSistema(ErroreSistema::FileNonTrovato);
        }
        // A file of the system that is made while it is read has no size, and may never end.
        if (file_.size() == 0 || !file_.open(QIODevice::ReadOnly)) {
            NonValida();
        }
        intestazione_ = IntestazioneImmagine::Legge(file_);
        // What Qt would do with a header that does not end is not to be waited for.
        if (intestazione_.InizioDati > 0 && intestazione_.TroppoGrande(file_.size())) {
            throw Immagini::TroppoGrande(ErroreSistema::ImmagineNonValida);
        }
        if (intestazione_.InizioDati <= 0 || !intestazione_.Credibile(file_.size())) {
            NonValida();
        }
        QImageReader lettore;
        Prepara(lettore, file_);
        pixel_ = intestazione_.Formato == "gif" && intestazione_.Pixel.isEmpty()
                     ? lettore.size()
                     : intestazione_.Pixel;
        if (pixel_.isEmpty() || !lettore.canRead()) {
            NonValida();
        }
        const QImageIOHandler::Transformations volta = lettore.transformation();
        ruotata_ = volta & QImageIOHandler::TransformationRotate90;
        copiata_ = volta != QImageIOHandler::TransformationNone;
    }

    /// Size after rotation.
    QSize Pixel() const { return Ruota(pixel_); }

    /// Whether the picture, which is what this file was decoded to, may be made a JPEG again.
    bool ComeJpeg(const QImage &immagine) const
    {
        if (intestazione_.Formato != "jpeg") {
            return false;
        }
        if (!intestazione_.ColoriRidotti && intestazione_.Componenti > 1) {
            return immagine.allGray();
        }
        return qint64(immagine.width()) * immagine.height() > PixelGrandi || !PerdeColore(immagine);
    }

    /// That many pixels, or half as many when a second copy is made of them: of a picture that is
    /// turned, or put together from its inks.
    qint64 Sostenibili(qint64 pixel) const
    {
        return copiata_ || intestazione_.InchiostriDiritti() ? pixel / 2 : pixel;
    }

    QSizeF Millimetri() const
    {
        const QSizeF stato = intestazione_.PuntiPerPollice;
        const QSizeF punti = ruotata_ ? stato.transposed() : stato;
        return {Pixel().width() * Misure::MillimetriPerPollice / punti.width(),
                Pixel().height() * Misure::MillimetriPerPollice / punti.height()};
    }

    /// Decodes the picture; when minimo is valid, possibly smaller than its own size but not below
    /// minimo in either direction, unless that were more pixels than a page may cost.
    QImage Decodifica(const QSize &minimo)
    {
        QImage immagine = DecodificaIntera(minimo);
        A32Bit(immagine);
        return immagine;
    }

    /// Decodes the picture as opaque as paper is, scaled down to pixel (no larger than its own size
    /// either way), or to what it was decoded to where that is less.
    QImage DecodificaOpaca(const QSize &pixel)
    {
        if (intestazione_.Formato == "bmp") {
            if (const StrisceBmp strisce(file_, intestazione_); strisce.Leggibili()) {
                return DecodificaStrisce(strisce, pixel);
            }
        }
        QImage immagine = DecodificaIntera(pixel);
        const QSize esito = pixel.boundedTo(immagine.size());
        if (immagine.depth() < 32) {
            return Rimpicciolita(immagine, esito);
        }
        A32Bit(immagine);
        Opacita::SuBianco(immagine);
        Rimpicciolisce(immagine, esito);
        return immagine;
    }

private:
    QSize Ruota(const QSize &misura) const { return ruotata_ ? misura.transposed() : misura; }

    void Prepara(QImageReader &lettore, QIODevice &dispositivo) const
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

    /// As Qt gives it: with fewer bits to a pixel than 32 where it can.
    QImage DecodificaIntera(const QSize &minimo)
    {
        QImage immagine = intestazione_.Formato == "bmp"    ? DecodificaBmp()
                          : intestazione_.Formato == "jpeg" ? DecodificaJpeg(minimo)
                                                            : DecodificaGif();
        if (immagine.isNull()) {
            NonValida();
        }
        return immagine;
    }

    /// Null for what Qt cannot read.
    QImage Legge(QIODevice &dispositivo, const QSize &ridotta = {}) const
    {
        QImageReader::setAllocationLimit(LimiteMiB);
        QImageReader lettore;
        Prepara(lettore, dispositivo);
        if (ridotta.isValid()) {
            lettore.setScaledSize(ridotta);
        }
        return lettore.read();
    }

    QImage Legge(QByteArray byte, const QSize &ridotta = {}) const
    {
        QBuffer buffer(&byte);
        buffer.open(QIODevice::ReadOnly);
        return Legge(buffer, ridotta);
    }

    QByteArray Tutto()
    {
        if (!file_.seek(0)) {
            NonValida();
        }
        return file_.readAll();
    }

    void VerificaBmp() const
    {
        if (intestazione_.FineDati > file_.size() || Troppi(pixel_)) {
            NonValida();
        }
    }

    bool AlfaVuoto(const StrisceBmp &strisce) const
    {
        bool vuoto = true;
        const bool letta = strisce.Scorre([&](const QRgb *riga) {
            vuoto = vuoto && Opacita::AlfaVuoto(riga, pixel_.width());
            return vuoto;
        });
        return letta && vuoto;
    }

    QImage DecodificaStrisce(const StrisceBmp &strisce, const QSize &pixel) const
    {
        VerificaBmp();
        const int larghezza = pixel_.width();
        QImage immagine(pixel, QImage::Format_RGB32);
        if (immagine.isNull()) {
            throw std::bad_alloc();
        }
        Rimpicciolimento riduce(pixel_, pixel, [&](int nuova) {
            const int y = strisce.DalBasso() ? pixel.height() - 1 - nuova : nuova;
            return reinterpret_cast<QRgb *>(immagine.scanLine(y));
        });
        const QRgb opaco = strisce.PuoTrasparire() && AlfaVuoto(strisce) ? 0xFF000000 : 0;
        std::vector<QRgb> suBianco(static_cast<std::size_t>(larghezza));
        const bool intera = strisce.Scorre([&](const QRgb *riga) {
            if (strisce.PuoTrasparire()) {
                std::transform(riga, riga + larghezza, suBianco.begin(),
                               [opaco](QRgb c) { return c | opaco; });
                Opacita::SuBianco(suBianco.data(), larghezza, suBianco.data());
                riga = suBianco.data();
            }
            riduce.Aggiunge(riga);
            return true;
        });
        if (!intera) {
            NonValida();
        }
        return immagine;
    }

    QImage DecodificaBmp()
    {
        VerificaBmp();
        const qint64 mancanti = intestazione_.FineRighe - file_.size();
        // Qt wants what fills up the last row too.
        QImage immagine = mancanti > 0 ? Legge(Tutto() + QByteArray(mancanti, '\0')) : Legge(file_);
        if (immagine.depth() == 32 && immagine.hasAlphaChannel()) {
            A32Bit(immagine);
            Opacita::ToglieAlfaVuoto(immagine);
        }
        return immagine;
    }

    QImage DecodificaGif()
    {
        const QByteArray byte = Tutto();
        if (Troppi(pixel_) || !intestazione_.Intera(byte)) {
            NonValida();
        }
        return Legge(byte);
    }

    QImage DecodificaJpeg(const QSize &minimo)
    {
        const int fattore = minimo.isValid() ? Fattore(Ruota(minimo)) : 1;
        const QSize ridotta((pixel_.width() + fattore - 1) / fattore,
                            (pixel_.height() + fattore - 1) / fattore);
        QByteArray byte = Tutto();
        if (Troppi(ridotta) || !intestazione_.Intera(byte)) {
            NonValida();
        }
        Arrotonda(byte, ridotta * fattore);
        if (!intestazione_.InchiostriDiritti()) {
            return Legge(byte, ridotta);
        }
        QImage immagine = Legge(SeparazioniJpeg::SenzaNero(byte, intestazione_), ridotta);
        QImage nero = Legge(SeparazioniJpeg::SoloNero(byte, intestazione_), ridotta);
        if (immagine.isNull() || nero.size() != immagine.size()) {
            NonValida();
        }
        A32Bit(immagine);
        A32Bit(nero);
        SeparazioniJpeg::Unisce(immagine, nero);
        return immagine;
    }

    /// Makes the file state a multiple of the size that it is reduced to: whole blocks are stored
    /// in any case. Qt would decode a size that is a pixel off to one larger by half and then scale
    /// it, with both in memory.
    void Arrotonda(QByteArray &byte, const QSize &intera) const
    {
        constexpr int LatoMassimo = 65'500; // that the decoder takes
        constexpr qsizetype Altezza = 5;
        constexpr qsizetype Larghezza = 7;
        if (std::max(intera.width(), intera.height()) <= LatoMassimo) {
            char *formato = byte.data() + intestazione_.PostoFormato;
            qToBigEndian(quint16(intera.height()), formato + Altezza);
            qToBigEndian(quint16(intera.width()), formato + Larghezza);
        }
    }

    /// The largest factor to divide the stored size by that the decoder handles itself.
    int Fattore(const QSize &minimo) const
    {
        const qint64 massimi = std::min(Sostenibili(PixelDecodificati),
                                        intestazione_.Progressiva ? Accanto() : PixelDecodificati);
        const auto basta = [&](int fattore) {
            return pixel_.width() / fattore >= minimo.width() &&
                   pixel_.height() / fattore >= minimo.height();
        };
        const auto troppi = [&](int fattore) {
            return qint64(pixel_.width()) * pixel_.height() / (qint64(fattore) * fattore) > massimi;
        };
        int fattore = 1;
        while (fattore < RiduzioneMassima && (basta(fattore * 2) || troppi(fattore))) {
            fattore *= 2;
        }
        return fattore;
    }

    /// Pixels that there is place for beside what the decoder keeps of a progressive picture.
    qint64 Accanto() const
    {
        constexpr qint64 ByteInsieme = 260'000'000;
        return (ByteInsieme - file_.size() - intestazione_.ByteCoefficienti()) / BytePerPixel;
    }

    QFile file_;
    IntestazioneImmagine intestazione_;
    QSize pixel_; ///< as stored, before rotation
    bool ruotata_ = false;
    bool copiata_ = false; ///< turned or mirrored once it is decoded
};

} // namespace

QSizeF Immagini::DimensioniNaturali(const QString &percorso)
{
    return Lettore(percorso).Millimetri();
}

QImage Immagini::Carica(const QString &percorso)
{
    return Lettore(percorso).Decodifica({});
}

QImage Immagini::CaricaScalata(const QString &percorso, const QSize &pixel)
{
    if (pixel.isEmpty() || Troppi(pixel)) {
        NonValida();
    }
    return Scalata(Lettore(percorso).Decodifica(pixel), pixel);
}

Immagini::Opaca Immagini::CaricaEntro(const QString &percorso, const QSize &massimo)
{
    if (massimo.isEmpty()) {
        NonValida();
    }
    Lettore lettore(percorso);
    const QSize pixel =
        Entro(lettore.Pixel().boundedTo(massimo), lettore.Sostenibili(PixelStampati));
    const QImage immagine = lettore.DecodificaOpaca(pixel);
    return {immagine, lettore.ComeJpeg(immagine)};
}

QString Immagini::PercorsoInCartella(const QString &cartella, const QString &nome)
{
    // Decided on the text: not even a look may leave the folder.
    const QString relativo =
        QDir::cleanPath(QStringLiteral("./") + QString(nome).replace(u'\\', u'/'));
    if (relativo == QLatin1String(".") || relativo == QLatin1String("..") ||
        relativo.startsWith(QLatin1String("../")) || nome.contains(QChar::Null)) {
        throw ErroreSistema(ErroreSistema::FileNonTrovato);
    }
    return QDir::cleanPath(Percorsi::Risolve(cartella + relativo));
}

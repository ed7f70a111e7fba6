#include "platform/Immagini.h"

#include "base/ErroreSistema.h"
#include "base/Misure.h"
#include "platform/IntestazioneImmagine.h"
#include "platform/Percorsi.h"
#include "platform/PerditaDiColore.h"
#include "platform/Rimpicciolimento.h"
#include "platform/SeparazioniJpeg.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <cmath>

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

/// A fourth byte that is zero throughout is one that its writer left empty, not a picture of
/// nothing.
void ToglieAlfaVuoto(QImage &immagine)
{
    const QRect tutta = immagine.rect();
    for (int y = 0; y < tutta.height(); ++y) {
        const auto *riga = reinterpret_cast<const QRgb *>(immagine.constScanLine(y));
        if (std::any_of(riga, riga + tutta.width(), [](QRgb c) { return qAlpha(c) != 0; })) {
            return;
        }
    }
    for (int y = 0; y < tutta.height(); ++y) {
        auto *riga = reinterpret_cast<QRgb *>(immagine.scanLine(y));
        std::for_each(riga, riga + tutta.width(), [](QRgb &c) { c |= 0xFF000000; });
    }
    immagine.reinterpretAsFormat(QImage::Format_RGB32);
}

/// The picture on white paper, in its own memory.
void SuBianco(QImage &immagine)
{
    if (!immagine.hasAlphaChannel()) {
        return;
    }
    const auto misto = [](int colore, int alfa) {
        return (colore * alfa + 255 * (255 - alfa) + 127) / 255;
    };
    for (int y = 0; y < immagine.height(); ++y) {
        auto *riga = reinterpret_cast<QRgb *>(immagine.scanLine(y));
        std::transform(riga, riga + immagine.width(), riga, [&](QRgb c) {
            const int alfa = qAlpha(c);
            return qRgb(misto(qRed(c), alfa), misto(qGreen(c), alfa), misto(qBlue(c), alfa));
        });
    }
    immagine.reinterpretAsFormat(QImage::Format_RGB32);
}

/// The size with its proportions, made smaller where it has too many pixels.
QSize Entro(const QSize &pixel, qint64 massimi)
{
    const double parte = double(massimi) / (double(pixel.width()) * pixel.height());
    return parte >= 1 ? pixel : (QSizeF(pixel) * std::sqrt(parte)).toSize().expandedTo({1, 1});
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
        QImage immagine = intestazione_.Formato == "bmp"    ? DecodificaBmp()
                          : intestazione_.Formato == "jpeg" ? DecodificaJpeg(minimo)
                                                            : DecodificaGif();
        if (immagine.isNull()) {
            NonValida();
        }
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

    /// Null for what Qt cannot read.
    QImage Legge(QIODevice &dispositivo, const QSize &ridotta = {}) const
    {
        QImageReader::setAllocationLimit(LimiteMiB);
        QImageReader lettore;
        Prepara(lettore, dispositivo);
        if (ridotta.isValid()) {
            lettore.setScaledSize(ridotta);
        }
        QImage immagine = lettore.read();
        if (!immagine.isNull()) {
            A32Bit(immagine);
        }
        return immagine;
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

    QImage DecodificaBmp()
    {
        const qint64 mancanti = intestazione_.FineRighe - file_.size();
        if (intestazione_.FineDati > file_.size() || Troppi(pixel_)) {
            NonValida();
        }
        // Qt wants what fills up the last row too.
        QImage immagine = mancanti > 0 ? Legge(Tutto() + QByteArray(mancanti, '\0')) : Legge(file_);
        if (immagine.hasAlphaChannel()) {
            ToglieAlfaVuoto(immagine);
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
        const QSize ridotta = minimo.isValid() ? Ridotta(Ruota(minimo)) : pixel_;
        const QByteArray byte = Tutto();
        if (Troppi(ridotta) || !intestazione_.Intera(byte)) {
            NonValida();
        }
        if (!intestazione_.InchiostriDiritti()) {
            return Legge(byte, ridotta);
        }
        QImage immagine = Legge(SeparazioniJpeg::SenzaNero(byte, intestazione_), ridotta);
        const QImage nero = Legge(SeparazioniJpeg::SoloNero(byte, intestazione_), ridotta);
        if (immagine.isNull() || nero.size() != immagine.size()) {
            NonValida();
        }
        SeparazioniJpeg::Unisce(immagine, nero);
        return immagine;
    }

    /// The stored size divided by the largest factor that the decoder handles itself.
    QSize Ridotta(const QSize &minimo) const
    {
        const auto diviso = [this](int fattore) {
            return QSize((pixel_.width() + fattore - 1) / fattore,
                         (pixel_.height() + fattore - 1) / fattore);
        };
        const qint64 massimi = Sostenibili(PixelDecodificati);
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
        return diviso(fattore);
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
    QImage immagine = lettore.Decodifica(pixel);
    SuBianco(immagine);
    Rimpicciolisce(immagine, pixel.boundedTo(immagine.size()));
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

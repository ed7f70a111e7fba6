#include "platform/Immagini.h"

#include "base/ErroreSistema.h"
#include "base/Misure.h"
#include "platform/IntestazioneImmagine.h"
#include "platform/Percorsi.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace {

constexpr int LimiteMiB = 512;
constexpr qint64 BytePerPixel = 4;
constexpr qint64 PixelMassimi = LimiteMiB * 1024LL * 1024 / BytePerPixel;
/// A JPEG is decoded at a half, a quarter or an eighth of its size for little cost.
constexpr int RiduzioneMassima = 8;

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
        if (intestazione_.Formato.isEmpty() || !file_.seek(0)) {
            NonValida();
        }
        // Other formats that Qt knows are not tried: the file's own bytes have named the format.
        lettore_.setAutoDetectImageFormat(false);
        lettore_.setFormat(intestazione_.Formato);
        lettore_.setAutoTransform(true);
        lettore_.setDevice(&file_);
        pixel_ = intestazione_.Schermo.isEmpty() ? lettore_.size() : intestazione_.Schermo;
        if (pixel_.isEmpty()) {
            NonValida();
        }
        ruotata_ = lettore_.transformation() & QImageIOHandler::TransformationRotate90;
    }

    /// Size after rotation.
    QSize Pixel() const { return Ruota(pixel_); }

    QSizeF Millimetri() const
    {
        const QSizeF stato = intestazione_.PuntiPerPollice;
        const QSizeF punti = ruotata_ ? stato.transposed() : stato;
        return {Pixel().width() * Misure::MillimetriPerPollice / punti.width(),
                Pixel().height() * Misure::MillimetriPerPollice / punti.height()};
    }

    /// Decodes the picture; when minimo is valid, possibly smaller than its own size but not below
    /// minimo in either direction.
    QImage Decodifica(const QSize &minimo)
    {
        const qint64 pixel = qint64(pixel_.width()) * pixel_.height();
        // The decoder has already read the header and goes on from where it stands.
        const qint64 posto = file_.pos();
        if (Troppi(pixel_) || !intestazione_.Credibile(file_.size(), pixel) ||
            !intestazione_.Intera(file_) || !file_.seek(posto)) {
            NonValida();
        }
        QImageReader::setAllocationLimit(LimiteMiB);
        if (minimo.isValid() && intestazione_.Formato == "jpeg") {
            lettore_.setScaledSize(Ridotta(Ruota(minimo)));
        }
        QImage immagine = lettore_.read();
        if (immagine.isNull()) {
            NonValida();
        }
        A32Bit(immagine);
        return immagine;
    }

private:
    QSize Ruota(const QSize &misura) const { return ruotata_ ? misura.transposed() : misura; }

    /// The stored size divided by the largest factor that the decoder handles itself.
    QSize Ridotta(const QSize &minimo) const
    {
        int fattore = 1;
        while (fattore < RiduzioneMassima && pixel_.width() / (fattore * 2) >= minimo.width() &&
               pixel_.height() / (fattore * 2) >= minimo.height()) {
            fattore *= 2;
        }
        return {(pixel_.width() + fattore - 1) / fattore,
                (pixel_.height() + fattore - 1) / fattore};
    }

    QFile file_;
    QImageReader lettore_;
    IntestazioneImmagine intestazione_;
    QSize pixel_; ///< as stored, before rotation
    bool ruotata_ = false;
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

QImage Immagini::CaricaEntro(const QString &percorso, const QSize &massimo)
{
    if (massimo.isEmpty()) {
        NonValida();
    }
    Lettore lettore(percorso);
    const QSize pixel = lettore.Pixel().boundedTo(massimo);
    return Scalata(lettore.Decodifica(pixel), pixel);
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

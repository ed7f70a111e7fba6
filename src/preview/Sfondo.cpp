#include "preview/Sfondo.h"

#include "grafica/Immagini.h"
#include "model/FoglioCarta.h"
#include "preview/Tratti.h"

#include <QFileInfo>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// Pixels for a length on paper, no more than the whole sheet has.
int PixelPer(double millimetri, double foglio, double pixelPerMillimetro)
{
    const double visibili = std::min(millimetri, foglio) * pixelPerMillimetro;
    return std::max(1, static_cast<int>(std::ceil(visibili)));
}

bool Disegnabile(const QRectF &r)
{
    return r.width() > 0 && r.height() > 0 && std::isfinite(r.left()) && std::isfinite(r.top()) &&
           std::isfinite(r.right()) && std::isfinite(r.bottom());
}

} // namespace

void Sfondo::Dimentica()
{
    Pulisce();
    origine_ = {};
    fallita_.reset();
    maestra_ = {};
    scalata_ = {};
}

void Sfondo::Imposta(const QString &percorso, const QRectF &millimetri, double pixelPerMillimetro)
{
    Pulisce();
    const QFileInfo file(percorso);
    const Origine origine{percorso, file.lastModified(), file.size(), file.isReadable()};
    if (fallita_ && fallita_->origine == origine) {
        throw ErroreSistema(fallita_->errore);
    }
    try {
        Legge(origine, millimetri, pixelPerMillimetro);
    } catch (const ErroreSistema &errore) {
        fallita_ = {origine, errore};
        throw;
    }
}

void Sfondo::Legge(const Origine &origine, const QRectF &millimetri, double pixelPerMillimetro)
{
    if (!Disegnabile(millimetri)) {
        // A file that is no picture is reported all the same.
        Immagini::DimensioniNaturali(origine.percorso);
        return;
    }
    const QSize pixel(PixelPer(millimetri.width(), FoglioCarta::Larghezza, pixelPerMillimetro),
                      PixelPer(millimetri.height(), FoglioCarta::Altezza, pixelPerMillimetro));
    if (maestra_.isNull() || !(origine == origine_) || pixel != pixel_) {
        Dimentica();
        maestra_ = Immagini::CaricaScalata(origine.percorso, pixel);
        maestra_.convertTo(maestra_.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                      : QImage::Format_RGB32);
        origine_ = origine;
        pixel_ = pixel;
    }
    millimetri_ = millimetri;
}

const QImage &Sfondo::Scalata(QSize pixel)
{
    if (pixel == maestra_.size()) {
        return maestra_;
    }
    if (scalata_.size() != pixel) {
        scalata_ = maestra_.scaled(pixel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return scalata_;
}

void Sfondo::Dipinge(QPainter &penna, const QRectF &esposto, double zoom)
{
    if (Vuoto()) {
        return;
    }
    const QRectF posto(millimetri_.topLeft() / zoom, millimetri_.size() / zoom);
    if (!posto.intersects(esposto)) {
        return;
    }
    const Tratti tratti(penna);
    const double scala = penna.device()->devicePixelRatioF();
    const QRectF pixel = tratti.DiMisuraFissa(posto);
    const QSize misura = (pixel.size() * scala).toSize();
    // Up to the sheet's own size it is copied pixel by pixel; a rectangle larger than the sheet is
    // stretched while painting, for only a part of it can be seen.
    const bool intera =
        misura.width() <= maestra_.width() + 1 && misura.height() <= maestra_.height() + 1;
    const QImage &figura = intera ? Scalata(misura) : maestra_;

    const QRectF visibile = tratti.SullaGriglia(esposto).intersected(pixel);
    const double sx = figura.width() / pixel.width();
    const double sy = figura.height() / pixel.height();
    const QRectF origine((visibile.left() - pixel.left()) * sx, (visibile.top() - pixel.top()) * sy,
                         visibile.width() * sx, visibile.height() * sy);
    penna.save();
    penna.setWorldTransform(QTransform());
    penna.setRenderHint(QPainter::SmoothPixmapTransform, !intera);
    penna.setOpacity(opacita_);
    penna.drawImage(visibile, figura, origine);
    penna.restore();
}

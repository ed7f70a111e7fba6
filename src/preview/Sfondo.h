#pragma once

#include "base/ErroreSistema.h"

#include <QDateTime>
#include <QImage>
#include <QRectF>
#include <QString>

#include <optional>

class QPainter;

/// The scan behind the elements. The file is decoded once, no finer than the sheet can ever show
/// it, and scaled once for each size on the screen; painting then only copies pixels.
class Sfondo
{
public:
    /// pixelPerMillimetro: device pixels. An empty rectangle (mm of the sheet) shows nothing.
    /// The file is read again only when it, or the size it needs, has changed; one that could not
    /// be decoded only when it has changed. Throws ErroreSistema 53 or 481 and then shows nothing
    /// either.
    void Imposta(const QString &percorso, const QRectF &millimetri, double pixelPerMillimetro);
    /// Shows nothing; what was decoded is kept, for the next Imposta mostly shows it again.
    void Pulisce() { millimetri_ = {}; }
    /// Pulisce, and the next Imposta reads the file whatever is known of it.
    void Dimentica();
    /// How much of it is seen: from 0, nothing, to 1.
    void ImpostaOpacita(double opacita) { opacita_ = opacita; }
    bool Vuoto() const { return millimetri_.isNull(); }
    /// Paints the part that lies in esposto; the painter's unit is the mm of screen.
    void Dipinge(QPainter &penna, const QRectF &esposto, double zoom);
    /// What is in memory of the file.
    const QImage &Maestra() const { return maestra_; }

private:
    struct Origine
    {
        QString percorso;
        QDateTime modificato;
        qint64 byte = 0;
        bool leggibile = false;

        bool operator==(const Origine &) const = default;
    };
    struct Fallita
    {
        Origine origine;
        ErroreSistema errore;
    };

    void Legge(const Origine &origine, const QRectF &millimetri, double pixelPerMillimetro);
    const QImage &Scalata(QSize pixel);

    Origine origine_;
    QSize pixel_; // asked of maestra_
    std::optional<Fallita> fallita_;
    QRectF millimetri_; // null: nothing is shown
    double opacita_ = 1;
    QImage maestra_;
    QImage scalata_; // maestra_ at the size on the screen
};

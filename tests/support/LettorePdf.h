#pragma once

#include <QImage>
#include <QList>
#include <QRectF>
#include <QString>

#include <functional>

/// Reads a printed sheet back from its PDF with poppler's tools: words, fonts and pixels, measured
/// in millimetres from the sheet's top-left corner.
class LettorePdf
{
public:
    /// Ends the test program when the file cannot be read.
    explicit LettorePdf(const QString &percorso);

    struct Parola
    {
        QString Testo;
        QRectF Millimetri;
    };
    struct Carattere
    {
        QString Nome; ///< without the subset's prefix
        bool Incorporato;
    };

    int Pagine() const { return pagine_; }
    QSizeF Foglio() const { return foglio_; } ///< mm
    const QList<Parola> &Parole() const { return parole_; }
    QStringList Testi() const;
    /// Box of the first word with this text; a null rectangle when there is none.
    QRectF Parola1(const QString &testo) const;
    QList<Carattere> Caratteri() const;
    /// Number of pictures in the file.
    int Immagini() const;
    /// How each picture stands in the file: "jpeg", or "image" without loss.
    QStringList Codifiche() const;
    /// Width, height, colour space ("rgb", "gray") and bits per colour of each picture.
    QStringList Forme() const;
    /// The pixels of the k-th picture (from 0) as they stand in the file.
    QImage Immagine(int k) const;

    /// Resolution of the pixels that the measures below look at.
    static constexpr double PuntiPerPollice = 600;
    /// The sheet without smoothing: every pixel is one of the colours printed.
    const QImage &Pixel() const;
    QRgb Colore(double x, double y) const; ///< at a point of the sheet, mm

    using Condizione = std::function<bool(QRgb)>;
    /// Smallest rectangle around the pixels in zona (mm) that meet the condition; by default those
    /// that are not white.
    QRectF Inchiostro(const QRectF &zona, const Condizione &condizione = {}) const;
    /// Like Inchiostro over the whole sheet.
    QRectF Inchiostro() const;

private:
    QStringList RigheImmagini() const;

    QString percorso_;
    int pagine_ = 0;
    QSizeF foglio_;
    QList<Parola> parole_;
    mutable QImage pixel_;
};

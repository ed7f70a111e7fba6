#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <functional>
#include <optional>

/// A picture in any format that Qt reads, as a file that a model can name: BMP or JPEG, opaque,
/// upright, and no finer than paper shows it. What a thread of its own works on: nothing here is
/// shared.
class FiguraEsterna
{
public:
    /// How the pixels of the new file are kept: without loss, or as photographs are.
    enum class Tipo { Disegno, Fotografia };

    struct File
    {
        QByteArray Byte;
        Tipo tipo = Tipo::Disegno;
        QSize Pixel;
        QSizeF Millimetri; ///< natural size, which the file states too
    };

    /// The box on paper, mm, of a picture of that natural size, mm.
    using Riquadro = std::function<QSizeF(const QSizeF &)>;
    /// Whether to go on is pointless.
    using Annullato = std::function<bool()>;

    /// Reads the whole file, decodes nothing. Throws what Disco::Legge throws; 481 for no picture.
    explicit FiguraEsterna(const QString &percorso);

    /// The file: with 600 dots per inch at most of a box of the picture's own proportions that just
    /// covers the one given; a drawing of lines has just these. Few colours are kept by a palette.
    /// A file that is one already stays as it is to the byte. The type is decided by the pixels
    /// unless it is given. Throws ErroreSistema 481 for what cannot be decoded,
    /// Immagini::TroppoGrande, std::bad_alloc. Empty once annullato says so.
    File Converte(const Riquadro &riquadro, const Annullato &annullato,
                  std::optional<Tipo> tipo = {}) const;

    /// The picture in that file, of any of these formats, small, opaque, with the proportions that
    /// it has on paper: as large as fits into entro (pixels, both positive), no larger than it is.
    /// Throws as the others; null once annullato says so.
    static QImage Miniatura(const QString &percorso, const QSize &entro,
                            const Annullato &annullato);

private:
    struct Decodificata
    {
        QImage Immagine;
        QSizeF Millimetri;
    };

    /// How many pixels there shall be of a picture of so many of its own, and of that natural size.
    using Finezza = std::function<QSize(const QSize &propri, const QSizeF &millimetri)>;

    QSize PixelPer(const QSize &propri, const QSizeF &millimetri, const Riquadro &riquadro) const;
    Decodificata Decodifica(const Riquadro &riquadro, const Annullato &annullato) const;
    Decodificata DecodificaNota(const Riquadro &riquadro) const;
    Decodificata DecodificaAltra(const Finezza &finezza, const Annullato &annullato) const;
    Decodificata DecodificaSvg(const Finezza &finezza) const;
    Decodificata DecodificaPunti(const Finezza &finezza, const Annullato &annullato) const;
    std::optional<File> ComeSta(const Riquadro &riquadro) const;

    QString percorso_;
    QByteArray byte_;
    QByteArray formato_; ///< Qt's name
    bool nota_ = false;  ///< one of the formats that the program itself shows and prints
};

#pragma once

#include <QByteArray>
#include <QImage>
#include <QRgb>
#include <QSize>

#include <functional>

class QIODevice;
struct IntestazioneImmagine;

/// An uncompressed BMP, decoded a few rows at a time: the whole of a large one takes more memory
/// than a printed page may.
class StrisceBmp
{
public:
    /// Takes a row; false when no more are wanted.
    using Riga = std::function<bool(const QRgb *)>;

    /// file stays the caller's and outlives this object; its header has been found credible.
    StrisceBmp(QIODevice &file, const IntestazioneImmagine &intestazione);

    /// False for what can only be decoded whole: compressed rows, and headers that contradict
    /// themselves.
    bool Leggibili() const { return byteRiga_ > 0; }
    /// Hands over the rows in the order of the file, opaque unless PuoTrasparire(). False when the
    /// file cannot be read or its header is refused.
    bool Scorre(const Riga &riga) const;
    /// True when the pixels may be transparent.
    bool PuoTrasparire() const { return maschere_; }
    /// True when the first row of the file is the lowest of the picture.
    bool DalBasso() const { return dalBasso_; }

private:
    bool ScorreSemplice(const QByteArray &byte, int righe, const Riga &riga) const;
    QImage Striscia(const QByteArray &byte, int righe) const;

    QIODevice &file_;
    QByteArray testa_; ///< all that stands before the rows
    QSize pixel_;
    qint64 byteRiga_ = 0;
    int postoAltezza_ = 0;
    bool corta_ = false;
    bool dalBasso_ = true;
    bool semplice_ = false; ///< three bytes to a pixel and nothing else
    bool maschere_ = false; ///< the file says which bits are which colour
};

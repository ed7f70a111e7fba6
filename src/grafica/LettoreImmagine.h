#pragma once

#include "grafica/IntestazioneImmagine.h"

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QSize>
#include <QSizeF>
#include <QString>

class QImageReader;
class StrisceBmp;

/// An open picture file whose header has been checked. Throws ErroreSistema 481 for one that cannot
/// be decoded, or not whole.
class LettoreImmagine
{
public:
    /// Decodes nothing yet. Throws ErroreSistema 53, 481, and Immagini::TroppoGrande.
    explicit LettoreImmagine(const QString &percorso);

    /// Size after rotation.
    QSize Pixel() const { return Ruota(pixel_); }

    /// Whether the picture, which is what this file was decoded to, may be made a JPEG again.
    bool ComeJpeg(const QImage &immagine) const;

    /// That many pixels, or half as many when a second copy is made of them: of a picture that is
    /// turned, or put together from its inks.
    qint64 Sostenibili(qint64 pixel) const;

    /// Nothing about the file needs more than its pixels as they are stored: it is not to be
    /// turned, nor put together from inks.
    bool Semplice() const { return !copiata_ && intestazione_.Componenti <= 3; }

    /// Size after rotation, at the resolution that the file states.
    QSizeF Millimetri() const;

    /// Throws what decoding would throw of a file that ends too early or takes too long.
    void Verifica();

    /// Decodes the picture; when minimo is valid, possibly smaller than its own size but not below
    /// minimo in either direction, unless that were more pixels than a page may cost.
    QImage Decodifica(const QSize &minimo);

    /// Decodes the picture as opaque as paper is, scaled down to pixel (no larger than its own size
    /// either way), or to what it was decoded to where that is less.
    QImage DecodificaOpaca(const QSize &pixel);

    /// Bytes that decoding the picture to this, which has just been done, took at most.
    qint64 Ingombro(const QImage &esito) const;

    /// Throws that a picture cannot be read.
    [[noreturn]] static void NonValida();

private:
    QSize Ruota(const QSize &misura) const { return ruotata_ ? misura.transposed() : misura; }
    void Prepara(QImageReader &lettore, QIODevice &dispositivo) const;
    /// Null for what Qt cannot read.
    QImage Legge(QIODevice &dispositivo, const QSize &ridotta = {}) const;
    QImage Legge(QByteArray byte, const QSize &ridotta = {}) const;
    QByteArray Tutto();

    /// As Qt gives it: with fewer bits to a pixel than 32 where it can.
    QImage DecodificaIntera(const QSize &minimo);

    QImage DecodificaBmp();
    void VerificaBmp() const;
    QImage DecodificaStrisce(const StrisceBmp &strisce, const QSize &pixel) const;
    bool AlfaVuoto(const StrisceBmp &strisce) const;

    QImage DecodificaGif();
    void VerificaGif(const QByteArray &byte) const;

    void VerificaJpeg(const QByteArray &byte, const QSize &ridotta) const;
    QImage DecodificaJpeg(const QSize &minimo);
    /// Makes the file state a multiple of the size that it is reduced to: whole blocks are stored
    /// in any case. Qt would decode a size that is a pixel off to one larger by half and then scale
    /// it, with both in memory.
    void Arrotonda(QByteArray &byte, const QSize &intera) const;
    /// The largest factor to divide the stored size by that the decoder handles itself.
    int Fattore(const QSize &minimo) const;
    /// Pixels that there is place for beside what the decoder keeps of a picture of several scans.
    qint64 Accanto() const;

    QFile file_;
    IntestazioneImmagine intestazione_;
    QSize pixel_; ///< as stored, before rotation
    bool ruotata_ = false;
    bool copiata_ = false; ///< turned or mirrored once it is decoded
    // Of the pixels as they came from the decoder at once.
    qint64 decodificati_ = 0; ///< bytes
    bool aParte_ = false;     ///< made fewer in a place of their own
};

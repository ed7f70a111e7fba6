#pragma once

#include <QByteArray>
#include <QSize>
#include <QSizeF>

class QIODevice;

/// What the first bytes of a picture file state. Qt tells the pixel size without decoding, but not
/// the resolution, and it accepts files that were cut short; both are read here.
struct IntestazioneImmagine
{
    static constexpr double PuntiPerPollicePredefiniti = 96;

    QByteArray Formato; ///< Qt's name of the format: "bmp", "gif" or "jpeg"; empty = none of them
    QSizeF PuntiPerPollice{PuntiPerPollicePredefiniti, PuntiPerPollicePredefiniti}; ///< as stored
    QSize Schermo{0, 0};   ///< pixels of a GIF's canvas; Qt tells only those of its first frame
    qint64 InizioDati = 0; ///< offset of the first byte of picture data

    /// Reads the beginning of the file. Never fails: what cannot be read keeps its default.
    static IntestazioneImmagine Legge(QIODevice &file);

    /// False when the file ends before its (first) picture does. Reads a JPEG to its end.
    bool Intera(QIODevice &file) const;

    /// False when no file of this length can really hold that many pixels: a few bytes that state
    /// huge dimensions only mean to eat the memory.
    bool Credibile(qint64 byte, qint64 pixel) const;
};

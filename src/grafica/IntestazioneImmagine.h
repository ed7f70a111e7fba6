#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QSize>
#include <QSizeF>

class QIODevice;

/// What the first bytes of a picture file state. Qt tells the pixel size without decoding, but not
/// the resolution; it accepts files that were cut short, refuses some that were not, and takes any
/// time over a file that was made for it. All that is read and judged here.
struct IntestazioneImmagine
{
    static constexpr double PuntiPerPollicePredefiniti = 96;

    QByteArray Formato; ///< Qt's name of the format: "bmp", "gif" or "jpeg"; empty = none of them
    QSizeF PuntiPerPollice{PuntiPerPollicePredefiniti, PuntiPerPollicePredefiniti}; ///< as stored
    QSize Pixel{0, 0};     ///< as stored; of a GIF its canvas, which may be empty; 0 x 0 = unknown
    qint64 InizioDati = 0; ///< offset of the first byte of picture data; 0 = not found

    // Of a BMP
    qint64 FineDati = 0;  ///< offset behind the last pixel
    qint64 FineRighe = 0; ///< offset behind what fills the last row up
    bool Compressa = false;

    // Of a JPEG
    qint64 PostoFormato = 0; ///< offset of the marker that states the components
    int Componenti = 0;
    bool Adobe = false;         ///< the marker that tells how colours are stored is there
    bool ColoriRidotti = false; ///< some components have fewer pixels than others
    bool PiuScansioni = false;  ///< no single scan holds its pixels, so the decoder keeps them all
    qint64 Coefficienti = 0;    ///< numbers that stand for the pixels of all components

    /// Reads the beginning of the file. Never fails: what cannot be read keeps its default.
    static IntestazioneImmagine Legge(QIODevice &file);

    /// True for a picture whose four inks are stored as they are; the marker's maker stores them
    /// inverted, and that is what Qt takes all of them for.
    bool InchiostriDiritti() const { return Componenti == 4 && !Adobe; }

    /// What the decoder keeps in memory of a picture of several scans.
    qint64 ByteCoefficienti() const { return 2 * Coefficienti; }

    /// True where a file of this length, or its pixels, are more than a second's work or than the
    /// memory of a printed page, however honest the file is.
    bool TroppoGrande(qint64 byte) const;

    /// For a JPEG, the whole file given: true where all its scans together are more than a second's
    /// work, however honest they are.
    bool TroppeScansioni(QByteArrayView file) const;

    /// False for a file of this length that no program can have made in earnest: a few bytes that
    /// state huge dimensions only mean to eat the memory, and more work than a second holds is more
    /// than any picture for paper needs.
    bool Credibile(qint64 byte) const;

    /// For a GIF or JPEG, the whole file given: false when it ends before its (first) picture does,
    /// or when decoding it would take beyond measure long. A JPEG may lack its end marker.
    bool Intera(QByteArrayView file) const;
};

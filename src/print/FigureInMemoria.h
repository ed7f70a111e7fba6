#pragma once

#include "base/ErroreSistema.h"
#include "print/PartiDiFigura.h"

#include <QHash>
#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

#include <optional>

/// The pictures of a page, decoded. A file is decoded once, as fine as its largest use needs, and
/// smaller uses get that, or a half, a quarter ... of it: each gets at least the pixels it needs
/// and less than twice as many each way. The same picture always comes as the same QImage, so that
/// a printer that has got it is not sent it again. Memory is bounded whatever the page holds: where
/// pictures would take too much, those not used of late are given up and decoded again when asked
/// for.
class FigureInMemoria
{
public:
    struct Figura
    {
        QImage Immagine; ///< opaque, RGB32
        bool ComeJpeg = false;
        /// What is handed to the printer; a picture that travels as JPEG is one part.
        QList<PartiDiFigura::Parte> Parti;
    };

    /// Carica will be asked for this use of the file. Reads nothing.
    void Prevede(const QString &percorso, const QSize &pixel);
    /// The picture for a use that needs so many pixels (both positive). Throws ErroreSistema 53 or
    /// 481; what has failed once fails again without being tried.
    Figura Carica(const QString &percorso, const QSize &pixel);
    /// Bytes that asking for those once more which have been asked for would take at most.
    qint64 ByteAlMassimo() const;

private:
    struct Voce
    {
        QSize Bisogno{1, 1};   ///< pixels of the largest use known
        QSize Decodificata;    ///< Bisogno when the picture was decoded
        QList<Figura> Livelli; ///< the picture, its half, its quarter ...; null: not made yet
        std::optional<ErroreSistema> Guasto;
        quint64 Uso = 0;
        int UsiPrevisti = 0; ///< still to come
        qint64 Byte = 0;     ///< that decoding it, or keeping it, has taken at most
    };

    void Decodifica(const QString &percorso, Voce &voce);
    void FaPosto();
    static void Lascia(QList<Voce *> &voci, qsizetype massimi);

    QHash<QString, Voce> voci_;
    quint64 usi_ = 0;
};

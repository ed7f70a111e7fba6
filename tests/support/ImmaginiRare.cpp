#include "support/ImmaginiRare.h"

#include "support/ImmaginiDiProva.h"

#include <QBuffer>
#include <QImageWriter>
#include <QtEndian>

#include <bit>
#include <vector>

namespace {

constexpr int Lato = 8; // of a block of a JPEG

template <typename Numero>
QByteArray Piccolo(Numero valore)
{
    const Numero byte = qToLittleEndian(valore);
    return QByteArray(reinterpret_cast<const char *>(&byte), sizeof byte);
}

QImage DueColori()
{
    QImage immagine = ImmaginiDiProva::Tinta(ImmaginiRare::Pixel, ImmaginiRare::ColoreSopra);
    for (int y = immagine.height() / 2; y < immagine.height(); ++y) {
        auto *riga = reinterpret_cast<QRgb *>(immagine.scanLine(y));
        std::fill(riga, riga + immagine.width(), ImmaginiRare::ColoreSotto);
    }
    return immagine;
}

// --- BMP

struct Bmp
{
    int Bit = 24;
    quint32 Testa = 40; ///< length of the second header: 40, 108 (V4), 124 (V5)
    bool DallAlto = false;
};

QByteArray RigaBmp(const Bmp &bmp, bool sopra)
{
    const QRgb colore = sopra ? ImmaginiRare::ColoreSopra : ImmaginiRare::ColoreSotto;
    QByteArray riga;
    for (int x = 0; x < ImmaginiRare::Pixel.width(); ++x) {
        if (bmp.Bit == 8) {
            riga.append(sopra ? '\1' : '\2');
        } else {
            riga.append(char(qBlue(colore))).append(char(qGreen(colore)));
            riga.append(char(qRed(colore)));
            riga.append(QByteArray(bmp.Bit / 8 - 3, '\0'));
        }
    }
    return riga.append(QByteArray((4 - riga.size() % 4) % 4, '\0'));
}

QByteArray ScriveBmp(const Bmp &bmp)
{
    const int altezza = ImmaginiRare::Pixel.height();
    QByteArray tavolozza;
    if (bmp.Bit == 8) {
        tavolozza = QByteArray(1024, '\0');
        tavolozza.replace(4, 8,
                          Piccolo(ImmaginiRare::ColoreSopra & 0xFFFFFF) +
                              Piccolo(ImmaginiRare::ColoreSotto & 0xFFFFFF));
    }
    QByteArray righe;
    for (int y = 0; y < altezza; ++y) {
        const bool inAlto = (y < altezza / 2) == bmp.DallAlto;
        righe += RigaBmp(bmp, inAlto);
    }
    const quint32 inizio = 14 + bmp.Testa + quint32(tavolozza.size());
    QByteArray testa = "BM" + Piccolo(quint32(inizio + righe.size())) + Piccolo(quint32(0)) +
                       Piccolo(inizio) + Piccolo(bmp.Testa) +
                       Piccolo(qint32(ImmaginiRare::Pixel.width())) +
                       Piccolo(qint32(bmp.DallAlto ? -altezza : altezza)) + Piccolo(quint16(1)) +
                       Piccolo(quint16(bmp.Bit)) + Piccolo(quint32(bmp.Testa > 40 ? 3 : 0)) +
                       Piccolo(quint32(righe.size())) + QByteArray(16, '\0');
    if (bmp.Testa > 40) {
        for (const quint32 maschera : {0xFF0000U, 0xFF00U, 0xFFU, 0xFF000000U}) {
            testa += Piccolo(maschera);
        }
    }
    return testa.leftJustified(14 + qsizetype(bmp.Testa), '\0') + tavolozza + righe;
}

// --- JPEG

class ScrittoreBit
{
public:
    void Scrive(int valore, int quanti)
    {
        while (quanti > 0) {
            --quanti;
            byte_ = byte_ << 1 | (valore >> quanti & 1);
            if (++bit_ == 8) {
                Chiude();
            }
        }
    }
    QByteArray Fine()
    {
        while (bit_ > 0) {
            Scrive(1, 1);
        }
        return dati_;
    }

private:
    void Chiude()
    {
        dati_.append(char(byte_));
        if ((byte_ & 0xFF) == 0xFF) {
            dati_.append('\0');
        }
        byte_ = 0;
        bit_ = 0;
    }

    QByteArray dati_;
    int byte_ = 0;
    int bit_ = 0;
};

QByteArray Segmento(int marcatore, const QByteArray &dati)
{
    const int lunghezza = int(dati.size()) + 2;
    return QByteArray("\xFF")
               .append(char(marcatore))
               .append(char(lunghezza >> 8))
               .append(char(lunghezza & 0xFF)) +
           dati;
}

/// Quantised by 1; twelve sizes of the even part in codes of four bits, and "nothing else" in one.
QByteArray TavoleJpeg()
{
    QByteArray dc("\0\0\0\0\x0C", 5);
    dc.append(QByteArray(12, '\0'));
    for (char simbolo = 0; simbolo < 12; ++simbolo) {
        dc.append(simbolo);
    }
    QByteArray ac("\x10\1", 2);
    ac.append(QByteArray(15, '\0')).append('\0');
    return Segmento(0xDB, QByteArray(1, '\0') + QByteArray(64, '\1')) + Segmento(0xC4, dc + ac);
}

QByteArray FormatoJpeg(int marcatore, const QSize &pixel, int componenti)
{
    QByteArray dati("\x08");
    dati.append(char(pixel.height() >> 8)).append(char(pixel.height() & 0xFF));
    dati.append(char(pixel.width() >> 8)).append(char(pixel.width() & 0xFF));
    dati.append(char(componenti));
    for (int i = 1; i <= componenti; ++i) {
        dati.append(char(i)).append('\x11').append('\0');
    }
    return Segmento(marcatore, dati);
}

QByteArray ScansioneJpeg(int componenti, int primo, int ultimo)
{
    QByteArray dati(1, char(componenti));
    for (int i = 1; i <= componenti; ++i) {
        dati.append(char(i)).append('\0');
    }
    return Segmento(0xDA, dati.append(char(primo)).append(char(ultimo)).append('\0'));
}

QByteArray JpegInchiostri()
{
    // Ink, not light: what is missing to white.
    const auto inchiostro = [](int componente, int, int riga) {
        const QRgb colore = riga * Lato < ImmaginiRare::Pixel.height() / 2
                                ? ImmaginiRare::ColoreSopra
                                : ImmaginiRare::ColoreSotto;
        const int nero = 255 - std::max({qRed(colore), qGreen(colore), qBlue(colore)});
        const int luce[] = {qRed(colore), qGreen(colore), qBlue(colore)};
        return componente == 3 ? nero : 255 - luce[componente] * 255 / (255 - nero);
    };
    return ImmaginiRare::JpegABlocchi(ImmaginiRare::Pixel, 4, inchiostro);
}

QByteArray ScriveJpeg(bool progressivo)
{
    QByteArray byte;
    QBuffer uscita(&byte);
    QImageWriter scrittore(&uscita, "jpeg");
    scrittore.setQuality(95);
    scrittore.setProgressiveScanWrite(progressivo);
    if (!scrittore.write(DueColori())) {
        qFatal("cannot write a test picture");
    }
    return byte;
}

} // namespace

QByteArray
ImmaginiRare::JpegABlocchi(const QSize &pixel, int componenti,
                           const std::function<int(int componente, int colonna, int riga)> &valore)
{
    ScrittoreBit bit;
    std::vector<int> prima(std::size_t(componenti), 128);
    const int colonne = (pixel.width() + Lato - 1) / Lato;
    const int righe = (pixel.height() + Lato - 1) / Lato;
    for (int riga = 0; riga < righe; ++riga) {
        for (int colonna = 0; colonna < colonne; ++colonna) {
            for (int c = 0; c < componenti; ++c) {
                const int ora = valore(c, colonna, riga);
                const int passo = (ora - prima[std::size_t(c)]) * Lato;
                const int quanti = std::bit_width(unsigned(std::abs(passo)));
                bit.Scrive(quanti, 4);
                bit.Scrive(passo < 0 ? passo + (1 << quanti) - 1 : passo, quanti);
                bit.Scrive(0, 1);
                prima[std::size_t(c)] = ora;
            }
        }
    }
    return "\xFF\xD8" + TavoleJpeg() + FormatoJpeg(0xC0, pixel, componenti) +
           ScansioneJpeg(componenti, 0, 63) + bit.Fine() + "\xFF\xD9";
}

QByteArray ImmaginiRare::JpegA1200PuntiPerPollice()
{
    constexpr QSize A4{9921, 14031};
    const auto ycc = [](QRgb c, int componente) {
        const double r = qRed(c);
        const double g = qGreen(c);
        const double b = qBlue(c);
        return qRound(componente == 0   ? 0.299 * r + 0.587 * g + 0.114 * b
                      : componente == 1 ? 128 - 0.168736 * r - 0.331264 * g + 0.5 * b
                                        : 128 + 0.5 * r - 0.418688 * g - 0.081312 * b);
    };
    const int meta = A4.height() / Lato / 2;
    return JpegABlocchi(A4, 3, [&](int componente, int, int riga) {
        return ycc(riga < meta ? ColoreSopra : ColoreSotto, componente);
    });
}

QList<ImmaginiRare::Rara> ImmaginiRare::Tutte()
{
    const QByteArray bmp = ScriveBmp({});
    return {{"BMP dall'alto", ScriveBmp({24, 40, true})},
            {"BMP di 256 colori dall'alto", ScriveBmp({8, 40, true})},
            {"BMP V4 dall'alto", ScriveBmp({32, 108, true})},
            {"BMP V4 con alfa vuoto", ScriveBmp({32, 108, false})},
            {"BMP V5 con alfa vuoto", ScriveBmp({32, 124, false})},
            {"BMP senza l'ultimo riempitivo", bmp.chopped(2)},
            {"BMP senza meta' dell'ultimo riempitivo", bmp.chopped(1)},
            {"BMP di 256 colori senza riempitivo", ScriveBmp({8, 40, false}).chopped(2)},
            {"JPEG di inchiostri diritti", JpegInchiostri()},
            {"JPEG di inchiostri diritti, senza fine", JpegInchiostri().chopped(2)},
            {"JPEG senza fine", ScriveJpeg(false).chopped(2)},
            {"JPEG con mezza fine", ScriveJpeg(false).chopped(1)},
            {"JPEG progressivo senza fine", ScriveJpeg(true).chopped(2)}};
}

QByteArray ImmaginiRare::GifCheSiSrotola(int byte)
{
    // Codes that grow by a pixel each, then the longest again and again.
    QByteArray dati;
    quint32 resto = 0;
    int quanti = 0;
    const auto scrive = [&](int codice, int bit) {
        resto |= quint32(codice) << quanti;
        for (quanti += bit; quanti >= 8; quanti -= 8) {
            dati.append(char(resto & 0xFF));
            resto >>= 8;
        }
    };
    int bit = 3;
    scrive(4, bit);
    scrive(0, bit);
    for (int codice = 6; codice < 4096;) {
        scrive(codice, bit);
        ++codice;
        bit += codice == 1 << bit && bit < 12 ? 1 : 0;
    }
    while (dati.size() < byte) {
        scrive(4095, 12);
    }
    QByteArray gif = QByteArray("GIF89a\x40\0\x40\0\x80\0\0", 13) + QByteArray(6, '\0') +
                     QByteArray("\x2C\0\0\0\0\x40\0\x40\0\0\2", 11);
    for (qsizetype i = 0; i < dati.size(); i += 255) {
        const QByteArray blocco = dati.mid(i, 255);
        gif.append(char(blocco.size())).append(blocco);
    }
    return gif.append(QByteArray("\0;", 2));
}

QByteArray ImmaginiRare::JpegDiSegmenti(int byte, char marcatore, bool inTesta, int dati)
{
    QByteArray jpeg = ScriveJpeg(false);
    const QByteArray segmenti =
        Segmento(quint8(marcatore), QByteArray(dati, 'a')).repeated(byte / (dati + 4));
    return jpeg.insert(inTesta ? 2 : jpeg.size() - 2, segmenti);
}

QByteArray ImmaginiRare::BmpSmisurato()
{
    QByteArray byte = ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({8, 8}, 0), "bmp");
    for (const qsizetype lato : {18, 22}) {
        byte.replace(lato, 4, QByteArrayLiteral("\xFF\xFF\xFF\x7F"));
    }
    return byte;
}

QByteArray ImmaginiRare::JpegDiScansioni(const QSize &pixel, int scansioni)
{
    // The even part of every block: no change; the rest: a run of empty blocks after the other.
    const qint64 blocchi = qint64((pixel.width() + 7) / 8) * ((pixel.height() + 7) / 8);
    ScrittoreBit pari;
    for (qint64 i = 0; i < blocchi; ++i) {
        pari.Scrive(0, 4);
    }
    constexpr int Corsa = 1 << 14; // blocks that one code of the longest run stands for at least
    ScrittoreBit resto;
    for (qint64 i = 0; i < blocchi; i += Corsa) {
        resto.Scrive(0, 1);
        resto.Scrive(0, 14);
    }
    QByteArray corse("\x10\1", 2);
    corse.append(QByteArray(15, '\0')).append('\xE0');
    const QByteArray vuota = ScansioneJpeg(1, 1, 63) + resto.Fine();
    return "\xFF\xD8" + TavoleJpeg() + Segmento(0xC4, corse) + FormatoJpeg(0xC2, pixel, 1) +
           ScansioneJpeg(1, 0, 0) + pari.Fine() + vuota.repeated(scansioni) + "\xFF\xD9";
}

QByteArray ImmaginiRare::JpegDiUnaScansione(const QSize &pixel, int componenti, int nellaScansione,
                                            bool progressivo)
{
    // Nothing but the codes for "no change" (four bits) and "nothing else" (one), which are zeros.
    const qint64 blocchi = qint64((pixel.width() + 7) / 8) * ((pixel.height() + 7) / 8);
    const qint64 bit = blocchi * nellaScansione * (progressivo ? 4 : 5);
    return "\xFF\xD8" + TavoleJpeg() + FormatoJpeg(progressivo ? 0xC2 : 0xC0, pixel, componenti) +
           ScansioneJpeg(nellaScansione, 0, progressivo ? 0 : 63) +
           QByteArray((bit + 7) / 8, '\0') + "\xFF\xD9";
}

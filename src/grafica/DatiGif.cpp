#include "grafica/DatiGif.h"

#include <QtEndian>

#include <array>

namespace {

/// Blocks that are walked over before the picture at most: no picture has more.
constexpr int PassiMassimi = 1 << 14;
/// Data beyond the picture's last pixel that a careless writer may leave.
constexpr qint64 PixelDiTroppo = 1'000'000;

constexpr int CodiciMassimi = 4096;
constexpr int BitMassimi = 12;

int ByteA(QByteArrayView file, qint64 posto)
{
    return posto < file.size() ? quint8(file[posto]) : -1;
}

int CortoA(QByteArrayView file, qint64 posto)
{
    return qFromLittleEndian<quint16>(file.data() + posto);
}

qint64 DopoTavola(qint64 posto, int opzioni)
{
    return opzioni & 0x80 ? posto + 3 * (qint64(2) << (opzioni & 7)) : posto;
}

/// The offset after a chain of sub-blocks, -1 when the file ends before it.
qint64 DopoSottoblocchi(QByteArrayView file, qint64 posto)
{
    for (;;) {
        const int lunghezza = ByteA(file, posto);
        if (lunghezza < 0) {
            return -1;
        }
        posto += 1 + lunghezza;
        if (lunghezza == 0) {
            return posto;
        }
    }
}

/// Counts the pixels that a stream of codes stands for.
class Srotolatore
{
public:
    explicit Srotolatore(int bit)
        : bitIniziali_(bit)
        , azzera_(1 << bit)
    {
        Azzera();
    }

    /// Takes the next byte; false once the stream has ended.
    bool Prende(int byte)
    {
        resto_ |= quint32(byte) << bitResto_;
        bitResto_ += 8;
        while (bitResto_ >= bit_) {
            const int codice = int(resto_ & ((1U << bit_) - 1));
            resto_ >>= bit_;
            bitResto_ -= bit_;
            if (!Codice(codice)) {
                return false;
            }
        }
        return true;
    }

    qint64 Pixel() const { return pixel_; }

private:
    void Azzera()
    {
        bit_ = bitIniziali_ + 1;
        prossimo_ = azzera_ + 2;
        precedente_ = 0;
    }

    bool Codice(int codice)
    {
        if (codice == azzera_) {
            Azzera();
            return true;
        }
        if (codice == azzera_ + 1) {
            return false;
        }
        // A code not yet known stands for the one before it and a pixel more.
        const int lunghezza = codice < azzera_     ? 1
                              : codice < prossimo_ ? lunghezze_[codice]
                                                   : precedente_ + 1;
        pixel_ += lunghezza;
        if (precedente_ > 0 && prossimo_ < CodiciMassimi) {
            lunghezze_[prossimo_] = precedente_ + 1;
            ++prossimo_;
            if (prossimo_ == 1 << bit_ && bit_ < BitMassimi) {
                ++bit_;
            }
        }
        precedente_ = lunghezza;
        return true;
    }

    const int bitIniziali_;
    const int azzera_;
    int bit_ = 0;
    int prossimo_ = 0;
    int precedente_ = 0; // pixels of the last code; 0 right after a reset
    quint32 resto_ = 0;
    int bitResto_ = 0;
    qint64 pixel_ = 0;
    std::array<int, CodiciMassimi> lunghezze_{};
};

bool FiguraIntera(QByteArrayView file, qint64 posto, qint64 pixel)
{
    const int bit = ByteA(file, posto);
    if (bit < 1 || bit >= BitMassimi || DopoSottoblocchi(file, posto + 1) < 0) {
        return false;
    }
    Srotolatore dati(bit);
    ++posto;
    for (int lunghezza = ByteA(file, posto); lunghezza > 0; lunghezza = ByteA(file, posto)) {
        for (const char byte : file.sliced(posto + 1, lunghezza)) {
            if (!dati.Prende(quint8(byte))) {
                return true; // what follows the end of the stream is passed over
            }
            if (dati.Pixel() > pixel + PixelDiTroppo) {
                return false;
            }
        }
        posto += 1 + lunghezza;
    }
    return true;
}

} // namespace

bool DatiGif::Interi(QByteArrayView file)
{
    constexpr qint64 ByteTesta = 13;
    constexpr qint64 ByteDescrizione = 10;
    if (file.size() < ByteTesta) {
        return false;
    }
    qint64 posto = DopoTavola(ByteTesta, ByteA(file, 10));
    for (int passo = 0; passo < PassiMassimi; ++passo) {
        const int blocco = ByteA(file, posto);
        if (blocco == 0x21) { // extension: label, then sub-blocks
            posto = DopoSottoblocchi(file, posto + 2);
            if (posto < 0) {
                return false;
            }
        } else if (blocco == 0x2C && posto + ByteDescrizione <= file.size()) {
            const qint64 pixel = qint64(CortoA(file, posto + 5)) * CortoA(file, posto + 7);
            return pixel <= DatiGif::PixelMassimi &&
                   FiguraIntera(file, DopoTavola(posto + ByteDescrizione, ByteA(file, posto + 9)),
                                pixel);
        } else {
            return false;
        }
    }
    return false;
}

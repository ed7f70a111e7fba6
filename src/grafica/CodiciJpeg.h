#pragma once

#include "grafica/MarcatoriJpeg.h"

#include <QByteArrayView>

#include <algorithm>
#include <array>

/// The Huffman codes that the data of a JPEG's scans are made of.
namespace CodiciJpeg {

/// Thrown where the data end too early, or are no data.
struct Mancano
{
};

/// The bits of one scan, up to the next marker.
class Bit
{
public:
    Bit(QByteArrayView file, qint64 posto)
        : file_(file)
        , posto_(posto)
    {
    }

    int Uno()
    {
        if (quanti_ == 0) {
            Riempie();
        }
        --quanti_;
        return byte_ >> quanti_ & 1;
    }
    int Numero(int quanti)
    {
        int valore = 0;
        for (; quanti > 0; --quanti) {
            valore = valore << 1 | Uno();
        }
        return valore;
    }
    /// Goes behind a restart marker, which has to be next.
    void Riparte()
    {
        quanti_ = 0;
        while (Prossimo(0) == 0xFF && Prossimo(1) == 0xFF) {
            ++posto_;
        }
        if (Prossimo(0) != 0xFF || !MarcatoriJpeg::DiRipartenza(Prossimo(1))) {
            throw Mancano();
        }
        posto_ += 2;
    }
    qint64 Posto() const { return posto_; }

private:
    int Prossimo(int dopo) const
    {
        return posto_ + dopo < file_.size() ? quint8(file_[posto_ + dopo]) : -1;
    }
    void Riempie()
    {
        byte_ = Prossimo(0);
        if (byte_ < 0 || (byte_ == 0xFF && Prossimo(1) != 0)) {
            throw Mancano();
        }
        posto_ += byte_ == 0xFF ? 2 : 1;
        quanti_ = 8;
    }

    QByteArrayView file_;
    qint64 posto_;
    int byte_ = 0;
    int quanti_ = 0;
};

/// A table of Huffman codes, as the file states it: how many there are of each length, and their
/// values.
class Tavola
{
public:
    Tavola() = default;
    Tavola(QByteArrayView quanti, QByteArrayView valori)
    {
        std::transform(quanti.begin(), quanti.end(), quanti_.begin(),
                       [](char n) { return int(quint8(n)); });
        std::copy(valori.begin(), valori.end(), valori_.begin());
        presenti_ = int(valori.size());
    }

    int Legge(Bit &bit) const
    {
        int codice = 0;
        int primo = 0;
        int prima = 0; // values of shorter codes
        for (const int quanti : quanti_) {
            codice = codice << 1 | bit.Uno();
            primo <<= 1;
            if (codice - primo < quanti && prima + codice - primo < presenti_) {
                return quint8(valori_[prima + codice - primo]);
            }
            prima += quanti;
            primo += quanti;
        }
        throw Mancano();
    }

private:
    std::array<int, 16> quanti_{};
    std::array<char, 256> valori_{};
    int presenti_ = 0;
};

} // namespace CodiciJpeg

#include "grafica/LettoreImmagine.h"

#include "grafica/Immagini.h"
#include "grafica/Opacita.h"
#include "grafica/PixelImmagine.h"
#include "grafica/Rimpicciolimento.h"
#include "grafica/SeparazioniJpeg.h"
#include "grafica/StrisceBmp.h"

#include <QtEndian>

#include <algorithm>
#include <new>
#include <vector>

namespace {

/// A JPEG is decoded at a half, a quarter or an eighth of its size for little cost.
constexpr int RiduzioneMassima = 8;
/// What is decoded at most for a printed page, pixels: an A4 scan at 600 dpi and a margin. Where
/// that is not enough, the picture is taken coarser rather than more memory.
constexpr qint64 PixelDecodificati = 45'000'000;

} // namespace

void LettoreImmagine::VerificaBmp() const
{
    if (intestazione_.FineDati > file_.size() || PixelImmagine::Troppi(pixel_)) {
        NonValida();
    }
}

bool LettoreImmagine::AlfaVuoto(const StrisceBmp &strisce) const
{
    bool vuoto = true;
    const bool letta = strisce.Scorre([&](const QRgb *riga) {
        vuoto = vuoto && Opacita::AlfaVuoto(riga, pixel_.width());
        return vuoto;
    });
    return letta && vuoto;
}

QImage LettoreImmagine::DecodificaStrisce(const StrisceBmp &strisce, const QSize &pixel) const
{
    VerificaBmp();
    const int larghezza = pixel_.width();
    QImage immagine(pixel, QImage::Format_RGB32);
    if (immagine.isNull()) {
        throw std::bad_alloc();
    }
    Rimpicciolimento riduce(pixel_, pixel, [&](int nuova) {
        const int y = strisce.DalBasso() ? pixel.height() - 1 - nuova : nuova;
        return reinterpret_cast<QRgb *>(immagine.scanLine(y));
    });
    const QRgb opaco = strisce.PuoTrasparire() && AlfaVuoto(strisce) ? 0xFF000000 : 0;
    std::vector<QRgb> suBianco(static_cast<std::size_t>(larghezza));
    const bool intera = strisce.Scorre([&](const QRgb *riga) {
        if (strisce.PuoTrasparire()) {
            std::transform(riga, riga + larghezza, suBianco.begin(),
                           [opaco](QRgb c) { return c | opaco; });
            Opacita::SuBianco(suBianco.data(), larghezza, suBianco.data());
            riga = suBianco.data();
        }
        riduce.Aggiunge(riga);
        return true;
    });
    if (!intera) {
        NonValida();
    }
    return immagine;
}

QImage LettoreImmagine::DecodificaBmp()
{
    VerificaBmp();
    const qint64 mancanti = intestazione_.FineRighe - file_.size();
    // Qt wants what fills up the last row too.
    QImage immagine = mancanti > 0 ? Legge(Tutto() + QByteArray(mancanti, '\0')) : Legge(file_);
    if (immagine.depth() == 32 && immagine.hasAlphaChannel()) {
        PixelImmagine::A32Bit(immagine);
        Opacita::ToglieAlfaVuoto(immagine);
    }
    return immagine;
}

QImage LettoreImmagine::DecodificaGif()
{
    const QByteArray byte = Tutto();
    VerificaGif(byte);
    return Legge(byte);
}

void LettoreImmagine::VerificaGif(const QByteArray &byte) const
{
    if (PixelImmagine::Troppi(pixel_) || !intestazione_.Intera(byte)) {
        NonValida();
    }
}

void LettoreImmagine::VerificaJpeg(const QByteArray &byte, const QSize &ridotta) const
{
    if (intestazione_.TroppeScansioni(byte)) {
        throw Immagini::TroppoGrande();
    }
    if (PixelImmagine::Troppi(ridotta) || !intestazione_.Intera(byte)) {
        NonValida();
    }
}

void LettoreImmagine::Verifica()
{
    if (intestazione_.Formato == "bmp") {
        VerificaBmp();
    } else if (intestazione_.Formato == "gif") {
        VerificaGif(Tutto());
    } else {
        // As fine as it is decoded at most.
        VerificaJpeg(Tutto(), pixel_ / Fattore(pixel_));
    }
}

QImage LettoreImmagine::DecodificaJpeg(const QSize &minimo)
{
    const int fattore = minimo.isValid() ? Fattore(Ruota(minimo)) : 1;
    const QSize ridotta((pixel_.width() + fattore - 1) / fattore,
                        (pixel_.height() + fattore - 1) / fattore);
    QByteArray byte = Tutto();
    VerificaJpeg(byte, ridotta);
    Arrotonda(byte, ridotta * fattore);
    if (!intestazione_.InchiostriDiritti()) {
        return Legge(byte, ridotta);
    }
    QImage immagine = Legge(SeparazioniJpeg::SenzaNero(byte, intestazione_), ridotta);
    QImage nero = Legge(SeparazioniJpeg::SoloNero(byte, intestazione_), ridotta);
    if (immagine.isNull() || nero.size() != immagine.size()) {
        NonValida();
    }
    PixelImmagine::A32Bit(immagine);
    PixelImmagine::A32Bit(nero);
    SeparazioniJpeg::Unisce(immagine, nero);
    return immagine;
}

void LettoreImmagine::Arrotonda(QByteArray &byte, const QSize &intera) const
{
    constexpr int LatoMassimo = 65'500; // that the decoder takes
    constexpr qsizetype Altezza = 5;
    constexpr qsizetype Larghezza = 7;
    if (std::max(intera.width(), intera.height()) <= LatoMassimo) {
        char *formato = byte.data() + intestazione_.PostoFormato;
        qToBigEndian(quint16(intera.height()), formato + Altezza);
        qToBigEndian(quint16(intera.width()), formato + Larghezza);
    }
}

int LettoreImmagine::Fattore(const QSize &minimo) const
{
    const qint64 massimi = std::min(Sostenibili(PixelDecodificati),
                                    intestazione_.PiuScansioni ? Accanto() : PixelDecodificati);
    const auto basta = [&](int fattore) {
        return pixel_.width() / fattore >= minimo.width() &&
               pixel_.height() / fattore >= minimo.height();
    };
    const auto troppi = [&](int fattore) {
        return qint64(pixel_.width()) * pixel_.height() / (qint64(fattore) * fattore) > massimi;
    };
    int fattore = 1;
    while (fattore < RiduzioneMassima && (basta(fattore * 2) || troppi(fattore))) {
        fattore *= 2;
    }
    return fattore;
}

qint64 LettoreImmagine::Accanto() const
{
    constexpr qint64 ByteInsieme = 260'000'000;
    return (ByteInsieme - file_.size() - intestazione_.ByteCoefficienti()) /
           PixelImmagine::BytePerPixel;
}

#include "grafica/SeparazioniJpeg.h"

#include "grafica/IntestazioneImmagine.h"
#include "grafica/MarcatoriJpeg.h"

#include <algorithm>
#include <array>

namespace {

constexpr int Inchiostri = 4;
constexpr int Nero = 3;
constexpr int Tavole = 4;
constexpr int CoefficientiTavola = 64;

/// Offset of the number of the quantisation table of an ink.
qint64 PostoTavola(const IntestazioneImmagine &intestazione, int inchiostro)
{
    return intestazione.PostoFormato + 12 + qint64(3) * inchiostro;
}

QByteArray TavolaNulla(int numero)
{
    QByteArray segmento;
    segmento.append('\xFF').append(char(MarcatoriJpeg::Dqt));
    segmento.append('\0').append(char(3 + CoefficientiTavola));
    return segmento.append(char(numero)).append(QByteArray(CoefficientiTavola, '\0'));
}

/// An ink whose quantisation table is nothing but zeros comes out as 128 everywhere.
QByteArray Annullati(const QByteArray &file, const IntestazioneImmagine &intestazione, int primo,
                     int ultimo)
{
    std::array<bool, Tavole> usata{};
    for (int i = 0; i < Inchiostri; ++i) {
        usata[file.at(PostoTavola(intestazione, i)) & 3] = true;
    }
    const auto libera = std::find(usata.begin(), usata.end(), false);
    QByteArray esito = file;
    QByteArray tavole;
    if (libera != usata.end()) {
        tavole = TavolaNulla(int(libera - usata.begin()));
    }
    for (int i = primo; i <= ultimo; ++i) {
        const qint64 posto = PostoTavola(intestazione, i);
        if (libera != usata.end()) {
            esito[posto] = char(libera - usata.begin());
        } else { // each ink has a table of its own
            tavole += TavolaNulla(file.at(posto) & 3);
        }
    }
    // Right before the first scan, behind every table of the file's own.
    qint64 scansione = 2;
    MarcatoriJpeg::Segmento segmento;
    while (MarcatoriJpeg::Prossimo(file, scansione, segmento) &&
           segmento.Marcatore != MarcatoriJpeg::Sos) {
        scansione = segmento.Fine;
    }
    return esito.insert(segmento.Posto, tavole);
}

/// An ink as the file has it, 0 to 255, from what is left of it beside an even half: 0 to 128.
int Pieno(int dimezzato)
{
    return std::min(255, (dimezzato * 255 + 64) / 128);
}

} // namespace

QByteArray SeparazioniJpeg::SenzaNero(const QByteArray &file,
                                      const IntestazioneImmagine &intestazione)
{
    return Annullati(file, intestazione, Nero, Nero);
}

QByteArray SeparazioniJpeg::SoloNero(const QByteArray &file,
                                     const IntestazioneImmagine &intestazione)
{
    return Annullati(file, intestazione, 0, Nero - 1);
}

void SeparazioniJpeg::Unisce(QImage &senzaNero, const QImage &soloNero)
{
    for (int y = 0; y < senzaNero.height(); ++y) {
        const auto *neri = reinterpret_cast<const QRgb *>(soloNero.constScanLine(y));
        auto *riga = reinterpret_cast<QRgb *>(senzaNero.scanLine(y));
        for (int x = 0; x < senzaNero.width(); ++x) {
            const int luce = 255 - Pieno(qRed(neri[x]));
            const auto resta = [&](int dimezzato) {
                return ((255 - Pieno(dimezzato)) * luce + 127) / 255;
            };
            riga[x] = qRgb(resta(qRed(riga[x])), resta(qGreen(riga[x])), resta(qBlue(riga[x])));
        }
    }
}

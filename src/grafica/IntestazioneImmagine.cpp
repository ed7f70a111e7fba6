#include "grafica/IntestazioneImmagine.h"

#include "base/Unita.h"
#include "grafica/DatiGif.h"
#include "grafica/DatiJpeg.h"
#include "grafica/MarcatoriJpeg.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <limits>

namespace {

/// Density statements outside this range are fillers ("1 x 1"), not resolutions.
constexpr double PuntiMinimi = 10;
constexpr double PuntiMassimi = 20000;

/// Parts that a JPEG is divided into: no picture has more. The decoder keeps some kinds of them in
/// a chain that it walks from the start for each one it adds.
constexpr int SegmentiMassimi = 1 << 12;
constexpr int RiempitiviMassimi = 1 << 14;
/// Bytes before the first scan, which the decoder reads and copies each time it is asked for
/// anything: colour profiles, thumbnails, a telephone's second picture.
constexpr qint64 TestaMassima = 8'000'000;
/// Progressive pictures have about ten scans; a file made of hundreds would decode for minutes.
constexpr int ScansioniMassime = 64;

// What is decoded within a second. A3 at 600 dots per inch has 70 million pixels; only a JPEG can
// be decoded reduced, so it may be larger: A3 at 1200, or A4 where it has to be decoded twice.
constexpr qint64 PixelInteriMassimi = 80'000'000;
constexpr qint64 PixelJpegMassimi = 300'000'000;
constexpr qint64 PixelInchiostriMassimi = PixelJpegMassimi / 2;
constexpr qint64 ByteInteriMassimi = 64'000'000;
constexpr qint64 ByteCompressiMassimi = 40'000'000;
/// Of all scans together, where there are several.
constexpr qint64 PixelScansioniMassimi = 1'500'000'000;
/// Where no single scan holds the picture the decoder keeps all of it until the last one, whether
/// or not others follow and however much smaller it decodes it, and a printed page has no place for
/// more: A3 at 600 dots per inch whose colours are stored half as fine each way is below it.
constexpr qint64 CoefficientiMassimi = 128LL * 1024 * 1024;

QByteArray Byte(QIODevice &file, qint64 posto, qint64 quanti)
{
    return file.seek(posto) ? file.read(quanti) : QByteArray();
}

template <typename Numero>
Numero PiccoloSeCe(const QByteArray &byte, qsizetype posto)
{
    return posto >= 0 && posto + qsizetype(sizeof(Numero)) <= byte.size()
               ? qFromLittleEndian<Numero>(byte.constData() + posto)
               : Numero(0);
}

template <typename Numero>
Numero GrandeSeCe(const QByteArray &byte, qsizetype posto)
{
    return posto >= 0 && posto + qsizetype(sizeof(Numero)) <= byte.size()
               ? qFromBigEndian<Numero>(byte.constData() + posto)
               : Numero(0);
}

/// True when the two make a resolution; otherwise the one known so far stays.
bool Imposta(QSizeF &puntiPerPollice, double orizzontali, double verticali)
{
    const auto sensata = [](double v) { return v >= PuntiMinimi && v <= PuntiMassimi; };
    if (!sensata(orizzontali) || !sensata(verticali)) {
        return false;
    }
    puntiPerPollice = {orizzontali, verticali};
    return true;
}

// --- BMP

void LeggeBmp(QIODevice &file, IntestazioneImmagine &esito)
{
    const QByteArray testa = Byte(file, 0, 54);
    esito.InizioDati = PiccoloSeCe<quint32>(testa, 10);
    const bool corta = PiccoloSeCe<quint32>(testa, 14) < 40;
    const qint64 larghezza =
        corta ? PiccoloSeCe<quint16>(testa, 18) : PiccoloSeCe<qint32>(testa, 18);
    // A negative height: the first row stored is the uppermost.
    const qint64 altezza = qAbs(corta ? qint64(PiccoloSeCe<quint16>(testa, 20))
                                      : qint64(PiccoloSeCe<qint32>(testa, 22)));
    const qint64 bit = corta ? PiccoloSeCe<quint16>(testa, 24) : PiccoloSeCe<quint16>(testa, 28);
    if (testa.size() < 26 || larghezza <= 0 || altezza > std::numeric_limits<int>::max() ||
        bit > 32) {
        return;
    }
    esito.Pixel = QSize(int(larghezza), int(altezza));
    const quint32 compressione = corta ? 0 : PiccoloSeCe<quint32>(testa, 30);
    esito.Compressa = compressione == 1 || compressione == 2;
    if (esito.Compressa) {
        esito.FineRighe = esito.FineDati = esito.InizioDati + PiccoloSeCe<quint32>(testa, 34);
    } else {
        const qint64 riga = (larghezza * bit + 31) / 32 * 4;
        const qint64 riempitivo = riga - (larghezza * bit + 7) / 8;
        qint64 righe = 0;
        if (qMulOverflow(riga, altezza, &righe) ||
            qAddOverflow(righe, esito.InizioDati, &esito.FineRighe)) {
            esito.FineRighe = std::numeric_limits<qint64>::max(); // no file is so long
        }
        esito.FineDati = esito.FineRighe - riempitivo;
    }
    if (!corta) {
        const double perMetro = Unita::MillimetriPerPollice / 1000;
        Imposta(esito.PuntiPerPollice, PiccoloSeCe<qint32>(testa, 38) * perMetro,
                PiccoloSeCe<qint32>(testa, 42) * perMetro);
    }
}

// --- JPEG

double RazionaleExif(const QByteArray &tiff, quint32 posto, bool intel)
{
    const auto numero = [&](qsizetype p) {
        return intel ? PiccoloSeCe<quint32>(tiff, p) : GrandeSeCe<quint32>(tiff, p);
    };
    const quint32 divisore = numero(qsizetype(posto) + 4);
    return divisore == 0 ? 0 : double(numero(posto)) / divisore;
}

/// The resolution in the first directory of the EXIF data.
void LeggeExif(const QByteArray &segmento, QSizeF &puntiPerPollice)
{
    if (!segmento.startsWith(QByteArray("Exif\0\0", 6))) {
        return;
    }
    constexpr int RisoluzioneX = 0x11A;
    constexpr int RisoluzioneY = 0x11B;
    constexpr int UnitaRisoluzione = 0x128;
    constexpr int Centimetri = 3;
    constexpr qsizetype ByteVoce = 12;

    const QByteArray tiff = segmento.mid(6);
    const bool intel = tiff.startsWith("II");
    const auto corto = [&](qsizetype p) {
        return intel ? PiccoloSeCe<quint16>(tiff, p) : GrandeSeCe<quint16>(tiff, p);
    };
    const auto lungo = [&](qsizetype p) {
        return intel ? PiccoloSeCe<quint32>(tiff, p) : GrandeSeCe<quint32>(tiff, p);
    };
    const qsizetype cartella = lungo(4);
    double orizzontali = 0;
    double verticali = 0;
    double perPollice = 1;
    const int voci = corto(cartella);
    for (int i = 0; i < voci; ++i) {
        const qsizetype voce = cartella + 2 + i * ByteVoce;
        if (voce + ByteVoce > tiff.size()) {
            break;
        }
        switch (corto(voce)) {
        case RisoluzioneX:
            orizzontali = RazionaleExif(tiff, lungo(voce + 8), intel);
            break;
        case RisoluzioneY:
            verticali = RazionaleExif(tiff, lungo(voce + 8), intel);
            break;
        case UnitaRisoluzione:
            perPollice = corto(voce + 8) == Centimetri ? Unita::MillimetriPerPollice / 10 : 1;
            break;
        default:
            break;
        }
    }
    Imposta(puntiPerPollice, orizzontali * perPollice, verticali * perPollice);
}

/// True when the segment states a resolution rather than a mere ratio.
bool LeggeJfif(const QByteArray &segmento, QSizeF &puntiPerPollice)
{
    if (!segmento.startsWith(QByteArray("JFIF\0", 5)) || segmento.size() < 12) {
        return false;
    }
    const int unita = quint8(segmento.at(7));
    const double perPollice = unita == 1 ? 1 : unita == 2 ? Unita::MillimetriPerPollice / 10 : 0;
    return Imposta(puntiPerPollice, GrandeSeCe<quint16>(segmento, 8) * perPollice,
                   GrandeSeCe<quint16>(segmento, 10) * perPollice);
}

void LeggeFormato(qint64 posto, const QByteArray &segmento, IntestazioneImmagine &esito)
{
    const int componenti = segmento.size() < 6 ? 0 : quint8(segmento.at(5));
    if (esito.PostoFormato == 0 && segmento.size() >= 6 + 3 * componenti) {
        esito.PostoFormato = posto;
        esito.Pixel = QSize(GrandeSeCe<quint16>(segmento, 3), GrandeSeCe<quint16>(segmento, 1));
        esito.Componenti = componenti;
        constexpr int ByteComponente = 3;
        int maggiore = 1;
        int somma = 0;
        for (int i = 0; i < componenti; ++i) {
            const int finezza = quint8(segmento.at(7 + i * ByteComponente));
            const int blocchi = (finezza >> 4) * (finezza & 0xF);
            maggiore = std::max(maggiore, blocchi);
            somma += blocchi;
            esito.ColoriRidotti = esito.ColoriRidotti || finezza != quint8(segmento.at(7));
        }
        esito.Coefficienti = qint64(esito.Pixel.width()) * esito.Pixel.height() * somma / maggiore;
    }
}

/// Walks the segments up to the first scan.
void LeggeJpeg(QIODevice &file, IntestazioneImmagine &esito)
{
    bool daJfif = false;
    int segmenti = 0;
    int riempitivi = 0;
    qint64 posto = 2;
    while (segmenti < SegmentiMassimi && riempitivi < RiempitiviMassimi && posto <= TestaMassima) {
        const QByteArray testa = Byte(file, posto, 4);
        if (testa.size() < 4 || quint8(testa.at(0)) != 0xFF) {
            return;
        }
        const int marcatore = quint8(testa.at(1));
        if (marcatore == 0xFF) { // a fill byte before the marker
            ++posto;
            ++riempitivi;
            continue;
        }
        const int lunghezza = GrandeSeCe<quint16>(testa, 2);
        if (lunghezza < 2) {
            return;
        }
        if (marcatore == MarcatoriJpeg::Sos) {
            esito.InizioDati = posto + 2 + lunghezza;
            const QByteArray quanti = file.read(1);
            esito.PiuScansioni =
                esito.PiuScansioni || quanti.isEmpty() || quint8(quanti.at(0)) < esito.Componenti;
            return;
        }
        if (marcatore == MarcatoriJpeg::App0 && !daJfif) {
            daJfif = LeggeJfif(file.read(lunghezza - 2), esito.PuntiPerPollice);
        } else if (marcatore == MarcatoriJpeg::App1 && !daJfif) {
            LeggeExif(file.read(lunghezza - 2), esito.PuntiPerPollice);
        } else if (marcatore == MarcatoriJpeg::App14) {
            esito.Adobe = esito.Adobe || file.read(lunghezza - 2).startsWith("Adobe");
        } else if (MarcatoriJpeg::DiFormato(marcatore)) {
            LeggeFormato(posto, file.read(lunghezza - 2), esito);
            esito.PiuScansioni = esito.PiuScansioni || marcatore == MarcatoriJpeg::SofProgressivo ||
                                 marcatore == MarcatoriJpeg::SofProgressivoAritmetico;
        }
        ++segmenti;
        posto += 2 + lunghezza;
    }
}

/// What a walk over the whole file finds. The data of a scan never hold FF followed by the number
/// of a marker, so the end marker cannot be mistaken.
struct Divisione
{
    int Scansioni = 0;
    bool Smodata = false; ///< into more parts than any picture: not walked to the end
    int Ultimo = 0;       ///< the marker that ended the walk; 0: none
};

Divisione Divide(QByteArrayView file)
{
    Divisione divisione;
    int segmenti = 0;
    MarcatoriJpeg::Segmento segmento;
    for (qint64 posto = 2; !divisione.Smodata && MarcatoriJpeg::Prossimo(file, posto, segmento);
         posto = segmento.Fine) {
        divisione.Scansioni += segmento.Marcatore == MarcatoriJpeg::Sos ? 1 : 0;
        divisione.Smodata = ++segmenti > SegmentiMassimi || divisione.Scansioni > ScansioniMassime;
    }
    divisione.Ultimo = segmento.Marcatore;
    return divisione;
}

} // namespace

IntestazioneImmagine IntestazioneImmagine::Legge(QIODevice &file)
{
    IntestazioneImmagine esito;
    const QByteArray inizio = Byte(file, 0, 4);
    if (inizio.startsWith("BM")) {
        esito.Formato = QByteArrayLiteral("bmp");
        LeggeBmp(file, esito);
    } else if (inizio.startsWith("GIF8")) {
        esito.Formato = QByteArrayLiteral("gif");
        const QByteArray testa = Byte(file, 6, 4);
        esito.Pixel = {PiccoloSeCe<quint16>(testa, 0), PiccoloSeCe<quint16>(testa, 2)};
        esito.InizioDati = 13;
    } else if (inizio.startsWith("\xFF\xD8\xFF")) {
        esito.Formato = QByteArrayLiteral("jpeg");
        LeggeJpeg(file, esito);
    }
    return esito;
}

bool IntestazioneImmagine::Intera(QByteArrayView file) const
{
    if (Formato == "gif") {
        return DatiGif::Interi(file);
    }
    if (Formato != "jpeg" || InizioDati <= 0) {
        return false;
    }
    const Divisione divisione = Divide(file);
    return !divisione.Smodata &&
           (divisione.Ultimo == MarcatoriJpeg::Eoi || DatiJpeg::Completi(file));
}

bool IntestazioneImmagine::TroppeScansioni(QByteArrayView file) const
{
    if (Formato != "jpeg") {
        return false;
    }
    const Divisione divisione = Divide(file);
    const qint64 pixel = qint64(Pixel.width()) * Pixel.height();
    return !divisione.Smodata && divisione.Scansioni > 1 &&
           divisione.Scansioni * pixel > PixelScansioniMassimi;
}

bool IntestazioneImmagine::TroppoGrande(qint64 byte) const
{
    const qint64 pixel = qint64(Pixel.width()) * Pixel.height();
    const bool bmp = Formato == "bmp";
    const qint64 massimi = bmp                   ? PixelInteriMassimi
                           : Formato == "gif"    ? DatiGif::PixelMassimi
                           : InchiostriDiritti() ? PixelInchiostriMassimi
                                                 : PixelJpegMassimi;
    return pixel > massimi || (PiuScansioni && Coefficienti > CoefficientiMassimi) ||
           (bmp && Compressa && byte - InizioDati > ByteCompressiMassimi) ||
           (!bmp && byte > ByteInteriMassimi);
}

bool IntestazioneImmagine::Credibile(qint64 byte) const
{
    if (TroppoGrande(byte)) {
        return false;
    }
    const qint64 pixel = qint64(Pixel.width()) * Pixel.height();
    const bool bmp = Formato == "bmp";
    const bool jpeg = Formato == "jpeg";
    // The best that each format can do: run lengths of 255 pixels in two bytes for BMP, codes of
    // 12 bits that stand for up to 4096 pixels for GIF, one bit for a block of 16x16 for JPEG.
    const qint64 pixelPerByte = bmp ? 128 : jpeg ? 2048 : 2731;
    // Small pictures cost nothing, whatever they claim.
    constexpr qint64 Innocui = 4'000'000;
    return pixel <= Innocui || pixel / pixelPerByte <= byte;
}

#include "platform/IntestazioneImmagine.h"

#include "base/Misure.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>

namespace {

/// Density statements outside this range are fillers ("1 x 1"), not resolutions.
constexpr double PuntiMinimi = 10;
constexpr double PuntiMassimi = 20000;

constexpr int MarcatoreApp0 = 0xE0;
constexpr int MarcatoreApp1 = 0xE1;
constexpr int MarcatoreSos = 0xDA;
constexpr int MarcatoreEoi = 0xD9;
/// Progressive pictures have about ten scans; a file made of hundreds would decode for minutes.
constexpr int ScansioniMassime = 64;
/// Parts of a header, and blocks of a GIF's picture, that are walked over at most: no picture has
/// more, and a file made only to be walked over must not hold the program up.
constexpr int SegmentiMassimi = 1 << 14;
constexpr int BlocchiMassimi = 1 << 18;

QByteArray Byte(QIODevice &file, qint64 posto, qint64 quanti)
{
    return file.seek(posto) ? file.read(quanti) : QByteArray();
}

template <typename Numero>
Numero Piccolo(const QByteArray &byte, qsizetype posto)
{
    return posto >= 0 && posto + qsizetype(sizeof(Numero)) <= byte.size()
               ? qFromLittleEndian<Numero>(byte.constData() + posto)
               : Numero(0);
}

template <typename Numero>
Numero Grande(const QByteArray &byte, qsizetype posto)
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
    esito.InizioDati = Piccolo<quint32>(testa, 10);
    if (Piccolo<quint32>(testa, 14) >= 40) {
        const double perMetro = Misure::MillimetriPerPollice / 1000;
        Imposta(esito.PuntiPerPollice, Piccolo<qint32>(testa, 38) * perMetro,
                Piccolo<qint32>(testa, 42) * perMetro);
    }
}

bool BmpIntero(QIODevice &file, qint64 inizioDati)
{
    const QByteArray testa = Byte(file, 0, 54);
    if (testa.size() < 26) {
        return false;
    }
    const bool corta = Piccolo<quint32>(testa, 14) < 40;
    const qint64 larghezza = corta ? Piccolo<quint16>(testa, 18) : Piccolo<qint32>(testa, 18);
    const qint64 altezza = corta ? Piccolo<quint16>(testa, 20) : Piccolo<qint32>(testa, 22);
    const qint64 bit = corta ? Piccolo<quint16>(testa, 24) : Piccolo<quint16>(testa, 28);
    const quint32 compressione = corta ? 0 : Piccolo<quint32>(testa, 30);
    const bool rle = compressione == 1 || compressione == 2;
    if (larghezza <= 0 || bit > 32) {
        return false;
    }
    const qint64 riga = (larghezza * bit + 31) / 32 * 4;
    const qint64 dati = rle ? Piccolo<quint32>(testa, 34) : riga * qAbs(altezza);
    return inizioDati + dati <= file.size();
}

// --- GIF

qint64 DopoTavolaGif(qint64 posto, int opzioni)
{
    return opzioni & 0x80 ? posto + 3 * (qint64(2) << (opzioni & 7)) : posto;
}

/// The offset after a chain of sub-blocks, -1 when the file ends before it.
qint64 DopoBlocchiGif(QIODevice &file, qint64 posto)
{
    for (int passo = 0; passo < BlocchiMassimi; ++passo) {
        const QByteArray lunghezza = Byte(file, posto, 1);
        if (lunghezza.isEmpty()) {
            return -1;
        }
        posto += 1 + quint8(lunghezza.at(0));
        if (lunghezza.at(0) == 0) {
            return posto;
        }
    }
    return -1;
}

bool GifIntera(QIODevice &file)
{
    const QByteArray testa = Byte(file, 0, 13);
    if (testa.size() < 13) {
        return false;
    }
    qint64 posto = DopoTavolaGif(13, quint8(testa.at(10)));
    for (int passo = 0; passo < SegmentiMassimi; ++passo) {
        const QByteArray blocco = Byte(file, posto, 10);
        if (blocco.startsWith('\x21')) { // extension: label, then sub-blocks
            posto = DopoBlocchiGif(file, posto + 2);
            if (posto < 0) {
                return false;
            }
        } else if (blocco.startsWith('\x2C') && blocco.size() == 10) {
            const qint64 dati = DopoTavolaGif(posto + 10, quint8(blocco.at(9)));
            return DopoBlocchiGif(file, dati + 1) >= 0;
        } else {
            return false;
        }
    }
    return false;
}

// --- JPEG

double RazionaleExif(const QByteArray &tiff, quint32 posto, bool intel)
{
    const auto numero = [&](qsizetype p) {
        return intel ? Piccolo<quint32>(tiff, p) : Grande<quint32>(tiff, p);
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
        return intel ? Piccolo<quint16>(tiff, p) : Grande<quint16>(tiff, p);
    };
    const auto lungo = [&](qsizetype p) {
        return intel ? Piccolo<quint32>(tiff, p) : Grande<quint32>(tiff, p);
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
            perPollice = corto(voce + 8) == Centimetri ? Misure::MillimetriPerPollice / 10 : 1;
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
    const double perPollice = unita == 1 ? 1 : unita == 2 ? Misure::MillimetriPerPollice / 10 : 0;
    return Imposta(puntiPerPollice, Grande<quint16>(segmento, 8) * perPollice,
                   Grande<quint16>(segmento, 10) * perPollice);
}

/// Walks the segments up to the first scan.
void LeggeJpeg(QIODevice &file, IntestazioneImmagine &esito)
{
    bool daJfif = false;
    qint64 posto = 2;
    for (int passo = 0; passo < SegmentiMassimi; ++passo) {
        const QByteArray testa = Byte(file, posto, 4);
        if (testa.size() < 4 || quint8(testa.at(0)) != 0xFF) {
            return;
        }
        const int marcatore = quint8(testa.at(1));
        if (marcatore == 0xFF) { // a fill byte before the marker
            ++posto;
            continue;
        }
        const int lunghezza = Grande<quint16>(testa, 2);
        if (lunghezza < 2) {
            return;
        }
        if (marcatore == MarcatoreSos) {
            esito.InizioDati = posto + 2 + lunghezza;
            return;
        }
        if (marcatore == MarcatoreApp0 && !daJfif) {
            daJfif = LeggeJfif(file.read(lunghezza - 2), esito.PuntiPerPollice);
        } else if (marcatore == MarcatoreApp1 && !daJfif) {
            LeggeExif(file.read(lunghezza - 2), esito.PuntiPerPollice);
        }
        posto += 2 + lunghezza;
    }
}

/// Compressed data never holds FF followed by the number of a marker, so the end marker cannot be
/// mistaken; only a thumbnail in the header could hold another one, and that lies before the data.
bool JpegIntero(QIODevice &file, qint64 inizioDati)
{
    constexpr qint64 Blocco = 1 << 18;
    if (inizioDati <= 0 || !file.seek(inizioDati)) {
        return false;
    }
    int scansioni = 1;
    bool dopoFf = false;
    for (QByteArray blocco = file.read(Blocco); !blocco.isEmpty(); blocco = file.read(Blocco)) {
        const char *dopo = blocco.constData();
        const char *fine = dopo + blocco.size();
        while (dopo != fine) {
            if (dopoFf) {
                const int marcatore = quint8(*dopo);
                if (marcatore == MarcatoreEoi) {
                    return true;
                }
                if (marcatore == MarcatoreSos && ++scansioni > ScansioniMassime) {
                    return false;
                }
                dopoFf = marcatore == 0xFF;
                ++dopo;
            } else {
                dopo = std::find(dopo, fine, '\xFF');
                if (dopo != fine) {
                    dopoFf = true;
                    ++dopo;
                }
            }
        }
    }
    return false;
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
        esito.Schermo = {Piccolo<quint16>(testa, 0), Piccolo<quint16>(testa, 2)};
    } else if (inizio.startsWith("\xFF\xD8\xFF")) {
        esito.Formato = QByteArrayLiteral("jpeg");
        LeggeJpeg(file, esito);
    }
    return esito;
}

bool IntestazioneImmagine::Intera(QIODevice &file) const
{
    if (Formato == "bmp") {
        return BmpIntero(file, InizioDati);
    }
    if (Formato == "gif") {
        return GifIntera(file);
    }
    return Formato == "jpeg" && JpegIntero(file, InizioDati);
}

bool IntestazioneImmagine::Credibile(qint64 byte, qint64 pixel) const
{
    // The best that each format can do: run lengths of 255 pixels in two bytes for BMP, codes of
    // 12 bits that stand for up to 4096 pixels for GIF, one bit for a block of 16x16 for JPEG.
    const qint64 pixelPerByte = Formato == "bmp" ? 128 : Formato == "gif" ? 2731 : 2048;
    // Small pictures cost nothing, whatever they claim.
    constexpr qint64 Innocui = 4'000'000;
    return pixel <= Innocui || pixel / pixelPerByte <= byte;
}

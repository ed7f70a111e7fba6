#include "support/ImmaginiDiProva.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

QByteArray ImmaginiDiProva::GifTrasparente()
{
    return QByteArray::fromBase64("R0lGODlhBAACAPAAAP8AAAAAACH5BAEAAAEALAAAAAAEAAIAAAIEBBKGBQA7");
}

QByteArray ImmaginiDiProva::GifAnimata()
{
    return QByteArray::fromBase64(
        "R0lGODlhAwACAPAAAAD/AAAAACH5BAAAAAAAIf8LTkVUU0NBUEUyLjADAQAAACwAAAAAAwACAAACAoRfACH5BAAA"
        "AAAALAAAAAADAAIAgAAA/wAAAAIChF8AOw==");
}

QByteArray ImmaginiDiProva::JpegCmyk()
{
    return QByteArray::fromBase64(
        "/9j/7gAOQWRvYmUAZAAAAAAC/9sAQwADAgICAgIDAgICAwMDAwQGBAQEBAQIBgYFBgkICgoJCAkJCgwPDAoLDgsJ"
        "CQ0RDQ4PEBAREAoMEhMSEBMPEBAQ/9sAQwEDAwMEAwQIBAQIEAsJCxAQEBAQEBAQEBAQEBAQEBAQEBAQEBAQEBAQ"
        "EBAQEBAQEBAQEBAQEBAQEBAQEBAQEBAQ/8AAFAgACAAIBAERAAIRAQMRAQQRAP/EABUAAQEAAAAAAAAAAAAAAAAA"
        "AAcI/8QAFBABAAAAAAAAAAAAAAAAAAAAAP/EABQBAQAAAAAAAAAAAAAAAAAAAAj/xAAUEQEAAAAAAAAAAAAAAAAA"
        "AAAA/9oADgQBAAIRAxEEAAA/ACwjRHWA/9k=");
}

QImage ImmaginiDiProva::Fotografia(const QSize &pixel, unsigned seme)
{
    constexpr double Rumore = 6; // standard deviation, of 255
    std::mt19937 caso(seme);
    std::normal_distribution<double> rumore(0, Rumore);
    QImage foto(pixel, QImage::Format_RGB32);
    const double passo = 0.02 + seme % 7 * 0.01;
    for (int y = 0; y < pixel.height(); ++y) {
        auto *riga = reinterpret_cast<QRgb *>(foto.scanLine(y));
        for (int x = 0; x < pixel.width(); ++x) {
            const double luce = 128 + 90 * std::sin(x * passo + seme) * std::cos(y * passo * 0.7);
            const auto canale = [&](double tinta) {
                return std::clamp(int(luce * tinta + rumore(caso)), 0, 255);
            };
            riga[x] = qRgb(canale(1), canale(0.9), canale(0.7 + seme % 5 * 0.05));
        }
    }
    return foto;
}

QImage ImmaginiDiProva::Disegno(const QSize &pixel, const QString &testo)
{
    QImage disegno(pixel, QImage::Format_RGB32);
    disegno.fill(Qt::white);
    QPainter penna(&disegno);
    const int lato = std::min(pixel.width(), pixel.height());
    const auto tinta = int(qHash(testo) % 360);
    penna.setPen(QPen(QColor::fromHsv(tinta, 255, 120), lato / 40.0 + 1));
    penna.setBrush(QColor::fromHsv(tinta, 120, 255));
    penna.drawEllipse(
        QRect(QPoint(0, 0), pixel).adjusted(lato / 8, lato / 8, -lato / 8, -lato / 8));
    penna.drawLine(0, pixel.height() - 1, pixel.width() - 1, 0);
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(lato / 6 + 1);
    penna.setFont(font);
    penna.setPen(Qt::black);
    penna.drawText(disegno.rect(), Qt::AlignCenter | Qt::TextWordWrap, testo);
    return disegno;
}

QImage ImmaginiDiProva::ModuloA4()
{
    QImage modulo(4960, 7016, QImage::Format_RGB32);
    std::minstd_rand caso(1);
    for (int y = 0; y < modulo.height(); ++y) {
        auto *riga = reinterpret_cast<QRgb *>(modulo.scanLine(y));
        for (int x = 0; x < modulo.width(); ++x) {
            const bool segno = x % 700 < 8 || y % 500 < 8;
            const int grigio = segno ? 40 : 235 + int(caso() >> 20 & 15);
            riga[x] = qRgb(grigio, grigio, grigio);
        }
    }
    return modulo;
}

QImage ImmaginiDiProva::Tinta(const QSize &pixel, QRgb colore)
{
    QImage immagine(pixel, QImage::Format_RGB32);
    immagine.fill(colore);
    return immagine;
}

QByteArray ImmaginiDiProva::InFormato(const QImage &immagine, const char *formato,
                                      double puntiPerPollice)
{
    QImage copia = immagine;
    const int perMetro = qRound(puntiPerPollice * 1000 / 25.4);
    copia.setDotsPerMeterX(perMetro);
    copia.setDotsPerMeterY(perMetro);
    QByteArray byte;
    QBuffer uscita(&byte);
    QImageWriter scrittore(&uscita, formato);
    scrittore.setQuality(100);
    if (!scrittore.write(copia)) {
        qFatal("cannot write a test picture");
    }
    return byte;
}

bool ImmaginiDiProva::Manca(const QByteArray &formato)
{
#ifdef Q_OS_WIN
    return !QImageReader::supportedImageFormats().contains(formato);
#else
    Q_UNUSED(formato);
    return false;
#endif
}

QString ImmaginiDiProva::Scrive(const QString &percorso, const QByteArray &byte)
{
    QFile file(percorso);
    if (!file.open(QIODevice::WriteOnly) || file.write(byte) != byte.size() || !file.flush()) {
        qFatal("cannot write a test file");
    }
    return percorso;
}

QList<ImmaginiDiProva::Bomba> ImmaginiDiProva::Bombe()
{
    QList<Bomba> bombe;
    const QByteArray bmp = InFormato(Tinta({8, 8}, 0), "bmp");
    // Width and height stand together.
    const auto conMisure = [&](const char *nome, qint32 larga, qint32 alta) {
        QByteArray misure(8, '\0');
        qToLittleEndian(larga, misure.data());
        qToLittleEndian(alta, misure.data() + 4);
        bombe.append({nome, QByteArray(bmp).replace(18, 8, misure)});
    };
    conMisure("bmp of 65536 x 65536", 65536, 65536);
    conMisure("bmp of 10000 x 10000", 10000, 10000);
    conMisure("bmp of 10000 x -10000", 10000, -10000);
    conMisure("bmp of the largest and smallest number", std::numeric_limits<qint32>::max(),
              std::numeric_limits<qint32>::min());

    QByteArray gif = GifTrasparente();
    gif.replace(6, 4, "\xFF\xFF\xFF\xFF");
    bombe.append({"gif of 65535 x 65535", gif});
    gif.replace(6, 4, "\x10\x27\x10\x27");
    bombe.append({"gif of 10000 x 10000", gif});

    QByteArray jpeg = InFormato(Tinta({64, 64}, 0), "jpeg");
    const qsizetype sof = jpeg.indexOf("\xFF\xC0");
    jpeg.replace(sof + 5, 4, "\xFF\xDC\xFF\xDC");
    bombe.append({"jpeg of 65500 x 65500", jpeg});
    jpeg.replace(sof + 5, 4, "\x27\x10\x27\x10");
    bombe.append({"jpeg of 10000 x 10000", jpeg});

    bombe.append({"jpeg of 60 MB of fill bytes", "\xFF\xD8" + QByteArray(60'000'000, '\xFF')});
    bombe.append({"gif of 60 MB of empty extensions",
                  GifTrasparente().left(19) + QByteArray("\x21\xF9\0", 3).repeated(20'000'000)});

    QByteArray scansioni = InFormato(Tinta({64, 64}, 0), "jpeg");
    const qsizetype sos = scansioni.indexOf("\xFF\xDA");
    const QByteArray scansione = scansioni.mid(sos, scansioni.size() - 2 - sos);
    scansioni.insert(sos, scansione.repeated(5000));
    bombe.append({"jpeg of 5000 scans", scansioni});
    return bombe;
}

#include "support/ImmaginiDiProva.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>

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

QString ImmaginiDiProva::Scrive(const QString &percorso, const QByteArray &byte)
{
    QFile file(percorso);
    if (!file.open(QIODevice::WriteOnly) || file.write(byte) != byte.size() || !file.flush()) {
        qFatal("cannot write a test file");
    }
    return percorso;
}

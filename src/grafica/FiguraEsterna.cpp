#include "grafica/FiguraEsterna.h"

#include "base/Unita.h"
#include "grafica/DisegnoSvg.h"
#include "grafica/Immagini.h"
#include "grafica/IntestazioneImmagine.h"
#include "grafica/LettoreImmagine.h"
#include "grafica/Opacita.h"
#include "grafica/PerditaDiColore.h"
#include "grafica/PixelImmagine.h"
#include "grafica/PocheTinte.h"
#include "grafica/Rimpicciolimento.h"
#include "sistema/Disco.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double PuntiSuCarta = 600 / Unita::MillimetriPerPollice; // a millimetre
constexpr qint64 ByteMassimi = 268'435'456;
constexpr qint64 ByteMassimiSvg = 16'777'216;
/// A drawing of more pixels would make a file of which only photographs are worth.
constexpr double PixelSenzaPerdita = 12'000'000;
constexpr int Qualita = 95;

/// A file in memory that ends, for who decodes it, when nobody waits for the picture any more.
class Sorgente : public QBuffer
{
public:
    Sorgente(const QByteArray &byte, FiguraEsterna::Annullato annullato)
        : annullato_(std::move(annullato))
    {
        setData(byte);
        open(QIODevice::ReadOnly);
    }

protected:
    qint64 readData(char *dati, qint64 massimo) override
    {
        return annullato_() ? -1 : QBuffer::readData(dati, massimo);
    }

private:
    FiguraEsterna::Annullato annullato_;
};

QByteArray FormatoQt(const QByteArray &byte)
{
    QBuffer buffer;
    buffer.setData(byte);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader::imageFormat(&buffer);
}

/// Mostly even colours, or sharp ones that the JPEG which Qt writes would smear, since there four
/// pixels share one: what a firm draws rather than what a camera sees.
bool Disegnata(const QImage &immagine)
{
    constexpr double ParteUguale = 0.6;
    const double pixel = double(immagine.width()) * immagine.height();
    if (pixel > PixelSenzaPerdita) {
        return false;
    }
    qint64 uguali = 0;
    for (int y = 0; y < immagine.height(); ++y) {
        const auto *riga = reinterpret_cast<const QRgb *>(immagine.constScanLine(y));
        for (int x = 1; x < immagine.width(); ++x) {
            uguali += riga[x] == riga[x - 1] ? 1 : 0;
        }
    }
    return double(uguali) >= ParteUguale * pixel || PerdeColore(immagine);
}

QByteArray Codifica(const QImage &immagine, FiguraEsterna::Tipo tipo)
{
    QByteArray byte;
    QBuffer buffer(&byte);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter scrittore(&buffer, tipo == FiguraEsterna::Tipo::Fotografia ? "jpeg" : "bmp");
    scrittore.setQuality(Qualita);
    if (!scrittore.write(immagine)) {
        LettoreImmagine::NonValida();
    }
    return byte;
}

/// Dots per metre of a length of so many pixels.
int PuntiPerMetro(int pixel, double millimetri)
{
    return std::max(1, qRound(pixel * 1000 / millimetri));
}

/// What the decoder has found in the file; where it has found nothing it puts the screen's own.
double PuntiPerPollice(int puntiPerMetro, int delloSchermo)
{
    return puntiPerMetro <= 0 || puntiPerMetro == delloSchermo
               ? IntestazioneImmagine::PuntiPerPollicePredefiniti
               : puntiPerMetro * Unita::MillimetriPerPollice / 1000;
}

QSizeF Naturali(const QImage &immagine, bool girata)
{
    const QImage vuota(1, 1, QImage::Format_RGB32);
    QSizeF punti(PuntiPerPollice(immagine.dotsPerMeterX(), vuota.dotsPerMeterX()),
                 PuntiPerPollice(immagine.dotsPerMeterY(), vuota.dotsPerMeterY()));
    if (girata) {
        punti.transpose();
    }
    return {immagine.width() * Unita::MillimetriPerPollice / punti.width(),
            immagine.height() * Unita::MillimetriPerPollice / punti.height()};
}

/// A size of the given proportions that just covers the box.
QSizeF Copre(const QSizeF &misura, const QSizeF &riquadro)
{
    return misura.scaled(riquadro, Qt::KeepAspectRatioByExpanding);
}

/// A bitmap whose pixels have no fourth byte that might be a transparency.
bool BmpOpaca(const QByteArray &byte)
{
    constexpr qsizetype PostoTesta = 14;
    constexpr qsizetype PostoBit = 28;
    constexpr quint32 TestaComune = 40;
    return byte.size() > PostoBit + 1 &&
           qFromLittleEndian<quint32>(byte.constData() + PostoTesta) >= TestaComune &&
           qFromLittleEndian<quint16>(byte.constData() + PostoBit) <= 24;
}

} // namespace

FiguraEsterna::FiguraEsterna(const QString &percorso)
    : percorso_(percorso)
    , byte_(Disco::Legge(percorso, ByteMassimi))
{
    QBuffer buffer(&byte_);
    buffer.open(QIODevice::ReadOnly);
    formato_ = IntestazioneImmagine::Legge(buffer).Formato;
    nota_ = !formato_.isEmpty();
    if (!nota_) {
        formato_ = FormatoQt(byte_);
    }
    // What a packed drawing unpacks to cannot be judged before.
    if (formato_.isEmpty() || formato_ == "svgz") {
        LettoreImmagine::NonValida();
    }
}

FiguraEsterna::File FiguraEsterna::Converte(const Riquadro &riquadro, const Annullato &annullato,
                                            std::optional<Tipo> tipo) const
{
    if (std::optional<File> intatto = ComeSta(riquadro)) {
        return *intatto;
    }
    Decodificata decodificata = Decodifica(riquadro, annullato);
    if (annullato()) {
        return {};
    }
    QImage &immagine = decodificata.Immagine;
    const QImage dipinta = tipo == Tipo::Fotografia ? QImage() : PocheTinte::ConTavolozza(immagine);
    const bool poche = !dipinta.isNull();
    File file;
    file.tipo = tipo.value_or(poche || Disegnata(immagine) ? Tipo::Disegno : Tipo::Fotografia);
    if (poche) {
        immagine = dipinta; // a third of the bytes, or less
    }
    file.Pixel = immagine.size();
    file.Millimetri = decodificata.Millimetri;
    immagine.setDotsPerMeterX(PuntiPerMetro(immagine.width(), file.Millimetri.width()));
    immagine.setDotsPerMeterY(PuntiPerMetro(immagine.height(), file.Millimetri.height()));
    file.Byte = Codifica(immagine, file.tipo);
    return annullato() ? File() : file;
}

QSize FiguraEsterna::PixelPer(const QSize &propri, const QSizeF &millimetri,
                              const Riquadro &riquadro) const
{
    const QSize sufficienti = (Copre(millimetri, riquadro(millimetri)) * PuntiSuCarta).toSize();
    return PixelImmagine::Entro(propri.boundedTo(sufficienti).expandedTo({1, 1}),
                                PixelImmagine::Stampati);
}

std::optional<FiguraEsterna::File> FiguraEsterna::ComeSta(const Riquadro &riquadro) const
{
    if (!nota_ || formato_ == "gif" || (formato_ == "bmp" && !BmpOpaca(byte_))) {
        return std::nullopt;
    }
    LettoreImmagine lettore(percorso_);
    const QSizeF millimetri = lettore.Millimetri();
    if (!lettore.Semplice() || PixelPer(lettore.Pixel(), millimetri, riquadro) != lettore.Pixel()) {
        return std::nullopt;
    }
    lettore.DecodificaOpaca({1, 1}); // the header alone would also do for a damaged one
    return File{byte_, formato_ == "bmp" ? Tipo::Disegno : Tipo::Fotografia, lettore.Pixel(),
                millimetri};
}

FiguraEsterna::Decodificata FiguraEsterna::Decodifica(const Riquadro &riquadro,
                                                      const Annullato &annullato) const
{
    if (nota_) {
        return DecodificaNota(riquadro);
    }
    return DecodificaAltra(
        [&](const QSize &propri, const QSizeF &millimetri) {
            return PixelPer(propri, millimetri, riquadro);
        },
        annullato);
}

FiguraEsterna::Decodificata FiguraEsterna::DecodificaAltra(const Finezza &finezza,
                                                           const Annullato &annullato) const
{
    return formato_ == "svg" ? DecodificaSvg(finezza) : DecodificaPunti(finezza, annullato);
}

FiguraEsterna::Decodificata FiguraEsterna::DecodificaNota(const Riquadro &riquadro) const
{
    LettoreImmagine lettore(percorso_);
    const QSizeF millimetri = lettore.Millimetri();
    const QSize pixel = PixelImmagine::Entro(PixelPer(lettore.Pixel(), millimetri, riquadro),
                                             lettore.Sostenibili(PixelImmagine::Stampati));
    return {lettore.DecodificaOpaca(pixel), millimetri};
}

FiguraEsterna::Decodificata FiguraEsterna::DecodificaSvg(const Finezza &finezza) const
{
    if (byte_.size() > ByteMassimiSvg) {
        throw Immagini::TroppoGrande();
    }
    QSizeF millimetri = DisegnoSvg::Millimetri(byte_);
    QBuffer buffer;
    buffer.setData(byte_);
    buffer.open(QIODevice::ReadOnly);
    QImageReader lettore(&buffer, formato_);
    if (millimetri.isEmpty()) {
        millimetri = QSizeF(lettore.size()) * Unita::MillimetriPerPollice /
                     IntestazioneImmagine::PuntiPerPollicePredefiniti;
    }
    if (millimetri.isEmpty()) {
        LettoreImmagine::NonValida();
    }
    constexpr QSize SenzaPixel(1 << 24, 1 << 24); // as fine as one likes
    lettore.setScaledSize(finezza(SenzaPixel, millimetri));
    lettore.setBackgroundColor(Qt::white);
    QImage immagine = lettore.read();
    if (immagine.isNull()) {
        LettoreImmagine::NonValida();
    }
    PixelImmagine::A32Bit(immagine);
    Opacita::SuBianco(immagine);
    PocheTinte::UnisceOrli(immagine);
    return {immagine, millimetri};
}

FiguraEsterna::Decodificata FiguraEsterna::DecodificaPunti(const Finezza &finezza,
                                                           const Annullato &annullato) const
{
    Sorgente sorgente(byte_, annullato);
    QImageReader lettore(&sorgente, formato_);
    lettore.setAutoTransform(true);
    QImageReader::setAllocationLimit(PixelImmagine::LimiteMiB);
    const int bit = QImage::toPixelFormat(lettore.imageFormat()).bitsPerPixel();
    if (PixelImmagine::Troppi(lettore.size(),
                              std::max<qint64>(PixelImmagine::BytePerPixel, bit / 8))) {
        throw Immagini::TroppoGrande();
    }
    const bool girata = lettore.transformation() & QImageIOHandler::TransformationRotate90;
    QImage immagine = lettore.read();
    if (annullato()) {
        return {};
    }
    if (immagine.isNull()) {
        LettoreImmagine::NonValida();
    }
    const QSizeF millimetri = Naturali(immagine, girata);
    PixelImmagine::A32Bit(immagine);
    Opacita::SuBianco(immagine);
    Rimpicciolisce(immagine, finezza(immagine.size(), millimetri));
    return {immagine, millimetri};
}

QImage FiguraEsterna::Miniatura(const QString &percorso, const QSize &entro,
                                const Annullato &annullato)
{
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly)) {
        throw ErroreSistema(ErroreSistema::FileNonTrovato);
    }
    if (!IntestazioneImmagine::Legge(file).Formato.isEmpty()) {
        return Immagini::Miniatura(percorso, entro);
    }
    // Most files of a folder are no pictures: their first bytes tell.
    file.seek(0);
    if (QImageReader::imageFormat(&file).isEmpty()) {
        LettoreImmagine::NonValida();
    }
    const auto ridotta = [&entro](const QSize &propri, const QSizeF &millimetri) {
        const QSize intera = millimetri.scaled(entro, Qt::KeepAspectRatio).toSize();
        return intera.boundedTo(propri).expandedTo({1, 1});
    };
    return FiguraEsterna(percorso).DecodificaAltra(ridotta, annullato).Immagine;
}

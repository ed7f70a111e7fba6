#include "print/FigureInMemoria.h"

#include "grafica/Immagini.h"

#include <algorithm>
#include <new>

namespace {

/// What the pictures not in hand may take: all the small ones of a page, no scan.
constexpr qsizetype ByteInDisparte = 16LL * 1024 * 1024;
/// Of these, what those may take that no further use is foreseen of: they are only asked for again
/// where the page is computed, and filling fresh memory takes longer than the few that are.
constexpr qsizetype ByteGiaUsati = 2LL * 1024 * 1024;

QSize Ridotta(const QSize &intera, qsizetype livello)
{
    const int divisore = 1 << livello;
    return {(intera.width() + divisore - 1) / divisore,
            (intera.height() + divisore - 1) / divisore};
}

bool Basta(const QSize &pixel, const QSize &bisogno)
{
    return pixel.width() >= bisogno.width() && pixel.height() >= bisogno.height();
}

qsizetype Byte(const QList<FigureInMemoria::Figura> &figure)
{
    qsizetype byte = 0;
    for (const FigureInMemoria::Figura &figura : figure) {
        byte += figura.Immagine.sizeInBytes();
    }
    return byte;
}

FigureInMemoria::Figura InParti(const QImage &immagine, bool comeJpeg)
{
    if (comeJpeg) {
        return {immagine, true, {{immagine.rect(), immagine}}};
    }
    return {immagine, false, PartiDiFigura::Divide(immagine)};
}

} // namespace

void FigureInMemoria::Prevede(const QString &percorso, const QSize &pixel)
{
    Voce &voce = voci_[percorso];
    voce.Bisogno = voce.Bisogno.expandedTo(pixel);
    ++voce.UsiPrevisti;
}

FigureInMemoria::Figura FigureInMemoria::Carica(const QString &percorso, const QSize &pixel)
{
    Voce &voce = voci_[percorso];
    voce.Bisogno = voce.Bisogno.expandedTo(pixel);
    voce.UsiPrevisti = std::max(0, voce.UsiPrevisti - 1);
    if (voce.Guasto) {
        throw ErroreSistema(*voce.Guasto);
    }
    if (voce.Livelli.isEmpty() || !Basta(voce.Decodificata, pixel)) {
        Decodifica(percorso, voce);
    }
    voce.Uso = ++usi_;
    const QImage maestra = voce.Livelli.constFirst().Immagine;
    const QSize intera = maestra.size();
    const QSize bisogno = pixel.boundedTo(intera);
    qsizetype livello = 0;
    while (intera.width() >> livello > 1 && intera.height() >> livello > 1 &&
           Basta(Ridotta(intera, livello + 1), bisogno)) {
        ++livello;
    }
    if (livello >= voce.Livelli.size()) {
        voce.Livelli.resize(livello + 1);
    }
    Figura &figura = voce.Livelli[livello];
    if (figura.Immagine.isNull()) {
        const QImage ridotta = maestra.scaled(Ridotta(intera, livello), Qt::IgnoreAspectRatio,
                                              Qt::SmoothTransformation);
        if (ridotta.isNull()) {
            throw std::bad_alloc();
        }
        figura = InParti(ridotta, voce.Livelli.constFirst().ComeJpeg);
        voce.Byte = std::max(voce.Byte, qint64(Byte(voce.Livelli)));
    }
    return figura;
}

qint64 FigureInMemoria::ByteAlMassimo() const
{
    qint64 maggiore = 0;
    qint64 inDisparte = 0;
    for (const Voce &voce : voci_) {
        maggiore = std::max(maggiore, voce.Byte);
        inDisparte += voce.Byte <= ByteInDisparte ? voce.Byte : 0;
    }
    return maggiore + std::min<qint64>(inDisparte, ByteInDisparte);
}

void FigureInMemoria::Decodifica(const QString &percorso, Voce &voce)
{
    voce.Livelli.clear();
    FaPosto();
    try {
        const Immagini::Opaca letta = Immagini::CaricaEntro(percorso, voce.Bisogno);
        voce.Livelli = {InParti(letta.Immagine, letta.ComeJpeg)};
        voce.Decodificata = voce.Bisogno;
        voce.Byte = std::max(voce.Byte, letta.Byte);
    } catch (const ErroreSistema &errore) {
        voce.Guasto = errore;
        throw;
    }
}

void FigureInMemoria::FaPosto()
{
    QList<Voce *> tenute;
    QList<Voce *> giaUsate;
    for (Voce &voce : voci_) {
        if (!voce.Livelli.isEmpty()) {
            tenute.append(&voce);
            if (voce.UsiPrevisti == 0) {
                giaUsate.append(&voce);
            }
        }
    }
    Lascia(giaUsate, ByteGiaUsati);
    Lascia(tenute, ByteInDisparte);
}

void FigureInMemoria::Lascia(QList<Voce *> &voci, qsizetype massimi)
{
    qsizetype byte = 0;
    for (const Voce *voce : std::as_const(voci)) {
        byte += Byte(voce->Livelli);
    }
    if (byte <= massimi) {
        return;
    }
    // The largest first: it frees the most, and leaves the many small ones that a page repeats.
    std::sort(voci.begin(), voci.end(), [](const Voce *a, const Voce *b) {
        const qsizetype byteA = Byte(a->Livelli);
        const qsizetype byteB = Byte(b->Livelli);
        return byteA != byteB ? byteA > byteB : a->Uso < b->Uso;
    });
    for (auto voce = voci.begin(); voce != voci.end() && byte > massimi; ++voce) {
        byte -= Byte((*voce)->Livelli);
        (*voce)->Livelli.clear();
    }
}

#include "grafica/Immagini.h"

#include "base/ErroreSistema.h"
#include "grafica/LettoreImmagine.h"
#include "grafica/PixelImmagine.h"
#include "sistema/Percorsi.h"

#include <QDir>

Immagini::TroppoGrande::TroppoGrande()
    : ErroreSistema(ImmagineNonValida, QStringLiteral("Immagine troppo grande"))
{
}

Immagini::Cartella::Cartella()
    : ErroreSistema(FileNonTrovato,
                    DescrizioneErrore(FileNonTrovato) + QStringLiteral(": è una cartella"))
{
}

QSizeF Immagini::DimensioniNaturali(const QString &percorso)
{
    return LettoreImmagine(percorso).Millimetri();
}

void Immagini::Verifica(const QString &percorso)
{
    LettoreImmagine(percorso).Verifica();
}

QImage Immagini::Carica(const QString &percorso)
{
    return LettoreImmagine(percorso).Decodifica({});
}

QImage Immagini::CaricaScalata(const QString &percorso, const QSize &pixel)
{
    if (pixel.isEmpty() || PixelImmagine::Troppi(pixel)) {
        LettoreImmagine::NonValida();
    }
    const QImage scalata =
        PixelImmagine::Scalata(LettoreImmagine(percorso).Decodifica(pixel), pixel);
    if (scalata.isNull()) {
        LettoreImmagine::NonValida();
    }
    return scalata;
}

QImage Immagini::Miniatura(const QString &percorso, const QSize &entro)
{
    LettoreImmagine lettore(percorso);
    const QSize propria = lettore.Pixel();
    const QSize dentro = propria.scaled(entro, Qt::KeepAspectRatio).expandedTo({1, 1});
    return lettore.DecodificaOpaca(dentro.boundedTo(propria));
}

Immagini::Opaca Immagini::CaricaEntro(const QString &percorso, const QSize &massimo)
{
    if (massimo.isEmpty()) {
        LettoreImmagine::NonValida();
    }
    LettoreImmagine lettore(percorso);
    const QSize pixel = PixelImmagine::Entro(lettore.Pixel().boundedTo(massimo),
                                             lettore.Sostenibili(PixelImmagine::Stampati));
    const QImage immagine = lettore.DecodificaOpaca(pixel);
    return {immagine, lettore.ComeJpeg(immagine), lettore.Ingombro(immagine)};
}

QString Immagini::PercorsoInCartella(const QString &cartella, const QString &nome)
{
    // Decided on the text: not even a look may leave the folder.
    const QString relativo =
        QDir::cleanPath(QStringLiteral("./") + QString(nome).replace(u'\\', u'/'));
    if (relativo == QLatin1String(".") || relativo == QLatin1String("..") ||
        relativo.startsWith(QLatin1String("../")) || nome.contains(QChar::Null)) {
        throw ErroreSistema(ErroreSistema::FileNonTrovato);
    }
    return QDir::cleanPath(Percorsi::Risolve(cartella + relativo));
}

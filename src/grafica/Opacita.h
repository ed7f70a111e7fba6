#pragma once

#include <QImage>

/// Transparency of pictures, in 32-bit pixels that are not premultiplied.
namespace Opacita {

/// True for a row of the picture that shows nothing.
bool AlfaVuoto(const QRgb *riga, int pixel);

/// A fourth byte that is zero throughout is one that its writer left empty, not a picture of
/// nothing: it becomes opaque.
void ToglieAlfaVuoto(QImage &immagine);

/// A row of the picture on white paper; esito may be the row itself.
void SuBianco(const QRgb *riga, int pixel, QRgb *esito);

/// The picture on white paper, in its own memory: RGB32.
void SuBianco(QImage &immagine);

} // namespace Opacita

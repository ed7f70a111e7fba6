#pragma once

class QImage;

/// True when the picture (RGB32) would visibly lose colour if every four pixels shared one, as they
/// do in the JPEG that a printer engine makes of a picture: sharp edges between colours, not the
/// soft shapes and the noise of a photograph.
bool PerdeColore(const QImage &immagine);

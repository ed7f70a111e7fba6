#include "support/ImmaginiDiProva.h"
#include "support/ImmaginiRare.h"

#include <QDir>

/// Writes small pictures of every format into the folder given, for the fuzzer to start from.
int main(int argc, char **argv)
{
    if (argc != 2) {
        return 1;
    }
    const QDir cartella(QString::fromLocal8Bit(argv[1]));
    QList<QByteArray> semi{
        ImmaginiDiProva::GifTrasparente(),
        ImmaginiDiProva::GifAnimata(),
        ImmaginiDiProva::JpegCmyk(),
        ImmaginiRare::GifCheSiSrotola(100),
        ImmaginiRare::BmpSmisurato(),
        ImmaginiRare::JpegDiSegmenti(40, '\xE1', true),
        ImmaginiRare::JpegDiScansioni({64, 64}, 3),
        ImmaginiRare::JpegDiUnaScansione({64, 64}, 3, 3, true),
        ImmaginiRare::JpegDiUnaScansione({64, 64}, 3, 1, false),
        ImmaginiRare::JpegDiUnaScansione({17000, 17000}, 3, 3, true).left(4096),
        ImmaginiRare::JpegDiUnaScansione({17000, 17000}, 3, 1, false).left(4096)};
    for (const ImmaginiRare::Rara &rara : ImmaginiRare::Tutte()) {
        semi.append(rara.Byte);
    }
    for (qsizetype i = 0; i < semi.size(); ++i) {
        ImmaginiDiProva::Scrive(cartella.filePath(QStringLiteral("seme%1").arg(i)), semi[i]);
    }
    return 0;
}

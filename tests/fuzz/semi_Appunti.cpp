#include "documento/Appunti.h"
#include "model/FileModello.h"
#include "support/ModelloDiProva.h"

#include <QDir>
#include <QFile>
#include <QMimeData>

/// Writes clipboards of a few elements into the folder given, for the fuzzer to start from.
int main(int argc, char **argv)
{
    if (argc != 2) {
        return 1;
    }
    const QDir cartella(QString::fromLocal8Bit(argv[1]));
    for (const int perGenere : {1, 2, 12}) {
        QList<Chiave> chiavi;
        for (int i = perGenere; i > 0; --i) {
            for (const Genere genere : Generi) {
                chiavi.append({genere, i});
            }
        }
        const auto contenuto = Appunti::Compone(
            ElementiCopiati::Da(ModelloDiProva(perGenere), chiavi, QStringLiteral("/dati/ini")));
        QFile file(cartella.filePath(QStringLiteral("seme%1").arg(perGenere)));
        const QByteArray byte =
            contenuto->data(Appunti::TipoOrigine) + '\0' + contenuto->data(Appunti::TipoElementi);
        if (!file.open(QIODevice::WriteOnly) || file.write(byte) != byte.size()) {
            return 1;
        }
    }
    return 0;
}

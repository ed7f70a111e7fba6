#include "sistema/Volumi.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>

namespace {

template <std::size_t N>
bool Sotto(const QString &percorso, const std::array<QLatin1String, N> &cartelle)
{
    return std::any_of(cartelle.begin(), cartelle.end(), [&](QLatin1String cartella) {
        return percorso == cartella || percorso.startsWith(cartella + u'/');
    });
}

/// A blank, tab, line feed or backslash stands in the table as a backslash and three octal digits.
QString Decodifica(const QByteArray &voce)
{
    constexpr int Cifre = 3;
    constexpr int Base = 8;
    QByteArray byte;
    for (qsizetype i = 0; i < voce.size(); ++i) {
        const QByteArray cifre = voce[i] == '\\' ? voce.mid(i + 1, Cifre) : QByteArray();
        bool ottale = false;
        const int valore = cifre.toInt(&ottale, Base);
        if (ottale && cifre.size() == Cifre) {
            byte.append(static_cast<char>(valore));
            i += Cifre;
        } else {
            byte.append(voce[i]);
        }
    }
    return QFile::decodeName(byte);
}

/// The rest of a mount table is the system's own.
bool PerUtenti(const QString &origine, const QString &posto)
{
    static constexpr std::array ParteDiSistema{QLatin1String("/boot"), QLatin1String("/snap"),
                                               QLatin1String("/etc"),  QLatin1String("/var"),
                                               QLatin1String("/proc"), QLatin1String("/sys")};
    static constexpr std::array PerSupporti{QLatin1String("/media"), QLatin1String("/mnt"),
                                            QLatin1String("/run/media")};
    if (Sotto(posto, PerSupporti)) {
        return true;
    }
    const bool disco = origine.startsWith(QLatin1String("/dev/")) &&
                       !origine.startsWith(QLatin1String("/dev/loop"));
    const bool rete =
        origine.startsWith(QLatin1String("//")) || origine.contains(QLatin1String(":/"));
    return (disco || rete) && !Sotto(posto, ParteDiSistema);
}

} // namespace

QStringList VolumiDaTabella(const QByteArray &tabella)
{
    QStringList volumi;
    for (const QByteArray &riga : tabella.split('\n')) {
        const QList<QByteArray> voci = riga.split(' ');
        if (voci.size() > 1) {
            const QString posto = Decodifica(voci[1]);
            if (posto != QLatin1String("/") && PerUtenti(Decodifica(voci[0]), posto)) {
                volumi.append(posto);
            }
        }
    }
    volumi.sort(Qt::CaseInsensitive);
    volumi.removeDuplicates();
    volumi.prepend(QStringLiteral("/"));
    return volumi;
}

QStringList Volumi()
{
#ifndef Q_OS_WIN
    QFile tabella(QStringLiteral("/proc/self/mounts"));
    if (tabella.open(QIODevice::ReadOnly)) {
        return VolumiDaTabella(tabella.readAll());
    }
#endif
    QStringList volumi;
    for (const QFileInfo &radice : QDir::drives()) {
        QString percorso = QDir::toNativeSeparators(radice.filePath());
        if (percorso.size() > 1 && percorso.endsWith(QDir::separator())) {
            percorso.chop(1);
        }
        volumi.append(percorso);
    }
    return volumi;
}

#include "model/MaschereStampa.h"

#include <random>

namespace {

constexpr int CifreAlMassimo = 11;
constexpr int CaratteriAlMassimo = 80;

QStringList Gruppo(const QString &coda)
{
    QStringList voci;
    for (int cifre = 1; cifre <= CifreAlMassimo; ++cifre) {
        voci.append(QString(cifre, u'#') + coda);
    }
    return voci;
}

QStringList ComponeCatalogo()
{
    QStringList voci{
        QStringLiteral("No non stampa"),
        QStringLiteral("###.###,### 2 decimali"),
        QStringLiteral("#.###.###,### 2 decimali"),
        QStringLiteral("##.###.###,### 2 decimali"),
    };
    voci += Gruppo(QStringLiteral(", no decimali"));
    voci += Gruppo(QStringLiteral(",### 2 decimali"));
    voci += Gruppo(QStringLiteral(",#### 3 decimali"));
    voci += Gruppo(QStringLiteral(",##### 4 decimali"));
    for (int caratteri = 1; caratteri <= CaratteriAlMassimo; ++caratteri) {
        voci.append(QString(caratteri, u'$') + u' ' + QString::number(caratteri) +
                    QStringLiteral("  caratteri"));
    }
    return voci;
}

} // namespace

QStringList MaschereStampa::Catalogo()
{
    static const QStringList catalogo = ComponeCatalogo();
    return catalogo;
}

QString MaschereStampa::Propria(const QString &voce)
{
    return voce.section(u' ', 0, 0);
}

bool MaschereStampa::DaNumericoAdAlfanumerico(const QString &mascheraDefault, const QString &voce)
{
    // Positions count from 1, and 0 is none. Their bits are ANDed, not their truth: a "#" in second
    // place does not stop a "$" in first place. Every mask of the catalogue has them in first
    // place.
    const qsizetype numerico = mascheraDefault.indexOf(u'#') + 1;
    const qsizetype alfanumerico = voce.indexOf(u'$') + 1;
    return (numerico & alfanumerico) != 0;
}

bool MaschereStampa::Numerica(const QString &maschera)
{
    return maschera.contains(u'#');
}

QString MaschereStampa::Forma(const QString &maschera)
{
    return maschera.chopped(maschera.isEmpty() ? 0 : 1);
}

QString MaschereStampa::TestoDiProva(const QString &maschera, const SorgenteCasuale &casuale)
{
    constexpr int Decine = 10;
    QString testo;
    for (const QChar c : Forma(maschera)) {
        if (c == u'#') {
            casuale();
            testo.append(QString::number(static_cast<int>(casuale() * Decine)));
        } else {
            testo.append(c);
        }
    }
    return testo;
}

SorgenteCasuale MaschereStampa::Uniforme()
{
    return [generatore = std::mt19937_64(std::random_device{}()),
            distribuzione = std::uniform_real_distribution<double>(0, 1)]() mutable {
        return distribuzione(generatore);
    };
}

#include "grafica/Testo.h"

#include "base/Unita.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QHash>
#include <QRawFont>
#include <QStringList>

#include <algorithm>
#include <array>

namespace {

const auto Arial = QStringLiteral("Arial");

/// A family of the users' own machines, and those that other systems make to the same widths.
struct Gemelli
{
    QLatin1String Nome;
    std::array<QLatin1String, 3> Pari;
};
constexpr std::array<Gemelli, 3> FamiglieGemelle{{
    {QLatin1String("Arial"),
     {QLatin1String("Liberation Sans"), QLatin1String("Arimo"), QLatin1String("Nimbus Sans")}},
    {QLatin1String("Times New Roman"),
     {QLatin1String("Liberation Serif"), QLatin1String("Tinos"), QLatin1String("Nimbus Roman")}},
    {QLatin1String("Courier New"),
     {QLatin1String("Liberation Mono"), QLatin1String("Cousine"), QLatin1String("Nimbus Mono")}},
}};

/// Of a family that the system lacks: true where it sets it with one of the same widths.
bool SostituitoAllaPari(const Gemelli &gemelli)
{
    const QString trovata = QFontInfo{QFont(gemelli.Nome)}.family();
    return std::any_of(gemelli.Pari.begin(), gemelli.Pari.end(),
                       [&](QLatin1String pari) { return trovata.contains(pari); });
}

bool Disponibile(const QString &famiglia)
{
    if (QFontDatabase::hasFamily(famiglia)) {
        return !FontGenerico(famiglia);
    }
    // Only the one in question: each asks the system for what takes it long to find.
    return std::any_of(FamiglieGemelle.begin(), FamiglieGemelle.end(), [&](const Gemelli &gemelli) {
        return famiglia.compare(gemelli.Nome, Qt::CaseInsensitive) == 0 &&
               SostituitoAllaPari(gemelli);
    });
}

/// The fonts change only when one is installed, and texts are set by the hundred.
class FontNoti
{
public:
    FontNoti()
    {
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp,
                         [this] { noti_.clear(); });
    }
    bool Disponibile(const QString &famiglia)
    {
        const auto noto = noti_.constFind(famiglia);
        return noto != noti_.constEnd() ? *noto : *noti_.insert(famiglia, ::Disponibile(famiglia));
    }

private:
    QHash<QString, bool> noti_;
};

} // namespace

bool FontGenerico(const QString &famiglia)
{
    static constexpr std::array<QLatin1String, 7> Generici{
        QLatin1String("Serif"),     QLatin1String("Sans Serif"), QLatin1String("Sans-Serif"),
        QLatin1String("Sans"),      QLatin1String("Monospace"),  QLatin1String("Cursive"),
        QLatin1String("System-UI"),
    };
    return std::any_of(Generici.begin(), Generici.end(), [&](QLatin1String generico) {
        return famiglia.compare(generico, Qt::CaseInsensitive) == 0;
    });
}

QStringList FontSostituitiAllaPari()
{
    QStringList famiglie;
    for (const Gemelli &gemelli : FamiglieGemelle) {
        if (!QFontDatabase::hasFamily(gemelli.Nome) && SostituitoAllaPari(gemelli)) {
            famiglie.append(gemelli.Nome);
        }
    }
    return famiglie;
}

bool FontDisponibile(const QString &famiglia)
{
    static FontNoti noti;
    return noti.Disponibile(famiglia);
}

QFont CarattereDiTesto(const QString &famiglia, bool grassetto, int pixel)
{
    QFont carattere;
    // As a list: a name is one family, whatever commas it has. A family that is missing is not left
    // to the system, whose choice would differ from what the dialogs announce.
    carattere.setFamilies({FontDisponibile(famiglia) ? famiglia : Arial});
    carattere.setStyleHint(QFont::SansSerif);
    carattere.setPixelSize(pixel);
    carattere.setBold(grassetto);
    carattere.setHintingPreference(QFont::PreferNoHinting);
    return carattere;
}

double PuntiDiTesto(double punti)
{
    constexpr double PuntiNormali = 8;
    constexpr double PuntiMassimi = 1638;
    return punti > 0 ? std::min(punti, PuntiMassimi) : PuntiNormali; // also when it is no number
}

QSizeF MisuraTesto(const QString &testo, const QString &font, double punti, bool grassetto)
{
    // Measured at one large size and scaled down: what the font engine rounds to whole pixels
    // becomes too small to matter.
    constexpr int PixelDiRiferimento = 1000;
    const QFontMetricsF metrica(CarattereDiTesto(font, grassetto, PixelDiRiferimento));
    const double scala = PuntiDiTesto(punti) * Unita::MillimetriPerPunto / PixelDiRiferimento;
    return QSizeF(metrica.horizontalAdvance(testo), metrica.height()) * scala;
}

QString CaratteriSenzaFigura(const QString &testo, const QString &font, bool grassetto)
{
    constexpr int PixelQualunque = 100;
    const QRawFont figure =
        QRawFont::fromFont(CarattereDiTesto(font, grassetto, PixelQualunque), QFontDatabase::Any);
    QString senza;
    for (const char32_t carattere : SuUnaRiga(testo).toUcs4()) {
        const QString lettera = QString::fromUcs4(&carattere, 1);
        if (!QChar::isSpace(carattere) && !figure.supportsCharacter(carattere) &&
            !senza.contains(lettera)) {
            senza += lettera;
        }
    }
    return senza;
}

QString SuUnaRiga(const QString &testo)
{
    constexpr qsizetype CaratteriMassimi = 5000;
    QString riga = testo.left(CaratteriMassimi);
    for (QChar &carattere : riga) {
        if (carattere.category() == QChar::Other_Control ||
            carattere == QChar(QChar::LineSeparator) ||
            carattere == QChar(QChar::ParagraphSeparator)) {
            carattere = u' ';
        }
    }
    return riga;
}

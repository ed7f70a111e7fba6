#include "model/Numeri.h"

#include "base/ErroreSistema.h"

#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr int CifreDoppio = 15;
constexpr int CifreSingolo = 7;

// The largest double that 15 significant digits can write without going beyond the doubles.
constexpr double MassimoScrivibile = 1.79769313486231e308;

bool Ignorato(char16_t c)
{
    return c == u' ' || c == u'\t' || c == u'\n';
}

bool Cifra(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

/// The characters of the leading number of testo, in the notation of the C locale. Texts come as
/// UTF-16 or as bytes: whatever is not ASCII fits no number in either.
class NumeroIniziale
{
public:
    template <typename Vista>
    NumeroIniziale(Vista testo, bool puntoIniziale)
    {
        for (const auto elemento : testo) {
            const char16_t c = InCarattere(elemento);
            if (!Ignorato(c) && !Accetta(c, puntoIniziale)) {
                break;
            }
            ++lunghezza_;
        }
        if (!cifre_) {
            accettato_.clear();
        } else if (esponente_ && !cifreEsponente_) {
            accettato_.resize(postoEsponente_);
        }
    }

    /// Characters of the text that belong to it, ignored ones too; what follows is no number's.
    qsizetype Lunghezza() const { return lunghezza_; }
    bool Vuoto() const { return accettato_.isEmpty(); }
    bool ConPunto() const { return punto_; }

    double Valore() const
    {
        if (accettato_.isEmpty()) {
            return 0;
        }
        bool valido = false;
        const double valore =
            QByteArrayView(accettato_.data(), accettato_.size()).toDouble(&valido);
        if (!valido && Grandezza() > 0) {
            throw ErroreSistema(ErroreSistema::Overflow);
        }
        // What is invalid for being too small is simply 0.
        return valido ? valore : 0;
    }

private:
    /// The number is a fraction between 0.1 and 1 times this power of ten; 0 for zero.
    qint64 Grandezza() const
    {
        const auto fine = esponente_ ? accettato_.begin() + postoEsponente_ : accettato_.end();
        const auto punto = std::find(accettato_.begin(), fine, '.');
        const auto prima =
            std::find_if(accettato_.begin(), fine, [](char c) { return c >= '1' && c <= '9'; });
        if (prima == fine) {
            return 0;
        }
        return (prima < punto ? punto - prima : punto - prima + 1) + Esponente();
    }

    qint64 Esponente() const
    {
        if (!cifreEsponente_) {
            return 0;
        }
        // Far beyond what any number of digits could make up for.
        constexpr qint64 Massimo = 1'000'000'000'000;
        qint64 valore = 0;
        for (qsizetype i = postoEsponente_ + 1; i < accettato_.size() && valore < Massimo; ++i) {
            if (Cifra(static_cast<unsigned char>(accettato_[i]))) {
                valore = valore * 10 + (accettato_[i] - '0');
            }
        }
        return accettato_[postoEsponente_ + 1] == '-' ? -valore : valore;
    }

    static char16_t InCarattere(QChar c) { return c.unicode(); }
    static char16_t InCarattere(char c) { return static_cast<unsigned char>(c); }

    bool Accetta(char16_t c, bool puntoIniziale)
    {
        if (Cifra(c)) {
            (esponente_ ? cifreEsponente_ : cifre_) = true;
        } else if (c == u'+' || c == u'-') {
            if (!accettato_.isEmpty() && accettato_.back() != 'e') {
                return false;
            }
        } else if (c == u'.') {
            if (punto_ || esponente_ || (!cifre_ && !puntoIniziale)) {
                return false;
            }
            punto_ = true;
        } else if (c == u'E' || c == u'e' || c == u'D' || c == u'd') {
            if (esponente_ || !cifre_) {
                return false;
            }
            esponente_ = true;
            postoEsponente_ = accettato_.size();
            accettato_.append('e');
            return true;
        } else {
            return false;
        }
        accettato_.append(static_cast<char>(c));
        return true;
    }

    QVarLengthArray<char, 64> accettato_;
    qsizetype postoEsponente_ = 0;
    qsizetype lunghezza_ = 0;
    bool cifre_ = false;
    bool punto_ = false;
    bool esponente_ = false;
    bool cifreEsponente_ = false;
};

/// Files are read where only "," and "." are known, and hold no others: a locale with a separator
/// of its own writes the point.
QChar SeparatoreScritto(const QLocale &locale)
{
    return locale.decimalPoint() == QLatin1String(",") ? u',' : u'.';
}

/// The value with at most so many significant digits, and the decimal separator of the locale.
QString Testo(double valore, int cifre, const QLocale &locale)
{
    // Adding 0 turns a negative zero into the plain one, which is what its text must be.
    const double scrivibile = std::clamp(valore, -MassimoScrivibile, MassimoScrivibile) + 0.0;
    // Sign, digits, point, up to five zeros before the digits, or an exponent.
    std::array<char, 32> ascii{};
    const auto [fine, esito] = std::to_chars(ascii.data(), ascii.data() + ascii.size(), scrivibile,
                                             std::chars_format::general, cifre);
    Q_ASSERT(esito == std::errc{});
    QString testo(fine - ascii.data(), Qt::Uninitialized);
    std::transform(ascii.data(), fine, testo.begin(),
                   [](char c) { return c == 'e' ? QChar(u'E') : QChar(QLatin1Char(c)); });
    const qsizetype punto = testo.indexOf(u'.');
    if (punto >= 0) {
        testo[punto] = SeparatoreScritto(locale);
    }
    return testo;
}

} // namespace

double Numeri::Val(QStringView testo)
{
    return NumeroIniziale(testo, true).Valore();
}

std::optional<double> Numeri::AltroNumero(QStringView testo)
{
    const NumeroIniziale numero(testo, true);
    const QStringView resto = testo.mid(numero.Lunghezza()).trimmed();
    const auto cifra = [](QChar c) { return Cifra(c.unicode()); };
    if (numero.Vuoto()) {
        return testo.trimmed().isEmpty() ? std::nullopt : std::optional(0.0);
    }
    const bool decimaliNulli =
        resto.startsWith(u',') && !numero.ConPunto() &&
        std::all_of(resto.begin() + 1, resto.end(), [](QChar c) { return c == u'0'; });
    if (decimaliNulli || std::none_of(resto.begin(), resto.end(), cifra)) {
        return std::nullopt; // "1,00" is 1, and so is "1 mm"
    }
    return numero.Valore();
}

QString Numeri::AvvisoDiLettura(const QString &testo)
{
    std::optional<double> letto;
    try {
        letto = AltroNumero(testo);
    } catch (const ErroreSistema &) {
        return {}; // beyond any number: whoever takes the box says so
    }
    if (!letto) {
        return {};
    }
    return QStringLiteral("si legge ") + NumeroPiano(*letto, QLocale::c()) +
           (testo.contains(u',') ? QStringLiteral(": usare il punto")
                                 : QStringLiteral(": scrivere un numero"));
}

double Numeri::LeggeNumero(QByteArrayView riga)
{
    return NumeroIniziale(riga, false).Valore();
}

std::optional<double> Numeri::Numerico(const QString &testo, const QLocale &locale)
{
    QString neutro = testo.trimmed();
    const QString separatore = locale.decimalPoint();
    if (separatore != QLatin1String(".") && !neutro.contains(u'.')) {
        neutro.replace(separatore, QLatin1String("."));
    }
    bool valido = false;
    const double valore = QLocale::c().toDouble(neutro, &valido);
    if (!valido || !std::isfinite(valore) || neutro.contains(u',')) {
        return std::nullopt;
    }
    return valore;
}

std::optional<double> Numeri::Letto(const QString &testo)
{
    QString neutro = testo;
    if (!neutro.contains(u'.')) {
        neutro.replace(u',', u'.');
    }
    return Numerico(neutro, QLocale::c());
}

double Numeri::Doppio(const QString &testo, const QLocale &locale)
{
    const std::optional<double> valore = Numerico(testo, locale);
    if (!valore) {
        throw ErroreSistema(ErroreSistema::TipoNonCorrispondente);
    }
    return *valore;
}

qint16 Numeri::Intero16(double valore)
{
    const double intero = PariPiuVicino(valore);
    if (!(intero >= std::numeric_limits<qint16>::min() &&
          intero <= std::numeric_limits<qint16>::max())) {
        throw ErroreSistema(ErroreSistema::Overflow);
    }
    return static_cast<qint16>(intero);
}

double Numeri::PariPiuVicino(double valore)
{
    const double basso = std::floor(valore);
    const double resto = valore - basso;
    if (resto != 0.5) {
        return resto < 0.5 ? basso : basso + 1;
    }
    return std::fmod(basso, 2.0) == 0 ? basso : basso + 1;
}

double Numeri::Ar(double valore)
{
    return std::floor(valore + 0.5);
}

QString Numeri::NumeroPiano(double valore, const QLocale &locale)
{
    return Testo(valore, CifreDoppio, locale);
}

QString Numeri::Decimi(double millimetri, const QLocale &locale)
{
    return NumeroPiano(PariPiuVicino(millimetri * 10) / 10, locale);
}

QString Numeri::NumeroStampato(double valore, const QLocale &locale)
{
    const QString piano = NumeroPiano(valore, locale);
    return (piano.startsWith(u'-') ? piano : u' ' + piano) + u' ';
}

QString Numeri::CstrX(const QVariant &valore, const Avviso &avviso, const QLocale &locale)
{
    switch (valore.typeId()) {
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::Float:
    case QMetaType::Double:
        break;
    default:
        avviso(QStringLiteral("CstrX: tipo variabile errato"));
        return {};
    }
    const bool singolo = valore.typeId() == QMetaType::Float;
    QString testo = Testo(valore.toDouble(), singolo ? CifreSingolo : CifreDoppio, locale);
    qsizetype separatore = testo.indexOf(u',');
    if (separatore < 0) {
        separatore = testo.indexOf(u'.');
    }
    if (separatore >= 0) {
        constexpr qsizetype DecimaliAlMassimo = 100;
        testo = testo.left(separatore) + u'.' + testo.mid(separatore + 1, DecimaliAlMassimo);
    }
    return testo;
}

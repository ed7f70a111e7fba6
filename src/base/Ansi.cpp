#include "base/Ansi.h"

#include <algorithm>
#include <array>

namespace {

// The characters of bytes 80 to 9F hex; outside them the code page equals Latin-1.
constexpr std::array<char16_t, 32> Alti{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr int Assente = -1;

int ByteDi(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return c;
    }
    const auto posto = std::find(Alti.begin(), Alti.end(), c);
    return posto == Alti.end() ? Assente : 0x80 + static_cast<int>(posto - Alti.begin());
}

} // namespace

QString Ansi::DaByte(QByteArrayView byte)
{
    QString testo(byte.size(), Qt::Uninitialized);
    std::transform(byte.begin(), byte.end(), testo.begin(), [](char b) {
        const auto valore = static_cast<unsigned char>(b);
        return QChar(valore >= 0x80 && valore < 0xA0 ? Alti[valore - 0x80] : char16_t(valore));
    });
    return testo;
}

QByteArray Ansi::InByte(QStringView testo)
{
    QByteArray byte;
    byte.reserve(testo.size());
    Aggiunge(byte, testo);
    return byte;
}

void Ansi::Aggiunge(QByteArray &byte, QStringView testo)
{
    const qsizetype inizio = byte.size();
    byte.resize(inizio + testo.size());
    char *posto = byte.data() + inizio;
    for (qsizetype i = 0; i < testo.size(); ++i) {
        const int valore = ByteDi(testo[i].unicode());
        *posto++ = valore == Assente ? '?' : static_cast<char>(valore);
        // A pair of surrogates is one character to the reader, hence one "?".
        if (testo[i].isHighSurrogate() && i + 1 < testo.size() && testo[i + 1].isLowSurrogate()) {
            ++i;
        }
    }
    byte.truncate(posto - byte.constData());
}

bool Ansi::Rappresentabile(QChar carattere)
{
    return ByteDi(carattere.unicode()) != Assente;
}

bool Ansi::Rappresentabile(const QString &testo)
{
    return std::all_of(testo.begin(), testo.end(), [](QChar c) { return Rappresentabile(c); });
}

#include "grafica/DatiJpeg.h"

#include "grafica/CodiciJpeg.h"
#include "grafica/MarcatoriJpeg.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <vector>

using namespace CodiciJpeg;

namespace {

constexpr int Coefficienti = 64; // of a block of 8x8 pixels
constexpr int Lato = 8;
constexpr int TavoleMassime = 4;
constexpr int BlocchiPerUnita = 10; // that an interleaved scan may have
constexpr qint64 BlocchiMassimi = 20'000'000;

int DivideInSu(int a, int b)
{
    return (a + b - 1) / b;
}

struct Componente
{
    int Id = 0;
    int Orizzontali = 1; // sampling factors
    int Verticali = 1;
    int Larghezza = 0; // blocks that hold pixels
    int Altezza = 0;
    int Passo = 0; // blocks of a row, with those that fill the last unit
    int Dc = 0;    // tables of the scan
    int Ac = 0;
    /// Bits of each coefficient that are still to come; -1: none has come yet.
    std::array<qint8, Coefficienti> Mancanti{};
    /// For each block, which coefficients are not zero.
    std::vector<quint64> NonNulli;
};

/// What one scan says of itself.
struct Scansione
{
    int Primo = 0; // coefficients
    int Ultimo = Coefficienti - 1;
    int Prima = 0; // bits left out by the scan before it and by this one; Prima 0: the first one
    int Dopo = 0;
    std::vector<Componente *> Componenti;
};

class Percorso
{
public:
    explicit Percorso(QByteArrayView file)
        : file_(file)
    {
    }

    bool Completo()
    {
        qint64 posto = 2;
        MarcatoriJpeg::Segmento segmento;
        while (MarcatoriJpeg::Prossimo(file_, posto, segmento)) {
            posto = segmento.Fine;
            const QByteArrayView dati =
                file_.sliced(segmento.Inizio, segmento.Fine - segmento.Inizio);
            switch (segmento.Marcatore) {
            case MarcatoriJpeg::Dht:
                Tavole(dati);
                break;
            case MarcatoriJpeg::Dri:
                ripartenza_ = dati.size() == 2 ? qFromBigEndian<quint16>(dati.data()) : 0;
                break;
            case MarcatoriJpeg::Sos:
                posto = Scorre(LeggeScansione(dati), posto);
                break;
            default:
                if (MarcatoriJpeg::DiFormato(segmento.Marcatore)) {
                    Formato(segmento.Marcatore, dati);
                }
                break;
            }
        }
        return !componenti_.empty() &&
               std::all_of(componenti_.begin(), componenti_.end(), [](const Componente &c) {
                   return std::all_of(c.Mancanti.begin(), c.Mancanti.end(),
                                      [](int bit) { return bit == 0; });
               });
    }

private:
    void Tavole(QByteArrayView dati)
    {
        while (dati.size() > 17) {
            const int numero = quint8(dati[0]);
            const QByteArrayView quanti = dati.sliced(1, 16);
            int valori = 0;
            for (const char n : quanti) {
                valori += quint8(n);
            }
            if ((numero & 0xEF) >= TavoleMassime || valori > 256 || 17 + valori > dati.size()) {
                throw Mancano();
            }
            (numero & 0x10 ? ac_ : dc_)[numero & 3] = Tavola(quanti, dati.sliced(17, valori));
            dati = dati.sliced(17 + valori);
        }
    }

    void Formato(int marcatore, QByteArrayView dati)
    {
        const bool huffman = marcatore <= MarcatoriJpeg::SofProgressivo;
        if (!huffman || dati.size() < 6 || !componenti_.empty()) {
            throw Mancano();
        }
        progressivo_ = marcatore == MarcatoriJpeg::SofProgressivo;
        const int altezza = qFromBigEndian<quint16>(dati.data() + 1);
        const int larghezza = qFromBigEndian<quint16>(dati.data() + 3);
        const int quanti = quint8(dati[5]);
        if (altezza == 0 || larghezza == 0 || quanti < 1 || quanti > TavoleMassime ||
            dati.size() < 6 + 3 * quanti) {
            throw Mancano();
        }
        for (int i = 0; i < quanti; ++i) {
            const int fattori = quint8(dati[7 + 3 * i]);
            Componente c;
            c.Id = quint8(dati[6 + 3 * i]);
            c.Orizzontali = fattori >> 4;
            c.Verticali = fattori & 15;
            if (c.Orizzontali < 1 || c.Orizzontali > 4 || c.Verticali < 1 || c.Verticali > 4) {
                throw Mancano();
            }
            c.Mancanti.fill(-1);
            orizzontali_ = std::max(orizzontali_, c.Orizzontali);
            verticali_ = std::max(verticali_, c.Verticali);
            componenti_.push_back(std::move(c));
        }
        Dimensiona(larghezza, altezza);
    }

    void Dimensiona(int larghezza, int altezza)
    {
        unitaInRiga_ = DivideInSu(larghezza, Lato * orizzontali_);
        unitaInColonna_ = DivideInSu(altezza, Lato * verticali_);
        qint64 blocchi = 0;
        for (Componente &c : componenti_) {
            c.Larghezza = DivideInSu(DivideInSu(larghezza * c.Orizzontali, orizzontali_), Lato);
            c.Altezza = DivideInSu(DivideInSu(altezza * c.Verticali, verticali_), Lato);
            c.Passo = unitaInRiga_ * c.Orizzontali;
            blocchi += qint64(c.Passo) * unitaInColonna_ * c.Verticali;
        }
        if (blocchi > BlocchiMassimi) {
            throw Mancano();
        }
        if (progressivo_) {
            for (Componente &c : componenti_) {
                c.NonNulli.resize(std::size_t(c.Passo) * std::size_t(unitaInColonna_) *
                                  std::size_t(c.Verticali));
            }
        }
    }

    Scansione LeggeScansione(QByteArrayView dati)
    {
        const int quanti = dati.isEmpty() ? 0 : quint8(dati[0]);
        if (quanti < 1 || quanti > TavoleMassime || dati.size() < 4 + 2 * quanti) {
            throw Mancano();
        }
        Scansione scansione;
        for (int i = 0; i < quanti; ++i) {
            const int id = quint8(dati[1 + 2 * i]);
            const int tavole = quint8(dati[2 + 2 * i]);
            const auto c = std::find_if(componenti_.begin(), componenti_.end(),
                                        [&](const Componente &altro) { return altro.Id == id; });
            if (c == componenti_.end()) {
                throw Mancano();
            }
            c->Dc = tavole >> 4 & 3;
            c->Ac = tavole & 3;
            scansione.Componenti.push_back(&*c);
        }
        if (progressivo_) {
            scansione.Primo = quint8(dati[1 + 2 * quanti]);
            scansione.Ultimo = quint8(dati[2 + 2 * quanti]);
            scansione.Prima = quint8(dati[3 + 2 * quanti]) >> 4;
            scansione.Dopo = quint8(dati[3 + 2 * quanti]) & 15;
        }
        Verifica(scansione);
        return scansione;
    }

    void Verifica(const Scansione &s) const
    {
        int blocchi = 0;
        for (const Componente *c : s.Componenti) {
            blocchi += c->Orizzontali * c->Verticali;
        }
        const bool dc = s.Primo == 0;
        if (s.Primo > s.Ultimo || s.Ultimo >= Coefficienti ||
            (s.Componenti.size() > 1 && blocchi > BlocchiPerUnita) ||
            (progressivo_ && (dc ? s.Ultimo != 0 : s.Componenti.size() != 1))) {
            throw Mancano();
        }
    }

    /// The place behind the scan's data.
    qint64 Scorre(const Scansione &s, qint64 posto)
    {
        Bit bit(file_, posto);
        fineBlocchi_ = 0;
        int unita = 0;
        const auto unUnita = [&] {
            if (ripartenza_ > 0 && unita > 0 && unita % ripartenza_ == 0) {
                bit.Riparte();
                fineBlocchi_ = 0;
            }
            ++unita;
        };
        if (s.Componenti.size() == 1) {
            Componente &c = *s.Componenti.front();
            for (int y = 0; y < c.Altezza; ++y) {
                for (int x = 0; x < c.Larghezza; ++x) {
                    unUnita();
                    Blocco(s, c, bit, x, y);
                }
            }
        } else {
            for (int y = 0; y < unitaInColonna_; ++y) {
                for (int x = 0; x < unitaInRiga_; ++x) {
                    unUnita();
                    LeggeUnita(s, bit, x, y);
                }
            }
        }
        for (Componente *c : s.Componenti) {
            std::fill(c->Mancanti.begin() + s.Primo, c->Mancanti.begin() + s.Ultimo + 1,
                      qint8(s.Dopo));
        }
        return bit.Posto();
    }

    void LeggeUnita(const Scansione &s, Bit &bit, int x, int y)
    {
        for (Componente *c : s.Componenti) {
            for (int v = 0; v < c->Verticali; ++v) {
                for (int o = 0; o < c->Orizzontali; ++o) {
                    Blocco(s, *c, bit, x * c->Orizzontali + o, y * c->Verticali + v);
                }
            }
        }
    }

    void Blocco(const Scansione &s, Componente &c, Bit &bit, int x, int y)
    {
        if (!progressivo_) {
            bit.Numero(dc_[c.Dc].Legge(bit) & 15);
            Sequenza(c, bit);
            return;
        }
        if (s.Primo == 0) {
            bit.Numero(s.Prima == 0 ? dc_[c.Dc].Legge(bit) & 15 : 1);
            return;
        }
        quint64 &nonNulli = c.NonNulli[std::size_t(y) * std::size_t(c.Passo) + std::size_t(x)];
        if (s.Prima == 0) {
            PrimiBit(s, c, bit, nonNulli);
        } else {
            AltriBit(s, c, bit, nonNulli);
        }
    }

    void Sequenza(const Componente &c, Bit &bit) const
    {
        for (int k = 1; k < Coefficienti; ++k) {
            const int simbolo = ac_[c.Ac].Legge(bit);
            const int zeri = simbolo >> 4;
            const int quanti = simbolo & 15;
            if (quanti == 0 && zeri != 15) {
                return;
            }
            k += zeri;
            bit.Numero(quanti);
        }
    }

    void PrimiBit(const Scansione &s, const Componente &c, Bit &bit, quint64 &nonNulli)
    {
        if (fineBlocchi_ > 0) {
            --fineBlocchi_;
            return;
        }
        for (int k = s.Primo; k <= s.Ultimo; ++k) {
            const int simbolo = ac_[c.Ac].Legge(bit);
            const int zeri = simbolo >> 4;
            const int quanti = simbolo & 15;
            if (quanti == 0 && zeri != 15) {
                fineBlocchi_ = (1 << zeri) + bit.Numero(zeri) - 1;
                return;
            }
            k += zeri;
            if (quanti != 0) {
                bit.Numero(quanti);
                Segna(nonNulli, k);
            }
        }
    }

    void AltriBit(const Scansione &s, const Componente &c, Bit &bit, quint64 &nonNulli)
    {
        int k = s.Primo;
        while (fineBlocchi_ == 0 && k <= s.Ultimo) {
            const int simbolo = ac_[c.Ac].Legge(bit);
            int zeri = simbolo >> 4;
            const bool nuovo = (simbolo & 15) != 0;
            if (!nuovo && zeri != 15) {
                fineBlocchi_ = (1 << zeri) + bit.Numero(zeri);
                break;
            }
            if (nuovo) {
                bit.Uno(); // its sign
            }
            // Known coefficients on the way get a bit each; zeros are counted.
            for (; k <= s.Ultimo; ++k) {
                if (nonNulli >> k & 1) {
                    bit.Uno();
                } else if (--zeri < 0) {
                    break;
                }
            }
            if (nuovo) {
                Segna(nonNulli, k);
            }
            ++k;
        }
        if (fineBlocchi_ > 0) {
            for (; k <= s.Ultimo; ++k) {
                if (nonNulli >> k & 1) {
                    bit.Uno();
                }
            }
            --fineBlocchi_;
        }
    }

    static void Segna(quint64 &nonNulli, int k)
    {
        if (k < Coefficienti) {
            nonNulli |= quint64(1) << k;
        }
    }

    QByteArrayView file_;
    std::array<Tavola, TavoleMassime> dc_;
    std::array<Tavola, TavoleMassime> ac_;
    std::vector<Componente> componenti_;
    bool progressivo_ = false;
    int orizzontali_ = 1;
    int verticali_ = 1;
    int unitaInRiga_ = 0; // interleaved units
    int unitaInColonna_ = 0;
    int ripartenza_ = 0;  // units between restart markers; 0: none
    int fineBlocchi_ = 0; // blocks to come of which the scan says nothing
};

} // namespace

bool DatiJpeg::Completi(QByteArrayView file)
{
    try {
        return Percorso(file).Completo();
    } catch (const Mancano &) {
        return false;
    }
}

#include "model/FileModello.h"

#include "base/Ansi.h"
#include "model/FileModelloRighe.h"

#include <algorithm>

namespace {

using namespace FileModello;

/// Builds the file line by line.
class Compositore
{
public:
    explicit Compositore(const QLocale &locale)
        : locale_(locale)
    {
    }

    const QByteArray &Byte() const { return byte_; }

    void Vuota(int righe = 1)
    {
        for (int i = 0; i < righe; ++i) {
            FineRiga();
        }
    }

    void Marcatore(QByteArrayView testo)
    {
        byte_.append(testo);
        FineRiga();
    }

    /// As a print statement writes it.
    void Stampato(double numero) { Scrive(Numeri::NumeroStampato(numero, locale_)); }

    /// Always with a point, so that a fraction survives in every country.
    void ConPunto(double numero) { Scrive(Numeri::CstrX(numero, {}, locale_)); }

    /// Each value on a line of its own, by its type: a text, a plain number or a plain integer.
    template <typename... Valori>
    void Scrive(const Valori &...valori)
    {
        (Valore(valori), ...);
    }

private:
    void Valore(const QString &testo)
    {
        const qsizetype inizio = byte_.size();
        Ansi::Aggiunge(byte_, testo);
        // The one character that no line can hold: it would shift every line after it.
        std::replace(byte_.begin() + inizio, byte_.end(), '\r', ' ');
        FineRiga();
    }
    void Valore(double numero) { Valore(Numeri::NumeroPiano(numero, locale_)); }
    void Valore(qint16 intero)
    {
        byte_.append(QByteArray::number(intero));
        FineRiga();
    }
    void FineRiga() { byte_.append("\r\n", 2); }

    const QLocale &locale_;
    QByteArray byte_;
};

void ComponeTestata(Compositore &file, const Modello &modello)
{
    const ImmagineSfondo &sfondo = modello.Sfondo;
    const ParametriRighe &righe = modello.Righe;
    file.Scrive(modello.Tipo);
    file.Vuota();
    file.Scrive(sfondo.File, sfondo.Ximmagine, sfondo.Yimmagine, sfondo.XPos, sfondo.YPos);
    file.Stampato(righe.yInizio);
    file.Stampato(righe.yFine);
    file.Stampato(righe.Interlinea);
    file.Stampato(sfondo.Visualizza);
    file.Scrive(righe.SeguePag);
    file.Stampato(righe.InterlineaDescr);
    file.Vuota(RigheLibere);
}

void Compone(Compositore &file, const Campo &campo)
{
    file.Vuota();
    file.Scrive(campo.Nome, campo.Testo, campo.Maschera, campo.X, campo.Y, campo.Font,
                campo.Dimensione, campo.Grassetto, campo.MascheraDefault, campo.Descrizione);
    file.Vuota();
}

void Compone(Compositore &file, const Cornice &cornice)
{
    file.Vuota();
    file.Scrive(cornice.Nome, cornice.Testo, cornice.X, cornice.Y, cornice.Font, cornice.Dimensione,
                cornice.Grassetto, cornice.Descrizione, cornice.Altezza, cornice.Larghezza);
    file.ConPunto(cornice.Bordo);
    file.Scrive(cornice.ColoreCornice, cornice.ColoreTesto);
}

void Compone(Compositore &file, const Immagine &immagine)
{
    file.Vuota();
    file.Scrive(immagine.Nome, immagine.X, immagine.Y, immagine.Descrizione, immagine.Altezza,
                immagine.Larghezza, immagine.Bordo);
    file.Vuota();
}

void ComponeGenere(Compositore &file, const Modello &modello, Genere genere, QByteArrayView fine)
{
    modello.Con(genere, [&](const auto &tabella) {
        for (int i = 1; i <= modello.UltimoSlot(genere); ++i) {
            if (!tabella[i].Nome.isEmpty()) {
                Compone(file, tabella[i]);
            }
        }
    });
    file.Marcatore(fine);
}

void ComponeElementi(Compositore &file, const Modello &modello)
{
    ComponeGenere(file, modello, Genere::Campo, FineCampi);
    ComponeGenere(file, modello, Genere::Cornice, FineCornici);
    ComponeGenere(file, modello, Genere::Immagine, FineImmagini);
}

} // namespace

QByteArray FileModello::Componi(const Modello &modello, const QLocale &locale)
{
    Compositore file(locale);
    ComponeTestata(file, modello);
    ComponeElementi(file, modello);
    return file.Byte();
}

QByteArray FileModello::ComponiElementi(const Modello &modello, const QLocale &locale)
{
    Compositore file(locale);
    ComponeElementi(file, modello);
    return file.Byte();
}

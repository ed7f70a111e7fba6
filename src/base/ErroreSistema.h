#pragma once

#include <QString>

#include <exception>

/// The one failure type below the windows. The numbers are those that the users and Vastrel's own
/// messages know (9 = subscript, 53 = file not found, 482 = printer ...). The guard of the windows
/// turns it into a message box; nothing of it ever reaches Qt's event loop.
class ErroreSistema : public std::exception
{
public:
    static constexpr int ArgomentoNonValido = 5;
    static constexpr int Overflow = 6;
    static constexpr int MemoriaEsaurita = 7;
    static constexpr int Indice = 9;
    static constexpr int TipoNonCorrispondente = 13;
    static constexpr int ErroreInterno = 51;
    static constexpr int FileNonTrovato = 53;
    static constexpr int ErroreIO = 57;
    static constexpr int DiscoPieno = 61;
    static constexpr int FineFile = 62;
    static constexpr int AutorizzazioneNegata = 70;
    static constexpr int AccessoFile = 75;
    static constexpr int PercorsoNonTrovato = 76;
    static constexpr int ValoreProprieta = 380;
    static constexpr int ImmagineNonValida = 481;
    static constexpr int Stampante = 482;

    /// Takes the Italian description from the table of DescrizioneErrore.
    explicit ErroreSistema(int numero);
    ErroreSistema(int numero, QString descrizione);

    /// "errore ", the number, a blank and the description: the text of the message box.
    QString Messaggio() const;
    const char *what() const noexcept override { return what_.constData(); }

    int numero;
    QString descrizione;

private:
    QByteArray what_;
};

/// The Italian description of a number; an unknown number gives a generic text, never an empty one.
QString DescrizioneErrore(int numero);

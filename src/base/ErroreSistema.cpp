#include "base/ErroreSistema.h"

#include <algorithm>
#include <array>

namespace {

struct Voce
{
    int numero;
    const char *descrizione;
};

constexpr std::array<Voce, 16> Descrizioni{{
    {ErroreSistema::ArgomentoNonValido, "Chiamata di routine o argomento non validi"},
    {ErroreSistema::Overflow, "Overflow"},
    {ErroreSistema::MemoriaEsaurita, "Memoria esaurita"},
    {ErroreSistema::Indice, "Indice non incluso nell'intervallo"},
    {ErroreSistema::TipoNonCorrispondente, "Tipo non corrispondente"},
    {ErroreSistema::ErroreInterno, "Errore interno"},
    {ErroreSistema::FileNonTrovato, "Impossibile trovare il file"},
    {ErroreSistema::ErroreIO, "Errore di I/O della periferica"},
    {ErroreSistema::DiscoPieno, "Disco pieno"},
    {ErroreSistema::FineFile, "Lettura oltre la fine del file"},
    {ErroreSistema::AutorizzazioneNegata, "Autorizzazione negata"},
    {ErroreSistema::AccessoFile, "Errore di accesso al percorso/file"},
    {ErroreSistema::PercorsoNonTrovato, "Impossibile trovare il percorso"},
    {ErroreSistema::ValoreProprieta, "Valore di proprietà non valido"},
    {ErroreSistema::ImmagineNonValida, "Immagine non valida"},
    {ErroreSistema::Stampante, "Errore della stampante"},
}};

} // namespace

QString DescrizioneErrore(int numero)
{
    const auto voce = std::find_if(Descrizioni.begin(), Descrizioni.end(),
                                   [numero](const Voce &v) { return v.numero == numero; });
    return voce == Descrizioni.end() ? QStringLiteral("Errore definito dall'applicazione")
                                     : QString::fromUtf8(voce->descrizione);
}

ErroreSistema::ErroreSistema(int n)
    : ErroreSistema(n, DescrizioneErrore(n))
{
}

ErroreSistema::ErroreSistema(int n, QString testo)
    : numero(n)
    , descrizione(std::move(testo))
    , what_(Messaggio().toUtf8())
{
}

QString ErroreSistema::Messaggio() const
{
    return QStringLiteral("errore %1 %2").arg(QString::number(numero), descrizione);
}

#include "sistema/SistemaDiStampa.h"

#include <QtGlobal>

#ifndef Q_OS_WIN

#include "base/ErroreSistema.h"

#include <QElapsedTimer>

#include <cups/cups.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace {

// Seconds. A system that hangs is given up at the first silence, so that the user never waits
// longer than for a connection and the longest answer. That is the one to the print itself: the
// system answers when it has stored all of it, and an answer that is missed leaves the sheet's fate
// open.
constexpr int AttesaDomanda = 3;
constexpr int AttesaLavoro = 7;
constexpr int Secondo = 1000;              // ms
constexpr double UnitaPerMillimetro = 100; ///< sheets are measured in hundredths of a millimetre

constexpr const char *PropriaCarta = "media-col-default";
constexpr const char *Carte = "media-size-supported";
constexpr const char *Orientamento = "orientation-requested";

struct Rilascia
{
    void operator()(http_t *http) const { httpClose(http); }
    void operator()(ipp_t *ipp) const { ippDelete(ipp); }
};
using Connessione = std::unique_ptr<http_t, Rilascia>;
using Risposta = std::unique_ptr<ipp_t, Rilascia>; ///< or a request that stays ours

ErroreSistema Errore(const QString &testo)
{
    return {ErroreSistema::Stampante, testo};
}

ErroreSistema NonSiSa()
{
    return Errore(QStringLiteral("Il sistema di stampa non risponde: non si sa se il foglio uscirà."
                                 "\nControllare la stampante e ripetere."));
}

constexpr const char *CodaChiusa = "la coda rifiuta nuovi lavori.";
constexpr const char *CodaVietata = "a questo utente la coda non è permessa.";
constexpr const char *SpoolPieno =
    "lo spazio per i lavori di stampa (spool) è esaurito, o il foglio vi occuperebbe più del "
    "permesso.";
constexpr const char *ConnessioneCifrata =
    "la connessione cifrata con il sistema di stampa non riesce.";

ErroreSistema NonPresa(const QString &coda, const QString &motivo)
{
    return Errore(QStringLiteral("La stampante \"%1\" non ha accettato la stampa: %2\nIl foglio "
                                 "non uscirà.")
                      .arg(coda, motivo));
}

struct Rifiuto
{
    ipp_status_t Stato;
    const char *Motivo;
};

/// The print system's own words are mostly English, and some name another reason than the true one.
constexpr std::array Rifiuti{
    Rifiuto{IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS, CodaChiusa},
    Rifiuto{IPP_STATUS_ERROR_NOT_FOUND, "la coda non esiste più."},
    Rifiuto{IPP_STATUS_ERROR_GONE, "la coda non esiste più."},
    Rifiuto{IPP_STATUS_ERROR_PRINTER_IS_DEACTIVATED, "la coda è disattivata."},
    Rifiuto{IPP_STATUS_ERROR_NOT_POSSIBLE,
            "la quota di stampa è esaurita, o i lavori in attesa sono troppi."},
    Rifiuto{IPP_STATUS_ERROR_ACCOUNT_LIMIT_REACHED, "la quota di stampa è esaurita."},
    Rifiuto{IPP_STATUS_ERROR_CUPS_ACCOUNT_LIMIT_REACHED, "la quota di stampa è esaurita."},
    Rifiuto{IPP_STATUS_ERROR_TOO_MANY_JOBS, "i lavori in attesa sono troppi."},
    Rifiuto{IPP_STATUS_ERROR_FORBIDDEN, CodaVietata},
    Rifiuto{IPP_STATUS_ERROR_NOT_AUTHENTICATED, CodaVietata},
    Rifiuto{IPP_STATUS_ERROR_NOT_AUTHORIZED, CodaVietata},
    Rifiuto{IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED, CodaVietata},
    Rifiuto{IPP_STATUS_ERROR_REQUEST_ENTITY, SpoolPieno},
    Rifiuto{IPP_STATUS_ERROR_REQUEST_VALUE, SpoolPieno}, // what HTTP's 413 is turned into
    Rifiuto{IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED, "la coda non stampa documenti PDF."},
    Rifiuto{IPP_STATUS_ERROR_ATTRIBUTES_OR_VALUES,
            "una delle impostazioni della coda non è valida."},
    Rifiuto{IPP_STATUS_ERROR_CONFLICTING, "le impostazioni della coda si contraddicono."},
    Rifiuto{IPP_STATUS_ERROR_BUSY, "il sistema di stampa è occupato."},
    Rifiuto{IPP_STATUS_ERROR_TEMPORARY, "il sistema di stampa ha un guasto passeggero."},
    Rifiuto{IPP_STATUS_ERROR_SERVICE_UNAVAILABLE, "il sistema di stampa non è disponibile."},
    Rifiuto{IPP_STATUS_ERROR_INTERNAL, "il sistema di stampa ha un guasto."},
    Rifiuto{IPP_STATUS_ERROR_DEVICE, "la stampante ha un guasto."},
    Rifiuto{IPP_STATUS_ERROR_CUPS_PKI, ConnessioneCifrata},
    Rifiuto{IPP_STATUS_ERROR_CUPS_UPGRADE_REQUIRED, ConnessioneCifrata},
};

QString Motivo()
{
    constexpr int Cifre = 4;
    constexpr int Esadecimale = 16;
    const ipp_status_t stato = cupsLastError();
    const auto *const noto = std::find_if(Rifiuti.begin(), Rifiuti.end(),
                                          [&](const Rifiuto &r) { return r.Stato == stato; });
    return noto != Rifiuti.end() ? QString::fromUtf8(noto->Motivo)
                                 : QStringLiteral("il sistema di stampa dà il codice %1.")
                                       .arg(int(stato), Cifre, Esadecimale, QChar(u'0'));
}

/// Null when nobody is there within attesa ms. silenzio: ms without a word after which it is given
/// up.
Connessione Connette(int attesa, int silenzio)
{
    Connessione connessione(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                                         cupsEncryption(), 1, attesa, nullptr));
    if (connessione) {
        httpSetTimeout(connessione.get(), double(silenzio) / Secondo, nullptr, nullptr);
    }
    return connessione;
}

Connessione ConnetteAdOgniCosto(int silenzio = AttesaDomanda)
{
    Connessione connessione = Connette(AttesaDomanda * Secondo, silenzio * Secondo);
    if (!connessione) {
        throw SistemaDiStampa::NonRisponde();
    }
    return connessione;
}

constexpr QChar PrimaDellIstanza = u'/'; ///< no queue has it in its name

QByteArray NomeDellaCoda(const QString &coda)
{
    return coda.section(PrimaDellIstanza, 0, 0).toUtf8();
}

/// A request about a queue; the caller frees it, or hands it to the library, which does.
ipp_t *Domanda(ipp_op_t operazione, const QString &coda)
{
    std::array<char, HTTP_MAX_URI> indirizzo{};
    httpAssembleURIf(HTTP_URI_CODING_ALL, indirizzo.data(), int(indirizzo.size()), "ipp", nullptr,
                     "localhost", 0, "/printers/%s", NomeDellaCoda(coda).constData());
    ipp_t *domanda = ippNewRequest(operazione);
    ippAddString(domanda, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, indirizzo.data());
    ippAddString(domanda, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return domanda;
}

/// The attributes of a queue that are named; throws when they do not come.
template <std::size_t N>
Risposta Chiede(http_t *http, const QString &coda, const std::array<const char *, N> &attributi)
{
    ipp_t *domanda = Domanda(IPP_OP_GET_PRINTER_ATTRIBUTES, coda);
    ippAddStrings(domanda, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", int(N),
                  nullptr, attributi.data());
    Risposta risposta(cupsDoRequest(http, domanda, "/")); // which frees the question
    if (!risposta) {
        throw SistemaDiStampa::NonRisponde();
    }
    if (cupsLastError() >= IPP_STATUS_ERROR_BAD_REQUEST) {
        throw NonPresa(coda, Motivo());
    }
    return risposta;
}

int Intero(ipp_t *raccolta, const char *nome)
{
    ipp_attribute_t *valore = ippFindAttribute(raccolta, nome, IPP_TAG_INTEGER);
    return valore == nullptr ? 0 : ippGetInteger(valore, 0);
}

/// One that is a range, or that is missing, gives an empty size.
QSizeF MisuraDi(ipp_t *lati)
{
    return QSizeF(Intero(lati, "x-dimension"), Intero(lati, "y-dimension")) / UnitaPerMillimetro;
}

QList<QSizeF> MisureDi(ipp_t *risposta)
{
    QList<QSizeF> misure;
    ipp_attribute_t *carta = ippFindAttribute(risposta, PropriaCarta, IPP_TAG_BEGIN_COLLECTION);
    ipp_attribute_t *propria =
        carta == nullptr
            ? nullptr
            : ippFindAttribute(ippGetCollection(carta, 0), "media-size", IPP_TAG_BEGIN_COLLECTION);
    ipp_attribute_t *tutte = ippFindAttribute(risposta, Carte, IPP_TAG_BEGIN_COLLECTION);
    for (ipp_attribute_t *elenco : {propria, tutte}) {
        for (int i = 0; elenco != nullptr && i < ippGetCount(elenco); ++i) {
            const QSizeF misura = MisuraDi(ippGetCollection(elenco, i));
            if (!misura.isEmpty()) {
                misure.append(misura);
            }
        }
    }
    return misure;
}

/// The old name for a sheet that lies, "landscape", becomes the one by which all else goes: it wins
/// over the queue's own, and would turn a page that lies already once more.
void TraduceOrizzontale(SistemaDiStampa::Impostazioni &impostazioni)
{
    static constexpr std::array Negazioni{"false", "off", "no"};
    const auto si = [](const QByteArray &valore) {
        return std::none_of(Negazioni.begin(), Negazioni.end(), [&](const char *negazione) {
            return valore.compare(negazione, Qt::CaseInsensitive) == 0;
        });
    };
    const auto vecchio = std::find_if(impostazioni.cbegin(), impostazioni.cend(),
                                      [](const auto &i) { return i.first == "landscape"; });
    if (vecchio == impostazioni.cend()) {
        return;
    }
    const bool orizzontale = si(vecchio->second);
    impostazioni.erase(vecchio);
    if (orizzontale) {
        impostazioni.removeIf([](const auto &i) { return i.first == Orientamento; });
        impostazioni.emplace_back(Orientamento, QByteArray::number(IPP_ORIENT_LANDSCAPE));
    }
}

/// The settings that the user has given the queue, but those that would scale or crowd the sheet.
/// All queues are asked for, because a library that misses one goes to look for it on the network,
/// for as long as that takes.
SistemaDiStampa::Impostazioni ImpostazioniDi(http_t *http, const QString &coda)
{
    static constexpr std::array Riducono{"fit-to-page",     "fitplot",   "scaling",      "fill",
                                         "natural-scaling", "number-up", "print-scaling"};
    cups_dest_t *code = nullptr;
    const int numero = cupsGetDests2(http, &code);
    SistemaDiStampa::Impostazioni impostazioni;
    const QByteArray istanza = coda.section(PrimaDellIstanza, 1).toUtf8();
    const cups_dest_t *trovata =
        cupsGetDest(NomeDellaCoda(coda).constData(),
                    istanza.isEmpty() ? nullptr : istanza.constData(), numero, code);
    for (int i = 0; trovata != nullptr && i < trovata->num_options; ++i) {
        const cups_option_t &opzione = trovata->options[i];
        if (std::none_of(Riducono.begin(), Riducono.end(),
                         [&](const char *nome) { return qstricmp(nome, opzione.name) == 0; })) {
            impostazioni.emplace_back(opzione.name, opzione.value);
        }
    }
    cupsFreeDests(numero, code);
    TraduceOrizzontale(impostazioni);
    return impostazioni;
}

SistemaDiStampa::Verso VersoDi(const SistemaDiStampa::Impostazioni &impostazioni)
{
    using SistemaDiStampa::Verso;
    const auto orientamento = std::find_if(impostazioni.begin(), impostazioni.end(),
                                           [](const auto &i) { return i.first == Orientamento; });
    switch (orientamento == impostazioni.end() ? 0 : orientamento->second.toInt()) {
    case IPP_ORIENT_LANDSCAPE:
        return Verso::ASinistra;
    case IPP_ORIENT_REVERSE_LANDSCAPE:
        return Verso::ADestra;
    case IPP_ORIENT_REVERSE_PORTRAIT:
        return Verso::Capovolto;
    default:
        return Verso::Diritto;
    }
}

/// The settings of one job, as the library wants them.
class OpzioniDelLavoro
{
public:
    explicit OpzioniDelLavoro(const SistemaDiStampa::Impostazioni &impostazioni)
    {
        for (const auto &[nome, valore] : impostazioni) {
            Aggiunge(nome, valore);
        }
        Aggiunge("print-scaling", "none");
        Aggiunge("number-up", "1");
    }
    ~OpzioniDelLavoro() { cupsFreeOptions(numero_, opzioni_); }
    Q_DISABLE_COPY_MOVE(OpzioniDelLavoro)

    int Numero() const { return numero_; }
    cups_option_t *Opzioni() const { return opzioni_; }

private:
    void Aggiunge(const char *nome, const char *valore)
    {
        numero_ = cupsAddOption(nome, valore, numero_, &opzioni_);
    }

    int numero_ = 0;
    cups_option_t *opzioni_ = nullptr;
};

/// Request and document in one; null when no answer comes. The library's own ways to print first
/// look for the queue again, on a connection that waits for minutes.
Risposta Spedisce(http_t *http, ipp_t *domanda, const QString &coda, const QByteArray &pdf)
{
    constexpr qsizetype Pezzo = 65536;
    const QByteArray risorsa = "/printers/" + NomeDellaCoda(coda).toPercentEncoding();
    http_status_t stato =
        cupsSendRequest(http, domanda, risorsa.constData(),
                        ippLength(domanda) + static_cast<std::size_t>(pdf.size()));
    for (qsizetype dato = 0; stato == HTTP_STATUS_CONTINUE && dato < pdf.size(); dato += Pezzo) {
        stato = cupsWriteRequestData(http, pdf.constData() + dato,
                                     static_cast<std::size_t>(std::min(Pezzo, pdf.size() - dato)));
    }
    return Risposta(stato == HTTP_STATUS_ERROR ? nullptr
                                               : cupsGetResponse(http, risorsa.constData()));
}

} // namespace

ErroreSistema SistemaDiStampa::NonRisponde()
{
    return Errore(QStringLiteral("Il sistema di stampa non risponde.\nControllare la stampante e "
                                 "ripetere; nulla è stato stampato."));
}

bool SistemaDiStampa::Risponde(int attesa)
{
    QElapsedTimer tempo;
    tempo.start();
    const Connessione connessione = Connette(attesa, attesa);
    if (!connessione) {
        return !tempo.hasExpired(attesa / 2);
    }
    const Risposta risposta(
        cupsDoRequest(connessione.get(), ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/"));
    return risposta != nullptr;
}

SistemaDiStampa::FoglioDellaCoda SistemaDiStampa::ChiedeFoglio(const QString &coda)
{
    constexpr std::array<const char *, 2> Attributi{PropriaCarta, Carte};
    const Connessione connessione = ConnetteAdOgniCosto();
    const Risposta risposta = Chiede(connessione.get(), coda, Attributi);
    FoglioDellaCoda foglio;
    foglio.Misure = MisureDi(risposta.get());
    foglio.DellUtente = ImpostazioniDi(connessione.get(), coda);
    foglio.Pagina = VersoDi(foglio.DellUtente);
    return foglio;
}

void SistemaDiStampa::Prepara(const QString &coda)
{
    constexpr std::array<const char *, 1> Attributi{"printer-is-accepting-jobs"};
    const Connessione connessione = ConnetteAdOgniCosto();
    const Risposta risposta = Chiede(connessione.get(), coda, Attributi);
    ipp_attribute_t *accetta = ippFindAttribute(risposta.get(), Attributi.front(), IPP_TAG_BOOLEAN);
    if (accetta != nullptr && ippGetBoolean(accetta, 0) == 0) {
        throw NonPresa(coda, QString::fromUtf8(CodaChiusa));
    }
}

void SistemaDiStampa::Consegna(const QString &coda, const QString &titolo,
                               const Impostazioni &impostazioni, const QByteArray &pdf)
{
    const Connessione connessione = ConnetteAdOgniCosto(AttesaLavoro);
    const OpzioniDelLavoro opzioni(impostazioni);
    const Risposta domanda(Domanda(IPP_OP_PRINT_JOB, coda));
    ippAddString(domanda.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 titolo.toUtf8().constData());
    ippAddString(domanda.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                 CUPS_FORMAT_PDF);
    cupsEncodeOptions2(domanda.get(), opzioni.Numero(), opzioni.Opzioni(), IPP_TAG_OPERATION);
    cupsEncodeOptions2(domanda.get(), opzioni.Numero(), opzioni.Opzioni(), IPP_TAG_JOB);
    QElapsedTimer tempo;
    tempo.start();
    const Risposta risposta = Spedisce(connessione.get(), domanda.get(), coda, pdf);
    if (!risposta && tempo.hasExpired(qint64(AttesaLavoro) * Secondo)) {
        throw NonSiSa(); // the library does not tell silence from a refusal
    }
    if (!risposta || ippGetStatusCode(risposta.get()) > IPP_STATUS_OK_CONFLICTING) {
        throw NonPresa(coda, Motivo());
    }
}

#endif

// The default printer where CUPS prints.

#include "print/Stampanti.h"
#include "sistema/SistemaDiStampa.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinterInfo>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

namespace {

/// The default printer as the print system tells it.
struct Trovata
{
    QString Coda;
    QPageLayout Foglio;
    int PuntiPerPollice = 0;
    SistemaDiStampa::Impostazioni DellUtente;
};

void Attende(const AttesaDelSistema &attende, const LavoroDelSistema &lavoro)
{
    if (attende) {
        attende(lavoro);
    } else {
        lavoro([] { return false; });
    }
}

/// The whole sheet is made in memory, where no temporary folder can be full, and then given to the
/// print system in one conversation. Qt's own printer object would do the same by way of a file,
/// but keeps to itself whether the job was taken, and waits minutes for a system that hangs.
class CodaCups : public Destinazione
{
public:
    CodaCups(const Trovata &trovata, AttesaDelSistema attende)
        : coda_(trovata.Coda)
        , impostazioni_(trovata.DellUtente)
        , attende_(std::move(attende))
        , scrittore_(&pdf_)
    {
        pdf_.open(QIODevice::WriteOnly);
        scrittore_.setResolution(trovata.PuntiPerPollice);
        scrittore_.setPageLayout(trovata.Foglio);
    }
    QPagedPaintDevice &Dispositivo() override { return scrittore_; }
    QString Nome() const override { return coda_; }
    void Titolo(const QString &titolo) override
    {
        titolo_ = titolo;
        scrittore_.setTitle(titolo);
    }
    void Prepara() override
    {
        Attende(attende_, [coda = coda_](const std::function<bool()> & /*abbandonato*/) {
            SistemaDiStampa::Prepara(coda);
        });
    }
    ErroreSistema Rifiuto() const override { return ErroreSistema(ErroreSistema::Stampante); }
    void Consegna() override
    {
        try {
            Attende(attende_, [coda = coda_, titolo = titolo_, impostazioni = impostazioni_,
                               pdf = pdf_.data()](const std::function<bool()> &abbandonato) {
                if (!abbandonato()) {
                    SistemaDiStampa::Consegna(coda, titolo, impostazioni, pdf);
                }
            });
        } catch (const StampaAnnullata &) {
            // What has gone to a print system that is silent cannot be fetched back.
            throw ConsegnaAbbandonata();
        }
    }

private:
    QString coda_;
    SistemaDiStampa::Impostazioni impostazioni_;
    AttesaDelSistema attende_;
    QString titolo_;
    QBuffer pdf_;
    QPdfWriter scrittore_;
};

/// The margins of the upright sheet as a page has them that is turned on it.
QMarginsF Girati(const QMarginsF &m, SistemaDiStampa::Verso verso)
{
    switch (verso) {
    case SistemaDiStampa::Verso::ASinistra:
        return {m.bottom(), m.left(), m.top(), m.right()};
    case SistemaDiStampa::Verso::ADestra:
        return {m.top(), m.right(), m.bottom(), m.left()};
    case SistemaDiStampa::Verso::Capovolto:
        return {m.right(), m.bottom(), m.left(), m.top()};
    case SistemaDiStampa::Verso::Diritto:
        break;
    }
    return m;
}

/// The page of the printer object, but of the very size that the queue knows for it: a PDF that
/// differs by a point is centred on the sheet, half a point off.
QPageLayout FoglioDi(const QPrinter &stampante, const SistemaDiStampa::FoglioDellaCoda &coda)
{
    constexpr double StessoFoglio = 1; // mm
    QPageLayout foglio = stampante.pageLayout();
    const QMarginsF margini = foglio.margins(QPageLayout::Point);
    const QSizeF misura = foglio.pageSize().size(QPageSize::Millimeter);
    const auto scarto = [&](const QSizeF &nota) {
        return std::max(std::abs(nota.width() - misura.width()),
                        std::abs(nota.height() - misura.height()));
    };
    const auto nota =
        std::min_element(coda.Misure.begin(), coda.Misure.end(),
                         [&](const QSizeF &a, const QSizeF &b) { return scarto(a) < scarto(b); });
    if (nota != coda.Misure.end() && scarto(*nota) < StessoFoglio) {
        foglio.setPageSize(
            QPageSize(*nota, QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
    }
    const bool giace = coda.Pagina == SistemaDiStampa::Verso::ASinistra ||
                       coda.Pagina == SistemaDiStampa::Verso::ADestra;
    return {foglio.pageSize(), giace ? QPageLayout::Landscape : QPageLayout::Portrait,
            Girati(margini, coda.Pagina), QPageLayout::Point};
}

/// silenzio: ms after which a print system that does not answer is given up.
Trovata Cerca(int silenzio, const std::function<bool()> &abbandonato)
{
    // Before Qt asks, which cannot be given up once it has begun.
    if (!SistemaDiStampa::Risponde(silenzio)) {
        throw SistemaDiStampa::NonRisponde();
    }
    if (abbandonato()) {
        throw StampaAnnullata(); // nobody hears it
    }
    const std::unique_ptr<QPrinter> stampante = Stampanti::NativaPredefinita();
    const QString coda = stampante->printerName();
    const SistemaDiStampa::FoglioDellaCoda foglio = SistemaDiStampa::ChiedeFoglio(coda);
    return {coda, FoglioDi(*stampante, foglio), stampante->resolution(), foglio.DellUtente};
}

Trovata CercaAttendendo(int silenzio, const AttesaDelSistema &attende)
{
    const auto trovata = std::make_shared<Trovata>(); // the work's own too, when it is given up
    Attende(attende, [trovata, silenzio](const std::function<bool()> &abbandonato) {
        *trovata = Cerca(silenzio, abbandonato);
    });
    return *trovata;
}

constexpr int Attimo = 300;    // ms, for who only wants to know something, and prints nothing
constexpr int Pazienza = 3000; // ms

} // namespace

QString Stampanti::NomePredefinita()
{
    if (!SistemaDiStampa::Risponde(Attimo)) {
        throw SistemaDiStampa::NonRisponde();
    }
    return QPrinterInfo::defaultPrinterName();
}

QPageLayout Stampanti::PaginaPredefinita(const AttesaDelSistema &attende)
{
    return CercaAttendendo(Attimo, attende).Foglio;
}

std::unique_ptr<Destinazione> Stampanti::Predefinita(const AttesaDelSistema &attende)
{
    return std::make_unique<CodaCups>(CercaAttendendo(Pazienza, attende), attende);
}

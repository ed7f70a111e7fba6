// The default printer where CUPS prints.

#include "print/Stampanti.h"
#include "sistema/SistemaDiStampa.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinterInfo>

#include <algorithm>
#include <cmath>

namespace {

/// The whole sheet is made in memory, where no temporary folder can be full, and then given to the
/// print system in one conversation. Qt's own printer object would do the same by way of a file,
/// but keeps to itself whether the job was taken, and waits minutes for a system that hangs.
class CodaCups : public Destinazione
{
public:
    CodaCups(const QString &coda, const QPageLayout &foglio, int puntiPerPollice,
             SistemaDiStampa::Impostazioni impostazioni)
        : coda_(coda)
        , impostazioni_(std::move(impostazioni))
        , scrittore_(&pdf_)
    {
        pdf_.open(QIODevice::WriteOnly);
        scrittore_.setResolution(puntiPerPollice);
        scrittore_.setPageLayout(foglio);
    }
    QPagedPaintDevice &Dispositivo() override { return scrittore_; }
    QString Nome() const override { return coda_; }
    void Titolo(const QString &titolo) override
    {
        titolo_ = titolo;
        scrittore_.setTitle(titolo);
    }
    void Prepara() override { SistemaDiStampa::Prepara(coda_); }
    ErroreSistema Rifiuto() const override { return ErroreSistema(ErroreSistema::Stampante); }
    void Consegna() override
    {
        SistemaDiStampa::Consegna(coda_, titolo_, impostazioni_, pdf_.data());
    }

private:
    QString coda_;
    SistemaDiStampa::Impostazioni impostazioni_;
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

} // namespace

namespace {

/// For who only wants to know something, and prints nothing.
void RispondeSubito()
{
    constexpr int Attimo = 300; // ms
    if (!SistemaDiStampa::Risponde(Attimo)) {
        throw SistemaDiStampa::NonRisponde();
    }
}

} // namespace

QString Stampanti::NomePredefinita()
{
    RispondeSubito();
    return QPrinterInfo::defaultPrinterName();
}

QPageLayout Stampanti::PaginaPredefinita()
{
    RispondeSubito();
    return Predefinita()->Dispositivo().pageLayout();
}

std::unique_ptr<Destinazione> Stampanti::Predefinita()
{
    // Before Qt asks, which cannot be given up once it has begun.
    if (!SistemaDiStampa::Risponde()) {
        throw SistemaDiStampa::NonRisponde();
    }
    const std::unique_ptr<QPrinter> stampante = NativaPredefinita();
    const QString coda = stampante->printerName();
    const SistemaDiStampa::FoglioDellaCoda foglio = SistemaDiStampa::ChiedeFoglio(coda);
    return std::make_unique<CodaCups>(coda, FoglioDi(*stampante, foglio), stampante->resolution(),
                                      foglio.DellUtente);
}

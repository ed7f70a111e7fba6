#include "print/Stampanti.h"

#include "base/ErroreSistema.h"
#include "grafica/Testo.h"

#include <QFile>
#include <QFontDatabase>
#include <QHash>
#include <QPdfWriter>
#include <QPrinterInfo>

#include <algorithm>

namespace {

constexpr int RisoluzionePdf = 1200;

QString PrimaDellaFonderia(const QString &famiglia)
{
    return famiglia.endsWith(u']') ? famiglia.section(QLatin1String(" ["), 0, 0) : QString();
}

/// A family that two foundries ship is told twice, as "Name [foundry]"; both are asked for, and
/// known to other systems, by the name alone. Told by its twin: asking the system for each would
/// hold up the first window.
QStringList SenzaFonderie(const QStringList &famiglie)
{
    QHash<QString, int> omonime;
    for (const QString &famiglia : famiglie) {
        ++omonime[PrimaDellaFonderia(famiglia)];
    }
    QStringList nomi;
    for (const QString &famiglia : famiglie) {
        const QString nome = PrimaDellaFonderia(famiglia);
        nomi.append(!nome.isEmpty() && omonime.value(nome) > 1 ? nome : famiglia);
    }
    return nomi;
}

/// The writer of PDF files tells nobody when the disk is full: its last words must be there.
bool PdfIntero(const QString &percorso)
{
    constexpr qint64 Coda = 64;
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) && file.seek(std::max<qint64>(0, file.size() - Coda)) &&
           file.readAll().contains("%%EOF");
}

class FilePdf : public Destinazione
{
public:
    FilePdf(const QString &percorso, const QPageLayout &pagina)
        : percorso_(percorso)
        , scrittore_(percorso)
    {
        scrittore_.setResolution(RisoluzionePdf);
        scrittore_.setPageLayout(pagina);
    }
    QPagedPaintDevice &Dispositivo() override { return scrittore_; }
    QString Nome() const override { return percorso_; }
    void Titolo(const QString &titolo) override { scrittore_.setTitle(titolo); }
    ErroreSistema Rifiuto() const override
    {
        return {ErroreSistema::AccessoFile, QStringLiteral("impossibile scrivere ") + percorso_};
    }
    void Consegna() override
    {
        if (!PdfIntero(percorso_)) {
            throw Rifiuto();
        }
    }

private:
    QString percorso_;
    QPdfWriter scrittore_;
};

} // namespace

QStringList Stampanti::ElencoFont()
{
    QStringList famiglie;
    const QStringList tutte = QFontDatabase::families();
    for (const QString &famiglia : tutte) {
        if (!QFontDatabase::isPrivateFamily(famiglia) && !FontGenerico(famiglia)) {
            famiglie.append(famiglia);
        }
    }
    famiglie = SenzaFonderie(famiglie) + FontSostituitiAllaPari();
    famiglie.removeDuplicates();
    famiglie.sort(Qt::CaseInsensitive);
    return famiglie;
}

std::unique_ptr<QPrinter> Stampanti::NativaPredefinita()
{
    const QPrinterInfo informazioni = QPrinterInfo::defaultPrinter();
    if (informazioni.isNull()) {
        throw ErroreSistema(
            ErroreSistema::Stampante,
            QStringLiteral("Nessuna stampante predefinita è impostata.\nSceglierne una nelle "
                           "impostazioni del sistema, alla voce Stampanti, e ripetere."));
    }
    auto stampante = std::make_unique<QPrinter>(informazioni, QPrinter::HighResolution);
    // A name that the system no longer knows silently leaves a PDF writer or another printer.
    if (!stampante->isValid() || stampante->outputFormat() != QPrinter::NativeFormat ||
        stampante->printerName() != informazioni.printerName()) {
        throw ErroreSistema(ErroreSistema::Stampante,
                            QStringLiteral("La stampante \"%1\" non è più disponibile.")
                                .arg(informazioni.printerName()));
    }
    stampante->setFullPage(false);
    // A new printer object is on A4 whatever the printer holds, and the sheet would be shrunk.
    stampante->setPageSize(informazioni.defaultPageSize());
    // It also keeps 10 points free even where the printer could reach further.
    const QPageLayout pagina = stampante->pageLayout();
    stampante->setPageMargins(pagina.minimumMargins(), pagina.units());
    return stampante;
}

std::unique_ptr<Destinazione> Stampanti::SuPdf(const QString &percorso)
{
    return SuPdf(percorso,
                 QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
}

std::unique_ptr<Destinazione> Stampanti::SuPdf(const QString &percorso, const QPageLayout &pagina)
{
    return std::make_unique<FilePdf>(percorso, pagina);
}

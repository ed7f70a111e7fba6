#include "platform/Stampanti.h"

#include "base/ErroreSistema.h"
#include "platform/Testo.h"

#include <QFile>
#include <QFontDatabase>
#include <QPrinterInfo>

#include <algorithm>

namespace {

constexpr QLatin1String Arial("Arial");
constexpr int RisoluzionePdf = 1200;

/// The writer of PDF files tells nobody when the disk is full: its last words must be there.
bool PdfIntero(const QString &percorso)
{
    constexpr qint64 Coda = 64;
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) && file.seek(std::max<qint64>(0, file.size() - Coda)) &&
           file.readAll().contains("%%EOF");
}

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
    if (!famiglie.contains(Arial, Qt::CaseInsensitive) && FontSostituitoAllaPari(Arial)) {
        famiglie.append(Arial);
    }
    famiglie.sort(Qt::CaseInsensitive);
    return famiglie;
}

std::unique_ptr<QPrinter> Stampanti::Predefinita()
{
    const QPrinterInfo informazioni = QPrinterInfo::defaultPrinter();
    if (informazioni.isNull()) {
        throw ErroreSistema(ErroreSistema::Stampante);
    }
    auto stampante = std::make_unique<QPrinter>(informazioni, QPrinter::HighResolution);
    // A name that the system no longer knows silently leaves a PDF writer or another printer.
    if (!stampante->isValid() || stampante->outputFormat() != QPrinter::NativeFormat ||
        stampante->printerName() != informazioni.printerName()) {
        throw ErroreSistema(ErroreSistema::Stampante);
    }
    stampante->setFullPage(false);
    // A new printer object keeps 10 points free even where the printer could reach further.
    const QPageLayout pagina = stampante->pageLayout();
    stampante->setPageMargins(pagina.minimumMargins(), pagina.units());
    return stampante;
}

std::unique_ptr<QPrinter> Stampanti::SuPdf(const QString &percorso)
{
    auto stampante = std::make_unique<QPrinter>(QPrinter::HighResolution);
    stampante->setOutputFormat(QPrinter::PdfFormat);
    stampante->setOutputFileName(percorso);
    stampante->setResolution(RisoluzionePdf);
    stampante->setPageSize(QPageSize(QPageSize::A4));
    stampante->setFullPage(false);
    stampante->setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter);
    return stampante;
}

bool Stampanti::Pronta(const QPrinter &stampante)
{
    return stampante.outputFormat() != QPrinter::NativeFormat ||
           !QPrinterInfo::printerInfo(stampante.printerName()).isNull();
}

bool Stampanti::Consegnata(const QPrinter &stampante)
{
    if (stampante.printerState() == QPrinter::Error ||
        stampante.printerState() == QPrinter::Aborted) {
        return false;
    }
    return stampante.outputFormat() == QPrinter::NativeFormat
               ? Pronta(stampante)
               : PdfIntero(stampante.outputFileName());
}

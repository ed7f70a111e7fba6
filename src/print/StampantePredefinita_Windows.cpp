// The default printer where the system spools what is painted.

#include "print/Stampanti.h"

#include <QPrinterInfo>

namespace {

/// The spooler takes the sheet while it is painted, and the printer object knows of its failures.
class CodaDiSistema : public Destinazione
{
public:
    explicit CodaDiSistema(std::unique_ptr<QPrinter> stampante)
        : stampante_(std::move(stampante))
    {
    }
    QPagedPaintDevice &Dispositivo() override { return *stampante_; }
    QString Nome() const override { return stampante_->printerName(); }
    bool FigureSuPuntiInteri() const override { return true; }
    void Titolo(const QString &titolo) override { stampante_->setDocName(titolo); }
    ErroreSistema Rifiuto() const override
    {
        return {ErroreSistema::Stampante,
                QStringLiteral("La stampante \"%1\" non ha accettato la stampa.\nIl foglio non "
                               "uscirà.")
                    .arg(stampante_->printerName())};
    }
    void Consegna() override
    {
        if (stampante_->printerState() == QPrinter::Error ||
            stampante_->printerState() == QPrinter::Aborted) {
            throw Rifiuto();
        }
    }
    void Rinuncia() override { stampante_->abort(); }

private:
    std::unique_ptr<QPrinter> stampante_;
};

} // namespace

QString Stampanti::NomePredefinita()
{
    return QPrinterInfo::defaultPrinterName();
}

// The spooler is on this computer, and its printer object belongs to the thread that paints.
QPageLayout Stampanti::PaginaPredefinita(const AttesaDelSistema & /*attende*/)
{
    return NativaPredefinita()->pageLayout();
}

std::unique_ptr<Destinazione> Stampanti::Predefinita(const AttesaDelSistema & /*attende*/)
{
    return std::make_unique<CodaDiSistema>(NativaPredefinita());
}

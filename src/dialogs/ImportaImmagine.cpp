#include "dialogs/ImportaImmagine.h"

#include "base/ErroreSistema.h"
#include "dialogs/NomeImportato.h"
#include "finestre/Attesa.h"
#include "finestre/Messaggi.h"
#include "finestre/Sfoglia.h"
#include "grafica/Immagini.h"
#include "model/FoglioCarta.h"
#include "sistema/Disco.h"
#include "sistema/Percorsi.h"

#include <QLabel>

#include <new>

namespace {

/// Of that size, or of what the sheet has room for.
QSizeF SulFoglio(const QSizeF &misura)
{
    const QSizeF foglio(FoglioCarta::Larghezza, FoglioCarta::Altezza);
    return misura.boundedTo(foglio) == misura ? misura : misura.scaled(foglio, Qt::KeepAspectRatio);
}

QString Motivo(const ErroreSistema &errore)
{
    return errore.numero == ErroreSistema::ImmagineNonValida
               ? QStringLiteral(
                     "il file è danneggiato, o non è un'immagine in un formato leggibile")
               : errore.Messaggio();
}

} // namespace

struct ImportaImmagine::Importata
{
    QString Fonte;
    std::shared_ptr<const FiguraEsterna> Figura; ///< null until the file has been read
    QString Percorso;                            ///< in the models folder
    FiguraEsterna::Tipo tipo = FiguraEsterna::Tipo::Disegno;
    QSize Pixel;
};

ImportaImmagine::ImportaImmagine(StatoProgramma &stato, QWidget *finestra)
    : stato_(stato)
    , finestra_(finestra)
{
}

ImportaImmagine::~ImportaImmagine() = default;

QString ImportaImmagine::Importa()
{
    importata_.reset();
    const QString fonte = ChiedeFile();
    if (fonte.isEmpty()) {
        return {};
    }
    QString motivo;
    try {
        return Porta(fonte);
    } catch (const Immagini::TroppoGrande &) {
        motivo = QStringLiteral("l'immagine è troppo grande per essere letta");
    } catch (const ErroreSistema &errore) {
        motivo = Motivo(errore);
    } catch (const std::bad_alloc &) {
        motivo = QStringLiteral("l'immagine è troppo grande per la memoria del computer");
    }
    importata_.reset();
    Messaggi::Mostra(finestra_,
                     QStringLiteral("impossibile importare l'immagine %1\n%2").arg(fonte, motivo));
    return {};
}

QString ImportaImmagine::ChiedeFile()
{
    Sfoglia sfoglia(finestra_);
    sfoglia.FileEntrata()->setText(QString());
    sfoglia.ImpostaPartenza(stato_.CartellaImportate);
    sfoglia.ImpostaMiniature(FiguraEsterna::Miniatura); // of all that can be brought in
    RisultatoSfoglia().clear();
    sfoglia.exec();
    const QString scelto = RisultatoSfoglia();
    if (!scelto.isEmpty()) {
        stato_.CartellaImportate = sfoglia.CartellaAperta();
    }
    return scelto;
}

QString ImportaImmagine::Porta(const QString &fonte)
{
    auto importata = std::make_unique<Importata>();
    importata->Fonte = fonte;
    importata_ = std::move(importata);
    const std::optional<FiguraEsterna::File> file = Converte(SulFoglio);
    if (!file) {
        importata_.reset();
        return {};
    }
    const QString nome = NomeImportato::Libero(NomeImportato::Base(fonte),
                                               file->tipo == FiguraEsterna::Tipo::Fotografia
                                                   ? QStringLiteral(".jpg")
                                                   : QStringLiteral(".bmp"),
                                               NomiPresi());
    importata_->Percorso = stato_.CartellaModelli + nome;
    importata_->tipo = file->tipo;
    importata_->Pixel = file->Pixel;
    Disco::Sostituisce(importata_->Percorso, file->Byte);
    return nome;
}

std::optional<FiguraEsterna::File>
ImportaImmagine::Converte(const FiguraEsterna::Riquadro &riquadro)
{
    // The work may outlive this object, when it is given up: it has nothing of it.
    struct Lavoro
    {
        std::shared_ptr<const FiguraEsterna> Figura;
        FiguraEsterna::File File;
    };
    const auto lavoro = std::make_shared<Lavoro>();
    lavoro->Figura = importata_->Figura;
    const std::optional<FiguraEsterna::Tipo> tipo =
        importata_->Figura == nullptr ? std::nullopt
                                      : std::optional<FiguraEsterna::Tipo>(importata_->tipo);
    const bool finita =
        EsegueConAttesa(finestra_, QStringLiteral("Importazione di %1").arg(importata_->Fonte),
                        [lavoro, fonte = importata_->Fonte, riquadro,
                         tipo](const LavoroInDisparte::Annullato &annullato) {
                            if (lavoro->Figura == nullptr) {
                                lavoro->Figura = std::make_shared<const FiguraEsterna>(fonte);
                            }
                            lavoro->File = lavoro->Figura->Converte(riquadro, annullato, tipo);
                        });
    if (!finita) {
        return std::nullopt;
    }
    importata_->Figura = lavoro->Figura;
    return lavoro->File;
}

QStringList ImportaImmagine::NomiPresi() const
{
    QStringList presi = Percorsi::FileConModello(stato_.CartellaModelli, QStringLiteral("*"),
                                                 Percorsi::NomiConPunto::Sempre) +
                        Percorsi::SottoCartelle(stato_.CartellaModelli);
    for (QString &nome : presi) {
        nome = Percorsi::EstraeNomeFile(nome);
    }
    // A file that an image lacks would belong to that image.
    for (int i = 1; i <= stato_.Aperto().UltimoSlot(Genere::Immagine); ++i) {
        presi.append(stato_.Aperto().Immagini[i].Nome);
    }
    return presi;
}

bool ImportaImmagine::Adegua(const QSizeF &riquadro)
{
    if (importata_ == nullptr || riquadro.isEmpty()) {
        return false;
    }
    const auto sulRiquadro = [riquadro](const QSizeF &) { return SulFoglio(riquadro); };
    const std::optional<FiguraEsterna::File> file = Converte(sulRiquadro);
    if (!file || file->Pixel == importata_->Pixel) {
        return false;
    }
    Disco::Sostituisce(importata_->Percorso, file->Byte);
    importata_->Pixel = file->Pixel;
    return true;
}

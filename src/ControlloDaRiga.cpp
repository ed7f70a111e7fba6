#include "ControlloDaRiga.h"

#include "UscitaStandard.h"
#include "base/ErroreSistema.h"
#include "controllo/ControlloDelModello.h"
#include "documento/Documento.h"
#include "editor/CartaDellaStampante.h"
#include "finestre/Guardia.h"
#include "finestre/Messaggi.h"
#include "model/FileModello.h"
#include "preview/SfondoDelModello.h"
#include "print/Stampanti.h"
#include "sistema/ElencoModelli.h"
#include "sistema/Percorsi.h"

#include <QFileInfo>

#include <algorithm>

namespace {

QString In(const QString &cartella, const QString &nome)
{
    return cartella.endsWith(Percorsi::Separatore()) ? cartella + nome
                                                     : cartella + Percorsi::Separatore() + nome;
}

QStringList ModelliDi(const QString &cartella)
{
    QStringList modelli;
    const QStringList nomi =
        Percorsi::FileConModello(cartella, u'*' + QString(ElencoModelli::Estensione));
    for (const QString &nome : nomi) {
        modelli.append(In(cartella, nome));
    }
    return modelli;
}

QStringList ModelliDellArchivio(const QString &cartella)
{
    QStringList modelli = ModelliDi(cartella);
    const QString ini = Percorsi::Risolve(In(cartella, QStringLiteral("ini")));
    if (modelli.isEmpty() && QFileInfo(ini).isDir()) {
        modelli = ModelliDi(ini);
    }
    if (modelli.isEmpty()) {
        throw ErroreSistema(ErroreSistema::FileNonTrovato,
                            QStringLiteral("nessun modello in ") + cartella);
    }
    return modelli;
}

/// Without a printer, or one that answers at once, nothing is said about paper.
std::optional<FoglioStampante> FoglioPredefinito()
{
    try {
        return CartaDellaStampante::Foglio(
            CartaDellaStampante::Contorni(Stampanti::PaginaPredefinita()));
    } catch (const ErroreSistema &) {
        return std::nullopt;
    }
}

class Giro
{
public:
    void Percorso(const QString &percorso)
    {
        const QString trovato = Percorsi::Risolve(percorso);
        const QStringList modelli =
            QFileInfo(trovato).isDir() ? ModelliDellArchivio(trovato) : QStringList{percorso};
        for (const QString &modello : modelli) {
            if (!Guardia(nullptr, [&] { Controlla(modello); })) {
                stato_ = ControlloDaRiga::Illeggibile;
            }
        }
    }
    void Illeggibile() { stato_ = ControlloDaRiga::Illeggibile; }
    int Stato() const { return stato_; }

private:
    void Controlla(const QString &file)
    {
        const QString percorso = Percorsi::Risolve(file);
        const QFileInfo informazioni(percorso);
        Modello modello;
        modello.NomeFile = informazioni.fileName();
        if (!FileModello::LeggeModello(modello, percorso, [](const QString &testo) {
                Messaggi::Mostra(nullptr, testo);
            })) {
            Illeggibile();
            return;
        }
        Documento documento;
        documento.Prende(std::move(modello), false);
        ControlloDelModello controllo(informazioni.absolutePath() + Percorsi::Separatore(),
                                      SfondoDelModello::File);
        controllo.ImpostaFoglio(foglio_);
        Racconta(file, controllo.Esamina(documento));
    }

    void Racconta(const QString &file, const QList<Rilievo> &rilievi)
    {
        for (const Rilievo &rilievo : rilievi) {
            UscitaStandard::Scrive(file + QStringLiteral(": ") + rilievo.SuUnaLinea() + u'\n');
            stato_ = std::max(stato_, ControlloDaRiga::ConRilievi);
        }
    }

    std::optional<FoglioStampante> foglio_ = FoglioPredefinito();
    int stato_ = ControlloDaRiga::NessunRilievo;
};

} // namespace

int ControlloDaRiga::Esegue(const QStringList &percorsi)
{
    Messaggi::SoloErroreStandard();
    Giro giro;
    for (const QString &percorso : percorsi) {
        if (!Guardia(nullptr, [&] { giro.Percorso(percorso); })) {
            giro.Illeggibile();
        }
    }
    // Findings that nobody gets are no "none".
    return UscitaStandard::Consegnata() ? giro.Stato() : Illeggibile;
}

// What is wrong with the place of an element, among others and on the paper.

#include "controllo/Regole.h"

#include "model/Numeri.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace {

constexpr double Tolleranza = 0.1;   // mm: what nobody sees on paper
constexpr double StessoInizio = 0.5; // mm between texts that begin at the same place

/// Two texts are read as one line where the lower one begins within the upper half of the other.
bool StessaLinea(const QRectF &uno, const QRectF &altro)
{
    const double comune = std::min(uno.bottom(), altro.bottom()) - std::max(uno.top(), altro.top());
    return comune > std::min(uno.height(), altro.height()) / 2;
}

bool StessoPunto(const QRectF &uno, const QRectF &altro)
{
    return std::abs(uno.left() - altro.left()) <= StessoInizio;
}

bool Dentro(const QRectF &dentro, const QRectF &fuori)
{
    return fuori.adjusted(-Tolleranza, -Tolleranza, Tolleranza, Tolleranza).contains(dentro);
}

/// By how much the rectangle sticks out of the area, and where, in words.
struct Sporgenza
{
    double Millimetri = 0;
    QString Lato;
};

Sporgenza MaggioreSporgenza(const QRectF &posto, const QRectF &area)
{
    const std::array sporgenze{
        Sporgenza{area.left() - posto.left(), QStringLiteral("a sinistra")},
        Sporgenza{posto.right() - area.right(), QStringLiteral("a destra")},
        Sporgenza{area.top() - posto.top(), QStringLiteral("in alto")},
        Sporgenza{posto.bottom() - area.bottom(), QStringLiteral("in basso")},
    };
    return *std::max_element(sporgenze.begin(), sporgenze.end(),
                             [](const Sporgenza &una, const Sporgenza &altra) {
                                 return una.Millimetri < altra.Millimetri;
                             });
}

/// What each element covers on paper; a text that begins on what the printer reaches and runs off
/// its right edge is told as a text that is too long.
std::map<Chiave, QRectF> Ingombri(const Esame &esame, const QRectF &stampabile)
{
    std::map<Chiave, QRectF> ingombri;
    for (const auto *testi : {&esame.Testi(), &esame.Vuoti()}) {
        for (const TestoSulFoglio &testo : *testi) {
            QRectF posto = testo.Posto;
            if (posto.left() < stampabile.right()) {
                posto.setRight(std::min(posto.right(), stampabile.right()));
            }
            ingombri.emplace(testo.Di, posto);
        }
    }
    const auto unisce = [&](Chiave chiave, const QRectF &posto) {
        if (posto.isValid()) {
            QRectF &tutto = ingombri[chiave]; // a frame may have a caption already
            tutto = tutto.isValid() ? tutto.united(posto) : posto;
        }
    };
    for (const Chiave &chiave : esame.Presenti(Genere::Cornice)) {
        unisce(chiave, Esame::Bordo(esame.Aperto().Cornici[chiave.indice]));
    }
    for (const FiguraSulFoglio &figura : esame.Figure()) {
        unisce(figura.Di, figura.Posto);
    }
    return ingombri;
}

void GiudicaPosto(Esame &esame, Chiave chiave, const QRectF &posto, const FoglioStampante &foglio)
{
    if (!posto.intersects(foglio.Carta)) {
        esame.Aggiunge(
            SpecieRilievo::FuoriDallaCarta, chiave,
            QStringLiteral("è fuori dalla carta della stampante e non si stampa: spostare "
                           "l'elemento sul foglio."));
    } else if (!Dentro(posto, foglio.Carta)) {
        const Sporgenza sporgenza = MaggioreSporgenza(posto, foglio.Carta);
        esame.Aggiunge(
            SpecieRilievo::FuoriDallaCarta, chiave,
            QStringLiteral("esce di %1 mm dalla carta della stampante, %2, e quella parte non si "
                           "stampa: spostare o rimpicciolire l'elemento.")
                .arg(Numeri::Decimi(sporgenza.Millimetri), sporgenza.Lato));
    } else if (!Dentro(posto, foglio.Stampabile)) {
        const Sporgenza sporgenza = MaggioreSporgenza(posto, foglio.Stampabile);
        esame.Aggiunge(
            SpecieRilievo::NelBordo, chiave,
            QStringLiteral("sta per %1 mm nel bordo che la stampante non raggiunge, %2, e quella "
                           "parte non si stampa: spostare o rimpicciolire l'elemento.")
                .arg(Numeri::Decimi(sporgenza.Millimetri), sporgenza.Lato));
    }
}

/// The nearest text that begins to the right of this one on its line; null when there is none.
const TestoSulFoglio *Vicino(const Esame &esame, const TestoSulFoglio &testo)
{
    const TestoSulFoglio *vicino = nullptr;
    for (const TestoSulFoglio &altro : esame.Testi()) {
        if (altro.Posto.left() > testo.Posto.left() && !StessoPunto(altro.Posto, testo.Posto) &&
            StessaLinea(altro.Posto, testo.Posto) &&
            (vicino == nullptr || altro.Posto.left() < vicino->Posto.left())) {
            vicino = &altro;
        }
    }
    return vicino;
}

bool StesseLinee(const Cornice &una, const Cornice &altra)
{
    const QRectF prima = Esame::Bordo(una);
    const QRectF seconda = Esame::Bordo(altra);
    return una.TipoBordo() == altra.TipoBordo() && std::abs(una.X - altra.X) <= Tolleranza &&
           std::abs(una.Y - altra.Y) <= Tolleranza &&
           std::abs(una.Larghezza - altra.Larghezza) <= Tolleranza &&
           // Of a top line the height shows nowhere.
           (una.TipoBordo() == Cornice::Bordatura::LineaSuperiore ||
            std::abs(una.Altezza - altra.Altezza) <= Tolleranza) &&
           prima.isValid() && seconda.isValid();
}

} // namespace

void Regole::TestiSuiVicini(Esame &esame)
{
    for (const TestoSulFoglio &testo : esame.Testi()) {
        const TestoSulFoglio *vicino = Vicino(esame, testo);
        if (vicino == nullptr || testo.Posto.right() <= vicino->Posto.left() + Tolleranza) {
            continue;
        }
        esame.Aggiunge(
            SpecieRilievo::TestoSulVicino, testo.Di,
            QStringLiteral("il testo è largo %1 mm, ma dopo %2 mm comincia %3 e sulla carta i due "
                           "si stampano uno sull'altro: accorciare il testo, rimpicciolirlo o "
                           "allontanare i due elementi.")
                .arg(Numeri::Decimi(testo.Posto.width()),
                     Numeri::Decimi(vicino->Posto.left() - testo.Posto.left()),
                     esame.NomeConArticolo(vicino->Di)));
    }
}

void Regole::TestiOltreLaStampa(Esame &esame)
{
    if (!esame.Stanti().Foglio) {
        return;
    }
    const double fine = esame.Stanti().Foglio->Stampabile.right();
    for (const TestoSulFoglio &testo : esame.Testi()) {
        if (testo.Posto.left() < fine && testo.Posto.right() > fine + Tolleranza) {
            esame.Aggiunge(
                SpecieRilievo::TestoOltreStampabile, testo.Di,
                QStringLiteral("il testo è largo %1 mm e finisce %2 mm oltre l'area stampabile, "
                               "dove resta tagliato: accorciarlo, rimpicciolirlo o spostarlo a "
                               "sinistra.")
                    .arg(Numeri::Decimi(testo.Posto.width()),
                         Numeri::Decimi(testo.Posto.right() - fine)));
        }
    }
}

void Regole::FuoriPosto(Esame &esame)
{
    const std::optional<FoglioStampante> &foglio = esame.Stanti().Foglio;
    if (!foglio) {
        return;
    }
    for (const auto &[chiave, posto] : Ingombri(esame, foglio->Stampabile)) {
        GiudicaPosto(esame, chiave, posto, *foglio);
    }
}

void Regole::TestiSovrapposti(Esame &esame)
{
    const std::vector<TestoSulFoglio> &testi = esame.Testi();
    for (auto primo = testi.begin(); primo != testi.end(); ++primo) {
        for (auto secondo = std::next(primo); secondo != testi.end(); ++secondo) {
            if (!StessoPunto(primo->Posto, secondo->Posto) ||
                !StessaLinea(primo->Posto, secondo->Posto)) {
                continue;
            }
            const bool primoStretto = primo->Posto.width() < secondo->Posto.width();
            const TestoSulFoglio &coperto = primoStretto ? *primo : *secondo;
            const TestoSulFoglio &coprente = primoStretto ? *secondo : *primo;
            esame.Aggiunge(
                SpecieRilievo::Coperto, coperto.Di,
                QStringLiteral("comincia nello stesso punto in cui comincia %1 e sulla carta i due "
                               "testi si stampano uno sull'altro: spostarne uno o non stamparlo.")
                    .arg(esame.NomeConArticolo(coprente.Di)));
        }
    }
}

void Regole::ImmaginiSovrapposte(Esame &esame)
{
    const std::vector<FiguraSulFoglio> &figure = esame.Figure();
    for (const FiguraSulFoglio &figura : figure) {
        const auto sopra =
            std::find_if(figure.begin(), figure.end(), [&](const FiguraSulFoglio &altra) {
                // Of two at the same place the later one is told.
                return !(altra.Di == figura.Di) && Dentro(figura.Posto, altra.Posto) &&
                       (altra.Di < figura.Di || !Dentro(altra.Posto, figura.Posto));
            });
        if (sopra != figure.end()) {
            esame.Aggiunge(SpecieRilievo::Coperto, figura.Di,
                           QStringLiteral("sta per intero dentro %1 e sulla carta le due figure si "
                                          "confondono: spostarla o eliminarne una.")
                               .arg(esame.NomeConArticolo(sopra->Di)));
        }
    }
}

void Regole::CorniciUguali(Esame &esame)
{
    const QList<Chiave> cornici = esame.Presenti(Genere::Cornice);
    for (auto primo = cornici.begin(); primo != cornici.end(); ++primo) {
        const Cornice &prima = esame.Aperto().Cornici[primo->indice];
        const auto sopra = std::find_if(std::next(primo), cornici.end(), [&](Chiave altra) {
            return StesseLinee(prima, esame.Aperto().Cornici[altra.indice]);
        });
        if (sopra == cornici.end()) {
            continue;
        }
        // The later one is printed over the first, but hides it only where it is as thick.
        const bool nascosta = esame.Aperto().Cornici[sopra->indice].SpessoreBordo() + Tolleranza >=
                              prima.SpessoreBordo();
        esame.Aggiunge(
            SpecieRilievo::Coperto, nascosta ? *primo : *sopra,
            QStringLiteral("ha lo stesso posto e le stesse misure che ha %1 e sulla carta se ne "
                           "vede una sola: spostarla o eliminarla.")
                .arg(esame.NomeConArticolo(nascosta ? *sopra : *primo)));
    }
}

void Regole::SottoUnaFigura(Esame &esame)
{
    constexpr double MezzoFoglio = 105; // mm: wider than a logo
    const std::vector<FiguraSulFoglio> &figure = esame.Figure();
    for (const TestoSulFoglio &testo : esame.Testi()) {
        const auto sopra =
            std::find_if(figure.begin(), figure.end(), [&](const FiguraSulFoglio &figura) {
                return figura.Posto.width() <= MezzoFoglio && Dentro(testo.Posto, figura.Posto);
            });
        if (sopra != figure.end()) {
            esame.Aggiunge(SpecieRilievo::Coperto, testo.Di,
                           QStringLiteral("sta per intero sotto %1 e sulla carta non si legge dove "
                                          "la figura è scura: spostare l'uno o l'altra.")
                               .arg(esame.NomeConArticolo(sopra->Di)));
        }
    }
}

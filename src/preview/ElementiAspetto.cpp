// How the controls take their look and their place from the model.

#include "base/ErroreSistema.h"
#include "documento/StatoProgramma.h"
#include "grafica/Immagini.h"
#include "grafica/Testo.h"
#include "model/Tavolozza.h"
#include "preview/ElementiFoglio.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr QChar RitornoCarrello(13);

constexpr QPointF AngoloScritta(Cornice::RientroScritta, Cornice::DiscesaScritta);

} // namespace

void ElementiFoglio::Imposta(Genere genere, int i)
{
    switch (genere) {
    case Genere::Campo:
        ImpostaCampo(i);
        break;
    case Genere::Cornice:
        ImpostaCornice(i);
        break;
    case Genere::Immagine:
        ImpostaImmagine(i);
        break;
    }
}

void ElementiFoglio::ImpostaCampo(int i)
{
    const Campo &campo = stato_.Aperto().Campi[i];
    ControlloTesto &C1 = ControlloTestoDi(Genere::Campo, i);
    C1.ImpostaTesto({campo.Font, campo.Grassetto != Falso, campo.Barrato()}, campo.Testo,
                    PuntiDiTesto(campo.Dimensione) / stato_.zoom, {0, 0});
    C1.Colloca(QRectF(C1.Posto().topLeft(), C1.MisuraTesto()));
    contorni_.Segue({Genere::Campo, i}, C1.Posto());
    C1.ImpostaSuggerimento(QStringLiteral("campo ") + campo.Nome + QStringLiteral("  - ") +
                           campo.Descrizione + QStringLiteral(" -'") + RitornoCarrello +
                           QString::number(campo.Maschera.size()) + u' ' + campo.Maschera);
}

void ElementiFoglio::ImpostaCornice(int i)
{
    const Cornice &cornice = stato_.Aperto().Cornici[i];
    ControlloTesto &C2 = ControlloTestoDi(Genere::Cornice, i);
    C2.ImpostaColore(QColor(Tavolozza::RgbONero(cornice.ColoreTesto)));
    C2.ImpostaTesto({cornice.Font, cornice.Grassetto != Falso, false}, cornice.Testo,
                    PuntiDiTesto(cornice.Dimensione) / stato_.zoom, AngoloScritta / stato_.zoom);
    C2.ImpostaBordo(cornice.BordoInAnteprima(), QColor(Tavolozza::RgbONero(cornice.ColoreCornice)));
    QString suggerimento = QStringLiteral("Cornice ") + cornice.Nome;
    if (cornice.Bordo == 0) {
        suggerimento += QStringLiteral(" (senza bordo)");
    }
    C2.ImpostaSuggerimento(suggerimento);
}

void ElementiFoglio::ImpostaImmagine(int i)
{
    ControlloElemento &C3 = Elemento(Genere::Immagine, i);
    C3.ImpostaBordo(true, Qt::darkGray);
    C3.ImpostaSuggerimento(QStringLiteral("Immagine ") + stato_.Aperto().Immagini[i].Nome);
}

void ElementiFoglio::CaricaImmagine(int i)
{
    QString percorso;
    try {
        percorso =
            Immagini::PercorsoInCartella(stato_.CartellaModelli, stato_.Aperto().Immagini[i].Nome);
    } catch (const ErroreSistema &) {
        // A name that is no file of the folder (a new image has none yet) is like a picture that
        // cannot be loaded: no message, an empty box.
        percorso.clear();
    }
    static_cast<RiquadroImmagine &>(Elemento(Genere::Immagine, i)).Carica(percorso);
}

QRectF ElementiFoglio::PostoDa(Genere genere, int i) const
{
    const Modello &modello = stato_.Aperto();
    const double z = stato_.zoom;
    const auto posto = [z](const auto &e) {
        return QRectF(e.X / z, e.Y / z, std::max(0.0, e.Larghezza / z),
                      std::max(0.0, e.Altezza / z));
    };
    switch (genere) {
    case Genere::Campo: {
        const Campo &campo = modello.Campi[i];
        return {QPointF(campo.X / z, campo.Y / z), ControlloTestoDi(genere, i).MisuraTesto()};
    }
    case Genere::Cornice:
        return posto(modello.Cornici[i]);
    case Genere::Immagine:
        break;
    }
    return posto(modello.Immagini[i]);
}

void ElementiFoglio::ScriveSuggerimentoManiglia(Genere genere, int i)
{
    static constexpr std::array<QLatin1String, Generi.size()> Sposta{
        QLatin1String("sposta campo "), QLatin1String("sposta Cornice "),
        QLatin1String("sposta Immagine ")};
    // A field writes its hint onto the frames' handle: the fields' own never has one.
    Maniglia &conSuggerimento =
        ManigliaDi(genere == Genere::Immagine ? Genere::Immagine : Genere::Cornice);
    conSuggerimento.ImpostaSuggerimento(Sposta.at(Posto(genere)) + stato_.Aperto().Nome(genere, i));
}

void ElementiFoglio::Posiziona(Genere genere, int i)
{
    stato_.documento.Colloca({genere, i});
    if (genere == Genere::Immagine) {
        CaricaImmagine(i);
    }
    Ricolloca(genere, i);
    ScriveSuggerimentoManiglia(genere, i);
}

void ElementiFoglio::Ricolloca(Genere genere, int i)
{
    const QRectF posto = PostoDa(genere, i);
    Elemento(genere, i).Colloca(posto);
    contorni_.Segue({genere, i}, posto);
    AncoraManiglia(genere, i);
}

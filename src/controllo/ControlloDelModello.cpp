#include "controllo/ControlloDelModello.h"

#include "base/ErroreSistema.h"
#include "controllo/Rilievi.h"
#include "documento/Documento.h"
#include "grafica/Immagini.h"
#include "grafica/Testo.h"

ControlloDelModello::ControlloDelModello(QString cartellaModelli,
                                         FileDellaScansione fileDellaScansione)
    : cartellaModelli_(std::move(cartellaModelli))
    , fileDellaScansione_(std::move(fileDellaScansione))
{
}

void ControlloDelModello::Rivede()
{
    testi_.Dimentica();
    immagini_.Dimentica();
    scansioni_.Dimentica();
}

QList<Rilievo> ControlloDelModello::Esamina(const Documento &documento)
{
    Condizioni condizioni;
    condizioni.HaFont = FontDisponibile;
    condizioni.Misura = [this](const AspettoTesto &aspetto) { return Noto(aspetto).Misura; };
    condizioni.CaratteriMancanti = [this](const AspettoTesto &aspetto) {
        return Noto(aspetto).Mancanti;
    };
    condizioni.Immagine = [this](const QString &nome) { return Immagine(nome); };
    condizioni.Scansione = [this](const ImmagineSfondo &sfondo) { return Scansione(sfondo); };
    condizioni.Foglio = foglio_;
    condizioni.FuoriRiga = documento.FuoriRiga();
    QList<Rilievo> rilievi = Rilievi(documento.Aperto(), condizioni);
    testi_.FineGiro();
    immagini_.FineGiro();
    scansioni_.FineGiro();
    return rilievi;
}

const ControlloDelModello::Testo &ControlloDelModello::Noto(const AspettoTesto &aspetto)
{
    return testi_.Di(aspetto, [&] {
        return Testo{
            MisuraTesto(aspetto.Testo, aspetto.Font, aspetto.Dimensione, aspetto.Grassetto),
            CaratteriSenzaFigura(aspetto.Testo, aspetto.Font, aspetto.Grassetto)};
    });
}

StatoFile ControlloDelModello::Immagine(const QString &nome)
{
    return immagini_.Di(nome, [&] {
        try {
            return file_.Immagine(Immagini::PercorsoInCartella(cartellaModelli_, nome));
        } catch (const ErroreSistema &) {
            return StatoFile::Mancante; // the name leads out of the folder: it is not printed
        }
    });
}

StatoFile ControlloDelModello::Scansione(const ImmagineSfondo &sfondo)
{
    return scansioni_.Di(sfondo.File,
                         [&] { return FileVisti::Esiste(fileDellaScansione_(sfondo)); });
}

#include "print/StampaProva.h"

#include "base/ErroreSistema.h"
#include "grafica/Immagini.h"
#include "model/Tavolozza.h"
#include "print/Pagina.h"

#include <cmath>
#include <new>

namespace {

/// Millimetres as the diagnostic shows them.
QString Millimetri(double millimetri)
{
    return Numeri::NumeroPiano(millimetri, QLocale::c());
}

} // namespace

StampaProva::StampaProva(const Modello &modello, QString cartellaModelli, Pagina &pagina,
                         Numeri::Avviso avviso)
    : modello_(modello)
    , cartellaModelli_(std::move(cartellaModelli))
    , pagina_(pagina)
    , avviso_(std::move(avviso))
{
}

void StampaProva::Stampa(bool StampaNome)
{
    for (int i = 1; i <= modello_.UltimoSlot(Genere::Campo); ++i) {
        if (modello_.Presente(Genere::Campo, i)) {
            StampaCampo(i, StampaNome);
        }
    }
    for (int i = 1; i <= modello_.UltimoSlot(Genere::Cornice); ++i) {
        if (modello_.Presente(Genere::Cornice, i)) {
            StampaCornice(i);
        }
    }
    PrevedeImmagini();
    for (int i = 1; i <= modello_.UltimoSlot(Genere::Immagine); ++i) {
        if (modello_.Presente(Genere::Immagine, i)) {
            StampaImmagine(i);
        }
    }
}

void StampaProva::StampaCampo(int i, bool StampaNome)
{
    const Campo &campo = modello_.Campi[i];
    if (campo.NonStampato()) {
        return;
    }
    if (pagina_.Larghezza() < campo.X) {
        avviso_(QStringLiteral("x"));
    }
    if (pagina_.Altezza() < campo.Y) {
        avviso_(QStringLiteral("y"));
    }
    pagina_.Font(campo.Font, campo.Dimensione, campo.Grassetto != Falso);
    pagina_.Posizione(campo.X, campo.Y);
    pagina_.Stampa(StampaNome ? campo.Nome : campo.Testo);
}

void StampaProva::StampaCornice(int i)
{
    const Cornice &cornice = modello_.Cornici[i];
    const Scritta scritta{cornice.Testo, cornice.Font, cornice.Dimensione,
                          cornice.Grassetto != Falso, Tavolozza::RgbONero(cornice.ColoreTesto)};
    Linea(cornice.X, cornice.Y, cornice.X + cornice.Larghezza, cornice.Y + cornice.Altezza, scritta,
          Tavolozza::RgbONero(cornice.ColoreCornice), cornice.TipoBordo(), cornice.SpessoreBordo());
}

void StampaProva::Linea(double x1, double y1, double x2, double y2, const Scritta &scritta, QRgb P,
                        Cornice::Bordatura tipo, double spessore)
{
    if (!scritta.Testo.isEmpty()) {
        const QRgb prima = pagina_.Colore();
        pagina_.Font(scritta.Font, scritta.Dimensione, scritta.Grassetto);
        pagina_.Colore(scritta.Colore);
        pagina_.Posizione(x1 + Cornice::RientroScritta, y1 + Cornice::DiscesaScritta);
        pagina_.Stampa(scritta.Testo);
        pagina_.Colore(prima);
    }
    if (tipo == Cornice::Bordatura::Rettangolo) {
        pagina_.Barra(x1, y1, x2 - x1, spessore, P);
        pagina_.Barra(x1, y1, spessore, y2 - y1, P);
        pagina_.Barra(x2, y1, spessore, y2 - y1, P);
        // Longer by its own thickness: the right bar stands beyond x2, and the corner is closed.
        pagina_.Barra(x1, y2, x2 - x1 + spessore, spessore, P);
    } else if (tipo == Cornice::Bordatura::LineaSuperiore) {
        pagina_.Barra(x1, y1, x2 - x1, spessore, P);
    }
}

void StampaProva::StampaImmagine(int i)
{
    const Immagine &immagine = modello_.Immagini[i];
    try {
        const Collocata figura = Colloca(immagine);
        StampaImmagineX(figura.Percorso, figura.Posto.x(), figura.Posto.y(), figura.Posto.width(),
                        figura.Posto.height());
    } catch (const ErroreSistema &errore) {
        // One picture never stops the print: the user is told, and the next element follows.
        avviso_(Diagnosi(immagine, errore));
    } catch (const std::bad_alloc &) {
        avviso_(Diagnosi(immagine, ErroreSistema(ErroreSistema::MemoriaEsaurita)));
    }
}

StampaProva::Collocata StampaProva::Colloca(const Immagine &immagine) const
{
    const auto intero = [](double millimetri) { return int(Numeri::Intero16(millimetri)); };
    const int x = intero(immagine.X);
    const int y = intero(immagine.Y);
    const int larghezza = intero(immagine.Larghezza);
    const int altezza = intero(immagine.Altezza);
    return {Immagini::PercorsoInCartella(cartellaModelli_, immagine.Nome),
            QRect(x, y, larghezza, altezza)};
}

void StampaProva::PrevedeImmagini()
{
    for (int i = 1; i <= modello_.UltimoSlot(Genere::Immagine); ++i) {
        if (!modello_.Presente(Genere::Immagine, i)) {
            continue;
        }
        try {
            const Collocata figura = Colloca(modello_.Immagini[i]);
            pagina_.PrevedeFigura(figura.Percorso,
                                  MisuraFigura(figura.Posto.width(), figura.Posto.height()));
        } catch (const ErroreSistema &) {
            continue; // told when its turn to be printed comes
        }
    }
}

void StampaProva::StampaImmagineX(const QString &NomeFile, int xMillimetri, int yMillimetri,
                                  int WidthMillimetri, int HeightMillimetri)
{
    const QSizeF misura = MisuraFigura(WidthMillimetri, HeightMillimetri);
    if (misura.isEmpty()) {
        throw ErroreSistema(ErroreSistema::ArgomentoNonValido);
    }
    pagina_.FiguraAnd(NomeFile, QRectF(QPointF(xMillimetri, yMillimetri), misura));
}

QSizeF StampaProva::MisuraFigura(double larghezza, double altezza) const
{
    return larghezza == 0 && altezza == 0 ? QSizeF(pagina_.Larghezza(), pagina_.Altezza())
                                          : QSizeF(larghezza, altezza);
}

QString StampaProva::Diagnosi(const Immagine &immagine, const ErroreSistema &errore) const
{
    const auto intero = [](double v) { return Millimetri(Numeri::PariPiuVicino(v)); };
    const QSizeF misura = MisuraFigura(Numeri::PariPiuVicino(immagine.Larghezza),
                                       Numeri::PariPiuVicino(immagine.Altezza));
    return QStringLiteral("StampaImmagine:  pos. mm. x,y=%1,%2\n"
                          " area stampabile Width,Height = %3, %4\n"
                          " xtar=%5, %6\n"
                          "ERRORE %7 %8\n%9")
        .arg(intero(immagine.X), intero(immagine.Y), Millimetri(pagina_.Larghezza()),
             Millimetri(pagina_.Altezza()), Millimetri(misura.width()), Millimetri(misura.height()),
             QString::number(errore.numero), errore.descrizione, cartellaModelli_ + immagine.Nome);
}

void StampaModello(const Modello &modello, const QString &cartellaModelli,
                   Destinazione &destinazione, bool StampaNome, const Numeri::Avviso &avviso,
                   const Avanzamento &avanza)
{
    destinazione.Titolo(modello.NomeFile);
    Pagina pagina(destinazione);
    pagina.Segue(avanza);
    StampaProva(modello, cartellaModelli, pagina, avviso).Stampa(StampaNome);
    pagina.Fine();
}

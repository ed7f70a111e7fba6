#include "print/Retino.h"

#include "model/Numeri.h"
#include "print/Pagina.h"

#include <QString>

namespace {

constexpr int Centimetro = 10;
constexpr int MezzoCentimetro = 5;
constexpr double TaccaNumerata = 3;   ///< mm
constexpr double TaccaMezza = 2;      ///< mm
constexpr double PrimaDellaTacca = 2; ///< mm between a number's start and its tick
constexpr double MargineTacche = 5;   ///< mm kept free at the far end of the rulers
constexpr double MargineGriglia = 15; ///< mm kept free around the grid
constexpr double RientroBordo = 1;    ///< mm by which the far edges fall inside the page
constexpr int PrimaLinea = 20;        ///< mm
constexpr int PuntiNumeri = 8;

/// mm; the page's measures come from points and inches, and a bound that falls on a whole
/// millimetre must not lose its line to the last digit of a double.
constexpr double ScartoDiConversione = 1e-6;

/// Calls azione for primo, primo + 10 ... up to fine.
template <typename Azione>
void OgniCentimetro(int primo, double fine, Azione azione)
{
    for (int v = primo; v <= fine + ScartoDiConversione; v += Centimetro) {
        azione(v);
    }
}

void Bordo(Pagina &pagina, double w, double h)
{
    pagina.Linea(0, 0, w, 0);
    pagina.Linea(0, 0, 0, h);
    pagina.Linea(w - RientroBordo, 0, w - RientroBordo, h);
    pagina.Linea(0, h - RientroBordo, w, h - RientroBordo);
}

void RigheNumerate(Pagina &pagina, double w, double h)
{
    // The top ruler's numbers alone may reach half a millimetre further.
    OgniCentimetro(Centimetro, Numeri::PariPiuVicino(w - MargineTacche), [&](int x) {
        pagina.Linea(x, 0, x, TaccaNumerata);
        pagina.Posizione(x - PrimaDellaTacca, pagina.Posizione().y());
        pagina.Stampa(QString::number(x));
    });
    OgniCentimetro(Centimetro, h - MargineTacche, [&](int y) {
        pagina.Linea(0, y, TaccaNumerata, y);
        pagina.Posizione(pagina.Posizione().x(), y - PrimaDellaTacca);
        pagina.Stampa(QString::number(y));
    });
}

void TaccheMezze(Pagina &pagina, double w, double h)
{
    OgniCentimetro(MezzoCentimetro, w - MargineTacche,
                   [&](int x) { pagina.Linea(x, 0, x, TaccaMezza); });
    OgniCentimetro(MezzoCentimetro, h - MargineTacche,
                   [&](int y) { pagina.Linea(0, y, TaccaMezza, y); });
}

void Griglia(Pagina &pagina, double w, double h)
{
    OgniCentimetro(PrimaLinea, w - MargineGriglia,
                   [&](int x) { pagina.Linea(x, MargineGriglia, x, h - MargineGriglia); });
    OgniCentimetro(PrimaLinea, h - MargineGriglia,
                   [&](int y) { pagina.Linea(MargineGriglia, y, w - MargineGriglia, y); });
}

} // namespace

void StampaRetino(Destinazione &destinazione)
{
    destinazione.Titolo(QStringLiteral("Griglia millimetrata"));
    Pagina pagina(destinazione);
    pagina.Font(QStringLiteral("arial"), PuntiNumeri);
    const double w = pagina.Larghezza();
    const double h = pagina.Altezza();
    Bordo(pagina, w, h);
    RigheNumerate(pagina, w, h);
    TaccheMezze(pagina, w, h);
    Griglia(pagina, w, h);
    pagina.Fine();
}

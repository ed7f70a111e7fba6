#include "support/ModelloDiProva.h"

namespace {

QString Testo(const char *radice, int i)
{
    return QString::fromUtf8(radice) + QString::number(i);
}

void RiempieTestata(Modello &modello)
{
    modello.Tipo = QStringLiteral("Fattura accompagnatoria, città e €");
    modello.Sfondo = {QStringLiteral("scansione.jpg"), QStringLiteral("210"),
                      QStringLiteral("297,5"),         QStringLiteral("0"),
                      QStringLiteral("-1.5"),          1};
    modello.Righe = {95.5, 230, 4.25, 3.5, QStringLiteral("segue...")};
}

Campo CampoDiProva(int i)
{
    Campo campo;
    campo.Nome = i % 3 == 0 ? Testo("R_Quantità", i) : Testo("Campo", i);
    campo.Testo = Testo("prova € ", i);
    campo.Maschera = i % 5 == 0 ? QStringLiteral("No") : QStringLiteral("##.###,##");
    campo.X = 10.5 + i;
    campo.Y = i * 2.75 - 20;
    campo.Font = QStringLiteral("Arial");
    campo.Dimensione = static_cast<qint16>(6 + i % 20);
    campo.Grassetto = i % 2 == 0 ? Vero : Falso;
    campo.MascheraDefault = QString(30, u'$');
    campo.Descrizione = Testo("descrizione del campo ", i);
    return campo;
}

Cornice CorniceDiProva(int i)
{
    Cornice cornice;
    cornice.Nome = Testo("Cornice", i);
    cornice.Testo = Testo("Quantità ", i);
    cornice.X = i * 1.125;
    cornice.Y = 250.0 - i;
    cornice.Font = QStringLiteral("Times New Roman");
    cornice.Dimensione = static_cast<qint16>(8 + i % 12);
    cornice.Grassetto = i % 2 == 0 ? Falso : Vero;
    cornice.Descrizione = Testo("descrizione della cornice ", i);
    cornice.Altezza = 10.0 + i;
    cornice.Larghezza = 20.75 + i;
    cornice.Bordo = i % 3 + 0.5;
    cornice.ColoreCornice = static_cast<qint16>(i % 16);
    cornice.ColoreTesto = static_cast<qint16>(15 - i % 16);
    return cornice;
}

Immagine ImmagineDiProva(int i)
{
    Immagine immagine;
    immagine.Nome = Testo("logo", i) + QLatin1String(".jpg");
    immagine.X = -5.5 + i;
    immagine.Y = 12.0 + i;
    immagine.Descrizione = Testo("descrizione dell'immagine ", i);
    immagine.Altezza = 15.25 + i;
    immagine.Larghezza = 40.0 + i;
    immagine.Bordo = i * 0.5;
    return immagine;
}

} // namespace

Modello ModelloDiProva(int perGenere)
{
    Modello modello;
    RiempieTestata(modello);
    for (int i = 1; i <= perGenere; ++i) {
        modello.Campi[i] = CampoDiProva(i);
        modello.Cornici[i] = CorniceDiProva(i);
        modello.Immagini[i] = ImmagineDiProva(i);
    }
    modello.NumCampi = static_cast<qint16>(perGenere);
    modello.NumCornici = static_cast<qint16>(perGenere);
    modello.NumImmagini = static_cast<qint16>(perGenere);
    return modello;
}

void DiventaImporto(Campo &campo)
{
    campo.Testo = QStringLiteral("1.234,50");
    campo.Maschera = QStringLiteral("###.###,###");
    campo.MascheraDefault = campo.Maschera;
    campo.Dimensione = 9;
    campo.Grassetto = Vero;
}

#include "grafica/DisegnoSvg.h"

#include "base/ErroreSistema.h"
#include "base/Unita.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QXmlStreamReader>

#include <array>

namespace {

constexpr qint64 PartiMassime = 200'000; // drawn, those that stand for others counted each time
/// Parts inside each other, and parts that stand for others: Qt goes down as deep.
constexpr int ProfonditaMassima = 500;
constexpr double MillimetriPerPixel = Unita::MillimetriPerPollice / 96;

[[noreturn]] void NonValido()
{
    throw ErroreSistema(ErroreSistema::ImmagineNonValida);
}

struct Parte
{
    qsizetype Fine = 0; ///< behind the last part inside this one
    QString Usa;        ///< the name of the part that is drawn here again
};

struct Disegno
{
    QList<Parte> Parti;
    QHash<QString, qsizetype> Nomi;
    QSizeF Millimetri;
};

/// A length in mm; 0 for one that says nothing by itself ("100%").
double Lunghezza(QString testo)
{
    struct Misura
    {
        QLatin1String Nome;
        double Millimetri;
    };
    static constexpr std::array<Misura, 6> Misure{
        {{QLatin1String("mm"), 1},
         {QLatin1String("cm"), 10},
         {QLatin1String("in"), 25.4},
         {QLatin1String("pt"), Unita::MillimetriPerPunto},
         {QLatin1String("pc"), Unita::MillimetriPerPunto * 12},
         {QLatin1String("px"), MillimetriPerPixel}}};
    testo = testo.trimmed();
    double unita = MillimetriPerPixel;
    for (const Misura &misura : Misure) {
        if (testo.endsWith(misura.Nome)) {
            testo.chop(misura.Nome.size());
            unita = misura.Millimetri;
            break;
        }
    }
    bool numero = false;
    const double valore = testo.trimmed().toDouble(&numero);
    return numero && valore > 0 ? valore * unita : 0;
}

QSizeF Grandezza(const QXmlStreamAttributes &attributi)
{
    const QSizeF detta(Lunghezza(attributi.value(QLatin1String("width")).toString()),
                       Lunghezza(attributi.value(QLatin1String("height")).toString()));
    const QStringList vista = attributi.value(QLatin1String("viewBox"))
                                  .toString()
                                  .replace(u',', u' ')
                                  .split(u' ', Qt::SkipEmptyParts);
    if (!detta.isEmpty() || vista.size() != 4) {
        return detta;
    }
    const QSizeF lati(vista[2].toDouble(), vista[3].toDouble());
    if (lati.isEmpty()) {
        return {};
    }
    // One side that is stated gives the other by the proportions of the view.
    return detta.width() > 0 ? QSizeF(detta.width(), detta.width() * lati.height() / lati.width())
           : detta.height() > 0
               ? QSizeF(detta.height() * lati.width() / lati.height(), detta.height())
               : lati * MillimetriPerPixel;
}

QString Riferimento(const QXmlStreamAttributes &attributi)
{
    const QStringView altrove =
        attributi.value(QLatin1String("http://www.w3.org/1999/xlink"), QLatin1String("href"));
    return (altrove.isEmpty() ? attributi.value(QLatin1String("href")) : altrove).toString();
}

Disegno Legge(const QByteArray &byte)
{
    Disegno disegno;
    QList<qsizetype> aperte;
    QXmlStreamReader lettore(byte);
    while (!lettore.atEnd()) {
        switch (lettore.readNext()) {
        case QXmlStreamReader::StartElement: {
            const QXmlStreamAttributes attributi = lettore.attributes();
            const QString riferimento = Riferimento(attributi);
            const bool figura = lettore.name() == QLatin1String("image");
            if (disegno.Parti.size() >= PartiMassime || aperte.size() >= ProfonditaMassima ||
                (aperte.isEmpty() && lettore.name() != QLatin1String("svg")) ||
                (figura && !riferimento.startsWith(QLatin1String("data:")))) {
                NonValido();
            }
            if (aperte.isEmpty()) {
                disegno.Millimetri = Grandezza(attributi);
            }
            const QString nome = attributi.value(QLatin1String("id")).toString();
            if (!nome.isEmpty()) {
                disegno.Nomi.insert(nome, disegno.Parti.size());
            }
            aperte.append(disegno.Parti.size());
            const bool usa = lettore.name() == QLatin1String("use");
            disegno.Parti.append({0, usa ? riferimento.mid(1) : QString()});
            break;
        }
        case QXmlStreamReader::EndElement:
            disegno.Parti[aperte.takeLast()].Fine = disegno.Parti.size();
            break;
        default:
            break;
        }
    }
    if (lettore.hasError() || disegno.Parti.isEmpty()) {
        NonValido();
    }
    return disegno;
}

/// Counts what is drawn of the drawing, and gives up where it is too much or never ends.
class Conto
{
public:
    explicit Conto(const Disegno &disegno)
        : disegno_(disegno)
    {
    }

    qint64 Di(qsizetype parte, int profondita = 0)
    {
        if (profondita > ProfonditaMassima) {
            NonValido();
        }
        if (const auto noto = noti_.constFind(parte); noto != noti_.constEnd()) {
            return *noto;
        }
        noti_.insert(parte, PartiMassime + 1); // what draws itself has no end
        qint64 totale = 0;
        for (qsizetype i = parte; i < disegno_.Parti[parte].Fine; ++i) {
            const QString &usa = disegno_.Parti[i].Usa;
            const qsizetype usata = usa.isEmpty() ? -1 : disegno_.Nomi.value(usa, -1);
            totale += 1 + (usata < 0 ? 0 : Di(usata, profondita + 1));
            if (totale > PartiMassime || ++guardate_ > PartiMassime * 10) {
                NonValido();
            }
        }
        noti_.insert(parte, totale);
        return totale;
    }

private:
    const Disegno &disegno_;
    QHash<qsizetype, qint64> noti_;
    qint64 guardate_ = 0;
};

} // namespace

QSizeF DisegnoSvg::Millimetri(const QByteArray &byte)
{
    const Disegno disegno = Legge(byte);
    Conto(disegno).Di(0);
    return disegno.Millimetri;
}

#include "documento/CorrezioneGriglia.h"

#include "documento/Passo.h"
#include "model/Numeri.h"

#include <QStringList>
#include <QtMath>

#include <algorithm>
#include <cmath>

using namespace CorrezioneGriglia;

namespace {

/// By which two marks may be nearer, further or turned before it is more than reading a ruler.
constexpr double Tolleranza = 0.5; // mm
/// A sheet that is fed askew is never so much.
constexpr double GradiMassimi = 5;
/// What decimal fractions lose as doubles.
constexpr double Scarto = 1e-9;

QString Verso(int millimetri, const QString &positivo, const QString &negativo)
{
    return QStringLiteral("%1 mm %2")
        .arg(QString::number(std::abs(millimetri)), millimetri > 0 ? positivo : negativo);
}

/// The place that a text box of the scan holds, moved.
QString Spostato(const QString &posto, int millimetri)
{
    return Numeri::NumeroPiano(Numeri::Val(posto) + millimetri, QLocale::c());
}

Esito DueSegni(const Segno &primo, const Segno &secondo)
{
    const QPointF voluto = secondo.Atteso - primo.Atteso;
    const QPointF uscito = secondo.Uscito - primo.Uscito;
    Esito esito;
    esito.Voluta = std::hypot(voluto.x(), voluto.y());
    esito.Uscita = std::hypot(uscito.x(), uscito.y());
    if (esito.Voluta < DistanzaMinima) {
        esito.Che = Giudizio::TroppoVicini;
    } else if (std::abs(esito.Uscita - esito.Voluta) > Tolleranza + Scarto) {
        esito.Che = Giudizio::Scala;
    } else {
        const double giro = std::atan2(voluto.x() * uscito.y() - voluto.y() * uscito.x(),
                                       QPointF::dotProduct(voluto, uscito));
        if (std::abs(qRadiansToDegrees(giro)) > GradiMassimi) {
            esito.Che = Giudizio::NonCorrispondono;
        } else if (std::abs(std::sin(giro)) * esito.Uscita > Tolleranza + Scarto) {
            esito.Gradi = qRadiansToDegrees(giro);
        }
    }
    return esito;
}

} // namespace

QString CorrezioneGriglia::Frase(const Spostamento &spostamento)
{
    QStringList versi;
    if (spostamento.Dx != 0) {
        versi.append(
            Verso(spostamento.Dx, QStringLiteral("a destra"), QStringLiteral("a sinistra")));
    }
    if (spostamento.Dy != 0) {
        versi.append(Verso(spostamento.Dy, QStringLiteral("in basso"), QStringLiteral("in alto")));
    }
    return versi.isEmpty() ? QStringLiteral("nessuno") : versi.join(QStringLiteral(", "));
}

Esito CorrezioneGriglia::Giudica(const QList<Segno> &segni)
{
    Esito esito = segni.size() == 2 ? DueSegni(segni.first(), segni.last()) : Esito();
    if (esito.Che == Giudizio::Sposta && !segni.isEmpty()) {
        QPointF errori;
        for (const Segno &segno : segni) {
            errori += segno.Atteso - segno.Uscito;
        }
        const auto intero = [&](double somma) {
            return int(Numeri::Ar(somma / double(segni.size()) + Scarto));
        };
        esito.Quanto = {intero(errori.x()), intero(errori.y())};
    }
    return esito;
}

bool Parti::Nessuna() const
{
    return !Righe && !Sfondo &&
           std::none_of(Elementi.begin(), Elementi.end(), [](bool scelto) { return scelto; });
}

Parti CorrezioneGriglia::Proposte(const Modello &modello)
{
    Parti parti;
    for (const Genere genere : Generi) {
        parti.Elementi.at(Posto(genere)) = modello.UltimoSlot(genere) > 0;
    }
    parti.Righe = modello.Righe.yInizio != 0 || modello.Righe.yFine != 0;
    return parti;
}

void CorrezioneGriglia::Esegue(Documento &documento, const Spostamento &spostamento,
                               const Parti &parti)
{
    ImmagineSfondo sfondo = documento.Aperto().Sfondo;
    if (parti.Sfondo) {
        sfondo.XPos = Spostato(sfondo.XPos, spostamento.Dx);
        sfondo.YPos = Spostato(sfondo.YPos, spostamento.Dy);
    }
    Passo passo(documento, QStringLiteral("corregge da griglia: ") + Frase(spostamento));
    if (parti.Righe) {
        ParametriRighe righe = documento.Aperto().Righe;
        righe.yInizio += spostamento.Dy;
        righe.yFine += spostamento.Dy;
        passo.ImpostaRighe(righe);
    }
    for (const Genere genere : Generi) {
        if (parti.Elementi.at(Posto(genere))) {
            passo.SpostaTutti(genere, spostamento.Dx, spostamento.Dy);
        }
    }
    if (parti.Sfondo) {
        passo.ImpostaSfondo(sfondo);
    }
}

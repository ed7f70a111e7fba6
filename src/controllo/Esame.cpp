#include "controllo/Esame.h"

#include "grafica/Testo.h"
#include "model/Numeri.h"

#include <array>

namespace {

/// As printed: on one line, and blanks at the end leave nothing on paper.
QString ComeStampato(const QString &testo)
{
    QString riga = SuUnaRiga(testo);
    while (!riga.isEmpty() && riga.back().isSpace()) {
        riga.chop(1);
    }
    return riga;
}

template <typename Record>
AspettoTesto AspettoDi(const Record &record)
{
    return {ComeStampato(record.Testo), record.Font, record.Dimensione, record.Grassetto != Falso};
}

} // namespace

Esame::Esame(const Modello &modello, const Condizioni &condizioni)
    : modello_(modello)
    , condizioni_(condizioni)
{
    RaccoglieTesti();
    RaccoglieFigure();
}

void Esame::RaccoglieTesti()
{
    for (const Chiave &chiave : Presenti(Genere::Campo)) {
        const Campo &campo = modello_.Campi[chiave.indice];
        if (!campo.NonStampato()) {
            RaccoglieTesto(chiave, AspettoDi(campo), {campo.X, campo.Y});
        }
    }
    for (const Chiave &chiave : Presenti(Genere::Cornice)) {
        const Cornice &cornice = modello_.Cornici[chiave.indice];
        RaccoglieTesto(chiave, AspettoDi(cornice),
                       {cornice.X + Cornice::RientroScritta, cornice.Y + Cornice::DiscesaScritta});
    }
}

void Esame::RaccoglieTesto(Chiave chiave, AspettoTesto aspetto, const QPointF &angolo)
{
    if (!aspetto.Testo.isEmpty()) {
        const QRectF posto(angolo, condizioni_.Misura(aspetto));
        testi_.push_back({chiave, std::move(aspetto), posto});
    } else if (chiave.genere == Genere::Campo) {
        AspettoTesto unaCifra = aspetto;
        unaCifra.Testo = u'0';
        vuoti_.push_back({chiave, aspetto, QRectF(angolo, condizioni_.Misura(unaCifra))});
    }
}

void Esame::RaccoglieFigure()
{
    for (const Chiave &chiave : Presenti(Genere::Immagine)) {
        const Immagine &immagine = modello_.Immagini[chiave.indice];
        const QRectF posto = Figura(immagine);
        // Without its file nothing is printed there.
        if (posto.isValid() && condizioni_.Immagine(immagine.Nome) == StatoFile::Buono) {
            figure_.push_back({chiave, posto});
        }
    }
}

QList<Chiave> Esame::Presenti(Genere genere) const
{
    QList<Chiave> chiavi;
    for (int i = 1; i <= modello_.UltimoSlot(genere); ++i) {
        if (modello_.Presente(genere, i)) {
            chiavi.append({genere, i});
        }
    }
    return chiavi;
}

QRectF Esame::Bordo(const Cornice &cornice)
{
    const double spessore = cornice.SpessoreBordo();
    const QRectF riquadro(cornice.X, cornice.Y, cornice.Larghezza, cornice.Altezza);
    switch (cornice.TipoBordo()) {
    case Cornice::Bordatura::Rettangolo:
        // The bars on the right and below stand beyond the frame.
        return riquadro.normalized().adjusted(0, 0, spessore, spessore);
    case Cornice::Bordatura::LineaSuperiore:
        return QRectF(cornice.X, cornice.Y, cornice.Larghezza, spessore).normalized();
    case Cornice::Bordatura::Nessuna:
        break;
    }
    return {};
}

QRectF Esame::Figura(const Immagine &immagine) const
{
    const double larghezza = Numeri::PariPiuVicino(immagine.Larghezza);
    const double altezza = Numeri::PariPiuVicino(immagine.Altezza);
    const QPointF angolo(Numeri::PariPiuVicino(immagine.X), Numeri::PariPiuVicino(immagine.Y));
    if (larghezza == 0 && altezza == 0) {
        return condizioni_.Foglio ? QRectF(angolo, condizioni_.Foglio->Stampabile.size())
                                  : QRectF();
    }
    return {angolo, QSizeF(larghezza, altezza)};
}

QString Esame::Nome(Chiave chiave) const
{
    return QString(NomeDi(chiave.genere)).toLower() + u' ' + SuUnaRiga(modello_.Di(chiave).Nome);
}

QString Esame::NomeConArticolo(Chiave chiave) const
{
    constexpr std::array<QLatin1String, Generi.size()> Articoli{
        QLatin1String("il "), QLatin1String("la "), QLatin1String("l'")};
    return Articoli.at(::Posto(chiave.genere)) + Nome(chiave);
}

void Esame::Aggiunge(SpecieRilievo specie, Chiave chiave, const QString &testo)
{
    trovati_.append({specie, Rilievo::Luogo::Elemento, chiave, Nome(chiave), testo});
}

void Esame::Aggiunge(SpecieRilievo specie, Rilievo::Luogo dove, const QString &testo)
{
    trovati_.append({specie,
                     dove,
                     {},
                     dove == Rilievo::Luogo::Righe ? QStringLiteral("righe")
                                                   : QStringLiteral("immagine di sfondo"),
                     testo});
}

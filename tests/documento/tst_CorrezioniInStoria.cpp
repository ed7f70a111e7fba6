#include "documento/CorrezioniInStoria.h"

#include "base/ErroreSistema.h"
#include "support/DocumentoDiProva.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using CorrezioneGriglia::Spostamento;

namespace {

const auto Laser = QStringLiteral("Laser");
const auto Questo = QStringLiteral("/dati/questo.Mod");
const auto Prossimo = QStringLiteral("/dati/prossimo.Mod");

/// A model that is corrected, and what the next one would be proposed.
class Aperta
{
public:
    Aperta()
    {
        Modello modello;
        modello.Campi[1].Nome = QStringLiteral("Totale");
        modello.NumCampi = 1;
        documento_.Prende(modello, false);
    }

    Documento &Storia() { return documento_; }
    const CorrezioniInStoria &InStoria() const { return inStoria_; }
    QString File() const { return cartella_.filePath(QStringLiteral("correzioni.json")); }
    UltimeCorrezioni Ultime() const { return UltimeCorrezioni(cartella_.path()); }
    std::optional<Spostamento> Proposta(const QString &modello = Prossimo) const
    {
        return Ultime().Proposta(Laser, modello);
    }
    void Corregge(const Spostamento &quanto)
    {
        CorrezioneGriglia::Parti parti;
        parti.Elementi.at(Posto(Genere::Campo)) = true;
        Esegue(documento_, quanto, parti);
        inStoria_.Aggiunge(
            {Ultime(), Laser, Questo, quanto, Ultime().Ricorda(Laser, Questo, quanto)});
    }
    /// Any other step.
    void Sposta()
    {
        Passo passo(documento_, QStringLiteral("sposta"));
        passo.SpostaTutti(Genere::Campo, 1, 0);
    }

private:
    QTemporaryDir cartella_;
    Documento documento_;
    CorrezioniInStoria inStoria_{documento_};
};

} // namespace

/// What is remembered of a printer goes and comes with the steps.
class tst_CorrezioniInStoria : public QObject
{
    Q_OBJECT
private slots:
    void annullataNonERicordata();
    void ripristinataLoEDiNuovo();
    void tornaQuellaDiPrima();
    void gliAltriPassiNonCEntrano();
    void dimenticataNonTorna();
    void unAltraNonSiTocca();
    void dopoTantiPassi();
    void laStoriaDimenticataNonAnnullaNulla();
    void seNonSiPuoScrivereLoDice();
};

void tst_CorrezioniInStoria::annullataNonERicordata()
{
    Aperta prova;
    prova.Corregge({2, -1});
    QCOMPARE(prova.Proposta(), (Spostamento{2, -1}));
    prova.Storia().Annulla();
    QVERIFY(!prova.Proposta());
    QVERIFY(!prova.Proposta(Questo));
}

void tst_CorrezioniInStoria::ripristinataLoEDiNuovo()
{
    Aperta prova;
    prova.Corregge({2, -1});
    for (int volta = 0; volta < 2; ++volta) {
        prova.Storia().Annulla();
        QVERIFY(!prova.Proposta());
        prova.Storia().Ripristina();
        QCOMPARE(prova.Proposta(), (Spostamento{2, -1}));
        QVERIFY(!prova.Proposta(Questo)); // it has had it
    }
}

void tst_CorrezioniInStoria::tornaQuellaDiPrima()
{
    Aperta prova;
    prova.Ultime().Ricorda(Laser, QStringLiteral("/dati/ieri.Mod"), {4, 4});
    prova.Corregge({2, -1});
    prova.Corregge({1, 0});
    QCOMPARE(prova.Proposta(), (Spostamento{1, 0}));
    prova.Storia().Annulla();
    QCOMPARE(prova.Proposta(), (Spostamento{2, -1}));
    prova.Storia().Annulla();
    QCOMPARE(prova.Proposta(), (Spostamento{4, 4}));
    QCOMPARE(prova.Proposta(Questo), (Spostamento{4, 4}));
    QVERIFY(!prova.Proposta(QStringLiteral("/dati/ieri.Mod")));
    prova.Storia().Ripristina();
    prova.Storia().Ripristina();
    QCOMPARE(prova.Proposta(), (Spostamento{1, 0}));
}

void tst_CorrezioniInStoria::gliAltriPassiNonCEntrano()
{
    Aperta prova;
    prova.Sposta();
    prova.Corregge({2, -1});
    prova.Sposta();
    prova.Storia().Annulla();
    QCOMPARE(prova.Proposta(), (Spostamento{2, -1}));
    prova.Storia().Annulla();
    prova.Storia().Annulla();
    QVERIFY(!prova.Proposta());
    prova.Sposta(); // the correction cannot come back any more
    prova.Storia().Annulla();
    prova.Storia().Ripristina();
    QVERIFY(!prova.Proposta());
}

void tst_CorrezioniInStoria::dimenticataNonTorna()
{
    Aperta prova;
    prova.Ultime().Ricorda(Laser, QStringLiteral("/dati/ieri.Mod"), {4, 4});
    prova.Corregge({2, -1});
    prova.Ultime().Dimentica(Laser);
    prova.Storia().Annulla();
    QVERIFY(!prova.Proposta());
}

void tst_CorrezioniInStoria::unAltraNonSiTocca()
{
    Aperta prova;
    prova.Corregge({2, -1});
    prova.Ultime().Ricorda(Laser, QStringLiteral("/altrove.Mod"), {7, 7}); // on another machine
    prova.Storia().Annulla();
    QCOMPARE(prova.Proposta(), (Spostamento{7, 7}));
}

void tst_CorrezioniInStoria::dopoTantiPassi()
{
    Aperta prova;
    for (int i = 0; i < Documento::PassiTenuti; ++i) {
        prova.Sposta();
    }
    prova.Corregge({2, -1}); // the oldest step goes
    prova.Sposta();
    prova.Storia().Annulla();
    QVERIFY(prova.Proposta());
    prova.Storia().Annulla();
    QVERIFY(!prova.Proposta());
}

void tst_CorrezioniInStoria::laStoriaDimenticataNonAnnullaNulla()
{
    Aperta prova;
    prova.Corregge({2, -1});
    prova.Storia().DimenticaStoria();
    prova.Storia().Annulla();
    QCOMPARE(prova.Proposta(), (Spostamento{2, -1}));
}

void tst_CorrezioniInStoria::seNonSiPuoScrivereLoDice()
{
    Aperta prova;
    prova.Corregge({2, -1});
    QVERIFY(QFile::remove(prova.File()) && QDir().mkdir(prova.File())); // nothing is written there
    const QSignalSpy detto(&prova.InStoria(), &CorrezioniInStoria::NonAggiornate);
    prova.Storia().Annulla(); // nothing is remembered there any more: nothing to put back
    QCOMPARE(detto.size(), 0);
    prova.Storia().Ripristina();
    QCOMPARE(detto.size(), 1);
    QVERIFY(detto.constFirst().constFirst().toString().startsWith(QStringLiteral("errore ")));
    QCOMPARE(prova.Storia().Aperto().Campi[1].X, 2.0);
}

QTEST_GUILESS_MAIN(tst_CorrezioniInStoria)
#include "tst_CorrezioniInStoria.moc"

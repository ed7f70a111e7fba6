#include "base/ErroreSistema.h"
#include "support/DocumentoDiProva.h"

#include <QSignalSpy>
#include <QTest>

namespace {

/// Three fields, two frames and an image are open.
struct Banco
{
    Banco()
    {
        Modello modello;
        for (int i = 0; i < 3; ++i) {
            modello.AggiungeCampo(10, 10);
        }
        modello.AggiungeCornice(10, 10, 1, 1);
        modello.AggiungeCornice(10, 10, 2, 2);
        modello.Immagini[modello.AggiungeImmagine(10, 10)].Nome = QStringLiteral("logo.bmp");
        stato.documento.Prende(modello, false);
    }

    QList<int> Attivi() const
    {
        QList<int> attivi;
        for (const Genere genere : Generi) {
            attivi.append(stato.selezione.Attivo(genere));
        }
        return attivi;
    }

    StatoProgramma stato;
};

} // namespace

/// Which element of each kind is active, and which are chosen.
class tst_Selezione : public QObject
{
    Q_OBJECT
private slots:
    void OgniGenereHaIlSuo();
    void RisceglierloSiDiceAncora();
    void FuoriDallaTabellaNonSiSceglie();
    void UnElementoEliminatoNonEPiuAttivo();
    void UnAggiuntaAnnullataNonEPiuAttiva();
    void NonFaParteDellaStoria();
    void GliSceltiTengonoLOrdine();
    void GliSceltiDiDueGeneriStannoInsieme();
    void FuoriDallaTabellaNonSiSceglieInsieme();
    void CioCheLasciaIlFoglioNonEPiuScelto();
    void UnAltroModelloNonHaScelti();
    void CioCheNonSiVedeNonSiSceglie();
};

void tst_Selezione::OgniGenereHaIlSuo()
{
    Banco banco;
    Selezione &selezione = banco.stato.selezione;
    const QSignalSpy cambiata(&selezione, &Selezione::Cambiata);
    QCOMPARE(banco.Attivi(), (QList<int>{0, 0, 0}));
    selezione.Sceglie({Genere::Campo, 3});
    selezione.Sceglie({Genere::Cornice, 2});
    QCOMPARE(banco.Attivi(), (QList<int>{3, 2, 0}));
    selezione.Lascia(Genere::Campo);
    QCOMPARE(banco.Attivi(), (QList<int>{0, 2, 0}));
    QCOMPARE(cambiata.size(), 3);
    selezione.Lascia(Genere::Campo);
    QCOMPARE(cambiata.size(), 3); // nothing has changed
}

void tst_Selezione::RisceglierloSiDiceAncora()
{
    Banco banco;
    const QSignalSpy cambiata(&banco.stato.selezione, &Selezione::Cambiata);
    banco.stato.selezione.Sceglie({Genere::Immagine, 1});
    banco.stato.selezione.Sceglie({Genere::Immagine, 1});
    QCOMPARE(cambiata.size(), 2);
}

void tst_Selezione::FuoriDallaTabellaNonSiSceglie()
{
    Banco banco;
    banco.stato.selezione.Sceglie({Genere::Campo, 1});
    try {
        banco.stato.selezione.Sceglie({Genere::Campo, 101});
        QFAIL("the table has no slot 101");
    } catch (const ErroreSistema &errore) {
        QCOMPARE(errore.numero, ErroreSistema::Indice);
    }
    QCOMPARE(banco.stato.selezione.Attivo(Genere::Campo), 1);
}

void tst_Selezione::UnElementoEliminatoNonEPiuAttivo()
{
    Banco banco;
    banco.stato.selezione.Sceglie({Genere::Cornice, 1});
    banco.stato.selezione.Sceglie({Genere::Campo, 2});
    Passo(banco.stato.documento, QStringLiteral("elimina")).Elimina({Genere::Cornice, 2});
    QCOMPARE(banco.Attivi(), (QList<int>{2, 1, 0}));
    Passo(banco.stato.documento, QStringLiteral("elimina")).Elimina({Genere::Cornice, 1});
    QCOMPARE(banco.Attivi(), (QList<int>{2, 0, 0}));
    banco.stato.documento.Annulla();
    QCOMPARE(banco.Attivi(), (QList<int>{2, 0, 0}));
}

void tst_Selezione::UnAggiuntaAnnullataNonEPiuAttiva()
{
    Banco banco;
    const Chiave nuovo = Passo(banco.stato.documento, QStringLiteral("aggiunge"))
                             .Aggiunge(Genere::Campo, {5, 5}, {});
    banco.stato.selezione.Sceglie(nuovo);
    banco.stato.documento.Annulla();
    QCOMPARE(banco.stato.selezione.Attivo(Genere::Campo), 0);
}

void tst_Selezione::NonFaParteDellaStoria()
{
    Banco banco;
    banco.stato.selezione.Sceglie({Genere::Campo, 1});
    QVERIFY(!banco.stato.documento.PuoAnnullare());
    QVERIFY(!banco.stato.documento.Variato());
}

void tst_Selezione::GliSceltiTengonoLOrdine()
{
    Banco banco;
    Selezione &selezione = banco.stato.selezione;
    const QSignalSpy cambiati(&selezione, &Selezione::SceltiCambiati);
    const Chiave primo{Genere::Campo, 1};
    const Chiave secondo{Genere::Campo, 2};
    const Chiave terzo{Genere::Campo, 3};
    selezione.ImpostaScelti({terzo, primo, terzo});
    QCOMPARE(selezione.Scelti(), (QList<Chiave>{terzo, primo}));
    selezione.AggiungeScelti({secondo, terzo});
    QCOMPARE(selezione.Scelti(), (QList<Chiave>{terzo, primo, secondo}));
    selezione.AlternaScelto(primo);
    QCOMPARE(selezione.Scelti(), (QList<Chiave>{terzo, secondo}));
    QVERIFY(!selezione.EScelto(primo));
    selezione.AlternaScelto(primo);
    QCOMPARE(selezione.Scelti(), (QList<Chiave>{terzo, secondo, primo}));
    QCOMPARE(cambiati.size(), 4);
    selezione.AggiungeScelti({primo});
    QCOMPARE(cambiati.size(), 4); // nothing has changed
    selezione.SvuotaScelti();
    QVERIFY(selezione.Scelti().isEmpty());
}

void tst_Selezione::GliSceltiDiDueGeneriStannoInsieme()
{
    Banco banco;
    Selezione &selezione = banco.stato.selezione;
    selezione.Sceglie({Genere::Campo, 3});
    selezione.ImpostaScelti({{Genere::Campo, 1}, {Genere::Cornice, 1}, {Genere::Immagine, 1}});
    QVERIFY(selezione.EScelto({Genere::Cornice, 1}));
    QVERIFY(!selezione.EScelto({Genere::Cornice, 2}));
    QCOMPARE(banco.Attivi(), (QList<int>{3, 0, 0})); // the handles stay where they are
}

void tst_Selezione::FuoriDallaTabellaNonSiSceglieInsieme()
{
    Banco banco;
    Selezione &selezione = banco.stato.selezione;
    const QList<Chiave> scelti{{Genere::Campo, 1}};
    selezione.ImpostaScelti(scelti);
    try {
        selezione.AggiungeScelti({{Genere::Campo, 2}, {Genere::Campo, 101}});
        QFAIL("the table has no slot 101");
    } catch (const ErroreSistema &errore) {
        QCOMPARE(errore.numero, ErroreSistema::Indice);
    }
    QCOMPARE(selezione.Scelti(), scelti);
}

void tst_Selezione::CioCheLasciaIlFoglioNonEPiuScelto()
{
    Banco banco;
    Selezione &selezione = banco.stato.selezione;
    selezione.ImpostaScelti({{Genere::Cornice, 1}, {Genere::Campo, 2}});
    Passo(banco.stato.documento, QStringLiteral("elimina")).Elimina({Genere::Cornice, 1});
    QCOMPARE(selezione.Scelti(), (QList<Chiave>{{Genere::Campo, 2}}));
    banco.stato.documento.Annulla();
    QCOMPARE(selezione.Scelti(), (QList<Chiave>{{Genere::Campo, 2}}));
    const Chiave nuovo = Passo(banco.stato.documento, QStringLiteral("aggiunge"))
                             .Aggiunge(Genere::Campo, {5, 5}, {});
    selezione.AggiungeScelti({nuovo});
    banco.stato.documento.Annulla();
    QCOMPARE(selezione.Scelti(), (QList<Chiave>{{Genere::Campo, 2}}));
}

void tst_Selezione::UnAltroModelloNonHaScelti()
{
    Banco banco;
    banco.stato.selezione.ImpostaScelti({{Genere::Campo, 2}});
    banco.stato.documento.Prende(banco.stato.Aperto(), false);
    QVERIFY(banco.stato.selezione.Scelti().isEmpty());
}

void tst_Selezione::CioCheNonSiVedeNonSiSceglie()
{
    Banco banco;
    Selezione &selezione = banco.stato.selezione;
    Passo(banco.stato.documento, QStringLiteral("elimina")).Elimina({Genere::Campo, 2});
    selezione.Sceglie({Genere::Campo, 1});
    const QSignalSpy cambiata(&selezione, &Selezione::Cambiata);
    selezione.Sceglie({Genere::Campo, 2});    // deleted
    selezione.Sceglie({Genere::Cornice, 3});  // beyond the count
    selezione.Sceglie({Genere::Immagine, 0}); // the separator
    QCOMPARE(banco.Attivi(), (QList<int>{1, 0, 0}));
    QCOMPARE(cambiata.size(), 0);
    selezione.ImpostaScelti({{Genere::Campo, 2}, {Genere::Campo, 3}, {Genere::Cornice, 3}});
    QCOMPARE(selezione.Scelti(), (QList<Chiave>{{Genere::Campo, 3}}));
    selezione.AlternaScelto({Genere::Campo, 2});
    QCOMPARE(selezione.Scelti(), (QList<Chiave>{{Genere::Campo, 3}}));
    // A new image has no name yet and is in view all the same.
    const Chiave nuova = Passo(banco.stato.documento, QStringLiteral("aggiunge"))
                             .Aggiunge(Genere::Immagine, {5, 5}, {});
    selezione.Sceglie(nuova);
    selezione.AggiungeScelti({nuova});
    QCOMPARE(selezione.Attivo(Genere::Immagine), nuova.indice);
    QVERIFY(selezione.EScelto(nuova));
}

QTEST_GUILESS_MAIN(tst_Selezione)
#include "tst_Selezione.moc"

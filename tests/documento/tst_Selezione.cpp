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

/// Which element of each kind is active.
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

QTEST_GUILESS_MAIN(tst_Selezione)
#include "tst_Selezione.moc"

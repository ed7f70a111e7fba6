#include "documento/Passo.h"
#include "support/Generi.h"
#include "support/ModelloDiProva.h"
#include "support/Tempi.h"

#include <QSignalSpy>
#include <QTest>

#include <functional>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#include <malloc.h>
#endif

namespace {

constexpr Chiave Campo1{Genere::Campo, 1};
constexpr Chiave Cornice1{Genere::Cornice, 1};

/// A document with so many elements of each kind.
struct Banco
{
    explicit Banco(int perGenere = 3) { documento.Prende(ModelloDiProva(perGenere), false); }

    const Modello &Aperto() const { return documento.Aperto(); }

    Documento documento;
};

} // namespace

class tst_Documento : public QObject
{
    Q_OBJECT
private slots:
    void UnPassoCheNonCambiaNienteNonSiAnnulla();
    void AnnullaRestituisceModelloEdElenchi();
    void RipristinaRifa();
    void UnElementoAggiuntoSeNeVa();
    void UnPassoDentroUnAltroNeFaParte();
    void RinunciaLasciaTuttoComEra();
    void IPassiDellaStessaUnioneSonoUno();
    void ChiusaLUnioneIPassiSonoDue();
    void IlTestoRimessoComEraNonSiAnnulla();
    void AnnullareNonTogliVariato();
    void DopoUnSalvataggioAnnullareSegnaVariato();
    void MentreUnPassoEApertoNonSiAnnulla();
    void IlCentunesimoElementoFallisceConIlContatoreAlzato_data() { RighePerGenere(); }
    void IlCentunesimoElementoFallisceConIlContatoreAlzato();
    void UnElementoChiamatoComeUnoEliminatoCE_data() { RighePerGenere(); }
    void UnElementoChiamatoComeUnoEliminatoCE();
    void ConLaStoriaSospesaNonSiAnnulla();
    void LArrotondamentoDiChiGuardaNonEUnPasso();
    void OgniVistaSentePerNomeCheCosaECambiato();
    void ICampiFuoriRigaSiRicordanoFinoAlSalvataggio();
    void DuecentoPassiSuTrecentoElementiStannoInDieciMebibyte_data();
    void DuecentoPassiSuTrecentoElementiStannoInDieciMebibyte();
    void UnPassoSuTrecentoElementiCostaPoco();
};

void tst_Documento::UnPassoCheNonCambiaNienteNonSiAnnulla()
{
    Banco banco;
    {
        Passo passo(banco.documento, QStringLiteral("sposta"));
        const QPointF posto(banco.Aperto().Campi[1].X, banco.Aperto().Campi[1].Y);
        passo.Trascina(Campo1, posto + QPointF(30, 40));
        passo.Mostra();
        passo.Trascina(Campo1, posto);
    }
    QVERIFY(!banco.documento.PuoAnnullare());
    // Somebody has had it in hand all the same.
    QVERIFY(banco.documento.Variato());
}

void tst_Documento::AnnullaRestituisceModelloEdElenchi()
{
    Banco banco;
    const Modello prima = banco.Aperto();
    const QString voce = banco.documento.Voce(Campo1);
    {
        Passo passo(banco.documento, QStringLiteral("elimina ") + voce);
        passo.Elimina(Campo1);
    }
    QVERIFY(banco.documento.Eliminato(Campo1));
    QCOMPARE(banco.documento.Voce(Campo1), QStringLiteral(" ELIMINATO: ") + voce);
    QVERIFY(!banco.Aperto().Presente(Genere::Campo, 1));
    QCOMPARE(banco.documento.TestoAnnulla(), QStringLiteral("elimina ") + voce);

    banco.documento.Annulla();

    QVERIFY(banco.Aperto() == prima);
    QCOMPARE(banco.documento.Voce(Campo1), voce);
    QVERIFY(!banco.documento.PuoAnnullare());
}

void tst_Documento::RipristinaRifa()
{
    Banco banco;
    {
        Passo passo(banco.documento, QStringLiteral("sposta"));
        passo.SpostaTutti(Genere::Cornice, 7, -3);
    }
    const Modello dopo = banco.Aperto();
    banco.documento.Annulla();
    QVERIFY(!(banco.Aperto() == dopo));
    banco.documento.Ripristina();
    QVERIFY(banco.Aperto() == dopo);
    QVERIFY(!banco.documento.PuoRipristinare());
}

void tst_Documento::UnElementoAggiuntoSeNeVa()
{
    Banco banco;
    const Modello prima = banco.Aperto();
    int n = 0;
    {
        Passo passo(banco.documento, QStringLiteral("aggiunge"));
        n = passo.Aggiunge(Genere::Campo, {12.4, 20}, {}).indice;
    }
    QCOMPARE(n, 4);
    QCOMPARE(banco.Aperto().Campi[n].X, 12.0);
    QCOMPARE(banco.documento.Voce({Genere::Campo, n}), QStringLiteral("nuovocampo4"));
    banco.documento.Annulla();
    QVERIFY(banco.Aperto() == prima);
}

void tst_Documento::UnPassoDentroUnAltroNeFaParte()
{
    Banco banco;
    const Modello prima = banco.Aperto();
    QSignalSpy conclusioni(&banco.documento, &Documento::ModificaConclusa);
    {
        Passo visita(banco.documento, QStringLiteral("modifica"));
        for (int i = 1; i <= 2; ++i) {
            Passo comando(banco.documento, QStringLiteral("comando"));
            Campo campo = banco.Aperto().Campi[i];
            campo.Font = QStringLiteral("Courier");
            comando.Scrive(i, campo);
        }
        // What is written at once is worth keeping at once.
        QCOMPARE(conclusioni.size(), 2);
    }
    QCOMPARE(banco.documento.TestoAnnulla(), QStringLiteral("modifica"));
    banco.documento.Annulla();
    QVERIFY(banco.Aperto() == prima);
}

void tst_Documento::RinunciaLasciaTuttoComEra()
{
    Banco banco;
    const Modello prima = banco.Aperto();
    QSignalSpy conclusioni(&banco.documento, &Documento::ModificaConclusa);
    {
        Passo passo(banco.documento, QStringLiteral("sposta"));
        passo.Trascina(Cornice1, {33.3, 44.4});
        passo.Mostra();
        QVERIFY(banco.documento.Variato());
        passo.Rinuncia();
    }
    QVERIFY(banco.Aperto() == prima);
    QVERIFY(!banco.documento.Variato());
    QVERIFY(!banco.documento.PuoAnnullare());
    QCOMPARE(conclusioni.size(), 0);
}

void tst_Documento::IPassiDellaStessaUnioneSonoUno()
{
    Banco banco;
    const QString prima = banco.Aperto().Tipo;
    for (const QString &testo :
         {QStringLiteral("F"), QStringLiteral("Fa"), QStringLiteral("Fat")}) {
        Passo passo(banco.documento, QStringLiteral("tipo"), {QStringLiteral("Tipo")});
        passo.ImpostaTipo(testo);
    }
    banco.documento.Annulla();
    QCOMPARE(banco.Aperto().Tipo, prima);
    QVERIFY(!banco.documento.PuoAnnullare());
    banco.documento.Ripristina();
    QCOMPARE(banco.Aperto().Tipo, QStringLiteral("Fat"));
}

void tst_Documento::ChiusaLUnioneIPassiSonoDue()
{
    Banco banco;
    for (const QString &testo : {QStringLiteral("F"), QStringLiteral("Fa")}) {
        Passo passo(banco.documento, QStringLiteral("tipo"), {QStringLiteral("Tipo")});
        passo.ImpostaTipo(testo);
        banco.documento.ChiudeUnione();
    }
    banco.documento.Annulla();
    QCOMPARE(banco.Aperto().Tipo, QStringLiteral("F"));
}

void tst_Documento::IlTestoRimessoComEraNonSiAnnulla()
{
    Banco banco;
    const QString prima = banco.Aperto().Tipo;
    for (const QString &testo : {prima + u'x', prima}) {
        Passo passo(banco.documento, QStringLiteral("tipo"), {QStringLiteral("Tipo")});
        passo.ImpostaTipo(testo);
    }
    QVERIFY(!banco.documento.PuoAnnullare());
}

void tst_Documento::AnnullareNonTogliVariato()
{
    Banco banco;
    {
        Passo passo(banco.documento, QStringLiteral("sposta"));
        passo.SpostaTutti(Genere::Campo, 1, 0);
    }
    banco.documento.Annulla();
    QVERIFY(banco.documento.Variato());
}

void tst_Documento::DopoUnSalvataggioAnnullareSegnaVariato()
{
    Banco banco;
    const Unione freccia{QStringLiteral("destra")};
    {
        Passo passo(banco.documento, QStringLiteral("sposta"), freccia);
        passo.SpostaTutti(Genere::Campo, 1, 0);
    }
    banco.documento.Salvato();
    QVERIFY(!banco.documento.Variato());
    const Modello salvato = banco.Aperto();
    {
        Passo passo(banco.documento, QStringLiteral("sposta"), freccia);
        passo.SpostaTutti(Genere::Campo, 1, 0);
    }
    banco.documento.Annulla();
    // Undo can stop at what was saved.
    QVERIFY(banco.Aperto() == salvato);
    QVERIFY(banco.documento.PuoAnnullare());
    banco.documento.Salvato();
    banco.documento.Annulla();
    QVERIFY(banco.documento.Variato());
}

void tst_Documento::MentreUnPassoEApertoNonSiAnnulla()
{
    Banco banco;
    {
        Passo passo(banco.documento, QStringLiteral("sposta"));
        passo.SpostaTutti(Genere::Campo, 1, 0);
    }
    const Modello prima = banco.Aperto();
    const Passo dialogo(banco.documento, QStringLiteral("modifica"));
    QVERIFY(!banco.documento.PuoAnnullare());
    banco.documento.Annulla();
    QVERIFY(banco.Aperto() == prima);
}

void tst_Documento::IlCentunesimoElementoFallisceConIlContatoreAlzato()
{
    QFETCH(Genere, genere);
    Banco banco(100);
    QSignalSpy conclusioni(&banco.documento, &Documento::ModificaConclusa);
    for (const int contatore : {101, 102}) {
        try {
            Passo passo(banco.documento, QStringLiteral("aggiunge"));
            passo.Aggiunge(genere, {10, 10}, {});
            QFAIL("the table has no slot 101");
        } catch (const ErroreSistema &errore) {
            QCOMPARE(errore.numero, ErroreSistema::Indice);
        }
        QCOMPARE(banco.Aperto().Numero(genere), qint16(contatore));
        // Nothing that is in the table is another: there is nothing to take back or to save.
        QVERIFY(!banco.documento.PuoAnnullare());
        QVERIFY(!banco.documento.Variato());
        QCOMPARE(conclusioni.size(), 0);
    }
    // What was done before can be taken back, and done again.
    const Modello prima = banco.Aperto();
    {
        Passo passo(banco.documento, QStringLiteral("sposta"));
        passo.SpostaTutti(genere, 1, 0);
    }
    banco.documento.Annulla();
    QVERIFY(banco.Aperto() == prima);
}

void tst_Documento::UnElementoChiamatoComeUnoEliminatoCE()
{
    QFETCH(Genere, genere);
    const Chiave chiave{genere, 1};
    Modello modello = ModelloDiProva(2);
    modello.Nome(genere, 1) = QStringLiteral(" ELIMINATO: x");
    Documento documento;
    documento.Prende(modello, false);
    QVERIFY(documento.InVista(chiave));
    QVERIFY(!documento.Eliminato(chiave));
    {
        Passo passo(documento, QStringLiteral("elimina"));
        passo.Elimina(chiave);
    }
    QVERIFY(!documento.InVista(chiave));
    QVERIFY(documento.Eliminato(chiave));
    QCOMPARE(documento.Voce(chiave), QStringLiteral(" ELIMINATO:  ELIMINATO: x"));
    documento.Annulla();
    QVERIFY(documento.InVista(chiave));
    QVERIFY(!documento.Eliminato(chiave));
    documento.Ripristina();
    QVERIFY(!documento.InVista(chiave));
    QVERIFY(documento.Eliminato(chiave));
    // A new image has no name before it has a picture, nor when it has been deleted.
    const Chiave nuovo =
        Passo(documento, QStringLiteral("aggiunge")).Aggiunge(genere, {10, 10}, {});
    QVERIFY(documento.InVista(nuovo));
    Passo(documento, QStringLiteral("elimina")).Elimina(nuovo);
    QVERIFY(!documento.InVista(nuovo));
    documento.Annulla();
    QVERIFY(documento.InVista(nuovo));
}

void tst_Documento::ConLaStoriaSospesaNonSiAnnulla()
{
    Banco banco;
    {
        Passo passo(banco.documento, QStringLiteral("sposta"));
        passo.SpostaTutti(Genere::Campo, 1, 0);
    }
    const Modello dopo = banco.Aperto();
    QSignalSpy storia(&banco.documento, &Documento::StoriaCambiata);
    {
        const StoriaSospesa una(banco.documento);
        {
            const StoriaSospesa altra(banco.documento);
        }
        QVERIFY(!banco.documento.PuoAnnullare());
        banco.documento.Annulla();
        QVERIFY(banco.Aperto() == dopo);
        QCOMPARE(storia.size(), 0);
    }
    QCOMPARE(storia.size(), 1); // it goes on
    banco.documento.Annulla();
    QVERIFY(!(banco.Aperto() == dopo));
    const StoriaSospesa sospesa(banco.documento);
    QVERIFY(!banco.documento.PuoRipristinare());
    banco.documento.Ripristina();
    QVERIFY(!(banco.Aperto() == dopo));
}

void tst_Documento::LArrotondamentoDiChiGuardaNonEUnPasso()
{
    Banco banco;
    const Modello prima = banco.Aperto();
    {
        Passo passo(banco.documento, QStringLiteral("sposta"));
        passo.Trascina(Cornice1, {30.4, 40.6}); // a frame keeps the fraction until it is placed
    }
    QCOMPARE(banco.Aperto().Cornici[1].X, 30.4);
    banco.documento.Colloca(Cornice1);
    QCOMPARE(banco.Aperto().Cornici[1].X, 30.0);
    QCOMPARE(banco.Aperto().Cornici[1].Y, 41.0);
    const Modello dopo = banco.Aperto();
    banco.documento.Annulla();
    QVERIFY(banco.Aperto() == prima);
    banco.documento.Ripristina();
    QVERIFY(banco.Aperto() == dopo);
}

void tst_Documento::OgniVistaSentePerNomeCheCosaECambiato()
{
    Banco banco;
    QList<Cambiamento> sentiti;
    connect(&banco.documento, &Documento::Cambiato, this,
            [&](const Cambiamento &cambiamento) { sentiti.append(cambiamento); });
    {
        Passo passo(banco.documento, QStringLiteral("sposta"));
        passo.Trascina(Cornice1, {30, 40});
        passo.Mostra();
        passo.ImpostaTipo(QStringLiteral("altro"));
    }
    QCOMPARE(sentiti.size(), 2);
    QCOMPARE(sentiti[0].origine, Cambiamento::Origine::Gesto);
    QCOMPARE(sentiti[0].Elementi(), QList<Chiave>{Cornice1});
    QVERIFY(!sentiti[0].Tipo);
    QVERIFY(sentiti[1].Elementi().isEmpty());
    QVERIFY(sentiti[1].Tipo);
    banco.documento.Annulla();
    QCOMPARE(sentiti.size(), 3);
    QCOMPARE(sentiti[2].origine, Cambiamento::Origine::Storia);
    QCOMPARE(sentiti[2].Elementi(), QList<Chiave>{Cornice1});
    QVERIFY(sentiti[2].Tipo);
    QVERIFY(!sentiti[2].Righe);
}

void tst_Documento::ICampiFuoriRigaSiRicordanoFinoAlSalvataggio()
{
    Modello modello;
    modello.Righe = {95.5, 200, 5, 4, {}};
    for (const auto &[nome, y] : {std::pair("R_Qta", 231.7), {"R_Um", 95.5}, {"Totale", 12.4}}) {
        modello.Campi[modello.AggiungeCampo(10, y)].Nome = QString::fromLatin1(nome);
    }
    Documento documento;
    const QSignalSpy raddrizzate(&documento, &Documento::RigheRaddrizzate);
    documento.Prende(modello, false);
    QCOMPARE(documento.Aperto().Campi[1].Y, 95.5);
    QCOMPARE(documento.FuoriRiga(), (std::map<int, double>{{1, 231.7}}));
    documento.Salvato();
    QVERIFY(documento.FuoriRiga().empty());
    QCOMPARE(raddrizzate.count(), 1);
    documento.Salvato();
    QCOMPARE(raddrizzate.count(), 1);
    // What is opened now was written by the program.
    documento.Prende(documento.Aperto(), false);
    QVERIFY(documento.FuoriRiga().empty());
}

void tst_Documento::DuecentoPassiSuTrecentoElementiStannoInDieciMebibyte_data()
{
    QTest::addColumn<std::function<void(Passo &, const Modello &, int)>>("modifica");
    using Modifica = std::function<void(Passo &, const Modello &, int)>;
    const auto riga = [](const char *nome, const Modifica &modifica) {
        QTest::newRow(nome) << modifica;
    };
    riga("tutti spostati", [](Passo &passo, const Modello &, int) {
        for (const Genere genere : Generi) {
            passo.SpostaTutti(genere, 1, 1);
        }
    });
    riga("font su tutti i campi", [](Passo &passo, const Modello &modello, int k) {
        const QString font = QStringLiteral("Font %1").arg(k);
        for (int i = 1; i <= 100; ++i) {
            Campo campo = modello.Campi[i];
            campo.Font = font;
            passo.Scrive(i, campo);
        }
    });
    riga("font su tutte le cornici", [](Passo &passo, const Modello &modello, int k) {
        const QString font = QStringLiteral("Font %1").arg(k);
        for (int i = 1; i <= 100; ++i) {
            Cornice cornice = modello.Cornici[i];
            cornice.Font = font;
            passo.Scrive(i, cornice);
        }
    });
}

void tst_Documento::DuecentoPassiSuTrecentoElementiStannoInDieciMebibyte()
{
    using Modifica = std::function<void(Passo &, const Modello &, int)>;
    QFETCH(Modifica, modifica);
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
    Banco banco(100);
    const std::size_t prima = mallinfo2().uordblks;
    for (int k = 0; k < 200; ++k) {
        Passo passo(banco.documento, QStringLiteral("modifica"));
        modifica(passo, banco.documento.Aperto(), k);
    }
    const std::size_t occupati = mallinfo2().uordblks - prima;
    QVERIFY2(occupati > 0 && occupati < 10UL * 1024 * 1024, qPrintable(QString::number(occupati)));
    for (int k = 0; k < 200; ++k) {
        QVERIFY(banco.documento.PuoAnnullare());
        banco.documento.Annulla();
    }
#else
    QSKIP("only one C library tells what is allocated, and no sanitizer");
#endif
}

void tst_Documento::UnPassoSuTrecentoElementiCostaPoco()
{
    Banco banco(100);
    constexpr int Giri = 200;
    const TempoDiLavoro tempo;
    for (int k = 0; k < Giri; ++k) {
        const Passo passo(banco.documento, QStringLiteral("niente"));
    }
    QVERIFY2(tempo.Entro(0.1 * Giri), qPrintable(QString::number(tempo.MilliSecondi() / Giri)));
}

QTEST_GUILESS_MAIN(tst_Documento)
#include "tst_Documento.moc"

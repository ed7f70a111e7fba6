#include "documento/Incolla.h"

#include "support/DocumentoDiProva.h"
#include "support/Errori.h"
#include "support/Generi.h"
#include "support/ModelloDiProva.h"

#include <QTest>

#include <limits>

Q_DECLARE_METATYPE(Genere)

namespace {

const Incolla::Parole Parole{QStringLiteral("incolla"), QStringLiteral("incollare"),
                             QStringLiteral("gli appunti ne hanno")};

/// Of a field 20 x 5 mm, whatever its text.
QSizeF Misura(const Modello &modello, Chiave chiave)
{
    return modello.Con(chiave.genere, [&](const auto &tabella) -> QSizeF {
        if constexpr (requires { tabella[0].Larghezza; }) {
            return {tabella[chiave.indice].Larghezza, tabella[chiave.indice].Altezza};
        } else {
            return {20, 5};
        }
    });
}

Incolla::Dove Scostato(double scarto)
{
    return {scarto, false, {240, 350}, &Misura};
}

Incolla::Dove SulPosto()
{
    Incolla::Dove dove = Scostato(0);
    dove.sulPosto = true;
    return dove;
}

Campo UnCampo(const QString &nome, double x, double y)
{
    Campo campo = ModelloDiProva(1).Campi[1];
    campo.Nome = nome;
    campo.X = x;
    campo.Y = y;
    return campo;
}

Cornice UnaCornice(const QString &nome, const QRectF &posto)
{
    Cornice cornice = ModelloDiProva(1).Cornici[1];
    cornice.Nome = nome;
    cornice.X = posto.x();
    cornice.Y = posto.y();
    cornice.Larghezza = posto.width();
    cornice.Altezza = posto.height();
    return cornice;
}

void Mette(ElementiCopiati &copiati, const Campo &campo)
{
    copiati.Elementi.Campi[++copiati.Elementi.NumCampi] = campo;
    copiati.Ordine.append({Genere::Campo, copiati.Elementi.NumCampi});
}

void Mette(ElementiCopiati &copiati, const Cornice &cornice)
{
    copiati.Elementi.Cornici[++copiati.Elementi.NumCornici] = cornice;
    copiati.Ordine.append({Genere::Cornice, copiati.Elementi.NumCornici});
}

template <typename... Record>
ElementiCopiati Copiati(const Record &...record)
{
    ElementiCopiati copiati;
    (Mette(copiati, record), ...);
    return copiati;
}

/// So many elements of one kind.
ElementiCopiati Tanti(Genere genere, int quanti)
{
    const Modello modello = ModelloDiProva(quanti);
    QList<Chiave> chiavi;
    for (int i = 1; i <= quanti; ++i) {
        chiavi.append({genere, i});
    }
    return ElementiCopiati::Da(modello, chiavi, {});
}

/// A document whose row area begins at 95.5 mm, with nothing in it.
struct Banco
{
    Banco()
    {
        Modello modello;
        modello.Righe.yInizio = 95.5;
        documento.Prende(modello, false);
    }

    Incolla::Esito Aggiunge(const ElementiCopiati &copiati, const Incolla::Dove &dove)
    {
        return Incolla::Aggiunge(documento, copiati, Parole, dove);
    }
    QPointF Posto(Chiave chiave) const
    {
        const Elemento &elemento = documento.Aperto().Di(chiave);
        return {elemento.X, elemento.Y};
    }

    Documento documento;
};

const Chiave Campo1{Genere::Campo, 1};
const Chiave Cornice1{Genere::Cornice, 1};

} // namespace

/// Copied elements become elements of the open model.
class tst_Incolla : public QObject
{
    Q_OBJECT
private slots:
    void TuttiIValoriRestano();
    void UnPassoSolo();
    void IlPassoDiUnoDiceIlNome();
    void NellOrdineDegliElementi();
    void DoveVanno_data();
    void DoveVanno();
    void IlGruppoRestaUnito_data();
    void IlGruppoRestaUnito();
    void IlCampoDiRigaStaAllInizioDelleRighe();
    void LaFineDelleRigheNonFermaIlGruppo();
    void LeImmaginiTengonoLeFrazioni();
    void GliAssurdiRestanoSulFoglio();
    void NomiGiaPresi_data();
    void NomiGiaPresi();
    void GliEliminatiLascianoIlNome();
    void DueUgualiNelloStessoGruppo();
    void NonCiSta_data();
    void NonCiSta();
    void NonCiStannoDueGeneri();
    void CiStaPerUnPelo();
    void GliEliminatiContano();
    void DopoUnAggiuntaRifiutata();
    void LaTabellaPienaTieneIlConto_data() { RighePerGenere(); }
    void LaTabellaPienaTieneIlConto();
};

void tst_Incolla::TuttiIValoriRestano()
{
    Banco banco;
    const Modello modello = ModelloDiProva(1);
    const ElementiCopiati copiati = ElementiCopiati::Da(
        modello, {{Genere::Campo, 1}, {Genere::Cornice, 1}, {Genere::Immagine, 1}}, {});
    const Incolla::Esito esito = banco.Aggiunge(copiati, SulPosto());
    QCOMPARE(esito.rinominati, QStringList());
    Modello attesi = modello;
    attesi.ArrotondaTutti();
    const Modello &aperto = banco.documento.Aperto();
    QCOMPARE(aperto.Campi[1], attesi.Campi[1]);
    QCOMPARE(aperto.Cornici[1], attesi.Cornici[1]);
    QCOMPARE(aperto.Immagini[1], attesi.Immagini[1]);
    for (const Genere genere : Generi) {
        QCOMPARE(aperto.Numero(genere), qint16(1));
        QCOMPARE(banco.documento.Voce({genere, 1}), aperto.Nome(genere, 1));
    }
}

void tst_Incolla::UnPassoSolo()
{
    Banco banco;
    const Modello prima = banco.documento.Aperto();
    banco.Aggiunge(Tanti(Genere::Cornice, 3), Scostato(5));
    const Modello dopo = banco.documento.Aperto();
    QVERIFY(banco.documento.Variato());
    QCOMPARE(banco.documento.TestoAnnulla(), QStringLiteral("incolla 3 elementi"));
    banco.documento.Annulla();
    QVERIFY(banco.documento.Aperto() == prima);
    QVERIFY(!banco.documento.PuoAnnullare());
    banco.documento.Ripristina();
    QVERIFY(banco.documento.Aperto() == dopo);
}

void tst_Incolla::IlPassoDiUnoDiceIlNome()
{
    Banco banco;
    const ElementiCopiati copiati = Copiati(UnCampo(QStringLiteral("Totale"), 10, 10));
    banco.Aggiunge(copiati, Scostato(5));
    QCOMPARE(banco.documento.TestoAnnulla(), QStringLiteral("incolla Totale"));
    banco.Aggiunge(copiati, Scostato(10));
    QCOMPARE(banco.documento.TestoAnnulla(), QStringLiteral("incolla Totale_2"));
}

void tst_Incolla::NellOrdineDegliElementi()
{
    Banco banco;
    const ElementiCopiati copiati = Copiati(UnaCornice(QStringLiteral("A"), {10, 10, 20, 20}),
                                            UnCampo(QStringLiteral("B"), 10, 10),
                                            UnaCornice(QStringLiteral("C"), {10, 10, 20, 20}));
    const Incolla::Esito esito = banco.Aggiunge(copiati, Scostato(5));
    QCOMPARE(esito.nuovi,
             (QList<Chiave>{{Genere::Cornice, 1}, {Genere::Campo, 1}, {Genere::Cornice, 2}}));
}

void tst_Incolla::DoveVanno_data()
{
    QTest::addColumn<QPointF>("da");
    QTest::addColumn<double>("scarto"); // negative: in place
    QTest::addColumn<QPointF>("a");
    QTest::newRow("5 mm") << QPointF(10, 20) << 5.0 << QPointF(15, 25);
    QTest::newRow("ancora 5") << QPointF(10, 20) << 10.0 << QPointF(20, 30);
    QTest::newRow("sul posto") << QPointF(10, 20) << -1.0 << QPointF(10, 20);
    QTest::newRow("contro il bordo destro") << QPointF(218, 20) << 5.0 << QPointF(220, 25);
    QTest::newRow("contro il fondo") << QPointF(10, 343) << 5.0 << QPointF(15, 345);
    QTest::newRow("già contro il bordo") << QPointF(220, 345) << 5.0 << QPointF(220, 345);
    QTest::newRow("sporgente a destra") << QPointF(235, 20) << 5.0 << QPointF(220, 25);
    QTest::newRow("sporgente a sinistra") << QPointF(-8, -2) << 5.0 << QPointF(0, 3);
    QTest::newRow("sporgente, sul posto") << QPointF(235, -2) << -1.0 << QPointF(235, -2);
    QTest::newRow("fuori dal foglio, sul posto") << QPointF(300, -50) << -1.0 << QPointF(220, 0);
    QTest::newRow("fuori dal foglio") << QPointF(-100, 900) << 5.0 << QPointF(0, 345);
}

void tst_Incolla::DoveVanno()
{
    QFETCH(QPointF, da);
    QFETCH(double, scarto);
    QFETCH(QPointF, a);
    Banco banco;
    banco.Aggiunge(Copiati(UnCampo(QStringLiteral("Totale"), da.x(), da.y())),
                   scarto < 0 ? SulPosto() : Scostato(scarto));
    QCOMPARE(banco.Posto(Campo1), a);
}

void tst_Incolla::IlGruppoRestaUnito_data()
{
    QTest::addColumn<QRectF>("cornice");
    QTest::addColumn<QPointF>("attesa");
    QTest::newRow("in mezzo al foglio") << QRectF(50, 60, 30, 20) << QPointF(60, 70);
    QTest::newRow("contro due bordi") << QRectF(205, 328, 30, 20) << QPointF(210, 330);
    QTest::newRow("grande come il foglio") << QRectF(0, 0, 240, 350) << QPointF(0, 0);
    QTest::newRow("più grande del foglio") << QRectF(5, 5, 300, 400) << QPointF(0, 0);
}

void tst_Incolla::IlGruppoRestaUnito()
{
    QFETCH(QRectF, cornice);
    QFETCH(QPointF, attesa);
    Banco banco;
    const QPointF dentro(7, 4);
    const QPointF campo = cornice.topLeft() + dentro;
    banco.Aggiunge(Copiati(UnaCornice(QStringLiteral("Riquadro"), cornice),
                           UnCampo(QStringLiteral("Totale"), campo.x(), campo.y())),
                   Scostato(10));
    QCOMPARE(banco.Posto(Cornice1), attesa);
    QCOMPARE(banco.Posto(Campo1), attesa + dentro);
}

void tst_Incolla::IlCampoDiRigaStaAllInizioDelleRighe()
{
    Banco banco;
    banco.Aggiunge(Copiati(UnCampo(QStringLiteral("R_Prezzo"), 10, 200)), Scostato(5));
    QCOMPARE(banco.Posto(Campo1), QPointF(15, 95.5));
}

void tst_Incolla::LaFineDelleRigheNonFermaIlGruppo()
{
    Banco banco;
    banco.Aggiunge(Copiati(UnCampo(QStringLiteral("R_Prezzo"), 10, 349),
                           UnaCornice(QStringLiteral("Riquadro"), {10, 20, 30, 10})),
                   Scostato(5));
    QCOMPARE(banco.Posto(Cornice1), QPointF(15, 25));
}

void tst_Incolla::LeImmaginiTengonoLeFrazioni()
{
    Banco banco;
    Modello modello = ModelloDiProva(1);
    modello.Immagini[1].X = 209.25;
    modello.Immagini[1].Y = 30.75;
    modello.Immagini[1].Larghezza = 29.5;
    banco.Aggiunge(ElementiCopiati::Da(modello, {{Genere::Immagine, 1}}, {}), Scostato(5));
    // No farther right than whole millimetres let it: 239.75 with its width.
    QCOMPARE(banco.Posto({Genere::Immagine, 1}), QPointF(210.25, 35.75));
}

void tst_Incolla::GliAssurdiRestanoSulFoglio()
{
    Banco banco;
    const double niente = std::numeric_limits<double>::quiet_NaN();
    const double infinito = std::numeric_limits<double>::infinity();
    for (const double x : {1e300, -1e300, niente, infinito, -infinito}) {
        for (const Incolla::Dove &dove : {Scostato(5), SulPosto()}) {
            const Incolla::Esito esito =
                banco.Aggiunge(Copiati(UnCampo(QStringLiteral("C"), x, x)), dove);
            const QPointF posto = banco.Posto(esito.nuovi.constFirst());
            QVERIFY(QRectF(0, 0, 220, 345).contains(posto));
        }
    }
    Cornice enorme = UnaCornice(QStringLiteral("Enorme"), {10, 10, 1e300, niente});
    const Incolla::Esito esito = banco.Aggiunge(Copiati(enorme), Scostato(5));
    QCOMPARE(banco.Posto(esito.nuovi.constFirst()), QPointF(0, 15));
}

void tst_Incolla::NomiGiaPresi_data()
{
    QTest::addColumn<QStringList>("presi");
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QString>("atteso");
    const auto nomi = [](const char *elenco) { return QString::fromLatin1(elenco).split(u' '); };
    QTest::newRow("libero") << nomi("Data") << "Totale"
                            << "Totale";
    QTest::newRow("preso") << nomi("Totale") << "Totale"
                           << "Totale_2";
    QTest::newRow("preso in altre lettere") << nomi("TOTALE") << "Totale"
                                            << "Totale_2";
    QTest::newRow("anche il secondo") << nomi("Totale totale_2") << "Totale"
                                      << "Totale_3";
    QTest::newRow("un buco") << nomi("Totale Totale_3") << "Totale"
                             << "Totale_2";
    QTest::newRow("già col numero") << nomi("Totale_2") << "Totale_2"
                                    << "Totale_2_2";
    QTest::newRow("campo di riga") << nomi("R_Qta") << "R_Qta"
                                   << "R_Qta_2";
}

void tst_Incolla::NomiGiaPresi()
{
    QFETCH(QStringList, presi);
    QFETCH(QString, nome);
    QFETCH(QString, atteso);
    Banco banco;
    for (const QString &preso : presi) {
        banco.Aggiunge(Copiati(UnCampo(preso, 10, 10), UnaCornice(preso, {10, 10, 20, 20})),
                       Scostato(5));
    }
    const Incolla::Esito esito = banco.Aggiunge(
        Copiati(UnCampo(nome, 10, 10), UnaCornice(nome, {10, 10, 20, 20})), Scostato(5));
    for (const Chiave &chiave : esito.nuovi) {
        QCOMPARE(banco.documento.Aperto().Di(chiave).Nome, atteso);
        QCOMPARE(banco.documento.Voce(chiave), atteso);
    }
    // Vastrel looks for fields only.
    QCOMPARE(esito.rinominati, atteso == nome ? QStringList() : QStringList(atteso));
}

void tst_Incolla::GliEliminatiLascianoIlNome()
{
    Banco banco;
    const ElementiCopiati copiati = Copiati(UnCampo(QStringLiteral("Totale"), 10, 10));
    banco.Aggiunge(copiati, Scostato(5));
    Passo(banco.documento, {}).Elimina(Campo1);
    const Incolla::Esito esito = banco.Aggiunge(copiati, Scostato(5));
    QCOMPARE(esito.rinominati, QStringList());
    QCOMPARE(banco.documento.Aperto().Campi[2].Nome, QStringLiteral("Totale"));
}

void tst_Incolla::DueUgualiNelloStessoGruppo()
{
    Banco banco;
    const Campo campo = UnCampo(QStringLiteral("Totale"), 10, 10);
    const Incolla::Esito esito = banco.Aggiunge(Copiati(campo, campo, campo), Scostato(5));
    QCOMPARE(esito.rinominati,
             (QStringList{QStringLiteral("Totale_2"), QStringLiteral("Totale_3")}));
}

void tst_Incolla::NonCiSta_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<int>("usati");
    QTest::addColumn<int>("quanti");
    QTest::addColumn<QString>("testo");
    QTest::newRow("campi") << Genere::Campo << 98 << 5
                           << "non c'è posto per incollare: il modello ha 98 campi su 100 e gli "
                              "appunti ne hanno 5";
    QTest::newRow("uno di troppo") << Genere::Cornice << 100 << 1
                                   << "non c'è posto per incollare: il modello ha 100 cornici su "
                                      "100 e gli appunti ne hanno 1";
    QTest::newRow("cento") << Genere::Immagine << 1 << 100
                           << "non c'è posto per incollare: il modello ha 1 immagine su 100 e gli "
                              "appunti ne hanno 100";
}

void tst_Incolla::NonCiSta()
{
    QFETCH(Genere, genere);
    QFETCH(int, usati);
    QFETCH(int, quanti);
    QFETCH(QString, testo);
    Banco banco;
    banco.Aggiunge(Tanti(genere, usati), Scostato(5));
    QCOMPARE(Incolla::SenzaPosto(banco.documento.Aperto(), Tanti(genere, quanti), Parole), testo);
}

void tst_Incolla::NonCiStannoDueGeneri()
{
    const Modello pieno = ModelloDiProva(100);
    const ElementiCopiati copiati = Copiati(UnCampo(QStringLiteral("Totale"), 1, 1),
                                            UnaCornice(QStringLiteral("Riquadro"), {1, 1, 9, 9}));
    QCOMPARE(Incolla::SenzaPosto(pieno, copiati, Parole),
             QStringLiteral("non c'è posto per incollare: il modello ha 100 campi su 100 e gli "
                            "appunti ne hanno 1; il modello ha 100 cornici su 100 e gli appunti "
                            "ne hanno 1"));
}

void tst_Incolla::CiStaPerUnPelo()
{
    Banco banco;
    banco.Aggiunge(Tanti(Genere::Campo, 98), Scostato(5));
    const ElementiCopiati due = Tanti(Genere::Campo, 2);
    QCOMPARE(Incolla::SenzaPosto(banco.documento.Aperto(), due, Parole), QString());
    QCOMPARE(banco.Aggiunge(due, Scostato(5)).nuovi.size(), 2);
    QCOMPARE(banco.documento.Aperto().NumCampi, qint16(100));
}

void tst_Incolla::GliEliminatiContano()
{
    Modello modello = ModelloDiProva(100);
    modello.Campi[50].Nome.clear();
    const QString testo = Incolla::SenzaPosto(modello, Tanti(Genere::Campo, 1), Parole);
    QVERIFY2(testo.contains(QStringLiteral("100 campi su 100")), qPrintable(testo));
    QVERIFY2(testo.endsWith(QStringLiteral("\n\nAnche gli elementi eliminati contano, fino a "
                                           "quando il modello non viene salvato e riaperto.")),
             qPrintable(testo));
}

void tst_Incolla::DopoUnAggiuntaRifiutata()
{
    Modello modello = ModelloDiProva(100);
    modello.NumCampi = 101; // what a refused addition leaves
    const QString testo = Incolla::SenzaPosto(modello, Tanti(Genere::Campo, 1), Parole);
    QVERIFY2(testo.contains(QStringLiteral("100 campi su 100")), qPrintable(testo));
    QCOMPARE(Incolla::SenzaPosto(modello, ElementiCopiati{}, Parole), QString());
}

void tst_Incolla::LaTabellaPienaTieneIlConto()
{
    QFETCH(Genere, genere);
    Documento documento;
    documento.Prende(ModelloDiProva(100), false);
    QCOMPARE(ErroreDi([&] { Incolla::Aggiunge(documento, Tanti(genere, 1), Parole, Scostato(5)); }),
             ErroreSistema::Indice);
    QCOMPARE(documento.Aperto().Numero(genere), qint16(100));
    QVERIFY(!documento.PuoAnnullare());
}

QTEST_GUILESS_MAIN(tst_Incolla)
#include "tst_Incolla.moc"

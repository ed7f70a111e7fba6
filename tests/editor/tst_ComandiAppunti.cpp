#include "AppuntiDiProva.h"

#include "support/Generi.h"

Q_DECLARE_METATYPE(Genere)

namespace {

const Chiave Campo1{Genere::Campo, 1};
const Chiave CampoDiRiga3{Genere::Campo, 3};
const Chiave Cornice1{Genere::Cornice, 1};
const Chiave Immagine1{Genere::Immagine, 1};

void Chiude(EditoreDiProva &prova)
{
    prova.Archivio.Stato().documento.Salvato(); // nothing to ask about
    prova.Editor->close();
    prova.Editor.reset();
}

} // namespace

/// Copy, cut, paste and duplicate, by their keys in the editor's windows.
class tst_ComandiAppunti : public QObject
{
    Q_OBJECT
private slots:
    void init() { QGuiApplication::clipboard()->clear(); }
    void DaUnModelloAllAltro();
    void OgniVoltaCinqueMillimetri();
    void UnAltraCopiaRicomincia();
    void NelloStessoPosto();
    void ControIlBordoSiFerma();
    void ICampiDiRigaDellAltroModello();
    void IlNomeGiaPreso();
    void ICampiConAltriNomi();
    void LaCorniceNonFaParlareDiVastrel();
    void Taglia_data() { RighePerGenere(); }
    void Taglia();
    void TagliaPiuElementi();
    void TagliaEIncollaNonPerdeNiente();
    void Duplica();
    void DuplicaNonToccaGliAppunti();
    void LeImmaginiNonSiDuplicano();
    void DuplicareNonCiSta();
    void INuoviSonoGliScelti();
    void IncollareEUnPasso();
    void CioCheSiSalva();
    void NonCiStaENienteCambia();
    void IlSecondoEditorIncollaDaSolo();
};

void tst_ComandiAppunti::DaUnModelloAllAltro()
{
    Modello copiati;
    {
        StoriaDiProva fonte;
        copiati = fonte.Aperto();
        Sceglie(fonte, {Cornice1, Campo1});
        Tasti(fonte, Qt::Key_C);
        QCOMPARE(Striscia(fonte), QStringLiteral("Negli appunti: 2 elementi"));
        QVERIFY(!fonte.Aperta().PuoAnnullare());
        Chiude(fonte);
    } // the editor and its model are gone
    EditoreDiProva altro;
    QVERIFY(altro.Apre());
    Tasti(altro, Qt::Key_V);
    QCOMPARE(NomiDi(altro, Scelti(altro)),
             (QStringList{QStringLiteral("Riquadro"), QStringLiteral("Doc_Numero")}));
    QCOMPARE(Striscia(altro), QStringLiteral("Nel modello: 2 elementi"));
    Campo atteso = copiati.Campi[1];
    atteso.X += 5;
    atteso.Y += 5;
    QCOMPARE(altro.Archivio.Aperto().Campi[1], atteso);
    QCOMPARE(Voci(*altro.Editor, "ComboCampi"),
             (QStringList{QStringLiteral("------------------"), QStringLiteral("Doc_Numero")}));
    const QGraphicsObject *sulFoglio =
        ElementoAnteprima(*altro.Editor->Anteprima(), QStringLiteral("C1(1)"));
    QVERIFY(sulFoglio->isVisible());
    QCOMPARE(sulFoglio->pos(), QPointF(25, 35));
    altro.Archivio.Stato().documento.Salvato();
}

void tst_ComandiAppunti::OgniVoltaCinqueMillimetri()
{
    StoriaDiProva storia;
    Sceglie(storia, {Campo1});
    Tasti(storia, Qt::Key_C);
    for (int volta = 1; volta <= 3; ++volta) {
        Tasti(storia, Qt::Key_V);
        QCOMPARE(PostoDi(storia, Scelti(storia).constFirst()),
                 QPointF(20, 30) + QPointF(5, 5) * volta);
    }
    QCOMPARE(storia.Aperto().NumCampi, qint16(6));
}

void tst_ComandiAppunti::UnAltraCopiaRicomincia()
{
    StoriaDiProva storia;
    for (int volta = 0; volta < 2; ++volta) {
        Sceglie(storia, {Campo1});
        Tasti(storia, Qt::Key_C);
        Tasti(storia, Qt::Key_V);
        QCOMPARE(PostoDi(storia, Scelti(storia).constFirst()), QPointF(25, 35));
    }
    Sceglie(storia, {Cornice1});
    Tasti(storia, Qt::Key_C);
    Tasti(storia, Qt::Key_V);
    QCOMPARE(PostoDi(storia, Scelti(storia).constFirst()), QPointF(35, 55));
}

void tst_ComandiAppunti::NelloStessoPosto()
{
    StoriaDiProva storia;
    Sceglie(storia, {Campo1});
    Tasti(storia, Qt::Key_C);
    Tasti(storia, Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(PostoDi(storia, Scelti(storia).constFirst()), QPointF(20, 30));
    // It does not count among those that go 5 mm farther.
    Tasti(storia, Qt::Key_V);
    QCOMPARE(PostoDi(storia, Scelti(storia).constFirst()), QPointF(25, 35));
}

void tst_ComandiAppunti::ControIlBordoSiFerma()
{
    EditoreDiProva prova;
    prova.Archivio.AggiungeCornice(QStringLiteral("Angolo"), 193, 318, 40, 20);
    QVERIFY(prova.Apre());
    Sceglie(prova, {Cornice1});
    Tasti(prova, Qt::Key_C);
    for (const QPointF posto : {QPointF(198, 323), QPointF(200, 328), QPointF(200, 330)}) {
        Tasti(prova, Qt::Key_V);
        QCOMPARE(PostoDi(prova, Scelti(prova).constFirst()), posto);
    }
    prova.Archivio.Stato().documento.Salvato();
}

void tst_ComandiAppunti::ICampiDiRigaDellAltroModello()
{
    StoriaDiProva fonte;
    Sceglie(fonte, {CampoDiRiga3});
    Tasti(fonte, Qt::Key_C);
    EditoreDiProva altro;
    altro.Archivio.DaAprire().Righe.yInizio = 133.5;
    QVERIFY(altro.Apre());
    Tasti(altro, Qt::Key_V);
    Tasti(altro, Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(PostoDi(altro, Campo1), QPointF(45, 133.5));
    QCOMPARE(PostoDi(altro, {Genere::Campo, 2}), QPointF(40, 133.5));
    altro.Archivio.Stato().documento.Salvato();
}

void tst_ComandiAppunti::IlNomeGiaPreso()
{
    StoriaDiProva storia;
    Sceglie(storia, {Campo1});
    Tasti(storia, Qt::Key_C);
    Tasti(storia, Qt::Key_V);
    QCOMPARE(NomiDi(storia, Scelti(storia)), QStringList{QStringLiteral("Doc_Numero_2")});
    QCOMPARE(
        Striscia(storia),
        QStringLiteral("Nome già usato, diventa Doc_Numero_2: Vastrel stampa i campi solo con il "
                       "loro nome esatto; nel modello: Doc_Numero_2"));
    Tasti(storia, Qt::Key_V);
    QCOMPARE(NomiDi(storia, Scelti(storia)), QStringList{QStringLiteral("Doc_Numero_3")});
}

void tst_ComandiAppunti::ICampiConAltriNomi()
{
    EditoreDiProva prova;
    prova.Archivio.Riempie(4);
    QVERIFY(prova.Apre());
    Sceglie(prova, {Campo1, {Genere::Campo, 2}, {Genere::Campo, 3}, {Genere::Campo, 4}, Cornice1});
    Tasti(prova, Qt::Key_C);
    Tasti(prova, Qt::Key_V);
    QCOMPARE(
        Striscia(prova),
        QStringLiteral("Nomi già usati, diventano Campo1_2, Campo2_2, Campo3_2...: Vastrel "
                       "stampa i campi solo con il loro nome esatto; nel modello: 5 elementi"));
    prova.Archivio.Stato().documento.Salvato();
}

void tst_ComandiAppunti::LaCorniceNonFaParlareDiVastrel()
{
    StoriaDiProva storia;
    Sceglie(storia, {Cornice1});
    Tasti(storia, Qt::Key_C);
    Tasti(storia, Qt::Key_V);
    QCOMPARE(Striscia(storia), QStringLiteral("Nel modello: Riquadro_2"));
    QCOMPARE(storia.Aperto().Cornici[3].Testo, QStringLiteral("Riquadro")); // its caption stays
}

void tst_ComandiAppunti::Taglia()
{
    QFETCH(Genere, genere);
    StoriaDiProva storia;
    const QString nome = storia.Aperto().Nome(genere, 1);
    Sceglie(storia, {{genere, 1}});
    Tasti(storia, Qt::Key_X);
    QVERIFY(storia.Aperta().Eliminato({genere, 1}));
    QCOMPARE(Striscia(storia), QStringLiteral("Negli appunti: ") + nome);
    QCOMPARE(storia.DaAnnullare(), QStringLiteral("taglia ") + nome);
    QVERIFY(Scelti(storia).isEmpty());
    QCOMPARE(storia.AnnullaTutto(), 1);
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_ComandiAppunti::TagliaPiuElementi()
{
    StoriaDiProva storia;
    Sceglie(storia, {Campo1, Cornice1, Immagine1});
    Tasti(storia, Qt::Key_X);
    QCOMPARE(storia.DaAnnullare(), QStringLiteral("taglia 3 elementi"));
    QVERIFY(!storia.Controllo("C2(1)")->isVisible());
    QCOMPARE(storia.AnnullaTutto(), 1);
    QVERIFY(storia.Controllo("C2(1)")->isVisible());
}

void tst_ComandiAppunti::TagliaEIncollaNonPerdeNiente()
{
    StoriaDiProva storia;
    Sceglie(storia, {Campo1, Cornice1, Immagine1});
    Tasti(storia, Qt::Key_X);
    Tasti(storia, Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    const QList<Chiave> nuovi = Scelti(storia);
    QCOMPARE(nuovi,
             (QList<Chiave>{{Genere::Campo, 4}, {Genere::Cornice, 3}, {Genere::Immagine, 2}}));
    QCOMPARE(storia.Aperto().Campi[4], storia.Prima.Campi[1]);
    QCOMPARE(storia.Aperto().Cornici[3], storia.Prima.Cornici[1]);
    QCOMPARE(storia.Aperto().Immagini[2],
             storia.Prima.Immagini[1]); // its file is missing, as before
    QCOMPARE(Striscia(storia), QStringLiteral("Nel modello: 3 elementi"));
}

void tst_ComandiAppunti::Duplica()
{
    StoriaDiProva storia;
    Sceglie(storia, {Cornice1, Campo1});
    Tasti(storia, Qt::Key_D);
    QCOMPARE(NomiDi(storia, Scelti(storia)),
             (QStringList{QStringLiteral("Riquadro_2"), QStringLiteral("Doc_Numero_2")}));
    QCOMPARE(PostoDi(storia, {Genere::Cornice, 3}), QPointF(35, 55));
    QCOMPARE(PostoDi(storia, {Genere::Campo, 4}), QPointF(25, 35));
    QCOMPARE(storia.DaAnnullare(), QStringLiteral("duplica 2 elementi"));
    Tasti(storia, Qt::Key_D); // the copies are what is chosen now
    QCOMPARE(PostoDi(storia, Scelti(storia).constFirst()), QPointF(40, 60));
    QCOMPARE(storia.AnnullaTutto(), 2);
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_ComandiAppunti::DuplicaNonToccaGliAppunti()
{
    StoriaDiProva storia;
    QGuiApplication::clipboard()->setText(QStringLiteral("dell'utente"));
    Sceglie(storia, {Campo1});
    Tasti(storia, Qt::Key_D);
    QCOMPARE(storia.Aperto().NumCampi, qint16(4));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("dell'utente"));
}

void tst_ComandiAppunti::LeImmaginiNonSiDuplicano()
{
    const QString nota =
        QStringLiteral("Le immagini non si duplicano: un file si può usare una volta sola");
    StoriaDiProva storia;
    Sceglie(storia, {Immagine1, Campo1});
    Tasti(storia, Qt::Key_D);
    QCOMPARE(storia.DaAnnullare(), QStringLiteral("duplica Doc_Numero_2"));
    QVERIFY2(Striscia(storia).contains(nota), qPrintable(Striscia(storia)));
    QCOMPARE(storia.Aperto().NumImmagini, qint16(1));
    storia.AnnullaTutto();
    Sceglie(storia, {Immagine1});
    Tasti(storia, Qt::Key_D);
    QCOMPARE(Striscia(storia), nota);
    QCOMPARE(storia.Aperto(), storia.Prima);
    QCOMPARE(Scelti(storia), QList<Chiave>{Immagine1});
}

void tst_ComandiAppunti::DuplicareNonCiSta()
{
    EditoreDiProva prova;
    prova.Archivio.Riempie(99);
    QVERIFY(prova.Apre());
    Sceglie(prova, {Campo1, {Genere::Campo, 2}});
    Robot robot;
    robot.Ok();
    Tasti(prova, Qt::Key_D);
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral(
                                "non c'è posto per duplicare: il modello ha 99 campi su 100 e "
                                "quelli da duplicare sono 2")});
    QCOMPARE(prova.Archivio.Aperto().NumCampi, qint16(99));
}

void tst_ComandiAppunti::INuoviSonoGliScelti()
{
    StoriaDiProva storia;
    Sceglie(storia, {Cornice1, CampoDiRiga3, Campo1});
    Tasti(storia, Qt::Key_C);
    Sceglie(storia, {Immagine1});
    Tasti(storia, Qt::Key_V);
    QCOMPARE(Scelti(storia),
             (QList<Chiave>{{Genere::Cornice, 3}, {Genere::Campo, 4}, {Genere::Campo, 5}}));
    storia.Bottone("Annulla")->click();
    QVERIFY(Scelti(storia).isEmpty());
}

void tst_ComandiAppunti::IncollareEUnPasso()
{
    StoriaDiProva storia;
    Sceglie(storia, {Cornice1, CampoDiRiga3, Campo1});
    Tasti(storia, Qt::Key_C);
    Tasti(storia, Qt::Key_V);
    QCOMPARE(storia.DaAnnullare(), QStringLiteral("incolla 3 elementi"));
    const Modello dopo = storia.Aperto();
    storia.Bottone("Annulla")->click();
    QCOMPARE(storia.Aperto(), storia.Prima);
    QVERIFY(!storia.Controllo("C1(4)")->isVisible());
    QCOMPARE(Voci(*storia.Editor, "ComboCampi").size(), 4);
    storia.Bottone("Ripristina")->click();
    QCOMPARE(storia.Aperto(), dopo);
    QVERIFY(storia.Controllo("C1(4)")->isVisible());
}

void tst_ComandiAppunti::CioCheSiSalva()
{
    StoriaDiProva storia;
    Sceglie(storia, {Cornice1, Campo1});
    Tasti(storia, Qt::Key_C);
    Tasti(storia, Qt::Key_V);
    Robot robot;
    robot.Si();
    Preme(*storia.Editor, "Salva");
    Modello atteso = storia.Prima;
    atteso.NumCampi = 4;
    atteso.Campi[4] = atteso.Campi[1];
    atteso.Campi[4].Nome = QStringLiteral("Doc_Numero_2");
    atteso.Campi[4].X = 25;
    atteso.Campi[4].Y = 35;
    atteso.NumCornici = 3;
    atteso.Cornici[3] = atteso.Cornici[1];
    atteso.Cornici[3].Nome = QStringLiteral("Riquadro_2");
    atteso.Cornici[3].X = 35;
    atteso.Cornici[3].Y = 55;
    QCOMPARE(storia.Archivio.ByteDelFile(), FileModello::Componi(atteso));
    QVERIFY(robot.Soddisfatto());
}

void tst_ComandiAppunti::NonCiStaENienteCambia()
{
    StoriaDiProva fonte;
    Sceglie(fonte, {Cornice1, Campo1, {Genere::Campo, 2}, CampoDiRiga3});
    Tasti(fonte, Qt::Key_C);
    EditoreDiProva pieno;
    pieno.Archivio.Riempie(98);
    QVERIFY(pieno.Apre());
    const Modello prima = pieno.Archivio.Aperto();
    Robot robot;
    robot.Ok();
    Tasti(pieno, Qt::Key_V);
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral(
                                "non c'è posto per incollare: il modello ha 98 campi su 100 e gli "
                                "appunti ne hanno 3")});
    QCOMPARE(pieno.Archivio.Aperto(), prima); // nor the frame, which has its place
    QVERIFY(!pieno.Archivio.Stato().documento.PuoAnnullare());
    QVERIFY(!pieno.Editor->Variato());
}

void tst_ComandiAppunti::IlSecondoEditorIncollaDaSolo()
{
    EditoreDiProva altro;
    {
        StoriaDiProva storia;
        Sceglie(storia, {Campo1});
        Tasti(storia, Qt::Key_C);
        Tasti(storia, Qt::Key_V);
        Chiude(storia);
    }
    QVERIFY(altro.Apre());
    Tasti(altro, Qt::Key_V); // the first one here
    QCOMPARE(PostoDi(altro, Campo1), QPointF(25, 35));
    altro.Archivio.Stato().documento.Salvato();
}

QTEST_MAIN(tst_ComandiAppunti)
#include "tst_ComandiAppunti.moc"

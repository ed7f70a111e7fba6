#include "preview/Banco.h"
#include "support/Errori.h"
#include "support/ImmaginiDiProva.h"

class tst_ElementiFoglio : public QObject
{
    Q_OBJECT
private slots:
    // Place
    void CampoArrotondato_data();
    void CampoArrotondato();
    void CampoDiRigaSempreAInizioRighe();
    void CorniceArrotondata();
    void ImmagineNonArrotondata();
    void PostoDivisoPerZoom_data() { RigheDiZoom(); }
    void PostoDivisoPerZoom();
    void ManigliaSullUltimoPosizionato();
    void SuggerimentoDelCampoSullaManigliaDelleCornici();
    void CollocatoInUnPassoSegnaVariato();
    // Creation, selection, stacking
    void ElementoNascostoNascondeLaManiglia();
    void ElementoRicreatoTornaVisibile();
    void IndiceFuoriTabella_data();
    void IndiceFuoriTabella();
    void SelezioneMostraLaManiglia();
    void CampineriSpegneICampi();
    void PrimoPianoPerSuperficie();
    void PrimoPianoCampiMisuratiSulloSchermo();
    void PrimoPianoCampiMinimiPerTestoDellIndice();
    void PrimoPianoSenzaElementi();
    void RigheSimulateDavantiATutto();
    void RigheFuoriFoglioTralasciate();
    // Damaged data
    void ValoriImpossibili_data();
    void ValoriImpossibili();
};

void tst_ElementiFoglio::CampoArrotondato_data()
{
    QTest::addColumn<double>("prima");
    QTest::addColumn<double>("dopo");
    QTest::newRow("231.5") << 231.5 << 232.0;
    QTest::newRow("231.49") << 231.49 << 231.0;
    QTest::newRow("2.5") << 2.5 << 3.0;
    QTest::newRow("-2.5") << -2.5 << -2.0;
}

void tst_ElementiFoglio::CampoArrotondato()
{
    QFETCH(double, prima);
    QFETCH(double, dopo);
    Banco banco;
    banco.Campo(QStringLiteral("Totale"), prima, prima);
    QCOMPARE(banco.modello.Campi[1].X, dopo);
    QCOMPARE(banco.modello.Campi[1].Y, dopo);
    QCOMPARE(banco.C1(1)->Posto().topLeft(), QPointF(dopo, dopo));
}

void tst_ElementiFoglio::CampoDiRigaSempreAInizioRighe()
{
    Banco banco;
    banco.Cambia([&](Modello &modello) { modello.Righe.yInizio = 98.25; });
    banco.Campo(QStringLiteral("R_Qta"), 30.4, 231.7);
    QCOMPARE(banco.modello.Campi[1].Y, 98.25); // unrounded
    QCOMPARE(banco.modello.Campi[1].X, 30.0);
    QCOMPARE(banco.C1(1)->Posto().top(), 98.25);
    banco.Campo(QStringLiteral("r_qta"), 30, 231.7);
    QCOMPARE(banco.modello.Campi[2].Y, 232.0);
}

void tst_ElementiFoglio::CorniceArrotondata()
{
    Banco banco;
    banco.Cornice(10.5, 20.49, 30.5, 12.2);
    const Cornice &cornice = banco.modello.Cornici[1];
    QCOMPARE(cornice.X, 11.0);
    QCOMPARE(cornice.Y, 20.0);
    QCOMPARE(cornice.Larghezza, 31.0);
    QCOMPARE(cornice.Altezza, 12.0);
    QCOMPARE(banco.C2(1)->Posto(), QRectF(11, 20, 31, 12));
}

void tst_ElementiFoglio::ImmagineNonArrotondata()
{
    Banco banco;
    banco.Immagine(10.3, 20.49, 30.5, 12.2);
    QCOMPARE(banco.C3(1)->Posto(), QRectF(10.3, 20.49, 30.5, 12.2));
    QCOMPARE(banco.modello.Immagini[1].X, 10.3);
    QCOMPARE(banco.modello.Immagini[1].Altezza, 12.2);
}

void tst_ElementiFoglio::PostoDivisoPerZoom()
{
    QFETCH(double, zoom);
    Banco banco;
    banco.stato.zoom = zoom;
    banco.Campo(QStringLiteral("Totale"), 101, 53);
    banco.Cornice(101, 53, 40, 20);
    banco.Immagine(10.25, 53.5, 40.75, 20.5);
    QCOMPARE(banco.C1(1)->Posto().topLeft(), QPointF(101 / zoom, 53 / zoom));
    QCOMPARE(banco.C1(1)->pos(), banco.C1(1)->Posto().topLeft());
    QCOMPARE(banco.C2(1)->Posto(), QRectF(101 / zoom, 53 / zoom, 40 / zoom, 20 / zoom));
    QCOMPARE(banco.C3(1)->Posto(), QRectF(10.25 / zoom, 53.5 / zoom, 40.75 / zoom, 20.5 / zoom));
    QCOMPARE(banco.frm->MisuraControllo(Genere::Cornice, 1), QSizeF(40 / zoom, 20 / zoom));
}

void tst_ElementiFoglio::ManigliaSullUltimoPosizionato()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 10, 20);
    banco.Campo(QStringLiteral("due"), 40, 60);
    banco.frm->PosizionaCampo(1);
    QCOMPARE(banco.S(1)->Posto().topLeft(), QPointF(10, 20));
    banco.frm->PosizionaCampo(2);
    QCOMPARE(banco.S(1)->Posto().topLeft(), QPointF(40, 60));
    QVERIFY(!banco.S(1)->isVisible());
}

void tst_ElementiFoglio::SuggerimentoDelCampoSullaManigliaDelleCornici()
{
    Banco banco;
    for (int k = 1; k <= 4; ++k) {
        banco.Campo(QStringLiteral("campo%1").arg(k), 10, 20);
    }
    banco.Cornice(10, 20, 30, 10);
    QCOMPARE(banco.S(2)->toolTip(), QStringLiteral("sposta Cornice Nuova57"));
    banco.frm->PosizionaCampo(4);
    QCOMPARE(banco.S(2)->toolTip(), QStringLiteral("sposta campo campo4"));
    QCOMPARE(banco.S(1)->toolTip(), QString());
    banco.frm->PosizionaCornice(1);
    QCOMPARE(banco.S(2)->toolTip(), QStringLiteral("sposta Cornice Nuova57"));
    banco.Immagine(10, 10, 20, 20, QStringLiteral("a.jpg"));
    QCOMPARE(banco.S(3)->toolTip(), QStringLiteral("sposta Immagine a.jpg"));
}

void tst_ElementiFoglio::CollocatoInUnPassoSegnaVariato()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 10, 20);
    banco.Cornice(10, 20, 30, 10);
    banco.Immagine(10, 10, 20, 20);
    QCOMPARE(banco.segnali, QStringList());
    for (const Genere genere : Generi) {
        banco.frm->Posiziona(genere, 1);
    }
    QVERIFY(!banco.stato.documento.Variato());
    for (const Genere genere : Generi) {
        banco.stato.documento.Salvato();
        Passo(banco.stato.documento, {}).Colloca({genere, 1});
        QVERIFY(banco.stato.documento.Variato());
    }
}

void tst_ElementiFoglio::ElementoNascostoNascondeLaManiglia()
{
    Banco banco;
    banco.Cornice(10, 20, 30, 10);
    banco.frm->SelezionaCornice(1);
    QVERIFY(banco.S(2)->isVisible());
    banco.frm->NascondiElemento(Genere::Cornice, 1);
    QVERIFY(!banco.C2(1)->isVisible());
    QVERIFY(!banco.S(2)->isVisible());
}

void tst_ElementiFoglio::ElementoRicreatoTornaVisibile()
{
    Banco banco;
    banco.Cornice(10, 20, 30, 10);
    ControlloTesto *C2 = banco.C2(1);
    banco.frm->NascondiElemento(Genere::Cornice, 1);
    banco.frm->CreaElemento(Genere::Cornice, 1);
    QCOMPARE(banco.C2(1), C2);
    QVERIFY(C2->isVisible());
}

void tst_ElementiFoglio::IndiceFuoriTabella_data()
{
    QTest::addColumn<int>("indice");
    QTest::newRow("101") << 101;
    QTest::newRow("-1") << -1;
    QTest::newRow("0, the template") << 0;
    QTest::newRow("without a control") << 50;
}

void tst_ElementiFoglio::IndiceFuoriTabella()
{
    QFETCH(int, indice);
    Banco banco;
    for (const Genere genere : {Genere::Campo, Genere::Cornice, Genere::Immagine}) {
        QCOMPARE(ErroreDi([&] { banco.frm->Impostazioni(genere, indice); }), 9);
        QCOMPARE(ErroreDi([&] { banco.frm->Posiziona(genere, indice); }), 9);
        QCOMPARE(ErroreDi([&] { banco.frm->Seleziona(genere, indice); }), 9);
        QCOMPARE(ErroreDi([&] { banco.frm->NascondiElemento(genere, indice); }), 9);
        QCOMPARE(ErroreDi([&] { banco.frm->Sposta(genere, indice, Qt::LeftButton, {}, 1, 1); }), 9);
    }
    QVERIFY(!banco.S(1)->isVisible());
    QCOMPARE(banco.segnali, QStringList());
    QCOMPARE(ErroreDi([&] { banco.frm->CreaElemento(Genere::Campo, 101); }), 9);
}

void tst_ElementiFoglio::SelezioneMostraLaManiglia()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 10, 20);
    banco.Campo(QStringLiteral("due"), 40, 60);
    banco.frm->SelezionaCampo(1);
    QVERIFY(banco.S(1)->isVisible());
    QCOMPARE(banco.S(1)->Tag, QStringLiteral("1"));
    QCOMPARE(banco.S(1)->Puntatore(), Qt::SizeAllCursor);
    QCOMPARE(banco.S(1)->Posto().topLeft(), QPointF(10, 20));
    QVERIFY(!banco.S(2)->isVisible());
    QCOMPARE(banco.segnali, QStringList());
    banco.frm->NascondiManiglie();
    QVERIFY(!banco.S(1)->isVisible());
}

void tst_ElementiFoglio::CampineriSpegneICampi()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 10, 20);
    banco.Muove({11, 21});
    QCOMPARE(banco.C1(1)->Colore(), QColor(0x0000ff));
    QVERIFY(banco.C1(1)->Bordo());
    banco.frm->Campineri();
    QCOMPARE(banco.C1(1)->Colore(), QColor(Qt::black));
    QVERIFY(!banco.C1(1)->Bordo());
    QVERIFY(!banco.S(1)->isVisible());
    QCOMPARE(banco.S(1)->Puntatore(), Qt::ArrowCursor);
}

void tst_ElementiFoglio::PrimoPianoPerSuperficie()
{
    Banco banco;
    banco.Cornice(10, 10, 20, 20);
    banco.Cornice(10, 10, 100, 50);
    for (int k = 3; k <= 10; ++k) {
        banco.Cornice(100, 10, 30, k == 10 ? 20 : k + 30);
    }
    banco.Cornice(100, 10, 20, 30); // as large as number 10
    banco.frm->PrimoPianoCornici();
    QVERIFY(banco.C2(1)->zValue() > banco.C2(2)->zValue());
    // Of equal areas the one whose number comes first as a text lies above: "10" before "11".
    QVERIFY(banco.C2(10)->zValue() > banco.C2(11)->zValue());
    QVERIFY(banco.S(2)->zValue() > banco.C2(1)->zValue());
}

void tst_ElementiFoglio::PrimoPianoCampiMisuratiSulloSchermo()
{
    Banco banco;
    banco.Campo(QStringLiteral("lungo"), 10, 10, QString(60, u'W'));
    banco.Campo(QStringLiteral("corto"), 10, 10, QStringLiteral("W"));
    banco.frm->PrimoPianoCampi();
    QVERIFY(banco.C1(2)->zValue() > banco.C1(1)->zValue());
    banco.Cambia([&](Modello &modello) { modello.Campi[2].Dimensione = 200; });
    banco.frm->ImpostazioniCampo(2); // larger now than the long one in small type
    banco.Cambia([&](Modello &modello) { modello.Campi[1].Dimensione = 6; });
    banco.frm->ImpostazioniCampo(1);
    banco.frm->PrimoPianoCampi();
    QVERIFY(banco.C1(1)->zValue() > banco.C1(2)->zValue());
}

void tst_ElementiFoglio::PrimoPianoCampiMinimiPerTestoDellIndice()
{
    // At zoom 3 the areas of short texts round to the same: the text of the index decides.
    Banco banco;
    banco.stato.zoom = 3;
    for (int k = 1; k <= 10; ++k) {
        banco.Campo(QStringLiteral("c%1").arg(k), 10, 10, QStringLiteral("i"));
        banco.Cambia([k](Modello &modello) { modello.Campi[k].Dimensione = 6; });
        banco.frm->ImpostazioniCampo(k);
        const QSizeF misura = banco.C1(k)->Posto().size();
        QVERIFY(misura.width() * misura.height() < 1.5);
    }
    banco.frm->PrimoPianoCampi();
    QVERIFY(banco.C1(1)->zValue() > banco.C1(10)->zValue());
    QVERIFY(banco.C1(10)->zValue() > banco.C1(2)->zValue());
    QVERIFY(banco.C1(2)->zValue() > banco.C1(3)->zValue());
}

void tst_ElementiFoglio::PrimoPianoSenzaElementi()
{
    Banco banco;
    const double prima = banco.S(2)->zValue();
    banco.frm->PrimoPianoCornici();
    QVERIFY(banco.S(2)->zValue() > prima);
    QVERIFY(banco.S(2)->zValue() > banco.S(1)->zValue());
}

void tst_ElementiFoglio::RigheSimulateDavantiATutto()
{
    Banco banco;
    banco.Cornice(10, 10, 100, 50);
    const Frm1::RigaSimulata riga{QRectF(20, 30, 80, 5), QStringLiteral("Arial"), 9, false,
                                  QString(200, QChar(0xa4))};
    const QImage prima = banco.Fotografia();
    banco.frm->AggiungeRigheSimulate({riga});
    auto *controllo = banco.Controllo_<Controllo>(QStringLiteral("Riga(1)"));
    QVERIFY(controllo->isVisible());
    QVERIFY(controllo->zValue() > banco.C2(1)->zValue());
    QCOMPARE(controllo->Posto(), riga.posto);
    // The caption of 200 characters is clipped: it paints in its row and nowhere else.
    const QImage dopo = banco.Fotografia();
    QVERIFY(dopo != prima);
    const QRect posto(PuntoFoto(dopo, {20, 30}) - QPoint(1, 1),
                      PuntoFoto(dopo, {100, 35}) + QPoint(2, 2));
    for (int y = 0; y < dopo.height(); ++y) {
        for (int x = 0; x < dopo.width(); ++x) {
            if (dopo.pixel(x, y) != prima.pixel(x, y)) {
                QVERIFY(posto.contains(x, y));
            }
        }
    }
    // The mouse reaches what lies below.
    banco.Clicca({50, 32});
    QCOMPARE(banco.InMano(2), 1);
    banco.frm->TogliRigheSimulate();
    QVERIFY(!controllo->isVisible());
}

void tst_ElementiFoglio::RigheFuoriFoglioTralasciate()
{
    Banco banco;
    QList<Frm1::RigaSimulata> righe;
    for (int k = 0; k < 20000; ++k) {
        righe.append(
            {QRectF(10, k * 1.0, 100, 5), QStringLiteral("Arial"), 9, false, QStringLiteral("¤")});
    }
    banco.frm->AggiungeRigheSimulate(righe);
    QVERIFY(ElementoAnteprima(*banco.frm, QStringLiteral("Riga(350)")) != nullptr);
    QVERIFY(ElementoAnteprima(*banco.frm, QStringLiteral("Riga(351)")) == nullptr);
}

void tst_ElementiFoglio::ValoriImpossibili_data()
{
    QTest::addColumn<double>("valore");
    QTest::newRow("1e300") << 1e300;
    QTest::newRow("-1e300") << -1e300;
    QTest::newRow("1e9") << 1e9;
    QTest::newRow("0") << 0.0;
    QTest::newRow("-5") << -5.0;
    QTest::newRow("1e-300") << 1e-300;
    QTest::newRow("infinite") << qInf();
    QTest::newRow("no number") << qQNaN();
}

void tst_ElementiFoglio::ValoriImpossibili()
{
    QFETCH(double, valore);
    Banco banco;
    ImmaginiDiProva::Tinta({8, 8}, 0xff00ff00)
        .save(banco.cartella.filePath(QStringLiteral("a.bmp")));
    banco.Campo(QString(10000, u'n'), valore, valore, QString(10000, u'W'));
    banco.Cambia([&](Modello &modello) { modello.Campi[1].Maschera = QString(10000, u'$'); });
    banco.Cambia([&](Modello &modello) { modello.Campi[1].Dimensione = -3; });
    banco.Cornice(valore, valore, valore, valore, valore);
    banco.Cambia([&](Modello &modello) { modello.Cornici[1].Testo = QString(10000, u'W'); });
    banco.Cornice(10, 10, valore, valore);
    banco.Immagine(valore, valore, valore, valore, QStringLiteral("a.bmp"));
    banco.Immagine(10, 10, valore, valore, QStringLiteral("a.bmp"));
    for (const QString &zoom : {QStringLiteral("3"), QStringLiteral("1.7"), QStringLiteral("1")}) {
        banco.Zoom(zoom);
        banco.Fotografia();
        banco.frm->PrimoPianoImmagini();
        banco.frm->PrimoPianoCornici();
        banco.frm->PrimoPianoCampi();
        banco.Clicca({11, 11});
        banco.Trascina({11, 11}, {50, 50});
        banco.frm->Seleziona(Genere::Cornice, 1);
        banco.frm->Sposta(Genere::Cornice, 1, Qt::LeftButton, {}, 3, 3);
        banco.frm->RidimensionaCornice(1, Qt::LeftButton, 3, 3);
        banco.frm->RidimensionaCornice(1, Qt::LeftButton, 5, 5);
        banco.frm->RidimensionaCornice(1, Qt::NoButton, 5, 5);
        banco.Fotografia();
    }
    // A plain neighbour still shows and answers.
    banco.frm->NascondiElemento(Genere::Cornice, 2);
    banco.frm->NascondiElemento(Genere::Immagine, 2);
    banco.frm->NascondiElemento(Genere::Campo, 1);
    banco.frm->NascondiElemento(Genere::Cornice, 1);
    banco.frm->NascondiElemento(Genere::Immagine, 1);
    banco.Campo(QStringLiteral("sano"), 100, 100);
    banco.segnali.clear();
    banco.Muove({101, 101});
    QCOMPARE(banco.InMano(1), 2);
}

QTEST_MAIN(tst_ElementiFoglio)
#include "tst_ElementiFoglio.moc"

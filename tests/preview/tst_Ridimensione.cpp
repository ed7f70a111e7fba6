#include "model/Numeri.h"
#include "preview/Banco.h"

namespace {

/// The size, mm, of a frame that was at posto and has been pulled by the edge at presa. The part of
/// the sheet where it lies is brought into the window before.
QSizeF DopoLaTirata(const QRectF &posto, QPointF presa, QPointF scarto)
{
    Banco banco;
    banco.Cornice(posto.x(), posto.y(), posto.width(), posto.height());
    Trova<QScrollBar>(*banco.frm, "ScrollX")->setValue(static_cast<int>(posto.x()) - 30);
    Trova<QScrollBar>(*banco.frm, "ScrollY")->setValue(static_cast<int>(posto.y()) - 50);
    banco.frm->SelezionaCornice(1);
    banco.Trascina(presa, presa + scarto);
    return {banco.modello.Cornici[1].Larghezza, banco.modello.Cornici[1].Altezza};
}

} // namespace

class tst_Ridimensione : public QObject
{
    Q_OBJECT
private slots:
    void Ridimensiona_data();
    void Ridimensiona();
    void PuntatoriDiRidimensionamento_data() { RigheDiZoom(); }
    void PuntatoriDiRidimensionamento();
    void ClickSenzaMovimentoNonCambiaNulla();
    void MaiSottoUnMillimetro();
    void MaiOltreIlFoglio_data() { RigheDiZoom(); }
    void MaiOltreIlFoglio();
    void BordoVietaIlRidimensionamento_data();
    void BordoVietaIlRidimensionamento();
    void CampoDavantiAlBordo_data();
    void CampoDavantiAlBordo();
    void SoloLaSelezionataSiRidimensiona();
    void PremutoAlCentroNonRidimensiona();
    void CorniceDentroUnAltraSiRidimensiona();
    void PiccolaSiRidimensionaOltreLaManiglia();
    void AccantoAlBordoRispondeCioCheCE();
    void MisuraModelloUgualeAlControllo_data() { RigheDiZoom(); }
    void MisuraModelloUgualeAlControllo();
    // Past the sheet
    void IlBordoBassoNonTagliaLaLarghezza();
    void IlBordoDestroNonTagliaLAltezza();
    void OltreIlFoglioIlPrimoPassoNonTaglia();
    void OltreIlFoglioNonSiAllontana();
};

void tst_Ridimensione::Ridimensiona_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPointF>("presa"); // of the element's size: 1 = the edge
    QTest::addColumn<bool>("larghezza");
    QTest::addColumn<bool>("altezza");
    for (const double zoom : {1.0, 1.7, 2.5, 3.0}) {
        for (const Genere genere : {Genere::Cornice, Genere::Immagine}) {
            const char *nome = genere == Genere::Cornice ? "frame" : "image";
            QTest::addRow("%s, right edge, zoom %g", nome, zoom)
                << genere << zoom << QPointF(1, 0.5) << true << false;
            QTest::addRow("%s, bottom edge, zoom %g", nome, zoom)
                << genere << zoom << QPointF(0.5, 1) << false << true;
            QTest::addRow("%s, corner, zoom %g", nome, zoom)
                << genere << zoom << QPointF(1, 1) << true << true;
        }
    }
}

void tst_Ridimensione::Ridimensiona()
{
    QFETCH(Genere, genere);
    QFETCH(double, zoom);
    QFETCH(QPointF, presa);
    QFETCH(bool, larghezza);
    QFETCH(bool, altezza);
    Banco banco;
    const bool cornice = genere == Genere::Cornice;
    if (cornice) {
        banco.Cornice(30, 30, 60, 40);
    } else {
        banco.Immagine(30, 30, 60, 40);
    }
    banco.Zoom(QString::number(zoom));
    const QRectF posto(30 / zoom, 30 / zoom, 60 / zoom, 40 / zoom);
    banco.Clicca(posto.center());
    // Gripped half a millimetre inside the edge; the edge keeps that distance from the pointer.
    const QPointF da = posto.topLeft() +
                       QPointF(presa.x() * posto.width() - 0.5, presa.y() * posto.height() - 0.5);
    const QPointF a = da + QPointF(20, 15);
    banco.segnali.clear();
    banco.Muove(da);
    banco.Preme(da);
    banco.Muove(da + QPointF(7, 3));
    banco.Muove(a);
    banco.Rilascia(a);
    const QPointF passo = banco.Centro(a) - banco.Centro(da);
    const QSizeF atteso(posto.width() + (larghezza ? passo.x() : 0),
                        posto.height() + (altezza ? passo.y() : 0));
    const double w =
        cornice ? banco.modello.Cornici[1].Larghezza : banco.modello.Immagini[1].Larghezza;
    const double h = cornice ? banco.modello.Cornici[1].Altezza : banco.modello.Immagini[1].Altezza;
    // A frame is placed on whole millimetres at the release, an image keeps its fraction.
    QCOMPARE(w, cornice ? Numeri::Ar(atteso.width() * zoom) : atteso.width() * zoom);
    QCOMPARE(h, cornice ? Numeri::Ar(atteso.height() * zoom) : atteso.height() * zoom);
    QCOMPARE(banco.frm->MisuraControllo(genere, 1) * zoom, QSizeF(w, h));
    QVERIFY(banco.stato.documento.Variato());
    QCOMPARE(banco.Volte("ModificaConclusa"), 1);
    QCOMPARE(cornice ? banco.modello.Cornici[1].X : banco.modello.Immagini[1].X, 30.0);
}

void tst_Ridimensione::PuntatoriDiRidimensionamento()
{
    QFETCH(double, zoom);
    Banco banco;
    banco.Cornice(30, 30, 60, 40);
    banco.Zoom(QString::number(zoom));
    const QRectF posto(30 / zoom, 30 / zoom, 60 / zoom, 40 / zoom);
    banco.Clicca(posto.center());
    const auto puntatoreA = [&](QPointF punto) {
        banco.Muove(punto);
        return banco.Vista()->cursor().shape();
    };
    QCOMPARE(puntatoreA({posto.right() - 0.6, posto.center().y()}), Qt::SizeHorCursor);
    QCOMPARE(puntatoreA({posto.center().x(), posto.bottom() - 0.6}), Qt::SizeVerCursor);
    QCOMPARE(puntatoreA(posto.bottomRight() - QPointF(0.6, 0.6)), Qt::SizeFDiagCursor);
    QCOMPARE(puntatoreA(posto.center()), Qt::ArrowCursor);
    QCOMPARE(puntatoreA({posto.right() - 2, posto.center().y()}), Qt::ArrowCursor);
    QCOMPARE(puntatoreA(posto.topLeft() + QPointF(0.8, 0.8)), Qt::SizeAllCursor);
    QCOMPARE(puntatoreA({190, 120}), Qt::ArrowCursor);
}

void tst_Ridimensione::ClickSenzaMovimentoNonCambiaNulla()
{
    Banco banco;
    banco.stato.zoom = 1.7;
    banco.Immagine(30.1, 30.3, 60.7, 40.9);
    banco.frm->SelezionaImmagine(1);
    const Immagine prima = banco.modello.Immagini[1];
    banco.Clicca(banco.C3(1)->Posto().bottomRight() - QPointF(0.5, 0.5));
    QVERIFY(banco.modello.Immagini[1] == prima);
    QVERIFY(!banco.stato.documento.Variato());
    QCOMPARE(banco.Volte("ModificaConclusa"), 0);
}

void tst_Ridimensione::MaiSottoUnMillimetro()
{
    Banco banco;
    banco.stato.zoom = 2;
    banco.Cornice(60, 60, 60, 40);
    banco.frm->SelezionaCornice(1);
    banco.Trascina({59.5, 49.5}, {10, 10});
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 1.0);
    QCOMPARE(banco.modello.Cornici[1].Altezza, 1.0);
}

void tst_Ridimensione::MaiOltreIlFoglio()
{
    QFETCH(double, zoom);
    Banco banco(zoom); // the sheet is 240 x 350 mm of paper at the opening's zoom
    banco.Cornice(199, 299, 20, 20);
    banco.Immagine(199.5, 299.5, 20, 20);
    Trova<QScrollBar>(*banco.frm, "ScrollX")->setValue(qRound(150 / zoom));
    Trova<QScrollBar>(*banco.frm, "ScrollY")->setValue(qRound(250 / zoom));
    banco.frm->SelezionaCornice(1);
    QPointF angolo = banco.C2(1)->Posto().bottomRight();
    banco.Trascina(angolo - QPointF(0.4, 0.4), angolo + QPointF(80, 80));
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 41.0);
    QCOMPARE(banco.modello.Cornici[1].Altezza, 51.0);
    banco.frm->NascondiElemento(Genere::Cornice, 1);
    banco.frm->SelezionaImmagine(1);
    angolo = banco.C3(1)->Posto().bottomRight();
    banco.Trascina(angolo - QPointF(0.4, 0.4), angolo + QPointF(80, 80));
    QCOMPARE(banco.modello.Immagini[1].Larghezza, 40.5);
    QCOMPARE(banco.modello.Immagini[1].Altezza, 50.5);
}

void tst_Ridimensione::BordoVietaIlRidimensionamento_data()
{
    QTest::addColumn<double>("bordo");
    QTest::addColumn<bool>("ridimensiona");
    QTest::newRow("0: never") << 0.0 << false;
    QTest::newRow("2: never") << 2.0 << false;
    QTest::newRow("2.2: never") << 2.2 << false;
    QTest::newRow("1") << 1.0 << true;
    QTest::newRow("1.5") << 1.5 << true;
    QTest::newRow("0.5") << 0.5 << true;
    QTest::newRow("3") << 3.0 << true;
}

void tst_Ridimensione::BordoVietaIlRidimensionamento()
{
    QFETCH(double, bordo);
    QFETCH(bool, ridimensiona);
    Banco banco;
    banco.Cornice(30, 30, 60, 40, bordo);
    banco.frm->SelezionaCornice(1);
    banco.Muove({89.5, 50});
    QCOMPARE(banco.C2(1)->Puntatore(), ridimensiona ? Qt::SizeHorCursor : Qt::ArrowCursor);
    banco.Trascina({89.5, 50}, {120, 50});
    QCOMPARE(banco.modello.Cornici[1].Larghezza > 80, ridimensiona);
    QCOMPARE(banco.stato.documento.Variato(), ridimensiona);
}

void tst_Ridimensione::CampoDavantiAlBordo_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::newRow("sul bordo di una cornice") << Genere::Cornice;
    QTest::newRow("sul bordo di un'immagine") << Genere::Immagine;
}

void tst_Ridimensione::CampoDavantiAlBordo()
{
    QFETCH(Genere, genere);
    Banco banco;
    if (genere == Genere::Cornice) {
        banco.Cornice(30, 30, 60, 40);
    } else {
        banco.Immagine(30, 30, 60, 40);
    }
    banco.Campo(QStringLiteral("Totale"), 85, 50, QStringLiteral("123456"));
    banco.frm->Seleziona(genere, 1);
    const QPointF sulBordo(89.5, 51.5);
    QVERIFY(banco.C1(1)->Posto().contains(sulBordo));
    banco.Muove(sulBordo);
    QCOMPARE(banco.InMano(1), 1);
    QCOMPARE(banco.Vista()->cursor().shape(), Qt::ArrowCursor);
    banco.Trascina(sulBordo, {110, 51.5});
    QCOMPARE(genere == Genere::Cornice ? banco.modello.Cornici[1].Larghezza
                                       : banco.modello.Immagini[1].Larghezza,
             60.0);
    QVERIFY(!banco.stato.documento.Variato());
    banco.segnali.clear();
    banco.CliccaDueVolte(sulBordo);
    QVERIFY(banco.segnali.contains(QStringLiteral("RichiestaProprieta 0 1")));
    // Where no field lies, the same edge is gripped.
    banco.Trascina({89.5, 40}, {110, 40});
    QVERIFY(banco.stato.documento.Variato());
}

void tst_Ridimensione::SoloLaSelezionataSiRidimensiona()
{
    Banco banco;
    banco.Cornice(30, 30, 60, 40);
    banco.Cornice(120, 30, 30, 40);
    banco.frm->SelezionaCornice(2);
    banco.Trascina({89.5, 50}, {110, 50});
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 60.0);
    banco.frm->NascondiManiglie();
    banco.Trascina({149.5, 50}, {170, 50});
    QCOMPARE(banco.modello.Cornici[2].Larghezza, 30.0);
}

void tst_Ridimensione::PremutoAlCentroNonRidimensiona()
{
    Banco banco;
    banco.Cornice(30, 30, 60, 40);
    banco.frm->SelezionaCornice(1);
    banco.Preme({60, 50});
    for (double x = 60; x < 120; x += 0.5) {
        banco.Muove({x, 50}); // across the edge and out
    }
    banco.Rilascia({120, 50});
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 60.0);
    QVERIFY(!banco.stato.documento.Variato());
}

void tst_Ridimensione::CorniceDentroUnAltraSiRidimensiona()
{
    // Every move sends the frame under the pointer to the back: the small one's edge must answer
    // all the same, wherever the moves have left it.
    for (int passi = 0; passi < 4; ++passi) {
        Banco banco;
        banco.Cornice(10, 10, 150, 100);
        banco.Cornice(30, 30, 60, 40);
        banco.frm->PrimoPianoCornici();
        banco.frm->SelezionaCornice(2);
        for (int k = 0; k <= passi; ++k) {
            banco.Muove({70 + k * 1.0, 50});
        }
        banco.Trascina({89.5, 50}, {109.5, 50});
        QCOMPARE(banco.modello.Cornici[2].Larghezza, 80.0);
        QCOMPARE(banco.modello.Cornici[1].Larghezza, 150.0);
    }
}

void tst_Ridimensione::PiccolaSiRidimensionaOltreLaManiglia()
{
    Banco banco;
    banco.stato.zoom = 3;
    banco.Cornice(60, 60, 1, 1);
    banco.frm->SelezionaCornice(1);
    const QRectF maniglia = banco.S(2)->Posto();
    const QPointF presa = maniglia.bottomRight() + QPointF(0.5, 0.5);
    banco.Trascina(presa, presa + QPointF(10, 10));
    QVERIFY(banco.modello.Cornici[1].Larghezza > 25);
    QVERIFY(banco.modello.Cornici[1].Altezza > 25);
    QCOMPARE(banco.modello.Cornici[1].X, 60.0);
}

void tst_Ridimensione::AccantoAlBordoRispondeCioCheCE()
{
    // The grip reaches a little past the selected image: what lies there opens and is clicked all
    // the same, and where nothing does, nothing opens.
    Banco banco;
    banco.Immagine(50, 50, 20, 20);
    banco.Cornice(20, 20, 30.4, 100);
    const QString dellImmagine =
        QStringLiteral("RichiestaProprieta %1 1").arg(static_cast<int>(Genere::Immagine));
    const QString dellaCornice =
        QStringLiteral("RichiestaProprieta %1 1").arg(static_cast<int>(Genere::Cornice));
    banco.Cornice(70.2, 20, 60, 60);
    const QString dellaSeconda =
        QStringLiteral("RichiestaProprieta %1 2").arg(static_cast<int>(Genere::Cornice));
    banco.frm->SelezionaImmagine(1);
    const QPointF sullaSeconda(70.6, 60);
    const QPointF sulFoglio(60, 70.5);
    QVERIFY(!banco.C3(1)->Posto().contains(sullaSeconda));

    for (const QPointF punto : {sulFoglio, sullaSeconda}) {
        banco.Preme(punto, Qt::RightButton);
        banco.Rilascia(punto, Qt::RightButton);
    }
    QCOMPARE(banco.segnali.count(dellImmagine), 0);
    QCOMPARE(banco.segnali.count(dellaSeconda), 1);
    banco.frm->SelezionaImmagine(1);
    banco.CliccaDueVolte(sullaSeconda);
    QCOMPARE(banco.segnali.count(dellImmagine), 0);
    QCOMPARE(banco.segnali.count(dellaSeconda), 2);
    QCOMPARE(banco.segnali.count(dellaCornice), 0);

    banco.frm->SelezionaCornice(1);
    banco.Clicca(sullaSeconda);
    QCOMPARE(banco.stato.selezione.Attivo(Genere::Cornice), 2);
    QVERIFY(!banco.stato.documento.Variato());
    banco.Trascina(sullaSeconda, sullaSeconda + QPointF(10, 0));
    QVERIFY(qAbs(banco.modello.Immagini[1].Larghezza - 30) < 0.3); // a pixel
}

void tst_Ridimensione::MisuraModelloUgualeAlControllo()
{
    QFETCH(double, zoom);
    Banco banco;
    banco.stato.zoom = zoom;
    banco.Immagine(30, 30, 60, 40);
    banco.frm->SelezionaImmagine(1);
    const QSizeF prima = banco.C3(1)->Posto().size();
    banco.frm->RidimensionaImmagine(1, Qt::NoButton, prima.width() - 0.5, 3);
    QCOMPARE(banco.C3(1)->Puntatore(), Qt::SizeHorCursor);
    banco.frm->RidimensionaImmagine(1, Qt::LeftButton, prima.width() - 0.5, 3);
    QCOMPARE(banco.C3(1)->Posto().size(), prima);
    for (double passo = 0; passo < 20; passo += 3.7) {
        banco.frm->RidimensionaImmagine(1, Qt::LeftButton, prima.width() + passo, 3);
        QCOMPARE(banco.modello.Immagini[1].Larghezza, banco.C3(1)->Posto().width() * zoom);
        QCOMPARE(banco.modello.Immagini[1].Altezza, 40.0);
    }
    QVERIFY(banco.Volte("Variato") >= 5);
}

void tst_Ridimensione::IlBordoBassoNonTagliaLaLarghezza()
{
    // 40 mm past the sheet at the right.
    const auto dopo = DopoLaTirata({180, 50, 100, 30}, {200, 79.5}, {0, 20});
    QCOMPARE(dopo, QSizeF(100, 50));
}

void tst_Ridimensione::IlBordoDestroNonTagliaLAltezza()
{
    // 30 mm past the sheet at the bottom.
    const auto dopo = DopoLaTirata({50, 300, 40, 80}, {89.5, 320}, {20, 0});
    QCOMPARE(dopo, QSizeF(60, 80));
}

void tst_Ridimensione::OltreIlFoglioIlPrimoPassoNonTaglia()
{
    Banco banco;
    Trova<QScrollBar>(*banco.frm, "ScrollX")->setValue(150);
    banco.Cornice(180, 50, 61, 30); // its right edge 1 mm past the sheet, still to be gripped
    banco.frm->SelezionaCornice(1);
    const QPointF presa(239.6, 60);
    banco.Muove(presa);
    banco.Preme(presa);
    const double passo = 2 * MillimetriPerPixel;
    banco.Muove(presa - QPointF(passo, 0));
    QCOMPARE(banco.C2(1)->Posto().width(), 61 - passo);
    banco.Muove(presa);
    QCOMPARE(banco.C2(1)->Posto().width(), 61.0);
    banco.Rilascia(presa);
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 61.0);
}

void tst_Ridimensione::OltreIlFoglioNonSiAllontana()
{
    Banco banco;
    Trova<QScrollBar>(*banco.frm, "ScrollX")->setValue(150);
    banco.Cornice(180, 50, 61, 30);
    banco.frm->SelezionaCornice(1);
    banco.Trascina({239.6, 79.5}, {300, 99.5}); // by the corner
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 61.0);
    QCOMPARE(banco.modello.Cornici[1].Altezza, 50.0);
    banco.Trascina({239.6, 60}, {220, 60});
    QVERIFY(banco.modello.Cornici[1].Larghezza < 45);
    // Back on the sheet, its edge is the limit again.
    banco.Trascina(banco.C2(1)->Posto().bottomRight() - QPointF(0.5, 20), {300, 60});
    QCOMPARE(banco.modello.Cornici[1].Larghezza, 60.0);
}

QTEST_MAIN(tst_Ridimensione)
#include "tst_Ridimensione.moc"

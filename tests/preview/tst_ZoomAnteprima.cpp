#include "preview/Banco.h"
#include "preview/Righelli.h"
#include "support/Controlli.h"
#include "support/DocumentoDiProva.h"
#include "support/Robot.h"

class tst_ZoomAnteprima : public QObject
{
    Q_OBJECT
private slots:
    void TestoDelloZoom_data();
    void TestoDelloZoom();
    void ZoomRidisegnaOgniElemento();
    void ZoomNellOrdine();
    void ZoomUgualeNonRidisegna();
    void ZoomLasciaFoglioEScorrimento();
    void ZoomRicalcolaIRighelli();
    void ZoomTieneLeManiglieSuiLoroElementi();
    void ZoomConElementiEliminati();
    void ZoomSopravviveAllaFinestra();
    void ZoomDigitatoTastoPerTasto();
    void ErroreDuranteLoZoomInUnMessaggio();
};

void tst_ZoomAnteprima::TestoDelloZoom_data()
{
    QTest::addColumn<QString>("scritto");
    QTest::addColumn<QString>("testo");
    QTest::addColumn<double>("zoom");
    QTest::newRow("0 changes nothing") << QStringLiteral("0") << QStringLiteral("0") << 2.0;
    QTest::newRow(", changes nothing") << QStringLiteral(",") << QStringLiteral(",") << 2.0;
    QTest::newRow("empty changes nothing") << QString() << QString() << 2.0;
    QTest::newRow("letters change nothing")
        << QStringLiteral("abc") << QStringLiteral("abc") << 2.0;
    QTest::newRow("0.5 becomes 1") << QStringLiteral("0.5") << QStringLiteral("1") << 1.0;
    QTest::newRow("-2 becomes 1") << QStringLiteral("-2") << QStringLiteral("1") << 1.0;
    QTest::newRow("7 becomes 3") << QStringLiteral("7") << QStringLiteral("3") << 3.0;
    QTest::newRow("1e999 becomes 3") << QStringLiteral("1e999") << QStringLiteral("3") << 3.0;
    QTest::newRow("-1e999 becomes 1") << QStringLiteral("-1e999") << QStringLiteral("1") << 1.0;
    QTest::newRow("2.5 as it is") << QStringLiteral("2.5") << QStringLiteral("2.5") << 2.5;
    QTest::newRow("2,5 is 2") << QStringLiteral("2,5") << QStringLiteral("2,5") << 2.0;
    QTest::newRow("the leading number")
        << QStringLiteral("1.5x9") << QStringLiteral("1.5x9") << 1.5;
    QTest::newRow("exactly 3") << QStringLiteral("3") << QStringLiteral("3") << 3.0;
}

void tst_ZoomAnteprima::TestoDelloZoom()
{
    QFETCH(QString, scritto);
    Banco banco(2);
    Robot robot; // no message, whatever is written
    banco.Zoom(scritto);
    QTEST(Trova<QLineEdit>(*banco.frm, "TextZoom")->text(), "testo");
    QTEST(banco.stato.zoom, "zoom");
    QVERIFY(robot.Soddisfatto());
}

void tst_ZoomAnteprima::ZoomRidisegnaOgniElemento()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 100, 50);
    banco.Cornice(100, 50, 40, 20);
    banco.Immagine(100.5, 50.25, 40.5, 20.5);
    const QSizeF campo = banco.frm->MisuraControllo(Genere::Campo, 1);
    banco.Zoom(QStringLiteral("2.5"));
    QCOMPARE(banco.C1(1)->Posto(), QRectF(QPointF(40, 20), campo / 2.5));
    QCOMPARE(banco.C1(1)->Punti(), 11 / 2.5);
    QCOMPARE(banco.C2(1)->Posto(), QRectF(40, 20, 16, 8));
    QCOMPARE(banco.C3(1)->Posto(), QRectF(100.5 / 2.5, 50.25 / 2.5, 40.5 / 2.5, 20.5 / 2.5));
    QVERIFY(!banco.segnali.contains(QStringLiteral("Variato")));
}

void tst_ZoomAnteprima::ZoomNellOrdine()
{
    // Background, rulers, elements, rows: each step sees what the ones before it did.
    Banco banco;
    banco.Cornice(100, 50, 40, 20);
    QStringList passi;
    const auto annota = [&](const char *passo) {
        return [&, passo] {
            passi.append(QString::fromLatin1(passo));
            passi.append(banco.C2(1)->Posto().left() == 50 ? QStringLiteral("posto")
                                                           : QStringLiteral("non posto"));
            passi.append(QString::number(banco.stato.zoom));
            QVERIFY(QApplication::overrideCursor() != nullptr);
        };
    };
    QObject::connect(banco.frm.get(), &Frm1::SfondoDaRidisegnare, banco.frm.get(),
                     annota("sfondo"));
    QObject::connect(banco.frm.get(), &Frm1::RigheDaRidisegnare, banco.frm.get(), annota("righe"));
    banco.Zoom(QStringLiteral("2"));
    QCOMPARE(passi, QStringList({QStringLiteral("sfondo"), QStringLiteral("non posto"),
                                 QStringLiteral("2"), QStringLiteral("righe"),
                                 QStringLiteral("posto"), QStringLiteral("2")}));
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void tst_ZoomAnteprima::ZoomUgualeNonRidisegna()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 100, 50);
    banco.Lascia({Genere::Campo, 1}, {10.4, 50}); // rounded if the field were placed again
    auto *TextZoom = Trova<QLineEdit>(*banco.frm, "TextZoom");
    QTest::keyClick(TextZoom, Qt::Key_Left);
    banco.Zoom(QStringLiteral("1"));
    banco.Zoom(QStringLiteral("1.0"));
    QCOMPARE(banco.modello.Campi[1].X, 10.4);
    QCOMPARE(banco.segnali, QStringList());
}

void tst_ZoomAnteprima::ZoomLasciaFoglioEScorrimento()
{
    Banco banco;
    const QSize foglio = Trova<QWidget>(*banco.frm, "P1")->size();
    const QSize righello = Trova<QWidget>(*banco.frm, "RighelloX")->size();
    banco.Zoom(QStringLiteral("3"));
    QCOMPARE(Trova<QWidget>(*banco.frm, "P1")->size(), foglio);
    QCOMPARE(Trova<QWidget>(*banco.frm, "RighelloX")->size(), righello);
    QCOMPARE(Trova<QScrollBar>(*banco.frm, "ScrollX")->maximum(), 240);
    QCOMPARE(Trova<QScrollBar>(*banco.frm, "ScrollY")->maximum(), 350);
    // Dragging still ends at the sheet's edge of the opening.
    banco.Cornice(30, 30, 30, 30);
    banco.frm->SelezionaCornice(1);
    banco.frm->SpostaCornice(1, Qt::LeftButton, {}, 1000, 0);
    QCOMPARE(banco.C2(1)->Posto().right(), 240.0);
}

void tst_ZoomAnteprima::ZoomRicalcolaIRighelli()
{
    Banco banco;
    const auto *RighelloX = Trova<RighelloFoglio>(*banco.frm, "RighelloX");
    const auto *RighelloY = Trova<RighelloFoglio>(*banco.frm, "RighelloY");
    QCOMPARE(RighelloX->Segni().scritte.last().testo, QStringLiteral("24"));
    QCOMPARE(RighelloY->Segni().scritte.last().testo, QStringLiteral("35"));
    banco.Zoom(QStringLiteral("3"));
    QCOMPARE(RighelloX->Segni().scritte.last().testo, QStringLiteral("72"));
    QCOMPARE(RighelloY->Segni().scritte.last().testo, QStringLiteral("105"));
}

void tst_ZoomAnteprima::ZoomTieneLeManiglieSuiLoroElementi()
{
    Banco banco;
    banco.Cornice(40, 40, 30, 30);
    banco.Cornice(100, 80, 30, 30);
    banco.frm->SelezionaCornice(1);
    banco.Zoom(QStringLiteral("2"));
    QCOMPARE(banco.S(2)->Tag, QStringLiteral("1"));
    QCOMPARE(banco.S(2)->Posto().topLeft(), QPointF(20, 20));
}

void tst_ZoomAnteprima::ZoomConElementiEliminati()
{
    Banco banco;
    banco.Campo(QStringLiteral("uno"), 100, 50);
    banco.Cornice(100, 50, 40, 20);
    banco.Cambia([](Modello &modello) { modello.Campi[1].Nome.clear(); });
    banco.frm->NascondiElemento(Genere::Campo, 1);
    banco.Zoom(QStringLiteral("2"));
    QVERIFY(!banco.C1(1)->isVisible());
    QCOMPARE(banco.C2(1)->Posto().left(), 50.0);
}

void tst_ZoomAnteprima::ZoomSopravviveAllaFinestra()
{
    Banco banco;
    banco.Zoom(QStringLiteral("2"));
    const Frm1 riaperta(banco.stato);
    QCOMPARE(Trova<QScrollBar>(*const_cast<Frm1 *>(&riaperta), "ScrollX")->maximum(), 120);
    QCOMPARE(banco.stato.zoom, 2.0);
}

void tst_ZoomAnteprima::ZoomDigitatoTastoPerTasto()
{
    Banco banco;
    Controlli::Digita(*banco.frm, "TextZoom", QStringLiteral("2.5"));
    QCOMPARE(banco.stato.zoom, 2.5);
    Controlli::Digita(*banco.frm, "TextZoom", QStringLiteral("0.5")); // "0", "0." do nothing
    QCOMPARE(banco.stato.zoom, 1.0);
    QCOMPARE(Trova<QLineEdit>(*banco.frm, "TextZoom")->text(), QStringLiteral("1"));
}

void tst_ZoomAnteprima::ErroreDuranteLoZoomInUnMessaggio()
{
    Banco banco;
    Cambia(banco.stato, [](Modello &modello) {
        modello.NumCampi = 5;
    }); // without controls: a fault that must not end the program
    Robot robot;
    robot.Ok();
    banco.Zoom(QStringLiteral("2"));
    QVERIFY(robot.Soddisfatto());
    QVERIFY(robot.Testi().value(0).startsWith(QStringLiteral("errore 9")));
    QVERIFY(QApplication::overrideCursor() == nullptr);
    Cambia(banco.stato, [](Modello &modello) { modello.NumCampi = 0; });
}

QTEST_MAIN(tst_ZoomAnteprima)
#include "tst_ZoomAnteprima.moc"

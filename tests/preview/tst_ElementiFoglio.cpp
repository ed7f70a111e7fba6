#include "base/ErroreSistema.h"
#include "grafica/Testo.h"
#include "model/Tavolozza.h"
#include "preview/Banco.h"
#include "support/Errori.h"
#include "support/ImmaginiDiProva.h"

#include <QDateTime>
#include <QFile>

Q_DECLARE_METATYPE(Genere)

namespace {

const QChar RitornoCarrello(13);

/// True when a horizontal line of the colour crosses the column at x near y (mm).
bool LineaOrizzontale(const QImage &immagine, double x, double y, QRgb colore)
{
    const QPoint p = PuntoFoto(immagine, QPointF(x, y));
    for (int dy = -1; dy <= 1; ++dy) {
        if ((immagine.pixel(p.x(), p.y() + dy) & 0xffffff) == colore) {
            return true;
        }
    }
    return false;
}

} // namespace

class tst_ElementiFoglio : public QObject
{
    Q_OBJECT
private slots:
    // Look
    void CampoMostraIlTestoDiProva();
    void SuggerimentoCampo();
    void BarratoSoloSeMascheraNo_data();
    void BarratoSoloSeMascheraNo();
    void PuntiDivisiPerZoom();
    void SenzaFontODimensioneComeSuCarta_data();
    void SenzaFontODimensioneComeSuCarta();
    void RigheSenzaFontComeIlCampo();
    void BordoCornice_data();
    void BordoCornice();
    void BordoDipintoNelColoreDellaCornice();
    void ScrittaCorniceDoveSuCarta_data();
    void ScrittaCorniceDoveSuCarta();
    void ColoreTestoDallaTavolozza();
    void ColoreFuoriTavolozza();
    void SuggerimentoImmagine();
    // Place
    void CampoArrotondato_data();
    void CampoArrotondato();
    void CampoDiRigaSempreAInizioRighe();
    void CorniceArrotondata();
    void ImmagineNonArrotondata();
    void PostoDivisoPerZoom_data();
    void PostoDivisoPerZoom();
    void ManigliaSullUltimoPosizionato();
    void SuggerimentoDelCampoSullaManigliaDelleCornici();
    void CollocatoInUnPassoSegnaVariato();
    // Pictures
    void ImmagineRiempieIlRiquadro();
    void ImmagineIlleggibileNonMostraQuellaDiPrima_data();
    void ImmagineIlleggibileNonMostraQuellaDiPrima();
    void ImmagineToltaPerUnMomentoRimane();
    void ImmagineRilettaSoloSeCambiata();
    void ImmagineFuoriCartellaIgnorata();
    // Creation, selection, stacking
    void ElementoNascostoNascondeLaManiglia();
    void ElementoRicreatoTornaVisibile();
    void IndiceFuoriTabella_data();
    void IndiceFuoriTabella();
    void SelezioneMostraLaManiglia();
    void CampineriSpegneICampi();
    void PrimoPianoPerSuperficie();
    void PrimoPianoCampiMisuratiSulloSchermo();
    void PrimoPianoSenzaElementi();
    void RigheSimulateDavantiATutto();
    void RigheFuoriFoglioTralasciate();
    // Damaged data
    void ValoriImpossibili_data();
    void ValoriImpossibili();
};

void tst_ElementiFoglio::CampoMostraIlTestoDiProva()
{
    Banco banco;
    banco.Campo(QStringLiteral("Totale"), 10, 10, QStringLiteral("1.234,56"));
    banco.Cambia([](Modello &modello) {
        modello.Campi[1].Font = QStringLiteral("Liberation Serif");
        modello.Campi[1].Grassetto = Vero;
    });
    banco.frm->ImpostazioniCampo(1);
    QCOMPARE(banco.C1(1)->Testo().Testo(), QStringLiteral("1.234,56"));
    QCOMPARE(banco.C1(1)->Testo().Forma().famiglia, QStringLiteral("Liberation Serif"));
    QVERIFY(banco.C1(1)->Testo().Forma().grassetto);
}

void tst_ElementiFoglio::SuggerimentoCampo()
{
    Banco banco;
    banco.Campo(QStringLiteral("Totale"), 10, 10);
    banco.Cambia([&](Modello &modello) {
        modello.Campi[1].Descrizione = QStringLiteral("totale documento");
    });
    banco.Cambia(
        [&](Modello &modello) { modello.Campi[1].Maschera = QStringLiteral("###.###,##"); });
    banco.frm->ImpostazioniCampo(1);
    QCOMPARE(banco.C1(1)->toolTip(), QStringLiteral("campo Totale  - totale documento -'") +
                                         RitornoCarrello + QStringLiteral("10 ###.###,##"));
}

void tst_ElementiFoglio::BarratoSoloSeMascheraNo_data()
{
    QTest::addColumn<QString>("maschera");
    QTest::addColumn<bool>("barrato");
    QTest::newRow("No") << QStringLiteral("No") << true;
    QTest::newRow("no") << QStringLiteral("no") << false;
    QTest::newRow("NO") << QStringLiteral("NO") << false;
    QTest::newRow("No with a blank") << QStringLiteral("No ") << false;
    QTest::newRow("empty") << QString() << false;
}

void tst_ElementiFoglio::BarratoSoloSeMascheraNo()
{
    QFETCH(QString, maschera);
    Banco banco;
    banco.Campo(QStringLiteral("Totale"), 10, 10);
    banco.Cambia([&](Modello &modello) { modello.Campi[1].Maschera = maschera; });
    banco.frm->ImpostazioniCampo(1);
    QTEST(banco.C1(1)->Testo().Forma().barrato, "barrato");
}

void tst_ElementiFoglio::PuntiDivisiPerZoom()
{
    Banco banco;
    banco.Campo(QStringLiteral("Totale"), 10, 10);
    banco.Cambia([&](Modello &modello) { modello.Campi[1].Dimensione = 10; });
    const int cornice = banco.Cornice(10, 30, 20, 10);
    banco.Cambia([&](Modello &modello) { modello.Cornici[cornice].Dimensione = 9; });
    banco.stato.zoom = 2;
    banco.frm->ImpostazioniCampo(1);
    banco.frm->ImpostazioniCornice(1);
    QCOMPARE(banco.C1(1)->Punti(), 5.0);
    QCOMPARE(banco.C2(1)->Punti(), 4.5);
}

void tst_ElementiFoglio::SenzaFontODimensioneComeSuCarta_data()
{
    QTest::addColumn<QString>("font");
    QTest::addColumn<int>("dimensione");
    QTest::addColumn<double>("zoom");
    QTest::newRow("font vuoto") << QString() << 8 << 1.0;
    QTest::newRow("font di blank") << QStringLiteral(" ") << 8 << 1.7;
    QTest::newRow("dimensione 0") << QStringLiteral("Arial") << 0 << 1.0;
    QTest::newRow("dimensione -5") << QStringLiteral("Arial") << -5 << 2.0;
    QTest::newRow("nessuno dei due") << QString() << 0 << 1.7;
}

void tst_ElementiFoglio::SenzaFontODimensioneComeSuCarta()
{
    QFETCH(QString, font);
    QFETCH(int, dimensione);
    QFETCH(double, zoom);
    Banco banco(zoom);
    const QString testo = QStringLiteral("Totale documento");
    banco.Campo(QStringLiteral("Totale"), 10, 10, testo);
    banco.Cambia([&](Modello &modello) { modello.Campi[1].Font = font; });
    banco.Cambia([&](Modello &modello) { modello.Campi[1].Dimensione = qint16(dimensione); });
    banco.Cornice(10, 30, 80, 10);
    banco.Cambia([&](Modello &modello) { modello.Cornici[1].Testo = testo; });
    banco.Cambia([&](Modello &modello) { modello.Cornici[1].Font = font; });
    banco.Cambia([&](Modello &modello) { modello.Cornici[1].Dimensione = qint16(dimensione); });
    banco.frm->ImpostazioniCampo(1);
    banco.frm->ImpostazioniCornice(1);
    // What the printer sets: Arial in 8 points.
    const QSizeF carta = MisuraTesto(testo, QStringLiteral("Arial"), 8, false);
    for (const Etichetta *etichetta : {banco.C1(1), banco.C2(1)}) {
        QCOMPARE(etichetta->Punti(), 8 / zoom);
        const QSizeF misura = etichetta->MisuraTesto() * zoom;
        QVERIFY2(qAbs(misura.width() - carta.width()) < 0.1 &&
                     qAbs(misura.height() - carta.height()) < 0.1,
                 qPrintable(QStringLiteral("%1 x %2").arg(misura.width()).arg(misura.height())));
    }
}

void tst_ElementiFoglio::RigheSenzaFontComeIlCampo()
{
    Banco banco(2);
    const auto fotografia = [&](const QString &font, double punti) {
        banco.frm->TogliRigheSimulate();
        banco.frm->AggiungeRigheSimulate(
            {{QRectF(20, 30, 80, 5), font, punti, false, QString(200, QChar(0xa4))}});
        return banco.Fotografia();
    };
    const QImage normale = fotografia(QStringLiteral("Arial"), 8.0 / 2);
    QVERIFY(normale != fotografia(QStringLiteral("Arial"), 5.0 / 2));
    QCOMPARE(fotografia(QString(), 8.0 / 2), normale);
}

void tst_ElementiFoglio::BordoCornice_data()
{
    QTest::addColumn<double>("bordo");
    QTest::addColumn<bool>("mostrato");
    QTest::addColumn<bool>("senzaBordo");
    QTest::newRow("0: a label, marked") << 0.0 << false << true;
    QTest::newRow("0.5: no border, not marked") << 0.5 << false << false;
    QTest::newRow("1") << 1.0 << true << false;
    QTest::newRow("1.5") << 1.5 << true << false;
    QTest::newRow("2: a line on paper, a box here") << 2.0 << true << false;
    QTest::newRow("2.2") << 2.2 << true << false;
    QTest::newRow("3") << 3.0 << true << false;
    QTest::newRow("negative") << -1.0 << false << false;
    QTest::newRow("no number") << qQNaN() << false << false;
}

void tst_ElementiFoglio::BordoCornice()
{
    QFETCH(double, bordo);
    QFETCH(bool, senzaBordo);
    Banco banco;
    banco.Cornice(10, 10, 20, 10, bordo);
    QTEST(banco.C2(1)->Bordo(), "mostrato");
    QCOMPARE(banco.C2(1)->toolTip(),
             QStringLiteral("Cornice Nuova57") +
                 (senzaBordo ? QStringLiteral(" (senza bordo)") : QString()));
}

void tst_ElementiFoglio::BordoDipintoNelColoreDellaCornice()
{
    Banco banco;
    banco.Cornice(10, 10, 40, 20);
    banco.Cambia([&](Modello &modello) { modello.Cornici[1].ColoreCornice = 12; });
    banco.Cambia([](Modello &modello) { modello.Cornici[1].Testo.clear(); });
    banco.frm->ImpostazioniCornice(1);
    const QImage foglio = banco.Fotografia();
    QVERIFY(LineaOrizzontale(foglio, 30, 10, 0xff0000));
    QVERIFY(LineaOrizzontale(foglio, 30, 30, 0xff0000));
    QCOMPARE(ColoreFoto(foglio, {30, 20}), 0xffffffu);
    // One pixel thick, whatever the thickness on paper.
    int rossi = 0;
    for (int y = 0; y < foglio.height(); ++y) {
        rossi += (foglio.pixel(PuntoFoto(foglio, {30, 0}).x(), y) & 0xffffff) == 0xff0000 ? 1 : 0;
    }
    QCOMPARE(rossi, 2 * static_cast<int>(foglio.devicePixelRatio()));
}

void tst_ElementiFoglio::ScrittaCorniceDoveSuCarta_data()
{
    QTest::addColumn<double>("zoom");
    for (const double zoom : {1.0, 1.7, 2.5, 3.0}) {
        QTest::addRow("zoom %g", zoom) << zoom;
    }
}

void tst_ElementiFoglio::ScrittaCorniceDoveSuCarta()
{
    QFETCH(double, zoom);
    Banco banco;
    // A field 1.0 mm right of the frame's corner and 0.4 mm below it stands where its caption does.
    banco.Campo(QStringLiteral("R_campo"), 61, 40.4, QStringLiteral("HHHHHH"));
    banco.Cambia([&](Modello &modello) { modello.Righe.yInizio = 40.4; });
    banco.Cambia([&](Modello &modello) { modello.Campi[1].Dimensione = 30; });
    banco.Cornice(60, 40, 80, 30, 0);
    banco.Cambia([&](Modello &modello) { modello.Cornici[1].Testo = QStringLiteral("HHHHHH"); });
    banco.Cambia([&](Modello &modello) { modello.Cornici[1].Dimensione = 30; });
    banco.Zoom(QString::number(zoom));
    banco.frm->NascondiElemento(Genere::Cornice, 1);
    const QImage campo = banco.Fotografia();
    banco.frm->CreaElemento(Genere::Cornice, 1);
    banco.frm->NascondiElemento(Genere::Campo, 1);
    const QImage cornice = banco.Fotografia();
    QVERIFY(campo != QImage(campo.size(), campo.format()));
    QCOMPARE(cornice, campo);
}

void tst_ElementiFoglio::ColoreTestoDallaTavolozza()
{
    Banco banco;
    banco.Cornice(10, 10, 40, 20, 0);
    for (int colore = 0; colore < Tavolozza::Colori; ++colore) {
        banco.Cambia([&](Modello &modello) {
            modello.Cornici[1].ColoreTesto = static_cast<qint16>(colore);
        });
        banco.frm->ImpostazioniCornice(1);
        QCOMPARE(banco.C2(1)->Colore(), QColor(Tavolozza::Rgb(colore)));
    }
}

void tst_ElementiFoglio::ColoreFuoriTavolozza()
{
    Banco banco;
    banco.Cornice(10, 10, 40, 20);
    for (const int colore : {16, -1, 32767, -32768}) {
        const Cornice &cornice = banco.modello.Cornici[1];
        banco.Cambia([&](Modello &modello) {
            modello.Cornici[1].ColoreTesto = static_cast<qint16>(colore);
            modello.Cornici[1].ColoreCornice = static_cast<qint16>(colore);
        });
        banco.frm->ImpostazioniCornice(1);
        QCOMPARE(banco.C2(1)->Colore(), QColor(Qt::black));
        QCOMPARE(banco.C2(1)->ColoreBordo(), QColor(Qt::black));
        QCOMPARE(int(cornice.ColoreTesto), colore);
    }
}

void tst_ElementiFoglio::SuggerimentoImmagine()
{
    Banco banco;
    banco.Immagine(10, 10, 30, 20, QStringLiteral("logo.bmp"));
    QCOMPARE(banco.C3(1)->toolTip(), QStringLiteral("Immagine logo.bmp"));
    QVERIFY(banco.C3(1)->Bordo());
}

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

void tst_ElementiFoglio::PostoDivisoPerZoom_data()
{
    QTest::addColumn<double>("zoom");
    for (const double zoom : {1.0, 1.7, 2.5, 3.0}) {
        QTest::addRow("zoom %g", zoom) << zoom;
    }
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

void tst_ElementiFoglio::ImmagineRiempieIlRiquadro()
{
    Banco banco;
    QImage meta(40, 10, QImage::Format_RGB32);
    meta.fill(Qt::red);
    for (int x = 20; x < 40; ++x) {
        for (int y = 0; y < 10; ++y) {
            meta.setPixel(x, y, 0xff0000ff);
        }
    }
    meta.save(banco.cartella.filePath(QStringLiteral("Logo.BMP")));
    banco.Immagine(20, 20, 60, 30, QStringLiteral("logo.bmp"));
    const QImage foglio = banco.Fotografia();
    QCOMPARE(ColoreFoto(foglio, {23, 35}), 0xff0000u);
    QCOMPARE(ColoreFoto(foglio, {48, 23}), 0xff0000u);
    QCOMPARE(ColoreFoto(foglio, {52, 47}), 0x0000ffu);
    QCOMPARE(ColoreFoto(foglio, {77, 35}), 0x0000ffu);
    QCOMPARE(ColoreFoto(foglio, {82, 35}), 0xffffffu);
    // Decoded at the size on the screen.
    const QSizeF misura = QSizeF(60, 30) / MillimetriPerPixel * foglio.devicePixelRatio();
    QVERIFY(std::abs(banco.C3(1)->Figura().width() - misura.width()) <= 1);
    QVERIFY(std::abs(banco.C3(1)->Figura().height() - misura.height()) <= 1);
}

void tst_ElementiFoglio::ImmagineIlleggibileNonMostraQuellaDiPrima_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QByteArray>("byte");
    QTest::newRow("missing") << QStringLiteral("manca.bmp") << QByteArray();
    QTest::newRow("no picture") << QStringLiteral("rotta.bmp") << QByteArray("BMnonsense");
    QTest::newRow("no name") << QString() << QByteArray();
}

void tst_ElementiFoglio::ImmagineIlleggibileNonMostraQuellaDiPrima()
{
    QFETCH(QString, nome);
    QFETCH(QByteArray, byte);
    Banco banco;
    ImmaginiDiProva::Tinta({8, 8}, 0xff00ff00)
        .save(banco.cartella.filePath(QStringLiteral("verde.bmp")));
    if (!byte.isEmpty()) {
        ImmaginiDiProva::Scrive(banco.cartella.filePath(nome), byte);
    }
    banco.Immagine(20, 20, 60, 30, QStringLiteral("verde.bmp"));
    QCOMPARE(ColoreFoto(banco.Fotografia(), {50, 35}), 0x00ff00u);
    banco.Cambia([&](Modello &modello) { modello.Immagini[1].Nome = nome; });
    banco.frm->PosizionaImmagine(1);
    QCOMPARE(ColoreFoto(banco.Fotografia(), {50, 35}), 0xffffffu);
    // A box that never had one stays empty.
    banco.Immagine(120, 20, 60, 30, nome);
    QCOMPARE(ColoreFoto(banco.Fotografia(), {150, 35}), 0xffffffu);
    banco.Cambia([&](Modello &modello) { modello.Immagini[1].Nome = QStringLiteral("verde.bmp"); });
    banco.frm->PosizionaImmagine(1);
    QCOMPARE(ColoreFoto(banco.Fotografia(), {50, 35}), 0x00ff00u);
}

void tst_ElementiFoglio::ImmagineToltaPerUnMomentoRimane()
{
    Banco banco;
    const QString percorso = banco.cartella.filePath(QStringLiteral("verde.bmp"));
    ImmaginiDiProva::Tinta({8, 8}, 0xff00ff00).save(percorso);
    banco.Immagine(20, 20, 60, 30, QStringLiteral("verde.bmp"));
    QCOMPARE(ColoreFoto(banco.Fotografia(), {50, 35}), 0x00ff00u);
    QVERIFY(QFile::remove(percorso));
    banco.Cambia([&](Modello &modello) { modello.Immagini[1].Larghezza = 90; });
    banco.frm->PosizionaImmagine(1);
    QCOMPARE(ColoreFoto(banco.Fotografia(), {105, 35}), 0x00ff00u);
}

void tst_ElementiFoglio::ImmagineRilettaSoloSeCambiata()
{
    Banco banco;
    const QString percorso = banco.cartella.filePath(QStringLiteral("a.bmp"));
    ImmaginiDiProva::Tinta({8, 8}, 0xff00ff00).save(percorso);
    banco.Immagine(20, 20, 60, 30, QStringLiteral("a.bmp"));
    banco.Fotografia();
    const qint64 chiave = banco.C3(1)->Figura().cacheKey();
    banco.Cambia([&](Modello &modello) { modello.Immagini[1].X = 50; });
    banco.frm->PosizionaImmagine(1);
    banco.Fotografia();
    QCOMPARE(banco.C3(1)->Figura().cacheKey(), chiave);

    ImmaginiDiProva::Tinta({8, 8}, 0xff0000ff).save(percorso);
    QFile file(percorso);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(60),
                             QFileDevice::FileModificationTime));
    file.close();
    banco.frm->PosizionaImmagine(1);
    QCOMPARE(ColoreFoto(banco.Fotografia(), {80, 35}), 0x0000ffu);
}

void tst_ElementiFoglio::ImmagineFuoriCartellaIgnorata()
{
    Banco banco;
    QTemporaryDir altra;
    ImmaginiDiProva::Tinta({8, 8}, 0xff00ff00).save(altra.filePath(QStringLiteral("x.bmp")));
    banco.Immagine(20, 20, 60, 30,
                   QStringLiteral("../%1/x.bmp").arg(QFileInfo(altra.path()).fileName()));
    QCOMPARE(ColoreFoto(banco.Fotografia(), {50, 35}), 0xffffffu);
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
    Etichetta *C2 = banco.C2(1);
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
    QVERIFY(banco.segnali.contains(QStringLiteral("ElementoPuntato 1 1")));
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
    QVERIFY(banco.segnali.contains(QStringLiteral("ElementoPuntato 0 2")));
}

QTEST_MAIN(tst_ElementiFoglio)
#include "tst_ElementiFoglio.moc"

#include "grafica/Testo.h"
#include "model/Tavolozza.h"
#include "preview/Banco.h"

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

class tst_ElementiAspetto : public QObject
{
    Q_OBJECT
private slots:
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
    void ScrittaCorniceDoveSuCarta_data() { RigheDiZoom(); }
    void ScrittaCorniceDoveSuCarta();
    void ColoreTestoDallaTavolozza();
    void ColoreFuoriTavolozza();
    void SuggerimentoImmagine();
};

void tst_ElementiAspetto::CampoMostraIlTestoDiProva()
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

void tst_ElementiAspetto::SuggerimentoCampo()
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

void tst_ElementiAspetto::BarratoSoloSeMascheraNo_data()
{
    QTest::addColumn<QString>("maschera");
    QTest::addColumn<bool>("barrato");
    QTest::newRow("No") << QStringLiteral("No") << true;
    QTest::newRow("no") << QStringLiteral("no") << false;
    QTest::newRow("NO") << QStringLiteral("NO") << false;
    QTest::newRow("No with a blank") << QStringLiteral("No ") << false;
    QTest::newRow("empty") << QString() << false;
}

void tst_ElementiAspetto::BarratoSoloSeMascheraNo()
{
    QFETCH(QString, maschera);
    Banco banco;
    banco.Campo(QStringLiteral("Totale"), 10, 10);
    banco.Cambia([&](Modello &modello) { modello.Campi[1].Maschera = maschera; });
    banco.frm->ImpostazioniCampo(1);
    QTEST(banco.C1(1)->Testo().Forma().barrato, "barrato");
}

void tst_ElementiAspetto::PuntiDivisiPerZoom()
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

void tst_ElementiAspetto::SenzaFontODimensioneComeSuCarta_data()
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

void tst_ElementiAspetto::SenzaFontODimensioneComeSuCarta()
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
    for (const ControlloTesto *controllo : {banco.C1(1), banco.C2(1)}) {
        QCOMPARE(controllo->Punti(), 8 / zoom);
        const QSizeF misura = controllo->MisuraTesto() * zoom;
        QVERIFY2(qAbs(misura.width() - carta.width()) < 0.1 &&
                     qAbs(misura.height() - carta.height()) < 0.1,
                 qPrintable(QStringLiteral("%1 x %2").arg(misura.width()).arg(misura.height())));
    }
}

void tst_ElementiAspetto::RigheSenzaFontComeIlCampo()
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

void tst_ElementiAspetto::BordoCornice_data()
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

void tst_ElementiAspetto::BordoCornice()
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

void tst_ElementiAspetto::BordoDipintoNelColoreDellaCornice()
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

void tst_ElementiAspetto::ScrittaCorniceDoveSuCarta()
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

void tst_ElementiAspetto::ColoreTestoDallaTavolozza()
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

void tst_ElementiAspetto::ColoreFuoriTavolozza()
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

void tst_ElementiAspetto::SuggerimentoImmagine()
{
    Banco banco;
    banco.Immagine(10, 10, 30, 20, QStringLiteral("logo.bmp"));
    QCOMPARE(banco.C3(1)->toolTip(), QStringLiteral("Immagine logo.bmp"));
    QVERIFY(banco.C3(1)->Bordo());
}

QTEST_MAIN(tst_ElementiAspetto)
#include "tst_ElementiAspetto.moc"

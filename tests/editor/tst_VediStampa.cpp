#include "editor/VediStampa.h"

#include "EditoreDiProva.h"
#include "base/Unita.h"
#include "print/Avanzamento.h"
#include "support/LettorePdf.h"
#include "support/Rettangoli.h"

#include <QCheckBox>
#include <QGraphicsView>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QSignalSpy>

namespace {

constexpr QMarginsF Margini(4, 5, 6, 7); // mm
constexpr double PuntiPerPollice = 300;
constexpr double PixelPerMillimetro = PuntiPerPollice / Unita::MillimetriPerPollice;
constexpr QRgb Rosso = qRgb(255, 0, 0);

QPageLayout PaginaA4()
{
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait, Margini, QPageLayout::Millimeter};
}

/// A window over a model that the test composes, painted and shown.
class Vista
{
public:
    Vista()
    {
        archivio.AggiungeCampo(QStringLiteral("Doc_Numero"), 20, 30);
        archivio.DaAprire().Campi[1].Testo = QStringLiteral("HHH");
        archivio.AggiungeCornice(QStringLiteral("Riquadro"), 30, 50, 40, 20);
        archivio.DaAprire().Cornici[1].Testo.clear();
    }

    void Apre()
    {
        archivio.Scrive();
        Modello modello = archivio.DaAprire();
        modello.NomeFile = archivio.Stato().NomeFile;
        archivio.Stato().documento.Prende(modello, false);
        finestra = std::make_unique<VediStampa>(archivio.Stato(), QStringLiteral("Laser"), Pagina,
                                                nullptr);
        finestra->Dipinge();
        finestra->show();
    }

    /// The paper as the window shows it.
    QImage Carta() const
    {
        QCoreApplication::processEvents();
        auto *vista = finestra->findChild<QPrintPreviewWidget *>()->findChild<QGraphicsView *>();
        const QSizeF carta = Pagina.fullRect(QPageLayout::Millimeter).size();
        QImage foto((carta * PixelPerMillimetro).toSize(), QImage::Format_RGB32);
        foto.fill(Qt::gray);
        QPainter pittore(&foto);
        vista->scene()->render(&pittore, QRectF(foto.rect()), QRectF(foto.rect()));
        return foto;
    }
    /// Mm of the paper around what is dark in the zone.
    static QRectF Scuro(const QImage &carta, const QRectF &zona)
    {
        QRect pixel;
        const QRect dentro =
            QRectF(zona.topLeft() * PixelPerMillimetro, zona.size() * PixelPerMillimetro).toRect();
        for (int y = dentro.top(); y <= dentro.bottom(); ++y) {
            for (int x = dentro.left(); x <= dentro.right(); ++x) {
                if (qGray(carta.pixel(x, y)) < 128) {
                    pixel |= QRect(x, y, 1, 1);
                }
            }
        }
        return {QPointF(pixel.topLeft()) / PixelPerMillimetro,
                QSizeF(pixel.size()) / PixelPerMillimetro};
    }
    static QColor Colore(const QImage &carta, QPointF millimetri)
    {
        return carta.pixelColor((millimetri * PixelPerMillimetro).toPoint());
    }
    /// The same sheet, printed on the same paper.
    LettorePdf Stampato(bool StampaNome = false) const
    {
        const QString pdf = archivio.Stato().CartellaModelli + QStringLiteral("stampato.pdf");
        StampaModello(archivio.Aperto(), archivio.Stato().CartellaModelli,
                      *Stampanti::SuPdf(pdf, Pagina), StampaNome, [](const QString &) {});
        return LettorePdf(pdf);
    }
    QCheckBox *Spunta(const char *nome) const { return Trova<QCheckBox>(*finestra, nome); }
    QString Avvisi() const { return Trova<QLabel>(*finestra, "Avvisi")->text(); }

    QPageLayout Pagina = PaginaA4();
    ArchivioDiProva archivio;
    std::unique_ptr<VediStampa> finestra;
};

} // namespace

/// The sheet as it would be printed, on the screen.
class tst_VediStampa : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void mostraIlFoglioCheSiStampa();
    void diceStampanteECarta();
    void qualunqueCarta_data();
    void qualunqueCarta();
    void ilBordoStampabileETratteggiato();
    void leLineeSottiliSiVedono();
    void leImmaginiSiVedono_data();
    void leImmaginiSiVedono();
    void laScansioneStaSottoESiToglie();
    void senzaScansioneNonSiChiede_data();
    void senzaScansioneNonSiChiede();
    void laScansioneCheMancaSiDice();
    void iNomiDeiCampi();
    void diceGliAvvisiDellaStampa();
    void nonCambiaIlModello();
    void loZoomConITasti();
    void chiedeStampaEdEsportazione();
    void senzaStampanteLoDice();
};

void tst_VediStampa::initTestCase()
{
    qputenv("CUPS_SERVER", "/nessuno/cups.sock"); // whatever this machine prints on
}

void tst_VediStampa::mostraIlFoglioCheSiStampa()
{
    Vista vista;
    vista.Apre();
    const QImage carta = vista.Carta();
    const LettorePdf stampato = vista.Stampato();
    for (const QRectF &zona : {QRectF(20, 30, 40, 12), QRectF(30, 50, 60, 40)}) {
        const QRectF visto = vista.Scuro(carta, zona);
        const QRectF sullaCarta = stampato.Inchiostro(zona);
        QVERIFY2(!sullaCarta.isEmpty() && Vicini(visto, sullaCarta, 0.2),
                 Testo(visto) + " " + Testo(sullaCarta));
    }
    QCOMPARE(vista.Colore(carta, {150, 200}), QColor(Qt::white));
}

void tst_VediStampa::diceStampanteECarta()
{
    Vista vista;
    vista.Apre();
    QCOMPARE(
        Trova<QLabel>(*vista.finestra, "Stampante")->text(),
        QStringLiteral("Stampante: Laser\nCarta: 210 x 297 mm\nArea stampabile: 200 x 285 mm"));
    QCOMPARE(vista.finestra->windowTitle(), QStringLiteral("Vedi stampa: Prova.Mod"));
}

void tst_VediStampa::qualunqueCarta_data()
{
    QTest::addColumn<QPageLayout>("pagina");
    const auto di = [](const QPageSize &carta, QPageLayout::Orientation verso) {
        return QPageLayout(carta, verso, Margini, QPageLayout::Millimeter);
    };
    QTest::newRow("A5") << di(QPageSize(QPageSize::A5), QPageLayout::Portrait);
    QTest::newRow("lying") << di(QPageSize(QPageSize::A4), QPageLayout::Landscape);
    QTest::newRow("a form of its own")
        << di(QPageSize(QSizeF(240, 350), QPageSize::Millimeter, QString(), QPageSize::ExactMatch),
              QPageLayout::Portrait);
    QTest::newRow("wider than high")
        << di(QPageSize(QSizeF(210, 100), QPageSize::Millimeter, QString(), QPageSize::ExactMatch),
              QPageLayout::Portrait);
}

void tst_VediStampa::qualunqueCarta()
{
    QFETCH(QPageLayout, pagina);
    Vista vista;
    vista.Pagina = pagina;
    vista.Apre();
    const LettorePdf stampato = vista.Stampato();
    const QRectF zona(30, 50, 60, 40);
    const QRectF visto = vista.Scuro(vista.Carta(), zona);
    const QRectF sullaCarta = stampato.Inchiostro(zona);
    QVERIFY2(!sullaCarta.isEmpty() && Vicini(visto, sullaCarta, 0.2),
             Testo(visto) + " " + Testo(sullaCarta));
    QVERIFY(
        Vicini(stampato.Foglio().width(), pagina.fullRect(QPageLayout::Millimeter).width(), 0.4));
}

void tst_VediStampa::ilBordoStampabileETratteggiato()
{
    Vista vista;
    vista.Apre();
    const QImage carta = vista.Carta();
    // Along the left edge: as much of it is drawn as is left out, about.
    int tratti = 0;
    int pieni = 0;
    bool prima = false;
    for (int mezzi = 20; mezzi < 560; ++mezzi) {
        const bool pieno = vista.Colore(carta, {4, mezzi / 2.0}) != QColor(Qt::white);
        tratti += pieno && !prima ? 1 : 0;
        pieni += pieno ? 1 : 0;
        prima = pieno;
    }
    QVERIFY2(tratti > 40, QByteArray::number(tratti));
    QVERIFY2(pieni > 250 && pieni < 400, QByteArray::number(pieni));
    // On paper nothing is there.
    QVERIFY(vista.Stampato().Inchiostro(QRectF(3, 10, 2, 270)).isEmpty());
}

void tst_VediStampa::leLineeSottiliSiVedono()
{
    Vista vista;
    for (int i = 0; i < 30; ++i) {
        const int n =
            vista.archivio.AggiungeCornice(QStringLiteral("L%1").arg(i), 10 + 5 * i, 100, 3, 60);
        vista.archivio.DaAprire().Cornici[n].Bordo = 1.1; // a tenth of a millimetre
        vista.archivio.DaAprire().Cornici[n].Testo.clear();
    }
    vista.Apre();
    // As the user sees it: the whole sheet in the window.
    QCoreApplication::processEvents();
    auto *foglio = vista.finestra->findChild<QPrintPreviewWidget *>()->findChild<QGraphicsView *>();
    const QImage foto = foglio->grab().toImage();
    int viste = 0;
    for (int i = 0; i < 30; ++i) {
        const QPointF mezzo((14 + 5 * i) * PixelPerMillimetro, 135 * PixelPerMillimetro);
        const QPoint pixel = foglio->mapFromScene(mezzo);
        bool vista1 = false;
        for (int x = -2; x <= 2; ++x) {
            vista1 = vista1 || foto.pixelColor(pixel + QPoint(x, 0)).lightness() < 250;
        }
        viste += vista1 ? 1 : 0;
    }
    QCOMPARE(viste, 30);
}

void tst_VediStampa::leImmaginiSiVedono_data()
{
    QTest::addColumn<QByteArray>("formato");
    QTest::newRow("without loss") << QByteArray("bmp");
    QTest::newRow("jpeg") << QByteArray("jpeg");
}

void tst_VediStampa::leImmaginiSiVedono()
{
    QFETCH(QByteArray, formato);
    Vista vista;
    const QString nome = QStringLiteral("figura.") + QString::fromLatin1(formato);
    ImmaginiDiProva::Scrive(
        vista.archivio.Stato().CartellaModelli + nome,
        ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({300, 300}, Rosso), formato.constData()));
    vista.archivio.AggiungeImmagine(nome, 100, 100, 40, 30);
    vista.Apre();
    // The pixels of the file are no longer in the program's hands when the window is painted.
    const QImage carta = vista.Carta();
    for (const QPointF punto : {QPointF(106, 107), QPointF(120, 120), QPointF(142, 133)}) {
        const QColor colore = vista.Colore(carta, punto);
        QVERIFY2(colore.red() > 240 && colore.green() < 15, qPrintable(colore.name()));
    }
    QCOMPARE(vista.Colore(carta, {103, 120}), QColor(Qt::white));
}

void tst_VediStampa::laScansioneStaSottoESiToglie()
{
    Vista vista;
    const QString scansione = ScriveScansione(vista.archivio, 50, 40);
    // On page "Immagine sfondo" it may be hidden.
    vista.archivio.DaAprire().Sfondo = {scansione,
                                        QStringLiteral("50"),
                                        QStringLiteral("40"),
                                        QStringLiteral("26"),
                                        QStringLiteral("40"),
                                        0};
    vista.Apre();
    QVERIFY(vista.Spunta("Scansione")->isEnabled());
    QVERIFY(!vista.Spunta("Scansione")->isChecked());
    QCOMPARE(vista.Colore(vista.Carta(), {50, 60}), QColor(Qt::white));
    vista.Spunta("Scansione")->click();
    const QImage sopra = vista.Carta();
    QCOMPARE(vista.Colore(sopra, {50, 60}).rgb(), Rosso);
    QCOMPARE(vista.Colore(sopra, {85, 60}), QColor(Qt::white));
    // The frame is printed over it.
    const QRectF riquadro = vista.Stampato().Inchiostro(QRectF(30, 50, 60, 40));
    const QPointF bordo(riquadro.left() + 0.15, riquadro.center().y());
    QVERIFY(vista.Colore(sopra, bordo).lightness() < 60);
    vista.Spunta("Scansione")->click();
    QCOMPARE(vista.Colore(vista.Carta(), {50, 60}), QColor(Qt::white));
}

void tst_VediStampa::senzaScansioneNonSiChiede_data()
{
    QTest::addColumn<ImmagineSfondo>("sfondo");
    const auto cento = QStringLiteral("100");
    QTest::newRow("none") << ImmagineSfondo();
    QTest::newRow("without a size")
        << ImmagineSfondo{QStringLiteral("/a.bmp"), QString(), QString(), cento, cento, 1};
    QTest::newRow("a size beyond a double") << ImmagineSfondo{
        QStringLiteral("/a.bmp"), QStringLiteral("1e999"), cento, cento, cento, 1};
}

void tst_VediStampa::senzaScansioneNonSiChiede()
{
    QFETCH(ImmagineSfondo, sfondo);
    Vista vista;
    vista.archivio.DaAprire().Sfondo = sfondo;
    vista.Apre();
    QVERIFY(!vista.Spunta("Scansione")->isEnabled());
}

void tst_VediStampa::laScansioneCheMancaSiDice()
{
    Vista vista;
    const auto cento = QStringLiteral("100");
    vista.archivio.DaAprire().Sfondo = {
        QStringLiteral("/manca/scansione.bmp"), cento, cento, cento, cento, 1};
    vista.Apre();
    QCOMPARE(vista.Avvisi(), QString());
    vista.Spunta("Scansione")->click();
    QVERIFY(vista.Avvisi().contains(
        QStringLiteral("impossibile caricare l'immagine di sfondo /manca/scansione.bmp")));
}

void tst_VediStampa::iNomiDeiCampi()
{
    Vista vista;
    vista.Apre();
    const QRectF zona(22, 34, 80, 8);
    vista.Spunta("Nomi")->click();
    const QRectF nomi = vista.Scuro(vista.Carta(), zona);
    const QRectF attesi = vista.Stampato(true).Inchiostro(zona);
    QVERIFY2(Vicini(nomi, attesi, 0.2), Testo(nomi) + " " + Testo(attesi));
    QVERIFY(nomi.width() > vista.Stampato(false).Inchiostro(zona).width() + 5);
}

void tst_VediStampa::diceGliAvvisiDellaStampa()
{
    Vista vista;
    vista.archivio.AggiungeCampo(QStringLiteral("Fuori"), 230, 20);
    vista.archivio.AggiungeImmagine(QStringLiteral("manca.bmp"), 20, 20, 30, 30);
    vista.Apre();
    QVERIFY2(vista.Avvisi().startsWith(
                 QStringLiteral("Stampando, si verrà avvisati: x; StampaImmagine: pos. mm.")),
             qPrintable(vista.Avvisi()));
}

void tst_VediStampa::nonCambiaIlModello()
{
    Vista vista;
    vista.Apre();
    const Modello prima = vista.archivio.Aperto();
    vista.Spunta("Nomi")->click();
    Trova<QPushButton>(*vista.finestra, "Chiudi")->click();
    QVERIFY(!vista.finestra->isVisible());
    QVERIFY(vista.archivio.Aperto() == prima);
    QVERIFY(!vista.archivio.Stato().documento.Variato());
}

void tst_VediStampa::loZoomConITasti()
{
    Vista vista;
    vista.Apre();
    const auto *foglio = vista.finestra->findChild<QPrintPreviewWidget *>();
    QCoreApplication::processEvents();
    const double intero = foglio->zoomFactor();
    QVERIFY(intero < 1);
    Trova<QPushButton>(*vista.finestra, "Ingrandisci")->click();
    QVERIFY(foglio->zoomFactor() > intero);
    Trova<QPushButton>(*vista.finestra, "TuttaLaLarghezza")->click();
    QVERIFY(foglio->zoomFactor() > intero);
    Trova<QPushButton>(*vista.finestra, "TuttoIlFoglio")->click();
    QVERIFY(qAbs(foglio->zoomFactor() - intero) < 0.01);
    Trova<QPushButton>(*vista.finestra, "Riduci")->click();
    QVERIFY(foglio->zoomFactor() < intero);
}

void tst_VediStampa::chiedeStampaEdEsportazione()
{
    Vista vista;
    vista.Apre();
    QSignalSpy stampa(vista.finestra.get(), &VediStampa::StampaRichiesta);
    QSignalSpy esporta(vista.finestra.get(), &VediStampa::EsportazioneRichiesta);
    Trova<QPushButton>(*vista.finestra, "StampaDiProva")->click();
    Trova<QPushButton>(*vista.finestra, "Esporta")->click();
    vista.Spunta("Nomi")->click();
    Trova<QPushButton>(*vista.finestra, "Esporta")->click();
    QCOMPARE(stampa.size(), 1);
    QCOMPARE(esporta, (QList<QVariantList>{{false}, {true}}));
}

void tst_VediStampa::senzaStampanteLoDice()
{
    EditorAperto prova(1);
    Robot robot;
    robot.Ok();
    ::Preme(prova.Editor(), "VediStampa");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(robot.Testi().constFirst().startsWith(
        QStringLiteral("errore 482 Nessuna stampante predefinita è impostata.")));
    QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
}

QTEST_MAIN(tst_VediStampa)
#include "tst_VediStampa.moc"

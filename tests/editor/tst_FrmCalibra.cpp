#include "PagineDiProva.h"
#include "editor/FrmCalibra.h"
#include "editor/VistaCalibrazione.h"
#include "support/DocumentoDiProva.h"
#include "support/LettorePdf.h"

#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include <cmath>

namespace {

constexpr double Punti = 300 / 25.4; // a millimetre of the scan
constexpr double Taglio = 4;         // mm that the scanner has left out at the left and at the top

/// A scan of 200 x 280 mm with three black marks of 2 x 2 mm whose places on the sheet are known.
constexpr std::array<QPointF, 3> Marchi{QPointF(20, 30), QPointF(180, 30), QPointF(20, 240)};

QImage Scandito()
{
    QImage scansione(qRound(200 * Punti), qRound(280 * Punti), QImage::Format_RGB32);
    scansione.fill(Qt::white);
    QPainter penna(&scansione);
    for (const QPointF &marchio : Marchi) {
        const QPointF angolo = marchio - QPointF(Taglio, Taglio);
        penna.fillRect(QRectF(angolo * Punti, QSizeF(2, 2) * Punti), Qt::black);
    }
    return scansione;
}

/// Where a mark is seen on the sheet of the preview, mm; null when it is not seen near there.
QRectF MarchioSulFoglio(const Form2 &editor, const QPointF &atteso)
{
    auto *foglio = Trova<QGraphicsView>(*editor.Anteprima(), "P1");
    const QImage foto = foglio->grab().toImage();
    const double scala = foglio->width() / 240.0;
    QRectF trovato;
    for (int y = 0; y < foto.height(); ++y) {
        for (int x = 0; x < foto.width(); ++x) {
            const QPointF mm((x + 0.5) / scala, (y + 0.5) / scala);
            if ((mm - atteso).manhattanLength() < 8 && qGray(foto.pixel(x, y)) < 128) {
                trovato |= QRectF(x / scala, y / scala, 1 / scala, 1 / scala);
            }
        }
    }
    return trovato;
}

} // namespace

/// "Calibra..." on the page of the scan, from the button to the sheet.
class tst_FrmCalibra : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { prova_.reset(); }
    void CoincideConLaStampa_data();
    void CoincideConLaStampa();
    void UnPassoSolo();
    void EscLasciaTutto();
    void RisoluzioneDelFileDetta();
    void RisoluzioneSbagliataNonSiPrende_data();
    void RisoluzioneSbagliataNonSiPrende();
    void DuePuntiServonoTuttiEDue();
    void PuntiSpostatiConLeFrecceEIlMouse();
    void LeFrecceSpostanoLaScansione();
    void SoloSpostareLasciaLeMisure();
    void SenzaFileLoDice();
    void FileGuastoLoDice();
    void NascostaSiCalibraESiVedeDopo();
    void OpacitaSoloSullAnteprima();
    void SceltaConLaSpuntaSpentaLoDice();

private:
    /// Runs azione in the dialog that the button opens; azione must end it.
    void Calibra(const std::function<void(FrmCalibra &, VistaCalibrazione &)> &azione)
    {
        Robot robot;
        robot.Agisce([&azione](QDialog *dialogo) {
            auto *calibra = qobject_cast<FrmCalibra *>(dialogo);
            QVERIFY(calibra != nullptr);
            azione(*calibra, *Trova<VistaCalibrazione>(*calibra, "Vista"));
        });
        Preme(*prova_->editor, "SfondoCalibra");
        QVERIFY(robot.Soddisfatto());
    }
    static QPoint Pixel(const VistaCalibrazione &vista, QPointF foglio)
    {
        return vista.mapFromScene(foglio);
    }
    /// Where a point of the scan, mm of it, is seen in the dialog.
    static QPoint SullaScansione(const VistaCalibrazione &vista, QPointF millimetri)
    {
        const QRectF posto = vista.Posto();
        return Pixel(vista, posto.topLeft() + QPointF(millimetri.x() / 200 * posto.width(),
                                                      millimetri.y() / 280 * posto.height()));
    }
    static void Trascina(VistaCalibrazione &vista, QPoint da, QPoint a)
    {
        QTest::mousePress(vista.viewport(), Qt::LeftButton, {}, da);
        const QPoint mezzo = (da + a) / 2;
        for (const QPoint &punto : {mezzo, a}) {
            QMouseEvent mossa(QEvent::MouseMove, punto, vista.viewport()->mapToGlobal(punto),
                              Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(vista.viewport(), &mossa);
        }
        QTest::mouseRelease(vista.viewport(), Qt::LeftButton, {}, a);
    }
    QStringList Caselle()
    {
        return {prova_->Testo("SfondoXPosImm"), prova_->Testo("SfondoYPosImm"),
                prova_->Testo("SfondoXimmagine"), prova_->Testo("SfondoYImmagine")};
    }

    std::unique_ptr<PagineDiProva> prova_;
    QString file_;
};

void tst_FrmCalibra::init()
{
    QLocale::setDefault(QLocale::c());
    prova_ = std::make_unique<PagineDiProva>();
    file_ = prova_->prova.Stato().CartellaModelli + QStringLiteral("modulo.jpg");
    static const QByteArray scandito = ImmaginiDiProva::InFormato(Scandito(), "jpeg", 300);
    ImmaginiDiProva::Scrive(file_, scandito);
    Modello &modello = prova_->DaAprire();
    modello = Modello();
    modello.Tipo = QStringLiteral("prova");
    modello.Sfondo = {file_,
                      QStringLiteral("100"),
                      QStringLiteral("140"),
                      QStringLiteral("11"),
                      QStringLiteral("12"),
                      1};
    for (const QPointF &marchio : Marchi) {
        modello.AggiungeCornice(0, 0, 0, 0);
        Cornice &cornice = modello.Cornici[modello.NumCornici];
        cornice.Nome = QStringLiteral("m%1").arg(modello.NumCornici);
        cornice.Testo.clear();
        cornice.X = marchio.x();
        cornice.Y = marchio.y();
        cornice.Larghezza = cornice.Altezza = 2;
        cornice.Bordo = 1;
    }
    prova_->prova.Scrive();
    prova_->editor = std::make_unique<Form2>(prova_->prova.Stato());
    QVERIFY(prova_->editor->Form_Load());
}

void tst_FrmCalibra::CoincideConLaStampa_data()
{
    QTest::addColumn<QString>("modo");
    QTest::newRow("by the file's own resolution") << QStringLiteral("file");
    QTest::newRow("by a resolution that is typed") << QStringLiteral("scritta");
    QTest::newRow("by two points") << QStringLiteral("punti");
}

void tst_FrmCalibra::CoincideConLaStampa()
{
    QFETCH(QString, modo);
    Calibra([&](FrmCalibra &dialogo, VistaCalibrazione &vista) {
        if (modo == QStringLiteral("file")) {
            Trova<QRadioButton>(dialogo, "PerRisoluzione")->click();
        } else if (modo == QStringLiteral("scritta")) {
            Trova<QComboBox>(dialogo, "Risoluzioni")->setEditText(QStringLiteral("300"));
        } else {
            Trova<QRadioButton>(dialogo, "PerPunti")->click();
            // The upper corners of the two upper marks, 160 mm apart, as near as the eye comes.
            for (const int i : {0, 1}) {
                const QPointF suScansione = Marchi.at(i) - QPointF(Taglio, Taglio);
                vista.PrendeInMano(VistaCalibrazione::Mobile::Scansione);
                vista.resetTransform();
                vista.scale(20, 20);
                const QRectF posto = vista.Posto();
                vista.centerOn(posto.topLeft() + QPointF(suScansione.x() / 200 * posto.width(),
                                                         suScansione.y() / 280 * posto.height()));
                QTest::mouseClick(vista.viewport(), Qt::LeftButton, {},
                                  SullaScansione(vista, suScansione));
            }
            Controlli::Digita(dialogo, "Distanza", QStringLiteral("160"));
        }
        QVERIFY(Trova<QPushButton>(dialogo, "Conferma")->isEnabled());
        // Moved by the first mark onto its frame.
        vista.PrendeInMano(VistaCalibrazione::Mobile::Scansione);
        vista.resetTransform();
        vista.scale(20, 20);
        vista.centerOn(Marchi[0]);
        const QPointF adesso = vista.Posto().topLeft() + Marchi[0] - QPointF(Taglio, Taglio);
        Trascina(vista, Pixel(vista, adesso + QPointF(1, 1)),
                 Pixel(vista, Marchi[0] + QPointF(1, 1)));
        QTest::keyClick(&vista, Qt::Key_Return);
    });
    // As printed: the frames of the same places, measured from the corner of the sheet's zero.
    const QString pdf = prova_->prova.Stato().CartellaModelli + QStringLiteral("foglio.pdf");
    StampaModello(prova_->Aperto(), prova_->prova.Stato().CartellaModelli, *Stampanti::SuPdf(pdf),
                  false, [](const QString &testo) { QFAIL(qPrintable(testo)); });
    const LettorePdf stampato(pdf);
    Modifica(prova_->prova.Stato(), [](Modello &modello) {
        for (int i = 1; i <= modello.NumCornici; ++i) {
            modello.Cornici[i].X += 30; // away from what is to be measured
        }
    });
    for (const QPointF &marchio : Marchi) {
        const QRectF sullaCarta =
            stampato.Inchiostro(QRectF(marchio - QPointF(4, 4), QSizeF(12, 12)));
        const QRectF sulFoglio = MarchioSulFoglio(*prova_->editor, marchio + QPointF(1, 1));
        QVERIFY(!sulFoglio.isNull());
        const QString detto = QStringLiteral("%1,%2 on paper, %3,%4 on the sheet")
                                  .arg(sullaCarta.x())
                                  .arg(sullaCarta.y())
                                  .arg(sulFoglio.x())
                                  .arg(sulFoglio.y());
        QVERIFY2(qAbs(sullaCarta.x() - sulFoglio.x()) < 0.5, qPrintable(detto));
        QVERIFY2(qAbs(sullaCarta.y() - sulFoglio.y()) < 0.5, qPrintable(detto));
    }
    const QStringList caselle = Caselle();
    QVERIFY2(qAbs(caselle[2].toDouble() - 200) < 0.4 && qAbs(caselle[3].toDouble() - 280) < 0.5,
             qPrintable(caselle.join(u' ')));
    QVERIFY(!caselle.join(QString()).contains(u','));
}

void tst_FrmCalibra::UnPassoSolo()
{
    const ImmagineSfondo prima = prova_->Aperto().Sfondo;
    Calibra([](FrmCalibra &dialogo, VistaCalibrazione &vista) {
        Trova<QRadioButton>(dialogo, "PerRisoluzione")->click();
        QTest::keyClick(&vista, Qt::Key_Right);
        QTest::keyClick(&vista, Qt::Key_Return);
    });
    QVERIFY(prova_->editor->Variato());
    QCOMPARE(Caselle(), (QStringList{QStringLiteral("11.1"), QStringLiteral("12"),
                                     QStringLiteral("199.98"), QStringLiteral("279.99")}));
    QCOMPARE(prova_->Aperto().Sfondo.Ximmagine, QStringLiteral("199.98"));
    Documento &documento = prova_->prova.Stato().documento;
    QVERIFY2(documento.TestoAnnulla().contains(QStringLiteral("calibra l'immagine di sfondo")),
             qPrintable(documento.TestoAnnulla()));
    documento.Annulla();
    QVERIFY(prova_->Aperto().Sfondo == prima);
    QVERIFY(!documento.PuoAnnullare());
}

void tst_FrmCalibra::EscLasciaTutto()
{
    const ImmagineSfondo prima = prova_->Aperto().Sfondo;
    const QColor colore = prova_->Colore(20, 20);
    Calibra([](FrmCalibra &dialogo, VistaCalibrazione &vista) {
        Trova<QRadioButton>(dialogo, "PerRisoluzione")->click();
        QTest::keyClick(&vista, Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(&vista, Qt::Key_Escape);
    });
    QVERIFY(prova_->Aperto().Sfondo == prima);
    QVERIFY(!prova_->editor->Variato());
    QCOMPARE(Caselle(), (QStringList{QStringLiteral("11"), QStringLiteral("12"),
                                     QStringLiteral("100"), QStringLiteral("140")}));
    QCOMPARE(prova_->Colore(20, 20), colore);
}

void tst_FrmCalibra::RisoluzioneDelFileDetta()
{
    Calibra([](FrmCalibra &dialogo, VistaCalibrazione &) {
        QCOMPARE(Trova<QComboBox>(dialogo, "Risoluzioni")->currentText(),
                 QStringLiteral("300 (del file)"));
        QVERIFY(Trova<QRadioButton>(dialogo, "Attuali")->isChecked());
        dialogo.reject();
    });
}

void tst_FrmCalibra::RisoluzioneSbagliataNonSiPrende_data()
{
    QTest::addColumn<QString>("testo");
    for (const char *testo : {"", "x", "74", "1201", "-300", "0", "1e400"}) {
        QTest::newRow(testo) << QString::fromLatin1(testo);
    }
}

void tst_FrmCalibra::RisoluzioneSbagliataNonSiPrende()
{
    QFETCH(QString, testo);
    Calibra([&](FrmCalibra &dialogo, VistaCalibrazione &vista) {
        Trova<QComboBox>(dialogo, "Risoluzioni")->setEditText(testo);
        QVERIFY(!Trova<QPushButton>(dialogo, "Conferma")->isEnabled());
        QVERIFY(Trova<QLabel>(dialogo, "Esito")->text().contains(QStringLiteral("da 75 a 1200")));
        QTest::keyClick(&vista, Qt::Key_Return);
        QVERIFY(dialogo.isVisible());
        Trova<QComboBox>(dialogo, "Risoluzioni")->setEditText(QStringLiteral("150"));
        QVERIFY(Trova<QPushButton>(dialogo, "Conferma")->isEnabled());
        QVERIFY(qAbs(dialogo.Posto().width() - 400) < 0.1);
        dialogo.reject();
    });
}

void tst_FrmCalibra::DuePuntiServonoTuttiEDue()
{
    Calibra([](FrmCalibra &dialogo, VistaCalibrazione &vista) {
        const auto *conferma = Trova<QPushButton>(dialogo, "Conferma");
        const auto *esito = Trova<QLabel>(dialogo, "Esito");
        Trova<QRadioButton>(dialogo, "PerPunti")->click();
        QVERIFY(!conferma->isEnabled());
        QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, SullaScansione(vista, {20, 20}));
        QVERIFY(!conferma->isEnabled());
        QVERIFY(esito->text().contains(QStringLiteral("due punti")));
        QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, SullaScansione(vista, {150, 20}));
        QVERIFY(esito->text().contains(QStringLiteral("millimetri")));
        Controlli::Digita(dialogo, "Distanza", QStringLiteral("0"));
        QVERIFY(!conferma->isEnabled());
        Controlli::Digita(dialogo, "Distanza", QStringLiteral("130"));
        QVERIFY(conferma->isEnabled());
        QVERIFY(qAbs(dialogo.Posto().width() - 200) < 3);
        // A click beside the two puts no third.
        QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, SullaScansione(vista, {100, 200}));
        QVERIFY(qAbs(dialogo.Posto().width() - 200) < 3);
        dialogo.reject();
    });
}

void tst_FrmCalibra::PuntiSpostatiConLeFrecceEIlMouse()
{
    Calibra([](FrmCalibra &dialogo, VistaCalibrazione &vista) {
        auto *muove = Trova<QComboBox>(dialogo, "Muove");
        // Without a mouse: both points come into sight, and go where the keys take them.
        QTest::keyClick(muove, Qt::Key_Down);
        QVERIFY(Trova<QRadioButton>(dialogo, "PerPunti")->isChecked());
        const QPointF messo = vista.PuntiMessi()[0].value();
        QTest::keyClick(&vista, Qt::Key_Left);
        QVERIFY(qAbs(vista.PuntiMessi()[0]->x() - (messo.x() - 1 / std::round(200 * Punti))) <
                1e-9);
        QTest::keyClick(&vista, Qt::Key_Up, Qt::ShiftModifier);
        QVERIFY(qAbs(vista.PuntiMessi()[0]->y() - (messo.y() - 10 / std::round(280 * Punti))) <
                1e-9);
        const QRectF posto = vista.Posto();
        // Dragged, and not beyond the scan.
        const QPoint da = SullaScansione(
            vista, {vista.PuntiMessi()[0]->x() * 200, vista.PuntiMessi()[0]->y() * 280});
        Trascina(vista, da, SullaScansione(vista, {20, 20}));
        QVERIFY(qAbs(vista.PuntiMessi()[0]->x() - 0.1) < 0.02);
        Trascina(vista, SullaScansione(vista, {20, 20}), SullaScansione(vista, {-30, 20}));
        QCOMPARE(vista.PuntiMessi()[0]->x(), 0.0);
        QCOMPARE(vista.Posto(), posto); // the scan has stayed
        dialogo.reject();
    });
}

void tst_FrmCalibra::LeFrecceSpostanoLaScansione()
{
    Calibra([](FrmCalibra &dialogo, VistaCalibrazione &vista) {
        const QPointF prima = dialogo.Posto().topLeft();
        QTest::keyClick(&vista, Qt::Key_Left);
        QTest::keyClick(&vista, Qt::Key_Down, Qt::ShiftModifier);
        const QPointF scarto = dialogo.Posto().topLeft() - prima;
        QVERIFY(qAbs(scarto.x() + 0.1) < 1e-9 && qAbs(scarto.y() - 1) < 1e-9);
        dialogo.reject();
    });
}

void tst_FrmCalibra::SoloSpostareLasciaLeMisure()
{
    Calibra([](FrmCalibra &, VistaCalibrazione &vista) {
        QTest::keyClick(&vista, Qt::Key_Left, Qt::ShiftModifier);
        QTest::keyClick(&vista, Qt::Key_Enter);
    });
    QCOMPARE(Caselle(), (QStringList{QStringLiteral("10"), QStringLiteral("12"),
                                     QStringLiteral("100"), QStringLiteral("140")}));
}

void tst_FrmCalibra::SenzaFileLoDice()
{
    Modifica(prova_->prova.Stato(), [](Modello &modello) { modello.Sfondo.File.clear(); });
    Robot robot;
    robot.Ok();
    Preme(*prova_->editor, "SfondoCalibra");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(robot.Testi().first().contains(QStringLiteral("Sfoglia")));
}

void tst_FrmCalibra::FileGuastoLoDice()
{
    ImmaginiDiProva::Scrive(file_, "rovinata");
    Robot robot;
    robot.Ok();
    Preme(*prova_->editor, "SfondoCalibra");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(robot.Testi().first().startsWith(
        QStringLiteral("impossibile caricare l'immagine di sfondo ") + file_));
}

void tst_FrmCalibra::NascostaSiCalibraESiVedeDopo()
{
    Preme(*prova_->editor, "VisualizzaImmagineSfondo");
    Calibra([](FrmCalibra &dialogo, VistaCalibrazione &vista) {
        Trova<QRadioButton>(dialogo, "PerRisoluzione")->click();
        QTest::keyClick(&vista, Qt::Key_Return);
    });
    QCOMPARE(prova_->Testo("SfondoXimmagine"), QStringLiteral("199.98"));
    const QPointF marchio = QPointF(11, 12) + Marchi[0] - QPointF(Taglio, Taglio);
    QVERIFY(MarchioSulFoglio(*prova_->editor, marchio + QPointF(1, 1)).isNull());
    Preme(*prova_->editor, "VisualizzaImmagineSfondo");
    QVERIFY(!MarchioSulFoglio(*prova_->editor, marchio + QPointF(1, 1)).isNull());
}

void tst_FrmCalibra::OpacitaSoloSullAnteprima()
{
    const QString rossa = prova_->Scansione();
    Modifica(prova_->prova.Stato(), [&](Modello &modello) {
        modello.Sfondo = {rossa,
                          QStringLiteral("200"),
                          QStringLiteral("100"),
                          QStringLiteral("0"),
                          QStringLiteral("100"),
                          1};
    });
    Preme(*prova_->editor, "SfondoSpostaDx"); // draws it
    prova_->prova.Stato().documento.Salvato();
    auto *opacita = Trova<QSpinBox>(*prova_->editor, "SfondoOpacita");
    QCOMPARE(opacita->value(), 100);
    QCOMPARE(prova_->Colore(100, 150), QColor(255, 0, 0));
    opacita->setValue(20);
    QVERIFY(qAbs(prova_->Colore(100, 150).green() - 204) <= 2);
    QCOMPARE(prova_->Colore(100, 150).red(), 255);
    opacita->setValue(5); // below what can be seen
    QCOMPARE(opacita->value(), 20);
    QTest::keyClick(opacita, Qt::Key_Up);
    QCOMPARE(opacita->value(), 25);
    QVERIFY(!prova_->editor->Variato());
    opacita->setValue(100);
    QCOMPARE(prova_->Colore(100, 150), QColor(255, 0, 0));
}

void tst_FrmCalibra::SceltaConLaSpuntaSpentaLoDice()
{
    const auto striscia = [this] {
        return Trova<QLabel>(*prova_->editor->Anteprima(), "Text1")->text();
    };
    prova_->Scrive("SfondoFileImmagine", file_);
    QTest::keyClick(Trova<QLineEdit>(*prova_->editor, "SfondoFileImmagine"), Qt::Key_Return);
    QVERIFY(!striscia().contains(QStringLiteral("non si vede")));
    Preme(*prova_->editor, "VisualizzaImmagineSfondo");
    prova_->Scrive("SfondoFileImmagine", file_);
    Robot robot;
    QTest::keyClick(Trova<QLineEdit>(*prova_->editor, "SfondoFileImmagine"), Qt::Key_Return);
    QVERIFY(striscia().contains(QStringLiteral("non si vede")));
    QVERIFY(robot.Soddisfatto());
    // What is no longer so is no longer said.
    Preme(*prova_->editor, "VisualizzaImmagineSfondo");
    QVERIFY(!striscia().contains(QStringLiteral("non si vede")));
}

QTEST_MAIN(tst_FrmCalibra)
#include "tst_FrmCalibra.moc"

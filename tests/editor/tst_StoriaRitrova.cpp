#include "StoriaDiProva.h"

#include <QCheckBox>
#include <QGraphicsObject>

namespace {

QStringList RigheInVista(const StoriaDiProva &storia)
{
    QStringList posti;
    for (QGraphicsItem *e : Trova<QGraphicsView>(storia.Anteprima(), "P1")->scene()->items()) {
        const QGraphicsObject *oggetto = e->toGraphicsObject();
        if (oggetto != nullptr && oggetto->isVisible() &&
            oggetto->metaObject()->className() == QByteArray("Riga")) {
            posti.append(QString::number(oggetto->pos().y()));
        }
    }
    return posti;
}

} // namespace

class tst_StoriaRitrova : public QObject
{
    Q_OBJECT
private slots:
    void LAggiuntoLasciaElencoEFoglio();
    void LEliminatoTornaInElencoESulFoglio();
    void IlRinominatoTornaColSuoNome();
    void LeCaselleTornano();
    void LoSfondoTorna();
    void LaSimulazioneTorna();
    void TornaInVistaSullaSuaPagina_data();
    void TornaInVistaSullaSuaPagina();
    void LaPosizioneRigheTornaSullaSuaPagina();
    void LoSfondoTornaSullaSuaPagina();
    void IlDiNuovoEliminatoNonHaManiglia_data();
    void IlDiNuovoEliminatoNonHaManiglia();
    void LaPaginaTornaSenzaManigliaSulSegnato_data();
    void LaPaginaTornaSenzaManigliaSulSegnato();
};

void tst_StoriaRitrova::LAggiuntoLasciaElencoEFoglio()
{
    StoriaDiProva storia;
    const QStringList elenco = Voci(*storia.Editor, "ComboCornici");
    Robot robot;
    robot.Agisce([](QDialog *d) {
        Trova<QLineEdit>(*d, "Nome")->setText(QStringLiteral("Timbro"));
        Preme(*d, "Confema");
    });
    storia.Apre("Cornici ed Etichette");
    Preme(*storia.Editor, "AggiungiCornice");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(Voci(*storia.Editor, "ComboCornici"), elenco + QStringList{QStringLiteral("Timbro")});
    QVERIFY(storia.Controllo("C2(3)")->isVisible());

    storia.Annulla();
    QCOMPARE(Voci(*storia.Editor, "ComboCornici"), elenco);
    QVERIFY(!storia.Controllo("C2(3)")->isVisible());
    QVERIFY(!storia.Controllo("S2")->isVisible());
    QCOMPARE(storia.Aperto(), storia.Prima);

    storia.Ripristina();
    QCOMPARE(Voci(*storia.Editor, "ComboCornici"), elenco + QStringList{QStringLiteral("Timbro")});
    QVERIFY(storia.Controllo("C2(3)")->isVisible());
    QCOMPARE(Trova<QComboBox>(*storia.Editor, "ComboCornici")->currentText(),
             QStringLiteral("Timbro"));
    // The slot is taken again by what is added next, as if nothing had been there.
    storia.Annulla();
    robot.Annulla();
    Preme(*storia.Editor, "AggiungiCornice");
    QCOMPARE(Voci(*storia.Editor, "ComboCornici").size(), elenco.size() + 1);
    QVERIFY(storia.Controllo("C2(3)")->isVisible());
}

void tst_StoriaRitrova::LEliminatoTornaInElencoESulFoglio()
{
    StoriaDiProva storia;
    const QStringList elenco = Voci(*storia.Editor, "ComboCampi");
    Robot robot;
    robot.Agisce([](QDialog *d) { Preme(*d, "PEliminaCampo"); }).Si();
    storia.ApreProprieta(Genere::Campo, 2);
    QVERIFY(robot.Soddisfatto());
    QVERIFY(!storia.Controllo("C1(2)")->isVisible());
    QVERIFY(Voci(*storia.Editor, "ComboCampi") != elenco);
    storia.Annulla();
    QCOMPARE(Voci(*storia.Editor, "ComboCampi"), elenco);
    QVERIFY(storia.Controllo("C1(2)")->isVisible());
    QCOMPARE(Trova<QComboBox>(*storia.Editor, "ComboCampi")->currentText(),
             QStringLiteral("Totale"));
    QVERIFY(storia.Controllo("S1")->isVisible());
    QCOMPARE(storia.Controllo("S1")->pos(), QPointF(60, 30));
    // It is an element like the others again: its properties open.
    robot.Annulla();
    Preme(*storia.Editor, "VariazioneCampo");
    QCOMPARE(robot.Testi().constLast(), QStringLiteral("FrmCampo"));
}

void tst_StoriaRitrova::IlRinominatoTornaColSuoNome()
{
    StoriaDiProva storia;
    const QStringList elenco = Voci(*storia.Editor, "ComboCornici");
    const QString suggerimento = storia.Controllo("C2(1)")->toolTip();
    Robot robot;
    robot.Agisce([](QDialog *d) {
        Trova<QLineEdit>(*d, "Nome")->setText(QStringLiteral("Altra"));
        Trova<QLineEdit>(*d, "Largh")->setText(QStringLiteral("66"));
        Preme(*d, "Confema");
    });
    storia.ApreProprieta(Genere::Cornice, 1);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(Voci(*storia.Editor, "ComboCornici").at(1), QStringLiteral("Altra"));
    QCOMPARE(storia.Anteprima().MisuraControllo(Genere::Cornice, 1).width(), 66.0);
    storia.Annulla();
    QCOMPARE(Voci(*storia.Editor, "ComboCornici"), elenco);
    QCOMPARE(storia.Controllo("C2(1)")->toolTip(), suggerimento);
    QCOMPARE(storia.Anteprima().MisuraControllo(Genere::Cornice, 1).width(), 40.0);
}

void tst_StoriaRitrova::LeCaselleTornano()
{
    StoriaDiProva storia;
    const QString yInizio = Controlli::Testo(*storia.Editor, "yInizio");
    const QString segue = Controlli::Testo(*storia.Editor, "SeguePag");
    storia.Apre("Posizione righe");
    Controlli::Digita(*storia.Editor, "yInizio", QStringLiteral("120"));
    Controlli::Digita(*storia.Editor, "SeguePag", QStringLiteral("segue ..."));
    Preme(*storia.Editor, "ConfermaPosizioneRighe");
    QCOMPARE(storia.Controllo("C1(3)")->pos().y(), 120.0);
    storia.Bottone("Annulla")->click();
    QCOMPARE(Controlli::Testo(*storia.Editor, "yInizio"), yInizio);
    QCOMPARE(Controlli::Testo(*storia.Editor, "SeguePag"), segue);
    QCOMPARE(storia.Controllo("C1(3)")->pos().y(), 100.0);
    storia.Bottone("Ripristina")->click();
    QCOMPARE(Controlli::Testo(*storia.Editor, "yInizio"), QStringLiteral("120"));
    QCOMPARE(Controlli::Testo(*storia.Editor, "SeguePag"), QStringLiteral("segue ..."));
    QCOMPARE(storia.Controllo("C1(3)")->pos().y(), 120.0);
    // What the boxes show again is what they confirm.
    storia.Bottone("Annulla")->click();
    Preme(*storia.Editor, "ConfermaPosizioneRighe");
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_StoriaRitrova::LoSfondoTorna()
{
    StoriaDiProva storia;
    const Robot robot; // closes a message that nobody expects
    const QString file = storia.Archivio.Stato().CartellaModelli + QStringLiteral("modulo.bmp");
    QImage modulo(100, 100, QImage::Format_RGB32);
    modulo.fill(Qt::red);
    QVERIFY(modulo.save(file));
    const auto rosso = [&] {
        const QImage foto =
            Trova<QGraphicsView>(storia.Anteprima(), "P1")->viewport()->grab().toImage();
        return foto.pixelColor(20, 20) == QColor(Qt::red);
    };
    storia.Apre("Immagine sfondo");
    Controlli::Digita(*storia.Editor, "SfondoXimmagine", QStringLiteral("100"));
    Controlli::Digita(*storia.Editor, "SfondoYImmagine", QStringLiteral("100"));
    Controlli::Digita(*storia.Editor, "SfondoFileImmagine", file);
    StoriaDiProva::Tasto(*storia.Editor, Qt::Key_Tab);
    auto *casella = Trova<QCheckBox>(*storia.Editor, "VisualizzaImmagineSfondo");
    if (!casella->isChecked()) {
        casella->click();
    }
    QVERIFY(rosso());
    const Modello dopo = storia.Aperto();

    QVERIFY(storia.AnnullaTutto() > 0);
    QCOMPARE(storia.Aperto(), storia.Prima);
    QVERIFY(!rosso());
    QCOMPARE(Controlli::Testo(*storia.Editor, "SfondoFileImmagine"), storia.Prima.Sfondo.File);
    QCOMPARE(casella->isChecked(), storia.Prima.Sfondo.Visualizza != 0);
    while (storia.Bottone("Ripristina")->isEnabled()) {
        storia.Bottone("Ripristina")->click();
    }
    QCOMPARE(storia.Aperto(), dopo);
    QVERIFY(casella->isChecked());
    QCOMPARE(Controlli::Testo(*storia.Editor, "SfondoFileImmagine"), file);
    QVERIFY(rosso());
}

void tst_StoriaRitrova::LaSimulazioneTorna()
{
    StoriaDiProva storia;
    storia.Apre("Posizione righe");
    Trova<QCheckBox>(*storia.Editor, "OptSimuloRighe")->click();
    const QStringList righe = RigheInVista(storia);
    QVERIFY(righe.size() > 5);
    Controlli::Digita(*storia.Editor, "Interlinea", QStringLiteral("11"));
    Preme(*storia.Editor, "ConfermaPosizioneRighe");
    const QStringList larghe = RigheInVista(storia);
    QVERIFY(larghe != righe);
    storia.Bottone("Annulla")->click();
    QCOMPARE(RigheInVista(storia), righe);
    storia.Bottone("Ripristina")->click();
    QCOMPARE(RigheInVista(storia), larghe);
}

void tst_StoriaRitrova::TornaInVistaSullaSuaPagina_data()
{
    QTest::addColumn<int>("genere");
    QTest::addColumn<QString>("pagina");
    QTest::addColumn<QByteArray>("combo");
    QTest::newRow("campo") << 0 << QStringLiteral("Campi") << QByteArray("ComboCampi");
    QTest::newRow("cornice") << 1 << QStringLiteral("Cornici ed Etichette")
                             << QByteArray("ComboCornici");
    QTest::newRow("immagine") << 2 << QStringLiteral("Immagini") << QByteArray("ComboImmagini");
}

void tst_StoriaRitrova::TornaInVistaSullaSuaPagina()
{
    QFETCH(int, genere);
    QFETCH(QString, pagina);
    QFETCH(QByteArray, combo);
    StoriaDiProva storia;
    storia.TrascinaElemento(Generi.at(static_cast<std::size_t>(genere)), 1, {75, 35});
    auto *scrollX = Trova<QScrollBar>(storia.Anteprima(), "ScrollX");
    auto *scrollY = Trova<QScrollBar>(storia.Anteprima(), "ScrollY");
    auto *elenco = Trova<QComboBox>(*storia.Editor, combo.constData());
    const QByteArray nome = QByteArray::number(genere + 1);
    for (const char *bottone : {"Annulla", "Ripristina"}) {
        storia.Apre("Spostamento");
        elenco->setCurrentIndex(0);
        scrollX->setValue(scrollX->maximum());
        scrollY->setValue(scrollY->maximum());
        storia.Bottone(bottone)->click();
        QCOMPARE(storia.Pagina(), pagina);
        QCOMPARE(elenco->currentIndex(), 1);
        const QGraphicsObject *maniglia = storia.Controllo(("S" + nome).constData());
        const QGraphicsObject *elemento = storia.Controllo(("C" + nome + "(1)").constData());
        QVERIFY(maniglia->isVisible());
        QCOMPARE(maniglia->pos(), elemento->pos());
        auto *vista = Trova<QGraphicsView>(storia.Anteprima(), "P1");
        const QPoint angolo = vista->viewport()->mapTo(&storia.Anteprima(),
                                                       vista->mapFromScene(elemento->scenePos()));
        QVERIFY2(storia.Anteprima().rect().contains(angolo), "the element is out of sight");
        QVERIFY(elemento->pos().y() >= scrollY->value());
    }
}

void tst_StoriaRitrova::LaPosizioneRigheTornaSullaSuaPagina()
{
    StoriaDiProva storia;
    storia.Apre("Posizione righe");
    Controlli::Digita(*storia.Editor, "yInizio", QStringLiteral("120"));
    Preme(*storia.Editor, "ConfermaPosizioneRighe");
    storia.Apre("Immagini");
    // The fields of the rows have moved too, but the page is that of the area.
    storia.Bottone("Annulla")->click();
    QCOMPARE(storia.Pagina(), QStringLiteral("Posizione righe"));
    QCOMPARE(Trova<QComboBox>(*storia.Editor, "ComboCampi")->currentText(),
             QStringLiteral("R_Descrizione"));
    QVERIFY(storia.Controllo("S1")->isVisible());
}

void tst_StoriaRitrova::LoSfondoTornaSullaSuaPagina()
{
    StoriaDiProva storia;
    storia.Apre("Immagine sfondo");
    Preme(*storia.Editor, "SfondoSpostaDx");
    storia.Apre("Campi");
    storia.Bottone("Annulla")->click();
    QCOMPARE(storia.Pagina(), QStringLiteral("Immagine sfondo"));
}

void tst_StoriaRitrova::IlDiNuovoEliminatoNonHaManiglia_data()
{
    TornaInVistaSullaSuaPagina_data();
}

void tst_StoriaRitrova::IlDiNuovoEliminatoNonHaManiglia()
{
    QFETCH(int, genere);
    QFETCH(QString, pagina);
    const Chiave chiave{Generi.at(static_cast<std::size_t>(genere)), 1};
    StoriaDiProva storia;
    storia.Elimina(chiave);
    storia.Annulla();
    // Clicking an element of another kind turns the page; on the first one the combo stays.
    const bool campo = chiave.genere == Genere::Campo;
    storia.Clicca(campo ? QPointF(105, 60) : QPointF(22, 31));
    QVERIFY(storia.Pagina() != pagina);
    storia.Ripristina();
    QCOMPARE(storia.Pagina(), pagina);
    QCOMPARE(storia.Archivio.Stato().selezione.Attivo(chiave.genere), 0);
    const QByteArray maniglia = "S" + QByteArray::number(genere + 1);
    QVERIFY(!storia.Controllo(maniglia.constData())->isVisible());
}

void tst_StoriaRitrova::LaPaginaTornaSenzaManigliaSulSegnato_data()
{
    TornaInVistaSullaSuaPagina_data();
}

void tst_StoriaRitrova::LaPaginaTornaSenzaManigliaSulSegnato()
{
    QFETCH(int, genere);
    QFETCH(QString, pagina);
    QFETCH(QByteArray, combo);
    const Chiave chiave{Generi.at(static_cast<std::size_t>(genere)), 1};
    StoriaDiProva storia;
    storia.Elimina(chiave);
    const int elementi = storia.Aperto().Numero(chiave.genere);
    Robot robot;
    robot.Annulla();
    storia.Apre(qPrintable(pagina));
    constexpr std::array Bottoni{"Aggiungicampo", "AggiungiCornice", "AggiungiImmagine"};
    Preme(*storia.Editor, Bottoni.at(Posto(chiave.genere)));
    QVERIFY(robot.Soddisfatto());
    auto *elenco = Trova<QComboBox>(*storia.Editor, combo.constData());
    elenco->setCurrentIndex(1);
    QVERIFY(elenco->currentText().startsWith(QStringLiteral(" ELIMINATO:")));
    storia.Apre("Spostamento");
    storia.Annulla();
    QCOMPARE(storia.Aperto().Numero(chiave.genere), elementi);
    QCOMPARE(storia.Pagina(), pagina);
    QCOMPARE(storia.Archivio.Stato().selezione.Attivo(chiave.genere), 0);
    const QByteArray maniglia = "S" + QByteArray::number(genere + 1);
    QVERIFY(!storia.Controllo(maniglia.constData())->isVisible());
}

QTEST_MAIN(tst_StoriaRitrova)
#include "tst_StoriaRitrova.moc"

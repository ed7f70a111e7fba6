#include "StoriaDiProva.h"
#include "support/Generi.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QListWidget>

Q_DECLARE_METATYPE(Genere)

namespace {

/// One step: it is called so, and taking it back leaves nothing to take back.
void VerificaUnPasso(const StoriaDiProva &storia, const QString &testo)
{
    QVERIFY2(!(storia.Aperto() == storia.Prima), "nothing has changed");
    const Modello dopo = storia.Aperto();
    QCOMPARE(storia.DaAnnullare(), testo);
    storia.Bottone("Annulla")->click();
    QCOMPARE(storia.Aperto(), storia.Prima);
    QCOMPARE(storia.DaAnnullare(), QString());
    QCOMPARE(storia.DaRipristinare(), testo);
    storia.Bottone("Ripristina")->click();
    QCOMPARE(storia.Aperto(), dopo);
    QCOMPARE(storia.DaRipristinare(), QString());
}

/// Until presses of a button no longer follow each other.
void Aspetta()
{
    QElapsedTimer tempo;
    tempo.start();
    QTRY_VERIFY_WITH_TIMEOUT(tempo.elapsed() > 1050, 5000);
}

void RigheDiGenere()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<QString>("testo");
    QTest::newRow("campo") << Genere::Campo << QStringLiteral("Doc_Numero");
    QTest::newRow("cornice") << Genere::Cornice << QStringLiteral("Riquadro");
    QTest::newRow("immagine") << Genere::Immagine << QStringLiteral("logo.bmp");
}

} // namespace

class tst_StoriaPassi : public QObject
{
    Q_OBJECT
private slots:
    void UnTrascinamento_data() { RigheDiGenere(); }
    void UnTrascinamento();
    void UnRidimensionamento();
    void DueTrascinamentiSonoDue();
    void UnaVisitaConfermata_data() { RigheDiGenere(); }
    void UnaVisitaConfermata();
    void UnaVisitaConQuelCheScriveSubito();
    void UnaVisitaAnnullataDopoAverScritto();
    void UnaVisitaSenzaModifiche_data() { RigheDiGenere(); }
    void UnaVisitaSenzaModifiche();
    void UnImmagineSceltaEConfermata();
    void AggiuntaColSuoDialogo_data();
    void AggiuntaColSuoDialogo();
    void AggiuntaAnnullandoIlDialogo_data() { AggiuntaColSuoDialogo_data(); }
    void AggiuntaAnnullandoIlDialogo();
    void LImmagineSenzaNomeSiChiamaColNumero();
    void UnEliminazione_data();
    void UnEliminazione();
    void LoSpostamentoInBloccoRipetuto_data();
    void LoSpostamentoInBloccoRipetuto();
    void LoSpostamentoInBloccoInAltraDirezione();
    void LoSpostamentoInBloccoDopoUnSecondo();
    void LoSfondoSpostatoRipetendo();
    void LoSfondoSpostatoDopoUnSecondo();
    void ConfermaPosizioneRighe();
    void UnaCasellaFinoALasciarla_data();
    void UnaCasellaFinoALasciarla();
    void UnaCasellaDueVolte();
    void UnaCasellaRimessaComEra();
    void IlPrimoPianoNonEUnPasso_data();
    void IlPrimoPianoNonEUnPasso();
    void SelezionareNonEUnPasso();
    void DuecentoPassiSiAnnullano();
};

void tst_StoriaPassi::UnTrascinamento()
{
    QFETCH(Genere, genere);
    QFETCH(QString, testo);
    StoriaDiProva storia;
    storia.TrascinaElemento(genere, 1, {75, 85});
    VerificaUnPasso(storia, QStringLiteral("sposta ") + testo);
}

void tst_StoriaPassi::UnRidimensionamento()
{
    StoriaDiProva storia;
    storia.Anteprima().SelezionaCornice(1);
    storia.Trascina({69.6, 60}, {81, 60});
    QVERIFY(storia.Aperto().Cornici[1].Larghezza > 50);
    VerificaUnPasso(storia, QStringLiteral("ridimensiona Riquadro"));
}

void tst_StoriaPassi::DueTrascinamentiSonoDue()
{
    StoriaDiProva storia;
    storia.TrascinaElemento(Genere::Cornice, 1, {75, 85});
    storia.TrascinaElemento(Genere::Campo, 1, {35, 45});
    QCOMPARE(storia.AnnullaTutto(), 2);
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_StoriaPassi::UnaVisitaConfermata()
{
    QFETCH(Genere, genere);
    QFETCH(QString, testo);
    StoriaDiProva storia;
    Robot robot;
    robot.Agisce([genere](QDialog *d) {
        Controlli::Digita(*d, "X", QStringLiteral("77"));
        Controlli::Digita(*d, "Descrizione", QStringLiteral("altra"));
        Preme(*d, BottoneConferma(genere));
    });
    storia.ApreProprieta(genere, 1);
    QVERIFY(robot.Soddisfatto());
    VerificaUnPasso(storia, QStringLiteral("modifica ") + testo);
}

void tst_StoriaPassi::UnaVisitaConQuelCheScriveSubito()
{
    StoriaDiProva storia;
    Robot robot;
    robot.Agisce([](QDialog *d) {
        Trova<QComboBox>(*d, "ComboDim")->setCurrentIndex(3);
        Preme(*d, "Command2"); // this font on all fields
        Controlli::Digita(*d, "X", QStringLiteral("77"));
        Preme(*d, "PConfemaCampo");
    });
    storia.ApreProprieta(Genere::Campo, 1);
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    QVERIFY(storia.Aperto().Campi[2].Dimensione != storia.Prima.Campi[2].Dimensione);
    VerificaUnPasso(storia, QStringLiteral("modifica Doc_Numero"));
}

void tst_StoriaPassi::UnaVisitaAnnullataDopoAverScritto()
{
    StoriaDiProva storia;
    Robot robot;
    robot.Agisce([](QDialog *d) {
        Trova<QComboBox>(*d, "ComboDim")->setCurrentIndex(3);
        Preme(*d, "Command2");
        d->reject();
    });
    storia.ApreProprieta(Genere::Cornice, 1);
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    QVERIFY(storia.Aperto().Cornici[2].Dimensione != storia.Prima.Cornici[2].Dimensione);
    VerificaUnPasso(storia, QStringLiteral("modifica Riquadro"));
}

void tst_StoriaPassi::UnaVisitaSenzaModifiche()
{
    QFETCH(Genere, genere);
    StoriaDiProva storia;
    Robot robot;
    robot.Agisce([](QDialog *d) {
        Controlli::Digita(*d, "X", QStringLiteral("77"));
        d->reject();
    });
    storia.ApreProprieta(genere, 1);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(storia.Aperto(), storia.Prima);
    QCOMPARE(storia.DaAnnullare(), QString());
}

void tst_StoriaPassi::UnImmagineSceltaEConfermata()
{
    StoriaDiProva storia;
    const QString nome = QStringLiteral("timbro.bmp");
    QImage immagine(60, 30, QImage::Format_RGB32);
    immagine.fill(Qt::red);
    QVERIFY(immagine.save(storia.Archivio.Stato().CartellaModelli + nome));
    Robot robot;
    robot.Agisce([&](QDialog *d) {
        auto *elenco = Trova<QListWidget>(*d, "FileImmagini");
        elenco->setCurrentRow(0);
        elenco->setFocus();
        QTest::keyClick(elenco, Qt::Key_Space);
        QCOMPARE(storia.Aperto().Immagini[1].Nome, nome);
        Controlli::Digita(*d, "Y", QStringLiteral("64"));
        Preme(*d, "Confema");
    });
    storia.ApreProprieta(Genere::Immagine, 1);
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    QCOMPARE(Voci(*storia.Editor, "ComboImmagini").at(1), nome);
    VerificaUnPasso(storia, QStringLiteral("modifica logo.bmp"));
    storia.Annulla();
    QCOMPARE(Voci(*storia.Editor, "ComboImmagini").at(1), QStringLiteral("logo.bmp"));
}

void tst_StoriaPassi::AggiuntaColSuoDialogo_data()
{
    QTest::addColumn<QByteArray>("bottone");
    QTest::addColumn<QByteArray>("conferma");
    QTest::addColumn<QString>("testo");
    QTest::newRow("campo") << QByteArray("Aggiungicampo") << QByteArray("PConfemaCampo")
                           << QStringLiteral("aggiunge campo");
    QTest::newRow("cornice") << QByteArray("AggiungiCornice") << QByteArray("Confema")
                             << QStringLiteral("aggiunge cornice");
    QTest::newRow("immagine") << QByteArray("AggiungiImmagine") << QByteArray("Confema")
                              << QStringLiteral("aggiunge immagine");
}

void tst_StoriaPassi::AggiuntaColSuoDialogo()
{
    QFETCH(QByteArray, bottone);
    QFETCH(QByteArray, conferma);
    QFETCH(QString, testo);
    StoriaDiProva storia;
    Robot robot;
    robot.Agisce([&](QDialog *d) {
        Trova<QLineEdit>(*d, "Nome")->setText(QStringLiteral("nuovo.bmp"));
        Controlli::Digita(*d, "X", QStringLiteral("120"));
        Preme(*d, conferma.constData());
    });
    Preme(*storia.Editor, bottone.constData());
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    VerificaUnPasso(storia, testo);
}

void tst_StoriaPassi::AggiuntaAnnullandoIlDialogo()
{
    QFETCH(QByteArray, bottone);
    QFETCH(QString, testo);
    StoriaDiProva storia;
    Robot robot;
    robot.Annulla();
    Preme(*storia.Editor, bottone.constData());
    QVERIFY(robot.Soddisfatto());
    VerificaUnPasso(storia, testo);
}

void tst_StoriaPassi::LImmagineSenzaNomeSiChiamaColNumero()
{
    StoriaDiProva storia;
    storia.Apre("Immagini");
    Robot robot;
    robot.Annulla();
    Preme(*storia.Editor, "AggiungiImmagine");
    storia.TrascinaElemento(Genere::Immagine, 2, {75, 35});
    QCOMPARE(storia.DaAnnullare(), QStringLiteral("sposta immagine 2"));
    // Confirmed without a file it goes.
    robot.Agisce([](QDialog *d) { Preme(*d, "Confema"); }).Ok();
    storia.ApreProprieta(Genere::Immagine, 2);
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    QCOMPARE(storia.DaAnnullare(), QStringLiteral("elimina immagine 2"));
}

void tst_StoriaPassi::UnEliminazione_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<QByteArray>("bottone");
    QTest::addColumn<QByteArray>("combo");
    QTest::addColumn<QString>("nome");
    QTest::newRow("campo") << Genere::Campo << QByteArray("PEliminaCampo")
                           << QByteArray("ComboCampi") << QStringLiteral("Doc_Numero");
    QTest::newRow("cornice") << Genere::Cornice << QByteArray("Elimina")
                             << QByteArray("ComboCornici") << QStringLiteral("Riquadro");
    QTest::newRow("immagine") << Genere::Immagine << QByteArray("Elimina")
                              << QByteArray("ComboImmagini") << QStringLiteral("logo.bmp");
}

void tst_StoriaPassi::UnEliminazione()
{
    QFETCH(Genere, genere);
    QFETCH(QByteArray, bottone);
    QFETCH(QByteArray, combo);
    QFETCH(QString, nome);
    StoriaDiProva storia;
    Robot robot;
    robot.Agisce([&](QDialog *d) { Preme(*d, bottone.constData()); }).Si();
    storia.ApreProprieta(genere, 1);
    QVERIFY2(robot.Soddisfatto(), qPrintable(robot.Testi().join(u'|')));
    const QByteArray controllo = "C" + QByteArray::number(static_cast<int>(genere) + 1) + "(1)";
    QCOMPARE(Voci(*storia.Editor, combo.constData()).at(1), QStringLiteral(" ELIMINATO: ") + nome);
    QVERIFY(!storia.Controllo(controllo.constData())->isVisible());

    VerificaUnPasso(storia, QStringLiteral("elimina ") + nome);
    QCOMPARE(Voci(*storia.Editor, combo.constData()).at(1), QStringLiteral(" ELIMINATO: ") + nome);
    QVERIFY(!storia.Controllo(controllo.constData())->isVisible());
    storia.Annulla();
    QCOMPARE(Voci(*storia.Editor, combo.constData()).at(1), nome);
    QVERIFY(storia.Controllo(controllo.constData())->isVisible());
    QCOMPARE(Trova<QComboBox>(*storia.Editor, combo.constData())->currentIndex(), 1);
}

void tst_StoriaPassi::LoSpostamentoInBloccoRipetuto_data()
{
    QTest::addColumn<QByteArray>("bottone");
    QTest::addColumn<QString>("testo");
    QTest::newRow("campi") << QByteArray("Command2") << QStringLiteral("sposta tutti i campi");
    QTest::newRow("cornici") << QByteArray("Command5") << QStringLiteral("sposta tutte le cornici");
    QTest::newRow("immagini") << QByteArray("Command6")
                              << QStringLiteral("sposta tutte le immagini");
}

void tst_StoriaPassi::LoSpostamentoInBloccoRipetuto()
{
    QFETCH(QByteArray, bottone);
    QFETCH(QString, testo);
    StoriaDiProva storia;
    storia.Apre("Spostamento");
    Trova<QAbstractButton>(*storia.Editor, "OptDx")->click();
    for (int k = 0; k < 5; ++k) {
        Controlli::Preme(*storia.Editor, bottone.constData());
    }
    VerificaUnPasso(storia, testo);
}

void tst_StoriaPassi::LoSpostamentoInBloccoInAltraDirezione()
{
    StoriaDiProva storia;
    storia.Apre("Spostamento");
    Trova<QAbstractButton>(*storia.Editor, "OptDx")->click();
    Preme(*storia.Editor, "Command5");
    Trova<QAbstractButton>(*storia.Editor, "OptGiu")->click();
    Preme(*storia.Editor, "Command5");
    Preme(*storia.Editor, "Command6");
    QCOMPARE(storia.AnnullaTutto(), 3);
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_StoriaPassi::LoSpostamentoInBloccoDopoUnSecondo()
{
    StoriaDiProva storia;
    storia.Apre("Spostamento");
    Trova<QAbstractButton>(*storia.Editor, "OptDx")->click();
    Preme(*storia.Editor, "Command5");
    Aspetta();
    Preme(*storia.Editor, "Command5");
    QCOMPARE(storia.AnnullaTutto(), 2);
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_StoriaPassi::LoSfondoSpostatoRipetendo()
{
    StoriaDiProva storia;
    storia.Apre("Immagine sfondo");
    for (int k = 0; k < 4; ++k) {
        Controlli::Preme(*storia.Editor, "SfondoSpostaGiu");
    }
    QCOMPARE(Controlli::Testo(*storia.Editor, "SfondoYPosImm"), QStringLiteral("2"));
    VerificaUnPasso(storia, QStringLiteral("sposta l'immagine di sfondo"));
    // Another arrow is another step, also the one that leads back.
    Controlli::Preme(*storia.Editor, "SfondoSpostaSu");
    Controlli::Preme(*storia.Editor, "SfondoSpostaSx");
    QCOMPARE(storia.AnnullaTutto(), 3);
    QCOMPARE(storia.Aperto(), storia.Prima);
    QCOMPARE(Controlli::Testo(*storia.Editor, "SfondoYPosImm"), storia.Prima.Sfondo.YPos);
}

void tst_StoriaPassi::LoSfondoSpostatoDopoUnSecondo()
{
    StoriaDiProva storia;
    Preme(*storia.Editor, "SfondoSpostaDx");
    Aspetta();
    Preme(*storia.Editor, "SfondoSpostaDx");
    QCOMPARE(storia.AnnullaTutto(), 2);
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_StoriaPassi::ConfermaPosizioneRighe()
{
    StoriaDiProva storia;
    storia.Apre("Posizione righe");
    Controlli::Digita(*storia.Editor, "yInizio", QStringLiteral("120"));
    Controlli::Digita(*storia.Editor, "Interlinea", QStringLiteral("7"));
    QCOMPARE(storia.DaAnnullare(), QString());
    Preme(*storia.Editor, "ConfermaPosizioneRighe");
    QCOMPARE(storia.Aperto().Campi[3].Y, 120.0);
    VerificaUnPasso(storia, QStringLiteral("conferma posizione righe"));
}

void tst_StoriaPassi::UnaCasellaFinoALasciarla_data()
{
    QTest::addColumn<QByteArray>("pagina");
    QTest::addColumn<QByteArray>("casella");
    QTest::addColumn<QString>("testo");
    QTest::newRow("Tipo") << QByteArray("Campi") << QByteArray("Tipo")
                          << QStringLiteral("tipo del modello");
    for (const char *casella : {"SfondoFileImmagine", "SfondoXimmagine", "SfondoYImmagine",
                                "SfondoXPosImm", "SfondoYPosImm"}) {
        QTest::newRow(casella) << QByteArray("Immagine sfondo") << QByteArray(casella)
                               << QStringLiteral("immagine di sfondo");
    }
}

void tst_StoriaPassi::UnaCasellaFinoALasciarla()
{
    QFETCH(QByteArray, pagina);
    QFETCH(QByteArray, casella);
    QFETCH(QString, testo);
    StoriaDiProva storia;
    storia.Apre(pagina.constData());
    Controlli::Digita(*storia.Editor, casella.constData(), QStringLiteral("1234"));
    StoriaDiProva::Tasto(*storia.Editor, Qt::Key_Tab);
    QVERIFY(!Trova<QLineEdit>(*storia.Editor, casella.constData())->hasFocus());
    VerificaUnPasso(storia, testo);
    storia.Bottone("Annulla")->click();
    QVERIFY(Controlli::Testo(*storia.Editor, casella.constData()) != QStringLiteral("1234"));
}

void tst_StoriaPassi::UnaCasellaDueVolte()
{
    StoriaDiProva storia;
    Controlli::Digita(*storia.Editor, "Tipo", QStringLiteral("DDT"));
    StoriaDiProva::Tasto(*storia.Editor, Qt::Key_Tab);
    Controlli::Digita(*storia.Editor, "Tipo", QStringLiteral("Ordine"));
    StoriaDiProva::Tasto(*storia.Editor, Qt::Key_Tab);
    QCOMPARE(storia.Aperto().Tipo, QStringLiteral("Ordine"));
    storia.Bottone("Annulla")->click();
    QCOMPARE(storia.Aperto().Tipo, QStringLiteral("DDT"));
    QCOMPARE(Controlli::Testo(*storia.Editor, "Tipo"), QStringLiteral("DDT"));
    storia.Bottone("Annulla")->click();
    QCOMPARE(storia.Aperto(), storia.Prima);
    QCOMPARE(Controlli::Testo(*storia.Editor, "Tipo"), QStringLiteral("Fattura"));
    QCOMPARE(storia.DaAnnullare(), QString());
}

void tst_StoriaPassi::UnaCasellaRimessaComEra()
{
    StoriaDiProva storia;
    Controlli::Digita(*storia.Editor, "Tipo", QStringLiteral("DDT"));
    Controlli::Digita(*storia.Editor, "Tipo", QStringLiteral("Fattura"));
    StoriaDiProva::Tasto(*storia.Editor, Qt::Key_Tab);
    QCOMPARE(storia.Aperto(), storia.Prima);
    QCOMPARE(storia.DaAnnullare(), QString());
}

void tst_StoriaPassi::IlPrimoPianoNonEUnPasso_data()
{
    QTest::addColumn<QByteArray>("bottone");
    for (const char *bottone : {"Command1", "Command3", "Command4"}) {
        QTest::newRow(bottone) << QByteArray(bottone);
    }
}

void tst_StoriaPassi::IlPrimoPianoNonEUnPasso()
{
    QFETCH(QByteArray, bottone);
    StoriaDiProva storia;
    Preme(*storia.Editor, bottone.constData());
    QCOMPARE(storia.DaAnnullare(), QString());
    QVERIFY(!storia.Editor->Variato());
    // Nor does it part the steps around it.
    storia.TrascinaElemento(Genere::Cornice, 1, {75, 85});
    Preme(*storia.Editor, bottone.constData());
    QCOMPARE(storia.DaAnnullare(), QStringLiteral("sposta Riquadro"));
}

void tst_StoriaPassi::SelezionareNonEUnPasso()
{
    StoriaDiProva storia;
    storia.Muove({21, 32});
    storia.Trascina({40, 60}, {40, 60});
    for (int p = 0; p < storia.Pagine()->count(); ++p) {
        storia.Pagine()->setCurrentIndex(p);
    }
    storia.Zoom(QStringLiteral("2"));
    QCOMPARE(storia.DaAnnullare(), QString());
    QVERIFY(!storia.Editor->Variato());
}

void tst_StoriaPassi::DuecentoPassiSiAnnullano()
{
    StoriaDiProva storia;
    constexpr int Passi = 200;
    for (int k = 0; k < Passi; ++k) {
        storia.TrascinaElemento(Genere::Campo, 1, k % 2 == 0 ? QPointF(35, 45) : QPointF(20, 30));
    }
    QCOMPARE(storia.AnnullaTutto(), Passi);
    QCOMPARE(storia.Aperto(), storia.Prima);
    for (int k = 0; k < Passi; ++k) {
        storia.Bottone("Ripristina")->click();
    }
    QCOMPARE(storia.DaRipristinare(), QString());
}

QTEST_MAIN(tst_StoriaPassi)
#include "tst_StoriaPassi.moc"

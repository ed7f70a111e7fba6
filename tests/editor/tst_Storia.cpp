#include "StoriaDiProva.h"
#include "documento/CopiaRecupero.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QSignalSpy>

namespace {

/// What the safety copy of another opening would offer; empty when there is none.
std::optional<Modello> Copia(const StoriaDiProva &storia)
{
    CopiaRecupero copie(storia.Archivio.CartellaStato() + QStringLiteral("/plakera"),
                        storia.Archivio.Percorso());
    copie.Parte(storia.Archivio.ByteDelFile());
    const auto trovate = copie.Cerca();
    return trovate.isEmpty() ? std::nullopt : std::optional(trovate.constFirst().modello);
}

void SpostaDocNumero(const StoriaDiProva &storia)
{
    storia.TrascinaElemento(Genere::Campo, 1, {35, 45});
}

QRect SulSuoEditor(const StoriaDiProva &storia, const char *nome)
{
    auto *controllo = Trova<QWidget>(*storia.Editor, nome);
    return {controllo->mapTo(storia.Editor.get(), QPoint()), controllo->size()};
}

} // namespace

class tst_Storia : public QObject
{
    Q_OBJECT
private slots:
    void TastiDaTutteEDueLeFinestre_data();
    void TastiDaTutteEDueLeFinestre();
    void AltriTastiNonAnnullano_data();
    void AltriTastiNonAnnullano();
    void IBottoniDiconoIlPasso();
    void IBottoniStannoTraTipoECartella();
    void LaCasellaHaIlSuoAnnullaPerPrima();
    void LaCasellaSenzaLegameHaIlSuoAnnullaPerPrima();
    void LoZoomHaIlSuoAnnullaPerPrimo();
    void IlBottoneAnnullaQuelCheSiStaScrivendo();
    void ConUnDialogoApertoAspetta();
    void ConUnaDomandaApertaAspetta();
    void ConUnElementoInManoAspetta();
    void ConUnaManigliaPremutaAspetta();
    void ConUnBordoPremutoAspetta();

    void EliminaModelloFinisceLaStoria();
    void EliminaTutteLeCorniciFinisceLaStoria();
    void ChiudereFinisceLaStoria();
    void SalvareNonFinisceLaStoria();
    void LaRipresaNonHaStoria();
    void LaCopiaSegue();
};

void tst_Storia::TastiDaTutteEDueLeFinestre_data()
{
    QTest::addColumn<bool>("anteprima");
    QTest::addColumn<int>("tasto");
    QTest::addColumn<Qt::KeyboardModifiers>("modi");
    const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
    for (const bool anteprima : {false, true}) {
        const char *finestra = anteprima ? "anteprima" : "editor";
        QTest::addRow("%s Ctrl+Y", finestra) << anteprima << int(Qt::Key_Y) << ctrl;
        QTest::addRow("%s Ctrl+Shift+Z", finestra)
            << anteprima << int(Qt::Key_Z) << (ctrl | Qt::ShiftModifier);
    }
}

void tst_Storia::TastiDaTutteEDueLeFinestre()
{
    QFETCH(bool, anteprima);
    QFETCH(int, tasto);
    QFETCH(Qt::KeyboardModifiers, modi);
    StoriaDiProva storia;
    QWidget &finestra = anteprima ? static_cast<QWidget &>(storia.Anteprima()) : *storia.Editor;
    SpostaDocNumero(storia);
    const Modello dopo = storia.Aperto();
    QVERIFY(!(dopo == storia.Prima));
    for (int k = 0; k < 2; ++k) {
        StoriaDiProva::Tasto(finestra, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(storia.Aperto(), storia.Prima);
        QCOMPARE(storia.Controllo("C1(1)")->pos(), QPointF(20, 30));
        StoriaDiProva::Tasto(finestra, static_cast<Qt::Key>(tasto), modi);
        QCOMPARE(storia.Aperto(), dopo);
        QCOMPARE(storia.Controllo("C1(1)")->pos(), QPointF(35, 45));
    }
}

void tst_Storia::AltriTastiNonAnnullano_data()
{
    QTest::addColumn<int>("tasto");
    QTest::addColumn<Qt::KeyboardModifiers>("modi");
    QTest::newRow("Z") << int(Qt::Key_Z) << Qt::KeyboardModifiers();
    QTest::newRow("Alt+Z") << int(Qt::Key_Z) << Qt::KeyboardModifiers(Qt::AltModifier);
    QTest::newRow("Ctrl+Alt+Z") << int(Qt::Key_Z) << (Qt::ControlModifier | Qt::AltModifier);
}

void tst_Storia::AltriTastiNonAnnullano()
{
    QFETCH(int, tasto);
    QFETCH(Qt::KeyboardModifiers, modi);
    StoriaDiProva storia;
    SpostaDocNumero(storia);
    const Modello dopo = storia.Aperto();
    StoriaDiProva::Tasto(storia.Anteprima(), static_cast<Qt::Key>(tasto), modi);
    QCOMPARE(storia.Aperto(), dopo);
}

void tst_Storia::IBottoniDiconoIlPasso()
{
    StoriaDiProva storia;
    const auto verifica = [&](const char *nome, bool acceso, const QString &testo) {
        const QToolButton *bottone = storia.Bottone(nome);
        QCOMPARE(bottone->isEnabled(), acceso);
        QCOMPARE(bottone->toolTip(), testo);
        QCOMPARE(bottone->accessibleName(), testo);
    };
    verifica("Annulla", false, QStringLiteral("Annulla"));
    verifica("Ripristina", false, QStringLiteral("Ripristina"));
    SpostaDocNumero(storia);
    verifica("Annulla", true, QStringLiteral("Annulla: sposta Doc_Numero"));
    verifica("Ripristina", false, QStringLiteral("Ripristina"));
    QTest::mouseClick(storia.Bottone("Annulla"), Qt::LeftButton);
    QCOMPARE(storia.Aperto(), storia.Prima);
    verifica("Annulla", false, QStringLiteral("Annulla"));
    verifica("Ripristina", true, QStringLiteral("Ripristina: sposta Doc_Numero"));
    QTest::mouseClick(storia.Bottone("Ripristina"), Qt::LeftButton);
    QCOMPARE(storia.Aperto().Campi[1].X, 35.0);
    verifica("Annulla", true, QStringLiteral("Annulla: sposta Doc_Numero"));
    verifica("Ripristina", false, QStringLiteral("Ripristina"));
    // After a new step there is nothing to do again.
    storia.Annulla();
    storia.TrascinaElemento(Genere::Cornice, 1, {75, 85});
    verifica("Annulla", true, QStringLiteral("Annulla: sposta Riquadro"));
    verifica("Ripristina", false, QStringLiteral("Ripristina"));
}

void tst_Storia::IBottoniStannoTraTipoECartella()
{
    StoriaDiProva storia;
    const QRect tipo = SulSuoEditor(storia, "Tipo");
    const QRect cartella = SulSuoEditor(storia, "EtichettaCartella");
    const QRect colonna = SulSuoEditor(storia, "comandi");
    QRect altro;
    for (const char *nome : {"Annulla", "Ripristina"}) {
        const QRect posto = SulSuoEditor(storia, nome);
        QVERIFY(posto.top() >= tipo.bottom());
        QVERIFY(posto.bottom() <= cartella.top());
        QVERIFY(colonna.contains(posto));
        QVERIFY(!posto.intersects(altro));
        const QToolButton *bottone = storia.Bottone(nome);
        QVERIFY(posto.width() >= bottone->sizeHint().width());
        QVERIFY(posto.height() >= bottone->sizeHint().height());
        QVERIFY(bottone->text().isEmpty());
        QVERIFY(!bottone->icon().isNull());
        altro = posto;
    }
}

void tst_Storia::LaCasellaHaIlSuoAnnullaPerPrima()
{
    StoriaDiProva storia;
    SpostaDocNumero(storia);
    auto *tipo = Trova<QLineEdit>(*storia.Editor, "Tipo");
    Controlli::Digita(*storia.Editor, "Tipo", QStringLiteral("DDT"));
    QVERIFY(tipo->isUndoAvailable());
    const double spostato = storia.Aperto().Campi[1].X;
    while (tipo->isUndoAvailable()) {
        storia.Annulla();
        QCOMPARE(storia.Aperto().Campi[1].X, spostato);
        QCOMPARE(storia.Aperto().Tipo, tipo->text());
    }
    QCOMPARE(tipo->text(), QStringLiteral("Fattura"));
    // Its own first, in the other direction too.
    storia.Ripristina();
    QVERIFY(tipo->text() != QStringLiteral("Fattura"));
    QCOMPARE(storia.Aperto().Tipo, tipo->text());
    while (tipo->isUndoAvailable()) {
        storia.Annulla();
    }
    storia.Annulla();
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_Storia::LaCasellaSenzaLegameHaIlSuoAnnullaPerPrima()
{
    StoriaDiProva storia;
    SpostaDocNumero(storia);
    const Modello dopo = storia.Aperto();
    storia.Apre("Posizione righe");
    Controlli::Digita(*storia.Editor, "yInizio", QStringLiteral("7"));
    storia.Annulla();
    QCOMPARE(storia.Aperto(), dopo);
    QVERIFY(Controlli::Testo(*storia.Editor, "yInizio") != QStringLiteral("7"));
    // Without the focus it has no say.
    Controlli::Digita(*storia.Editor, "yInizio", QStringLiteral("7"));
    Trova<QWidget>(*storia.Editor, "ConfermaPosizioneRighe")->setFocus();
    storia.Annulla();
    QCOMPARE(storia.Aperto(), storia.Prima);
    QCOMPARE(Controlli::Testo(*storia.Editor, "yInizio"), QStringLiteral("7"));
}

void tst_Storia::LoZoomHaIlSuoAnnullaPerPrimo()
{
    StoriaDiProva storia;
    SpostaDocNumero(storia);
    const Modello dopo = storia.Aperto();
    auto *zoom = Trova<QLineEdit>(storia.Anteprima(), "TextZoom");
    Controlli::Digita(storia.Anteprima(), "TextZoom", QStringLiteral("2"));
    QCOMPARE(storia.Archivio.Stato().zoom, 2.0);
    while (zoom->isUndoAvailable()) {
        StoriaDiProva::Tasto(storia.Anteprima(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(storia.Aperto(), dopo);
    }
    QCOMPARE(storia.Archivio.Stato().zoom, 1.0);
    StoriaDiProva::Tasto(storia.Anteprima(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_Storia::IlBottoneAnnullaQuelCheSiStaScrivendo()
{
    StoriaDiProva storia;
    SpostaDocNumero(storia);
    auto *tipo = Trova<QLineEdit>(*storia.Editor, "Tipo");
    Controlli::Digita(*storia.Editor, "Tipo", QStringLiteral("DDT"));
    QTest::mouseClick(storia.Bottone("Annulla"), Qt::LeftButton);
    QCOMPARE(tipo->text(), QStringLiteral("Fattura"));
    QCOMPARE(storia.Aperto().Tipo, QStringLiteral("Fattura"));
    QCOMPARE(storia.DaAnnullare(), QStringLiteral("sposta Doc_Numero"));
    QCOMPARE(storia.DaRipristinare(), QStringLiteral("tipo del modello"));
    // What is typed now is another step, and the box has only that to take back itself.
    tipo->setFocus();
    tipo->end(false);
    QTest::keyClick(tipo, 'X');
    QCOMPARE(storia.Aperto().Tipo, QStringLiteral("FatturaX"));
    storia.Annulla();
    QCOMPARE(storia.Aperto().Tipo, QStringLiteral("Fattura"));
    storia.Annulla();
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_Storia::ConUnDialogoApertoAspetta()
{
    StoriaDiProva storia;
    SpostaDocNumero(storia);
    const Modello dopo = storia.Aperto();
    Robot robot;
    robot.Agisce([&](QDialog *d) {
        auto *x = Trova<QLineEdit>(*d, "X");
        const QString scritto = x->text();
        Controlli::Digita(*d, "X", QStringLiteral("9"));
        QTest::keyClick(x, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(x->text() != QStringLiteral("9")); // the box's own undo
        for (int k = 0; k < 5; ++k) {
            QTest::keyClick(x, Qt::Key_Z, Qt::ControlModifier);
        }
        QCOMPARE(x->text(), scritto);
        for (QWidget *finestra :
             {static_cast<QWidget *>(storia.Editor.get()), static_cast<QWidget *>(d),
              static_cast<QWidget *>(&storia.Anteprima())}) {
            QTest::keyClick(finestra, Qt::Key_Z, Qt::ControlModifier);
        }
        QTest::mouseClick(storia.Editor->windowHandle(), Qt::LeftButton, {},
                          SulSuoEditor(storia, "Annulla").center());
        QCOMPARE(storia.Aperto(), dopo);
        QVERIFY(!storia.Aperta().PuoAnnullare());
        d->reject();
    });
    storia.ApreProprieta(Genere::Cornice, 1);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(storia.Aperto(), dopo);
    storia.Annulla();
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_Storia::ConUnaDomandaApertaAspetta()
{
    StoriaDiProva storia;
    SpostaDocNumero(storia);
    const Modello dopo = storia.Aperto();
    Robot robot;
    robot.Agisce([&](QDialog *d) {
        QTest::keyClick(d, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(storia.Editor.get(), Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(&storia.Anteprima(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(storia.Aperto(), dopo);
        qobject_cast<QMessageBox *>(d)->button(QMessageBox::No)->click();
    });
    Preme(*storia.Editor, "Elimina");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(storia.Aperto(), dopo);
    storia.Annulla();
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_Storia::ConUnElementoInManoAspetta()
{
    StoriaDiProva storia;
    SpostaDocNumero(storia);
    storia.Anteprima().SelezionaCornice(1);
    storia.Afferra({30.8, 50.8}, {75, 85});
    const Modello inMano = storia.Aperto();
    StoriaDiProva::Tasto(storia.Anteprima(), Qt::Key_Z, Qt::ControlModifier);
    storia.Bottone("Annulla")->click();
    QCOMPARE(storia.Aperto(), inMano);
    storia.Rilascia({75, 85});
    QCOMPARE(storia.AnnullaTutto(), 2);
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_Storia::ConUnaManigliaPremutaAspetta()
{
    StoriaDiProva storia;
    Robot robot;
    robot.Annulla();
    storia.Apre("Cornici ed Etichette");
    Preme(*storia.Editor, "AggiungiCornice");
    QVERIFY(robot.Soddisfatto());
    const Modello aggiunta = storia.Aperto();
    storia.Anteprima().SelezionaCornice(3);
    const QPointF maniglia =
        QPointF(aggiunta.Cornici[3].X, aggiunta.Cornici[3].Y) + QPointF(0.8, 0.8);
    storia.Muove(maniglia);
    storia.Preme(maniglia);
    StoriaDiProva::Tasto(storia.Anteprima(), Qt::Key_Z, Qt::ControlModifier);
    storia.Bottone("Annulla")->click();
    QCOMPARE(storia.Aperto(), aggiunta);
    storia.Muove(maniglia + QPointF(30, 40));
    storia.Rilascia(maniglia + QPointF(30, 40));
    QCOMPARE(storia.Aperto().NumCornici, qint16(3));
    QVERIFY(storia.Aperto().Cornici[3].X > aggiunta.Cornici[3].X);
    QVERIFY(storia.Bottone("Annulla")->isEnabled());
    QCOMPARE(storia.AnnullaTutto(), 2);
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_Storia::ConUnBordoPremutoAspetta()
{
    StoriaDiProva storia;
    storia.Anteprima().SelezionaCornice(1);
    storia.Trascina({69.8, 60}, {89.8, 60});
    const double larghezza = storia.Aperto().Cornici[1].Larghezza;
    QVERIFY(larghezza > 50);
    const Modello tirata = storia.Aperto();
    const QPointF bordo(30 + larghezza - 0.2, 60);
    storia.Muove(bordo);
    storia.Preme(bordo);
    StoriaDiProva::Tasto(storia.Anteprima(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(storia.Aperto(), tirata);
    storia.Muove(bordo + QPointF(5, 0));
    storia.Rilascia(bordo + QPointF(5, 0));
    QCOMPARE(storia.Aperto().Cornici[1].Larghezza, larghezza + 5);
    // A press that has changed nothing holds nothing up once it is over.
    storia.Clicca(bordo + QPointF(4.8, 0));
    QCOMPARE(storia.AnnullaTutto(), 2);
    QCOMPARE(storia.Aperto(), storia.Prima);
}

void tst_Storia::EliminaModelloFinisceLaStoria()
{
    StoriaDiProva storia;
    SpostaDocNumero(storia);
    Robot robot;
    robot.Si().Ok();
    Preme(*storia.Editor, "Elimina");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(!storia.Editor->isVisible());
    QVERIFY(!storia.Aperta().PuoAnnullare());
    QVERIFY(!QFile::exists(storia.Archivio.Percorso()));
}

void tst_Storia::EliminaTutteLeCorniciFinisceLaStoria()
{
    StoriaDiProva storia;
    SpostaDocNumero(storia);
    Robot robot;
    robot.Si().No(); // delete them all; do not save
    QSignalSpy chiuso(storia.Editor.get(), &Form2::Chiuso);
    Preme(*storia.Editor, "Command7");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(chiuso.count(), 1);
    QVERIFY(!storia.Aperta().PuoAnnullare());
    QVERIFY(!storia.Aperta().PuoRipristinare());
    QCOMPARE(storia.DaAnnullare(), QString());
    storia.Bottone("Annulla")->click();
    QVERIFY(!storia.Aperto().Presente(Genere::Cornice, 1));
}

void tst_Storia::ChiudereFinisceLaStoria()
{
    StoriaDiProva storia;
    SpostaDocNumero(storia);
    storia.Annulla();
    SpostaDocNumero(storia);
    Robot robot;
    robot.No();
    QVERIFY(storia.Editor->close());
    QVERIFY(robot.Soddisfatto());
    QVERIFY(!storia.Aperta().PuoAnnullare());
    QVERIFY(!storia.Aperta().PuoRipristinare());
    // The next opening begins anew.
    storia.Editor.reset();
    QVERIFY(storia.ApreComeSta());
    QCOMPARE(storia.Aperto(), storia.Prima);
    QCOMPARE(storia.DaAnnullare(), QString());
    QVERIFY(!storia.Editor->Variato());
}

void tst_Storia::SalvareNonFinisceLaStoria()
{
    StoriaDiProva storia;
    SpostaDocNumero(storia);
    const Modello salvato = storia.Aperto();
    Robot robot;
    robot.Si();
    Preme(*storia.Editor, "Salva");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(!storia.Editor->Variato());
    QVERIFY(!Copia(storia));
    QCOMPARE(storia.DaAnnullare(), QStringLiteral("sposta Doc_Numero"));

    storia.Annulla();
    QCOMPARE(storia.Aperto(), storia.Prima);
    QVERIFY(storia.Editor->Variato());
    QVERIFY(Copia(storia).has_value());
    QCOMPARE(storia.Archivio.Riletto().Campi[1].X, salvato.Campi[1].X);
    // Closing asks, and writes what was undone.
    robot.Si();
    QVERIFY(storia.Editor->close());
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(storia.Archivio.Riletto().Campi[1].X, storia.Prima.Campi[1].X);
}

void tst_Storia::LaRipresaNonHaStoria()
{
    StoriaDiProva storia;
    SpostaDocNumero(storia);
    storia.TrascinaElemento(Genere::Cornice, 1, {75, 85});
    storia.Annulla();
    const Modello ultimo = storia.Aperto();
    storia.Editor.reset(); // ends without its closing, as in a crash
    Robot robot;
    robot.Si();
    QVERIFY(storia.ApreComeSta());
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(storia.Aperto().Campi[1].X, ultimo.Campi[1].X);
    QCOMPARE(storia.Aperto().Cornici[1].X, ultimo.Cornici[1].X);
    QVERIFY(storia.Editor->Variato());
    QCOMPARE(storia.DaAnnullare(), QString());
    QCOMPARE(storia.DaRipristinare(), QString());
}

void tst_Storia::LaCopiaSegue()
{
    StoriaDiProva storia;
    QVERIFY(!Copia(storia));
    SpostaDocNumero(storia);
    QCOMPARE(Copia(storia)->Campi[1].X, 35.0);
    storia.Annulla();
    // The model holds what its file holds: a copy that says the same is not offered, but kept up.
    QCOMPARE(Copia(storia)->Campi[1].X, 20.0);
    storia.Ripristina();
    QCOMPARE(Copia(storia)->Campi[1].X, 35.0);
    Controlli::Digita(*storia.Editor, "Tipo", QStringLiteral("DDT"));
    StoriaDiProva::Tasto(*storia.Editor, Qt::Key_Tab);
    QCOMPARE(Copia(storia)->Tipo, QStringLiteral("DDT"));
    storia.Bottone("Annulla")->click();
    QCOMPARE(Copia(storia)->Tipo, QStringLiteral("Fattura"));
    storia.Bottone("Ripristina")->click();
    QCOMPARE(Copia(storia)->Tipo, QStringLiteral("DDT"));
}

QTEST_MAIN(tst_Storia)
#include "tst_Storia.moc"

#include "AppuntiDiProva.h"

#include "support/ModelloDiProva.h"

namespace {

const Chiave Campo1{Genere::Campo, 1};
const Chiave Cornice1{Genere::Cornice, 1};

const QString SenzaElementi = QStringLiteral("Gli appunti non contengono elementi di Plakera");

} // namespace

/// When the keys of copy, cut, paste and duplicate do something, and when nothing.
class tst_AppuntiTasti : public QObject
{
    Q_OBJECT
private slots:
    void init() { QGuiApplication::clipboard()->clear(); }
    void AppuntiEstranei_data();
    void AppuntiEstranei();
    void SenzaSceltiNonSiCopia();
    void UnImmagineSenzaFileNonSiCopia();
    void DallaFinestraDiLavoro();
    void UnaCasellaTieneISuoiTasti();
    void UnaPressioneSulFoglioRiprendeITasti();
    void ConUnElementoInManoAspettano();
    void ConUnDialogoApertoAspettano();
};

void tst_AppuntiTasti::AppuntiEstranei_data()
{
    QTest::addColumn<QString>("tipo");
    QTest::addColumn<QByteArray>("byte");
    const QString nostro = Appunti::TipoElementi;
    const QByteArray righe = FileModello::ComponiElementi(ModelloDiProva(3), QLocale::c());
    QTest::newRow("vuoti") << QString() << QByteArray();
    QTest::newRow("testo") << QStringLiteral("text/plain") << righe;
    QTest::newRow("troncati") << nostro << righe.chopped(1);
    QTest::newRow("altro dopo la fine") << nostro << righe + "x";
    QTest::newRow("un modello") << nostro << FileModello::Componi(ModelloDiProva(3));
    QTest::newRow("byte qualsiasi") << nostro << QByteArray("\0\r\n\xFF", 4).repeated(5000);
    QTest::newRow("enormi") << nostro << righe + QByteArray(FileModello::DimensioneMassima, '\r');
}

void tst_AppuntiTasti::AppuntiEstranei()
{
    QFETCH(QString, tipo);
    QFETCH(QByteArray, byte);
    StoriaDiProva storia;
    if (!tipo.isEmpty()) {
        MetteNegliAppunti(tipo, byte);
    }
    Sceglie(storia, {Campo1});
    for (const Qt::KeyboardModifiers modi :
         {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier}) {
        storia.Anteprima().Avverte({});
        Tasti(storia, Qt::Key_V, modi);
        QCOMPARE(Striscia(storia), SenzaElementi);
    }
    QCOMPARE(storia.Aperto(), storia.Prima);
    QVERIFY(!storia.Aperta().PuoAnnullare());
    QVERIFY(!storia.Editor->Variato());
    QCOMPARE(Scelti(storia), QList<Chiave>{Campo1});
}

void tst_AppuntiTasti::SenzaSceltiNonSiCopia()
{
    StoriaDiProva storia;
    QGuiApplication::clipboard()->setText(QStringLiteral("dell'utente"));
    for (const Qt::Key tasto : {Qt::Key_C, Qt::Key_X, Qt::Key_D}) {
        Tasti(storia, tasto);
    }
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("dell'utente"));
    QCOMPARE(storia.Aperto(), storia.Prima);
    const QList<QAction *> comandi = storia.Anteprima().actions();
    const auto attivo = [&](const char *nome) {
        for (const QAction *comando : comandi) {
            if (comando->objectName() == QLatin1String(nome)) {
                return comando->isEnabled();
            }
        }
        return false;
    };
    QVERIFY(!attivo("Copia") && !attivo("Taglia") && !attivo("Duplica"));
    QVERIFY(attivo("Incolla") && attivo("IncollaSulPosto"));
    Sceglie(storia, {Campo1});
    QVERIFY(attivo("Copia") && attivo("Taglia") && attivo("Duplica"));
}

void tst_AppuntiTasti::UnImmagineSenzaFileNonSiCopia()
{
    StoriaDiProva storia;
    {
        Robot robot;
        robot.Annulla();
        storia.Editor->AggiungiImmagine_Click();
    }
    const Chiave senzaFile{Genere::Immagine, 2};
    QGuiApplication::clipboard()->setText(QStringLiteral("dell'utente"));
    Sceglie(storia, {senzaFile});
    Tasti(storia, Qt::Key_C);
    Tasti(storia, Qt::Key_X);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("dell'utente"));
    QCOMPARE(Striscia(storia), QStringLiteral("Un'immagine senza file non si può copiare"));
    QVERIFY(storia.Aperta().InVista(senzaFile));
    // With others it stays behind: what is cut can be pasted.
    Sceglie(storia, {senzaFile, Campo1});
    Tasti(storia, Qt::Key_X);
    QCOMPARE(storia.DaAnnullare(), QStringLiteral("taglia Doc_Numero"));
    QVERIFY(storia.Aperta().InVista(senzaFile));
}

void tst_AppuntiTasti::DallaFinestraDiLavoro()
{
    StoriaDiProva storia;
    Sceglie(storia, {Campo1});
    storia.Bottone("Annulla")->setFocus();
    StoriaDiProva::Tasto(*storia.Editor, Qt::Key_C, Qt::ControlModifier);
    StoriaDiProva::Tasto(*storia.Editor, Qt::Key_V, Qt::ControlModifier);
    StoriaDiProva::Tasto(*storia.Editor, Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(storia.Aperto().NumCampi, qint16(5));
}

void tst_AppuntiTasti::UnaCasellaTieneISuoiTasti()
{
    StoriaDiProva storia;
    Sceglie(storia, {Campo1});
    auto *tipo = Trova<QLineEdit>(*storia.Editor, "Tipo");
    tipo->setFocus();
    StoriaDiProva::Tasto(*storia.Editor, Qt::Key_A, Qt::ControlModifier);
    StoriaDiProva::Tasto(*storia.Editor, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Fattura"));
    StoriaDiProva::Tasto(*storia.Editor, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(storia.Aperto().Tipo, QString());
    StoriaDiProva::Tasto(*storia.Editor, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(storia.Aperto().Tipo, QStringLiteral("Fattura"));
    QCOMPARE(storia.Aperto().NumCampi, qint16(3));
    QVERIFY(!storia.Aperta().Eliminato(Campo1));
}

void tst_AppuntiTasti::UnaPressioneSulFoglioRiprendeITasti()
{
    StoriaDiProva storia;
    Sceglie(storia, {Cornice1});
    auto *zoom = Trova<QLineEdit>(storia.Anteprima(), "TextZoom");
    zoom->setFocus();
    const auto preme = [&](Qt::Key tasto) {
        StoriaDiProva::Tasto(storia.Anteprima(), tasto, Qt::ControlModifier);
    };
    preme(Qt::Key_A);
    preme(Qt::Key_C);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("1"));
    storia.Preme({100, 15}); // nothing is there
    storia.Rilascia({100, 15});
    Sceglie(storia, {Cornice1});
    preme(Qt::Key_C);
    QVERIFY(QGuiApplication::clipboard()->mimeData()->hasFormat(Appunti::TipoElementi));
}

void tst_AppuntiTasti::ConUnElementoInManoAspettano()
{
    StoriaDiProva storia;
    Sceglie(storia, {Cornice1});
    Tasti(storia, Qt::Key_C);
    storia.Anteprima().Seleziona(Genere::Cornice, 1);
    storia.Muove({30.8, 50.8});
    storia.Preme({30.8, 50.8}); // nothing has moved yet
    for (const Qt::Key tasto : {Qt::Key_X, Qt::Key_V, Qt::Key_D}) {
        Tasti(storia, tasto);
    }
    QCOMPARE(storia.Aperto(), storia.Prima);
    storia.Muove({60, 80});
    Tasti(storia, Qt::Key_X);
    QVERIFY(!storia.Aperta().Eliminato(Cornice1));
    storia.Rilascia({60, 80});
    QCOMPARE(storia.AnnullaTutto(), 1); // the drag
    Tasti(storia, Qt::Key_X);
    QVERIFY(storia.Aperta().Eliminato(Cornice1));
}

void tst_AppuntiTasti::ConUnDialogoApertoAspettano()
{
    StoriaDiProva storia;
    Sceglie(storia, {Campo1});
    Tasti(storia, Qt::Key_C);
    Robot robot;
    robot.Agisce([&](QDialog *dialogo) {
        const QList<QAction *> comandi = storia.Anteprima().actions();
        for (QAction *comando : comandi) {
            comando->trigger(); // by whatever way they are reached
        }
        QTest::keyClick(dialogo->windowHandle(), Qt::Key_V, Qt::ControlModifier);
        dialogo->reject();
    });
    storia.ApreProprieta(Genere::Campo, 1);
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(storia.Aperto(), storia.Prima);
}

QTEST_MAIN(tst_AppuntiTasti)
#include "tst_AppuntiTasti.moc"

// The text boxes of the editor: what they show, and what the commands take from them.

#include "editor/EditoreDiProva.h"
#include "model/FileModello.h"
#include "support/ImmaginiDiProva.h"

namespace {

/// Types a text into a box in the place of its own.
void Scrive(QLineEdit &casella, const QString &testo)
{
    casella.selectAll();
    QTest::keyClicks(&casella, testo);
}

/// Takes the typing back until the box shows the text again.
void AnnullaFinoA(QLineEdit &casella, const QString &testo)
{
    for (int i = 0; i < 100 && casella.text() != testo; ++i) {
        QTest::keyClick(&casella, Qt::Key_Z, Qt::ControlModifier);
    }
    QCOMPARE(casella.text(), testo);
}

/// A red scan of so many mm, at 10 dots a millimetre, in the folder of the model.
QString Scansione(const ArchivioDiProva &archivio, int larghezza, int altezza)
{
    const QString file = archivio.Stato().CartellaModelli + QStringLiteral("scansione.bmp");
    ImmaginiDiProva::Scrive(
        file,
        ImmaginiDiProva::InFormato(
            ImmaginiDiProva::Tinta({larghezza * 10, altezza * 10}, qRgb(255, 0, 0)), "bmp", 254));
    return file;
}

/// Colour of the sheet at a point in mm of screen.
QColor Colore(const Form2 &editor, double x, double y)
{
    auto *foglio = Trova<QGraphicsView>(*editor.Anteprima(), "P1");
    const QPixmap foto = foglio->grab();
    const double scala = foglio->width() / 240.0;
    return foto.toImage().pixelColor(qRound(x * scala), qRound(y * scala));
}

} // namespace

class tst_CaselleEditor : public QObject
{
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale::c()); }

    void SeguePagAnnullatoValeComeSiVede();
    void SeguePagNonToccatoTieneIlSuoTesto();
    void NumeriDelleRigheNonToccatiRestanoEsatti();
    void TipoAnnullatoValeComeSiVede();
    void SfondoAnnullatoDopoUnoZoomSiRidisegna();
};

void tst_CaselleEditor::SeguePagAnnullatoValeComeSiVede()
{
    EditorAperto prova(1);
    auto *casella = Trova<QLineEdit>(prova.Editor(), "SeguePag");
    const QString mostrato = casella->text();
    QCOMPARE(mostrato, QString(Modello::SeguePagPredefinito));
    Scrive(*casella, QStringLiteral("continua"));
    Preme(prova.Editor(), "ConfermaPosizioneRighe");
    QCOMPARE(prova.Aperto().Righe.SeguePag, QStringLiteral("continua"));
    AnnullaFinoA(*casella, mostrato);
    Preme(prova.Editor(), "ConfermaPosizioneRighe");
    QCOMPARE(prova.Aperto().Righe.SeguePag, mostrato);
    Robot robot;
    robot.Si();
    Preme(prova.Editor(), "Salva");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(prova.Riletto().Righe.SeguePag, mostrato);
}

void tst_CaselleEditor::SeguePagNonToccatoTieneIlSuoTesto()
{
    ArchivioDiProva prova;
    const QString nascosto = QStringLiteral("segue\x01\n") + QString(40000, u'è');
    prova.Aperto().Righe.SeguePag = nascosto;
    prova.Scrive();
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    Preme(editor, "ConfermaPosizioneRighe");
    QCOMPARE(prova.Aperto().Righe.SeguePag, nascosto);
    editor.Variato = false;
}

void tst_CaselleEditor::NumeriDelleRigheNonToccatiRestanoEsatti()
{
    EditorAperto prova;
    ParametriRighe &righe = prova.Aperto().Righe;
    righe.yInizio = 1.0 / 3; // more digits than its text has
    righe.Interlinea = -1e-20;
    prova.Scrive();
    const QByteArray prima = FileModello::Componi(prova.Riletto(), QLocale::c());
    Form2 editor(prova.Stato());
    QVERIFY(editor.Form_Load());
    const ParametriRighe lette = prova.Aperto().Righe;
    Preme(editor, "ConfermaPosizioneRighe");
    QCOMPARE(prova.Aperto().Righe, lette);
    QCOMPARE(FileModello::Componi(prova.Aperto(), QLocale::c()), prima);
    editor.Variato = false;
    prova.Editor().Variato = false;
}

void tst_CaselleEditor::TipoAnnullatoValeComeSiVede()
{
    EditorAperto prova;
    auto *casella = Trova<QLineEdit>(prova.Editor(), "Tipo");
    const QString mostrato = casella->text();
    Scrive(*casella, QStringLiteral("bolla"));
    QCOMPARE(prova.Aperto().Tipo, QStringLiteral("bolla"));
    AnnullaFinoA(*casella, mostrato);
    QCOMPARE(prova.Aperto().Tipo, mostrato);
    prova.Editor().Variato = false;
}

void tst_CaselleEditor::SfondoAnnullatoDopoUnoZoomSiRidisegna()
{
    EditoreDiProva prova;
    prova.Archivio.Aperto().Sfondo = {Scansione(prova.Archivio, 40, 40),
                                      QStringLiteral("40"),
                                      QStringLiteral("40"),
                                      QStringLiteral("20"),
                                      QStringLiteral("150"),
                                      1};
    QVERIFY(prova.Apre());
    auto *casella = Trova<QLineEdit>(*prova.Editor, "SfondoXPosImm");
    QCOMPARE(Colore(*prova.Editor, 30, 170), QColor(Qt::red));
    Scrive(*casella, QStringLiteral("100"));
    prova.Zoom(QStringLiteral("2")); // draws the scan where the half-finished text says
    QCOMPARE(Colore(*prova.Editor, 60, 85), QColor(Qt::red));
    AnnullaFinoA(*casella, QStringLiteral("20"));
    QTest::keyClick(casella, Qt::Key_Return);
    prova.Foto();
    QCOMPARE(prova.Archivio.Aperto().Sfondo.XPos, QStringLiteral("20"));
    QCOMPARE(Colore(*prova.Editor, 15, 85), QColor(Qt::red));
    QCOMPARE(Colore(*prova.Editor, 60, 85), QColor(Qt::white));
    prova.Editor->Variato = false;
}

QTEST_MAIN(tst_CaselleEditor)
#include "tst_CaselleEditor.moc"

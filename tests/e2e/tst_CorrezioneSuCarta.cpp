#include "ProvaInCoda.h"
#include "base/Unita.h"
#include "documento/UltimeCorrezioni.h"
#include "editor/EditoreDiProva.h"
#include "sistema/CartellaStato.h"
#include "support/Rettangoli.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

using Unita::MillimetriPerPunto;

namespace {

/// The printer that really prints the documents: its sheet comes out shifted.
const QString Vera = QStringLiteral("Vera");

/// Marks far from each other; capitals without round edges.
constexpr QPointF Primo(20, 30);
constexpr QPointF Secondo(160, 250);

QString Numero(double millimetri)
{
    return QString::number(millimetri, 'f', 1); // as one reads a ruler, and better
}

} // namespace

/// Print, measure, correct, print, measure.
class tst_CorrezioneSuCarta : public QObject, private ProvaInCoda
{
    Q_OBJECT
private slots:
    void initTestCase() { AvviaServer(); }
    void tornaAlSuoPosto_data();
    void tornaAlSuoPosto();
    void laStampanteCheRiduceNonSiCorregge();
    void annullataNonSiPropone();

private:
    /// Where the ink of the mark near the point begins on the sheet, mm from its corner.
    static QPointF Misura(const LettorePdf &foglio, QPointF vicino);
    /// The sheet that the queue prints of the model, from the editor's own button.
    LettorePdf StampaSu(const QString &coda, Form2 &editor);
    static void Compone(ArchivioDiProva &archivio);

    /// What the dialog has said of the marks, and whether it has moved anything.
    struct Risposta
    {
        QString Detto;
        bool Offerta = false;
    };
    static Risposta Corregge(Form2 &editor, const QList<QPointF> &attesi,
                             const QList<QPointF> &usciti, bool dueSegni);
};

QPointF tst_CorrezioneSuCarta::Misura(const LettorePdf &foglio, QPointF vicino)
{
    return foglio.Inchiostro(QRectF(vicino - QPointF(2, 2), QSizeF(25, 25))).topLeft();
}

LettorePdf tst_CorrezioneSuCarta::StampaSu(const QString &coda, Form2 &editor)
{
    coda_->Predefinita(coda);
    Robot robot;
    robot.No();
    ::Preme(editor, "Stampa");
    if (!robot.Soddisfatto()) {
        qFatal("%s", qPrintable(robot.Testi().join(u'|')));
    }
    return UnicoFoglio();
}

void tst_CorrezioneSuCarta::Compone(ArchivioDiProva &archivio)
{
    int numero = 0;
    for (const QPointF posto : {Primo, Secondo}) {
        const int i =
            archivio.AggiungeCampo(QStringLiteral("Campo%1").arg(++numero), posto.x(), posto.y());
        archivio.DaAprire().Campi[i].Testo = QStringLiteral("H");
    }
    archivio.AggiungeCornice(QStringLiteral("Riquadro"), 60, 120, 40, 20);
    archivio.DaAprire().Cornici[1].Testo.clear();
    archivio.DaAprire().Righe = {100, 200, 5, 4, QStringLiteral("segue")};
}

tst_CorrezioneSuCarta::Risposta tst_CorrezioneSuCarta::Corregge(Form2 &editor,
                                                                const QList<QPointF> &attesi,
                                                                const QList<QPointF> &usciti,
                                                                bool dueSegni)
{
    Risposta risposta;
    Robot robot;
    robot.Agisce([&](QDialog *dialogo) {
        Trova<QCheckBox>(*dialogo, "DueSegni")->setChecked(dueSegni);
        for (int i = 0; i < (dueSegni ? 2 : 1); ++i) {
            const auto scrive = [&](const char *casella, double millimetri) {
                const QByteArray nome = casella + QByteArray::number(i + 1);
                Controlli::Digita(*dialogo, nome.constData(), Numero(millimetri));
            };
            scrive("AttesoX", attesi.at(i).x());
            scrive("AttesoY", attesi.at(i).y());
            scrive("UscitoX", usciti.at(i).x());
            scrive("UscitoY", usciti.at(i).y());
        }
        risposta.Detto = Trova<QLabel>(*dialogo, "Esito")->text();
        auto *conferma = Trova<QPushButton>(*dialogo, "Conferma");
        risposta.Offerta = conferma->isEnabled();
        if (risposta.Offerta) {
            conferma->click();
        } else {
            dialogo->reject();
        }
    });
    ::Preme(editor, "CorreggiDaGriglia");
    if (!robot.Soddisfatto()) {
        qFatal("the dialog has not come");
    }
    return risposta;
}

void tst_CorrezioneSuCarta::tornaAlSuoPosto_data()
{
    QTest::addColumn<QPointF>("fuoriPosto"); // mm
    QTest::addColumn<bool>("dueSegni");
    QTest::newRow("right and down") << QPointF(3.3, 5.8) << false;
    QTest::newRow("left and up") << QPointF(-2.6, -3.4) << false;
    QTest::newRow("two marks") << QPointF(4.4, -2.2) << true;
}

void tst_CorrezioneSuCarta::tornaAlSuoPosto()
{
    QFETCH(QPointF, fuoriPosto);
    QFETCH(bool, dueSegni);
    const CodaDiStampa::Bordi bordi{};
    coda_->Aggiunge(Prova, bordi);
    coda_->Aggiunge(Vera,
                    {bordi.Sinistra + fuoriPosto.x() / MillimetriPerPunto,
                     bordi.Sopra + fuoriPosto.y() / MillimetriPerPunto, bordi.Destra, bordi.Sotto});
    EditorSulModello prova(Compone);
    QVERIFY(prova.caricato);
    // Where the form wants the marks, and where the printer puts them.
    const LettorePdf voluto = StampaSu(Prova, *prova.editor);
    const LettorePdf uscito = StampaSu(Vera, *prova.editor);
    const QPointF angolo = CodaDiStampa::AngoloStampabile;
    const QPointF errore =
        Misura(uscito, angolo + Primo + fuoriPosto) - Misura(voluto, angolo + Primo);
    QVERIFY(Vicini(errore.x(), fuoriPosto.x(), 0.2) && Vicini(errore.y(), fuoriPosto.y(), 0.2));

    QList<QPointF> attesi;
    QList<QPointF> usciti;
    for (const QPointF posto : {Primo, Secondo}) {
        attesi.append(Misura(voluto, angolo + posto));
        usciti.append(Misura(uscito, angolo + posto + fuoriPosto));
    }
    const Risposta risposta = Corregge(*prova.editor, attesi, usciti, dueSegni);
    QVERIFY2(risposta.Offerta, qPrintable(risposta.Detto));

    const LettorePdf corretto = StampaSu(Vera, *prova.editor);
    for (const QPointF posto : {Primo, Secondo}) {
        const QPointF atteso = Misura(voluto, angolo + posto);
        const QPointF dove = Misura(corretto, angolo + posto);
        QVERIFY2(
            Vicini(dove.x(), atteso.x(), 0.5) && Vicini(dove.y(), atteso.y(), 0.5),
            qPrintable(risposta.Detto + QStringLiteral(": %1, %2").arg(dove.x()).arg(dove.y())));
    }
    // The frame has gone with them.
    const QRectF riquadro(angolo + QPointF(57, 117), QSizeF(50, 30));
    QVERIFY(Vicini(corretto.Inchiostro(riquadro), voluto.Inchiostro(riquadro), 0.5));
}

void tst_CorrezioneSuCarta::laStampanteCheRiduceNonSiCorregge()
{
    coda_->Aggiunge(Prova, {});
    EditorSulModello prova(Compone);
    QVERIFY(prova.caricato);
    const LettorePdf voluto = StampaSu(Prova, *prova.editor);
    const Modello prima = prova.Aperto();
    const QPointF angolo = CodaDiStampa::AngoloStampabile;
    QList<QPointF> attesi;
    QList<QPointF> usciti;
    for (const QPointF posto : {Primo, Secondo}) {
        attesi.append(Misura(voluto, angolo + posto));
        usciti.append(attesi.last() * 0.97); // fitted into a page with margins
    }
    const Risposta risposta = Corregge(*prova.editor, attesi, usciti, true);
    QVERIFY2(risposta.Detto.contains(QStringLiteral("la stampante riduce il foglio")),
             qPrintable(risposta.Detto));
    QVERIFY(!risposta.Offerta);
    QVERIFY(prova.Aperto() == prima);
}

void tst_CorrezioneSuCarta::annullataNonSiPropone()
{
    coda_->Aggiunge(Prova, {});
    coda_->Predefinita(Prova);
    EditorSulModello prova(Compone);
    QVERIFY(prova.caricato);
    const auto proposta = [&] {
        return UltimeCorrezioni(CartellaStato()).Proposta(Prova, QStringLiteral("/un/altro.Mod"));
    };
    QVERIFY(Corregge(*prova.editor, {{20, 20}}, {{22, 20}}, false).Offerta);
    QCOMPARE(proposta(), (CorrezioneGriglia::Spostamento{-2, 0}));
    ::Preme(*prova.editor, "Annulla");
    QVERIFY(!proposta());
    ::Preme(*prova.editor, "Ripristina");
    QCOMPARE(proposta(), (CorrezioneGriglia::Spostamento{-2, 0}));
}

QTEST_MAIN(tst_CorrezioneSuCarta)
#include "tst_CorrezioneSuCarta.moc"

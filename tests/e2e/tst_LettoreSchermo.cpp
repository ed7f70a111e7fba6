#include "LettoreSchermo.h"
#include "Scrivania.h"

#include <QTest>

namespace {

const QString Fattura = QStringLiteral("Fattura_Rossi");

} // namespace

/// The real program as a screen reader finds it, over the accessibility bus.
class tst_LettoreSchermo : public QObject
{
    Q_OBJECT
private slots:
    void IlFoglioSiLeggeESiUsa();
    void LeVociHannoUnNome();
};

void tst_LettoreSchermo::IlFoglioSiLeggeESiUsa()
{
    Scrivania scrivania;
    const LettoreSchermo lettore(scrivania.Ambiente());
    scrivania.Avvia();
    scrivania.ApreModello(Fattura);
    const auto foglio = lettore.Dentro(lettore.Finestra(QStringLiteral("Anteprima Plakera")),
                                       QStringLiteral("foglio"));
    QVERIFY(foglio.Vera());
    const QList<LettoreSchermo::Parte> elementi = lettore.Figli(foglio);
    QVERIFY(elementi.size() > 40);
    int campi = 0;
    int vuoti = 0;
    QRect prima;
    for (const LettoreSchermo::Parte &elemento : elementi) {
        campi += elemento.nome.startsWith(QStringLiteral("campo ")) ? 1 : 0;
        const QRect posto = lettore.Rettangolo(elemento);
        vuoti += posto.isEmpty() ? 1 : 0;
        QVERIFY2(posto.top() >= prima.top() - 1, qPrintable(elemento.nome)); // as one reads
        prima = posto;
    }
    QVERIFY(campi > 20);
    QCOMPARE(vuoti, 0);

    const auto numero = lettore.Dentro(foglio, QStringLiteral("campo Doc_Numero"));
    QVERIFY(numero.Vera());
    QCOMPARE(lettore.Descrizione(numero), QStringLiteral("128/A"));
    QCOMPARE(lettore.Ruolo(numero), QStringLiteral("label"));
    // It stands where the paper has it, and where the eye finds it.
    scrivania.Anteprima();
    constexpr QPoint Posto(104, 44);
    const QRect posto = lettore.Rettangolo(numero);
    const QPoint scarto = posto.topLeft() - scrivania.SulFoglio(Posto);
    QVERIFY2(qAbs(scarto.x()) <= 2 && qAbs(scarto.y()) <= 2,
             qPrintable(QStringLiteral("%1 %2").arg(scarto.x()).arg(scarto.y())));

    constexpr int Volte = 10;
    for (int volta = 0; volta < Volte; ++volta) {
        lettore.Esegue(numero, QStringLiteral("sposta a destra"));
    }
    const int spostato = lettore.Rettangolo(numero).left() - posto.left();
    QVERIFY2(qAbs(spostato - scrivania.Pixel(Volte)) <= 1.5, qPrintable(QString::number(spostato)));

    lettore.Esegue(numero, QStringLiteral("Press"));
    scrivania.Video().Attende(Scrivania::TitoloCampo);
    scrivania.Video().Tasto(QStringLiteral("Escape"));
    scrivania.Video().AttendeChiusa(Scrivania::TitoloCampo);
}

void tst_LettoreSchermo::LeVociHannoUnNome()
{
    Scrivania scrivania;
    const LettoreSchermo lettore(scrivania.Ambiente());
    scrivania.Avvia();
    scrivania.ApreModello(Fattura);
    const auto editore = lettore.Finestra(QStringLiteral("Plakera: Modello %1.Mod").arg(Fattura));
    QCOMPARE(lettore.Ruolo(lettore.Dentro(editore, QStringLiteral("elenco campi disponibili"))),
             QStringLiteral("combo box"));
    for (const char *pulsante : {"Salva modello", "Stampa di prova", "Elimina modello"}) {
        QVERIFY2(lettore.Dentro(editore, QString::fromLatin1(pulsante)).Vera(), pulsante);
    }
}

QTEST_GUILESS_MAIN(tst_LettoreSchermo)
#include "tst_LettoreSchermo.moc"

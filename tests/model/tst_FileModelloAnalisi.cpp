#include "model/FileModello.h"

#include "support/Errori.h"
#include "support/ModelloDiProva.h"
#include "support/RigheDiProva.h"

#include <QTest>

#include <algorithm>

/// Where the reader sees blocks, sections and the end of the file.
class tst_FileModelloAnalisi : public QObject
{
    Q_OBJECT

private slots:
    void FineDelFile_data();
    void FineDelFile();
    void RigaPrimaDelBlocco_data();
    void RigaPrimaDelBlocco();
    void FineRiga_data();
    void FineRiga();
    void CentounesimoBlocco_data();
    void CentounesimoBlocco();
    void BloccoSenzaNome();
    void TroncatoAOgniByte();
    void TroncatoAOgniRiga();
    void SlotOltreIlContoRestano();
};

Q_DECLARE_METATYPE(Genere)

namespace {

using namespace RigheDiProva;

const QLocale Punto = QLocale::c();

void RigheDeiGeneri()
{
    QTest::addColumn<Genere>("genere");
    QTest::newRow("campi") << Genere::Campo;
    QTest::newRow("cornici") << Genere::Cornice;
    QTest::newRow("immagini") << Genere::Immagine;
}

} // namespace

void tst_FileModelloAnalisi::FineDelFile_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::addColumn<int>("errore");
    QTest::addColumn<QList<int>>("conti");

    const auto riga = [](const char *nome, const QByteArray &byte, int errore,
                         const QList<int> &conti) {
        QTest::newRow(nome) << byte << errore << conti;
    };
    const Righe inizio = Inizio();
    const Righe campi = inizio + BloccoCampo("a");
    const Righe fineCampi = campi + Righe{"FINECAMPI"};
    const Righe cornici = fineCampi + BloccoCornice("b");
    const Righe fineCornici = cornici + Righe{"FINECORNICI"};
    const Righe immagini = fineCornici + BloccoImmagine("c");
    const Righe fineImmagini = immagini + Righe{"FINEIMMAGINI"};

    riga("vuoto", "", 62, {0, 0, 0});
    riga("una riga", "Fattura\r\n", 62, {0, 0, 0});
    riga("dopo la testata", File(Testata()), 62, {0, 0, 0});
    riga("50 righe", File(inizio.first(50)), 62, {0, 0, 0});
    riga("50 righe e una senza fine", File(inizio.first(50)) + "x", 0, {0, 0, 0});
    riga("51 righe", File(inizio), 0, {0, 0, 0});
    riga("dopo un campo", File(campi), 0, {1, 0, 0});
    riga("dopo un campo, senza la riga che lo chiude", File(campi.first(campi.size() - 1)), 62,
         {1, 0, 0});
    riga("in mezzo a un campo", File(campi.first(campi.size() - 4)), 62, {1, 0, 0});
    riga("dopo la riga prima di un campo", File(inizio + Righe{""}), 62, {1, 0, 0});
    riga("dopo FINECAMPI", File(fineCampi), 0, {1, 0, 0});
    riga("dopo FINECAMPI senza fine riga", File(fineCampi).chopped(2), 0, {1, 0, 0});
    riga("dopo FINECAMPI col solo CR", File(fineCampi).chopped(1), 0, {1, 0, 0});
    riga("dopo una cornice", File(cornici), 0, {1, 1, 0});
    riga("in mezzo a una cornice", File(cornici.first(cornici.size() - 1)), 62, {1, 1, 0});
    riga("dopo FINECORNICI", File(fineCornici), 0, {1, 1, 0});
    riga("dopo un'immagine", File(immagini), 0, {1, 1, 1});
    riga("dopo un'immagine, senza la riga che la chiude", File(immagini.first(immagini.size() - 1)),
         62, {1, 1, 1});
    riga("intero", File(fineImmagini), 0, {1, 1, 1});
    riga("intero senza l'ultima fine riga", File(fineImmagini).chopped(2), 0, {1, 1, 1});
    riga("dopo FINEIMMAGINI non si legge", File(fineImmagini) + "resto\r\nresto", 0, {1, 1, 1});
}

void tst_FileModelloAnalisi::FineDelFile()
{
    QFETCH(QByteArray, byte);
    QFETCH(int, errore);
    QFETCH(QList<int>, conti);
    Modello modello = ModelloDiProva(5);
    QCOMPARE(ErroreLeggendo(byte, modello), errore);
    const QList<int> trovati{modello.NumCampi, modello.NumCornici, modello.NumImmagini};
    QCOMPARE(trovati, conti);
}

void tst_FileModelloAnalisi::RigaPrimaDelBlocco_data()
{
    QTest::addColumn<QByteArray>("riga");
    QTest::addColumn<bool>("marcatore");

    QTest::newRow("vuota") << QByteArray() << false;
    QTest::newRow("qualunque testo") << QByteArray("qualunque testo") << false;
    QTest::newRow("minuscolo") << QByteArray("finecampi finecornici fineimmagini") << false;
    QTest::newRow("blank dopo") << QByteArray("% ") << false;
    QTest::newRow("blank davanti") << QByteArray(" %") << false;
    QTest::newRow("marcatore") << QByteArray("%") << true;
}

void tst_FileModelloAnalisi::RigaPrimaDelBlocco()
{
    QFETCH(QByteArray, riga);
    QFETCH(bool, marcatore);
    for (const auto &[genere, testo] :
         {std::pair{Genere::Campo, "FINECAMPI"}, std::pair{Genere::Cornice, "FINECORNICI"},
          std::pair{Genere::Immagine, "FINEIMMAGINI"}}) {
        Righe secondo = Blocco(genere, "secondo");
        secondo[0] = QByteArray(riga).replace('%', testo);
        Modello modello;
        ErroreLeggendo(File(Intero(genere, Blocco(genere, "primo") + secondo)), modello);
        QCOMPARE(modello.Numero(genere), qint16(marcatore ? 1 : 2));
        QCOMPARE(modello.Nome(genere, 1), QStringLiteral("primo"));
        QCOMPARE(modello.Nome(genere, 2), marcatore ? QString() : QStringLiteral("secondo"));
    }
}

void tst_FileModelloAnalisi::FineRiga_data()
{
    QTest::addColumn<QByteArray>("fine");
    QTest::addColumn<int>("errore");

    QTest::newRow("CR LF") << QByteArray("\r\n") << 0;
    QTest::newRow("solo CR") << QByteArray("\r") << 0;
    // Without a single CR the whole file is one line.
    QTest::newRow("solo LF") << QByteArray("\n") << 62;
}

void tst_FileModelloAnalisi::FineRiga()
{
    QFETCH(QByteArray, fine);
    QFETCH(int, errore);
    const QByteArray giusto = FileModello::Componi(ModelloDiProva(3), Punto);
    QByteArray byte = giusto;
    byte.replace("\r\n", fine);
    Modello modello;
    QCOMPARE(ErroreLeggendo(byte, modello), errore);
    if (errore == 0) {
        QVERIFY(modello == ModelloDiProva(3));
    } else {
        QCOMPARE(modello.Tipo.size(), byte.size());
    }
}

void tst_FileModelloAnalisi::CentounesimoBlocco_data()
{
    RigheDeiGeneri();
}

void tst_FileModelloAnalisi::CentounesimoBlocco()
{
    QFETCH(Genere, genere);
    Righe blocchi;
    for (int i = 1; i <= 100; ++i) {
        blocchi += Blocco(genere, "nome" + QByteArray::number(i));
    }
    Modello modello;
    QCOMPARE(ErroreLeggendo(File(Intero(genere, blocchi)), modello), 0);
    QCOMPARE(modello.Numero(genere), qint16(100));

    Modello pieno;
    blocchi += Blocco(genere, "nome101");
    QCOMPARE(ErroreLeggendo(File(Intero(genere, blocchi)), pieno), 9);
    QCOMPARE(pieno.UltimoSlot(genere), 100);
    for (int i = 1; i <= 100; ++i) {
        QCOMPARE(pieno.Nome(genere, i), QStringLiteral("nome") + QString::number(i));
        QCOMPARE(pieno.Di({genere, i}).X, 1.5);
    }
    // The model that stayed can be saved, and what is saved is what was read.
    QCOMPARE(FileModello::Componi(pieno, Punto), FileModello::Componi(modello, Punto));
}

void tst_FileModelloAnalisi::BloccoSenzaNome()
{
    Modello modello;
    const Righe blocchi = BloccoCampo("") + BloccoCampo("b");
    QCOMPARE(ErroreLeggendo(File(Intero(Genere::Campo, blocchi)), modello), 0);
    QCOMPARE(modello.NumCampi, qint16(2));
    QVERIFY(!modello.Presente(Genere::Campo, 1));
    QCOMPARE(Letto(FileModello::Componi(modello, Punto)).NumCampi, qint16(1));
}

void tst_FileModelloAnalisi::TroncatoAOgniByte()
{
    const Modello intero = ModelloDiProva(2);
    const QByteArray byte = FileModello::Componi(intero, Punto);
    int letti = 0;
    for (qsizetype n = 0; n < byte.size(); ++n) {
        Modello modello;
        const int errore = ErroreLeggendo(byte.first(n), modello);
        QVERIFY2(errore == 0 || errore == 62, QByteArray::number(errore));
        letti += errore == 0 ? 1 : 0;
        // A marker cut short opens one more element.
        QVERIFY(modello.NumCampi <= intero.NumCampi + 1);
        QVERIFY(modello.NumCornici <= intero.NumCornici + 1);
        QVERIFY(modello.NumImmagini <= intero.NumImmagini + 1);
        for (int i = 1; i < std::min(modello.NumCampi, intero.NumCampi); ++i) {
            QVERIFY(modello.Campi[i] == intero.Campi[i]);
        }
    }
    QVERIFY(letti > 0);
}

void tst_FileModelloAnalisi::TroncatoAOgniRiga()
{
    const QByteArray byte = FileModello::Componi(ModelloDiProva(2), Punto);
    QList<qsizetype> riusciti;
    qsizetype riga = 0;
    for (qsizetype fine = byte.indexOf("\r\n"); fine >= 0; fine = byte.indexOf("\r\n", fine + 1)) {
        ++riga;
        Modello modello;
        if (ErroreLeggendo(byte.first(fine + 2), modello) == 0) {
            riusciti.append(riga);
        }
    }
    // The free lines; each field; each marker; each frame; each picture.
    const QList<qsizetype> attesi{51, 63, 75, 76, 90, 104, 105, 114, 123, 124};
    QCOMPARE(riusciti, attesi);
}

void tst_FileModelloAnalisi::SlotOltreIlContoRestano()
{
    Modello modello = ModelloDiProva(5);
    QCOMPARE(ErroreLeggendo(FileModello::Componi(ModelloDiProva(2), Punto), modello), 0);
    QCOMPARE(modello.NumCampi, qint16(2));
    QVERIFY(modello.Campi == ModelloDiProva(5).Campi);
    QVERIFY(modello.Cornici == ModelloDiProva(5).Cornici);
    QVERIFY(modello.Immagini == ModelloDiProva(5).Immagini);
}

QTEST_GUILESS_MAIN(tst_FileModelloAnalisi)
#include "tst_FileModelloAnalisi.moc"

#include "documento/Appunti.h"

#include "model/FileModello.h"
#include "support/ModelloDiProva.h"

#include <QDir>
#include <QMimeData>
#include <QTest>

namespace {

const QString Cartella = QDir::rootPath() + QStringLiteral("dati/Contabilità/ini");

QList<Chiave> TuttiDi(const Modello &modello)
{
    QList<Chiave> chiavi;
    for (const Genere genere : Generi) {
        for (int i = 1; i <= modello.UltimoSlot(genere); ++i) {
            chiavi.append({genere, i});
        }
    }
    return chiavi;
}

QByteArray RigheDi(const Modello &modello)
{
    const auto contenuto =
        Appunti::Compone(ElementiCopiati::Da(modello, TuttiDi(modello), Cartella));
    return contenuto->data(Appunti::TipoElementi);
}

std::optional<ElementiCopiati> Letti(const QByteArray &righe, const QByteArray &origine = {})
{
    QMimeData contenuto;
    contenuto.setData(Appunti::TipoElementi, righe);
    contenuto.setData(Appunti::TipoOrigine, origine);
    return Appunti::Legge(&contenuto);
}

/// The lines of one more field, before those of others.
const QByteArray UnCampo("\r\nInPiu\r\nt\r\nm\r\n1\r\n1\r\nArial\r\n9\r\n0\r\nm\r\nd\r\n\r\n");

/// One field, one frame, one image.
QByteArray TreElementi()
{
    return RigheDi(ModelloDiProva(1));
}

} // namespace

/// What the clipboard holds, and what is read of whatever it holds.
class tst_Appunti : public QObject
{
    Q_OBJECT
private slots:
    void OgniValoreTorna_data();
    void OgniValoreTorna();
    void TornanoNellOrdineDiScelta();
    void ChiNonHaNomeRestaFuori();
    void IlTestoSonoLeRigheDelFile();
    void GliAssurdiTornano();
    void SenzaElementi_data();
    void SenzaElementi();
    void TroncatoAOgniByte();
    void UnByteDiverso();
    void RigheSbagliate_data();
    void RigheSbagliate();
    void Enorme();
    void OrigineSbagliata_data();
    void OrigineSbagliata();
    void TralasciareNonToccaGliAltri();
};

void tst_Appunti::OgniValoreTorna_data()
{
    QTest::addColumn<int>("perGenere");
    QTest::addColumn<QLocale>("locale");
    const QLocale virgola(QLocale::Italian, QLocale::Italy);
    QTest::newRow("uno") << 1 << QLocale::c();
    QTest::newRow("cento") << 100 << QLocale::c();
    QTest::newRow("cento dove i decimali hanno la virgola") << 100 << virgola;
}

void tst_Appunti::OgniValoreTorna()
{
    QFETCH(int, perGenere);
    QFETCH(QLocale, locale);
    QLocale::setDefault(locale);
    const Modello modello = ModelloDiProva(perGenere);
    const auto contenuto =
        Appunti::Compone(ElementiCopiati::Da(modello, TuttiDi(modello), Cartella));
    const std::optional<ElementiCopiati> letti = Appunti::Legge(contenuto.get());
    QLocale::setDefault(QLocale::c());
    QVERIFY(letti);
    for (const Genere genere : Generi) {
        QCOMPARE(letti->Elementi.Numero(genere), modello.Numero(genere));
        QCOMPARE(letti->Quanti(genere), perGenere);
    }
    QVERIFY(letti->Elementi.Campi == modello.Campi);
    QVERIFY(letti->Elementi.Cornici == modello.Cornici);
    QVERIFY(letti->Elementi.Immagini == modello.Immagini);
    QCOMPARE(letti->Ordine, TuttiDi(modello));
    QCOMPARE(QDir::fromNativeSeparators(letti->CartellaFonte), Cartella);
}

void tst_Appunti::TornanoNellOrdineDiScelta()
{
    const Modello modello = ModelloDiProva(5);
    const QList<Chiave> scelti{
        {Genere::Immagine, 4}, {Genere::Campo, 5}, {Genere::Cornice, 2}, {Genere::Campo, 1}};
    const auto contenuto = Appunti::Compone(ElementiCopiati::Da(modello, scelti, Cartella));
    const std::optional<ElementiCopiati> letti = Appunti::Legge(contenuto.get());
    QVERIFY(letti);
    QStringList nomi;
    for (const Chiave &chiave : letti->Ordine) {
        nomi.append(letti->Elementi.Di(chiave).Nome);
    }
    QCOMPARE(nomi, (QStringList{modello.Immagini[4].Nome, modello.Campi[5].Nome,
                                modello.Cornici[2].Nome, modello.Campi[1].Nome}));
    QCOMPARE(letti->Elementi.NumCampi, qint16(2));
}

void tst_Appunti::ChiNonHaNomeRestaFuori()
{
    Modello modello = ModelloDiProva(2);
    modello.Campi[1].Nome.clear();
    modello.AggiungeImmagine(10, 10);
    const ElementiCopiati copiati = ElementiCopiati::Da(
        modello, {{Genere::Campo, 1}, {Genere::Immagine, 3}, {Genere::Campo, 2}}, Cartella);
    QCOMPARE(copiati.Ordine, (QList<Chiave>{{Genere::Campo, 1}}));
    QCOMPARE(copiati.Elementi.Campi[1], modello.Campi[2]);
    QCOMPARE(copiati.Elementi.NumImmagini, qint16(0));
}

void tst_Appunti::IlTestoSonoLeRigheDelFile()
{
    const Modello modello = ModelloDiProva(3);
    const auto contenuto =
        Appunti::Compone(ElementiCopiati::Da(modello, TuttiDi(modello), Cartella));
    const QByteArray righe = contenuto->data(Appunti::TipoElementi);
    QVERIFY(FileModello::Componi(modello, QLocale::c()).endsWith(righe));
    QVERIFY(righe.contains("prova \x80 1\r\n")); // the code page's euro
    const QString testo = contenuto->text();
    QVERIFY(testo.startsWith(QStringLiteral("\r\nCampo1\r\nprova € 1\r\n##.###,##\r\n11.5\r\n")));
    QVERIFY(testo.endsWith(QStringLiteral("FINEIMMAGINI\r\n")));
}

void tst_Appunti::GliAssurdiTornano()
{
    Modello modello = ModelloDiProva(1);
    modello.Campi[1].X = 1e300;
    modello.Cornici[1].Larghezza = -1.7976931348623157e308;
    modello.Immagini[1].Y = 4.9e-324;
    const std::optional<ElementiCopiati> letti = Letti(RigheDi(modello));
    QVERIFY(letti);
    QCOMPARE(letti->Elementi.Campi[1].X, 1e300);
    QVERIFY(letti->Elementi.Cornici[1].Larghezza < -1.7e308);
    QCOMPARE(letti->Elementi.Immagini[1].Y, 4.9e-324);
}

void tst_Appunti::SenzaElementi_data()
{
    QTest::addColumn<QByteArray>("tipo");
    QTest::addColumn<QByteArray>("byte");
    QTest::newRow("niente") << QByteArray() << QByteArray();
    QTest::newRow("solo testo") << QByteArray("text/plain") << TreElementi();
    QTest::newRow("un'immagine") << QByteArray("image/bmp") << QByteArray("BM");
    QTest::newRow("il nostro tipo, vuoto")
        << QByteArray(Appunti::TipoElementi.latin1()) << QByteArray();
    QTest::newRow("i soli marcatori") << QByteArray(Appunti::TipoElementi.latin1())
                                      << QByteArray("FINECAMPI\r\nFINECORNICI\r\nFINEIMMAGINI\r\n");
}

void tst_Appunti::SenzaElementi()
{
    QFETCH(QByteArray, tipo);
    QFETCH(QByteArray, byte);
    QMimeData contenuto;
    if (!tipo.isEmpty()) {
        contenuto.setData(QString::fromLatin1(tipo), byte);
    }
    QVERIFY(!Appunti::Legge(&contenuto));
    QVERIFY(!Appunti::Legge(nullptr));
}

void tst_Appunti::TroncatoAOgniByte()
{
    const QByteArray righe = RigheDi(ModelloDiProva(2));
    QVERIFY(Letti(righe));
    for (qsizetype byte = 0; byte < righe.size(); ++byte) {
        QVERIFY2(!Letti(righe.first(byte)), qPrintable(QString::number(byte)));
    }
}

void tst_Appunti::UnByteDiverso()
{
    // Whatever a changed byte makes of the lines, what is taken of them is what they say.
    const QByteArray righe = TreElementi();
    for (qsizetype i = 0; i < righe.size(); ++i) {
        for (const char altro : {'\0', '\r', '\n', '9', '\xFF'}) {
            QByteArray guasti = righe;
            guasti[i] = altro;
            if (const std::optional<ElementiCopiati> letti = Letti(guasti)) {
                QCOMPARE(FileModello::ComponiElementi(letti->Elementi, QLocale::c()), guasti);
                QVERIFY(!letti->Ordine.isEmpty());
            }
        }
    }
}

void tst_Appunti::RigheSbagliate_data()
{
    QTest::addColumn<QByteArray>("righe");
    const QByteArray buone = TreElementi();
    const auto cambiate = [&](const char *prima, const char *dopo) {
        QByteArray righe = buone;
        righe.replace(prima, dopo);
        return righe;
    };
    QTest::newRow("dopo la fine") << buone + "\r\n";
    QTest::newRow("due volte") << buone + buone;
    QTest::newRow("un modello intero") << FileModello::Componi(ModelloDiProva(1), QLocale::c());
    QTest::newRow("fine riga di un altro sistema") << cambiate("\r\n", "\n");
    QTest::newRow("marcatore minuscolo") << cambiate("FINECORNICI", "finecornici");
    QTest::newRow("senza un marcatore") << cambiate("FINECAMPI\r\n", "");
    QTest::newRow("elemento assente") << cambiate("\r\nCampo1\r\n", "\r\n\r\n");
    QTest::newRow("numero con la virgola") << cambiate("\r\n11.5\r\n", "\r\n11,5\r\n");
    QTest::newRow("numero con altro") << cambiate("\r\n11.5\r\n", "\r\n11.5mm\r\n");
    QTest::newRow("nessun numero") << cambiate("\r\n11.5\r\n", "\r\n\r\n");
    QTest::newRow("NaN") << cambiate("\r\n11.5\r\n", "\r\nnan\r\n");
    QTest::newRow("infinito") << cambiate("\r\n11.5\r\n", "\r\ninf\r\n");
    QTest::newRow("oltre i double") << cambiate("\r\n11.5\r\n", "\r\n1E309\r\n");
    QTest::newRow("dimensione oltre 16 bit") << cambiate("\r\n7\r\n", "\r\n32768\r\n");
    QTest::newRow("byte qualsiasi") << QByteArray("\0\xFF\r\n", 4).repeated(1000);
    QTest::newRow("101 campi") << UnCampo + RigheDi(ModelloDiProva(100));
}

void tst_Appunti::RigheSbagliate()
{
    QFETCH(QByteArray, righe);
    QVERIFY(!Letti(righe));
    QVERIFY(Letti(UnCampo + RigheDi(ModelloDiProva(99))));
}

void tst_Appunti::Enorme()
{
    Modello modello = ModelloDiProva(1);
    modello.Campi[1].Testo = QString(qsizetype(FileModello::DimensioneMassima), u'x');
    const QByteArray righe = FileModello::ComponiElementi(modello, QLocale::c());
    QVERIFY(!Letti(righe));
    modello.Campi[1].Testo.truncate(modello.Campi[1].Testo.size() / 4);
    QVERIFY(Letti(FileModello::ComponiElementi(modello, QLocale::c())));
}

void tst_Appunti::OrigineSbagliata_data()
{
    QTest::addColumn<QByteArray>("origine");
    QTest::newRow("niente") << QByteArray();
    QTest::newRow("byte qualsiasi") << QByteArray("\0\xFF{[", 4);
    QTest::newRow("non un oggetto") << QByteArray("[1,2]");
    QTest::newRow("altri tipi") << QByteArray(R"({"cartella":7,"ordine":"0"})");
    QTest::newRow("cartella relativa") << QByteArray(R"({"cartella":"../ini","ordine":[0]})");
    QTest::newRow("cartella con uno zero") << QByteArray(R"({"cartella":"/dati\u0000/ini"})");
    QTest::newRow("mezzo carattere") << QByteArray(R"({"cartella":"/dati\ud800/ini"})");
    QTest::newRow("elementi due volte") << QByteArray(R"({"ordine":[2,2,1]})");
    QTest::newRow("elementi che non ci sono") << QByteArray(R"({"ordine":[2,1,3]})");
    QTest::newRow("elementi negativi") << QByteArray(R"({"ordine":[2,1,-1]})");
    QTest::newRow("elementi a metà") << QByteArray(R"({"ordine":[2,1,0.5]})");
    QTest::newRow("elementi di troppo") << QByteArray(R"({"ordine":[2,1,0,0]})");
    QTest::newRow("annidata") << QByteArray("[").repeated(60000);
    QTest::newRow("enorme") << QByteArray(R"({"cartella":"/)") + QByteArray(70000, 'x') +
                                   QByteArray(R"(","ordine":[2,1,0]})");
}

void tst_Appunti::OrigineSbagliata()
{
    QFETCH(QByteArray, origine);
    const std::optional<ElementiCopiati> letti = Letti(TreElementi(), origine);
    QVERIFY(letti);
    QCOMPARE(letti->CartellaFonte, QString());
    QCOMPARE(letti->Ordine, TuttiDi(letti->Elementi));
}

void tst_Appunti::TralasciareNonToccaGliAltri()
{
    const Modello modello = ModelloDiProva(2);
    ElementiCopiati copiati = ElementiCopiati::Da(modello, TuttiDi(modello), Cartella);
    copiati.Tralascia({Genere::Immagine, 1});
    QCOMPARE(copiati.Quanti(Genere::Immagine), 1);
    QCOMPARE(copiati.Quanti(Genere::Campo), 2);
    QCOMPARE(copiati.Elementi.Di(copiati.Ordine.constLast()).Nome, modello.Immagini[2].Nome);
}

QTEST_GUILESS_MAIN(tst_Appunti)
#include "tst_Appunti.moc"

#include "model/FileModello.h"
#include "model/MaschereStampa.h"

#include <QDirIterator>
#include <QImageReader>
#include <QSet>
#include <QTest>

#include <cmath>

/// What a new user sees first must pass everything that the dialogs would ask of it.
class tst_ModelliCampione : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void ModelliDiPartenza_data();
    void ModelliDiPartenza();
    void Nomi_data() { Elenca(); }
    void Nomi();
    void Maschere_data() { Elenca(); }
    void Maschere();
    void Posti_data() { Elenca(); }
    void Posti();
    void Immagini_data() { Elenca(); }
    void Immagini();

private:
    static void Elenca();
    static Modello Carica(const QString &percorso);

    QSet<QString> maschere_;
};

namespace {

QDir Campione()
{
    return QDir(QStringLiteral(CARTELLA_CAMPIONE));
}

// What a printer reaches of A4, counted from its printable corner: 5 mm are lost on every side.
constexpr double LarghezzaStampabile = 200;
constexpr double AltezzaStampabile = 287;

bool Intero(double millimetri)
{
    return std::floor(millimetri) == millimetri;
}

} // namespace

void tst_ModelliCampione::Elenca()
{
    QTest::addColumn<QString>("percorso");
    QDirIterator modelli(Campione().path(), {QStringLiteral("*.mod")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (modelli.hasNext()) {
        const QString percorso = modelli.next();
        QTest::newRow(qPrintable(Campione().relativeFilePath(percorso))) << percorso;
    }
}

Modello tst_ModelliCampione::Carica(const QString &percorso)
{
    Modello modello;
    FileModello::Carica(modello, percorso);
    return modello;
}

void tst_ModelliCampione::initTestCase()
{
    const QStringList voci = MaschereStampa::Catalogo();
    for (const QString &voce : voci)
        maschere_.insert(MaschereStampa::Propria(voce));
}

void tst_ModelliCampione::ModelliDiPartenza_data()
{
    QTest::addColumn<QString>("nome");
    for (const char *nome :
         {"TIFATTURA.mod", "TIFATTURARA.mod", "TIFATTURARifCli.mod", "TIFATTACC.mod", "TIBOLLA.mod",
          "TIBOLLAPR.mod", "TIBOLLARifCli.mod", "TIORDCLI.mod", "TIORDCLIRifCli.mod",
          "TIORDFOR.mod", "TIMOVIMENTO.mod", "TIScontrinoScarico.mod", "TIEC.mod"})
        QTest::newRow(nome) << QString::fromLatin1(nome);
}

void tst_ModelliCampione::ModelliDiPartenza()
{
    QFETCH(QString, nome);
    // A listing, not a lookup: the case of the name counts even where the system ignores it.
    const QDir cartella(Campione().filePath(QStringLiteral("Contabilita/ini")));
    QVERIFY(cartella.entryList(QDir::Files).contains(nome));
}

void tst_ModelliCampione::Nomi()
{
    QFETCH(QString, percorso);
    const Modello modello = Carica(percorso);
    for (const Genere genere : {Genere::Campo, Genere::Cornice, Genere::Immagine}) {
        QSet<QString> nomi;
        for (int i = 1; i <= modello.Numero(genere); ++i) {
            const QString nome = modello.Nome(genere, i);
            QVERIFY2(!nomi.contains(nome.toUpper()), qPrintable(nome));
            nomi.insert(nome.toUpper());
        }
    }
    QVERIFY(modello.NumCampi > 0);
    QVERIFY(!modello.Tipo.isEmpty());
}

void tst_ModelliCampione::Maschere()
{
    QFETCH(QString, percorso);
    const Modello modello = Carica(percorso);
    for (int i = 1; i <= modello.NumCampi; ++i) {
        const Campo &campo = modello.Campi[i];
        QVERIFY2(maschere_.contains(campo.Maschera), qPrintable(campo.Nome));
        QVERIFY2(maschere_.contains(campo.MascheraDefault), qPrintable(campo.Nome));
        if (campo.Maschera != MaschereStampa::NonStampata)
            QVERIFY2(campo.Testo.size() <= campo.Maschera.size(), qPrintable(campo.Nome));
        if (!MaschereStampa::Numerica(campo.Maschera))
            continue;
        // A test number ends like the mask without its last place.
        const QString forma = campo.Maschera.chopped(1);
        const auto decimali = [](const QString &t) {
            return t.section(QLatin1Char(','), 1).size();
        };
        QVERIFY2(campo.Testo.size() <= forma.size(), qPrintable(campo.Nome));
        QCOMPARE(decimali(campo.Testo), decimali(forma));
    }
}

void tst_ModelliCampione::Posti()
{
    QFETCH(QString, percorso);
    const Modello modello = Carica(percorso);
    for (int i = 1; i <= modello.NumCampi; ++i) {
        const Campo &campo = modello.Campi[i];
        QVERIFY2(Intero(campo.X) && Intero(campo.Y), qPrintable(campo.Nome));
        QVERIFY2(campo.X >= 0 && campo.X < LarghezzaStampabile, qPrintable(campo.Nome));
        QVERIFY2(campo.Y >= 0 && campo.Y < AltezzaStampabile, qPrintable(campo.Nome));
        if (campo.Nome.startsWith(QLatin1String("R_")))
            QCOMPARE(campo.Y, modello.Righe.yInizio);
    }
    for (int i = 1; i <= modello.NumCornici; ++i) {
        const Cornice &cornice = modello.Cornici[i];
        QVERIFY2(Intero(cornice.X) && Intero(cornice.Y) && Intero(cornice.Larghezza) &&
                     Intero(cornice.Altezza),
                 qPrintable(cornice.Nome));
        QVERIFY2(cornice.X >= 0 && cornice.X + cornice.Larghezza <= LarghezzaStampabile,
                 qPrintable(cornice.Nome));
        QVERIFY2(cornice.Y >= 0 && cornice.Y + cornice.Altezza <= AltezzaStampabile,
                 qPrintable(cornice.Nome));
    }
    QVERIFY(modello.Righe.yInizio < modello.Righe.yFine);
    QVERIFY(modello.Righe.Interlinea > 0);
}

void tst_ModelliCampione::Immagini()
{
    QFETCH(QString, percorso);
    const Modello modello = Carica(percorso);
    for (int i = 1; i <= modello.NumImmagini; ++i) {
        const Immagine &immagine = modello.Immagini[i];
        const QSizeF pixel = QImageReader(QFileInfo(percorso).dir().filePath(immagine.Nome)).size();
        QVERIFY2(!pixel.isEmpty(), qPrintable(immagine.Nome));
        const double storto =
            immagine.Larghezza / immagine.Altezza - pixel.width() / pixel.height();
        QVERIFY2(std::abs(storto) < 0.01, qPrintable(immagine.Nome));
    }
}

QTEST_MAIN(tst_ModelliCampione)
#include "tst_ModelliCampione.moc"

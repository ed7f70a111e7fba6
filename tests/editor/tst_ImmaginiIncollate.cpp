#include "AppuntiDiProva.h"
#include "support/Permessi.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString Logo = QStringLiteral("logo.bmp");
const QString Altro = QStringLiteral("altro.bmp");

QByteArray Figura(QRgb colore)
{
    return ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({8, 4}, colore), "bmp");
}

QByteArray Rossa()
{
    return Figura(qRgb(255, 0, 0));
}

QByteArray Blu()
{
    return Figura(qRgb(0, 0, 255));
}

QString Cartella(const EditoreDiProva &prova)
{
    return prova.Archivio.Stato().CartellaModelli;
}

void MetteFile(const EditoreDiProva &prova, const QString &nome, const QByteArray &byte)
{
    ScriveFile(Cartella(prova) + nome, byte);
}

/// The pictures in the folder of the model.
QStringList Figure(const EditoreDiProva &prova)
{
    QStringList nomi = NomiIn(Cartella(prova));
    nomi.removeAll(QStringLiteral("Prova.Mod"));
    return nomi;
}

/// A model in an archive of its own whose images are in the clipboard, and the one that gets them.
class DueArchivi
{
public:
    explicit DueArchivi(const QStringList &immagini)
    {
        for (const QString &nome : immagini) {
            fonte.Archivio.AggiungeImmagine(nome, 20, 30, 40, 25);
        }
        if (!fonte.Apre()) {
            qFatal("the model does not open");
        }
    }
    ~DueArchivi()
    {
        fonte.Archivio.Stato().documento.Salvato();
        qui.Archivio.Stato().documento.Salvato();
    }
    Q_DISABLE_COPY_MOVE(DueArchivi)

    /// Copies all images there and pastes them here.
    void Incolla()
    {
        Copia();
        if (!qui.Editor && !qui.Apre()) {
            qFatal("the model does not open");
        }
        Tasti(qui, Qt::Key_V);
    }
    void Copia()
    {
        QList<Chiave> chiavi;
        for (int i = 1; i <= fonte.Archivio.Aperto().NumImmagini; ++i) {
            chiavi.append({Genere::Immagine, i});
        }
        Sceglie(fonte, chiavi);
        Tasti(fonte, Qt::Key_C);
    }
    QStringList Immagini()
    {
        QStringList nomi;
        for (int i = 1; i <= qui.Archivio.Aperto().NumImmagini; ++i) {
            nomi.append(qui.Archivio.Aperto().Immagini[i].Nome);
        }
        return nomi;
    }

    EditoreDiProva fonte;
    EditoreDiProva qui;
};

/// Elements as another program may put them into the clipboard: one image.
void MetteImmagineNegliAppunti(const QString &nome, const QString &cartella)
{
    Modello modello;
    const int n = modello.AggiungeImmagine(10, 10);
    modello.Immagini[n].Nome = nome;
    ElementiCopiati copiati = ElementiCopiati::Da(modello, {{Genere::Immagine, n}}, cartella);
    copiati.CartellaFonte = cartella;
    QGuiApplication::clipboard()->setMimeData(Appunti::Compone(copiati).release());
}

} // namespace

/// The files of images that are pasted.
class tst_ImmaginiIncollate : public QObject
{
    Q_OBJECT
private slots:
    void init() { QGuiApplication::clipboard()->clear(); }
    void SiCopiaNellaCartella();
    void UnAltroModelloDellaStessaCartella_data();
    void UnAltroModelloDellaStessaCartella();
    void NelloStessoModelloRestaFuori();
    void IlFileUgualeSiUsa_data();
    void IlFileUgualeSiUsa();
    void IlFileUgualeGiaUsato();
    void UnAltroFileConIlNome_data();
    void UnAltroFileConIlNome();
    void ConUnAltroNome_data();
    void ConUnAltroNome();
    void LaCopiaDiPrimaBasta();
    void IlFileNonCePiu();
    void IlFileNonCePiuMaQuiSi();
    void IlModelloUsaUnFileCheManca();
    void NomiCheEsconoDallaCartella_data();
    void NomiCheEsconoDallaCartella();
    void NonEUnImmagine();
    void OrigineSconosciuta();
    void SenzaDirittiNonSiIncollaNiente();
    void ADiscoPienoNonRestaNiente();
    void QuelleTralasciateNonContano();
    void SenzaPostoNonSiChiedeNeSiCopia();
};

void tst_ImmaginiIncollate::SiCopiaNellaCartella()
{
    DueArchivi due({Logo, Altro});
    MetteFile(due.fonte, QStringLiteral("LOGO.BMP"), Rossa()); // found in any case
    MetteFile(due.fonte, Altro, Blu());
    due.Incolla();
    QCOMPARE(due.Immagini(), (QStringList{Logo, Altro}));
    QCOMPARE(Figure(due.qui), (QStringList{Altro, Logo}));
    QCOMPARE(ByteDi(Cartella(due.qui) + Logo), Rossa());
    QCOMPARE(ByteDi(Cartella(due.qui) + Altro), Blu());
    QCOMPARE(PostoDi(due.qui, {Genere::Immagine, 1}), QPointF(25, 35));
    QCOMPARE(due.qui.Archivio.Aperto().Immagini[1].Larghezza, 40.0);
    QVERIFY(due.qui.Foto().pixelColor(0, 0).isValid());
    Documento &documento = due.qui.Archivio.Stato().documento;
    QCOMPARE(documento.TestoAnnulla(), QStringLiteral("incolla 2 elementi"));
    documento.Annulla();
    QVERIFY(!documento.PuoAnnullare());
    QCOMPARE(ByteDi(Cartella(due.qui) + Logo), Rossa()); // files have no history
}

void tst_ImmaginiIncollate::UnAltroModelloDellaStessaCartella_data()
{
    QTest::addColumn<QString>("come");
    QTest::newRow("scritta uguale") << QString();
    QTest::newRow("scritta in altro modo") << QStringLiteral("../ini/./");
    QTest::newRow("per un collegamento") << QStringLiteral("../collegamento/");
}

void tst_ImmaginiIncollate::UnAltroModelloDellaStessaCartella()
{
    QFETCH(QString, come);
    DueArchivi due({Logo});
    MetteFile(due.fonte, Logo, Rossa());
    QVERIFY(QFile::link(QStringLiteral("ini"),
                        Cartella(due.fonte) + QStringLiteral("../collegamento")));
    if (come.contains(QLatin1String("collegamento")) &&
        !QFileInfo(Cartella(due.fonte) + QStringLiteral("../collegamento")).isSymbolicLink()) {
        QSKIP("here Qt makes shortcuts, through which no path leads");
    }
    due.qui.Archivio.Stato().CartellaModelli = Cartella(due.fonte) + come;
    due.qui.Archivio.Stato().NomeFile = QStringLiteral("Secondo.Mod");
    due.Incolla();
    QCOMPARE(due.Immagini(), QStringList{Logo});
    QCOMPARE(Figure(due.fonte), (QStringList{QStringLiteral("Secondo.Mod"), Logo}));
    QCOMPARE(Striscia(due.qui), QStringLiteral("Nel modello: logo.bmp"));
}

void tst_ImmaginiIncollate::NelloStessoModelloRestaFuori()
{
    StoriaDiProva storia;
    Sceglie(storia, {{Genere::Immagine, 1}, {Genere::Cornice, 1}});
    Tasti(storia, Qt::Key_C);
    Tasti(storia, Qt::Key_V);
    QCOMPARE(storia.Aperto().NumImmagini, qint16(1));
    QCOMPARE(storia.DaAnnullare(), QStringLiteral("incolla Riquadro_2"));
    QCOMPARE(Striscia(storia),
             QStringLiteral("Immagine logo.bmp tralasciata: il modello usa già questo file; nel "
                            "modello: Riquadro_2"));
    storia.AnnullaTutto();
    Sceglie(storia, {{Genere::Immagine, 1}});
    Tasti(storia, Qt::Key_C);
    Tasti(storia, Qt::Key_V);
    QCOMPARE(Striscia(storia),
             QStringLiteral("Immagine logo.bmp tralasciata: il modello usa già questo file"));
    QCOMPARE(storia.Aperto(), storia.Prima);
    QVERIFY(!storia.Aperta().PuoAnnullare());
    QCOMPARE(Scelti(storia), (QList<Chiave>{{Genere::Immagine, 1}}));
}

void tst_ImmaginiIncollate::IlFileUgualeSiUsa_data()
{
    QTest::addColumn<QString>("nome");
    QTest::newRow("scritto uguale") << Logo;
    QTest::newRow("in altre lettere") << QStringLiteral("Logo.BMP");
}

void tst_ImmaginiIncollate::IlFileUgualeSiUsa()
{
    QFETCH(QString, nome);
    DueArchivi due({Logo});
    MetteFile(due.fonte, Logo, Rossa());
    MetteFile(due.qui, nome, Rossa());
    Invecchia(Cartella(due.qui) + nome, 3600);
    const QDateTime prima = QFileInfo(Cartella(due.qui) + nome).lastModified();
    due.Incolla();
    QCOMPARE(due.Immagini(), QStringList{Logo});
    QCOMPARE(Figure(due.qui), QStringList{nome});
    QCOMPARE(QFileInfo(Cartella(due.qui) + nome).lastModified(), prima);
}

void tst_ImmaginiIncollate::IlFileUgualeGiaUsato()
{
    DueArchivi due({Logo});
    MetteFile(due.fonte, Logo, Rossa());
    MetteFile(due.qui, Logo, Rossa());
    due.qui.Archivio.AggiungeImmagine(QStringLiteral("LOGO.bmp"), 5, 5, 40, 25);
    due.Incolla();
    QCOMPARE(due.Immagini(), QStringList{QStringLiteral("LOGO.bmp")});
    QCOMPARE(Striscia(due.qui),
             QStringLiteral("Immagine logo.bmp tralasciata: il modello usa già questo file"));
}

void tst_ImmaginiIncollate::UnAltroFileConIlNome_data()
{
    QTest::addColumn<bool>("usato");
    QTest::newRow("che il modello non usa") << false;
    QTest::newRow("che il modello usa") << true;
}

void tst_ImmaginiIncollate::UnAltroFileConIlNome()
{
    QFETCH(bool, usato);
    DueArchivi due({Logo});
    MetteFile(due.fonte, Logo, Rossa());
    MetteFile(due.qui, Logo, Blu());
    if (usato) {
        due.qui.Archivio.AggiungeImmagine(Logo, 5, 5, 40, 25);
    }
    const QStringList prima = usato ? QStringList{Logo} : QStringList();
    Robot robot;
    robot.No().Si();
    due.Incolla();
    QCOMPARE(due.Immagini(), prima);
    QCOMPARE(Figure(due.qui), QStringList{Logo});
    QCOMPARE(Striscia(due.qui), QStringLiteral("Immagine logo.bmp tralasciata: nella cartella un "
                                               "altro file ha il suo nome"));
    Tasti(due.qui, Qt::Key_V);
    QCOMPARE(due.Immagini(), prima + QStringList{QStringLiteral("logo_2.bmp")});
    QCOMPARE(ByteDi(Cartella(due.qui) + QStringLiteral("logo_2.bmp")), Rossa());
    QCOMPARE(ByteDi(Cartella(due.qui) + Logo), Blu());
    // Nothing was pasted the first time, so this is the first.
    QCOMPARE(PostoDi(due.qui, Scelti(due.qui).constFirst()), QPointF(25, 35));
    const QString domanda = QStringLiteral("La cartella del modello ha già un altro file con il "
                                           "nome logo.bmp.\nCOPIO L'IMMAGINE COME logo_2.bmp ?");
    QCOMPARE(robot.Testi(), (QStringList{domanda, domanda}));
    QCOMPARE(robot.Predefiniti(), (QStringList{QStringLiteral("&No"), QStringLiteral("&No")}));
}

void tst_ImmaginiIncollate::ConUnAltroNome_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QStringList>("presi");
    QTest::addColumn<QString>("nuovo");
    QTest::newRow("anche il secondo")
        << Logo << QStringList{QStringLiteral("LOGO_2.bmp")} << "logo_3.bmp";
    QTest::newRow("più punti") << "a.b.jpg" << QStringList() << "a.b_2.jpg";
    QTest::newRow("senza punto") << "logojpg" << QStringList() << "logo_2jpg";
    QTest::newRow("senza nome") << ".bmp" << QStringList() << ".bmp_2";
}

void tst_ImmaginiIncollate::ConUnAltroNome()
{
    QFETCH(QString, nome);
    QFETCH(QStringList, presi);
    QFETCH(QString, nuovo);
    DueArchivi due({nome});
    MetteFile(due.fonte, nome, Rossa());
    MetteFile(due.qui, nome, Blu());
    for (const QString &preso : presi) {
        MetteFile(due.qui, preso, Blu());
    }
    Robot robot;
    robot.Si();
    due.Incolla();
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(due.Immagini(), QStringList{nuovo});
    QCOMPARE(ByteDi(Cartella(due.qui) + nuovo), Rossa());
}

void tst_ImmaginiIncollate::LaCopiaDiPrimaBasta()
{
    DueArchivi due({Logo});
    MetteFile(due.fonte, Logo, Rossa());
    MetteFile(due.qui, Logo, Blu());
    Robot robot;
    robot.Si().Si().Si();
    due.Incolla();
    due.qui.Archivio.Stato().documento.Annulla();
    Tasti(due.qui, Qt::Key_V);
    QCOMPARE(due.Immagini(), QStringList{QStringLiteral("logo_2.bmp")});
    QCOMPARE(Figure(due.qui), (QStringList{Logo, QStringLiteral("logo_2.bmp")}));
    Tasti(due.qui, Qt::Key_V); // now it is in use
    QCOMPARE(due.Immagini(),
             (QStringList{QStringLiteral("logo_2.bmp"), QStringLiteral("logo_3.bmp")}));
    QVERIFY(robot.Soddisfatto());
}

void tst_ImmaginiIncollate::IlFileNonCePiu()
{
    DueArchivi due({Logo});
    due.Incolla();
    QCOMPARE(due.Immagini(), QStringList());
    QCOMPARE(Striscia(due.qui),
             QStringLiteral("Immagine logo.bmp tralasciata: il file non si trova più"));
    QVERIFY(!due.qui.Editor->Variato());
}

void tst_ImmaginiIncollate::IlFileNonCePiuMaQuiSi()
{
    DueArchivi due({Logo});
    MetteFile(due.qui, QStringLiteral("Logo.bmp"), Blu());
    due.Incolla();
    QCOMPARE(due.Immagini(), QStringList{Logo});
    QCOMPARE(ByteDi(Cartella(due.qui) + QStringLiteral("Logo.bmp")), Blu());
}

void tst_ImmaginiIncollate::IlModelloUsaUnFileCheManca()
{
    DueArchivi due({Logo});
    MetteFile(due.fonte, Logo, Rossa());
    due.qui.Archivio.AggiungeImmagine(Logo, 5, 5, 40, 25);
    due.Incolla();
    QCOMPARE(due.Immagini(), QStringList{Logo});
    QCOMPARE(Figure(due.qui), QStringList());
}

void tst_ImmaginiIncollate::NomiCheEsconoDallaCartella_data()
{
    QTest::addColumn<QString>("nome");
    QTest::newRow("sopra") << "../segreto.bmp";
    QTest::newRow("sopra, con l'altra barra") << "..\\segreto.bmp";
    QTest::newRow("attraverso") << "x/../../segreto.bmp";
    QTest::newRow("la cartella") << ".";
    QTest::newRow("sotto") << "sotto/dentro.bmp";
}

void tst_ImmaginiIncollate::NomiCheEsconoDallaCartella()
{
    QFETCH(QString, nome);
    EditoreDiProva fonte;
    QDir(Cartella(fonte)).mkpath(QStringLiteral("sotto"));
    ScriveFile(Cartella(fonte) + QStringLiteral("../segreto.bmp"), Rossa());
    ScriveFile(Cartella(fonte) + QStringLiteral("sotto/dentro.bmp"), Rossa());
    EditoreDiProva qui;
    QVERIFY(qui.Apre());
    MetteImmagineNegliAppunti(nome, Cartella(fonte));
    Tasti(qui, Qt::Key_V);
    QCOMPARE(qui.Archivio.Aperto().NumImmagini, qint16(0));
    QCOMPARE(Figure(qui), QStringList());
    QCOMPARE(NomiIn(Cartella(qui) + QStringLiteral("..")), QStringList{QStringLiteral("ini")});
    QVERIFY2(Striscia(qui).contains(QStringLiteral("tralasciata")), qPrintable(Striscia(qui)));
}

void tst_ImmaginiIncollate::NonEUnImmagine()
{
    EditoreDiProva fonte;
    MetteFile(fonte, QStringLiteral("segreti.txt"), "la password");
    MetteFile(fonte, Logo, "BM, ma non di più");
    EditoreDiProva qui;
    QVERIFY(qui.Apre());
    for (const QString &nome : {QStringLiteral("segreti.txt"), Logo}) {
        MetteImmagineNegliAppunti(nome, Cartella(fonte));
        Tasti(qui, Qt::Key_V);
        QCOMPARE(Striscia(qui), QStringLiteral("Immagine %1 tralasciata: il file non è "
                                               "un'immagine che si possa copiare")
                                    .arg(nome));
    }
    QCOMPARE(qui.Archivio.Aperto().NumImmagini, qint16(0));
    QCOMPARE(Figure(qui), QStringList());
}

void tst_ImmaginiIncollate::OrigineSconosciuta()
{
    EditoreDiProva qui;
    MetteFile(qui, Altro, Blu());
    QVERIFY(qui.Apre());
    for (const QString &nome : {Logo, Altro}) {
        MetteImmagineNegliAppunti(nome, {});
        Tasti(qui, Qt::Key_V);
    }
    QCOMPARE(qui.Archivio.Aperto().NumImmagini, qint16(1)); // what the folder has
    QCOMPARE(qui.Archivio.Aperto().Immagini[1].Nome, Altro);
    qui.Archivio.Stato().documento.Salvato();
}

void tst_ImmaginiIncollate::SenzaDirittiNonSiIncollaNiente()
{
    if (!Permessi::DiOgnuno()) {
        QSKIP(Permessi::Assenti);
    }
    DueArchivi due({Logo});
    MetteFile(due.fonte, Logo, Rossa());
    QVERIFY(due.qui.Apre());
    due.Copia();
    for (const EditoreDiProva *prova : {&due.fonte, &due.qui}) {
        QVERIFY(
            QFile::setPermissions(Cartella(*prova) + QStringLiteral("/../.."), Permessi::PerTutti));
    }
    QVERIFY(QFile::setPermissions(Cartella(due.qui), Permessi::SolaLettura));
    Robot robot;
    robot.Ok();
    {
        const UtenteComune utente;
        Tasti(due.qui, Qt::Key_V);
    }
    QFile::setPermissions(Cartella(due.qui), Permessi::PerTutti);
    QCOMPARE(robot.Testi().size(), 1);
    const QString testo = robot.Testi().constFirst();
    QVERIFY2(testo.startsWith(QStringLiteral("errore 75 ")) && testo.endsWith(Logo),
             qPrintable(testo));
    QCOMPARE(due.Immagini(), QStringList());
    QCOMPARE(Figure(due.qui), QStringList());
    QVERIFY(!due.qui.Archivio.Stato().documento.PuoAnnullare());
}

void tst_ImmaginiIncollate::ADiscoPienoNonRestaNiente()
{
    DueArchivi due({Logo, QStringLiteral("grande.bmp")});
    MetteFile(due.fonte, Logo, Rossa());
    MetteFile(due.fonte, QStringLiteral("grande.bmp"),
              ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({400, 400}, qRgb(1, 2, 3)), "bmp"));
    QVERIFY(due.qui.Apre());
    Robot robot;
    robot.Ok();
    {
        const LimiteFile limite(65536);
        due.Incolla();
    }
    QCOMPARE(robot.Testi().size(), 1);
    QVERIFY2(robot.Testi().constFirst().startsWith(QStringLiteral("errore 61 ")),
             qPrintable(robot.Testi().constFirst()));
    QCOMPARE(due.Immagini(), QStringList());
    QCOMPARE(Figure(due.qui), QStringList()); // not even the one that had been copied
    Tasti(due.qui, Qt::Key_V);
    QCOMPARE(due.Immagini().size(), 2);
}

void tst_ImmaginiIncollate::QuelleTralasciateNonContano()
{
    EditoreDiProva prova;
    prova.Archivio.Riempie(100);
    QVERIFY(prova.Apre());
    Sceglie(prova, {{Genere::Immagine, 1}});
    Tasti(prova, Qt::Key_C);
    Tasti(prova, Qt::Key_V);
    QVERIFY2(Striscia(prova).contains(QStringLiteral("usa già")), qPrintable(Striscia(prova)));
}

void tst_ImmaginiIncollate::SenzaPostoNonSiChiedeNeSiCopia()
{
    DueArchivi due({Logo, Altro});
    MetteFile(due.fonte, Logo, Rossa());
    MetteFile(due.fonte, Altro, Rossa());
    MetteFile(due.qui, Logo, Blu());
    due.qui.Archivio.Riempie(99);
    Robot robot;
    robot.Ok();
    due.Incolla();
    QCOMPARE(robot.Testi(), QStringList{QStringLiteral(
                                "non c'è posto per incollare: il modello ha 99 immagini su 100 e "
                                "gli appunti ne hanno 2")});
    QCOMPARE(Figure(due.qui), QStringList{Logo});
}

QTEST_MAIN(tst_ImmaginiIncollate)
#include "tst_ImmaginiIncollate.moc"

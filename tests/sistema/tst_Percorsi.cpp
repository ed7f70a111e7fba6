#include "sistema/Percorsi.h"

#include "support/Errori.h"
#include "support/FileDiProva.h"
#include "support/Permessi.h"
#include "support/Tempi.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class tst_Percorsi : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void TagliaBarre_data();
    void TagliaBarre();
    void NomeFileValido_data();
    void NomeFileValido();
    void Risolve_data();
    void Risolve();
    void Risolve_duplicatiPerMaiuscole();
    void Risolve_rispettaIlCollegamentoRotto();
    void Risolve_migliaiaDiCartelle_data();
    void Risolve_migliaiaDiCartelle();
    void CartellaEsistente();
    void SottoCartelle();
    void SottoCartelle_nessuna();
    void SottoCartelle_mancante_data();
    void SottoCartelle_mancante();
    void SottoCartelle_illeggibile();
    void FileConModello();
    void FileConModello_nomiConPunto();
    void FileConModello_piuModelli();
    void FileConModello_cartellaMancante();
    void FileConModello_unFile();
    void FileConModello_illeggibile();
    void NomiConBarraDiWindowsNonEsistono();
    void Copia();
    void Copia_senzaBadareAlleMaiuscole();
    void Copia_suSeStesso();
    void Copia_origineMancante();
    void Copia_origineCartella();
    void Copia_destinazioneCartella();
    void Copia_cartellaDiDestinazioneMancante();
    void Copia_discoPieno();
    void Elimina();
    void Elimina_mancante();
    void Elimina_cartella();
    void Elimina_cartellaSenzaDiritti();

private:
    QString In(const QString &nome) const
    {
        return QDir::toNativeSeparators(cartella_->filePath(nome));
    }
    void Scrive(const QString &nome, const QByteArray &byte = "x") const
    {
        ScriveFile(In(nome), byte);
    }
    QByteArray Legge(const QString &nome) const { return ByteDi(In(nome)); }

    std::unique_ptr<QTemporaryDir> cartella_;
};

void tst_Percorsi::init()
{
    cartella_ = std::make_unique<QTemporaryDir>();
    QVERIFY(cartella_->isValid());
}

void tst_Percorsi::TagliaBarre_data()
{
    QTest::addColumn<QString>("percorso");
    QTest::addColumn<QString>("ultimaBarra");
    QTest::addColumn<QString>("fino");
    QTest::addColumn<QString>("nome");
    const auto riga = [](const char *titolo, const char *percorso, const char *ultima,
                         const char *fino, const char *nome) {
        QTest::newRow(titolo) << QString::fromLatin1(percorso) << QString::fromLatin1(ultima)
                              << QString::fromLatin1(fino) << QString::fromLatin1(nome);
    };
    riga("barre di Windows", "C:\\dati\\Contabilita", "Contabilita", "C:\\dati\\", "Contabilita");
    riga("senza barra", "Contabilita", "", "Contabilita", "Contabilita");
    riga("barra finale", "C:\\dati\\", "", "C:\\dati\\", "");
    riga("vuoto", "", "", "", "");
    riga("sola barra", "\\", "", "\\", "");
    riga("radice e file", "C:\\scan.jpg", "scan.jpg", "C:\\", "scan.jpg");
#ifndef Q_OS_WIN
    riga("separatore nativo", "/dati/Contabilita", "Contabilita", "/dati/", "Contabilita");
    riga("misto", "/dati/Contabilita\\ini", "ini", "/dati/Contabilita\\", "ini");
    riga("misto al contrario", "C:\\dati/ini", "ini", "C:\\dati/", "ini");
#endif
}

void tst_Percorsi::TagliaBarre()
{
    QFETCH(QString, percorso);
    QTEST(Percorsi::ToglieUltimaBarra(percorso), "ultimaBarra");
    QTEST(Percorsi::EstraeUltimaBarra(percorso), "fino");
    QTEST(Percorsi::EstraeNomeFile(percorso), "nome");
}

void tst_Percorsi::NomeFileValido_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<bool>("valido");
    const auto riga = [](const char *nome, bool valido) {
        QTest::addRow("%s", QByteArray(nome).toPercentEncoding(" \\/:*?\"<>|").constData())
            << QString::fromUtf8(nome) << valido;
    };
    for (const char *nome : {"DDT", "Fattura_pers", "Fattura_pers.Mod_nuovo", "Fattura è",
                             " Fattura", "OrdineCliente-Offerta_Pers", "Console", "COM", "COM10",
                             "COM0", "COM½", "CONIN", "CONOUT", "COM1¹", "a'b (2)"}) {
        riga(nome, true);
    }
    for (const char *nome :
         {"",        ".",    "..",   "a/b",    "a\\b", "a:b",    "a*b",
          "a?b",     "a\"b", "a<b",  "a>b",    "a|b",  "a.",     "a ",
          "..\\a",   "a\tb", "a\nb", "a\x7f",  "CON",  "con",    "lpt1.x",
          "NUL.Mod", "Com9", "COM¹", "com².x", "Lpt³", "CONIN$", "conout$.Mod"}) {
        riga(nome, false);
    }
    // What is wrong at the end of a name, or looks wrong at its start, is right before an
    // extension.
    for (const char *nome : {".nascosto", ".x.Mod", "nome..Mod", "nome .Mod", "..Mod"}) {
        riga(nome, true);
    }
}

void tst_Percorsi::NomeFileValido()
{
    QFETCH(QString, nome);
    QTEST(Percorsi::NomeFileValido(nome), "valido");
}

void tst_Percorsi::Risolve_data()
{
    QTest::addColumn<QString>("dato");
    QTest::addColumn<QString>("atteso");
    const auto riga = [](const char *titolo, const char *dato, const char *atteso) {
        QTest::newRow(titolo) << QString::fromLatin1(dato) << QString::fromLatin1(atteso);
    };
    riga("esatto", "Contabilita/INI/Fattura.mod", "Contabilita/INI/Fattura.mod");
    riga("altre maiuscole", "CONTABILITA/ini/FATTURA.MOD", "Contabilita/INI/Fattura.mod");
    riga("barre di Windows", "contabilita\\ini\\fattura.Mod", "Contabilita/INI/Fattura.mod");
    riga("barra finale", "contabilita\\ini\\", "Contabilita/INI/");
    riga("file da creare", "contabilita\\ini\\Nuovo.Mod", "Contabilita/INI/Nuovo.Mod");
    riga("cartella da creare", "contabilita\\Altra\\Nuovo.Mod", "Contabilita/Altra/Nuovo.Mod");
}

void tst_Percorsi::Risolve()
{
    QFETCH(QString, dato);
    QFETCH(QString, atteso);
    QVERIFY(QDir(cartella_->path()).mkpath(QStringLiteral("Contabilita/INI")));
    Scrive(QStringLiteral("Contabilita/INI/Fattura.mod"));
    QCOMPARE(Percorsi::Risolve(In(QString()) + u'/' + dato),
             QDir::toNativeSeparators(In(QString()) + u'/' + atteso));
}

void tst_Percorsi::Risolve_duplicatiPerMaiuscole()
{
    Scrive(QStringLiteral("b.MOD"));
    Scrive(QStringLiteral("B.mod"));
    if (QDir(cartella_->path()).entryList(QDir::Files).size() != 2) {
        QSKIP("this file system does not mind the case");
    }
    QCOMPARE(Percorsi::Risolve(In(QStringLiteral("b.MOD"))), In(QStringLiteral("b.MOD")));
    QCOMPARE(Percorsi::Risolve(In(QStringLiteral("B.mod"))), In(QStringLiteral("B.mod")));
    QCOMPARE(Percorsi::Risolve(In(QStringLiteral("b.Mod"))), In(QStringLiteral("B.mod")));
}

void tst_Percorsi::Risolve_rispettaIlCollegamentoRotto()
{
    QVERIFY(QFile::link(In(QStringLiteral("manca")), In(QStringLiteral("a.mod"))));
    QCOMPARE(Percorsi::Risolve(In(QStringLiteral("a.mod"))), In(QStringLiteral("a.mod")));
}

void tst_Percorsi::Risolve_migliaiaDiCartelle_data()
{
    QTest::addColumn<QString>("pezzo");
    QTest::newRow("cartelle che mancano") << QStringLiteral("\\a");
    QTest::newRow("barre") << QStringLiteral("\\\\");
    QTest::newRow("cartella corrente") << QStringLiteral("\\.");
    QTest::newRow("cartella sopra") << QStringLiteral("\\a\\..");
}

void tst_Percorsi::Risolve_migliaiaDiCartelle()
{
    QFETCH(QString, pezzo);
    // As long as a text box lets a path become.
    const QString lungo = In(QString()) + pezzo.repeated(32000 / pezzo.size()) + u'x';
    const TempoDiLavoro tempo;
    QCOMPARE(Percorsi::Risolve(lungo), QString(lungo).replace(u'\\', QDir::separator()));
    QVERIFY(tempo.Entro(1000));
}

void tst_Percorsi::CartellaEsistente()
{
    QVERIFY(QDir(cartella_->path()).mkpath(QStringLiteral("a/b")));
    Scrive(QStringLiteral("a/file"));
    QCOMPARE(Percorsi::CartellaEsistente(In(QStringLiteral("a/b"))), In(QStringLiteral("a/b")));
    QCOMPARE(Percorsi::CartellaEsistente(In(QStringLiteral("A/B"))), In(QStringLiteral("a/b")));
    for (const char *sotto : {"a/c", "a/c/d/e", "a/file", "a/file/d"}) {
        const QString trovata = Percorsi::CartellaEsistente(In(QString::fromLatin1(sotto)));
        QCOMPARE(QDir::toNativeSeparators(QDir::cleanPath(trovata)), In(QStringLiteral("a")));
    }
    QCOMPARE(Percorsi::CartellaEsistente(QString()), QString());
    QCOMPARE(Percorsi::CartellaEsistente(QStringLiteral("nessuna")), QString());
}

void tst_Percorsi::SottoCartelle()
{
    for (const char *nome : {"zeta", "Alfa", "beta", ".nascosta"}) {
        QVERIFY(QDir(cartella_->path()).mkdir(QString::fromLatin1(nome)));
    }
    Scrive(QStringLiteral("file.txt"));
    const QStringList attese = {QDir::toNativeSeparators(In(QStringLiteral("Alfa"))),
                                QDir::toNativeSeparators(In(QStringLiteral("beta"))),
                                QDir::toNativeSeparators(In(QStringLiteral("zeta")))};
    QCOMPARE(Percorsi::SottoCartelle(cartella_->path()), attese);
    QCOMPARE(Percorsi::SottoCartelle(cartella_->path() + u'/'), attese);
    QCOMPARE(Percorsi::SottoCartelle(cartella_->path() + u'\\'), attese);
}

void tst_Percorsi::SottoCartelle_nessuna()
{
    QVERIFY(Percorsi::SottoCartelle(cartella_->path()).isEmpty());
}

void tst_Percorsi::SottoCartelle_mancante_data()
{
    QTest::addColumn<QString>("cartella");

    QTest::newRow("cartella che non c'e'") << QStringLiteral("manca");
    QTest::newRow("file al posto della cartella") << QStringLiteral("file");
}

void tst_Percorsi::SottoCartelle_mancante()
{
    QFETCH(QString, cartella);
    Scrive(QStringLiteral("file"));
    QCOMPARE(ErroreDi([&] { Percorsi::SottoCartelle(In(cartella)); }),
             ErroreSistema::PercorsoNonTrovato);
    QCOMPARE(ErroreDi([] { Percorsi::SottoCartelle(QString()); }),
             ErroreSistema::PercorsoNonTrovato);
}

void tst_Percorsi::SottoCartelle_illeggibile()
{
    if (!Permessi::DiOgnuno()) {
        QSKIP(Permessi::Assenti);
    }
    QVERIFY(QDir(cartella_->path()).mkpath(QStringLiteral("chiusa/dentro")));
    QVERIFY(QFile::setPermissions(cartella_->path(), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(In(QStringLiteral("chiusa")), Permessi::Nessuno));
    int trovato = -1;
    {
        const UtenteComune utente;
        trovato = ErroreDi([this] { Percorsi::SottoCartelle(In(QStringLiteral("chiusa"))); });
    }
    QVERIFY(QFile::setPermissions(In(QStringLiteral("chiusa")), Permessi::PerTutti));
    QCOMPARE(trovato, ErroreSistema::AccessoFile);
}

void tst_Percorsi::FileConModello()
{
    for (const char *nome :
         {"zeta.mod", "Alfa.MOD", "beta.Mod", "gamma.txt", "mod", "delta.mod~"}) {
        Scrive(QString::fromLatin1(nome));
    }
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("cartella.mod")));
    const QStringList attesi = {QStringLiteral("Alfa.MOD"), QStringLiteral("beta.Mod"),
                                QStringLiteral("zeta.mod")};
    QCOMPARE(Percorsi::FileConModello(cartella_->path(), QStringLiteral("*.mod")), attesi);
    QCOMPARE(Percorsi::FileConModello(cartella_->path() + u'\\', QStringLiteral("*.mod")), attesi);
}

void tst_Percorsi::FileConModello_nomiConPunto()
{
    for (const char *nome : {".x.Mod", "Alfa.Mod", ".mod", ".altro.txt"}) {
        Scrive(QString::fromLatin1(nome));
    }
    QCOMPARE(Percorsi::FileConModello(cartella_->path(), QStringLiteral("*.mod"),
                                      Percorsi::NomiConPunto::Sempre),
             (QStringList{QStringLiteral(".mod"), QStringLiteral(".x.Mod"),
                          QStringLiteral("Alfa.Mod")}));
#ifndef Q_OS_WIN
    QCOMPARE(Percorsi::FileConModello(cartella_->path(), QStringLiteral("*.mod")),
             QStringList{QStringLiteral("Alfa.Mod")});
#endif
}

void tst_Percorsi::FileConModello_piuModelli()
{
    for (const char *nome : {"logo.JPG", "timbro.bmp", "senzapuntojpg", "nota.txt"}) {
        Scrive(QString::fromLatin1(nome));
    }
    const QStringList attesi = {QStringLiteral("logo.JPG"), QStringLiteral("senzapuntojpg"),
                                QStringLiteral("timbro.bmp")};
    QCOMPARE(Percorsi::FileConModello(cartella_->path(), QStringLiteral("*jpg;*.bmp")), attesi);
}

void tst_Percorsi::FileConModello_cartellaMancante()
{
    QCOMPARE(ErroreDi([this] {
                 Percorsi::FileConModello(In(QStringLiteral("manca")), QStringLiteral("*.mod"));
             }),
             ErroreSistema::PercorsoNonTrovato);
}

void tst_Percorsi::FileConModello_unFile()
{
    Scrive(QStringLiteral("ini"));
    QCOMPARE(ErroreDi([this] {
                 Percorsi::FileConModello(In(QStringLiteral("ini")), QStringLiteral("*.mod"));
             }),
             ErroreSistema::PercorsoNonTrovato);
}

void tst_Percorsi::FileConModello_illeggibile()
{
    if (!Permessi::DiOgnuno()) {
        QSKIP(Permessi::Assenti);
    }
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("chiusa")));
    QVERIFY(QFile::setPermissions(cartella_->path(), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(In(QStringLiteral("chiusa")), Permessi::Nessuno));
    const UtenteComune utente;
    QCOMPARE(ErroreDi([this] {
                 Percorsi::FileConModello(In(QStringLiteral("chiusa")), QStringLiteral("*.mod"));
             }),
             ErroreSistema::AccessoFile);
}

void tst_Percorsi::NomiConBarraDiWindowsNonEsistono()
{
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("ini")));
    if (!QDir(cartella_->path()).mkdir(QStringLiteral("ini\\x"))) {
        QSKIP("here a folder cannot have such a name");
    }
    // Put after a folder it would be read as a way out of it.
    Scrive(QStringLiteral("ini/..\\fuori.mod"));
    Scrive(QStringLiteral("ini/dentro.mod"));
    QCOMPARE(Percorsi::FileConModello(In(QStringLiteral("ini")), QStringLiteral("*.mod")),
             QStringList{QStringLiteral("dentro.mod")});
    QCOMPARE(Percorsi::SottoCartelle(cartella_->path()), QStringList{In(QStringLiteral("ini"))});
}

void tst_Percorsi::Copia()
{
    QByteArray byte;
    for (int i = 0; i < 100000; ++i) {
        byte.append(static_cast<char>(i));
    }
    Scrive(QStringLiteral("da"), byte);
    Scrive(QStringLiteral("a"), "vecchio");
    Percorsi::Copia(In(QStringLiteral("da")), In(QStringLiteral("a")));
    QCOMPARE(Legge(QStringLiteral("a")), byte);
    QCOMPARE(Legge(QStringLiteral("da")), byte);
    QCOMPARE(QDir(cartella_->path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void tst_Percorsi::Copia_senzaBadareAlleMaiuscole()
{
    Scrive(QStringLiteral("TIBOLLA.MOD"), "bolla");
    Scrive(QStringLiteral("ddt.mod"), "vecchio");
    Percorsi::Copia(In(QStringLiteral("tibolla.mod")), In(QStringLiteral("DDT.Mod")));
    QCOMPARE(Legge(QStringLiteral("ddt.mod")), QByteArray("bolla"));
    QCOMPARE(QDir(cartella_->path()).entryList(QDir::Files).size(), 2);
}

void tst_Percorsi::Copia_suSeStesso()
{
    Scrive(QStringLiteral("a.mod"), "contenuto");
    Percorsi::Copia(In(QStringLiteral("a.mod")), In(QStringLiteral("A.MOD")));
    QCOMPARE(Legge(QStringLiteral("a.mod")), QByteArray("contenuto"));
}

void tst_Percorsi::Copia_origineMancante()
{
    Scrive(QStringLiteral("a"), "vecchio");
    try {
        Percorsi::Copia(In(QStringLiteral("manca.mod")), In(QStringLiteral("a")));
        QFAIL("a missing source must fail");
    } catch (const ErroreSistema &errore) {
        QCOMPARE(errore.numero, ErroreSistema::FileNonTrovato);
        QVERIFY2(errore.descrizione.contains(QStringLiteral("manca.mod")),
                 qUtf8Printable(errore.descrizione));
    }
    QCOMPARE(Legge(QStringLiteral("a")), QByteArray("vecchio"));
}

void tst_Percorsi::Copia_origineCartella()
{
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("c.mod")));
    QCOMPARE(
        ErroreDi([this] { Percorsi::Copia(In(QStringLiteral("c.mod")), In(QStringLiteral("a"))); }),
        ErroreSistema::AccessoFile);
    QVERIFY(!QFile::exists(In(QStringLiteral("a"))));
}

void tst_Percorsi::Copia_destinazioneCartella()
{
    Scrive(QStringLiteral("da"));
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("c.mod")));
    QCOMPARE(ErroreDi([this] {
                 Percorsi::Copia(In(QStringLiteral("da")), In(QStringLiteral("c.mod")));
             }),
             ErroreSistema::AccessoFile);
    QCOMPARE(QDir(cartella_->path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void tst_Percorsi::Copia_cartellaDiDestinazioneMancante()
{
    Scrive(QStringLiteral("da"));
    QCOMPARE(ErroreDi([this] {
                 Percorsi::Copia(In(QStringLiteral("da")), In(QStringLiteral("manca/a")));
             }),
             ErroreSistema::PercorsoNonTrovato);
}

void tst_Percorsi::Copia_discoPieno()
{
    Scrive(QStringLiteral("da"), QByteArray(10000, 'x'));
    Scrive(QStringLiteral("a"), "vecchio");
    {
        const LimiteFile poco(4096);
        QCOMPARE(ErroreDi([this] {
                     Percorsi::Copia(In(QStringLiteral("da")), In(QStringLiteral("a")));
                 }),
                 ErroreSistema::DiscoPieno);
    }
    QCOMPARE(Legge(QStringLiteral("a")), QByteArray("vecchio"));
    QCOMPARE(NomiIn(cartella_->path()).size(), 2);
}

void tst_Percorsi::Elimina()
{
    Scrive(QStringLiteral("a.MOD"));
    Percorsi::Elimina(In(QStringLiteral("A.Mod")));
    QVERIFY(!QFile::exists(In(QStringLiteral("a.MOD"))));
}

void tst_Percorsi::Elimina_mancante()
{
    QCOMPARE(ErroreDi([this] { Percorsi::Elimina(In(QStringLiteral("a.Mod"))); }),
             ErroreSistema::FileNonTrovato);
}

void tst_Percorsi::Elimina_cartella()
{
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("a.Mod")));
    QCOMPARE(ErroreDi([this] { Percorsi::Elimina(In(QStringLiteral("a.Mod"))); }),
             ErroreSistema::AccessoFile);
    QVERIFY(QFile::exists(In(QStringLiteral("a.Mod"))));
}

void tst_Percorsi::Elimina_cartellaSenzaDiritti()
{
    if (!Permessi::DiOgnuno()) {
        QSKIP(Permessi::Assenti);
    }
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("c")));
    Scrive(QStringLiteral("c/a.Mod"));
    QVERIFY(QFile::setPermissions(cartella_->path(), Permessi::PerTutti));
    QVERIFY(QFile::setPermissions(In(QStringLiteral("c")), Permessi::SolaLettura));
    int numero = 0;
    {
        const UtenteComune utente;
        numero = ErroreDi([this] { Percorsi::Elimina(In(QStringLiteral("c/a.Mod"))); });
    }
    QVERIFY(QFile::setPermissions(In(QStringLiteral("c")), Permessi::PerTutti));
    QCOMPARE(numero, ErroreSistema::AutorizzazioneNegata);
    QVERIFY(QFile::exists(In(QStringLiteral("c/a.Mod"))));
}

QTEST_GUILESS_MAIN(tst_Percorsi)
#include "tst_Percorsi.moc"

#include "sistema/Disco.h"
#include "sistema/Impostazioni.h"
#include "sistema/Percorsi.h"
#include "support/Errori.h"
#include "support/FileDiProva.h"
#include "support/RestiDiWine_Windows.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <windows.h>

namespace {

const QByteArray Vecchi("i vecchi byte");
const QByteArray Nuovi("i nuovi byte, che sono di piu'");

std::wstring Nome(const QString &percorso)
{
    return QDir::toNativeSeparators(percorso).toStdWString();
}

/// Another program that has the file open, and lets the others do what it is told to allow.
class AltroProgramma
{
public:
    AltroProgramma(const QString &percorso, DWORD agliAltri)
        : aperto_(CreateFileW(Nome(percorso).c_str(), GENERIC_READ, agliAltri, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
        if (aperto_ == INVALID_HANDLE_VALUE) {
            QTest::qFail("the other program cannot open the file", __FILE__, __LINE__);
        }
    }
    ~AltroProgramma() { CloseHandle(aperto_); }
    Q_DISABLE_COPY_MOVE(AltroProgramma)

private:
    HANDLE aperto_;
};

int riscritture = 0;

void ContaRiscrittura()
{
    ++riscritture;
}

} // namespace

/// Saving over files of Windows: held open by others, read-only, at the end of long paths; and what
/// Vastrel leaves in the registry.
class tst_Sostituisce_Windows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { cartella_.reset(); }

    void ApertoDaAltri_data();
    void ApertoDaAltri();
    void SolaLettura();
    void TieneGliAttributi();
    void FileNuovo();
    void DueNomi();
    void PercorsoLungo();
    void PercorsoEstesoEDiRete_data();
    void PercorsoEstesoEDiRete();
    void CartellaCheManca();
    void NomiDiDispositivo_data();
    void NomiDiDispositivo();
    void SenzaBadareAlleMaiuscole();
    void DirtxtDelRegistro_data();
    void DirtxtDelRegistro();

private:
    QString File() const { return cartella_->filePath(QStringLiteral("Fattura più.Mod")); }

    std::unique_ptr<QTemporaryDir> cartella_;
};

void tst_Sostituisce_Windows::init()
{
    cartella_ = std::make_unique<QTemporaryDir>();
    QVERIFY(cartella_->isValid());
    ScriveFile(File(), Vecchi);
    riscritture = 0;
}

void tst_Sostituisce_Windows::ApertoDaAltri_data()
{
    QTest::addColumn<int>("agliAltri");
    QTest::addColumn<int>("errore");
    QTest::addColumn<int>("riscritti");

    QTest::newRow("permette tutto")
        << int(FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE) << 0 << 0;
    QTest::newRow("non si puo' togliere") << int(FILE_SHARE_READ | FILE_SHARE_WRITE) << 0 << 1;
    QTest::newRow("si puo' solo leggere") << int(FILE_SHARE_READ) << 70 << 1;
    QTest::newRow("chiuso a tutti") << 0 << 70 << 1;
}

void tst_Sostituisce_Windows::ApertoDaAltri()
{
    QFETCH(int, agliAltri);
    QFETCH(int, errore);
    QFETCH(int, riscritti);
    int trovato = -1;
    {
        const AltroProgramma altro(File(), static_cast<DWORD>(agliAltri));
        trovato = ErroreDi([&] { Disco::Sostituisce(File(), Nuovi, &ContaRiscrittura); });
    }
    QCOMPARE(trovato, errore);
    QCOMPARE(riscritture, riscritti);
    QCOMPARE(ByteDi(File()), errore == 0 ? Nuovi : Vecchi);
    QCOMPARE(NomiSenzaWine(cartella_->path()).size(), 1);
}

void tst_Sostituisce_Windows::SolaLettura()
{
    QVERIFY(SetFileAttributesW(Nome(File()).c_str(), FILE_ATTRIBUTE_READONLY) != 0);
    QCOMPARE(ErroreDi([&] { Disco::Sostituisce(File(), Nuovi, &ContaRiscrittura); }), 75);
    QCOMPARE(ByteDi(File()), Vecchi);
    QCOMPARE(riscritture, 0);
    QCOMPARE(NomiIn(cartella_->path()).size(), 1);
    QVERIFY(SetFileAttributesW(Nome(File()).c_str(), FILE_ATTRIBUTE_NORMAL) != 0);
    QCOMPARE(ErroreDi([&] { Disco::Sostituisce(File(), Nuovi); }), 0);
    QCOMPARE(ByteDi(File()), Nuovi);
}

void tst_Sostituisce_Windows::TieneGliAttributi()
{
    QVERIFY(SetFileAttributesW(Nome(File()).c_str(), FILE_ATTRIBUTE_HIDDEN) != 0);
    Disco::Sostituisce(File(), Nuovi);
    QCOMPARE(ByteDi(File()), Nuovi);
    QVERIFY((GetFileAttributesW(Nome(File()).c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0);
}

void tst_Sostituisce_Windows::FileNuovo()
{
    const QString nuovo = cartella_->filePath(QStringLiteral("Nuova.Mod"));
    Disco::Sostituisce(nuovo, Nuovi);
    Disco::SostituisceInPrivato(nuovo, Vecchi);
    QCOMPARE(ByteDi(nuovo), Vecchi);
    QCOMPARE(NomiIn(cartella_->path()).size(), 2);
}

void tst_Sostituisce_Windows::DueNomi()
{
    const QString altro = cartella_->filePath(QStringLiteral("Altra.Mod"));
    if (CreateHardLinkW(Nome(altro).c_str(), Nome(File()).c_str(), nullptr) == 0) {
        QSKIP("the file system has no further names");
    }
    Disco::Sostituisce(File(), Nuovi, &ContaRiscrittura);
    QCOMPARE(ByteDi(File()), Nuovi);
    QCOMPARE(ByteDi(altro), Nuovi);
    QCOMPARE(riscritture, 1);
}

void tst_Sostituisce_Windows::PercorsoLungo()
{
    constexpr int Limite = 260;
    QString dove = cartella_->path();
    while (dove.size() < Limite) {
        dove += u'/' + QString(50, u'c');
    }
    QVERIFY(QDir().mkpath(dove));
    const QString file = QDir::toNativeSeparators(dove + QStringLiteral("/Fattura.Mod"));
    Disco::Sostituisce(file, Vecchi);
    Disco::Sostituisce(file, Nuovi, &ContaRiscrittura);
    QCOMPARE(Disco::Legge(file, 1000), Nuovi);
    QCOMPARE(riscritture, 0);
    QCOMPARE(Percorsi::FileConModello(dove, QStringLiteral("*.Mod")),
             QStringList{QStringLiteral("Fattura.Mod")});
    QCOMPARE(Percorsi::Risolve(dove + QStringLiteral("/FATTURA.MOD")).size(), file.size());
}

void tst_Sostituisce_Windows::PercorsoEstesoEDiRete_data()
{
    QTest::addColumn<QString>("prefisso");
    QTest::newRow("esteso") << QStringLiteral("\\\\?\\");
    QTest::newRow("di rete") << QStringLiteral("\\\\localhost\\");
}

void tst_Sostituisce_Windows::PercorsoEstesoEDiRete()
{
    QFETCH(QString, prefisso);
    QString file = QDir::toNativeSeparators(File());
    if (prefisso.endsWith(QLatin1String("localhost\\"))) {
        file[1] = u'$'; // the share that each disk has for the administrator
    }
    file.prepend(prefisso);
    if (!QFileInfo::exists(file)) {
        QSKIP("no such path on this computer");
    }
    Disco::Sostituisce(file, Nuovi);
    QCOMPARE(ByteDi(File()), Nuovi);
}

void tst_Sostituisce_Windows::CartellaCheManca()
{
    const QString file = cartella_->filePath(QStringLiteral("manca/Fattura.Mod"));
    QCOMPARE(ErroreDi([&] { Disco::Sostituisce(file, Nuovi); }), 76);
    QCOMPARE(ErroreDi([&] { Disco::Legge(file, 1000); }), 76);
    QCOMPARE(ErroreDi([&] { Percorsi::SottoCartelle(file); }), 76);
}

void tst_Sostituisce_Windows::NomiDiDispositivo_data()
{
    QTest::addColumn<QString>("nome");
    for (const char *nome : {"CON", "nul.Mod", "Com1.Mod", "LPT9", "aux .Mod"}) {
        QTest::newRow(nome) << QString::fromLatin1(nome);
    }
}

void tst_Sostituisce_Windows::NomiDiDispositivo()
{
    QFETCH(QString, nome);
    QVERIFY(!Percorsi::NomeFileValido(nome));
}

void tst_Sostituisce_Windows::SenzaBadareAlleMaiuscole()
{
    Disco::Sostituisce(cartella_->filePath(QStringLiteral("FATTURA PIÙ.MOD")), Nuovi);
    QCOMPARE(NomiIn(cartella_->path()), QStringList{QStringLiteral("Fattura più.Mod")});
    QCOMPARE(ByteDi(File()), Nuovi);
}

void tst_Sostituisce_Windows::DirtxtDelRegistro_data()
{
    QTest::addColumn<QString>("cartella");
    QTest::newRow("unita'") << QStringLiteral("D:\\K19\\dati");
    QTest::newRow("accenti e spazi") << QStringLiteral("C:\\Società & figli\\dati, di prova");
    QTest::newRow("rete") << QStringLiteral("\\\\server\\dati");
}

void tst_Sostituisce_Windows::DirtxtDelRegistro()
{
    QFETCH(QString, cartella);
    if (!Impostazioni::Dirtxt().isEmpty()) {
        QSKIP("here the host application has settings of its own");
    }
    // As the host application's own language writes settings.
    const auto chiave = L"Software\\VB and VBA Program Settings\\vastrel\\INI";
    const std::wstring testo = cartella.toStdWString();
    QCOMPARE(RegSetKeyValueW(HKEY_CURRENT_USER, chiave, L"dirtxt", REG_SZ, testo.c_str(),
                             DWORD((testo.size() + 1) * sizeof(wchar_t))),
             ERROR_SUCCESS);
    QCOMPARE(Impostazioni::Dirtxt(), cartella);
    QCOMPARE(RegDeleteKeyValueW(HKEY_CURRENT_USER, chiave, L"dirtxt"), ERROR_SUCCESS);
    QCOMPARE(Impostazioni::Dirtxt(), QString());
}

QTEST_GUILESS_MAIN(tst_Sostituisce_Windows)
#include "tst_Sostituisce_Windows.moc"

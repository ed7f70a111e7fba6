// Takes the manual's pictures: opens a copy of the sample data in the program's own windows, works
// them as a user would, and grabs what they show. Needs no screen, no printer and no network.
//
// fotografa_finestre CARTELLA_ESEMPIO CARTELLA_LAVORO CARTELLA_FIGURE INVENTARIO
//
// CARTELLA_LAVORO is emptied first; the program's own settings and state go there. INVENTARIO is
// the file that tells the names and keys of all windows.

#include "Fotografia.h"
#include "Giro.h"
#include "Inventario.h"

#include "finestre/ComboAccessibile.h"
#include "finestre/Finestre.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

constexpr int Larghezza = 1152; // device-independent pixels of the screen
constexpr int Altezza = 768;
constexpr int SecondiMassimi = 300; // on a computer that is busy otherwise

/// The files that match one of the patterns: with their folders, or (sciolti) without.
void CopiaFile(const QString &origine, const QStringList &modelli, const QString &destinazione,
               bool sciolti)
{
    QDirIterator file(origine, modelli, QDir::Files, QDirIterator::Subdirectories);
    while (file.hasNext()) {
        const QString da = file.next();
        const QString a = destinazione + u'/' +
                          (sciolti ? QFileInfo(da).fileName() : QDir(origine).relativeFilePath(da));
        if (!QDir().mkpath(QFileInfo(a).path()) || !QFile::copy(da, a)) {
            Fallisce(QStringLiteral("cannot copy ") + da);
        }
        // Sources may be read-only; the program writes beside models.
        QFile::setPermissions(a, QFile::permissions(a) | QFile::WriteOwner);
    }
}

/// The file with one text in place of another; it must be there.
void Cambia(const QString &file, const QString &nuovo, const QByteArray &prima,
            const QByteArray &dopo)
{
    QFile origine(file);
    if (!origine.open(QIODevice::ReadOnly)) {
        Fallisce(origine.fileName() + QStringLiteral(": ") + origine.errorString());
    }
    QByteArray byte = origine.readAll();
    origine.close();
    const qsizetype posto = byte.indexOf(prima);
    if (posto < 0) {
        Fallisce(QStringLiteral("%1 has no %2").arg(file, QString::fromLatin1(prima)));
    }
    byte.replace(posto, prima.size(), dopo);
    QFile copia(nuovo);
    if (!copia.open(QIODevice::WriteOnly) || copia.write(byte) != byte.size()) {
        Fallisce(copia.fileName() + QStringLiteral(": ") + copia.errorString());
    }
}

/// A screen as most offices have it, at twice its resolution; no printer, whatever this computer
/// has; nothing of the user's.
void PreparaAmbiente(const QString &lavoro)
{
    const QString schermo = lavoro + QStringLiteral("/schermo.json");
    QFile file(schermo);
    const QByteArray testo = QStringLiteral("{\"screens\": [{\"name\": \"schermo\", \"x\": 0, "
                                            "\"y\": 0, \"width\": %1, \"height\": %2, "
                                            "\"logicalDpi\": 96, \"logicalBaseDpi\": 96, "
                                            "\"dpr\": 2}]}")
                                 .arg(Larghezza)
                                 .arg(Altezza)
                                 .toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(testo) != testo.size()) {
        Fallisce(schermo + QStringLiteral(": ") + file.errorString());
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + schermo.toUtf8());
    for (const char *nome : {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"}) {
        const QString cartella = lavoro + u'/' + QString::fromLatin1(nome);
        QDir().mkpath(cartella);
        QFile::setPermissions(cartella, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(nome, cartella.toUtf8());
    }
    qputenv("CUPS_SERVER", (lavoro + QStringLiteral("/nessuno")).toUtf8());
    qputenv("HOME", lavoro.toUtf8());
    for (const char *nome :
         {"QT_SCALE_FACTOR", "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME", "PRINTER", "LPDEST"}) {
        qunsetenv(nome);
    }
    qputenv("LC_ALL", "C.UTF-8"); // dates and numbers as on every computer that builds
}

/// Without what the windowless platform cannot do, which the pictures do not need.
void Riferisce(QtMsgType, const QMessageLogContext &, const QString &testo)
{
    if (!testo.startsWith(QLatin1String("This plugin does not support"))) {
        std::fprintf(stderr, "%s\n", qPrintable(testo));
    }
}

void Rinuncia()
{
    const QWidget *davanti = QApplication::activeModalWidget();
    std::fprintf(stderr, "fotografa_finestre: stuck before \"%s\"\n",
                 davanti == nullptr ? "" : qPrintable(davanti->windowTitle()));
    std::_Exit(1);
}

void Fotografa(int argc, char **argv)
{
    if (argc != 5) {
        Fallisce(QStringLiteral("CARTELLA_ESEMPIO CARTELLA_LAVORO CARTELLA_FIGURE INVENTARIO"));
    }
    const QString esempio = QFileInfo(QString::fromLocal8Bit(argv[1])).absoluteFilePath();
    const QString lavoro = QString::fromLocal8Bit(argv[2]);
    const QString figure = QString::fromLocal8Bit(argv[3]);
    const QString elenco = QString::fromLocal8Bit(argv[4]);
    QDir(lavoro).removeRecursively();
    QDir(figure).removeRecursively();
    if (!QDir().mkpath(lavoro) || !QDir().mkpath(figure)) {
        Fallisce(QStringLiteral("cannot make the folders"));
    }
    const QString dati = QDir(lavoro).absoluteFilePath(QStringLiteral("dati"));
    CopiaFile(esempio, {QStringLiteral("*")}, dati, false);
    const QString modelli = dati + QStringLiteral("/Contabilita/ini/");
    PreparaAmbiente(QDir(lavoro).absolutePath());

    QApplication programma(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Plakera"));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 9));
    // A box that nobody expects would be waited for without end.
    QTimer pazienza;
    QObject::connect(&pazienza, &QTimer::timeout, &pazienza, &Rinuncia);
    pazienza.start(SecondiMassimi * 1000);
    QApplication::setCursorFlashTime(0); // or two pictures of a box would differ
    ImpostaLingua();
    InstallaComboAccessibili();
    const Inventario inventario;

    // The folder lists name every folder above: a short one that leads to the data.
    const QTemporaryDir radice(QDir::tempPath() + QStringLiteral("/vastrel-XXXXXX"));
    const QString corta = radice.filePath(QStringLiteral("dati"));
    const QString immagini = lavoro + QStringLiteral("/immagini");
    CopiaFile(esempio, {QStringLiteral("*.gif"), QStringLiteral("*.jpg")}, immagini, true);
    if (!radice.isValid() || !QFile::link(dati, corta) ||
        !QFile::link(QFileInfo(immagini).absoluteFilePath(),
                     radice.filePath(QStringLiteral("immagini")))) {
        Fallisce(QStringLiteral("cannot link the data"));
    }
    // The scan's path is taken as typed, so it can only be known here.
    Cambia(modelli + QStringLiteral("DDT_prestampato.Mod"),
           modelli + QStringLiteral("DDT_prestampato.Mod"), "trasporto\r\n\r\n\r\n",
           "trasporto\r\n\r\n" + corta.toLatin1() + "/Contabilita/ini/ScansioneDDT.jpg\r\n");
    const QString fattura = modelli + QStringLiteral("Fattura_Rossi.Mod");
    // With something to be found.
    const QString prova = modelli + QStringLiteral("Prova_Controlli.Mod");
    Cambia(fattura, prova, "128/A\r\n", "128/A della serie speciale\r\n");
    Cambia(prova, prova, "LogoCascinalta.gif", "LogoNuovo.gif");

    const QFileInfo temporanea(radice.path());
    const Fotografia foto(
        figure, {{radice.path(), QStringLiteral("/srv/vastrel")},
                 {dati, QStringLiteral("/srv/vastrel/dati")},
                 {QCoreApplication::applicationDirPath(), QStringLiteral("/usr/lib/plakera")},
                 {temporanea.fileName(), QStringLiteral("vastrel")},
                 {temporanea.dir().dirName(), QStringLiteral("srv")}});
    Giro(corta, foto).Fa();
    inventario.Scrive(elenco);
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(Riferisce);
    try {
        Fotografa(argc, argv);
    } catch (const std::exception &guasto) {
        std::fprintf(stderr, "fotografa_finestre: %s\n", guasto.what());
        return 1;
    }
    return 0;
}

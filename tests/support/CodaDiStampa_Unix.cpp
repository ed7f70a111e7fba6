#include "support/CodaDiStampa.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>

#include <algorithm>
#include <stdexcept>

#include <csignal>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int AttesaMassima = 60'000;
constexpr int Pausa = 50;

const QString ServerDiStampa = QStringLiteral("/usr/sbin/cupsd");
const QString StampantePdf = QStringLiteral("/usr/lib/cups/backend/cups-pdf");
const QString Descrizione = QStringLiteral("/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd");

[[noreturn]] void Fallisce(const QString &motivo)
{
    throw std::runtime_error(motivo.toStdString());
}

void Scrive(const QString &percorso, const QString &testo)
{
    QFile file(percorso);
    const QByteArray byte = testo.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(byte) != byte.size() || !file.flush()) {
        Fallisce(QStringLiteral("cannot write %1: %2").arg(percorso, file.errorString()));
    }
}

/// The PDF printer puts the number of the job into the name of the sheet.
int NumeroDelLavoro(const QString &percorso)
{
    static const QRegularExpression Numero(QStringLiteral("job_(\\d+)"));
    return Numero.match(QFileInfo(percorso).fileName()).captured(1).toInt();
}

} // namespace

bool CodaDiStampa::Installata()
{
    return QFile::exists(ServerDiStampa) && QFile::exists(StampantePdf) &&
           QFile::exists(Descrizione);
}

CodaDiStampa::CodaDiStampa()
{
    if (geteuid() != 0) {
        Fallisce(QStringLiteral("a print server with a PDF printer must be started by root"));
    }
    Prepara();
    server_.setStandardErrorFile(In(QStringLiteral("log/server")));
    server_.start(ServerDiStampa,
                  {QStringLiteral("-f"), QStringLiteral("-c"), In(QStringLiteral("cupsd.conf")),
                   QStringLiteral("-s"), In(QStringLiteral("cups-files.conf"))});
    QElapsedTimer tempo;
    tempo.start();
    while (!QFile::exists(Server())) {
        if (tempo.elapsed() > AttesaMassima || server_.waitForFinished(Pausa)) {
            QFile registro(In(QStringLiteral("log/server")));
            const bool letto = registro.open(QIODevice::ReadOnly);
            Fallisce(QStringLiteral("the print server does not start: ") +
                     QString::fromLocal8Bit(letto ? registro.readAll() : QByteArray()));
        }
    }
}

CodaDiStampa::~CodaDiStampa()
{
    Riprende();
    server_.terminate();
    if (!server_.waitForFinished(AttesaMassima)) {
        server_.kill();
        server_.waitForFinished();
    }
    QFile::remove(impostazioni_);
}

void CodaDiStampa::Prepara()
{
    const QString radice = dir_.path();
    // The filters run as another user, who must get at the spool but need not see anything else.
    const group *gruppo = getgrnam("lp");
    if (gruppo == nullptr || chmod(qPrintable(radice), 0755) != 0) {
        Fallisce(QStringLiteral("cannot prepare %1 for the print server").arg(radice));
    }
    for (const char *nome : {"etc", "spool", "cache", "run", "tmp", "log", "pdf", "fogli"}) {
        const QByteArray cartella = QFile::encodeName(In(QString::fromLatin1(nome)));
        if (mkdir(cartella.constData(), 0775) != 0 ||
            chown(cartella.constData(), 0, gruppo->gr_gid) != 0 ||
            chmod(cartella.constData(), 0775) != 0) {
            Fallisce(QStringLiteral("cannot make %1").arg(QString::fromLocal8Bit(cartella)));
        }
    }
    Scrive(In(QStringLiteral("cups-files.conf")),
           QStringLiteral("SystemGroup root\nUser lp\nGroup lp\nServerRoot %1/etc\n"
                          "RequestRoot %1/spool\nCacheDir %1/cache\nStateDir %1/run\n"
                          "TempDir %1/tmp\nAccessLog %1/log/access\nErrorLog %1/log/error\n"
                          "PageLog %1/log/page\n")
               .arg(radice));
    Scrive(In(QStringLiteral("cupsd.conf")),
           QStringLiteral(
               "Listen %1\nPreserveJobFiles Yes\nLogLevel warn\nBrowsing Off\nWebInterface No\n"
               "DefaultAuthType None\n"
               "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
               "<Location /admin>\nOrder allow,deny\nAllow all\n</Location>\n"
               "<Policy default>\nJobPrivateAccess all\nJobPrivateValues none\n"
               "<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n")
               .arg(Server()));
    istanza_ = QStringLiteral("plakera-") + QString::number(getpid()) + QLatin1Char('-') +
               QFileInfo(radice).fileName().right(6);
    impostazioni_ = QStringLiteral("/etc/cups/cups-pdf-%1.conf").arg(istanza_);
    // Programs in a system of their own print as users that this one does not know.
    Scrive(impostazioni_, QStringLiteral("Out %1/fogli\nAnonDirName %1/fogli\nAnonUser root\n"
                                         "Spool %1/pdf\nLog %1/log\nLabel 1\n")
                              .arg(radice));
}

QString CodaDiStampa::Server() const
{
    return In(QStringLiteral("sock"));
}

QString CodaDiStampa::CartellaFogli() const
{
    return In(QStringLiteral("fogli"));
}

QByteArray CodaDiStampa::Comando(const QString &programma, const QStringList &argomenti) const
{
    QProcess processo;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("CUPS_SERVER"), Server());
    processo.setProcessEnvironment(ambiente);
    processo.start(programma, argomenti);
    if (!processo.waitForFinished(AttesaMassima) || processo.exitCode() != 0) {
        Fallisce(QStringLiteral("%1 %2: %3")
                     .arg(programma, argomenti.join(QLatin1Char(' ')),
                          QString::fromLocal8Bit(processo.readAllStandardError())));
    }
    return processo.readAllStandardOutput();
}

void CodaDiStampa::Aggiunge(const QString &nome, const Bordi &bordi, const QStringList &opzioni)
{
    QFile originale(Descrizione);
    if (!originale.open(QIODevice::ReadOnly)) {
        Fallisce(originale.errorString());
    }
    static const QRegularExpression Area(
        QStringLiteral("^(\\*ImageableArea [^:]*: *)\"0 0 (\\d+) (\\d+)\"$"));
    QStringList righe = QString::fromLatin1(originale.readAll()).split(u'\n');
    for (QString &riga : righe) {
        if (const auto area = Area.match(riga); area.hasMatch()) {
            riga = QStringLiteral("%1\"%2 %3 %4 %5\"")
                       .arg(area.captured(1))
                       .arg(bordi.Sinistra)
                       .arg(bordi.Sotto)
                       .arg(area.captured(2).toInt() - bordi.Destra)
                       .arg(area.captured(3).toInt() - bordi.Sopra);
        } else if (riga.startsWith(QLatin1String("*HWMargins:"))) { // those of custom sizes
            riga = QStringLiteral("*HWMargins: %1 %2 %3 %4")
                       .arg(bordi.Sinistra)
                       .arg(bordi.Sotto)
                       .arg(bordi.Destra)
                       .arg(bordi.Sopra);
        }
    }
    const QString descrizione = In(nome + QStringLiteral(".ppd"));
    Scrive(descrizione, righe.join(u'\n'));
    QStringList argomenti{QStringLiteral("-p"),
                          nome,
                          QStringLiteral("-E"),
                          QStringLiteral("-v"),
                          QStringLiteral("cups-pdf:/") + istanza_,
                          QStringLiteral("-P"),
                          descrizione};
    for (const QString &opzione : opzioni) {
        argomenti << QStringLiteral("-o") << opzione;
    }
    Comando(QStringLiteral("/usr/sbin/lpadmin"), argomenti);
}

void CodaDiStampa::Predefinita(const QString &nome)
{
    Comando(QStringLiteral("/usr/sbin/lpadmin"), {QStringLiteral("-d"), nome});
}

void CodaDiStampa::Toglie(const QString &nome)
{
    Comando(QStringLiteral("/usr/sbin/lpadmin"), {QStringLiteral("-x"), nome});
}

void CodaDiStampa::Imposta(const QStringList &argomenti)
{
    Comando(QStringLiteral("lpoptions"), argomenti);
}

void CodaDiStampa::Rifiuta(const QString &nome)
{
    Comando(QStringLiteral("/usr/sbin/cupsreject"), {nome});
}

void CodaDiStampa::Vieta(const QString &nome, const QString &utente)
{
    Comando(QStringLiteral("/usr/sbin/lpadmin"),
            {QStringLiteral("-p"), nome, QStringLiteral("-u"), QStringLiteral("deny:") + utente});
}

void CodaDiStampa::SiBlocca()
{
    if (kill(pid_t(server_.processId()), SIGSTOP) != 0) {
        Fallisce(QStringLiteral("cannot stop the print server"));
    }
}

void CodaDiStampa::Riprende()
{
    kill(pid_t(server_.processId()), SIGCONT);
}

bool CodaDiStampa::RiempieSpool()
{
    const QString spool = In(QStringLiteral("spool"));
    if (QProcess::execute(QStringLiteral("mount"),
                          {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                           QStringLiteral("size=64k"), QStringLiteral("tmpfs"), spool}) != 0) {
        return false;
    }
    QFile riempitivo(spool + QStringLiteral("/riempitivo"));
    constexpr qsizetype PiuDelDisco = 100'000;
    if (!riempitivo.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        Fallisce(riempitivo.errorString());
    }
    riempitivo.write(QByteArray(PiuDelDisco, 'x'));
    return true;
}

void CodaDiStampa::SvuotaSpool()
{
    if (QProcess::execute(QStringLiteral("umount"),
                          {QStringLiteral("-l"), In(QStringLiteral("spool"))}) != 0) {
        Fallisce(QStringLiteral("cannot empty the spool"));
    }
}

QString CodaDiStampa::Documento() const
{
    const QDir spool(In(QStringLiteral("spool")));
    // Numbered as the jobs are, with leading zeros.
    const QStringList nomi = spool.entryList({QStringLiteral("d*-*")}, QDir::Files, QDir::Name);
    if (nomi.isEmpty()) {
        Fallisce(QStringLiteral("the server keeps no document"));
    }
    return spool.filePath(nomi.last());
}

QStringList CodaDiStampa::Fogli()
{
    QElapsedTimer tempo;
    tempo.start();
    while (!Comando(QStringLiteral("lpstat"), {QStringLiteral("-o")}).isEmpty()) {
        if (tempo.elapsed() > AttesaMassima) {
            Fallisce(QStringLiteral("a job does not leave the print queue"));
        }
        QThread::msleep(Pausa);
    }
    QStringList nuovi;
    const QStringList nomi = QDir(CartellaFogli()).entryList(QDir::Files);
    for (const QString &nome : nomi) {
        const QString percorso = CartellaFogli() + QLatin1Char('/') + nome;
        if (!visti_.contains(percorso)) {
            nuovi.append(percorso);
        }
    }
    std::sort(nuovi.begin(), nuovi.end(), [](const QString &a, const QString &b) {
        return NumeroDelLavoro(a) < NumeroDelLavoro(b);
    });
    visti_ += nuovi;
    return nuovi;
}

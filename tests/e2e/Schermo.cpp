#include "Schermo.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QThread>

#include <csignal>
#include <stdexcept>

#include <sys/prctl.h>
#include <unistd.h>

namespace {

constexpr int AttesaMassima = 60'000;
constexpr int Pausa = 20;

[[noreturn]] void Fallisce(const QString &motivo)
{
    throw std::runtime_error(motivo.toStdString());
}

QStringList Identificatori(const QByteArray &uscita)
{
    static const QRegularExpression Identificatore(QStringLiteral("0x[0-9a-f]+"));
    QStringList trovati;
    for (auto i = Identificatore.globalMatch(QString::fromUtf8(uscita)); i.hasNext();) {
        trovati.append(i.next().captured());
    }
    return trovati;
}

int Numero(const QString &testo, const QString &espressione)
{
    return QRegularExpression(espressione).match(testo).captured(1).toInt();
}

} // namespace

void AttendeChe(const QString &cosa, const std::function<bool()> &condizione)
{
    QElapsedTimer tempo;
    tempo.start();
    while (!condizione()) {
        if (tempo.elapsed() > AttesaMassima) {
            Fallisce(QStringLiteral("waited in vain: ") + cosa);
        }
        QThread::msleep(Pausa);
    }
}

void LegaAllaProva(QProcess &processo)
{
    processo.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

Schermo::Schermo(QSize pixel)
    : pixel_(pixel)
{
    LegaAllaProva(server_);
    // -noreset: else the server starts afresh when its first client leaves.
    server_.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-noreset"),
                   QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-dpi"),
                   QStringLiteral("96"), QStringLiteral("-screen"), QStringLiteral("0"),
                   QStringLiteral("%1x%2x24").arg(pixel.width()).arg(pixel.height())});
    QByteArray numero;
    AttendeChe(QStringLiteral("the X server"), [&] {
        server_.waitForReadyRead(Pausa);
        numero += server_.readAllStandardOutput();
        return numero.endsWith('\n') || server_.state() == QProcess::NotRunning;
    });
    if (!numero.endsWith('\n')) {
        Fallisce(QStringLiteral("the X server does not start: ") +
                 QString::fromLocal8Bit(server_.readAllStandardError()));
    }
    nome_ = QLatin1Char(':') + QString::fromLatin1(numero.trimmed());

    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("DISPLAY"), nome_);
    ambiente.insert(QStringLiteral("HOME"), dir_.path());
    gestore_.setProcessEnvironment(ambiente);
    gestore_.setProcessChannelMode(QProcess::MergedChannels);
    LegaAllaProva(gestore_);
    const QString pronto = dir_.filePath(QStringLiteral("pronto"));
    gestore_.start(QStringLiteral("openbox"),
                   {QStringLiteral("--startup"), QStringLiteral("touch ") + pronto});
    // A window shown while the window manager starts may never be managed.
    AttendeChe(QStringLiteral("the window manager"), [&] { return QFile::exists(pronto); });
}

Schermo::~Schermo()
{
    // The server goes last, so that its clients do not complain.
    for (QProcess *processo : {&gestore_, &server_}) {
        processo->terminate();
        if (!processo->waitForFinished()) {
            processo->kill();
            processo->waitForFinished();
        }
    }
}

Schermo::Esito Schermo::Esegue(const QString &programma, const QStringList &argomenti) const
{
    QProcess processo;
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("DISPLAY"), nome_);
    ambiente.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    processo.setProcessEnvironment(ambiente);
    processo.start(programma, argomenti);
    const bool riuscito = processo.waitForFinished(AttesaMassima) &&
                          processo.exitStatus() == QProcess::NormalExit && processo.exitCode() == 0;
    return {riuscito, processo.readAllStandardOutput()};
}

void Schermo::Xdotool(const QStringList &argomenti) const
{
    if (!Esegue(QStringLiteral("xdotool"), argomenti).riuscito) {
        Fallisce(QStringLiteral("xdotool ") + argomenti.join(u' '));
    }
}

QList<Schermo::Finestra> Schermo::Finestre() const
{
    QList<Finestra> finestre;
    const QStringList elenco =
        Identificatori(Esegue(QStringLiteral("xprop"),
                              {QStringLiteral("-root"), QStringLiteral("_NET_CLIENT_LIST")})
                           .uscita);
    for (const QString &id : elenco) {
        const Esito proprieta =
            Esegue(QStringLiteral("xprop"),
                   {QStringLiteral("-id"), id, QStringLiteral("-notype"),
                    QStringLiteral("_NET_WM_NAME"), QStringLiteral("_NET_FRAME_EXTENTS")});
        const Esito posto = Esegue(QStringLiteral("xwininfo"), {QStringLiteral("-id"), id});
        const QString testo = QString::fromUtf8(proprieta.uscita);
        const QString misure = QString::fromUtf8(posto.uscita);
        static const QRegularExpression Titolo(QStringLiteral("_NET_WM_NAME = \"(.*)\""));
        static const QRegularExpression Bordi(
            QStringLiteral("_NET_FRAME_EXTENTS = (\\d+), (\\d+), (\\d+), (\\d+)"));
        const QRegularExpressionMatch bordi = Bordi.match(testo);
        // A window may go away in the middle of the questions about it.
        if (!proprieta.riuscito || !posto.riuscito || !bordi.hasMatch()) {
            continue;
        }
        const QRect interno(Numero(misure, QStringLiteral("Absolute upper-left X:\\s+(-?\\d+)")),
                            Numero(misure, QStringLiteral("Absolute upper-left Y:\\s+(-?\\d+)")),
                            Numero(misure, QStringLiteral("Width: (\\d+)")),
                            Numero(misure, QStringLiteral("Height: (\\d+)")));
        finestre.append({id, Titolo.match(testo).captured(1), interno,
                         QMargins(bordi.captured(1).toInt(), bordi.captured(3).toInt(),
                                  bordi.captured(2).toInt(), bordi.captured(4).toInt())});
    }
    return finestre;
}

bool Schermo::Vede(const QString &titolo) const
{
    const QRegularExpression cercato(titolo);
    const QList<Finestra> finestre = Finestre();
    return std::any_of(finestre.begin(), finestre.end(), [&](const Finestra &finestra) {
        return cercato.match(finestra.Titolo).hasMatch();
    });
}

bool Schermo::HaIcona(const Finestra &finestra) const
{
    return Esegue(QStringLiteral("xprop"),
                  {QStringLiteral("-id"), finestra.Id, QStringLiteral("_NET_WM_ICON")})
        .uscita.contains("Icon (");
}

QString Schermo::Attiva() const
{
    const QStringList attiva =
        Identificatori(Esegue(QStringLiteral("xprop"),
                              {QStringLiteral("-root"), QStringLiteral("_NET_ACTIVE_WINDOW")})
                           .uscita);
    // The window manager announces it before the server has moved the keyboard there.
    const Esito tastiera = Esegue(QStringLiteral("xdotool"), {QStringLiteral("getwindowfocus")});
    bool numero = false;
    const uint id = attiva.value(0).toUInt(&numero, 16);
    return numero && tastiera.uscita.trimmed().toUInt() == id ? attiva.first() : QString();
}

void Schermo::AttendeQui(const QString &cosa, const std::function<bool()> &condizione) const
{
    try {
        AttendeChe(cosa, condizione);
    } catch (const std::runtime_error &errore) {
        const QString foto =
            QDir::temp().filePath(QStringLiteral("plakera-e2e-%1.png").arg(getpid()));
        Foto().save(foto);
        throw std::runtime_error(errore.what() + (" (see " + foto.toStdString() + ')'));
    }
}

Schermo::Finestra Schermo::Attende(const QString &titolo) const
{
    const QRegularExpression cercato(titolo);
    Finestra prima;
    Finestra trovata;
    AttendeQui(QStringLiteral("the window ") + titolo, [&] {
        prima = trovata;
        const QString attiva = Attiva();
        const QList<Finestra> finestre = Finestre();
        for (const Finestra &finestra : finestre) {
            if (finestra.Id == attiva && cercato.match(finestra.Titolo).hasMatch()) {
                trovata = finestra;
                return trovata == prima;
            }
        }
        trovata = {};
        return false;
    });
    return trovata;
}

Schermo::Finestra Schermo::Attiva(const QString &titolo) const
{
    const QRegularExpression cercato(titolo);
    AttendeQui(QStringLiteral("the window ") + titolo, [&] {
        const QList<Finestra> finestre = Finestre();
        for (const Finestra &finestra : finestre) {
            if (cercato.match(finestra.Titolo).hasMatch()) {
                return Esegue(QStringLiteral("xdotool"),
                              {QStringLiteral("windowactivate"), finestra.Id})
                    .riuscito;
            }
        }
        return false;
    });
    return Attende(titolo);
}

void Schermo::AttendeChiusa(const QString &titolo) const
{
    AttendeQui(QStringLiteral("the end of the window ") + titolo, [&] { return !Vede(titolo); });
}

QImage Schermo::Foto() const
{
    const Esito foto =
        Esegue(QStringLiteral("import"),
               {QStringLiteral("-window"), QStringLiteral("root"), QStringLiteral("ppm:-")});
    QImage immagine = QImage::fromData(foto.uscita);
    if (immagine.size() != pixel_) {
        Fallisce(QStringLiteral("no picture of the screen"));
    }
    return immagine.convertToFormat(QImage::Format_RGB32);
}

void Schermo::Sposta(QPoint punto) const
{
    Xdotool({QStringLiteral("mousemove"), QString::number(punto.x()), QString::number(punto.y())});
}

void Schermo::Clic(QPoint punto, int bottone, int volte) const
{
    Sposta(punto);
    Xdotool({QStringLiteral("click"), QStringLiteral("--repeat"), QString::number(volte),
             QStringLiteral("--delay"), QStringLiteral("30"), QString::number(bottone)});
}

void Schermo::Trascina(const QList<QPoint> &punti, const QString &tasto) const
{
    QStringList gesti;
    for (const QPoint &punto : punti) {
        gesti << QStringLiteral("mousemove") << QString::number(punto.x())
              << QString::number(punto.y());
        if (&punto == &punti.constFirst()) {
            gesti << QStringLiteral("mousedown") << QStringLiteral("1");
            if (!tasto.isEmpty()) {
                gesti << QStringLiteral("keydown") << tasto;
            }
        }
    }
    gesti << QStringLiteral("mouseup") << QStringLiteral("1");
    if (!tasto.isEmpty()) {
        gesti << QStringLiteral("keyup") << tasto;
    }
    Xdotool(gesti);
}

void Schermo::Tenendo(const QString &tasto, const std::function<void()> &azione) const
{
    Xdotool({QStringLiteral("keydown"), tasto});
    azione();
    Xdotool({QStringLiteral("keyup"), tasto});
}

void Schermo::Tasti(const QStringList &tasti) const
{
    if (!tasti.isEmpty()) {
        Xdotool(QStringList{QStringLiteral("key")} + tasti);
    }
}

void Schermo::Tasto(const QString &tasto, int volte) const
{
    Tasti(QStringList(volte, tasto));
}

void Schermo::Scrive(const QString &testo) const
{
    Xdotool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("15"), testo});
}

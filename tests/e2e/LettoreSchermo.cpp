#include "LettoreSchermo.h"

#include "Schermo.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QProcessEnvironment>

#include <stdexcept>

namespace {

constexpr auto Accessibile = "org.a11y.atspi.Accessible";
constexpr auto Azione = "org.a11y.atspi.Action";
const QString NomeSessione = QStringLiteral("sessione di prova");
const QString NomeBus = QStringLiteral("bus di accessibilita");

[[noreturn]] void Fallisce(const QString &motivo)
{
    throw std::runtime_error(motivo.toStdString());
}

QVariantList Risposta(const QDBusMessage &messaggio)
{
    return messaggio.type() == QDBusMessage::ReplyMessage ? messaggio.arguments() : QVariantList();
}

/// The one text of an answer; some come in an envelope.
QString Testo(const QVariantList &risposta)
{
    const QVariant primo = risposta.value(0);
    return primo.canConvert<QDBusVariant>() ? primo.value<QDBusVariant>().variant().toString()
                                            : primo.toString();
}

} // namespace

LettoreSchermo::LettoreSchermo(QProcessEnvironment &ambiente)
{
    ambiente.insert(QStringLiteral("XDG_RUNTIME_DIR"), dir_.path());
    ambiente.insert(QStringLiteral("XDG_CACHE_HOME"), dir_.path());
    ambiente.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
    sessione_.setProcessEnvironment(ambiente);
    LegaAllaProva(sessione_);
    sessione_.start(QStringLiteral("dbus-daemon"),
                    {QStringLiteral("--session"), QStringLiteral("--nofork"),
                     QStringLiteral("--print-address")});
    QByteArray indirizzo;
    AttendeChe(QStringLiteral("the session bus"), [&] {
        sessione_.waitForReadyRead(20);
        indirizzo += sessione_.readAllStandardOutput();
        return indirizzo.endsWith('\n') || sessione_.state() == QProcess::NotRunning;
    });
    const QString sessione = QString::fromLocal8Bit(indirizzo.trimmed());
    ambiente.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), sessione);
    QDBusConnection bus = QDBusConnection::connectToBus(sessione, NomeSessione);
    // Asking for it starts it.
    const QVariantList risposta = Risposta(bus.call(QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
        QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"))));
    if (risposta.isEmpty()) {
        Fallisce(QStringLiteral("no accessibility bus: ") + bus.lastError().message());
    }
    indirizzo_ = risposta.constFirst().toString();
    if (!QDBusConnection::connectToBus(indirizzo_, NomeBus).isConnected()) {
        Fallisce(QStringLiteral("the accessibility bus does not answer"));
    }
}

LettoreSchermo::~LettoreSchermo()
{
    QDBusConnection::disconnectFromBus(NomeBus);
    QDBusConnection::disconnectFromBus(NomeSessione);
    sessione_.terminate();
    if (!sessione_.waitForFinished()) {
        sessione_.kill();
        sessione_.waitForFinished();
    }
}

QVariantList LettoreSchermo::Chiede(const Parte &parte, const char *interfaccia, const char *metodo,
                                    const QVariantList &argomenti) const
{
    QDBusMessage domanda = QDBusMessage::createMethodCall(parte.servizio, parte.percorso,
                                                          QString::fromLatin1(interfaccia),
                                                          QString::fromLatin1(metodo));
    domanda.setArguments(argomenti);
    return Risposta(QDBusConnection(NomeBus).call(domanda));
}

QString LettoreSchermo::Proprieta(const Parte &parte, const char *nome) const
{
    const QVariantList risposta =
        Chiede(parte, "org.freedesktop.DBus.Properties", "Get",
               {QString::fromLatin1(Accessibile), QString::fromLatin1(nome)});
    return Testo(risposta);
}

QList<LettoreSchermo::Parte> LettoreSchermo::Figli(const Parte &parte) const
{
    QList<Parte> figli;
    const QVariantList risposta = Chiede(parte, Accessibile, "GetChildren");
    if (risposta.isEmpty()) {
        return figli;
    }
    const auto elenco = risposta.constFirst().value<QDBusArgument>();
    elenco.beginArray();
    while (!elenco.atEnd()) {
        Parte figlio;
        QDBusObjectPath percorso;
        elenco.beginStructure();
        elenco >> figlio.servizio >> percorso;
        elenco.endStructure();
        figlio.percorso = percorso.path();
        figlio.nome = Proprieta(figlio, "Name");
        figli.append(figlio);
    }
    elenco.endArray();
    return figli;
}

LettoreSchermo::Parte LettoreSchermo::Finestra(const QString &titolo) const
{
    const Parte radice{QStringLiteral("org.a11y.atspi.Registry"),
                       QStringLiteral("/org/a11y/atspi/accessible/root"),
                       {}};
    Parte trovata;
    AttendeChe(QStringLiteral("the window on the bus: ") + titolo, [&] {
        for (const Parte &programma : Figli(radice)) {
            for (const Parte &finestra : Figli(programma)) {
                if (finestra.nome == titolo) {
                    trovata = finestra;
                }
            }
        }
        return trovata.Vera();
    });
    return trovata;
}

LettoreSchermo::Parte LettoreSchermo::Dentro(const Parte &parte, const QString &nome) const
{
    for (const Parte &figlio : Figli(parte)) {
        if (figlio.nome == nome) {
            return figlio;
        }
        if (const Parte trovata = Dentro(figlio, nome); trovata.Vera()) {
            return trovata;
        }
    }
    return {};
}

QRect LettoreSchermo::Rettangolo(const Parte &parte) const
{
    constexpr uint DelloSchermo = 0;
    const QVariantList risposta =
        Chiede(parte, "org.a11y.atspi.Component", "GetExtents", {DelloSchermo});
    if (risposta.isEmpty()) {
        return {};
    }
    int x = 0;
    int y = 0;
    int larghezza = 0;
    int altezza = 0;
    const auto posto = risposta.constFirst().value<QDBusArgument>();
    posto.beginStructure();
    posto >> x >> y >> larghezza >> altezza;
    posto.endStructure();
    return {x, y, larghezza, altezza};
}

QString LettoreSchermo::Descrizione(const Parte &parte) const
{
    return Proprieta(parte, "Description");
}

QString LettoreSchermo::Ruolo(const Parte &parte) const
{
    return Chiede(parte, Accessibile, "GetRoleName").value(0).toString();
}

QStringList LettoreSchermo::Azioni(const Parte &parte) const
{
    QStringList nomi;
    const QVariantList risposta = Chiede(parte, Azione, "GetActions");
    if (risposta.isEmpty()) {
        return nomi;
    }
    const auto elenco = risposta.constFirst().value<QDBusArgument>();
    elenco.beginArray();
    while (!elenco.atEnd()) {
        QString nome;
        QString descrizione;
        QString tasti;
        elenco.beginStructure();
        elenco >> nome >> descrizione >> tasti;
        elenco.endStructure();
        nomi.append(nome);
    }
    elenco.endArray();
    return nomi;
}

void LettoreSchermo::Esegue(const Parte &parte, const QString &azione) const
{
    const auto indice = static_cast<int>(Azioni(parte).indexOf(azione));
    if (indice < 0 || Chiede(parte, Azione, "DoAction", {indice}).isEmpty()) {
        Fallisce(QStringLiteral("%1 cannot be done: %2").arg(parte.nome, azione));
    }
}

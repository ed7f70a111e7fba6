#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {

/// The rooms that a room may include, itself left out. Arrows only go down.
const QHash<QString, QStringList> &Frecce()
{
    static const QStringList finestra{QStringLiteral("base"), QStringLiteral("model"),
                                      QStringLiteral("platform")};
    static const QHash<QString, QStringList> frecce{
        {QStringLiteral("base"), {}},
        {QStringLiteral("model"), {QStringLiteral("base")}},
        {QStringLiteral("platform"), {QStringLiteral("base")}},
        {QStringLiteral("print"), finestra},
        {QStringLiteral("preview"), finestra},
        {QStringLiteral("dialogs"), finestra},
        {QStringLiteral("catalogue"), finestra},
        {QStringLiteral("editor"),
         finestra + QStringList{QStringLiteral("preview"), QStringLiteral("dialogs"),
                                QStringLiteral("print"), QStringLiteral("catalogue")}},
    };
    return frecce;
}

/// Rooms that know Qt Core and nothing else of Qt.
const QSet<QString> SoloNucleo{QStringLiteral("base"), QStringLiteral("model")};

QString Leggi(const QString &percorso)
{
    QFile file(percorso);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList Sorgenti(const QString &cartella)
{
    QStringList trovati;
    QDirIterator giro(cartella, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (giro.hasNext()) {
        trovati.append(giro.next());
    }
    return trovati;
}

QStringList Inclusioni(const QString &percorso)
{
    static const QRegularExpression riga(QStringLiteral("^\\s*#\\s*include\\s*[<\"]([^>\"]+)[>\"]"),
                                         QRegularExpression::MultilineOption);
    QStringList nomi;
    auto giro = riga.globalMatch(Leggi(percorso));
    while (giro.hasNext()) {
        nomi.append(giro.next().captured(1));
    }
    return nomi;
}

/// Why the room may not include the header; empty when it may.
QString Violazione(const QString &stanza, const QString &inclusa)
{
    const QString altra = inclusa.section(u'/', 0, 0);
    if (inclusa.contains(u'/') && Frecce().contains(altra)) {
        return altra == stanza || Frecce().value(stanza).contains(altra)
                   ? QString()
                   : QStringLiteral("no arrow from %1 to %2").arg(stanza, altra);
    }
    if (SoloNucleo.contains(stanza) && inclusa.startsWith(u'Q') &&
        !QFile::exists(QStringLiteral(CARTELLA_QTCORE "/") + inclusa)) {
        return QStringLiteral("%1 may use Qt Core only").arg(stanza);
    }
    if (inclusa == QLatin1String("Plakera.h") || inclusa == QLatin1String("LineaDiComando.h")) {
        return QStringLiteral("a room may not know the program");
    }
    return {};
}

} // namespace

/// The table of rooms and arrows is law: every #include of src/ is held against it.
class tst_Stanze : public QObject
{
    Q_OBJECT
private slots:
    void OgniInclusioneSegueUnaFreccia_data();
    void OgniInclusioneSegueUnaFreccia();
    void IlSistemaSiNominaSoloInPlatform();
    void UnaFrecciaVietataSiVede_data();
    void UnaFrecciaVietataSiVede();
};

void tst_Stanze::OgniInclusioneSegueUnaFreccia_data()
{
    QTest::addColumn<QString>("stanza");
    const QStringList stanze = Frecce().keys();
    for (const QString &stanza : stanze) {
        QTest::newRow(qPrintable(stanza)) << stanza;
    }
}

void tst_Stanze::OgniInclusioneSegueUnaFreccia()
{
    QFETCH(const QString, stanza);
    const QStringList file = Sorgenti(QStringLiteral(CARTELLA_SORGENTI "/") + stanza);
    QVERIFY2(!file.isEmpty(), "the room is empty");
    QStringList violazioni;
    for (const QString &percorso : file) {
        for (const QString &inclusa : Inclusioni(percorso)) {
            const QString motivo = Violazione(stanza, inclusa);
            if (!motivo.isEmpty()) {
                violazioni.append(percorso + QStringLiteral(": ") + inclusa + QStringLiteral(": ") +
                                  motivo);
            }
        }
    }
    QVERIFY2(violazioni.isEmpty(), qPrintable(violazioni.join(u'\n')));
}

void tst_Stanze::IlSistemaSiNominaSoloInPlatform()
{
    static const QRegularExpression condizione(
        QStringLiteral("^\\s*#\\s*(?:if|ifdef|ifndef|elif).*\\b(?:Q_OS_\\w+|_WIN32|__linux__|"
                       "__unix__|__APPLE__)"),
        QRegularExpression::MultilineOption);
    for (const QString &percorso : Sorgenti(QStringLiteral(CARTELLA_SORGENTI))) {
        if (!percorso.contains(QLatin1String("/platform/"))) {
            QVERIFY2(!condizione.match(Leggi(percorso)).hasMatch(), qPrintable(percorso));
        }
    }
}

void tst_Stanze::UnaFrecciaVietataSiVede_data()
{
    QTest::addColumn<QString>("stanza");
    QTest::addColumn<QString>("inclusa");
    QTest::addColumn<bool>("vietata");
    QTest::newRow("model -> platform") << "model"
                                       << "platform/Messaggi.h" << true;
    QTest::newRow("platform -> model") << "platform"
                                       << "model/Modello.h" << true;
    QTest::newRow("preview -> editor") << "preview"
                                       << "editor/Form2.h" << true;
    QTest::newRow("dialogs -> preview") << "dialogs"
                                        << "preview/Frm1.h" << true;
    QTest::newRow("model -> QWidget") << "model"
                                      << "QWidget" << true;
    QTest::newRow("editor -> Plakera") << "editor"
                                       << "Plakera.h" << true;
    QTest::newRow("editor -> preview") << "editor"
                                       << "preview/Frm1.h" << false;
    QTest::newRow("model -> QString") << "model"
                                      << "QString" << false;
    QTest::newRow("preview -> QWidget") << "preview"
                                        << "QWidget" << false;
}

void tst_Stanze::UnaFrecciaVietataSiVede()
{
    QFETCH(const QString, stanza);
    QFETCH(const QString, inclusa);
    QFETCH(const bool, vietata);
    QCOMPARE(!Violazione(stanza, inclusa).isEmpty(), vietata);
}

QTEST_GUILESS_MAIN(tst_Stanze)
#include "tst_Stanze.moc"

#include "Sorgenti.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

/// What a room may include, itself left out.
struct Stanza
{
    QStringList altre;  ///< rooms
    QStringList moduli; ///< of Qt, without "Qt"
};

/// The table that the build reads too.
const QMap<QString, Stanza> &Tabella()
{
    static const QMap<QString, Stanza> tabella = [] {
        static const QRegularExpression riga(QStringLiteral("^([a-z]+):([^|]*)\\|(.*)$"),
                                             QRegularExpression::MultilineOption);
        QMap<QString, Stanza> lette;
        auto giro = riga.globalMatch(Leggi(QStringLiteral(CARTELLA_SORGENTI "/stanze.txt")));
        while (giro.hasNext()) {
            const auto trovata = giro.next();
            const auto nomi = [&](int posto) {
                return trovata.captured(posto).split(u' ', Qt::SkipEmptyParts);
            };
            lette.insert(trovata.captured(1), {nomi(2), nomi(3)});
        }
        return lette;
    }();
    return tabella;
}

bool DelModulo(const QString &modulo, const QString &inclusa)
{
    return QFile::exists(QStringLiteral(CARTELLA_QT "/Qt%1/%2").arg(modulo, inclusa));
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
    const Stanza &questa = *Tabella().constFind(stanza);
    if (inclusa.contains(u'/')) {
        const QString altra = inclusa.section(u'/', 0, 0);
        if (!QFileInfo(QStringLiteral(CARTELLA_SORGENTI "/") + altra).isDir() || altra == stanza ||
            questa.altre.contains(altra)) {
            return {};
        }
        return QStringLiteral("no arrow from %1 to %2").arg(stanza, altra);
    }
    if (inclusa.startsWith(u'Q') &&
        std::none_of(questa.moduli.begin(), questa.moduli.end(),
                     [&](const QString &modulo) { return DelModulo(modulo, inclusa); })) {
        return QStringLiteral("%1 may use Qt %2 only").arg(stanza, questa.moduli.join(u' '));
    }
    if (QFileInfo::exists(QStringLiteral(CARTELLA_SORGENTI "/") + inclusa)) {
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
    void LeFrecceVannoInGiu();
    void OgniInclusioneSegueUnaFreccia_data();
    void OgniInclusioneSegueUnaFreccia();
    void IlSistemaSiNominaSoloInSistema();
    void UnaFrecciaVietataSiVede_data();
    void UnaFrecciaVietataSiVede();
};

void tst_Stanze::LeFrecceVannoInGiu()
{
    QVERIFY(!Tabella().isEmpty());
    QSet<QString> piuInBasso;
    const QString testo = Leggi(QStringLiteral(CARTELLA_SORGENTI "/stanze.txt"));
    for (const QString &riga : testo.split(u'\n')) {
        const QString nome = riga.section(u':', 0, 0);
        if (!Tabella().contains(nome)) {
            continue;
        }
        for (const QString &altra : Tabella().constFind(nome)->altre) {
            QVERIFY2(piuInBasso.contains(altra), qPrintable(nome + QStringLiteral(" -> ") + altra));
        }
        piuInBasso.insert(nome);
    }
}

void tst_Stanze::OgniInclusioneSegueUnaFreccia_data()
{
    QTest::addColumn<QString>("stanza");
    const QStringList stanze =
        QDir(QStringLiteral(CARTELLA_SORGENTI)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &stanza : stanze) {
        QTest::newRow(qPrintable(stanza)) << stanza;
    }
}

void tst_Stanze::OgniInclusioneSegueUnaFreccia()
{
    QFETCH(const QString, stanza);
    QVERIFY2(Tabella().contains(stanza), "a folder that the table of rooms does not know");
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

void tst_Stanze::IlSistemaSiNominaSoloInSistema()
{
    static const QRegularExpression condizione(
        QStringLiteral("^\\s*#\\s*(?:if|ifdef|ifndef|elif).*\\b(?:Q_OS_\\w+|_WIN32|__linux__|"
                       "__unix__|__APPLE__)"),
        QRegularExpression::MultilineOption);
    for (const QString &percorso : Sorgenti(QStringLiteral(CARTELLA_SORGENTI))) {
        if (!percorso.contains(QLatin1String("/sistema/"))) {
            QVERIFY2(!condizione.match(Leggi(percorso)).hasMatch(), qPrintable(percorso));
        }
    }
}

void tst_Stanze::UnaFrecciaVietataSiVede_data()
{
    QTest::addColumn<QString>("stanza");
    QTest::addColumn<QString>("inclusa");
    QTest::addColumn<bool>("vietata");
    QTest::newRow("model -> finestre") << "model"
                                       << "finestre/Messaggi.h" << true;
    QTest::newRow("sistema -> model") << "sistema"
                                      << "model/Modello.h" << true;
    QTest::newRow("editor -> catalogue") << "editor"
                                         << "catalogue/SelezioneArchivifrm.h" << true;
    QTest::newRow("print -> QWidget") << "print"
                                      << "QWidget" << true;
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

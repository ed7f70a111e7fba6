#include "Sorgenti.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

namespace {

struct Voce
{
    QString Parte; ///< of src/
    QString Nome;  ///< as the list has it
};

QList<Voce> Elenco()
{
    QList<Voce> voci;
    const QStringList righe = Leggi(QStringLiteral(CARTELLA_LAYERS "/nomi.txt")).split(u'\n');
    for (const QString &riga : righe) {
        if (riga.startsWith(u'#')) {
            continue;
        }
        for (const QString &nome : riga.section(u':', 1).split(u' ', Qt::SkipEmptyParts)) {
            voci.append({riga.section(u':', 0, 0), nome});
        }
    }
    return voci;
}

QString SenzaCommenti(QString testo)
{
    static const QRegularExpression commento(QStringLiteral("//[^\n]*|/\\*.*?\\*/"),
                                             QRegularExpression::DotMatchesEverythingOption);
    return testo.remove(commento);
}

/// What the files of a part of src/ hold: a folder's, or those whose paths begin so.
QString TestoDi(const QString &parte)
{
    const QString radice = QStringLiteral(CARTELLA_SORGENTI "/") + parte;
    QString testo;
    for (const QString &percorso : Sorgenti(QStringLiteral(CARTELLA_SORGENTI))) {
        if (percorso.startsWith(radice + u'/') || percorso.startsWith(radice + u'.')) {
            testo += Leggi(percorso) + u'\n';
        }
    }
    return testo;
}

bool Presente(const QString &nome, const QString &testo)
{
    if (nome.startsWith(u'(')) {
        const QRegularExpression parola(
            QStringLiteral("\\b%1\\b").arg(nome.sliced(1, nome.size() - 2)));
        return testo.contains(parola);
    }
    const bool procedura = nome.endsWith(QLatin1String("()"));
    const QRegularExpression uso(procedura ? QStringLiteral("\\b%1\\(").arg(nome.chopped(2))
                                           : QStringLiteral("\\b%1\\b").arg(nome));
    return SenzaCommenti(testo).contains(uso);
}

} // namespace

/// The names that others know are still there, under the part of the program that they belong to.
class tst_Nomi : public QObject
{
    Q_OBJECT
private slots:
    void OgniNomeCEAncora_data();
    void OgniNomeCEAncora();
    void UnNomeSparitoSiVede_data();
    void UnNomeSparitoSiVede();
};

void tst_Nomi::OgniNomeCEAncora_data()
{
    QTest::addColumn<QString>("parte");
    QStringList parti;
    for (const Voce &voce : Elenco()) {
        if (!parti.contains(voce.Parte)) {
            parti.append(voce.Parte);
            QTest::newRow(qPrintable(voce.Parte)) << voce.Parte;
        }
    }
}

void tst_Nomi::OgniNomeCEAncora()
{
    QFETCH(const QString, parte);
    const QString testo = TestoDi(parte);
    QVERIFY2(!testo.isEmpty(), "no file of src/ is called so");
    QStringList spariti;
    for (const Voce &voce : Elenco()) {
        if (voce.Parte == parte && !Presente(voce.Nome, testo)) {
            spariti.append(voce.Nome);
        }
    }
    QVERIFY2(spariti.isEmpty(), qPrintable(spariti.join(u' ')));
}

void tst_Nomi::UnNomeSparitoSiVede_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QString>("testo");
    QTest::addColumn<bool>("presente");
    const auto riga = [](const char *nome, const char *testo, bool presente) {
        QTest::addRow("%s in \"%s\"", nome, testo)
            << QString::fromLatin1(nome) << QString::fromLatin1(testo) << presente;
    };
    riga("Apre_Click()", "void Form::Apre_Click() {", true);
    riga("Apre_Click()", "connect(&Form::Apre_Click);", false);
    riga("Apre_Click()", "void Apre_Clicks();", false);
    riga("Apre_Click()", "// Apre_Click()", false);
    riga("Apre_Click()", "/* Apre_Click() */", false);
    riga("P", "QRgb P)", true);
    riga("P", "QRgb P1)", false);
    riga("(Apre_Change)", "/// Apre_Change does nothing", true);
    riga("(Apre_Change)", "/// Apre_Changed", false);
}

void tst_Nomi::UnNomeSparitoSiVede()
{
    QFETCH(const QString, nome);
    QFETCH(const QString, testo);
    QFETCH(const bool, presente);
    QCOMPARE(Presente(nome, testo), presente);
}

QTEST_GUILESS_MAIN(tst_Nomi)
#include "tst_Nomi.moc"

#include "finestre/Documenti.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

/// Stands in for the desktop's association: takes the documents that the system would open.
class tst_Documenti : public QObject
{
    Q_OBJECT

public slots:
    void Riceve(const QUrl &documento) { aperti_.append(documento.toLocalFile()); }

private slots:
    void init();
    void cleanup();
    void DocumentoEsistente();
    void DocumentoMancante();
    void Cartella();
    void NomeVuoto();
    void PercorsoRelativo();
    void GuidaMancante();
    void GuidaAperta(); // the last: where the system's own window keeps it, Qt ends the program

private:
    QString Crea(const QString &nome) const;

    QTemporaryDir cartella_;
    QStringList aperti_;
};

QString tst_Documenti::Crea(const QString &nome) const
{
    QFile file(cartella_.filePath(nome));
    return file.open(QIODevice::WriteOnly) ? file.fileName() : QString();
}

void tst_Documenti::init()
{
    aperti_.clear();
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Riceve");
}

void tst_Documenti::cleanup()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

void tst_Documenti::DocumentoEsistente()
{
    // "%" and "#" have a meaning in addresses, none in file names.
    const QString documento = Crea(QStringLiteral("manuale 100% #1 è.pdf"));
    QVERIFY(ApreDocumento(documento));
    QCOMPARE(aperti_, QStringList{documento});
}

void tst_Documenti::DocumentoMancante()
{
    QVERIFY(!ApreDocumento(cartella_.filePath(QStringLiteral("manca.pdf"))));
    QVERIFY(aperti_.isEmpty());
}

void tst_Documenti::Cartella()
{
    QVERIFY(!ApreDocumento(cartella_.path()));
    QVERIFY(aperti_.isEmpty());
}

void tst_Documenti::NomeVuoto()
{
    QVERIFY(!ApreDocumento(QString()));
    QVERIFY(aperti_.isEmpty());
}

void tst_Documenti::PercorsoRelativo()
{
    const QString documento = Crea(QStringLiteral("relativo.pdf"));
    QVERIFY(ApreDocumento(QDir::current().relativeFilePath(documento)));
    QCOMPARE(aperti_.size(), 1);
    QCOMPARE(QDir::cleanPath(aperti_.first()), documento);
}

void tst_Documenti::GuidaMancante()
{
    QVERIFY(!ApreArgomento(cartella_.filePath(QStringLiteral("manca.hlp")), 44));
    QVERIFY(aperti_.isEmpty());
}

void tst_Documenti::GuidaAperta()
{
    const QString guida = Crea(QStringLiteral("Vastrel.hlp"));
    QVERIFY(ApreArgomento(guida, 44));
    QCOMPARE(aperti_, QStringList{guida});
}

QTEST_MAIN(tst_Documenti)
#include "tst_Documenti.moc"

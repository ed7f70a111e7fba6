#include "base/ErroreSistema.h"

#include <QTest>

class tst_ErroreSistema : public QObject
{
    Q_OBJECT

private slots:
    void Descrizioni_data();
    void Descrizioni();
    void NumeroIgnotoHaUnTesto();
    void DescrizionePropria();
    void SiPrendeComeEccezione();
};

void tst_ErroreSistema::Descrizioni_data()
{
    QTest::addColumn<int>("numero");
    QTest::addColumn<QString>("messaggio");

    const auto riga = [](const char *nome, int numero, const char *messaggio) {
        QTest::newRow(nome) << numero << QString::fromUtf8(messaggio);
    };
    riga("argomento", 5, "errore 5 Chiamata di routine o argomento non validi");
    riga("overflow", 6, "errore 6 Overflow");
    riga("memoria", 7, "errore 7 Memoria esaurita");
    riga("indice", 9, "errore 9 Indice non incluso nell'intervallo");
    riga("tipo", 13, "errore 13 Tipo non corrispondente");
    riga("interno", 51, "errore 51 Errore interno");
    riga("file", 53, "errore 53 Impossibile trovare il file");
    riga("periferica", 57, "errore 57 Errore di I/O della periferica");
    riga("disco pieno", 61, "errore 61 Disco pieno");
    riga("fine file", 62, "errore 62 Lettura oltre la fine del file");
    riga("autorizzazione", 70, "errore 70 Autorizzazione negata");
    riga("accesso", 75, "errore 75 Errore di accesso al percorso/file");
    riga("percorso", 76, "errore 76 Impossibile trovare il percorso");
    riga("proprieta", 380, "errore 380 Valore di proprietà non valido");
    riga("immagine", 481, "errore 481 Immagine non valida");
    riga("stampante", 482, "errore 482 Errore della stampante");
}

void tst_ErroreSistema::Descrizioni()
{
    QFETCH(int, numero);
    QFETCH(QString, messaggio);
    const ErroreSistema errore(numero);
    QCOMPARE(errore.numero, numero);
    QCOMPARE(errore.descrizione, DescrizioneErrore(numero));
    QCOMPARE(errore.Messaggio(), messaggio);
    QCOMPARE(QString::fromUtf8(errore.what()), messaggio);
}

void tst_ErroreSistema::NumeroIgnotoHaUnTesto()
{
    for (const int numero : {-1, 0, 12345}) {
        QCOMPARE(DescrizioneErrore(numero), QStringLiteral("Errore definito dall'applicazione"));
    }
}

void tst_ErroreSistema::DescrizionePropria()
{
    const ErroreSistema errore(ErroreSistema::Stampante, QStringLiteral("carta finita"));
    QCOMPARE(errore.Messaggio(), QStringLiteral("errore 482 carta finita"));
}

void tst_ErroreSistema::SiPrendeComeEccezione()
{
    QByteArray testo;
    try {
        throw ErroreSistema(ErroreSistema::Indice);
    } catch (const std::exception &errore) {
        testo = errore.what();
    }
    QCOMPARE(testo, QByteArray("errore 9 Indice non incluso nell'intervallo"));
}

QTEST_GUILESS_MAIN(tst_ErroreSistema)
#include "tst_ErroreSistema.moc"

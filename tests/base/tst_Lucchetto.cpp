#include "base/Lucchetto.h"

#include "support/FileDiProva.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class tst_Lucchetto : public QObject
{
    Q_OBJECT

private slots:
    void PresoELasciato();
    void OccupatoDaUnAltro();
    void DiUnProcessoMorto();
    void DiUnMortoADiscoPieno();
    void DiUnVivoADiscoPieno();
    void DiUnaMacchinaLontana();
    void RimastoAMeta();
    void Impossibile();

private:
    QString File() const { return cartella_.filePath(QStringLiteral("prova.lock")); }

    QTemporaryDir cartella_;
};

using Esito = Lucchetto::Esito;

void tst_Lucchetto::PresoELasciato()
{
    {
        Lucchetto lucchetto(File());
        QCOMPARE(lucchetto.Prende(), Esito::Preso);
        QVERIFY(QFile::exists(File()));
        QVERIFY2(lucchetto.Prende() == Esito::Preso, "it is held already");
    }
    QVERIFY(!QFile::exists(File()));
}

void tst_Lucchetto::OccupatoDaUnAltro()
{
    Lucchetto secondo(File());
    {
        Lucchetto primo(File());
        QCOMPARE(primo.Prende(), Esito::Preso);
        QCOMPARE(secondo.Prende(), Esito::Occupato);
        QCOMPARE(secondo.Prende(), Esito::Occupato);
    }
    QCOMPARE(secondo.Prende(), Esito::Preso);
}

void tst_Lucchetto::DiUnProcessoMorto()
{
    // One second old or ten years: only the process counts.
    ScriveFile(File(), LucchettoDiUnMorto());
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Preso);
    ScriveFile(File(), LucchettoDiUnMorto());
    Invecchia(File(), 10L * 365 * 86400);
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Preso);
}

void tst_Lucchetto::DiUnMortoADiscoPieno()
{
    ScriveFile(File(), LucchettoDiUnMorto());
    Esito esito = Esito::Preso;
    {
        const LimiteFile nessunByte(0);
        esito = Lucchetto(File()).Prende();
    }
    QCOMPARE(esito, Esito::Impossibile);
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Preso);
}

void tst_Lucchetto::DiUnVivoADiscoPieno()
{
    Lucchetto vivo(File());
    QCOMPARE(vivo.Prende(), Esito::Preso);
    const LimiteFile nessunByte(0);
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Occupato);
}

void tst_Lucchetto::DiUnaMacchinaLontana()
{
    ScriveFile(File(), "1\nplakera\nun-altra-macchina\n");
    Invecchia(File(), 10L * 365 * 86400);
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Occupato);
    QVERIFY(QFile::remove(File()));
}

void tst_Lucchetto::RimastoAMeta()
{
    ScriveFile(File(), QByteArray());
    QCOMPARE(Lucchetto(File()).Prende(), Esito::Preso);
}

void tst_Lucchetto::Impossibile()
{
    Lucchetto lucchetto(File());
    {
        const LimiteFile nessunByte(0);
        QCOMPARE(lucchetto.Prende(), Esito::Impossibile);
    }
    QCOMPARE(lucchetto.Prende(), Esito::Preso);
    QCOMPARE(Lucchetto(cartella_.filePath(QStringLiteral("manca/prova.lock"))).Prende(),
             Esito::Impossibile);
}

QTEST_GUILESS_MAIN(tst_Lucchetto)
#include "tst_Lucchetto.moc"

#include "EditoreDiProva.h"

#include "support/Aperture.h"
#include "support/ImmaginiDiProva.h"
#include "support/Tempi.h"

#include <QDateTime>
#include <QFile>
#include <QTest>

/// The scan of a pre-printed form is decoded once, whatever the user does with the preview.
class tst_SfondoUnaVoltaSola : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void spintoSenzaRileggere();
    void spintoInVentiMillisecondi();
    void ingranditoERimpicciolitoSenzaRileggere();
    void nascostoEMostratoSenzaRileggere();
    void cambiatoSulDiscoRilettoAlDisegnoDopo();
    void caricatoDiNuovoDalBottone();
    void guastoNonRilettoFinoACheNonCambia();

private:
    QColor Angolo() const { return QColor(prova_->Foto().pixel(80, 80)); }

    QByteArray a4_;
    QString percorso_;
    std::unique_ptr<EditoreDiProva> prova_;
};

void tst_SfondoUnaVoltaSola::initTestCase()
{
    a4_ = ImmaginiDiProva::InFormato(ImmaginiDiProva::ModuloA4(), "jpeg", 600);
}

void tst_SfondoUnaVoltaSola::init()
{
    prova_ = std::make_unique<EditoreDiProva>();
    percorso_ = prova_->Archivio.Stato().CartellaModelli + QStringLiteral("modulo.jpg");
    ImmaginiDiProva::Scrive(percorso_, a4_);
    prova_->Archivio.Riempie(30);
    ImmagineSfondo &sfondo = prova_->Archivio.DaAprire().Sfondo;
    sfondo.File = percorso_;
    sfondo.Visualizza = 1;
    sfondo.Ximmagine = QStringLiteral("210");
    sfondo.Yimmagine = QStringLiteral("297");
    const Aperture aperture(percorso_);
    QVERIFY(prova_->Apre());
    QVERIFY(aperture.Nuove() > 0); // the watch sees what it is meant to see
}

void tst_SfondoUnaVoltaSola::cleanup()
{
    prova_->Archivio.Stato().documento.Salvato();
    prova_.reset();
}

void tst_SfondoUnaVoltaSola::spintoSenzaRileggere()
{
    const Aperture aperture(percorso_);
    for (const char *freccia :
         {"SfondoSpostaDx", "SfondoSpostaGiu", "SfondoSpostaSx", "SfondoSpostaSu"}) {
        for (int volta = 0; volta < 3; ++volta) {
            const QImage prima = prova_->Foto();
            Preme(*prova_->Editor, freccia);
            QVERIFY2(prova_->Foto() != prima, freccia);
            QCOMPARE(aperture.Nuove(), 0);
        }
    }
}

void tst_SfondoUnaVoltaSola::spintoInVentiMillisecondi()
{
    constexpr int Spinte = 10;
    Preme(*prova_->Editor, "SfondoSpostaDx");
    QCoreApplication::processEvents();
    const TempoDiLavoro tempo;
    for (int volta = 0; volta < Spinte; ++volta) {
        Preme(*prova_->Editor, "SfondoSpostaDx");
        QCoreApplication::processEvents();
    }
    QVERIFY2(tempo.Entro(20 * Spinte), qPrintable(QString::number(tempo.MilliSecondi() / Spinte)));
}

void tst_SfondoUnaVoltaSola::ingranditoERimpicciolitoSenzaRileggere()
{
    const Aperture aperture(percorso_);
    const QImage intero = prova_->Foto();
    for (const char *zoom : {"2", "3", "1.5", "2"}) {
        prova_->Zoom(QLatin1String(zoom));
        QVERIFY2(prova_->Foto() != intero, zoom);
        QCOMPARE(aperture.Nuove(), 0);
    }
}

void tst_SfondoUnaVoltaSola::nascostoEMostratoSenzaRileggere()
{
    const Aperture aperture(percorso_);
    const QImage mostrato = prova_->Foto();
    Preme(*prova_->Editor, "VisualizzaImmagineSfondo");
    QVERIFY(prova_->Foto() != mostrato);
    Preme(*prova_->Editor, "VisualizzaImmagineSfondo");
    QCOMPARE(prova_->Foto(), mostrato);
    QCOMPARE(aperture.Nuove(), 0);
}

void tst_SfondoUnaVoltaSola::cambiatoSulDiscoRilettoAlDisegnoDopo()
{
    const QColor prima = Angolo();
    ImmaginiDiProva::Scrive(
        percorso_,
        ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({600, 800}, qRgb(255, 0, 0)), "jpeg"));
    Preme(*prova_->Editor, "SfondoSpostaSx");
    QVERIFY(Angolo() != prima);
    QVERIFY(Angolo().red() > 240 && Angolo().green() < 15);
}

void tst_SfondoUnaVoltaSola::caricatoDiNuovoDalBottone()
{
    // Another picture of the same length and, as a copying program leaves it, of the same time.
    const auto scrive = [this](QRgb colore) {
        ImmaginiDiProva::Scrive(percorso_, ImmaginiDiProva::InFormato(
                                               ImmaginiDiProva::Tinta({600, 800}, colore), "bmp"));
        QFile file(percorso_);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime(QDate(2026, 1, 1), QTime(12, 0)),
                                 QFileDevice::FileModificationTime));
    };
    scrive(qRgb(255, 0, 0));
    Preme(*prova_->Editor, "SfondoSpostaSx");
    QCOMPARE(Angolo(), QColor(255, 0, 0));
    scrive(qRgb(0, 0, 255));
    Robot robot;
    robot.Annulla(); // the sizes stay
    Preme(*prova_->Editor, "Command8");
    QVERIFY(robot.Soddisfatto());
    QCOMPARE(Angolo(), QColor(0, 0, 255));
}

void tst_SfondoUnaVoltaSola::guastoNonRilettoFinoACheNonCambia()
{
    // The first half of the scan: its header is that of a picture, its pixels are missing.
    ImmaginiDiProva::Scrive(percorso_, a4_.first(a4_.size() / 2));
    Robot robot;
    robot.Ok();
    Preme(*prova_->Editor, "SfondoSpostaDx");
    QVERIFY(robot.Soddisfatto());
    const Aperture aperture(percorso_);
    for (const char *freccia : {"SfondoSpostaDx", "SfondoSpostaGiu", "SfondoSpostaSx"}) {
        Preme(*prova_->Editor, freccia);
    }
    for (const char *zoom : {"2", "1"}) {
        prova_->Zoom(QLatin1String(zoom));
    }
    QCOMPARE(aperture.Nuove(), 0);
    QVERIFY2(robot.Soddisfatto(), "told once");
    robot.Annulla().Ok();
    Preme(*prova_->Editor, "Command8"); // asked for, so read
    QVERIFY(robot.Soddisfatto());
    QVERIFY(aperture.Nuove() > 0);

    const QImage senza = prova_->Foto();
    ImmaginiDiProva::Scrive(percorso_, a4_);
    Preme(*prova_->Editor, "SfondoSpostaSu");
    QVERIFY(robot.Soddisfatto());
    QVERIFY(prova_->Foto() != senza);
}

QTEST_MAIN(tst_SfondoUnaVoltaSola)
#include "tst_SfondoUnaVoltaSola.moc"

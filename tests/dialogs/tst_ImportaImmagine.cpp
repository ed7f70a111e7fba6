#include "dialogs/DialogoImmagine.h"
#include "finestre/Sfoglia.h"
#include "grafica/Immagini.h"
#include "support/guasti/GuastiDisco.h"

#include <QApplication>
#include <QDir>
#include <QImageReader>
#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QProgressDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <cerrno>

using namespace Controlli;

namespace {

/// Chooses the file in the browser as a user does, then confirms.
std::function<void(QDialog *)> Sceglie(const QString &file)
{
    return [file](QDialog *dialogo) {
        auto *sfoglia = qobject_cast<Sfoglia *>(dialogo);
        QVERIFY(sfoglia != nullptr);
        auto *elenco = Trova<QListView>(*sfoglia, "File1");
        const QModelIndexList voci =
            elenco->model()->match(elenco->model()->index(0, 0), Qt::DisplayRole, file, 1,
                                   Qt::MatchFixedString | Qt::MatchCaseSensitive);
        QCOMPARE(voci.size(), 1);
        elenco->setCurrentIndex(voci.first());
        Trova<QPushButton>(*sfoglia, "Command8")->click();
    };
}

} // namespace

/// "Importa...": a picture of any folder comes into that of the models.
class tst_ImportaImmagine : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void PngNellaCartellaEScelta();
    void GrandeChiedeComeUnClic();
    void FineQuantoServeAlRiquadroCheHa();
    void DomandaAnnullataLasciaIlRecord();
    void FotografiaInJpeg();
    void NomePresoDaUnFileODaUnImmagine_data();
    void NomePresoDaUnFileODaUnImmagine();
    void NomeCheUnModelloNonTiene();
    void RicordaLaCartella();
    void ChiusoSenzaScegliere();
    void NienteScrittoSeNonSiPuo_data();
    void NienteScrittoSeNonSiPuo();
    void CartellaProtettaDettaENienteARovescio();
    void DiscoPienoNienteResta();
    void LungaSiVedeESiAnnulla();
    void MiniatureDiCioCheSiImporta();

private:
    QString Fonte(const QString &nome, const QByteArray &byte) const
    {
        return ImmaginiDiProva::Scrive(fonti_->filePath(nome), byte);
    }
    /// Presses the button in a dialog that starts in the folder of the sources.
    void Importa(DialogoImmagine &p, const QString &file) const
    {
        p.stato.CartellaImportate = fonti_->path();
        p.robot.Agisce(Sceglie(file));
        Preme(p.dialogo, "Importa");
    }
    static QStringList File(const DialogoImmagine &p)
    {
        return QDir(p.cartella.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    std::unique_ptr<QTemporaryDir> fonti_;
};

void tst_ImportaImmagine::init()
{
    QLocale::setDefault(QLocale::c());
    fonti_ = std::make_unique<QTemporaryDir>();
}

void tst_ImportaImmagine::PngNellaCartellaEScelta()
{
    Fonte(QStringLiteral("logo.png"), Figura("png", 15, 10));
    DialogoImmagine p;
    const QStringList prima = File(p);
    Importa(p, QStringLiteral("logo.png"));
    QVERIFY2(p.robot.Soddisfatto(), qPrintable(p.robot.Testi().join(u'|')));
    QCOMPARE(File(p), prima + QStringList{QStringLiteral("logo.bmp")});
    QCOMPARE(Testo(p.dialogo, "Nome"), QStringLiteral("logo.bmp"));
    QCOMPARE(Trova<QListWidget>(p.dialogo, "FileImmagini")->currentItem()->text(),
             QStringLiteral("logo.bmp"));
    // Small: it takes the place that the record has, at once.
    QCOMPARE(p.Seconda().Nome, QStringLiteral("logo.bmp"));
    QCOMPARE(p.Seconda().Larghezza, 50.0);
    const QSizeF naturale =
        Immagini::DimensioniNaturali(p.cartella.filePath(QStringLiteral("logo.bmp")));
    QVERIFY(qAbs(naturale.width() - 15) < 0.1 && qAbs(naturale.height() - 10) < 0.1);
}

void tst_ImportaImmagine::GrandeChiedeComeUnClic()
{
    Fonte(QStringLiteral("grande.png"), Figura("png", 250, 100));
    DialogoImmagine p;
    p.stato.CartellaImportate = fonti_->path();
    p.robot.Agisce(Sceglie(QStringLiteral("grande.png"))).Digita(QStringLiteral("78"));
    Preme(p.dialogo, "Importa");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.robot.Titoli().last(), QStringLiteral("caricamento immagine grande.bmp"));
    QCOMPARE(p.robot.Predefiniti().last(), QStringLiteral("78"));
    QCOMPARE(Testo(p.dialogo, "Largh"), QStringLiteral("195"));
    QCOMPARE(p.Seconda().Altezza, 78.0);
}

void tst_ImportaImmagine::FineQuantoServeAlRiquadroCheHa()
{
    // 40 x 20 mm at 1270 dots per inch: 2000 x 1000 pixels.
    Fonte(QStringLiteral("fine.png"),
          ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({2000, 1000}, qRgb(9, 99, 9)), "png",
                                     1270));
    DialogoImmagine p;
    p.stato.CartellaImportate = fonti_->path();
    p.robot.Agisce(Sceglie(QStringLiteral("fine.png"))).Digita(QStringLiteral("50"));
    Preme(p.dialogo, "Importa");
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(qRound(p.Seconda().Larghezza), 20);
    const QString file = p.cartella.filePath(QStringLiteral("fine.bmp"));
    QCOMPARE(QImage(file).size(), QSize(472, 236)); // 20 x 10 mm at 600
    QVERIFY(qAbs(Immagini::DimensioniNaturali(file).width() - 40) < 1);
}

void tst_ImportaImmagine::DomandaAnnullataLasciaIlRecord()
{
    Fonte(QStringLiteral("grande.png"), Figura("png", 250, 100));
    DialogoImmagine p;
    const Immagine prima = p.Seconda();
    p.stato.CartellaImportate = fonti_->path();
    p.robot.Agisce(Sceglie(QStringLiteral("grande.png"))).Annulla();
    Preme(p.dialogo, "Importa");
    QVERIFY(p.robot.Soddisfatto());
    QVERIFY(p.Seconda() == prima);
    QVERIFY(File(p).contains(QStringLiteral("grande.bmp")));
}

void tst_ImportaImmagine::FotografiaInJpeg()
{
    Fonte(QStringLiteral("foto.png"),
          ImmaginiDiProva::InFormato(
              QImage::fromData(ImmaginiDiProva::InFormato(
                  ImmaginiDiProva::Fotografia({150, 100}, 5), "jpeg")), // as cameras give them
              "png", 254));
    DialogoImmagine p;
    Importa(p, QStringLiteral("foto.png"));
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.Seconda().Nome, QStringLiteral("foto.jpg"));
}

void tst_ImportaImmagine::NomePresoDaUnFileODaUnImmagine_data()
{
    QTest::addColumn<QString>("fonte");
    QTest::addColumn<QString>("nome");
    QTest::newRow("a file, in other letters")
        << QStringLiteral("logo.png") << QStringLiteral("logo_2.bmp");
    QTest::newRow("an image without its file")
        << QStringLiteral("VECCHIA1.png") << QStringLiteral("VECCHIA1_2.bmp");
    QTest::newRow("free") << QStringLiteral("altro.png") << QStringLiteral("altro.bmp");
}

void tst_ImportaImmagine::NomePresoDaUnFileODaUnImmagine()
{
    QFETCH(QString, fonte);
    QFETCH(QString, nome);
    Fonte(fonte, Figura("png", 15, 10));
    DialogoImmagine p;
    p.Aggiunge("LOGO.BMP", "altri byte");
    Importa(p, fonte);
    QVERIFY(p.robot.Soddisfatto());
    QCOMPARE(p.Seconda().Nome, nome);
    QFile altro(p.cartella.filePath(QStringLiteral("LOGO.BMP")));
    QVERIFY(altro.open(QIODevice::ReadOnly));
    QCOMPARE(altro.readAll(), QByteArray("altri byte"));
}

void tst_ImportaImmagine::NomeCheUnModelloNonTiene()
{
    const QString fonte = QStringLiteral("商标 Łódź.png");
    Fonte(fonte, Figura("png", 15, 10));
    DialogoImmagine p;
    Importa(p, fonte);
    QVERIFY2(p.robot.Soddisfatto(), qPrintable(p.robot.Testi().join(u'|')));
    QCOMPARE(p.Seconda().Nome, QStringLiteral("__ _ódz.bmp"));
}

void tst_ImportaImmagine::RicordaLaCartella()
{
    QVERIFY(QDir(fonti_->path()).mkdir(QStringLiteral("loghi")));
    Fonte(QStringLiteral("loghi/a.png"), Figura("png", 5, 5));
    DialogoImmagine p;
    p.stato.CartellaImportate = fonti_->filePath(QStringLiteral("loghi"));
    p.robot.Agisce(Sceglie(QStringLiteral("a.png")));
    Preme(p.dialogo, "Importa");
    QString aperta;
    p.robot.Agisce([&aperta](QDialog *dialogo) {
        aperta = qobject_cast<Sfoglia *>(dialogo)->CartellaAperta();
        dialogo->reject();
    });
    Preme(p.dialogo, "Importa");
    QCOMPARE(aperta, QDir::toNativeSeparators(fonti_->filePath(QStringLiteral("loghi"))));
}

void tst_ImportaImmagine::ChiusoSenzaScegliere()
{
    DialogoImmagine p;
    const QStringList file = File(p);
    const Immagine prima = p.Seconda();
    RisultatoSfoglia() = QStringLiteral("di prima");
    p.robot.Agisce([](QDialog *dialogo) { dialogo->reject(); });
    Preme(p.dialogo, "Importa");
    QVERIFY(p.robot.Soddisfatto());
    QVERIFY(p.Seconda() == prima);
    QCOMPARE(File(p), file);
}

void tst_ImportaImmagine::NienteScrittoSeNonSiPuo_data()
{
    QTest::addColumn<QByteArray>("byte");
    QTest::addColumn<QString>("motivo");
    const QString illeggibile = QStringLiteral("non è un'immagine in un formato leggibile");
    QTest::newRow("empty") << QByteArray() << illeggibile;
    QTest::newRow("text") << QByteArray("Fattura di prova") << illeggibile;
    QTest::newRow("cut") << Figura("png", 100, 100).left(60) << illeggibile;
    QTest::newRow("huge") << QByteArray("P6\n32000 32000\n255\n")
                          << QStringLiteral("troppo grande");
}

void tst_ImportaImmagine::NienteScrittoSeNonSiPuo()
{
    QFETCH(QByteArray, byte);
    QFETCH(QString, motivo);
    Fonte(QStringLiteral("x.png"), byte);
    DialogoImmagine p;
    const QStringList file = File(p);
    const Immagine prima = p.Seconda();
    p.stato.CartellaImportate = fonti_->path();
    p.robot.Agisce(Sceglie(QStringLiteral("x.png"))).Ok();
    Preme(p.dialogo, "Importa");
    QVERIFY(p.robot.Soddisfatto());
    const QString detto = p.robot.Testi().last();
    QVERIFY2(detto.startsWith(QStringLiteral("impossibile importare l'immagine ")) &&
                 detto.contains(QStringLiteral("x.png")) && detto.contains(motivo),
             qPrintable(detto));
    QVERIFY(p.Seconda() == prima);
    QCOMPARE(File(p), file);
    QVERIFY(p.dialogo.isVisible());
}

void tst_ImportaImmagine::CartellaProtettaDettaENienteARovescio()
{
    Fonte(QStringLiteral("logo.png"), Figura("png", 15, 10));
    DialogoImmagine p;
    const Immagine prima = p.Seconda();
    // Gone while the browser is open: nothing can be written there any more.
    p.stato.CartellaImportate = fonti_->path();
    const std::function<void(QDialog *)> sceglie = Sceglie(QStringLiteral("logo.png"));
    p.robot
        .Agisce([&](QDialog *dialogo) {
            QVERIFY(p.cartella.remove());
            sceglie(dialogo);
        })
        .Ok();
    Preme(p.dialogo, "Importa");
    QVERIFY(p.robot.Soddisfatto());
    QVERIFY2(p.robot.Testi().last().contains(QStringLiteral("errore 76")),
             qPrintable(p.robot.Testi().last()));
    QVERIFY(p.Seconda() == prima);
}

void tst_ImportaImmagine::DiscoPienoNienteResta()
{
    Fonte(QStringLiteral("logo.png"), Figura("png", 15, 10));
    DialogoImmagine p;
    const QStringList file = File(p);
    const Immagine prima = p.Seconda();
    p.stato.CartellaImportate = fonti_->path();
    p.robot.Agisce(Sceglie(QStringLiteral("logo.png"))).Ok();
    const GuastiDisco guasto(GuastiDisco::Chiamata::SincronizzaFile, ENOSPC);
    Preme(p.dialogo, "Importa");
    QVERIFY(p.robot.Soddisfatto());
    QVERIFY2(p.robot.Testi().last().contains(QStringLiteral("errore 61 Disco pieno")),
             qPrintable(p.robot.Testi().last()));
    QCOMPARE(File(p), file);
    QVERIFY(p.Seconda() == prima);
}

void tst_ImportaImmagine::LungaSiVedeESiAnnulla()
{
    // Takes seconds to unpack: the window must not wait for it.
    const QSize pixel(11000, 11000);
    QImage grigia(pixel, QImage::Format_Grayscale8);
    for (int y = 0; y < pixel.height(); ++y) {
        uchar *riga = grigia.scanLine(y);
        for (int x = 0; x < pixel.width(); ++x) {
            riga[x] = uchar((x * 7 + y * 13 + x * y / 97) & 0xFF);
        }
    }
    Fonte(QStringLiteral("lunga.png"), ImmaginiDiProva::InFormato(grigia, "png"));
    DialogoImmagine p;
    const QStringList file = File(p);
    const Immagine prima = p.Seconda();
    p.stato.CartellaImportate = fonti_->path();
    p.robot.Agisce(Sceglie(QStringLiteral("lunga.png")));
    QString detto;
    QTimer guarda;
    QObject::connect(&guarda, &QTimer::timeout, &p.dialogo, [&detto] {
        auto *avviso = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
        if (avviso != nullptr && detto.isEmpty()) {
            detto = avviso->findChild<QLabel *>()->text();
            auto *annulla = avviso->findChild<QPushButton *>();
            QCOMPARE(annulla->text(), QStringLiteral("Annulla"));
            annulla->click();
        }
    });
    guarda.start(10);
    Preme(p.dialogo, "Importa");
    QVERIFY(p.robot.Soddisfatto());
    QVERIFY2(detto.startsWith(QStringLiteral("Importazione di ")), qPrintable(detto));
    QVERIFY(p.Seconda() == prima);
    QCOMPARE(File(p), file);
}

void tst_ImportaImmagine::MiniatureDiCioCheSiImporta()
{
    QStringList nomi;
    for (const char *formato : {"png", "webp", "tiff", "bmp"}) {
        if (QImageReader::supportedImageFormats().contains(formato)) {
            nomi.append(QStringLiteral("a.") + QString::fromLatin1(formato));
            Fonte(nomi.last(), Figura(formato, 15, 10));
        }
    }
    nomi.append(QStringLiteral("a.svg"));
    Fonte(nomi.last(), "<svg xmlns='http://www.w3.org/2000/svg' width='9mm' height='9mm'/>");
    DialogoImmagine p;
    p.stato.CartellaImportate = fonti_->path();
    p.robot.Agisce([&](QDialog *dialogo) {
        const auto *elenco = Trova<QListView>(*dialogo, "File1");
        const auto *miniature = qobject_cast<MiniatureFile *>(elenco->itemDelegate());
        for (const QString &nome : nomi) {
            QTRY_VERIFY2(!miniature->Miniatura(nome).isNull(), qPrintable(nome));
        }
        dialogo->reject();
    });
    Preme(p.dialogo, "Importa");
    QVERIFY(p.robot.Soddisfatto());
    // Elsewhere only what a model can name is shown.
    Sfoglia scansioni;
    scansioni.FileEntrata()->setText(fonti_->filePath(QStringLiteral("a.bmp")));
    scansioni.show();
    const auto *elenco = Trova<QListView>(scansioni, "File1");
    const auto *miniature = qobject_cast<MiniatureFile *>(elenco->itemDelegate());
    QTRY_VERIFY(!miniature->Miniatura(QStringLiteral("a.bmp")).isNull());
    QTRY_VERIFY(miniature->Fermo());
    QVERIFY(miniature->Miniatura(QStringLiteral("a.png")).isNull());
}

QTEST_MAIN(tst_ImportaImmagine)
#include "tst_ImportaImmagine.moc"

#include "finestre/MiniatureFile.h"
#include "support/ImmaginiDiProva.h"

#include <QDir>
#include <QElapsedTimer>
#include <QListView>
#include <QStringListModel>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>

#include <memory>

/// Small pictures beside the names of files.
class tst_MiniatureFile : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void LImmagineAccantoAlNome();
    void NienteDiCioCheNonELeggibile();
    void NientePrimaDelPrimoDisegno();
    void SoloLeRigheInVista();
    void ScorrendoArrivanoLeAltre();
    void LeProporzioniRestano();
    void AltraCartellaAltreImmagini();
    void ChiusaMentreLegge();
    void LaListaRispondeMentreLegge();
    void ScorrendoSiLasciaCioCheSiLegge();

private:
    void Scrive(const QString &nome, const QByteArray &byte) const
    {
        ImmaginiDiProva::Scrive(cartella_->filePath(nome), byte);
    }
    void Elenca(const QStringList &nomi)
    {
        miniature_->ImpostaCartella(cartella_->path());
        nomi_.setStringList(nomi);
    }
    void Mostra() const
    {
        lista_->show();
        QVERIFY(QTest::qWaitForWindowExposed(lista_.get()));
    }
    static QByteArray Rossa()
    {
        return ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({300, 200}, qRgb(255, 0, 0)),
                                          "bmp");
    }
    /// Pixels of that colour in the list as it is painted.
    int Pixel(QRgb colore) const
    {
        const QImage foto = lista_->grab().toImage();
        int quanti = 0;
        for (int y = 0; y < foto.height(); ++y) {
            for (int x = 0; x < foto.width(); ++x) {
                quanti += foto.pixel(x, y) == colore ? 1 : 0;
            }
        }
        return quanti;
    }

    std::unique_ptr<QTemporaryDir> cartella_;
    QStringListModel nomi_;
    std::unique_ptr<QListView> lista_;
    MiniatureFile *miniature_ = nullptr;
};

void tst_MiniatureFile::init()
{
    cartella_ = std::make_unique<QTemporaryDir>();
    lista_ = std::make_unique<QListView>();
    lista_->setUniformItemSizes(true);
    lista_->setModel(&nomi_);
    lista_->resize(300, 200);
    miniature_ = new MiniatureFile(lista_.get());
}

void tst_MiniatureFile::LImmagineAccantoAlNome()
{
    Scrive(QStringLiteral("a.bmp"), Rossa());
    Elenca({QStringLiteral("a.bmp")});
    Mostra();
    QTRY_VERIFY(!miniature_->Miniatura(QStringLiteral("a.bmp")).isNull());
    const QSize misura = miniature_->Misura();
    QTRY_VERIFY(Pixel(qRgb(255, 0, 0)) > misura.width() * misura.height() / 2);
    const QModelIndex riga = nomi_.index(0);
    QVERIFY(lista_->visualRect(riga).height() >= misura.height());
}

void tst_MiniatureFile::NienteDiCioCheNonELeggibile()
{
    Scrive(QStringLiteral("a.bmp"), "non è un'immagine");
    Scrive(QStringLiteral("b.jpg"), Rossa().left(2000));
    Scrive(QStringLiteral("vuoto.gif"), {});
    QVERIFY(QDir(cartella_->path()).mkdir(QStringLiteral("cartella.bmp")));
    Scrive(QStringLiteral("z.bmp"), Rossa());
    Elenca({QStringLiteral("a.bmp"), QStringLiteral("b.jpg"), QStringLiteral("vuoto.gif"),
            QStringLiteral("cartella.bmp"), QStringLiteral("manca.bmp"), QStringLiteral("z.bmp")});
    lista_->resize(300, 400);
    Mostra();
    QTRY_VERIFY(!miniature_->Miniatura(QStringLiteral("z.bmp")).isNull()); // the last one asked for
    for (const char *nome : {"a.bmp", "b.jpg", "vuoto.gif", "cartella.bmp", "manca.bmp"}) {
        QVERIFY2(miniature_->Miniatura(QString::fromLatin1(nome)).isNull(), nome);
    }
    QVERIFY(miniature_->Fermo());
    lista_->grab(); // what is no picture is not asked for again
    QVERIFY(miniature_->Fermo());
}

void tst_MiniatureFile::NientePrimaDelPrimoDisegno()
{
    Scrive(QStringLiteral("a.bmp"), Rossa());
    Elenca({QStringLiteral("a.bmp")});
    QCoreApplication::processEvents();
    QVERIFY(miniature_->Fermo());
    QVERIFY(miniature_->Miniatura(QStringLiteral("a.bmp")).isNull());
    lista_->grab();
    QVERIFY(!miniature_->Fermo());
    QVERIFY(miniature_->Miniatura(QStringLiteral("a.bmp")).isNull()); // painted without it first
}

void tst_MiniatureFile::SoloLeRigheInVista()
{
    QStringList nomi;
    for (int i = 0; i < 60; ++i) {
        nomi.append(QStringLiteral("%1.bmp").arg(i, 2, 10, QLatin1Char('0')));
        Scrive(nomi.last(), Rossa());
    }
    Elenca(nomi);
    Mostra();
    QTRY_VERIFY(miniature_->Fermo() && !miniature_->Miniatura(nomi.first()).isNull());
    QVERIFY(miniature_->Miniatura(nomi[30]).isNull());
    QVERIFY(miniature_->Miniatura(nomi.last()).isNull());
}

void tst_MiniatureFile::ScorrendoArrivanoLeAltre()
{
    QStringList nomi;
    for (int i = 0; i < 60; ++i) {
        nomi.append(QStringLiteral("%1.bmp").arg(i, 2, 10, QLatin1Char('0')));
        Scrive(nomi.last(), Rossa());
    }
    Elenca(nomi);
    Mostra();
    lista_->grab();
    lista_->scrollToBottom(); // before any has been read
    QTRY_VERIFY(!miniature_->Miniatura(nomi.last()).isNull());
    QTRY_VERIFY(miniature_->Fermo());
    QVERIFY(miniature_->Miniatura(nomi[30]).isNull());
    // Those that were waiting have been passed over, but for the one that was being read.
    QVERIFY(miniature_->Miniatura(nomi[3]).isNull());
}

void tst_MiniatureFile::LeProporzioniRestano()
{
    Scrive(QStringLiteral("larga.bmp"),
           ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({400, 100}, qRgb(0, 0, 255)), "bmp"));
    Elenca({QStringLiteral("larga.bmp")});
    Mostra();
    QTRY_VERIFY(Pixel(qRgb(0, 0, 255)) > 0);
    const QImage foto = lista_->grab().toImage();
    int larghezza = 0;
    int altezza = 0;
    for (int y = 0; y < foto.height(); ++y) {
        int nellaRiga = 0;
        for (int x = 0; x < foto.width(); ++x) {
            nellaRiga += foto.pixel(x, y) == qRgb(0, 0, 255) ? 1 : 0;
        }
        larghezza = qMax(larghezza, nellaRiga);
        altezza += nellaRiga > 0 ? 1 : 0;
    }
    QVERIFY2(qAbs(larghezza - 4 * altezza) <= 4,
             qPrintable(QStringLiteral("%1 x %2").arg(larghezza).arg(altezza)));
}

void tst_MiniatureFile::AltraCartellaAltreImmagini()
{
    Scrive(QStringLiteral("a.bmp"), Rossa());
    Elenca({QStringLiteral("a.bmp")});
    Mostra();
    QTRY_VERIFY(!miniature_->Miniatura(QStringLiteral("a.bmp")).isNull());
    const QTemporaryDir altra;
    ImmaginiDiProva::Scrive(
        altra.filePath(QStringLiteral("a.bmp")),
        ImmaginiDiProva::InFormato(ImmaginiDiProva::Tinta({300, 200}, qRgb(0, 255, 0)), "bmp"));
    miniature_->ImpostaCartella(altra.path());
    nomi_.setStringList({QStringLiteral("a.bmp")});
    QVERIFY(miniature_->Miniatura(QStringLiteral("a.bmp")).isNull());
    QTRY_VERIFY(Pixel(qRgb(0, 255, 0)) > 0);
    QCOMPARE(Pixel(qRgb(255, 0, 0)), 0);
}

void tst_MiniatureFile::ChiusaMentreLegge()
{
    Scrive(QStringLiteral("modulo.jpg"),
           ImmaginiDiProva::InFormato(ImmaginiDiProva::ModuloA4(), "jpeg", 600));
    Elenca({QStringLiteral("modulo.jpg")});
    Mostra();
    QTRY_VERIFY(!miniature_->Fermo());
    QElapsedTimer tempo;
    tempo.start();
    lista_.reset();
    QVERIFY(tempo.elapsed() < 200); // it does not wait for what is being read
}

void tst_MiniatureFile::LaListaRispondeMentreLegge()
{
    const QByteArray modulo = ImmaginiDiProva::InFormato(ImmaginiDiProva::ModuloA4(), "jpeg", 600);
    QStringList nomi;
    for (int i = 0; i < 4; ++i) {
        nomi.append(QStringLiteral("%1.jpg").arg(i));
        Scrive(nomi.last(), modulo);
    }
    Elenca(nomi);
    Mostra();
    lista_->grab();
    QTRY_VERIFY(!miniature_->Fermo());
    QTest::keyClick(lista_.get(), Qt::Key_End);
    QCOMPARE(lista_->currentIndex().row(), nomi.size() - 1);
    QVERIFY(miniature_->Miniatura(nomi.first()).isNull()); // still being read
    QTRY_VERIFY(miniature_->Fermo() && !miniature_->Miniatura(nomi.last()).isNull());
}

void tst_MiniatureFile::ScorrendoSiLasciaCioCheSiLegge()
{
    // The first picture is never done; the others are at once.
    struct Prima
    {
        std::atomic<bool> iniziata{false};
        std::atomic<bool> lasciata{false};
    };
    const auto prima = std::make_shared<Prima>();
    miniature_->ImpostaLettore([prima](const QString &percorso, const QSize &entro,
                                       const LavoroInDisparte::Annullato &annullato) {
        while (percorso.endsWith(QStringLiteral("/00.bmp")) && !prima->lasciata) {
            prima->iniziata = true;
            prima->lasciata = annullato();
            QThread::yieldCurrentThread();
        }
        return ImmaginiDiProva::Tinta(entro, qRgb(255, 0, 0));
    });
    QStringList nomi;
    for (int i = 0; i < 60; ++i) {
        nomi.append(QStringLiteral("%1.bmp").arg(i, 2, 10, QLatin1Char('0')));
    }
    Elenca(nomi);
    Mostra();
    lista_->grab();
    QTRY_VERIFY(prima->iniziata);
    lista_->scrollToBottom();
    QTRY_VERIFY(!miniature_->Miniatura(nomi.last()).isNull());
    QTRY_VERIFY(prima->lasciata);
    QVERIFY(miniature_->Miniatura(nomi.first()).isNull());
    lista_->scrollToTop(); // it is asked for again
    QTRY_VERIFY(!miniature_->Miniatura(nomi.first()).isNull());
}

QTEST_MAIN(tst_MiniatureFile)
#include "tst_MiniatureFile.moc"

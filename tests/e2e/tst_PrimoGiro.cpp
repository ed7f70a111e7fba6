#include "Scrivania.h"
#include "support/Rettangoli.h"

#include <QDir>
#include <QTest>

#include <cstdlib>

/// The first steps of a user, on a real screen: what stands where, and what is left behind.
class tst_PrimoGiro : public QObject
{
    Q_OBJECT

private slots:
    void finestraIniziale();
    void editorEAnteprimaAlLoroPosto();
    void chiusoLEditorTornaLaFinestraIniziale();
    void secondaIstanza();
    void unaCartellaAlPostoDelLucchetto();
    void dirtxtMancante();
    void allUscitaNonRestaNulla();
};

namespace {

/// Processes that run with these folders.
QStringList ProcessiDi(const Scrivania &scrivania)
{
    QStringList trovati;
    const QByteArray segno = "XDG_STATE_HOME=" + scrivania.Stato().toUtf8();
    const QStringList numeri = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString &numero : numeri) {
        QFile ambiente(QStringLiteral("/proc/%1/environ").arg(numero));
        if (ambiente.open(QIODevice::ReadOnly) && ambiente.readAll().contains(segno)) {
            trovati.append(numero);
        }
    }
    return trovati;
}

/// The smallest rectangle around the zone's pixels of that colour.
QRect Macchia(const QImage &foto, const QRect &zona, QRgb colore)
{
    QRect macchia;
    for (int y = zona.top(); y <= zona.bottom(); ++y) {
        for (int x = zona.left(); x <= zona.right(); ++x) {
            if ((foto.pixel(x, y) & 0xFFFFFF) == (colore & 0xFFFFFF)) {
                macchia |= QRect(x, y, 1, 1);
            }
        }
    }
    return macchia;
}

} // namespace

void tst_PrimoGiro::finestraIniziale()
{
    Scrivania scrivania;
    scrivania.Avvia();
    const Schermo::Finestra inizio = scrivania.Video().Attende(Scrivania::TitoloInizio);
    QCOMPARE(inizio.Titolo, QStringLiteral("Plakera - Modelli stampa per gestionale Vastrel "));
    QVERIFY(scrivania.Video().Pixel().contains(inizio.Ingombro()));
    scrivania.Video().AttendeQui(QStringLiteral("the program's icon"),
                                 [&] { return scrivania.Video().HaIcona(inizio); });
    // In the middle of the screen with its frame, wherever the window manager puts that.
    scrivania.Video().AttendeQui(QStringLiteral("the start window in the middle"), [&] {
        const QRect ingombro = scrivania.Video().Attende(Scrivania::TitoloInizio).Ingombro();
        const QPoint scarto = ingombro.center() - scrivania.Video().Pixel().center();
        return std::abs(scarto.x()) <= 2 && std::abs(scarto.y()) <= 2;
    });
    // Of the two archives the second is selected: one row's height below the top of its list.
    const QRect archivi(inizio.Interno.topLeft(),
                        QSize(inizio.Interno.width() / 3, inizio.Interno.height()));
    QRect elenco;
    QRect scelto;
    scrivania.Video().AttendeQui(QStringLiteral("a selected archive"), [&] {
        const QImage foto = scrivania.Video().Foto();
        elenco = Macchia(foto, archivi, 0xFFFFFF);
        scelto = Macchia(foto, archivi, 0x308CC6);
        return !scelto.isNull();
    });
    QVERIFY2(elenco.contains(scelto) && scelto.height() < elenco.height() / 4, Testo(scelto));
    const double riga = double(scelto.top() - elenco.top()) / scelto.height();
    QVERIFY2(riga > 0.8 && riga < 1.5, Testo(scelto));
    // Without a hand on the list of archives, its model opens.
    scrivania.ApreModello(QStringLiteral("Fattura_Rossi"));
}

void tst_PrimoGiro::editorEAnteprimaAlLoroPosto()
{
    Scrivania scrivania;
    scrivania.Avvia();
    scrivania.ApreModello(QStringLiteral("Fattura_Rossi"));
    const QRect editor = scrivania.Editor().Ingombro();
    const QRect anteprima = scrivania.Anteprima().Ingombro();
    const QRect schermo = scrivania.Video().Pixel();
    QVERIFY2(schermo.contains(editor), Testo(editor));
    QVERIFY2(schermo.contains(anteprima), Testo(anteprima));
    QVERIFY2(editor.topLeft() == QPoint(0, 0) && editor.width() == schermo.width(), Testo(editor));
    QVERIFY2(editor.height() <= 200, Testo(editor));
    QVERIFY2(!editor.intersects(anteprima), Testo(anteprima));
    QVERIFY2(anteprima.top() == 200 && anteprima.bottom() == schermo.bottom(), Testo(anteprima));
    QVERIFY2(anteprima.width() == schermo.width(), Testo(anteprima));
}

void tst_PrimoGiro::chiusoLEditorTornaLaFinestraIniziale()
{
    Scrivania scrivania;
    scrivania.Avvia();
    scrivania.ApreModello(QStringLiteral("Fattura_Rossi"));
    QVERIFY(!scrivania.Video().Vede(Scrivania::TitoloInizio));
    scrivania.ChiudeEditor();
    QCOMPARE(scrivania.Video().Finestre().size(), 1);
    // The other way to leave: the preview's close box.
    scrivania.ApreModello(QStringLiteral("Fattura_Rossi"));
    scrivania.Anteprima();
    scrivania.Video().Tasti({QStringLiteral("alt+F4")});
    scrivania.Video().Attende(Scrivania::TitoloInizio);
    QCOMPARE(scrivania.Video().Finestre().size(), 1);
}

void tst_PrimoGiro::secondaIstanza()
{
    Scrivania scrivania;
    scrivania.Avvia();
    scrivania.Video().Attende(Scrivania::TitoloInizio);
    const auto seconda = scrivania.Nuovo();
    scrivania.Video().Attende(Scrivania::TitoloRiquadro);
    scrivania.Video().Tasti({QStringLiteral("Return")});
    QCOMPARE(Scrivania::EsitoDi(*seconda), 1);
    QCOMPARE(scrivania.Programma().state(), QProcess::Running);
    scrivania.Video().Attende(Scrivania::TitoloInizio);
    QCOMPARE(scrivania.Video().Finestre().size(), 1);
    // A first instance that was killed keeps nobody out.
    scrivania.Uccide();
    scrivania.Avvia();
    scrivania.Video().Attende(Scrivania::TitoloInizio);
}

void tst_PrimoGiro::unaCartellaAlPostoDelLucchetto()
{
    Scrivania scrivania;
    QVERIFY(QDir().mkpath(scrivania.In(QStringLiteral("esecuzione/plakera.lock"))));
    scrivania.Avvia();
    scrivania.Video().Attende(Scrivania::TitoloInizio);
    QCOMPARE(scrivania.Video().Finestre().size(), 1);
}

void tst_PrimoGiro::dirtxtMancante()
{
    Scrivania scrivania;
    QVERIFY(QFile::remove(scrivania.Impostazioni() + QStringLiteral("/vastrel.ini")));
    scrivania.Avvia();
    scrivania.Video().Attende(Scrivania::TitoloRiquadro);
    QVERIFY(!scrivania.Video().Vede(Scrivania::TitoloInizio));
    scrivania.Video().Tasti({QStringLiteral("Return")});
    QCOMPARE(Scrivania::EsitoDi(scrivania.Programma()), 1);
    QVERIFY(ProcessiDi(scrivania).isEmpty());
}

void tst_PrimoGiro::allUscitaNonRestaNulla()
{
    Scrivania scrivania;
    scrivania.Avvia();
    scrivania.ApreModello(QStringLiteral("Fattura_Rossi"));
    QCOMPARE(ProcessiDi(scrivania).size(), 1);
    scrivania.ChiudeEditor();
    scrivania.ChiudeInizio();
    QCOMPARE(Scrivania::EsitoDi(scrivania.Programma()), 0);
    QVERIFY(ProcessiDi(scrivania).isEmpty());
    QVERIFY(QDir(scrivania.In(QStringLiteral("esecuzione"))).isEmpty());
    QVERIFY(QDir(scrivania.Stato()).isEmpty());
    QCOMPARE(scrivania.Programma().readAllStandardError(), QByteArray());
}

QTEST_GUILESS_MAIN(tst_PrimoGiro)
#include "tst_PrimoGiro.moc"

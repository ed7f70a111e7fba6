#include "Copione.h"
#include "Modelli.h"
#include "support/Generi.h"

#include <QGuiApplication>
#include <QTest>

namespace {

constexpr const char *AltroSchermo = "recorded on another screen, on which the sheet scrolls";

/// The preview is as large as the screen: what is scrolled, or led past the edges, is recorded as
/// it is on Qt's own, that of the platform "offscreen".
bool SulloSchermoDeiVerbali()
{
    return QGuiApplication::platformName() == QLatin1String("offscreen");
}

} // namespace

/// What the mouse does on the sheet, held against the records in comportamento/.
class tst_ComportamentoFoglio : public QObject
{
    Q_OBJECT
private slots:
    void Puntare();
    void Aprire();
    void Trascinare_data();
    void Trascinare();
    void OltreIBordi_data();
    void OltreIBordi();
    void Ridimensionare_data();
    void Ridimensionare();
    void Sovrapposti();
    void NelMezzoDiUnGesto();

private:
    static void Scale(const char *registro)
    {
        QTest::addColumn<QString>("zoom");
        QTest::addColumn<QString>("registro");
        for (const char *zoom : {"1", "2", "2.5"}) {
            QTest::newRow(zoom) << QString::fromLatin1(zoom)
                                << QString::fromLatin1(registro) + u'_' + QLatin1String(zoom);
        }
    }
    static void ApreAScala(Copione &c)
    {
        QFETCH(QString, zoom);
        RiempieMisto(c.Posto);
        c.Apre();
        c.Passo(QStringLiteral("zoom ") + zoom, [&] { c.Posto.Zoom(zoom); });
    }
};

void tst_ComportamentoFoglio::Puntare()
{
    if (!SulloSchermoDeiVerbali()) {
        QSKIP(AltroSchermo);
    }
    Copione c("puntare");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    const QPointF vuoto(5, 5);
    c.Passo("sorvola un campo", [&] { p.Sorvola(p.Mezzo(Genere::Campo, 2)); });
    c.Passo("sorvola la sua maniglia", [&] { p.Sorvola({120.4, 31.4}); });
    c.Passo("sorvola un altro campo", [&] { p.Sorvola(p.Mezzo(Genere::Campo, 4)); });
    c.Passo("sorvola il foglio vuoto", [&] { p.Sorvola(vuoto); });
    c.Passo("clicca un campo", [&] { p.Clicca(p.Mezzo(Genere::Campo, 1)); });
    c.Passo("sorvola una cornice", [&] { p.Sorvola(p.Mezzo(Genere::Cornice, 1)); });
    c.Passo("clicca una cornice", [&] { p.Clicca(p.Mezzo(Genere::Cornice, 1)); });
    c.Passo("sorvola il suo bordo destro", [&] { p.Sorvola({69.6, 60}); });
    c.Passo("sorvola il suo bordo basso", [&] { p.Sorvola({50, 69.6}); });
    c.Passo("sorvola il suo angolo", [&] { p.Sorvola({69.6, 69.6}); });
    c.Passo("clicca una linea", [&] { p.Clicca(p.Mezzo(Genere::Cornice, 2)); });
    c.Passo("sorvola il bordo della linea", [&] { p.Sorvola({131.6, 55}); });
    c.Passo("clicca un'etichetta", [&] { p.Clicca(p.Mezzo(Genere::Cornice, 3)); });
    c.Passo("sorvola il bordo dell'etichetta", [&] { p.Sorvola({54.6, 83}); });
    c.Passo("clicca un'immagine", [&] { p.Clicca(p.Mezzo(Genere::Immagine, 1)); });
    c.Passo("sorvola il suo angolo", [&] { p.Sorvola({180.2, 29.9}); });
    c.Passo("clicca un'immagine che manca", [&] { p.Clicca(p.Mezzo(Genere::Immagine, 2)); });
    c.Passo("clicca il foglio vuoto", [&] { p.Clicca(vuoto); });
    c.Passo("trascina sul foglio vuoto", [&] { p.Trascina(vuoto, {9, 20}); });
    c.Passo("tasto destro sul foglio vuoto", [&] { p.Clicca(vuoto, Qt::RightButton); });
    c.Passo("tasto centrale su una cornice",
            [&] { p.Clicca(p.Mezzo(Genere::Cornice, 1), Qt::MiddleButton); });
    c.Confronta();
}

void tst_ComportamentoFoglio::Aprire()
{
    if (!SulloSchermoDeiVerbali()) {
        QSKIP(AltroSchermo);
    }
    Copione c("aprire");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    for (const Genere genere : Generi) {
        c.Dialogo([](DialogoInScena &d) { d.Chiude(); });
        c.Passo("tasto destro", [&] { p.Clicca(p.Mezzo(genere, 2), Qt::RightButton); });
        c.Dialogo([](DialogoInScena &d) { d.Chiude(); });
        c.Passo("doppio click", [&] { p.CliccaDueVolte(p.Mezzo(genere, 1)); });
        c.Dialogo([&](DialogoInScena &d) {
            d.Digita("X", "60");
            d.Digita("Y", "70");
            d.Preme(BottoneConferma(genere));
        });
        c.Passo("e conferma", [&] { p.Clicca(p.Mezzo(genere, 1), Qt::RightButton); });
        c.Dialogo([&](DialogoInScena &d) {
            c.Si();
            d.Preme(BottoneElimina(genere));
        });
        c.Passo("ed elimina", [&] { p.CliccaDueVolte(p.Mezzo(genere, 1)); });
        c.Passo("dove stava non c'è più nulla", [&] { p.Clicca({64, 74}); });
    }
    c.Confronta();
}

void tst_ComportamentoFoglio::Trascinare_data()
{
    Scale("trascinare");
}

void tst_ComportamentoFoglio::Trascinare()
{
    QFETCH(QString, registro);
    Copione c(registro);
    Postazione &p = c.Posto;
    ApreAScala(c);
    c.Passo("sorvola un campo", [&] { p.Sorvola(p.Mezzo(Genere::Campo, 1)); });
    c.Passo("lo trascina", [&] { p.TrascinaManiglia(Genere::Campo, {33.3, 21.7}); });
    c.Passo("e di un nulla", [&] { p.TrascinaManiglia(Genere::Campo, {0, 0}); });
    c.Passo("simula le righe", [&] { p.Preme("OptSimuloRighe"); });
    c.Passo("sorvola un campo di riga", [&] { p.Sorvola(p.Mezzo(Genere::Campo, 3)); });
    c.Passo("lo trascina via dalle righe", [&] {
        p.TrascinaManiglia(Genere::Campo, {15.6, -40.2});
    });
    c.Passo("clicca una cornice", [&] { p.Clicca(p.Mezzo(Genere::Cornice, 1)); });
    c.Passo("la trascina", [&] { p.TrascinaManiglia(Genere::Cornice, {-7.4, 13.3}); });
    c.Passo("la trascina ancora", [&] { p.TrascinaManiglia(Genere::Cornice, {3, 3}); });
    c.Passo("clicca un'etichetta", [&] { p.Clicca(p.Mezzo(Genere::Cornice, 3)); });
    c.Passo("la trascina", [&] { p.TrascinaManiglia(Genere::Cornice, {5.5, 60}); });
    c.Passo("clicca un'immagine", [&] { p.Clicca(p.Mezzo(Genere::Immagine, 1)); });
    c.Passo("la trascina", [&] { p.TrascinaManiglia(Genere::Immagine, {-20.5, 8.6}); });
    c.Passo("lo zoom arrotonda le cornici", [&] { p.Zoom("1.5"); });
    c.Si();
    c.Passo("salva", [&] { p.Preme("Salva"); });
    c.Riapre();
    c.Confronta();
}

void tst_ComportamentoFoglio::OltreIBordi_data()
{
    Scale("oltre_i_bordi");
}

void tst_ComportamentoFoglio::OltreIBordi()
{
    if (!SulloSchermoDeiVerbali()) {
        QSKIP(AltroSchermo);
    }
    QFETCH(QString, registro);
    Copione c(registro);
    Postazione &p = c.Posto;
    ApreAScala(c);
    const QPointF versi[] = {{-900, 0}, {0, -900}, {900, 0}, {0, 900}, {-900, -900}};
    for (const auto &elemento : {std::pair{Genere::Campo, 1}, std::pair{Genere::Campo, 3},
                                 std::pair{Genere::Cornice, 1}, std::pair{Genere::Immagine, 1}}) {
        c.Passo("lo prende", [&] {
            if (elemento.first == Genere::Campo) {
                p.Sorvola(p.Mezzo(elemento.first, elemento.second));
            } else {
                p.Clicca(p.Mezzo(elemento.first, elemento.second));
            }
        });
        for (const QPointF &verso : versi) {
            c.Passo(QStringLiteral("verso %1 %2").arg(verso.x()).arg(verso.y()), [&] {
                // As far as the screen lets the pointer go.
                p.TrascinaManiglia(elemento.first, verso);
                p.TrascinaManiglia(elemento.first, verso);
                p.TrascinaManiglia(elemento.first, verso);
            });
        }
        c.Passo("torna nel mezzo", [&] { p.TrascinaManiglia(elemento.first, {80, 200}); });
    }
    c.Confronta();
}

void tst_ComportamentoFoglio::Ridimensionare_data()
{
    Scale("ridimensionare");
}

void tst_ComportamentoFoglio::Ridimensionare()
{
    if (!SulloSchermoDeiVerbali()) {
        QSKIP(AltroSchermo);
    }
    QFETCH(QString, registro);
    Copione c(registro);
    Postazione &p = c.Posto;
    ApreAScala(c);
    c.Passo("senza averla scelta", [&] {
        p.TiraBordo(Genere::Cornice, 1, Bordo::Destra, {10, 0});
    });
    const auto tira = [&](Genere genere, int i) {
        c.Passo("sceglie", [&] { p.Clicca(p.Mezzo(genere, i)); });
        c.Passo("bordo destro", [&] { p.TiraBordo(genere, i, Bordo::Destra, {12.4, 30}); });
        c.Passo("bordo basso", [&] { p.TiraBordo(genere, i, Bordo::Basso, {30, 7.7}); });
        c.Passo("angolo", [&] { p.TiraBordo(genere, i, Bordo::Angolo, {-6.3, 9.1}); });
        c.Passo("clicca il bordo e basta", [&] { p.TiraBordo(genere, i, Bordo::Angolo, {0, 0}); });
        c.Passo("fino a sparire", [&] { p.TiraBordo(genere, i, Bordo::Angolo, {-300, -300}); });
        c.Passo("di nuovo grande", [&] { p.TiraBordo(genere, i, Bordo::Angolo, {25, 18}); });
        c.Passo("oltre il bordo destro", [&] {
            p.TiraBordo(genere, i, Bordo::Destra, {500, 0});
            p.TiraBordo(genere, i, Bordo::Destra, {500, 0});
        });
        c.Passo("oltre il bordo basso", [&] {
            p.TiraBordo(genere, i, Bordo::Basso, {0, 900});
            p.TiraBordo(genere, i, Bordo::Basso, {0, 900});
            p.TiraBordo(genere, i, Bordo::Basso, {0, 900});
        });
        c.Passo("di nuovo piccola", [&] {
            p.TiraBordo(genere, i, Bordo::Angolo, {-900, -900});
            p.TiraBordo(genere, i, Bordo::Angolo, {20, 10});
        });
    };
    tira(Genere::Cornice, 1);
    tira(Genere::Cornice, 2);
    tira(Genere::Cornice, 3);
    tira(Genere::Immagine, 1);
    c.Si();
    c.Passo("salva", [&] { p.Preme("Salva"); });
    c.Riapre();
    c.Confronta();
}

void tst_ComportamentoFoglio::Sovrapposti()
{
    Copione c("sovrapposti");
    Postazione &p = c.Posto;
    ArchivioDiProva &a = p.Archivio;
    a.AggiungeCornice(QStringLiteral("Piccola"), 50, 50, 20, 20);
    a.AggiungeCornice(QStringLiteral("Grande"), 20, 20, 100, 80);
    a.AggiungeCornice(QStringLiteral("Uguale"), 55, 55, 20, 20);
    a.AggiungeImmagine(QStringLiteral("logo.bmp"), 40, 40, 60, 40);
    a.AggiungeImmagine(QStringLiteral("altro.bmp"), 45, 45, 10, 10);
    a.AggiungeCampo(QStringLiteral("Sotto"), 60, 60);
    c.Apre();
    c.Passo("sorvola le cornici", [&] { p.Sorvola({57, 68}); });
    c.Passo("e ancora", [&] { p.Sorvola({58, 68}); });
    c.Passo("clicca", [&] { p.Clicca({57, 68}); });
    c.Passo("clicca la grande", [&] { p.Clicca({25, 90}); });
    c.Passo("la tira dove altre la coprono", [&] { p.Trascina({119.6, 60}, {70, 60}); });
    c.Passo("clicca l'immagine", [&] { p.Clicca({95, 75}); });
    c.Passo("in primo piano le cornici", [&] { p.Preme("Command3"); });
    c.Passo("in primo piano le immagini", [&] { p.Preme("Command4"); });
    c.Passo("clicca la piccola immagine", [&] { p.Clicca({52, 47}); });
    c.Passo("sorvola il campo sotto tutto", [&] { p.Sorvola({64, 62.5}); });
    c.Passo("in primo piano i campi", [&] { p.Preme("Command1"); });
    c.Passo("lo sorvola di nuovo", [&] { p.Sorvola({64, 62.5}); });
    c.Confronta();
}

void tst_ComportamentoFoglio::NelMezzoDiUnGesto()
{
    Copione c("nel_mezzo");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    c.Passo("sorvola un campo", [&] { p.Sorvola(p.Mezzo(Genere::Campo, 2)); });
    c.Passo("preme la maniglia", [&] { p.PremeFoglio({120.4, 31.4}); });
    c.Passo("si muove", [&] { p.Sorvola({130.7, 35.3}); });
    c.Passo("si muove in verticale", [&] { p.Sorvola({130.7, 45.9}); });
    c.Passo("rilascia", [&] { p.RilasciaFoglio({130.7, 45.9}); });
    c.Passo("clicca una cornice", [&] { p.Clicca(p.Mezzo(Genere::Cornice, 1)); });
    c.Passo("preme la maniglia della cornice", [&] { p.PremeFoglio({30.4, 50.4}); });
    c.Passo("muove la cornice", [&] { p.Sorvola({36.2, 52.3}); });
    c.Passo("rilascia la cornice", [&] { p.RilasciaFoglio({36.2, 52.3}); });
    c.Passo("preme l'angolo", [&] { p.PremeFoglio({75.6, 71.6}); });
    c.Passo("tira l'angolo", [&] { p.Sorvola({79.3, 77.8}); });
    c.Passo("rilascia l'angolo", [&] { p.RilasciaFoglio({79.3, 77.8}); });
    c.Passo("clicca un'immagine", [&] { p.Clicca(p.Mezzo(Genere::Immagine, 1)); });
    c.Passo("preme la maniglia dell'immagine", [&] { p.PremeFoglio({150.8, 10.6}); });
    c.Passo("muove l'immagine", [&] { p.Sorvola({144.9, 19.1}); });
    c.Passo("cambia pagina a metà del gesto", [&] { p.Pagina(4); });
    c.Passo("rilascia l'immagine", [&] { p.RilasciaFoglio({144.9, 19.1}); });
    c.Confronta();
}

QTEST_MAIN(tst_ComportamentoFoglio)
#include "tst_ComportamentoFoglio.moc"

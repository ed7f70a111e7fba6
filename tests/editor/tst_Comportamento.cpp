#include "Copione.h"
#include "Modelli.h"

#include "finestre/Sfoglia.h"
#include "support/FileDiProva.h"

#include <QListView>
#include <QTest>

/// What the editor's pages and its commands for the whole model do, held against the records in
/// comportamento/.
class tst_Comportamento : public QObject
{
    Q_OBJECT
private slots:
    void Righe();
    void Spostamento();
    void Sfondo();
    void EliminaTutte();
    void EliminaTutteSenzaCornici();
    void SalvaEChiude();
    void EliminaIlModello();
    void Voci();
    void Zoom();
    void CentoElementi_data();
    void CentoElementi();
    void Guasti();
};

void tst_Comportamento::Righe()
{
    Copione c("righe");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    c.Passo("conferma senza cambiare", [&] { p.Preme("ConfermaPosizioneRighe"); });
    c.Passo("scrive i cinque valori", [&] {
        p.Digita("yInizio", "110.5");
        p.Digita("yFine", "140");
        p.Digita("Interlinea", "6.25");
        p.Digita("InterlineaDescr", "3.5");
        p.Digita("SeguePag", "continua");
    });
    c.Passo("conferma", [&] { p.Preme("ConfermaPosizioneRighe"); });
    c.Passo("simula", [&] { p.Preme("OptSimuloRighe"); });
    c.Passo("interlinea 10 col tasto Invio", [&] { p.Digita("Interlinea", "10", true); });
    c.Passo("simula a 1:2", [&] { p.Zoom("2"); });
    c.Passo("simula a 1:2.5", [&] { p.Zoom("2.5"); });
    c.Passo("torna a 1:1", [&] { p.Zoom("1"); });
    c.Passo("la simulazione segue un campo spostato", [&] {
        p.Trascina({10.2, 110.8}, {25.2, 130.8});
    });
    c.Passo("inizio dopo la fine", [&] { p.Digita("yInizio", "300", true); });
    c.Passo("interlinea zero", [&] {
        p.Digita("yInizio", "100");
        p.Digita("Interlinea", "0", true);
    });
    c.Passo("testo che non comincia con un numero", [&] {
        p.Digita("Interlinea", "5 mm");
        p.Digita("yFine", "circa 200", true);
    });
    c.Passo("virgola", [&] { p.Digita("yFine", "150,9", true); });
    c.Passo("spegne la simulazione e conferma", [&] {
        p.Digita("yInizio", "120");
        p.Preme("OptSimuloRighe");
    });
    c.Ok();
    c.Passo("numero troppo grande", [&] { p.Digita("yFine", "1e999", true); });
    c.Confronta();
}

void tst_Comportamento::Spostamento()
{
    Copione c("spostamento");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    c.Passo("senza scegliere una direzione", [&] { p.Preme("Command2"); });
    const auto sposta = [&](const char *direzione, const char *testo) {
        c.Passo(QStringLiteral("%1 di %2").arg(QLatin1String(direzione), QLatin1String(testo)),
                [&] {
                    p.Preme(direzione);
                    p.Digita("Spostamento", testo);
                });
        c.Passo("campi", [&] { p.Preme("Command2"); });
        c.Passo("cornici", [&] { p.Preme("Command5"); });
        c.Passo("immagini", [&] { p.Preme("Command6"); });
    };
    sposta("OptDx", "1");
    sposta("OptSx", "2.5");
    sposta("OptSu", "30.25");
    sposta("OptGiu", "2,5");
    sposta("OptGiu", "-4");
    sposta("OptDx", "due");
    c.Passo("oltre il foglio", [&] {
        p.Digita("Spostamento", "300");
        p.Preme("Command5");
    });
    c.Dialogo([&](DialogoInScena &d) {
        c.Si();
        d.Preme("PEliminaCampo");
    });
    c.Passo("elimina un campo", [&] {
        p.SceglieVoce(Genere::Campo, 1);
        p.Preme("VariazioneCampo");
    });
    c.Passo("gli eliminati si spostano con gli altri", [&] { p.Preme("Command2"); });
    c.Passo("simula e sposta", [&] {
        p.Preme("OptSimuloRighe");
        p.Preme("Command2");
    });
    c.Ok();
    c.Passo("numero troppo grande", [&] {
        p.Digita("Spostamento", "1e999");
        p.Preme("Command2");
    });
    c.Confronta();
}

namespace {

/// Chooses a file of the open folder in the browser, and confirms.
void SceglieInSfoglia(QDialog *sfoglia, const QString &nome)
{
    auto *elenco = Trova<QListView>(*sfoglia, "File1");
    for (int riga = 0; riga < elenco->model()->rowCount(); ++riga) {
        const QModelIndex voce = elenco->model()->index(riga, 0);
        if (voce.data().toString() == nome) {
            elenco->scrollTo(voce);
            QTest::mouseClick(elenco->viewport(), Qt::LeftButton, {},
                              elenco->visualRect(voce).center());
        }
    }
    Controlli::Preme(*sfoglia, "Command8");
    if (sfoglia->isVisible()) {
        sfoglia->reject();
    }
}

} // namespace

void tst_Comportamento::Sfondo()
{
    Copione c("sfondo");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    const QString cartella = p.Archivio.Stato().CartellaModelli;
    const QString scansione = cartella + QStringLiteral("grande.bmp");
    p.Archivio.DaAprire().Sfondo = {
        scansione, QStringLiteral("100"), QStringLiteral("50,5"), QStringLiteral(" 3 "), QString(),
        2};
    c.Apre("apre con la spunta grigia");
    c.Passo("spunta", [&] { p.Preme("VisualizzaImmagineSfondo"); });
    c.Passo("toglie la spunta", [&] { p.Preme("VisualizzaImmagineSfondo"); });
    c.Passo("rimette la spunta", [&] { p.Preme("VisualizzaImmagineSfondo"); });
    for (const char *freccia : {"SfondoSpostaSx", "SfondoSpostaDx", "SfondoSpostaDx",
                                "SfondoSpostaSu", "SfondoSpostaGiu"}) {
        c.Passo(freccia, [&] { p.Preme(freccia); });
    }
    c.DigitaRisposta("50");
    c.Passo("riduce a metà", [&] { p.Preme("Command8"); });
    c.DigitaRisposta("poco");
    c.Passo("riduce con una risposta che non è un numero", [&] { p.Preme("Command8"); });
    c.Annulla();
    c.Passo("annulla la riduzione", [&] { p.Preme("Command8"); });
    c.DigitaRisposta("12.5");
    c.Passo("riduce a un ottavo", [&] { p.Preme("Command8"); });
    c.Passo("posizione e misure a mano", [&] {
        p.Digita("SfondoXPosImm", "10.5");
        p.Digita("SfondoYPosImm", "venti");
        p.Digita("SfondoXimmagine", "200");
        p.Digita("SfondoYImmagine", "80", true);
    });
    c.Passo("spostare su un testo che non è un numero", [&] { p.Preme("SfondoSpostaGiu"); });
    c.Passo("zoom 2", [&] { p.Zoom("2"); });
    c.Ok();
    c.Passo("file che manca", [&] {
        p.Digita("SfondoFileImmagine", cartella + QStringLiteral("assente.bmp"), true);
    });
    c.Passo("il guasto si dice una volta", [&] { p.Preme("SfondoSpostaSx"); });
    c.Ok();
    c.Passo("ma di nuovo quando si chiede la riduzione", [&] { p.Preme("Command8"); });
    c.AltroDialogo([](QDialog *d) { SceglieInSfoglia(d, QStringLiteral("logo.bmp")); });
    c.DigitaRisposta("100");
    c.Passo("sceglie un file", [&] { p.Preme("SfondoSfoglia"); });
    c.AltroDialogo([](QDialog *d) { d->reject(); });
    c.Passo("chiude la scelta", [&] { p.Preme("SfondoSfoglia"); });
    c.Passo("tasto destro sulla casella",
            [&] { p.Preme("VisualizzaImmagineSfondo", Qt::RightButton); });
    c.Passo("e ancora, senza file", [&] { p.Preme("VisualizzaImmagineSfondo", Qt::RightButton); });
    c.Passo("riduzione senza file", [&] { p.Preme("Command8"); });
    c.Si();
    c.Passo("salva", [&] { p.Preme("Salva"); });
    c.Riapre();
    c.Confronta();
}

void tst_Comportamento::EliminaTutte()
{
    Copione c("elimina_tutte");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    c.No();
    c.Passo("rifiuta", [&] { p.Preme("Command7"); });
    c.Dialogo([&](DialogoInScena &d) {
        c.Si();
        d.Preme("Elimina");
    });
    c.Passo("ne elimina una", [&] {
        p.SceglieVoce(Genere::Cornice, 2);
        p.Preme("VariazioneCornice");
    });
    c.Si();
    c.No();
    c.Passo("le elimina tutte e non salva", [&] { p.Preme("Command7"); });
    c.Riapre();
    c.Si();
    c.Si();
    c.Passo("le elimina tutte e salva", [&] { p.Preme("Command7"); });
    c.Riapre();
    c.Confronta();
}

void tst_Comportamento::EliminaTutteSenzaCornici()
{
    Copione c("elimina_tutte_nessuna");
    Postazione &p = c.Posto;
    p.Archivio.AggiungeCampo(QStringLiteral("Data"), 20, 30);
    c.Apre();
    c.Si();
    c.Passo("si chiude lo stesso", [&] { p.Preme("Command7"); });
    c.Confronta();
}

void tst_Comportamento::SalvaEChiude()
{
    Copione c("salva_e_chiude");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    c.No();
    c.Passo("salva senza variazioni, e no", [&] { p.Preme("Salva"); });
    c.Si();
    c.Passo("salva senza variazioni, e sì", [&] { p.Preme("Salva"); });
    c.Passo("cambia il tipo", [&] { p.Digita("Tipo", "Fattura città €", true); });
    c.Si();
    c.Passo("salva", [&] { p.Preme("Salva"); });
    c.Passo("chiude senza variazioni", [&] { p.ChiudeFinestra(p.Finestra()); });
    c.Riapre();
    c.Passo("cambia il tipo di nuovo", [&] { p.Digita("Tipo", "Bolla", true); });
    c.No();
    c.Passo("chiude e non salva", [&] { p.ChiudeFinestra(p.Finestra()); });
    c.Riapre();
    c.Passo("sposta un campo", [&] { p.Trascina({20.2, 30.2}, {50.2, 60.2}); });
    c.Si();
    c.Passo("chiude l'anteprima e salva", [&] { p.ChiudeFinestra(p.Anteprima()); });
    c.Riapre();
    c.Passo("cambia il tipo ancora", [&] { p.Digita("Tipo", "DDT", true); });
    c.Passo("un altro programma scrive il file",
            [&] { ScriveFile(p.Archivio.Percorso(), p.Archivio.ByteDelFile() + "altro\r\n"); });
    c.Si();
    c.No();
    c.Passo("salva ma non sostituisce", [&] { p.Preme("Salva"); });
    c.Si();
    c.Si();
    c.Passo("salva e sostituisce", [&] { p.Preme("Salva"); });
    c.Confronta();
}

void tst_Comportamento::EliminaIlModello()
{
    Copione c("elimina_modello");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    c.No();
    c.Passo("rifiuta", [&] { p.Preme("Elimina"); });
    c.Passo("varia", [&] { p.Preme("ConfermaPosizioneRighe"); });
    c.Si();
    c.Ok();
    c.Passo("elimina", [&] { p.Preme("Elimina"); });
    c.Confronta();
}

void tst_Comportamento::Voci()
{
    Copione c("voci_e_pagine");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    for (const Genere genere : Generi) {
        c.Passo("seleziona sul foglio", [&] { p.Clicca(p.Mezzo(genere, 1)); });
        c.Passo("dà il fuoco all'elenco", [&] { p.FuocoAlleVoci(genere); });
        c.Passo("sceglie la voce 2", [&] { p.SceglieVoce(genere, 2); });
        c.Passo("sceglie il separatore", [&] { p.SceglieVoce(genere, 0); });
        c.Passo("il separatore non apre nulla", [&] { p.Preme(NomeModifica(genere)); });
    }
    c.Passo("seleziona un'immagine", [&] { p.Clicca(p.Mezzo(Genere::Immagine, 1)); });
    for (int pagina = 0; pagina < 6; ++pagina) {
        c.Passo(QStringLiteral("pagina %1").arg(pagina), [&] { p.Pagina(pagina); });
    }
    for (const char *primoPiano : {"Command1", "Command3", "Command4"}) {
        c.Passo(primoPiano, [&] { p.Preme(primoPiano); });
    }
    qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    c.No();
    c.Ok();
    c.Passo("stampa senza stampante", [&] { p.Preme("Stampa"); });
    c.Ok();
    c.Passo("griglia senza stampante", [&] { p.Preme("StampaRetino"); });
    c.Confronta();
}

void tst_Comportamento::Zoom()
{
    Copione c("zoom");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    c.Passo("seleziona una cornice", [&] { p.Clicca(p.Mezzo(Genere::Cornice, 1)); });
    for (const char *testo :
         {"2", "2.5", "7", "0.5", "0", ",", "", "abc", "1,5", "3", "-2", "1e999"}) {
        c.Passo(QStringLiteral("zoom «%1»").arg(QLatin1String(testo)), [&] { p.Zoom(testo); });
    }
    c.Passo("scorre", [&] { p.Scorre(40, 60); });
    c.Dialogo([](DialogoInScena &d) { d.Chiude(); });
    c.Passo("un campo nuovo dove il foglio è scorso", [&] { p.Preme("Aggiungicampo"); });
    c.Passo("zoom 2 col foglio scorso", [&] { p.Zoom("2"); });
    c.Dialogo([](DialogoInScena &d) { d.Chiude(); });
    c.Passo("una cornice nuova", [&] { p.Preme("AggiungiCornice"); });
    c.Passo("in fondo", [&] { p.Scorre(1000, 1000); });
    c.Dialogo([](DialogoInScena &d) { d.Chiude(); });
    c.Passo("un'immagine nuova in fondo", [&] { p.Preme("AggiungiImmagine"); });
    c.Confronta();
}

void tst_Comportamento::CentoElementi_data()
{
    QTest::addColumn<Genere>("genere");
    QTest::addColumn<QString>("registro");
    QTest::newRow("campi") << Genere::Campo << QStringLiteral("cento_campi");
    QTest::newRow("cornici") << Genere::Cornice << QStringLiteral("cento_cornici");
    QTest::newRow("immagini") << Genere::Immagine << QStringLiteral("cento_immagini");
}

void tst_Comportamento::CentoElementi()
{
    QFETCH(Genere, genere);
    QFETCH(QString, registro);
    Copione c(registro);
    Postazione &p = c.Posto;
    p.Archivio.Riempie(99);
    c.ApreSenzaElenco();
    c.Dialogo([](DialogoInScena &d) { d.Chiude(); });
    c.Passo("il centesimo", [&] { p.Preme(NomeAggiungi(genere)); });
    c.Ok();
    c.Passo("il centunesimo", [&] { p.Preme(NomeAggiungi(genere)); });
    c.Ok();
    c.Passo("e ancora", [&] { p.Preme(NomeAggiungi(genere)); });
    c.Passo("gli altri si spostano", [&] {
        p.Preme("OptGiu");
        p.Digita("Spostamento", "0");
        p.Preme("Command2");
        p.Preme("Command5");
        p.Preme("Command6");
    });
    c.Si();
    c.Passo("salva", [&] { p.Preme("Salva"); });
    c.Confronta();
}

void tst_Comportamento::Guasti()
{
    Copione c("guasti");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    p.Archivio.Scrive();
    const QByteArray intero = p.Archivio.ByteDelFile();
    const QString percorso = p.Archivio.Percorso();
    ScriveFile(percorso, "nessun modello\r\n");
    c.Ok();
    c.Riapre("apre un file che finisce troppo presto");
    ScriveFile(percorso, QByteArray(intero).replace("120.4", "molto"));
    c.Riapre("apre un file con un testo per numero");
    ScriveFile(percorso, QByteArray(intero).replace("\r\n9\r\n", "\r\n99999\r\n"));
    c.Ok();
    c.Riapre("apre un file con un numero troppo grande");
    QFile::remove(percorso);
    c.Ok();
    c.Riapre("apre un file che manca");
    ScriveFile(percorso, intero);
    p.Archivio.Stato().ElencoFont = {QStringLiteral("DejaVu Sans")};
    c.Riapre("apre senza Arial");
    c.Ok();
    c.Dialogo([](DialogoInScena &d) { d.Preme("PConfemaCampo"); });
    c.Passo("carattere che manca", [&] {
        p.SceglieVoce(Genere::Campo, 2);
        p.Preme("VariazioneCampo");
    });
    c.Si();
    c.Ok();
    c.Passo("cartella sparita", [&] {
        QDir(p.Archivio.Stato().CartellaModelli).removeRecursively();
        p.Preme("Salva");
    });
    c.Confronta();
}

QTEST_MAIN(tst_Comportamento)
#include "tst_Comportamento.moc"

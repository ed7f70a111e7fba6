#include "Copione.h"
#include "Modelli.h"

#include <QTest>

/// What the property dialogs do, and the commands that open them, held against the records in
/// comportamento/.
class tst_ComportamentoDialoghi : public QObject
{
    Q_OBJECT
private slots:
    void Campi();
    void Maschere();
    void RifiutiDelCampo();
    void Cornici();
    void RifiutiDellaCornice();
    void TutteLeCornici();
    void Immagini();
    void Percentuali();
    void RifiutiDellImmagine();

private:
    using Azione = std::function<void(DialogoInScena &)>;

    /// Opens the dialog of element i with the page's button, and works in it.
    static void Modifica(Copione &c, Genere genere, int i, const char *passo, Azione azione)
    {
        c.Dialogo(std::move(azione));
        c.Passo(passo, [&] {
            c.Posto.SceglieVoce(genere, i);
            c.Posto.Preme(NomeModifica(genere));
        });
    }
    /// Adds an element, and works in the dialog that opens.
    static void Aggiunge(Copione &c, Genere genere, const char *passo, Azione azione)
    {
        c.Dialogo(std::move(azione));
        c.Passo(passo, [&] { c.Posto.Preme(NomeAggiungi(genere)); });
    }
};

void tst_ComportamentoDialoghi::Campi()
{
    Copione c("campi");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    const Genere g = Genere::Campo;
    Modifica(c, g, 1, "apre e chiude", [](DialogoInScena &d) { d.Chiude(); });
    Modifica(c, g, 1, "scrive e chiude senza confermare", [](DialogoInScena &d) {
        d.Digita("Nome", "Persa");
        d.Digita("X", "99");
    });
    Modifica(c, g, 1, "conferma senza cambiare",
             [](DialogoInScena &d) { d.Preme("PConfemaCampo"); });
    Modifica(c, g, 1, "cambia tutto", [](DialogoInScena &d) {
        d.Digita("Nome", "Data documento");
        d.Digita("Descrizione", "la data");
        d.Digita("Testo", "01/02/2003");
        d.Digita("X", "25.5");
        d.Digita("Y", "33.49");
        d.Sceglie("ComboFont", "DejaVu Sans");
        d.Sceglie("ComboDim", "14");
        d.Preme("Bold");
        d.Preme("PConfemaCampo");
    });
    Modifica(c, g, 1, "il nome diventa il testo", [](DialogoInScena &d) {
        d.DoppioClick("Nome");
        d.Preme("PConfemaCampo");
    });
    Modifica(c, g, 1, "diventa un campo di riga", [](DialogoInScena &d) {
        d.Digita("Nome", "R_Prezzo");
        d.Preme("PConfemaCampo");
    });
    Modifica(c, g, 1, "e non lo è più", [](DialogoInScena &d) {
        d.Digita("Nome", "r_Prezzo");
        d.Digita("Y", "12");
        d.Preme("PConfemaCampo");
    });
    Aggiunge(c, g, "aggiunge e chiude", [](DialogoInScena &d) { d.Chiude(); });
    Aggiunge(c, g, "aggiunge e conferma", [](DialogoInScena &d) {
        d.Digita("Nome", "Sconto");
        d.Digita("X", "-5");
        d.Digita("Y", "360");
        d.Preme("PConfemaCampo");
    });
    Modifica(c, g, 2, "carattere su tutti i campi", [](DialogoInScena &d) {
        d.Sceglie("ComboFont", "DejaVu Sans");
        d.Sceglie("ComboDim", " 8");
        d.Preme("Command2");
        d.Chiude();
    });
    Modifica(c, g, 2, "e confermato ancora", [](DialogoInScena &d) {
        d.Preme("Bold");
        d.Preme("Command2");
        d.Preme("PConfemaCampo");
    });
    c.Passo("seleziona sul foglio", [&] { p.Sorvola(p.Mezzo(g, 2)); });
    Modifica(c, g, 2, "rifiuta di eliminare", [&](DialogoInScena &d) {
        c.No();
        d.Preme("PEliminaCampo");
        d.Chiude();
    });
    Modifica(c, g, 2, "elimina", [&](DialogoInScena &d) {
        c.Si();
        d.Preme("PEliminaCampo");
    });
    c.Passo("l'eliminato non si apre", [&] { p.Preme("VariazioneCampo"); });
    Modifica(c, g, 3, "elimina un campo di riga", [&](DialogoInScena &d) {
        c.Si();
        d.Preme("PEliminaCampo");
    });
    Modifica(c, g, 4, "prende il nome dell'eliminato", [](DialogoInScena &d) {
        d.Digita("Nome", "Totale");
        d.Preme("PConfemaCampo");
    });
    Aggiunge(c, g, "aggiunge dopo aver eliminato", [](DialogoInScena &d) { d.Chiude(); });
    c.Si();
    c.Passo("salva", [&] { p.Preme("Salva"); });
    c.Riapre();
    c.Confronta();
}

void tst_ComportamentoDialoghi::Maschere()
{
    Copione c("maschere");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    const Genere g = Genere::Campo;
    Modifica(c, g, 2, "da numerica ad alfanumerica non si può", [&](DialogoInScena &d) {
        d.Sceglie("ComboMask", "$$$$$ 5  caratteri");
        c.Ok();
        d.Preme("PCambiaMaschera");
    });
    Modifica(c, g, 2, "un'altra numerica", [](DialogoInScena &d) {
        d.Sceglie("ComboMask", "####,#### 3 decimali");
        d.Preme("PCambiaMaschera");
        d.Preme("PConfemaCampo");
    });
    Modifica(c, g, 2, "la predefinita", [](DialogoInScena &d) {
        d.Preme("PMascheraDefault");
        d.Preme("PConfemaCampo");
    });
    Modifica(c, g, 2, "non si stampa", [](DialogoInScena &d) { d.Preme("NonStampaCampo"); });
    Modifica(c, g, 2, "si stampa di nuovo", [](DialogoInScena &d) { d.Preme("NonStampaCampo"); });
    Modifica(c, g, 1, "numerica per un campo di testo", [](DialogoInScena &d) {
        d.Sceglie("ComboMask", "##, no decimali");
        d.Preme("PCambiaMaschera");
        d.Digita("Testo", "42");
        d.Preme("PConfemaCampo");
    });
    Modifica(c, g, 1, "torna al testo", [](DialogoInScena &d) {
        d.Sceglie("ComboMask", "$$$ 3  caratteri");
        d.Preme("PCambiaMaschera");
        d.Preme("PConfemaCampo");
    });
    Modifica(c, g, 1, "la voce No", [](DialogoInScena &d) {
        d.Sceglie("ComboMask", "No non stampa");
        d.Preme("PCambiaMaschera");
        d.Preme("PConfemaCampo");
    });
    Modifica(c, g, 1, "maschere scritte a mano", [](DialogoInScena &d) {
        d.Digita("MascheraDefault", "fuori catalogo");
        d.Digita("Maschera", "no");
        d.Preme("PConfemaCampo");
    });
    Modifica(c, g, 1, "predefinita fuori catalogo", [](DialogoInScena &d) {
        d.Preme("PMascheraDefault");
        d.Preme("PConfemaCampo");
    });
    Modifica(c, g, 1, "da non stampare e ritorno con una predefinita fuori catalogo",
             [](DialogoInScena &d) { d.Preme("NonStampaCampo"); });
    Modifica(c, g, 1, "il ritorno", [](DialogoInScena &d) { d.Preme("NonStampaCampo"); });
    c.Confronta();
}

void tst_ComportamentoDialoghi::RifiutiDelCampo()
{
    Copione c("rifiuti_campo");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    Modifica(c, Genere::Campo, 2, "ogni rifiuto", [&](DialogoInScena &d) {
        const auto rifiuta = [&](const char *casella, const Parole &testo, const char *poi) {
            d.Digita(casella, testo);
            c.Ok();
            d.Preme("PConfemaCampo");
            d.Digita(casella, poi);
        };
        rifiuta("Testo", "1234567890123", "1,50");
        rifiuta("Nome", "data", "Totale");
        rifiuta("Nome", "", "Totale");
        rifiuta("Nome", "FINECAMPI", "Totale");
        rifiuta("X", "", "10");
        rifiuta("X", "dieci", "10");
        rifiuta("Y", "1,2,3x", "20");
        d.Preme("NonStampaCampo");
    });
    Modifica(c, Genere::Campo, 2, "rifiuto dopo il cambio di maschera", [&](DialogoInScena &d) {
        d.Digita("Nome", "Data");
        c.Ok();
        d.Preme("NonStampaCampo");
    });
    c.Confronta();
}

void tst_ComportamentoDialoghi::Cornici()
{
    Copione c("cornici");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    const Genere g = Genere::Cornice;
    Modifica(c, g, 1, "apre e chiude", [](DialogoInScena &d) {
        d.Digita("Nome", "Persa");
        d.Chiude();
    });
    Modifica(c, g, 1, "cambia tutto", [](DialogoInScena &d) {
        d.Digita("Nome", "Riquadro grande");
        d.Digita("Testo", "Spettabile");
        d.Digita("Descrizione", "il destinatario");
        d.Digita("X", "31.5");
        d.Digita("Y", "49.4");
        d.Digita("Largh", "45.5");
        d.Digita("Alt", "0");
        d.Digita("Bordo", "1.5");
        d.Digita("ColoreTesto", "2.5");
        d.Digita("ColoreCorn", "15");
        d.Sceglie("ComboFont", "DejaVu Sans");
        d.Sceglie("ComboDim", "20");
        d.Preme("Bold");
        d.Preme("Confema");
    });
    Modifica(c, g, 1, "altezza negativa", [](DialogoInScena &d) {
        d.Digita("Alt", "-3");
        d.Preme("Confema");
    });
    Modifica(c, g, 1, "diventa un'etichetta", [](DialogoInScena &d) {
        d.Preme("OptEtichetta");
        d.Preme("Confema");
    });
    Modifica(c, g, 1, "e di nuovo una cornice", [](DialogoInScena &d) {
        d.Preme("OptCornice");
        d.Digita("Largh", "60");
        d.Digita("Alt", "12");
        d.Preme("Confema");
    });
    Modifica(c, g, 2, "bordo 0,5", [](DialogoInScena &d) {
        d.Digita("Bordo", "0.5");
        d.Preme("Confema");
    });
    Modifica(c, g, 2, "bordo 0 scritto a mano", [](DialogoInScena &d) {
        d.Digita("Bordo", "0");
        d.Preme("Confema");
    });
    Modifica(c, g, 3, "il nome diventa la scritta", [](DialogoInScena &d) {
        d.Digita("Nome", "Perché no");
        d.DoppioClick("Nome");
        d.Preme("Confema");
    });
    Aggiunge(c, g, "aggiunge e chiude", [](DialogoInScena &d) { d.Chiude(); });
    Aggiunge(c, g, "aggiunge un'etichetta", [](DialogoInScena &d) {
        d.Digita("Nome", "Nuova etichetta");
        d.Digita("Testo", "Quantità");
        d.Preme("OptEtichetta");
        d.Preme("Confema");
    });
    Modifica(c, g, 2, "rifiuta di eliminare", [&](DialogoInScena &d) {
        c.No();
        d.Preme("Elimina");
    });
    Modifica(c, g, 2, "elimina", [&](DialogoInScena &d) {
        c.Si();
        d.Preme("Elimina");
    });
    c.Passo("l'eliminata non si apre", [&] { p.Preme("VariazioneCornice"); });
    c.Si();
    c.Passo("salva", [&] { p.Preme("Salva"); });
    c.Riapre();
    c.Confronta();
}

void tst_ComportamentoDialoghi::RifiutiDellaCornice()
{
    Copione c("rifiuti_cornice");
    RiempieMisto(c.Posto);
    c.Apre();
    Modifica(c, Genere::Cornice, 1, "ogni rifiuto", [&](DialogoInScena &d) {
        const auto rifiuta = [&](const char *casella, const char *testo, const char *poi,
                                 const char *comando) {
            d.Digita(casella, testo);
            c.Ok();
            d.Preme(comando);
            d.Digita(casella, poi);
        };
        rifiuta("Nome", "LINEA", "Riquadro", "Confema");
        rifiuta("Nome", "", "Riquadro", "Confema");
        rifiuta("Largh", "0", "40", "Confema");
        rifiuta("Largh", "-1", "40", "Confema");
        rifiuta("Largh", "largo", "40", "Confema");
        rifiuta("Alt", "", "20", "Confema");
        rifiuta("ColoreTesto", "16", "1", "Confema");
        rifiuta("ColoreTesto", "rosso", "1", "Confema");
        rifiuta("ColoreTesto", "-1", "1", "Command2");
        rifiuta("ColoreCorn", "-1", "1", "Confema");
        rifiuta("ColoreCorn", "", "1", "Confema");
        rifiuta("X", "1 2", "30", "Confema");
        rifiuta("Y", "", "50", "Confema");
        d.Digita("Testo", "");
        d.Preme("OptEtichetta");
        c.Ok();
        d.Preme("Confema");
        d.Preme("OptCornice");
        d.Preme("Confema");
    });
    Modifica(c, Genere::Cornice, 1, "su tutte le cornici nessun colore si rifiuta",
             [](DialogoInScena &d) {
                 d.Digita("ColoreTesto", "rosso");
                 d.Digita("ColoreCorn", "");
                 d.Preme("Command1");
             });
    c.Confronta();
}

void tst_ComportamentoDialoghi::TutteLeCornici()
{
    Copione c("tutte_le_cornici");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    c.Apre();
    const Genere g = Genere::Cornice;
    c.Passo("seleziona sul foglio", [&] { p.Clicca(p.Mezzo(g, 3)); });
    Modifica(c, g, 1, "colori su tutte", [](DialogoInScena &d) {
        d.Digita("ColoreTesto", "4");
        d.Digita("ColoreCorn", "10");
        d.Preme("Command1");
    });
    Modifica(c, g, 1, "colori fuori dalla tavolozza su tutte", [](DialogoInScena &d) {
        d.Digita("ColoreTesto", "99");
        d.Digita("ColoreCorn", "-7");
        d.Preme("Command1");
    });
    Modifica(c, g, 1, "carattere su tutte", [](DialogoInScena &d) {
        d.Digita("ColoreTesto", "1");
        d.Sceglie("ComboFont", "DejaVu Sans");
        d.Sceglie("ComboDim", "16");
        d.Preme("Bold");
        d.Preme("Command2");
    });
    c.Confronta();
}

void tst_ComportamentoDialoghi::Immagini()
{
    Copione c("immagini");
    Postazione &p = c.Posto;
    RiempieMisto(p);
    ScriveImmagine(p.Archivio, "piccola.bmp", {100, 100});
    c.Apre();
    const Genere g = Genere::Immagine;
    Modifica(c, g, 1, "apre e chiude", [](DialogoInScena &d) {
        d.Digita("X", "99");
        d.Chiude();
    });
    Modifica(c, g, 1, "cambia tutto", [](DialogoInScena &d) {
        d.Digita("Descrizione", "il marchio");
        d.Digita("X", "12.25");
        d.Digita("Y", "13.75");
        d.Digita("Largh", "22.5");
        d.Digita("Alt", "11.25");
        d.Digita("Bordo", "0");
        d.Preme("Confema");
    });
    Aggiunge(c, g, "aggiunge e chiude", [](DialogoInScena &d) { d.Chiude(); });
    Aggiunge(c, g, "aggiunge e sceglie senza confermare", [](DialogoInScena &d) {
        d.SceglieFile("piccola.bmp");
        d.Chiude();
    });
    Modifica(c, g, 3, "conferma senza immagine", [&](DialogoInScena &d) {
        c.Ok();
        d.Preme("Confema");
    });
    c.Passo("l'eliminata non si apre", [&] { p.Preme("VariazioneImmagine"); });
    Modifica(c, g, 2, "rifiuta di eliminare", [&](DialogoInScena &d) {
        c.No();
        d.Preme("Elimina");
    });
    Modifica(c, g, 2, "elimina", [&](DialogoInScena &d) {
        c.Si();
        d.Preme("Elimina");
    });
    Modifica(c, g, 4, "toglie il nome e conferma", [&](DialogoInScena &d) {
        d.Digita("Nome", "");
        c.Ok();
        d.Preme("Confema");
    });
    c.Si();
    c.Passo("salva", [&] { p.Preme("Salva"); });
    c.Riapre();
    c.Confronta();
}

void tst_ComportamentoDialoghi::Percentuali()
{
    Copione c("percentuali");
    RiempieMisto(c.Posto);
    ScriveImmagine(c.Posto.Archivio, "alta.bmp", {100, 300});
    c.Apre();
    const Genere g = Genere::Immagine;
    const auto sceglie = [&](const char *passo, const std::function<void()> &risposta) {
        Modifica(c, g, 1, passo, [&c, risposta](DialogoInScena &d) {
            risposta();
            d.SceglieFile("grande.bmp");
            d.Chiude();
        });
    };
    sceglie("rifiuta la percentuale", [&] { c.Annulla(); });
    sceglie("percentuale 0", [&] { c.DigitaRisposta("0"); });
    sceglie("percentuale che non è un numero", [&] { c.DigitaRisposta("metà"); });
    sceglie("percentuale 50 e non conferma", [&] { c.DigitaRisposta("50"); });
    Modifica(c, g, 1, "misura di nuovo e conferma", [&](DialogoInScena &d) {
        c.DigitaRisposta("33.3");
        d.Preme("Command1");
        d.Preme("Confema");
    });
    Modifica(c, g, 2, "immagine solo alta, e annulla", [&](DialogoInScena &d) {
        c.Annulla();
        d.SceglieFile("alta.bmp");
        d.Preme("Confema");
    });
    Aggiunge(c, g, "una che manca si misura senza domande", [](DialogoInScena &d) {
        d.Digita("Nome", "assente.gif");
        d.Preme("Command1");
        d.Preme("Confema");
    });
    c.Confronta();
}

void tst_ComportamentoDialoghi::RifiutiDellImmagine()
{
    Copione c("rifiuti_immagine");
    RiempieMisto(c.Posto);
    c.Apre();
    Modifica(c, Genere::Immagine, 1, "ogni rifiuto", [&](DialogoInScena &d) {
        const auto rifiuta = [&](const char *casella, const char *testo, const char *poi) {
            d.Digita(casella, testo);
            c.Ok();
            d.Preme("Confema");
            d.Digita(casella, poi);
        };
        rifiuta("Nome", "MANCA.GIF", "logo.bmp");
        rifiuta("Bordo", "sì", "1");
        rifiuta("X", "", "10");
        rifiuta("Y", "su", "10");
        rifiuta("Largh", "", "30");
        rifiuta("Alt", "20 mm", "20");
        d.Digita("Largh", "-5");
        d.Preme("Confema");
    });
    c.Confronta();
}

QTEST_MAIN(tst_ComportamentoDialoghi)
#include "tst_ComportamentoDialoghi.moc"

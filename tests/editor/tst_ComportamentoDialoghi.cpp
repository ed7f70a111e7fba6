#include "Copione.h"
#include "Modelli.h"
#include "support/Generi.h"

#include <QTest>

namespace {

using Azione = std::function<void(DialogoInScena &)>;
/// Boxes, with the text that is typed into each.
using Testi = QList<std::pair<const char *, Parole>>;

const auto Chiude = [](DialogoInScena &d) { d.Chiude(); };

void Digita(DialogoInScena &d, const Testi &testi)
{
    for (const auto &[casella, testo] : testi) {
        d.Digita(casella, testo);
    }
}

/// A script in the property dialogs of one kind, over the mixed model.
class Scena : public Copione
{
public:
    Scena(const char *nome, Genere delGenere)
        : Copione(nome)
        , genere_(delGenere)
    {
        RiempieMisto(Posto);
    }

    void PremeConferma(DialogoInScena &d) const { d.Preme(BottoneConferma(genere_)); }

    /// Opens the dialog of element i with the page's button, and works in it.
    void Modifica(int i, const char *passo, Azione azione)
    {
        Dialogo(std::move(azione));
        Passo(passo, [&] {
            Posto.SceglieVoce(genere_, i);
            Posto.Preme(NomeModifica(genere_));
        });
    }
    /// Adds an element, and works in the dialog that opens.
    void Aggiunge(const char *passo, Azione azione)
    {
        Dialogo(std::move(azione));
        Passo(passo, [&] { Posto.Preme(NomeAggiungi(genere_)); });
    }
    /// Types, works on, and confirms.
    Azione Conferma(Testi testi, Azione poi = {}) const
    {
        return [this, testi = std::move(testi), poi = std::move(poi)](DialogoInScena &d) {
            Digita(d, testi);
            if (poi) {
                poi(d);
            }
            PremeConferma(d);
        };
    }
    /// Types a text for which the button gets a message, and puts a good one into its place.
    void Rifiuta(DialogoInScena &d, const char *casella, const Parole &testo, const Parole &poi,
                 const char *bottone = nullptr)
    {
        d.Digita(casella, testo);
        Ok();
        d.Preme(bottone == nullptr ? BottoneConferma(genere_) : bottone);
        d.Digita(casella, poi);
    }

    /// Presses the button that deletes element i, and answers No.
    void RifiutaDiEliminare(int i, const Azione &poi = {})
    {
        Modifica(i, "rifiuta di eliminare", [this, poi](DialogoInScena &d) {
            No();
            d.Preme(BottoneElimina(genere_));
            if (poi) {
                poi(d);
            }
        });
    }
    void Elimina(int i, const char *passo = "elimina")
    {
        Modifica(i, passo, [this](DialogoInScena &d) {
            Si();
            d.Preme(BottoneElimina(genere_));
        });
    }
    void NonSiApre(const char *passo)
    {
        Passo(passo, [&] { Posto.Preme(NomeModifica(genere_)); });
    }

    /// Saves and reopens, and compares all with the record.
    void SalvaEConfronta()
    {
        Si();
        Passo("salva", [&] { Posto.Preme("Salva"); });
        Riapre();
        Confronta();
    }

private:
    const Genere genere_;
};

} // namespace

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
};

void tst_ComportamentoDialoghi::Campi()
{
    Scena s("campi", Genere::Campo);
    s.Apre();
    s.Modifica(1, "apre e chiude", Chiude);
    s.Modifica(1, "scrive e chiude senza confermare", [](DialogoInScena &d) {
        Digita(d, {{"Nome", "Persa"}, {"X", "99"}});
    });
    s.Modifica(1, "conferma senza cambiare", s.Conferma({}));
    s.Modifica(1, "cambia tutto",
               s.Conferma({{"Nome", "Data documento"},
                           {"Descrizione", "la data"},
                           {"Testo", "01/02/2003"},
                           {"X", "25.5"},
                           {"Y", "33.49"}},
                          [](DialogoInScena &d) {
                              d.Sceglie("ComboFont", "DejaVu Sans");
                              d.Sceglie("ComboDim", "14");
                              d.Preme("Bold");
                          }));
    s.Modifica(1, "il nome diventa il testo",
               s.Conferma({}, [](DialogoInScena &d) { d.DoppioClick("Nome"); }));
    s.Modifica(1, "diventa un campo di riga", s.Conferma({{"Nome", "R_Prezzo"}}));
    s.Modifica(1, "e non lo è più", s.Conferma({{"Nome", "r_Prezzo"}, {"Y", "12"}}));
    s.Aggiunge("aggiunge e chiude", Chiude);
    s.Aggiunge("aggiunge e conferma", s.Conferma({{"Nome", "Sconto"}, {"X", "-5"}, {"Y", "360"}}));
    s.Modifica(2, "carattere su tutti i campi", [](DialogoInScena &d) {
        d.Sceglie("ComboFont", "DejaVu Sans");
        d.Sceglie("ComboDim", " 8");
        d.Preme("Command2");
        d.Chiude();
    });
    s.Modifica(2, "e confermato ancora", s.Conferma({}, [](DialogoInScena &d) {
        d.Preme("Bold");
        d.Preme("Command2");
    }));
    s.Passo("seleziona sul foglio", [&] { s.Posto.Sorvola(s.Posto.Mezzo(Genere::Campo, 2)); });
    s.RifiutaDiEliminare(2, Chiude);
    s.Elimina(2);
    s.NonSiApre("l'eliminato non si apre");
    s.Elimina(3, "elimina un campo di riga");
    s.Modifica(4, "prende il nome dell'eliminato", s.Conferma({{"Nome", "Totale"}}));
    s.Aggiunge("aggiunge dopo aver eliminato", Chiude);
    s.SalvaEConfronta();
}

void tst_ComportamentoDialoghi::Maschere()
{
    Scena s("maschere", Genere::Campo);
    s.Apre();
    const auto cambiaMaschera = [](const char *voce) {
        return [voce](DialogoInScena &d) {
            d.Sceglie("ComboMask", voce);
            d.Preme("PCambiaMaschera");
        };
    };
    const auto preme = [](const char *bottone) {
        return [bottone](DialogoInScena &d) { d.Preme(bottone); };
    };
    s.Modifica(2, "da numerica ad alfanumerica non si può", [&](DialogoInScena &d) {
        d.Sceglie("ComboMask", "$$$$$ 5  caratteri");
        s.Ok();
        d.Preme("PCambiaMaschera");
    });
    s.Modifica(2, "un'altra numerica", s.Conferma({}, cambiaMaschera("####,#### 3 decimali")));
    s.Modifica(2, "la predefinita", s.Conferma({}, preme("PMascheraDefault")));
    s.Modifica(2, "non si stampa", preme("NonStampaCampo"));
    s.Modifica(2, "si stampa di nuovo", preme("NonStampaCampo"));
    s.Modifica(1, "numerica per un campo di testo", [&](DialogoInScena &d) {
        cambiaMaschera("##, no decimali")(d);
        d.Digita("Testo", "42");
        s.PremeConferma(d);
    });
    s.Modifica(1, "torna al testo", s.Conferma({}, cambiaMaschera("$$$ 3  caratteri")));
    s.Modifica(1, "la voce No", s.Conferma({}, cambiaMaschera("No non stampa")));
    s.Modifica(1, "maschere scritte a mano",
               s.Conferma({{"MascheraDefault", "fuori catalogo"}, {"Maschera", "no"}}));
    s.Modifica(1, "predefinita fuori catalogo", s.Conferma({}, preme("PMascheraDefault")));
    s.Modifica(1, "da non stampare e ritorno con una predefinita fuori catalogo",
               preme("NonStampaCampo"));
    s.Modifica(1, "il ritorno", preme("NonStampaCampo"));
    s.Confronta();
}

void tst_ComportamentoDialoghi::RifiutiDelCampo()
{
    Scena s("rifiuti_campo", Genere::Campo);
    s.Apre();
    s.Modifica(2, "ogni rifiuto", [&](DialogoInScena &d) {
        s.Rifiuta(d, "Testo", "1234567890123", "1,50");
        s.Rifiuta(d, "Nome", "data", "Totale");
        s.Rifiuta(d, "Nome", "", "Totale");
        s.Rifiuta(d, "X", "", "10");
        s.Rifiuta(d, "X", "dieci", "10");
        s.Rifiuta(d, "Y", "1,2,3x", "20");
        d.Preme("NonStampaCampo");
    });
    s.Modifica(2, "rifiuto dopo il cambio di maschera", [&](DialogoInScena &d) {
        d.Digita("Nome", "Data");
        s.Ok();
        d.Preme("NonStampaCampo");
    });
    s.Confronta();
}

void tst_ComportamentoDialoghi::Cornici()
{
    Scena s("cornici", Genere::Cornice);
    s.Apre();
    s.Modifica(1, "apre e chiude", [](DialogoInScena &d) {
        d.Digita("Nome", "Persa");
        d.Chiude();
    });
    s.Modifica(1, "cambia tutto",
               s.Conferma({{"Nome", "Riquadro grande"},
                           {"Testo", "Spettabile"},
                           {"Descrizione", "il destinatario"},
                           {"X", "31.5"},
                           {"Y", "49.4"},
                           {"Largh", "45.5"},
                           {"Alt", "0"},
                           {"Bordo", "1.5"},
                           {"ColoreTesto", "2.5"},
                           {"ColoreCorn", "15"}},
                          [](DialogoInScena &d) {
                              d.Sceglie("ComboFont", "DejaVu Sans");
                              d.Sceglie("ComboDim", "20");
                              d.Preme("Bold");
                          }));
    s.Modifica(1, "altezza negativa", s.Conferma({{"Alt", "-3"}}));
    s.Modifica(1, "diventa un'etichetta",
               s.Conferma({}, [](DialogoInScena &d) { d.Preme("OptEtichetta"); }));
    s.Modifica(1, "e di nuovo una cornice", s.Conferma({}, [](DialogoInScena &d) {
        d.Preme("OptCornice");
        Digita(d, {{"Largh", "60"}, {"Alt", "12"}});
    }));
    s.Modifica(2, "bordo 0,5", s.Conferma({{"Bordo", "0.5"}}));
    s.Modifica(2, "bordo 0 scritto a mano", s.Conferma({{"Bordo", "0"}}));
    s.Modifica(
        3, "il nome diventa la scritta",
        s.Conferma({{"Nome", "Perché no"}}, [](DialogoInScena &d) { d.DoppioClick("Nome"); }));
    s.Aggiunge("aggiunge e chiude", Chiude);
    s.Aggiunge("aggiunge un'etichetta",
               s.Conferma({{"Nome", "Nuova etichetta"}, {"Testo", "Quantità"}},
                          [](DialogoInScena &d) { d.Preme("OptEtichetta"); }));
    s.RifiutaDiEliminare(2);
    s.Elimina(2);
    s.NonSiApre("l'eliminata non si apre");
    s.SalvaEConfronta();
}

void tst_ComportamentoDialoghi::RifiutiDellaCornice()
{
    Scena s("rifiuti_cornice", Genere::Cornice);
    s.Apre();
    s.Modifica(1, "ogni rifiuto", [&](DialogoInScena &d) {
        s.Rifiuta(d, "Nome", "LINEA", "Riquadro");
        s.Rifiuta(d, "Nome", "", "Riquadro");
        s.Rifiuta(d, "Largh", "0", "40");
        s.Rifiuta(d, "Largh", "-1", "40");
        s.Rifiuta(d, "Largh", "largo", "40");
        s.Rifiuta(d, "Alt", "", "20");
        s.Rifiuta(d, "ColoreTesto", "16", "1");
        s.Rifiuta(d, "ColoreTesto", "rosso", "1");
        s.Rifiuta(d, "ColoreTesto", "-1", "1", "Command2");
        s.Rifiuta(d, "ColoreCorn", "-1", "1");
        s.Rifiuta(d, "ColoreCorn", "", "1");
        s.Rifiuta(d, "X", "1 2", "30");
        s.Rifiuta(d, "Y", "", "50");
        d.Digita("Testo", "");
        d.Preme("OptEtichetta");
        s.Ok();
        s.PremeConferma(d);
        d.Preme("OptCornice");
        s.PremeConferma(d);
    });
    s.Modifica(1, "su tutte le cornici nessun colore si rifiuta", [](DialogoInScena &d) {
        Digita(d, {{"ColoreTesto", "rosso"}, {"ColoreCorn", ""}});
        d.Preme("Command1");
    });
    s.Confronta();
}

void tst_ComportamentoDialoghi::TutteLeCornici()
{
    Scena s("tutte_le_cornici", Genere::Cornice);
    s.Apre();
    s.Passo("seleziona sul foglio", [&] { s.Posto.Clicca(s.Posto.Mezzo(Genere::Cornice, 3)); });
    s.Modifica(1, "colori su tutte", [](DialogoInScena &d) {
        Digita(d, {{"ColoreTesto", "4"}, {"ColoreCorn", "10"}});
        d.Preme("Command1");
    });
    s.Modifica(1, "colori fuori dalla tavolozza su tutte", [](DialogoInScena &d) {
        Digita(d, {{"ColoreTesto", "99"}, {"ColoreCorn", "-7"}});
        d.Preme("Command1");
    });
    s.Modifica(1, "carattere su tutte", [](DialogoInScena &d) {
        d.Digita("ColoreTesto", "1");
        d.Sceglie("ComboFont", "DejaVu Sans");
        d.Sceglie("ComboDim", "16");
        d.Preme("Bold");
        d.Preme("Command2");
    });
    s.Confronta();
}

void tst_ComportamentoDialoghi::Immagini()
{
    Scena s("immagini", Genere::Immagine);
    ScriveImmagine(s.Posto.Archivio, "piccola.bmp", {100, 100});
    s.Apre();
    s.Modifica(1, "apre e chiude", [](DialogoInScena &d) {
        d.Digita("X", "99");
        d.Chiude();
    });
    s.Modifica(1, "cambia tutto",
               s.Conferma({{"Descrizione", "il marchio"},
                           {"X", "12.25"},
                           {"Y", "13.75"},
                           {"Largh", "22.5"},
                           {"Alt", "11.25"},
                           {"Bordo", "0"}}));
    s.Aggiunge("aggiunge e chiude", Chiude);
    s.Aggiunge("aggiunge e sceglie senza confermare", [](DialogoInScena &d) {
        d.SceglieFile("piccola.bmp");
        d.Chiude();
    });
    s.Modifica(3, "conferma senza immagine", s.Conferma({}, [&](DialogoInScena &) { s.Ok(); }));
    s.NonSiApre("l'eliminata non si apre");
    s.RifiutaDiEliminare(2);
    s.Elimina(2);
    s.Modifica(4, "toglie il nome e conferma",
               s.Conferma({{"Nome", ""}}, [&](DialogoInScena &) { s.Ok(); }));
    s.SalvaEConfronta();
}

void tst_ComportamentoDialoghi::Percentuali()
{
    Scena s("percentuali", Genere::Immagine);
    ScriveImmagine(s.Posto.Archivio, "alta.bmp", {100, 300});
    s.Apre();
    const auto sceglie = [&](const char *passo, const std::function<void()> &risposta) {
        s.Modifica(1, passo, [risposta](DialogoInScena &d) {
            risposta();
            d.SceglieFile("grande.bmp");
            d.Chiude();
        });
    };
    sceglie("rifiuta la percentuale", [&] { s.Annulla(); });
    sceglie("percentuale 0", [&] { s.DigitaRisposta("0"); });
    sceglie("percentuale che non è un numero", [&] { s.DigitaRisposta("metà"); });
    sceglie("percentuale 50 e non conferma", [&] { s.DigitaRisposta("50"); });
    s.Modifica(1, "misura di nuovo e conferma", s.Conferma({}, [&](DialogoInScena &d) {
        s.DigitaRisposta("33.3");
        d.Preme("Command1");
    }));
    s.Modifica(2, "immagine solo alta, e annulla", s.Conferma({}, [&](DialogoInScena &d) {
        s.Annulla();
        d.SceglieFile("alta.bmp");
    }));
    s.Aggiunge(
        "una che manca si misura senza domande",
        s.Conferma({{"Nome", "assente.gif"}}, [](DialogoInScena &d) { d.Preme("Command1"); }));
    s.Confronta();
}

void tst_ComportamentoDialoghi::RifiutiDellImmagine()
{
    Scena s("rifiuti_immagine", Genere::Immagine);
    s.Apre();
    s.Modifica(1, "ogni rifiuto", [&](DialogoInScena &d) {
        s.Rifiuta(d, "Nome", "MANCA.GIF", "logo.bmp");
        s.Rifiuta(d, "Bordo", "sì", "1");
        s.Rifiuta(d, "X", "", "10");
        s.Rifiuta(d, "Y", "su", "10");
        s.Rifiuta(d, "Largh", "", "30");
        s.Rifiuta(d, "Alt", "20 mm", "20");
        d.Digita("Largh", "-5");
        s.PremeConferma(d);
    });
    s.Confronta();
}

QTEST_MAIN(tst_ComportamentoDialoghi)
#include "tst_ComportamentoDialoghi.moc"

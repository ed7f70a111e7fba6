#include "editor/TestiEsplicativi.h"

QString TestiEsplicativi::Campi()
{
    return QStringLiteral(
        "I 'CAMPI' sono i dati variabili che vengono stampati sul documento: data, numero, ragione "
        "sociale, importi.\n"
        "Per spostare un campo puntalo con il mouse sull'anteprima e trascina il quadratino che "
        "compare nel suo angolo; al rilascio la posizione è arrotondata al millimetro. Con la "
        "tastiera: Tab sceglie, le "
        "frecce spostano, Invio apre le impostazioni.\n"
        "Con Ctrl+clic, o tirando un riquadro sul foglio, ne scegli più d'uno: si spostano, si "
        "allineano e si eliminano insieme.\n"
        "Per cambiare posizione, tipo di font, maschera di stampa o testo di prova fai doppio clic "
        "(o clic con il tasto destro) sul campo, oppure sceglilo nell'elenco e premi 'Modifica "
        "impostazioni'.\n"
        "Un campo barrato sull'anteprima ha maschera 'No' e non viene stampato.\n"
        "Se un campo è coperto da un altro, il bottone 'mette in primo piano' porta sopra i più "
        "piccoli.");
}

QString TestiEsplicativi::Righe()
{
    return QStringLiteral(
        "Le 'RIGHE' sono i campi 'descrizione merce', 'quantità', 'prezzo' ecc. che si ripetono "
        "nel corpo del documento, uno sotto l'altro: i loro nomi cominciano con 'R_'.\n"
        "Qui si fissa, in millimetri dal bordo superiore del foglio, dove le righe cominciano e "
        "dove finiscono, e la distanza tra una riga e la successiva. L'altezza dei campi 'R_' è "
        "sempre quella di 'inizio righe': sull'anteprima si spostano solo in orizzontale.\n"
        "Premi 'Conferma Posizione Righe' per applicare i valori. Con 'Simulo righe su anteprima' "
        "vedi quante righe stanno nello spazio.\n"
        "I decimali si scrivono con il punto (per esempio 4.5).");
}

QString TestiEsplicativi::Cornici()
{
    return QStringLiteral(
        "'CORNICI' ed 'ETICHETTE' sono i riquadri e le scritte fisse che completano il documento: "
        "bordi, linee, intestazioni delle colonne, diciture.\n"
        "Fai clic su una cornice per selezionarla, poi trascina il quadratino del suo angolo per "
        "spostarla, oppure il bordo destro, il bordo inferiore o l'angolo in basso a destra per "
        "ridimensionarla. Con la tastiera: Tab sceglie, le frecce spostano, Ctrl+frecce "
        "ridimensionano.\n"
        "Con un doppio clic (o un clic con il tasto destro) ne cambi scritta, colori, bordo e "
        "font. Una cornice senza bordo è un'etichetta: le sue dimensioni seguono la scritta.\n"
        "Se il modulo prestampato porta già riquadri e diciture, 'Elimina tutte le cornici' le "
        "toglie in un colpo solo.");
}

QString TestiEsplicativi::Immagini()
{
    return QStringLiteral(
        "Le 'IMMAGINI' sono figure stampate sul documento, per esempio il logo della ditta. Si "
        "possono usare file JPG, BMP e GIF che stanno nella cartella dei modelli; 'Importa...', "
        "nelle "
        "impostazioni, vi porta una figura di altro tipo o di un'altra cartella.\n"
        "Sull'anteprima fai clic su un'immagine per selezionarla, trascina il quadratino del suo "
        "angolo per spostarla, il bordo destro, quello inferiore o l'angolo in basso a destra per "
        "ridimensionarla; con un doppio clic (o un clic con il tasto destro) scegli il file e le "
        "misure. Con la tastiera: Tab sceglie, le frecce spostano (con Alt di un decimo di "
        "millimetro), Ctrl+frecce ridimensionano.\n"
        "In stampa le parti bianche dell'immagine lasciano vedere quello che sta sotto. Posizione "
        "e dimensioni sono stampate al millimetro intero.");
}

QString TestiEsplicativi::Spostamento()
{
    return QStringLiteral(
        "per spostare in blocco tutti gli oggetti (campi, cornici, immagini) scrivi di quanti "
        "millimetri, scegli la direzione e premi il bottone del tipo di oggetti da spostare. Per "
        "spostare tutto il documento premili tutti e tre.\n"
        "Serve per esempio quando il modulo prestampato è cambiato, o quando la stampante lascia "
        "un margine diverso: stampa la griglia millimetrata, appoggiala sul modulo e leggi di "
        "quanto spostare. Con 'Correggi da griglia...' si scrive dove un segno dovrebbe stare e "
        "dove "
        "è uscito, e il modello si sposta da sé.\n"
        "I decimali si scrivono con il punto (per esempio 2.5); campi e cornici si fermano "
        "comunque al millimetro intero. I campi delle righe ('R_') restano all'altezza di 'inizio "
        "righe'.");
}

QString TestiEsplicativi::Sfondo()
{
    return QStringLiteral(
        "Qualora si utilizzi un modello prestampato, per facilitare il posizionamento dei campi, "
        "è possibile inserire nell'anteprima l'immagine del modello: acquisiscilo con lo scanner, "
        "salva la scansione in un file e sceglilo con 'Sfoglia'. L'immagine non viene mai "
        "stampata.\n"
        "Alla domanda sulla riduzione rispondi 100 se la scansione è a grandezza naturale; poi "
        "correggi le dimensioni in millimetri e, con le frecce, la posizione (mezzo millimetro "
        "alla volta).\n"
        "Un clic con il tasto destro su 'Visualizza Immagine di sfondo' toglie il file. I "
        "decimali si scrivono con il punto.");
}

Ordine cliente / offerta






 95 
 211 
 5 
 0 
segue su pagina successiva
 4 







































Ditta_RagSoc
Cascinalta S.r.l.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
87
5
Arial
11
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale della propria ditta


Ditta_Indirizzo
Via dei Mulini Vecchi, 12
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
87
11
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
indirizzo della propria ditta


Ditta_CapCitta
99999 Borgofinto (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
87
15
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
CAP, città e provincia della propria ditta


Ditta_PIva
Partita IVA e C.F. 01234567890
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
87
19
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
partita IVA e codice fiscale della propria ditta


Ditta_Tel
Tel. 0999 000123
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
140
7
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
telefono della propria ditta


Ditta_Email
amministrazione@cascinalta.example
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
140
11
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
posta elettronica della propria ditta


Ditta_Web
www.cascinalta.example
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
140
15
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
sito della propria ditta


Ditta_Rea
REA ZZ-000123 - Cap. soc. € 50.000,00 i.v.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
140
19
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
iscrizione al registro imprese


Doc_Titolo
CONFERMA D'ORDINE
$$$$$$$$$$$$$$$$$$$$$$$$$
7
31
Arial
14
-1
$$$$$$$$$$$$$$$$$$$$$$$$$
titolo del documento: conferma d'ordine oppure offerta


Doc_Numero
61
$$$$$$$$$$$$
9
44
Arial
10
-1
$$$$$$$$$$$$
numero del documento


Doc_Data
03/03/2026
$$$$$$$$$$
41
44
Arial
10
-1
$$$$$$$$$$
data del documento


Doc_Pagina
1
###,
73
44
Arial
10
0
###,
numero di pagina


Cli_Codice
C00127
$$$$$$$$$$$$
9
53
Arial
9
0
$$$$$$$$$$$$
codice cliente


Cli_PIva
00000000000
$$$$$$$$$$$$$$$$
41
53
Arial
9
0
$$$$$$$$$$$$$$$$
partita IVA cliente


Cli_CodFisc
00000000000
$$$$$$$$$$$$$$$$
73
53
Arial
9
0
$$$$$$$$$$$$$$$$
codice fiscale cliente


Cli_RagSoc
Officina Meccanica Tre Noci S.n.c.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
39
Arial
11
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale del cliente


Cli_RagSoc2
di Prova Mario & C.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
45
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale, seconda riga del cliente


Cli_Indirizzo
Vicolo dell'Esempio, 7
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
50
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
indirizzo del cliente


Cli_CapCitta
99998 PONTELUNGO (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
55
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
CAP, città e provincia del cliente


Vs_Ordine
n. 45 del 02/03/2026
$$$$$$$$$$$$$$$$$$$$$$$$
9
61
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$
riferimento alla richiesta del cliente


Cli_Attenzione
Sig. Prova Mario
$$$$$$$$$$$$$$$$$$$$$$$$$$
56
61
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$
persona a cui è diretto il documento


Consegna
16/03/2026
$$$$$$$$$$
9
71
Arial
9
-1
$$$$$$$$$$
data di consegna prevista


Porto
Franco destino
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
72
71
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
resa della merce


Validita
30 giorni
$$$$$$$$$$$$$$$$$$$$$$$$$
135
71
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$
validità dell'offerta


Pagamento
Ric. bancaria 30/60 gg f.m.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
79
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
condizioni di pagamento


Banca_Appoggio
Banca di Borgofinto - IBAN IT00 X000 0000 0000 0000 0000 000
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
72
79
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
banca di appoggio e IBAN


R_Codice
ZAP-0450
$$$$$$$$$$$$$
9
95
Arial
9
0
$$$$$$$$$$$$$
codice articolo


R_Descr
Zappatrice a lame registrabili 45
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
33
95
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
descrizione della merce


R_Um
Pz
$$$
93
95
Arial
9
0
$$$
unità di misura


R_Qta
50,00
#####,###
108
95
Arial
9
0
#####,###
quantità


R_Prezzo
59,000
######,####
126
95
Arial
9
0
######,####
prezzo unitario


R_Sconto
20
$$$$$
142
95
Arial
9
0
$$$$$
sconti percentuali


R_Importo
2.360,00
###.###,###
159
95
Arial
9
0
###.###,###
importo della riga


R_Consegna
16/03/2026
$$$$$$$$$$
177
95
Arial
9
0
$$$$$$$$$$
data di consegna della riga


Condizioni1
Trasporto con mezzo del venditore, imballo compreso.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
226
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
condizioni di vendita, riga 1


Condizioni2
Prezzi al netto dell'IVA.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
232
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
condizioni di vendita, riga 2


Condizioni3
Garanzia 24 mesi sui difetti di fabbricazione.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
238
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
condizioni di vendita, riga 3


Tot_Merce
2.360,00
###.###,###
183
221
Arial
9
0
###.###,###
totale merce


Spese_Trasporto
40,00
###.###,###
187
226
Arial
9
0
###.###,###
spese di trasporto


Tot_Imposta
528,00
###.###,###
185
231
Arial
9
0
###.###,###
totale imposta


Totale
2.928,00
###.###,###
178
239
Arial
12
-1
###.###,###
totale €


Note
Merce disponibile a magazzino salvo il venduto.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
255
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
annotazioni

FINECAMPI

Linea intestazione

7
28
Arial
7
0
Riquadro Linea intestazione
1
190
2.5
1
0

Numero
Numero
7
40
Arial
7
0
Riquadro Numero
9
32
1.1
8
1

Data
Data
39
40
Arial
7
0
Riquadro Data
9
32
1.1
8
1

Pagina
Pagina
71
40
Arial
7
0
Riquadro Pagina
9
31
1.1
8
1

Codice cliente
Codice cliente
7
49
Arial
7
0
Riquadro Codice cliente
8
32
1.1
8
1

Partita IVA
Partita IVA
39
49
Arial
7
0
Riquadro Partita IVA
8
32
1.1
8
1

Codice fiscale
Codice fiscale
71
49
Arial
7
0
Riquadro Codice fiscale
8
31
1.1
8
1

Riquadro cliente
Spett.le
106
31
Arial
8
0
Riquadro del cliente
34
91
1.3
1
1

Vs. riferimento
Vs. riferimento
7
57
Arial
7
0
Riquadro Vs. riferimento
8
47
1.1
8
1

Alla cortese attenzione
Alla cortese attenzione
54
57
Arial
7
0
Riquadro Alla cortese attenzione
8
48
1.1
8
1

Consegna prevista
Consegna prevista
7
67
Arial
7
0
Riquadro Consegna prevista
8
63
1.1
8
1

Resa
Resa
70
67
Arial
7
0
Riquadro Resa
8
63
1.1
8
1

Validità dell'offerta
Validità dell'offerta
133
67
Arial
7
0
Riquadro Validità dell'offerta
8
64
1.1
8
1

Condizioni di pagamento
Condizioni di pagamento
7
75
Arial
7
0
Riquadro Condizioni di pagamento
8
63
1.1
8
1

Banca d'appoggio
Banca d'appoggio
70
75
Arial
7
0
Riquadro Banca d'appoggio
8
127
1.1
8
1

Colonna Codice

7
86
Arial
8
-1
Colonna Codice
131
24
1.1
8
1

Codice
Codice
8
87
Arial
8
-1
Etichetta Codice
5
12
0
0
1

Colonna Descrizione

31
86
Arial
8
-1
Colonna Descrizione
131
58
1.1
8
1

Descrizione
Descrizione
32
87
Arial
8
-1
Etichetta Descrizione
5
18
0
0
1

Colonna U.M

89
86
Arial
8
-1
Colonna U.M.
131
11
1.1
8
1

U.M
U.M.
91
87
Arial
8
-1
Etichetta U.M
5
8
0
0
1

Colonna Quantità

100
86
Arial
8
-1
Colonna Quantità
131
18
1.1
8
1

Quantità
Quantità
104
87
Arial
8
-1
Etichetta Quantità
5
14
0
0
1

Colonna Prezzo

118
86
Arial
8
-1
Colonna Prezzo
131
20
1.1
8
1

Prezzo
Prezzo
126
87
Arial
8
-1
Etichetta Prezzo
5
12
0
0
1

Colonna Sc. 

138
86
Arial
8
-1
Colonna Sc. %
131
12
1.1
8
1

Sc. %
Sc. %
139
87
Arial
8
-1
Etichetta Sc. %
5
10
0
0
1

Colonna Importo

150
86
Arial
8
-1
Colonna Importo
131
23
1.1
8
1

Importo
Importo
159
87
Arial
8
-1
Etichetta Importo
5
13
0
0
1

Colonna Consegna

173
86
Arial
8
-1
Colonna Consegna
131
24
1.1
8
1

Consegna
Consegna
177
87
Arial
8
-1
Etichetta Consegna
5
16
0
0
1

Riquadro righe

7
86
Arial
8
0
Riquadro delle righe
131
190
1.3
1
1

Linea intestazione righe

7
93
Arial
7
0
Riquadro Linea intestazione righe
1
190
2.3
1
0

Riquadro condizioni
Condizioni
7
220
Arial
7
-1
Riquadro Riquadro condizioni
27
104
1.1
8
1

Riquadro totali

114
220
Arial
7
0
Riquadro Riquadro totali
15
83
1.1
8
1

Totale merce
Totale merce
115
221
Arial
8
0
Etichetta Totale merce
5
19
0
0
1

Spese di trasporto
Spese di trasporto
115
226
Arial
8
0
Etichetta Spese di trasporto
5
25
0
0
1

Linea totali

114
225
Arial
7
0
Riquadro Linea totali
1
83
2.1
8
0

Totale imposta
Totale imposta
115
231
Arial
8
0
Etichetta Totale imposta
5
21
0
0
1

Linea totali 2

114
230
Arial
7
0
Riquadro Linea totali 2
1
83
2.1
8
0

Riquadro totale €

114
235
Arial
8
-1
Riquadro Riquadro totale €
12
83
1.4
1
1

TOTALE €
TOTALE €
115
239
Arial
11
-1
Etichetta TOTALE €
6
21
0
0
1

Annotazioni
Annotazioni
7
250
Arial
7
0
Riquadro Annotazioni
9
190
1.1
8
1

Firma del venditore
Il venditore
7
262
Arial
7
0
Spazio per la firma
13
94
1.1
8
1

Firma del cliente
Per accettazione, il cliente (data, timbro e firma)
103
262
Arial
7
0
Spazio per la firma
13
94
1.1
8
1

Linea piede

7
278
Arial
7
0
Riquadro Linea piede
1
190
2.2
8
0

Nota a piede
L'ordine si intende accettato se non contestato per iscritto entro 5 giorni dal ricevimento della presente.
6
279
Arial
7
0
Etichetta Nota a piede
4
115
0
0
8

Nota a piede 2
I dati sono trattati nel rispetto delle norme sulla protezione dei dati personali.
6
283
Arial
7
0
Etichetta Nota a piede 2
4
86
0
0
8
FINECORNICI

LogoCascinalta.gif
7
4
Logo della ditta
22
66
0

FINEIMMAGINI

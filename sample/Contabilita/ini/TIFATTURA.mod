Fattura






 95 
 214 
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


Doc_Numero
128/A
$$$$$$$$$$$$
9
44
Arial
10
-1
$$$$$$$$$$$$
numero del documento


Doc_Data
15/03/2026
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


Cli_Sdi
0000000
$$$$$$$
9
61
Arial
9
0
$$$$$$$
codice destinatario della fattura elettronica


Agente
Rossi Esempio Paolo
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
41
61
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
agente


Pagamento
Ricevuta bancaria 30/60 gg fine mese
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
71
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
condizioni di pagamento


Banca_Appoggio
Banca di Borgofinto - IBAN IT00 X000 0000 0000 0000 0000 000
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
84
71
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
banca di appoggio e IBAN


Vs_Ordine
n. 45 del 02/03/2026
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
79
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
riferimento all'ordine del cliente


Ns_Ddt
n. 96 del 10/03/2026
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
84
79
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
riferimento al documento di trasporto


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
Zappatrice a lame registrabili 45 cm
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
33
95
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
descrizione della merce


R_Um
Pz
$$$
101
95
Arial
9
0
$$$
unità di misura


R_Qta
50,00
#####,###
117
95
Arial
9
0
#####,###
quantità


R_Prezzo
59,000
######,####
135
95
Arial
9
0
######,####
prezzo unitario


R_Sconto
20
$$$$$
152
95
Arial
9
0
$$$$$
sconti percentuali


R_Importo
2.360,00
###.###,###
171
95
Arial
9
0
###.###,###
importo della riga


R_Iva
22
$$$
189
95
Arial
9
0
$$$
codice IVA della riga


Iva1_Codice
22
$$$$
9
229
Arial
9
0
$$$$
riepilogo IVA riga 1, codice


Iva1_Imponibile
2.400,00
###.###,###
35
229
Arial
9
0
###.###,###
riepilogo IVA riga 1, imponibile


Iva1_Aliquota
22,00
###,###
55
229
Arial
9
0
###,###
riepilogo IVA riga 1, aliquota


Iva1_Imposta
528,00
###.###,###
79
229
Arial
9
0
###.###,###
riepilogo IVA riga 1, imposta


Iva1_Descrizione
ordinaria
$$$$$$$$$$$$$$
93
229
Arial
8
0
$$$$$$$$$$$$$$
riepilogo IVA riga 1, descrizione


Iva2_Codice
10
$$$$
9
234
Arial
9
0
$$$$
riepilogo IVA riga 2, codice


Iva2_Imponibile
1.250,00
###.###,###
35
234
Arial
9
0
###.###,###
riepilogo IVA riga 2, imponibile


Iva2_Aliquota
10,00
###,###
55
234
Arial
9
0
###,###
riepilogo IVA riga 2, aliquota


Iva2_Imposta
125,00
###.###,###
79
234
Arial
9
0
###.###,###
riepilogo IVA riga 2, imposta


Iva2_Descrizione
ridotta
$$$$$$$$$$$$$$
93
234
Arial
8
0
$$$$$$$$$$$$$$
riepilogo IVA riga 2, descrizione


Iva3_Codice
E10
$$$$
9
239
Arial
9
0
$$$$
riepilogo IVA riga 3, codice


Iva3_Imponibile
150,00
###.###,###
37
239
Arial
9
0
###.###,###
riepilogo IVA riga 3, imponibile


Iva3_Aliquota
0,00
###,###
57
239
Arial
9
0
###,###
riepilogo IVA riga 3, aliquota


Iva3_Imposta
0,00
###.###,###
83
239
Arial
9
0
###.###,###
riepilogo IVA riga 3, imposta


Iva3_Descrizione
esente art. 10
$$$$$$$$$$$$$$
93
239
Arial
8
0
$$$$$$$$$$$$$$
riepilogo IVA riga 3, descrizione


Scad1_Data
30/04/2026
$$$$$$$$$$
9
252
Arial
9
0
$$$$$$$$$$
data scadenza 1


Scad1_Importo
2.226,50
###.###,###
9
257
Arial
9
-1
###.###,###
importo scadenza 1


Scad2_Data
31/05/2026
$$$$$$$$$$
59
252
Arial
9
0
$$$$$$$$$$
data scadenza 2


Scad2_Importo
2.226,50
###.###,###
59
257
Arial
9
-1
###.###,###
importo scadenza 2


Tot_Merce
3.760,00
###.###,###
183
224
Arial
9
0
###.###,###
totale merce


Spese
40,00
###.###,###
187
230
Arial
9
0
###.###,###
spese di trasporto e incasso


Tot_Imponibile
3.800,00
###.###,###
183
236
Arial
9
0
###.###,###
totale imponibile


Tot_Imposta
653,00
###.###,###
185
242
Arial
9
0
###.###,###
totale imposta


Totale
4.453,00
###.###,###
178
252
Arial
12
-1
###.###,###
totale fattura €


Note
Merce consegnata franco magazzino del cliente.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
271
Arial
8
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

FATTURA
FATTURA
6
31
Arial
14
-1
Etichetta FATTURA
7
26
0
0
1

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

Codice destinatario
Codice destinatario
7
57
Arial
7
0
Riquadro Codice destinatario
8
32
1.1
8
1

Agente
Agente
39
57
Arial
7
0
Riquadro Agente
8
63
1.1
8
1

Condizioni di pagamento
Condizioni di pagamento
7
67
Arial
7
0
Riquadro Condizioni di pagamento
8
75
1.1
8
1

Banca d'appoggio
Banca d'appoggio
82
67
Arial
7
0
Riquadro Banca d'appoggio
8
115
1.1
8
1

Vs. ordine
Vs. ordine
7
75
Arial
7
0
Riquadro Vs. ordine
8
75
1.1
8
1

Ns. documento di trasporto
Ns. documento di trasporto
82
75
Arial
7
0
Riquadro Ns. documento di trasporto
8
115
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
134
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
134
66
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

97
86
Arial
8
-1
Colonna U.M.
134
12
1.1
8
1

U.M
U.M.
99
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

109
86
Arial
8
-1
Colonna Quantità
134
18
1.1
8
1

Quantità
Quantità
113
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

127
86
Arial
8
-1
Colonna Prezzo
134
20
1.1
8
1

Prezzo
Prezzo
135
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

147
86
Arial
8
-1
Colonna Sc. %
134
14
1.1
8
1

Sc. %
Sc. %
149
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

161
86
Arial
8
-1
Colonna Importo
134
24
1.1
8
1

Importo
Importo
171
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

Colonna IVA

185
86
Arial
8
-1
Colonna IVA
134
12
1.1
8
1

IVA
IVA
188
87
Arial
8
-1
Etichetta IVA
5
7
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
134
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

Colonna IVA codice

7
223
Arial
7
0
Colonna riepilogo IVA, codice
22
14
1.1
8
1

Colonna IVA imponibile

21
223
Arial
7
0
Colonna riepilogo IVA, imponibile
22
28
1.1
8
1

Colonna IVA aliquota

49
223
Arial
7
0
Colonna riepilogo IVA, aliquota
22
16
1.1
8
1

Colonna IVA imposta

65
223
Arial
7
0
Colonna riepilogo IVA, imposta
22
26
1.1
8
1

Colonna IVA descrizione

91
223
Arial
7
0
Colonna riepilogo IVA, descrizione
22
20
1.1
8
1

IVA 2
IVA
8
224
Arial
7
-1
Etichetta IVA 2
4
7
0
0
1

IVA imponibile
Imponibile
34
224
Arial
7
-1
Etichetta IVA imponibile
4
15
0
0
1

Aliq. %
Aliq. %
54
224
Arial
7
-1
Etichetta Aliq. %
4
11
0
0
1

IVA imposta
Imposta
79
224
Arial
7
-1
Etichetta IVA imposta
4
12
0
0
1

IVA descrizione
Descrizione
92
224
Arial
7
-1
Etichetta IVA descrizione
4
16
0
0
1

Linea riepilogo IVA

7
228
Arial
7
0
Riquadro Linea riepilogo IVA
1
104
2.1
8
0

Riquadro scadenze
Scadenze
7
248
Arial
7
-1
Riquadro Riquadro scadenze
14
104
1.1
8
1

Riquadro totali

114
223
Arial
7
0
Riquadro Riquadro totali
24
83
1.1
8
1

Totale merce
Totale merce
115
224
Arial
8
0
Etichetta Totale merce
5
19
0
0
1

Spese di trasporto e incasso
Spese di trasporto e incasso
115
230
Arial
8
0
Etichetta Spese di trasporto e incasso
5
38
0
0
1

Linea totali

114
229
Arial
7
0
Riquadro Linea totali
1
83
2.1
8
0

Totale imponibile
Totale imponibile
115
236
Arial
8
0
Etichetta Totale imponibile
5
24
0
0
1

Linea totali 2

114
235
Arial
7
0
Riquadro Linea totali 2
1
83
2.1
8
0

Totale imposta
Totale imposta
115
242
Arial
8
0
Etichetta Totale imposta
5
21
0
0
1

Linea totali 3

114
241
Arial
7
0
Riquadro Linea totali 3
1
83
2.1
8
0

Riquadro totale fattura €

114
247
Arial
8
-1
Riquadro Riquadro totale fattura €
15
83
1.4
1
1

TOTALE FATTURA €
TOTALE FATTURA €
115
252
Arial
11
-1
Etichetta TOTALE FATTURA €
6
41
0
0
1

Annotazioni
Annotazioni
7
265
Arial
7
0
Riquadro Annotazioni
10
190
1.1
8
1

Linea piede

7
277
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
Contributo ambientale CONAI assolto ove dovuto. Operazione soggetta alle condizioni generali di vendita della ditta.
6
278
Arial
7
0
Etichetta Nota a piede
4
130
0
0
8

Nota a piede 2
Non si accettano reclami trascorsi 8 giorni dal ricevimento della merce. Per ogni controversia è competente il Foro della sede della ditta.
6
282
Arial
7
0
Etichetta Nota a piede 2
4
151
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

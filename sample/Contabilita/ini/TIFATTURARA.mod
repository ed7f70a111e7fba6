Fattura con ritenuta d'acconto






 88 
 202 
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
12
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


Vs_Ordine
del 12/01/2026
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
41
61
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
riferimento all'incarico del cliente


Pagamento
Bonifico bancario 30 gg fine mese
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


R_Descr
Consulenza tecnica per la messa a norma delle attrezzature
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
88
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
descrizione della prestazione


R_Qta
40,00
#####,###
125
88
Arial
9
0
#####,###
quantità


R_Prezzo
50,000
######,####
145
88
Arial
9
0
######,####
compenso unitario


R_Importo
2.000,00
###.###,###
170
88
Arial
9
0
###.###,###
importo della riga


R_Iva
22
$$$
189
88
Arial
9
0
$$$
codice IVA della riga


Tot_Compensi
2.000,00
###.###,###
183
214
Arial
9
0
###.###,###
totale compensi


Cassa_Prev
80,00
###.###,###
187
220
Arial
9
0
###.###,###
contributo cassa previdenza 4%


Tot_Imponibile
2.080,00
###.###,###
183
226
Arial
9
0
###.###,###
imponibile iva


Tot_Imposta
457,60
###.###,###
185
232
Arial
9
0
###.###,###
iva 22%


Spese_Art15
62,40
###.###,###
187
238
Arial
9
0
###.###,###
rimborso spese anticipate (art. 15)


Totale
2.600,00
###.###,###
180
245
Arial
10
-1
###.###,###
totale fattura €


RA_Imponibile
2.000,00
###.###,###
97
218
Arial
9
0
###.###,###
imponibile soggetto a ritenuta


RA_Aliquota
20,00
###,###
101
223
Arial
9
0
###,###
aliquota %


RA_Importo
400,00
###.###,###
99
228
Arial
9
0
###.###,###
importo della ritenuta


Scad1_Data
30/04/2026
$$$$$$$$$$
9
242
Arial
9
0
$$$$$$$$$$
data scadenza 1


Scad1_Importo
2.200,00
###.###,###
9
247
Arial
9
-1
###.###,###
importo scadenza 1


RA_Detratta
400,00
###.###,###
185
256
Arial
9
0
###.###,###
ritenuta d'acconto


Netto
2.200,00
###.###,###
178
265
Arial
12
-1
###.###,###
netto a pagare €


Note
Prestazione svolta presso la sede del cliente.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
260
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
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

Vs. incarico
Vs. incarico
39
57
Arial
7
0
Riquadro Vs. incarico
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

Colonna Prestazione

7
79
Arial
8
-1
Colonna Prestazione
131
110
1.1
8
1

Prestazione
Prestazione
8
80
Arial
8
-1
Etichetta Prestazione
5
18
0
0
1

Colonna Ore

117
79
Arial
8
-1
Colonna Ore
131
18
1.1
8
1

Ore
Ore
127
80
Arial
8
-1
Etichetta Ore
5
7
0
0
1

Colonna Compenso

135
79
Arial
8
-1
Colonna Compenso
131
22
1.1
8
1

Compenso
Compenso
139
80
Arial
8
-1
Etichetta Compenso
5
17
0
0
1

Colonna Importo

157
79
Arial
8
-1
Colonna Importo
131
27
1.1
8
1

Importo
Importo
170
80
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

184
79
Arial
8
-1
Colonna IVA
131
13
1.1
8
1

IVA
IVA
187
80
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
79
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
86
Arial
7
0
Riquadro Linea intestazione righe
1
190
2.3
1
0

Riquadro totali

114
213
Arial
7
0
Riquadro Riquadro totali
30
83
1.1
8
1

Totale compensi
Totale compensi
115
214
Arial
8
0
Etichetta Totale compensi
5
23
0
0
1

Contributo cassa previdenza 4%
Contributo cassa previdenza 4%
115
220
Arial
8
0
Etichetta Contributo cassa previdenza 4%
5
43
0
0
1

Linea totali

114
219
Arial
7
0
Riquadro Linea totali
1
83
2.1
8
0

Imponibile IVA
Imponibile IVA
115
226
Arial
8
0
Etichetta Imponibile IVA
5
21
0
0
1

Linea totali 2

114
225
Arial
7
0
Riquadro Linea totali 2
1
83
2.1
8
0

IVA 22%
IVA 22%
115
232
Arial
8
0
Etichetta IVA 22%
5
13
0
0
1

Linea totali 3

114
231
Arial
7
0
Riquadro Linea totali 3
1
83
2.1
8
0

Rimborso spese anticipate (art. 15)
Rimborso spese anticipate (art. 15)
115
238
Arial
8
0
Etichetta Rimborso spese anticipate (art. 15)
5
46
0
0
1

Linea totali 4

114
237
Arial
7
0
Riquadro Linea totali 4
1
83
2.1
8
0

Riquadro totale fattura €

114
243
Arial
8
-1
Riquadro Riquadro totale fattura €
9
83
1.4
1
1

TOTALE FATTURA €
TOTALE FATTURA €
115
245
Arial
9
-1
Etichetta TOTALE FATTURA €
5
34
0
0
1

Riquadro ritenuta
Ritenuta d'acconto
7
213
Arial
7
-1
Riquadro Riquadro ritenuta
22
104
1.1
8
1

Imponibile soggetto a ritenuta
Imponibile soggetto a ritenuta
8
218
Arial
8
0
Etichetta Imponibile soggetto a ritenuta
5
40
0
0
1

Aliquota %
Aliquota %
8
223
Arial
8
0
Etichetta Aliquota %
5
16
0
0
1

Importo della ritenuta
Importo della ritenuta
8
228
Arial
8
0
Etichetta Importo della ritenuta
5
29
0
0
1

Riquadro scadenze
Scadenze
7
238
Arial
7
-1
Riquadro Riquadro scadenze
14
104
1.1
8
1

Riquadro totali 2

114
255
Arial
7
0
Riquadro Riquadro totali 2
6
83
1.1
8
1

Ritenuta d'acconto
Ritenuta d'acconto
115
256
Arial
8
0
Etichetta Ritenuta d'acconto
5
26
0
0
1

Riquadro netto a pagare €

114
261
Arial
8
-1
Riquadro Riquadro netto a pagare €
13
83
1.4
1
1

NETTO A PAGARE €
NETTO A PAGARE €
115
265
Arial
11
-1
Etichetta NETTO A PAGARE €
6
40
0
0
1

Annotazioni
Annotazioni
7
255
Arial
7
0
Riquadro Annotazioni
19
104
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
Ritenuta d'acconto operata ai sensi dell'art. 25 del D.P.R. 600/1973, da versare a cura del committente.
6
278
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
282
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

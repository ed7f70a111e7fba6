Fattura con ritenuta d'acconto






 87 
 201 
 5 
 0 
segue su pagina successiva
 4 







































Ditta_RagSoc
Cascinalta S.r.l.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
85
4
Arial
11
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale della propria ditta


Ditta_Indirizzo
Via dei Mulini Vecchi, 12
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
85
10
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
indirizzo della propria ditta


Ditta_CapCitta
99999 Borgofinto (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
85
14
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
CAP, città e provincia della propria ditta


Ditta_PIva
Partita IVA e C.F. 01234567890
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
85
18
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
partita IVA e codice fiscale della propria ditta


Ditta_Tel
Tel. 0999 000123
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
138
6
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
telefono della propria ditta


Ditta_Email
amministrazione@cascinalta.example
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
138
10
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
posta elettronica della propria ditta


Ditta_Web
www.cascinalta.example
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
138
14
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
sito della propria ditta


Ditta_Rea
REA ZZ-000123 - Cap. soc. € 50.000,00 i.v.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
138
18
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
iscrizione al registro imprese


Doc_Numero
12
$$$$$$$$$$$$
7
43
Arial
10
-1
$$$$$$$$$$$$
numero del documento


Doc_Data
15/03/2026
$$$$$$$$$$
39
43
Arial
10
-1
$$$$$$$$$$
data del documento


Doc_Pagina
1
###,
71
43
Arial
10
0
###,
numero di pagina


Cli_Codice
C00127
$$$$$$$$$$$$
7
52
Arial
9
0
$$$$$$$$$$$$
codice cliente


Cli_PIva
00000000000
$$$$$$$$$$$$$$$$
39
52
Arial
9
0
$$$$$$$$$$$$$$$$
partita IVA cliente


Cli_CodFisc
00000000000
$$$$$$$$$$$$$$$$
71
52
Arial
9
0
$$$$$$$$$$$$$$$$
codice fiscale cliente


Cli_RagSoc
Officina Meccanica Tre Noci S.n.c.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
38
Arial
11
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale del cliente


Cli_RagSoc2
di Prova Mario & C.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
44
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale, seconda riga del cliente


Cli_Indirizzo
Vicolo dell'Esempio, 7
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
49
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
indirizzo del cliente


Cli_CapCitta
99998 PONTELUNGO (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
54
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
CAP, città e provincia del cliente


Cli_Sdi
0000000
$$$$$$$
7
60
Arial
9
0
$$$$$$$
codice destinatario della fattura elettronica


Vs_Ordine
del 12/01/2026
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
39
60
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
riferimento all'incarico del cliente


Pagamento
Bonifico bancario 30 gg fine mese
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
70
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
condizioni di pagamento


Banca_Appoggio
Banca di Borgofinto - IBAN IT00 X000 0000 0000 0000 0000 000
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
82
70
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
banca di appoggio e IBAN


R_Descr
Consulenza tecnica per la messa a norma delle attrezzature
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
87
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
descrizione della prestazione


R_Qta
40,00
#####,###
123
87
Arial
9
0
#####,###
quantità


R_Prezzo
50,000
######,####
143
87
Arial
9
0
######,####
compenso unitario


R_Importo
2.000,00
###.###,###
168
87
Arial
9
0
###.###,###
importo della riga


R_Iva
22
$$$
187
87
Arial
9
0
$$$
codice IVA della riga


Tot_Compensi
2.000,00
###.###,###
181
213
Arial
9
0
###.###,###
totale compensi


Cassa_Prev
80,00
###.###,###
185
219
Arial
9
0
###.###,###
contributo cassa previdenza 4%


Tot_Imponibile
2.080,00
###.###,###
181
225
Arial
9
0
###.###,###
imponibile iva


Tot_Imposta
457,60
###.###,###
183
231
Arial
9
0
###.###,###
iva 22%


Spese_Art15
62,40
###.###,###
185
237
Arial
9
0
###.###,###
rimborso spese anticipate (art. 15)


Totale
2.600,00
###.###,###
178
244
Arial
10
-1
###.###,###
totale fattura €


RA_Imponibile
2.000,00
###.###,###
95
217
Arial
9
0
###.###,###
imponibile soggetto a ritenuta


RA_Aliquota
20,00
###,###
99
222
Arial
9
0
###,###
aliquota %


RA_Importo
400,00
###.###,###
97
227
Arial
9
0
###.###,###
importo della ritenuta


Scad1_Data
30/04/2026
$$$$$$$$$$
7
241
Arial
9
0
$$$$$$$$$$
data scadenza 1


Scad1_Importo
2.200,00
###.###,###
7
246
Arial
9
-1
###.###,###
importo scadenza 1


RA_Detratta
400,00
###.###,###
183
255
Arial
9
0
###.###,###
ritenuta d'acconto


Netto
2.200,00
###.###,###
176
264
Arial
12
-1
###.###,###
netto a pagare €


Note
Prestazione svolta presso la sede del cliente.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
259
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
annotazioni

FINECAMPI

Linea intestazione

5
27
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
4
30
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
5
39
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
37
39
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
69
39
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
5
48
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
37
48
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
69
48
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
104
30
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
5
56
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
37
56
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
5
66
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
80
66
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

5
78
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
6
79
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

115
78
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
125
79
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

133
78
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
137
79
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

155
78
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
168
79
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

182
78
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
185
79
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

5
78
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

5
85
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

112
212
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
113
213
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
113
219
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

112
218
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
113
225
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

112
224
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
113
231
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

112
230
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
113
237
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

112
236
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

112
242
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
113
244
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
5
212
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
6
217
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
6
222
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
6
227
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
5
237
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

112
254
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
113
255
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

112
260
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
113
264
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
5
254
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

5
276
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
4
277
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
4
281
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
5
3
Logo della ditta
22
66
0

FINEIMMAGINI

Fattura accompagnatoria






 94 
 181 
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
128/A
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


Agente
Rossi Esempio Paolo
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
39
60
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
agente


Pagamento
Ricevuta bancaria 30/60 gg fine mese
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


Vs_Ordine
n. 45 del 02/03/2026
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
78
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
riferimento all'ordine del cliente


Dest_Indirizzo
Magazzino Tre Noci - Via del Canale, 21 - 99998 Pontelungo (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
82
78
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
luogo di destinazione della merce


R_Codice
ZAP-0450
$$$$$$$$$$$$$
7
94
Arial
9
0
$$$$$$$$$$$$$
codice articolo


R_Descr
Zappatrice a lame registrabili 45 cm
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
31
94
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
descrizione della merce


R_Um
Pz
$$$
99
94
Arial
9
0
$$$
unità di misura


R_Qta
50,00
#####,###
115
94
Arial
9
0
#####,###
quantità


R_Prezzo
59,000
######,####
133
94
Arial
9
0
######,####
prezzo unitario


R_Sconto
20
$$$$$
150
94
Arial
9
0
$$$$$
sconti percentuali


R_Importo
2.360,00
###.###,###
169
94
Arial
9
0
###.###,###
importo della riga


R_Iva
22
$$$
187
94
Arial
9
0
$$$
codice IVA della riga


Iva1_Codice
22
$$$$
7
196
Arial
9
0
$$$$
riepilogo IVA riga 1, codice


Iva1_Imponibile
2.400,00
###.###,###
33
196
Arial
9
0
###.###,###
riepilogo IVA riga 1, imponibile


Iva1_Aliquota
22,00
###,###
53
196
Arial
9
0
###,###
riepilogo IVA riga 1, aliquota


Iva1_Imposta
528,00
###.###,###
77
196
Arial
9
0
###.###,###
riepilogo IVA riga 1, imposta


Iva1_Descrizione
ordinaria
$$$$$$$$$$$$$$
91
196
Arial
8
0
$$$$$$$$$$$$$$
riepilogo IVA riga 1, descrizione


Iva2_Codice
10
$$$$
7
201
Arial
9
0
$$$$
riepilogo IVA riga 2, codice


Iva2_Imponibile
1.250,00
###.###,###
33
201
Arial
9
0
###.###,###
riepilogo IVA riga 2, imponibile


Iva2_Aliquota
10,00
###,###
53
201
Arial
9
0
###,###
riepilogo IVA riga 2, aliquota


Iva2_Imposta
125,00
###.###,###
77
201
Arial
9
0
###.###,###
riepilogo IVA riga 2, imposta


Iva2_Descrizione
ridotta
$$$$$$$$$$$$$$
91
201
Arial
8
0
$$$$$$$$$$$$$$
riepilogo IVA riga 2, descrizione


Iva3_Codice
E10
$$$$
7
206
Arial
9
0
$$$$
riepilogo IVA riga 3, codice


Iva3_Imponibile
150,00
###.###,###
35
206
Arial
9
0
###.###,###
riepilogo IVA riga 3, imponibile


Iva3_Aliquota
0,00
###,###
55
206
Arial
9
0
###,###
riepilogo IVA riga 3, aliquota


Iva3_Imposta
0,00
###.###,###
81
206
Arial
9
0
###.###,###
riepilogo IVA riga 3, imposta


Iva3_Descrizione
esente art. 10
$$$$$$$$$$$$$$
91
206
Arial
8
0
$$$$$$$$$$$$$$
riepilogo IVA riga 3, descrizione


Scad1_Data
30/04/2026
$$$$$$$$$$
7
219
Arial
9
0
$$$$$$$$$$
data scadenza 1


Scad1_Importo
2.226,50
###.###,###
7
224
Arial
9
-1
###.###,###
importo scadenza 1


Scad2_Data
31/05/2026
$$$$$$$$$$
57
219
Arial
9
0
$$$$$$$$$$
data scadenza 2


Scad2_Importo
2.226,50
###.###,###
57
224
Arial
9
-1
###.###,###
importo scadenza 2


Tot_Merce
3.760,00
###.###,###
181
191
Arial
9
0
###.###,###
totale merce


Spese
40,00
###.###,###
185
197
Arial
9
0
###.###,###
spese di trasporto e incasso


Tot_Imponibile
3.800,00
###.###,###
181
203
Arial
9
0
###.###,###
totale imponibile


Tot_Imposta
653,00
###.###,###
183
209
Arial
9
0
###.###,###
totale imposta


Totale
4.453,00
###.###,###
176
219
Arial
12
-1
###.###,###
totale fattura €


Tr_Causale
Vendita
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
237
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
causale del trasporto


Tr_Aspetto
Scatole su bancale
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
71
237
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
aspetto esteriore dei beni


Tr_Colli
4
####,
149
237
Arial
9
0
####,
numero dei colli


Tr_Peso
186,50
#######,###
183
237
Arial
9
0
#######,###
peso in chilogrammi


Tr_ACura
Vettore
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
245
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
trasporto a cura di mittente, vettore o destinatario


Tr_Porto
Franco destino
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
71
245
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
porto


Tr_DataOra
16/03/2026  08:30
$$$$$$$$$$$$$$$$$$$$
134
245
Arial
9
0
$$$$$$$$$$$$$$$$$$$$
data e ora di inizio del trasporto


Tr_Vettore
Autotrasporti Quattroruote S.r.l. - Via Stazione, 3 - 99998 Pontelungo (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
253
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
vettore: ragione sociale e indirizzo


Tr_Targa
ZZ 000 ZZ   16/03/2026
$$$$$$$$$$$$$$$$$$$$$$$$
134
253
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$
targa del mezzo e data del ritiro

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

FATTURA ACCOMPAGNATORIA
FATTURA ACCOMPAGNATORIA
4
30
Arial
14
-1
Etichetta FATTURA ACCOMPAGNATORIA
7
79
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

Agente
Agente
37
56
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

Vs. ordine
Vs. ordine
5
74
Arial
7
0
Riquadro Vs. ordine
8
75
1.1
8
1

Luogo di destinazione
Luogo di destinazione
80
74
Arial
7
0
Riquadro Luogo di destinazione
8
115
1.1
8
1

Colonna Codice

5
85
Arial
8
-1
Colonna Codice
102
24
1.1
8
1

Codice
Codice
6
86
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

29
85
Arial
8
-1
Colonna Descrizione
102
66
1.1
8
1

Descrizione
Descrizione
30
86
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

95
85
Arial
8
-1
Colonna U.M.
102
12
1.1
8
1

U.M
U.M.
97
86
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

107
85
Arial
8
-1
Colonna Quantità
102
18
1.1
8
1

Quantità
Quantità
111
86
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

125
85
Arial
8
-1
Colonna Prezzo
102
20
1.1
8
1

Prezzo
Prezzo
133
86
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

145
85
Arial
8
-1
Colonna Sc. %
102
14
1.1
8
1

Sc. %
Sc. %
147
86
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

159
85
Arial
8
-1
Colonna Importo
102
24
1.1
8
1

Importo
Importo
169
86
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

183
85
Arial
8
-1
Colonna IVA
102
12
1.1
8
1

IVA
IVA
186
86
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
85
Arial
8
0
Riquadro delle righe
102
190
1.3
1
1

Linea intestazione righe

5
92
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

5
190
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

19
190
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

47
190
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

63
190
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

89
190
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
6
191
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
32
191
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
52
191
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
77
191
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
90
191
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

5
195
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
5
215
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

112
190
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
113
191
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
113
197
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

112
196
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
113
203
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

112
202
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
113
209
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

112
208
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

112
214
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
113
219
Arial
11
-1
Etichetta TOTALE FATTURA €
6
41
0
0
1

Causale del trasporto
Causale del trasporto
5
233
Arial
7
0
Riquadro Causale del trasporto
8
64
1.1
8
1

Aspetto esteriore dei beni
Aspetto esteriore dei beni
69
233
Arial
7
0
Riquadro Aspetto esteriore dei beni
8
63
1.1
8
1

N. colli
N. colli
132
233
Arial
7
0
Riquadro N. colli
8
21
1.1
8
1

Peso kg
Peso kg
153
233
Arial
7
0
Riquadro Peso kg
8
42
1.1
8
1

Trasporto a cura di
Trasporto a cura di
5
241
Arial
7
0
Riquadro Trasporto a cura di
8
64
1.1
8
1

Porto
Porto
69
241
Arial
7
0
Riquadro Porto
8
63
1.1
8
1

Data e ora inizio trasporto
Data e ora inizio trasporto
132
241
Arial
7
0
Riquadro Data e ora inizio trasporto
8
63
1.1
8
1

Vettore
Vettore
5
249
Arial
7
0
Riquadro Vettore
8
127
1.1
8
1

Targa / data ritiro
Targa / data ritiro
132
249
Arial
7
0
Riquadro Targa / data ritiro
8
63
1.1
8
1

Firma del conducente
Firma del conducente
5
257
Arial
7
0
Spazio per la firma
14
64
1.1
8
1

Firma del vettore
Firma del vettore
69
257
Arial
7
0
Spazio per la firma
14
63
1.1
8
1

Firma del destinatario
Firma del destinatario
132
257
Arial
7
0
Spazio per la firma
14
63
1.1
8
1

Linea piede

5
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
4
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
4
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
5
3
Logo della ditta
22
66
0

FINEIMMAGINI

DDT con riferimento prodotto cliente






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
96
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
36
Arial
11
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale del cliente


Cli_RagSoc2
di Prova Mario & C.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
42
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale, seconda riga del cliente


Cli_Indirizzo
Vicolo dell'Esempio, 7
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
47
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
indirizzo del cliente


Cli_CapCitta
99998 PONTELUNGO (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
52
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
CAP, città e provincia del cliente


Dest_RagSoc
Magazzino Tre Noci
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
64
Arial
10
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale della destinazione


Dest_Indirizzo
Via del Canale, 21
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
70
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
indirizzo della destinazione


Dest_CapCitta
99998 PONTELUNGO (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
75
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
CAP, città e provincia della destinazione


Vs_Ordine
n. 45 del 02/03/2026
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
61
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
riferimento all'ordine del cliente


Agente
Rossi Paolo
$$$$$$$$$$$$$$$$
73
61
Arial
9
0
$$$$$$$$$$$$$$$$
agente


Pagamento
Ricevuta bancaria 30/60 gg fine mese
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
70
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
condizioni di pagamento


Dest_Tel
0999 000789
$$$$$$$$$$$$$$$$$$$$$$$$$
9
79
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$
telefono per la consegna


R_Codice
ZAP-0450
$$$$$$$$$$$$$$$$
9
95
Arial
9
0
$$$$$$$$$$$$$$$$
codice articolo


R_RifCli
TN/4711-B
$$$$$$$$$$$$$$$$$$
37
95
Arial
9
0
$$$$$$$$$$$$$$$$$$
riferimento prodotto del cliente


R_Descr
Zappatrice a lame registrabili 45 cm
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
69
95
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
descrizione della merce


R_Um
Pz
$$$
161
95
Arial
9
0
$$$
unità di misura


R_Qta
50,00
#####,###
187
95
Arial
9
0
#####,###
quantità


Tr_Causale
Vendita
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
227
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
causale del trasporto


Tr_Aspetto
Scatole su bancale
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
73
227
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
aspetto esteriore dei beni


Tr_Colli
4
####,
151
227
Arial
9
0
####,
numero dei colli


Tr_Peso
186,50
#######,###
185
227
Arial
9
0
#######,###
peso in chilogrammi


Tr_ACura
Vettore
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
235
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
trasporto a cura di mittente, vettore o destinatario


Tr_Porto
Franco destino
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
73
235
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
porto


Tr_DataOra
16/03/2026  08:30
$$$$$$$$$$$$$$$$$$$$
136
235
Arial
9
0
$$$$$$$$$$$$$$$$$$$$
data e ora di inizio del trasporto


Tr_Vettore
Autotrasporti Quattroruote S.r.l. - Via Stazione, 3 - 99998 Pontelungo (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
243
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
vettore: ragione sociale e indirizzo


Tr_Targa
ZZ 000 ZZ   16/03/2026
$$$$$$$$$$$$$$$$$$$$$$$$
136
243
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$
targa del mezzo e data del ritiro


Note
Consegnare nelle ore del mattino; scarico con sponda idraulica.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
267
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

DOCUMENTO DI TRASPORTO
DOCUMENTO DI TRASPORTO
6
31
Arial
14
-1
Etichetta DOCUMENTO DI TRASPORTO
7
74
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
26
91
1.3
1
1

Riquadro destinazione
Luogo di destinazione
106
58
Arial
8
0
Riquadro della destinazione
25
91
1.3
1
1

Vs. ordine
Vs. ordine
7
57
Arial
7
0
Riquadro Vs. ordine
8
64
1.1
8
1

Agente
Agente
71
57
Arial
7
0
Riquadro Agente
8
31
1.1
8
1

Condizioni di pagamento
Condizioni di pagamento
7
65
Arial
7
0
Riquadro Condizioni di pagamento
9
95
1.1
8
1

Telefono per la consegna
Telefono per la consegna
7
74
Arial
7
0
Riquadro Telefono per la consegna
9
95
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
28
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

Colonna Vs. codice

35
86
Arial
8
-1
Colonna Vs. codice
134
32
1.1
8
1

Vs. codice
Vs. codice
36
87
Arial
8
-1
Etichetta Vs. codice
5
16
0
0
1

Colonna Descrizione

67
86
Arial
8
-1
Colonna Descrizione
134
88
1.1
8
1

Descrizione
Descrizione
68
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

155
86
Arial
8
-1
Colonna U.M.
134
16
1.1
8
1

U.M
U.M.
159
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

171
86
Arial
8
-1
Colonna Quantità
134
26
1.1
8
1

Quantità
Quantità
183
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

Causale del trasporto
Causale del trasporto
7
223
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
71
223
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
134
223
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
155
223
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
7
231
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
71
231
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
134
231
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
7
239
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
134
239
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
7
247
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
71
247
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
134
247
Arial
7
0
Spazio per la firma
14
63
1.1
8
1

Annotazioni
Annotazioni
7
261
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
273
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
Documento di trasporto emesso ai sensi del D.P.R. 14 agosto 1996 n. 472.
6
274
Arial
7
0
Etichetta Nota a piede
4
84
0
0
8

Nota a piede 2
Il destinatario è tenuto a controllare il numero dei colli e lo stato degli imballi alla consegna.
6
278
Arial
7
0
Etichetta Nota a piede 2
4
102
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

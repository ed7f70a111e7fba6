DDT documento di trasporto






 94 
 213 
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
96
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
35
Arial
11
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale del cliente


Cli_RagSoc2
di Prova Mario & C.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
41
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale, seconda riga del cliente


Cli_Indirizzo
Vicolo dell'Esempio, 7
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
46
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
indirizzo del cliente


Cli_CapCitta
99998 PONTELUNGO (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
51
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
CAP, città e provincia del cliente


Dest_RagSoc
Magazzino Tre Noci
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
63
Arial
10
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale della destinazione


Dest_Indirizzo
Via del Canale, 21
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
69
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
indirizzo della destinazione


Dest_CapCitta
99998 PONTELUNGO (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
74
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
CAP, città e provincia della destinazione


Vs_Ordine
n. 45 del 02/03/2026
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
60
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
riferimento all'ordine del cliente


Agente
Rossi Paolo
$$$$$$$$$$$$$$$$
71
60
Arial
9
0
$$$$$$$$$$$$$$$$
agente


Pagamento
Ricevuta bancaria 30/60 gg fine mese
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
69
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
condizioni di pagamento


Dest_Tel
0999 000789
$$$$$$$$$$$$$$$$$$$$$$$$$
7
78
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$
telefono per la consegna


R_Codice
ZAP-0450
$$$$$$$$$$$$$$$$$
7
94
Arial
9
0
$$$$$$$$$$$$$$$$$
codice articolo


R_Descr
Zappatrice a lame registrabili 45 cm
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
37
94
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
descrizione della merce


R_Um
Pz
$$$
143
94
Arial
9
0
$$$
unità di misura


R_Qta
50,00
#####,###
167
94
Arial
9
0
#####,###
quantità


R_Colli
2
####,
191
94
Arial
9
0
####,
colli della riga


Tr_Causale
Vendita
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
226
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
causale del trasporto


Tr_Aspetto
Scatole su bancale
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
71
226
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
aspetto esteriore dei beni


Tr_Colli
4
####,
149
226
Arial
9
0
####,
numero dei colli


Tr_Peso
186,50
#######,###
183
226
Arial
9
0
#######,###
peso in chilogrammi


Tr_ACura
Vettore
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
234
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
trasporto a cura di mittente, vettore o destinatario


Tr_Porto
Franco destino
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
71
234
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
porto


Tr_DataOra
16/03/2026  08:30
$$$$$$$$$$$$$$$$$$$$
134
234
Arial
9
0
$$$$$$$$$$$$$$$$$$$$
data e ora di inizio del trasporto


Tr_Vettore
Autotrasporti Quattroruote S.r.l. - Via Stazione, 3 - 99998 Pontelungo (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
242
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
vettore: ragione sociale e indirizzo


Tr_Targa
ZZ 000 ZZ   16/03/2026
$$$$$$$$$$$$$$$$$$$$$$$$
134
242
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$
targa del mezzo e data del ritiro


Note
Consegnare nelle ore del mattino; scarico con sponda idraulica.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
266
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
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

DOCUMENTO DI TRASPORTO
DOCUMENTO DI TRASPORTO
4
30
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
26
91
1.3
1
1

Riquadro destinazione
Luogo di destinazione
104
57
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
5
56
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
69
56
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
5
64
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
5
73
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

5
85
Arial
8
-1
Colonna Codice
134
30
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

35
85
Arial
8
-1
Colonna Descrizione
134
102
1.1
8
1

Descrizione
Descrizione
36
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

137
85
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
141
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

153
85
Arial
8
-1
Colonna Quantità
134
24
1.1
8
1

Quantità
Quantità
163
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

Colonna Colli

177
85
Arial
8
-1
Colonna Colli
134
18
1.1
8
1

Colli
Colli
186
86
Arial
8
-1
Etichetta Colli
5
9
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
134
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

Causale del trasporto
Causale del trasporto
5
222
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
222
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
222
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
222
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
230
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
230
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
230
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
238
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
238
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
246
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
246
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
246
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
5
260
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

5
272
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
4
273
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
4
277
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
5
3
Logo della ditta
22
66
0

FINEIMMAGINI

Movimento






 83 
 228 
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
317
$$$$$$$$$$$$
9
44
Arial
10
-1
$$$$$$$$$$$$
numero del movimento


Doc_Data
20/03/2026
$$$$$$$$$$
41
44
Arial
10
-1
$$$$$$$$$$
data del movimento


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


Mov_Causale
Trasferimento tra depositi
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
44
Arial
10
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
causale del movimento


Mov_MagPartenza
01 - Sede di Borgofinto
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
56
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
magazzino di partenza


Mov_MagArrivo
02 - Deposito di Pontelungo
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
56
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
magazzino di arrivo


Mov_Riferimento
Ordine cliente n. 61 del 03/03/2026
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
65
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
documento di riferimento


Mov_Operatore
Verdi Esempio Anna
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
65
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
operatore che ha registrato il movimento


R_Codice
ZAP-0450
$$$$$$$$$$$$$$$$
9
83
Arial
9
0
$$$$$$$$$$$$$$$$
codice articolo


R_Descr
Zappatrice a lame registrabili 45 cm
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
37
83
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
descrizione della merce


R_Lotto
L26-031
$$$$$$$$$$$$$
105
83
Arial
9
0
$$$$$$$$$$$$$
lotto


R_Um
Pz
$$$
132
83
Arial
9
0
$$$
unità di misura


R_Carico
0,00
#####,###
151
83
Arial
9
0
#####,###
quantità caricata


R_Scarico
50,00
#####,###
167
83
Arial
9
0
#####,###
quantità scaricata


R_Giacenza
112,00
######,###
185
83
Arial
9
0
######,###
giacenza dopo il movimento


Note
Merce prelevata dalla corsia B, scaffale 4.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
242
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
annotazioni


Tot_Righe
1
####,
139
241
Arial
10
0
####,
numero delle righe


Tot_Carico
0,00
######,###
161
241
Arial
10
-1
######,###
totale quantità caricata


Tot_Scarico
50,00
######,###
186
241
Arial
10
-1
######,###
totale quantità scaricata

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

MOVIMENTO DI MAGAZZINO
MOVIMENTO DI MAGAZZINO
6
31
Arial
14
-1
Etichetta MOVIMENTO DI MAGAZZINO
7
71
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

Causale
Causale
106
40
Arial
7
0
Riquadro Causale
9
91
1.1
8
1

Magazzino di partenza
Magazzino di partenza
7
52
Arial
7
0
Riquadro Magazzino di partenza
9
95
1.1
8
1

Magazzino di arrivo
Magazzino di arrivo
106
52
Arial
7
0
Riquadro Magazzino di arrivo
9
91
1.1
8
1

Riferimento
Riferimento
7
61
Arial
7
0
Riquadro Riferimento
9
95
1.1
8
1

Operatore
Operatore
106
61
Arial
7
0
Riquadro Operatore
9
91
1.1
8
1

Colonna Codice

7
74
Arial
8
-1
Colonna Codice
160
28
1.1
8
1

Codice
Codice
8
75
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
74
Arial
8
-1
Colonna Descrizione
160
68
1.1
8
1

Descrizione
Descrizione
36
75
Arial
8
-1
Etichetta Descrizione
5
18
0
0
1

Colonna Lotto

103
74
Arial
8
-1
Colonna Lotto
160
24
1.1
8
1

Lotto
Lotto
104
75
Arial
8
-1
Etichetta Lotto
5
10
0
0
1

Colonna U.M

127
74
Arial
8
-1
Colonna U.M.
160
14
1.1
8
1

U.M
U.M.
130
75
Arial
8
-1
Etichetta U.M
5
8
0
0
1

Colonna Carico

141
74
Arial
8
-1
Colonna Carico
160
18
1.1
8
1

Carico
Carico
147
75
Arial
8
-1
Etichetta Carico
5
11
0
0
1

Colonna Scarico

159
74
Arial
8
-1
Colonna Scarico
160
18
1.1
8
1

Scarico
Scarico
164
75
Arial
8
-1
Etichetta Scarico
5
13
0
0
1

Colonna Giacenza

177
74
Arial
8
-1
Colonna Giacenza
160
20
1.1
8
1

Giacenza
Giacenza
182
75
Arial
8
-1
Etichetta Giacenza
5
15
0
0
1

Riquadro righe

7
74
Arial
8
0
Riquadro delle righe
160
190
1.3
1
1

Linea intestazione righe

7
81
Arial
7
0
Riquadro Linea intestazione righe
1
190
2.3
1
0

Annotazioni
Annotazioni
7
237
Arial
7
0
Riquadro Annotazioni
9
109
1.1
8
1

N. righe
N. righe
116
237
Arial
7
0
Riquadro N. righe
9
27
1.1
8
1

Totale carico
Totale carico
143
237
Arial
7
0
Riquadro Totale carico
9
27
1.1
8
1

Totale scarico
Totale scarico
170
237
Arial
7
0
Riquadro Totale scarico
9
27
1.1
8
1

Firma del magazziniere
Il magazziniere
7
250
Arial
7
0
Spazio per la firma
18
94
1.1
8
1

Firma del responsabile
Il responsabile del deposito di arrivo
103
250
Arial
7
0
Spazio per la firma
18
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
Documento interno di movimentazione, non valido ai fini fiscali.
6
279
Arial
7
0
Etichetta Nota a piede
4
71
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

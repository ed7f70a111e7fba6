Movimento






 82 
 227 
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
317
$$$$$$$$$$$$
7
43
Arial
10
-1
$$$$$$$$$$$$
numero del movimento


Doc_Data
20/03/2026
$$$$$$$$$$
39
43
Arial
10
-1
$$$$$$$$$$
data del movimento


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


Mov_Causale
Trasferimento tra depositi
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
106
43
Arial
10
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
causale del movimento


Mov_MagPartenza
01 - Sede di Borgofinto
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
55
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
magazzino di partenza


Mov_MagArrivo
02 - Deposito di Pontelungo
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
106
55
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
magazzino di arrivo


Mov_Riferimento
Ordine cliente n. 61 del 03/03/2026
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
64
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
documento di riferimento


Mov_Operatore
Verdi Esempio Anna
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
106
64
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
operatore che ha registrato il movimento


R_Codice
ZAP-0450
$$$$$$$$$$$$$$$$
7
82
Arial
9
0
$$$$$$$$$$$$$$$$
codice articolo


R_Descr
Zappatrice a lame registrabili 45 cm
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
35
82
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
descrizione della merce


R_Lotto
L26-031
$$$$$$$$$$$$$
103
82
Arial
9
0
$$$$$$$$$$$$$
lotto


R_Um
Pz
$$$
130
82
Arial
9
0
$$$
unità di misura


R_Carico
0,00
#####,###
149
82
Arial
9
0
#####,###
quantità caricata


R_Scarico
50,00
#####,###
165
82
Arial
9
0
#####,###
quantità scaricata


R_Giacenza
112,00
######,###
183
82
Arial
9
0
######,###
giacenza dopo il movimento


Note
Merce prelevata dalla corsia B, scaffale 4.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
241
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
annotazioni


Tot_Righe
1
####,
137
240
Arial
10
0
####,
numero delle righe


Tot_Carico
0,00
######,###
159
240
Arial
10
-1
######,###
totale quantità caricata


Tot_Scarico
50,00
######,###
184
240
Arial
10
-1
######,###
totale quantità scaricata

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

MOVIMENTO DI MAGAZZINO
MOVIMENTO DI MAGAZZINO
4
30
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

Causale
Causale
104
39
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
5
51
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
104
51
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
5
60
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
104
60
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

5
73
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
6
74
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

33
73
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
34
74
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

101
73
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
102
74
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

125
73
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
128
74
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

139
73
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
145
74
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

157
73
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
162
74
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

175
73
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
180
74
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

5
73
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

5
80
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
5
236
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
114
236
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
141
236
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
168
236
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
5
249
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
101
249
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
Documento interno di movimentazione, non valido ai fini fiscali.
4
278
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
5
3
Logo della ditta
22
66
0

FINEIMMAGINI

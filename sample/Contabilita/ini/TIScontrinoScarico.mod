Scontrino scarico






 79 
 181 
 5 
 0 
segue
 4 







































Ditta_RagSoc
Cascinalta S.r.l.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
28
22
Arial
11
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale della propria ditta


Ditta_Indirizzo
Via dei Mulini Vecchi, 12
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
27
28
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
indirizzo della propria ditta


Ditta_CapCitta
99999 Borgofinto (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
28
32
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
CAP, città e provincia della propria ditta


Ditta_PIva
Partita IVA e C.F. 01234567890
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
22
36
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
partita IVA e codice fiscale della propria ditta


Ditta_Tel
Tel. 0999 000123
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
31
40
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
telefono della propria ditta


Doc_Numero
1204
$$$$$$$$
12
54
Arial
9
-1
$$$$$$$$
numero dello scontrino


Doc_Data
21/03/2026
$$$$$$$$$$
34
54
Arial
9
-1
$$$$$$$$$$
data dello scontrino


Doc_Ora
10:42
$$$$$
70
54
Arial
9
0
$$$$$
ora dello scontrino


Cli_RagSoc
Officina Meccanica Tre Noci S.n.c.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
22
59
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale del cliente


Operatore
Anna
$$$$$$$$$$$$$$$
24
64
Arial
9
0
$$$$$$$$$$$$$$$
operatore


R_Descr
Olio motore 4T 1 lt
$$$$$$$$$$$$$$$$$$$$$$
6
79
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$
descrizione della merce


R_Qta
2,00
####,###
44
79
Arial
9
0
####,###
quantità


R_Iva
22
$$$
54
79
Arial
9
0
$$$
codice IVA della riga


R_Importo
18,60
###.###,###
70
79
Arial
9
0
###.###,###
importo della riga


Subtotale
18,60
###.###,###
70
191
Arial
9
0
###.###,###
subtotale


Sconto
0,60
###.###,###
72
196
Arial
9
0
###.###,###
sconto


Totale
18,00
###.###,###
67
205
Arial
13
-1
###.###,###
totale


Tot_Imposta
3,25
###.###,###
73
213
Arial
8
0
###.###,###
imposta compresa nel totale


Contanti
20,00
###.###,###
70
219
Arial
9
0
###.###,###
contanti ricevuti


Resto
2,00
###.###,###
72
224
Arial
9
0
###.###,###
resto


Tot_Pezzi
2
####,
18
232
Arial
8
0
####,
numero dei pezzi


Doc_Deposito
Deposito 01
$$$$$$$$$$$$$$$$$$$$
63
232
Arial
8
0
$$$$$$$$$$$$$$$$$$$$
deposito di scarico

FINECAMPI

Linea testata

6
46
Arial
7
0
Riquadro Linea testata
1
72
2.4
1
0

SCONTRINO DI SCARICO
SCONTRINO DI SCARICO
17
47
Arial
11
-1
Etichetta SCONTRINO DI SCARICO
6
50
0
0
1

N
N.
5
54
Arial
8
0
Etichetta N
5
5
0
0
1

del
del
26
54
Arial
8
0
Etichetta del
5
6
0
0
1

Cliente
Cliente
5
59
Arial
8
0
Etichetta Cliente
5
11
0
0
1

Operatore
Operatore
5
64
Arial
8
0
Etichetta Operatore
5
15
0
0
1

Linea righe

6
71
Arial
7
0
Riquadro Linea righe
1
72
2.2
0
0

Descrizione
Descrizione
5
72
Arial
8
-1
Etichetta Descrizione
5
18
0
0
1

Q.tà
Q.tà
44
72
Arial
8
-1
Etichetta Q.tà
5
8
0
0
1

Importo
Importo
66
72
Arial
8
-1
Etichetta Importo
5
13
0
0
1

Linea righe 2

6
77
Arial
7
0
Riquadro Linea righe 2
1
72
2.2
0
0

IVA
IVA
52
72
Arial
8
-1
Etichetta IVA
5
7
0
0
1

Linea totali

6
189
Arial
7
0
Riquadro Linea totali
1
72
2.2
0
0

Subtotale
Subtotale
5
191
Arial
8
0
Etichetta Subtotale
5
14
0
0
0

Sconto
Sconto
5
196
Arial
8
0
Etichetta Sconto
5
11
0
0
0

Linea totale

6
203
Arial
7
0
Riquadro Linea totale
1
72
2.4
1
0

TOTALE €
TOTALE €
5
205
Arial
12
-1
Etichetta TOTALE €
6
23
0
0
1

di cui IVA
di cui IVA
5
213
Arial
7
0
Etichetta di cui IVA
4
13
0
0
0

Contanti
Contanti
5
219
Arial
8
0
Etichetta Contanti
5
13
0
0
0

Resto
Resto
5
224
Arial
8
0
Etichetta Resto
5
10
0
0
0

Linea piede

6
231
Arial
7
0
Riquadro Linea piede
1
72
2.2
0
0

Pezzi
Pezzi
5
232
Arial
7
0
Etichetta Pezzi
4
9
0
0
0

Grazie e arrivederci
Grazie e arrivederci
25
239
Arial
10
-1
Etichetta Grazie e arrivederci
6
35
0
0
1

Non valido ai fini fiscali
Non valido ai fini fiscali
29
245
Arial
7
0
Etichetta Non valido ai fini fiscali
4
27
0
0
8
FINECORNICI

LogoCascinalta.gif
18
4
Logo della ditta
16
48
0

FINEIMMAGINI

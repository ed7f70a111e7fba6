Scontrino scarico






 78 
 180 
 5 
 0 
segue
 4 







































Ditta_RagSoc
Cascinalta S.r.l.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
26
21
Arial
11
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale della propria ditta


Ditta_Indirizzo
Via dei Mulini Vecchi, 12
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
25
27
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
indirizzo della propria ditta


Ditta_CapCitta
99999 Borgofinto (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
26
31
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
CAP, città e provincia della propria ditta


Ditta_PIva
Partita IVA e C.F. 01234567890
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
20
35
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
partita IVA e codice fiscale della propria ditta


Ditta_Tel
Tel. 0999 000123
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
29
39
Arial
8
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
telefono della propria ditta


Doc_Numero
1204
$$$$$$$$
10
53
Arial
9
-1
$$$$$$$$
numero dello scontrino


Doc_Data
21/03/2026
$$$$$$$$$$
32
53
Arial
9
-1
$$$$$$$$$$
data dello scontrino


Doc_Ora
10:42
$$$$$
68
53
Arial
9
0
$$$$$
ora dello scontrino


Cli_RagSoc
Officina Meccanica Tre Noci S.n.c.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
20
58
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale del cliente


Operatore
Anna
$$$$$$$$$$$$$$$
22
63
Arial
9
0
$$$$$$$$$$$$$$$
operatore


R_Descr
Olio motore 4T 1 lt
$$$$$$$$$$$$$$$$$$$$$$
4
78
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$
descrizione della merce


R_Qta
2,00
####,###
42
78
Arial
9
0
####,###
quantità


R_Iva
22
$$$
52
78
Arial
9
0
$$$
codice IVA della riga


R_Importo
18,60
###.###,###
68
78
Arial
9
0
###.###,###
importo della riga


Subtotale
18,60
###.###,###
68
190
Arial
9
0
###.###,###
subtotale


Sconto
0,60
###.###,###
70
195
Arial
9
0
###.###,###
sconto


Totale
18,00
###.###,###
65
204
Arial
13
-1
###.###,###
totale


Tot_Imposta
3,25
###.###,###
71
212
Arial
8
0
###.###,###
imposta compresa nel totale


Contanti
20,00
###.###,###
68
218
Arial
9
0
###.###,###
contanti ricevuti


Resto
2,00
###.###,###
70
223
Arial
9
0
###.###,###
resto


Tot_Pezzi
2
####,
16
231
Arial
8
0
####,
numero dei pezzi


Doc_Deposito
Deposito 01
$$$$$$$$$$$$$$$$$$$$
61
231
Arial
8
0
$$$$$$$$$$$$$$$$$$$$
deposito di scarico

FINECAMPI

Linea testata

4
45
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
15
46
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
3
53
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
24
53
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
3
58
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
3
63
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

4
70
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
3
71
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
42
71
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
64
71
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

4
76
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
50
71
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

4
188
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
3
190
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
3
195
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

4
202
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
3
204
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
3
212
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
3
218
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
3
223
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

4
230
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
3
231
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
23
238
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
27
244
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
16
3
Logo della ditta
16
48
0

FINEIMMAGINI

Estratto conto clienti






 84 
 216 
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


Doc_Data
31/03/2026
$$$$$$$$$$
9
44
Arial
10
-1
$$$$$$$$$$
data dell'estratto conto


Cli_Codice
C00127
$$$$$$$$$$$$
41
44
Arial
10
0
$$$$$$$$$$$$
codice cliente


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


Periodo_Dal
01/01/2026
$$$$$$$$$$
9
53
Arial
9
0
$$$$$$$$$$
inizio del periodo


Periodo_Al
31/03/2026
$$$$$$$$$$
56
53
Arial
9
0
$$$$$$$$$$
fine del periodo


Cli_PIva
00000000000
$$$$$$$$$$$$$$$$
9
61
Arial
9
0
$$$$$$$$$$$$$$$$
partita IVA del cliente


Cli_Tel
0999 000789
$$$$$$$$$$$$$$$$$$$$
56
61
Arial
9
0
$$$$$$$$$$$$$$$$$$$$
telefono del cliente


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


R_DataReg
10/03/2026
$$$$$$$$$$
9
84
Arial
9
0
$$$$$$$$$$
data di registrazione


R_Numero
FT 128/A
$$$$$$$$$$$$
30
84
Arial
9
0
$$$$$$$$$$$$
numero del documento


R_Causale
Fattura di vendita
$$$$$$$$$$$$$$$$$$$$$$$$$$$
52
84
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$
causale contabile


R_Scadenza
30/04/2026
$$$$$$$$$$
98
84
Arial
9
0
$$$$$$$$$$
data di scadenza


R_Dare
4.453,00
###.###,###
129
84
Arial
9
0
###.###,###
importo a debito


R_Avere
0,00
###.###,###
161
84
Arial
9
0
###.###,###
importo a credito


R_Saldo
4.453,00
###.###,###
183
84
Arial
9
0
###.###,###
saldo progressivo


Tot_Scaduto
1.180,40
###.###,###
35
231
Arial
10
-1
###.###,###
totale scaduto


Tot_AScadere
3.272,60
###.###,###
79
231
Arial
10
-1
###.###,###
totale a scadere


Tot_Dare
4.453,00
###.###,###
115
231
Arial
10
0
###.###,###
totale dare


Tot_Avere
0,00
###.###,###
155
231
Arial
10
0
###.###,###
totale avere


Saldo
4.453,00
###.###,###
180
231
Arial
11
-1
###.###,###
saldo finale


Ditta_Iban
Banca di Borgofinto - IBAN IT00 X000 0000 0000 0000 0000 000
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
245
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
banca e IBAN della propria ditta


Firma
L'amministrazione
$$$$$$$$$$$$$$$$$$$$$$$$$
152
269
Arial
9
-1
$$$$$$$$$$$$$$$$$$$$$$$$$
firma in calce

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

ESTRATTO CONTO
ESTRATTO CONTO
6
31
Arial
14
-1
Etichetta ESTRATTO CONTO
7
48
0
0
1

Alla data del
Alla data del
7
40
Arial
7
0
Riquadro Alla data del
9
32
1.1
8
1

Codice cliente
Codice cliente
39
40
Arial
7
0
Riquadro Codice cliente
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

Dal
Dal
7
49
Arial
7
0
Riquadro Dal
8
47
1.1
8
1

Al
Al
54
49
Arial
7
0
Riquadro Al
8
48
1.1
8
1

Partita IVA
Partita IVA
7
57
Arial
7
0
Riquadro Partita IVA
8
47
1.1
8
1

Telefono
Telefono
54
57
Arial
7
0
Riquadro Telefono
8
48
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

Riportiamo di seguito la situazione contabile che risulta dalle nostre scritture
Riportiamo di seguito la situazione contabile che risulta dalle nostre scritture.
6
68
Arial
9
0
Etichetta Riportiamo di seguito la situazione contabile che risulta dalle nostre scritture
5
110
0
0
0

Colonna Data reg

7
75
Arial
8
-1
Colonna Data reg.
148
21
1.1
8
1

Data reg
Data reg.
8
76
Arial
8
-1
Etichetta Data reg
5
15
0
0
1

Colonna Documento

28
75
Arial
8
-1
Colonna Documento
148
22
1.1
8
1

Documento
Documento
29
76
Arial
8
-1
Etichetta Documento
5
18
0
0
1

Colonna Causale

50
75
Arial
8
-1
Colonna Causale
148
46
1.1
8
1

Causale
Causale
51
76
Arial
8
-1
Etichetta Causale
5
13
0
0
1

Colonna Scadenza

96
75
Arial
8
-1
Colonna Scadenza
148
21
1.1
8
1

Scadenza
Scadenza
97
76
Arial
8
-1
Etichetta Scadenza
5
16
0
0
1

Colonna Dare

117
75
Arial
8
-1
Colonna Dare
148
26
1.1
8
1

Dare
Dare
134
76
Arial
8
-1
Etichetta Dare
5
9
0
0
1

Colonna Avere

143
75
Arial
8
-1
Colonna Avere
148
26
1.1
8
1

Avere
Avere
158
76
Arial
8
-1
Etichetta Avere
5
10
0
0
1

Colonna Saldo

169
75
Arial
8
-1
Colonna Saldo
148
28
1.1
8
1

Saldo
Saldo
186
76
Arial
8
-1
Etichetta Saldo
5
10
0
0
1

Riquadro righe

7
75
Arial
8
0
Riquadro delle righe
148
190
1.3
1
1

Linea intestazione righe

7
82
Arial
7
0
Riquadro Linea intestazione righe
1
190
2.3
1
0

Totale scaduto
Totale scaduto
7
226
Arial
7
0
Riquadro Totale scaduto
10
44
1.1
8
1

Totale a scadere
Totale a scadere
51
226
Arial
7
0
Riquadro Totale a scadere
10
44
1.1
8
1

Totale dare
Totale dare
98
226
Arial
7
0
Riquadro Totale dare
10
33
1.1
8
1

Totale avere
Totale avere
131
226
Arial
7
0
Riquadro Totale avere
10
33
1.1
8
1

SALDO €
SALDO €
164
226
Arial
7
-1
Riquadro SALDO €
10
33
1.4
1
1

Coordinate per il pagamento
Coordinate per il pagamento
7
240
Arial
7
0
Riquadro Coordinate per il pagamento
9
190
1.1
8
1

Vi preghiamo di verificare le partite sopra elencate e di provvedere al saldo di quelle scadute
Vi preghiamo di verificare le partite sopra elencate e di provvedere al saldo di quelle scadute.
6
253
Arial
9
0
Etichetta Vi preghiamo di verificare le partite sopra elencate e di provvedere al saldo di quelle scadute
5
133
0
0
0

In mancanza di vostre osservazioni entro 15 giorni l'estratto conto si intende approvato
In mancanza di vostre osservazioni entro 15 giorni l'estratto conto si intende approvato.
6
258
Arial
9
0
Etichetta In mancanza di vostre osservazioni entro 15 giorni l'estratto conto si intende approvato
5
125
0
0
0

Distinti saluti
Distinti saluti
151
264
Arial
9
0
Etichetta Distinti saluti
5
20
0
0
0

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
Se nel frattempo avete già provveduto al pagamento vogliate considerare nulla la presente.
6
279
Arial
7
0
Etichetta Nota a piede
4
102
0
0
8

Nota a piede 2
I dati sono trattati nel rispetto delle norme sulla protezione dei dati personali.
6
283
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

Ordine fornitore / richiesta offerta






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


Doc_Titolo
ORDINE A FORNITORE
$$$$$$$$$$$$$$$$$$$$$$$$$
7
31
Arial
14
-1
$$$$$$$$$$$$$$$$$$$$$$$$$
titolo del documento: ordine a fornitore oppure richiesta di offerta


Doc_Numero
23
$$$$$$$$$$$$
9
44
Arial
10
-1
$$$$$$$$$$$$
numero del documento


Doc_Data
18/03/2026
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


For_Codice
F00034
$$$$$$$$$$$$
9
53
Arial
9
0
$$$$$$$$$$$$
codice fornitore


For_PIva
00000000000
$$$$$$$$$$$$$$$$
41
53
Arial
9
0
$$$$$$$$$$$$$$$$
partita IVA fornitore


For_CodFisc
00000000000
$$$$$$$$$$$$$$$$
73
53
Arial
9
0
$$$$$$$$$$$$$$$$
codice fiscale fornitore


For_RagSoc
Ferramenta all'Ingrosso Vallefinta S.p.A.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
39
Arial
11
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale del fornitore


For_RagSoc2
Deposito di Pontelungo
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
45
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale, seconda riga del fornitore


For_Indirizzo
Strada Provinciale 0, km 12
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
50
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
indirizzo del fornitore


For_CapCitta
99996 VALLEFINTA (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
110
55
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
CAP, città e provincia del fornitore


Vs_Offerta
n. 310 del 09/03/2026
$$$$$$$$$$$$$$$$$$$$$$$$
9
61
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$
riferimento all'offerta del fornitore


For_Attenzione
Ufficio vendite
$$$$$$$$$$$$$$$$$$$$$$$$$$
56
61
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$
persona a cui è diretto il documento


Consegna
02/04/2026
$$$$$$$$$$
9
71
Arial
9
-1
$$$$$$$$$$
data di consegna richiesta


Porto
Franco ns. magazzino
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
72
71
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
resa della merce


Tr_ACura
Fornitore
$$$$$$$$$$$$$$$$$$$$$$$$$
135
71
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$
trasporto a cura di


Pagamento
Bonifico 60 gg data fattura
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
79
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
condizioni di pagamento


Dest_Indirizzo
Cascinalta S.r.l. - Via dei Mulini Vecchi, 12 - 99999 Borgofinto (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
72
79
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
luogo di consegna della merce


R_Codice
LAM-0112
$$$$$$$$$$$$
9
95
Arial
9
0
$$$$$$$$$$$$
nostro codice articolo


R_CodFor
VF 88/112
$$$$$$$$$$$$$
32
95
Arial
9
0
$$$$$$$$$$$$$
codice articolo del fornitore


R_Descr
Lama zappatrice 112 mm
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
56
95
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
descrizione della merce


R_Um
Pz
$$$
107
95
Arial
9
0
$$$
unità di misura


R_Qta
400,00
#####,###
119
95
Arial
9
0
#####,###
quantità


R_Prezzo
3,250
#####,####
139
95
Arial
9
0
#####,####
prezzo unitario


R_Sconto
15
$$$$$
153
95
Arial
9
0
$$$$$
sconti percentuali


R_Importo
1.105,00
###.###,###
168
95
Arial
9
0
###.###,###
importo della riga


R_Consegna
02/04
$$$$$
186
95
Arial
9
0
$$$$$
giorno di consegna della riga


Note
Indicare il numero del presente ordine sui vostri documenti.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
9
228
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
annotazioni


Tot_Merce
1.105,00
###.###,###
183
224
Arial
9
0
###.###,###
totale merce


Tot_Imposta
243,10
###.###,###
185
229
Arial
9
0
###.###,###
totale imposta


Totale
1.348,10
###.###,###
178
236
Arial
12
-1
###.###,###
totale ordine €

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

Codice fornitore
Codice fornitore
7
49
Arial
7
0
Riquadro Codice fornitore
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

Riquadro fornitore
Spett.le
106
31
Arial
8
0
Riquadro del fornitore
34
91
1.3
1
1

Vs. offerta
Vs. offerta
7
57
Arial
7
0
Riquadro Vs. offerta
8
47
1.1
8
1

Alla cortese attenzione
Alla cortese attenzione
54
57
Arial
7
0
Riquadro Alla cortese attenzione
8
48
1.1
8
1

Consegna richiesta
Consegna richiesta
7
67
Arial
7
0
Riquadro Consegna richiesta
8
63
1.1
8
1

Resa
Resa
70
67
Arial
7
0
Riquadro Resa
8
63
1.1
8
1

Trasporto a cura di
Trasporto a cura di
133
67
Arial
7
0
Riquadro Trasporto a cura di
8
64
1.1
8
1

Condizioni di pagamento
Condizioni di pagamento
7
75
Arial
7
0
Riquadro Condizioni di pagamento
8
63
1.1
8
1

Luogo di consegna
Luogo di consegna
70
75
Arial
7
0
Riquadro Luogo di consegna
8
127
1.1
8
1

Colonna Ns. codice

7
86
Arial
8
-1
Colonna Ns. codice
134
23
1.1
8
1

Ns. codice
Ns. codice
8
87
Arial
8
-1
Etichetta Ns. codice
5
17
0
0
1

Colonna Vs. codice

30
86
Arial
8
-1
Colonna Vs. codice
134
24
1.1
8
1

Vs. codice
Vs. codice
31
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

54
86
Arial
8
-1
Colonna Descrizione
134
50
1.1
8
1

Descrizione
Descrizione
55
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

104
86
Arial
8
-1
Colonna U.M.
134
10
1.1
8
1

U.M
U.M.
105
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

114
86
Arial
8
-1
Colonna Quantità
134
17
1.1
8
1

Quantità
Quantità
117
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

Colonna Prezzo

131
86
Arial
8
-1
Colonna Prezzo
134
18
1.1
8
1

Prezzo
Prezzo
137
87
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

149
86
Arial
8
-1
Colonna Sc. %
134
11
1.1
8
1

Sc. %
Sc. %
150
87
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

160
86
Arial
8
-1
Colonna Importo
134
22
1.1
8
1

Importo
Importo
168
87
Arial
8
-1
Etichetta Importo
5
13
0
0
1

Colonna Data

182
86
Arial
8
-1
Colonna Data
134
15
1.1
8
1

Data 2
Data
185
87
Arial
8
-1
Etichetta Data 2
5
9
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

Annotazioni
Annotazioni
7
223
Arial
7
0
Riquadro Annotazioni
21
108
1.1
8
1

Riquadro totali

118
223
Arial
7
0
Riquadro Riquadro totali
10
79
1.1
8
1

Totale merce
Totale merce
119
224
Arial
8
0
Etichetta Totale merce
5
19
0
0
1

Totale imposta
Totale imposta
119
229
Arial
8
0
Etichetta Totale imposta
5
21
0
0
1

Linea totali

118
228
Arial
7
0
Riquadro Linea totali
1
79
2.1
8
0

Riquadro totale ordine €

118
233
Arial
8
-1
Riquadro Riquadro totale ordine €
11
79
1.4
1
1

TOTALE ORDINE €
TOTALE ORDINE €
119
236
Arial
11
-1
Etichetta TOTALE ORDINE €
6
37
0
0
1

Firma ufficio acquisti
L'ufficio acquisti
7
248
Arial
7
0
Spazio per la firma
16
94
1.1
8
1

Firma del fornitore
Conferma del fornitore (data, timbro e firma)
103
248
Arial
7
0
Spazio per la firma
16
94
1.1
8
1

Si prega di restituire copia firmata per accettazione entro 3 giorni lavorativi
Si prega di restituire copia firmata per accettazione entro 3 giorni lavorativi.
6
268
Arial
9
-1
Etichetta Si prega di restituire copia firmata per accettazione entro 3 giorni lavorativi
5
116
0
0
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
Le consegne parziali o anticipate devono essere concordate. La merce non conforme verrà resa a spese del fornitore.
6
279
Arial
7
0
Etichetta Nota a piede
4
131
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

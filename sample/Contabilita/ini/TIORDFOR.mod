Ordine fornitore / richiesta offerta






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


Doc_Titolo
ORDINE A FORNITORE
$$$$$$$$$$$$$$$$$$$$$$$$$
5
30
Arial
14
-1
$$$$$$$$$$$$$$$$$$$$$$$$$
titolo del documento: ordine a fornitore oppure richiesta di offerta


Doc_Numero
23
$$$$$$$$$$$$
7
43
Arial
10
-1
$$$$$$$$$$$$
numero del documento


Doc_Data
18/03/2026
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


For_Codice
F00034
$$$$$$$$$$$$
7
52
Arial
9
0
$$$$$$$$$$$$
codice fornitore


For_PIva
00000000000
$$$$$$$$$$$$$$$$
39
52
Arial
9
0
$$$$$$$$$$$$$$$$
partita IVA fornitore


For_CodFisc
00000000000
$$$$$$$$$$$$$$$$
71
52
Arial
9
0
$$$$$$$$$$$$$$$$
codice fiscale fornitore


For_RagSoc
Ferramenta all'Ingrosso Vallefinta S.p.A.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
38
Arial
11
-1
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale del fornitore


For_RagSoc2
Deposito di Pontelungo
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
44
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
ragione sociale, seconda riga del fornitore


For_Indirizzo
Strada Provinciale 0, km 12
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
49
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
indirizzo del fornitore


For_CapCitta
99996 VALLEFINTA (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
108
54
Arial
10
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
CAP, città e provincia del fornitore


Vs_Offerta
n. 310 del 09/03/2026
$$$$$$$$$$$$$$$$$$$$$$$$
7
60
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$
riferimento all'offerta del fornitore


For_Attenzione
Ufficio vendite
$$$$$$$$$$$$$$$$$$$$$$$$$$
54
60
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$
persona a cui è diretto il documento


Consegna
02/04/2026
$$$$$$$$$$
7
70
Arial
9
-1
$$$$$$$$$$
data di consegna richiesta


Porto
Franco ns. magazzino
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
70
70
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
resa della merce


Tr_ACura
Fornitore
$$$$$$$$$$$$$$$$$$$$$$$$$
133
70
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$
trasporto a cura di


Pagamento
Bonifico 60 gg data fattura
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
78
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
condizioni di pagamento


Dest_Indirizzo
Cascinalta S.r.l. - Via dei Mulini Vecchi, 12 - 99999 Borgofinto (ZZ)
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
70
78
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
luogo di consegna della merce


R_Codice
LAM-0112
$$$$$$$$$$$$
7
94
Arial
9
0
$$$$$$$$$$$$
nostro codice articolo


R_CodFor
VF 88/112
$$$$$$$$$$$$$
30
94
Arial
9
0
$$$$$$$$$$$$$
codice articolo del fornitore


R_Descr
Lama zappatrice 112 mm
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
54
94
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
descrizione della merce


R_Um
Pz
$$$
105
94
Arial
9
0
$$$
unità di misura


R_Qta
400,00
#####,###
117
94
Arial
9
0
#####,###
quantità


R_Prezzo
3,250
#####,####
137
94
Arial
9
0
#####,####
prezzo unitario


R_Sconto
15
$$$$$
151
94
Arial
9
0
$$$$$
sconti percentuali


R_Importo
1.105,00
###.###,###
166
94
Arial
9
0
###.###,###
importo della riga


R_Consegna
02/04
$$$$$
184
94
Arial
9
0
$$$$$
giorno di consegna della riga


Note
Indicare il numero del presente ordine sui vostri documenti.
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
7
227
Arial
9
0
$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$
annotazioni


Tot_Merce
1.105,00
###.###,###
181
223
Arial
9
0
###.###,###
totale merce


Tot_Imposta
243,10
###.###,###
183
228
Arial
9
0
###.###,###
totale imposta


Totale
1.348,10
###.###,###
176
235
Arial
12
-1
###.###,###
totale ordine €

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

Codice fornitore
Codice fornitore
5
48
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

Riquadro fornitore
Spett.le
104
30
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
5
56
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
52
56
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
5
66
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
68
66
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
131
66
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
5
74
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
68
74
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

5
85
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
6
86
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

28
85
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
29
86
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

52
85
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
53
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

102
85
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
103
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

112
85
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
115
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

129
85
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
135
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

147
85
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
148
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

158
85
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
166
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

Colonna Data

180
85
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
183
86
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

Annotazioni
Annotazioni
5
222
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

116
222
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
117
223
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
117
228
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

116
227
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

116
232
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
117
235
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
5
247
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
101
247
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
4
267
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
Le consegne parziali o anticipate devono essere concordate. La merce non conforme verrà resa a spese del fornitore.
4
278
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
4
282
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

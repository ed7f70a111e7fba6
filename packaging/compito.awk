# The template with the task of compito.sh done to it, line by line: what the saved model must be. Set by the script:
# tabella, the fields; inizio, fine, the rows; misure, the label's height and width; logo, the picture's file.
BEGIN {
  quanti = split(tabella, righe, "\n")
  for (i = 1; i <= quanti; i++) {
    split(righe[i], valori, "|")
    if (valori[1] != "") mia[valori[1]] = righe[i]
    else nuova = righe[i]
  }
  for (i = 1; i <= 30; i++) dollari = dollari "$"
}

function Cambia(riga) { # of the field at hand what a line of the table tells
  split(riga, valori, "|")
  campo[2] = valori[2] # name
  campo[3] = valori[3] # test text
  campo[5] = valori[7] # x
  campo[6] = valori[8] # y
  campo[7] = valori[4] # font
  campo[8] = valori[5] # size
  campo[9] = valori[6] # bold
}

function Scrive() {
  for (i = 1; i <= 12; i++) print campo[i]
}

NR == 8 { print " " inizio " "; next }
NR == 9 { print " " fine " "; next }
NR <= 51 { print; next }

!finiti && letti == 0 && $0 == "FINECAMPI" {
  campo[1] = campo[12] = ""
  Cambia(nuova)
  campo[4] = campo[10] = dollari
  campo[11] = "nuovocampo" (campi + 1)
  Scrive()
  print
  finiti = 1
  next
}
!finiti {
  campo[++letti] = $0
  if (letti < 12) next
  letti = 0
  campi++
  if (campo[2] in mia) Cambia(mia[campo[2]])
  if (substr(campo[2], 1, 2) == "R_") campo[6] = inizio
  Scrive()
  next
}
$0 == "FINECORNICI" {
  print "\nriquadro\nTimbro e firma\n40\n150\nArial\n11\n0\ndi prova\n20\n50\n1.5\n0\n0"
  print "\ndicitura\nDicitura fissa\n40\n176\nArial\n11\n0\ndi prova\n" misure "\n0\n0\n0"
}
$0 == "FINEIMMAGINI" { print "\n" logo "\n40\n190\nnuovaImmagine2\n20\n40\n1\n" }
{ print }

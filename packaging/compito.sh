# One whole task of a user's, from a new model to the same model opened again, worked with keys on the installed
# program. To be sourced after verifiche.sh by a script that stands on a screen with a window manager and beside a
# queue without a sheet, and that has set or defined
#   archivio            the folder with the models of the archive "Contabilita", as this computer names it
#   casaUtente          the folder that the program's browser opens first
#   AvviaProgramma      starts the program and does not wait for it
#   ProgrammaFinito     succeeds once it has ended
# Compito then makes the checks. Pictures are called compito_NUMBER_WHAT.png.

compitoModello=Compito.Mod

# What is made of ten fields: which one it was, name, test text, font, size, bold, x, y. The first word of each text
# is measured on paper. Row fields stand where the rows begin; the last field is a new one.
compitoInizioRighe=102 compitoFineRighe=210
compitoCampi="Ditta_RagSoc|Ditta_RagSoc|Falegnameria Prova|Courier New|14|-1|84|3
Ditta_Indirizzo|Ditta_Indirizzo|Viottolo Corto, 3|Arial|10|0|84|10
Doc_Numero|Numero_mio|77-bis|Arial|12|-1|10|44
Doc_Data|Doc_Data|22/11/2026|Times New Roman|11|-1|42|44
Cli_RagSoc|Cli_RagSoc|Sartoria Ago e Filo|Arial|14|-1|112|39
Cli_Indirizzo|Cli_Indirizzo|Piazzetta Tonda, 9|Times New Roman|12|0|112|49
Pagamento|Pagamento_mio|Bonifico anticipato|Arial|10|0|12|71
R_Descr|R_Descr|Tavolo di noce|Arial|11|0|36|$compitoInizioRighe
R_Importo|R_Importo|1.234,56|Courier New|10|0|166|$compitoInizioRighe
|Nota_mia|Consegna al piano|Arial|13|-1|40|140"

NuovaFoto() { # what
  compitoFoto=$((${compitoFoto:-0} + 1))
  Foto "compito_$(printf %02d $compitoFoto)_$1"
}

# Into the box of the dialog that has the keys, or gets them by its letter: all of its text.
InCasella() { # text [key]
  [ -z "${2:-}" ] || Tasti "$2"
  Tasti ctrl+a
  Scrive "$1"
}

Pagina() { # number from 0: the keys go to its first control
  Editor && Tasti alt+p Tab Tab Left Left Left Left Left || return 1 # over the help icon to the tabs
  for ((i = 0; i < $1; i++)); do Tasti Right; done
  Tasti Tab
}

DaModelloTipo() {
  rm -f "$archivio/$compitoModello"
  AvviaProgramma
  SiApre '^Plakera - Modelli stampa' && NuovaFoto inizio && Tasti alt+n &&
    SiApre '^Nuovo modello di stampa$' && Tasti ctrl+a && Scrive "${compitoModello%.Mod}" && NuovaFoto nome &&
    Tasti Return && SiApre '^Plakera$' && NuovaFoto si_crea_adesso && Tasti Return &&
    SiApre "^Plakera: Modello $compitoModello" && sleep 2 && NuovaFoto modello_nuovo &&
    cmp "$archivio/TIFATTURA.mod" "$archivio/$compitoModello"
}

CampoNelDialogo() { # name text font size bold x y: into the open dialog
  InCasella "$1" alt+n
  InCasella "$2" alt+t
  Tasti alt+f
  Scrive "${3%% *}" # a blank would open the list
  sleep 1 # letters typed later begin another search in a list
  Tasti alt+i
  Scrive "$4"
  [ "$compitoGrassetto" = "$5" ] || Tasti alt+o
  InCasella "$6" alt+p
  Tasti Tab
  InCasella "$7"
}

Campo() { # a line of the table
  local era nome testo font dim grassetto x y posto
  IFS='|' read -r era nome testo font dim grassetto x y <<< "$1"
  Pagina 0 || return 1
  if [ -n "$era" ]; then
    # In the list fields stand in the file's order, 12 lines each after the first 51; the eighth is bold or not.
    read -r posto compitoGrassetto <<< "$(tr -d '\r' < "$archivio/TIFATTURA.mod" |
      awk -v nome="$era" 'NR > 51 && $0 == nome { da = NR } da && NR == da + 7 { print (da - 53) / 12 + 1, $0; exit }')"
    Tasti Home
    for ((i = 0; i < posto; i++)); do Tasti Down; done
    Tasti alt+m
  else
    compitoGrassetto=0
    Tasti alt+a
  fi
  SiApre '^Modifica impostazioni Campo$' &&
    CampoNelDialogo "$nome" "$testo" "$font" "$dim" "$grassetto" "$x" "$y" &&
    NuovaFoto "campo_$nome" && Tasti alt+c && SiApre '^Plakera: Modello'
}

DieciCampi() {
  local riga
  while IFS= read -r riga <&4; do
    Campo "$riga" || { echo "$riga"; return 1; }
  done 4<<< "$compitoCampi"
  sleep 1
  NuovaFoto dieci_campi
}

Cornice() { # name text kind-key x y width height border, which a label has none of
  Pagina 2 && Tasti alt+a && SiApre '^Modifica impostazioni Cornice' || return 1
  InCasella "$1" alt+n
  InCasella "di prova" alt+d
  InCasella "$2" alt+s
  Tasti "$3"
  InCasella "$4" alt+p
  Tasti Tab
  InCasella "$5"
  InCasella "$6" alt+g
  Tasti Tab
  InCasella "$7"
  [ -z "$8" ] || InCasella "$8" alt+r
  NuovaFoto "cornice_$1" && Tasti alt+c && SiApre '^Plakera: Modello'
}
CorniceEdEtichetta() {
  Cornice riquadro 'Timbro e firma' alt+o 40 150 50 20 1.5 && Cornice dicitura 'Dicitura fissa' alt+t 40 176 45 6 '' &&
    NuovaFoto cornice_ed_etichetta
}

# The logo: 40 x 20 mm of one colour, brought in from the user's folder. Its name is the first in the lists.
Logo() {
  convert -size 400x200 xc:'rgb(10,120,60)' -units PixelsPerInch -density 254 -quality 100 "$casaUtente/0logo.jpg"
  Pagina 3 && Tasti alt+a && SiApre '^Modifica impostazioni Immagine$' && Tasti alt+m && SiApre '^Sfoglia$' || return 1
  Tasti Tab space # from the folders to the files
  sleep 1
  NuovaFoto sfoglia
  Tasti Return
  SiApre '^caricamento immagine' && InCasella 100 && NuovaFoto riduzione && Tasti Return &&
    SiApre '^Modifica impostazioni Immagine$' || return 1
  InCasella 40 alt+p
  Tasti Tab
  InCasella 190
  sleep 1
  NuovaFoto immagine && Tasti alt+c && SiApre '^Plakera: Modello' && sleep 1 && NuovaFoto logo
  compitoLogo=$(cd "$archivio" && ls 0logo.*) && [ "$(identify -format '%wx%h' "$archivio/$compitoLogo")" = 400x200 ]
}

AreaRighe() {
  Pagina 1 || return 1
  InCasella $compitoInizioRighe
  Tasti Tab
  InCasella $compitoFineRighe
  Tasti alt+a && sleep 1 && NuovaFoto righe_simulate
  Tasti alt+a alt+c && sleep 1 && NuovaFoto righe
}

StampaDiProva() { StampaInCoda "compito_stampa" && cp "$(UltimoFoglio)" "$dove/compito.pdf"; }

# Where the font's own outlines put the ink of a word whose line begins at that place, in tenths of a
# mm; its letters follow each other by whole points there, which makes it a little wider or narrower.
DalCarattere() { # font size bold x y word
  local file=/usr/share/fonts/truetype/liberation/Liberation
  case $1 in
    Arial) file+=Sans ;;
    Times*) file+=Serif ;;
    Courier*) file+=Mono ;;
  esac
  [ "$3" = 0 ] && file+=-Regular.ttf || file+=-Bold.ttf
  convert -density 1016 -font "$file" -pointsize "$2" label:"$6" -colorspace gray -threshold 60% -format '%@' info: |
    awk -F'[x+]' -v x="$4" -v y="$5" '{ print $3 / 4 + x * 10, $4 / 4 + y * 10, $1 / 4, $2 / 4 }'
}
ParoleAlPosto() {
  local testo font dim grassetto x y parola atteso male=0
  pdftoppm -q -r 80 -png -singlefile "$dove/compito.pdf" "$dove/compito_foglio"
  while IFS='|' read -r _ _ testo font dim grassetto x y; do
    parola=${testo%% *}
    atteso=$(Spostato "$(DalCarattere "$font" "$dim" "$grassetto" "$x" "$y" "$parola")")
    echo "$parola:"
    # shellcheck disable=SC2046
    Dista "$(Inchiostro "$dove/compito.pdf" \
      $(awk '{ print $1 - 4, $2 - 4, $1 + $3 + 4, $2 + $4 + 4 }' <<< "$atteso"))" "$atteso" 2 || male=1
  done <<< "$compitoCampi
||Timbro|Arial|11|0|$((40 + 1))|150.4
||Dicitura|Arial|11|0|$((40 + 1))|176.4"
  return $male
}
FiguraAlPosto() {
  # Bars of half a millimetre stand inside the box at the top and the left, and beyond it at the right and below.
  Dista "$(Inchiostro "$dove/compito.pdf" 390 1520 990 1800)" "$(Spostato "400 1500 505 205")" &&
    Dista "$(Inchiostro "$dove/compito.pdf" 390 1880 990 2180 -fuzz 20% -fill white +opaque 'rgb(10,120,60)')" \
      "$(Spostato "400 1900 400 200")"
}

CompitoSalvato() {
  Editor && Tasti alt+v && SiApre '^Plakera$' && NuovaFoto salvare && Tasti alt+s &&
    SiApre '^Plakera: Modello' || return 1
  Attende 20 Contiene '^Dicitura fissa' "$archivio/$compitoModello" || return 1
  # A label is as large as its text, which depends on the printer: some 5 x 23 mm.
  local misure
  misure=$(tr -d '\r' < "$archivio/$compitoModello" |
    awk '$0 == "Dicitura fissa" { da = NR } da && (NR == da + 7 || NR == da + 8)')
  echo "label: $misure"
  awk 'NR == 1 && ($0 < 4 || $0 > 6) || NR == 2 && ($0 < 21 || $0 > 25) { exit 1 }' <<< "$misure" || return 1
  tr -d '\r' < "$archivio/TIFATTURA.mod" |
    LC_ALL=C awk -v tabella="$compitoCampi" -v inizio=$compitoInizioRighe -v fine=$compitoFineRighe \
      -v logo="$compitoLogo" -v misure="$misure" -f packaging/compito.awk | sed 's/$/\r/' > "$dove/atteso.Mod"
  cmp "$dove/atteso.Mod" "$archivio/$compitoModello" && cp "$archivio/$compitoModello" "$dove/salvato.Mod"
}
# The preview with no element in hand, and without the strip below the sheet, which tells of the last command.
FotoDelModello() { # picture
  Pagina 0 && sleep 1 &&
    import -window "$(xdotool search --onlyvisible --name '^Anteprima Plakera$' | tail -1)" png:- |
    convert png:- -gravity south -chop 0x40 +repage "$dove/$1.png"
}
CompitoChiuso() {
  FotoDelModello compito_anteprima_salvata && Tasti alt+F4 && SiApre '^Plakera - Modelli stampa' &&
    NuovaFoto di_nuovo_inizio && Tasti alt+F4 && Attende 30 ProgrammaFinito
}
CompitoRiaperto() {
  AvviaProgramma
  SiApre '^Plakera - Modelli stampa' && ScegliModello "$archivio" "$compitoModello" &&
    SiApre "^Plakera: Modello $compitoModello" && sleep 2 && NuovaFoto riaperto &&
    cmp "$dove/salvato.Mod" "$archivio/$compitoModello"
}
LoMostra() {
  FotoDelModello compito_anteprima_riaperta
  local diversi
  diversi=$(compare -metric AE "$dove/compito_anteprima_"{salvata,riaperta}.png null: 2>&1) || true
  echo "$diversi pixels differ"
  [ "$diversi" = 0 ]
}
SalvaDiNuovo() {
  local prima
  prima=$(stat -c %Y.%i "$archivio/$compitoModello")
  Editor && Tasti alt+v && SiApre '^Plakera$' && Tasti alt+s && SiApre '^Plakera: Modello' &&
    Attende 20 eval '[ "$(stat -c %Y.%i "$archivio/$compitoModello")" != '"$prima"' ]' &&
    cmp "$dove/salvato.Mod" "$archivio/$compitoModello" &&
    Editor && Tasti alt+F4 && SiApre '^Plakera - Modelli stampa' && Tasti alt+F4 && Attende 30 ProgrammaFinito
}

# Each step stands on the one before it.
Compito() {
  local prima=$falliti
  Passo() { [ $falliti -ne "$prima" ] || Verifica "compito: $1" "${@:2}"; }
  Passo "un modello nuovo dal modello tipo" DaModelloTipo
  Passo "dieci campi, uno nuovo e due di riga" DieciCampi
  Passo "una cornice con la sua scritta e un'etichetta" CorniceEdEtichetta
  Passo "il logo, importato da un'altra cartella" Logo
  Passo "l'area delle righe" AreaRighe
  Passo "stampa di prova sulla coda" StampaDiProva
  Passo "salvato, il file e' riga per riga quello atteso" CompitoSalvato
  Passo "campi e scritte al loro posto sul foglio stampato (0,1 mm)" ParoleAlPosto
  Passo "cornice e logo al loro posto sul foglio stampato (0,1 mm)" FiguraAlPosto
  Passo "chiuso, il programma finisce" CompitoChiuso
  Passo "riavviato e riaperto, il file e' byte per byte quello salvato" CompitoRiaperto
  Passo "l'anteprima e' punto per punto quella di prima" LoMostra
  Passo "salvato di nuovo, il file resta lo stesso; tutto si chiude" SalvaDiNuovo
}

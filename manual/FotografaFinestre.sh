#!/usr/bin/env bash
# Takes the manual's pictures from the running program, on an X server of its own.
#
# FotografaFinestre.sh [BUILD_FOLDER]   default: build/debug
#
# The print view needs a printer: run it as BUILD_FOLDER/tests/coda_di_stampa manual/FotografaFinestre.sh to have one;
# without, that picture is left as it is. Needs Xvfb, openbox, xdotool, ImageMagick and poppler-utils. The pictures go to BUILD_FOLDER/manuale/figure; the
# next build makes the manual with them.
set -euo pipefail
cd "$(dirname "$0")/.."
costruzione=$(realpath "${1:-build/debug}")
programma=$costruzione/bin/plakera
figure=$costruzione/manuale/figure
[ -x "$programma" ] || { echo "FotografaFinestre: $programma is not built" >&2; exit 1; }

# Folders of its own: neither the user's settings nor sample/ are touched, and a Plakera that the
# user has open does not count as a first instance. The name is seen in the pictures.
prova=$(mktemp -d /tmp/vastrel.XXX)
processi=()
finisce() {
  # The X server goes last, so that its clients do not complain.
  for ((i = ${#processi[@]} - 1; i >= 0; i--)); do
    kill "${processi[i]}" 2>/dev/null || true
    wait "${processi[i]}" 2>/dev/null || true
  done
  rm -rf "$prova"
}
trap finisce EXIT
mkdir -p "$figure" "$prova/stato" "$prova/impostazioni"
mkdir -m 700 "$prova/lucchetti"
export XDG_STATE_HOME=$prova/stato XDG_CONFIG_HOME=$prova/impostazioni
export XDG_RUNTIME_DIR=$prova/lucchetti LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY QT_SCALE_FACTOR
dati=$prova/Dati
cp -r sample "$dati"
# The scan's path is taken as typed, so it can only be known here.
sed -i "3s|.*|$dati/Contabilita/ini/ScansioneDDT.jpg\r|" "$dati/Contabilita/ini/DDT_prestampato.Mod"
# One with something to be found.
sed 's|^128/A\r|128/A della serie speciale\r|; s|^LogoCascinalta.gif|LogoNuovo.gif|' \
  "$dati/Contabilita/ini/Fattura_Rossi.Mod" > "$dati/Contabilita/ini/Prova_Controlli.Mod"

exec {numero}<> <(:)
# -noreset: else the server starts afresh when its first client leaves, before the program is there.
Xvfb -displayfd "$numero" -noreset -screen 0 1366x768x24 -dpi 96 >/dev/null 2>&1 &
processi+=($!)
read -r -t 20 -u "$numero" schermo
export DISPLAY=:$schermo
openbox --startup "touch $prova/openbox" >/dev/null 2>&1 &
processi+=($!)
# A window shown while the window manager starts may never be managed.
for _ in $(seq 100); do [ -e "$prova/openbox" ] && break; sleep 0.1; done

# Waits until the picture on the screen no longer changes.
quiete() {
  local prima='' dopo
  for _ in $(seq 60); do
    dopo=$(import -window root rgb:- | md5sum)
    [ "$dopo" = "$prima" ] && return
    prima=$dopo
    sleep 0.2
  done
}
# The id of the window with this title; the end of the script when it does not come. A search fails
# when any window goes away in the middle of it, so it is repeated.
finestra() {
  local w
  for _ in $(seq 150); do
    w=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -1) && [ -n "$w" ] &&
      { echo "$w"; return 0; }
    sleep 0.2
  done
  echo "FotografaFinestre: no window $1" >&2
  return 1
}
attiva() {
  local w
  w=$(finestra "$1")
  xdotool windowactivate --sync "$w" 2>/dev/null
  quiete
}
vede() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
# Closes a dialog and waits until it is gone.
annulla() {
  xdotool key Escape
  for _ in $(seq 50); do vede "$1" || break; sleep 0.1; done
  quiete
}
tasti() { xdotool key --delay 40 "$@"; quiete; }
scrive() { xdotool type --delay 40 "$1"; quiete; }
# The window with its frame, or the whole screen. A piece of the screen, not the window itself, for
# tooltips over it.
ritrae() {
  local w posto
  w=$(finestra "$2")
  quiete
  local x y larghezza altezza sinistra destra sopra sotto
  read -r x y larghezza altezza < <(xwininfo -id "$w" | awk '/Absolute.*X/ {x = $4}
    /Absolute.*Y/ {y = $4} /Width/ {l = $2} /Height/ {a = $2} END {print x, y, l, a}')
  IFS=', ' read -r sinistra destra sopra sotto < <(
    xprop -id "$w" _NET_FRAME_EXTENTS | sed 's/.*= //')
  posto=$((larghezza + sinistra + destra))x$((altezza + sopra + sotto))
  posto+=+$((x > sinistra ? x - sinistra : 0))+$((y > sopra ? y - sopra : 0))
  import -window root -crop "$posto" +repage "$figure/$1.png"
}
ritraeSchermo() { quiete; import -window root "$figure/$1.png"; }

zoom=1
# anteprima X Y: moves the pointer to a point of the sheet, in millimetres.
sulFoglio() {
  local w
  w=$(finestra '^Anteprima Plakera$')
  # The sheet starts right of and below the rulers, 26 and 25 pixels wide.
  xdotool mousemove --sync --window "$w" \
    "$(awk "BEGIN{print int(26 + $1 * 96 / 25.4 / $zoom)}")" \
    "$(awk "BEGIN{print int(25 + $2 * 96 / 25.4 / $zoom)}")"
  quiete
}
impostaZoom() {
  zoom=$1
  local w altezza
  w=$(finestra '^Anteprima Plakera$')
  altezza=$(xdotool getwindowgeometry --shell "$w" | sed -n 's/^HEIGHT=//p')
  xdotool mousemove --window "$w" 310 $((altezza - 10)) click --repeat 3 --delay 60 1
  scrive "$zoom"
}
apreModello() {
  attiva '^Plakera - Modelli'
  scrive "$1"
  xdotool key alt+a
  finestra '^Plakera: Modello' >/dev/null
  quiete
}
# pagina N: clicks the editor's page N, 0 to 5, in the middle of its caption.
schede=(326 415 543 655 747 864)
pagina() {
  local w
  w=$(finestra '^Plakera: Modello')
  xdotool mousemove --window "$w" $((schede[$1] - 2)) 20 click 1
  quiete
}
# Some pictures need a change; it is thrown away.
chiudeEditor() {
  attiva '^Plakera: Modello'
  xdotool key alt+F4
  for _ in $(seq 50); do
    vede '^Plakera - Modelli' && break
    if vede '^Plakera$'; then tasti n; fi
    sleep 0.1
  done
  quiete
}

"$programma" --dati "$dati" &
processi+=($!)

attiva '^Plakera - Modelli'
ritrae FinestraIniziale '^Plakera - Modelli'
xdotool key alt+n
ritrae NuovoModello '^Nuovo modello di stampa$'
annulla '^Nuovo modello di stampa$'

apreModello Fattura_R
ritraeSchermo FinestraLavoro
sulFoglio 145 46
xdotool click 3
ritrae ImpostazioniCampo '^Modifica impostazioni Campo$'
annulla '^Modifica impostazioni Campo$'
sulFoglio 60 62
xdotool click 3
ritrae ImpostazioniCornice '^Modifica impostazioni Cornice'
annulla '^Modifica impostazioni Cornice'
sulFoglio 50 8
xdotool click 3
ritrae ImpostazioniImmagine '^Modifica impostazioni Immagine$'
annulla '^Modifica impostazioni Immagine$'

impostaZoom 1.5
ritraeSchermo Copertina
pagina 1
tasti alt+a
ritraeSchermo PosizioneRighe
tasti alt+a
pagina 4
ritrae Spostamento '^Plakera: Modello'
tasti alt+o
finestra '^Correggi da griglia$' >/dev/null
for posto in 20 30 18 31; do
  scrive "$posto"
  tasti Tab
done
ritrae Correzione '^Correggi da griglia$'
annulla '^Correggi da griglia$'
impostaZoom 2
sulFoglio 30 42
sleep 2 # for the tooltip
ritrae Anteprima '^Anteprima Plakera$'
chiudeEditor

apreModello DDT
impostaZoom 1.5
pagina 5
ritraeSchermo ImmagineSfondo
# Two points on the upper line of the form, and how far they are from each other.
tasti alt+l
calibra=$(finestra "^Calibra l'immagine")
tasti alt+p
xdotool mousemove --sync --window "$calibra" 176 83 click 1
quiete
xdotool mousemove --sync --window "$calibra" 508 83 click 1
quiete
tasti alt+z
scrive 190
ritrae Calibra "^Calibra l'immagine"
annulla "^Calibra l'immagine"
if [ -n "${PLAKERA_FOGLI:-}" ]; then
  attiva '^Plakera: Modello'
  xdotool key ctrl+shift+p
  finestra '^Vedi stampa: ' >/dev/null
  tasti alt+l
  ritrae VediStampa '^Vedi stampa: '
  annulla '^Vedi stampa: '
fi
chiudeEditor

apreModello Prova_C
tasti F7
attiva '^Controlli del modello$'
tasti Down
ritraeSchermo Controlli
chiudeEditor

# The test print, without and with the names of the fields, side by side.
fattura=$dati/Contabilita/ini/Fattura_Rossi.Mod
"$programma" --modello "$fattura" --pdf "$prova/testi.pdf"
"$programma" --modello "$fattura" --pdf "$prova/nomi.pdf" --nomi
for f in testi nomi; do pdftoppm -r 110 -png -singlefile "$prova/$f.pdf" "$prova/$f"; done
convert "$prova/testi.png" "$prova/nomi.png" -bordercolor gray -border 2 \
  -bordercolor white -border 12 +append "$figure/StampaProva.png"

for f in FinestraIniziale NuovoModello FinestraLavoro ImpostazioniCampo ImpostazioniCornice \
         ImpostazioniImmagine Anteprima Copertina PosizioneRighe Spostamento Correzione ImmagineSfondo Calibra \
         Controlli StampaProva; do
  [ -s "$figure/$f.png" ] || { echo "FotografaFinestre: no $f" >&2; exit 1; }
done
echo "pictures in $figure"

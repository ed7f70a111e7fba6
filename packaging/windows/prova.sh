#!/usr/bin/env bash
# Tries the Windows release as a user meets it, under Wine on a screen of its own: installs it, calls it
# from the command line, works it with mouse and keys, prints through a queue of CUPS and measures the
# sheet, kills it, upgrades and removes it. Ends with a table and, where a check failed, with status 1.
#   prova.sh [INSTALLER]      as root or with sudo; pictures of the windows are left in build/windows/prova
set -euo pipefail
installazione=${1:+$(realpath -e "$1")}
cd "$(dirname "$0")/../.."
radice=$PWD
qui=$radice/packaging/windows
dove=$radice/build/windows/prova

if [ -z "${PLAKERA_FOGLI:-}" ]; then
  if [ -z "$installazione" ]; then
    installazione=$(find "$radice/build/windows/uscita" -name 'plakera-*-setup.exe' 2> /dev/null | sort -V | tail -1 || true)
    [ -n "$installazione" ] || { echo "prova.sh: no installer there: run packaging/windows/costruisci.sh first" >&2; exit 1; }
  fi
  # A print server wants it.
  [ "$(id -u)" -eq 0 ] || exec sudo "$qui/prova.sh" "$installazione"
  cmake/installa.sh windows-prova
  export LC_ALL=C.UTF-8
  rm -rf "$dove"
  mkdir -p "$dove/aiuti"
  for aiuto in SenzaDiritti Annota; do
    x86_64-w64-mingw32-g++-posix -std=c++20 -O2 -static -s -municode "$qui/$aiuto.cpp" -o "$dove/aiuti/$aiuto.exe"
  done
  # Alone on a screen and beside a print server of its own; the paper is A4.
  exec packaging/conCoda.sh xvfb-run -a -s '-screen 0 1920x1080x24 -dpi 96' \
    "$qui/prova.sh" "$installazione"
fi

versione=$(basename "$installazione" | sed 's/plakera-\(.*\)-setup.exe/\1/')
aiuti=$dove/aiuti
export WINEPREFIX=$dove/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=' WINEARCH=win64
export WINEPATH="Z:$aiuti" HOME=$dove/casa
mkdir -p "$HOME"
. "$radice/packaging/verifiche.sh"
. "$radice/packaging/compito.sh"
NessunPlakera() { ! wine tasklist 2> /dev/null | Contiene -i plakera.exe; }
Uccide() { wine taskkill /f /im plakera.exe > /dev/null 2>&1 || true; Attende 30 NessunPlakera; }

# ---------------------------------------------------------------- a computer with Windows
wineboot -i > /dev/null 2>&1
winecfg -v win10 > /dev/null 2>&1 # Wine 8.0 begins with a Windows that is too old
wineserver -w
# Metric-compatible fonts under the names by which models ask for them.
cp /usr/share/fonts/truetype/liberation/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
for coppia in 'Arial=Liberation Sans' 'Times New Roman=Liberation Serif' 'Courier New=Liberation Mono' \
  'Segoe UI=Liberation Sans' 'MS Shell Dlg 2=Liberation Sans' 'Tahoma=Liberation Sans'; do
  wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "${coppia%%=*}" /d "${coppia#*=}" /f > /dev/null
done
# As Windows does unless the user wants otherwise.
wine reg add 'HKCU\Control Panel\Desktop' /v FontSmoothing /d 2 /f > /dev/null
wine reg add 'HKCU\Control Panel\Desktop' /v FontSmoothingType /t REG_DWORD /d 2 /f > /dev/null
openbox &
gestore=$!
trap 'kill $gestore 2> /dev/null || true; wineserver -k 2> /dev/null || true' EXIT

# The data folder of the host application: on a drive of its own, with accents and blanks in its path.
dati="$dove/disco/Società di prova & figli/dati"
mkdir -p "$dati"
cp -r sample/. "$dati"
ln -sfn "$dove/disco" "$WINEPREFIX/dosdevices/k:"
datiWindows='K:\Società di prova & figli\dati'
modelli="$dati/Contabilita/ini"
modello="$datiWindows\\Contabilita\\ini\\Fattura_Rossi.Mod"
file="$modelli/Fattura_Rossi.Mod"

# ---------------------------------------------------------------- the installer
installazioneWindows=$(winepath -w "$installazione" 2> /dev/null)
. "$qui/provaInstallazione.sh"
InstallazioneConFinestre
InstallazioneSenzaFinestre

# ---------------------------------------------------------------- the command line
Chiama() { wine "$casa/plakera.com" "$@"; } # what a console calls as plakera
Esito() { # status text command...: an empty text is none at all
  local stato=0 testo
  testo=$("${@:3}" 2>&1) || stato=$?
  echo "status $stato: $testo"
  [ $stato -eq "$1" ] && if [ -n "$2" ]; then [[ $testo == *"$2"* ]]; else [ -z "$testo" ]; fi
}
Verifica "--help: esito 0, accenti interi" Esito 0 'Opzioni:' Chiama --help
Verifica "--version" Esito 0 'plakera ' Chiama --version
Verifica "opzione sconosciuta: esito 1" Esito 1 'plakera: ' Chiama --sconosciuta
Verifica "--controlla, cartella in regola: esito 0" Esito 0 '' Chiama --controlla "$datiWindows\\Contabilita"
Verifica "--controlla, modello che manca: esito 2" Esito 2 'manca.Mod' Chiama --controlla 'K:\manca.Mod'
cp "$file" "$dati/prova è.Mod"
Verifica "--controlla, immagini che mancano: esito 1" Esito 1 'prova è.Mod' Chiama --controlla "$datiWindows\\prova è.Mod"
rm "$dati/prova è.Mod"
InPdf() { Chiama --modello "$modello" --pdf "$datiWindows\\foglio è.pdf" && pdftotext -bbox "$dati/foglio è.pdf" - | Contiene '128/A'; }
Verifica "--pdf con accenti, spazi e &" InPdf
AlPosto() { # the document's number stands at 104 mm
  pdftotext -bbox "$dati/foglio è.pdf" - | sed -n 's/.*xMin="\([0-9.]*\)".*>128\/A<.*/\1/p' |
    awk '{ mm = $1 / 72 * 25.4; print mm; exit !(mm > 103.9 && mm < 104.1) }'
}
Verifica "testo del PDF al suo posto (0,1 mm)" AlPosto
Relativo() { (cd "$modelli" && Chiama --modello Fattura_Rossi.Mod --anteprima fuori.png) && file "$modelli/fuori.png" | Contiene PNG && rm "$modelli/fuori.png"; }
Verifica "--anteprima, percorsi relativi" Relativo
lungo=$(printf 'cartella_%.0s' {1..20})
mkdir -p "$dati/$lungo/$lungo"
cp "$file" "$dati/$lungo/$lungo/"
Lungo() { Chiama --modello "$datiWindows\\$lungo\\$lungo\\Fattura_Rossi.Mod" --pdf "$datiWindows\\$lungo\\$lungo\\f.pdf"; [ -s "$dati/$lungo/$lungo/f.pdf" ]; }
Verifica "percorsi di oltre 260 caratteri" Lungo
Riservato() { # a file as any other where the system takes the name, else said; and nothing else is left
  local prima stato=0
  prima=$(ls -A "$dove/disco")
  timeout 60 wine "$casa/plakera.com" --modello "$modello" --pdf 'K:\NUL.pdf' > "$dove/detto.txt" 2>&1 || stato=$?
  echo "status $stato: $(cat "$dove/detto.txt")"
  if [ $stato -eq 0 ]; then
    pdftotext "$dove/disco/NUL.pdf" - | Contiene '128/A' && rm "$dove/disco/NUL.pdf" || return 1
  else
    [ $stato -eq 1 ] && Contiene NUL.pdf "$dove/detto.txt" || return 1
  fi
  [ "$(ls -A "$dove/disco")" = "$prima" ]
}
Verifica "PDF con un nome riservato (NUL.pdf): scritto intero o rifiutato" Riservato
rm -rf "${dati:?}/$lungo" "$dati/foglio è.pdf"

# ---------------------------------------------------------------- the windows
Avvia() {
  wine "$casa/plakera.exe" > /dev/null 2>&1 &
  disown # its end is no news
}
SenzaImpostazione() {
  Avvia
  SiApre '^Plakera$' && Foto senza_impostazione && Tasti Return && Attende 30 NessunPlakera
}
Verifica "senza dirtxt: messaggio, e il programma finisce" SenzaImpostazione
Uccide
# As the host application's own language writes settings.
wine reg add 'HKCU\Software\VB and VBA Program Settings\vastrel\INI' /v dirtxt /d "$datiWindows" /f > /dev/null
ApreInizio() { Avvia; SiApre '^Plakera - Modelli stampa' && Foto inizio; }
Verifica "finestra iniziale dalla cartella del registro" ApreInizio
AiutoDallInizio() { # for PDFs there is a reader that writes down what it is given
  local lettore="$WINEPREFIX/drive_c/Lettore di prova/lettore.exe" atteso="$cartella\\XtHelpPdf\\zPlakera-XtHelp.pdf"
  mkdir -p "$(dirname "$lettore")"
  cp "$aiuti/Annota.exe" "$lettore"
  wine reg add 'HKLM\Software\Classes\.pdf' /ve /d Lettore.Prova /f > /dev/null
  wine reg add 'HKLM\Software\Classes\Lettore.Prova\shell\open\command' /ve \
    /d '"C:\Lettore di prova\lettore.exe" "%1"' /f > /dev/null
  Tasti F1
  Attende 30 test -s "$lettore.txt" || return 1
  echo "$(cat "$lettore.txt") should be $atteso"
  [ "$(cat "$lettore.txt")" = "$atteso" ] && SiApre '^Plakera - Modelli stampa'
}
Verifica "F1 nella finestra iniziale: il manuale installato" AiutoDallInizio
DueVolte() { Avvia; SiApre '^Plakera$' && Foto gia_in_esecuzione && Tasti Return && SiApre '^Plakera - Modelli'; }
Verifica "una sola istanza" DueVolte
ApreModello() { ScegliModello "$modelli" Fattura_Rossi.Mod && SiApre '^Plakera: Modello Fattura_Rossi' && sleep 2 && Foto modello; }
Verifica "apre un modello" ApreModello
Trascina() { # the field at 9, 79 mm, by 20 mm to the right
  local id x y
  id=$(xdotool search --name '^Anteprima Plakera$' | tail -1)
  xdotool windowactivate --sync "$id"
  x=$(xwininfo -id "$id" | sed -n 's/.*Absolute upper-left X: *//p')
  y=$(xwininfo -id "$id" | sed -n 's/.*Absolute upper-left Y: *//p')
  x=$((x + 25 + 9 * 960 / 254)) y=$((y + 25 + 79 * 960 / 254)) # past the rulers
  xdotool mousemove $((x + 30)) $((y + 8)); sleep 1
  xdotool mousemove $((x + 31)) $((y + 8)); sleep 1
  xdotool mousemove $((x + 2)) $((y + 2)) mousedown 1
  for ((passo = 1; passo <= 10; passo++)); do
    xdotool mousemove $((x + 2 + passo * 76 / 10)) $((y + 2)); sleep 0.1
  done
  xdotool mouseup 1
  sleep 1
  Foto trascinato
}
Salva() { Editor && Tasti alt+v && SiApre '^Plakera$' && Tasti alt+s && SiApre '^Plakera: Modello'; }
TrascinaESalva() {
  cp "$file" "$dove/prima.Mod"
  Trascina && Salva && Attende 20 bash -c "! cmp -s '$file' '$dove/prima.Mod'"
  diff <(tr -d '\r' < "$dove/prima.Mod") <(tr -d '\r' < "$file") || true
  [ "$(diff <(tr -d '\r' < "$dove/prima.Mod") <(tr -d '\r' < "$file") | grep -c '^>')" -eq 1 ] &&
    [ "$(tr -dc '\r' < "$file" | wc -c)" -eq "$(wc -l < "$file")" ]
}
Verifica "trascina un campo e salva: cambia solo la sua ascissa" TrascinaESalva
NienteResti() { ! ls -a "$modelli" | Contiene '^\.plakera-'; }
Verifica "nessun file temporaneo resta" NienteResti
Verifica "stampa sulla coda predefinita" StampaInCoda stampa
SullaCarta() { # the ink of its quarters, which the printer's margins move
  cp "$(UltimoFoglio)" "$dove/stampato.pdf"
  Chiama --modello "$modello" --pdf "$datiWindows\\atteso.pdf" || return 1
  local quarto
  for quarto in "0 0 1050 990" "1050 0 2058 990" "0 990 1050 1980" "1050 990 2058 1980"; do
    # shellcheck disable=SC2046,SC2086
    Dista "$(Inchiostro "$dove/stampato.pdf" $(SpostataParte "$quarto"))" \
      "$(Spostato "$(Inchiostro "$dati/atteso.pdf" $quarto)")" || return 1
  done
}
Verifica "il foglio stampato misura come il PDF (0,1 mm)" SullaCarta
Caduta() {
  xdotool windowactivate --sync "$(xdotool search --name '^Anteprima Plakera$' | tail -1)"
  Tasti Tab Right # an element is chosen and moved
  Attende 20 eval 'ls "$WINEPREFIX/drive_c/users/"*/AppData/Local/Plakera | grep -v lock' || return 1
  Uccide
  Avvia
  SiApre '^Plakera - Modelli stampa' && ApreModelloCopia
}
ApreModelloCopia() {
  ScegliModello "$modelli" Fattura_Rossi.Mod
  SiApre '^Plakera$' && Foto copia_offerta && Tasti alt+s && SiApre '^Plakera: Modello Fattura_Rossi'
}
Verifica "processo ucciso: la copia di recupero e' offerta" Caduta
SolaLettura() {
  wine attrib +r "$modello"
  cp "$file" "$dove/prima.Mod"
  Editor && Tasti alt+v && SiApre '^Plakera$' && Tasti alt+s && sleep 2 && SiApre '^Plakera$' &&
    Foto sola_lettura && Tasti Return && SiApre '^Plakera: Modello' && cmp "$file" "$dove/prima.Mod"
  local esito=$?
  wine attrib -r "$modello"
  return $esito
}
Verifica "attributo di sola lettura: detto, e il file resta" SolaLettura
Uccide

# ---------------------------------------------------------------- one whole task
SenzaCopie() { # no copy to be asked about
  find "$WINEPREFIX/drive_c/users" -path "*/AppData/Local/Plakera/*" -type f ! -name plakera.lock -delete
}
SenzaCopie
archivio=$modelli
casaUtente=$(ls -d "$WINEPREFIX/drive_c/users/"* | grep -v Public)
AvviaProgramma() { Avvia; }
ProgrammaFinito() { NessunPlakera; }
Compito
Uccide

# ---------------------------------------------------------------- what it looks like
Dialoghi() { # dpi: of the first field, frame and image
  local pagina nomi=(campo righe cornice immagine)
  for pagina in 0 2 3; do
    Pagina $pagina && Tasti Home Down alt+m && SiApre '^Modifica impostazioni' && sleep 1 &&
      Foto "${nomi[$pagina]}_$1" && Tasti Escape && SiApre '^Plakera: Modello' || return 1
  done
}
PagineInstallazione() { # dpi: given up on the last page before anything is written
  FinoAllaCartella "installa_$1" "$Spunta" && Avanti Escape && Foto "installa_$1_5_rinuncia" && Tasti Return &&
    Attende 30 NessunaFinestra
}
for dpi in 96 144; do
  wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d $dpi /f > /dev/null
  wineserver -w
  SenzaCopie
  Guarda() { Avvia; SiApre '^Plakera - Modelli' && sleep 1 && Foto "inizio_$dpi" && ApreModello && Foto "modello_$dpi"; }
  Verifica "le finestre a $dpi punti per pollice (foto da guardare)" Guarda
  Verifica "i tre dialoghi a $dpi punti per pollice (foto da guardare)" Dialoghi $dpi
  Uccide
  Verifica "le pagine dell'installazione a $dpi punti per pollice (foto da guardare)" PagineInstallazione $dpi
done

# ---------------------------------------------------------------- gone again
Rimozione

echo "$riusciti passed, $falliti failed"
[ $falliti -eq 0 ]

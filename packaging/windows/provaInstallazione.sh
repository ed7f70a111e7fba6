# The checks of the installer: with its windows, without them, and the removal. To be sourced by prova.sh after
# verifiche.sh, with the prefix ready; "installazione" is the installer, "aiuti" the folder with the helpers.
solita="$WINEPREFIX/drive_c/Program Files/Plakera"
casa="$WINEPREFIX/drive_c/Programmi di prova/Plakera è qui"
cartella='C:\Programmi di prova\Plakera è qui'
Voce='HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\Plakera'
Classi='HKLM\Software\Classes'

Registro() { wine reg query "$@" 2> /dev/null | tr -d '\r'; }
NelRegistroManca() { ! wine reg query "$@"; }
# From its own folder: a command line of Windows is wanted, so that /D= comes last and without quotes.
Installa() { (cd "$(dirname "$installazione")" && wine cmd /c "$(basename "$installazione") /S $*"); }
SenzaDiritti() { (cd "$(dirname "$installazione")" && wine "$aiuti/SenzaDiritti.exe" "$@"); }
ConEsito() { # status command...
  local stato=0
  "${@:2}" || stato=$?
  echo "status $stato, should be $1"
  [ $stato -eq "$1" ]
}
DiPlakera() { Registro "$Classi\\.mod" /ve | Contiene 'Plakera\.Modello' && Registro "$Classi\\Plakera.Modello\\shell\\open\\command" | Contiene plakera.exe; }
NonDiPlakera() { ! Registro "$Classi\\.mod" /s | Contiene Plakera && NelRegistroManca "$Classi\\Plakera.Modello"; }
DiAltro() { Registro "$Classi\\.mod" /ve | Contiene 'Altro\.Programma'; }
AltroInstallato() { # another program that opens .Mod files
  wine reg add "$Classi\\Altro.Programma\\shell\\open\\command" /ve /d 'altro.exe "%1"' /f > /dev/null
  wine reg add "$Classi\\.mod" /ve /d Altro.Programma /f > /dev/null
}
AltroTolto() { wine reg delete "$Classi\\Altro.Programma" /f > /dev/null; }
NienteSulDisco() { [ ! -e "$solita" ] && NelRegistroManca "$Voce" && NelRegistroManca 'HKLM\Software\Plakera'; }

Avanti() { # keys: until the screen has changed and stands still
  local prima ora poi
  prima=$(import -window root rgb:- | md5sum)
  Tasti "$@"
  Attende 60 eval '[ "$(import -window root rgb:- | md5sum)" != "$prima" ]' || return 1
  for ((i = 0; i < 60; i++)); do
    ora=$(import -window root rgb:- | md5sum)
    sleep 0.7
    poi=$(import -window root rgb:- | md5sum)
    [ "$ora" != "$poi" ] || return 0
  done
  return 1
}
# Up to the last page before anything is written.
FinoAllaCartella() { # what the pictures begin with, keys for the page with .Mod's tick, words for the installer
  NessunaFinestra || wine taskkill /f /im "$(basename "$installazione")" # of a check that failed
  wine "$installazione" "${@:3}" > /dev/null 2>&1 &
  disown
  # shellcheck disable=SC2086
  SiApre '^Installazione di Plakera' && sleep 2 && Foto "$1_1_benvenuto" && Avanti Return && Foto "$1_2_utenti" &&
    Avanti Return && if [ -n "$2" ]; then Avanti $2; fi && Foto "$1_3_componenti" && Avanti Return && Foto "$1_4_cartella"
}
Spunta='Down space'
QuanteFinestre() { xdotool search --onlyvisible --name '^(Installazione|Disinstallazione)' 2> /dev/null | wc -l; }
NessunaFinestra() { [ "$(QuanteFinestre)" -eq 0 ]; }

# ---------------------------------------------------------------- whom it refuses
WindowsVecchio() {
  local chiave="HKCU\\Software\\Wine\\AppDefaults\\$(basename "$installazione")" esito
  wine reg add "$chiave" /v Version /d win7 /f > /dev/null
  wine "$installazione" > /dev/null 2>&1 &
  disown
  SiApre '^Installazione di Plakera' && Foto rifiuta_windows && Tasti Return && Attende 30 NessunaFinestra &&
    ConEsito 3 Installa /AllUsers
  esito=$?
  wine reg delete "$chiave" /f > /dev/null
  [ $esito -eq 0 ] && NienteSulDisco
}
PerTuttiSenzaDiritti() {
  SenzaDiritti "$(basename "$installazione")" /AllUsers > /dev/null 2>&1 &
  disown
  SiApre '^Installazione di Plakera' && Foto rifiuta_diritti && Tasti Return && Attende 30 NessunaFinestra &&
    ConEsito 4 timeout 60 wine "$aiuti/SenzaDiritti.exe" "$installazioneWindows" /S /AllUsers && NienteSulDisco
}
SoloPerSeSenzaDiritti() {
  local sua
  ConEsito 0 SenzaDiritti "$(basename "$installazione")" /S && NienteSulDisco &&
    sua=$(ls -d "$WINEPREFIX/drive_c/users/"*/AppData/Local/Programs/Plakera) && [ -f "$sua/plakera.exe" ] &&
    wine "$sua/disinstalla.exe" /CurrentUser /S && Attende 60 test ! -e "$sua"
}

# ---------------------------------------------------------------- with its windows
ConFinestre() {
  FinoAllaCartella installa "$Spunta" && Avanti Return && Attende 60 test -f "$solita/disinstalla.exe" && sleep 2 &&
    Foto installa_5_fine && Tasti Return && Attende 30 NessunaFinestra && [ -f "$solita/plakera.exe" ] && DiPlakera
}
MentreGira() { # says so, can be given up, and goes on once the program is closed
  wine "$solita/plakera.exe" > /dev/null 2>&1 &
  disown
  SiApre '^Plakera$' && touch "$dove/prima" || return 1
  local fine
  for fine in rinuncia riprova; do
    FinoAllaCartella "aperto_$fine" "$Spunta" && Tasti Return && SiApre '^Installazione di Plakera' && sleep 3 &&
      Foto "aperto_${fine}_5_detto" || return 1
    if [ $fine = rinuncia ]; then
      Avanti Escape && Foto aperto_rinuncia_6_fine && [ ! "$solita/LEGGIMI.txt" -nt "$dove/prima" ] && DiPlakera ||
        return 1
    else
      Uccide && Avanti Return && sleep 2 && Foto aperto_riprova_6_fine || return 1
    fi
    Tasti Return && Attende 30 NessunaFinestra || return 1
  done
}
Chiede() { # pictures, key for the answer
  FinoAllaCartella "$1" '' /MOD=1 && Avanti Return && Foto "$1_5_chiede" && [ "$(QuanteFinestre)" -eq 2 ] &&
    Avanti "$2" && sleep 2 && Foto "$1_6_fine" && Tasti Return && Attende 30 NessunaFinestra
}
DettoNo() { # the answer that is proposed
  AltroInstallato
  Chiede altrui_no Return && DiAltro && NonDiPlakera
}
DopoIlNo() { # nobody has them any more, and nobody was asked
  wine reg delete "$Classi\\.mod" /f > /dev/null
  Installa /AllUsers && NonDiPlakera
}
DettoSi() {
  AltroInstallato
  Chiede altrui_si alt+y && DiPlakera && Registro 'HKLM\Software\Plakera' /v AltroProgramma | Contiene 'Altro\.Programma'
}
GiaNostri() { # what one user has for himself is no reason to ask whose those of all are
  wine reg add 'HKCU\Software\Classes\.mod' /ve /d Altro.Diverso /f > /dev/null
  FinoAllaCartella nostri '' && Avanti Return && sleep 2 && Foto nostri_5_fine && [ "$(QuanteFinestre)" -eq 1 ] &&
    Tasti Return && Attende 30 NessunaFinestra && DiPlakera &&
    Registro 'HKLM\Software\Plakera' /v AltroProgramma | Contiene 'Altro\.Programma'
  local esito=$?
  wine reg delete 'HKCU\Software\Classes\.mod' /f > /dev/null
  return $esito
}
AllaFineEsegue() { # by Explorer, whose place one takes that writes down what it is called with
  local esploratore="$WINEPREFIX/drive_c/windows/explorer.exe" esito
  mv "$esploratore" "$dove/explorer.exe"
  cp "$aiuti/Annota.exe" "$esploratore"
  FinoAllaCartella esegue '' && Avanti Return && sleep 2 && Avanti space && Foto esegue_5_fine && Tasti Return &&
    Attende 30 NessunaFinestra && Attende 30 test -s "$esploratore.txt" && cat "$esploratore.txt" &&
    [ "$(cat "$esploratore.txt")" = 'C:\Program Files\Plakera\plakera.exe' ] && NessunPlakera
  esito=$?
  rm -f "$esploratore.txt"
  mv "$dove/explorer.exe" "$esploratore"
  [ $esito -eq 0 ] || return 1
  wine 'C:\windows\explorer.exe' 'C:\Program Files\Plakera\plakera.exe' > /dev/null 2>&1 &
  disown
  SiApre '^Plakera$' && Uccide
}
ToltoConFinestre() {
  wine "$solita/disinstalla.exe" > /dev/null 2>&1 &
  disown
  SiApre '^Disinstallazione di Plakera' && sleep 2 && Foto disinstalla_1 && Avanti Return && sleep 2 && Foto disinstalla_2 &&
    Tasti Return && Attende 30 NessunaFinestra && Attende 30 eval '[ ! -e "$solita" ]' && DiAltro && NonDiPlakera
}
AltroTornatoVia() { # whom they were taken from is gone by then
  Chiede altrui_via alt+y && DiPlakera && AltroTolto && wine "$solita/disinstalla.exe" /AllUsers /S &&
    Attende 60 eval '[ ! -e "$solita" ]' && NelRegistroManca "$Classi\\.mod"
}

# ---------------------------------------------------------------- without windows
SiInstalla() {
  mkdir -p "$casa/licenze"
  echo mio > "$casa/mio.txt"
  echo mia > "$casa/licenze/mia.txt"
  Installa /AllUsers "/D=$cartella" && [ -f "$casa/plakera.exe" ] && [ -f "$casa/plakera.com" ] &&
    [ -f "$casa/XtHelpPdf/zPlakera-XtHelp.pdf" ] && grep -q Plakera "$casa/LEGGIMI.txt" &&
    [ "$(cat "$casa/mio.txt" "$casa/licenze/mia.txt")" = $'mio\nmia' ] && [ ! -e "$solita" ]
}
Licenze() { # of every part, and every text that another one names
  local nome mancano=
  for nome in LEGGIMI Plakera LGPL-3 GPL-3 GPL-2 Qt-GPL-exception-1.0 GCC-exception-3.1 GCC mingw-w64 Liberation; do
    [ -s "$casa/licenze/$nome.txt" ] || mancano+=" $nome"
  done
  for nome in $(grep -oh '/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]' "$casa/licenze/"* | sort -u) \
    $(grep -o '[A-Za-z0-9.-]*\.txt' "$casa/licenze/LEGGIMI.txt" | grep -v '^qt6-svg' | sort -u); do
    nome=${nome##*/}
    [ "${nome%.txt}" != NOME ] || continue # how the list calls any of them
    [ -s "$casa/licenze/${nome%.txt}.txt" ] || mancano+=" $nome"
  done
  echo "missing:$mancano"
  [ -z "$mancano" ] && ! grep -q '@' "$casa/LEGGIMI.txt"
}
SenzaAssociazione() { ! Registro "$Classi\\.mod" /s | Contiene Plakera; }
Aggiorna() { # over older files, among them a licence that is not packed any more
  local file nuovi="$dove/nuovi"
  rm -rf "$nuovi"
  cp -r "$casa" "$nuovi"
  for file in plakera.com LEGGIMI.txt licenze/Plakera.txt; do
    echo vecchio > "$casa/$file"
  done
  echo vecchia > "$casa/licenze/vecchia.txt"
  printf 'licenze\\%s\r\n' vecchia.txt '..\mio.txt' '../mio.txt' 'mia.tx?' '*' >> "$casa/installati.txt"
  Installa /AllUsers /MOD=1 && diff -r "$nuovi" "$casa" && [ ! -e "$solita" ] && DiPlakera
}
SenzaDirlo() { Installa /AllUsers && DiPlakera; }
Lasciati() { Installa /AllUsers /MOD=0 && NonDiPlakera && Installa /AllUsers && NonDiPlakera; }
ToglieSenzaDiritti() { # run where it stands, or it would end at once and go on elsewhere
  (cd "$casa" && ConEsito 4 timeout 60 wine cmd /c "SenzaDiritti disinstalla.exe /AllUsers /S _?=$cartella") &&
    [ -f "$casa/plakera.exe" ] && Registro "$Voce" | Contiene DisplayVersion
}
Risorse() {
  wrestool -l "$casa/plakera.exe" | Contiene 'type=16' &&
    wrestool --raw -x -t 24 "$casa/plakera.exe" | Contiene PerMonitorV2 &&
    wrestool --raw -x -t 24 "$casa/plakera.exe" | Contiene "name=\"Plakera\" version=\"$versione\\.0\""
}

# ---------------------------------------------------------------- gone again
Toglie() { # a copy of it goes on, when it has ended itself
  Installa /AllUsers /MOD=1 && DiPlakera && wine "$casa/disinstalla.exe" /AllUsers /S
  Attende 60 eval '[ "$(cd "$casa" && find . -type f | sort | paste -sd " ")" = "./licenze/mia.txt ./mio.txt" ]' &&
    NelRegistroManca "$Voce" && NelRegistroManca "$Classi\\.mod" && NelRegistroManca 'HKLM\Software\Plakera'
}
Altrui() {
  AltroInstallato
  Installa /AllUsers /MOD=1 && DiAltro && NonDiPlakera
}
PerUtente() {
  Installa /CurrentUser /MOD=1 && ls "$WINEPREFIX/drive_c/users/"*/AppData/Local/Programs/Plakera/plakera.exe &&
    NelRegistroManca 'HKCU\Software\Classes\.mod'
}

InstallazioneConFinestre() {
  Verifica "Windows troppo vecchio: detto, esito 3" WindowsVecchio
  Verifica "per tutti senza esserne amministratori: detto, esito 4 senza finestre" PerTuttiSenzaDiritti
  Verifica "per se' soli senza essere amministratori" SoloPerSeSenzaDiritti
  Verifica "installazione con le sue finestre, .Mod spuntati" ConFinestre
  Verifica "installazione mentre il programma e' aperto: detto; annulla, riprova" MentreGira
  Verifica "la spunta tolta in un aggiornamento: i .Mod non si aprono piu' con Plakera" NonDiPlakera
  Verifica "installazione con i .Mod di un altro programma: chiesto, No" DettoNo
  Verifica "dopo un No gli aggiornamenti non li prendono" DopoIlNo
  Verifica "installazione con i .Mod di un altro programma: chiesto, Si'" DettoSi
  Verifica "aggiornamento con i .Mod gia' nostri: non chiesto, si sa a chi renderli" GiaNostri
  Verifica "il programma si avvia dall'ultima pagina, attraverso Explorer" AllaFineEsegue
  Verifica "disinstallazione con le sue finestre, i .Mod tornano ad altri" ToltoConFinestre
  Verifica "disinstallazione dopo che l'altro programma e' sparito: .Mod di nessuno" AltroTornatoVia
}
InstallazioneSenzaFinestre() {
  Verifica "installazione per tutti, percorso con spazi e accenti, fra file dell'utente" SiInstalla
  Verifica "licenze di tutte le parti" Licenze
  Verifica "voce nel menu Start" test -f "$WINEPREFIX/drive_c/ProgramData/Microsoft/Windows/Start Menu/Programs/Plakera.lnk"
  Verifica "voce fra i programmi installati" grep -q DisplayVersion <(Registro "$Voce")
  Verifica "i file .Mod non sono presi senza richiesta" SenzaAssociazione
  Verifica "aggiornamento nella stessa cartella, .Mod a richiesta" Aggiorna
  Verifica "aggiornamento che non dice nulla dei .Mod: restano" SenzaDirlo
  Verifica "aggiornamento con /MOD=0: lasciati, e non ripresi dal seguente" Lasciati
  Verifica "disinstallazione per tutti senza esserne amministratori: esito 4" ToglieSenzaDiritti
  Verifica "versione, icona e manifesto nel programma" Risorse
}
Rimozione() {
  Verifica "disinstallazione: resta solo cio' che e' dell'utente" Toglie
  Verifica "i .Mod di un altro programma gli restano" Altrui
  Verifica "installazione per il solo utente" PerUtente
}

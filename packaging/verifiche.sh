# Checks that have names, the hands and eyes of whoever works a program on an X screen, and a ruler for the sheets that
# it prints. To be sourced by a script that has set "dove", a folder for logs and pictures.
riusciti=0 falliti=0
# From the corner of the sheet to the first point that the printer of the queue reaches, in tenths of a millimetre.
margineX=42.33 margineY=49.39

Verifica() { # name command...
  local nome=$1
  shift
  if "$@" > "$dove/ultima.log" 2>&1; then
    riusciti=$((riusciti + 1))
    echo "ok       $nome"
  else
    falliti=$((falliti + 1))
    echo "FALLITO  $nome"
    sed 's/^/         | /' "$dove/ultima.log" | head -12
    Foto "fallito_$falliti" || true
  fi
}

Attende() { # seconds command...: until the command succeeds
  local fine=$((SECONDS + $1))
  shift
  until "$@"; do
    [ $SECONDS -lt $fine ] || return 1
    sleep 0.2
  done
}

# Reads to the end, unlike grep -q: a program that writes into a closed pipe has failed.
Contiene() { grep "$@" > /dev/null; }

Finestra() { # title, as a regular expression: the active window has it
  [ -n "$(xdotool getactivewindow getwindowname 2> /dev/null | grep -E "$1")" ]
}
SiApre() { Attende 60 Finestra "$1"; }
Tasti() { xdotool key --clearmodifiers --delay 60 "$@"; }
Scrive() { xdotool type --clearmodifiers --delay 40 -- "$1"; } # what a keyboard of the USA has
Foto() { import -window root "$dove/$1.png"; }

Editor() {
  xdotool windowactivate --sync "$(xdotool search --onlyvisible --name '^Plakera: Modello' | tail -1)" &&
    SiApre '^Plakera: Modello'
}
# Opens the model of that file name from the start window. Its list is in the order of the names.
ScegliModello() { # folder name
  local posto
  posto=$(cd "$1" && ls | grep -i '\.mod$' | sort -f | grep -nx "$2" | cut -d: -f1)
  Tasti End Home
  for ((i = 1; i < posto; i++)); do Tasti Down; done
  Tasti alt+a
}
# Prints from the editor on the default queue, whose sheets arrive in $PLAKERA_FOGLI, and waits for the sheet.
StampaInCoda() { # picture
  local prima
  prima=$(ls "$PLAKERA_FOGLI" | wc -l)
  Editor && Tasti alt+t && SiApre '^Plakera$' && Foto "$1" && Tasti alt+n && SiApre '^Plakera: Modello' &&
    Attende 60 eval "[ \$(ls '$PLAKERA_FOGLI' | wc -l) -gt $prima ]" && Attende 60 eval '[ -z "$(lpstat -o)" ]'
}
UltimoFoglio() { ls -t "$PLAKERA_FOGLI"/* | head -1; }

# x y width height of what is dark in that part of a sheet, all in tenths of a mm; further words are for convert.
Inchiostro() { # pdf left top right bottom [word...]
  local x y l a # of points a fortieth of a millimetre
  read -r x y l a <<< "$(awk '{ for (i = 1; i <= 4; i++) $i = int($i * 4); print $1, $2, $3 - $1, $4 - $2 }' <<< "$2 $3 $4 $5")"
  # Ghostscript's bitmaps of letters have boxes that poppler finds fault with.
  pdftoppm -q -r 1016 -x "$x" -y "$y" -W "$l" -H "$a" -singlefile "$1" "$dove/parte"
  convert "$dove/parte.ppm" "${@:6}" -colorspace gray -threshold 60% -bordercolor white -border 1 -format '%@' info: |
    awk -F'[x+]' -v x="$x" -v y="$y" '{ print ($3 - 1 + x) / 4, ($4 - 1 + y) / 4, $1 / 4, $2 / 4 }'
}
Dista() { # found expected [width]: by no more than a tenth of a mm; in width, by that many
  echo "$1 should be $2"
  awk -v larghezza="${3:-1}" '
    { for (i = 1; i <= 4; i++) {
        d = $i - $(i + 4)
        if (NF != 8 || (d < 0 ? -d : d) > (i == 3 ? larghezza : 1)) { print "not there"; exit 1 }
      } }' <<< "$1 $2"
}
# What stands there on paper without margins stands so on the queue's.
Spostato() { # "x y width height"
  awk -v mx=$margineX -v my=$margineY '{ print $1 + mx, $2 + my, $3, $4 }' <<< "$1"
}
SpostataParte() { # "left top right bottom"
  awk -v mx=$margineX -v my=$margineY '{ print $1 + mx, $2 + my, $3 + mx, $4 + my }' <<< "$1"
}

#!/usr/bin/env bash
# provaScrivania.sh GENERATED_FOLDER [PROGRAM]: what desktops are told of the program is valid, and they
# know print models from tracker music; PROGRAM prints the type that Qt's desktops find for a file. Needs
# no network and no display, and touches nothing of the user's.
set -euo pipefail
generati=$(realpath "$1")
qt=${2:+$(realpath "$2")}
cd "$(dirname "$0")"
export LC_ALL=C.UTF-8
lavoro=$(mktemp -d)
trap 'rm -rf "$lavoro"' EXIT
falliti=0
fallisce() { echo "FAILED: $*" >&2; falliti=$((falliti + 1)); }

desktop-file-validate plakera.desktop || fallisce plakera.desktop
# Hints fail too.
[ -z "$(desktop-file-validate plakera.desktop)" ] || fallisce "hints on plakera.desktop"
appstreamcli validate --pedantic --no-net "$generati"/org.example.plakera.metainfo.xml ||
  fallisce "org.example.plakera.metainfo.xml"
for pagina in plakera.1 it/plakera.1; do
  avvisi=$(MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$generati/$pagina" 2>&1 >/dev/null)
  [ -z "$avvisi" ] || fallisce "$pagina: $avvisi"
done

# The types of the system with ours, in a folder that takes the place of all others.
mkdir -p "$lavoro/dati/mime/packages" "$lavoro/file"
cp /usr/share/mime/packages/freedesktop.org.xml plakera.xml "$lavoro/dati/mime/packages"
export XDG_DATA_HOME=$lavoro/dati XDG_DATA_DIRS=$lavoro/dati XDG_CURRENT_DESKTOP=GNOME
unset DISPLAY WAYLAND_DISPLAY
avvisi=$(update-mime-database "$lavoro/dati/mime" 2>&1)
[ -z "$avvisi" ] || fallisce "plakera.xml: $avvisi"

tipo() { # FILE TYPE
  local detto
  for chi in gio xdg-mime ${qt:+qt}; do
    case $chi in
      gio) detto=$(gio info -a standard::content-type "$1" | sed -n 's/.*standard::content-type: //p') ;;
      xdg-mime) detto=$(xdg-mime query filetype "$1") ;;
      qt) detto=$("$qt" "$1") ;;
    esac
    [ "$detto" = "$2" ] || fallisce "${1#"$lavoro/file/"}: $chi says $detto, not $2"
  done
}

# Tracker music has a title, instruments, an order of patterns and often a mark, all at fixed places.
musica() { # FILE TITLE INSTRUMENTS MARK
  {
    printf '%s' "$2"; head -c $((20 - ${#2})) /dev/zero
    for ((i = 1; i <= $3; i++)); do printf 'strumento %02d' "$i"; head -c 18 /dev/zero; done
    printf '\001\177'; head -c 128 /dev/zero
    printf '%s' "$4"; head -c 4096 /dev/zero
  } > "$lavoro/file/$1"
}
musica canzone.mod canzone 31 M.K.
musica Canzone.Mod canzone 31 M.K.
musica CANZONE8.MOD canzone 31 8CHN
musica vecchia.mod 'senza marca' 15 ''
# Nor is any other text with this extension a model.
printf 'set I;\r\nparam a {I};\r\n\r\nvar x;\r\n' > "$lavoro/file/problema.mod"
for file in canzone.mod Canzone.Mod CANZONE8.MOD vecchia.mod problema.mod; do
  tipo "$lavoro/file/$file" audio/x-mod
done

modello=application/x-plakera-modello
modelli=0
for file in ../sample/*/ini/*.[Mm][Oo][Dd]; do
  tipo "$file" $modello
  modelli=$((modelli + 1))
done
[ $modelli -ge 15 ] || fallisce "only $modelli sample models"
fattura=../sample/Contabilita/ini/Fattura_Rossi.Mod
for nome in fattura.mod FATTURA.MOD 'più di una.Mod' senza_estensione; do
  cp $fattura "$lavoro/file/$nome"
  tipo "$lavoro/file/$nome" $modello
done
# One without elements, and one with long texts before the numbers.
{ for ((i = 0; i < 7; i++)); do printf '\r\n'; done
  printf ' 0 \r\n 0 \r\n 0 \r\n 0 \r\n\r\n 0 \r\n'
  for ((i = 0; i < 38; i++)); do printf '\r\n'; done
  printf 'FINECAMPI\r\nFINECORNICI\r\nFINEIMMAGINI\r\n'; } > "$lavoro/file/vuoto.mod"
tipo "$lavoro/file/vuoto.mod" $modello
lungo=$(head -c 240 /dev/zero | tr '\0' x)
sed -e "1s/.*/$lungo\r/; 3s/.*/$lungo\r/; 12s/.*/$lungo\r/" $fattura > "$lavoro/file/lungo.mod"
tipo "$lavoro/file/lungo.mod" $modello

[ $falliti -eq 0 ] || exit 1
echo "desktop entry, catalogue entry, manual pages and types of $modelli models: all well"

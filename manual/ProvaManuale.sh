#!/usr/bin/env bash
# The manual is whole with and without pictures, and its table of contents names the right pages.
# ProvaManuale.sh CREA_MANUALE SORGENTE.html
set -euo pipefail
crea=$1 sorgente=$2
export QT_QPA_PLATFORM=offscreen
cartella=$(mktemp -d)
trap 'rm -rf "$cartella"' EXIT
fallisce() { echo "ProvaManuale: $*" >&2; exit 1; }

# contiene PDF TEXT [FIRST_PAGE LAST_PAGE]: whether the pages hold the text.
contiene() {
  pdftotext -layout ${3:+-f "$3" -l "$4"} "$1" "$cartella/testo"
  grep -qF -- "$2" "$cartella/testo"
}
immagini() { pdfimages -list "$1" | tail -n +3 | wc -l; }

# Prints "title<TAB>page" of every heading, as the table of contents names it.
indice() {
  pdftotext -layout -f 2 -l 3 "$1" - | tr -d '\f' | grep -v '^Plakera - Manuale' |
    sed -n 's/^ *\(.*[^ ]\)  \+\([0-9]\+\)$/\1\t\2/p'
}

controlla() {
  local pdf=$1 righe=0 titolo pagina titoli
  while IFS=$'\t' read -r titolo pagina; do
    contiene "$pdf" "$titolo" "$pagina" "$pagina" || fallisce "\"$titolo\" is not on page $pagina"
    righe=$((righe + 1))
  done < <(indice "$pdf")
  titoli=$(grep -c '<h[12][ >]' "$sorgente")
  [ "$righe" -eq "$titoli" ] || fallisce "$titoli headings, $righe in the table of contents"
  contiene "$pdf" 'Versione 9.8.7' 1 1 || fallisce "no version on the cover"
  # Headings that move to the next page must take nothing with them into nowhere.
  pdftotext "$pdf" "$cartella/testo"
  local parole_pdf parole_html
  parole_pdf=$(wc -w < "$cartella/testo")
  parole_html=$(sed -n '/<body>/,$p' "$sorgente" | sed 's/<[^>]*>/ /g' | wc -w)
  [ "$parole_pdf" -gt "$((parole_html * 95 / 100))" ] ||
    fallisce "$parole_html words written, $parole_pdf printed"
}

mkdir "$cartella/vuota" "$cartella/figure"
"$crea" "$sorgente" "$cartella/vuota" 9.8.7 "$cartella/senza.pdf"
controlla "$cartella/senza.pdf"
! contiene "$cartella/senza.pdf" 'Il nome del nuovo modello.' || fallisce "a caption, no picture"
[ "$(immagini "$cartella/senza.pdf")" -eq 0 ] || fallisce "a missing picture leaves a mark"

# A PNG of 1 x 1 stands for a picture of the program.
base64 -d > "$cartella/figure/NuovoModello.png" <<< \
  iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5ErkJggg==
"$crea" "$sorgente" "$cartella/figure" 9.8.7 "$cartella/con.pdf"
controlla "$cartella/con.pdf"
contiene "$cartella/con.pdf" 'Il nome del nuovo modello.' || fallisce "no caption"
[ "$(immagini "$cartella/con.pdf")" -ge 1 ] || fallisce "no picture"

! "$crea" "$cartella/nessuno.html" "$cartella" 1 "$cartella/x.pdf" 2>/dev/null ||
  fallisce "a missing source is no failure"
! "$crea" "$sorgente" "$cartella" 1 /proc/nessuna/x.pdf 2>/dev/null ||
  fallisce "a PDF that cannot be written is no failure"

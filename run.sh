#!/usr/bin/env bash
# Installs what is missing, builds, and opens the sample archive. Without a display it prints the
# sample invoice to a PDF and a picture of the preview.
set -euo pipefail
cd "$(dirname "$0")"
cmake/installa.sh build
cmake --preset release >/dev/null
cmake --build --preset release --target plakera manuale_pdf

# A data folder and a settings folder of its own: neither the user's settings nor sample/ are touched.
prova=$PWD/build/prova
mkdir -p "$prova/impostazioni" "$prova/stato"
[ -d "$prova/dati" ] || cp -r sample "$prova/dati"
printf '[INI]\ndirtxt=%s\n' "$prova/dati" > "$prova/impostazioni/vastrel.ini"
export XDG_CONFIG_HOME=$prova/impostazioni XDG_STATE_HOME=$prova/stato
programma=build/release/bin/plakera

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$programma"
fi
modello=$prova/dati/Contabilita/ini/Fattura_Rossi.Mod
"$programma" --modello "$modello" --pdf "$prova/Fattura.pdf" --anteprima "$prova/Fattura.png"
echo "No display: the sample invoice was printed to"
echo "  $prova/Fattura.pdf"
echo "and its preview saved to"
echo "  $prova/Fattura.png"

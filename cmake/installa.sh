#!/usr/bin/env bash
# Installs the missing Debian packages of the given groups (see pacchetti.txt): installa.sh build test
set -euo pipefail
elenco=$(dirname "$0")/pacchetti.txt
mancanti=()
for gruppo in "$@"; do
  for pacchetto in $(sed -n "s/^$gruppo: //p" "$elenco"); do
    dpkg-query -W -f='${Status}' "$pacchetto" 2>/dev/null | grep -q 'ok installed' || mancanti+=("$pacchetto")
  done
done
[ ${#mancanti[@]} -eq 0 ] && exit 0
echo "installing: ${mancanti[*]}"
radice=()
[ "$(id -u)" -eq 0 ] || radice=(sudo)
"${radice[@]}" apt-get update -qq
"${radice[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${mancanti[@]}" >/dev/null

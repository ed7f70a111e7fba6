#!/usr/bin/env bash
# The Windows release in one command, on Debian 12: installs what is missing, builds Qt once (qt.sh), the
# program with its manual, and the installer. Everything that is handed out lands in build/windows/uscita.
# PLAKERA_QT_WINDOWS: a Qt for Windows built otherwise, to be linked instead; PLAKERA_MANUALE: the manual,
# where it has been made already; PLAKERA_PROVVISORIA=1: a build for trying, of sources not committed yet.
set -euo pipefail
cd "$(dirname "$0")/../.."
qui=packaging/windows
# The folder may be another user's; no lasting trust is asked for.
Git() { git -c safe.directory="$PWD" "$@"; }
# The sources that are handed out are those of the program beside them.
if [ -e .git ]; then
  cambiati=$(Git status --porcelain)
  if [ -n "$cambiati" ] && [ -z "${PLAKERA_PROVVISORIA:-}" ]; then
    printf '%s\n' "costruisci.sh: these are not committed, so the sources handed out would not be the program's:" \
      "$cambiati" "commit them, or set PLAKERA_PROVVISORIA=1 for a build that is not handed out" >&2
    exit 1
  fi
fi
cmake/installa.sh build windows
if [ -z "${PLAKERA_QT_WINDOWS:-}" ]; then
  PLAKERA_QT_WINDOWS=$($qui/qt.sh)
fi
PLAKERA_QT_WINDOWS=$(realpath "$PLAKERA_QT_WINDOWS")
# Debian's, as qt.sh builds it, or one about which nothing is known.
diDebian=
[ ! -f "$PLAKERA_QT_WINDOWS/fatto/qt6-base" ] || diDebian=1
versione=$(sed -n 's/^project(Plakera VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)

# The manual, and nothing else, is made by programs of this computer.
if [ -z "${PLAKERA_MANUALE:-}" ]; then
  cmake --preset release > /dev/null
  cmake --build --preset release --target manuale_pdf
  PLAKERA_MANUALE=$PWD/build/release/bin/XtHelpPdf/zPlakera-XtHelp.pdf
fi

costruzione=build/windows
# Afresh, or CMake would go on with the Qt that it found the last time.
cmake --fresh -S . -B $costruzione -G Ninja -DCMAKE_TOOLCHAIN_FILE="$PWD/$qui/programma.cmake" \
  -DQT_WINDOWS="$PLAKERA_QT_WINDOWS" -DCMAKE_PREFIX_PATH="$PLAKERA_QT_WINDOWS" \
  -DCMAKE_BUILD_TYPE=Release -DPLAKERA_TESTS=OFF -DPLAKERA_UNITY=ON \
  -DPLAKERA_MANUALE="$PLAKERA_MANUALE" > /dev/null
cmake --build $costruzione --target plakera plakera_console
programma=$PWD/$costruzione/programma
rm -rf "$programma"
cmake --install $costruzione --strip --prefix "$programma" > /dev/null

# A library of the compiler's or of Qt's would not be there.
estranee=$(for file in "$programma"/plakera.exe "$programma"/plakera.com; do
  x86_64-w64-mingw32-objdump -p "$file" | sed -n 's/.*DLL Name: //p'
done | sort -u | while read -r libreria; do
  find /usr/x86_64-w64-mingw32 /usr/lib/gcc/x86_64-w64-mingw32 "$PLAKERA_QT_WINDOWS" -iname "$libreria" -print -quit
done)
if [ -n "$estranee" ]; then
  echo "the program needs libraries that Windows lacks:" $estranee >&2
  exit 1
fi

uscita=$PWD/$costruzione/uscita
licenze=$programma/licenze
rm -rf "$uscita"
mkdir -p "$uscita" "$licenze"

# The sources of Qt, which its licence asks for.
pacchetti=
if [ -n "$diDebian" ]; then
  if sorgentiQt=$($qui/qt.sh --sorgenti) && [[ $sorgentiQt == "$PLAKERA_QT_WINDOWS"/* ]]; then
    cp "$sorgentiQt"/*/* "$uscita/"
    pacchetti=$(sed -n 's/^Source: //p; s/^Version: //p' "$sorgentiQt"/*/*.dsc | paste -sd '=,' | sed 's/,/, /g')
  else
    echo "costruisci.sh: the sources of Qt cannot be had now: they are not in $uscita, and must be before it is handed out" >&2
    [ -n "${PLAKERA_PROVVISORIA:-}" ] || exit 1
    pacchetti=$(dpkg-query -W -f='${source:Package}=${source:Version}' qt6-base-dev)
  fi
fi

# The licences of all that the program is made of: the tree's, Qt's own, and what Debian has gathered of the
# sources, Qt's own parts of others among them.
cp LICENSE "$licenze/Plakera.txt"
for nome in GPL-2 GPL-3 LGPL-3 GCC-exception-3.1 Qt-GPL-exception-1.0 Liberation; do
  cp licenze/$nome.txt "$licenze/"
done
if [ -d "$PLAKERA_QT_WINDOWS/licenze" ]; then
  find "$PLAKERA_QT_WINDOWS/licenze" -name '*.txt' ! -name 'LicenseRef-*' -exec cp -n -t "$licenze" {} +
fi
Raccoglie() { # name file...: the first of the files that is there
  local file
  for file in "${@:2}"; do
    [ -f "$file" ] || continue
    cp -L "$file" "$licenze/$1.txt"
    return
  done
  echo "costruisci.sh: no licences of $1" >&2
  return 1
}
if [ -n "$diDebian" ]; then
  while read -r modulo pacchetto; do
    [ ! -f "$PLAKERA_QT_WINDOWS/fatto/$modulo" ] ||
      Raccoglie "$modulo" "$PLAKERA_QT_WINDOWS/licenze/$modulo.copyright" "/usr/share/doc/$pacchetto/copyright"
  done << FINE
qt6-base qt6-base-dev
qt6-imageformats qt6-image-formats-plugins
qt6-svg libqt6svg6
FINE
fi
Raccoglie mingw-w64 /usr/share/doc/mingw-w64-x86-64-dev/copyright
Raccoglie GCC /usr/share/doc/g++-mingw-w64-x86-64-posix/copyright
# Those texts name others by their place on a Debian.
grep -oh '/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]' "$licenze"/* | sort -u | while read -r testo; do
  [ -f "$licenze/${testo##*/}.txt" ] || cp -L "$testo" "$licenze/${testo##*/}.txt"
done

# Line ends and letters that every editor of Windows shows.
Scrive() { # template file
  sed -e "$([ -n "$diDebian" ] && echo 's/^@DEBIAN@ \?//; /^@ALTRO@/d' || echo 's/^@ALTRO@ \?//; /^@DEBIAN@/d')" \
    -e "s/@VERSIONE@/$versione/g" -e "s/@PACCHETTI_QT@/$pacchetti/g" -e 's/$/\r/' "$1" > "$2"
}
Scrive $qui/LEGGIMI.txt.in "$programma/LEGGIMI.txt"
Scrive $qui/licenze.txt.in "$licenze/LEGGIMI.txt"

# What the installer brings, for the version after it and for the uninstaller.
elenco=$programma/installati.txt toglie=$PWD/$costruzione/toglie.nsh
touch "$elenco"
(cd "$programma" && find . -type f | sed 's,^\./,,; s,/,\\,g' | sort) | sed 's/$/\r/' > "$costruzione/installati.txt"
mv "$costruzione/installati.txt" "$elenco"
{
  tr -d '\r' < "$elenco" | sed 's/.*/Delete "$INSTDIR\\&"/'
  (cd "$programma" && find . -depth -mindepth 1 -type d | sed 's,^\./,,; s,/,\\,g; s/.*/RMDir "$INSTDIR\\&"/')
} > "$toglie"

risorse=$PWD/$costruzione/packaging/windows/risorse
convert -size 164x314 gradient:'#ffffff-#dfe5f0' "$risorse/plakera_64.png" -gravity north -geometry +0+70 -composite \
  "BMP3:$risorse/fianco.bmp"
makensis -V2 -INPUTCHARSET UTF8 -DVERSIONE="$versione" -DPROGRAMMA="$programma" -DTOGLIE="$toglie" \
  -DICONA="$risorse/plakera.ico" -DFIANCO="$risorse/fianco.bmp" \
  -DUSCITA="$uscita/plakera-$versione-setup.exe" $qui/plakera.nsi
# The program's own sources, which that licence asks for too, so that it can be linked with another Qt.
sorgenti=$uscita/plakera-$versione-sorgenti.tar.xz
if [ -e .git ]; then
  Git archive --format=tar --prefix="plakera-$versione/" HEAD | xz -T0 > "$sorgenti"
else
  tar --exclude=./build --exclude=./.git --transform "s,^\.,plakera-$versione," -cJf "$sorgenti" .
fi
(cd "$uscita" && sha256sum ./* > SHA256SUMS)
ls -l "$uscita"

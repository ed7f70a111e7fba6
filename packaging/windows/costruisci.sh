#!/usr/bin/env bash
# The Windows release in one command, on Debian 12: installs what is missing, builds Qt once (qt.sh), the
# program with its manual, and the installer. Everything that is handed out lands in build/windows/uscita.
# PLAKERA_QT_WINDOWS: a Qt for Windows built otherwise, to be linked instead; PLAKERA_MANUALE: the manual,
# where it has been made already.
set -euo pipefail
cd "$(dirname "$0")/../.."
cmake/installa.sh build windows
qui=packaging/windows
if [ -z "${PLAKERA_QT_WINDOWS:-}" ]; then
  PLAKERA_QT_WINDOWS=$($qui/qt.sh)
fi
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
licenze=$PWD/$costruzione/licenze
rm -rf "$uscita" "$licenze"
mkdir -p "$uscita" "$licenze"
cp "$PLAKERA_QT_WINDOWS"/licenze/* "$licenze/"
for licenza in LICENSE LICENSE.txt COPYING; do
  [ ! -f $licenza ] || cp $licenza "$licenze/Plakera.txt"
done
cp -L /usr/share/doc/g++-mingw-w64-x86-64-posix/copyright "$licenze/GCC.txt"
pacchetto=$(dpkg-query -W -f='${source:Package}=${source:Version}' qt6-base-dev)
qt=${pacchetto#*=}
# Line ends and letters that every editor of Windows shows.
sed -e "s/@VERSIONE@/$versione/g" -e "s/@QT@/${qt%%[+-]*}/g" -e "s/@PACCHETTO_QT@/$pacchetto/g" \
  -e 's/$/\r/' $qui/LEGGIMI.txt.in > "$costruzione/LEGGIMI.txt"

risorse=$PWD/$costruzione/packaging/windows/risorse
convert -size 164x314 gradient:'#ffffff-#dfe5f0' "$risorse/plakera_64.png" -gravity north -geometry +0+70 -composite \
  "BMP3:$risorse/fianco.bmp"
makensis -V2 -INPUTCHARSET UTF8 -DVERSIONE="$versione" -DPROGRAMMA="$programma" -DLICENZE="$licenze" \
  -DCARTELLA="$PWD/$costruzione" -DICONA="$risorse/plakera.ico" -DFIANCO="$risorse/fianco.bmp" \
  -DUSCITA="$uscita/plakera-$versione-setup.exe" $qui/plakera.nsi
# What the licence of Qt asks to be handed out beside it.
if git rev-parse --is-inside-work-tree > /dev/null 2>&1; then
  git archive --format=tar --prefix="plakera-$versione/" HEAD | xz -T0 > "$uscita/plakera-$versione-sorgenti.tar.xz"
else
  tar --exclude=./build --transform "s,^\.,plakera-$versione," -cJf "$uscita/plakera-$versione-sorgenti.tar.xz" .
fi
(cd "$uscita" && sha256sum ./* > SHA256SUMS)
ls -l "$uscita"

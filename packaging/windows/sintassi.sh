#!/usr/bin/env bash
# Keeps src/ fit for Windows: compiles it where Qt for Windows has been built (qt.sh), else checks its
# syntax with the cross compiler against the headers of this computer's Qt. For every change; the
# whole release is made by costruisci.sh.
set -euo pipefail
cd "$(dirname "$0")/../.."
cmake/installa.sh build windows
qui=packaging/windows

if qt=$($qui/qt.sh --cartella); then
  echo "compiling for Windows against $qt"
  lancia=()
  ! command -v ccache > /dev/null || lancia=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  # Afresh, or CMake would go on with the Qt that it found the last time.
  cmake --fresh -S . -B build/windows-ci -G Ninja -DCMAKE_TOOLCHAIN_FILE="$PWD/$qui/programma.cmake" \
    -DQT_WINDOWS="$qt" -DCMAKE_PREFIX_PATH="$qt" -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DPLAKERA_TESTS=OFF -DPLAKERA_UNITY=ON \
    -DPLAKERA_WERROR=ON "${lancia[@]}" > /dev/null
  cmake --build build/windows-ci --target plakera plakera_console
  exit
fi

echo "Qt for Windows is not there ($qt): checking the syntax alone"
dove=$PWD/build/windows-sintassi
mkdir -p "$dove"
inclusioni=$(dirname "$(dirname "$(dpkg -L qt6-base-dev | grep '/QtCore/QObject$')")")
uic=$(dpkg -L qt6-base-dev-tools | grep '/libexec/uic$')
for finestra in src/*/*.ui; do
  "$uic" "$finestra" -o "$dove/ui_$(basename "$finestra" .ui).h"
done
# Headers of a Qt in libraries say so of functions that they then bring themselves: not ours to mend.
comando=(x86_64-w64-mingw32-g++-posix -std=c++20 -Wall -Wextra -Wshadow -Wnon-virtual-dtor
  -Woverloaded-virtual -Werror -Wno-attributes
  -DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII -DQT_NO_FOREACH '-DPLAKERA_VERSIONE="0"'
  -Isrc "-I$dove" -isystem "$inclusioni")
for modulo in Core Gui Widgets PrintSupport; do
  comando+=(-isystem "$inclusioni/Qt$modulo")
done
# What most sources include, read once.
grep -hoE '^#include <Q[A-Za-z]+>' src/*.cpp src/*/*.cpp src/*/*.h | sort | uniq -c |
  awk '$1 > 4 { print $2, $3 }' > "$dove/comuni.nuovo"
if ! cmp -s "$dove/comuni.nuovo" "$dove/comuni.h" || [ ! -f "$dove/comuni.h.gch" ]; then
  mv "$dove/comuni.nuovo" "$dove/comuni.h"
  "${comando[@]}" -x c++-header "$dove/comuni.h" -o "$dove/comuni.h.gch"
fi
sorgenti=()
for sorgente in src/*.cpp src/*/*.cpp; do
  [[ $sorgente == *_Unix.cpp ]] || sorgenti+=("$sorgente")
done
printf '%s\n' "${sorgenti[@]}" |
  xargs -P "$(nproc)" -n 1 "${comando[@]}" -include "$dove/comuni.h" -fsyntax-only
x86_64-w64-mingw32-g++-posix -std=c++20 -Wall -Wextra -Wshadow -Werror -fsyntax-only $qui/Console.cpp
echo "${#sorgenti[@]} sources pass"

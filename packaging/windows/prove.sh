#!/usr/bin/env bash
# The tests as programs of Windows: builds them against the kept Qt, runs them by ctest through Wine, on a
# screen of their own, and says what failed. Ends with 1 where something did that wine.txt does not name.
#   prove.sh [OPTIONS OF CTEST]      prove.sh -R tst_Sostituisce; without any all tests are built and run
# PLAKERA_QT_WINDOWS: a Qt for Windows built otherwise, to be linked instead.
set -euo pipefail
cd "$(dirname "$0")/../.."
qui=$PWD/packaging/windows
dove=$PWD/build/windows-prove

if [ -z "${PLAKERA_SCHERMO_DI_WINE:-}" ]; then
  cmake/installa.sh build test windows windows-prova
  if [ -z "${PLAKERA_QT_WINDOWS:-}" ]; then
    PLAKERA_QT_WINDOWS=$("$qui/qt.sh")
  fi
  # Stripped: each program has Qt in it.
  # Afresh, or CMake would go on with the Qt that it found the last time.
  cmake --fresh -S . -B "$dove" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$qui/programma.cmake" -DQT_WINDOWS="$PLAKERA_QT_WINDOWS" \
    -DCMAKE_PREFIX_PATH="$PLAKERA_QT_WINDOWS" -DCMAKE_BUILD_TYPE=Release -DPLAKERA_UNITY=ON \
    -DCMAKE_EXE_LINKER_FLAGS_RELEASE=-s > /dev/null
  if [ $# -eq 0 ]; then
    cmake --build "$dove" --target tests/all
  else
    programmi=$(ctest --test-dir "$dove" -N "$@" | sed -n 's/^ *Test *#[0-9]*: //p')
    cmake --build "$dove" --target $programmi
  fi
  # The host's poppler, by which tests read PDFs back.
  mkdir -p "$dove/ospiti"
  x86_64-w64-mingw32-g++-posix -std=c++20 -O2 -static -s -municode "$qui/ProgrammaOspite.cpp" -o "$dove/ospiti/ospite.exe"
  for programma in pdftotext pdffonts pdfimages pdftoppm; do
    cp "$dove/ospiti/ospite.exe" "$dove/ospiti/$programma.exe"
  done
  export PLAKERA_SCHERMO_DI_WINE=1
  exec xvfb-run -a -s '-screen 0 1920x1080x24 -dpi 96' "$qui/prove.sh" "$@"
fi

export WINEPREFIX=$dove/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=' WINEARCH=win64 WINEPATH="Z:$dove/ospiti"
# Wine hands variables of Qt's on to programs only under such names. Its own windows, not Qt's "offscreen", which
# knows none of the system's fonts.
export WINEQT_QPA_PLATFORM=windows WINEQT_FORCE_STDERR_LOGGING=1
# As many sequences of random work as fit into two minutes: all of them would not end within five.
export PLAKERA_SEQUENZE_SECONDI=${PLAKERA_SEQUENZE_SECONDI:-120}
if [ ! -d "$WINEPREFIX" ]; then
  wineboot -i > /dev/null 2>&1
  wineserver -w
  # Metric-compatible fonts under the names by which models ask for them.
  cp /usr/share/fonts/truetype/liberation/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
  for coppia in 'Arial=Liberation Sans' 'Times New Roman=Liberation Serif' 'Courier New=Liberation Mono' \
    'Segoe UI=Liberation Sans' 'MS Shell Dlg 2=Liberation Sans' 'Tahoma=Liberation Sans'; do
    wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "${coppia%%=*}" /d "${coppia#*=}" /f > /dev/null 2>&1
  done
  wine reg add 'HKCU\Control Panel\Desktop' /v FontSmoothing /d 2 /f > /dev/null 2>&1
fi

# Windows are active only under a window manager.
openbox > /dev/null 2>&1 &
gestore=$!
trap 'kill $gestore; wineserver -k || true' EXIT
diario=$dove/Testing/Temporary/LastTest.log
rm -f "$diario" # where ctest cannot start, the one before tells nothing of this run
ctest --test-dir "$dove" --timeout 300 "$@" > "$dove/ctest.log" 2>&1 || true

# A line for each program; then what failed, as wine.txt has it, with an asterisk for a program that did not
# end by itself.
tr -d '\r' < "$diario" | LC_ALL=C awk -v noti="$qui/wine.txt" -v falliti="$dove/falliti.txt" '
  BEGIN {
    while ((getline riga < noti) > 0) if (riga !~ /^#/ && split(riga, parola, " ") > 1) noto[parola[1] " " parola[2]] = 1
    printf "" > falliti
  }
  function Fallisce(che) {
    if (che in visto) return
    visto[che] = 1
    print che (che in noto ? "  # wine.txt" : "") > falliti
    if (!(che in noto)) nuovi++
  }
  / Testing: / { programma = $3; totali = ""; provati[programma] = 1 }
  /^(FAIL!|XPASS) / { nome = $0; sub(/^[^:]*: [^:]*::/, "", nome); sub(/\(.*/, "", nome); Fallisce(programma " " nome) }
  /^Totals: / { totali = $0; sub(/^Totals: /, "", totali) }
  /^Test time = / {
    tutti++
    if (totali == "") Fallisce(programma " *")
    printf "%-34s %8.1f s  %s\n", programma, $4, totali == "" ? "did not end by itself" : totali
  }
  # Nothing failed, and yet it ended with a status of its own: after its last line.
  /^Test Failed/ && totali ~ / 0 failed,/ { Fallisce(programma " *") }
  END {
    for (che in noto) {
      split(che, parola, " ")
      if (parola[1] in provati && !(che in visto)) print "passes now: " che
    }
    print nuovi + 0 " failures that wine.txt does not name"
    if (!tutti) print "no program was run"
    exit nuovi > 0 || !tutti
  }' && stato=0 || stato=$?
echo "--- failed:"
sort "$dove/falliti.txt"
exit $stato

#!/usr/bin/env bash
# Cross-builds Qt for Windows from Debian's own source packages into a folder that is kept outside the
# tree and used again until the recipe (qt.txt, mingw.cmake), Qt or the compiler changes.
#   qt.sh              builds what is missing; the folder is the last line on standard output
#   qt.sh --cartella   only names the folder; fails when Qt is not whole there
#   qt.sh --sorgenti   the source packages of what is built there, fetched where they are not kept; names their folder
# PLAKERA_CACHE: where it is kept (~/.cache/plakera); PLAKERA_LAVORI: how many compilers at a time.
set -euo pipefail
qui=$(cd "$(dirname "$0")" && pwd)
cache=${PLAKERA_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/plakera}

versione() { dpkg-query -W -f='${source:Version}' "$1" 2>/dev/null; }

qt=$(versione qt6-base-dev) && compilatore=$(versione g++-mingw-w64-x86-64-posix) || {
  echo "qt.sh: the packages of the group \"windows\" are missing" >&2
  exit 1
}
ricetta=$({ cat "$qui/qt.txt" "$qui/mingw.cmake"; echo "$qt $compilatore"; } | sha256sum | cut -c1-12)
cartella=$cache/qt-windows-$ricetta
if [ "${1-}" = --cartella ]; then
  echo "$cartella"
  [ -f "$cartella/fatto/qt6-base" ]
  exit
fi

lavoro=$cartella.lavoro
sorgenti=$cartella/sorgenti # handed out beside the program
mkdir -p "$cartella/fatto" "$lavoro"
exec 9> "$cartella/lucchetto"
flock 9 # another build of the same folder is waited for

# The sources of Debian as this system names its mirrors, without touching the system's own lists.
# What a mirror had the last time may be gone: asked anew by every run that needs it.
preparate=
PreparaSorgenti() {
  [ -z "$preparate" ] || return 0
  mkdir -p "$lavoro/fonti" "$lavoro/liste/partial"
  local file
  for file in /etc/apt/sources.list.d/*.sources; do
    [ -e "$file" ] || continue
    { sed -E 's/^Types:.*/Types: deb-src/' "$file"; echo; } > "$lavoro/fonti/$(basename "$file")"
  done
  for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [ -e "$file" ] || continue
    sed -nE 's/^deb(-src)? /deb-src /p' "$file" | sort -u > "$lavoro/fonti/$(basename "$file" .list)-src.list"
  done
  mkdir -p "$lavoro/cache/archives/partial"
  cat > "$lavoro/apt.conf" << FINE
Dir::Etc::sourcelist "/dev/null";
Dir::Etc::sourceparts "$lavoro/fonti";
Dir::State::lists "$lavoro/liste";
Dir::Cache "$lavoro/cache";
APT::Sandbox::User "";
APT::Update::Error-Mode "any";
FINE
  APT_CONFIG=$lavoro/apt.conf apt-get update -qq >&2 || return 1
  preparate=1
}

# The version that is installed here, or the archive's last one of the same Qt. Two mirrors may list the same.
VersioneDeiSorgenti() { # package
  local tutte
  tutte=$(APT_CONFIG=$lavoro/apt.conf apt-cache showsrc "$1" | sed -n 's/^Version: //p' | sort -uV) || return 1
  grep -Fx "$qt" <<< "$tutte" || grep "^${qt%%+*}" <<< "$tutte" | tail -1
}

# The source package, in $sorgenti/<package>, whole or not at all.
Scarica() { # package
  local versione
  PreparaSorgenti && versione=$(VersioneDeiSorgenti "$1") && rm -rf "${lavoro:?}/$1.pacco" &&
    mkdir -p "$lavoro/$1.pacco" "$sorgenti" &&
    (cd "$lavoro/$1.pacco" && APT_CONFIG=$lavoro/apt.conf apt-get source -qq --download-only "$1=$versione") >&2 &&
    rm -rf "${sorgenti:?}/$1" && mv "$lavoro/$1.pacco" "$sorgenti/$1"
}

# The unpacked source of a package, in $lavoro/<package>.
Prende() { # package
  Scarica "$1" && rm -rf "${lavoro:?}/$1" && dpkg-source -x "$sorgenti/$1/"*.dsc "$lavoro/$1" >&2
}

Pulisce() { # once nothing is left to be tried again
  if [ -f "$cartella/fatto/qt6-svg" ] && [ -f "$cartella/fatto/qt6-imageformats" ]; then
    rm -rf "$lavoro"
  fi
}

if [ "${1-}" = --sorgenti ]; then
  for modulo in "$cartella/fatto/"*; do
    modulo=$(basename "$modulo")
    [ -d "$sorgenti/$modulo" ] || Scarica "$modulo" || exit 1
  done
  Pulisce
  echo "$sorgenti"
  exit
fi

argomenti=()
while IFS= read -r riga; do
  argomenti+=("$riga")
done < <(grep '^-' "$qui/qt.txt")

Costruisce() { # package, further arguments of CMake
  local nome=$1
  shift
  cmake -S "$lavoro/$nome" -B "$lavoro/$nome.build" -G Ninja \
    -DCMAKE_TOOLCHAIN_FILE="$qui/mingw.cmake" -DCMAKE_INSTALL_PREFIX="$cartella" "$@" >&2 &&
    cmake --build "$lavoro/$nome.build" -j "${PLAKERA_LAVORI:-$(nproc)}" >&2 &&
    cmake --install "$lavoro/$nome.build" > /dev/null &&
    mkdir -p "$cartella/licenze" &&
    cp "$lavoro/$nome/debian/copyright" "$cartella/licenze/$nome.copyright"
}

if [ ! -f "$cartella/fatto/qt6-base" ]; then
  # A build that was cut short goes on where it stood.
  [ -f "$lavoro/qt6-base/CMakeLists.txt" ] || Prende qt6-base
  Costruisce qt6-base "${argomenti[@]}"
  cp "$lavoro"/qt6-base/LICENSES/* "$cartella/licenze/"
  touch "$cartella/fatto/qt6-base"
  rm -rf "$lavoro/qt6-base" "$lavoro/qt6-base.build"
fi
# Formats of pictures that can be brought in beyond Qt's own: the program does without any of them.
for modulo in qt6-svg qt6-imageformats; do
  [ -f "$cartella/fatto/$modulo" ] && continue
  if Prende "$modulo" &&
    Costruisce "$modulo" -DCMAKE_BUILD_TYPE=Release -DQT_WINDOWS="$cartella" -DCMAKE_PREFIX_PATH="$cartella" \
      -DFEATURE_system_tiff=OFF -DFEATURE_system_webp=OFF -DFEATURE_jasper=OFF -DFEATURE_mng=OFF; then
    touch "$cartella/fatto/$modulo"
  else
    echo "qt.sh: $modulo cannot be had now: its pictures cannot be brought in" >&2
  fi
done
Pulisce
echo "$cartella"

#!/usr/bin/env bash
# Installs what is missing, builds the release and makes the Debian package in build/pacchetto/.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake/installa.sh build pacchetto
# The same tree gives the same package, whenever it is made.
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git -c safe.directory='*' log -1 --format=%ct 2>/dev/null || date +%s)}
umask 022
cmake --preset release -B build/debian -DPLAKERA_TESTS=OFF >/dev/null
cmake --build build/debian
rm -rf build/pacchetto
cpack --config build/debian/CPackConfig.cmake -B "$PWD/build/pacchetto" >/dev/null
rm -rf build/pacchetto/_CPack_Packages
ls "$PWD"/build/pacchetto/*.deb

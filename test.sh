#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test. Arguments go to ctest.
set -euo pipefail
cd "$(dirname "$0")"
cmake/installa.sh build test
cmake --preset "${PRESET:-debug}" >/dev/null
cmake --build --preset "${PRESET:-debug}"
ctest --preset "${PRESET:-debug}" -j "$(nproc)" "$@"

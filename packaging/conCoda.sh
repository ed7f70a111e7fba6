#!/usr/bin/env bash
# conCoda.sh COMMAND [ARGUMENT...]: runs the command, as root, beside a print server of its own whose default queue
# prints A4 sheets into the folder $PLAKERA_FOGLI.
set -euo pipefail
radice=$(realpath "$(dirname "$0")/..")
"$radice/cmake/installa.sh" build test
(
  cd "$radice"
  cmake --preset release > /dev/null
  cmake --build --preset release --target coda_di_stampa
)
exec "$radice/build/release/tests/coda_di_stampa" "$@"

#!/usr/bin/env bash
# Builds the measures as a release and runs them, one table for all.
# Usage: tools/medir.sh [PROGRAM...]      (Medida_Libreta, ...; all of them unless named)
# The end is 1 when a measure is over what it may cost. docs/velocidad.md keeps the table.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1

cmake --preset release -DMIRALDOS_MEDIDAS=ON >/dev/null || exit 2
programas=("$@")
if [ ${#programas[@]} -eq 0 ]; then
  for fuente in bench/Medida_*.cpp; do programas+=("$(basename "$fuente" .cpp)"); done
fi
cmake --build build/release --target "${programas[@]}" || exit 2

estado=0
for programa in "${programas[@]}"; do
  echo "== $programa"
  QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 "build/release/medidas/$programa" || estado=1
done
exit $estado

#!/usr/bin/env bash
# Reviews the sources without running them: form, words, includes, and two readers of faults.
# Usage: tools/revisar.sh [--rapido] [--cambiados [BASE]]
#   --rapido      form, words and includes alone: seconds instead of minutes
#   --cambiados   only what differs from BASE (main unless given), for use while working
# Each step prints one line, and its places when it fails; the end is 1 when a step failed.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1

cambiados=no
rapido=no
base=main
if [ "${1:-}" = --rapido ]; then rapido=si; shift; fi
case "${1:-}" in
"") ;;
--cambiados) cambiados=si; base="${2:-main}" ;;
*) echo "usage: $0 [--rapido] [--cambiados [BASE]]" >&2; exit 2 ;;
esac
tools/dependencias.sh revisar || exit 1

carpetas=(core session formats export conversions transfer codes rawfiles simulator app tools)
if [ "$cambiados" = si ]; then
  desde=$(git merge-base HEAD "$base") || exit 2
  mapfile -t todos < <({ git diff --name-only --diff-filter=d "$desde"
                         git ls-files -o --exclude-standard; } | sort -u)
else
  mapfile -t todos < <(git ls-files -co --exclude-standard | while read -r f; do
                         [ -f "$f" ] && echo "$f"; done)
fi
fuentes=()
for f in "${todos[@]}"; do
  case "$f" in *.h | *.cpp) fuentes+=("$f") ;; esac
done
# Sources of the program; a header that changed stands for the source of its name.
produccion=()
for f in "${fuentes[@]}"; do
  for c in "${carpetas[@]}"; do
    case "$f" in "$c"/*) [ -f "${f%.h}.cpp" ] && f="${f%.h}.cpp"
                         case "$f" in *.cpp) produccion+=("$f") ;; esac ;;
    esac
  done
done
mapfile -t produccion < <(printf '%s\n' "${produccion[@]+"${produccion[@]}"}" | sort -u | sed '/^$/d')

salida=$(mktemp)
trap 'rm -f "$salida"' EXIT
mal=0
paso() { # name, number of things looked at, command...
  local nombre=$1 cuantos=$2 empieza=$SECONDS
  shift 2
  if [ "$cuantos" -eq 0 ]; then
    echo "$nombre: nothing to look at"
  elif "$@" >"$salida" 2>&1; then
    echo "$nombre: good ($cuantos, $((SECONDS - empieza)) s)"
  else
    echo "$nombre: BAD ($cuantos, $((SECONDS - empieza)) s)"
    cat "$salida"
    mal=1
  fi
}

forma() { printf '%s\0' "${fuentes[@]}" | xargs -0 -n 40 -P "$(nproc)" clang-format --dry-run -Werror; }
defectos() {
  # What it takes wrongly stands with its reason in tools/revisar/cppcheck.txt.
  printf '%s\n' "${produccion[@]}" | cppcheck --file-list=- -j "$(nproc)" --quiet --std=c++20 \
    --library=qt --enable=warning,performance,portability --inline-suppr --error-exitcode=1 -I . \
    --suppressions-list=tools/revisar/cppcheck.txt --template='{file}:{line}: {id}: {message}'
}
tidy() {
  cmake -S . -B build/revisar -G Ninja -DCMAKE_BUILD_TYPE=Debug -DMIRALDOS_PRUEBAS=OFF >/dev/null &&
    if [ "$cambiados" = si ]; then
      python3 tools/revisar/tidy.py build/revisar "${produccion[@]}"
    else
      python3 tools/revisar/tidy.py build/revisar
    fi
}

paso "clang-format" "${#fuentes[@]}" forma
paso "words" "${#todos[@]}" python3 tools/revisar/palabras.py "${todos[@]}"
paso "includes" "${#todos[@]}" python3 tools/revisar/pisos.py
[ "$rapido" = si ] && exit $mal
paso "cppcheck" "${#produccion[@]}" defectos
paso "clang-tidy" "${#produccion[@]}" tidy
exit $mal

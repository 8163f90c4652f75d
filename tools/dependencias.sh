#!/usr/bin/env bash
# Installs, by Debian package name, what building or testing needs and this machine lacks.
# Usage: tools/dependencias.sh construir|probar|revisar
set -euo pipefail
construir=(cmake ninja-build g++ mold qt6-base-dev qt6-serialport-dev qt6-svg-dev
           libgl1-mesa-dev libsqlite3-dev qt6-translations-l10n)
probar=(python3-xlrd python3-ezdxf mdbtools libxlsxwriter-dev libbenchmark-dev libxml2-utils)
revisar=(git python3 clang clang-format clang-tidy cppcheck)
case "${1:-}" in
construir) paquetes=("${construir[@]}") ;;
probar) paquetes=("${construir[@]}" "${probar[@]}") ;;
revisar) paquetes=("${construir[@]}" "${revisar[@]}") ;;
*) echo "usage: $0 construir|probar|revisar" >&2; exit 2 ;;
esac
faltan=()
for p in "${paquetes[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'ok installed' || faltan+=("$p")
done
[ ${#faltan[@]} -eq 0 ] && exit 0
como=()
[ "$(id -u)" -eq 0 ] || como=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${como[@]}" apt-get update -q
"${como[@]}" apt-get install -y -q --no-install-recommends "${faltan[@]}"

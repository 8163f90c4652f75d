#!/usr/bin/env bash
# Shows what an assembled installation does.
# Usage: tools/demostracion.sh DIRECTORIO
set -euo pipefail
instalacion=$1
libro="$instalacion/ficheros/campo_krt300.txt"
enlace="$instalacion/com1"

"$instalacion/miraldos-sim" KRT300 --enlace "$enlace" --enviar "$libro" >/dev/null &
simulador=$!
trap 'kill "$simulador" 2>/dev/null || true; rm -f "$enlace"' EXIT
for _ in $(seq 50); do [ -e "$enlace" ] && break; sleep 0.1; done

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  # A Puertos.ini that the user has written stays his. It is in the page of all the program's files.
  [ -e "$instalacion/Puertos.ini" ] || printf '[PUERTOS]\r\nCOM1=%s\r\n' "$enlace" |
    iconv -f UTF-8 -t WINDOWS-1252 >"$instalacion/Puertos.ini"
  echo "Hay un KRT300 simulado en COM1: Transferencias, una operación, Intro e Iniciar."
  "$instalacion/Miraldos"
  exit
fi

cli() { "$instalacion/miraldos-cli" --dir "$instalacion" "$@"; }
modelo=$(cli modelos | awk -F'\t' '$2 == "KRT300" { print $1; exit }')
echo "Descargando del $modelo simulado, por el protocolo real..."
sesion=$(cli descargar --modelo "$modelo" --ope 0 --puerto "$enlace" --nombre "Demostración")
echo "Sesión $sesion guardada en $instalacion/MDB/EstTotal.mdb"
formato=$(cli formatos --maquina KRT300 | awk -F'\t' 'NR > 1 && $3 == 0 { print $1; exit }')
salida="$instalacion/ficheros/demostracion.txt"
cli exportar "$sesion" --formato "$formato" --tipo txf --salida "$salida" --titulos si
echo "Exportada con el formato $formato, como texto formateado, a:"
echo "  $salida"
echo "Primeras líneas:"
head -n 12 "$salida" | iconv -f WINDOWS-1252 -t UTF-8 | sed 's/^/  /'

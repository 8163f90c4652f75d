#!/usr/bin/env bash
# One run does it all: downloads a field book from the simulated instrument over the real protocol,
# exports the session as text and as a raw file, imports the raw file again and compares everything:
# the raw file with what the instrument holds, the second session's files with the first's. Works in a
# folder of its own; the installation stays as it is.
# Usage: tools/recorrido.sh DIRECTORIO [MAQUINA...]
set -euo pipefail
export LC_ALL=C.UTF-8
instalacion=$(cd "$1" && pwd)
shift

trabajo=$(mktemp -d)
simulador=
trap '[ -z "$simulador" ] || kill "$simulador" 2>/dev/null || true; rm -rf "$trabajo"' EXIT
mkdir "$trabajo/DAT"
cp "$instalacion/DAT/Database.mdb" "$trabajo/DAT/"
printf 'VELOCIDAD=9600\r\nBITS=8\r\nPARIDAD=None\r\nSTOP=1\r\nFIJO=True\r\n' >"$trabajo/EstTotal.ini"
cd "$trabajo"

cli() { "$instalacion/miraldos-cli" --dir "$trabajo" "$@" 2>>"$trabajo/mensajes"; }

fallar() {
  echo "$1" >&2
  tail -n 20 "$trabajo/mensajes" >&2 || true
  exit 1
}

iguales() { # QUE FICHERO FICHERO
  cmp "$2" "$3" || fallar "  $1: no son iguales"
  echo "  $1: iguales ($(stat -c %s "$2") bytes)"
}

# The records that a field book holds, one a line, in the page of the wire.
registros_de() {
  grep -v -e '^#' -e '^$' "$1" | sed 's/^\\#/#/' | iconv -f UTF-8 -t WINDOWS-1252 | sed 's/$/\r/'
}

# What a raw file brings besides the records: the filling of the last frame, the level's checksums.
sin_envoltura() { # MAQUINA
  case $1 in
    KRT300 | PX7) sed '$ s/ *\r$/\r/' ;;
    NV400) sed 's/.,\r$/\r/' ;;
    *) cat ;;
  esac
}

descargar() { # MAQUINA OPE LIBRETA
  rm -f com1
  "$instalacion/miraldos-sim" "$1" --enlace "$trabajo/com1" --enviar "$3" --retardo 200 >>"$trabajo/mensajes" 2>&1 &
  simulador=$!
  for _ in $(seq 100); do [ -e com1 ] && break; sleep 0.1; done
  cli descargar --modelo "$1" --ope "$2" --puerto "$trabajo/com1" --nombre "Recorrido $1"
  kill "$simulador" 2>/dev/null || true
  wait "$simulador" 2>/dev/null || true
  simulador=
}

textos() { # SESION FICHERO FORMATO: without a format the level's book
  if [ -z "$3" ]; then
    cli exportar-bruto "$1" --patron '*.txt' --salida "$2" --serie NV-1 --operador Recorrido
  else
    cli exportar "$1" --formato "$3" --tipo txf --salida "$2"
  fi
}

recorrer() { # MAQUINA OPE LIBRETA PATRON FORMA FORMATO
  local maquina=$1 ope=$2 libreta="$instalacion/ficheros/$3" patron=$4 forma=$5 formato=$6 sesion vuelta
  echo "$maquina: $3"
  rm -f ida.* vuelta.*
  sesion=$(descargar "$maquina" "$ope" "$libreta") || fallar "  la descarga ha fallado"
  echo "  descargada como sesión $sesion"
  textos "$sesion" ida.txt "$formato" || fallar "  el texto ha fallado"
  cli exportar-bruto "$sesion" --patron "$patron" --salida ida.bruto --generales || fallar "  el fichero bruto ha fallado"
  cli exportar-bruto "$sesion" --patron "$(lineas_de "$maquina")" --salida ida.lineas --generales ||
    fallar "  las líneas han fallado"
  registros_de "$libreta" >libreta.lineas
  sin_envoltura "$maquina" <ida.lineas >ida.registros
  iguales "fichero bruto y memoria del aparato" libreta.lineas ida.registros
  vuelta=$(cli importar-bruto ida.bruto --modelo "$maquina" --ope "$ope" --nombre "Vuelta" --formato "$forma") ||
    fallar "  la importación ha fallado"
  echo "  importado como sesión $vuelta"
  textos "$vuelta" vuelta.txt "$formato" || fallar "  el segundo texto ha fallado"
  cli exportar-bruto "$vuelta" --patron "$patron" --salida vuelta.bruto --generales || fallar "  el segundo fichero bruto ha fallado"
  iguales "los dos ficheros brutos" ida.bruto vuelta.bruto
  iguales "los dos textos" ida.txt vuelta.txt
}

lineas_de() { # MAQUINA
  case $1 in KRT300 | PX7) echo '*.txt' ;; *) echo '*.*' ;; esac
}

formato_de() { # MAQUINA OPE
  cli formatos --maquina "$1" | awk -F'\t' -v ope="$2" 'NR > 1 && $3 == ope { print $1; exit }'
}

[ $# -gt 0 ] || set -- KRT300 PX7 KRT800 NV400
for maquina in "$@"; do
  case $maquina in
    KRT300) recorrer KRT300 0 campo_krt300.txt '*.hd6' maquina "$(formato_de KRT300 0)" ;;
    PX7) recorrer PX7 0 campo_px7.txt '*.hd6' maquina "$(formato_de PX7 0)" ;;
    KRT800) recorrer KRT800 4 campo_krt800_puntos.txt '*.hd6' lineas "$(formato_de KRT800 4)" ;;
    NV400) recorrer NV400 0 campo_nv400.txt '*.dat' lineas '' ;;
    *) fallar "No hay un recorrido para $maquina" ;;
  esac
done
echo "Todo coincide."

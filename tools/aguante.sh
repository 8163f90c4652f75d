#!/bin/bash
# Wears the program out, by hand: a download, a rescue, a compaction and the saving of a format are
# killed at every n-th system call that touches the disk, and every n-th call fails with each error
# of a bad disk; at the end a small disk is filled at many moments (as root, who may mount one).
# After each round the database has to open, and what the instrument sent has to stand in a session
# or in a journal.
#
#   tools/aguante.sh DIRECTORIO_DE_INSTALACION [PASO]
#
# PASO (1) goes over only every so many calls. Needs strace. Ends with status 0 when nothing was
# found.
set -u
instalacion=$(realpath "${1:?falta el directorio de instalación}")
paso=${2:-1}
command -v strace >/dev/null || { echo "strace is needed" >&2; exit 2; }
taller=$(mktemp -d)
trap 'cd /; umount "$taller/disco" 2>/dev/null; rm -rf "$taller"' EXIT
fallos=0
rondas=0
llamadas=(openat write pwrite64 fdatasync fsync rename unlink ftruncate)

fallo() { echo "FALLO: $*"; fallos=$((fallos + 1)); }
cli() { "$instalacion/miraldos-cli" --dir "$dir" "$@"; }

# A fresh installation with one stored session, in $dir.
preparar() {
    dir=${1:-$taller/obra}
    rm -rf "${dir:?}"/*
    mkdir -p "$dir/DAT" "$dir/LOG"
    cp "$instalacion/DAT/Database.mdb" "$dir/DAT/"
    printf 'VELOCIDAD=9600\r\nBITS=8\r\nPARIDAD=None\r\nSTOP=1\r\nFIJO=True\r\n' >"$dir/EstTotal.ini"
}

simular() {
    "$instalacion/miraldos-sim" "$1" --enlace "$taller/com1" --enviar "$instalacion/ficheros/$2" \
        --una-vez --tiempo 60 >/dev/null 2>&1 &
    simulador=$!
    for _ in $(seq 100); do [ -e "$taller/com1" ] && break; sleep 0.02; done
}

parar() { kill "$simulador" 2>/dev/null; wait "$simulador" 2>/dev/null; }

descargar() {
    simular KRT300 campo_krt300.txt
    "$@" "$instalacion/miraldos-cli" --dir "$dir" descargar --modelo KRT300 --ope 0 \
        --puerto "$taller/com1" --nombre Obra --espera 3 >"$taller/salida" 2>"$taller/dicho"
    estado=$?
    parar
}

lineas() { cli ver "$1" 2>/dev/null | tail -n +2 | wc -l; }
diarios() { find "$dir/LOG" /tmp -maxdepth 1 -name 'recepcion_*.dia' -newer "$dir/EstTotal.ini" 2>/dev/null; }

# What was received stands somewhere, and "complete" means complete.
comprobar_descarga() {
    cli sesiones >/dev/null 2>"$taller/error" || { fallo "$1: $(cat "$taller/error")"; return; }
    if [ "$estado" = 0 ]; then
        [ "$(lineas "$(cat "$taller/salida")")" = "$esperadas" ] || fallo "$1: dicha completa y no lo está"
        return
    fi
    [ -s "$taller/dicho" ] || [ "$estado" -gt 128 ] || fallo "$1: acaba sin decir nada"
    if [ -z "$(diarios)" ] && grep -q "Recibiendo" "$taller/dicho"; then
        [ "$(lineas "$(cli sesiones | awk -F'\t' 'NR==2{print $1}')")" = "$esperadas" ] ||
            fallo "$1: ni diario ni sesión entera"
    fi
    for d in $(diarios); do
        case $d in "$dir"/*) ;; *) rm -f "$d"; continue ;; esac
        [ -s "$d" ] || continue
        cli --si rescatar "$d" --modelo KRT300 --nombre Rescatada >/dev/null 2>"$taller/error" ||
            grep -q "(62)" "$taller/error" || fallo "$1: no se rescata $d: $(cat "$taller/error")"
    done
}

comprobar_base() {
    cli sesiones >"$taller/salida" 2>"$taller/error" || { fallo "$1: $(cat "$taller/error")"; return; }
    [ "$(lineas 1)" = "$esperadas" ] || fallo "$1: la sesión 1 ha perdido líneas"
    [ "$(cli formatos | wc -l)" -ge "$formatos" ] || fallo "$1: faltan formatos"
}

# Runs `orden` with the n-th call of each kind spoilt, until there is no n-th.
recorrer() { # $1 what it is, $2 routine that prepares, $3 that runs, $4 that checks
    for llamada in "${llamadas[@]}"; do
        for mal in signal=KILL error=EIO error=ENOSPC error=EACCES; do
            for ((n = 1; ; n += paso)); do
                "$2"
                "$3" strace -f -qq -o "$taller/traza" -e trace="$llamada" \
                    -e inject="$llamada:$mal:when=$n"
                rondas=$((rondas + 1))
                "$4" "$1, $llamada $n, $mal"
                grep -q -e INJECTED -e "killed by" "$taller/traza" || break
            done
        done
    done
    echo "$1: $rondas rondas, $fallos fallos"
}

con_sesion() { preparar; descargar env; }
compactar() { "$@" "$instalacion/miraldos-cli" --dir "$dir" compactar >/dev/null 2>&1; }
formato() {
    "$@" "$instalacion/miraldos-cli" --dir "$dir" formato-nuevo --maquina KRT300 --ope 0 \
        --nombre Aguante --campos "Punto" >/dev/null 2>&1
}

preparar
descargar env
[ "$estado" = 0 ] || { echo "the sound download fails: $(cat "$taller/dicho")" >&2; exit 2; }
esperadas=$(lineas "$(cat "$taller/salida")")
formatos=$(cli formatos | wc -l)

recorrer "descarga" preparar descargar comprobar_descarga
recorrer "compactación" con_sesion compactar comprobar_base
recorrer "formato" con_sesion formato comprobar_base

if [ "$(id -u)" = 0 ] && mkdir -p "$taller/disco" && mount -t tmpfs -o size=8m tmpfs "$taller/disco" 2>/dev/null; then
    for libres in $(seq 0 8 512); do
        preparar "$taller/disco"
        cli sesiones >/dev/null 2>&1
        quedan=$(df -k --output=avail "$taller/disco" | tail -1)
        [ "$quedan" -gt "$libres" ] && head -c $(((quedan - libres) * 1024)) /dev/zero >"$taller/disco/relleno"
        descargar env
        rm -f "$taller/disco/relleno"
        rondas=$((rondas + 1))
        comprobar_descarga "disco con $libres KB libres"
    done
    echo "disco lleno: $rondas rondas, $fallos fallos"
fi
[ "$fallos" = 0 ]

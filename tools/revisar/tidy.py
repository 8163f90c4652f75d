#!/usr/bin/env python3
"""Runs clang-tidy over the sources of a compilation database, several sources at a time.

Most of a run's time goes into the library headers, which every source reads again. Sources of one
target are therefore checked together, as one unit that includes them. Two sources whose private
names meet go into different units; where that fails after all, a unit is halved until it compiles.

Usage: tidy.py BUILD_DIR [SOURCE...]     (without sources: every source of the database)
Prints the findings and ends with 1 when there are any.
"""
import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys

CON = 12
PROPIOS = r'/(core|session|formats|export|conversions|transfer|codes|rawfiles|simulator|app|tools)/.*\.(h|cpp)$'
PRIVADO = re.compile(r'^(?:struct|class|enum(?: class)?|union|using)\s+(\w+)|'
                     r'^[A-Za-z_][\w:<>,&*\s]*?[\s&*](\w+)\s*(?:\(|=|\{|\[|;)')


def ordenes(carpeta, elegidas):
    """Rows (source, arguments) with the compiler's own precompiled headers taken out."""
    filas = []
    raiz = os.getcwd()
    for entrada in json.load(open(os.path.join(carpeta, 'compile_commands.json'))):
        fuente = os.path.relpath(entrada['file'], raiz)
        if fuente.startswith(('..', 'build')) or (elegidas and fuente not in elegidas):
            continue
        args = shlex.split(entrada['command'])[1:]
        for opcion in ('-o', '-c'):
            i = args.index(opcion)
            del args[i:i + 2]
        args = [a for a in args if a != '-Winvalid-pch' and a != '-Werror']
        for i, a in enumerate(args):
            if a.endswith('cmake_pch.hxx'):
                args[i] = sin_precompilar(carpeta, a)
        filas.append((fuente, tuple(args)))
    return sorted(set(filas))


def sin_precompilar(carpeta, cabecera):
    """A copy of the header beside which no compiled form of another compiler lies."""
    destino = os.path.join(carpeta, 'revisar', re.sub(r'\W', '_', cabecera) + '.h')
    os.makedirs(os.path.dirname(destino), exist_ok=True)
    texto = open(cabecera).read()
    if not os.path.exists(destino) or open(destino).read() != texto:
        open(destino, 'w').write(texto)
    return destino


def privados(fuente):
    """Names that a source declares at the margin: they may meet those of another source."""
    nombres = set()
    for linea in open(fuente, encoding='utf-8'):
        m = PRIVADO.match(linea)
        if m and '::' not in linea.split('(')[0] and not linea.startswith(('namespace', 'using n')):
            nombres.add(m.group(1) or m.group(2))
    return nombres


def grupos(filas):
    """Lists of sources with the same arguments and no private name in common."""
    abiertos = {}
    for fuente, args in filas:
        nombres = privados(fuente)
        for grupo in abiertos.setdefault(args, []):
            if len(grupo[0]) < CON and not grupo[1] & nombres:
                grupo[0].append(fuente)
                grupo[1].update(nombres)
                break
        else:
            abiertos[args].append(([fuente], nombres))
    return [(g[0], args) for args, lista in abiertos.items() for g in lista]


def unidad(carpeta, fuentes):
    nombre = os.path.join(carpeta, 'revisar', re.sub(r'\W', '_', fuentes[0]) + f'_{len(fuentes)}.cpp')
    with open(nombre, 'w') as salida:
        for f in fuentes:
            salida.write(f'#include "{os.path.abspath(f)}" // NOLINT\n')
    return nombre


def compila(args, fichero):
    return subprocess.run(['clang++', '-w', '-fsyntax-only', *args, fichero],
                          capture_output=True).returncode == 0


def revisar(carpeta, fuentes, args):
    """@return text of the findings, empty when there are none"""
    fichero = fuentes[0] if len(fuentes) == 1 else unidad(carpeta, fuentes)
    if len(fuentes) > 1 and not compila(args, fichero):
        mitad = len(fuentes) // 2
        return (revisar(carpeta, fuentes[:mitad], args) + revisar(carpeta, fuentes[mitad:], args))
    r = subprocess.run(['clang-tidy', '--quiet', '--config-file=.clang-tidy',
                        f'--header-filter={PROPIOS}', fichero, '--', *args],
                       capture_output=True, text=True, errors='replace')
    # A run that broke down without a word is a finding too.
    return '' if r.returncode == 0 else r.stdout + r.stderr + f'{fichero}: end {r.returncode}\n'


def main():
    carpeta = sys.argv[1]
    filas = ordenes(carpeta, set(sys.argv[2:]))
    os.makedirs(os.path.join(carpeta, 'revisar'), exist_ok=True)
    trabajos = sorted(grupos(filas), key=lambda g: -len(g[0]))
    vistos = set()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as manos:
        for texto in manos.map(lambda g: revisar(carpeta, *g), trabajos):
            if texto not in vistos:
                vistos.add(texto)
                sys.stdout.write(texto)
    vistos.discard('')
    print(f'{len(filas)} sources in {len(trabajos)} units, {len(vistos)} with findings',
          file=sys.stderr)
    # A database without the sources asked for would pass for a clean one.
    return 1 if vistos or (not filas and len(sys.argv) == 2) else 0


if __name__ == '__main__':
    sys.exit(main())

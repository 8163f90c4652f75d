#!/usr/bin/env python3
"""Checks the includes of the program against its floors and rooms.

The floors and their order are read from CMakeLists.txt. A source includes only its own floor and
those below it; rooms of a floor form no circle and rooms of families know nothing of each other;
no header leads back to itself; Qt's windows stay in ui/ and app/; the simulator shares nothing
with transfer/.

Usage: pisos.py      (at the root of the sources; prints the places, ends with 1 when there are any)
"""
import glob
import os
import re
import subprocess
import sys

INCLUYE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<([^>]+)>)')
CON_VENTANAS = ('QtGui', 'QtWidgets', 'QtPrintSupport', 'QtSvg', 'QtSvgWidgets')
FAMILIAS = {'krt300', 'krt800', 'nv400'}


def leer_pisos():
    texto = open('CMakeLists.txt', encoding='utf-8').read()
    lista = re.search(r'foreach\(piso ([^)]*)\)', texto).group(1).split()
    return lista[:lista.index('ui')]


def cabeceras_con_ventanas():
    """Names of headers that belong to Qt's windows and to no library below them."""
    def de(modulo):
        return {os.path.basename(f) for f in glob.glob(f'/usr/include/*/qt6/{modulo}/*')}
    nombres = set().union(*(de(m) for m in CON_VENTANAS))
    return nombres - de('QtCore') - de('QtSerialPort') - de('QtTest')


def leer_includes():
    """Rows (source, line, included file, in quotes) of the program's sources."""
    carpetas = leer_pisos() + ['simulator', 'app', 'tools']
    ficheros = subprocess.run(['git', 'ls-files', '-co', '--exclude-standard', '--', *carpetas],
                              capture_output=True, text=True, check=True).stdout.split('\n')
    for f in ficheros:
        if not f.endswith(('.h', '.cpp')) or not os.path.exists(f):
            continue
        for n, linea in enumerate(open(f, encoding='utf-8'), 1):
            m = INCLUYE.match(linea)
            if m:
                yield f, n, m.group(1) or m.group(2), m.group(1) is not None


def sala(fichero):
    """Room of a file within its floor, empty for one that lies directly in it."""
    partes = fichero.split('/')
    return partes[1] if len(partes) > 2 else ''


def resolver(desde, incluido):
    """Path of an included file of the program: from the root, or beside the one that includes."""
    if os.path.exists(incluido):
        return incluido
    al_lado = os.path.normpath(os.path.join(os.path.dirname(desde), incluido))
    return al_lado if os.path.exists(al_lado) else incluido


def circulo(flechas):
    """@return a closed walk along the arrows, or nothing when there is none"""
    estado, pila = {}, []

    def visitar(nodo):
        estado[nodo] = 1
        pila.append(nodo)
        for otro in sorted(flechas.get(nodo, ())):
            if estado.get(otro) == 1:
                return pila[pila.index(otro):] + [otro]
            if otro not in estado:
                hallado = visitar(otro)
                if hallado:
                    return hallado
        pila.pop()
        estado[nodo] = 2
        return None

    for nodo in sorted(flechas):
        if nodo not in estado:
            hallado = visitar(nodo)
            if hallado:
                return hallado
    return None


def main():
    sys.setrecursionlimit(10000)
    pisos = leer_pisos()
    ventanas = cabeceras_con_ventanas()
    faltas, ficheros, salas = [], {}, {}
    if not ventanas:
        faltas.append('the headers of Qt were not found')
    for f, n, incluido, propio in leer_includes():
        donde = f'{f}:{n}: {incluido}'
        piso = f.split('/')[0]
        if not propio:
            libre = piso in ('app', 'tools') or sala(f) == 'ui'
            if not libre and os.path.basename(incluido) in ventanas:
                faltas.append(f'{donde}: windows outside ui/ and app/')
            continue
        destino = resolver(f, incluido)
        otro = destino.split('/')[0]
        if f.endswith('.h') and destino.endswith('.h'):
            ficheros.setdefault(f, set()).add(destino)
        if piso in pisos:
            # Dialogs stand above all floors, whichever folder they lie in.
            por_encima = otro in pisos and pisos.index(otro) > pisos.index(piso)
            if por_encima and sala(f) != 'ui':
                faltas.append(f'{donde}: {piso} lies below {otro}')
            if otro in ('app', 'simulator', 'tools', 'tests'):
                faltas.append(f'{donde}: the program includes nothing of {otro}')
            if sala(destino) == 'ui' and sala(f) != 'ui':
                faltas.append(f'{donde}: logic knows no dialog')
            if piso == otro and sala(f) != sala(destino) and '' not in (sala(f), sala(destino)):
                salas.setdefault(f'{piso}/{sala(f)}', {})[f'{piso}/{sala(destino)}'] = donde
                if {sala(f), sala(destino)} <= FAMILIAS:
                    faltas.append(f'{donde}: a family knows nothing of another')
        if piso == 'simulator' and otro not in ('simulator', 'core'):
            faltas.append(f'{donde}: the simulator shares nothing with the program above core')
    vuelta = circulo({s: set(d) for s, d in salas.items()})
    if vuelta:
        faltas.append('rooms in a circle: ' + ' -> '.join(vuelta))
        faltas += [f'  {salas[a][b]}' for a, b in zip(vuelta, vuelta[1:])]
    vuelta = circulo(ficheros)
    if vuelta:
        faltas.append('headers in a circle: ' + ' -> '.join(vuelta))
    print('\n'.join(faltas), end='\n' if faltas else '')
    return 1 if faltas else 0


if __name__ == '__main__':
    sys.exit(main())

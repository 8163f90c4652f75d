#!/usr/bin/env python3
"""Looks for words that have no place in the repository: what was meant to be done later, where the
sources came from, names of machines and of their folders.

Usage: palabras.py [FILE...]     (without files: every text file of the repository)
Prints the places and ends with 1 when there are any.
"""
import re
import subprocess
import sys

# Whole words. Addresses are allowed as names of XML spaces and in tests as this machine itself.
PROHIBIDAS = [
    (re.compile(r'\b(TO[D]O|FIX[M]E|XX[X]|HAC[K])\b'), 'something left for later'),
    (re.compile(r'\b[Pp]arts? \d+(\.\d+)*\b'), 'a paper from outside'),
    (re.compile(r'\b([Ss]pec|[Ss]pecs|[Ss]pecification|[Rr]equirements?)\b'), 'a paper from outside'),
    (re.compile(r'\b[Ii]ssues? #?\d+\b'), 'a paper from outside'),
    (re.compile(r'(?<![\w.])/(work|home|root|tmp|Users)/\w'), 'a folder of one machine'),
    (re.compile(r'\bhttps?://(?!www\.landxml\.org/|www\.w3\.org/|127\.0\.0\.1|localhost)[\w.-]+'),
     'an address'),
]
# Rows that speak of the words themselves, and delivered pages and pictures.
FUERA = re.compile(r'^(tools/revisar/palabras\.py|data/.*\.(png|jpg|bmp)|docs/img/|LICENSE)')


def main():
    ficheros = sys.argv[1:] or subprocess.run(
        ['git', 'ls-files', '-co', '--exclude-standard'], capture_output=True, text=True,
        check=True).stdout.split('\n')
    faltas = 0
    for f in ficheros:
        if not f or FUERA.match(f):
            continue
        try:
            lineas = open(f, encoding='utf-8').read().split('\n')
        except (UnicodeDecodeError, FileNotFoundError, IsADirectoryError):
            continue
        for n, linea in enumerate(lineas, 1):
            for forma, motivo in PROHIBIDAS:
                m = forma.search(linea)
                if m:
                    faltas += 1
                    print(f'{f}:{n}: "{m.group(0)}": {motivo}')
    return 1 if faltas else 0


if __name__ == '__main__':
    sys.exit(main())

"""The report of a levelling run, calculated anew from the lines of a field book.

Shares nothing with the program: the divisors are those of docs/formas/nv400.md, the arithmetic is
decimal. Usage: informe.py BOOK KIND, with KIND one of
  texto   the report as text, blank as separator, titles, every line
  llano   the same with the comma, without titles, rings or change points
  libro   its rows as a workbook has them, cells parted by "|", titles, every line
  base    the measurements as a table, cells parted by "|"
"""
import sys
from decimal import ROUND_HALF_UP, Decimal

DIVISORES = {  # letters, fields, divisor by unit digit, decimals
    ('b', '4'): ({'1': 3, '2': 4, '3': 5, '7': 6, '8': 7}, 4),
    ('ghijfk', '2'): ({'1': 3, '2': 4, '3': 5, '7': 4, '8': 5}, 5),
    ('ghijfk', '3'): ({'1': 2, '2': 2, '3': 3, '7': 2, '8': 3}, 3),
    ('ghijfk', '4'): ({'1': 3, '2': 3, '3': 4, '7': 4, '8': 5}, 4),
    ('ghijfk', '6'): ({'1': 1, '2': 1, '3': 1, '7': 1, '8': 1}, 1),
    ('wv', '569'): ({'1': 3, '2': 3, '3': 4, '7': 4, '8': 5}, 5),
    ('wv', '78'): ({'1': 2, '2': 2, '3': 3, '7': 2, '8': 3}, 3),
}
CABECERA = [('Trabajo', 2, 16), ('Punto Inicial', 3, 8), ('Cota Inicial', 4, 11),
            ('Fecha', 5, 8), ('Hora', 6, 5)]
DETALLE = [('Tipo', 0, 4), ('Punto', 5, 8), ('Lectura', 2, 9), ('Distancia', 3, 9),
           ('Cota', 4, 11), ('Hora', 8, 5)]
ANILLO = [('Nº Señal ', 3, -8), ('Fecha y Hora   ', 4, 16), ('Inc.Z Anillo', 5, -12),
          ('Inc.Z Total', 6, -11), ('Long Anillo', 7, -11), ('Long Total', 8, -10),
          ('Cota      ', 9, -10), ('Codigo 1         ', 10, -16)]
CAMBIO = [('Nº Señal', 2, -8), ('P.Cambio', 3, -8), ('Fecha y Hora    ', 4, 16)] + ANILLO[2:]


def valor(linea, n):
    if n == 0:
        return linea[0]
    trozos = linea.split(',')
    crudo = trozos[n] if n < len(trozos) - 1 else ''
    for (letras, campos), (potencias, decimales) in DIVISORES.items():
        if linea[0] in letras and str(n) in campos:
            numero = Decimal(crudo or 0) / 10 ** potencias[linea[3]]
            return str(numero.quantize(Decimal(1).scaleb(-decimales), ROUND_HALF_UP))
    return crudo


def con_forma(nombre, texto):
    if nombre == 'Fecha' and len(texto) == 6:
        return f'{texto[:2]}/{texto[2:4]}/{texto[4:]}'
    if nombre == 'Hora' and len(texto) == 4:
        return f'{texto[:2]}:{texto[2:]}'
    return texto


def momento(texto):
    return f'{texto[:2]}/{texto[2:4]}/{texto[4:6]}', f'{texto[6:8]}:{texto[8:]}'


def en_ancho(texto, ancho):
    if ancho > 0:
        return f'{texto:<{ancho}}'[:ancho]
    return f'{texto:>{-ancho}}'[ancho:]


def informe(lineas, sep, con_titulos, propias):
    def renglon(celdas):
        return sep.join(celdas)

    def campos(linea, lista, signo):
        return renglon(en_ancho(con_forma(n, valor(linea, c)), signo * a) for n, c, a in lista)

    if con_titulos:
        yield renglon(en_ancho(n, a) for n, _, a in CABECERA)
    yield campos(lineas[0], CABECERA, 1)
    yield ''
    if con_titulos:
        yield renglon(en_ancho(n, -a) for n, _, a in DETALLE)
        yield ''
    for linea in lineas:
        if linea[0] in 'ghijkf':
            yield campos(linea, DETALLE, -1)
        elif linea[0] in propias:
            columnas = ANILLO if linea[0] == 'w' else CAMBIO
            yield ''
            yield renglon(t for t, _, _ in columnas)
            yield renglon(en_ancho(' '.join(momento(valor(linea, c))) if c == 4
                                   else valor(linea, c), a) for _, c, a in columnas)
        elif linea[0] == 'u':
            fecha, hora = momento(valor(linea, 4))
            yield ''
            yield renglon(['Fin de Nivelacion    ', 'Fecha   ', 'Hora  '])
            yield renglon([' ' * 21 + fecha, hora])


def libro(lineas):
    """The rows behind that of the column names."""
    yield [n for n, _, _ in CABECERA]
    yield [con_forma(n, valor(lineas[0], c)) for n, c, _ in CABECERA]
    yield []
    yield [n for n, _, _ in DETALLE]
    yield []
    for linea in lineas:
        if linea[0] in 'ghijkf':
            yield [con_forma(n, valor(linea, c)) for n, c, _ in DETALLE]
        elif linea[0] in 'wv':
            columnas = ANILLO if linea[0] == 'w' else CAMBIO
            yield []
            yield [t.strip() for t, _, _ in columnas]
            yield [' '.join(momento(valor(linea, c))) if c == 4 else valor(linea, c)
                   for _, c, _ in columnas]
        elif linea[0] == 'u':
            yield []
            yield ['Fin de Nivelacion', 'Fecha   Hora  ', '', 'Comentario']
            yield ['', *momento(valor(linea, 4)), '']


def main():
    lineas = [x for x in open(sys.argv[1], encoding='utf-8').read().split('\n')
              if x and not x.startswith('#')]
    clase = sys.argv[2]
    if clase in ('texto', 'llano'):
        lleno = clase == 'texto'
        filas = informe(lineas, ' ' if lleno else ',', lleno, 'wv' if lleno else '')
        sys.stdout.buffer.write(''.join(f + '\r\n' for f in filas).encode('cp1252'))
    elif clase == 'libro':
        sys.stdout.buffer.write(''.join('|'.join(f) + '\n' for f in libro(lineas)).encode())
    else:
        print('|'.join(n for n, _, _ in DETALLE))
        for linea in lineas:
            if linea[0] in 'ghijkf':
                print('|'.join(con_forma(n, valor(linea, c)) for n, c, _ in DETALLE))


main()

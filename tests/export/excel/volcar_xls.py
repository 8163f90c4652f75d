"""Lists the cells of a workbook as xlrd reads them, in the lines that Volcado_Libro.h makes.

Usage: volcar_xls.py FILE [areas]. A line: sheet, row, column, kind (T text, N number, V none), value, "n"
when bold, "t" when the number format is "@", its picture when it is a number of decimals; tab
separated. Numbers are the bits of the double. With "areas" also what is printed of a sheet:
"area", its name, first row and column, last row and column.
"""
import re
import struct
import sys

import xlrd

TEXTO, NUMERO, VACIA = "T", "N", "V"


def valor(celda):
    if celda.ctype == xlrd.XL_CELL_TEXT:
        return TEXTO, celda.value
    if celda.ctype == xlrd.XL_CELL_ERROR:
        return TEXTO, xlrd.error_text_from_code[celda.value]
    if celda.ctype == xlrd.XL_CELL_BLANK:
        return VACIA, ""
    return NUMERO, struct.pack(">d", celda.value).hex()


def escapar(texto):
    for de, a in (("\\", "\\\\"), ("\t", "\\t"), ("\n", "\\n"), ("\r", "\\r")):
        texto = texto.replace(de, a)
    return texto


def areas(libro, hoja):
    """First row and column, last row and column of what is printed of a sheet."""
    for nombre in libro.name_map.get("print_area", []):
        for ref in nombre.result.value if nombre.result else []:
            _, _, fila, fila_hasta, columna, columna_hasta = ref.coords
            if libro.sheet_by_index(ref.coords[0]) is hoja:
                yield fila, columna, fila_hasta - 1, columna_hasta - 1


def main():
    libro = xlrd.open_workbook(sys.argv[1], formatting_info=True, ragged_rows=True,
                                logfile=sys.stderr)
    salida = open(sys.stdout.fileno(), "w", encoding="utf-8", errors="surrogatepass", newline="\n")
    for hoja in libro.sheets():
        for columna, info in sorted(hoja.colinfo_map.items()):
            print("ancho", hoja.name, columna, info.width, sep="\t", file=salida)
        for area in areas(libro, hoja) if "areas" in sys.argv else []:
            print("area", hoja.name, *area, sep="\t", file=salida)
        for f in range(hoja.nrows):
            for c in range(hoja.row_len(f)):
                celda = hoja.cell(f, c)
                if celda.ctype == xlrd.XL_CELL_EMPTY:
                    continue
                tipo, texto = valor(celda)
                xf = libro.xf_list[celda.xf_index]
                negrita = libro.font_list[xf.font_index].weight >= 600
                dibujo = libro.format_map[xf.format_key].format_str
                aspecto = ("n" if negrita else "") + ("t" if dibujo == "@" else "")
                if re.fullmatch(r"0(\.0+)?", dibujo):
                    aspecto += dibujo
                print(hoja.name, f, c, tipo, escapar(texto), aspecto, sep="\t", file=salida)


main()

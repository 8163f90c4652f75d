#!/usr/bin/env python3
"""Draws every picture of the delivered data: tools/dibujos/dibujar.py [CARPETA_DATA]

Needs python3-cairo and python3-pil. The results are kept in data/, so that a build needs neither; run
it again after a change here or after new rows in KRT.csv or Ayudas.csv.
"""
import csv
import io
import math
import pathlib
import sys

from PIL import Image

from trazos import *  # noqa: F403

RAIZ = pathlib.Path(__file__).resolve().parents[2]


def leer(data, tabla):
    with open(data / "DAT" / "tablas" / f"{tabla}.csv", encoding="utf-8", newline="") as f:
        return list(csv.DictReader(f))


def imagen(lienzo):
    memoria = io.BytesIO()
    lienzo.sup.write_to_png(memoria)
    return Image.open(memoria).convert("RGBA")


# ---- models

def foto_modelo(familia, modelo):
    """The instrument as it stands in the field, with its name."""
    d = Lienzo(240, 260, PAPEL)
    d.caja(1, 1, 238, 258, 10, PAPEL, NIEBLA, 2)
    d.poli([(8, 214), (232, 214), (232, 221), (8, 221)], NIEBLA)
    if familia == "PX7":
        with d.lugar(120, 212, 1.72):
            hacer_aparato(d, familia, modelo)
    else:
        with d.lugar(120, 142, 1.0):
            tripode(d, 92, 76)
        with d.lugar(120, 146, 1.02 if familia != "NV400" else 1.3):
            hacer_aparato(d, familia, modelo)
    d.texto(120, 246, modelo, 19, TINTA, True, centrado=True)
    return d


def foto_ini(familia, modelo):
    """The head alone, for the title of the dialogs."""
    d = Lienzo(96, 96)
    escala, pie = {"PX7": (0.84, 93), "NV400": (0.8, 76)}.get(familia, (0.68, 93))
    with d.lugar(48, pie, escala):
        hacer_aparato(d, familia, modelo)
    return d


# ---- steps of the help

def fondo_paso():
    d = Lienzo(320, 200, PAPEL)
    d.caja(1, 1, 318, 198, 10, PAPEL, NIEBLA, 2)
    return d


def aparato_y_pc(d, familia, unidos=True):
    pies = {"PX7": (74, 168, 1.16), "NV400": (84, 150, 1.1)}
    x, y, s = pies.get(familia, (74, 168, 1.2))
    if unidos:
        d.curva([(x + 12, y - 8), (x + 60, y + 34), (170, 190), (204, 158)], TINTA, 5)
        d.curva([(x + 12, y - 8), (x + 60, y + 34), (170, 190), (204, 158)], NARANJA, 2)
    with d.lugar(x, y, s):
        hacer_aparato(d, familia)
    with d.lugar(240, 160, 1.05):
        portatil(d)


def paso_cable(familia):
    d = fondo_paso()
    aparato_y_pc(d, familia)
    for x, y in ((88, 164 if familia != "NV400" else 146), (203, 158)):
        d.disco(x, y, 15, None, ROJO, 3)
    return d


def paso_flecha(familia, hacia_pc):
    d = fondo_paso()
    aparato_y_pc(d, familia, unidos=False)
    with d.lugar(128 if hacia_pc else 196, 52, 1.0, espejo=not hacia_pc):
        flecha(d, 68, VERDE if hacia_pc else AZUL)
    for i, t in enumerate("1011"):
        d.texto(134 + 14 * i, 34, t, 13, PIZARRA, True)
    return d


def paso_menu(titulo, lineas, elegida):
    """The instrument's display with a line chosen."""
    d = fondo_paso()
    d.caja(22, 14, 222, 172, 12, PIZARRA, TINTA, 2.5)
    d.caja(34, 26, 198, 148, 4, PANTALLA, TINTA, 2)
    d.caja(34, 26, 198, 26, 4, TURQUESA_OSC)
    d.texto(44, 45, titulo, 14, PAPEL, True)
    for i, t in enumerate(lineas):
        y = 61 + 27 * i
        if i == elegida:
            d.caja(39, y, 188, 24, 3, TINTA)
        d.texto(48, y + 17, f"{i + 1}  {t}", 12, PAPEL if i == elegida else TINTA, i == elegida)
    for i, (t, color) in enumerate((("▲", PAPEL), ("▼", PAPEL), ("OK", NARANJA))):
        y = 30 + 50 * i
        d.caja(260, y, 42, 38, 6, color, TINTA, 2)
        d.texto(281, y + 25, t, 16, TINTA, True, centrado=True)
    return d


def hoja_de_puntos(d):
    documento(d)
    for i, t in enumerate(("RN1 500.123", "P2 12.400", "P3 -1.250")):
        d.texto(-23, -46 + 14 * i, t, 6.8, TINTA)


def paso_fichero():
    d = fondo_paso()
    with d.lugar(160, 178, 2.05):
        hoja_de_puntos(d)
    return d


def paso_convertir():
    d = fondo_paso()
    with d.lugar(76, 156, 1.3):
        hoja_de_puntos(d)
    with d.lugar(128, 104):
        flecha(d, 52)
    with d.lugar(246, 156, 1.05):
        portatil(d, False)
        d.texto(0, -38, "*.x", 20, AZUL_OSC, True, centrado=True)
    return d


MENUS = {  # picture: title, lines, chosen one (from 0)
    "ayu_krt300_d0": ("ENVIAR", ["DATOS DE MEDICIÓN", "COORDENADAS", "COORD. CALCULADAS", "LIBRERÍA"], 0),
    "ayu_krt300_d1": ("ENVIAR", ["DATOS DE MEDICIÓN", "COORDENADAS", "COORD. CALCULADAS", "LIBRERÍA"], 1),
    "ayu_krt300_d11": ("ENVIAR", ["DATOS DE MEDICIÓN", "COORDENADAS", "COORD. CALCULADAS", "LIBRERÍA"], 2),
    "ayu_krt300_d2": ("ENVIAR", ["DATOS DE MEDICIÓN", "COORDENADAS", "COORD. CALCULADAS", "LIBRERÍA"], 3),
    "ayu_krt300_c1": ("RECIBIR", ["COORDENADAS", "LIBRERÍA"], 0),
    "ayu_krt300_c2": ("RECIBIR", ["COORDENADAS", "LIBRERÍA"], 1),
    "ayu_krt800_d0": ("SALIDA", ["MEDICIONES", "PUNTOS", "TRABAJO", "EJES EN PLANTA"], 0),
    "ayu_krt800_d4": ("SALIDA", ["MEDICIONES", "PUNTOS", "TRABAJO", "EJES EN PLANTA"], 1),
    "ayu_krt800_d5": ("SALIDA", ["MEDICIONES", "PUNTOS", "TRABAJO", "EJES EN PLANTA"], 2),
    "ayu_krt800_d6": ("SALIDA", ["MEDICIONES", "PUNTOS", "TRABAJO", "EJES EN PLANTA"], 3),
    "ayu_krt800_d7": ("SALIDA", ["TRABAJO", "EJES EN PLANTA", "TRANSVERSALES", "RASANTES"], 2),
    "ayu_krt800_d8": ("SALIDA", ["TRABAJO", "EJES EN PLANTA", "TRANSVERSALES", "RASANTES"], 3),
    "ayu_krt800_c2": ("ENTRADA DE DATOS", ["LIBRERÍA", "PUNTOS", "REPLANTEO", "EJES EN PLANTA"], 0),
    "ayu_krt800_c4": ("ENTRADA DE DATOS", ["LIBRERÍA", "PUNTOS", "REPLANTEO", "EJES EN PLANTA"], 1),
    "ayu_krt800_c9": ("ENTRADA DE DATOS", ["LIBRERÍA", "PUNTOS", "REPLANTEO", "EJES EN PLANTA"], 2),
    "ayu_krt800_c6": ("ENTRADA DE DATOS", ["LIBRERÍA", "PUNTOS", "REPLANTEO", "EJES EN PLANTA"], 3),
    "ayu_krt800_c7": ("ENTRADA DE DATOS", ["EJES EN PLANTA", "TRANSVERSALES", "RASANTES", "TRANSV. PROYECTO"], 1),
    "ayu_krt800_c8": ("ENTRADA DE DATOS", ["EJES EN PLANTA", "TRANSVERSALES", "RASANTES", "TRANSV. PROYECTO"], 2),
    "ayu_krt800_c10": ("ENTRADA DE DATOS", ["EJES EN PLANTA", "TRANSVERSALES", "RASANTES", "TRANSV. PROYECTO"], 3),
    "ayu_nv400_d0": ("MEMORIA", ["VER TRABAJOS", "SALIDA A PC", "ENTRADA", "BORRAR"], 1),
}


def foto_paso(nombre):
    # The PX7 has the menus of a KRT300.
    clave = nombre.removesuffix(".png").replace("ayu_px7_", "ayu_krt300_")
    familia, que = nombre.removesuffix(".png").split("_", 2)[1:]
    familia = familia.upper()
    if que == "cable":
        return paso_cable(familia)
    if que in ("envia", "recibe"):
        return paso_flecha(familia, que == "envia")
    if que == "fichero":
        return paso_fichero()
    if clave == "ayu_nv400_c4":
        return paso_convertir()
    return paso_menu(*MENUS[clave])


# ---- icons: drawn on 32 by 32

def ico_transferencias(d):
    with d.lugar(8.5, 30, 0.24):
        estacion_total(d, COLORES["KRT300"], asa=False)
    with d.lugar(22.5, 30, 0.17):
        portatil(d, False)
    with d.lugar(13, 5, 0.24):
        flecha(d, 66, VERDE, 18)
    with d.lugar(29, 13, 0.24, espejo=True):
        flecha(d, 50, AZUL, 18)


def ico_configuracion(d):
    d.c.new_path()
    for i in range(32):
        r = 13.5 if (i // 2) % 2 else 10.5
        a = math.radians(i * 11.25 + 5.6)
        d.c.line_to(16 + r * math.cos(a), 16 + r * math.sin(a))
    d.c.close_path()
    d.pinta(PIZARRA, TINTA, 1.4)
    d.disco(16, 16, 4.8, PAPEL, TINTA, 1.4)


def ico_descargas(d):
    d.caja(3, 19, 26, 10, 2, AMBAR, TINTA, 1.5)
    d.linea([(7, 24), (25, 24)], AMBAR_OSC, 1.5)
    with d.lugar(16, 2.2, 0.3, giro=90):
        flecha(d, 58, VERDE, 22)


def ico_formatos(d):
    d.caja(4, 3, 24, 26, 2, PAPEL, TINTA, 1.6)
    d.caja(4, 3, 24, 6, 2, TURQUESA, TINTA, 1.6)
    for x in (12, 20):
        d.linea([(x, 9), (x, 29)], GRIS, 1.3)
    for y in (15, 22):
        d.linea([(4.6, y), (27.4, y)], GRIS, 1.3)
    d.caja(4, 3, 24, 26, 2, None, TINTA, 1.6)


def ico_codigos(d):
    d.caja(3, 5, 26, 22, 3, PAPEL, TINTA, 1.6)
    for i, (c, w) in enumerate(((VERDE, 12), (NARANJA, 9), (AZUL, 11))):
        d.disco(9, 10.5 + 5.5 * i, 2.1, c)
        d.linea([(14, 10.5 + 5.5 * i), (14 + w, 10.5 + 5.5 * i)], PIZARRA, 2)


def ico_salir(d):
    d.caja(4, 3, 15, 26, 2, PAPEL, TINTA, 1.6)
    d.poli([(4, 3), (13, 6), (13, 29), (4, 29)], PIZARRA, TINTA, 1.4)
    d.disco(10.5, 17, 1.2, AMBAR)
    with d.lugar(15, 16, 0.26):
        flecha(d, 58, ROJO, 16)


def ico_descarga(d):
    documento_32(d)
    with d.lugar(16, 9, 0.3, giro=90):
        flecha(d, 52, VERDE, 18)


def ico_carga(d):
    documento_32(d)
    with d.lugar(16, 26, 0.3, giro=-90):
        flecha(d, 52, AZUL, 18)


def documento_32(d):
    with d.lugar(16, 30, 0.37):
        documento(d)


def ico_carpeta(d):
    d.poli([(3, 8), (12, 8), (15, 11), (29, 11), (29, 27), (3, 27)], AMBAR_OSC, TINTA, 1.5)
    d.poli([(3, 27), (8, 15), (31, 15), (27, 27)], AMBAR, TINTA, 1.5)


def ico_ayuda(d):
    d.disco(16, 16, 12.5, AZUL, TINTA, 1.6)
    d.texto(16, 23, "?", 19, PAPEL, True, centrado=True)


def ico_subir(d):
    with d.lugar(16, 28, 0.42, giro=-90):
        flecha(d, 58, TURQUESA, 20)


def ico_bajar(d):
    with d.lugar(16, 4, 0.42, giro=90):
        flecha(d, 58, TURQUESA, 20)


def ico_avanzar(d):
    with d.lugar(4, 16, 0.42):
        flecha(d, 58, TURQUESA, 20)


def ico_retrasar(d):
    with d.lugar(28, 16, 0.42, espejo=True):
        flecha(d, 58, TURQUESA, 20)


def ico_rayo(d):
    with d.lugar(16, 16, 0.62):
        rayo(d)


def ico_raiz(d):
    d.poli([(3, 9), (3, 27), (29, 27), (29, 9), (15, 9), (12, 5), (5, 5)], AMBAR, TINTA, 1.6)


def ico_punto(d):
    d.poli([(16, 4), (28, 26), (4, 26)], PAPEL, TINTA, 2)
    d.disco(16, 19, 3, NARANJA)


def ico_coordenada(d):
    d.linea([(7, 5), (7, 26), (28, 26)], TINTA, 2.4)
    d.disco(19, 14, 4.6, VERDE, TINTA, 1.6)


def ico_desborda(d):
    d.linea([(7, 5), (7, 26), (28, 26)], TINTA, 2.4)
    d.linea([(14, 9), (24, 19)], ROJO, 4)
    d.linea([(24, 9), (14, 19)], ROJO, 4)


def ico_programa(d):
    d.caja(0.8, 0.8, 30.4, 30.4, 7, TURQUESA_OSC)
    d.poli([(0.8, 25), (9, 17), (15, 22), (22, 14), (31.2, 22), (31.2, 26), (26, 31.2), (6, 31.2), (0.8, 26)],
           TURQUESA)
    with d.lugar(16, 27.5, 0.215):
        estacion_total(d, COLORES["KRT800"])


ICONOS = {
    "transferencias": ico_transferencias, "configuracion": ico_configuracion, "descargas": ico_descargas,
    "formatos": ico_formatos, "codigos": ico_codigos, "salir": ico_salir, "lista_descarga": ico_descarga,
    "lista_carga": ico_carga, "carpeta": ico_carpeta, "ayuda": ico_ayuda, "subir": ico_subir,
    "bajar": ico_bajar, "rayo": ico_rayo, "arbol_raiz": ico_raiz, "arbol_punto": ico_punto,
    "arbol_coordenada": ico_coordenada, "arbol_desborda": ico_desborda, "avanzar": ico_avanzar,
    "retrasar": ico_retrasar,
}


def icono(dibujo, tamano):
    d = Lienzo(32, 32, escala=tamano / 32)
    dibujo(d)
    return d


def foto_destino(que):
    """The two places that an operation is dragged to."""
    d = Lienzo(128, 112)
    with d.lugar(64, 106 if que == "pc" else 110, 1.1 if que == "pc" else 0.98):
        portatil(d) if que == "pc" else estacion_total(d, COLORES["KRT300"])
    return d


# ---- logos and animation

def logo(ancho, alto):
    """The main window's background: a surveyed valley."""
    d = Lienzo(ancho, alto, "#dfeaf0")
    e = ancho / 760
    with d.lugar(0, 0, e):
        h = alto / e
        d.disco(92, h * 0.2, 38, "#f7d98a")
        colinas = (("#bcd3da", 0.58, 34, 150, 0.4), ("#8fb6b5", 0.68, 30, 120, 1.7), ("#5d9488", 0.79, 26, 170, 3.0))
        for color, base, onda, paso, fase in colinas:
            puntos = [(x, h * base - onda * math.sin(x / paso + fase) - onda * 0.4 * math.sin(x / (paso * 0.37)))
                      for x in range(-10, 781, 5)]
            d.poli(puntos + [(780, h + 5), (-20, h + 5)], color)
        d.curva([(600, h), (540, h * 0.9), (700, h * 0.86), (640, h * 0.76)], "#e9e2cf", 12)
        visados = [(500, h * 0.66), (566, h * 0.735), (690, h * 0.715), (636, h * 0.6)]
        for p in visados:
            d.linea([(196, h * 0.65 - 86), p], "#fff3d8", 1.8)
        for p in visados:
            d.disco(*p, 6, NARANJA, TINTA, 1.6)
        d.linea([visados[0], visados[1], visados[2], visados[3], visados[0]], TINTA, 1.4)
        with d.lugar(196, h * 0.645, 1.2):
            tripode(d, 96, 112)
        with d.lugar(196, h * 0.65, 1.3):
            estacion_total(d, COLORES["KRT800"])
        with d.lugar(690, h * 0.715, 0.62):
            mira(d, 110)
        d.texto(318, h * 0.26, "Miraldos", 78, TINTA, True)
        d.texto(322, h * 0.26 + 36, "Topografía: del aparato al plano", 22, PIZARRA)
    return imagen(d).convert("RGB").quantize(256, dither=Image.Dither.NONE)


def verifica():
    """Bytes that run along the cable between instrument and PC, and a tick at the end."""
    cuadros = []
    total = 16
    for n in range(total):
        d = Lienzo(150, 64, PAPEL)
        with d.lugar(24, 58, 0.48):
            estacion_total(d, COLORES["KRT300"])
        with d.lugar(122, 58, 0.44):
            portatil(d)
        d.linea([(40, 50), (100, 50)], TINTA, 3)
        for i in range(4):
            x = 44 + ((n * 4 + i * 16) % 56)
            if n < total - 4:
                d.disco(x, 50, 3.2, NARANJA if i % 2 else TURQUESA)
        if n >= total - 4:
            d.linea([(60, 28), (68, 37), (84, 16)], VERDE, 6)
        cuadros.append(imagen(d).convert("RGB").quantize(48, dither=Image.Dither.NONE))
    return cuadros


def main():
    data = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else RAIZ / "data"
    bmp, hlp, ini = data / "bmp", data / "bmphlp", data / "bmphlp" / "ini"
    for carpeta in (bmp, hlp, ini):
        carpeta.mkdir(parents=True, exist_ok=True)
    for fila in leer(data, "KRT"):
        foto_modelo(fila["Clave"], fila["Nombre"]).png(hlp / fila["Foto"])
        foto_ini(fila["Clave"], fila["Nombre"]).png(ini / fila["Fotoini"])
    for foto in sorted({fila["Foto"] for fila in leer(data, "Ayudas")}):
        foto_paso(foto).png(hlp / foto)
    for nombre, dibujo in ICONOS.items():
        icono(dibujo, 32).png(bmp / f"{nombre}.png")
        icono(dibujo, 64).png(bmp / f"{nombre}@2x.png")
    for que in ("pc", "aparato"):
        foto_destino(que).png(bmp / f"{que}.png")
    icono(ico_programa, 128).png(bmp / "miraldos.png")
    grande = imagen(icono(ico_programa, 256))
    grande.save(bmp / "miraldos.ico", sizes=[(n, n) for n in (16, 24, 32, 48, 64, 128, 256)],
                append_images=[imagen(icono(ico_programa, n)) for n in (16, 24, 32, 48, 64, 128)])
    logo(560, 360).save(bmp / "logo640.bmp")
    logo(760, 490).save(bmp / "logo800.bmp")
    cuadros = verifica()
    cuadros[0].save(bmp / "verifica.gif", save_all=True, append_images=cuadros[1:], duration=110, loop=0,
                    optimize=True)


if __name__ == "__main__":
    main()

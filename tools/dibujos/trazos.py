"""Drawing ground: the palette and the shapes that several pictures share.

Every shape is drawn around its own origin in units of its own; callers place it with `lugar`.
"""
import contextlib
import math

import cairo

TINTA = "#1d3441"
PIZARRA = "#4a6577"
GRIS = "#9db2be"
NIEBLA = "#d8e3e9"
PAPEL = "#f6f9fa"
NARANJA = "#ef8a1d"
NARANJA_OSC = "#c76c0c"
TURQUESA = "#1f9484"
TURQUESA_OSC = "#14705f"
AZUL = "#2f78b7"
AZUL_OSC = "#1f588b"
AMBAR = "#f5c542"
AMBAR_OSC = "#d19f14"
ROJO = "#cf3f36"
VERDE = "#3d9a4b"
PANTALLA = "#c9dcc2"
LETRA = "DejaVu Sans"


def rgb(color):
    return tuple(int(color[i:i + 2], 16) / 255 for i in (1, 3, 5))


class Lienzo:
    """A picture of `ancho` by `alto` pixels; `fondo` None leaves it transparent."""

    def __init__(self, ancho, alto, fondo=None, escala=1):
        self.sup = cairo.ImageSurface(cairo.FORMAT_ARGB32, round(ancho * escala), round(alto * escala))
        self.c = cairo.Context(self.sup)
        self.c.scale(escala, escala)
        self.c.set_line_cap(cairo.LINE_CAP_ROUND)
        self.c.set_line_join(cairo.LINE_JOIN_ROUND)
        if fondo:
            self.c.set_source_rgb(*rgb(fondo))
            self.c.paint()

    @contextlib.contextmanager
    def lugar(self, x=0, y=0, s=1.0, giro=0.0, espejo=False):
        self.c.save()
        self.c.translate(x, y)
        self.c.rotate(math.radians(giro))
        self.c.scale(-s if espejo else s, s)
        yield self
        self.c.restore()

    def pinta(self, relleno=None, trazo=None, grueso=2.0):
        if relleno:
            self.c.set_source_rgb(*rgb(relleno))
            self.c.fill_preserve() if trazo else self.c.fill()
        if trazo:
            self.c.set_source_rgb(*rgb(trazo))
            self.c.set_line_width(grueso)
            self.c.stroke()

    def poli(self, puntos, relleno=None, trazo=None, grueso=2.0, cerrado=True):
        self.c.new_path()
        for p in puntos:
            self.c.line_to(*p)
        if cerrado:
            self.c.close_path()
        self.pinta(relleno, trazo, grueso)

    def linea(self, puntos, trazo=TINTA, grueso=2.0):
        self.poli(puntos, None, trazo, grueso, cerrado=False)

    def caja(self, x, y, w, h, r=0, relleno=None, trazo=None, grueso=2.0):
        r = min(r, w / 2, h / 2)
        self.c.new_path()
        if r:
            for cx, cy, a in ((x + w - r, y + r, -90), (x + w - r, y + h - r, 0),
                              (x + r, y + h - r, 90), (x + r, y + r, 180)):
                self.c.arc(cx, cy, r, math.radians(a), math.radians(a + 90))
            self.c.close_path()
        else:
            self.c.rectangle(x, y, w, h)
        self.pinta(relleno, trazo, grueso)

    def disco(self, x, y, r, relleno=None, trazo=None, grueso=2.0):
        self.c.new_path()
        self.c.arc(x, y, r, 0, 2 * math.pi)
        self.pinta(relleno, trazo, grueso)

    def curva(self, p, trazo=TINTA, grueso=2.0):
        self.c.new_path()
        self.c.move_to(*p[0])
        for i in range(1, len(p), 3):
            self.c.curve_to(*p[i], *p[i + 1], *p[i + 2])
        self.pinta(None, trazo, grueso)

    def texto(self, x, y, t, cuerpo, color=TINTA, negrita=False, centrado=False, derecha=False):
        self.c.select_font_face(LETRA, cairo.FONT_SLANT_NORMAL,
                                cairo.FONT_WEIGHT_BOLD if negrita else cairo.FONT_WEIGHT_NORMAL)
        self.c.set_font_size(cuerpo)
        ancho = self.c.text_extents(t).x_advance
        self.c.set_source_rgb(*rgb(color))
        self.c.move_to(x - (ancho / 2 if centrado else ancho if derecha else 0), y)
        self.c.show_text(t)
        self.c.new_path()

    def png(self, fichero):
        self.sup.write_to_png(str(fichero))


# ---- things: origin at the middle of the foot, height about 100 units

COLORES = {"KRT300": (AMBAR, AMBAR_OSC), "PX7": (TURQUESA, TURQUESA_OSC),
           "KRT800": (NARANJA, NARANJA_OSC), "NV400": (AZUL, AZUL_OSC)}


def tripode(d, ancho=62, alto=74):
    """Legs below y = 0."""
    for x in (-ancho / 2, 0, ancho / 2):
        d.linea([(x * 0.2, 0), (x, alto)], TINTA, 5.5)
        d.linea([(x * 0.2, 2), (x * 0.62, alto * 0.52)], GRIS, 2.4)
    for x in (-ancho / 2, 0, ancho / 2):
        d.linea([(x, alto - 3), (x, alto + 2)], TINTA, 3)


def base_nivelante(d):
    d.caja(-20, -5, 40, 6, 2, PIZARRA, TINTA, 1.6)
    for x in (-14, 0, 14):
        d.caja(x - 3, -12, 6, 8, 1.5, GRIS, TINTA, 1.4)
    d.caja(-19, -17, 38, 6, 2, PIZARRA, TINTA, 1.6)


def estacion_total(d, colores, asa=True, teclas=3, antena=False):
    """A total station, foot at the origin, about 100 high and 76 wide."""
    claro, oscuro = colores
    base_nivelante(d)
    # The yoke carries the display at its foot.
    d.poli([(-34, -40), (-34, -88), (-30, -92), (-20, -92), (-16, -88), (-16, -46), (16, -46), (16, -88),
            (20, -92), (30, -92), (34, -88), (34, -40), (28, -17), (-28, -17)], claro, TINTA, 2.2)
    d.poli([(-31, -36), (31, -36), (26, -19), (-26, -19)], oscuro)
    d.caja(-20, -39, 26, 15, 2, PANTALLA, TINTA, 1.5)
    for i in range(3):
        d.linea([(-17, -35.5 + 3.6 * i), (-17 + (19 - 4 * i), -35.5 + 3.6 * i)], TURQUESA_OSC, 1.1)
    for f in range(teclas):
        for k in range(2):
            d.caja(9.5 + 6.4 * k, -38 + 4.9 * f, 4.6, 3.4, 0.8, PAPEL)
    # Telescope.
    d.caja(-13, -84, 26, 36, 6, PIZARRA, TINTA, 2.2)
    d.disco(0, -66, 10.5, TINTA)
    d.disco(0, -66, 8, "#7fb4cf")
    d.disco(-2.6, -68.6, 2.6, PAPEL)
    d.caja(-7, -82, 14, 5, 2, GRIS)
    for x in (-25, 25):
        d.disco(x, -66, 4.5, oscuro, TINTA, 1.4)
    if asa:
        d.linea([(-25, -92), (-25, -103), (-20, -107), (20, -107), (25, -103), (25, -92)], TINTA, 5.2)
        d.linea([(-25, -93), (-25, -103), (-20, -107), (20, -107), (25, -103), (25, -93)], oscuro, 2.4)
    if antena:
        d.linea([(30, -92), (30, -122)], TINTA, 3)
        d.disco(30, -123, 3.4, NARANJA, TINTA, 1.4)
        for r in (9, 15):
            d.c.new_path()
            d.c.arc(30, -123, r, math.radians(-55), math.radians(55))
            d.pinta(None, PIZARRA, 2)


def unidad(d, colores, grande=False):
    """The hand-held unit, foot at the origin, about 100 high and 58 wide."""
    claro, oscuro = colores
    d.caja(-30, -104, 60, 104, 9, claro, TINTA, 2.4)
    d.caja(-30, -104, 60, 12, 6, oscuro)
    d.caja(-25, -88 if not grande else -92, 50, 34 if not grande else 48, 3, TINTA)
    alto = 30 if not grande else 44
    y = -86 if not grande else -90
    d.caja(-23, y, 46, alto, 2, PANTALLA)
    for i in range(3 if not grande else 5):
        d.linea([(-19, y + 7 + 8 * i), (-19 + 34 - 7 * (i % 3), y + 7 + 8 * i)], TURQUESA_OSC, 2)
    filas = 4 if not grande else 3
    for f in range(filas):
        for k in range(4):
            color = NARANJA if (f, k) == (filas - 1, 3) else PAPEL
            d.caja(-24 + 12.4 * k, -(filas * 11.2 + 3) + 11.2 * f, 10, 8, 2, color, oscuro, 1)


def nivel(d, colores, doble=False):
    """A digital level, foot at the origin, about 62 high and 100 wide."""
    claro, oscuro = colores
    base_nivelante(d)
    d.caja(-30, -27, 60, 11, 3, oscuro, TINTA, 2)
    d.poli([(-40, -58), (30, -58), (36, -54), (36, -30), (30, -26), (-40, -26)], claro, TINTA, 2.4)
    d.caja(-56, -56, 18, 28, 4, PIZARRA, TINTA, 2.2)
    d.caja(-60, -59, 7, 34, 2.5, TINTA)
    d.caja(36, -50, 12, 16, 2.5, PIZARRA, TINTA, 2)
    d.caja(47, -52, 6, 20, 2, TINTA)
    d.caja(-30, -51, 26, 17, 2, PANTALLA, TINTA, 1.5)
    for i in range(3):
        d.linea([(-26, -46.5 + 4 * i), (-26 + (17 - 4 * i), -46.5 + 4 * i)], TURQUESA_OSC, 1.3)
    for f in range(2):
        for k in range(3 if not doble else 4):
            d.caja(1 + 7.6 * k, -50 + 8.4 * f, 5.6, 5.6, 1.2, PAPEL)
    d.disco(-2, -66, 5.5, GRIS, TINTA, 1.8)
    d.linea([(-26, -58), (-26, -63), (22, -63), (22, -58)], TINTA, 3.4)
    d.disco(-2, -66, 2.6, VERDE)


def mira(d, alto=100):
    """A levelling staff, foot at the origin."""
    d.caja(-6, -alto, 12, alto, 1.5, PAPEL, TINTA, 1.8)
    for i, y in enumerate(range(-alto + 6, -4, 8)):
        d.caja(-4.4 if i % 2 else 0, y, 4.4, 5, 0, ROJO if (i // 4) % 2 else TINTA)


def portatil(d, dibujo=True):
    """A laptop, foot at the origin, about 78 high and 110 wide."""
    d.caja(-44, -72, 88, 58, 5, TINTA)
    d.caja(-39, -67, 78, 48, 2, "#e9f3f8")
    if dibujo:
        d.linea([(-30, -30), (-12, -48), (4, -38), (26, -58)], TURQUESA, 3)
        for p in ((-30, -30), (-12, -48), (4, -38), (26, -58)):
            d.disco(*p, 3.4, NARANJA, TINTA, 1.2)
    d.poli([(-46, -14), (46, -14), (56, -3), (-56, -3)], GRIS, TINTA, 2)
    d.caja(-56, -4, 112, 5, 2, PIZARRA, TINTA, 1.6)


def conector(d, color=PIZARRA):
    """A nine-pin plug that points to the right, its face at the origin."""
    d.poli([(-24, -9), (-9, -12), (-9, 12), (-24, 9)], color, TINTA, 2)
    d.poli([(-9, -10), (0, -8), (0, 8), (-9, 10)], NIEBLA, TINTA, 1.8)
    d.linea([(-24, 0), (-32, 0)], TINTA, 5)


def flecha(d, largo=60, color=NARANJA, grueso=14):
    """An arrow that points to the right, its tail at the origin."""
    g = grueso / 2
    d.poli([(0, -g), (largo - 20, -g), (largo - 20, -g - 9), (largo, 0), (largo - 20, g + 9),
            (largo - 20, g), (0, g)], color, TINTA, 2)


def documento(d, color=PAPEL):
    """A sheet with a folded corner, foot at the origin, 76 high and 58 wide."""
    d.poli([(-29, 0), (-29, -76), (14, -76), (29, -61), (29, 0)], color, TINTA, 2.4)
    d.poli([(14, -76), (14, -61), (29, -61)], NIEBLA, TINTA, 1.8)


def rayo(d, color=AMBAR):
    """The bolt of a transfer under way, centred at the origin, 44 high."""
    d.poli([(4, -22), (-13, 3), (-2, 3), (-5, 22), (13, -5), (2, -5)], color, TINTA, 2.4)


def hacer_aparato(d, familia, modelo=""):
    """The instrument of a model, foot at the origin, without its tripod."""
    colores = COLORES[familia]
    if familia == "PX7":
        unidad(d, colores, grande=modelo.endswith("M"))
    elif familia == "NV400":
        nivel(d, colores, doble="410" in modelo)
    else:
        estacion_total(d, colores, asa="10" not in modelo, teclas=2 if "10" in modelo else 3,
                       antena=modelo.endswith(("X13", "R")))

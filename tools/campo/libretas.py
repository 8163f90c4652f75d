#!/usr/bin/env python3
"""Makes the field books of data/ficheros: tools/campo/libretas.py [CARPETA]

A seeded survey of an invented valley: a traverse of stations from which points are measured, the same
points by coordinates, a road by its axis, gradient and sections, and a levelling run. Readings follow
from the coordinates, so that they reduce back to them to the last digit of the instrument.
The books are kept in data/; run this again when a record kind changes.
"""
import datetime
import math
import pathlib
import random
import sys

RAIZ = pathlib.Path(__file__).resolve().parents[2]
ORIGEN = (456200.0, 4478300.0)  # east, north
CODIGOS = ["TERRENO"] * 6 + ["ARBOL", "ARQUETA", "BORDILLO", "CAMINO", "CASA", "CUNETA", "FAROLA", "LINDE",
                             "MURO", "POSTE", "POZO", "TALUD", "VALLA"]


def cota(x, y):
    u, v = (x - ORIGEN[0]) / 180, (y - ORIGEN[1]) / 140
    return round(612 + 9 * math.sin(u) + 6 * math.cos(v * 1.3) + 3 * math.sin(u * v), 3)


def gon(radianes):
    return (radianes * 200 / math.pi) % 400


def acimut(a, b):
    return gon(math.atan2(b["x"] - a["x"], b["y"] - a["y"]))


class Punto(dict):
    def __init__(self, nombre, x, y, z=None, codigo=""):
        super().__init__(nombre=nombre, x=round(x, 3), y=round(y, 3), codigo=codigo)
        self["z"] = cota(self["x"], self["y"]) if z is None else z


class Trabajo:
    """Stations in order, each with its back point and the points measured from it."""

    def __init__(self, semilla, nombre, estaciones, puntos, primero=101):
        azar = random.Random(semilla)
        self.nombre = nombre
        bases = [Punto("BASE0", ORIGEN[0] - 95, ORIGEN[1] - 60, codigo="VERTICE")]
        for i in range(estaciones):
            rumbo = 0.75 + 0.5 * math.sin(i * 1.1)
            bases.append(Punto(f"E{i + 1}", bases[-1]["x"] + 118 * math.cos(rumbo),
                               bases[-1]["y"] + 118 * math.sin(rumbo), codigo="VERTICE"))
        self.estaciones = []
        hechos = 0
        for i in range(estaciones):
            parte = puntos * (i + 1) // estaciones - hechos
            radiados = []
            for k in range(parte):
                a, d = azar.uniform(0, 2 * math.pi), azar.uniform(6, 75)
                radiados.append(Punto(str(primero + hechos + k), bases[i + 1]["x"] + d * math.sin(a),
                                      bases[i + 1]["y"] + d * math.cos(a), codigo=azar.choice(CODIGOS)))
            hechos += parte
            self.estaciones.append({
                "base": bases[i + 1], "atras": bases[i], "siguiente": bases[i + 2] if i + 1 < estaciones else None,
                "altura": round(azar.uniform(1.42, 1.63), 3), "orientacion": round(azar.uniform(0, 400), 4) % 400,
                "puntos": radiados, "prisma": [round(azar.choice([1.3, 1.3, 1.3, 1.5, 2.15]), 3) for _ in radiados]})

    def puntos(self):
        return [p for e in self.estaciones for p in e["puntos"]]

    @staticmethod
    def observar(e, p, prisma):
        """Horizontal reading, zenith angle, slope distance."""
        b = e["base"]
        h = math.hypot(p["x"] - b["x"], p["y"] - b["y"])
        dz = p["z"] + prisma - b["z"] - e["altura"]
        return (acimut(b, p) - e["orientacion"]) % 400, gon(math.atan2(h, dz)), math.hypot(h, dz)


# ---- KRT300, PX7

def entero(valor, cifras, decimales):
    n = round(abs(valor) * 10 ** decimales)
    return ("-" if valor < 0 and n else "+") + str(n).rjust(cifras, "0")


def coordenada(valor):
    """Sign and nine digits, ten from a million up, thousandths."""
    return entero(valor, 9, 3)


def angulo(valor):
    return entero(round(valor, 4) % 400, 7, 4)


def medicion_300(t):
    yield f"J{t.nombre}"
    for e in t.estaciones:
        b = e["base"]
        yield f"E{b['nombre']}"
        yield f"I{entero(e['altura'], 5, 3)}"
        yield f"S{coordenada(b['y']):<11}{coordenada(b['x']):<11}{coordenada(b['z'])}"
        yield f"R{e['atras']['nombre']}"
        yield f"O{angulo(e['orientacion'])}"
        for p, prisma in zip(e["puntos"], e["prisma"]):
            h, v, d = t.observar(e, p, prisma)
            yield f"+{p['nombre']}"
            yield f"h{angulo(h)}"
            yield f"v{angulo(v)}"
            yield f"d{entero(d, 8, 3)}"
            yield f"p{entero(prisma, 5, 3)}"
            yield f"c{p['codigo']}"


def coordenadas_300(t):
    yield f"J{t.nombre}"
    for p in t.puntos():
        yield f"+{p['nombre']}"
        yield f" x{coordenada(p['y'])}"
        yield f" y{coordenada(p['x'])}"
        yield f" z{coordenada(p['z'])}"
        yield f"c{p['codigo']}"


def libreria_300():
    for i, c in enumerate(sorted(set(CODIGOS)) + ["EJE", "FUENTE", "HIDRANTE", "MOJON", "PUENTE", "TAPIA"], 1):
        yield f":{i:03d}{c:<10}"
    # The receiver takes the last record as the end of the list.
    yield "FIN"


# ---- KRT800

def medicion_800(t):
    yield f"JOB {t.nombre}"
    for e in t.estaciones:
        b = e["base"]
        yield f"STN {b['nombre']},{e['altura']:.3f},{b['codigo']}"
        yield f"XYZ {b['x']:.3f},{b['y']:.3f},{b['z']:.3f}"
        atras = acimut(b, e["atras"])
        yield f"BKB {e['atras']['nombre']},{atras:.4f},{(atras - e['orientacion']) % 400:.4f}"
        if e["siguiente"]:
            yield f"FS {e['siguiente']['nombre']},1.500,VERTICE"
            yield sd(t.observar(e, e["siguiente"], 1.5))
        for p, prisma in zip(e["puntos"], e["prisma"]):
            yield f"SS {p['nombre']},{prisma:.3f},{p['codigo']}"
            yield sd(t.observar(e, p, prisma))


def sd(observacion):
    h, v, d = observacion
    return f"SD {round(h, 4) % 400:.4f},{v:.4f},{d:.3f}"


def puntos_800(t):
    for p in t.puntos():
        yield f"{p['nombre']},{p['x']:.3f},{p['y']:.3f},{p['z']:.3f},{p['codigo']}"


def eje():
    """Straight, clothoid, arc, clothoid, straight: (kind, length, radius at start, at end)."""
    return [("REC", 80.0, 0, 0), ("CLO", 57.6, 0, 250.0), ("CIR", 90.0, 250.0, 250.0), ("CLO", 57.6, 250.0, 0),
            ("REC", 60.0, 0, 0)]


def alineaciones_800():
    x, y, a, pk = ORIGEN[0], ORIGEN[1], 62.5, 0.0
    yield f"INI {pk:.3f} {x:.3f} {y:.3f}"
    for clase, largo, r1, r2 in eje():
        k1, k2 = (1 / r1 if r1 else 0), (1 / r2 if r2 else 0)
        if clase == "REC":
            yield f"REC {a:.4f} {largo:.3f}"
        elif clase == "CIR":
            yield f"CIR {a:.4f} {largo:.3f} {r1:.3f}"
        else:
            yield f"CLO {a:.4f} {largo:.3f} {math.sqrt(largo / abs(k2 - k1)):.3f} {r1:.3f} {r2:.3f}"
        pasos = 2000
        for i in range(pasos):
            s = (i + 0.5) * largo / pasos
            rumbo = a * math.pi / 200 + k1 * s + (k2 - k1) * s * s / (2 * largo)
            x, y = x + math.sin(rumbo) * largo / pasos, y + math.cos(rumbo) * largo / pasos
        a = (a + gon((k1 + k2) / 2 * largo)) % 400
        pk += largo
    yield f"FIN {pk:.3f} {x:.3f} {y:.3f} {a:.4f}"


def rasante(pk):
    return 613.2 + 0.024 * pk if pk < 150 else 616.8 - 0.011 * (pk - 150)


def rasantes_800():
    for pk, acuerdo in ((0.0, 0.0), (150.0, 80.0), (345.2, 0.0)):
        yield f"VER {pk:.3f},{rasante(pk):.3f},{acuerdo:.3f}"


def transversales_800():
    azar = random.Random(7)
    for pk in range(0, 341, 20):
        # From the axis outwards, as the staffman walks: the order within a section is not that of the offsets.
        for d in (0.0, -3.5, -5.0, -12.0, 3.5, 5.0, 12.0):
            z = rasante(pk) - abs(d) * 0.02 - (azar.uniform(0.4, 2.2) if abs(d) > 6 else 0)
            yield f"{pk:.3f},{d:.3f},{z:.3f}"


# ---- NV400: unit digit 3, readings to the hundredth of a millimetre

def nivelacion(semilla, nombre, puestas):
    azar = random.Random(semilla)
    hora = datetime.datetime(2024, 3, 12, 8, 30)
    altura, recorrido = 612.3456, 0.0
    yield f"b,03,{nombre},RN1,{round(altura * 100000)},{hora:%d%m%y},{hora:%H%M},BRIGADA 1,"
    punto, inicio = "RN1", altura
    for i in range(1, puestas + 1):
        espalda, frente = round(azar.uniform(0.6, 2.4), 5), round(azar.uniform(0.6, 2.4), 5)
        d1, d2 = round(azar.uniform(12, 38), 3), round(azar.uniform(12, 38), 3)
        if i == puestas:  # the run closes on its first mark
            frente = round(altura + espalda - inicio + 0.00084, 5)
            frente, espalda = (frente, espalda) if 0.3 < frente < 4 else (1.2, round(1.2 - (altura - inicio) + 0.00084, 5))
        nuevo = "RN1" if i == puestas else f"P{i}"
        for letra, lectura, distancia, nombre_punto, z in (("g", espalda, d1, punto, altura),
                                                           ("i", frente, d2, nuevo, altura + espalda - frente)):
            hora += datetime.timedelta(minutes=azar.choice([1, 1, 2]))
            yield (f"{letra},03,{round(lectura * 100000)},{round(distancia * 1000)},{round(z * 10000)},"
                   f"{nombre_punto},{azar.randint(1, 5)},{hora:%d%m%y},{hora:%H%M},"
                   f"{'RN' if nombre_punto.startswith('RN') else 'PASO'},")
        altura, recorrido, punto = altura + espalda - frente, recorrido + d1 + d2, nuevo
        if i % 10 == 0 and i < puestas:
            z, largo = round((altura - inicio) * 10000), round(recorrido * 1000)
            yield f"v,03,{i},{nuevo},{hora:%d%m%y%H%M},{z},{z},{largo},{largo},{round(altura * 10000)},PASO,"
    z, largo = round((altura - inicio) * 10000), round(recorrido * 1000)
    yield f"w,03,1,RN1,{hora:%d%m%y%H%M},{z},{z},{largo},{largo},{round(altura * 10000)},CIERRE,"
    yield f"u,03,1,{puestas},{hora:%d%m%y%H%M},"


def nivelacion_libre():
    hora = datetime.datetime(2024, 3, 13, 9, 5)
    yield f"b,03,ASIENTOS,CL1,0,{hora:%d%m%y},{hora:%H%M},BRIGADA 2,"
    for i, lectura in enumerate((1.20415, 1.20987, 1.31204, 1.30758, 1.25533, 1.26001), 1):
        hora += datetime.timedelta(minutes=1)
        yield f"f,03,{round(lectura * 100000)},{18000 + 731 * i},0,CL{i},2,{hora:%d%m%y},{hora:%H%M},CLAVO,"


# ---- files

def puntos_asc(t):
    for p in t.puntos():
        yield f"{p['nombre']} {p['x']:.3f} {p['y']:.3f} {p['z']:.3f} {p['codigo']}"


def main():
    carpeta = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else RAIZ / "data" / "ficheros"
    carpeta.mkdir(parents=True, exist_ok=True)
    corto = Trabajo(300, "VALLE ALTO", 2, 20)
    unidad = Trabajo(7, "PARCELA 14", 2, 16, primero=1)
    jornada = Trabajo(800, "JORNADA 12", 8, 800, primero=1001)
    libros = {
        "campo_krt300.txt": ("KRT300, operación 0: dos estaciones y veinte puntos", medicion_300(corto)),
        "campo_krt300_coordenadas.txt": ("KRT300, operación 1: los mismos puntos por coordenadas",
                                         coordenadas_300(corto)),
        "campo_krt300_libreria.txt": ("KRT300, operación 2: librería de códigos", libreria_300()),
        "campo_px7.txt": ("PX7, operación 0: dos estaciones y dieciséis puntos", medicion_300(unidad)),
        "campo_krt800.txt": ("KRT800, operaciones 0 y 5: dos estaciones y veinte puntos", medicion_800(corto)),
        "campo_krt800_puntos.txt": ("KRT800, operación 4: puntos por coordenadas", puntos_800(corto)),
        "campo_krt800_ejes.txt": ("KRT800, operación 6: un eje en planta", alineaciones_800()),
        "campo_krt800_transversales.txt": ("KRT800, operación 7: perfiles transversales", transversales_800()),
        "campo_krt800_rasantes.txt": ("KRT800, operación 8: una rasante", rasantes_800()),
        "campo_nv400.txt": ("NV400, operación 0: un anillo de doce puestas", nivelacion(400, "ANILLO A", 12)),
        "campo_nv400_libre.txt": ("NV400, operación 0: medición libre", nivelacion_libre()),
        "jornada_krt300.txt": ("KRT300, operación 0: un día de 800 puntos", medicion_300(jornada)),
        "jornada_krt300_coordenadas.txt": ("KRT300, operación 1: los 800 puntos por coordenadas",
                                           coordenadas_300(jornada)),
        "jornada_krt800.txt": ("KRT800, operación 0: un día de 800 puntos", medicion_800(jornada)),
        "jornada_krt800_puntos.txt": ("KRT800, operación 4: los 800 puntos por coordenadas", puntos_800(jornada)),
        "jornada_nv400.txt": ("NV400, operación 0: un día de 160 puestas", nivelacion(401, "ANILLO B", 160)),
    }
    for nombre, (titulo, registros) in libros.items():
        texto = f"# Libreta de campo del {titulo}.\n" + "".join(r + "\n" for r in registros)
        (carpeta / nombre).write_bytes(texto.encode("utf-8"))
    (carpeta / "puntos.asc").write_bytes("".join(r + "\r\n" for r in puntos_asc(corto)).encode("cp1252"))


if __name__ == "__main__":
    main()

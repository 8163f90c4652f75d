#!/usr/bin/env python3
"""Makes tests/datos/rawfiles: field books and what each becomes in every raw form and layout.

tests/rawfiles/disposiciones.py [CARPETA]

The expected files are worked out here, from the description of the forms, with decimal arithmetic and
without a line of the program. Each row of a book is a stored line; books hold 300 points, odd records,
many digits and roundings at the half. Seeded: a second run gives the same bytes.
"""
import decimal
import math
import pathlib
import random
import re
import sys

D = decimal.Decimal
decimal.getcontext().prec = 60
CARPETA = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else
                       pathlib.Path(__file__).resolve().parents[1] / "datos" / "rawfiles")
CODIGOS = ["TERRENO", "", "POZO Ñ", "LINDE", "A€1", "CUNETA", "CASA DEL CURA", "x"]
NUMERO = re.compile(r"[+-]?(\d+\.?\d*|\.\d+)([eEdD][+-]?\d+)?\Z")


def guardar(nombre, lineas):
    (CARPETA / nombre).write_bytes("".join(linea + "\r\n" for linea in lineas).encode("cp1252"))


def dato(valores, n):
    celdas = valores.split(",")
    return celdas[n - 1].strip(" ") if n <= len(celdas) else ""


def dibujo(texto, decimales):
    """A picture "#0.000" on the digits of the text, half away from zero."""
    if not NUMERO.match(texto):
        return texto
    n = D(texto.replace("d", "e").replace("D", "e"))
    r = abs(n).quantize(D(1).scaleb(-decimales), decimal.ROUND_HALF_UP)
    return ("-" if n.is_signed() else "") + f"{r:f}"


def general(x):
    """A number as general text: 15 significant digits."""
    return f"{x:.15g}".replace("e", "E")


def cortar(linea):
    clave = linea.split(" ")[0]
    return clave, linea[len(clave):].strip(" ")


# --- books ---------------------------------------------------------------------------------------

def angulo(azar):
    return azar.choice([
        f"{azar.uniform(0, 400):.4f}", f"{azar.uniform(0, 400):.7f}",
        f"{azar.randrange(0, 4000000) / 10000:.4f}5", f"{azar.randrange(400)}", "399.99995", ".00005",
        f"{azar.randrange(400)}.12345", "0.0000", f" {azar.uniform(0, 400):.4f} "])


def distancia(azar):
    return azar.choice([f"{azar.uniform(1, 900):.3f}", f"{azar.uniform(1, 900):.6f}",
                        f"{azar.randrange(1, 900)}.0005", f"{azar.randrange(1, 900)}.9995",
                        "1234567.8905", "12"])


def libreta_b():
    azar = random.Random(13)
    lineas = ["JOB VALLE ALTO Ñ", "NOT Una nota, con coma", "SD 10.5,99.99995,3.0005"]
    punto = 100
    while punto < 400:
        estacion = f"E{punto}"
        lineas += [f"STN {estacion},{azar.uniform(1, 2):.3f},{azar.choice(['VERTICE', '', 'CLAVO'])}",
                   f"XYZ {azar.uniform(4e5, 5e5):.3f},{azar.uniform(4e6, 5e6):.3f},612.5",
                   f"BKB BASE{punto},{angulo(azar)},{angulo(azar)}"]
        for _ in range(azar.randrange(5, 30)):
            nombre = azar.choice([str(punto), f"P{punto}", f"{punto}.1", f"Ñ{punto}"])
            prisma = azar.choice(["1.300", "2.15", "", " 1.500 "])
            codigo = azar.choice(CODIGOS) + azar.choice(["", "", "   "])
            lineas.append(f"{azar.choice(['SS', 'SS', 'SS', 'FS'])} {nombre},{prisma},{codigo}")
            for _ in range(azar.choice([1, 1, 1, 2])):
                lineas.append(f"SD {angulo(azar)},{angulo(azar)},{distancia(azar)}")
            punto += 1
            if azar.random() < 0.03:
                lineas.append(azar.choice(["NOT", "XX 1,2,3", "SINBLANCO", "", " SS 9,1.0,DENTRO"]))
    lineas += ["STN FINAL,1.500,", "SS 999,1.000,SIN OBSERVAR"]
    return lineas


def libreta_a():
    """Records as on the wire, general ones where they come into force."""
    azar = random.Random(7)
    registros, punto = [], 0
    for estacion in range(1, 13):
        if estacion == 1:
            registros.append("JVALLE ALTO Ñ€")
        registros += [f"EE{estacion}", f"I+{azar.randrange(1000, 2000):05d}"]
        if estacion % 3 == 0:
            registros += [f"S+{azar.randrange(10**9):09d}+{azar.randrange(10**9):09d} +000617438",
                          f"RBASE{estacion}", f"O+{azar.randrange(4000000):07d}"]
        for _ in range(25):
            punto += 1
            registros += [f"+{azar.choice(['', 'P', 'Ñ', '0'])}{punto}",
                          f"h+{azar.randrange(4000000):07d}", f"v+{azar.randrange(2000000):07d}",
                          f"{azar.choice(['', ' '])}d+{azar.randrange(10**7):08d}"]
            if azar.random() < 0.8:
                registros.append("c" + (azar.choice(CODIGOS)[:10] + azar.choice(["", "  "])))
    registros += ["+", "h+0000001"]
    return registros


def perfiles():
    azar = random.Random(77)
    lineas = []
    for pk in ["0.000", "0.500", "20.000", "100.000", "100.0005", "1120.000", "123456.789", "1234567890.5"]:
        filas = [f"{pk},{d},{azar.uniform(600, 620):.3f}"
                 for d in ["0.000", "-3.500", "-12.000", "3.500", "12.000", "3.500", "-0.5"]]
        azar.shuffle(filas)
        lineas += filas
    return lineas + ["20.000,99.000,1.000", "sin comas", "5", "30.000,1.000"]


# --- layouts -------------------------------------------------------------------------------------

def columnas(filas):
    anchos = [max(len(f[i]) for f in filas) for i in range(len(filas[0]))]
    return [[c.rjust(a) for c, a in zip(f, anchos)] for f in filas]


def bronex(lineas, vacia=""):
    celdas, filas = [""] * 8, []
    for linea in lineas:
        clave, v = cortar(linea)
        if clave == "STN":
            celdas[0], celdas[6] = dato(v, 1), dato(v, 2)
        elif clave in ("SS", "FS"):
            celdas[1], celdas[5], celdas[7] = dato(v, 1), dato(v, 2), dato(v, 3)
        elif clave == "SD":
            celdas[2:5] = [dibujo(dato(v, 1), 4), dibujo(dato(v, 2), 4), dibujo(dato(v, 3), 3)]
            celdas = [c or vacia for c in celdas]
            filas.append(list(celdas))
    return filas


def tpc(lineas):
    salida = []
    for f in bronex(lineas, "qtr"):
        f = ["" if c == "qtr" else c for c in f]
        linea = " ".join(c.rjust(a) for c, a in zip(f, [10, 10, 10, 10, 10, 8, 8]))
        salida.append(linea + (" " + f[7] if f[7] else ""))
    return salida


def angulos(lineas):
    return [[f[1], f[2], f[3], f[4], f[5], f[7]] for f in bronex(lineas)]


def desplazamientos(lineas, separador):
    c, filas = [""] * 10, []
    for linea in lineas:
        clave, v = cortar(linea)
        if clave == "STN":
            c[1], c[3], c[4] = "S", dato(v, 1), dato(v, 2)
        elif clave in ("SS", "FS"):
            punto = dato(v, 1)
            if NUMERO.match(punto):
                c[1], c[2], c[3] = "P", punto, ""
            else:
                c[1], c[2], c[3] = "E", "", punto
            c[7] = c[8] = dato(v, 2)
        elif clave == "SD":
            c[4], c[5] = dibujo(dato(v, 1), 4), dibujo(dato(v, 2), 4)
            c[6] = general(float(dato(v, 3)) * math.sin(float(c[5])))
            offset = float(c[6]) * math.sin(float(c[5]) * 3.1416 / 200)
            c[9] = dibujo(f"{D(f'{offset:.15g}'):f}", 3)
        if clave in ("STN", "SD"):
            filas.append(c[1:])
    salida = []
    for f in columnas(filas):
        f = [""] + f
        if f[1].strip(" ") == "S":
            f[5] = f[5] if f[5].strip(" ") else " 0.0000"
            f[8] = f[8] if f[8].strip(" ") else "0.000"
            f[9] = f[9] if f[9].strip(" ") else "0.000"
        salida.append((separador + "    ").join([f[1], f[3], f[2], f[4], f[5], f[9], f[8]]))
    return salida


def cartomap(lineas):
    pares = [(linea[:linea.index(" ")], linea[linea.index(" "):].lstrip(" "))
             for linea in lineas if linea.find(" ") > 0] + [("", ""), ("", "")]
    salida, i = [], 0
    while i < len(pares) - 2:
        (k, v), (k1, v1), (k2, v2) = pares[i], pares[i + 1], pares[i + 2]
        if k == "JOB":
            salida.append("0," + dato(v, 1))
        elif k == "STN":
            xyz = k1 == "XYZ" and k2 == "BKB"
            if not xyz and k1 != "BKB":
                return salida
            if xyz:
                salida.append(",".join(["3", dato(v, 1), dato(v1, 1), dato(v1, 2), dato(v1, 3), dato(v, 3)]))
            b = v2 if xyz else v1
            azimut = D(dato(b, 2) or 0) - D(dato(b, 3) or 0)
            azimut += 400 if azimut < 0 else 0
            salida.append(",".join(["1", dato(v, 1), dato(v, 2), dato(b, 1), dibujo(f"{azimut:f}", 4), "1", ""]))
            i += xyz
        elif k == "SS":
            if k1 != "SD":
                return salida
            salida.append(",".join(["2", dato(v, 1), dato(v1, 1), dato(v1, 2), dato(v1, 3), dato(v, 2), dato(v, 3)]))
            i += 1
        i += 1
    return salida


def val(texto):
    m = re.match(r"[+-]?(\d+\.?\d*|\.\d+)([eEdD][+-]?\d+)?", texto.replace(" ", ""))
    return float(m.group().replace("d", "e").replace("D", "e")) if m else 0.0


def ter(lineas):
    """The stated queries one by one, by plain search."""
    def comas(fila):
        c = fila.find(",") + 1
        return c, (fila.find(",", c) + 1 if c else 0)

    salida = [] if lineas[0] == "*TER" else ["*TER"]
    c, c2 = comas(lineas[0])
    anterior, n = 0.0, 0
    while n < len(lineas):
        if c:
            grupo = [f for f in lineas if f[:c - 1] == lineas[n][:c - 1]]
            grupo.sort(key=lambda f: val(f[c:c + c2 - 1] if c2 else f[c:]))
        else:
            grupo = list(lineas)
        c, c2 = comas(grupo[0])
        pk = val(grupo[0][:c - 1]) if c else 0.0
        if not (anterior != 0 and anterior == pk):
            salida.append((" " * 9 + general(pk))[-9:] + "," + (" " * 8 + str(len(grupo)))[-8:] + ",  0  ,  0")
        anterior = pk
        for fila in grupo:
            c, c2 = comas(fila)
            suyo = val(fila[:c - 1]) if c else 0.0
            desplazamiento = (fila[c:c2 - 1] if c2 else fila[c:]) if c else "0"
            cota = fila[c2:] if c2 else ""
            if suyo == anterior:
                salida.append((" " * 9 + desplazamiento.strip(" "))[-9:] + "," + (" " * 10 + cota.strip(" "))[-10:])
        n += len(grupo)
    return salida


def main():
    CARPETA.mkdir(parents=True, exist_ok=True)
    b = libreta_b()
    guardar("libreta_b.txt", b)
    for nombre, separador in [("espacio", " "), ("coma", ","), ("tabulacion", "\t")]:
        guardar(f"libreta_b_{nombre}.top", [separador.join(f[:7]) for f in columnas([x[:7] for x in bronex(b)])])
        guardar(f"libreta_b_{nombre}.ang", [separador.join(f) for f in columnas(angulos(b))])
        guardar(f"libreta_b_{nombre}.lea", desplazamientos(b, separador))
    guardar("libreta_b.tpc", tpc(b))
    guardar("libreta_b.ctm", cartomap(b))
    limpia = [x for x in b if cortar(x)[0] in ("JOB", "STN", "XYZ", "BKB", "SD", "SS")]
    limpia = [x for i, x in enumerate(limpia)
              if not (x.startswith("SS") and not limpia[(i + 1) % len(limpia)].startswith("SD"))]
    limpia = [x for i, x in enumerate(limpia) if not x.startswith("STN FINAL")]
    guardar("libreta_b_limpia.txt", limpia)
    guardar("libreta_b_limpia.ctm", cartomap(limpia))
    a = libreta_a()
    guardar("libreta_a.txt", a)
    llanos = [r for r in a if r[0] not in "JEISRO"]
    guardar("libreta_a.lin", llanos)
    guardar("libreta_a.hd6", ["_" + "_".join(llanos) + "_"])
    guardar("libreta_a_generales.hd6", ["_" + "_".join(a) + "_"])
    p = perfiles()
    guardar("perfiles.txt", p)
    guardar("perfiles.ter", ter(p))
    cabecera = ["*TER"] + p[:10]
    guardar("perfiles_cabecera.txt", cabecera)
    guardar("perfiles_cabecera.ter", ter(cabecera))


main()

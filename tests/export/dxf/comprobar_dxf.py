#!/usr/bin/python3
"""Checks a drawing against a calculation of its own.

Usage: comprobar_dxf.py DRAWING TABLE MODE ARRANGEMENT HEIGHT INCLINATION DECIMALS COLOURS [audit]
TABLE holds a point a line: name, x, y, z, code, separated by tabs (the code as it stands). COLOURS
are five numbers joined by commas. "audit" has an independent reader open the drawing as well.
Writes what differs and ends with status 1.
"""
import sys
from decimal import ROUND_HALF_UP, Decimal

PLACES = {  # of number, elevation, code, in steps of 1.5 heights
    "1": (0, 1, -1), "2": (-1, 1, 0), "3": (-1, 0, 1),
    "4": (0, -1, 1), "5": (1, -1, 0), "6": (1, 0, -1),
}


def fixed(number, decimals):
    number = Decimal(number.strip().replace(",", "."))
    quantum = Decimal(1).scaleb(-decimals)
    text = f"{number.copy_abs().quantize(quantum, ROUND_HALF_UP):f}"
    return "-" + text if number < 0 else text


def expected(points, mode, arrangement, height, inclination, decimals, colours):
    c2d, c3d, ccode, cnumber, cz = colours
    h = Decimal(height)
    places = PLACES.get(arrangement, (0, 0, 0))
    yield from [(0, "SECTION"), (2, "ENTITIES")]
    for name, x, y, z, code in points:
        dx, dy = Decimal(x.strip().replace(",", ".")), Decimal(y.strip().replace(",", "."))
        marks = {"2d": [("PUNTOS", c2d, 0)], "3d": [("PUNTOS", c3d, 1)]}.get(
            mode, [("PUNTOS_2D", c2d, 0), ("PUNTOS_3D", c3d, 1)])
        for layer, colour, has_z in marks:
            yield from [(0, "POINT"), (8, layer), (62, " " + colour), (10, fixed(x, 3)),
                        (20, fixed(y, 3))]
            if has_z:
                yield (30, fixed(z, 3))
        label = fixed(z, decimals if decimals in (1, 2, 3) else 0)
        texts = [("NUMEROS", cnumber, places[0], name.strip(" ")), ("COTAS", cz, places[1], label),
                 ("CODIGOS", ccode, places[2], code)]
        for layer, colour, place, text in texts:
            yield from [(0, "TEXT"), (8, layer), (62, " " + colour),
                        (10, fixed(str(dx + h / 2), 3)),
                        (20, fixed(str(dy + place * h * 3 / 2), 3)), (40, fixed(height, 2)),
                        (1, text), (50, "0"), (51, fixed(inclination, 0))]
    yield from [(0, "ENDSEC"), (0, "EOF")]


def main():
    drawing, table, mode, arrangement, height, inclination, decimals, colours = sys.argv[1:9]
    with open(table, encoding="cp1252", newline="") as f:
        points = [line.split("\t") for line in f.read().split("\n") if line]
    wanted = "".join(f" {code}\r\n{value}\r\n" for code, value in expected(
        points, mode, arrangement, height, inclination, int(decimals), colours.split(",")))
    with open(drawing, "rb") as f:
        got = f.read()
    if got != wanted.encode("cp1252"):
        for n, (a, b) in enumerate(zip(got.split(b"\r\n"), wanted.encode("cp1252").split(b"\r\n"))):
            if a != b:
                print(f"line {n + 1}: {a!r}, expected {b!r}")
                break
        else:
            print(f"{len(got)} bytes, expected {len(wanted)}")
        return 1
    if "audit" in sys.argv[9:]:
        import ezdxf
        document = ezdxf.readfile(drawing)
        auditor = document.audit()
        if auditor.errors or auditor.fixes:
            print([e.message for e in auditor.errors + auditor.fixes])
            return 1
        entities = document.modelspace()
        marks = 2 if mode == "ambos" else 1
        counts = (len(entities.query("POINT")), len(entities.query("TEXT")))
        if counts != (marks * len(points), 3 * len(points)):
            print(f"points and texts found: {counts}")
            return 1
    return 0


sys.exit(main())

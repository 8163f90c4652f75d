#!/usr/bin/env python3
"""Breaks single lines of the program and tells which breaks no test sees.

    tools/mutar.py conversions                      all mutants of a folder
    tools/mutar.py conversions/rasantes --cuantos 20 --semilla 3
    tools/mutar.py session --pruebas pruebas_session
    tools/mutar.py conversions --lista mutantes.txt

Each mutant changes one place of one line: a comparison, a constant, a sign, a condition. The folder's
test program is built and run; a mutant that it passes has survived: a test row is missing, or the line
says nothing. One that never ends counts as seen; one that does not compile is not counted.

The work is done on a copy of the sources below build/, so that an interrupted run leaves no broken line
behind; --obra takes the sources in place with a build folder of theirs, which is sooner ready. A list
file names its mutants itself, one a line: file, tab, text that stands there, tab, text to put in its
place (the text must stand in the file exactly once).

Ends with status 1 when a mutant has survived. Made to be run by hand: it takes a build a mutant.
"""
import argparse
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import sys

RAIZ = pathlib.Path(__file__).resolve().parent.parent

# What stands in a line, and what is put in its place. Each is one mutant a match.
CAMBIOS = [
    (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" == ", " != "), (r" != ", " == "),
    (r" && ", " || "), (r" \|\| ", " && "),
    (r"(?<=[\w)\]]) \+ (?=[\w(])", " - "), (r"(?<=[\w)\]]) - (?=[\w(])", " + "),
    (r"(?<=[\w)\]]) \* (?=[\w(])", " / "),
    (r"std::abs\(", "("), (r"std::min\(", "std::max("), (r"std::max\(", "std::min("),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"(?<=[ (])!(?=[\w(])", ""),
    (r"\bif \((?!const|auto|!?\(?\w+ = )([^;]*)\)(?= [^{]*;$| \{$|$)", r"if (true || (\1))"),
    (r"\bif \((?!const|auto|!?\(?\w+ = )([^;]*)\)(?= [^{]*;$| \{$|$)", r"if (false && (\1))"),
    (r"(?<![\w.\"'])0(?![\w.\"'])", "1"), (r"(?<![\w.\"'])1(?![\w.\"'])", "0"),
    (r"(?<![\w.\"'])([2-9]|[1-9]\d+)(?![\w.\"'])", lambda m: str(int(m[1]) + 1)),
]
VIVE, VISTO, NO_COMPILA = "VIVE", "visto", "no compila"
SIN_MUTAR = re.compile(r"^\s*(//|#|\*|/\*|using |namespace |template|static_assert|\}|$)")


def sin_textos(linea):
    """The line with its string and character literals, and its comment, blotted out."""
    tapar = lambda m: m[0][0] + "\x01" * (len(m[0]) - 2) + m[0][-1]
    linea = re.sub(r'"(?:[^"\\]|\\.)*"', tapar, linea)
    linea = re.sub(r"'(?:[^'\\]|\\.)+'", tapar, linea)
    comentario = linea.find("//")
    return linea if comentario < 0 else linea[:comentario]


def de_la_carpeta(carpeta):
    """Every mutant of the sources below a folder: (file, line number from 1, new line)."""
    mutantes = []
    for fichero in sorted((RAIZ / carpeta).rglob("*.cpp")):
        if "ui" in fichero.relative_to(RAIZ).parts:
            continue
        for numero, linea in enumerate(fichero.read_text(encoding="utf-8").split("\n"), 1):
            if SIN_MUTAR.match(linea):
                continue
            tapada = sin_textos(linea)
            for patron, nuevo in CAMBIOS:
                for m in re.finditer(patron, tapada):
                    real = re.compile(patron).match(linea, m.start()) or m
                    puesto = nuevo(real) if callable(nuevo) else real.expand(nuevo)
                    cambiada = linea[:m.start()] + puesto + linea[m.end():]
                    if cambiada != linea:
                        mutantes.append((fichero.relative_to(RAIZ), numero, cambiada))
    return mutantes


def de_la_lista(lista):
    """The mutants that a list file names."""
    mutantes = []
    for renglon in pathlib.Path(lista).read_text(encoding="utf-8").splitlines():
        if not renglon.strip() or renglon.startswith("#"):
            continue
        fichero, viejo, nuevo = renglon.split("\t")
        texto = (RAIZ / fichero).read_text(encoding="utf-8")
        if texto.count(viejo) != 1:
            sys.exit(f"{fichero}: «{viejo}» está {texto.count(viejo)} veces")
        numero = texto[: texto.index(viejo)].count("\n") + 1
        linea = texto.split("\n")[numero - 1]
        mutantes.append((pathlib.Path(fichero), numero, linea.replace(viejo, nuevo)))
    return mutantes


class Taller:
    """The sources that are broken, and the build folder in which they are tried."""

    def __init__(self, obra, programa, clases, limite):
        self.programa, self.clases, self.limite = programa, clases, limite
        if obra:
            self.fuentes, self.obra = RAIZ, pathlib.Path(obra).resolve()
            return
        aparte = RAIZ / "build" / "mutar"
        self.fuentes, self.obra = aparte / "fuentes", aparte / "obra"
        self.copiar()
        # What a mutant makes the compiler warn of must still be tried.
        orden = ["cmake", "-S", self.fuentes, "-B", self.obra, "-G", "Ninja",
                 "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -g0 -w"]
        if shutil.which("ccache"):
            orden.append("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
        subprocess.run(orden, check=True, stdout=subprocess.DEVNULL)

    def copiar(self):
        """Brings the copy up to date; a file that has not changed keeps its date."""
        nombres = subprocess.run(
            ["git", "-C", RAIZ, "ls-files", "-z", "-co", "--exclude-standard"],
            check=True, stdout=subprocess.PIPE).stdout.decode().split("\0")
        nombres = {n for n in nombres if n and (RAIZ / n).is_file()}
        for viejo in [f for f in self.fuentes.rglob("*") if f.is_file()]:
            if str(viejo.relative_to(self.fuentes)) not in nombres:
                viejo.unlink()
        for nombre in nombres:
            copia = self.fuentes / nombre
            bytes_ = (RAIZ / nombre).read_bytes()
            if not copia.exists() or copia.read_bytes() != bytes_:
                copia.parent.mkdir(parents=True, exist_ok=True)
                copia.write_bytes(bytes_)
                copia.chmod((RAIZ / nombre).stat().st_mode)

    def compila(self):
        return self._va(["ninja", "-C", self.obra, self.programa], None)

    def pasa(self):
        """True when every class asked for passes."""
        programa = self.obra / "pruebas" / self.programa
        return all(self._va([programa, *([c] if c else [])], self.limite)
                   for c in self.clases or [""])

    def _va(self, orden, limite):
        entorno = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
        try:
            return subprocess.run(orden, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                  env=entorno, timeout=limite).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def probar(self, fichero, numero, linea):
        """Puts the mutant in, asks the tests, puts the line back. What became of it."""
        ruta = self.fuentes / fichero
        entero = ruta.read_text(encoding="utf-8")
        lineas = entero.split("\n")
        lineas[numero - 1] = linea
        ruta.write_text("\n".join(lineas), encoding="utf-8")
        try:
            if not self.compila():
                return NO_COMPILA
            return VIVE if self.pasa() else VISTO
        finally:
            ruta.write_text(entero, encoding="utf-8")


def main():
    # A run that is stopped puts its line back first.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("interrumpido"))
    o = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    o.add_argument("carpetas", nargs="*", default=["session", "conversions"])
    o.add_argument("--pruebas", help="test program; pruebas_<first folder of the path> by default")
    o.add_argument("--clase", action="append", help="only this test class; may be given again")
    o.add_argument("--cuantos", type=int, help="a random choice of so many mutants a folder")
    o.add_argument("--semilla", type=int, default=1)
    o.add_argument("--lista", help="file of mutants instead of the operators")
    o.add_argument("--obra", help="build folder of the sources in place, instead of a copy")
    o.add_argument("--limite", type=int, default=300, help="seconds a run of the tests may take")
    o.add_argument("--ver", action="store_true", help="only list the mutants")
    a = o.parse_args()
    vivos = hechos = 0
    for carpeta in a.carpetas:
        mutantes = de_la_lista(a.lista) if a.lista else de_la_carpeta(carpeta)
        mutantes = [m for m in mutantes if m[0].is_relative_to(carpeta)]
        if a.cuantos and a.cuantos < len(mutantes):
            mutantes = sorted(random.Random(a.semilla).sample(mutantes, a.cuantos))
        if a.ver:
            for fichero, numero, linea in mutantes:
                print(f"{fichero}:{numero}: {linea.strip()}")
            continue
        programa = a.pruebas or "pruebas_" + pathlib.PurePath(carpeta).parts[0]
        taller = Taller(a.obra, programa, a.clase, a.limite)
        if not (taller.compila() and taller.pasa()):
            sys.exit(f"{programa} no pasa sin tocar nada")
        for fichero, numero, linea in mutantes:
            que = taller.probar(fichero, numero, linea)
            hechos += que != NO_COMPILA
            vivos += que == VIVE
            print(f"{que:10} {fichero}:{numero}: {linea.strip()}", flush=True)
    if not a.ver:
        print(f"{vivos} de {hechos} mutantes han sobrevivido")
    return 1 if vivos else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/python3
"""Writes the page's text by a calculation of its own, for its comparison with the program's.

Usage: comprobar_rtf.py TABLE OUT WIDTH FLAGS TITLE SUBTITLE JOB NAME
TABLE: titles in the first line, then a row a line, cells separated by tabs, in the page 1252.
FLAGS: any of t (title), s (subtitle), j (job), c (titles of columns), m (centred).
"""
import sys


def escaped(text):
    out = ""
    for byte in text.encode("cp1252", "replace"):
        char = chr(byte)
        out += "\\" + char if char in "\\{}" else f"\\'{byte:02x}" if byte > 127 else char
    return out


def main():
    table, out, width, flags, title, subtitle, job, name = sys.argv[1:9]
    with open(table, encoding="cp1252", newline="") as f:
        titles, *rows = [line.split("\t") for line in f.read().split("\n")[:-1]]
    widths = [max([len(r[c]) for r in rows] + ([len(t)] if "c" in flags else [0]))
              for c, t in enumerate(titles)]
    left = int(width) - sum(widths)
    half = round(left / 2)  # a half goes to the even neighbour
    margin = " " * half if "m" in flags and half > 0 else ""
    lines = ["{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans Serif;}"
             "{\\f1\\froman\\fcharset2 Symbol;}{\\f2\\fmodern\\fprq1 Courier New;}"
             "{\\f3\\froman Times New Roman;}}", "{\\colortbl\\red0\\green0\\blue0;}"]
    if "t" in flags:
        lines.append("\\deflang1034\\pard\\qc\\plain\\f2\\fs28\\b " + escaped(title))
    if "s" in flags:
        lines.append("\\par \\pard\\qc\\plain\\f2\\fs20\\b " + escaped(subtitle))
    if "j" in flags:
        lines.append("\\par \\pard\\qc\\plain\\f2\\fs20\\b Trabajo:  " + escaped(job)
                     + "   Nombre:  " + escaped(name) + "   ")
    if "c" in flags:
        line = "\\par " + margin + ("\\pard\\plain\\f2\\fs16\\b" if margin else "")
        line += " \\pard\\plain\\f2\\fs16\\b\\ul "
        for t, w in zip(titles, widths):
            t = t[:40].strip(" ")
            line += escaped(t) + "\\plain\\f2\\fs16\\b " + " " * (w - len(t))
        lines.append(line)
    for row in rows:
        lines.append("\\par \\pard\\plain\\f2\\fs16 " + margin
                     + escaped(" ".join(c.ljust(w) for c, w in zip(row, widths))))
    lines.append("\\par }")
    with open(out, "w", encoding="cp1252", newline="") as f:
        f.write("".join(line + "\r\n" for line in lines))


main()

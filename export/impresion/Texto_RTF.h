#pragma once

#include <QByteArray>
#include <QString>

/// The words of the preview's text; docs/formas/impresion.md draws it.

/// Words that text follows.
namespace RTF {
inline constexpr char ABRIR[] =
    "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans "
    "Serif;}{\\f1\\froman\\fcharset2 "
    "Symbol;}{\\f2\\fmodern\\fprq1 Courier New;}{\\f3\\froman Times New Roman;}}";
inline constexpr char COLORES[] = "{\\colortbl\\red0\\green0\\blue0;}";
inline constexpr char TITULO[] = "\\deflang1034\\pard\\qc\\plain\\f2\\fs28\\b ";
inline constexpr char SUBTITULO[] = "\\par \\pard\\qc\\plain\\f2\\fs20\\b ";
inline constexpr char TRAS_MARGEN[] = "\\pard\\plain\\f2\\fs16\\b";
inline constexpr char PRIMERA_CABECERA[] = " \\pard\\plain\\f2\\fs16\\b\\ul ";
inline constexpr char TRAS_CABECERA[] = "\\plain\\f2\\fs16\\b ";
inline constexpr char PARRAFO[] = "\\par ";
inline constexpr char FILA[] = "\\par \\pard\\plain\\f2\\fs16 ";
inline constexpr char FILA_MARCADA[] = "\\par \\par \\pard\\plain\\f2\\fs16\\b ";
inline constexpr char CERRAR[] = "\\par }";

/// Appends text of the data: backslash and braces escaped, characters above 127 by their code in
/// the page; a control character, which no word stands for, becomes a blank.
void Agregar(QByteArray& rtf, QStringView texto);
} // namespace RTF

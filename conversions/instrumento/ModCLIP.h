#pragma once

#include <QString>

/// Two plain conversions of CLIP files into the instrument's forms, docs/formas/disenos.md.

/// One vertex line of a CLIP vertical alignment. A field whose flag is unknown leaves its number as
/// it was, so that a `Vertice_CLIP` used again carries the value of the line read before.
struct Vertice_CLIP {
    double pk = 0;        ///< station, metres
    double valor = 0;     ///< elevation in metres ("C") or slope in percent ("P")
    double parametro = 0; ///< radius ("R"), tangent ("T") or sagitta ("F"), metres
    QChar marca2;         ///< last character of field 2, upper case; null for an empty field
    QChar marca3;         ///< the same of field 3
};

/// Reads a vertex line: three comma-separated fields, "station,value+flag,value+flag".
/// @return false when the line hasn't exactly three fields, or when a number can't be read, which a
///         box reports
bool Leer_Vertice(const QString& linea, Vertice_CLIP& vertice);

/// Turns a CLIP vertical alignment file into lines "station,elevation,curve length", metres with
/// three decimals, appended to `texto` with CR LF behind each.
///
/// The file's line 2 is the template of every line: its first three fields are replaced, further
/// ones stay. The curve lengths follow the format's own rules, which treat the flags of the
/// neighbours unevenly; plain geometry is `MyDll_ristram2krt`.
/// @return true when every line went well. A line that hasn't three fields, a curve whose
///         neighbours can't be read and an unknown curve flag are noted, and the run goes on; a
///         failure of arithmetic (two vertices at one station, a length beyond 16 bits) is reported
///         and ends it, the lines so far staying in `texto`
bool Convertir_Alz(const QString& entrada, QString& texto);

/// Flattens a CLIP cross-section file: a header line "station,n,..." governs the n lines behind it,
/// each written as station + "," + line. Nothing is sorted or trimmed.
/// @return true when done; a failure is reported and leaves `salida` as it was
bool Convertir_Ter(const QString& entrada, const QString& salida);

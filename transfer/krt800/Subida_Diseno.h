#pragma once

#include <functional>
#include <QString>

/// Road designs for the instrument: what the converter library made of the files of other packages
/// is read and handed to the sending dialog. The wire is drawn in docs/formas/krt800.md, the files
/// in docs/formas/disenos.md.

/// What a design routine needs beyond its filter.
struct Envio_Diseno {
    int operacion = 0; ///< its description heads the file dialog
    /// Takes the text that is to be sent; called at most once, and only when nothing is saved.
    std::function<void(const QString& texto)> enviar = {};
};

/// Alignments (operation 6), vertical alignments (8) and cross sections (7, 10): the file that the
/// user chooses is converted, see `Convertir_Diseno`, and its text sent.
/// @param filtro  of the file dialog: "descripción|patrón" pairs joined by "|"
/// @param Guardar  0: the text is sent; 1: the result is saved under a name that the user gives,
///                 and nothing is sent
void Subir_Alineaciones(const QString& filtro, int Guardar, const Envio_Diseno& envio);
void Subir_Rasantes(const QString& filtro, int Guardar, const Envio_Diseno& envio);
void Subir_Transversales(const QString& filtro, int Guardar, const Envio_Diseno& envio);

/// Kind of file that `Leer_Fichero_Envio` reads.
enum Tipo_Envio { ENVIO_PUNTOS = 4, ENVIO_CONVERTIDO = 6 };

/// Reads a file that is to be sent into one text, CR LF behind each line.
/// @param separador  between the fields of a point line; runs of a blank count as one
/// @param offsets  adds `Desp_X`, `Desp_Y`, `Desp_Z` to the coordinates
/// @param tipo  `ENVIO_PUNTOS`: lines "name,x,y,z,code" are made of lines of four fields or more; a
///              line of fewer repeats the line before, as the instrument's files have always been
///              read, and blank lines are passed over. `ENVIO_CONVERTIDO`: the lines as they are
/// @return false when the user cancelled, and after a box: no line has the fields of a point, or a
///         failure (53 for an absent file, 321 for another encoding, 13 for a coordinate that is no
///         number, 5 for a character that the wire doesn't take; the line is named); `texto` is then
///         not to be sent
bool Leer_Fichero_Envio(const QString& fichero, QString& texto, const QString& separador,
                        bool offsets, int tipo);

/// Coordinate plus offset, as it goes to the instrument: "-" by the sign of the exact sum, integer
/// part, point, decimals rounded half to even. Decimals that round up to 1000 are cut to "100" and
/// nothing is carried: the instrument's files have always been so.
/// @param formatoOffset  "e,d" of the offset's fixed form
/// @param valor  decimal text, "." or "," as the mark
/// @param formatoSalida  "e,d" of the result: its decimals are written
/// @throws Error_Ejecucion 13 when `valor` is no number
QString Formato_Coordenada(const QString& offset, const QString& formatoOffset,
                           const QString& valor, const QString& formatoSalida);

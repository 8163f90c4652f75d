#pragma once

// The form: docs/formas/librerias.md

#include "codes/Librerias.h"

/// Libraries as text files: one line a code, in the page of the instruments, closed by CR LF.

/// What a text file of a library holds.
struct Lectura_Libreria {
    Lista_De_Codigos codigos;
    QStringList faltas; ///< "Línea n: ..." for each line that is no code; then nothing is usable
    QStringList avisos; ///< the same for what was taken, but not as it stood
};

/// Reads a text file: blank lines are passed over, codes longer than the instrument takes are cut
/// and told, blanks at their end are filling.
/// @throws Error_Ejecucion as `Ficheros::Leer`
Lectura_Libreria Leer_Fichero_Libreria(Base& bd, const Serie_Librerias& serie,
                                       const QString& fichero);
/// The same for the user: a file that is missing or holds no library is told in a box, and so are
/// the codes that were cut. @return nothing when there is nothing to be taken
std::optional<Lista_De_Codigos> Abrir_Fichero_Libreria(const Serie_Librerias& serie,
                                                       const QString& fichero);

/// Lines of a library as its text file has them.
QStringList Lineas_Libreria(const Serie_Librerias& serie, const Lista_De_Codigos& codigos);
/// Writes the text file; asks before it takes the place of another and never touches a file of the
/// program's own. @return false when refused or failed, the box shown
bool Exportar_Libreria(const Serie_Librerias& serie, const Lista_De_Codigos& codigos,
                       const QString& fichero);
/// Writes lines in the page, whole or not at all. @throws Error_Ejecucion as `Ficheros::Escribir`,
/// and 75 for a file of the program's own
void Escribir_Lineas(const QString& fichero, const QStringList& lineas);

/// Stores the codes of a text file as a library; asks before one of that key is replaced.
/// @return false when refused or failed, the box shown
bool Importar_Libreria(const Serie_Librerias& serie, const QString& libreria,
                       const QString& descripcion, const QString& fichero);

/// Filter of the file dialogs for these files.
inline constexpr char16_t FILTRO_LIBRERIAS[] =
    u"Archivos de texto(*.txt)|*.txt|Todos los Archivos (*.*)|*.*";

/// @return true when nothing stands there, or the user lets it be replaced
bool Permiso_Para_Escribir(const QString& fichero);

#pragma once

#include "core/jet/Base.h"
#include "session/Columnas_Texto.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <vector>

/// The export engine: stage 1 turns a session's lines into a table of text cells, one column a
/// field of the format and one row an output row; stage 2 is the writer of the kind of file chosen.

/// The progress bar and label of the dialog (`Pb1`, `LblMsg`); the engine doesn't know who listens.
class Avance_Exportar {
public:
    Avance_Exportar() = default;
    Avance_Exportar(const Avance_Exportar&) = delete;
    Avance_Exportar& operator=(const Avance_Exportar&) = delete;
    virtual ~Avance_Exportar();
    virtual void Etiqueta(const QString&) {}
    virtual void Maximo(qint64) {}
    /// Cheap to call often.
    virtual void Valor(qint64) {}
};

/// Lines or rows between two looks at the interface.
inline constexpr qint64 PASOS_POR_REPINTADO = 1024;

/// `Filas_Exportar`, the row table: first index the column, second the row; all cells of a column
/// of one length.
using Filas_Exportar = Columnas_Texto;
/// Rows that the table can hold for a KRT300 or PX7 session.
inline constexpr std::size_t MAX_FILAS = 32768;

/// What stage 1 makes of a session.
struct Datos_Formateados {
    Filas_Exportar filas;
    /// Level lines that rows marked by code 6 or 5 stand for, in the order of these rows.
    QStringList lineas_especiales;
};

/// A stretch of lines that belong to one point, both ends included.
struct Corrida_Punto {
    QString punto;
    qint64 secuencia_desde = 0, secuencia_hasta = 0;
};
/// The runs of a session, in the order of its lines: each time the point's name changes one opens,
/// and the first line always opens one. The last reaches up to 999999.
/// @throws Error_Ejecucion 9 for more than `MAX_FILAS` runs
std::vector<Corrida_Punto> Buscar_Corridas(Base& bd, qint64 id);

/// `Campos_Exportar` up to its first empty slot.
QStringList Cargar_Campos_Exportar();

/// Stage 1. KRT300 and PX7: one row a run, as `Extraer_Punto` decodes it. KRT800: one row a record.
/// NV400, reached when another family is in force: one row a record, only those of measurements
/// filled. Rows without content are dropped, columns padded on the right.
/// @param maquina, ope  of the session
/// @throws Error_Ejecucion 9 as above, those of the database
Datos_Formateados Formatear_Datos(Base& bd, qint64 id, const QString& maquina, int ope,
                                  const QStringList& campos, Avance_Exportar& avance);
/// Drops the rows whose cells are all empty; a table without content stays as it is.
void Ajustar_Filas(Filas_Exportar& filas);
/// Pads the cells of each column with blanks on the right to the length of its longest.
void Igualar_Columnas(Filas_Exportar& filas);

/// What a writer works on.
struct Tarea_Exportar {
    Base& bd; ///< the engine's own connection
    qint64 id = 0;
    QString maquina;
    int ope = 0;
    QString formato;
    QString fichero;
    QStringList campos; ///< names, in the order of the columns
    QString opciones;   ///< pieces joined with code 6
    const Datos_Formateados& datos;
    Avance_Exportar& avance;
};
/// Writes a file; traps and reports its errors. @return true when it finished
using Escritor = bool (*)(const Tarea_Exportar& tarea);

/// A kind of file, as the dialog offers it and the engine writes it.
struct Salida_Exportar {
    QString tipo;            ///< "TxF", "Txt", "Xls", "mdb"; compared without case
    Escritor escribir;       ///< null while this version doesn't write it
    Escritor escribir_nivel; ///< the same with the level in force
};
/// All kinds. A new kind is one writer and one row here.
const QList<Salida_Exportar>& Salidas_Exportar();
/// @return the kind of that name that can be written for the family in force, or null
Escritor Escritor_De(const QString& tipo);

/// The one entry of the engine: formats the session and writes it. An error of stage 1 is reported.
/// @param formato  format's name, for the outputs that read the format themselves
/// @param opciones  pieces joined with code 6: for texts the separator and "S" or "N" for titles
/// @return true when the writer finished
bool Exportar_Sesion(qint64 id, const QString& maquina, int ope, const QString& tipo,
                     const QString& formato, const QString& fichero, const QString& opciones,
                     Avance_Exportar& avance);

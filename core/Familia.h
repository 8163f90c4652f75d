#pragma once

#include <QByteArray>
#include <QString>
#include <span>

/// The four families of instruments and the operations they offer: one const row each, and nobody
/// else compares a family's text or a bare operation number.

/// How a family writes its records, speaks on the wire, and takes coordinates and code libraries.
enum class Serie {
    A,      ///< frames with a checksum, records cut by columns, coordinates as runs of digits
    B,      ///< plain text lines, records cut at commas, decimal coordinates
    Nivel,  ///< the level: lines with a checksum, fields by position, no coordinates
    Ninguna ///< a key that no family has
};

/// What an upload is sent as.
enum class Carga { Tramas, Caracteres, Fichero, Ninguna };

/// One family.
struct Familia {
    QString clave; ///< "KRT300", …: `Clave_Estacion`, and `Maquina` in all SQL
    Serie serie = Serie::Ninguna;
    /// What stands between two records of a reception.
    QString separador_registro;
    /// The boxes of `FrmOffset` are taken over in the form without a point.
    bool desplazamiento_fijo = false;
    /// The format dialogs offer "Punto", which needs no row in `Campos`.
    bool ofrece_punto = false;
    /// Its raw form is HD-6, which its tables list like any other; elsewhere it is offered besides.
    bool hd6_propio = false;
    /// The user names the session of a download; otherwise its data do.
    bool pide_nombre = true;
    /// What `BtnIniciar` sends, and what each tick of the poll sends; empty: nothing.
    QByteArray arranque, sondeo;
    Carga carga = Carga::Ninguna;
    /// Front of the trace's file name; empty: its uploads leave no trace.
    QString prefijo_traza;
    /// `Ninguna` for a family without code libraries.
    Serie librerias = Serie::Ninguna;
};

/// All families, in the order in which lists offer them.
std::span<const Familia> Familias();
/// @return the row of that key, compared exactly; for any other key a row of `Serie::Ninguna` whose
///         texts are empty
const Familia& Familia_De(QStringView clave);
/// @return the row of the family in force, `Clave_Estacion`
const Familia& Familia_Actual();
/// Keys of all families, in their order.
QStringList Claves_Familias();

/// Operation numbers, the same in both directions. `OPE.DESOPE` has the words that the user reads.
enum class Operacion {
    Medicion = 0,
    Coordenadas = 1,
    Libreria = 2,
    Reservada = 3, ///< offered by no model; a download of it would end in the list of sessions
    Puntos = 4,
    Trabajo = 5,
    Alineaciones = 6,
    Perfiles = 7,
    Rasantes = 8,
    Replanteo = 9,
    Perfiles_Proyecto = 10,
    Calculadas = 11 ///< coordinates; for a KRT300 or PX7 the routing alone tells it from 1
};

/// What stands on its own for an operation, whatever the family.
struct Fila_Operacion {
    Operacion operacion;
    /// A download of it ends on the list of sessions.
    bool muestra_sesiones = false;
    /// Series B: the record identifier of all its lines, which then carry none of their own.
    QString id_fijo;
};
/// @return the row of the operation; for an unknown number one that says nothing
const Fila_Operacion& Fila_De(Operacion operacion);

/// The number under which an operation reaches the serial dialog and the store: 11 is 1 in series
/// A.
int Operacion_En_El_Enlace(const Familia& familia, int operacion);

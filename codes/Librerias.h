#pragma once

// The form: docs/formas/librerias.md

#include "core/Familia.h"
#include "core/jet/Base.h"

#include <optional>
#include <QList>
#include <QString>
#include <QStringList>
#include <span>

/// Libraries of point codes: named lists that are kept on the PC and sent to the instrument. Those
/// of series A are bare codes, those of series B give each code an entity and a layer. What differs
/// between the two stands in one row each; everything else is the same for both.

/// One code of a library.
struct Codigo_Libreria {
    QString codigo;
    qint64 entidad = 0;   ///< series B: index into the list of entities (`TAB2`)
    QString capa;         ///< series B: layer
    qint64 secuencia = 0; ///< series B: its key within the library; 0 until it is stored

    bool operator==(const Codigo_Libreria&) const = default;
};
using Lista_De_Codigos = QList<Codigo_Libreria>;

/// What lists of libraries show.
struct Cabecera_Libreria {
    QString codigo; ///< its key
    QString descripcion;
    qint64 codigos = 0; ///< how many it holds
};

/// A row of the list of entities.
struct Entidad {
    qint64 indice = 0;
    QString descripcion;
};

/// One series of libraries.
struct Serie_Librerias {
    Serie serie = Serie::Ninguna;
    QString letra; ///< "A", "B": how the command line calls it
    /// The table of the libraries, its key and the column of the description, with their widths.
    QString tabla, columna_codigo, columna_descripcion;
    int ancho_codigo = 0, ancho_descripcion = 0;
    /// Longest code and layer, and most codes that the instrument takes; 0: no limit.
    int largo_codigo = 0, largo_capa = 0, maximo = 0;
    QChar reservado; ///< stands between records or fields on the wire, so never in a code
    /// Captions and warnings of the dialog of a library's header.
    QString titulo_nueva, titulo_editar, sin_codigo, sin_descripcion;

    /// A list of the codes: titles, and the cells of one. @param numero  place of the code, from 1
    QStringList columnas_ver;
    QStringList (*celdas_ver)(int numero, const Codigo_Libreria&) = nullptr;

    Lista_De_Codigos (*leer)(Base&, const QString& libreria) = nullptr;
    void (*guardar)(Base&, const QString& libreria, const Lista_De_Codigos&) = nullptr;
    /// What an upload of the library sends; the empty text when there is nothing to be sent, or
    /// something that the instrument doesn't take, the box shown. @throws Error_Ejecucion 5 for a
    /// code that is too long
    QString (*texto_envio)(const QString& libreria, const Lista_De_Codigos&) = nullptr;
    /// One line of the text file of a library. @param numero  place of the code, from 1
    QString (*linea)(int numero, const Codigo_Libreria&) = nullptr;
    /// Reads such a line. @return nothing, with `motivo` filled, when it has another form
    std::optional<Codigo_Libreria> (*leer_linea)(const QString& linea, QString& motivo) = nullptr;
};

/// Both series, A first.
std::span<const Serie_Librerias> Series_De_Librerias();
/// @return the row of a series; of `Serie::A` for one without libraries
const Serie_Librerias& Librerias_De(Serie serie);

/// Libraries of a series in the order in which they were made.
QList<Cabecera_Libreria> Listar_Librerias(Base& bd, const Serie_Librerias& serie);
/// @return nothing when there is none of that key
std::optional<Cabecera_Libreria> Buscar_Libreria(Base& bd, const Serie_Librerias& serie,
                                                 const QString& libreria);
/// Codes of a library in their order; none for a library that doesn't exist.
Lista_De_Codigos Leer_Codigos(Base& bd, const Serie_Librerias& serie, const QString& libreria);

/// Makes a library, whole or not at all. @throws Error_Ejecucion 3022 when the key is in use, 3163
/// for a text wider than its column
void Crear_Libreria(Base& bd, const Serie_Librerias& serie, const QString& libreria,
                    const QString& descripcion, const Lista_De_Codigos& codigos = {});
/// Replaces the codes of a library, and its description when one is given, whole or not at all.
/// @return false when the library has vanished
bool Guardar_Codigos(Base& bd, const Serie_Librerias& serie, const QString& libreria,
                     const Lista_De_Codigos& codigos,
                     const std::optional<QString>& descripcion = {});
/// Changes the description. @return false when the library has vanished
bool Describir_Libreria(Base& bd, const Serie_Librerias& serie, const QString& libreria,
                        const QString& descripcion);
/// Deletes a library with its codes; one that has vanished is no error.
void Eliminar_Libreria(Base& bd, const Serie_Librerias& serie, const QString& libreria);

/// Asks, then deletes a library with its codes. @return false when refused, or failed, the box
/// shown
bool Borrar_Libreria(const Serie_Librerias& serie, const QString& libreria);

/// Series B, code by code. `Anadir_Codigo` puts it behind the last one and returns its `secuencia`.
qint64 Anadir_Codigo(Base& bd, const QString& libreria, const Codigo_Libreria& codigo);
/// @return false when the code has vanished
bool Cambiar_Codigo(Base& bd, const QString& libreria, const Codigo_Libreria& codigo);
/// One that has vanished is no error.
void Eliminar_Codigo(Base& bd, const QString& libreria, qint64 secuencia);

/// The entities that a code can have.
QList<Entidad> Leer_Entidades(Base& bd);

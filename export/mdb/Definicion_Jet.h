#pragma once

#include "export/mdb/Paginas_Jet.h"

#include <QList>
#include <QString>

namespace Jet {

enum class Tipo : quint8 {
    LOGICO = 0x01,
    OCTETO = 0x02,
    ENTERO = 0x03,
    LARGO = 0x04,
    FECHA = 0x08,
    BINARIO = 0x09,
    TEXTO = 0x0A,
    OLE = 0x0B,
    MEMO = 0x0C
};

enum Banderas_Columna : quint8 {
    COL_FIJA = 0x01,
    COL_SIEMPRE = 0x02,
    COL_SISTEMA = 0x10,
    COL_SID = 0x20
};
enum Banderas_Ampliadas : quint8 { COL_COMPRIMIDA = 0x01 };
enum Banderas_Indice : quint16 {
    IND_UNICO = 0x01,
    IND_SIN_NULOS = 0x02,
    IND_OBLIGADO = 0x08,
    IND_SIEMPRE = 0x80
};

enum class Clase_Tabla : quint8 { SISTEMA = 'S', USUARIO = 'N' };

struct Columna {
    QString nombre;
    Tipo tipo;
    quint16 id;             ///< place in the record's mask, from 0
    quint16 variable;       ///< columns of variable length with a lower id
    quint16 desplazamiento; ///< of a value of fixed length, from 0
    quint16 largo;          ///< bytes; 0 for Memo and OLE
    quint8 banderas;
    quint8 ampliadas = 0;
    quint16 ordinal = 0; ///< of a user's table: the id
};

/// An index as it is stored, and the names under which it is known.
struct Indice_Real {
    QList<quint16> columnas; ///< ids, all ascending
    quint32 mapa;            ///< pointer to the map row of its pages
    quint32 raiz;
    quint16 banderas;
    quint32 claves = 0; ///< distinct keys
};
struct Indice_Logico {
    QString nombre;
    quint32 numero;
    quint32 real; ///< place in the list of stored indexes
    bool principal;
};

struct Columna_Larga {
    quint16 id;
    quint32 propias; ///< pointers to its two map rows
    quint32 libres;
};

struct Definicion {
    Clase_Tabla clase;
    quint32 filas = 0;
    quint32 propias = 0; ///< pointers to the map rows of its data pages
    quint32 libres = 0;
    QList<Columna> columnas; ///< in the order of the stored list
    QList<Indice_Real> indices;
    QList<Indice_Logico> nombres;
    QList<Columna_Larga> largas;
};

/// Pages that the definition takes; they depend on its names and counts, not on its numbers.
quint32 Paginas_De(const Definicion& definicion);

/// Writes the definition on the pages `numeros`, as many as `Paginas_De` says.
/// @throws Error_Ejecucion as `Paginas`
void Escribir_Definicion(const Definicion& definicion, const QList<quint32>& numeros,
                         Paginas& paginas);

} // namespace Jet

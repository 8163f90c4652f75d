#pragma once

#include "tools/revisar_mdb/Revision.h"

namespace Revision_Mdb {

enum Tipo : quint8 {
    LOGICO = 1,
    OCTETO = 2,
    ENTERO = 3,
    LARGO = 4,
    FECHA_HORA = 8,
    BINARIO = 9,
    TEXTO = 10,
    OLE = 11,
    MEMO = 12
};

struct Columna {
    QString nombre;
    quint8 tipo = 0;
    quint16 id = 0;
    quint16 variable = 0;
    quint16 lugar = 0; ///< fixed offset
    quint16 largo = 0;
    quint8 banderas = 0;
    quint8 ampliadas = 0;

    bool Fija() const { return tipo < BINARIO; }
    bool Larga() const { return tipo == OLE || tipo == MEMO; }
};

struct Indice {
    QList<quint16> columnas;
    quint32 claves = 0;
    quint32 mapa = 0;
    quint32 raiz = 0;
    quint16 banderas = 0;
};
struct Nombre_Indice {
    QString nombre;
    quint32 numero = 0;
    quint32 real = 0;
    quint8 tipo = 0;
};
struct Columna_Larga {
    quint16 id = 0;
    quint32 propias = 0;
    quint32 libres = 0;
};

struct Definicion {
    QString nombre; ///< of the table
    quint32 pagina = 0;
    bool sistema = false;
    quint32 filas = 0;
    quint16 variables = 0;
    quint32 propias = 0;
    quint32 libres = 0;
    QList<Columna> columnas; ///< in the order stored
    QList<Indice> indices;
    QList<Nombre_Indice> nombres;
    QList<Columna_Larga> largas;

    const Columna* Por_Id(quint16 id) const;
    const Columna* Por_Nombre(const QString& nombre) const;
    /// Bytes of the columns of fixed length.
    int Bytes_Fijos() const;
};

/// Reads the definition that begins on `pagina` and examines it.
/// @throws Rotura when it can't be read to its end
Definicion Leer_Definicion(Revision& revision, quint32 pagina, const QString& nombre);

/// Complains when a name is one that the engine refuses.
void Revisar_Nombre(Revision& revision, quint32 pagina, const QString& nombre);

} // namespace Revision_Mdb

#pragma once

#include "core/jet/Base.h"

/// One pass through the stored lines of a session, in their sequence.
class Lineas_Sesion {
public:
    explicit Lineas_Sesion(qint64 id);

    /// Steps to the next line. @return false behind the last
    bool Siguiente() { return filas.Siguiente(); }
    QString Punto() const { return filas.Texto(2); }
    QString Datos() const { return filas.Texto(3); }
    /// General records in force.
    QString DatosG() const { return filas.Texto(4); }

private:
    Recorrido filas;
};

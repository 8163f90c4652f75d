#pragma once

// The form: docs/formas/krt800.md

#include "transfer/enlace/Recepcion.h"

#include <memory>
#include <optional>

class Base;

/// Makes a session of KRT800 text, one row a line ended by CR LF, in one transaction; a failure is
/// reported and rolls everything back. A cancelled one keeps the rows stored so far. A line wider
/// than its column is stored cut, and the box of the wrong output format says so.
Resultado_Recepcion Guardar_KRT800(const Datos_Recepcion& datos);

/// The general values in force of a KRT800 session: one item a `Campos` row marked "GE".
class Globales_KRT800 {
public:
    Globales_KRT800(Base& base, const QString& maquina, int operacion);
    ~Globales_KRT800();
    /// Takes over the values that `linea` carries.
    void Campos_Globales(const QString& linea);
    /// Items joined with code 6, their identifier, field and value with code 5.
    const QString& DatosG() const;

private:
    struct Datos;
    std::unique_ptr<Datos> d;
};

/// Stores a finished download of any operation.
std::optional<Resultado_Recepcion> Guardar_Descarga_KRT800(const Datos_Recepcion& datos);

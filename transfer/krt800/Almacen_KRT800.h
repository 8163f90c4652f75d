#pragma once

// The form: docs/formas/krt800.md

#include "transfer/enlace/Recepcion.h"

#include <memory>
#include <optional>

class Base;

/// Makes a session of KRT800 text, one row a line ended by CR LF, in one transaction; a failure is
/// reported and rolls everything back. A cancelled one keeps the rows stored so far.
/// @param numero  receives the session's number, empty when none was made
/// @return true when every line is stored
bool Guardar_KRT800(const Datos_Recepcion& datos, QString& numero);

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

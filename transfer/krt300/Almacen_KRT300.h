#pragma once

// The form: docs/formas/krt300.md

#include "transfer/enlace/Recepcion.h"

#include <memory>
#include <optional>

class Base;

/// Where a stream of KRT300 or PX7 records stands between one and the next.
class Almacen_KRT300 {
public:
    /// @param id  session; its rows begin with sequence 1
    Almacen_KRT300(Base& base, qint64 id, const QString& maquina, int operacion);
    ~Almacen_KRT300();
    Almacen_KRT300(const Almacen_KRT300&) = delete;
    Almacen_KRT300& operator=(const Almacen_KRT300&) = delete;

    /// Stores one record: "+" sets the current point, a "G" kind joins the global records in force,
    /// another known kind becomes a row, an unknown kind vanishes.
    /// @throws Error_Ejecucion 3163 when the record is longer than its column
    void Guardar_Registro(const QString& registro);
    /// Commits what has been stored. Without it, also the destructor commits.
    void Confirmar();

private:
    struct Datos;
    std::unique_ptr<Datos> d;
};

/// Cuts a KRT300 or PX7 buffer on "_" and stores its records under session `id`. A failure has no
/// message (it goes to the run log) and leaves what was written. @return true when all is stored
bool Guardar_KRT300(const QString& buffer, qint64 id, const QString& maquina, int operacion);

/// Sets `Npuntos` of a session to the number of its distinct point names; says so when there are
/// none.
void Contar_Puntos(qint64 id);

/// Makes the session of a finished download, stores its records and counts its points, outside any
/// transaction: a failure leaves what was written. Null for an operation other than measurements
/// and coordinates; a code library goes to those who keep them.
std::optional<Resultado_Recepcion> Guardar_Descarga_KRT300(const Datos_Recepcion& datos);

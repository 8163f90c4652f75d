#pragma once

#include "app/cli/Interfaz_Consola.h"
#include "session/Consultas_Sesion.h"

/// The program brought up for one order: console interface in use, settings read, database open.
/// Everything is put back when it goes out of scope.
class Instalacion {
public:
    /// @throws Orden_Rechazada when the settings or the database can't be read (the message is shown)
    explicit Instalacion(const Contexto& contexto);
    ~Instalacion();
    Instalacion(const Instalacion&) = delete;
    Instalacion& operator=(const Instalacion&) = delete;

    /// Makes `nombre` the model in force. @throws Orden_Rechazada when there is no such model
    void Elegir_Modelo(const QString& nombre) const;
    /// Makes `clave` the family in force. @throws Orden_Rechazada when there is no such family
    void Elegir_Maquina(const QString& clave) const;
    /// The session `id`, its family being in force from here on.
    /// @throws Orden_Rechazada when there is no such session
    Sesion_Elegida Elegir_Sesion(qint64 id) const;
    /// @throws Orden_Rechazada when the family in force doesn't offer the operation
    void Comprobar_Operacion(int ope, const QString& tipo_ope) const;
    /// The order answers the file dialogs from here on.
    void Contestar_Ficheros(Interfaz_Consola::Respuesta_Fichero respuesta)
    {
        interfaz.ficheros = std::move(respuesta);
    }

private:
    Contexto contexto;
    Interfaz_Consola interfaz;
};

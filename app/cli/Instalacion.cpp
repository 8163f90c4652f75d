#include "app/cli/Instalacion.h"

#include "codes/Enlace_Librerias.h"
#include "core/Configuracion.h"
#include "core/Familia.h"
#include "core/ModEstTotal.h"

Instalacion::Instalacion(const Contexto& c) : contexto(c), interfaz(c)
{
    Ruta_Aplicacion = QDir::cleanPath(QDir(c.dir).absolutePath());
    if (!Cargar_Configuracion(Ruta_Aplicacion)) throw Orden_Rechazada{};
    Conectar_Librerias();
}

Instalacion::~Instalacion()
{
    Base_Datos.reset();
}

void Instalacion::Elegir_Modelo(const QString& nombre) const
{
    Conjunto_Registros modelos = Base_Datos->OpenRecordset("KRT");
    modelos.Index("PrimaryKey");
    modelos.Seek({nombre});
    if (modelos.NoMatch()) {
        contexto.Mensaje("No existe el modelo " + nombre + " (véase miraldos-cli modelos)");
        throw Orden_Rechazada{};
    }
    Nombre_Estacion = nombre;
    Clave_Estacion = modelos.Texto("Clave");
    Cargar_Estacion(nombre);
}

void Instalacion::Elegir_Maquina(const QString& clave) const
{
    QStringList claves = Claves_Familias();
    if (!claves.contains(clave)) {
        const QString ultima = claves.takeLast();
        contexto.Mensaje("No existe la máquina " + clave + ": " + claves.join(", ") + " o " +
                         ultima);
        throw Orden_Rechazada{};
    }
    Clave_Estacion = clave;
}

Sesion_Elegida Instalacion::Elegir_Sesion(qint64 id) const
{
    const auto sesion = Buscar_Sesion(*Base_Datos, id);
    if (!sesion) {
        contexto.Mensaje(
            QStringLiteral("No existe la sesión %1 (véase miraldos-cli sesiones)").arg(id));
        throw Orden_Rechazada{};
    }
    Clave_Estacion = sesion->maquina;
    return *sesion;
}

void Instalacion::Comprobar_Operacion(int ope, const QString& tipo_ope) const
{
    Conjunto_Registros operaciones = Base_Datos->OpenRecordset("KRT2");
    operaciones.Index("PrimaryKey");
    operaciones.Seek({Clave_Estacion, ope, tipo_ope});
    if (!operaciones.NoMatch()) return;
    contexto.Mensaje(QStringLiteral("El modelo %1 no ofrece la operación %2 (véase miraldos-cli "
                                    "operaciones)")
                         .arg(Nombre_Estacion)
                         .arg(ope));
    throw Orden_Rechazada{};
}

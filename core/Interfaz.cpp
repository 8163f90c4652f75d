#include "core/Interfaz.h"

#include "core/Error_Ejecucion.h"

namespace {
Interfaz* interfaz_en_uso = nullptr;
}

bool Proceso_Cancelado = false;

Interfaz::~Interfaz()
{
    if (interfaz_en_uso == this) interfaz_en_uso = nullptr;
}

Interfaz& Interfaz_Actual()
{
    if (!interfaz_en_uso) throw Error_Ejecucion(91);
    return *interfaz_en_uso;
}

Interfaz* Poner_Interfaz(Interfaz* nueva)
{
    Interfaz* const anterior = interfaz_en_uso;
    interfaz_en_uso = nueva;
    return anterior;
}

std::optional<Fichero_Elegido> Pedir_Fichero_Insistiendo(const Peticion_Fichero& peticion)
{
    while (!Interfaz_Actual().Terminada()) {
        auto elegido = Interfaz_Actual().Pedir_Fichero(peticion);
        if (elegido && !elegido->nombre.isEmpty()) return elegido;
    }
    return std::nullopt;
}

QString Texto_Informe(const QString& mensaje, const Error_Ejecucion& error, const QString& salto)
{
    return mensaje + salto + u'(' + QString::number(error.numero) + QStringLiteral(") ") +
           error.descripcion;
}

void Informe_Error(const QString& mensaje, const Error_Ejecucion& error)
{
    Interfaz_Actual().Mensaje(Texto_Informe(mensaje, error), Icono::Critico);
}

Proceso::Proceso(const QString& etiqueta, qint64 maximo)
{
    Interfaz_Actual().Proceso_Abrir(etiqueta, maximo);
}

Proceso::~Proceso()
{
    Interfaz_Actual().Proceso_Cerrar();
}

Cursor_De_Espera::Cursor_De_Espera()
{
    Interfaz_Actual().Cursor_Ocupado(true);
}

Cursor_De_Espera::~Cursor_De_Espera()
{
    Interfaz_Actual().Cursor_Ocupado(false);
}

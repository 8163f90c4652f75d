#include "transfer/Preguntas_Envio.h"

#include "core/ModEstTotal.h"
#include "session/Desplazamiento.h"
#include "session/Peticiones_Sesion.h"

std::optional<QString> Pedir_Fichero_Envio(const QString& titulo, const QString& filtro,
                                           const QString& extension)
{
    const auto elegido = Pedir_Fichero_Insistiendo(
        {.titulo = titulo, .filtro = filtro, .carpeta = {}, .extension = extension});
    if (!elegido) return std::nullopt;
    return elegido->nombre;
}

std::optional<QString> Pedir_Separador_Y_Desplazamientos()
{
    const Peticiones_Sesion& pide = Peticiones_De_Sesion();
    QString separador = pide.Pedir_Separador();
    if (separador.isEmpty()) return std::nullopt;
    Quitar_Desplazamientos();
    if (Offset_Cargas &&
        !pide.Pedir_Desplazamientos(true, true, true, QString::fromUtf16(FORMATO_COORDENADA)))
        return std::nullopt;
    return separador;
}

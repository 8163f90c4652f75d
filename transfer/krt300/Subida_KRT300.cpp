#include "transfer/krt300/Subida_KRT300.h"

#include "core/ModEstTotal.h"
#include "session/Peticiones_Sesion.h"
#include "transfer/krt300/Convertir_Envio.h"
#include "transfer/Peticiones_Transfer.h"
#include "transfer/Preguntas_Envio.h"
#include "transfer/Presentar_Envio.h"

namespace {

std::optional<QString> Pedir_Asc(const QString& titulo)
{
    return Pedir_Fichero_Envio(titulo, "ASCII (*.asc)|*.asc|Todos los archivos (*.*)|*.*", "asc");
}

void Convertir_Y_Enviar(int tipo, const QString& separador, const QString& fichero, int operacion)
{
    Datos_Envio envio{tipo, {}, {}};
    const QString malos = Convertir_Envio(tipo, separador, fichero, envio.cabecera, envio.datos);
    if (malos.isEmpty())
        Presentar_Envio(envio, operacion);
    else if (malos != QStringView(ENVIO_CON_ERROR))
        Peticiones_De_Sesion().Mostrar_Puntos_Malos(malos);
}

} // namespace

void Subir_Puntos(int operacion)
{
    const auto fichero = Pedir_Asc("Datos de coordenada");
    if (!fichero) return;
    Peticiones_De_Transfer().Ocultar_FrmIni();
    const auto separador = Pedir_Separador_Y_Desplazamientos();
    if (separador) Convertir_Y_Enviar(ENVIO_COORDENADAS, *separador, *fichero, operacion);
}

void Subir_Libreria(int operacion)
{
    const auto fichero = Pedir_Asc("Librería de Códigos");
    if (!fichero) return;
    Peticiones_De_Transfer().Ocultar_FrmIni();
    Convertir_Y_Enviar(ENVIO_LIBRERIA, ":", *fichero, operacion);
}

#include "transfer/krt800/Subida_KRT800.h"

#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "transfer/krt800/Subida_Diseno.h"
#include "transfer/Lineas_Envio.h"
#include "transfer/Peticiones_Transfer.h"
#include "transfer/Preguntas_Envio.h"
#include "transfer/Presentar_Envio.h"

namespace {

constexpr qsizetype CAMPOS_CODIGO = 3;

std::optional<QString> Pedir_Fichero(int operacion, const QString& filtro)
{
    return Pedir_Fichero_Envio(Descripcion_Operacion(operacion) + " Seleccione Fichero", filtro);
}

// The text of a library file. @return empty after a box
QString Leer_Libreria_KRT800(const QString& fichero)
{
    if (!FileExist(fichero)) {
        Interfaz_Actual().Mensaje("El Fichero especificado no existe", Icono::Exclamacion);
        return {};
    }
    const QStringList lineas = Leer_Lineas_Envio(fichero);
    QString texto;
    bool vale = true;
    for (qsizetype i = 0; i < lineas.size(); ++i) {
        if (lineas[i].count(u',') + 1 != CAMPOS_CODIGO) {
            Interfaz_Actual().Mensaje("Número incorrecto de parámetros en la línea " +
                                          QString::number(i + 1),
                                      Icono::Critico);
            vale = false;
        } else if (const QString malo = Primero_No_Aceptado(lineas[i]); !malo.isEmpty()) {
            Interfaz_Actual().Mensaje("La línea " + QString::number(i + 1) +
                                          " contiene el carácter '" + malo +
                                          "' que no es aceptado por el aparato",
                                      Icono::Critico);
            vale = false;
        }
        texto += lineas[i] + "\r\n";
    }
    return vale ? texto : QString();
}

} // namespace

void Subir_Puntos_KRT800(int operacion, const QString& filtro)
{
    const auto fichero = Pedir_Fichero(operacion, filtro);
    if (!fichero) return;
    Peticiones_De_Transfer().Ocultar_FrmIni();
    const auto separador = Pedir_Separador_Y_Desplazamientos();
    QString texto;
    if (separador && Leer_Fichero_Envio(*fichero, texto, *separador, true, ENVIO_PUNTOS))
        Presentar_Envio({operacion, {}, texto}, operacion);
}

void Subir_Libreria_KRT800(const QString& filtro)
try {
    const int operacion = int(Operacion::Libreria);
    const auto fichero = Pedir_Fichero(operacion, filtro);
    if (!fichero) return;
    Peticiones_De_Transfer().Ocultar_FrmIni();
    const QString texto = Leer_Libreria_KRT800(*fichero);
    if (!texto.isEmpty()) Presentar_Envio({operacion, {}, texto}, operacion, false);
} catch (...) {
    Informe_Error("Se produjo un error al Procesar el Fichero", Error_En_Curso());
}

void Subir_Diseno_KRT800(int operacion, const QString& filtro)
{
    const Envio_Diseno envio{operacion, [operacion](const QString& texto) {
                                 Presentar_Envio({operacion, {}, texto}, operacion);
                             }};
    switch (Operacion(operacion)) {
    case Operacion::Alineaciones:
        Subir_Alineaciones(filtro, 0, envio);
        break;
    case Operacion::Rasantes:
        Subir_Rasantes(filtro, 0, envio);
        break;
    default:
        Subir_Transversales(filtro, 0, envio);
    }
}

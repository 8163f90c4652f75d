#include "core/Error_Ejecucion.h"

#include <new>
#include <QList>
#include <utility>

namespace {

constexpr std::pair<int, const char16_t*> DESCRIPCIONES[] = {
    {5, u"Argumento o llamada a procedimiento no válidos"},
    {6, u"Desbordamiento"},
    {7, u"Memoria insuficiente"},
    {9, u"El subíndice está fuera del intervalo"},
    {11, u"División por cero"},
    {13, u"No coinciden los tipos"},
    {51, u"Error interno"},
    {52, u"Nombre o número de archivo incorrecto"},
    {53, u"No se ha encontrado el archivo"},
    {55, u"El archivo ya está abierto"},
    {57, u"Error de E/S de dispositivo"},
    {58, u"El archivo ya existe"},
    {61, u"Disco lleno"},
    {62, u"La entrada de datos ha sobrepasado el final del archivo"},
    {68, u"Dispositivo no disponible"},
    {70, u"Permiso denegado"},
    {75, u"Error de acceso a la ruta o al archivo"},
    {76, u"No se ha encontrado la ruta de acceso"},
    {91, u"Variable de objeto o bloque With no establecido"},
    {94, u"Uso de Null no válido"},
    {380, u"El valor de la propiedad no es válido"},
    {383, u"La propiedad es de sólo lectura"},
    {429, u"El componente no puede crear el objeto"},
    {481, u"La imagen no es válida"},
    {482, u"Error de impresora"},
    {999, u"Error de Comunicación"},
    {3001, u"Argumento no válido"},
    {3008, u"La tabla ya está abierta en modo exclusivo"},
    {3010, u"La tabla ya existe"},
    {3011, u"No se ha podido encontrar el objeto"},
    {3014, u"No se pueden abrir más tablas"},
    {3015, u"El índice no existe en esta tabla"},
    {3019, u"La operación no es válida sin un índice activo"},
    {3020, u"Update o CancelUpdate sin AddNew o Edit"},
    {3021, u"No hay ningún registro activo"},
    {3022, u"Los cambios solicitados en la tabla no se realizaron porque crearían valores "
           u"duplicados en el índice, clave principal o relación"},
    {3024, u"No se ha podido encontrar el archivo"},
    {3026, u"No hay suficiente espacio en el disco"},
    {3034, u"Se intentó confirmar o anular una transacción sin que antes se haya utilizado "
           u"BeginTrans"},
    {3041, u"No se puede abrir una base de datos creada con otra versión"},
    {3043, u"Error de disco o de red"},
    {3044, u"La ruta no es válida"},
    {3045, u"No se ha podido utilizar el archivo; ya está en uso"},
    {3047, u"El registro es demasiado grande"},
    {3049, u"No se puede abrir la base de datos: ha alcanzado su tamaño máximo"},
    {3051, u"No se puede abrir el archivo: está abierto por otro usuario o se necesita permiso "
           u"para ver sus datos"},
    {3055, u"El nombre de archivo no es válido"},
    {3058, u"Un índice o clave principal no puede contener un valor Null"},
    {3061, u"Pocos parámetros"},
    {3065, u"No se puede ejecutar una consulta de selección"},
    {3073, u"La operación debe utilizar una consulta actualizable"},
    {3075, u"Error de sintaxis en la expresión de consulta"},
    {3078, u"No se encuentra la tabla o consulta de entrada"},
    {3079, u"El campo puede referirse a más de una de las tablas de la cláusula FROM"},
    {3085, u"La función de la expresión no está definida"},
    {3125, u"El nombre no es válido"},
    {3131, u"Error de sintaxis en la cláusula FROM"},
    {3142, u"Se encontraron caracteres después del final de la instrucción SQL"},
    {3144, u"Error de sintaxis en la instrucción UPDATE"},
    {3163, u"El campo es demasiado pequeño para aceptar la cantidad de datos"},
    {3164, u"El campo no se puede actualizar"},
    {3167, u"El registro ha sido eliminado"},
    {3170, u"No se ha podido encontrar un controlador ISAM instalable"},
    {3190, u"Se han definido demasiados campos"},
    {3191, u"No se puede definir un campo más de una vez"},
    {3204, u"La base de datos ya existe"},
    {3219, u"Operación no válida"},
    {3251, u"La operación no es compatible con este tipo de objeto"},
    {3264, u"No hay ningún campo definido: no se puede anexar la tabla"},
    {3265, u"No se ha encontrado el elemento en esta colección"},
    {3274, u"La tabla externa no tiene el formato esperado"},
    {3315, u"El campo no puede ser una cadena de longitud cero"},
    {3343, u"Formato de base de datos no reconocido"},
    {3420, u"El objeto no es válido o ya no está establecido"},
    {3421, u"Error de conversión del tipo de datos"},
    {3437, u"La hoja de cálculo está llena"},
    {8002, u"Número de puerto no válido"},
    {8005, u"El puerto ya está abierto"},
    {8012, u"El dispositivo no está abierto"},
    {8015, u"No se pudo establecer el estado de la comunicación"},
    {8018, u"La operación sólo es válida con el puerto abierto"},
    {8020, u"Error al leer del dispositivo de comunicaciones"},
    {8021, u"Error al escribir en el dispositivo de comunicaciones"},
};

} // namespace

QString Descripcion_Error(int numero)
{
    for (const auto& [n, texto] : DESCRIPCIONES)
        if (n == numero) return QString::fromUtf16(texto);
    return QStringLiteral("Error definido por la aplicación o el objeto");
}

QList<int> Numeros_Error()
{
    QList<int> numeros;
    for (const auto& [n, texto] : DESCRIPCIONES)
        numeros << n;
    return numeros;
}

Error_Ejecucion::Error_Ejecucion(int n) : Error_Ejecucion(n, Descripcion_Error(n)) {}

Error_Ejecucion::Error_Ejecucion(int n, const QString& detalle)
    : numero(n), descripcion(detalle),
      texto_what(QStringLiteral("(%1) %2").arg(n).arg(detalle).toUtf8())
{
}

Error_Ejecucion Error_Ejecucion::Con(int numero, const QString& detalle)
{
    return {numero, Descripcion_Error(numero) + QStringLiteral(": ") + detalle};
}

Error_Ejecucion Error_En_Curso()
{
    try {
        throw;
    } catch (const Error_Ejecucion& e) {
        return e;
    } catch (const std::bad_alloc&) {
        return Error_Ejecucion(7);
    } catch (const std::exception& e) {
        return Error_Ejecucion::Con(51, QString::fromUtf8(e.what()));
    } catch (...) {
        return Error_Ejecucion(51);
    }
}

#include "conversions/biblioteca/Conversion.h"

#include "conversions/suelo/Destino.h"
#include "core/Error_Ejecucion.h"

#include <QFileInfo>

namespace Conversion {

int Convertir(const Peticion_Funcion& p, Informe_Lectura& informe, Omisiones omisiones,
              const std::function<QByteArray()>& producir)
{
    try {
        if (p.salida.isEmpty())
            throw Fallo_Conversion{QStringLiteral("Falta el fichero de destino"), 0, {}};
        if (Destino::Mismo_Fichero(p.entrada, p.salida)) {
            informe.Fallar(
                {QStringLiteral("El fichero destino debe ser diferente al origen"), 0, p.salida});
            return 0;
        }
        Destino::Guardar(p.salida, producir());
        return omisiones == Omisiones::Dan_Menos_Uno && informe.Hay_Omisiones() ? -1 : 1;
    } catch (const Fallo_Conversion& f) {
        informe.Fallar(f);
    } catch (...) {
        informe.Fallar({Error_En_Curso().descripcion, 0, {}});
    }
    Destino::Retirar(p.salida);
    return 0;
}

void Abrir(QFile& fichero)
{
    const QFileInfo info(fichero.fileName());
    if (!info.exists())
        throw Fallo_Conversion{QStringLiteral("El fichero de origen no existe"), 0,
                               fichero.fileName()};
    if (!info.isFile())
        throw Fallo_Conversion{QStringLiteral("El origen no es un fichero"), 0, fichero.fileName()};
    if (!fichero.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw Fallo_Conversion{"No se puede leer el fichero: " + fichero.errorString(), 0,
                               fichero.fileName()};
}

QString Nombre_De_Fichero(const QString& ruta)
{
    return QFileInfo(ruta).completeBaseName();
}

} // namespace Conversion

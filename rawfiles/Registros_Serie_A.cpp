#include "rawfiles/Registros_Serie_A.h"

#include "core/Trozos.h"

Registros_Serie_A::Registros_Serie_A(qint64 id, bool generales)
    : lineas(id), con_generales(generales)
{
}

bool Registros_Serie_A::Siguiente()
{
    if (cola.isEmpty()) {
        if (!lineas.Siguiente()) return false;
        Encolar_Linea();
    }
    actual = cola.takeFirst();
    return true;
}

void Registros_Serie_A::Encolar_Linea()
{
    if (const QString datosg = lineas.DatosG(); datosg != datosg_visto) {
        Encolar_Generales(datosg);
        datosg_visto = datosg;
    }
    if (const QString nuevo = lineas.Punto(); nuevo != punto) {
        punto = nuevo;
        cola << MARCA_PUNTO + punto;
    }
    cola << lineas.Datos();
}

void Registros_Serie_A::Encolar_Generales(const QString& datosg)
{
    const QStringList registros = datosg.split(QChar(SEP_LISTA), Qt::SkipEmptyParts);
    for (const QString& registro : registros) {
        QString& vigente = en_vigor[registro[0]];
        if (vigente == registro) continue;
        vigente = registro;
        if (con_generales)
            cola << registro;
        else
            ++omitidos[registro[0]];
    }
}

#include "session/Filtro_Extensiones.h"

#include "core/ModEstTotal.h"

QString Filtro_Extensiones(const QString& maquina, int operacion, const QString& tipo_ope)
{
    Conjunto_Registros operaciones = Base_Datos->OpenRecordset("KRT2");
    operaciones.Index("PrimaryKey");
    operaciones.Seek({maquina, operacion, tipo_ope});
    if (operaciones.NoMatch()) {
        Interfaz_Actual().Mensaje("No hay extensiones definidas para esta operación",
                                  Icono::Critico);
        Interfaz_Actual().Terminar(1);
        return {};
    }
    Conjunto_Registros tipos = Base_Datos->OpenRecordset("CONVERT");
    tipos.Index("PrimaryKey");
    QString filtro;
    for (const QString& clave : operaciones.Texto("Conv").split(u',')) {
        tipos.Seek({clave});
        if (!tipos.NoMatch())
            filtro += u'|' + Basico::Trim(tipos.Texto("descripcion")) + u'|' +
                      Basico::Trim(tipos.Texto("ext"));
    }
    return filtro.isEmpty() ? QStringLiteral("") : filtro.mid(1);
}

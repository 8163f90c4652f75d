#include "session/ModVDatos.h"

#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "session/Decodificador.h"
#include "session/Desplazamiento.h"
#include "session/Identificador.h"

namespace {

QString SQL_Campos(const QString& maquina, int ope, const QString& datos)
{
    const Familia& familia = Familia_De(maquina);
    const QString id = Id_Del_Visor(datos, familia, ope).toString();
    return "SELECT * FROM Campos WHERE Maquina = '" + Reemplazar(maquina, "'", "''") + "' AND " +
           (familia.serie == Serie::B ? "ID" : "Mid(ID,1,1)") + " = '" + Reemplazar(id, "'", "''") +
           "' ORDER BY Orden";
}

} // namespace

std::optional<Vista_Registro> Ver_Registro(const QString& maquina, int ope, const QString& descr,
                                           const QString& datos, const QString& punto)
{
    Q_UNUSED(descr)
    Vista_Registro vista;
    vista.punto = punto;
    Conjunto_Registros campos = Base_Datos->OpenRecordset(SQL_Campos(maquina, ope, datos));
    for (; !campos.Es_EOF(); campos.MoveNext())
        if (campos.Texto("Marcas") != u"NL") vista.nombres << campos.Texto("Campo");
    if (vista.nombres.isEmpty()) return std::nullopt;

    vista.valores = QStringList(vista.nombres.size(), QString());
    Quitar_Desplazamientos();
    Decodificar_Linea(*Base_Datos, datos, punto, maquina, ope, vista.nombres, vista.valores);
    vista.con_botones = Operacion(ope) != Operacion::Puntos;
    return vista;
}

QList<Linea_Rejilla> Llenar_Rejilla(const QStringList& nombres, const QStringList& valores)
{
    QList<Linea_Rejilla> lineas;
    for (qsizetype i = 0; i < nombres.size(); ++i) {
        const QString valor = valores.value(i);
        lineas.append({nombres[i], valor.isEmpty() ? QStringLiteral("--") : valor});
    }
    return lineas;
}

bool Mover_Registro(Conjunto_Registros& datos, int paso)
{
    const qint64 lugar = datos.Posicion() + paso;
    if (lugar < 0 || lugar >= datos.RecordCount()) {
        Interfaz_Actual().Mensaje("Fin de Datos.", Icono::Informacion);
        return false;
    }
    datos.Ir_A(lugar);
    return true;
}

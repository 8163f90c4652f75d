#include "core/ModEstTotal.h"

#include <QFileInfo>

QString Ruta_Aplicacion;
QString Fichero_Log_Inicio;
QString Ruta_MDB;
QString Fichero_MDB;
QString Fichero_Ayuda;
Base_Global Base_Datos;
QString Clave_Estacion;
QString Nombre_Estacion;
bool Modelo_Fijo = false;
QString Puerto, Velocidad, Bits_Datos, Paridad, Bits_Parada;
QString Hard;
QString Vel_Puerto;
QString Formato_Coord;
bool Ayuda_Visible = false, Ayuda_Recuerde = false, Offset_Cargas = false, Offset_Exportar = false,
     Mostrar_Cabeceras = false;
QString Desp_X = QStringLiteral("0"), Desp_Y = QStringLiteral("0"), Desp_Z = QStringLiteral("0");
QStringList datosexport = QStringList(QList<QString>(MAX_IDS));

QString En_Instalacion(const QString& relativa)
{
    // A folder spelt otherwise is the same folder, also where the file system tells capitals apart.
    static const QStringList carpetas{"MDB", "DAT", "LOG", "bmp", "bmphlp", "hlp", "ficheros"};
    QString camino = relativa;
    camino.replace(u'\\', u'/');
    if (!camino.startsWith(u'/')) camino.prepend(u'/');
    const QString primera = camino.section(u'/', 1, 1);
    for (const QString& c : carpetas)
        if (c.compare(primera, Qt::CaseInsensitive) == 0) camino.replace(1, c.size(), c);
    return Ruta_Aplicacion + camino;
}

bool FileExist(const QString& fichero)
{
    const QFileInfo info(fichero);
    return info.isFile() && info.size() > 0;
}

void Limpiar_IDs()
{
    datosexport = QStringList(QList<QString>(MAX_IDS));
}

bool Existe_ID(const QString& id)
{
    return datosexport.contains(id);
}

Lista_Combo Llenar_Combo(const QString& sql, const QString& campo_texto, const QString& campo_tag)
{
    if (!Base_Datos) throw Error_Ejecucion(91);
    Lista_Combo lista;
    QStringList claves;
    Conjunto_Registros rs = Base_Datos->OpenRecordset(sql);
    for (; !rs.Es_EOF(); rs.MoveNext()) {
        lista.textos << rs.Texto(campo_texto);
        claves << rs.Texto(campo_tag);
    }
    lista.tag = claves.join(QChar(SEP_LISTA));
    return lista;
}

QString Descripcion_Operacion(int ope)
{
    if (!Base_Datos) return {};
    Recorrido r = Base_Datos->Recorrer(
        "SELECT DESOPE FROM KRT2 WHERE OPE = ? ORDER BY CASE WHEN Nombre = ? THEN 0 ELSE 1 END",
        {ope, Clave_Estacion});
    return r.Siguiente() ? r.Texto(0) : QString();
}

int Numero_Puerto(const QString& puerto)
{
    return int(Basico::Val(puerto.right(1)));
}

#include "core/ui/Modelo_Conjunto.h"

#include "core/Error_Ejecucion.h"

namespace {

constexpr int FILAS_EN_MEMORIA = 512;

} // namespace

Modelo_Conjunto::Modelo_Conjunto(QObject* padre) : Modelo_Con_Fila(padre)
{
    leidas.setMaxCost(FILAS_EN_MEMORIA);
}

void Modelo_Conjunto::Poner_Columnas(const QList<Columna_Rejilla>& nuevas)
{
    beginResetModel();
    columnas = nuevas;
    leidas.clear();
    endResetModel();
}

void Modelo_Conjunto::Abrir(const std::shared_ptr<Base>& nueva_base, const QString& nueva_sql)
{
    base = nueva_base;
    sql = nueva_sql;
    Refresh();
}

void Modelo_Conjunto::Refresh()
{
    if (!base || sql.isEmpty()) return;
    auto nuevo = std::make_unique<Conjunto_Registros>(base->OpenRecordset(sql));
    beginResetModel();
    conjunto = std::move(nuevo);
    leidas.clear();
    filas = static_cast<int>(conjunto->RecordCount());
    actual = filas > 0 ? 0 : -1;
    if (filas > 0) conjunto->Ir_A(0);
    endResetModel();
    Q_EMIT reposicion(actual);
}

void Modelo_Conjunto::Cerrar()
{
    beginResetModel();
    conjunto.reset();
    base.reset();
    leidas.clear();
    filas = 0;
    actual = -1;
    endResetModel();
    Q_EMIT reposicion(actual);
}

void Modelo_Conjunto::Ir_A(int fila)
{
    if (fila < 0 || fila >= filas || fila == actual) return;
    conjunto->Ir_A(fila);
    actual = fila;
    Q_EMIT reposicion(actual);
}

Conjunto_Registros& Modelo_Conjunto::Conjunto()
{
    if (!conjunto) throw Error_Ejecucion(91);
    return *conjunto;
}

void Modelo_Conjunto::Tomar_Fila()
{
    const int fila = conjunto ? static_cast<int>(conjunto->Posicion()) : -1;
    if (fila == actual || fila < 0) return;
    actual = fila;
    Q_EMIT reposicion(actual);
}

QString Modelo_Conjunto::Texto(const QString& campo) const
{
    return actual < 0 ? QString() : conjunto->Texto(campo);
}

qint64 Modelo_Conjunto::Entero(const QString& campo) const
{
    return actual < 0 ? 0 : conjunto->Entero(campo);
}

int Modelo_Conjunto::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : filas;
}

int Modelo_Conjunto::columnCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(columnas.size());
}

QString Modelo_Conjunto::Celda(int fila, int columna) const
{
    QStringList* textos = leidas.object(fila);
    if (!textos) {
        textos = new QStringList;
        conjunto->Ir_A(fila);
        for (const Columna_Rejilla& c : columnas)
            textos->append(c.forma ? c.forma(conjunto->Texto(c.campo)) : conjunto->Texto(c.campo));
        conjunto->Ir_A(actual);
        leidas.insert(fila, textos);
    }
    return textos->value(columna);
}

QVariant Modelo_Conjunto::data(const QModelIndex& indice, int papel) const
{
    if (!indice.isValid() || (papel != Qt::DisplayRole && papel != Qt::ToolTipRole)) return {};
    try {
        return Celda(indice.row(), indice.column());
    } catch (...) {
        // A view asks for its cells while it paints: a row deleted meanwhile is shown empty.
        return {};
    }
}

QVariant Modelo_Conjunto::headerData(int seccion, Qt::Orientation orientacion, int papel) const
{
    if (papel != Qt::DisplayRole || orientacion != Qt::Horizontal) return {};
    return columnas.value(seccion).titulo;
}

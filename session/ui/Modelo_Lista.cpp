#include "session/ui/Modelo_Lista.h"

#include "core/ModLOG.h"

namespace {

struct Columna {
    const char16_t* titulo;
    QString Linea_De_Sesion::*texto;
};
constexpr Columna COLUMNAS[] = {
    {u"Punto", &Linea_De_Sesion::punto},
    {u"Campo", &Linea_De_Sesion::descr},
    {u"DATOS", &Linea_De_Sesion::datos},
};

} // namespace

void Modelo_Lista::Abrir(std::unique_ptr<Lista_Sesion> nueva)
{
    nueva->Buscar_Mas();
    beginResetModel();
    lista = std::move(nueva);
    filas = int(lista->Conocidas());
    actual = filas > 0 ? 0 : -1;
    endResetModel();
    Q_EMIT reposicion(actual);
}

void Modelo_Lista::Ir_A(int fila)
{
    if (fila < 0 || fila >= filas || fila == actual) return;
    actual = fila;
    Q_EMIT reposicion(actual);
}

bool Modelo_Lista::Mover(int paso)
{
    if (actual < 0 || actual + paso < 0 || !Alcanzar(actual + paso)) return false;
    Ir_A(actual + paso);
    return true;
}

Linea_De_Sesion Modelo_Lista::Actual() const
{
    return actual < 0 ? Linea_De_Sesion() : lista->Linea(actual);
}

int Modelo_Lista::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : filas;
}

int Modelo_Lista::columnCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : int(std::size(COLUMNAS));
}

QVariant Modelo_Lista::data(const QModelIndex& indice, int papel) const
{
    if (!indice.isValid() || (papel != Qt::DisplayRole && papel != Qt::ToolTipRole)) return {};
    try {
        return lista->Linea(indice.row()).*COLUMNAS[indice.column()].texto;
    } catch (...) {
        // A view asks for its cells while it paints: a line that can't be read is shown empty.
        return {};
    }
}

QVariant Modelo_Lista::headerData(int seccion, Qt::Orientation orientacion, int papel) const
{
    if (papel != Qt::DisplayRole || orientacion != Qt::Horizontal || seccion < 0 ||
        seccion >= columnCount())
        return {};
    return QString::fromUtf16(COLUMNAS[seccion].titulo);
}

bool Modelo_Lista::canFetchMore(const QModelIndex& padre) const
{
    return !padre.isValid() && lista && lista->Hay_Mas();
}

void Modelo_Lista::fetchMore(const QModelIndex& padre)
{
    if (canFetchMore(padre)) Alcanzar(filas);
}

// Makes a line known to the grid.
bool Modelo_Lista::Alcanzar(int fila)
{
    try {
        lista->Alcanzar(fila);
    } catch (...) {
        // The grid asks for more in the middle of a scroll: what is known stays.
        Anotar_Fallo("Modelo_Lista");
    }
    const int halladas = int(lista->Conocidas());
    if (halladas > filas) {
        beginInsertRows({}, filas, halladas - 1);
        filas = halladas;
        endInsertRows();
    }
    return fila < filas;
}

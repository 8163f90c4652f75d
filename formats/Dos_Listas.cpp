#include "formats/Dos_Listas.h"

void Dos_Listas::Vaciar()
{
    disponibles.clear();
    elegidos.clear();
}

void Dos_Listas::Ofrecer(const QString& campo)
{
    if (!elegidos.contains(campo) && !disponibles.contains(campo)) disponibles << campo;
}

int Dos_Listas::Agregar(const QList<int>& seleccion)
{
    return Mover(disponibles, elegidos, seleccion);
}

int Dos_Listas::Quitar(const QList<int>& seleccion)
{
    return Mover(elegidos, disponibles, seleccion);
}

int Dos_Listas::Subir(const QList<int>& seleccion)
{
    return Cambiar(seleccion, -1);
}

int Dos_Listas::Bajar(const QList<int>& seleccion)
{
    return Cambiar(seleccion, 1);
}

int Dos_Listas::Mover(QStringList& de, QStringList& a, const QList<int>& seleccion)
{
    if (seleccion.size() == 1) {
        const int i = seleccion.first();
        a << de.takeAt(i);
        return i < de.size() ? i : -1;
    }
    for (qsizetype i = de.size() - 1; i >= 0; --i)
        if (seleccion.contains(int(i))) a << de.takeAt(i);
    return -1;
}

int Dos_Listas::Cambiar(const QList<int>& seleccion, int paso)
{
    if (seleccion.size() != 1) return -1;
    const int i = seleccion.first(), vecino = i + paso;
    if (vecino < 0 || vecino >= elegidos.size()) return i;
    elegidos.swapItemsAt(i, vecino);
    return vecino;
}

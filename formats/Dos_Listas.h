#pragma once

#include <QList>
#include <QStringList>

/// The two lists of a format dialog: the fields on offer and those chosen, which never hold the
/// same name. Selections are handed in as indexes from 0, in any order.
class Dos_Listas {
public:
    QStringList disponibles; ///< `List1`
    QStringList elegidos;    ///< `List2`

    void Vaciar();
    /// Offers a field: unless it stands in one of the lists, it goes to the end of the available
    /// ones.
    void Ofrecer(const QString& campo);

    /// Moves the selected available fields to the end of the chosen ones; `Quitar` is its mirror.
    /// One field alone leaves the selection at its index, so that repeated clicks walk down the
    /// list; of several the last goes first.
    /// @return index to be selected in the list that lost them, or -1
    int Agregar(const QList<int>& seleccion);
    int Quitar(const QList<int>& seleccion);

    /// Swaps the one selected chosen field with its neighbour above or below.
    /// @return its index afterwards, to stay selected; -1 when not exactly one is selected
    int Subir(const QList<int>& seleccion);
    int Bajar(const QList<int>& seleccion);

private:
    static int Mover(QStringList& de, QStringList& a, const QList<int>& seleccion);
    int Cambiar(const QList<int>& seleccion, int paso);
};

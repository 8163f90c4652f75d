#pragma once

#include "core/jet/Base.h"

#include <QStringList>

/// A kind of row that stands for a kept level line, told by the first character of its first cell.
struct Marca_Fila {
    QChar codigo;
    QString nombre; ///< "Cabecera" or "Resumen", as every output begins the line's text
    QString id;     ///< kind of record whose fields are listed
};

/// @return the mark of a row by the first character of its first cell: a head line has code 6, a
///         summary line code 5; null for an ordinary row
const Marca_Fila* Marca_De(QChar primera);
inline const Marca_Fila* Marca_De(QStringView primera_celda)
{
    return Marca_De(primera_celda.isEmpty() ? QChar() : primera_celda.front());
}
inline bool Es_Fila_Marcada(QStringView primera_celda)
{
    return Marca_De(primera_celda) != nullptr;
}

/// Text of a kept level line: the fields that the kind `id` lists.
QString Linea_Campos_Nivel(Base& bd, const QString& linea, const QString& id);

/// The texts of the marked rows, in the order of the rows: each takes the next kept line.
class Textos_Marcados {
public:
    /// @param lineas  `Datos_Formateados::lineas_especiales`, which have to outlive this
    Textos_Marcados(Base& base, const QStringList& lineas) : bd(base), especiales(lineas) {}

    /// @param enlace  what the output puts between the mark's name and the line
    QString Siguiente(const Marca_Fila& marca, const QString& enlace);

private:
    Base& bd;
    const QStringList& especiales;
    qsizetype siguiente = 0;
};

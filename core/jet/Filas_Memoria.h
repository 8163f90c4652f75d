#pragma once

#include <QByteArray>
#include <QVariant>
#include <vector>

class Sentencia;

/// Rows of a query kept packed: a big session joined with its record kinds fits without a node a
/// value.
class Filas_Memoria {
public:
    /// Keeps the row on which `s` stands.
    void Anadir(const Sentencia& s);
    std::vector<QVariant> Fila(qint64 n) const;
    qint64 Cuenta() const { return qint64(inicios.size()); }
    void Vaciar();

private:
    QByteArray bytes;
    std::vector<qsizetype> inicios;
};

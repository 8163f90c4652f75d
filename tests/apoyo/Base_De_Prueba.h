#pragma once

#include "core/ModEstTotal.h"
#include "tests/apoyo/Sala_Global.h"

#include <QTemporaryDir>

/// A temporary install directory with MDB, DAT, LOG, bmp, bmphlp, hlp and ficheros, and a database
/// with every table and no row, opened into `Base_Datos`; the paths of the global room point there.
/// Members die in order, so that the database closes before its folder goes.
class Base_De_Prueba {
public:
    Base_De_Prueba();
    ~Base_De_Prueba();
    Base_De_Prueba(const Base_De_Prueba&) = delete;
    Base_De_Prueba& operator=(const Base_De_Prueba&) = delete;

    /// Path below the install directory.
    QString Ruta(const QString& relativa) const;
    /// Adds a row: `{{"Nombre", "X"}, ...}`.
    void Fila(const QString& tabla, const QList<std::pair<QString, QVariant>>& valores) const;
    /// The first column of a query, as texts.
    QStringList Columna(const QString& sql) const;
    /// Writes a file below the install directory.
    void Escribir(const QString& relativa, const QByteArray& bytes) const;
    /// Its bytes; empty when it isn't there.
    QByteArray Leer(const QString& relativa) const;

private:
    QTemporaryDir carpeta;
    Sala_Global sala;
};

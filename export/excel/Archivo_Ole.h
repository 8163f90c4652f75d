#pragma once

#include "export/excel/Campos_Binarios.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// OLE2 compound files: a small file system of 512-byte sectors inside one file. Only what a
/// workbook needs is here: reading a stream by its name, writing a file of one stream.

/// Identifier of the program that a compound file's root belongs to, in its stored byte order.
using Clase_Ole = std::array<U8, 16>;

/// A compound file held in memory. Every chain that is followed is bounded by the file's own size:
/// a damaged file ends in an error, never in a loop.
class Lector_Ole {
public:
    /// @return true when `bytes` begin with the signature of a compound file
    static bool Es_Ole(QByteArrayView bytes);

    /// @param bytes  the whole file, to be kept alive by the caller
    /// @throws Error_Ejecucion 3274 when the header, the allocation table or the directory is
    /// damaged
    explicit Lector_Ole(QByteArrayView bytes);

    /// @param nombre  name of a stream, in any case
    bool Hay(const QString& nombre) const { return Buscar(nombre) != nullptr; }

    /// @return the bytes of the stream
    /// @throws Error_Ejecucion 3274 when it isn't there, its chain is broken or shorter than its
    /// length
    QByteArray Leer(const QString& nombre) const;

private:
    struct Flujo {
        QString nombre;
        quint32 primer_sector = 0;
        quint64 tamano = 0;
    };

    const Flujo* Buscar(const QString& nombre) const;
    QByteArrayView Sector(quint32 numero) const;
    void Leer_Tabla_Asignacion();
    void Leer_Directorio();
    /// Bytes of a chain of sectors; `tamano` bytes of it, or all when it is negative.
    QByteArray Leer_Cadena(quint32 primero, qint64 tamano) const;
    QByteArray Leer_Cadena_Menuda(quint32 primero, qint64 tamano) const;

    QByteArrayView bytes;
    qsizetype tamano_sector = 0;
    std::vector<quint32> fat;
    std::vector<quint32> mini_fat;
    QByteArray mini_flujo;
    quint32 corte_menudo = 0;
    std::vector<Flujo> flujos;
};

/// A compound file holding one stream.
/// @param nombre  the stream's name, at most 31 characters
/// @param clase  program that the root belongs to
QByteArray Escribir_Ole(const QString& nombre, QByteArrayView flujo, const Clase_Ole& clase);

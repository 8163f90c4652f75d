#pragma once

#include "codes/Librerias.h"

/// What `FrmCodMan800` holds: one code of a library of series B, new or as it stands in the grid.
/// The dialog hands what is typed straight into the members.
class Ficha_Codigo {
public:
    /// @param editado  the code to be changed; none to put one behind the last
    explicit Ficha_Codigo(const QString& libreria,
                          const std::optional<Codigo_Libreria>& editado = {});

    QString titulo;
    QString codigo;      ///< `txtCodigo`
    QString capa;        ///< `txtCapa`
    QStringList nombres; ///< entries of `cmbEntidad`
    QString tag;         ///< their indexes, joined with code 6
    int entidad = -1;    ///< its current entry; -1 when the list doesn't hold the code's

    /// Stores it. @return true when the dialog is to be unloaded, false after a box
    bool Aceptar();
    /// `SECUENCIA` of the code that was stored; 0 until then.
    qint64 Guardado() const { return guardado; }

private:
    QList<Entidad> entidades;
    bool Guardar(const Codigo_Libreria& nuevo);

    QString libreria;
    bool es_nuevo;
    qint64 secuencia = 0;
    qint64 guardado = 0;
};

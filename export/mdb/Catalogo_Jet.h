#pragma once

#include "export/mdb/Cabecera_Jet.h"
#include "export/mdb/Filas_Jet.h"
#include "export/mdb/Indice_Jet.h"
#include "export/mdb/Largos_Jet.h"
#include "export/mdb/Registro_Jet.h"

#include <QString>

namespace Jet {

/// What the database says of itself: header, global map and the four system tables, with the rows
/// of the objects that every database has and those of its tables.
class Catalogo {
public:
    /// Takes the pages of fixed place, so it must be the first to reserve any.
    /// @param fecha  creation date of the file and of everything in it, days since 30-12-1899
    Catalogo(Paginas& paginas, double fecha);

    /// @throws Error_Ejecucion 3010 when there is a table of that name, 3014 when the catalogue
    ///         has no place left for a further one (its indexes have one page each, enough
    ///         for some hundred tables with names of usual length)
    void Comprobar_Sitio(const QString& tabla) const;
    /// Enters a table. @param id  page of its definition; @param propiedades  blob, may be empty
    /// @throws Error_Ejecucion as `Paginas`
    void Anadir_Tabla(quint32 id, const QString& nombre, const QByteArray& propiedades);

    /// Writes all its pages. To be called last, when every page of the file is reserved.
    /// @throws Error_Ejecucion as `Paginas`
    void Acabar();

private:
    struct Objeto;
    void Anadir_Objeto(const Objeto& objeto, const QByteArray& propiedades = {});
    void Anadir_Permiso(quint32 objeto, Cuenta cuenta, quint32 permisos, bool heredable);
    void Escribir_Definiciones();
    void Escribir_Mapas();

    Paginas& salida;
    double fecha;
    Cabecera cabecera;
    Filas objetos;
    Filas permisos;
    Valores_Largos propiedades_guardadas;
    Registro registro_objeto;
    Registro registro_permiso;
    Hoja_Indice por_nombre;
    Hoja_Indice por_id;
    Hoja_Indice por_objeto; // of the permissions
};

} // namespace Jet

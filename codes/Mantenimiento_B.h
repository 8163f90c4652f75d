#pragma once

#include "codes/Mantenimiento_Librerias.h"

/// What `frmCodigos800` holds: the libraries of series B. Every change of a code is stored at once.
class Mantenimiento_B : public Mantenimiento_Librerias {
public:
    Mantenimiento_B();

    /// The rows of the grid: SECUENCIA, CODIGO, DESCRIPCION (of the entity), ENTIDAD, CAPA.
    QString SQL_Codigos() const;

    void Nuevo_Codigo();
    void Editar_Codigo();
    void Eliminar_Codigo();
    void Ordenar() override;

private:
    void Con_Ficha_De_Codigo(const std::optional<Codigo_Libreria>& editado);
};

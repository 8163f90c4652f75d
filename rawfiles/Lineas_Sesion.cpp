#include "rawfiles/Lineas_Sesion.h"

#include "core/ModEstTotal.h"

Lineas_Sesion::Lineas_Sesion(qint64 id)
    : filas(Base_Datos->Recorrer(
          QStringLiteral("SELECT * FROM Registros WHERE Id = %1 ORDER BY Secuencia").arg(id)))
{
}

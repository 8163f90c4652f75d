#include "export/Datos_Formateados.h"

std::optional<std::size_t>
Datos_Formateados::Columna(std::initializer_list<QStringView> nombres) const
{
    for (const QStringView nombre : nombres) {
        const qsizetype columna = campos.indexOf(nombre);
        if (columna >= 0) return std::size_t(columna);
    }
    return std::nullopt;
}

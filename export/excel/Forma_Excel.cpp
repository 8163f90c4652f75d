#include "export/excel/Forma_Excel.h"

#include "core/Error_Ejecucion.h"

namespace {

constexpr int HOJAS_DE_UN_LIBRO = 4096; ///< whose numbers fit in one record

constexpr Forma_Excel FORMAS[] = {
    {Version_Excel::Excel_3, u"Excel 3.0", 1, 16384, 256, 255, false, false},
    {Version_Excel::Excel_4, u"Excel 4.0", 1, 16384, 256, 255, false, false},
    {Version_Excel::Excel_5, u"Excel 5.0", HOJAS_DE_UN_LIBRO, 16384, 256, 255, false, true},
    {Version_Excel::Excel_8, u"Excel 8.0", HOJAS_DE_UN_LIBRO, 65536, 256, 32767, true, true},
};

} // namespace

std::span<const Forma_Excel> Formas_Excel()
{
    return FORMAS;
}

const Forma_Excel& Forma_De(Version_Excel version)
{
    return FORMAS[std::size_t(version)];
}

const Forma_Excel& Forma_De(const QString& conexion)
{
    for (const Forma_Excel& forma : FORMAS)
        if (conexion == QStringView(forma.nombre)) return forma;
    throw Error_Ejecucion(3170,
                          Descripcion_Error(3170) + QStringLiteral(" para \"%1\"").arg(conexion));
}

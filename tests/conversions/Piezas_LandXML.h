#pragma once

#include <QByteArray>

/// Pieces that small LandXML files are put together of.
namespace Piezas_LandXML {

inline const QByteArray EJE =
    "<CoordGeom><Line><Start>0 0</Start><End>100 0</End></Line></CoordGeom>";

inline QByteArray Fichero(const QByteArray& dentro, const QByteArray& unidades = {})
{
    return "<LandXML>" + unidades + "<Alignments>" + dentro + "</Alignments></LandXML>";
}

inline QByteArray Alineacion(const QByteArray& nombre, const QByteArray& dentro)
{
    return "<Alignment name=\"" + nombre + "\" length=\"1\" staStart=\"0\">" + dentro +
           "</Alignment>";
}

} // namespace Piezas_LandXML

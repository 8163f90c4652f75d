#pragma once

#include "conversions/secciones/Modelo_Secciones.h"

#include <QByteArray>

/// Writers of cross sections. The form is drawn in docs/formas/disenos.md.
namespace Escritor_Secciones {

/// The instrument's form: "station,offset,height" a line, three decimals, no heading.
QByteArray Ssp(const Secciones& secciones, const QString& destino);

} // namespace Escritor_Secciones

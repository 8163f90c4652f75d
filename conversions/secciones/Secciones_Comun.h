#pragma once

#include "conversions/secciones/Modelo_Secciones.h"
#include "conversions/suelo/Campos_Fuente.h"
#include "conversions/suelo/Texto_Fuente.h"

/// What the section readers share.
namespace Secciones_Comun {

/// Point from two numbers of the current line, missing when they couldn't be read.
/// @throws Fallo_Conversion naming the line when one is missing
Punto_Seccion Exigir_Punto(const Texto_Fuente& fuente, std::optional<double> desplazamiento,
                           std::optional<double> cota);

/// The same from two fields.
Punto_Seccion Leer_Punto(const Texto_Fuente& fuente, QByteArrayView desplazamiento,
                         QByteArrayView cota, Campos_Fuente::Marca marca);

/// Station from a field of the current line. @throws Fallo_Conversion naming the line
double Leer_PK(const Texto_Fuente& fuente, QByteArrayView campo, Campos_Fuente::Marca marca);

/// A section of a stated number of rows while it is being filled.
class Contada {
public:
    /// Opens the section of `pk` that has so many rows as `cuenta` tells.
    /// @throws Fallo_Conversion when `cuenta` is no number of rows
    void Abrir(const Texto_Fuente& fuente, double pk, QByteArrayView cuenta);
    bool Espera_Filas() const { return faltan > 0; }
    void Fila() { --faltan; }
    /// To be called where the section must be full. @throws Fallo_Conversion when rows are missing
    void Exigir_Completa() const;

private:
    qint64 faltan = 0;
    qint64 linea = 0;
    QString cabecera;
};

/// Sorts and hands over what was read. @throws Fallo_Conversion when no section has a point
Secciones Terminar(Secciones secciones);

} // namespace Secciones_Comun

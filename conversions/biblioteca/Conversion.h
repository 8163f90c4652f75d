#pragma once

#include "conversions/biblioteca/Tabla_Funciones.h"
#include "conversions/suelo/Texto_Fuente.h"

#include <functional>
#include <QFile>

/// The frame that every conversion of a file runs in, so that the functions of the library are rows
/// of reader and writer.
namespace Conversion {

/// What an omission means for the result: sections, point files and forms have no "partly bad".
enum class Omisiones { Dan_Menos_Uno, No_Cuentan };

/// Runs `producir`, which gives the bytes of the target, and writes them.
/// With result 0 no target file is left behind, and the report tells the reason. A target that is
/// the source itself is refused before anything is touched: it would cost the surveyor his design.
/// @return 1, -1 or 0
int Convertir(const Peticion_Funcion& peticion, Informe_Lectura& informe, Omisiones omisiones,
              const std::function<QByteArray()>& producir);

/// Opens a source file for reading. @throws Fallo_Conversion with the reason
void Abrir(QFile& fichero);

/// Name for what a file holds when the file doesn't tell: its own, without extension.
QString Nombre_De_Fichero(const QString& ruta);

/// The row's operation: read the text file with `Leer`, write the model with `Escribir`.
/// `Leer` is `Modelo (Texto_Fuente&, Informe_Lectura&)`, the model having a `nombre`;
/// `Escribir` is `QByteArray (const Modelo&, const QString& destino)`. Both may throw
/// Fallo_Conversion.
template <auto Leer, auto Escribir, Omisiones OMISIONES>
int Fichero(const Peticion_Funcion& p, Informe_Lectura& informe)
{
    return Convertir(p, informe, OMISIONES, [&] {
        QFile fichero(p.entrada);
        Abrir(fichero);
        Texto_Fuente fuente(fichero);
        auto modelo = Leer(fuente, informe);
        if (modelo.nombre.isEmpty()) modelo.nombre = Nombre_De_Fichero(p.entrada);
        return Escribir(modelo, p.salida);
    });
}

} // namespace Conversion

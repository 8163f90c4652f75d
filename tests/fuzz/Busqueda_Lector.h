#pragma once

#include "conversions/ejes/Lectores_Eje.h"
#include "conversions/instrumento/Escritor_Instrumento.h"
#include "conversions/landxml/Escritor_LandXML.h"
#include "conversions/rasantes/Lectores_Rasante.h"
#include "tests/fuzz/Busqueda.h"

#include <cstdint>
#include <cstdlib>
#include <QBuffer>

/// What the harnesses of axes and gradients share: whatever is read can be written in every form.
namespace Busqueda_Lector {

/// Every number that is written must be one.
inline void Comprobar(const QByteArray& salida)
{
    if (salida.contains("nan") || salida.contains("inf")) std::abort();
}

inline void Escribir(const Eje& eje)
{
    if (eje.elementos.empty()) std::abort();
    Comprobar(Escribir_Ssh(eje));
    Comprobar(Escribir_Hal(eje));
    Eje sin_nombre = eje; // a name may say anything
    sin_nombre.nombre.clear();
    Comprobar(Escribir_LandXML(sin_nombre, QDateTime()));
}

inline void Escribir(const Rasante& rasante)
{
    if (rasante.vertices.size() < 2) std::abort();
    Comprobar(Escribir_Rasante_Instrumento(rasante, {}));
    for (size_t i = 1; i < rasante.vertices.size(); ++i)
        if (!(rasante.vertices[i].pk > rasante.vertices[i - 1].pk) ||
            !(rasante.vertices[i].longitud >= 0))
            std::abort();
}

template <auto LEER> int Texto(const uint8_t* datos, std::size_t largo)
{
    return Buscar_En_Bytes(datos, largo, [](QIODevice& dispositivo, Informe_Lectura& informe) {
        Texto_Fuente fuente(dispositivo);
        Escribir(LEER(fuente, informe));
    });
}

} // namespace Busqueda_Lector

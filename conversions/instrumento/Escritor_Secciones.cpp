#include "conversions/instrumento/Escritor_Secciones.h"

#include "conversions/suelo/Cifras.h"

#include <vector>

QByteArray Escritor_Secciones::Ssp(const Secciones& secciones, const QString&)
{
    constexpr std::ptrdiff_t LINEA_MAXIMA = 3 * Cifras::FIJO_MAXIMO + 4;
    constexpr qsizetype LINEA_USUAL = 28;
    constexpr std::ptrdiff_t BLOQUE = 1 << 16;
    constexpr int DECIMALES = 3;
    qsizetype puntos = 0;
    for (const Seccion& s : secciones.Lista())
        puntos += qsizetype(s.puntos.size());
    QByteArray salida;
    salida.reserve(puntos * LINEA_USUAL);
    std::vector<char> bloque(BLOQUE + LINEA_MAXIMA);
    char* p = bloque.data();
    const auto vaciar = [&] {
        salida.append(bloque.data(), p - bloque.data());
        p = bloque.data();
    };
    for (const Seccion& s : secciones.Lista()) {
        char pk[Cifras::FIJO_MAXIMO];
        const char* const fin_pk = Cifras::Poner_Fijo(pk, s.pk, DECIMALES);
        for (const Punto_Seccion& q : s.puntos) {
            p = std::copy(static_cast<const char*>(pk), fin_pk, p);
            *p++ = ',';
            p = Cifras::Poner_Fijo(p, q.desplazamiento, DECIMALES);
            *p++ = ',';
            p = Cifras::Poner_Fijo(p, q.cota, DECIMALES);
            *p++ = '\r';
            *p++ = '\n';
            if (p - bloque.data() >= BLOQUE) vaciar();
        }
    }
    vaciar();
    return salida;
}

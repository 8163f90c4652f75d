#include "conversions/ejes/Lectores_Eje.h"
#include "conversions/suelo/Campos_Fuente.h"

using namespace Campos_Fuente;

namespace {

bool Son_Numeros(const Lista& campos, qsizetype desde, qsizetype cuantos)
{
    if (campos.size() < desde + cuantos) return false;
    for (qsizetype i = desde; i < desde + cuantos; ++i)
        if (!Numero_PK(campos[i])) return false;
    return true;
}

bool Es_Listado_Istram(const Lista& campos)
{
    const auto palabra = Palabra_De_Istram(campos);
    return palabra && Son_Numeros(campos, palabra->campo + 1, 4);
}

bool Es_Ispol(const Lista& campos)
{
    return campos.size() >= 7 && Son_Numeros(campos, 0, 4) && Clase_De_Palabra(campos[4]);
}

} // namespace

std::optional<Clase_Elemento> Clase_De_Palabra(QByteArrayView palabra)
{
    struct Palabra {
        const char* texto;
        Clase_Elemento clase;
    };
    static constexpr Palabra PALABRAS[] = {
        {"RECTA", Clase_Elemento::Recta},
        {"R", Clase_Elemento::Recta},
        {"CURVA", Clase_Elemento::Arco},
        {"CIRC", Clase_Elemento::Arco},
        {"C", Clase_Elemento::Arco},
        {"CLOT", Clase_Elemento::Clotoide},
        {"CLOTOIDE", Clase_Elemento::Clotoide},
        {"K", Clase_Elemento::Clotoide},
    };
    if (palabra.endsWith('.')) palabra.chop(1);
    for (const Palabra& p : PALABRAS)
        if (Iguales(palabra, p.texto)) return p.clase;
    return {};
}

std::optional<Palabra_Istram> Palabra_De_Istram(const Lista& campos)
{
    if (campos.isEmpty()) return {};
    bool numerada = false;
    campos[0].toByteArray().toLongLong(&numerada);
    const qsizetype i = numerada ? 1 : 0;
    if (i >= campos.size()) return {};
    QByteArrayView palabra = campos[i];
    if (palabra.endsWith('.')) palabra.chop(1);
    for (const char* tipo : {"RECTA", "CIRC", "CLOT"})
        if (Iguales(palabra, tipo)) return Palabra_Istram{*Clase_De_Palabra(palabra), i};
    return {};
}

Lector_Eje Reconocer_Eje(Texto_Fuente& fuente)
{
    Lector_Eje lector = nullptr;
    while (!lector && fuente.Siguiente()) {
        const QByteArrayView linea = Recortar(fuente.Linea());
        const Lista campos = Por_Blancos(linea);
        if (Empieza_Por(linea, "GENIO") || Empieza_Por(linea, "001FORMAT")) {
            lector = Leer_Eje_Mxroad;
        } else if (Empieza_Por(linea, "*PLT")) {
            lector = Leer_Eje_Plt;
        } else if (campos.size() > 1 &&
                   (Iguales(campos[0], "INICIO") || Iguales(campos[0], "ANGULOS"))) {
            lector = Leer_Eje_Htrazado;
        } else if (Es_Listado_Istram(campos)) {
            lector = Leer_Eje_Istram;
        } else if (Es_Ispol(campos)) {
            lector = Leer_Eje_Ispol;
        }
    }
    fuente.Rebobinar();
    return lector;
}

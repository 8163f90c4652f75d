#include "conversions/Lectores_Secciones.h"
#include "conversions/Secciones_Comun.h"

#include <algorithm>

using namespace Campos_Fuente;

namespace {

// First number behind the word CHAINAGE.
std::optional<double> PK_De(QByteArrayView linea)
{
    constexpr QByteArrayView PALABRA = "CHAINAGE";
    for (qsizetype i = 0; i + PALABRA.size() <= linea.size(); ++i) {
        if (!Empieza_Por(linea.sliced(i), PALABRA)) continue;
        QByteArrayView resto = Recortar(linea.sliced(i + PALABRA.size()));
        if (resto.startsWith(':') || resto.startsWith('=')) resto = resto.sliced(1);
        for (const QByteArrayView palabra : Por_Blancos(resto))
            if (const auto pk = Numero_PK(palabra, Marca::Punto_O_Coma)) return pk;
        return {};
    }
    return {};
}

// Page furniture between the sections. A row whose label merely begins like such a word is a row.
bool Es_Relleno(QByteArrayView linea, bool es_fila, QByteArrayView etiqueta)
{
    constexpr QByteArrayView PALABRAS[] = {"STRING", "LABEL", "END", "FINISH", "999"};
    if (QByteArrayView("*;#").contains(linea.front())) return true;
    return std::ranges::any_of(PALABRAS, [&](QByteArrayView palabra) {
        return es_fila ? Iguales(etiqueta, palabra) : Empieza_Por(linea, palabra);
    });
}

} // namespace

Secciones Lectores_Secciones::Mxroad(Texto_Fuente& fuente, Informe_Lectura&)
{
    Secciones secciones;
    std::optional<size_t> abierta;
    while (fuente.Siguiente()) {
        const QByteArrayView linea = Recortar(fuente.Linea());
        if (const auto pk = PK_De(linea)) {
            abierta = secciones.Abrir(*pk);
            continue;
        }
        if (!abierta) continue;
        const Lista campos = Por_Blancos(linea);
        const bool es_fila = campos.size() >= 3 && Numero(campos[1]) && Numero(campos[2]);
        if (Es_Relleno(linea, es_fila, campos[0])) continue;
        if (campos.size() < 3)
            fuente.Fallar(QStringLiteral("Faltan campos: etiqueta, desplazamiento y cota"));
        secciones.Anadir(*abierta, Secciones_Comun::Leer_Punto(fuente, campos[1], campos[2],
                                                               Marca::Punto_O_Coma));
    }
    return Secciones_Comun::Terminar(std::move(secciones));
}

#include "conversions/ejes/Lectores_Eje.h"
#include "conversions/ejes/Poligonal.h"

using namespace Campos_Fuente;

namespace {

constexpr qsizetype CAMPOS = 5;

/// A vertex line; missing trailing fields are 0, an empty field in the middle too.
bool Leer_Vertice(const Lista& campos, Vertice_Poligonal& v)
{
    double* const destinos[CAMPOS] = {&v.punto.x, &v.punto.y, &v.radio, &v.A1, &v.A2};
    if (campos.size() < 2) return false;
    for (qsizetype i = 0; i < std::min(campos.size(), CAMPOS); ++i) {
        if (i >= 2 && campos[i].isEmpty()) continue;
        const auto n = Numero(campos[i], Marca::Punto);
        if (!n) return false;
        *destinos[i] = *n;
    }
    return true;
}

} // namespace

Eje Leer_Eje_Plt(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    if (!fuente.Siguiente() || !fuente.Siguiente())
        throw Fallo_Conversion{QStringLiteral("Falta la línea del P.K. de inicio"), 0, {}};
    const auto pk = Numero_PK(Por_Separador(fuente.Linea(), ',')[0], Marca::Punto);
    if (!pk) fuente.Fallar(QStringLiteral("El P.K. de inicio no es un número"));
    std::vector<Vertice_Poligonal> vertices;
    while (fuente.Siguiente()) {
        Vertice_Poligonal v;
        if (Leer_Vertice(Por_Separador(fuente.Linea(), ','), v)) {
            v.linea = fuente.Numero();
            v.texto = fuente.Texto();
            vertices.push_back(std::move(v));
        } else {
            fuente.Omitir(informe, QStringLiteral("Vértice ilegible, se omite"));
        }
    }
    return Componer_Poligonal(std::move(vertices), *pk, informe);
}

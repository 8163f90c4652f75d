#include "conversions/rasantes/Lectores_Rasante.h"
#include "conversions/rasantes/Resolver_Rasante.h"
#include "conversions/suelo/Campos_Fuente.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace Campos_Fuente;

namespace {

/// Columns of a vertex line: slope %, length, Kv, station and elevation of the vertex, of entry, of
/// exit, bisector, difference of slopes %.
constexpr qsizetype COLUMNAS = 11;
constexpr qsizetype LONGITUD = 1, KV = 2, PK = 3, COTA = 4, DIFERENCIA = 10;

struct Fila {
    std::array<double, COLUMNAS> n{};
    qsizetype campos = 0;
    qsizetype leidos = 0; ///< how many of them are numbers
};

Fila Leer_Fila(QByteArrayView linea)
{
    const Lista campos = Por_Blancos(linea);
    Fila f;
    f.campos = campos.size();
    for (qsizetype i = 0; i < std::min(f.campos, COLUMNAS); ++i)
        if (const auto n = Numero_PK(campos[i])) {
            f.n[size_t(i)] = *n;
            ++f.leidos;
        }
    return f;
}

/// The listing gives the length twice: as it stands, and as Kv times the difference of slopes.
bool Concuerda(const Fila& f)
{
    constexpr double RELATIVA = 0.01, ABSOLUTA = 0.01;
    const double calculada = std::abs(f.n[KV] * f.n[DIFERENCIA] / 100);
    return std::abs(f.n[LONGITUD] - calculada) <= RELATIVA * std::abs(f.n[LONGITUD]) + ABSOLUTA;
}

} // namespace

Rasante Leer_Rasante_Istram(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    std::vector<Vertice_Fuente> vertices;
    QString nombre;
    const auto anadir = [&](double pk, double cota, double longitud) {
        vertices.push_back(
            {pk, cota, Dato_Acuerdo::Longitud, longitud, fuente.Numero(), fuente.Texto()});
    };
    for (bool acabada = false; !acabada && fuente.Siguiente();) {
        if (const auto eje = Nombre_Eje(fuente.Linea())) {
            if (!vertices.empty() && *eje != nombre) break;
            nombre = *eje;
            continue;
        }
        const Fila f = Leer_Fila(fuente.Linea());
        const bool completa = f.leidos == f.campos;
        if (f.campos == COLUMNAS && completa) {
            anadir(f.n[PK], f.n[COTA], f.n[LONGITUD]);
            if (!Concuerda(f))
                fuente.Omitir(informe, QStringLiteral("La longitud del acuerdo no es la de su Kv"));
        } else if (f.campos == COLUMNAS && f.leidos > COLUMNAS / 2) {
            fuente.Omitir(informe, QStringLiteral("Fila ilegible, se omite"));
        } else if (f.campos == 2 && completa && vertices.empty()) {
            anadir(f.n[0], f.n[1], 0);
        } else if (f.campos == 3 && completa && !vertices.empty()) {
            anadir(f.n[1], f.n[2], 0);
            acabada = true;
        }
    }
    Rasante rasante = Resolver_Rasante(vertices, informe);
    rasante.nombre = nombre;
    return rasante;
}

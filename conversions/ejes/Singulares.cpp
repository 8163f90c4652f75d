#include "conversions/ejes/Singulares.h"

#include "conversions/ejes/Geometria_Eje.h"

#include <cmath>

using namespace Geometria_Eje;

namespace {

const Fila_Singular* En(const std::vector<Fila_Singular>& filas, size_t i)
{
    return i < filas.size() ? &filas[i] : nullptr; // index -1 wraps and is no row either
}

double Curvatura_Vecina(const Fila_Singular* vecina)
{
    return vecina && vecina->clase == Clase_Elemento::Arco ? Curvatura(vecina->radio) : 0;
}

bool Es_Clotoide(const Fila_Singular* fila)
{
    return fila && fila->clase == Clase_Elemento::Clotoide;
}

/// Two clothoids that meet without an arc between them: the curvature at the common point follows
/// from the parameter, its side from the turn to the next row.
void Curvar_En_Punta(const Fila_Singular& fila, bool punta_detras, const Fila_Singular* siguiente,
                     Elemento_Eje& e)
{
    if (!siguiente || e.A == 0) return;
    const double giro = Giro(siguiente->azimut - fila.azimut);
    if (giro == 0) return;
    const double k = std::copysign(e.longitud / (e.A * e.A), giro);
    (punta_detras ? e.k2 : e.k1) = k;
}

/// Gives `e` its curvatures. @return what makes the element impossible, or an empty text
QString Curvar(const std::vector<Fila_Singular>& filas, size_t i, Elemento_Eje& e)
{
    const Fila_Singular& fila = filas[i];
    if (fila.longitud <= 0) return QStringLiteral("Longitud nula o negativa");
    if (fila.clase == Clase_Elemento::Recta) return {};
    if (fila.clase == Clase_Elemento::Arco) {
        e.k1 = e.k2 = Curvatura(fila.radio);
        return e.k1 == 0 ? QStringLiteral("Curva sin radio") : QString();
    }
    const Fila_Singular* antes = En(filas, i - 1);
    const Fila_Singular* detras = En(filas, i + 1);
    e.A = std::abs(fila.A) < RADIO_MINIMO ? 0 : std::abs(fila.A);
    e.k1 = Curvatura_Vecina(antes);
    e.k2 = Curvatura_Vecina(detras);
    if (e.k1 == 0 && e.k2 == 0 && Es_Clotoide(antes) != Es_Clotoide(detras))
        Curvar_En_Punta(fila, Es_Clotoide(detras), detras, e);
    if (e.k1 == e.k2) return QStringLiteral("Clotoide sin cambio de curvatura");
    if (e.k1 * e.k2 < 0) return QStringLiteral("Clotoide entre curvas de distinto lado");
    if (e.A == 0) e.A = std::sqrt(e.longitud / std::abs(e.k2 - e.k1));
    return {};
}

Elemento_Eje Cuerda(Punto_Plano desde, Punto_Plano hasta)
{
    return {Clase_Elemento::Recta, desde, Azimut(desde, hasta), Distancia(desde, hasta), 0, 0, 0};
}

} // namespace

Eje Componer_Singulares(const std::vector<Fila_Singular>& filas, bool hay_fin,
                        Informe_Lectura& informe)
{
    Eje eje;
    const size_t elementos = filas.size() - (hay_fin && !filas.empty() ? 1 : 0);
    for (size_t i = 0; i < elementos; ++i) {
        const Fila_Singular& fila = filas[i];
        const Fila_Singular* siguiente = En(filas, i + 1);
        Elemento_Eje e{fila.clase, fila.punto, fila.azimut, fila.longitud, 0, 0, 0};
        const QString defecto = Curvar(filas, i, e);
        if (!defecto.isEmpty()) {
            informe.Omitir(fila.linea, fila.texto,
                           defecto + (siguiente ? ", se sustituye por una recta" : ", se omite"));
            if (!siguiente) continue;
            e = Cuerda(fila.punto, siguiente->punto);
        }
        if (siguiente) {
            const double salto = Distancia(Final(e).punto, siguiente->punto);
            if (salto > SALTO_MAXIMO)
                informe.Omitir(fila.linea, fila.texto,
                               QStringLiteral("El elemento acaba a %1 m del punto siguiente")
                                   .arg(salto, 0, 'f', 3));
        }
        if (e.longitud < LONGITUD_MINIMA) continue;
        if (eje.elementos.empty()) eje.pk_inicio = fila.pk;
        eje.elementos.push_back(e);
    }
    if (eje.elementos.empty())
        throw Fallo_Conversion{QStringLiteral("No hay ningún elemento de alineación"), 0, {}};
    if (hay_fin) {
        eje.fin = filas.back().punto;
        eje.azimut_fin = filas.back().azimut;
    } else {
        const Situacion final = Final(eje.elementos.back());
        eje.fin = final.punto;
        eje.azimut_fin = final.azimut;
    }
    return eje;
}

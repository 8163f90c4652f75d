#include "conversions/ejes/Geometria_Eje.h"
#include "conversions/ejes/Lectores_Eje.h"
#include "conversions/ejes/Singulares.h"

using namespace Campos_Fuente;

namespace {

/// LONGITUD, P.K., X, Y, then AZIMUT; arc and clothoid have RADIO or PARAMETRO before the azimuth.
bool Leer_Fila(const Lista& campos, const Palabra_Istram& palabra, Fila_Singular& f)
{
    const bool recta = palabra.clase == Clase_Elemento::Recta;
    const qsizetype primero = palabra.campo + 1;
    if (campos.size() < primero + (recta ? 5 : 6)) return false;
    const auto pk = Numero_PK(campos[primero + 1]);
    double dato = 0;
    if (!pk || !Numeros(campos, primero, {&f.longitud}) ||
        !Numeros(campos, primero + 2, {&f.punto.x, &f.punto.y}))
        return false;
    if (recta ? !Numeros(campos, primero + 4, {&f.azimut})
              : !Numeros(campos, primero + 4, {&dato, &f.azimut}))
        return false;
    f.clase = palabra.clase;
    f.pk = *pk;
    f.azimut *= Geometria_Eje::GON;
    (f.clase == Clase_Elemento::Arco ? f.radio : f.A) = dato;
    return true;
}

/// The row that closes the axis: no word, P.K., X, Y, AZIMUT.
bool Leer_Fin(const Lista& campos, Fila_Singular& f)
{
    if (campos.size() != 4) return false;
    const auto pk = Numero_PK(campos[0]);
    if (!pk || !Numeros(campos, 1, {&f.punto.x, &f.punto.y, &f.azimut})) return false;
    f.pk = *pk;
    f.azimut *= Geometria_Eje::GON;
    return true;
}

} // namespace

Eje Leer_Eje_Istram(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    std::vector<Fila_Singular> filas;
    QString nombre;
    bool hay_fin = false, empezado = false;
    while (!hay_fin && fuente.Siguiente()) {
        const Lista campos = Por_Blancos(fuente.Linea());
        Fila_Singular f;
        f.linea = fuente.Numero();
        if (const auto palabra = Palabra_De_Istram(campos)) {
            empezado = true;
            if (Leer_Fila(campos, *palabra, f)) {
                f.texto = fuente.Texto();
                filas.push_back(std::move(f));
            } else {
                fuente.Omitir(informe, QStringLiteral("Fila ilegible, se omite"));
            }
        } else if (const auto eje = Nombre_Eje(fuente.Linea())) {
            // The heading is repeated on every page; another name begins another axis.
            if (empezado && *eje != nombre) break;
            nombre = *eje;
        } else if (empezado && Leer_Fin(campos, f)) {
            hay_fin = true;
            filas.push_back(std::move(f));
        }
    }
    Eje eje = Componer_Singulares(filas, hay_fin, informe);
    eje.nombre = nombre;
    return eje;
}

#include "conversions/ejes/Geometria_Eje.h"
#include "conversions/ejes/Lectores_Eje.h"
#include "conversions/ejes/Singulares.h"

using namespace Campos_Fuente;

namespace {

constexpr qsizetype CAMPOS_MINIMOS = 4;

bool Leer_Fila(const Lista& campos, Fila_Singular& f)
{
    if (campos.size() < CAMPOS_MINIMOS) return false;
    const auto pk = Numero_PK(campos[0]);
    if (!pk ||
        !Numeros(campos, 1, {&f.punto.x, &f.punto.y, &f.azimut, &f.radio, &f.A, &f.longitud}))
        return false;
    f.pk = *pk;
    f.azimut *= Geometria_Eje::GON;
    f.clase = f.A != 0       ? Clase_Elemento::Clotoide
              : f.radio != 0 ? Clase_Elemento::Arco
                             : Clase_Elemento::Recta;
    return true;
}

} // namespace

Eje Leer_Eje_Qsv(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    std::vector<Fila_Singular> filas;
    while (fuente.Siguiente()) {
        if (Es_Comentario(fuente.Linea())) continue;
        Fila_Singular f;
        if (Leer_Fila(Por_Blancos(fuente.Linea()), f)) {
            f.linea = fuente.Numero();
            f.texto = fuente.Texto();
            filas.push_back(std::move(f));
        } else {
            fuente.Omitir(informe, QStringLiteral("Fila ilegible, se omite"));
        }
    }
    return Componer_Singulares(filas, !filas.empty() && filas.back().longitud == 0, informe);
}

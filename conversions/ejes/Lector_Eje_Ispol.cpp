#include "conversions/ejes/Geometria_Eje.h"
#include "conversions/ejes/Lectores_Eje.h"
#include "conversions/ejes/Singulares.h"

using namespace Campos_Fuente;

namespace {

constexpr qsizetype TIPO = 4;

std::optional<Clase_Elemento> Clase_De_Tipo(QByteArrayView tipo)
{
    if (const auto clase = Clase_De_Palabra(tipo)) return clase;
    if (tipo.endsWith('.')) tipo.chop(1);
    if (tipo == "1") return Clase_Elemento::Recta;
    if (tipo == "2") return Clase_Elemento::Arco;
    if (tipo == "3") return Clase_Elemento::Clotoide;
    return {};
}

/// @return why the row can't be read, or an empty text
QString Leer_Fila(const Lista& campos, Fila_Singular& f)
{
    if (campos.size() <= TIPO) return QStringLiteral("Faltan columnas, la fila se omite");
    const auto pk = Numero_PK(campos[0]);
    const auto clase = Clase_De_Tipo(campos[TIPO]);
    if (!clase) return QStringLiteral("Tipo de elemento desconocido, la fila se omite");
    if (!pk || !Numeros(campos, 1, {&f.punto.x, &f.punto.y, &f.azimut}) ||
        !Numeros(campos, TIPO + 1, {&f.radio, &f.longitud}))
        return QStringLiteral("Fila ilegible, se omite");
    f.pk = *pk;
    f.azimut *= Geometria_Eje::GON;
    f.clase = *clase;
    return {};
}

} // namespace

Eje Leer_Eje_Ispol(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    std::vector<Fila_Singular> filas;
    while (fuente.Siguiente()) {
        if (Es_Comentario(fuente.Linea())) continue;
        Fila_Singular f;
        const QString defecto = Leer_Fila(Por_Blancos(fuente.Linea()), f);
        if (defecto.isEmpty()) {
            f.linea = fuente.Numero();
            f.texto = fuente.Texto();
            filas.push_back(std::move(f));
        } else {
            fuente.Omitir(informe, defecto);
        }
    }
    return Componer_Singulares(filas, !filas.empty() && filas.back().longitud == 0, informe);
}

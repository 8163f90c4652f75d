#include "session/Dialogos_Pequenos.h"

#include "core/Basico.h"
#include "core/Trozos.h"

#include <cmath>

namespace {

enum Imagen { RAIZ = 1, PUNTO = 2, CABE = 3, DESBORDA = 4 };

// First magnitude that the instrument's field has no room for.
constexpr double LIMITE = 10000000;

} // namespace

QStringList Nombres_Separador()
{
    QStringList nombres;
    for (const Fila_Separador& fila : Separadores())
        nombres << fila.pregunta;
    return nombres;
}

Nodo_Coordenada Arbol_Coordenadas(const QString& lista)
{
    Nodo_Coordenada raiz{"Puntos/Coordenadas", RAIZ, {}};
    for (const QString& punto : lista.split(QChar(SEP_LISTA))) {
        Nodo_Coordenada nodo{Trozo(1, punto, SEP_CAMPO), PUNTO, {}};
        for (int eje = 0; eje < 3; ++eje) {
            const QString valor = Trozo(eje + 2, punto, SEP_CAMPO);
            const bool cabe = std::fabs(Basico::Val(valor)) < LIMITE;
            nodo.hijos.append(
                {QStringList{"X: ", "Y: ", "Z: "}[eje] + valor, cabe ? CABE : DESBORDA, {}});
        }
        raiz.hijos.append(nodo);
    }
    return raiz;
}

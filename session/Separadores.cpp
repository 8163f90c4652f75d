#include "session/Separadores.h"

#include "core/Trozos.h"

#include <algorithm>

namespace {

const Fila_Separador SEPARADORES[] = {
    {" Espacio ( )", "<Espacio>", "espacio", u' '},
    {" Coma (,)", "<Coma (,)>", "coma", u','},
    {" Tabulación (|)", "<Tabulación>", "tabulacion", u'\t'},
};

} // namespace

std::span<const Fila_Separador> Separadores()
{
    return SEPARADORES;
}

int Indice_Separador(QStringView palabra)
{
    const auto fila = std::ranges::find(SEPARADORES, palabra, &Fila_Separador::palabra);
    return fila == std::end(SEPARADORES) ? -1 : int(fila - std::begin(SEPARADORES));
}

QString Tag_Separador()
{
    QStringList caracteres;
    for (const Fila_Separador& fila : SEPARADORES)
        caracteres << fila.caracter;
    return caracteres.join(QChar(SEP_LISTA));
}

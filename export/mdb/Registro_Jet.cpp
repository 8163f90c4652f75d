#include "export/mdb/Registro_Jet.h"

#include "core/Error_Ejecucion.h"
#include "export/mdb/Texto_Jet.h"

#include <cstring>

namespace Jet {

Registro::Registro(int columnas_tabla, int bytes_fijos, int columnas_variables)
    : columnas(columnas_tabla), fijos(bytes_fijos), variables(columnas_variables),
      largo_mascara((columnas_tabla + 7) / 8)
{
    Empezar();
}

void Registro::Empezar()
{
    fin = COLUMNAS + fijos;
    std::memset(bytes.data(), 0, static_cast<std::size_t>(fin));
    qToLittleEndian<quint16>(static_cast<quint16>(columnas), bytes.data());
    mascara.fill(0);
    puestas = 0;
}

void Registro::Presente(int id)
{
    mascara[static_cast<std::size_t>(id / 8)] |= static_cast<uchar>(1U << (id % 8));
}

// Room for a variable value at the end; the next one begins behind it.
uchar* Registro::Hueco(qsizetype largo)
{
    if (largo > LARGO_MAXIMO - fin) throw Error_Ejecucion(3047);
    inicios[static_cast<std::size_t>(puestas++)] = static_cast<quint16>(fin);
    uchar* const hueco = bytes.data() + fin;
    fin += static_cast<int>(largo);
    return hueco;
}

void Registro::Nulo()
{
    Hueco(0);
}

void Registro::Variable(int id, QByteArrayView valor)
{
    uchar* const hueco = Hueco(valor.size());
    if (!valor.isEmpty()) std::memcpy(hueco, valor.data(), static_cast<std::size_t>(valor.size()));
    Presente(id);
}

void Registro::Texto(int id, QStringView valor, bool comprimido)
{
    const Texto_Cifrado cifrado(valor, comprimido);
    cifrado.Escribir(Hueco(cifrado.Largo()));
    Presente(id);
}

QByteArrayView Registro::Acabado()
{
    const int cola = 2 * (variables + 1) + 2 + largo_mascara;
    if (cola > LARGO_MAXIMO - fin) throw Error_Ejecucion(3047);
    uchar* p = bytes.data() + fin;
    const auto anadir = [&p](int v) {
        qToLittleEndian<quint16>(static_cast<quint16>(v), p);
        p += 2;
    };
    anadir(fin);
    for (int v = variables; v-- > 0;)
        anadir(inicios[static_cast<std::size_t>(v)]);
    anadir(variables);
    std::memcpy(p, mascara.data(), static_cast<std::size_t>(largo_mascara));
    return {bytes.data(), fin + cola};
}

} // namespace Jet

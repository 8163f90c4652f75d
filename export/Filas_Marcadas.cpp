#include "export/Filas_Marcadas.h"

#include "core/Trozos.h"
#include "session/Texto_Nivel.h"

#include <algorithm>

namespace {

const Marca_Fila MARCAS[] = {
    {SEP_LISTA, QStringLiteral("Cabecera"), QStringLiteral("t")},
    {SEP_CAMPO, QStringLiteral("Resumen"), QStringLiteral("w")},
};

} // namespace

const Marca_Fila* Marca_De(QChar primera)
{
    const auto marca = std::ranges::find(MARCAS, primera, &Marca_Fila::codigo);
    return marca == std::end(MARCAS) ? nullptr : &*marca;
}

QString Linea_Campos_Nivel(Base& bd, const QString& linea, const QString& id)
{
    return Texto_Campos(bd, id, linea);
}

QString Textos_Marcados::Siguiente(const Marca_Fila& marca, const QString& enlace)
{
    return marca.nombre + enlace + Linea_Campos_Nivel(bd, especiales.value(siguiente++), marca.id);
}

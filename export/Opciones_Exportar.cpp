#include "export/Opciones_Exportar.h"

#include "core/Trozos.h"

namespace {

const QString SI = QStringLiteral("S"), NO = QStringLiteral("N");

} // namespace

QString Opciones_Texto::Unir() const
{
    return separador + QChar(SEP_LISTA) + (titulos ? SI : NO);
}

Opciones_Texto Opciones_Texto::De(const QString& texto)
{
    return {Trozo(1, texto, SEP_LISTA), Trozo(2, texto, SEP_LISTA) == SI};
}

QString Opciones_Libro::Unir() const
{
    return (titulos ? SI : NO) + QChar(SEP_LISTA) + conexion;
}

Opciones_Libro Opciones_Libro::De(const QString& texto)
{
    return {Trozo(1, texto, SEP_LISTA) == SI, Trozo(2, texto, SEP_LISTA)};
}

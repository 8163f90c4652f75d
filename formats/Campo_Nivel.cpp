#include "formats/Campo_Nivel.h"

#include "core/Basico.h"

namespace {

constexpr qsizetype ANCHO_NOMBRE_NIVEL = 40;
// Nobody reads the second character of the mark.
constexpr QChar RELLENO_MARCA = u'0';

} // namespace

QString Clave_De(Mitad_Nivel mitad)
{
    return QString::number(int(mitad));
}

QString Marcar_Campo_Nivel(const QString& nombre, Mitad_Nivel mitad)
{
    return nombre.leftJustified(ANCHO_NOMBRE_NIVEL, u' ', true) + Clave_De(mitad) + RELLENO_MARCA;
}

QString Nombre_Campo_Nivel(const QString& campo)
{
    return Basico::Trim(campo.left(ANCHO_NOMBRE_NIVEL));
}

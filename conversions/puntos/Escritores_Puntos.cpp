#include "conversions/puntos/Escritores_Puntos.h"

#include "conversions/suelo/Campos_Fuente.h"
#include "conversions/suelo/Informe_Lectura.h"
#include "core/Ansi.h"
#include "core/Basico.h"
#include "core/Sumas.h"

namespace {

QByteArray Linea_Nivel(const QString& contenido)
{
    return Ansi::A_Bytes(contenido + Suma_Nivel(contenido)) + ",\r\n";
}

QString Decimas_De_Milimetro(const Punto& p)
{
    const auto cota = Campos_Fuente::Numero(Ansi::A_Bytes(p.z), Campos_Fuente::Marca::Punto);
    if (!cota) throw Fallo_Conversion{QStringLiteral("La cota no es un número"), 0, p.nombre};
    return QString::number(
        Basico::Formato(*cota, QStringLiteral("0.0000")).remove(u',').toLongLong());
}

} // namespace

QByteArray Escritores_Puntos::Krt(const Puntos& puntos, const QString&)
{
    QByteArray salida;
    for (const Punto& p : puntos.lista)
        salida += Ansi::A_Bytes(QStringList{p.nombre, p.x, p.y, p.z, p.codigo}.join(u',')) + "\r\n";
    return salida;
}

QByteArray Escritores_Puntos::X(const Puntos& puntos, const QString&)
{
    QByteArray salida = Linea_Nivel(QStringLiteral("A,01,"));
    for (const Punto& p : puntos.lista)
        salida +=
            Linea_Nivel(QStringLiteral("b,02,") +
                        QStringList{p.nombre, p.codigo, Decimas_De_Milimetro(p)}.join(u',') + u',');
    return salida + Linea_Nivel(QStringLiteral("Z,"));
}

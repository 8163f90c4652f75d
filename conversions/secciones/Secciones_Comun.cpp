#include "conversions/secciones/Secciones_Comun.h"

#include <cmath>

namespace Secciones_Comun {

Punto_Seccion Exigir_Punto(const Texto_Fuente& fuente, std::optional<double> desplazamiento,
                           std::optional<double> cota)
{
    if (!desplazamiento)
        fuente.Fallar(QStringLiteral("El desplazamiento del punto no es un número"));
    if (!cota) fuente.Fallar(QStringLiteral("La cota del punto no es un número"));
    return {*desplazamiento, *cota};
}

Punto_Seccion Leer_Punto(const Texto_Fuente& fuente, QByteArrayView desplazamiento,
                         QByteArrayView cota, Campos_Fuente::Marca marca)
{
    return Exigir_Punto(fuente, Campos_Fuente::Numero(desplazamiento, marca),
                        Campos_Fuente::Numero(cota, marca));
}

double Leer_PK(const Texto_Fuente& fuente, QByteArrayView campo, Campos_Fuente::Marca marca)
{
    const auto pk = Campos_Fuente::Numero_PK(campo, marca);
    if (!pk) fuente.Fallar(QStringLiteral("El P.K. del perfil no es un número"));
    return *pk;
}

void Contada::Abrir(const Texto_Fuente& fuente, double pk, QByteArrayView cuenta)
{
    const auto n = Campos_Fuente::Numero(cuenta);
    if (!n || *n < 0 || *n != std::floor(*n))
        fuente.Fallar(QStringLiteral("El número de puntos del perfil no es un número entero"));
    faltan = qint64(*n);
    linea = fuente.Numero();
    cabecera = QString::number(pk, 'f', 3);
}

void Contada::Exigir_Completa() const
{
    if (faltan > 0)
        throw Fallo_Conversion{QStringLiteral("Faltan %1 puntos del perfil").arg(faltan), linea,
                               cabecera};
}

Secciones Terminar(Secciones secciones)
{
    secciones.Ordenar();
    if (secciones.Vacia())
        throw Fallo_Conversion{QStringLiteral("El fichero no contiene ningún perfil"), 0, {}};
    return secciones;
}

} // namespace Secciones_Comun

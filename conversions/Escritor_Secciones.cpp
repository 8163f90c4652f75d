#include "conversions/Escritor_Secciones.h"

#include "conversions/Escritura.h"

QByteArray Escritor_Secciones::Ssp(const Secciones& secciones, const QString&)
{
    QByteArray salida;
    for (const Seccion& s : secciones.Lista()) {
        const QByteArray pk = Escritura::Fijo(s.pk, 3) + ',';
        for (const Punto_Seccion& p : s.puntos) {
            salida += pk;
            Escritura::Anadir_Fijo(salida, p.desplazamiento, 3);
            salida += ',';
            Escritura::Anadir_Fijo(salida, p.cota, 3);
            salida += "\r\n";
        }
    }
    return salida;
}

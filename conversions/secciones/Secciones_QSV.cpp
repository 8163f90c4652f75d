#include "conversions/secciones/Lectores_Secciones.h"
#include "conversions/secciones/Secciones_Comun.h"

using namespace Campos_Fuente;

Secciones Lectores_Secciones::Qsv(Texto_Fuente& fuente, Informe_Lectura&)
{
    Secciones secciones;
    while (fuente.Siguiente()) {
        double n[3];
        if (Numeros_Llanos(fuente.Linea(), ' ', Marca::Punto_O_Coma, n)) {
            secciones.Anadir(secciones.Abrir(n[0]), {n[1], n[2]});
            continue;
        }
        if (Es_Comentario(fuente.Linea())) continue;
        const Lista campos = Por_Blancos(fuente.Linea());
        if (campos.size() < 3)
            fuente.Fallar(QStringLiteral("Faltan campos: P.K., desplazamiento y cota"));
        const double pk = Secciones_Comun::Leer_PK(fuente, campos[0], Marca::Punto_O_Coma);
        const Punto_Seccion punto =
            Secciones_Comun::Leer_Punto(fuente, campos[1], campos[2], Marca::Punto_O_Coma);
        secciones.Anadir(secciones.Abrir(pk), punto);
    }
    return Secciones_Comun::Terminar(std::move(secciones));
}

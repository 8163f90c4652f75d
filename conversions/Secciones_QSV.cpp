#include "conversions/Lectores_Secciones.h"
#include "conversions/Secciones_Comun.h"

using namespace Campos_Fuente;

Secciones Lectores_Secciones::Qsv(Texto_Fuente& fuente, Informe_Lectura&)
{
    Secciones secciones;
    while (fuente.Siguiente()) {
        if (Es_Comentario(fuente.Linea())) continue;
        const Lista campos = Por_Blancos(fuente.Linea());
        if (campos.size() < 3)
            fuente.Fallar(QStringLiteral("Faltan campos: P.K., desplazamiento y cota"));
        const double pk = Secciones_Comun::Leer_PK(fuente, campos[0], Marca::Punto_O_Coma);
        secciones.Anadir(
            secciones.Abrir(pk),
            Secciones_Comun::Leer_Punto(fuente, campos[1], campos[2], Marca::Punto_O_Coma));
    }
    return Secciones_Comun::Terminar(std::move(secciones));
}

#include "export/Trampa_Escritor.h"

#include "core/ModEstTotal.h"

#include <algorithm>

bool Con_Trampa(const Fallos_Escritor& fallos, const std::function<void()>& escritura)
{
    try {
        escritura();
        return true;
    } catch (...) {
        const Error_Ejecucion error = Error_En_Curso();
        const auto aviso = std::ranges::find(fallos.propios, error.numero, &Aviso_De_Fallo::numero);
        if (aviso == fallos.propios.end())
            Informe_Error(QString::fromUtf16(fallos.general), error);
        else
            Interfaz_Actual().Mensaje(QString::fromUtf16(aviso->texto), aviso->icono,
                                      QString::fromUtf16(aviso->titulo));
        return false;
    }
}

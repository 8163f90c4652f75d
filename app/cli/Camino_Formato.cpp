#include "app/cli/Camino_Formato.h"

#include "core/ModEstTotal.h"
#include "session/Desplazamiento.h"
#include "session/Peticiones_Sesion.h"

namespace {

// Answers for the dialogs of the road while it lives.
class Respuestas {
public:
    explicit Respuestas(const Camino_Formato& camino)
        : formatos(Peticiones_De_Formatos()), sesion(Peticiones_De_Sesion())
    {
        Offset_Exportar = camino.desplazamiento.has_value();
        Peticiones_De_Sesion().Pedir_Desplazamientos = [&camino](bool x, bool y, bool z,
                                                                 const QString& forma) {
            const QStringList& d = *camino.desplazamiento;
            // A box that is disabled stays empty.
            Poner_Desplazamientos(x ? d[0] : QString(), y ? d[1] : QString(), z ? d[2] : QString(),
                                  forma);
            return true;
        };
        Peticiones_De_Formatos().Abrir_Exportar = camino.abrir;
        Peticiones_De_Formatos().Abrir_Imprimir = camino.abrir;
    }
    ~Respuestas()
    {
        Peticiones_De_Formatos() = formatos;
        Peticiones_De_Sesion() = sesion;
    }
    Respuestas(const Respuestas&) = delete;
    Respuestas& operator=(const Respuestas&) = delete;

private:
    Peticiones_Formatos formatos;
    Peticiones_Sesion sesion;
};

} // namespace

bool Recorrer(const Camino_Formato& camino, const Contexto& contexto)
{
    if (!Comprobar_Hay_Registros(*Base_Datos, camino.sesion.id)) return false;
    const Respuestas respuestas(camino);
    Formato_Existente formato(camino.sesion, camino.destino);
    if (!formato.Ver()) return false;
    const qsizetype indice = formato.nombres.indexOf(camino.formato);
    if (indice < 0) {
        contexto.Mensaje("No existe el formato " + camino.formato +
                         " para la sesión; los hay: " + formato.nombres.join(", "));
        return false;
    }
    formato.Elegir(int(indice));
    camino.cambiar(formato);
    formato.Aceptar([] {});
    return true;
}

#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Export.h"
#include "core/Ficheros_Propios.h"
#include "core/ModEstTotal.h"
#include "export/plano/Plano_De_Datos.h"
#include "export/ui/Pintor_Plano.h"

#include <algorithm>
#include <QFile>

int Orden_Plano(const Contexto& c, const QStringList& palabras)
{
    const Argumentos a(palabras, {"salida", "escala"});
    const int id = Numero_De(a.Sueltos(1, 1).first(), "ID");
    const QString fichero = a.Obligada("salida");
    const int escala = a.Hay("escala") ? a.Numero("escala") : 0;
    if (a.Hay("escala") && escala <= 0) throw Error_Uso{"La escala debe ser mayor que cero"};
    const QString finales[] = {".png", ".pdf", ".svg"};
    if (std::ranges::none_of(finales, [&](const QString& final) {
            return fichero.endsWith(final, Qt::CaseInsensitive);
        }))
        throw Error_Uso{"El fichero de salida debe ser .png, .pdf o .svg: " + fichero};
    const Instalacion instalacion(c);
    const Sesion_Elegida sesion = instalacion.Elegir_Sesion(id);
    if (!Comprobar_Hay_Registros(*Base_Datos, sesion.id)) return RECHAZADO;
    Comprobar_Destino(fichero);
    if (QFile::exists(fichero) &&
        !Interfaz_Actual().Preguntar("El fichero ya existe, ¿ Desea reemplazarlo?",
                                     Icono::Exclamacion))
        return RECHAZADO;
    const Plano_Hecho hecho = Plano_De_Sesion(*Base_Datos, sesion);
    const Hoja_Plano hoja = Preparar_Hoja(hecho.plano, escala);
    Guardar_Hoja(hecho.plano, hoja, fichero);
    c.Mensaje(QStringLiteral("%1 puntos, escala 1:").arg(hecho.plano.puntos.size()) +
              Basico::Texto_Numero(hoja.escala));
    if (hecho.omitidos > 0)
        c.Mensaje(QStringLiteral("Puntos sin coordenadas, que no se han dibujado: %1")
                      .arg(hecho.omitidos));
    return HECHO;
}

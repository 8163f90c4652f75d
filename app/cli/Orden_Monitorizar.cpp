#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Conversion.h"
#include "conversions/biblioteca/Flujo_Monitorizar.h"
#include "core/ModEstTotal.h"

#include <QFileInfo>

int Orden_Monitorizar(const Contexto& c, const QStringList& palabras)
{
    using Textos = Monitorizacion::Textos;
    static constexpr std::pair<const char*, QString Textos::*> TEXTOS[] = {
        {"trabajo", &Textos::trabajo},   {"descripcion", &Textos::descripcion},
        {"operario", &Textos::operario}, {"temperatura", &Textos::temperatura},
        {"fecha", &Textos::fecha},       {"hora", &Textos::hora},
    };
    QStringList con_valor{"lecturas", "coordenadas", "salida"};
    for (const auto& [opcion, texto] : TEXTOS)
        con_valor << opcion;
    const Argumentos a(palabras, con_valor, {"excel"});
    a.Sueltos(0, 0);
    const QString lecturas = a.Obligada("lecturas"), coordenadas = a.Obligada("coordenadas");
    const QString salida = a.Obligada("salida");
    const Interfaz_Consola interfaz(c);
    Ruta_Aplicacion = c.dir;
    if (QFileInfo::exists(salida) &&
        !Interfaz_Actual().Preguntar(salida + " ya existe.\r\n¿Desea reemplazarlo?"))
        return RECHAZADO;

    Flujo_Monitorizar flujo;
    flujo.salida = a.Hay("excel") ? Salida_Monitorizar::Excel : Salida_Monitorizar::Ascii;
    flujo.Tomar(lecturas, coordenadas);
    for (const auto& [opcion, texto] : TEXTOS)
        if (a.Hay(opcion)) flujo.textos.*texto = a.Opcion(opcion);
    Informe_Lectura informe;
    const bool hecho = flujo.Escribir(salida, informe);
    for (const QString& linea : informe.Lineas())
        c.Mensaje(linea);
    c.Mensaje(hecho ? "Fichero generado correctamente" : "ERROR: Fichero no generado");
    return hecho ? HECHO : RECHAZADO;
}

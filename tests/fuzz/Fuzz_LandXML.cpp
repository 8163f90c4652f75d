// What a file lists can be read by its list, or is refused with a reason.

#include "conversions/instrumento/Escritor_Secciones.h"
#include "conversions/landxml/Lectores_LandXML.h"
#include "tests/fuzz/Busqueda_Lector.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, std::size_t largo)
{
    QStringList rasantes, secciones;
    Buscar_En_Bytes(datos, largo, [&](QIODevice& f, Informe_Lectura&) { Listar_Ejes_LandXML(f); });
    Buscar_En_Bytes(datos, largo,
                    [&](QIODevice& f, Informe_Lectura&) { rasantes = Listar_Rasantes_LandXML(f); });
    Buscar_En_Bytes(datos, largo, [&](QIODevice& f, Informe_Lectura&) {
        secciones = Listar_Secciones_LandXML(f);
    });
    Buscar_En_Bytes(datos, largo, [&](QIODevice& f, Informe_Lectura& informe) {
        Busqueda_Lector::Escribir(Leer_Eje_LandXML(f, 0, informe));
    });
    if (!rasantes.isEmpty())
        Buscar_En_Bytes(datos, largo, [&](QIODevice& f, Informe_Lectura& informe) {
            Busqueda_Lector::Escribir(Leer_Rasante_LandXML(f, rasantes[0], informe));
        });
    if (!secciones.isEmpty())
        Buscar_En_Bytes(datos, largo, [&](QIODevice& f, Informe_Lectura& informe) {
            const qsizetype corte = secciones[0].indexOf(u':');
            Busqueda_Lector::Comprobar(Escritor_Secciones::Ssp(
                Leer_Secciones_LandXML(f, secciones[0].left(corte), secciones[0].mid(corte + 1),
                                       informe),
                {}));
        });
    return 0;
}

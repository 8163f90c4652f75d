#include "conversions/biblioteca/Conversion.h"
#include "conversions/biblioteca/Fichero_Lista.h"
#include "conversions/instrumento/Escritor_Instrumento.h"
#include "conversions/instrumento/Escritor_Secciones.h"
#include "conversions/landxml/Lectores_LandXML.h"

namespace {

using Conversion::Omisiones;

/// Runs `convertir` on the opened source.
int Con_Fuente(const Peticion_Funcion& p, Informe_Lectura& informe, Omisiones omisiones,
               const std::function<QByteArray(QIODevice&)>& convertir)
{
    return Conversion::Convertir(p, informe, omisiones, [&] {
        QFile fichero(p.entrada);
        Conversion::Abrir(fichero);
        return convertir(fichero);
    });
}

int Eje_Al_Instrumento(const Peticion_Funcion& p, Informe_Lectura& informe)
{
    return Con_Fuente(p, informe, Omisiones::Dan_Menos_Uno, [&](QIODevice& fuente) {
        bool bien = false;
        const int indice = p.datos[0].toInt(&bien);
        if (!bien)
            throw Fallo_Conversion{QStringLiteral("El índice no es un número"), 0, p.datos[0]};
        return Escribir_Eje_Instrumento(Leer_Eje_LandXML(fuente, indice, informe), p.salida);
    });
}

int Rasante_Al_Instrumento(const Peticion_Funcion& p, Informe_Lectura& informe)
{
    return Con_Fuente(p, informe, Omisiones::Dan_Menos_Uno, [&](QIODevice& fuente) {
        return Escribir_Rasante_Instrumento(Leer_Rasante_LandXML(fuente, p.datos[0], informe),
                                            p.salida);
    });
}

int Secciones_Al_Instrumento(const Peticion_Funcion& p, Informe_Lectura& informe)
{
    return Con_Fuente(p, informe, Omisiones::No_Cuentan, [&](QIODevice& fuente) {
        return Escritor_Secciones::Ssp(
            Leer_Secciones_LandXML(fuente, p.datos[0], p.datos[1], informe), p.salida);
    });
}

template <QStringList (*LISTAR)(QIODevice&)>
int Listar(const Peticion_Funcion& p, Informe_Lectura& informe)
{
    return Listar_En_Fichero(p, informe, LISTAR);
}

} // namespace

std::vector<Funcion> Filas_LandXML()
{
    return {
        {"alandxml2krt", "INDICE ENTRADA SALIDA [APLICACION]", Eje_Al_Instrumento},
        {"rlandxml2krt", "RASANTE ENTRADA SALIDA", Rasante_Al_Instrumento},
        {"tralandxml2krt", "ALINEACION SUPERFICIE ENTRADA SALIDA", Secciones_Al_Instrumento},
        {"seleccionaEjeLandXML", "ENTRADA [SALIDA]", Listar<Listar_Ejes_LandXML>},
        {"seleccionaRasanteLandXML", "ENTRADA [SALIDA]", Listar<Listar_Rasantes_LandXML>},
        {"seleccionaTransverLandXML", "ENTRADA [SALIDA]", Listar<Listar_Secciones_LandXML>},
    };
}

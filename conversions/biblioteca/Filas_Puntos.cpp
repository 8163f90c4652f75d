#include "conversions/biblioteca/Conversion.h"
#include "conversions/puntos/Bronex_COD.h"
#include "conversions/puntos/Escritores_Puntos.h"
#include "conversions/puntos/Lectores_Puntos.h"
#include "conversions/puntos/Monitorizacion.h"
#include "conversions/puntos/Nivel_IGN.h"
#include "conversions/suelo/Destino.h"
#include "core/Ficheros.h"

using namespace Conversion;

namespace {

int Nivel_A_Ign(const Peticion_Funcion& p, Informe_Lectura& informe)
{
    return Convertir(p, informe, Omisiones::No_Cuentan, [&] {
        QFile fichero(p.entrada);
        Abrir(fichero);
        Texto_Fuente fuente(fichero);
        return Nivel_IGN::Escribir(Nivel_IGN::Leer(fuente, informe), p.datos);
    });
}

// The dialog that asked reads three lines whatever the result.
int Procesar_Cabecera(const Peticion_Funcion& p, Informe_Lectura& informe)
{
    const int hecho = Convertir(p, informe, Omisiones::No_Cuentan, [&] {
        QFile fichero(p.entrada);
        Abrir(fichero);
        Texto_Fuente fuente(fichero);
        return Monitorizacion::Escribir_Cabecera(Monitorizacion::Leer_Cabecera(fuente));
    });
    if (hecho == 0 && !p.salida.isEmpty() && !Destino::Mismo_Fichero(p.entrada, p.salida))
        Ficheros::Escribir(p.salida, Monitorizacion::Escribir_Cabecera({}));
    return hecho;
}

int Procesar_Robotizada(const Peticion_Funcion& p, Informe_Lectura& informe)
{
    if (Destino::Mismo_Fichero(p.datos[0], p.salida)) {
        informe.Fallar(
            {QStringLiteral("El fichero destino debe ser diferente al origen"), 0, p.salida});
        return 0;
    }
    return Convertir(p, informe, Omisiones::No_Cuentan, [&] {
        QFile coordenadas(p.datos[0]), lecturas(p.entrada);
        Abrir(coordenadas);
        Abrir(lecturas);
        Texto_Fuente de_coordenadas(coordenadas), de_lecturas(lecturas);
        const auto referencias = Monitorizacion::Leer_Coordenadas(de_coordenadas, informe);
        const auto medidas = Monitorizacion::Leer_Lecturas(de_lecturas, referencias, informe);
        return Monitorizacion::Escribir_Resultados(
            medidas, referencias,
            {p.datos[1], p.datos[2], p.datos[3], p.datos[4], p.datos[5], p.datos[6]});
    });
}

} // namespace

std::vector<Funcion> Filas_Puntos()
{
    return {
        {"puntos2krt", "ENTRADA SALIDA",
         Fichero<Lectores_Puntos::Blancos, Escritores_Puntos::Krt, Omisiones::No_Cuentan>},
        {"puntos2nivel", "ENTRADA SALIDA",
         Fichero<Lectores_Puntos::Nivel, Escritores_Puntos::X, Omisiones::Dan_Menos_Uno>},
        {"lectkrt2bronex", "ENTRADA SALIDA",
         Fichero<Leer_Bronex, Escribir_Bronex, Omisiones::No_Cuentan>},
        {"anivel2ing", "ENTRADA SALIDA SERIE MIRA1 MIRA2 OPERADOR EMPRESA", Nivel_A_Ign},
        {"procesaCabecera", "ENTRADA SALIDA", Procesar_Cabecera},
        {"procesaRobotizada",
         "ENTRADA COORDENADAS SALIDA TRABAJO DESCRIPCION OPERARIO TEMPERATURA FECHA HORA",
         Procesar_Robotizada},
    };
}

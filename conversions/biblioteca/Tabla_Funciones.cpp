#include "conversions/biblioteca/Tabla_Funciones.h"

#include "core/Error_Ejecucion.h"

#include <algorithm>

namespace {

QStringList Nombres_Argumentos(const Funcion& f)
{
    return QString::fromLatin1(f.argumentos).split(u' ');
}

Peticion_Funcion Repartir(const Funcion& f, const QStringList& argumentos)
{
    Peticion_Funcion p;
    const QStringList nombres = Nombres_Argumentos(f);
    for (qsizetype i = 0; i < argumentos.size(); ++i) {
        if (nombres[i] == u"ENTRADA") {
            p.entrada = argumentos[i];
        } else if (nombres[i] == u"SALIDA" || nombres[i] == u"[SALIDA]") {
            p.salida = argumentos[i];
        } else {
            p.datos << argumentos[i];
        }
    }
    return p;
}

} // namespace

const std::vector<Funcion>& Tabla_Funciones()
{
    static const std::vector<Funcion> tabla = [] {
        std::vector<Funcion> t;
        for (const auto filas :
             {Filas_Ejes, Filas_Rasantes, Filas_Secciones, Filas_Puntos, Filas_LandXML})
            for (const Funcion& f : filas())
                t.push_back(f);
        return t;
    }();
    return tabla;
}

const Funcion* Buscar_Funcion(QStringView nombre)
{
    constexpr QStringView PREFIJO = u"MyDll_";
    if (nombre.startsWith(PREFIJO)) nombre = nombre.sliced(PREFIJO.size());
    for (const Funcion& f : Tabla_Funciones())
        if (nombre == QLatin1String(f.nombre)) return &f;
    return nullptr;
}

Numero_Argumentos Argumentos_De(const Funcion& f)
{
    const QStringList nombres = Nombres_Argumentos(f);
    const auto opcionales = std::count_if(nombres.begin(), nombres.end(),
                                          [](const QString& n) { return n.startsWith(u'['); });
    return {nombres.size() - opcionales, nombres.size()};
}

int Ejecutar_Funcion(const Funcion& f, const QStringList& argumentos, Informe_Lectura& informe)
{
    try {
        const Numero_Argumentos n = Argumentos_De(f);
        if (argumentos.size() < n.minimo || argumentos.size() > n.maximo) {
            informe.Fallar({QStringLiteral("Número incorrecto de argumentos"), 0,
                            QString::fromLatin1(f.nombre)});
            return 0;
        }
        return f.cuerpo(Repartir(f, argumentos), informe);
    } catch (const Fallo_Conversion& e) {
        informe.Fallar(e);
    } catch (...) {
        informe.Fallar({Error_En_Curso().descripcion, 0, {}});
    }
    return 0;
}

int Ejecutar_Funcion(QStringView nombre, const QStringList& argumentos, Informe_Lectura& informe)
{
    if (const Funcion* f = Buscar_Funcion(nombre)) return Ejecutar_Funcion(*f, argumentos, informe);
    informe.Fallar({QStringLiteral("Función desconocida"), 0, nombre.toString()});
    return 0;
}

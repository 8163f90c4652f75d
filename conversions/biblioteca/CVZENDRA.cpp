#include "conversions/biblioteca/CVZENDRA.h"

#include "conversions/biblioteca/Tabla_Funciones.h"
#include "core/Ansi.h"

#include <QFile>

namespace {

/// Paths are the system's, or in the page of the files as all other texts are.
struct Ruta {
    const char* bytes;
};
struct Texto {
    const char* bytes;
};

QString Cadena(Ruta r)
{
    if (!r.bytes) return {};
    const QByteArray bytes(r.bytes);
    const QString ruta = QFile::decodeName(bytes);
    return QFile::encodeName(ruta) == bytes ? ruta : Ansi::A_Texto(bytes);
}
QString Cadena(Texto t)
{
    return t.bytes ? Ansi::A_Texto(QByteArrayView(t.bytes)) : QString();
}
QString Cadena(int32_t n)
{
    return QString::number(n);
}

template <class... Tipos> int32_t Llamar(const char* nombre, Tipos... argumentos) noexcept
{
    try {
        Informe_Lectura informe;
        return Ejecutar_Funcion(QString::fromLatin1(nombre), {Cadena(argumentos)...}, informe);
    } catch (...) {
        return 0;
    }
}

} // namespace

#define CONVERSION_CON_APP(nombre)                                                                 \
    CVZENDRA_FUNCION(nombre)(const char* in, const char* out, const char* app)                     \
    {                                                                                              \
        return Llamar(#nombre, Ruta{in}, Ruta{out}, Ruta{app});                                    \
    }
#define CONVERSION(nombre)                                                                         \
    CVZENDRA_FUNCION(nombre)(const char* in, const char* out)                                      \
    {                                                                                              \
        return Llamar(#nombre, Ruta{in}, Ruta{out});                                               \
    }
#define LISTA(nombre)                                                                              \
    CVZENDRA_FUNCION(nombre)(const char* in)                                                       \
    {                                                                                              \
        return Llamar(#nombre, Ruta{in});                                                          \
    }

CONVERSION_CON_APP(aclipplt2krt)
CONVERSION_CON_APP(aqtr2krt)
CONVERSION_CON_APP(aistram2krt)
CONVERSION_CON_APP(aistramList2krt)
CONVERSION_CON_APP(ahtrazado2krt)
CONVERSION_CON_APP(amxroad2krt)
CONVERSION_CON_APP(aispol2krt)
CONVERSION(ristram2krt)
CONVERSION(rqsv2krt)
CONVERSION(cliptrv2krt)
CONVERSION(qtr2krt)
CONVERSION(clip2krt)
CONVERSION(istram2krt)
CONVERSION(htrazado2krt)
CONVERSION(mxroad2krt)
CONVERSION(aQSV2LandXML)
CONVERSION(aclipplt2LandXML)
CONVERSION(aistram2LandXML)
CONVERSION(aistramList2LandXML)
CONVERSION(aispol2LandXML)
CONVERSION(traclip2landxml)
CONVERSION(tracliptrv2landxml)
CONVERSION(traqsv2landxml)
CONVERSION(traistram2landxml)
CONVERSION(trahtrazado2lamdxml)
CONVERSION(rqsv2landxml)
CONVERSION(ristram2landxml)
CONVERSION(puntos2krt)
CONVERSION(puntos2nivel)
CONVERSION(lectkrt2bronex)
CONVERSION(procesaCabecera)
LISTA(seleccionaEjeLandXML)
LISTA(seleccionaRasanteLandXML)
LISTA(seleccionaTransverLandXML)

CVZENDRA_FUNCION(alandxml2krt)(int32_t index, const char* in, const char* out, const char* app)
{
    return Llamar("alandxml2krt", index, Ruta{in}, Ruta{out}, Ruta{app});
}

CVZENDRA_FUNCION(rlandxml2krt)(const char* name, const char* in, const char* out)
{
    return Llamar("rlandxml2krt", Texto{name}, Ruta{in}, Ruta{out});
}

CVZENDRA_FUNCION(tralandxml2krt)
(const char* part1, const char* part2, const char* in, const char* out)
{
    return Llamar("tralandxml2krt", Texto{part1}, Texto{part2}, Ruta{in}, Ruta{out});
}

CVZENDRA_FUNCION(anivel2ing)
(const char* in, const char* out, const char* dato1, const char* dato2, const char* dato3,
 const char* dato4, const char* dato5)
{
    return Llamar("anivel2ing", Ruta{in}, Ruta{out}, Texto{dato1}, Texto{dato2}, Texto{dato3},
                  Texto{dato4}, Texto{dato5});
}

CVZENDRA_FUNCION(procesaRobotizada)
(const char* in, const char* coordenadas, const char* out, const char* trabajo,
 const char* descripcion, const char* operario, const char* temperatura, const char* fecha,
 const char* hora)
{
    return Llamar("procesaRobotizada", Ruta{in}, Ruta{coordenadas}, Ruta{out}, Texto{trabajo},
                  Texto{descripcion}, Texto{operario}, Texto{temperatura}, Texto{fecha},
                  Texto{hora});
}

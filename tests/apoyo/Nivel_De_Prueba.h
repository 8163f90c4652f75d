#pragma once

#include "core/Error_Ejecucion.h"
#include "tests/apoyo/Base_De_Prueba.h"

#include <QFile>

/// A level of the tests' own: the fields of the two halves, formats over them, and sessions.
namespace Nivel_De_Prueba {

struct Campo {
    const char *mitad, *nombre;
    int digitos;
    const char* numero;
};
inline const Campo CAMPOS[] = {
    {"0", "Trabajo", 16, "2"}, {"0", "Punto Inicial", 8, "3"}, {"0", "Cota Inicial", 11, "4"},
    {"0", "Fecha", 8, "5"},    {"0", "Hora", 5, "6"},          {"1", "Tipo", 4, "0"},
    {"1", "Punto", 8, "5"},    {"1", "Lectura", 9, "2"},       {"1", "Distancia", 9, "3"},
    {"1", "Cota", 11, "4"},    {"1", "Fecha", 8, "7"},         {"1", "Hora", 5, "8"},
    {"1", "Sin sitio", 5, ""},
};

inline void Poner_Campos(const Base_De_Prueba& p)
{
    int orden = 0;
    for (const Campo& c : CAMPOS)
        p.Fila("Campos", {{"Maquina", "NV400"},
                          {"ID", c.mitad},
                          {"Campo", c.nombre},
                          {"Orden", ++orden},
                          {"Digitos", c.digitos},
                          {"PosDigit", "*"},
                          {"Caracter", c.numero}});
}

/// Stores a format; the fields of each half by their names.
inline void Poner_Formato(const Base_De_Prueba& p, const QString& nombre,
                          const QStringList& cabecera, const QStringList& detalle,
                          const QString& maquina = "NV400")
{
    p.Fila("Formatos1", {{"Nombre", nombre},
                         {"Maquina", maquina},
                         {"descripcion", "De prueba"},
                         {"cabeceras", "SI"},
                         {"Modificable", "SI"},
                         {"ope", 0},
                         {"Ids", "g i "}});
    const auto poner = [&](const QStringList& campos, const char* marca) {
        for (qsizetype i = 0; i < campos.size(); ++i)
            p.Fila("Formatos2", {{"Nombre", nombre},
                                 {"Maquina", maquina},
                                 {"sec", i},
                                 {"Campo", campos[i].leftJustified(40) + marca}});
    };
    // Whatever order they were stored in, the head comes first.
    poner(detalle, "10");
    poner(cabecera, "00");
}

inline void Poner_Sesion(const Base_De_Prueba& p, int id, const QStringList& lineas)
{
    p.Fila("Sesiones", {{"ID", id},
                        {"Fecha", QDateTime(QDate(2024, 3, 12), QTime(9, 0))},
                        {"NFichero", "Anillo"},
                        {"OPE", 0},
                        {"Maquina", "NV400"},
                        {"MaqDes", "NV400-1"},
                        {"NPuntos", lineas.size() + 1}});
    for (qsizetype i = lineas.size() - 1; i >= 0; --i)
        p.Fila("Registros", {{"ID", id},
                             {"Secuencia", i + 1},
                             {"Punto", " "},
                             {"Datos", lineas[i]},
                             {"DatosG", " "}});
}

/// The lines of a delivered field book.
inline QStringList Libreta(const QString& nombre)
{
    QFile f(RAIZ_FUENTES "/data/ficheros/" + nombre);
    if (!f.open(QIODevice::ReadOnly)) throw Error_Ejecucion(53, nombre);
    QStringList lineas = QString::fromUtf8(f.readAll()).split('\n', Qt::SkipEmptyParts);
    erase_if(lineas, [](const QString& l) { return l.startsWith('#'); });
    return lineas;
}

} // namespace Nivel_De_Prueba

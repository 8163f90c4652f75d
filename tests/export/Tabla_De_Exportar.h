#pragma once

#include "export/Formatear_Datos.h"
#include "export/Salidas.h"
#include "tests/apoyo/Base_De_Prueba.h"

/// What the tests of the writers share: a small table and the way to a writer.
namespace Tabla_De_Exportar {

inline const QStringList CAMPOS = {"Punto", "Coordenada X", "Cód"};
inline const QList<QStringList> FILAS = {
    {"1", "-1000.500", "ÁRBOL"}, {"PUNTO22", "", "€"}, {"3", "20.000", ""}};

/// A table as stage 1 leaves it: columns of one length.
inline Datos_Formateados Datos(const QList<QStringList>& filas, const QStringList& campos = CAMPOS)
{
    Datos_Formateados datos;
    datos.campos = campos;
    datos.filas.resize(std::size_t(campos.size()));
    for (const QStringList& fila : filas)
        for (qsizetype c = 0; c < campos.size(); ++c)
            datos.filas[std::size_t(c)].push_back(fila[c]);
    Igualar_Columnas(datos.filas);
    return datos;
}

inline bool Escribir(const QString& tipo, const QString& fichero, const Datos_Formateados& datos,
                     const Opciones_Exportar& opciones)
{
    Avance_Exportar avance;
    const Origen_Exportar origen{*Base_Datos, 1, "KRT300", 0, "F", datos.campos, opciones, avance};
    return Escritor_De(tipo)({origen, datos, fichero, Modo_En_Vigor().campos_con_marca});
}

} // namespace Tabla_De_Exportar

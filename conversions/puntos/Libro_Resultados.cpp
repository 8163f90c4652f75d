#include "conversions/puntos/Libro_Resultados.h"

#include "core/Ficheros.h"
#include "export/excel/Fichero_Excel.h"

namespace {

constexpr int MAX_LINEAS = 100;
constexpr int PRIMERA_FILA = 1, ULTIMA_EN_NEGRITA = 99; // rows 2 and 100
constexpr QChar SEPARADOR = u';';

} // namespace

void Escribir_Libro_Resultados(const QString& texto, const QString& destino)
{
    const QStringList lineas = Ficheros::Leer_Lineas(texto);
    Libro_Excel libro;
    Hoja_Excel& hoja = libro.Agregar_Hoja(QStringLiteral("Hoja1"));
    hoja.Poner_Negrita({PRIMERA_FILA, 0, ULTIMA_EN_NEGRITA, 0});
    for (int linea = 0; linea < lineas.size(); ++linea) {
        const QStringList campos = lineas[linea].split(SEPARADOR);
        if (linea >= MAX_LINEAS || campos.size() > Hoja_Excel::MAX_COLUMNAS)
            throw Error_Ejecucion::Con(9, QStringLiteral("línea %1").arg(linea + 1));
        for (int campo = 0; campo < campos.size(); ++campo)
            if (!campos[campo].isEmpty()) hoja.Poner(PRIMERA_FILA + linea, campo, campos[campo]);
    }
    Guardar_Libro(libro, destino, Version_Excel::Excel_8);
}

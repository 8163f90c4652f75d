#include "conversions/puntos/Bronex_COD.h"

#include "conversions/suelo/Campos_Fuente.h"
#include "core/Ansi.h"

using namespace Campos_Fuente;

namespace {

constexpr qsizetype CELDAS = 8;
constexpr qsizetype ANCHOS[] = {10, 10, 10, 10, 10, 8, 8};
constexpr char BLANCOS = ' ';

char Separador_De(QByteArrayView linea)
{
    for (const char c : {'\t', ';', ','})
        if (linea.count(c) >= CELDAS - 1) return c;
    return BLANCOS;
}

} // namespace

Observaciones_Bronex Leer_Bronex(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    Observaciones_Bronex observaciones;
    std::optional<char> separador;
    while (fuente.Siguiente()) {
        if (!separador) separador = Separador_De(fuente.Linea());
        const Lista campos = *separador == BLANCOS ? Por_Blancos(fuente.Linea())
                                                   : Por_Separador(fuente.Linea(), *separador);
        if (campos.size() != CELDAS) {
            fuente.Omitir(informe, QStringLiteral("La línea no tiene ocho celdas"));
            continue;
        }
        QStringList fila;
        for (const QByteArrayView campo : campos)
            fila << (campo == "qtr" ? QString() : Ansi::A_Texto(campo));
        observaciones.filas << fila;
    }
    if (observaciones.filas.isEmpty())
        throw Fallo_Conversion{QStringLiteral("Ninguna línea tiene ocho celdas"), 0, {}};
    return observaciones;
}

QByteArray Escribir_Bronex(const Observaciones_Bronex& observaciones, const QString&)
{
    QString texto;
    for (const QStringList& fila : observaciones.filas) {
        QStringList columnas;
        for (qsizetype i = 0; i < CELDAS - 1; ++i)
            columnas << fila[i].rightJustified(ANCHOS[i]);
        if (!fila.last().isEmpty()) columnas << fila.last();
        texto += columnas.join(u' ') + QStringLiteral("\r\n");
    }
    return Ansi::A_Bytes(texto);
}

#include "export/Conversion_Tabla.h"

#include "core/Error_Ejecucion.h"
#include "export/mdb/Base_Jet.h"

static constexpr int ANCHO_COLUMNA_BASE = 80;

Libro_Excel Libro_De_Tabla(const Tabla_Separada& tabla, bool numeros)
{
    Libro_Excel libro;
    Hoja_Excel& hoja = libro.Agregar_Hoja(QStringLiteral("hoja1"));
    for (int c = 0; c < tabla.titulos.size(); ++c)
        hoja.Poner(0, c, tabla.titulos[c]);
    for (std::size_t f = 0; f < tabla.filas.size(); ++f) {
        const QStringList& celdas = tabla.filas[f].celdas;
        for (int c = 0; c < celdas.size(); ++c) {
            const auto numero = numeros ? Numero_De_Texto(celdas[c]) : std::nullopt;
            if (numero)
                hoja.Poner(int(f) + 1, c, *numero);
            else
                hoja.Poner(int(f) + 1, c, celdas[c]);
        }
    }
    return libro;
}

static QString Texto_De_Celda(const Celda& celda)
{
    return celda.tipo == Celda::Tipo::Numero ? Texto_De_Numero(celda.numero) : celda.texto;
}

QByteArray Texto_De_Hoja(const Hoja_Excel& hoja)
{
    const Rango rango = hoja.Rango_Con_Valores();
    QByteArray texto;
    for (int fila = 0; fila <= rango.fila_hasta; ++fila) {
        QStringList celdas(rango.columna_hasta + 1);
        for (const Celda_Situada& celda : hoja.Fila(fila))
            if (celda.columna <= rango.columna_hasta) celdas[celda.columna] = Texto_De_Celda(celda);
        texto += Linea_Tabulada(celdas) + '\n';
    }
    return texto;
}

void Base_De_Tabla(const Tabla_Separada& tabla, const QString& fichero, const QString& nombre_tabla)
{
    Ajustes_Jet ajustes;
    ajustes.si_existe = Ajustes_Jet::REEMPLAZAR;
    Base_Jet base(fichero, ajustes);
    QList<Columna_Texto> columnas;
    for (const QString& titulo : tabla.titulos)
        columnas << Columna_Texto{titulo, ANCHO_COLUMNA_BASE};
    base.Crear_Tabla(nombre_tabla, columnas);
    for (const Tabla_Separada::Fila& fila : tabla.filas) {
        QStringList celdas = fila.celdas;
        celdas.resize(tabla.titulos.size());
        try {
            base.Anadir_Fila(celdas);
        } catch (const Error_Ejecucion& e) {
            throw Error_Ejecucion(
                e.numero, QStringLiteral("Línea %1: %2").arg(fila.linea).arg(e.descripcion));
        }
    }
    base.Cerrar();
}

#include "export/nivel/Escritor_Nivel.h"

#include "core/Basico.h"
#include "export/excel/Libro_De_Plantilla.h"
#include "export/nivel/Informe_Nivel.h"
#include "export/Renglon.h"
#include "export/texto/Escritor_Texto.h"
#include "export/texto/Fichero_Texto.h"

namespace {

using Clase = Linea_Informe::Clase;

constexpr char16_t TITULO_FECHA[] = u"Fecha   ", TITULO_HORA[] = u"Hora  ";
constexpr qsizetype MARGEN_FIN = 21; // of the values of the end, under its words

void Recorrer(const Tarea_Exportar& tarea, bool titulos,
              const std::function<void(const Linea_Informe&)>& linea)
{
    const Origen_Exportar& origen = tarea.origen;
    Hacer_Informe(tarea.datos.nivel, titulos, origen.opciones.nivel, origen.avance, linea);
}

// ---------------------------------------------------------------- text

void Poner_Celdas(const Linea_Informe& linea, Renglon& renglon)
{
    switch (linea.clase) {
    case Clase::Titulos_Fin:
        renglon.Poner(linea.celdas.first().texto);
        renglon.Poner(TITULO_FECHA);
        renglon.Poner(TITULO_HORA);
        break;
    case Clase::Fin:
        renglon.Poner(Basico::Space(MARGEN_FIN) + linea.celdas[0].texto);
        renglon.Poner(linea.celdas[1].texto);
        break;
    default:
        for (const Celda_Informe& celda : linea.celdas)
            renglon.Poner(celda.En_Su_Ancho());
    }
}

void Escribir_Texto(const Tarea_Exportar& tarea)
{
    const Opciones_Texto opciones = Opciones_Texto::De(tarea.origen.opciones.texto);
    Fichero_Texto fichero(tarea.fichero);
    Renglon renglon(opciones.separador);
    Recorrer(tarea, opciones.titulos, [&](const Linea_Informe& linea) {
        Poner_Celdas(linea, renglon);
        fichero.Linea(renglon.Texto());
        renglon.Vaciar();
    });
    fichero.Cerrar();
}

// ---------------------------------------------------------------- workbook

// The end has its moment in two cells, under one title, and behind them what else its line says.
std::vector<QString> Celdas_De(const Linea_Informe& linea)
{
    if (linea.clase == Clase::Titulos_Fin)
        return {Basico::Trim(linea.celdas.first().texto),
                QString::fromUtf16(TITULO_FECHA) + QString::fromUtf16(TITULO_HORA), QString(),
                QStringLiteral("Comentario")};
    std::vector<QString> celdas;
    if (linea.clase == Clase::Fin) celdas.push_back({});
    for (const Celda_Informe& celda : linea.celdas)
        celdas.push_back(Basico::Trim(celda.texto));
    return celdas;
}

bool Es_De_Titulos(Clase clase)
{
    switch (clase) {
    case Clase::Titulos_Cabecera:
    case Clase::Titulos_Detalle:
    case Clase::Titulos_Anillo:
    case Clase::Titulos_Cambio:
    case Clase::Titulos_Fin:
        return true;
    default:
        return false;
    }
}

void Llenar_Libro(const Tarea_Exportar& tarea, Libro_De_Plantilla& libro)
{
    const bool titulos = Opciones_Libro::De(tarea.origen.opciones.texto).titulos;
    Recorrer(tarea, titulos, [&](const Linea_Informe& linea) {
        if (linea.clase == Clase::Blanco)
            libro.Saltar();
        else if (Es_De_Titulos(linea.clase))
            libro.Titulos(Celdas_De(linea));
        else
            libro.Fila(Celdas_De(linea));
    });
}

} // namespace

bool Escribir_Nivel_Texto(const Tarea_Exportar& tarea)
{
    return Con_Trampa(FALLOS_DEL_FORMATEADO, [&] { Escribir_Texto(tarea); });
}

bool Escribir_Nivel_Excel(const Tarea_Exportar& tarea)
{
    return Con_Trampa(FALLOS_DE_LIBRO, [&] {
        Libro_De_Plantilla libro(tarea);
        libro.Llenar_Y_Guardar([&] { Llenar_Libro(tarea, libro); });
    });
}

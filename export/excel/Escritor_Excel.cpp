#include "export/excel/Escritor_Excel.h"

#include "export/excel/Libro_De_Plantilla.h"
#include "export/Filas_Marcadas.h"
#include "export/Renglon.h"

namespace {

QStringList Nombres(const Tarea_Exportar& tarea)
{
    QStringList nombres = tarea.datos.campos;
    if (tarea.campos_con_marca)
        for (QString& nombre : nombres)
            nombre = Titulo_De(nombre);
    return nombres;
}

void Llenar(const Tarea_Exportar& tarea, Libro_De_Plantilla& libro)
{
    if (Opciones_Libro::De(tarea.origen.opciones.texto).titulos) {
        libro.Titulos(Nombres(tarea));
        libro.Saltar();
    }
    const Filas_Exportar& filas = tarea.datos.filas;
    const std::size_t total = tarea.datos.Numero_De_Filas();
    Textos_Marcados marcadas(tarea.origen.bd, tarea.datos.lineas_especiales);
    Marcador marcador(tarea.origen.avance, qint64(total));
    std::vector<QString> celdas(filas.size());
    for (std::size_t r = 0; r < total; ++r) {
        for (std::size_t c = 0; c < filas.size(); ++c)
            celdas[c] = filas[c].Celda(r);
        if (const Marca_Fila* const marca = Marca_De(celdas.front()))
            celdas.front() = marcadas.Siguiente(*marca, ".");
        libro.Fila(celdas);
        marcador.Paso();
    }
    marcador.Terminar();
}

} // namespace

bool Escribir_Excel(const Tarea_Exportar& tarea)
{
    return Con_Trampa(FALLOS_DE_LIBRO, [&] {
        Libro_De_Plantilla libro(tarea);
        libro.Llenar_Y_Guardar([&] { Llenar(tarea, libro); });
    });
}

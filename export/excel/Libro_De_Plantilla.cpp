#include "export/excel/Libro_De_Plantilla.h"

#include "core/Error_Ejecucion.h"
#include "core/ModEstTotal.h"
#include "export/excel/Fichero_Excel.h"
#include "export/excel/Numero_De_Celda.h"

namespace {

const QString HOJA = QStringLiteral("hoja1$");

// Deliberate: the text of 3001 speaks of the template, and a template that is missing is 53.
constexpr Aviso_De_Fallo AVISOS[] = {
    {3001,
     u"El fichero 'plantilla.xls' no ha sido encontrado,asegurese de\r\nque exista en el "
     u"directorio 'DAT' de su aplicación.",
     Icono::Critico},
    {53, u"Debe especificar un nombre de fichero válido", Icono::Exclamacion},
};

Version_Excel Version_De(const Tarea_Exportar& tarea)
{
    if (!Es_Nombre_De_Fichero(tarea.fichero)) throw Error_Ejecucion::Con(53, tarea.fichero);
    const QString conexion = Opciones_Libro::De(tarea.origen.opciones.texto).conexion;
    if (conexion.isEmpty()) throw Error_Ejecucion(3001);
    return Forma_De(conexion).version;
}

} // namespace

const Fallos_Escritor FALLOS_DE_LIBRO = {
    u"Se produjo un error al realizar la exportación a Formato 'EXCEL'", AVISOS};

Libro_De_Plantilla::Libro_De_Plantilla(const Tarea_Exportar& t)
    : tarea(t), version(Version_De(t)), destino(t.fichero),
      libro(Abrir_Libro(En_Instalacion("DAT/plantilla.xls"))), tabla(libro, HOJA)
{
}

void Libro_De_Plantilla::Poner(std::span<const QString> celdas, bool numeros)
{
    if (tabla.Es_EOF())
        tabla.AddNew();
    else
        tabla.Edit();
    for (std::size_t c = 0; c < celdas.size(); ++c) {
        const auto numero = numeros ? Numero_De_Celda(celdas[c]) : std::nullopt;
        if (numero)
            tabla.Poner(int(c), *numero);
        else
            tabla.Poner(int(c), celdas[c]);
    }
    columnas = std::max(columnas, int(celdas.size()));
    Acabar();
}

void Libro_De_Plantilla::Saltar()
{
    if (tabla.Es_EOF())
        tabla.AddNew();
    else
        tabla.Edit();
    Acabar();
}

void Libro_De_Plantilla::Acabar()
{
    tabla.Update();
    if (!tabla.Es_EOF()) tabla.MoveNext();
    ++filas;
}

void Libro_De_Plantilla::Llenar_Y_Guardar(const std::function<void()>& llenar)
{
    try {
        llenar();
    } catch (...) {
        const Error_Ejecucion error = Error_En_Curso();
        try {
            Guardar();
        } catch (const Error_Ejecucion&) {
            // What ended the filling is told; that not even its rows could be kept comes of it.
        }
        throw error;
    }
    Guardar();
    destino.Terminar();
}

// The names of columns that nothing stands under would be printed, page after page.
void Libro_De_Plantilla::Guardar()
{
    tabla.Quitar_Columnas_Desde(columnas);
    if (filas > 0 && columnas > 0) tabla.Imprimir(filas, columnas);
    Guardar_Libro(libro, destino.Ruta(), version);
}

#pragma once

#include "export/Destino_Exportar.h"
#include "export/excel/Tabla_Excel.h"
#include "export/Tarea_Exportar.h"
#include "export/Trampa_Escritor.h"

#include <functional>

/// What the writers of workbooks say when they fail.
extern const Fallos_Escritor FALLOS_DE_LIBRO;

/// The workbook of an export: the delivered template, whose prepared rows are filled one after the
/// other before new ones are added. Its first row holds the names of the columns and is no data.
class Libro_De_Plantilla {
public:
    /// Opens the template.
    /// @throws Error_Ejecucion 53 for a name that no file can have or without the template, 3001
    ///         without a version, 3170 for an unknown one, 3274 for a template that is no workbook,
    ///         75 and 70 as `Destino_Exportar`
    explicit Libro_De_Plantilla(const Tarea_Exportar& tarea);

    /// Fills the next row, from the first column on. A cell that is wholly a number becomes one
    /// where the user wants that. @throws Error_Ejecucion 3265 for more cells than the template has
    /// columns, 3437 when the sheet is full
    void Fila(std::span<const QString> celdas) { Poner(celdas, tarea.origen.opciones.numeros); }
    /// The same with texts only.
    void Titulos(std::span<const QString> celdas) { Poner(celdas, false); }
    /// Leaves a row blank.
    void Saltar();

    /// Runs the filling, then saves the workbook, once, under its name. What was filled before an
    /// error is saved as well, and the error goes on.
    /// @throws Error_Ejecucion those of `llenar`, and of `Guardar_Libro` for what the version
    ///         can't hold
    void Llenar_Y_Guardar(const std::function<void()>& llenar);

private:
    void Poner(std::span<const QString> celdas, bool numeros);
    void Acabar();
    void Guardar();

    const Tarea_Exportar& tarea;
    const Version_Excel version;
    const Destino_Exportar destino;
    Libro_Excel libro;
    Tabla_Excel tabla;
    int filas = 0;    ///< filled or left blank so far
    int columnas = 0; ///< most cells of a row so far
};

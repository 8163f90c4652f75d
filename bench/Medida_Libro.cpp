// Writing a table of 32,768 rows by 8 text columns to a workbook of Excel 97 against libxlsxwriter
// writing the same table to an .xlsx, both from text in memory to the finished file.
#include "bench/Proporcion.h"
#include "bench/Tabla_De_Campo.h"
#include "export/excel/Fichero_Excel.h"

#include <QTemporaryDir>

#include <string>
#include <xlsxwriter.h>

namespace {

void Escribir_32768_x_8(benchmark::State& estado)
{
    std::vector<std::vector<QString>> tabla(FILAS);
    std::vector<std::vector<std::string>> tabla_utf8(FILAS);
    for (int f = 0; f < FILAS; ++f)
        for (int c = 0; c < COLUMNAS; ++c) {
            tabla[std::size_t(f)].push_back(Celda_De_Campo(f, c));
            tabla_utf8[std::size_t(f)].push_back(Celda_De_Campo(f, c).toStdString());
        }
    const QTemporaryDir carpeta;
    const QString xls = carpeta.filePath("tabla.xls");
    const std::string xlsx = carpeta.filePath("tabla.xlsx").toStdString();
    const auto suelo = [&] {
        return Cronometrar([&] {
            lxw_workbook* const libro = workbook_new(xlsx.c_str());
            lxw_worksheet* const hoja = workbook_add_worksheet(libro, "hoja1");
            for (lxw_row_t f = 0; f < FILAS; ++f)
                for (lxw_col_t c = 0; c < COLUMNAS; ++c)
                    worksheet_write_string(hoja, f, c, tabla_utf8[f][c].c_str(), nullptr);
            if (workbook_close(libro) != LXW_NO_ERROR) estado.SkipWithError("libxlsxwriter failed");
        });
    };
    const auto obra = [&] {
        return Cronometrar([&] {
            Libro_Excel libro;
            Hoja_Excel& hoja = libro.Agregar_Hoja(QStringLiteral("hoja1"));
            for (int f = 0; f < FILAS; ++f)
                for (int c = 0; c < COLUMNAS; ++c)
                    hoja.Poner(f, c, tabla[std::size_t(f)][std::size_t(c)]);
            Guardar_Libro(libro, xls, Version_Excel::Excel_8);
        });
    };
    obra();
    const Libro_Excel leido = Abrir_Libro(xls);
    for (int f = 0; f < FILAS; ++f)
        for (int c = 0; c < COLUMNAS; ++c)
            if (leido.Hoja(0).Leer(f, c).texto != tabla[std::size_t(f)][std::size_t(c)])
                estado.SkipWithError("a cell is wrong");
    Medir_Proporcion(estado, 1.0, suelo, obra);
}
BENCHMARK(Escribir_32768_x_8)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);

} // namespace

MEDIDAS_JUZGADAS()

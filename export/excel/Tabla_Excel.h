#pragma once

// The form: docs/formas/libros.md

#include "export/excel/Libro_Excel.h"

#include <map>
#include <optional>
#include <QStringList>

/// A sheet seen as a table: the first row in use holds the names of the columns, the rows below it
/// are the records, up to the last one in use. Rows that were prepared with looks only are records
/// too, so that a template decides how many rows are filled before new ones are added.
class Tabla_Excel {
public:
    /// The first record is the current one.
    /// @param libro  to be kept alive by the caller
    /// @param nombre  the sheet's name, with the "$" that tells a sheet from a named range or
    /// without
    /// @throws Error_Ejecucion 3011 when there is no such sheet
    Tabla_Excel(Libro_Excel& libro, const QString& nombre);

    /// Names of the columns, up to the last one that has a name.
    const QStringList& Columnas() const { return columnas; }
    int RecordCount() const { return ultima - cabecera; }

    /// True behind the last record, and in a table without any.
    bool Es_EOF() const { return actual > ultima; }
    /// @throws Error_Ejecucion 3021 when there is no record
    void MoveFirst();
    /// @throws Error_Ejecucion 3021 behind the last record. A move gives up what was not updated.
    void MoveNext();

    /// @param campo  from 0. @throws Error_Ejecucion 3021 without a record, 3265 beyond the columns
    const Celda& Valor(int campo) const;

    /// Opens the current record for writing. @throws Error_Ejecucion 3021 without one
    void Edit();
    /// Opens a new record, which `Update` puts behind the last; the current record stays the same.
    /// Its fields get the looks that those of the last record had when the table was opened.
    void AddNew();
    /// Sets a field of the record that is open. @param campo  from 0
    /// @throws Error_Ejecucion 3265 beyond the named columns, 3020 without an open record, 5 for a
    ///         number that isn't finite
    void Poner(int campo, const QString& texto);
    void Poner(int campo, double numero);
    /// A number with the decimals that it shows; its other looks are those of the field.
    void Poner(int campo, const Celda& numero);
    /// Writes the open record to the sheet. @throws Error_Ejecucion 3020 without one, 3437 when the
    /// sheet has no row left
    void Update();
    void CancelUpdate();

    /// Takes away the names of the columns from `campo` (from 0) on. They are none any more.
    void Quitar_Columnas_Desde(int campo);
    /// Only the first records and columns are printed, without the row of the names.
    void Imprimir(int registros, int campos);

private:
    void Comprobar_Campo(int campo) const;
    void Poner_Valor(int campo, Celda valor);
    void Comprobar_Actual() const;
    Celda Aspecto(int campo) const;

    Hoja_Excel& hoja;
    QStringList columnas;
    int primera_columna = 0;
    int cabecera = 0;             ///< row of the names
    int ultima = 0;               ///< row of the last record
    int actual = 1;               ///< row of the current record
    std::vector<Celda> aspectos;  ///< of the fields of a new record
    std::optional<int> abierta;   ///< row of the record that is open
    std::map<int, Celda> escrito; ///< its fields set so far
};

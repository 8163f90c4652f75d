#pragma once

#include "conversions/puntos/Monitorizacion.h"

/// What the results of a monitoring campaign are written as.
enum class Salida_Monitorizar { Ascii, Excel };

/// What `frmRobotizada` holds: two source files, the texts of the heading and the kind of output.
class Flujo_Monitorizar {
public:
    Monitorizacion::Textos textos;
    Salida_Monitorizar salida = Salida_Monitorizar::Ascii;

    /// On opening: asks for the readings and the coordinates, and takes temperature, date and time
    /// from the readings. @return false when the user cancelled
    bool Abrir();
    /// Takes two source files as they are named, and reads the heading.
    void Tomar(const QString& lecturas, const QString& coordenadas);
    /// `BtnAce`: asks for the results file, writes it and tells how it went.
    /// @return false when the user cancelled, and nothing was done
    bool Aceptar() const;
    /// Writes the results. What could not be read goes into the report; a failure leaves a file
    /// that stood there as it was. @return true when the file was made
    /// @throws Error_Ejecucion for what no workbook can hold, as `Escribir_Libro_Resultados`
    bool Escribir(const QString& destino, Informe_Lectura& informe) const;

private:
    void Leer_Cabecera();
    bool Ejecutar(const QString& destino, Informe_Lectura& informe) const;

    QString lecturas, coordenadas;
};

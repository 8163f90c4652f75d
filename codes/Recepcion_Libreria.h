#pragma once

// The form: docs/formas/librerias.md

#include "core/Error_Ejecucion.h"

#include <optional>
#include <QString>
#include <QStringList>

/// Receiving a code library of series A: where it goes, and what becomes of the received text.

/// Where a received library goes; the numbers are those of the options of `FrmCodRecibir`.
enum class Destino : int { Ninguno = -1, Base = 0, Fichero = 1 };

/// A destination and the name that goes with it: the key of the new library, or a file.
struct Destino_Libreria {
    Destino destino = Destino::Ninguno;
    QString nombre;
};

/// What `FrmCodRecibir` holds. The dialog shows the public members after each call and hands what
/// is typed straight into `nombre`.
class Eleccion_Destino {
public:
    Destino opcion = Destino::Base; ///< `OptDes`
    QString rotulo;                 ///< `Label1`
    bool hay_fichero = false;       ///< `BtnSelFic` is shown
    int largo_maximo = 0;           ///< of `Text1`; 0: no limit
    QString nombre;                 ///< `Text1`
    Destino_Libreria elegido;       ///< what was accepted; `Destino::Ninguno` until then

    Eleccion_Destino();
    void Elegir(Destino opcion);
    /// `BtnSelFic`
    void Ubicar_Fichero();
    /// `BtnAce`. @return true when the dialog is to be unloaded, false after a box
    bool Aceptar();
};

/// The start of a reception from the list of transfers: asks for the destination, shows reminder
/// and step help as the settings have it, and opens the receiving dialog.
/// @param operacion  as the step help knows it
void Recibir_Libreria(int operacion);

/// What became of a received library. Its journal goes only when nothing is missing.
struct Libreria_Guardada {
    int codigos = 0;
    QStringList avisos; ///< what was kept but has to be put right, or was left out
    std::optional<Error_Ejecucion> error; ///< it could not be stored; nothing was

    bool Completa() const { return !error && avisos.isEmpty(); }
};

/// Stores what was received: codes are the records that begin with ":", of a code with backquotes
/// the part behind the last one, without the blanks of the wire behind it. The record behind the
/// last "_" is the filling of the last block and is not a code; one that holds a code is told.
/// In the database it makes the library `nombre`; as a text file it replaces the file.
/// Shows nothing, whatever happens.
Libreria_Guardada Guardar_Libreria(const QString& buffer, Destino destino, const QString& nombre);

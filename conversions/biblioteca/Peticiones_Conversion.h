#pragma once

#include <functional>
#include <QString>

/// What was chosen from the list of a LandXML file.
struct Eleccion_LandXML {
    int indice = -1; ///< line of the list, from 0; below 0: none
    QString texto;   ///< the line; empty: none

    bool Hay() const { return indice >= 0 && !texto.isEmpty(); }
};

/// The dialogs that the conversion flows show, as questions: the windows, the command line and the
/// tests set them.
struct Peticiones_Conversion {
    /// Shows `EjeLandxml`, which takes the list file, and gives what was chosen when it closes.
    std::function<Eleccion_LandXML()> Elegir_De_Lista = [] { return Eleccion_LandXML(); };
};
Peticiones_Conversion& Peticiones_De_Conversion();

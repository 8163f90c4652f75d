#pragma once

#include "core/Familia.h"

#include <QIODevice>
#include <QString>
#include <QStringList>
#include <span>

/// The ways from one form to another: one row each, which the dialogs, the sending of designs and
/// the command line walk. A form that is offered somewhere else is a row here, not a comparison.

/// What a file holds: the options of `frmConvEst`, in their order.
enum class Clase_Conversion { Alineaciones = 0, Rasantes = 1, Transversales = 2, Puntos = 3 };

/// What all conversions of one class share.
struct Fila_Clase {
    Clase_Conversion clase;
    const char* palabra;             ///< behind `--clase` on the command line
    Operacion operacion;             ///< the upload whose file types its dialog offers
    const char16_t* filtro_landxml;  ///< sources that its LandXML flow offers; empty: it has none
    const char16_t* filtro_guardar;  ///< targets in the instrument's form
    const char16_t* aviso_invalidos; ///< told after -1 by the rows that tell it
    /// A sending looks at the pattern chosen in the file dialog instead of the name's extension.
    bool por_patron;
};

/// How the part of a LandXML source is named that a function converts.
struct Parte_LandXML {
    /// What the function takes in front of its paths.
    enum class Forma { Indice, Nombre, Dos_Nombres };
    const char* opcion; ///< on the command line, without its dashes
    const char* lista;  ///< the function that lists the parts into the list file
    QStringList (*listar)(QIODevice& fuente); ///< the same list, from a source that is open
    Forma forma;
};

/// Where a way is offered; a row may name several.
enum Lugar : unsigned {
    EN_LANDXML = 1, ///< the LandXML flow of `frmConvEst`
    EN_ENVIO = 2,   ///< the sending of designs and the standard flow of `frmConvEst`
    EN_CONSOLA = 4  ///< the order `convertir`
};

/// One way: files of this class and extension become files of that extension by this function.
struct Camino {
    Clase_Conversion clase;
    const char16_t* extension; ///< of the source, lower case; empty: any
    const char* salidas;       ///< extensions of the target, lower case, parted by blanks
    const char* funcion;       ///< of the library, without "MyDll_"; null where `propio` stands
    unsigned lugares;          ///< of `Lugar`
    bool avisa = false;        ///< a sending tells -1; after the other rows it passes unsaid
    const Parte_LandXML* parte = nullptr;
    /// A conversion that is no function of the library and shows its own message when it fails.
    bool (*propio)(const QString& entrada, const QString& salida) = nullptr;
};

std::span<const Fila_Clase> Clases_De_Conversion();
const Fila_Clase& Clase_De(Clase_Conversion clase);

/// In the order in which a search takes them: where only the extensions are known, one of two
/// meanings is an alignment.
std::span<const Camino> Caminos();

/// @param extension  of the source, in any case
/// @return the row of that class and extension offered at `lugar`, or null
const Camino* Buscar_Camino(Lugar lugar, Clase_Conversion clase, QStringView extension);

/// @return true when the row writes files of `extension` (lower case)
bool Escribe(const Camino& camino, const QString& extension);

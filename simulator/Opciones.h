#pragma once

#include "simulator/Fallos.h"

#include <QString>
#include <QStringList>

namespace simulador {

/// What the command line asks for.
struct Opciones {
    QString aparato;     ///< "KRT300", "PX7", "KRT800", "NV400"
    QString enlace;      ///< link to the pseudo-terminal
    QString enviar;      ///< field book; empty: nothing to send
    QString guardar;     ///< file for what an upload sent; empty: not kept
    bool crudo = false;  ///< kept as it came, not as a field book
    int retardo = 1500;  ///< KRT800: from the opening of the port to the first byte, milliseconds
    int baudios = 0;     ///< pace of the line; 0: none
    int bloque = 128;    ///< characters of a frame
    bool seguir = false; ///< after a refused frame the next one, not the same
    bool fin_linea = false;
    bool una_vez = false; ///< ends after the first transfer
    int tiempo = 0;       ///< seconds after which it gives up; 0: never
    Fallos fallos;
    bool ayuda = false;
};

/// Reads the words behind the program's name.
/// @return an empty text, or what is wrong with them, in Spanish
QString Leer_Opciones(const QStringList& palabras, Opciones& opciones);

/// The whole help text, in Spanish.
QString Texto_Ayuda();

} // namespace simulador

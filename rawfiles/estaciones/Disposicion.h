#pragma once

#include "rawfiles/estaciones/Registro_Serie_B.h"

#include <memory>
#include <QStringList>
#include <vector>

/// The cells of one line, from the first column on.
using Celdas = std::vector<QString>;

/// A station layout at work: it takes the records of a session one by one and keeps its cells from
/// each to the next.
class Lector_Disposicion {
public:
    Lector_Disposicion() = default;
    Lector_Disposicion(const Lector_Disposicion&) = delete;
    Lector_Disposicion& operator=(const Lector_Disposicion&) = delete;
    virtual ~Lector_Disposicion() = default;

    /// @return true when the cells as they now stand are a line of the file
    virtual bool Tomar(const Registro_Serie_B& registro) = 0;

    Celdas celdas;
};

/// What a layout is made of.
struct Disposicion {
    std::unique_ptr<Lector_Disposicion> (*lector)();
    /// A line of the file. @param celdas  padded on the left to the width of their column
    QString (*linea)(const Celdas& celdas, const QString& separador);
    QString cierre; ///< closing box
    QString fallo;  ///< report of a failure
};

/// The lines of a session in a layout, with what doesn't fit it.
struct Lineas_Disposicion {
    QStringList lineas;
    /// Lines of the session whose texts hold the separator, so that their cells are more than the
    /// columns.
    QList<qint64> partidas;
};

/// Most lines that a layout holds.
inline constexpr std::size_t LINEAS_MAXIMAS = 32768;

/// All cells with the separator between.
QString Unir_Celdas(const Celdas& celdas, const QString& separador);

/// Asks for the separator. @return empty when it was cancelled
QString Pedir_Separador_Disposicion();
/// Reads the session and lays it out.
/// @throws Error_Ejecucion 9 when there are more lines than a layout holds
Lineas_Disposicion Disponer(const Disposicion& disposicion, qint64 id, const QString& separador);
/// The box for a session in which the layout finds nothing.
void Decir_Sin_Registros();
/// Tells which lines hold the separator in a text; nothing when none does.
void Decir_Partidas(const Lineas_Disposicion& lineas);

/// Asks for the separator, writes the session's file and shows the closing box. A failure is
/// reported, and leaves a file that stood there as it was.
/// @return true on success
bool Exportar_Disposicion(const Disposicion& disposicion, qint64 id, const QString& ruta);

#pragma once

// The form: docs/formas/impresion.md

#include "core/jet/Base.h"
#include "export/Datos_Formateados.h"

/// Job and name of the page's head.
struct Datos_Trabajo {
    QString trabajo, nombre;
    bool operator==(const Datos_Trabajo&) const = default;
};

/// How a page looks.
struct Parametros_Hoja {
    bool con_titulo = false, con_subtitulo = false; ///< `Check1`, `Check4`
    QString titulo, subtitulo;
    bool cabeceras = false;               ///< `Check2`: the titles of the columns
    bool centrar = false;                 ///< `Check5`
    int anchura = ANCHURA_INICIAL;        ///< of the page, characters
    std::optional<Datos_Trabajo> trabajo; ///< none: no such line
    QStringList columnas;                 ///< titles in place of the fields' names; empty: those

    static constexpr int ANCHURA_INICIAL = 110;
    /// The page lies on its side.
    bool Apaisada() const { return anchura > ANCHURA_VERTICAL; }
    static constexpr int ANCHURA_VERTICAL = 110;
};

/// The preview's text: an RTF document, its lines ended by CR LF.
/// @param bd  for the lines of a level that marked rows stand for
/// @param con_marca  the level is in force: titles end where their mark of position begins, and
///                   widths are those of the titles
QByteArray Renderiza_Pagina(Base& bd, const Datos_Formateados& datos,
                            const Parametros_Hoja& parametros, bool con_marca);

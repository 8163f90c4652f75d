#pragma once

#include "core/jet/Base.h"
#include "session/Consultas_Sesion.h"

#include <memory>
#include <QCache>
#include <QHash>
#include <vector>

/// A line of a session, as the list of it shows it.
struct Linea_De_Sesion {
    QString punto, descr, datos, datosg;
};

/// The lines of a session in the order of `Secuencia`, each with the words of its kind: what the
/// query of `Preparar_Vista` lists, read page by page as it is asked for, so that a session of any
/// length opens at once. A line of a kind that the operation doesn't have is left out.
class Lista_Sesion {
public:
    Lista_Sesion(std::shared_ptr<Base> bd, const Sesion_Elegida& sesion);

    /// Lines found so far, those not in memory too.
    qint64 Conocidas() const { return conocidas; }
    /// @return false once the last line has been found
    bool Hay_Mas() const { return !acabada; }
    /// Finds a stretch more; stretches grow with what is known.
    /// @return how many lines it brought @throws Error_Ejecucion as the engine does
    qint64 Buscar_Mas();
    /// Goes on finding until `fila` is known. @return false when the list ends before it
    bool Alcanzar(qint64 fila);
    /// @param fila  from 0, a known one
    /// @return the line; an empty one when it was deleted meanwhile
    Linea_De_Sesion Linea(qint64 fila);

private:
    // Where a line stands: its number, and its row for lines of one number.
    struct Lugar {
        qint64 secuencia, fila;
    };
    using Pagina = std::vector<Linea_De_Sesion>;

    Recorrido Desde(const Lugar& lugar) const;
    std::optional<QString> Descripcion(QStringView datos);
    const Pagina& Pedir_Pagina(qint64 numero);

    std::shared_ptr<Base> bd;
    Sesion_Elegida sesion;
    bool sin_clases; // any line is listed, without words
    QHash<QString, std::optional<QString>> descripciones;
    // The place in front of each page's first line; and the one behind the last line found.
    std::vector<Lugar> paginas;
    Lugar ultimo{-1, 0};
    qint64 conocidas = 0;
    bool acabada = false;
    QCache<qint64, Pagina> leidas;
};

#pragma once

#include "export/mdb/Formato_Jet.h"

namespace Jet {

/// Pages of fixed place.
enum Pagina_Fija : quint32 {
    PAGINA_CABECERA = 0,
    PAGINA_MAPA_GLOBAL = 1,
    PAGINA_OBJETOS = 2, ///< definition of MSysObjects; the three others follow it
    PAGINA_PERMISOS = 3,
    PAGINA_CONSULTAS = 4,
    PAGINA_RELACIONES = 5,
    PAGINA_MAPAS = 6
};

/// The four accounts of every file.
enum class Cuenta { ADMIN, USUARIOS, MOTOR, CREADOR };

/// Page 0. What identifies the file is obfuscated, and the account numbers stored in the system
/// tables are obfuscated with a key made of it: both must come from one object, or the engine
/// finds no right to read anything.
class Cabecera {
public:
    /// @param fecha  creation date, days since 30-12-1899, local time
    explicit Cabecera(double fecha);

    Pagina Acabada() const;
    /// The two bytes that stand for `cuenta` in this file.
    QByteArray Sid(Cuenta cuenta) const;

private:
    static constexpr int LARGO_OCULTO = 128;

    std::array<uchar, LARGO_OCULTO> oculto{}; // in the clear
    QByteArray serie_sid;
};

} // namespace Jet

#pragma once

#include "export/excel/Lector_Aspecto.h"

/// What the sheets of a book share.
struct Comun_Libro {
    Version_Excel version = Version_Excel::Excel_8;
    Pagina_Biff pagina;
    Aspectos_Leidos aspectos;
    std::vector<QString> cadenas; ///< texts that cells name by their place
};

/// Takes in the cell and column records of one sheet.
class Lector_Hoja {
public:
    /// @param comun  may still be filled while the sheet is read (plain sheets hold their own
    /// looks)
    Lector_Hoja(Hoja_Excel& h, const Comun_Libro& c) : hoja(h), comun(c) {}

    /// @param flujo  stands behind the record, whose CONTINUE records may be read
    /// @throws Error_Ejecucion 3274 when the record is damaged
    void Tomar(const Registro_Biff& registro, Flujo_Biff& flujo);

private:
    void Tomar_Dimensiones(const Registro_Biff& registro);
    void Tomar_Columna(const Registro_Biff& registro);
    void Tomar_Texto(const Registro_Biff& registro, Flujo_Biff& flujo);
    void Tomar_Cadena(const Registro_Biff& registro);
    void Tomar_Logico_O_Error(const Registro_Biff& registro);
    void Tomar_Formula(const Registro_Biff& registro);
    void Tomar_Texto_De_Formula(const Registro_Biff& registro, Flujo_Biff& flujo);
    void Tomar_Vacias(const Registro_Biff& registro);
    void Tomar_Numeros(const Registro_Biff& registro);

    QString Leer_Texto(const Registro_Biff& registro, qsizetype desde, Flujo_Biff& flujo) const;
    void Poner_Logico_O_Error(const Biff::Lugar_Celda& lugar, quint8 valor, bool es_error);
    void Poner(const Biff::Lugar_Celda& lugar, Celda celda);

    Hoja_Excel& hoja;
    const Comun_Libro& comun;
    std::optional<Biff::Lugar_Celda> formula_de_texto; ///< its value comes in a record of its own
};

#pragma once

#include "export/mdb/Formato_Jet.h"

namespace Jet {

/// Builds one record of a table: column count, values of fixed length at their places, values of
/// variable length back to back, their offsets in reverse, and the mask of the columns that hold
/// a value. Made once and filled again and again, so that a long table costs no memory a row.
class Registro {
public:
    /// Longest record that the engine reads; what is longer still fits a page, but not the engine.
    static constexpr int LARGO_MAXIMO = 4060;

    /// @param columnas   of the table, 1 to 255
    /// @param fijos      bytes that its columns of fixed length take together
    /// @param variables  how many of them have variable length
    Registro(int columnas, int fijos, int variables);

    /// Begins the next record: every column null.
    void Empezar();

    /// Value of a column of fixed length. @param id  column, from 0; @param donde  its fixed offset
    template <class Numero> void Fijo(int id, int donde, Numero valor)
    {
        qToLittleEndian<Numero>(valor, bytes.data() + COLUMNAS + donde);
        Presente(id);
    }
    /// A boolean is its bit of the mask.
    void Logico(int id, bool valor)
    {
        if (valor) Presente(id);
    }
    /// Values of the columns of variable length, called once for each, in the order of their
    /// variable index. @throws Error_Ejecucion 3047 when the record grows too long
    void Nulo();
    void Variable(int id, QByteArrayView valor);
    /// @param comprimido  the column allows one byte a character
    void Texto(int id, QStringView valor, bool comprimido);

    /// @return the record, valid until the next `Empezar`
    /// @throws Error_Ejecucion 3047 when it is too long
    QByteArrayView Acabado();

private:
    static constexpr int COLUMNAS = 2; // bytes of the column count at its head

    void Presente(int id);
    uchar* Hueco(qsizetype largo);

    int columnas;
    int fijos;
    int variables;
    int largo_mascara;
    int fin = 0;
    int puestas = 0;
    std::array<uchar, TAMANO_PAGINA> bytes{};
    std::array<quint16, COLUMNAS_MAXIMAS> inicios{};
    std::array<uchar, (COLUMNAS_MAXIMAS + 7) / 8> mascara{};
};

} // namespace Jet

#pragma once

#include "export/excel/Registros_Biff.h"

#include <QByteArray>

/// A workbook stream being written, record by record.
class Salida_Biff {
public:
    /// A record given by its layout, with more bytes behind it when they don't fit a layout.
    template <class Registro> void Escribir(const Registro& registro, QByteArrayView resto = {})
    {
        Escribir_Como(Registro::ID, registro, resto);
    }

    /// A record whose number the layout doesn't tell, or whose body is a single number.
    template <class Trazado>
    void Escribir_Como(quint16 id, const Trazado& cuerpo, QByteArrayView resto = {})
    {
        struct {
            Biff::Cabeza cabeza;
            Trazado cuerpo;
        } todo{{id, quint16(sizeof(Trazado) + std::size_t(resto.size()))}, cuerpo};
        bytes += Bytes_De(todo);
        bytes += resto;
    }

    /// A record of loose bytes.
    void Escribir_Bytes(quint16 id, QByteArrayView cuerpo = {})
    {
        bytes += Bytes_De(Biff::Cabeza{id, quint16(cuerpo.size())});
        bytes += cuerpo;
    }

    /// Place in the stream where the next record begins.
    qsizetype Posicion() const { return bytes.size(); }

    QByteArray bytes;
};

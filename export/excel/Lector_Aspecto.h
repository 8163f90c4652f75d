#pragma once

#include "export/excel/Flujo_Biff.h"
#include "export/excel/Libro_Excel.h"

#include <map>
#include <optional>
#include <vector>

/// Form of a stream that is read. @return nothing for a record that begins no stream known here
std::optional<Version_Excel> Version_De_Bof(const Registro_Biff& bof);

/// Text in the page of the stream.
class Pagina_Biff {
public:
    /// @param numero  as CODEPAGE tells
    void Fijar(quint16 numero) { pagina = numero; }

    /// @throws Error_Ejecucion 3274 for a character above 127 of a page other than Windows-1252
    QString A_Texto(QByteArrayView bytes) const;

private:
    quint16 pagina = 1252;
};

/// The looks of cells as the records of a stream tell them, as far as the program keeps them.
class Aspectos_Leidos {
public:
    /// Takes in a font, number format or XF; any other record is left alone.
    /// @return true when it was one of those
    bool Tomar(const Registro_Biff& registro, Version_Excel version);

    /// Gives a cell the looks of XF number `ixfe`; one that the stream has not told is plain.
    void Vestir(Celda& celda, quint16 ixfe) const;

private:
    struct Xf {
        quint16 fuente = 0, formato = 0;
    };

    void Tomar_Formato(const Registro_Biff& registro, Version_Excel version);
    QByteArray Dibujo_De(quint16 formato) const;
    void Tomar_Xf(const Registro_Biff& registro, Version_Excel version);

    std::vector<bool> negritas;            ///< of each font, in the order of the records
    std::map<quint16, QByteArray> dibujos; ///< of the formats, by their number
    quint16 formatos_leidos = 0;
    std::vector<Xf> xfs;
};

#pragma once

#include "export/excel/Error_Libro.h"
#include "export/excel/Registros_Biff.h"

#include <QByteArrayView>
#include <QString>

#include <vector>

/// A record as it stands in the stream.
struct Registro_Biff {
    quint16 id = 0;
    QByteArrayView cuerpo;

    /// The layout that the body holds `desde` bytes from its start.
    /// @throws Error_Ejecucion 3274 when the body is shorter
    template <class Trazado> Trazado Como(qsizetype desde = 0) const
    {
        const auto trazado = Leer_Trazado<Trazado>(cuerpo, desde);
        if (!trazado) throw Libro_Danado(QStringLiteral("el registro %1 es corto").arg(id, 4, 16));
        return *trazado;
    }
};

/// A workbook stream being read, record by record.
class Flujo_Biff {
public:
    /// @param desde  where the first record begins. @throws Error_Ejecucion 3274 beyond the end
    Flujo_Biff(QByteArrayView bytes, qsizetype desde);

    /// @throws Error_Ejecucion 3274 when the stream ends or the record goes past its end
    Registro_Biff Siguiente();

    /// The bodies of the CONTINUE records that stand next, which are thereby read.
    std::vector<QByteArrayView> Continuaciones();

    /// Bytes read so far from the start of the stream.
    qsizetype Posicion() const { return posicion; }

private:
    QByteArrayView bytes;
    qsizetype posicion;
};

/// The body of a record together with those of its CONTINUE records, read from front to back.
class Cuerpo_Biff {
public:
    Cuerpo_Biff(const Registro_Biff& registro, Flujo_Biff& flujo);

    /// @throws Error_Ejecucion 3274 when the bodies end before
    template <class Trazado> Trazado Leer()
    {
        return *Leer_Trazado<Trazado>(Leer_Bytes(sizeof(Trazado)));
    }
    QByteArray Leer_Bytes(qsizetype cuantos);
    void Saltar(qsizetype cuantos);

    /// Text of the Unicode form: flags, characters, and the runs and Asian settings that may stand
    /// about them, which are skipped. @param caracteres  its length, read before
    QString Leer_Texto(qsizetype caracteres);

private:
    QByteArrayView Tomar(qsizetype cuantos);
    bool Pasar_De_Parte();

    std::vector<QByteArrayView> partes;
    std::size_t parte = 0;
    qsizetype en_parte = 0;
    qsizetype quedan = 0;
};

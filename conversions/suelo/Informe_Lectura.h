#pragma once

#include <optional>
#include <QString>
#include <QStringList>
#include <vector>

/// Thrown by readers and writers when nothing can be converted; ends in result 0. It never leaves
/// the library.
struct Fallo_Conversion {
    QString motivo;   ///< Spanish, for the user
    qint64 linea = 0; ///< line of the source, from 1; 0 when the reason is the file as a whole
    QString texto;    ///< the line, or its beginning
};

/// One thing that a reader left out or took otherwise than it was written.
struct Omision {
    qint64 linea = 0; ///< from 1; 0 for the file as a whole
    QString texto;
    QString motivo;
};

/// What a conversion left out and why, and, after a result of 0, why it failed. The dialog and the
/// command line show it behind the program's own message.
class Informe_Lectura {
public:
    /// Notes an omission. A foreign file can be all omissions: only the first `MAXIMO` are kept,
    /// and of each text its beginning; the rest is counted.
    void Omitir(qint64 linea, const QString& texto, const QString& motivo);
    void Fallar(const Fallo_Conversion& motivo_fallo);

    bool Hay_Omisiones() const { return total > 0; }
    qint64 Total() const { return total; }
    const std::vector<Omision>& Omisiones() const { return omisiones; }
    const std::optional<Omision>& Fallo() const { return fallo; }

    /// The list as it is shown, one entry a line: «Línea 12: motivo: "texto"», the failure first.
    QStringList Lineas() const;

    static constexpr size_t MAXIMO = 500;
    static constexpr qsizetype TEXTO_MAXIMO = 120;

private:
    std::vector<Omision> omisiones;
    std::optional<Omision> fallo;
    qint64 total = 0;
};

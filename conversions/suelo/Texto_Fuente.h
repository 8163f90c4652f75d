#pragma once

#include "conversions/suelo/Informe_Lectura.h"

#include <memory>
#include <QByteArrayView>
#include <QIODevice>
#include <QString>

/// A source text, line by line: Windows-1252, lines ending in CR LF or LF, a UTF-8 mark at the head
/// skipped, a byte 26 ending the text. It is read in blocks: a file of any size costs one line.
///
/// Whatever is no such text ends in a `Fallo_Conversion` with its reason: a byte 0 (a binary file
/// or UTF-16), a line above `LINEA_MAXIMA`, a failing device.
class Texto_Fuente {
public:
    static constexpr qsizetype LINEA_MAXIMA = 65536;

    /// @param dispositivo  open for reading, outliving this object
    explicit Texto_Fuente(QIODevice& dispositivo);

    /// Steps to the next line that holds more than blanks. @return false at the end
    bool Siguiente();
    /// Steps to the next line, an empty one too. @return false at the end
    bool Siguiente_Tal_Cual();

    /// The current line without its end, as it stands. Valid until the next step.
    QByteArrayView Linea() const { return linea; }
    /// Number of the current line in the file, from 1.
    qint64 Numero() const { return numero; }
    /// The current line as text.
    QString Texto() const;

    /// Back to before the first line. The device must be a file or a buffer.
    void Rebobinar();

    /// Notes the current line as left out.
    void Omitir(Informe_Lectura& informe, const QString& motivo) const;
    /// @throws Fallo_Conversion naming the current line
    [[noreturn]] void Fallar(const QString& motivo) const;

private:
    bool Cargar();

    QIODevice& dispositivo;
    std::unique_ptr<char[]> bloque;
    qsizetype desde = 0, hasta = 0;
    QByteArrayView linea;
    qint64 numero = 0;
    bool fin = false;
};

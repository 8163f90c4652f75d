#pragma once

#include "core/Ansi.h"
#include "tests/conversions/Banco_Conversion.h"

#include <QRegularExpression>

/// The list of samples, tests/datos/conversions/manifest.txt.

/// One row of the list of samples: what is called, on what, and what must come out.
struct Muestra {
    QString funcion;
    QStringList argumentos; ///< target left out
    QString esperado;       ///< file; "-" when none must be left
    int resultado = 1;      ///< 0 also for a list function, whose result is its lines
    bool lista = false;     ///< the result is the number of lines
};

/// Arguments are parted by blanks; quotes hold one that has blanks itself.
inline QStringList Partir(const QString& texto)
{
    static const QRegularExpression palabra("\"([^\"]*)\"|(\\S+)");
    QStringList partes;
    for (auto i = palabra.globalMatch(texto); i.hasNext();) {
        const auto m = i.next();
        partes << (m.captured(2).isEmpty() ? m.captured(1) : m.captured(2));
    }
    return partes;
}

inline QList<Muestra> Muestras()
{
    QList<Muestra> lista;
    const QString texto = Ansi::A_Texto(Banco_Conversion::Bytes_Muestra("manifest.txt"));
    const QStringList lineas = texto.split("\r\n", Qt::SkipEmptyParts);
    for (const QString& linea : lineas.mid(1)) {
        const QStringList campos = linea.split(u'|');
        lista << Muestra{campos[0], Partir(campos[1]), campos[2], campos[3].toInt(),
                         campos[3] == u"-"};
    }
    return lista;
}

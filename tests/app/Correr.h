#pragma once

#include "app/cli/Ordenes.h"

#include <QBuffer>

/// What an order left: exit status, results, messages.
struct Salida {
    int estado;
    QString texto, mensajes;
};

/// Runs one command line without a process.
inline Salida Correr(const QStringList& palabras)
{
    QBuffer s, e;
    s.open(QIODevice::WriteOnly);
    e.open(QIODevice::WriteOnly);
    Contexto c;
    c.salida = &s;
    c.errores = &e;
    const int estado = Ejecutar_Orden(c, palabras);
    return {estado, QString::fromUtf8(s.data()), QString::fromUtf8(e.data())};
}

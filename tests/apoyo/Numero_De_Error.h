#pragma once

#include "core/Error_Ejecucion.h"

#include <QTest>

/// @return the number of the failure that `accion` ends in, or 0 when it doesn't
template <class Accion> int Numero_De_Error(Accion accion)
{
    try {
        accion();
    } catch (const Error_Ejecucion& e) {
        return e.numero;
    }
    return 0;
}

/// Fails unless the expression raises Error_Ejecucion of number `esperado`.
#define QVERIFY_ERROR(esperado, ...)                                                               \
    QCOMPARE(Numero_De_Error([&] { static_cast<void>(__VA_ARGS__); }), int(esperado))

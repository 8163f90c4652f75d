#pragma once

#include "core/Error_Ejecucion.h"

#include <QTest>

/// Fails unless `expresion` raises Error_Ejecucion of number `esperado`.
#define QVERIFY_ERROR(esperado, ...)                                                               \
    do {                                                                                           \
        int numero_visto = 0;                                                                      \
        try {                                                                                      \
            static_cast<void>(__VA_ARGS__);                                                        \
        } catch (const Error_Ejecucion& error_visto) {                                             \
            numero_visto = error_visto.numero;                                                     \
        }                                                                                          \
        QCOMPARE(numero_visto, int(esperado));                                                     \
    } while (false)

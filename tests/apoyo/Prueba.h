#pragma once

#include <functional>
#include <QTest>
#include <vector>

/// One test class of a test program, by name. `PRUEBA(TestX)` at the end of a test file adds it;
/// the program runs the classes named on its command line, or all of them.
struct Prueba {
    const char* nombre;
    std::function<int(const QStringList&)> ejecutar;
};
std::vector<Prueba>& Pruebas();

/// Runs the classes that `argumentos` names (the first entry is the program).
/// @return the number of failed checks, so 0 is a success; naming an unknown class fails.
int Ejecutar_Pruebas(const QStringList& argumentos);

#define PRUEBA(Clase)                                                                              \
    [[maybe_unused]] static const bool registrada_##Clase = [] {                                   \
        Pruebas().push_back({#Clase, [](const QStringList& a) {                                    \
                                 Clase prueba;                                                     \
                                 return QTest::qExec(&prueba, a);                                  \
                             }});                                                                  \
        return true;                                                                               \
    }();

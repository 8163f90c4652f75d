#pragma once

#include "core/ModEstTotal.h"

#include <functional>
#include <QList>
#include <sys/wait.h>
#include <unistd.h>

/// Processes of their own that work on the installation of the test at once. They begin together,
/// when all of them are there; the test's own database has to be closed before.
class Otros_Procesos {
public:
    Otros_Procesos()
    {
        if (pipe(salida) != 0) qFatal("No pipe");
    }
    Otros_Procesos(const Otros_Procesos&) = delete;
    Otros_Procesos& operator=(const Otros_Procesos&) = delete;
    ~Otros_Procesos() { Esperar(); }

    /// Starts one; `hacer` returns its exit status.
    void Empezar(const std::function<int()>& hacer)
    {
        const pid_t hijo = fork();
        if (hijo < 0) qFatal("No process");
        if (hijo == 0) {
            close(salida[1]);
            char nada = 0;
            (void)!read(salida[0], &nada, 1); // until the gate is closed
            int estado = 99;
            try {
                Base_Datos = Base::Abrir(Fichero_MDB);
                estado = hacer();
                Base_Datos.reset();
            } catch (const Error_Ejecucion& e) {
                qWarning("%s", e.what());
            }
            _exit(estado);
        }
        hijos << hijo;
    }

    /// Lets them go and waits for all. @return their exit statuses, -1 for one that was killed
    QList<int> Esperar()
    {
        for (int& extremo : salida)
            if (extremo >= 0) close(std::exchange(extremo, -1));
        QList<int> estados;
        for (const pid_t hijo : hijos) {
            int estado = 0;
            waitpid(hijo, &estado, 0);
            estados << (WIFEXITED(estado) ? WEXITSTATUS(estado) : -1);
        }
        hijos.clear();
        return estados;
    }

private:
    int salida[2] = {-1, -1};
    QList<pid_t> hijos;
};

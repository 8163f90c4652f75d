#pragma once

#include "bench/Juicio.h"

#include <algorithm>
#include <ctime>
#include <functional>
#include <vector>

/// Measures `obra` against `suelo` in one run, taking turns so that both meet the same machine, and
/// reports the ratio of their medians as counter "proporcion", the allowed one as "tope" and both
/// medians in milliseconds. Each returns the seconds that count of its own run.
inline void Medir_Proporcion(benchmark::State& estado, double tope,
                             const std::function<double()>& suelo,
                             const std::function<double()>& obra)
{
    std::vector<double> de_suelo, de_obra;
    suelo();
    obra();
    for ([[maybe_unused]] auto _ : estado) {
        de_suelo.push_back(suelo());
        de_obra.push_back(obra());
        estado.SetIterationTime(de_obra.back());
    }
    const auto mediana = [](std::vector<double> v) {
        std::nth_element(v.begin(), v.begin() + std::ptrdiff_t(v.size() / 2), v.end());
        return v[v.size() / 2];
    };
    const double s = mediana(de_suelo), o = mediana(de_obra);
    estado.counters["suelo_ms"] = s * 1e3;
    estado.counters["obra_ms"] = o * 1e3;
    estado.counters["proporcion"] = o / s;
    estado.counters["tope"] = tope;
}

/// Seconds of processor time that `accion` takes: a machine with other work to do measures the same.
inline double Cronometrar(const std::function<void()>& accion)
{
    const std::clock_t antes = std::clock();
    accion();
    return double(std::clock() - antes) / CLOCKS_PER_SEC;
}

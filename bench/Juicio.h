#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>

/// Prints a row for each measure and compares it with what it may cost: "proporcion" with "tope",
/// "memoria_MB" with "tope_MB". A measure that failed counts as one that is over.
class Juez : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override
    {
        std::printf("%-44s %10s %10s %8s %8s  %s\n", "medida", "suelo ms", "obra ms", "veces",
                    "tope", "juicio");
        return true;
    }

    void ReportRuns(const std::vector<Run>& medidas) override
    {
        for (const Run& medida : medidas)
            Juzgar(medida);
        std::fflush(stdout);
    }

    bool Todo_Bien() const { return malas == 0; }

private:
    void Juzgar(const Run& medida)
    {
        std::string nombre = medida.run_name.function_name;
        if (!medida.report_label.empty()) nombre += ' ' + medida.report_label;
        if (medida.error_occurred) {
            ++malas;
            std::printf("%-44s %s\n", nombre.c_str(), medida.error_message.c_str());
            return;
        }
        const auto valor = [&](const char* cual) {
            const auto it = medida.counters.find(cual);
            return it == medida.counters.end() ? 0.0 : double(it->second);
        };
        const bool cara = valor("proporcion") > valor("tope");
        const bool grande = valor("memoria_MB") > valor("tope_MB");
        malas += cara || grande;
        std::printf("%-44s %10.3f %10.3f %8.2f %8.2f  %s", nombre.c_str(), valor("suelo_ms"),
                    valor("obra_ms"), valor("proporcion"), valor("tope"), cara ? "PASA" : "bien");
        if (valor("tope_MB") > 0)
            std::printf(", %.0f de %.0f MB%s", valor("memoria_MB"), valor("tope_MB"),
                        grande ? ": PASA" : "");
        std::printf("\n");
    }

    int malas = 0;
};

/// What every program of measures ends with: status 1 when a measure is over what it may cost.
#define MEDIDAS_JUZGADAS()                                                                         \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        benchmark::Initialize(&argc, argv);                                                        \
        if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;                          \
        Juez juez;                                                                                 \
        benchmark::RunSpecifiedBenchmarks(&juez);                                                  \
        return juez.Todo_Bien() ? 0 : 1;                                                           \
    }

// The daily road of a field book of 32,000 points: storing it, and making text of it with the
// delivered formats, against what no program can do without.
#include "bench/Proporcion.h"
#include "bench/Sala_De_Campo.h"
#include "core/ModEstTotal.h"

namespace {

constexpr int PUNTOS = 32000;

struct Camino {
    const char* maquina;
    const char* formato;
    int operacion;
    Datos_Recepcion (*libreta)(int puntos);
    const char* tipo;
    int filas; // of the text
    double tope;
};
const Camino CAMINOS[] = {
    {"KRT300", "MEDICION", 0, Libreta_KRT300, "TxF", PUNTOS, 3},
    {"KRT300", "LIBRETA", 0, Libreta_KRT300, "TxF", PUNTOS, 3},
    {"KRT300", "LIBRETA", 0, Libreta_KRT300, "Txt", PUNTOS, 3},
    {"KRT300", "NXYZCOD", 1, Coordenadas_KRT300, "TxF", PUNTOS, 2},
    {"KRT800", "MEDICION", 0, Libreta_KRT800, "TxF", 2 * PUNTOS + 3 * PUNTOS / 50, 3},
};

void Exportar(benchmark::State& estado)
{
    const Camino& c = CAMINOS[estado.range(0)];
    estado.SetLabel(std::string(c.maquina) + ' ' + c.formato + ' ' + c.tipo);
    const Sala_De_Campo sala(c.maquina);
    const qint64 sesion = sala.Guardar(c.libreta(PUNTOS));
    const auto obra = [&] {
        return Cronometrar([&] {
            if (!sala.Exportar(sesion, c.operacion, c.formato, c.tipo))
                estado.SkipWithError("the export failed");
        });
    };
    const double antes = Memoria_MB();
    obra();
    const double despues = Memoria_MB();
    const QByteArray bytes = Leer_Todo(sala.Salida());
    if (bytes.count("\r\n") != c.filas) return estado.SkipWithError("rows are missing");
    const auto suelo = [&] {
        return Recorrer_Y_Escribir(sesion, bytes, sala.Ruta("suelo.txt"));
    };
    Medir_Proporcion(estado, c.tope, suelo, obra);
    estado.counters["memoria_MB"] = despues - antes;
    estado.counters["tope_MB"] = 40;
}
BENCHMARK(Exportar)
    ->DenseRange(0, std::size(CAMINOS) - 1)
    ->UseManualTime()
    ->Iterations(7)
    ->Unit(benchmark::kMillisecond);

// From the bytes received to the text.
void Guardar_Y_Exportar(benchmark::State& estado)
{
    const Camino& c = CAMINOS[estado.range(0)];
    estado.SetLabel(std::string(c.maquina) + ' ' + c.formato);
    const Sala_De_Campo sala(c.maquina);
    const Datos_Recepcion datos = c.libreta(PUNTOS);
    qint64 sesion = 0;
    const auto obra = [&] {
        if (sesion > 0) Base_Datos->Execute("DELETE FROM Sesiones");
        Base_Datos->Execute("DELETE FROM Registros");
        return Cronometrar([&] {
            sesion = sala.Guardar(datos);
            if (!sala.Exportar(sesion, c.operacion, c.formato, c.tipo))
                estado.SkipWithError("the export failed");
        });
    };
    obra();
    const QByteArray bytes = Leer_Todo(sala.Salida());
    if (bytes.count("\r\n") != c.filas) return estado.SkipWithError("rows are missing");
    const auto suelo = [&] {
        return Insertar_A_Pelo(sesion) +
               Recorrer_Y_Escribir(sesion, bytes, sala.Ruta("suelo.txt"));
    };
    Medir_Proporcion(estado, 1.5, suelo, obra);
}
BENCHMARK(Guardar_Y_Exportar)
    ->Arg(0)
    ->Arg(3)
    ->UseManualTime()
    ->Iterations(7)
    ->Unit(benchmark::kMillisecond);

} // namespace

MEDIDAS_JUZGADAS()

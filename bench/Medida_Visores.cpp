// Looking into a session: the first lines of its list at any length, and its fields on the command
// line against its lines.
#include "app/cli/Ordenes.h"
#include "bench/Proporcion.h"
#include "bench/Sala_De_Campo.h"
#include "core/ModEstTotal.h"
#include "session/Lista_Sesion.h"

#include <QBuffer>

namespace {

// The first lines against what the mark is: 50 ms, whatever the session's length.
void Primera_Fila(benchmark::State& estado)
{
    estado.SetLabel(std::to_string(estado.range(0)) + " lineas");
    const Sala_De_Campo sala("KRT300");
    const qint64 id = sala.Guardar(Libreta_KRT300(int(estado.range(0) / 5)));
    const double antes = Memoria_MB();
    const auto obra = [&] {
        return Cronometrar([&] {
            Lista_Sesion lista(Base_Datos, {id, "KRT300", 0, {}});
            lista.Buscar_Mas();
            if (lista.Linea(0).datos.isEmpty()) estado.SkipWithError("no line");
        });
    };
    Medir_Proporcion(
        estado, 1.0, [] { return 0.050; }, obra);
    Lista_Sesion lista(Base_Datos, {id, "KRT300", 0, {}});
    if (lista.Alcanzar(estado.range(0))) estado.SkipWithError("too many lines");
    if (lista.Conocidas() != estado.range(0)) estado.SkipWithError("lines are missing");
    lista.Linea(lista.Conocidas() - 1);
    estado.counters["memoria_MB"] = Memoria_MB() - antes;
    estado.counters["tope_MB"] = 60;
}
BENCHMARK(Primera_Fila)
    ->Arg(32'000)
    ->Arg(512'000)
    ->UseManualTime()
    ->Iterations(7)
    ->Unit(benchmark::kMillisecond);

void Ver_Campos(benchmark::State& estado)
{
    const Sala_De_Campo sala("KRT300");
    const qint64 id = sala.Guardar(Libreta_KRT300(32000));
    Base_Datos.reset();
    const auto ver = [&](const QStringList& mas) {
        QBuffer salida;
        salida.open(QIODevice::WriteOnly);
        Contexto contexto;
        contexto.salida = contexto.errores = &salida;
        return Cronometrar([&] {
            const QStringList palabras =
                QStringList{"--dir", sala.Ruta({}), "ver", QString::number(id)} + mas;
            if (Ejecutar_Orden(contexto, palabras) != 0 || salida.size() < 160'000)
                estado.SkipWithError("the order failed");
        });
    };
    Medir_Proporcion(
        estado, 3.0, [&] { return ver({}); }, [&] { return ver({"--campos"}); });
}
BENCHMARK(Ver_Campos)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace

MEDIDAS_JUZGADAS()

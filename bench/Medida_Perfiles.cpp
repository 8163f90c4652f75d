// Converting a cross-section file of 10 MB against reading its lines.
#include "bench/Proporcion.h"
#include "conversions/biblioteca/Conversion.h"
#include "conversions/biblioteca/Tabla_Funciones.h"
#include "conversions/suelo/Texto_Fuente.h"
#include "core/Ficheros.h"

#include <QTemporaryDir>
#include <random>

namespace {

constexpr qsizetype TAMANO = 10'000'000;
constexpr int PUNTOS_POR_PERFIL = 40;
constexpr double TOPE = 5.0;

QByteArray Num(double x)
{
    return QByteArray::number(x, 'f', 3);
}

// One source layout: how a section begins and how a point of it is written.
struct Formato_Perfiles {
    const char* funcion;
    QByteArray (*cabecera)(double pk);
    QByteArray (*fila)(double pk, double d, double z);
};

QByteArray Sin_Cabecera(double)
{
    return {};
}

const Formato_Perfiles FORMATOS[] = {
    {"cliptrv2krt",
     [](double pk) {
         return Num(pk).rightJustified(9) + ',' +
                QByteArray::number(PUNTOS_POR_PERFIL).rightJustified(8) + ",  0  ,  0\r\n";
     },
     [](double, double d, double z) {
         return Num(d).rightJustified(9) + ',' + Num(z).rightJustified(10) + "\r\n";
     }},
    {"clip2krt", Sin_Cabecera,
     [](double pk, double d, double z) {
         return Num(pk) + ',' + Num(d) + ',' + Num(z) + ",TER\r\n";
     }},
    {"qtr2krt", Sin_Cabecera,
     [](double pk, double d, double z) {
         return Num(pk).rightJustified(9) + Num(d).rightJustified(10) + Num(z).rightJustified(10) +
                " EJE\r\n";
     }},
    {"istram2krt", [](double pk) { return "PERFIL 1  P.K.= " + Num(pk) + "\r\n"; },
     [](double, double d, double z) {
         return Num(d).rightJustified(10) + Num(z).rightJustified(11) + " T\r\n";
     }},
    {"mxroad2krt", [](double pk) { return "SECTION ON MC10 AT CHAINAGE " + Num(pk) + "\r\n"; },
     [](double, double d, double z) {
         return "G000" + Num(d).rightJustified(10) + Num(z).rightJustified(10) + "\r\n";
     }},
};

QByteArray Fichero_De(const Formato_Perfiles& formato)
{
    std::mt19937 azar(1);
    std::uniform_int_distribution<int> desvio(0, 900), cota(0, 900000);
    QByteArray s;
    for (double pk = 0; s.size() < TAMANO; pk += 20) {
        s += formato.cabecera(pk);
        for (int i = 0; i < PUNTOS_POR_PERFIL; ++i)
            s += formato.fila(pk, i - 20 + desvio(azar) / 1000.0, cota(azar) / 1000.0);
    }
    return s;
}

void Leer_Lineas(const QString& ruta)
{
    QFile fichero(ruta);
    Conversion::Abrir(fichero);
    Texto_Fuente fuente(fichero);
    qint64 bytes = 0;
    while (fuente.Siguiente())
        bytes += fuente.Linea().size();
    benchmark::DoNotOptimize(bytes);
}

void Convertir_10_MB(benchmark::State& estado)
{
    const Formato_Perfiles& formato = FORMATOS[estado.range(0)];
    estado.SetLabel(formato.funcion);
    const QTemporaryDir carpeta;
    const QString origen = carpeta.filePath("origen"), destino = carpeta.filePath("destino.ssp");
    Ficheros::Escribir(origen, Fichero_De(formato));
    const auto obra = [&] {
        return Cronometrar([&] {
            Informe_Lectura informe;
            if (Ejecutar_Funcion(QString::fromLatin1(formato.funcion), {origen, destino},
                                 informe) != 1)
                estado.SkipWithError("the file was refused");
        });
    };
    Medir_Proporcion(
        estado, TOPE, [&] { return Cronometrar([&] { Leer_Lineas(origen); }); }, obra);
}
BENCHMARK(Convertir_10_MB)
    ->DenseRange(0, std::size(FORMATOS) - 1)
    ->UseManualTime()
    ->Iterations(9)
    ->Unit(benchmark::kMillisecond);

} // namespace

MEDIDAS_JUZGADAS()

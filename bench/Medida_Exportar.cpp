// Exporting the largest session (32,768 runs of 4 records, point, coordinates and code) as aligned
// text, stage 1 and writer together, against stepping through the same rows with one bare SQLite
// statement and writing the same bytes. Also: how its time grows, and the memory it takes.
#include "app/cli/Interfaz_Consola.h"
#include "bench/Proporcion.h"
#include "core/ModEstTotal.h"
#include "export/GuardarN.h"
#include "formats/ModFormatos.h"

#include <QBuffer>
#include <QTemporaryDir>

#include <cstdio>
#include <sqlite3.h>
#include <sys/resource.h>

namespace {

constexpr int CORRIDAS = 32768;

// An install directory with a KRT300 and one session, for as long as a measurement lasts.
class Escena {
public:
    explicit Escena(int corridas) : consola(Con_Salida())
    {
        Ruta_Aplicacion = Ruta_MDB = carpeta.path();
        Fichero_MDB = carpeta.filePath("EstTotal.mdb");
        fichero = carpeta.filePath("salida.txt");
        Clave_Estacion = "KRT300";
        Base_Datos = Base::Crear(Fichero_MDB);
        Poner_Clase("x", "Coordenada Y", 11, "7,3", "CY");
        Poner_Clase("y", "Coordenada X", 11, "7,3", "CX");
        Poner_Clase("z", "Coordenada Z", 11, "7,3", "CZ");
        Poner_Clase("c", "Código", 10, "*", "");
        Poner_Sesion(corridas);
        Poner_Campos_Exportar({"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z", "Código"});
    }
    ~Escena() { Base_Datos.reset(); }
    Escena(const Escena&) = delete;
    Escena& operator=(const Escena&) = delete;

    bool Exportar() const
    {
        Avance_Exportar avance;
        return Exportar_Sesion(1, "KRT300", 1, "TxF", "NXYZCOD", fichero, {" \u0006N"}, avance);
    }

    QString fichero;

private:
    Contexto Con_Salida()
    {
        nada.open(QIODevice::WriteOnly);
        Contexto contexto;
        contexto.salida = contexto.errores = &nada;
        return contexto;
    }

    static void Poner_Clase(const char* id, const char* campo, int digitos, const char* posdigit,
                            const char* marcas)
    {
        Base_Datos->Execute("INSERT INTO Identificadores (Nombre,OPE,ID,NomID,tipo) "
                            "VALUES ('KRT300',1,?,?,'P')",
                            {id, campo});
        Base_Datos->Execute("INSERT INTO Campos (Maquina,ID,Campo,Orden,Digitos,PosDigit,Forsalida,"
                            "Especial,Marcas,Caracter) VALUES ('KRT300',?,?,1,?,?,'','',?,'.')",
                            {id, campo, digitos, posdigit, marcas});
    }

    static void Poner_Sesion(int corridas)
    {
        Transaccion transaccion(*Base_Datos);
        Insercion registros = Base_Datos->Preparar_Insercion(
            "Registros", {"ID", "Secuencia", "Punto", "Datos", "DatosG"});
        qint64 secuencia = 0;
        for (int k = 0; k < corridas; ++k) {
            const QString punto = "P" + QString::number(k);
            const auto poner = [&](const QString& datos) {
                registros.Anadir({1, ++secuencia, punto, datos, "JPOLIGONO INDUSTRIAL 2"});
            };
            for (const char* eje : {" y", " x", " z"})
                poner(eje + QString("%1%2")
                                .arg(k % 7 ? "+" : "-")
                                .arg(k * 3001 % 999999999, 9, 10, QChar(u'0')));
            poner("cCOD" + QString::number(k % 40).leftJustified(7));
        }
        transaccion.Confirmar();
    }

    QTemporaryDir carpeta;
    QBuffer nada;
    Interfaz_Consola consola;
};

// Seconds of stepping through the session's rows and writing `bytes`.
double A_Pelo(const QByteArray& bytes, const QString& fichero)
{
    sqlite3* bd = nullptr;
    sqlite3_open(QFile::encodeName(Fichero_MDB).constData(), &bd);
    std::size_t leidos = 0;
    const auto hacer = [&] {
        sqlite3_stmt* s = nullptr;
        sqlite3_prepare_v2(
            bd, "SELECT Secuencia,Punto,Datos,DatosG FROM Registros WHERE ID=1 ORDER BY Secuencia",
            -1, &s, nullptr);
        while (sqlite3_step(s) == SQLITE_ROW) {
            leidos += std::size_t(sqlite3_column_int64(s, 0));
            for (int c = 1; c < 4; ++c) {
                benchmark::DoNotOptimize(sqlite3_column_text(s, c));
                leidos += std::size_t(sqlite3_column_bytes(s, c));
            }
        }
        sqlite3_finalize(s);
        std::FILE* salida = std::fopen(QFile::encodeName(fichero).constData(), "wb");
        std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), salida);
        std::fclose(salida);
    };
    const double segundos = Cronometrar(hacer);
    benchmark::DoNotOptimize(leidos);
    sqlite3_close(bd);
    return segundos;
}

double Memoria_MB()
{
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    return double(uso.ru_maxrss) / 1024.0;
}

void Exportar_32768(benchmark::State& estado)
{
    const Escena escena(CORRIDAS);
    const auto obra = [&] {
        return Cronometrar([&] {
            if (!escena.Exportar()) estado.SkipWithError("the export failed");
        });
    };
    obra();
    QFile salida(escena.fichero);
    if (!salida.open(QIODevice::ReadOnly)) return estado.SkipWithError("no file");
    const QByteArray bytes = salida.readAll();
    if (bytes.count("\r\n") != CORRIDAS) return estado.SkipWithError("rows are missing");
    Medir_Proporcion(
        estado, 4.0, [&] { return A_Pelo(bytes, escena.fichero + ".suelo"); }, obra);
    estado.counters["memoria_MB"] = Memoria_MB();
    estado.counters["tope_MB"] = 150;
}
BENCHMARK(Exportar_32768)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);

// Linear cost: the time a run of the largest session takes, against a run of one an eighth its
// size.
void Crecimiento(benchmark::State& estado)
{
    const auto por_corrida = [&](int corridas) {
        const Escena escena(corridas);
        escena.Exportar();
        return Cronometrar([&] { escena.Exportar(); }) / corridas;
    };
    Medir_Proporcion(
        estado, 1.5, [&] { return por_corrida(CORRIDAS / 8); },
        [&] { return por_corrida(CORRIDAS); });
}
BENCHMARK(Crecimiento)->UseManualTime()->Iterations(3)->Unit(benchmark::kMicrosecond);

} // namespace

MEDIDAS_JUZGADAS()

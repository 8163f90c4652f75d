// Storing a received KRT300 buffer of 131,072 records against inserting the same rows with bare
// prepared SQLite statements in one transaction.
#include "app/cli/Interfaz_Consola.h"
#include "bench/Proporcion.h"
#include "core/ModEstTotal.h"
#include "core/Sesiones.h"
#include "transfer/krt300/Almacen_KRT300.h"

#include <QBuffer>
#include <QTemporaryDir>

#include <sqlite3.h>

namespace {

constexpr int PUNTOS = 32768;
constexpr int REGISTROS_POR_PUNTO = 4;

QString Buffer_De_Campo()
{
    QString buffer = "_EEST1      1550";
    for (int p = 0; p < PUNTOS; ++p) {
        buffer += QStringLiteral("_+P%1").arg(p);
        for (const char* id : {"A", "B", "C", "D"})
            buffer += QStringLiteral("_%1+%2").arg(id).arg(p * 37 + 1000000, 10, 10, QChar(u'0'));
    }
    return buffer;
}

// Seconds of inserting every row of Registros of `fichero` into a copy of its table.
double Insertar_A_Pelo(const QString& fichero)
{
    struct Fila {
        sqlite3_int64 id, secuencia;
        std::string punto, datos, datosg;
    };
    static std::vector<Fila> filas;
    sqlite3* bd = nullptr;
    const auto texto = [](sqlite3_stmt* s, int c) {
        const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(s, c));
        return std::string(t ? t : "");
    };
    sqlite3_open(QFile::encodeName(fichero).constData(), &bd);
    sqlite3_stmt* s = nullptr;
    if (filas.empty()) {
        sqlite3_prepare_v2(bd, "SELECT ID,Secuencia,Punto,Datos,DatosG FROM Registros WHERE ID=1",
                           -1, &s, nullptr);
        while (sqlite3_step(s) == SQLITE_ROW)
            filas.push_back({sqlite3_column_int64(s, 0), sqlite3_column_int64(s, 1), texto(s, 2),
                             texto(s, 3), texto(s, 4)});
        sqlite3_finalize(s);
    }
    const auto hacer = [&] {
        sqlite3_exec(bd, "BEGIN", nullptr, nullptr, nullptr);
        sqlite3_prepare_v2(
            bd, "INSERT INTO Registros (ID,Secuencia,Punto,Datos,DatosG) VALUES (?,?,?,?,?)", -1,
            &s, nullptr);
        for (const Fila& f : filas) {
            sqlite3_bind_int64(s, 1, 30000);
            sqlite3_bind_int64(s, 2, f.secuencia);
            sqlite3_bind_text(s, 3, f.punto.data(), int(f.punto.size()), SQLITE_STATIC);
            sqlite3_bind_text(s, 4, f.datos.data(), int(f.datos.size()), SQLITE_STATIC);
            sqlite3_bind_text(s, 5, f.datosg.data(), int(f.datosg.size()), SQLITE_STATIC);
            sqlite3_step(s);
            sqlite3_reset(s);
        }
        sqlite3_finalize(s);
        sqlite3_exec(bd, "COMMIT", nullptr, nullptr, nullptr);
    };
    const double segundos = Cronometrar(hacer);
    sqlite3_exec(bd, "DELETE FROM Registros WHERE ID=30000", nullptr, nullptr, nullptr);
    sqlite3_close(bd);
    return segundos;
}

void Guardar_131072(benchmark::State& estado)
{
    QTemporaryDir carpeta;
    QBuffer nada;
    nada.open(QIODevice::WriteOnly);
    Contexto contexto;
    contexto.salida = contexto.errores = &nada;
    const Interfaz_Consola consola(contexto);
    Ruta_Aplicacion = Ruta_MDB = carpeta.path();
    Fichero_MDB = carpeta.filePath("EstTotal.mdb");
    Base_Datos = Base::Crear(Fichero_MDB);
    for (const char* id : {"A", "B", "C", "D", "E"})
        Base_Datos->Execute("INSERT INTO Identificadores (Nombre,OPE,ID,NomID,tipo) "
                            "VALUES ('KRT300',0,?,'',?)",
                            {id, *id == 'E' ? "G" : "M"});
    const QString buffer = Buffer_De_Campo();
    const auto obra = [&] {
        Base_Datos->Execute("DELETE FROM Registros");
        return Cronometrar([&] { Guardar_KRT300(buffer, 1, "KRT300", 0); });
    };
    obra();
    const qint64 guardados =
        Base_Datos->OpenRecordset("SELECT * FROM Registros", Tipo_Conjunto::Instantanea)
            .RecordCount();
    if (guardados != PUNTOS * REGISTROS_POR_PUNTO) estado.SkipWithError("rows are missing");
    Medir_Proporcion(
        estado, 3.0, [&] { return Insertar_A_Pelo(Fichero_MDB); }, obra);
    Base_Datos.reset();
}
BENCHMARK(Guardar_131072)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);

} // namespace

MEDIDAS_JUZGADAS()

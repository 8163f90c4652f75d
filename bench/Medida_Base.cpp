// The store's layer against bare SQLite: adding rows, passing through them, walking a recordset,
// seeking, and asking with a text built anew each time.
#include "bench/Proporcion.h"
#include "core/jet/Base.h"

#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <sqlite3.h>

namespace {

constexpr int FILAS = 131072;
constexpr int PREGUNTAS = 20000;
constexpr const char* INSERTAR =
    "INSERT INTO Registros (ID,Secuencia,Punto,Datos,DatosG) VALUES (?,?,?,?,?)";
constexpr const char* LEER =
    "SELECT Secuencia,Punto,Datos,DatosG FROM Registros WHERE ID=? ORDER BY Secuencia";

struct Fila {
    QString punto, datos, datosg;
    QByteArray punto8, datos8, datosg8;
};

const std::vector<Fila>& Filas()
{
    static const std::vector<Fila> filas = [] {
        std::vector<Fila> f;
        for (int i = 0; i < FILAS; ++i) {
            Fila fila;
            fila.punto = QStringLiteral("P%1").arg(i / 4);
            fila.datos =
                QStringLiteral("%1+%2").arg(QChar('A' + i % 4)).arg(i * 37, 10, 10, QChar('0'));
            fila.datosg = QStringLiteral("EEST%1      1550").arg(i / 5000);
            fila.punto8 = fila.punto.toUtf8();
            fila.datos8 = fila.datos.toUtf8();
            fila.datosg8 = fila.datosg.toUtf8();
            f.push_back(fila);
        }
        return f;
    }();
    return filas;
}

// A database in a folder of its own, filled once, and a bare connection to it.
class Sala {
public:
    Sala() : base(Base::Crear(carpeta.filePath("EstTotal.mdb")))
    {
        if (sqlite3_open(base->Fichero().toUtf8().constData(), &pelada) != SQLITE_OK) std::abort();
        for (const char* p : {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=NORMAL",
                              "PRAGMA secure_delete=OFF", "PRAGMA cache_size=-16000"})
            sqlite3_exec(pelada, p, nullptr, nullptr, nullptr);
    }
    ~Sala() { sqlite3_close(pelada); }
    Sala(const Sala&) = delete;
    Sala& operator=(const Sala&) = delete;

    double Insertar_Pelado(int id)
    {
        const double s = Cronometrar([&] {
            sqlite3_exec(pelada, "BEGIN", nullptr, nullptr, nullptr);
            sqlite3_stmt* st = Preparar(INSERTAR);
            int secuencia = 0;
            for (const Fila& f : Filas()) {
                sqlite3_bind_int64(st, 1, id);
                sqlite3_bind_int64(st, 2, ++secuencia);
                Ligar(st, 3, f.punto8);
                Ligar(st, 4, f.datos8);
                Ligar(st, 5, f.datosg8);
                sqlite3_step(st);
                sqlite3_reset(st);
            }
            sqlite3_finalize(st);
            sqlite3_exec(pelada, "COMMIT", nullptr, nullptr, nullptr);
        });
        return s;
    }

    void Vaciar(int id) { base->Execute("DELETE FROM Registros WHERE ID = ?", {id}); }

    sqlite3_stmt* Preparar(const char* sql)
    {
        sqlite3_stmt* st = nullptr;
        if (sqlite3_prepare_v2(pelada, sql, -1, &st, nullptr) != SQLITE_OK) std::abort();
        return st;
    }

    QTemporaryDir carpeta;
    std::shared_ptr<Base> base;

private:
    static void Ligar(sqlite3_stmt* st, int lugar, const QByteArray& b)
    {
        sqlite3_bind_text(st, lugar, b.constData(), int(b.size()), SQLITE_STATIC);
    }

    sqlite3* pelada = nullptr;
};

void Anadir_Filas(benchmark::State& estado)
{
    Sala sala;
    const auto suelo = [&] {
        const double s = sala.Insertar_Pelado(1);
        sala.Vaciar(1);
        return s;
    };
    const auto obra = [&] {
        const double s = Cronometrar([&] {
            Transaccion t(*sala.base);
            Insercion i = sala.base->Preparar_Insercion(
                "Registros", {"ID", "Secuencia", "Punto", "Datos", "DatosG"});
            i.Poner(0, qint64(2));
            qint64 secuencia = 0;
            for (const Fila& f : Filas()) {
                i.Poner(1, ++secuencia);
                i.Poner(2, f.punto);
                i.Poner(3, f.datos);
                i.Poner(4, f.datosg);
                i.Anadir();
            }
            t.Confirmar();
        });
        sala.Vaciar(2);
        return s;
    };
    Medir_Proporcion(estado, 1.5, suelo, obra);
}
BENCHMARK(Anadir_Filas)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);

double Leer_Pelado(Sala& sala)
{
    return Cronometrar([&] {
        sqlite3_stmt* st = sala.Preparar(LEER);
        sqlite3_bind_int64(st, 1, 1);
        qint64 suma = 0;
        while (sqlite3_step(st) == SQLITE_ROW) {
            suma += sqlite3_column_int64(st, 0);
            for (int c = 1; c < 4; ++c) {
                benchmark::DoNotOptimize(sqlite3_column_text(st, c));
                suma += sqlite3_column_bytes(st, c);
            }
        }
        benchmark::DoNotOptimize(suma);
        sqlite3_finalize(st);
    });
}

void Recorrer_Filas(benchmark::State& estado)
{
    Sala sala;
    sala.Insertar_Pelado(1);
    const auto obra = [&] {
        return Cronometrar([&] {
            Recorrido r = sala.base->Recorrer(QString::fromLatin1(LEER), {1});
            qint64 suma = 0;
            while (r.Siguiente()) {
                suma += r.Entero(0);
                for (int c = 1; c < 4; ++c)
                    suma += r.Bytes(c).size();
            }
            benchmark::DoNotOptimize(suma);
        });
    };
    Medir_Proporcion(
        estado, 1.2, [&] { return Leer_Pelado(sala); }, obra);
}
BENCHMARK(Recorrer_Filas)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);

// A recordset reads each row for itself: dearer, yet of the same order.
void Pasear_Un_Conjunto(benchmark::State& estado)
{
    Sala sala;
    sala.Insertar_Pelado(1);
    const auto obra = [&] {
        return Cronometrar([&] {
            Conjunto_Registros rs =
                sala.base->OpenRecordset("SELECT * FROM Registros WHERE ID = 1 ORDER BY Secuencia");
            qint64 suma = 0;
            for (; !rs.Es_EOF(); rs.MoveNext())
                suma += rs.Entero("Secuencia") + rs.Texto("Datos").size();
            benchmark::DoNotOptimize(suma);
        });
    };
    Medir_Proporcion(
        estado, 15, [&] { return Leer_Pelado(sala); }, obra);
}
BENCHMARK(Pasear_Un_Conjunto)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

// The program builds its SQL by joining texts: the translator has to find the prepared form again.
void Preguntar_Con_Texto_Nuevo(benchmark::State& estado)
{
    Sala sala;
    sala.Insertar_Pelado(1);
    const auto suelo = [&] {
        return Cronometrar([&] {
            qint64 suma = 0;
            sqlite3_stmt* st =
                sala.Preparar("SELECT * FROM Registros WHERE ID = ? AND Punto = ? AND "
                              "Secuencia BETWEEN ? AND ? ORDER BY Secuencia");
            for (int i = 0; i < PREGUNTAS; ++i) {
                const QByteArray punto = "P" + QByteArray::number(i);
                sqlite3_bind_int64(st, 1, 1);
                sqlite3_bind_text(st, 2, punto.constData(), -1, SQLITE_TRANSIENT);
                sqlite3_bind_int64(st, 3, i * 4 + 1);
                sqlite3_bind_int64(st, 4, i * 4 + 4);
                while (sqlite3_step(st) == SQLITE_ROW)
                    suma += sqlite3_column_bytes(st, 3);
                sqlite3_reset(st);
            }
            sqlite3_finalize(st);
            benchmark::DoNotOptimize(suma);
        });
    };
    const auto obra = [&] {
        return Cronometrar([&] {
            qint64 suma = 0;
            for (int i = 0; i < PREGUNTAS; ++i) {
                Recorrido r = sala.base->Recorrer(
                    QStringLiteral("SELECT * FROM Registros WHERE ID = 1 AND Punto = 'P%1' AND "
                                   "Secuencia BETWEEN %2 AND %3 ORDER BY Secuencia")
                        .arg(i)
                        .arg(i * 4 + 1)
                        .arg(i * 4 + 4));
                while (r.Siguiente())
                    suma += r.Bytes(3).size();
            }
            benchmark::DoNotOptimize(suma);
        });
    };
    Medir_Proporcion(estado, 5, suelo, obra);
}
BENCHMARK(Preguntar_Con_Texto_Nuevo)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);

} // namespace

MEDIDAS_JUZGADAS()

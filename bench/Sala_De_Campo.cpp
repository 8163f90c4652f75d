#include "bench/Sala_De_Campo.h"

#include "bench/Proporcion.h"
#include "core/ModEstTotal.h"
#include "export/GuardarN.h"
#include "formats/ModFormatos.h"
#include "transfer/krt300/Almacen_KRT300.h"
#include "transfer/krt800/Almacen_KRT800.h"

#include <cstdlib>
#include <sqlite3.h>
#include <sys/resource.h>

namespace {

class Interfaz_Muda : public Interfaz {
public:
    void Mensaje(const QString& texto, Icono, const QString&) override
    {
        std::fprintf(stderr, "%s\n", qPrintable(texto));
    }
    bool Preguntar(const QString&, Icono, const QString&) override { return true; }
    std::optional<QString> Pedir_Texto(const QString&, const QString&, const QString&) override
    {
        return std::nullopt;
    }
    std::optional<Fichero_Elegido> Pedir_Fichero(const Peticion_Fichero&) override
    {
        return std::nullopt;
    }
    void Pitar() override {}
    void Cursor_Ocupado(bool) override {}
    void Proceso_Abrir(const QString&, qint64) override {}
    void Proceso_Etiqueta(const QString&, qint64) override {}
    void Proceso_Avanzar(qint64) override {}
    void Proceso_Cerrar() override {}
    void Repintar() override {}
    void Dejar_Pasar() override {}
    void Arrancar(const QString&, const QStringList&) override {}
    void Ver_Texto(const QString&, bool) override {}
    void Terminar(int) override {}
};

// A number in fixed columns: a sign and digits.
QString Cifras(qint64 valor, int ancho)
{
    return (valor < 0 ? u'-' : u'+') + QString::number(std::abs(valor)).rightJustified(ancho - 1, u'0');
}

QString Decimales(qint64 miles, int decimales)
{
    return QString::number(double(miles) / 1000, 'f', decimales);
}

Datos_Recepcion Recepcion_De(const QString& maquina, int operacion, QString buffer)
{
    Datos_Recepcion datos;
    datos.buffer = std::move(buffer);
    datos.nombre = QStringLiteral("JORNADA");
    datos.operacion = operacion;
    datos.maquina = maquina;
    datos.maqdes = maquina;
    return datos;
}

constexpr int PUNTOS_POR_ESTACION = 50;
const char* const CODIGOS[] = {"TERRENO", "CASA", "ARBOL", "CUNETA", "VALLA"};

// A bare connection to the database.
class Conexion_Pelada {
public:
    Conexion_Pelada()
    {
        if (sqlite3_open(QFile::encodeName(Fichero_MDB).constData(), &bd) != SQLITE_OK) std::abort();
        Hacer("PRAGMA synchronous=NORMAL");
        Hacer("PRAGMA cache_size=-16000");
    }
    ~Conexion_Pelada() { sqlite3_close(bd); }
    Conexion_Pelada(const Conexion_Pelada&) = delete;
    Conexion_Pelada& operator=(const Conexion_Pelada&) = delete;

    void Hacer(const char* sql) const { sqlite3_exec(bd, sql, nullptr, nullptr, nullptr); }
    sqlite3_stmt* Preparar(const char* sql) const
    {
        sqlite3_stmt* st = nullptr;
        if (sqlite3_prepare_v2(bd, sql, -1, &st, nullptr) != SQLITE_OK) std::abort();
        return st;
    }

private:
    sqlite3* bd = nullptr;
};

constexpr const char* LINEAS =
    "SELECT Secuencia,Punto,Datos,DatosG FROM Registros WHERE ID=? ORDER BY Secuencia";

} // namespace

Sala_De_Campo::Sala_De_Campo(const QString& m)
    : maquina(m), muda(std::make_unique<Interfaz_Muda>()), anterior(Poner_Interfaz(muda.get()))
{
    Ruta_Aplicacion = Ruta_MDB = carpeta.path();
    Fichero_MDB = Ruta(QStringLiteral("EstTotal.mdb"));
    Clave_Estacion = maquina;
    QFile::copy(QStringLiteral(BASE_ENTREGADA), Fichero_MDB);
    QFile::setPermissions(Fichero_MDB, QFile::ReadOwner | QFile::WriteOwner);
    Base_Datos = Base::Abrir(Fichero_MDB);
}

Sala_De_Campo::~Sala_De_Campo()
{
    Base_Datos.reset();
    Poner_Interfaz(anterior);
}

qint64 Sala_De_Campo::Guardar(const Datos_Recepcion& datos) const
{
    const auto guardar =
        maquina == u"KRT800" ? Guardar_Descarga_KRT800 : Guardar_Descarga_KRT300;
    const auto guardada = guardar(datos);
    return guardada && !guardada->sesiones.isEmpty() ? guardada->sesiones.first().toLongLong() : 0;
}

bool Sala_De_Campo::Exportar(qint64 sesion, int operacion, const QString& formato,
                             const QString& tipo) const
{
    Poner_Campos_Exportar(Campos_Formato(*Base_Datos, maquina, formato));
    Avance_Exportar avance;
    return Exportar_Sesion(sesion, maquina, operacion, tipo, formato, Salida(),
                           {QStringLiteral(" \u0006N")}, avance);
}

Datos_Recepcion Libreta_KRT300(int puntos)
{
    QString b;
    for (int p = 0; p < puntos; ++p) {
        if (p % PUNTOS_POR_ESTACION == 0) {
            const QString e = QString::number(p / PUNTOS_POR_ESTACION);
            b += "_JJORNADA 12_EE" + e + "_I+01457_S" + Cifras(4478320433 + p, 11) +
                 Cifras(456191339 + p, 11) + Cifras(617438, 11) + "_RBASE" + e + "_O+1406461";
        }
        b += "_+" + QString::number(1000 + p) + "_h" + Cifras(p * 7919LL % 3999999, 8) + "_v" +
             Cifras(950000 + p * 31 % 99999, 8) + "_d" + Cifras(9000 + p * 137 % 99999, 9) +
             "_p+01300_c" + CODIGOS[p % 5];
    }
    return Recepcion_De(QStringLiteral("KRT300"), 0, b);
}

Datos_Recepcion Coordenadas_KRT300(int puntos)
{
    QString b;
    for (int p = 0; p < puntos; ++p)
        b += "_+" + QString::number(1000 + p) + "_ y" + Cifras(456191339 + p * 1237LL, 11) + "_ x" +
             Cifras(4478320433 + p * 371LL, 11) + "_ z" + Cifras(617438 + p % 9999, 11) + "_c" +
             CODIGOS[p % 5];
    return Recepcion_De(QStringLiteral("KRT300"), 1, b);
}

Datos_Recepcion Libreta_KRT800(int puntos)
{
    QString b = QStringLiteral("JOB JORNADA 12\r\n");
    for (int p = 0; p < puntos; ++p) {
        if (p % PUNTOS_POR_ESTACION == 0)
            b += "STN E" + QString::number(p / PUNTOS_POR_ESTACION) + ",1.457,VERTICE\r\nXYZ " +
                 Decimales(456191339 + p, 3) + ",4478320.433,617.438\r\nBKB BASE0,252.2536,111.6075\r\n";
        b += "SS " + QString::number(1000 + p) + ",1.300," + CODIGOS[p % 5] + "\r\nSD " +
             Decimales(p * 7919LL % 399999, 4) + ',' + Decimales(95000 + p % 9999, 4) + ',' +
             Decimales(9000 + p * 137 % 99999, 3) + "\r\n";
    }
    return Recepcion_De(QStringLiteral("KRT800"), 0, b);
}

double Recorrer_Y_Escribir(qint64 sesion, const QByteArray& bytes, const QString& fichero)
{
    const Conexion_Pelada bd;
    std::size_t leidos = 0;
    const double segundos = Cronometrar([&] {
        sqlite3_stmt* const s = bd.Preparar(LINEAS);
        sqlite3_bind_int64(s, 1, sesion);
        while (sqlite3_step(s) == SQLITE_ROW) {
            leidos += std::size_t(sqlite3_column_int64(s, 0));
            for (int c = 1; c < 4; ++c) {
                benchmark::DoNotOptimize(sqlite3_column_text(s, c));
                leidos += std::size_t(sqlite3_column_bytes(s, c));
            }
        }
        sqlite3_finalize(s);
        std::FILE* const salida = std::fopen(QFile::encodeName(fichero).constData(), "wb");
        std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), salida);
        std::fclose(salida);
    });
    benchmark::DoNotOptimize(leidos);
    return segundos;
}

double Insertar_A_Pelo(qint64 sesion)
{
    struct Fila {
        std::string punto, datos, datosg;
    };
    const Conexion_Pelada bd;
    std::vector<Fila> filas;
    const auto texto = [](sqlite3_stmt* s, int c) {
        const auto* const t = reinterpret_cast<const char*>(sqlite3_column_text(s, c));
        return std::string(t ? t : "");
    };
    sqlite3_stmt* lineas = bd.Preparar(LINEAS);
    sqlite3_bind_int64(lineas, 1, sesion);
    while (sqlite3_step(lineas) == SQLITE_ROW)
        filas.push_back({texto(lineas, 1), texto(lineas, 2), texto(lineas, 3)});
    sqlite3_finalize(lineas);

    const double segundos = Cronometrar([&] {
        bd.Hacer("BEGIN");
        sqlite3_stmt* const s = bd.Preparar(
            "INSERT INTO Registros (ID,Secuencia,Punto,Datos,DatosG) VALUES (30000,?,?,?,?)");
        sqlite3_int64 secuencia = 0;
        for (const Fila& f : filas) {
            sqlite3_bind_int64(s, 1, ++secuencia);
            sqlite3_bind_text(s, 2, f.punto.data(), int(f.punto.size()), SQLITE_STATIC);
            sqlite3_bind_text(s, 3, f.datos.data(), int(f.datos.size()), SQLITE_STATIC);
            sqlite3_bind_text(s, 4, f.datosg.data(), int(f.datosg.size()), SQLITE_STATIC);
            sqlite3_step(s);
            sqlite3_reset(s);
        }
        sqlite3_finalize(s);
        bd.Hacer("COMMIT");
    });
    bd.Hacer("DELETE FROM Registros WHERE ID=30000");
    return segundos;
}

double Memoria_MB()
{
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    return double(uso.ru_maxrss) / 1024.0;
}

QByteArray Leer_Todo(const QString& nombre)
{
    QFile fichero(nombre);
    return fichero.open(QIODevice::ReadOnly) ? fichero.readAll() : QByteArray();
}

// Writing a table of 32,768 rows by 8 text columns to an .mdb against encoding the same texts to
// bytes and writing as many bytes as the file has with one fwrite: what the form itself costs. A
// second measure adds to both sides the wait until the bytes lie on the disk, as a user meets it.
#include "bench/Proporcion.h"
#include "bench/Tabla_De_Campo.h"
#include "core/plataforma.h"
#include "export/mdb/Base_Jet.h"

#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>

#include <cstdio>

namespace {

class Escena {
public:
    Escena()
    {
        for (int f = 0; f < FILAS; ++f) {
            QStringList fila;
            for (int c = 0; c < COLUMNAS; ++c)
                fila << Celda_De_Campo(f, c);
            for (const QString& celda : fila)
                letras += celda.size();
            filas.push_back(fila);
        }
        for (int c = 0; c < COLUMNAS; ++c)
            columnas.append({.nombre = QStringLiteral("Columna %1").arg(c)});
        Escribir_Base();
        largo = QFile(base).size();
    }

    void Escribir_Base() const
    {
        Base_Jet nueva(base, {.si_existe = Ajustes_Jet::REEMPLAZAR});
        Llenar(nueva);
    }

    // As `Escribir_Base`, without waiting for the disk.
    void Escribir_Sin_Esperar() const
    {
        QFile fichero(base);
        if (!fichero.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) qFatal("no file");
        Base_Jet nueva(fichero);
        Llenar(nueva);
    }

    void Escribir_Llano(bool esperar) const
    {
        QByteArray bytes(std::max(largo, letras), Qt::Uninitialized);
        QStringEncoder codificador(QStringEncoder::Latin1);
        char* lugar = bytes.data();
        for (const QStringList& fila : filas)
            for (const QString& celda : fila)
                lugar = codificador.appendToBuffer(lugar, celda);
        std::memset(lugar, 0, std::size_t(bytes.data() + largo - lugar));
        std::FILE* const salida = std::fopen(QFile::encodeName(llano).constData(), "wb");
        if (!salida ||
            std::fwrite(bytes.data(), 1, std::size_t(largo), salida) != std::size_t(largo))
            qFatal("no file");
        QFile fichero;
        if (esperar && fichero.open(salida, QIODevice::WriteOnly)) plataforma::Sincronizar(fichero);
        std::fclose(salida);
    }

private:
    void Llenar(Base_Jet& nueva) const
    {
        nueva.Crear_Tabla("Datos", columnas);
        for (const QStringList& fila : filas)
            nueva.Anadir_Fila(fila);
        nueva.Cerrar();
    }

    QTemporaryDir carpeta;
    QString base = carpeta.filePath("tabla.mdb"), llano = carpeta.filePath("llano");
    std::vector<QStringList> filas;
    QList<Columna_Texto> columnas;
    qsizetype letras = 0;
    qint64 largo = 0;
};

void Escribir_32768_x_8(benchmark::State& estado)
{
    const Escena escena;
    Medir_Proporcion(
        estado, 3.0, [&] { return Cronometrar([&] { escena.Escribir_Llano(false); }); },
        [&] { return Cronometrar([&] { escena.Escribir_Sin_Esperar(); }); });
}
BENCHMARK(Escribir_32768_x_8)->UseManualTime()->Iterations(31)->Unit(benchmark::kMillisecond);

void Escribir_32768_x_8_hasta_el_disco(benchmark::State& estado)
{
    const Escena escena;
    Medir_Proporcion(
        estado, 3.0, [&] { return Cronometrar([&] { escena.Escribir_Llano(true); }); },
        [&] { return Cronometrar([&] { escena.Escribir_Base(); }); });
}
BENCHMARK(Escribir_32768_x_8_hasta_el_disco)
    ->UseManualTime()
    ->Iterations(11)
    ->Unit(benchmark::kMillisecond);

} // namespace

MEDIDAS_JUZGADAS()

// Converting an alignment of a LandXML file of 100 MB, 200 alignments beside big surfaces, against
// just reading the file's tokens with the same XML reader; and the memory that takes.
#include "bench/Proporcion.h"
#include "conversions/biblioteca/Tabla_Funciones.h"

#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace {

constexpr qint64 TAMANO = 100'000'000;
constexpr int ALINEACIONES = 200;
constexpr int ELEMENTOS = 60;
constexpr double TOPE = 1.3;
constexpr double TOPE_MEMORIA_MB = 50;

QByteArray Num(double x)
{
    return QByteArray::number(x, 'f', 6);
}

QByteArray Par(const char* etiqueta, double norte, double este)
{
    return QByteArray("<") + etiqueta + '>' + Num(norte) + ' ' + Num(este) + "</" + etiqueta +
           ">\r\n";
}

QByteArray Alineacion(int n)
{
    QByteArray s = "<Alignment name=\"Eje " + QByteArray::number(n) +
                   "\" length=\"6000\" staStart=\"0\"><CoordGeom>\r\n";
    for (int i = 0; i < ELEMENTOS; ++i)
        s += "<Line length=\"100\" dir=\"0\">" + Par("Start", 4500000 + 100.0 * i, 400000 + n) +
             Par("End", 4500100 + 100.0 * i, 400000 + n) + "</Line>\r\n";
    s += "</CoordGeom><Profile><ProfAlign name=\"R\">\r\n";
    for (int i = 0; i < ELEMENTOS; ++i) {
        const bool extremo = i == 0 || i + 1 == ELEMENTOS;
        s += (extremo ? "<PVI>" : "<ParaCurve length=\"20\">") + Num(100.0 * i) + ' ' +
             Num(600 + i % 7) + (extremo ? "</PVI>\r\n" : "</ParaCurve>\r\n");
    }
    return s + "</ProfAlign></Profile></Alignment>\r\n";
}

// Points one an element, faces one an element: what triangle surfaces are made of.
void Escribir_Superficie(QFile& f, qint64 hasta)
{
    f.write("<Surface name=\"MDT\"><Definition surfType=\"TIN\"><Pnts>\r\n");
    const qint64 principio = f.pos();
    int n = 0;
    while (f.pos() < (principio + hasta) / 2) {
        QByteArray bloque;
        for (int i = 0; i < 1000; ++i, ++n)
            bloque += "<P id=\"" + QByteArray::number(n) + "\">" + Num(4500000 + n % 977 * 1.5) +
                      ' ' + Num(400000 + n / 977 * 1.5) + ' ' + Num(600 + n % 131 * 0.25) +
                      "</P>\r\n";
        f.write(bloque);
    }
    f.write("</Pnts><Faces>\r\n");
    for (int cara = 0; f.pos() < hasta;) {
        QByteArray bloque;
        for (int i = 0; i < 1000; ++i, ++cara)
            bloque += "<F>" + QByteArray::number(cara % n) + ' ' +
                      QByteArray::number((cara + 1) % n) + ' ' +
                      QByteArray::number((cara + 977) % n) + "</F>\r\n";
        f.write(bloque);
    }
    f.write("</Faces></Definition></Surface>\r\n");
}

void Hacer_Fichero(const QString& ruta)
{
    QFile f(ruta);
    if (!f.open(QIODevice::WriteOnly)) return;
    f.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<LandXML "
            "xmlns=\"http://www.landxml.org/schema/LandXML-1.2\" version=\"1.2\">\r\n"
            "<Units><Metric linearUnit=\"meter\"/></Units>\r\n<Surfaces>\r\n");
    Escribir_Superficie(f, TAMANO / 2);
    f.write("</Surfaces>\r\n<Alignments>\r\n");
    for (int n = 0; n < ALINEACIONES; ++n)
        f.write(Alineacion(n));
    f.write("</Alignments>\r\n<Surfaces>\r\n");
    Escribir_Superficie(f, TAMANO);
    f.write("</Surfaces></LandXML>\r\n");
}

// Most memory of this process since the last call, in MB; 0 where the system doesn't tell.
double Pico_De_Memoria()
{
    double pico = 0;
    QFile estado(QStringLiteral("/proc/self/status"));
    if (estado.open(QIODevice::ReadOnly))
        for (const QByteArray& linea : estado.readAll().split('\n'))
            if (linea.startsWith("VmHWM:"))
                pico = linea.mid(6).trimmed().split(' ')[0].toDouble() / 1024;
    QFile borrar(QStringLiteral("/proc/self/clear_refs"));
    if (borrar.open(QIODevice::WriteOnly)) borrar.write("5");
    return pico;
}

void Leer_Tokens(const QString& ruta)
{
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly)) return;
    QXmlStreamReader xml(&f);
    qint64 tokens = 0;
    while (!xml.atEnd()) {
        xml.readNext();
        ++tokens;
    }
    benchmark::DoNotOptimize(tokens);
}

void Convertir_100_MB(benchmark::State& estado)
{
    const bool rasante = estado.range(0) == 1;
    estado.SetLabel(rasante ? "rlandxml2krt" : "alandxml2krt");
    const QTemporaryDir carpeta;
    const QString origen = carpeta.filePath("origen.xml"), destino = carpeta.filePath("destino");
    Hacer_Fichero(origen);
    Pico_De_Memoria();
    double pico = 0;
    const auto obra = [&] {
        return Cronometrar([&] {
            Pico_De_Memoria();
            Informe_Lectura informe;
            const QStringList argumentos = {rasante ? "Eje 199" : "199", origen, destino};
            if (Ejecutar_Funcion(rasante ? u"rlandxml2krt" : u"alandxml2krt", argumentos,
                                 informe) != 1)
                estado.SkipWithError("the file was refused");
            pico = std::max(pico, Pico_De_Memoria());
        });
    };
    Medir_Proporcion(
        estado, TOPE, [&] { return Cronometrar([&] { Leer_Tokens(origen); }); }, obra);
    estado.counters["memoria_MB"] = pico;
    estado.counters["tope_memoria_MB"] = TOPE_MEMORIA_MB;
}
BENCHMARK(Convertir_100_MB)
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

} // namespace

MEDIDAS_JUZGADAS()

#include "conversions/biblioteca/Flujo_Monitorizar.h"

#include "conversions/biblioteca/Flujo_Conversion.h"
#include "conversions/biblioteca/Tabla_Funciones.h"
#include "conversions/puntos/Libro_Resultados.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

namespace {

const QString TODOS = QStringLiteral("|Todos los archivos (*.*)|*.*");

// How each kind of results is asked for.
struct Fila_Salida {
    Salida_Monitorizar salida;
    const char16_t* extension;
    const char16_t* filtro;
};
constexpr Fila_Salida SALIDAS[] = {
    {Salida_Monitorizar::Ascii, u"txt", u"ASCII (*.txt)|*.txt"},
    {Salida_Monitorizar::Excel, u"xls", u"Fichero de Excel (*.xls)|*.xls"},
};

QString Temporal()
{
    return En_Instalacion("temp.dat");
}

// A file of the application folder that lasts no longer than its use.
auto Quitar_Temporal()
{
    return qScopeGuard([] { QFile::remove(Temporal()); });
}

// @return the name; empty when cancelled
QString Pedir(const QString& titulo, const QString& filtro, const QString& extension, bool guardar)
{
    const auto elegido = Interfaz_Actual().Pedir_Fichero({.titulo = titulo,
                                                          .filtro = filtro,
                                                          .carpeta = {},
                                                          .extension = extension,
                                                          .guardar = guardar});
    return elegido ? elegido->nombre : QString();
}

// Until a name comes that the user lets be written.
QString Pedir_Destino(const Fila_Salida& fila)
{
    for (;;) {
        QString destino =
            Pedir("Seleccione Fichero de Resultados", QString::fromUtf16(fila.filtro) + TODOS,
                  QString::fromUtf16(fila.extension), true);
        if (destino.isEmpty() || !QFileInfo::exists(destino)) return destino;
        if (Interfaz_Actual().Preguntar(destino + " ya existe.\r\n¿Desea reemplazarlo?"))
            return destino;
    }
}

} // namespace

bool Flujo_Monitorizar::Abrir()
{
    const QString de_lecturas =
        Pedir("Seleccione Fichero de Lecturas", "ASCII (*.dat)|*.dat" + TODOS, "dat", false);
    if (de_lecturas.isEmpty()) return false;
    const QString de_coordenadas =
        Pedir("Seleccione Fichero de Coordenadas", "ASCII (*.xyz)|*.xyz" + TODOS, "pun", false);
    if (de_coordenadas.isEmpty()) return false;
    Tomar(de_lecturas, de_coordenadas);
    return true;
}

void Flujo_Monitorizar::Tomar(const QString& de_lecturas, const QString& de_coordenadas)
{
    lecturas = de_lecturas;
    coordenadas = de_coordenadas;
    Leer_Cabecera();
}

// Three lines; an empty one leaves its box as it is.
void Flujo_Monitorizar::Leer_Cabecera()
{
    const auto quitar = Quitar_Temporal();
    Informe_Lectura informe;
    Ejecutar_Funcion(u"procesaCabecera", {lecturas, Temporal()}, informe);
    if (!QFileInfo::exists(Temporal())) return;
    const QStringList lineas = Ficheros::Leer_Lineas(Temporal());
    QString* const cajas[] = {&textos.temperatura, &textos.fecha, &textos.hora};
    for (qsizetype i = 0; i < std::ssize(cajas) && i < lineas.size(); ++i)
        if (!lineas[i].isEmpty()) *cajas[i] = lineas[i];
}

bool Flujo_Monitorizar::Ejecutar(const QString& destino, Informe_Lectura& informe) const
{
    return Ejecutar_Funcion(u"procesaRobotizada",
                            {lecturas, coordenadas, destino, textos.trabajo, textos.descripcion,
                             textos.operario, textos.temperatura, textos.fecha, textos.hora},
                            informe) != 0 &&
           QFileInfo::exists(destino);
}

bool Flujo_Monitorizar::Escribir(const QString& destino, Informe_Lectura& informe) const
{
    if (salida == Salida_Monitorizar::Ascii) return Ejecutar(destino, informe);
    const auto quitar = Quitar_Temporal();
    if (!Ejecutar(Temporal(), informe)) return false;
    Escribir_Libro_Resultados(Temporal(), destino);
    return QFileInfo::exists(destino);
}

bool Flujo_Monitorizar::Aceptar() const
{
    const QString destino = Pedir_Destino(SALIDAS[std::size_t(salida)]);
    if (destino.isEmpty()) return false;
    Informe_Lectura informe;
    bool hecho = false;
    try {
        const Cursor_De_Espera espera;
        hecho = Escribir(destino, informe);
    } catch (...) {
        Informe_Error("Se produjo un error al escribir el libro de resultados", Error_En_Curso());
    }
    Interfaz_Actual().Mensaje(hecho ? QStringLiteral("Fichero generado correctamente")
                                    : QStringLiteral("ERROR: Fichero no generado"));
    Mostrar_Omisiones(informe);
    return true;
}

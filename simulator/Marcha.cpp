#include "simulator/Marcha.h"

#include "simulator/Aparato_Nivel.h"
#include "simulator/Aparato_Texto.h"
#include "simulator/Aparato_Tramas.h"
#include "simulator/Libreta.h"

#include <QSaveFile>

#include <chrono>
#include <cstdio>

namespace {

constexpr int PASO = 10;              // milliseconds of a turn at most
constexpr int ESPERA_CIERRE = 10'000; // the PC may take its time to read and close

qint64 Ahora()
{
    using namespace std::chrono;
    static const auto inicio = steady_clock::now();
    return duration_cast<milliseconds>(steady_clock::now() - inicio).count();
}

void Decir(const QString& texto)
{
    std::fputs((texto + u'\n').toUtf8().constData(), stderr);
}

simulador::Linea::Ajustes Ajustes_Linea(const simulador::Opciones& o)
{
    simulador::Linea::Ajustes a;
    a.baudios = o.baudios;
    a.trozo = o.fallos.trozo;
    a.corte = o.fallos.corte;
    return a;
}

} // namespace

std::unique_ptr<simulador::Aparato>
simulador::Hacer_Aparato(const Opciones& o, const std::optional<QList<QByteArray>>& registros,
                         Aparato::Salida salida, Aparato::Nota nota)
{
    if (o.aparato == QLatin1String("KRT800"))
        return std::make_unique<Aparato_Texto>(
            Aparato_Texto::Ajustes{registros, o.retardo, o.fallos}, std::move(salida),
            std::move(nota));
    if (o.aparato == QLatin1String("NV400"))
        return std::make_unique<Aparato_Nivel>(
            Aparato_Nivel::Ajustes{registros, !o.seguir, o.fallos}, std::move(salida),
            std::move(nota));
    return std::make_unique<Aparato_Tramas>(
        Aparato_Tramas::Ajustes{registros, o.bloque, !o.seguir, o.fin_linea, o.fallos},
        std::move(salida), std::move(nota));
}

simulador::Marcha::Marcha(const Opciones& dadas) : opciones(dadas), linea(Ajustes_Linea(dadas)) {}

QString simulador::Marcha::Preparar()
{
    std::optional<QList<QByteArray>> registros;
    if (!opciones.enviar.isEmpty()) {
        const Libreta libreta = Leer_Libreta(opciones.enviar);
        if (!libreta.motivo.isEmpty()) return libreta.motivo;
        registros = libreta.registros;
    }
    aparato = Hacer_Aparato(
        opciones, registros, [this](const QByteArray& bytes) { linea.Poner(bytes); }, Decir);
    antes = Ahora();
    return terminal.Crear(opciones.enlace);
}

bool simulador::Marcha::Turno()
{
    terminal.Esperar(PASO, false);
    Ver_Apertura();
    const qint64 ahora = Ahora();
    if (abierta) {
        Tomar();
        aparato->Pasar(static_cast<int>(ahora - antes));
        Dar();
    }
    antes = ahora;
    if (linea.Cortada()) {
        Decir(QStringLiteral("cable cortado"));
        terminal.Cortar();
        return false;
    }
    return !Ha_Acabado();
}

void simulador::Marcha::Ver_Apertura()
{
    const bool ahora = terminal.Abierta();
    if (ahora && !abierta) {
        linea.Vaciar();
        aparato->Abrir();
        contada = false;
        antes = Ahora();
    }
    abierta = ahora;
}

void simulador::Marcha::Tomar()
{
    const QByteArray bytes = terminal.Leer();
    for (const char c : bytes.left(linea.Llegan(bytes.size())))
        aparato->Recibir(c);
}

void simulador::Marcha::Dar()
{
    for (QByteArray bytes = linea.Sacar(Ahora()); !bytes.isEmpty(); bytes = linea.Sacar(Ahora())) {
        const qsizetype tomados = terminal.Escribir(bytes);
        if (tomados == bytes.size()) continue;
        linea.Devolver(bytes.mid(tomados));
        return;
    }
}

bool simulador::Marcha::Guardar()
{
    if (opciones.guardar.isEmpty() || aparato->Recibido().isEmpty()) return true;
    QSaveFile fichero(opciones.guardar);
    const QByteArray texto =
        opciones.crudo ? aparato->Recibido() : Texto_Libreta(aparato->Registros_Recibidos());
    if (fichero.open(QIODevice::WriteOnly) && fichero.write(texto) == texto.size() &&
        fichero.commit())
        return true;
    Decir(
        QStringLiteral("no se puede guardar %1: %2").arg(opciones.guardar, fichero.errorString()));
    return false;
}

bool simulador::Marcha::Ha_Acabado()
{
    if (aparato->Terminado() && linea.Vacia() && !contada) {
        contada = true;
        hecha = true;
        fin = Ahora();
        estado = Guardar() ? 0 : 1;
    }
    if (opciones.una_vez && hecha && (!abierta || Ahora() - fin > ESPERA_CIERRE)) return true;
    return opciones.tiempo > 0 && !hecha && Ahora() > opciones.tiempo * 1000LL;
}

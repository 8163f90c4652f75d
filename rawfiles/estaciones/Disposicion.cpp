#include "rawfiles/estaciones/Disposicion.h"

#include "core/Ansi.h"
#include "core/ModEstTotal.h"
#include "rawfiles/Fichero_Destino.h"
#include "rawfiles/Lineas_Sesion.h"
#include "session/Columnas_Texto.h"
#include "session/Peticiones_Sesion.h"

#include <algorithm>

namespace {

const QString FIN_LINEA = QStringLiteral("\r\n");

// A longer list would leave the screen.
constexpr qsizetype PARTIDAS_VISIBLES = 20;

bool Contiene(const Celdas& celdas, const QString& separador)
{
    return std::ranges::any_of(celdas, [&](const QString& c) { return c.contains(separador); });
}

QByteArray Texto_De(const QStringList& lineas)
{
    QByteArray texto;
    for (const QString& linea : lineas) {
        Ansi::Agregar_Bytes(texto, linea);
        texto += "\r\n";
    }
    return texto;
}

} // namespace

QString Unir_Celdas(const Celdas& celdas, const QString& separador)
{
    return QStringList(celdas.begin(), celdas.end()).join(separador);
}

QString Pedir_Separador_Disposicion()
{
    return Peticiones_De_Sesion().Pedir_Separador();
}

Lineas_Disposicion Disponer(const Disposicion& disposicion, qint64 id, const QString& separador)
{
    Lineas_Disposicion resultado;
    const auto lector = disposicion.lector();
    Columnas_Texto matriz(lector->celdas.size());
    qint64 numero = 0;
    for (Lineas_Sesion sesion(id); sesion.Siguiente();) {
        ++numero;
        if (!lector->Tomar(Registro_Serie_B(sesion.Datos()))) continue;
        if (matriz[0].size() == LINEAS_MAXIMAS) throw Error_Ejecucion(9);
        for (std::size_t c = 0; c < matriz.size(); ++c)
            matriz[c].push_back(lector->celdas[c]);
        if (Contiene(lector->celdas, separador)) resultado.partidas << numero;
    }
    Igualar_Ancho(matriz);
    Celdas celdas(matriz.size());
    for (std::size_t fila = 0; fila < matriz[0].size(); ++fila) {
        std::ranges::transform(matriz, celdas.begin(),
                               [&](const auto& columna) { return columna[fila]; });
        resultado.lineas << disposicion.linea(celdas, separador);
    }
    return resultado;
}

void Decir_Sin_Registros()
{
    Interfaz_Actual().Mensaje(
        QStringLiteral("El programa no ha detectado ningún registro susceptible de ser volcado a "
                       "Bronex"),
        Icono::Exclamacion);
}

void Decir_Partidas(const Lineas_Disposicion& lineas)
{
    if (lineas.partidas.isEmpty()) return;
    QStringList numeros;
    for (const qint64 n : lineas.partidas.first(qMin(PARTIDAS_VISIBLES, lineas.partidas.size())))
        numeros << QString::number(n);
    if (lineas.partidas.size() > PARTIDAS_VISIBLES)
        numeros << QStringLiteral("... y %1 más").arg(lineas.partidas.size() - PARTIDAS_VISIBLES);
    Interfaz_Actual().Mensaje(
        QStringLiteral("Líneas de la sesión con el separador dentro de un nombre o un código, que "
                       "dan más celdas que columnas:") +
            FIN_LINEA + numeros.join(QStringLiteral(", ")),
        Icono::Informacion);
}

bool Exportar_Disposicion(const Disposicion& disposicion, qint64 id, const QString& ruta)
{
    const QString separador = Pedir_Separador_Disposicion();
    if (separador.isEmpty()) return false;
    try {
        Lineas_Disposicion lineas;
        {
            const Cursor_De_Espera espera;
            lineas = Disponer(disposicion, id, separador);
            if (!lineas.lineas.isEmpty()) Fichero_Destino::Escribir(ruta, Texto_De(lineas.lineas));
        }
        if (lineas.lineas.isEmpty()) {
            Decir_Sin_Registros();
            return false;
        }
        Interfaz_Actual().Mensaje(disposicion.cierre, Icono::Informacion);
        Decir_Partidas(lineas);
        return true;
    } catch (...) {
        Interfaz_Actual().Mensaje(Texto_Informe(disposicion.fallo, Error_En_Curso(), FIN_LINEA),
                                  Icono::Critico);
        return false;
    }
}

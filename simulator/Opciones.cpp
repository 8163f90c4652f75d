#include "simulator/Opciones.h"

namespace {

using simulador::Opciones;

// A list of its own on purpose: the simulator shares nothing with the program that it tries out.
const QStringList APARATOS{"KRT300", "PX7", "KRT800", "NV400"};

struct Opcion {
    QString nombre;
    QString valor; ///< what its value is called; empty for a switch
    QString ayuda;
    QString (*poner)(Opciones&, const QString&); ///< gives back what is wrong
};

template <QString Opciones::*CAMPO> QString Poner_Texto(Opciones& o, const QString& valor)
{
    o.*CAMPO = valor;
    return valor.isEmpty() ? QStringLiteral("está vacío") : QString();
}

template <int Opciones::*CAMPO, int MINIMO> QString Poner_Numero(Opciones& o, const QString& valor)
{
    bool entero = false;
    o.*CAMPO = valor.toInt(&entero);
    return entero && o.*CAMPO >= MINIMO ? QString()
                                        : QStringLiteral("debe ser un número desde %1").arg(MINIMO);
}

template <bool Opciones::*CAMPO> QString Poner_Si(Opciones& o, const QString&)
{
    o.*CAMPO = true;
    return {};
}

QString Poner_Fallo(Opciones& o, const QString& valor)
{
    return Leer_Fallo(valor, o.fallos);
}

const QList<Opcion>& Tabla_Opciones()
{
    static const QList<Opcion> lista{
        {"enlace", "RUTA", "nombre del enlace al puerto; es lo que abre el PC",
         Poner_Texto<&Opciones::enlace>},
        {"enviar", "LIBRETA", "registros que el aparato tiene y envía en una descarga",
         Poner_Texto<&Opciones::enviar>},
        {"guardar", "FICHERO", "guarda lo que llega en una carga, como libreta",
         Poner_Texto<&Opciones::guardar>},
        {"crudo", "", "con --guardar: los datos tal como llegaron, sin tramas",
         Poner_Si<&Opciones::crudo>},
        {"retardo", "MS", "KRT800: milisegundos desde que el PC abre el puerto (1500)",
         Poner_Numero<&Opciones::retardo, 0>},
        {"baudios", "V", "ritmo de la línea; sin él, tan deprisa como se pueda",
         Poner_Numero<&Opciones::baudios, 1>},
        {"bloque", "N", "KRT300 y PX7: caracteres de cada trama (128)",
         Poner_Numero<&Opciones::bloque, 1>},
        {"seguir", "", "KRT300, PX7 y NV400: tras un rechazo pasa a la trama o línea siguiente",
         Poner_Si<&Opciones::seguir>},
        {"crlf", "", "KRT300 y PX7: CR LF detrás de cada trama", Poner_Si<&Opciones::fin_linea>},
        {"una-vez", "", "acaba tras la primera transferencia", Poner_Si<&Opciones::una_vez>},
        {"tiempo", "S", "acaba con estado 1 si en S segundos no ha habido transferencia",
         Poner_Numero<&Opciones::tiempo, 1>},
        {"fallo", "FALLO", "se porta mal; se puede repetir:", Poner_Fallo},
        {"ayuda", "", "muestra esta ayuda", Poner_Si<&Opciones::ayuda>},
    };
    return lista;
}

const Opcion* Buscar(const QString& palabra)
{
    for (const Opcion& o : Tabla_Opciones())
        if (palabra == QStringLiteral("--") + o.nombre) return &o;
    return nullptr;
}

QString Que_Falta(const Opciones& o)
{
    if (o.aparato.isEmpty()) return QStringLiteral("falta el aparato: %1").arg(APARATOS.join(", "));
    if (o.enlace.isEmpty()) return QStringLiteral("falta --enlace");
    if (o.enviar.isEmpty() && o.guardar.isEmpty())
        return QStringLiteral("falta --enviar o --guardar: el aparato no tiene nada que hacer");
    return {};
}

} // namespace

QString simulador::Leer_Opciones(const QStringList& palabras, Opciones& opciones)
{
    for (qsizetype i = 0; i < palabras.size(); ++i) {
        const qsizetype igual =
            palabras[i].startsWith(QLatin1String("--")) ? palabras[i].indexOf('=') : -1;
        const QString palabra = igual < 0 ? palabras[i] : palabras[i].left(igual);
        if (!palabra.startsWith(QLatin1String("--"))) {
            if (!opciones.aparato.isEmpty() || !APARATOS.contains(palabra))
                return QStringLiteral("\"%1\" no es un aparato: %2")
                    .arg(palabra, APARATOS.join(", "));
            opciones.aparato = palabra;
            continue;
        }
        const Opcion* opcion = Buscar(palabra);
        if (!opcion) return QStringLiteral("no hay una opción %1").arg(palabra);
        QString valor = palabras[i].mid(igual + 1);
        if (!opcion->valor.isEmpty() && igual < 0) {
            if (++i >= palabras.size()) return QStringLiteral("%1 necesita un valor").arg(palabra);
            valor = palabras[i];
        }
        if (opcion->valor.isEmpty() && igual >= 0)
            return QStringLiteral("%1 no lleva valor").arg(palabra);
        if (const QString mal = opcion->poner(opciones, valor); !mal.isEmpty())
            return QStringLiteral("%1: %2").arg(palabra, mal);
    }
    return opciones.ayuda ? QString() : Que_Falta(opciones);
}

QString simulador::Texto_Ayuda()
{
    QString ayuda = QStringLiteral(
        "miraldos-sim: hace de aparato al otro lado del cable.\n\n"
        "  miraldos-sim KRT300|PX7|KRT800|NV400 --enlace RUTA [--enviar LIBRETA] [opciones]\n\n"
        "La libreta es un texto con un registro por línea; las que empiezan por # son "
        "comentarios.\n"
        "En el NV400 cada línea se escribe sin la suma, que pone el aparato.\n\n");
    for (const Opcion& o : Tabla_Opciones()) {
        const QString nombre =
            QStringLiteral("--") + o.nombre + (o.valor.isEmpty() ? "" : " ") + o.valor;
        ayuda += QStringLiteral("  %1 %2\n").arg(nombre, -20).arg(o.ayuda);
        if (o.nombre == QLatin1String("fallo")) ayuda += Ayuda_Fallos();
    }
    return ayuda + QStringLiteral(
                       "\nEstado de salida: 0 hecho, 1 sin transferencia o con el cable cortado, "
                       "2 uso equivocado.\n");
}

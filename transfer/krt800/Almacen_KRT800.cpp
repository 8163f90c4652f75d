#include "transfer/krt800/Almacen_KRT800.h"

#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "core/Sesiones.h"
#include "session/Identificador.h"
#include "transfer/krt800/Perfiles_KRT800.h"

namespace {

constexpr qsizetype LARGO_CON_PROGRESO = 2048;
constexpr qint64 LINEAS_POR_PASO = 25;
const QString CR_LF = QStringLiteral("\r\n");

// The instrument's wrong output format shows itself only as fields that are too long.
void Avisar_Formato()
{
    Interfaz_Actual().Mensaje(
        "Error en el formato de Datos.Posiblemente tenga mal configurado el formato de salida en "
        "la "
        "Estación. Asegurese que tenga configurado en el Menú Configuración - OPC SIST - SALIDA el "
        "formato KRT-4",
        Icono::Critico, "Error de Formato");
}

void Avisar_Fallo(const Error_Ejecucion& e, const QString& mensaje)
{
    if (e.numero == 3163)
        Avisar_Formato();
    else
        Informe_Error(mensaje, e);
}

struct Campo_Global {
    qint64 lugar; // of the field in its line, from 1
    QString campo;
};

struct Item {
    QString id, campo, valor;
};

} // namespace

struct Globales_KRT800::Datos {
    Base& base;
    QString maquina;
    int operacion;
    QHash<QString, QList<Campo_Global>> campos;
    QList<Item> items;
    QString texto;

    const QList<Campo_Global>& Campos_De(const QString& id)
    {
        const auto visto = campos.constFind(id);
        if (visto != campos.constEnd()) return *visto;
        QList<Campo_Global> lista;
        Recorrido filas = base.Recorrer(
            "SELECT Campo, Marcas FROM Campos WHERE Maquina = ? AND ID = ? ORDER BY Orden",
            {maquina, id});
        for (qint64 lugar = 1; filas.Siguiente(); ++lugar)
            if (filas.Texto(1) == u"GE") lista.append({lugar, filas.Texto(0)});
        return *campos.insert(id, lista);
    }

    void Poner(const QString& id, const QString& campo, const QString& valor)
    {
        for (Item& i : items)
            if (i.id == id && i.campo == campo) {
                i.valor = valor;
                return;
            }
        items.append({id, campo, valor});
    }
};

Globales_KRT800::Globales_KRT800(Base& base, const QString& maquina, int operacion)
    : d(new Datos{base, maquina, operacion, {}, {}, {}})
{
}

Globales_KRT800::~Globales_KRT800() = default;

const QString& Globales_KRT800::DatosG() const
{
    return d->texto;
}

void Globales_KRT800::Campos_Globales(const QString& linea)
{
    try {
        const QString id = Id_Al_Guardar(linea, d->operacion);
        const QList<Campo_Global>& campos = d->Campos_De(id);
        if (campos.isEmpty()) return;
        for (const Campo_Global& c : campos) {
            QString valor = Trozo(c.lugar, linea, u',');
            if (c.lugar == 1) {
                valor = Basico::Trim(valor);
                if (valor.startsWith(id)) valor = Basico::Trim(valor.mid(id.size()));
            }
            d->Poner(id, c.campo, valor);
        }
        QStringList items;
        for (const Item& i : d->items)
            items << i.id + QChar(SEP_CAMPO) + i.campo + QChar(SEP_CAMPO) + i.valor;
        d->texto = items.join(QChar(SEP_LISTA));
    } catch (...) {
        Avisar_Fallo(Error_En_Curso(), "Se produjo un error en la comunicación");
    }
}

namespace {

// Stores the lines of the buffer. @return false when the user cancelled; `lineas` counts blank ones
bool Guardar_Lineas(Base& base, const Datos_Recepcion& datos, qint64 id, qint64& lineas,
                    bool con_progreso)
{
    Globales_KRT800 globales(base, datos.maquina, datos.operacion);
    Insercion insercion =
        base.Preparar_Insercion("Registros", {"ID", "Secuencia", "Punto", "Datos", "DatosG"});
    const bool con_punto = Operacion(datos.operacion) == Operacion::Puntos;
    qsizetype desde = 0;
    for (qsizetype fin; (fin = datos.buffer.indexOf(CR_LF, desde)) >= 0; desde = fin + 2) {
        if (Proceso_Cancelado) return false;
        const QString linea = datos.buffer.mid(desde, fin - desde);
        ++lineas;
        if (!linea.isEmpty()) {
            globales.Campos_Globales(linea);
            const QString punto = con_punto ? Trozo(1, linea, u',') : QString();
            insercion.Anadir({id, lineas, punto, linea, globales.DatosG()});
        }
        if (con_progreso && lineas % LINEAS_POR_PASO == 0) {
            Interfaz_Actual().Proceso_Avanzar(fin);
            Interfaz_Actual().Dejar_Pasar();
        }
    }
    return true;
}

// Cancelled, the lines stay as they came: they are stored all the same.
void Ordenar(qint64 id, bool con_progreso)
{
    bool empezado = false;
    Ordenar_Perfiles(*Base_Datos, id, [&](qint64 hechas, qint64 todas) {
        if (!con_progreso) return true;
        if (!std::exchange(empezado, true))
            Interfaz_Actual().Proceso_Etiqueta("Ordenando los perfiles...", todas);
        Interfaz_Actual().Proceso_Avanzar(hechas);
        Interfaz_Actual().Dejar_Pasar();
        return !Proceso_Cancelado;
    });
}

} // namespace

bool Guardar_KRT800(const Datos_Recepcion& datos, QString& numero)
{
    const QString mensaje = "Se produjo un error al guardar los datos descargados";
    const bool con_progreso = datos.buffer.size() > LARGO_CON_PROGRESO;
    Proceso_Cancelado = false;
    std::optional<Proceso> proceso;
    if (con_progreso) proceso.emplace("Procesando Datos Recibidos...", datos.buffer.size());
    bool enteras = false;
    try {
        Transaccion transaccion(*Base_Datos);
        const QString nueva =
            Nueva_Sesion(datos.nombre, datos.operacion, datos.maquina, datos.maqdes);
        if (!nueva.isEmpty()) {
            const qint64 id = nueva.toLongLong();
            qint64 lineas = 0;
            enteras = Guardar_Lineas(*Base_Datos, datos, id, lineas, con_progreso);
            // Odd on purpose: blank lines count as points, though they make no row.
            Poner_NPuntos(*Base_Datos, id, lineas);
        }
        transaccion.Confirmar();
        numero = nueva;
    } catch (...) {
        Avisar_Fallo(Error_En_Curso(), mensaje);
        return false;
    }
    if (Operacion(datos.operacion) == Operacion::Perfiles && !numero.isEmpty()) {
        try {
            Ordenar(numero.toLongLong(), con_progreso);
        } catch (...) {
            Avisar_Fallo(Error_En_Curso(), mensaje);
        }
    }
    return enteras;
}

std::optional<Resultado_Recepcion> Guardar_Descarga_KRT800(const Datos_Recepcion& datos)
{
    Resultado_Recepcion r;
    QString numero;
    r.completa = Guardar_KRT800(datos, numero);
    if (!numero.isEmpty()) r.sesiones << numero;
    return r;
}

#include "transfer/krt300/Almacen_KRT300.h"

#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/Sesiones.h"
#include "transfer/Peticiones_Transfer.h"

namespace {

// Rows between two commits: an error or a killed process loses at most these, and the journal of
// received bytes holds them.
constexpr qint64 LOTE = 5000;

constexpr qsizetype LARGO_CON_PROGRESO = 1096;
constexpr qint64 REGISTROS_POR_PASO = 10;

} // namespace

struct Almacen_KRT300::Datos {
    Datos(Base& b, qint64 i, const QString& m, int o)
        : base(b), id(i), maquina(m), operacion(o),
          insercion(
              b.Preparar_Insercion("Registros", {"ID", "Secuencia", "Punto", "Datos", "DatosG"})),
          identificadores(b.OpenRecordset("Identificadores"))
    {
        identificadores.Index("PrimaryKey");
    }

    // Kind of a record by its key character: empty when it is unknown.
    const QString& Clase(QChar clave)
    {
        const auto visto = clases.constFind(clave);
        if (visto != clases.constEnd()) return *visto;
        identificadores.Seek({maquina, operacion, QString(clave)});
        return *clases.insert(clave, identificadores.NoMatch() ? QString()
                                                               : identificadores.Texto("tipo"));
    }

    void Poner_Global(const QString& registro)
    {
        for (QString& g : globales)
            if (g.startsWith(registro[0])) {
                g = registro;
                datosg = globales.join(QChar(SEP_LISTA));
                return;
            }
        globales << registro;
        datosg = globales.join(QChar(SEP_LISTA));
    }

    void Anadir(const QString& registro)
    {
        if (!en_lote) {
            base.BeginTrans();
            en_lote = true;
        }
        insercion.Anadir({id, secuencia, punto, registro, datosg});
        if (secuencia++ % LOTE == 0) Confirmar();
    }

    void Confirmar()
    {
        if (!en_lote) return;
        en_lote = false;
        base.CommitTrans();
    }

    Base& base;
    qint64 id;
    QString maquina;
    int operacion;
    Insercion insercion;
    Conjunto_Registros identificadores;
    QHash<QChar, QString> clases;
    QStringList globales;
    QString datosg, punto;
    qint64 secuencia = 1;
    bool en_lote = false;
};

Almacen_KRT300::Almacen_KRT300(Base& base, qint64 id, const QString& maquina, int operacion)
    : d(std::make_unique<Datos>(base, id, maquina, operacion))
{
}

Almacen_KRT300::~Almacen_KRT300()
{
    try {
        d->Confirmar();
    } catch (...) {
        Anotar_Fallo("Almacen_KRT300");
    }
}

void Almacen_KRT300::Confirmar()
{
    d->Confirmar();
}

void Almacen_KRT300::Guardar_Registro(const QString& registro)
{
    if (registro.isEmpty()) return;
    if (registro[0] == u'+') {
        d->punto = Basico::Trim(registro.mid(1));
        return;
    }
    // Odd on purpose: behind a blank a kind is found, and yet a global record is not taken over.
    const bool con_blanco = registro[0] == u' ';
    const QString llano = con_blanco ? Basico::LTrim(registro) : registro;
    if (llano.isEmpty()) return;
    const QString& clase = d->Clase(llano[0]);
    if (clase == u"G") {
        if (!con_blanco) d->Poner_Global(registro);
    } else if (!clase.isEmpty()) {
        d->Anadir(registro);
    }
}

bool Guardar_KRT300(const QString& buffer, qint64 id, const QString& maquina, int operacion)
{
    // Text ahead of the first mark is no record; without any mark all of it is one.
    std::optional<Proceso> proceso;
    if (buffer.size() > LARGO_CON_PROGRESO)
        proceso.emplace("Procesando Datos Recibidos...", buffer.size());
    try {
        const std::shared_ptr<Base> base = Base::Abrir(Fichero_MDB);
        Almacen_KRT300 almacen(*base, id, maquina, operacion);
        qsizetype desde = buffer.indexOf(u'_') + 1;
        for (qint64 n = REGISTROS_POR_PASO;; ++n) {
            if (proceso && n % REGISTROS_POR_PASO == 0) {
                Interfaz_Actual().Proceso_Avanzar(desde);
                Interfaz_Actual().Repintar();
            }
            const qsizetype hasta = buffer.indexOf(u'_', desde);
            almacen.Guardar_Registro(buffer.mid(desde, hasta < 0 ? -1 : hasta - desde));
            if (hasta < 0) break;
            desde = hasta + 1;
        }
        almacen.Confirmar();
        return true;
    } catch (...) {
        Anotar_Fallo("Guardar_KRT300");
        return false;
    }
}

void Contar_Puntos(qint64 id)
{
    Recorrido puntos = Base_Datos->Recorrer(
        QStringLiteral("SELECT Distinct Punto FROM Registros WHERE ID = %1").arg(id));
    qint64 n = 0;
    while (puntos.Siguiente())
        ++n;
    if (n == 0) Interfaz_Actual().Mensaje("El Fichero no contenía Puntos", Icono::Informacion);
    Poner_NPuntos(*Base_Datos, id, n);
}

std::optional<Resultado_Recepcion> Guardar_Descarga_KRT300(const Datos_Recepcion& datos)
{
    switch (Operacion(datos.operacion)) {
    case Operacion::Medicion:
    case Operacion::Coordenadas:
    case Operacion::Calculadas:
        break;
    case Operacion::Libreria:
        return Peticiones_De_Transfer().Guardar_Libreria(datos);
    default:
        return std::nullopt;
    }
    Resultado_Recepcion r;
    const QString id = Nueva_Sesion(datos.nombre, datos.operacion, datos.maquina, datos.maqdes);
    if (id.isEmpty()) return r;
    r.sesiones << id;
    r.completa = Guardar_KRT300(datos.buffer, id.toLongLong(), datos.maquina, datos.operacion);
    Contar_Puntos(id.toLongLong());
    return r;
}

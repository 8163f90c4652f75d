#include "rawfiles/Importar_Bruto.h"

#include "core/Familia.h"
#include "core/Ficheros.h"
#include "core/jet/Esquema.h"
#include "core/ModEstTotal.h"
#include "core/Sesiones.h"
#include "core/Sucesos.h"
#include "rawfiles/Lineas_Brutas.h"
#include "rawfiles/Peticiones_Rawfiles.h"
#include "transfer/krt300/Almacen_KRT300.h"

#include <QHash>

namespace {

const QString FIN_LINEA = QStringLiteral("\r\n");

constexpr qint64 REGISTROS_POR_PASO = 500;

// A longer list would leave the screen.
constexpr qsizetype VISIBLES = 20;

qsizetype Ancho(const char* columna, const char* tabla = "Registros")
{
    return Esquema::Buscar_Tabla(QString::fromLatin1(tabla))
        ->Buscar_Columna(QString::fromLatin1(columna))
        ->ancho;
}

QString Sesion_Nueva(const QString& nombre, int ope)
{
    QString id = Nueva_Sesion(nombre.left(Ancho("NFichero", "Sesiones")), ope);
    if (id.isEmpty()) throw Error_Ejecucion(6, QStringLiteral("No se pudo crear la sesión"));
    return id;
}

void Acabar_Importacion()
{
    Q_EMIT Sucesos::Unico().sesiones_cambiadas();
    Interfaz_Actual().Mensaje(QStringLiteral("Importación desde Fichero Bruto Finalizada"),
                              Icono::Informacion);
}

struct Registros_Fichero {
    QString antes; // of the first separator: no record
    QStringList registros;
};

Registros_Fichero Registros_De(const QStringList& lineas, Forma_Bruta forma)
{
    if (forma == Forma_Bruta::Lineas) return {{}, lineas};
    const QString buffer = lineas.join(QString());
    const qsizetype primero = buffer.indexOf(SEPARADOR_MAQUINA);
    return {buffer.left(qMax<qsizetype>(primero, 0)),
            buffer.mid(primero + 1).split(SEPARADOR_MAQUINA)};
}

// As the store keeps it: a point without the blanks around it, and no more than its column holds.
QString Como_Se_Guarda(const QString& registro)
{
    static const qsizetype punto = Ancho("Punto"), datos = Ancho("Datos");
    if (registro.startsWith(MARCA_PUNTO))
        return MARCA_PUNTO + Basico::Trim(registro.mid(1)).left(punto);
    return registro.left(datos);
}

void Guardar(const QStringList& registros, qint64 id, int ope)
{
    std::optional<Proceso> proceso;
    if (registros.size() > REGISTROS_POR_PASO)
        proceso.emplace(QStringLiteral("Procesando Datos Recibidos..."), registros.size());
    const std::shared_ptr<Base> base = Base::Abrir(Fichero_MDB);
    Almacen_KRT300 almacen(*base, id, Clave_Estacion, ope);
    qint64 n = 0;
    for (const QString& registro : registros) {
        almacen.Guardar_Registro(Como_Se_Guarda(registro));
        if (++n % REGISTROS_POR_PASO == 0 && proceso) {
            Interfaz_Actual().Proceso_Avanzar(n);
            Interfaz_Actual().Repintar();
        }
    }
    almacen.Confirmar();
}

// What a file had that its session doesn't give back.
struct Perdidas {
    QStringList cortados, omitidos; // "12: text"
    qint64 repetidos = 0;           // points and general records that were in force already
};

// The usual case, without a look at each record: the session is the file.
bool Nada_Se_Pierde(const Registros_Fichero& fichero, qint64 id)
{
    if (!fichero.antes.isEmpty()) return false;
    Registros_Serie_A guardados(id, true);
    for (const QString& registro : fichero.registros)
        if (!registro.isEmpty() && (!guardados.Siguiente() || guardados.Registro() != registro))
            return false;
    return true;
}

Perdidas Comparar(const Registros_Fichero& fichero, qint64 id)
{
    if (Nada_Se_Pierde(fichero, id)) return {};
    QHash<QString, qint64> guardados;
    for (Registros_Serie_A r(id, true); r.Siguiente();)
        ++guardados[r.Registro()];
    Perdidas perdidas;
    if (!fichero.antes.trimmed().isEmpty()) perdidas.omitidos << fichero.antes.left(60);
    qint64 n = 0;
    for (const QString& registro : fichero.registros) {
        ++n;
        if (registro.isEmpty()) continue;
        const QString guardado = Como_Se_Guarda(registro);
        const auto lugar = guardados.find(guardado);
        const QString entrada = QStringLiteral("%1: %2").arg(n).arg(registro.left(60));
        if (lugar == guardados.end())
            perdidas.omitidos << entrada;
        else if (*lugar == 0)
            ++perdidas.repetidos;
        else {
            --*lugar;
            if (guardado.size() < Basico::RTrim(registro).size()) perdidas.cortados << entrada;
        }
    }
    return perdidas;
}

QString Parrafo(const QString& titulo, QStringList entradas)
{
    const qsizetype total = entradas.size();
    if (total > VISIBLES) {
        entradas.resize(VISIBLES);
        entradas << QStringLiteral("... y %1 más").arg(total - VISIBLES);
    }
    return titulo.arg(total) + FIN_LINEA + entradas.join(FIN_LINEA);
}

void Decir_Perdidas(const Perdidas& perdidas)
{
    QStringList parrafos;
    if (!perdidas.cortados.isEmpty())
        parrafos << Parrafo(QStringLiteral("Registros cortados al ancho de su columna (%1):"),
                            perdidas.cortados);
    if (!perdidas.omitidos.isEmpty())
        parrafos << Parrafo(
            QStringLiteral("Registros que la base de datos no guarda (%1); siguen en el fichero:"),
            perdidas.omitidos);
    if (!parrafos.isEmpty())
        Interfaz_Actual().Mensaje(parrafos.join(FIN_LINEA), Icono::Informacion);
    Peticiones_De_Rawfiles().Poner_Aviso(
        perdidas.repetidos == 0
            ? QString()
            : QStringLiteral("Registros que repetían lo que ya valía, guardados una vez: %1")
                  .arg(perdidas.repetidos));
}

// One row a line, all or none.
void Guardar_Lineas(const QStringList& lineas, const QString& id,
                    QString (*punto)(const QString& linea))
{
    const std::shared_ptr<Base> base = Base::Abrir(Fichero_MDB);
    Transaccion transaccion(*base);
    Insercion insercion =
        base->Preparar_Insercion("Registros", {"ID", "Secuencia", "Punto", "Datos", "DatosG"});
    qint64 n = 0;
    for (const QString& linea : lineas) {
        ++n;
        try {
            insercion.Anadir({id.toLongLong(), n, punto(linea), linea, QString()});
        } catch (const Error_Ejecucion& e) {
            throw Error_Ejecucion(e.numero,
                                  QStringLiteral("Línea %1: %2").arg(n).arg(e.descripcion));
        }
    }
    transaccion.Confirmar();
}

QString Sin_Punto(const QString&)
{
    return {};
}

QString Primer_Campo(const QString& linea)
{
    return Trozo(1, linea, u',');
}

Importacion Importar_Lineas(const QString& fichero, const QString& nombre, int ope,
                            QString (*punto)(const QString& linea))
{
    Importacion importacion;
    try {
        {
            const Cursor_De_Espera espera;
            const QStringList lineas = Lineas_Brutas(Ficheros::Leer(fichero));
            importacion.sesion = Sesion_Nueva(nombre, ope);
            Guardar_Lineas(lineas, importacion.sesion, punto);
            Poner_NPuntos(*Base_Datos, importacion.sesion.toLongLong(), lineas.size());
            importacion.completa = true;
        }
        Acabar_Importacion();
    } catch (...) {
        Informe_Error(QStringLiteral("Se produjo un error al importar un fichero bruto"),
                      Error_En_Curso());
        Q_EMIT Sucesos::Unico().sesiones_cambiadas();
    }
    return importacion;
}

} // namespace

Importacion Importar_Bruto(const QString& fichero, const QString& nombre, int ope,
                           Forma_Bruta forma)
{
    Importacion importacion;
    try {
        Perdidas perdidas;
        {
            const Cursor_De_Espera espera;
            const Registros_Fichero leido =
                Registros_De(Lineas_Brutas(Ficheros::Leer(fichero)), forma);
            importacion.sesion = Sesion_Nueva(nombre, ope);
            const qint64 id = importacion.sesion.toLongLong();
            Guardar(leido.registros, id, ope);
            Contar_Puntos(id);
            perdidas = Comparar(leido, id);
            importacion.completa = true;
        }
        Acabar_Importacion();
        Decir_Perdidas(perdidas);
    } catch (...) {
        Informe_Error(QStringLiteral("Se produjo un error al importar el Fichero en Bruto"),
                      Error_En_Curso());
        Q_EMIT Sucesos::Unico().sesiones_cambiadas();
    }
    return importacion;
}

Importacion Importar_Nivel(const QString& fichero, const QString& nombre)
{
    return Importar_Lineas(fichero, nombre, int(Operacion::Medicion), Sin_Punto);
}

Importacion Importar_KRT800(const QString& fichero, const QString& nombre, int ope)
{
    return Importar_Lineas(fichero, nombre, ope,
                           Operacion(ope) == Operacion::Puntos ? Primer_Campo : Sin_Punto);
}

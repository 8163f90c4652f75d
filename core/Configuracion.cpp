#include "core/Configuracion.h"

#include "core/Ansi.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/Perfil.h"
#include "core/Sucesos.h"

#include <QDir>
#include <QFile>

namespace {

const QString SI = QStringLiteral("SI");

QString Fichero_Ini()
{
    return En_Instalacion("EstTotal.ini");
}

// A database that is gone starts from the delivered one again. What the lost one left beside it
// would be taken for the new one's own unfinished writing.
void Copiar_Plantilla(const QString& ruta)
{
    const QString plantilla = ruta + QStringLiteral("/DAT/Database.mdb");
    if (!FileExist(plantilla))
        throw Error_Ejecucion(53, Descripcion_Error(53) + QStringLiteral(": ") + plantilla);
    QDir().mkpath(Ruta_MDB);
    for (const char* resto : {"-wal", "-shm", "-journal"})
        QFile::remove(Fichero_MDB + QString::fromLatin1(resto));
    Ficheros::Copiar(plantilla, Fichero_MDB);
}

// Keys are known letter by letter; what is no key of the program is passed over.
void Tomar_Clave(const QString& clave, const QString& valor)
{
    struct De_Texto {
        const char* clave;
        QString& global;
    };
    struct De_Si_No {
        const char* clave;
        bool& global;
    };
    const De_Texto textos[] = {
        {"PORT", Puerto},
        {"VELOCIDAD", Velocidad},
        {"BITS", Bits_Datos},
        {"PARIDAD", Paridad},
        {"STOP", Bits_Parada},
        {"HARD", Hard},
        {"KRTNOM", Nombre_Estacion},
        {"KRT", Clave_Estacion},
    };
    const De_Si_No si_no[] = {
        {"Visible", Ayuda_Visible},    {"Recuerde", Ayuda_Recuerde},   {"Cargas", Offset_Cargas},
        {"Exportar", Offset_Exportar}, {"Mostrar", Mostrar_Cabeceras},
    };
    for (const De_Texto& t : textos)
        if (clave == QLatin1String(t.clave)) t.global = valor;
    for (const De_Si_No& s : si_no)
        if (clave == QLatin1String(s.clave)) s.global = valor == SI;
    if (clave == u"FIJO") Modelo_Fijo = valor == u"True";
    if (clave == u"KRTNOM") {
        Cargar_Estacion(Nombre_Estacion);
        Q_EMIT Sucesos::Unico().modelo_cambiado();
    }
}

// Sections mean nothing here, so that the last occurrence of a key in the file wins.
void Leer_Ini(const QString& fichero)
{
    QString texto = Ansi::A_Texto(Ficheros::Leer(fichero));
    texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    for (const QString& linea : texto.split(u'\n')) {
        if (linea.startsWith(u';')) continue;
        const qsizetype igual = linea.indexOf(u'=');
        if (igual > 0) Tomar_Clave(linea.left(igual), linea.mid(igual + 1));
    }
}

} // namespace

bool Cargar_Configuracion(const QString& ruta)
{
    QString mensaje = QStringLiteral("Se Produjo un error al leer el Fichero .ini EstTotal.ini");
    QString salto = QStringLiteral("\r\n");
    bool copiada = false;
    try {
        Fichero_Ayuda = ruta + QStringLiteral("/hlp/EstTotal.hlp");
        Ruta_MDB = ruta + QStringLiteral("/MDB");
        Fichero_MDB = Ruta_MDB + QStringLiteral("/EstTotal.mdb");
        if (!FileExist(Fichero_MDB)) {
            // From here on every failure is told as the database's.
            mensaje = QStringLiteral("Se produjo un error al iniciar la Base de Datos");
            salto = QStringLiteral("\r");
            Copiar_Plantilla(ruta);
            copiada = true;
        }
        Base_Datos = Base::Abrir(Fichero_MDB);
        copiada = false;
        Leer_Ini(ruta + QStringLiteral("/EstTotal.ini"));
        return true;
    } catch (...) {
        const Error_Ejecucion error = Error_En_Curso();
        // The run ends: nothing stays open, and a template that is no database leaves no copy that
        // the next start would take for the user's.
        Base_Datos.reset();
        if (copiada) QFile::remove(Fichero_MDB);
        Interfaz_Actual().Mensaje(Texto_Informe(mensaje, error, salto), Icono::Critico);
        return false;
    }
}

void Cargar_Estacion(const QString& valor)
{
    if (!Base_Datos) throw Error_Ejecucion(91);
    Conjunto_Registros krt = Base_Datos->OpenRecordset("KRT");
    krt.Index("PrimaryKey");
    krt.Seek({valor});
    if (!krt.NoMatch()) {
        Formato_Coord = krt.Texto("FormatoCoord");
        Vel_Puerto = krt.Texto("VelPuerto");
    }
    Q_EMIT Sucesos::Unico().estacion_cargada(valor);
}

Ajustes Ajustes_Actuales()
{
    Ajustes a;
    a.puerto = Puerto;
    a.velocidad = Velocidad;
    a.bits = Bits_Datos;
    a.paridad = Paridad;
    a.parada = Bits_Parada;
    a.nombre = Nombre_Estacion;
    a.clave = Clave_Estacion;
    a.fijo = Modelo_Fijo;
    a.ayuda = Ayuda_Visible;
    a.recuerde = Ayuda_Recuerde;
    a.cargas = Offset_Cargas;
    a.exportar = Offset_Exportar;
    a.cabeceras = Mostrar_Cabeceras;
    return a;
}

bool Guardar_Configuracion(const Ajustes& a)
{
    std::optional<Error_Ejecucion> fallo;
    const auto escribir = [&](const char* seccion, const char* clave, const QString& valor) {
        try {
            Perfil::Escribir(Fichero_Ini(), QString::fromLatin1(seccion),
                             QString::fromLatin1(clave), valor);
        } catch (...) {
            fallo.emplace(Error_En_Curso());
        }
    };
    const auto texto = [&](const char* seccion, const char* clave, const QString& valor,
                           QString& global) {
        // A null text would remove the key.
        escribir(seccion, clave, valor.isNull() ? QStringLiteral("") : valor);
        global = valor;
    };
    const auto si_no = [&](const char* seccion, const char* clave, bool valor, bool& global) {
        escribir(seccion, clave, valor ? SI : QStringLiteral("NO"));
        global = valor;
    };
    texto("COMUNICACIONES", "PORT", a.puerto, Puerto);
    texto("COMUNICACIONES", "VELOCIDAD", a.velocidad, Velocidad);
    texto("COMUNICACIONES", "BITS", a.bits, Bits_Datos);
    texto("COMUNICACIONES", "PARIDAD", a.paridad, Paridad);
    texto("COMUNICACIONES", "STOP", a.parada, Bits_Parada);
    // Nothing uses it any more; files of older installs lose it here.
    escribir("COMUNICACIONES", "HARD", QString());
    texto("ESTACION", "KRTNOM", a.nombre, Nombre_Estacion);
    texto("ESTACION", "KRT", a.clave, Clave_Estacion);
    escribir("INI", "FIJO", a.fijo ? QStringLiteral("True") : QStringLiteral("False"));
    Modelo_Fijo = a.fijo;
    si_no("AYUDA", "Visible", a.ayuda, Ayuda_Visible);
    si_no("AYUDA", "Recuerde", a.recuerde, Ayuda_Recuerde);
    si_no("OFFSET", "Cargas", a.cargas, Offset_Cargas);
    si_no("OFFSET", "Exportar", a.exportar, Offset_Exportar);
    si_no("CABECERAS", "Mostrar", a.cabeceras, Mostrar_Cabeceras);
    if (fallo) {
        Interfaz_Actual().Mensaje(
            Texto_Informe(QStringLiteral("Ocurrió un error al guardar la configuración"), *fallo,
                          QStringLiteral("\r\n")),
            Icono::Critico);
        return false;
    }
    Q_EMIT Sucesos::Unico().ajustes_guardados();
    return true;
}

const QStringList& Lista_Puertos()
{
    static const QStringList lista{"COM1",  "COM2",  "COM3",  "COM4",  "COM5",  "COM6",
                                   "COM7",  "COM8",  "COM9",  "COM10", "COM10", "COM12",
                                   "COM11", "COM14", "COM15", "COM16"};
    return lista;
}

const QStringList& Lista_Bits()
{
    static const QStringList lista{"8", "7"};
    return lista;
}

const QStringList& Lista_Paridades()
{
    static const QStringList lista{"Even", "Odd", "None"};
    return lista;
}

const QStringList& Lista_Paradas()
{
    static const QStringList lista{"1", "2"};
    return lista;
}

QString Texto_Panel_Estacion()
{
    return QStringLiteral("Modelo Estación : ") + Nombre_Estacion + QStringLiteral("  ");
}

void Guardar_Aviso(const QString& clave, bool activo, const QString& no)
{
    if (clave == u"Visible") Ayuda_Visible = activo;
    if (clave == u"Recuerde") Ayuda_Recuerde = activo;
    try {
        Perfil::Escribir(Fichero_Ini(), QStringLiteral("AYUDA"), clave, activo ? SI : no);
    } catch (const Error_Ejecucion& e) {
        Anotar(QStringLiteral("Guardar_Aviso"), e.descripcion);
    }
}

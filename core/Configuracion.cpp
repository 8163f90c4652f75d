#include "core/Configuracion.h"

#include "core/Ansi.h"
#include "core/Copias.h"
#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/Perfil.h"
#include "core/Renovacion.h"
#include "core/Sucesos.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

const Ajuste AJUSTES[] = {
    {"COMUNICACIONES", "PORT", Ajuste_Texto{&Puerto, &Ajustes::puerto}, "Combo5", u"Puerto:",
     Lista_Puertos},
    {"COMUNICACIONES", "VELOCIDAD", Ajuste_Texto{&Velocidad, &Ajustes::velocidad}, "Combo1",
     u"Velocidad:"},
    {"COMUNICACIONES", "BITS", Ajuste_Texto{&Bits_Datos, &Ajustes::bits}, "Combo2",
     u"Bits de datos:", Lista_Bits},
    {"COMUNICACIONES", "PARIDAD", Ajuste_Texto{&Paridad, &Ajustes::paridad}, "Combo3", u"Paridad:",
     Lista_Paridades},
    {"COMUNICACIONES", "STOP", Ajuste_Texto{&Bits_Parada, &Ajustes::parada}, "Combo4",
     u"Bits de parada:", Lista_Paradas},
    // Nothing uses it any more; files of older installs lose it here.
    {"COMUNICACIONES", "HARD", Ajuste_Texto{&Hard, nullptr}},
    {"ESTACION", "KRTNOM", Ajuste_Texto{&Nombre_Estacion, &Ajustes::nombre}, "Combo6", u"Modelo:"},
    {"ESTACION", "KRT", Ajuste_Texto{&Clave_Estacion, &Ajustes::clave}},
    {"INI", "FIJO", Ajuste_Marca{&Modelo_Fijo, &Ajustes::fijo, "True", "False"}, "Check1"},
    {"AYUDA", "Visible", Ajuste_Marca{&Ayuda_Visible, &Ajustes::ayuda, "SI", "NO"}, "Check2",
     u" Mostrar ayuda en Cargas y Descargas"},
    {"AYUDA", "Recuerde", Ajuste_Marca{&Ayuda_Recuerde, &Ajustes::recuerde, "SI", "NO"}, "Check3",
     u" Mostrar Recordatorio de configuración del Puerto"},
    {"OFFSET", "Cargas", Ajuste_Marca{&Offset_Cargas, &Ajustes::cargas, "SI", "NO"}, "Check4",
     u"Mostrar Diálogo de Entrada de Desplazamientos en Cargas"},
    {"OFFSET", "Exportar", Ajuste_Marca{&Offset_Exportar, &Ajustes::exportar, "SI", "NO"}, "Check5",
     u"Mostrar Diálogo de Entrada de Desplazamientos en Exportaciones"},
    {"CABECERAS", "Mostrar", Ajuste_Marca{&Mostrar_Cabeceras, &Ajustes::cabeceras, "SI", "NO"},
     "Check6", u"Incluir cabeceras y resúmenes de los trabajos del nivel digital NV400"},
};

QString Fichero_Ini()
{
    return En_Instalacion("EstTotal.ini");
}

QString Plantilla(const QString& ruta)
{
    return ruta + QStringLiteral("/DAT/Database.mdb");
}

// A database that is gone starts from the delivered one again. What the lost one left beside it
// would be taken for the new one's own unfinished writing.
void Copiar_Plantilla(const QString& ruta)
{
    const QString plantilla = Plantilla(ruta);
    if (!FileExist(plantilla)) throw Error_Ejecucion::Con(53, plantilla);
    QDir().mkpath(Ruta_MDB);
    for (const char* resto : {"-wal", "-shm", "-journal"})
        QFile::remove(Fichero_MDB + QString::fromLatin1(resto));
    Ficheros::Copiar(plantilla, Fichero_MDB);
}

std::shared_ptr<Base> Abrir_O_Recuperar()
{
    try {
        return Base::Abrir(Fichero_MDB);
    } catch (const Error_Ejecucion& e) {
        if (e.numero != 3343 || !Copias::Ofrecer()) throw;
    }
    return Base::Abrir(Fichero_MDB);
}

void Tomar(const Ajuste_Texto& ajuste, const QString& valor)
{
    *ajuste.global = valor;
}

void Tomar(const Ajuste_Marca& ajuste, const QString& valor)
{
    *ajuste.global = valor == QLatin1String(ajuste.si);
}

// Keys are known letter by letter; what is no key of the program is passed over.
void Tomar_Clave(const QString& clave, const QString& valor)
{
    for (const Ajuste& fila : AJUSTES)
        if (clave == QLatin1String(fila.clave))
            std::visit([&](const auto& lugar) { Tomar(lugar, valor); }, fila.lugar);
    // The model's row is read at this very line, with what the lines above it have set.
    if (clave == u"KRTNOM") {
        Cargar_Estacion(Nombre_Estacion);
        Q_EMIT Sucesos::Unico().modelo_cambiado();
    }
}

// What stands in the file for the value that is now in force; null takes the key out.
QString Poner(const Ajuste_Texto& ajuste, const Ajustes& a)
{
    if (!ajuste.valor) return {};
    *ajuste.global = a.*ajuste.valor;
    return ajuste.global->isNull() ? QStringLiteral("") : *ajuste.global;
}

QString Poner(const Ajuste_Marca& ajuste, const Ajustes& a)
{
    *ajuste.global = a.*ajuste.valor;
    return QString::fromLatin1(*ajuste.global ? ajuste.si : ajuste.no);
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

void Poner_Rutas(const QString& ruta)
{
    Ruta_Aplicacion = ruta;
    Ruta_MDB = ruta + QStringLiteral("/MDB");
    Fichero_MDB = Ruta_MDB + QStringLiteral("/EstTotal.mdb");
}

bool Cargar_Configuracion(const QString& ruta)
{
    QString mensaje = QStringLiteral("Se Produjo un error al leer el Fichero .ini EstTotal.ini");
    QString salto = QStringLiteral("\r\n");
    bool copiada = false;
    try {
        Fichero_Ayuda = ruta + QStringLiteral("/hlp/EstTotal.hlp");
        Poner_Rutas(ruta);
        // One that is there without a byte is a damaged one: it must not make room for an empty one.
        if (!QFileInfo::exists(Fichero_MDB)) {
            // From here on every failure is told as the database's.
            mensaje = QStringLiteral("Se produjo un error al iniciar la Base de Datos");
            salto = QStringLiteral("\r");
            Copiar_Plantilla(ruta);
            copiada = true;
        }
        Base_Datos = copiada ? Base::Abrir(Fichero_MDB) : Abrir_O_Recuperar();
        copiada = false;
        Renovar_Entregadas(*Base_Datos, Plantilla(ruta));
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

std::span<const Ajuste> Tabla_Ajustes()
{
    return AJUSTES;
}

Ajustes Ajustes_Actuales()
{
    Ajustes a;
    for (const Ajuste& fila : AJUSTES)
        std::visit(
            [&a](const auto& lugar) {
                if (lugar.valor) a.*lugar.valor = *lugar.global;
            },
            fila.lugar);
    return a;
}

bool Guardar_Configuracion(const Ajustes& a)
{
    QList<Perfil::Entrada> entradas;
    for (const Ajuste& fila : AJUSTES)
        entradas << Perfil::Entrada{
            QString::fromLatin1(fila.seccion), QString::fromLatin1(fila.clave),
            std::visit([&a](const auto& lugar) { return Poner(lugar, a); }, fila.lugar)};
    try {
        Perfil::Escribir_Todas(Fichero_Ini(), entradas);
    } catch (...) {
        Interfaz_Actual().Mensaje(
            Texto_Informe(QStringLiteral("Ocurrió un error al guardar la configuración"),
                          Error_En_Curso(), QStringLiteral("\r\n")),
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
    const QString seccion = QStringLiteral("AYUDA");
    for (const Ajuste& fila : AJUSTES) {
        const auto* const marca = std::get_if<Ajuste_Marca>(&fila.lugar);
        if (!marca || seccion != QLatin1String(fila.seccion) || clave != QLatin1String(fila.clave))
            continue;
        *marca->global = activo;
        try {
            Perfil::Escribir(Fichero_Ini(), seccion, clave,
                             activo ? QString::fromLatin1(marca->si) : no);
        } catch (const Error_Ejecucion& e) {
            Anotar(QStringLiteral("Guardar_Aviso"), e.descripcion);
        }
    }
}

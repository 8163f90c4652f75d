#include "core/Copias.h"

#include "core/Estado_Global.h"
#include "core/Ficheros.h"
#include "core/jet/Esquema.h"
#include "core/jet/Examen.h"
#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/plataforma.h"
#include "core/Reloj.h"
#include "core/Sucesos.h"

#include <algorithm>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qsizetype DIAS = 7;

// The database that the user has been told of; another one in its place may be told of again.
struct Aviso_Dado {
    bool dado = false;
};

QString Copia_De_Siempre()
{
    return Ruta_MDB + QStringLiteral("/esttotal.bak");
}

QDir Carpeta_De_Copias()
{
    return QDir(Ruta_MDB + QStringLiteral("/copias"));
}

// Copies of days, the oldest first: their names hold the date.
QStringList De_Dias()
{
    return Carpeta_De_Copias().entryList({QStringLiteral("EstTotal_*.mdb")}, QDir::Files,
                                         QDir::Name);
}

void Guardar_La_Del_Dia(const QString& compactada)
{
    const QDir carpeta = Carpeta_De_Copias();
    const QString hoy =
        carpeta.filePath(QStringLiteral("EstTotal_%1.mdb")
                             .arg(Reloj_Actual().Ahora().toString(QStringLiteral("yyyy-MM-dd"))));
    const Examen vieja = Examinar_Base(hoy, false);
    if (vieja.Sana() && vieja.sesiones > Examinar_Base(compactada, false).sesiones) return;
    QDir().mkpath(carpeta.path());
    Ficheros::Copiar(compactada, hoy);
    plataforma::Copiar_Permisos(Fichero_MDB, hoy);
    QStringList dias = De_Dias();
    while (dias.size() > DIAS)
        QFile::remove(carpeta.filePath(dias.takeFirst()));
}

Copias::Copia Mirar(const QString& fichero)
{
    const QFileInfo info(fichero);
    const Examen e = Examinar_Base(fichero, true);
    return {fichero, info.lastModified(), info.size(), e.sesiones, e.Sana()};
}

QString Nombre_Apartada()
{
    const QString base = Ruta_MDB + QStringLiteral("/EstTotal_apartada_") +
                         Reloj_Actual().Ahora().toString(QStringLiteral("yyyy-MM-dd_HHmmss"));
    QString nombre = base + QStringLiteral(".mdb");
    for (int n = 2; QFileInfo::exists(nombre); ++n)
        nombre = base + QStringLiteral("_%1.mdb").arg(n);
    return nombre;
}

} // namespace

void Copias::Guardar(const QString& compactada)
{
    try {
        Ficheros::Copiar(compactada, Copia_De_Siempre());
        plataforma::Copiar_Permisos(Fichero_MDB, Copia_De_Siempre());
    } catch (...) {
        Anotar_Fallo("Copias::Guardar");
    }
    try {
        Guardar_La_Del_Dia(compactada);
    } catch (...) {
        Anotar_Fallo("Copias::Guardar");
    }
}

QList<Copias::Copia> Copias::Lista()
{
    QList<Copia> lista;
    if (QFileInfo(Copia_De_Siempre()).isFile()) lista << Mirar(Copia_De_Siempre());
    const QDir carpeta = Carpeta_De_Copias();
    for (const QString& dia : De_Dias())
        lista << Mirar(carpeta.filePath(dia));
    std::stable_sort(lista.begin(), lista.end(),
                     [](const Copia& a, const Copia& b) { return a.momento > b.momento; });
    return lista;
}

std::optional<Copias::Copia> Copias::Ultima()
{
    const QList<Copia> lista = Lista();
    for (const Copia& c : lista)
        if (c.sana) return c;
    return std::nullopt;
}

QString Copias::Recuperar(const QString& copia)
{
    if (!QFileInfo(copia).isFile()) throw Error_Ejecucion::Con(53, copia);
    const Examen examen = Examinar_Base(copia, true);
    if (!examen.Sana()) throw Error_Ejecucion::Con(3343, copia);
    const QString nueva = Ruta_MDB + QStringLiteral("/esttotal.pak");
    QString aparte = Nombre_Apartada();
    QFile::remove(nueva);
    Ficheros::Copiar(copia, nueva);
    try {
        Base::Abrir(nueva); // it can be used before it takes the place of the other
        // Handles and transactions of this process stay: one that is open refuses the exchange.
        Cambiar_Base(Fichero_MDB, nueva, aparte);
    } catch (...) {
        QFile::remove(nueva);
        throw;
    }
    Base_Datos = Base::Abrir(Fichero_MDB);
    Estado_Global::Unico<Aviso_Dado>().dado = false;
    Q_EMIT Sucesos::Unico().base_reabierta();
    Q_EMIT Sucesos::Unico().sesiones_cambiadas();
    return aparte;
}

QString Copias::Texto(const Copia& c)
{
    return QStringLiteral("%1, %2 %3")
        .arg(Basico::Formato_Fecha(c.momento, QStringLiteral("DD/MM/YYYY HH:MM")))
        .arg(c.sesiones)
        .arg(c.sesiones == 1 ? QStringLiteral("sesión") : QStringLiteral("sesiones"));
}

bool Copias::Recuperar_Preguntando(const Copia& copia)
{
    if (!Interfaz_Actual().Preguntar(
            QStringLiteral("¿ Desea volver a la copia del %1 ?\r\nLo que se ha guardado después "
                           "no está en ella. La base de datos de ahora se conserva aparte")
                .arg(Texto(copia)),
            Icono::Pregunta))
        return false;
    try {
        const QString aparte = Recuperar(copia.fichero);
        Interfaz_Actual().Mensaje(
            QStringLiteral(
                "Se ha vuelto a la copia del %1.\r\nLa base de datos de antes está en\r\n%2")
                .arg(Texto(copia), aparte),
            Icono::Informacion);
        return true;
    } catch (...) {
        Informe_Error(QStringLiteral("No se ha podido volver a la copia"), Error_En_Curso());
        return false;
    }
}

void Copias::Avisar_Base_Danada(const QString& ademas)
{
    Aviso_Dado& aviso = Estado_Global::Unico<Aviso_Dado>();
    if (std::exchange(aviso.dado, true)) return;
    QString texto = QStringLiteral("La base de datos está dañada:\r\n%1").arg(Fichero_MDB);
    if (!ademas.isEmpty()) texto += QStringLiteral("\r\n") + ademas;
    if (const std::optional<Copia> copia = Ultima())
        texto += QStringLiteral("\r\nHay una copia del %1:\r\n%2\r\nPuede volver a ella con "
                                "\"Recuperar de la copia\" (Configuración, Otras Opciones) o con "
                                "la orden recuperar de miraldos-cli")
                     .arg(Texto(*copia), copia->fichero);
    else
        texto += QStringLiteral("\r\nNo hay ninguna copia de la que recuperarla");
    Interfaz_Actual().Mensaje(texto, Icono::Critico);
}

bool Copias::Ofrecer()
{
    const std::optional<Copia> copia = Ultima();
    if (!copia) return false;
    if (!Interfaz_Actual().Preguntar(
            QStringLiteral("La base de datos está dañada y no se puede abrir:\r\n%1\r\nHay una "
                           "copia del %2.\r\n¿ Desea recuperarla ? La dañada se conserva aparte")
                .arg(Fichero_MDB, Texto(*copia)),
            Icono::Exclamacion))
        return false;
    Recuperar(copia->fichero);
    return true;
}

QString Lugar_De_La_Base()
{
    const QByteArray sistema = plataforma::Sistema_De_Ficheros(Fichero_MDB);
    QString texto = QStringLiteral("Base de datos: ") + Fichero_MDB;
    if (plataforma::Es_De_Red(sistema))
        texto += QStringLiteral(" (unidad de red, %1)").arg(QString::fromLatin1(sistema));
    return texto;
}

bool Revision_Base::Paso()
{
    const QList<Esquema::Tabla>& tablas = Esquema::Tablas();
    if (!Base_Datos || siguiente >= tablas.size()) return false;
    try {
        const QString sql =
            QStringLiteral("PRAGMA quick_check('%1')").arg(tablas[siguiente++].nombre);
        Recorrido r = Base_Datos->Recorrer(sql);
        if (!r.Siguiente() || r.Texto(0) == u"ok") return siguiente < tablas.size();
        Anotar("Revision_Base", r.Texto(0));
    } catch (const Error_Ejecucion& e) {
        Anotar("Revision_Base", e.descripcion);
        if (e.numero != 3343) return false; // somebody else holds it: no sign of damage
    }
    Copias::Avisar_Base_Danada();
    return false;
}

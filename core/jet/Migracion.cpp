#include "core/jet/Migracion.h"

#include "core/jet/Conexion.h"
#include "core/jet/Esquema.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace {

QString Nombre_De_Copia(const QString& fichero, int version)
{
    const QString base =
        QFileInfo(fichero).absolutePath() + QStringLiteral("/esttotal_version%1").arg(version);
    QString nombre = base + QStringLiteral(".bak");
    for (int n = 2; QFileInfo::exists(nombre); ++n)
        nombre = base + QStringLiteral("_%1.bak").arg(n);
    return nombre;
}

QStringList Columnas_De(Conexion& c, const QString& tabla)
{
    QStringList columnas;
    Sentencia s = c.Preparar("SELECT name FROM pragma_table_info(?)");
    s.Ligar_Texto(1, tabla);
    while (s.Paso())
        columnas << s.Texto(0).toLower();
    return columnas;
}

// Older tables let pass what a zero byte hid from the count of characters, and any text for a date.
QString En_La_Nueva(const Esquema::Columna& c)
{
    switch (c.tipo) {
    case Esquema::Tipo::Texto:
        return QStringLiteral("CASE WHEN instr(%1,char(0))>0 AND length(CAST(%1 AS BLOB))>%2 THEN "
                              "CAST(substr(CAST(%1 AS BLOB),1,%2) AS TEXT) ELSE %1 END")
            .arg(c.nombre)
            .arg(c.ancho);
    case Esquema::Tipo::Fecha:
        return QStringLiteral("CASE WHEN %1 THEN %2 END").arg(Esquema::Es_Fecha(c), c.nombre);
    case Esquema::Tipo::Memo:
    case Esquema::Tipo::Entero:
    case Esquema::Tipo::Entero_16:
        break;
    }
    return c.nombre;
}

void Ejecutar(Conexion& c, const QString& sql)
{
    c.Ejecutar(sql.toUtf8().constData());
}

// Row numbers go along: where no column says an order, they are it.
void Copiar_Filas(Conexion& c, const Esquema::Tabla& t, const QString& de)
{
    const QStringList viejas = Columnas_De(c, de);
    QStringList nombres{QStringLiteral("rowid")}, valores{QStringLiteral("rowid")};
    for (const Esquema::Columna& columna : t.columnas) {
        if (!viejas.contains(columna.nombre.toLower())) continue;
        nombres << columna.nombre;
        valores << En_La_Nueva(columna);
    }
    Ejecutar(c, QStringLiteral("INSERT INTO %1(%2) SELECT %3 FROM %4 ORDER BY rowid")
                    .arg(t.nombre, nombres.join(u','), valores.join(u','), de));
}

void Rehacer(Conexion& c, const Esquema::Tabla& t)
{
    QStringList sentencias = Esquema::Sentencias_De(t);
    if (Columnas_De(c, t.nombre).isEmpty()) {
        for (const QString& sql : sentencias)
            Ejecutar(c, sql);
        return;
    }
    const QString vieja = QStringLiteral("vieja_") + t.nombre;
    Ejecutar(c, QStringLiteral("ALTER TABLE %1 RENAME TO %2").arg(t.nombre, vieja));
    Ejecutar(c, sentencias.takeFirst());
    Copiar_Filas(c, t, vieja);
    // With it go its indexes, whose names the new ones take.
    Ejecutar(c, QStringLiteral("DROP TABLE %1").arg(vieja));
    for (const QString& sql : sentencias)
        Ejecutar(c, sql);
}

int Version_De(Conexion& c)
{
    Sentencia s = c.Preparar("PRAGMA user_version");
    return s.Paso() ? int(s.Entero(0)) : 0;
}

} // namespace

void Migrar(Conexion& c)
{
    const QString copia = Nombre_De_Copia(c.Fichero(), Version_De(c));
    try {
        Sentencia s = c.Preparar("VACUUM INTO ?");
        s.Ligar(1, copia);
        s.Ejecutar();
    } catch (...) {
        QFile::remove(copia);
        throw;
    }
    c.Comenzar();
    try {
        if (Version_De(c) < Esquema::VERSION) { // another program may have been quicker
            for (const Esquema::Tabla& t : Esquema::Tablas())
                Rehacer(c, t);
            Ejecutar(c, QStringLiteral("PRAGMA user_version=%1").arg(Esquema::VERSION));
        }
        c.Confirmar();
    } catch (...) {
        const Error_Ejecucion error = Error_En_Curso();
        try {
            c.Deshacer();
        } catch (const Error_Ejecucion&) {
            // The failure that brought us here has ended the transaction already.
        }
        QFile::remove(copia);
        throw error;
    }
}

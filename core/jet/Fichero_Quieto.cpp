#include "core/jet/Fichero_Quieto.h"

#include <QFileInfo>
#include <QUrl>
#include <sqlite3.h>

namespace {

QString Texto(sqlite3_stmt* st, int columna)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, columna)),
                             sqlite3_column_bytes(st, columna));
}

QVariant Valor(sqlite3_stmt* st, int columna)
{
    switch (sqlite3_column_type(st, columna)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return qlonglong(sqlite3_column_int64(st, columna));
    case SQLITE_FLOAT:
        return sqlite3_column_double(st, columna);
    default:
        return Texto(st, columna);
    }
}

} // namespace

Fichero_Quieto::Fichero_Quieto(const QString& fichero)
{
    const QString ruta = QFileInfo(fichero).absoluteFilePath();
    const QByteArray uri = "file:" + QByteArray(ruta.startsWith(u'/') ? "" : "/") +
                           QUrl::toPercentEncoding(ruta, "/:") + "?immutable=1";
    const int r =
        sqlite3_open_v2(uri.constData(), &base, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr);
    if (r == SQLITE_OK) sqlite3_exec(base, "PRAGMA cell_size_check=ON", nullptr, nullptr, nullptr);
}

Fichero_Quieto::~Fichero_Quieto()
{
    sqlite3_close(base);
}

bool Fichero_Quieto::Preguntar(const QByteArray& sql, QString& respuesta)
{
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(base, sql.constData(), -1, &st, nullptr) != SQLITE_OK) return false;
    const bool hay = sqlite3_step(st) == SQLITE_ROW;
    if (hay) respuesta = Texto(st, 0);
    sqlite3_finalize(st);
    return hay;
}

bool Fichero_Quieto::Filas(const QByteArray& sql, QList<QVariantList>& filas)
{
    filas.clear();
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(base, sql.constData(), -1, &st, nullptr) != SQLITE_OK) return false;
    int paso = SQLITE_ROW;
    while ((paso = sqlite3_step(st)) == SQLITE_ROW) {
        QVariantList fila;
        for (int c = 0; c < sqlite3_column_count(st); ++c)
            fila << Valor(st, c);
        filas << fila;
    }
    sqlite3_finalize(st);
    return paso == SQLITE_DONE;
}

QString Fichero_Quieto::Fallo() const
{
    return QString::fromUtf8(base ? sqlite3_errmsg(base) : "");
}

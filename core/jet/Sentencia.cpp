#include "core/Basico.h"
#include "core/jet/Conexion.h"

#include <QDateTime>
#include <QStringEncoder>
#include <sqlite3.h>

Sentencia::Sentencia(std::shared_ptr<Conexion> c, QByteArray texto, sqlite3_stmt* s)
    : conexion(std::move(c)), sql(std::move(texto)), st(s)
{
    conexion->prestadas.insert(this);
}

Sentencia::Sentencia(Sentencia&& otra) noexcept
{
    *this = std::move(otra);
}

Sentencia& Sentencia::operator=(Sentencia&& otra) noexcept
{
    if (this == &otra) return *this;
    Soltar();
    conexion = std::move(otra.conexion);
    sql = std::move(otra.sql);
    st = std::exchange(otra.st, nullptr);
    en_marcha = std::exchange(otra.en_marcha, false);
    escrito = std::move(otra.escrito);
    if (conexion) {
        conexion->prestadas.erase(&otra);
        conexion->prestadas.insert(this);
    }
    otra.conexion.reset();
    return *this;
}

Sentencia::~Sentencia()
{
    Soltar();
}

void Sentencia::Soltar()
{
    if (!conexion) return;
    conexion->prestadas.erase(this);
    if (st) {
        sqlite3_reset(st);
        sqlite3_clear_bindings(st);
        conexion->Devolver(sql, st);
    }
    st = nullptr;
    conexion.reset();
}

void Sentencia::Fallar(int codigo)
{
    const Error_Ejecucion e = conexion->Error(codigo);
    en_marcha = false;
    sqlite3_reset(st);
    throw e;
}

bool Sentencia::Paso()
{
    if (!st) throw Error_Ejecucion(3420);
    const int r = sqlite3_step(st);
    if (r == SQLITE_ROW) return en_marcha = true;
    if (r != SQLITE_DONE) Fallar(r);
    en_marcha = false;
    return false;
}

void Sentencia::Reiniciar()
{
    if (st) sqlite3_reset(st);
    en_marcha = false;
}

void Sentencia::Ejecutar()
{
    while (Paso()) {
    }
    Reiniciar();
}

bool Sentencia::En_Marcha() const
{
    return en_marcha;
}

void Sentencia::Ligar_Entero(int lugar, qint64 valor)
{
    sqlite3_bind_int64(st, lugar, valor);
}

void Sentencia::Ligar_Real(int lugar, double valor)
{
    sqlite3_bind_double(st, lugar, valor);
}

void Sentencia::Ligar_Nulo(int lugar)
{
    sqlite3_bind_null(st, lugar);
}

void Sentencia::Ligar_Bytes(int lugar, QByteArrayView utf8)
{
    // A null pointer would bind null; an empty text is not that.
    const char* const datos = utf8.data() ? utf8.data() : "";
    const int r = sqlite3_bind_text(st, lugar, datos, int(utf8.size()), SQLITE_TRANSIENT);
    if (r != SQLITE_OK) Fallar(r);
}

void Sentencia::Ligar_Texto(int lugar, QStringView texto)
{
    QStringEncoder a_utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const qsizetype cabe = a_utf8.requiredSpace(texto.size());
    if (escrito.size() < cabe) escrito.resize(cabe);
    const char* const fin = a_utf8.appendToBuffer(escrito.data(), texto);
    Ligar_Bytes(lugar, QByteArrayView(escrito.constData(), fin - escrito.constData()));
}

void Sentencia::Ligar(int lugar, const QVariant& valor)
{
    if (!st) throw Error_Ejecucion(3420);
    if (!valor.isValid()) return Ligar_Nulo(lugar);
    switch (valor.typeId()) {
    case QMetaType::Bool:
        return Ligar_Bytes(lugar, valor.toBool() ? "SI" : "NO");
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::ULong:
        return Ligar_Entero(lugar, valor.toLongLong());
    case QMetaType::Double:
    case QMetaType::Float:
        return Ligar_Real(lugar, valor.toDouble());
    case QMetaType::QDateTime:
        return Ligar_Texto(lugar, Basico::Formato_Fecha(valor.toDateTime(),
                                                        QStringLiteral("YYYY-MM-DD HH:MM:SS")));
    case QMetaType::QByteArray:
        return Ligar_Bytes(lugar, valor.toByteArray());
    default:
        return Ligar_Texto(lugar, valor.toString());
    }
}

void Sentencia::Ligar(const std::vector<Valor_Sql>& fijos, const QVariantList& valores)
{
    int lugar = 0;
    qsizetype siguiente = 0;
    for (const Valor_Sql& v : fijos) {
        ++lugar;
        switch (v.tipo) {
        case Valor_Sql::Tipo::Hueco:
            if (siguiente >= valores.size()) throw Error_Ejecucion(3061);
            Ligar(lugar, valores[siguiente++]);
            break;
        case Valor_Sql::Tipo::Texto:
            Ligar_Bytes(lugar, v.texto);
            break;
        case Valor_Sql::Tipo::Entero:
            Ligar_Entero(lugar, v.entero);
            break;
        case Valor_Sql::Tipo::Real:
            Ligar_Real(lugar, v.real);
            break;
        }
    }
    if (siguiente < valores.size()) throw Error_Ejecucion(3001);
}

int Sentencia::Columnas() const
{
    return sqlite3_column_count(st);
}

QVariant Sentencia::Valor(int columna) const
{
    switch (sqlite3_column_type(st, columna)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return qlonglong(sqlite3_column_int64(st, columna));
    case SQLITE_FLOAT:
        return sqlite3_column_double(st, columna);
    default:
        return Texto(columna);
    }
}

qint64 Sentencia::Entero(int columna) const
{
    return sqlite3_column_int64(st, columna);
}

double Sentencia::Real(int columna) const
{
    return sqlite3_column_double(st, columna);
}

int Sentencia::Tipo(int columna) const
{
    return sqlite3_column_type(st, columna);
}

QByteArrayView Sentencia::Bytes(int columna) const
{
    const auto* const datos = reinterpret_cast<const char*>(sqlite3_column_text(st, columna));
    return {datos, sqlite3_column_bytes(st, columna)};
}

QString Sentencia::Texto(int columna) const
{
    const QByteArrayView b = Bytes(columna);
    return QString::fromUtf8(b.data(), b.size());
}

bool Sentencia::Es_Nulo(int columna) const
{
    return sqlite3_column_type(st, columna) == SQLITE_NULL;
}

QString Sentencia::Nombre(int columna) const
{
    return QString::fromUtf8(sqlite3_column_name(st, columna));
}

QString Sentencia::Nombre_Origen(int columna) const
{
    return QString::fromUtf8(sqlite3_column_origin_name(st, columna));
}

QString Sentencia::Tabla_Origen(int columna) const
{
    return QString::fromUtf8(sqlite3_column_table_name(st, columna));
}

#include "core/jet/Funciones.h"

#include "core/Basico.h"
#include "core/Error_Ejecucion.h"

#include <cstring>
#include <limits>
#include <sqlite3.h>

namespace {

struct Trozo_Bytes {
    const char* datos;
    int largo;
};

Trozo_Bytes Bytes(sqlite3_value* v)
{
    const auto* datos = reinterpret_cast<const char*>(sqlite3_value_text(v));
    return {datos ? datos : "", sqlite3_value_bytes(v)};
}

QString Texto(sqlite3_value* v)
{
    const Trozo_Bytes t = Bytes(v);
    return QString::fromUtf8(t.datos, t.largo);
}

bool Solo_Ascii(const Trozo_Bytes& t)
{
    for (int i = 0; i < t.largo; ++i)
        if (static_cast<unsigned char>(t.datos[i]) > 127) return false;
    return true;
}

bool Alguno_Nulo(int n, sqlite3_value** v)
{
    for (int i = 0; i < n; ++i)
        if (sqlite3_value_type(v[i]) == SQLITE_NULL) return true;
    return false;
}

void Dar(sqlite3_context* c, const QString& texto)
{
    const QByteArray b = texto.toUtf8();
    sqlite3_result_text(c, b.constData(), int(b.size()), SQLITE_TRANSIENT);
}

// A failure inside a function reaches the caller as the statement's error text.
void Fallar(sqlite3_context* c, int numero)
{
    const QByteArray texto = MARCA_FUNCION + QByteArray::number(numero);
    sqlite3_result_error(c, texto.constData(), int(texto.size()));
}

// Lengths come from Val too, so that they may have decimals.
qint64 Entero(sqlite3_value* v)
{
    return qint64(Basico::Redondear_Par(sqlite3_value_double(v)));
}

void Dar_Trozo(sqlite3_context* c, sqlite3_value* v, qint64 desde, qint64 cuantos)
{
    const Trozo_Bytes t = Bytes(v);
    if (!Solo_Ascii(t)) return Dar(c, Texto(v).mid(desde, cuantos));
    const qint64 ini = qMin<qint64>(desde, t.largo);
    const qint64 n = qMin<qint64>(cuantos, t.largo - ini);
    sqlite3_result_text(c, t.datos + ini, int(n), SQLITE_TRANSIENT);
}

void Fn_Mid(sqlite3_context* c, int n, sqlite3_value** v)
{
    if (Alguno_Nulo(n, v)) return;
    const qint64 desde = Entero(v[1]);
    const qint64 cuantos = n == 3 ? Entero(v[2]) : std::numeric_limits<int>::max();
    if (desde < 1 || cuantos < 0) return Fallar(c, 5);
    Dar_Trozo(c, v[0], desde - 1, cuantos);
}

void Fn_Left(sqlite3_context* c, int n, sqlite3_value** v)
{
    if (Alguno_Nulo(n, v)) return;
    const qint64 cuantos = Entero(v[1]);
    if (cuantos < 0) return Fallar(c, 5);
    Dar_Trozo(c, v[0], 0, cuantos);
}

void Fn_Right(sqlite3_context* c, int n, sqlite3_value** v)
{
    if (Alguno_Nulo(n, v)) return;
    const qint64 cuantos = Entero(v[1]);
    if (cuantos < 0) return Fallar(c, 5);
    Dar(c, Texto(v[0]).right(cuantos));
}

void Fn_InStr(sqlite3_context* c, int n, sqlite3_value** v)
{
    if (Alguno_Nulo(n, v)) return;
    const qint64 desde = n == 3 ? Entero(v[0]) : 1;
    if (desde < 1) return Fallar(c, 5);
    sqlite3_result_int64(c, Basico::InStr(desde, Texto(v[n - 2]), Texto(v[n - 1])));
}

void Fn_Val(sqlite3_context* c, int n, sqlite3_value** v)
{
    if (Alguno_Nulo(n, v)) return;
    sqlite3_result_double(c, Basico::Val(Texto(v[0])));
}

void Fn_UCase(sqlite3_context* c, int n, sqlite3_value** v)
{
    if (!Alguno_Nulo(n, v)) Dar(c, Texto(v[0]).toUpper());
}

void Fn_LCase(sqlite3_context* c, int n, sqlite3_value** v)
{
    if (!Alguno_Nulo(n, v)) Dar(c, Texto(v[0]).toLower());
}

void Fn_Len(sqlite3_context* c, int n, sqlite3_value** v)
{
    if (!Alguno_Nulo(n, v)) sqlite3_result_int64(c, Texto(v[0]).size());
}

void Fn_IsNull(sqlite3_context* c, int n, sqlite3_value** v)
{
    sqlite3_result_int(c, Alguno_Nulo(n, v) ? 1 : 0);
}

} // namespace

void Registrar_Funciones(sqlite3* base)
{
    using Funcion = void (*)(sqlite3_context*, int, sqlite3_value**);
    struct Entrada {
        const char* nombre;
        int argumentos;
        Funcion funcion;
    };
    static constexpr Entrada entradas[] = {
        {"mid", 2, Fn_Mid},     {"mid", 3, Fn_Mid},       {"left", 2, Fn_Left},
        {"right", 2, Fn_Right}, {"instr", 2, Fn_InStr},   {"instr", 3, Fn_InStr},
        {"val", 1, Fn_Val},     {"ucase", 1, Fn_UCase},   {"lcase", 1, Fn_LCase},
        {"len", 1, Fn_Len},     {"isnull", 1, Fn_IsNull},
    };
    for (const Entrada& e : entradas)
        sqlite3_create_function_v2(base, e.nombre, e.argumentos,
                                   SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr,
                                   e.funcion, nullptr, nullptr, nullptr);
}

#include "core/jet/Base.h"

#include "core/jet/Compactacion.h"
#include "core/jet/Conexion.h"
#include "core/jet/Conjunto.h"
#include "core/jet/Esquema.h"

#include <sqlite3.h>

namespace {

bool Es_Consulta(const QString& fuente)
{
    const QStringView t = QStringView(fuente).trimmed();
    return t.size() > 6 && t.left(6).compare(u"select", Qt::CaseInsensitive) == 0 &&
           !t[6].isLetterOrNumber() && t[6] != u'_';
}

Conexion& Viva(const std::shared_ptr<Conexion>& conexion)
{
    if (!conexion) throw Error_Ejecucion(3420);
    conexion->Poner_Al_Dia();
    return *conexion;
}

} // namespace

struct Recorrido::Datos {
    Sentencia sentencia;
};

struct Insercion::Datos {
    Sentencia sentencia;
    int columnas = 0;
};

Base::Base(std::shared_ptr<Conexion> c) : conexion(std::move(c)) {}

Base::~Base() = default;

std::shared_ptr<Base> Base::Abrir(const QString& fichero)
{
    return std::shared_ptr<Base>(new Base(Conexion::De(fichero)));
}

std::shared_ptr<Base> Base::Crear(const QString& fichero)
{
    return std::shared_ptr<Base>(new Base(Conexion::Crear(fichero)));
}

void Base::Compactar(const QString& origen, const QString& destino)
{
    Compactacion(origen).Escribir(destino);
}

Conjunto_Registros Base::OpenRecordset(const QString& fuente)
{
    return OpenRecordset(fuente,
                         Es_Consulta(fuente) ? Tipo_Conjunto::Dinamico : Tipo_Conjunto::Tabla);
}

Conjunto_Registros Base::OpenRecordset(const QString& fuente, Tipo_Conjunto tipo)
{
    Viva(conexion);
    if (!Es_Consulta(fuente)) {
        const Esquema::Tabla* tabla = Esquema::Buscar_Tabla(fuente.trimmed());
        if (!tabla) throw Error_Ejecucion::Con(3078, fuente);
        if (tipo == Tipo_Conjunto::Tabla)
            return Conjunto_Registros(Conjunto_De_Tabla(conexion, *tabla));
        return Conjunto_Registros(
            Conjunto_De_Consulta(conexion, QStringLiteral("SELECT * FROM ") + tabla->nombre, tipo));
    }
    if (tipo == Tipo_Conjunto::Tabla) throw Error_Ejecucion(3219);
    return Conjunto_Registros(Conjunto_De_Consulta(conexion, fuente, tipo));
}

qint64 Base::Execute(const QString& sql, const QVariantList& valores)
{
    Conexion& c = Viva(conexion);
    const Traduccion t = Traducir(sql);
    Sentencia s = c.Preparar(t.completa.sql);
    if (s.Columnas() > 0) throw Error_Ejecucion(3065);
    s.Ligar(t.completa.valores, valores);
    s.Ejecutar();
    return sqlite3_changes64(c.Manejador());
}

Recorrido Base::Recorrer(const QString& sql, const QVariantList& valores)
{
    Conexion& c = Viva(conexion);
    const Traduccion t = Traducir(sql);
    auto datos = std::make_unique<Recorrido::Datos>();
    datos->sentencia = c.Preparar(t.completa.sql);
    datos->sentencia.Ligar(t.completa.valores, valores);
    return Recorrido(std::move(datos));
}

Insercion Base::Preparar_Insercion(const QString& tabla, const QStringList& columnas)
{
    Conexion& c = Viva(conexion);
    const QString sql =
        QStringLiteral("INSERT INTO %1(%2) VALUES(?%3)")
            .arg(tabla, columnas.join(u','), QStringLiteral(",?").repeated(columnas.size() - 1));
    auto datos = std::make_unique<Insercion::Datos>();
    datos->sentencia = c.Preparar(sql.toUtf8());
    datos->columnas = int(columnas.size());
    return Insercion(std::move(datos));
}

QString Base::Fichero() const
{
    return Viva(conexion).Fichero();
}

quint64 Base::Version() const
{
    return Viva(conexion).Version();
}

void Base::Close()
{
    conexion.reset();
}

bool Base::Abierta() const
{
    return conexion != nullptr;
}

void Base::Sincronizar()
{
    Viva(conexion).Sincronizar();
}

void Base::BeginTrans()
{
    Viva(conexion).Comenzar();
}

void Base::CommitTrans()
{
    Viva(conexion).Confirmar();
}

void Base::Rollback()
{
    Viva(conexion).Deshacer();
}

Transaccion::Transaccion(Base& b) : base(b)
{
    base.BeginTrans();
}

Transaccion::~Transaccion()
{
    if (!abierta) return;
    try {
        base.Rollback();
    } catch (const Error_Ejecucion&) {
        // The failure that brought us here has ended the transaction already.
    }
}

void Transaccion::Confirmar()
{
    base.CommitTrans();
    abierta = false;
}

Recorrido::Recorrido(std::unique_ptr<Datos> datos) : d(std::move(datos)) {}
Recorrido::~Recorrido() = default;
Recorrido::Recorrido(Recorrido&&) noexcept = default;
Recorrido& Recorrido::operator=(Recorrido&&) noexcept = default;

bool Recorrido::Siguiente()
{
    const bool hay = d->sentencia.Paso();
    if (!hay) d->sentencia.Reiniciar();
    return hay;
}

QString Recorrido::Texto(int columna) const
{
    return d->sentencia.Texto(columna);
}

void Recorrido::Texto(int columna, QString& en) const
{
    const QByteArrayView bytes = d->sentencia.Bytes(columna);
    en.resize(bytes.size());
    QChar* letra = en.data();
    unsigned char altos = 0;
    for (const char c : bytes) {
        altos |= static_cast<unsigned char>(c);
        *letra++ = QChar(char16_t(static_cast<unsigned char>(c)));
    }
    // Lines are plain letters nearly always; the rest is decoded the long way.
    if (altos >= 0x80) en = QString::fromUtf8(bytes);
}

qint64 Recorrido::Entero(int columna) const
{
    return d->sentencia.Entero(columna);
}

bool Recorrido::Es_Nulo(int columna) const
{
    return d->sentencia.Es_Nulo(columna);
}

QByteArrayView Recorrido::Bytes(int columna) const
{
    return d->sentencia.Bytes(columna);
}

Insercion::Insercion(std::unique_ptr<Datos> datos) : d(std::move(datos)) {}
Insercion::~Insercion() = default;
Insercion::Insercion(Insercion&&) noexcept = default;
Insercion& Insercion::operator=(Insercion&&) noexcept = default;

void Insercion::Anadir(const QVariantList& valores)
{
    if (valores.size() != d->columnas) throw Error_Ejecucion(3001);
    for (int i = 0; i < d->columnas; ++i)
        d->sentencia.Ligar(i + 1, valores[i]);
    Anadir();
}

void Insercion::Poner(int columna, QStringView texto)
{
    d->sentencia.Ligar_Texto(columna + 1, texto);
}

void Insercion::Poner(int columna, qint64 numero)
{
    d->sentencia.Ligar_Entero(columna + 1, numero);
}

void Insercion::Anadir()
{
    d->sentencia.Ejecutar();
}

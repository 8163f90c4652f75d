#include "core/Basico.h"
#include "core/jet/Conjunto.h"

#include <sqlite3.h>

using Datos = Conjunto_Registros::Datos;

void Datos::Index(const QString&)
{
    throw Error_Ejecucion(3251);
}

void Datos::Seek(const QVariantList&)
{
    throw Error_Ejecucion(3251);
}

void Datos::Leer_Columnas(const Sentencia& s, const QString& tabla, int primera)
{
    columnas.clear();
    lugares.clear();
    const int n = s.Columnas();
    for (int i = primera; i < n; ++i) {
        const QString nombre = s.Nombre(i).toLower();
        lugares[nombre] = lugares.contains(nombre) ? -1 : i - primera;
    }
    for (int i = primera; i < n; ++i) {
        const QString nombre = s.Nombre(i);
        const QString con_tabla = s.Tabla_Origen(i) + u'.' + nombre;
        const bool repetida = lugares.value(nombre.toLower()) < 0;
        columnas.push_back({repetida ? con_tabla : nombre,
                            s.Tabla_Origen(i) == tabla ? s.Nombre_Origen(i) : QString()});
        if (!lugares.contains(con_tabla.toLower())) lugares[con_tabla.toLower()] = i - primera;
    }
}

int Datos::Lugar(const QString& campo) const
{
    if (const auto it = lugares.constFind(campo); it != lugares.constEnd() && *it >= 0) return *it;
    const int lugar = lugares.value(campo.toLower(), -1);
    if (lugar < 0) throw Error_Ejecucion::Con(3265, campo);
    lugares.insert(campo, lugar); // asked for a row after another, spelt the same
    return lugar;
}

QStringList Datos::Columnas() const
{
    QStringList nombres;
    for (const Columna& c : columnas)
        nombres << c.nombre;
    return nombres;
}

const QVariant& Datos::Valor(const QString& campo) const
{
    const auto lugar = std::size_t(Lugar(campo));
    if (edicion != Edicion::Ninguna) return nueva[lugar];
    return Fila()[lugar];
}

void Datos::AddNew()
{
    Tabla_Editable();
    edicion = Edicion::Alta;
    nueva.assign(columnas.size(), {});
    puesta.assign(columnas.size(), false);
}

void Datos::Edit()
{
    Numero_De_Fila();
    nueva = Fila();
    puesta.assign(columnas.size(), false);
    edicion = Edicion::Cambio;
}

void Datos::Poner(const QString& campo, const QVariant& valor)
{
    const auto lugar = std::size_t(Lugar(campo));
    if (edicion == Edicion::Ninguna) throw Error_Ejecucion(3020);
    if (columnas[lugar].origen.isEmpty()) throw Error_Ejecucion(3164);
    nueva[lugar] = valor.typeId() == QMetaType::Bool
                       ? QVariant(QString::fromLatin1(valor.toBool() ? "SI" : "NO"))
                       : valor;
    puesta[lugar] = true;
}

void Datos::Update()
{
    if (edicion == Edicion::Ninguna) throw Error_Ejecucion(3020);
    if (edicion == Edicion::Alta)
        Insertar();
    else
        Cambiar();
}

void Datos::Insertar()
{
    QString nombres, huecos;
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        if (!puesta[i]) continue;
        nombres += (nombres.isEmpty() ? QString() : QStringLiteral(",")) + columnas[i].origen;
        huecos += huecos.isEmpty() ? QStringLiteral("?") : QStringLiteral(",?");
    }
    QString sql = QStringLiteral("INSERT INTO ") + Tabla_Editable();
    sql += nombres.isEmpty() ? QStringLiteral(" DEFAULT VALUES")
                             : u'(' + nombres + QStringLiteral(") VALUES(") + huecos + u')';
    Sentencia s = conexion->Preparar(sql.toUtf8());
    int lugar = 0;
    for (std::size_t i = 0; i < columnas.size(); ++i)
        if (puesta[i]) s.Ligar(++lugar, nueva[i]);
    s.Ejecutar();
    edicion = Edicion::Ninguna;
    Tras_Alta(sqlite3_last_insert_rowid(conexion->Manejador()));
}

void Datos::Cambiar()
{
    QString cambios;
    for (std::size_t i = 0; i < columnas.size(); ++i)
        if (puesta[i])
            cambios += (cambios.isEmpty() ? QString() : QStringLiteral(",")) + columnas[i].origen +
                       QStringLiteral("=?");
    if (!cambios.isEmpty()) {
        Sentencia s = conexion->Preparar((QStringLiteral("UPDATE ") + Tabla_Editable() +
                                          QStringLiteral(" SET ") + cambios +
                                          QStringLiteral(" WHERE rowid=?"))
                                             .toUtf8());
        int lugar = 0;
        for (std::size_t i = 0; i < columnas.size(); ++i)
            if (puesta[i]) s.Ligar(++lugar, nueva[i]);
        s.Ligar_Entero(++lugar, Numero_De_Fila());
        s.Ejecutar();
        if (sqlite3_changes64(conexion->Manejador()) == 0) throw Error_Ejecucion(3167);
    }
    edicion = Edicion::Ninguna;
    Tras_Edicion();
}

void Datos::CancelUpdate()
{
    if (edicion == Edicion::Ninguna) throw Error_Ejecucion(3020);
    edicion = Edicion::Ninguna;
}

void Datos::Delete()
{
    const qint64 fila = Numero_De_Fila();
    Fila();
    Sentencia s = conexion->Preparar(
        (QStringLiteral("DELETE FROM ") + Tabla_Editable() + QStringLiteral(" WHERE rowid=?"))
            .toUtf8());
    s.Ligar_Entero(1, fila);
    s.Ejecutar();
    Dejar_Edicion();
    Tras_Borrado();
}

Conjunto_Registros::Conjunto_Registros(std::unique_ptr<Datos> datos) : d(std::move(datos)) {}
Conjunto_Registros::~Conjunto_Registros() = default;
Conjunto_Registros::Conjunto_Registros(Conjunto_Registros&&) noexcept = default;
Conjunto_Registros& Conjunto_Registros::operator=(Conjunto_Registros&&) noexcept = default;

void Conjunto_Registros::Index(const QString& nombre)
{
    d->Index(nombre);
}

void Conjunto_Registros::Seek(const QVariantList& claves)
{
    d->Seek(claves);
}

bool Conjunto_Registros::NoMatch() const
{
    return d->sin_coincidencia;
}

void Conjunto_Registros::FindFirst(const QString& criterio)
{
    d->FindFirst(criterio);
}

bool Conjunto_Registros::Es_BOF() const
{
    return d->BOF();
}

bool Conjunto_Registros::Es_EOF() const
{
    return d->EOF_();
}

void Conjunto_Registros::MoveFirst()
{
    d->Primera();
}

void Conjunto_Registros::MoveLast()
{
    d->Ultima();
}

void Conjunto_Registros::MoveNext()
{
    d->Siguiente();
}

void Conjunto_Registros::MovePrevious()
{
    d->Anterior();
}

qint64 Conjunto_Registros::RecordCount() const
{
    return d->Cuenta();
}

qint64 Conjunto_Registros::Posicion() const
{
    return d->Posicion();
}

void Conjunto_Registros::Ir_A(qint64 posicion)
{
    d->Ir_A(posicion);
}

QVariant Conjunto_Registros::Valor(const QString& campo) const
{
    return d->Valor(campo);
}

QString Conjunto_Registros::Texto(const QString& campo) const
{
    return d->Valor(campo).toString();
}

qint64 Conjunto_Registros::Entero(const QString& campo) const
{
    const QVariant& v = d->Valor(campo);
    if (v.typeId() == QMetaType::Double) return qint64(Basico::Redondear_Par(v.toDouble()));
    return v.toLongLong();
}

bool Conjunto_Registros::Es_Si(const QString& campo) const
{
    return Texto(campo) == u"SI";
}

QDateTime Conjunto_Registros::Momento(const QString& campo) const
{
    const QVariant& v = d->Valor(campo);
    if (v.typeId() == QMetaType::QDateTime) return v.toDateTime();
    return QDateTime::fromString(v.toString(), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QStringList Conjunto_Registros::Columnas() const
{
    return d->Columnas();
}

void Conjunto_Registros::AddNew()
{
    d->AddNew();
}

void Conjunto_Registros::Edit()
{
    d->Edit();
}

void Conjunto_Registros::Poner(const QString& campo, const QVariant& valor)
{
    d->Poner(campo, valor);
}

void Conjunto_Registros::Update()
{
    d->Update();
}

void Conjunto_Registros::CancelUpdate()
{
    d->CancelUpdate();
}

void Conjunto_Registros::Delete()
{
    d->Delete();
}

void Conjunto_Registros::Requery()
{
    d->Requery();
}

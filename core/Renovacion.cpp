#include "core/Renovacion.h"

#include "core/Error_Ejecucion.h"
#include "core/jet/Esquema.h"
#include "core/jet/Fichero_Quieto.h"
#include "core/ModLOG.h"

#include <QCryptographicHash>
#include <QSet>

namespace {

using Filas = QList<QVariantList>;

const QString SELLO = QStringLiteral("sello");

bool Es_De_Entrega(const Esquema::Tabla& tabla)
{
    return !tabla.identidad.isEmpty();
}

QStringList Nombres(const Esquema::Tabla& tabla)
{
    QStringList nombres;
    for (const Esquema::Columna& c : tabla.columnas)
        nombres << c.nombre;
    return nombres;
}

// In the order of the table, which counts where no column says one.
QString Consulta(const Esquema::Tabla& tabla)
{
    return QStringLiteral("SELECT %1 FROM %2 ORDER BY rowid")
        .arg(Nombres(tabla).join(u','), tabla.nombre);
}

Filas Leer(Base& base, const Esquema::Tabla& tabla)
{
    Filas filas;
    Recorrido r = base.Recorrer(Consulta(tabla));
    while (r.Siguiente()) {
        QVariantList fila;
        for (int c = 0; c < int(tabla.columnas.size()); ++c) {
            if (r.Es_Nulo(c))
                fila << QVariant();
            else if (tabla.columnas[c].tipo == Esquema::Tipo::Entero)
                fila << QVariant(r.Entero(c));
            else
                fila << QVariant(r.Texto(c));
        }
        filas << fila;
    }
    return filas;
}

qint64 Suma(const QVariantList& fila)
{
    QByteArray bytes;
    for (const QVariant& v : fila)
        bytes += v.isValid() ? "=" + v.toString().toUtf8() + '\0' : QByteArray("-");
    const QByteArray resumen = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
    qint64 suma = 0;
    for (int i = 0; i < 8; ++i)
        suma = qint64(quint64(suma) << 8 | quint8(resumen[i]));
    return suma;
}

QSet<qint64> Sumas(Base& base, const QString& tabla)
{
    QSet<qint64> sumas;
    Recorrido r = base.Recorrer("SELECT Suma FROM Entregadas WHERE Tabla = ?", {tabla});
    while (r.Siguiente())
        sumas << r.Entero(0);
    return sumas;
}

// What no two rows of a table may have in common: each list of columns with its values.
class Claves {
public:
    explicit Claves(const Esquema::Tabla& tabla)
    {
        Anadir_Lista(tabla, tabla.identidad);
        for (const Esquema::Indice& i : tabla.indices)
            if (i.unico) Anadir_Lista(tabla, i.columnas);
    }

    void Tomar(const QVariantList& fila)
    {
        for (qsizetype k = 0; k < listas.size(); ++k)
            vistas << Clave(k, fila);
    }

    bool Tomada(const QVariantList& fila) const
    {
        for (qsizetype k = 0; k < listas.size(); ++k)
            if (vistas.contains(Clave(k, fila))) return true;
        return false;
    }

private:
    void Anadir_Lista(const Esquema::Tabla& tabla, const QStringList& columnas)
    {
        const QStringList nombres = Nombres(tabla);
        QList<qsizetype> lugares;
        for (const QString& c : columnas)
            lugares << nombres.indexOf(c);
        if (!listas.contains(lugares)) listas << lugares;
    }

    QString Clave(qsizetype k, const QVariantList& fila) const
    {
        QString clave = QString::number(k);
        for (const qsizetype lugar : listas[k])
            clave += QChar(0) + fila[lugar].toString();
        return clave;
    }

    QList<QList<qsizetype>> listas;
    QSet<QString> vistas;
};

// Rows of the user's that the delivered ones don't replace. A database that doesn't know what it
// was delivered with keeps what is not delivered any more: it may be his.
Filas Propias(const Esquema::Tabla& tabla, const Filas& suyas, const Filas& nuevas,
              const QSet<qint64>& entregadas)
{
    QSet<qint64> conocidas = entregadas;
    Claves claves(tabla);
    for (const QVariantList& n : nuevas) {
        conocidas << Suma(n);
        claves.Tomar(n);
    }
    Filas propias;
    for (const QVariantList& fila : suyas)
        if (!conocidas.contains(Suma(fila)) && !(entregadas.isEmpty() && claves.Tomada(fila)))
            propias << fila;
    return propias;
}

void Anotar_Sumas(Base& base, const Esquema::Tabla& tabla, const Filas& filas)
{
    base.Execute("DELETE FROM Entregadas WHERE Tabla = ?", {tabla.nombre});
    Insercion sumas = base.Preparar_Insercion("Entregadas", {"Tabla", "Suma"});
    for (const QVariantList& fila : filas)
        sumas.Anadir({tabla.nombre, Suma(fila)});
}

void Poner_Sello(Base& base, const QString& sello)
{
    base.Execute("DELETE FROM Propiedades WHERE Nombre = ?", {SELLO});
    base.Execute("INSERT INTO Propiedades (Nombre, Valor) VALUES (?, ?)", {SELLO, sello});
}

QString Sello(Base& base)
{
    Recorrido r = base.Recorrer("SELECT Valor FROM Propiedades WHERE Nombre = ?", {SELLO});
    return r.Siguiente() ? r.Texto(0) : QString();
}

void Renovar(Base& base, const Esquema::Tabla& tabla, const Filas& nuevas)
{
    const Filas propias = Propias(tabla, Leer(base, tabla), nuevas, Sumas(base, tabla.nombre));
    Claves ocupadas(tabla);
    for (const QVariantList& fila : propias)
        ocupadas.Tomar(fila);
    base.Execute(QStringLiteral("DELETE FROM ") + tabla.nombre);
    Insercion insercion = base.Preparar_Insercion(tabla.nombre, Nombres(tabla));
    for (const QVariantList& fila : nuevas)
        if (!ocupadas.Tomada(fila)) insercion.Anadir(fila);
    for (const QVariantList& fila : propias)
        insercion.Anadir(fila);
    Anotar_Sumas(base, tabla, nuevas);
}

// All or nothing, before anything is written. @return false when a table can't be read
bool Leer_Plantilla(Fichero_Quieto& plantilla, QList<std::pair<Esquema::Tabla, Filas>>& tablas)
{
    for (const Esquema::Tabla& t : Esquema::Tablas()) {
        if (!Es_De_Entrega(t)) continue;
        Filas filas;
        if (!plantilla.Filas(Consulta(t).toUtf8(), filas)) return false;
        tablas.append({t, filas});
    }
    return true;
}

} // namespace

void Sellar_Entregadas(Base& base, const QString& sello)
{
    Transaccion transaccion(base);
    for (const Esquema::Tabla& t : Esquema::Tablas())
        if (Es_De_Entrega(t)) Anotar_Sumas(base, t, Leer(base, t));
    Poner_Sello(base, sello);
    transaccion.Confirmar();
}

bool Renovar_Entregadas(Base& base, const QString& ruta)
{
    try {
        Fichero_Quieto plantilla(ruta);
        QString sello;
        if (!plantilla.Preguntar("SELECT Valor FROM Propiedades WHERE Nombre = 'sello'", sello) ||
            sello <= Sello(base))
            return false;
        QList<std::pair<Esquema::Tabla, Filas>> tablas;
        if (!Leer_Plantilla(plantilla, tablas)) {
            Anotar("Renovar_Entregadas", ruta + QStringLiteral(": ") + plantilla.Fallo());
            return false;
        }
        Transaccion transaccion(base);
        if (sello <= Sello(base)) return false; // another program was quicker
        for (const auto& [tabla, nuevas] : tablas)
            Renovar(base, tabla, nuevas);
        Poner_Sello(base, sello);
        transaccion.Confirmar();
        return true;
    } catch (...) {
        Anotar_Fallo("Renovar_Entregadas");
        return false;
    }
}

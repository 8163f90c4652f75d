#include "core/jet/Conjunto.h"

namespace {

// A live table: each move asks the table for the next row in the order of the index, or of
// insertion. Index columns are never null, so that rows compare as a whole.
class De_Tabla final : public Conjunto_Registros::Datos {
public:
    De_Tabla(std::shared_ptr<Conexion> c, const Esquema::Tabla& t) : Datos(std::move(c)), tabla(t)
    {
        Leer_Columnas(Seleccion(QString(), QString()), tabla.nombre, 1);
        Al_Principio();
    }

    void Index(const QString& nombre) override
    {
        const Esquema::Indice* const i = tabla.Buscar_Indice(nombre);
        if (!i) throw Error_Ejecucion::Con(3015, nombre);
        indice = i;
        Al_Principio();
    }

    void Seek(const QVariantList& claves) override
    {
        if (!indice) throw Error_Ejecucion(3019);
        if (claves.isEmpty() || claves.size() > indice->columnas.size())
            throw Error_Ejecucion(3001);
        QStringList condiciones;
        for (qsizetype k = 0; k < claves.size(); ++k)
            condiciones << indice->columnas[k] + QStringLiteral("=?");
        Sentencia s = Seleccion(condiciones.join(QStringLiteral(" AND ")), Orden(false));
        for (qsizetype k = 0; k < claves.size(); ++k)
            s.Ligar(int(k) + 1, claves[k]);
        Dejar_Edicion();
        sin_coincidencia = !Tomar(s);
        if (sin_coincidencia) sitio = Sitio::Ninguno;
    }

    void FindFirst(const QString& criterio) override
    {
        const Traduccion t = Traducir(
            QStringLiteral("SELECT %1.rowid,* FROM %1 WHERE %2").arg(tabla.nombre, criterio));
        Sentencia s = conexion->Preparar(t.completa.sql + " LIMIT 1");
        s.Ligar(t.completa.valores, {});
        Dejar_Edicion();
        sin_coincidencia = !Tomar(s);
    }

    bool BOF() const override { return sitio == Sitio::Antes || sitio == Sitio::Vacio; }
    bool EOF_() const override { return sitio == Sitio::Despues || sitio == Sitio::Vacio; }

    void Primera() override
    {
        Al_Principio();
        if (sitio == Sitio::Vacio) throw Error_Ejecucion(3021);
    }

    void Ultima() override
    {
        Dejar_Edicion();
        Sentencia s = Seleccion(QString(), Orden(true));
        if (!Tomar(s)) {
            sitio = Sitio::Vacio;
            throw Error_Ejecucion(3021);
        }
    }

    void Siguiente() override
    {
        if (EOF_()) throw Error_Ejecucion(3021);
        if (sitio == Sitio::Antes) return Al_Principio();
        Mover(false);
    }

    void Anterior() override
    {
        if (BOF()) throw Error_Ejecucion(3021);
        if (sitio == Sitio::Despues) return Ultima();
        Mover(true);
    }

    qint64 Cuenta() const override
    {
        Sentencia s =
            conexion->Preparar((QStringLiteral("SELECT count(*) FROM ") + tabla.nombre).toUtf8());
        s.Paso();
        return s.Entero(0);
    }

    qint64 Posicion() const override
    {
        if (sitio != Sitio::Fila) return -1;
        Sentencia s = conexion->Preparar((QStringLiteral("SELECT count(*) FROM %1 WHERE %2")
                                              .arg(tabla.nombre, Comparacion(true)))
                                             .toUtf8());
        Ligar_Clave(s);
        s.Paso();
        return s.Entero(0);
    }

    void Ir_A(qint64 posicion) override
    {
        Dejar_Edicion();
        Sentencia s = Seleccion(QString(), Orden(false), QStringLiteral(" OFFSET ?"));
        s.Ligar_Entero(1, posicion);
        if (posicion < 0 || !Tomar(s)) throw Error_Ejecucion(3021);
    }

    void Requery() override { Al_Principio(); }

protected:
    const std::vector<QVariant>& Fila() const override
    {
        if (sitio == Sitio::Hueco) throw Error_Ejecucion(3167);
        if (sitio != Sitio::Fila) throw Error_Ejecucion(3021);
        return fila;
    }

    qint64 Numero_De_Fila() const override
    {
        Fila();
        return numero;
    }

    QString Tabla_Editable() const override { return tabla.nombre; }
    void Tras_Alta(qint64) override
    {
        if (sitio == Sitio::Vacio) sitio = Sitio::Despues;
    }
    void Tras_Edicion() override
    {
        Sentencia s = Seleccion(QStringLiteral("rowid=?"), QString());
        s.Ligar_Entero(1, numero);
        if (!Tomar(s)) sitio = Sitio::Hueco;
    }
    void Tras_Borrado() override { sitio = Sitio::Hueco; }

private:
    // `Hueco`: on a row that has been deleted, between its neighbours. `Ninguno`: lost by a seek.
    enum class Sitio { Vacio, Antes, Fila, Hueco, Despues, Ninguno };

    Sentencia Seleccion(const QString& condicion, const QString& orden,
                        const QString& salto = QString()) const
    {
        QString sql = QStringLiteral("SELECT %1.rowid,* FROM %1").arg(tabla.nombre);
        if (!condicion.isEmpty()) sql += QStringLiteral(" WHERE ") + condicion;
        if (!orden.isEmpty()) sql += QStringLiteral(" ORDER BY ") + orden;
        return conexion->Preparar((sql + QStringLiteral(" LIMIT 1") + salto).toUtf8());
    }

    QStringList Columnas_De_Orden() const
    {
        QStringList orden = indice ? indice->columnas : QStringList();
        return orden << QStringLiteral("rowid");
    }

    QString Orden(bool al_reves) const
    {
        QStringList o = Columnas_De_Orden();
        if (al_reves)
            for (QString& c : o)
                c += QStringLiteral(" DESC");
        return o.join(u',');
    }

    QString Comparacion(bool anteriores) const
    {
        const QStringList o = Columnas_De_Orden();
        return QStringLiteral("(%1)%2(?%3)")
            .arg(o.join(u','), anteriores ? QStringLiteral("<") : QStringLiteral(">"),
                 QStringLiteral(",?").repeated(o.size() - 1));
    }

    void Ligar_Clave(Sentencia& s) const
    {
        int lugar = 0;
        if (indice)
            for (const QString& c : indice->columnas)
                s.Ligar(++lugar, fila[std::size_t(Lugar(c))]);
        s.Ligar_Entero(++lugar, numero);
    }

    bool Tomar(Sentencia& s)
    {
        if (!s.Paso()) return false;
        numero = s.Entero(0);
        fila.clear();
        for (int i = 1; i < s.Columnas(); ++i)
            fila.push_back(s.Valor(i));
        sitio = Sitio::Fila;
        return true;
    }

    void Al_Principio()
    {
        Dejar_Edicion();
        Sentencia s = Seleccion(QString(), Orden(false));
        if (!Tomar(s)) sitio = Sitio::Vacio;
    }

    void Mover(bool atras)
    {
        Dejar_Edicion();
        if (sitio == Sitio::Ninguno) throw Error_Ejecucion(3021);
        Sentencia s = Seleccion(Comparacion(atras), Orden(atras));
        Ligar_Clave(s);
        if (Tomar(s)) return;
        sitio = Cuenta() == 0 ? Sitio::Vacio : atras ? Sitio::Antes : Sitio::Despues;
    }

    const Esquema::Tabla& tabla;
    const Esquema::Indice* indice = nullptr;
    Sitio sitio = Sitio::Vacio;
    qint64 numero = 0;
    std::vector<QVariant> fila;
};

} // namespace

std::unique_ptr<Conjunto_Registros::Datos> Conjunto_De_Tabla(std::shared_ptr<Conexion> conexion,
                                                             const Esquema::Tabla& tabla)
{
    return std::make_unique<De_Tabla>(std::move(conexion), tabla);
}

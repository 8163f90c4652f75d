#include "core/jet/Conjunto.h"
#include "core/jet/Filas_Memoria.h"

#include <algorithm>

namespace {

// Moves over a list of members that is fixed when the query runs; the kinds say what a member is.
class De_Lista : public Conjunto_Registros::Datos {
public:
    using Datos::Datos;

    bool BOF() const override { return Miembros() == 0 || (lugar < 0 && !borrado); }
    bool EOF_() const override { return Miembros() == 0 || (lugar >= Miembros() && !borrado); }

    void Primera() override { Poner_Lugar(0); }
    void Ultima() override { Poner_Lugar(Miembros() - 1); }

    void Siguiente() override
    {
        if (EOF_() && !borrado) throw Error_Ejecucion(3021);
        // Behind a deleted row its place is the next one's already.
        Mover(borrado ? lugar : lugar + 1);
    }

    void Anterior() override
    {
        if (BOF() && !borrado) throw Error_Ejecucion(3021);
        Mover(lugar - 1);
    }

    qint64 Cuenta() const override { return Miembros(); }
    qint64 Posicion() const override { return En_Fila() ? lugar : -1; }
    void Ir_A(qint64 posicion) override { Poner_Lugar(posicion); }

protected:
    virtual qint64 Miembros() const = 0;
    virtual void Cargar(qint64 miembro, std::vector<QVariant>& fila) const = 0;

    bool En_Fila() const { return !borrado && lugar >= 0 && lugar < Miembros(); }

    void Al_Principio()
    {
        Dejar_Edicion();
        Olvidar();
        borrado = false;
        lugar = 0;
    }

    void Olvidar() { cargada = false; }

    const std::vector<QVariant>& Fila() const override
    {
        if (borrado) throw Error_Ejecucion(3167);
        if (!En_Fila()) throw Error_Ejecucion(3021);
        if (!cargada) Cargar(lugar, valores);
        cargada = true;
        return valores;
    }

    void Poner_Lugar(qint64 nuevo)
    {
        if (nuevo < 0 || nuevo >= Miembros()) throw Error_Ejecucion(3021);
        Mover(nuevo);
    }

    void Mover(qint64 nuevo)
    {
        Dejar_Edicion();
        Olvidar();
        borrado = false;
        lugar = nuevo;
    }

    qint64 lugar = 0;
    bool borrado = false;

private:
    mutable bool cargada = false;
    mutable std::vector<QVariant> valores;
};

// Rows of one table: the members are row numbers, their values are read as they are visited.
class De_Filas final : public De_Lista {
public:
    De_Filas(std::shared_ptr<Conexion> c, Traduccion t)
        : De_Lista(std::move(c)), consulta(std::move(t))
    {
        lectora = conexion->Preparar(consulta.una_fila);
        Leer_Columnas(lectora, consulta.tabla);
        Leer_Filas();
    }

    void FindFirst(const QString& criterio) override
    {
        const Traduccion t = Traducir(QString::fromUtf8(consulta.texto_filas_antes) + criterio +
                                      QString::fromUtf8(consulta.texto_filas_despues));
        Sentencia s = conexion->Preparar(t.completa.sql);
        s.Ligar(t.completa.valores, {});
        std::vector<qint64> halladas;
        while (s.Paso())
            halladas.push_back(s.Entero(0));
        std::sort(halladas.begin(), halladas.end());
        const auto it = std::find_if(filas.begin(), filas.end(), [&](qint64 f) {
            return std::binary_search(halladas.begin(), halladas.end(), f);
        });
        sin_coincidencia = it == filas.end();
        if (!sin_coincidencia) Mover(it - filas.begin());
    }

    void Requery() override
    {
        Leer_Filas();
        Al_Principio();
    }

protected:
    qint64 Miembros() const override { return qint64(filas.size()); }

    void Cargar(qint64 miembro, std::vector<QVariant>& fila) const override
    {
        lectora.Ligar_Entero(1, filas[std::size_t(miembro)]);
        fila.clear();
        if (lectora.Paso())
            for (int i = 0; i < lectora.Columnas(); ++i)
                fila.push_back(lectora.Valor(i));
        lectora.Reiniciar();
        if (fila.empty()) throw Error_Ejecucion(3167);
    }

    qint64 Numero_De_Fila() const override
    {
        Fila();
        return filas[std::size_t(lugar)];
    }

    QString Tabla_Editable() const override { return consulta.tabla; }

    // A new row is a member, behind the others.
    void Tras_Alta(qint64 fila) override { filas.push_back(fila); }
    void Tras_Edicion() override { Olvidar(); }

    void Tras_Borrado() override
    {
        filas.erase(filas.begin() + lugar);
        borrado = true;
        Olvidar();
    }

private:
    void Leer_Filas()
    {
        filas.clear();
        Sentencia s = conexion->Preparar(consulta.filas.sql);
        s.Ligar(consulta.filas.valores, {});
        while (s.Paso())
            filas.push_back(s.Entero(0));
    }

    Traduccion consulta;
    std::vector<qint64> filas;
    mutable Sentencia lectora; // the row of a number, kept prepared while the set lives
};

// Rows that aren't a table's, or must not change: their values are kept as they were.
class De_Memoria final : public De_Lista {
public:
    De_Memoria(std::shared_ptr<Conexion> c, Sentencia_Sql t)
        : De_Lista(std::move(c)), consulta(std::move(t))
    {
        Leer_Filas();
    }

    void FindFirst(const QString&) override { throw Error_Ejecucion(3251); }

    void Requery() override
    {
        Leer_Filas();
        Al_Principio();
    }

protected:
    qint64 Miembros() const override { return filas.Cuenta(); }

    void Cargar(qint64 miembro, std::vector<QVariant>& fila) const override
    {
        fila = filas.Fila(miembro);
    }

    qint64 Numero_De_Fila() const override { throw Error_Ejecucion(3251); }
    QString Tabla_Editable() const override { throw Error_Ejecucion(3251); }
    void Tras_Alta(qint64) override {}
    void Tras_Edicion() override {}
    void Tras_Borrado() override {}

private:
    void Leer_Filas()
    {
        filas.Vaciar();
        Sentencia s = conexion->Preparar(consulta.sql);
        s.Ligar(consulta.valores, {});
        Leer_Columnas(s, QString());
        while (s.Paso())
            filas.Anadir(s);
    }

    Sentencia_Sql consulta;
    Filas_Memoria filas;
};

} // namespace

std::unique_ptr<Conjunto_Registros::Datos>
Conjunto_De_Consulta(std::shared_ptr<Conexion> conexion, const QString& sql, Tipo_Conjunto tipo)
{
    Traduccion t = Traducir(sql);
    if (t.de_una_tabla && tipo == Tipo_Conjunto::Dinamico) {
        // An order by a name that the list of columns gives can't be asked of the rows alone.
        bool por_filas = true;
        try {
            conexion->Preparar(t.filas.sql);
        } catch (const Error_Ejecucion&) {
            por_filas = false;
        }
        if (por_filas) return std::make_unique<De_Filas>(std::move(conexion), std::move(t));
    }
    return std::make_unique<De_Memoria>(std::move(conexion), std::move(t.completa));
}

#pragma once

#include "core/jet/Base.h"
#include "core/jet/Conexion.h"
#include "core/jet/Esquema.h"

#include <memory>
#include <optional>
#include <QHash>
#include <vector>

/// What every kind of recordset has in common: the columns, the current row's values, the row being
/// added or edited. The kinds say how rows are found.
class Conjunto_Registros::Datos {
public:
    explicit Datos(std::shared_ptr<Conexion> c) : conexion(std::move(c)) {}
    virtual ~Datos() = default;
    Datos(const Datos&) = delete;
    Datos& operator=(const Datos&) = delete;

    virtual void Index(const QString& nombre);
    virtual void Seek(const QVariantList& claves);
    virtual void FindFirst(const QString& criterio) = 0;
    virtual bool BOF() const = 0;
    virtual bool EOF_() const = 0;
    virtual void Primera() = 0;
    virtual void Ultima() = 0;
    virtual void Siguiente() = 0;
    virtual void Anterior() = 0;
    virtual qint64 Cuenta() const = 0;
    virtual qint64 Posicion() const = 0;
    virtual void Ir_A(qint64 posicion) = 0;
    virtual void Requery() = 0;

    void AddNew();
    void Edit();
    void Poner(const QString& campo, const QVariant& valor);
    void Update();
    void CancelUpdate();
    virtual void Delete();

    const QVariant& Valor(const QString& campo) const;
    QStringList Columnas() const;

    bool sin_coincidencia = true;

protected:
    struct Columna {
        QString nombre; // alone, or with its table when it stands twice
        QString origen; // column of the base table; empty for one that can't be written
    };

    /// Takes the columns of a prepared query, from the n-th; those of `tabla` can be written.
    void Leer_Columnas(const Sentencia& s, const QString& tabla, int primera = 0);
    /// Values of the current row. @throws Error_Ejecucion 3021 without one, 3167 when it is gone
    virtual const std::vector<QVariant>& Fila() const = 0;
    /// Row number in the base table of the current row. @throws Error_Ejecucion 3251 when the set
    /// can't be edited, 3021 without a row
    virtual qint64 Numero_De_Fila() const = 0;
    /// Base table of a set that can be edited. @throws Error_Ejecucion 3251
    virtual QString Tabla_Editable() const = 0;
    virtual void Tras_Alta(qint64 fila) = 0;
    virtual void Tras_Edicion() = 0;
    virtual void Tras_Borrado() = 0;
    /// A move gives up what was being typed.
    void Dejar_Edicion() { edicion = Edicion::Ninguna; }
    int Lugar(const QString& campo) const;

    std::shared_ptr<Conexion> conexion;

private:
    enum class Edicion { Ninguna, Alta, Cambio };

    void Insertar();
    void Cambiar();

    std::vector<Columna> columnas;
    // By lower case, and as asked for; -1 for a name that stands twice.
    mutable QHash<QString, int> lugares;
    Edicion edicion = Edicion::Ninguna;
    std::vector<QVariant> nueva;
    std::vector<bool> puesta;
};

std::unique_ptr<Conjunto_Registros::Datos> Conjunto_De_Tabla(std::shared_ptr<Conexion> conexion,
                                                             const Esquema::Tabla& tabla);
std::unique_ptr<Conjunto_Registros::Datos>
Conjunto_De_Consulta(std::shared_ptr<Conexion> conexion, const QString& sql, Tipo_Conjunto tipo);

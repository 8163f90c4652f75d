#include "core/ModEstTotal.h"
#include "core/Sucesos.h"
#include "core/Texto_SQL.h"
#include "session/Decodificador.h"

#include <algorithm>
#include <climits>
#include <QHash>

namespace {

// No record is wider: what a damaged row holds beyond it adds up without an overflow.
constexpr qint64 MAX_DIGITOS = 32767;

using Clave = std::pair<QString, QString>;

Fila_Campo Leer_Fila(const Conjunto_Registros& campos)
{
    Fila_Campo f;
    f.maquina = campos.Texto("Maquina");
    f.id = campos.Texto("ID");
    f.campo = campos.Texto("Campo");
    f.orden = int(std::clamp<qint64>(campos.Entero("Orden"), INT_MIN, INT_MAX));
    f.digitos = int(std::clamp(campos.Entero("Digitos"), -MAX_DIGITOS, MAX_DIGITOS));
    f.posdigit = campos.Texto("PosDigit");
    f.forsalida = campos.Texto("Forsalida");
    f.especial = campos.Texto("Especial");
    f.marcas = campos.Texto("Marcas");
    f.caracter = campos.Texto("Caracter");
    return f;
}

// Rows of `Campos` by family and record kind, as long as nothing was written to the database.
class Cache_Campos {
public:
    static Cache_Campos& Unica()
    {
        static Cache_Campos cache;
        return cache;
    }

    Filas_Campo Pedir(Base& bd, const QString& maquina, const QString& id)
    {
        if (const quint64 version = bd.Version(); version != leida) {
            filas.clear();
            leida = version;
        }
        Filas_Campo& f = filas[{maquina, id}];
        if (!f) f = Leer(bd, maquina, id);
        return f;
    }

private:
    Cache_Campos()
    {
        QObject::connect(&Sucesos::Unico(), &Sucesos::base_reabierta, [this] {
            filas.clear();
            leida = 0;
        });
    }

    static Filas_Campo Leer(Base& bd, const QString& maquina, const QString& id)
    {
        auto leidas = std::make_shared<std::vector<Fila_Campo>>();
        Conjunto_Registros campos =
            bd.OpenRecordset("SELECT * FROM Campos WHERE Maquina = '" + Doblar(maquina) +
                             "' AND ID = '" + Doblar(id) + "' ORDER BY Orden");
        for (; !campos.Es_EOF(); campos.MoveNext())
            leidas->push_back(Leer_Fila(campos));
        return leidas;
    }

    QHash<Clave, Filas_Campo> filas;
    quint64 leida = 0;
};

} // namespace

Filas_Campo Campos_De(Base& bd, const QString& maquina, const QString& id)
{
    return Cache_Campos::Unica().Pedir(bd, maquina, id);
}

std::optional<Fila_Campo> Buscar_Campo_G(Base& bd, const QString& nombre, const Familia& familia,
                                         int ope)
{
    Conjunto_Registros campos = bd.OpenRecordset("Campos");
    campos.Index("MaqCam");
    campos.Seek({familia.clave, nombre});
    if (campos.NoMatch()) return std::nullopt;
    Fila_Campo campo = Leer_Fila(campos);

    Conjunto_Registros identificadores = bd.OpenRecordset("Identificadores");
    identificadores.Index("PrimaryKey");
    identificadores.Seek({familia.clave, ope, campo.id});
    if (identificadores.NoMatch() || identificadores.Texto("tipo") != u"G") return std::nullopt;
    return campo;
}

int Posicion_Campo(Base& bd, const Familia& familia, const QString& id, int orden)
{
    int posicion = 1;
    for (const Fila_Campo& campo : *Campos_De(bd, familia.clave, id))
        if (campo.orden < orden) posicion += campo.digitos;
    return posicion;
}

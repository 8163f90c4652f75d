#include "session/ModVDatos.h"

#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "core/Texto_SQL.h"
#include "session/Decodificador.h"
#include "session/Desplazamiento.h"
#include "session/Identificador.h"

namespace {

QString SQL_Campos(const QString& maquina, const Familia& familia, const QString& id)
{
    return "SELECT * FROM Campos WHERE Maquina = '" + Doblar(maquina) + "' AND " +
           (familia.serie == Serie::B ? "ID" : "Mid(ID,1,1)") + " = '" + Doblar(id) +
           "' ORDER BY Orden";
}

} // namespace

// A kind of record: what its lines show, and the decoder of these fields.
struct Visor_Registros::Clase {
    Vista_Registro vista;
    std::unique_ptr<Decodificador> decodificador; // null without listed fields
};

Visor_Registros::Visor_Registros(Base& base, const QString& m, int operacion)
    : bd(base), maquina(m), familia(Familia_De(m)), ope(operacion), version(base.Version())
{
}

Visor_Registros::~Visor_Registros() = default;

Visor_Registros::Clase& Visor_Registros::Pedir(QStringView id)
{
    const auto vista = clases.find(id);
    if (vista != clases.end()) return *vista->second;
    auto clase = std::make_unique<Clase>();
    QStringList& nombres = clase->vista.nombres;
    Conjunto_Registros campos = bd.OpenRecordset(SQL_Campos(maquina, familia, id.toString()));
    for (; !campos.Es_EOF(); campos.MoveNext())
        if (campos.Texto("Marcas") != u"NL") nombres << campos.Texto("Campo");
    if (!nombres.isEmpty()) {
        Quitar_Desplazamientos();
        clase->decodificador = std::make_unique<Decodificador>(bd, maquina, ope, nombres);
        clase->vista.con_botones = Operacion(ope) != Operacion::Puntos;
    }
    return *clases.emplace(id.toString(), std::move(clase)).first->second;
}

const Vista_Registro* Visor_Registros::Mirar(QStringView datos)
{
    Clase& clase = Pedir(Id_Del_Visor(datos, familia, ope));
    if (!clase.decodificador) return nullptr;
    clase.vista.valores = QStringList(clase.vista.nombres.size(), QString());
    clase.decodificador->Linea(datos, clase.vista.valores);
    return &clase.vista;
}

std::optional<Vista_Registro> Visor_Registros::Ver(const QString& datos, const QString& punto)
{
    if (const quint64 ahora = bd.Version(); ahora != version) {
        clases.clear();
        version = ahora;
    }
    const Vista_Registro* const vista = Mirar(datos);
    if (!vista) return std::nullopt;
    Quitar_Desplazamientos();
    Vista_Registro con_punto = *vista;
    con_punto.punto = punto;
    return con_punto;
}

std::optional<Vista_Registro> Ver_Registro(const QString& maquina, int ope, const QString& descr,
                                           const QString& datos, const QString& punto)
{
    Q_UNUSED(descr)
    return Visor_Registros(*Base_Datos, maquina, ope).Ver(datos, punto);
}

QList<Linea_Rejilla> Llenar_Rejilla(const QStringList& nombres, const QStringList& valores)
{
    QList<Linea_Rejilla> lineas;
    for (qsizetype i = 0; i < nombres.size(); ++i) {
        const QString valor = valores.value(i);
        lineas.append({nombres[i], valor.isEmpty() ? QStringLiteral("--") : valor});
    }
    return lineas;
}

void Avisar_Fin_De_Datos()
{
    Interfaz_Actual().Mensaje("Fin de Datos.", Icono::Informacion);
}

#include "session/Lista_Sesion.h"

#include "core/Familia.h"
#include "session/Identificador.h"

#include <algorithm>
#include <limits>

namespace {

constexpr qint64 LINEAS_POR_PAGINA = 256;
constexpr int PAGINAS_EN_MEMORIA = 16;
// A stretch is as long as what is known already, but takes no time that a user would feel.
constexpr qint64 MAX_TRAMO = 64 * LINEAS_POR_PAGINA;

constexpr int SECUENCIA = 0, FILA = 1, PUNTO = 2, DATOS = 3, DATOSG = 4;

} // namespace

Lista_Sesion::Lista_Sesion(std::shared_ptr<Base> base, const Sesion_Elegida& elegida)
    : bd(std::move(base)), sesion(elegida), sin_clases(!Con_Descripcion(elegida)),
      leidas(PAGINAS_EN_MEMORIA)
{
    ultimo.secuencia = std::numeric_limits<qint64>::min();
}

Recorrido Lista_Sesion::Desde(const Lugar& lugar) const
{
    return bd->Recorrer("SELECT Secuencia,rowid,Punto,Datos,DatosG FROM Registros WHERE ID = ? AND "
                        "(Secuencia,rowid) > (?,?) ORDER BY Secuencia",
                        {sesion.id, lugar.secuencia, lugar.fila});
}

// The words of a line's kind; nothing when the operation doesn't have the kind.
std::optional<QString> Lista_Sesion::Descripcion(QStringView datos)
{
    if (sin_clases) return QString();
    const QString id = Id_Del_Visor(datos, Familia_De(sesion.maquina), sesion.ope).toString();
    const auto vista = descripciones.constFind(id);
    if (vista != descripciones.constEnd()) return *vista;
    return *descripciones.insert(id, Descripcion_De(*bd, sesion, id));
}

qint64 Lista_Sesion::Buscar_Mas()
{
    if (acabada) return 0;
    const qint64 antes = conocidas;
    const qint64 tramo = std::clamp(conocidas, LINEAS_POR_PAGINA, MAX_TRAMO);
    QString datos;
    Recorrido lineas = Desde(ultimo);
    while (conocidas < antes + tramo) {
        if (!lineas.Siguiente()) {
            acabada = true;
            break;
        }
        lineas.Texto(DATOS, datos);
        const Lugar anterior =
            std::exchange(ultimo, {lineas.Entero(SECUENCIA), lineas.Entero(FILA)});
        if (!Descripcion(datos)) continue;
        if (conocidas++ % LINEAS_POR_PAGINA == 0) paginas.push_back(anterior);
    }
    // The last page may have been read when it was shorter.
    if (conocidas > antes && antes > 0) leidas.remove((antes - 1) / LINEAS_POR_PAGINA);
    return conocidas - antes;
}

bool Lista_Sesion::Alcanzar(qint64 fila)
{
    while (fila >= conocidas && !acabada)
        Buscar_Mas();
    return fila < conocidas;
}

const Lista_Sesion::Pagina& Lista_Sesion::Pedir_Pagina(qint64 numero)
{
    if (const Pagina* const leida = leidas.object(numero)) return *leida;
    auto pagina = std::make_unique<Pagina>();
    Recorrido lineas = Desde(paginas[std::size_t(numero)]);
    while (qint64(pagina->size()) < LINEAS_POR_PAGINA && lineas.Siguiente()) {
        QString datos = lineas.Texto(DATOS);
        auto descr = Descripcion(datos);
        if (!descr) continue;
        pagina->push_back(
            {lineas.Texto(PUNTO), std::move(*descr), std::move(datos), lineas.Texto(DATOSG)});
    }
    const Pagina& guardada = *pagina;
    leidas.insert(numero, pagina.release());
    return guardada;
}

Linea_De_Sesion Lista_Sesion::Linea(qint64 fila)
{
    if (fila < 0 || fila >= conocidas) return {};
    const Pagina& pagina = Pedir_Pagina(fila / LINEAS_POR_PAGINA);
    const auto lugar = std::size_t(fila % LINEAS_POR_PAGINA);
    return lugar < pagina.size() ? pagina[lugar] : Linea_De_Sesion();
}

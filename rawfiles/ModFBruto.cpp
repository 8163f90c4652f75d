#include "rawfiles/ModFBruto.h"

#include "core/ModEstTotal.h"
#include "core/Perfil.h"
#include "rawfiles/Salidas_Brutas.h"
#include "session/Filtro_Extensiones.h"

namespace {

const QString SECCION = QStringLiteral("BRUTO");
const QString GENERALES = QStringLiteral("GENERALES");
const QString SI = QStringLiteral("SI");
const QString NO = QStringLiteral("NO");

QString Ini()
{
    return En_Instalacion(QStringLiteral("EstTotal.ini"));
}

} // namespace

QString Filtro_Bruto(const Sesion_Elegida& sesion)
{
    QString filtro = Filtro_Extensiones(sesion.maquina, sesion.ope, QStringLiteral("D"));
    if (filtro.isNull()) return filtro;
    if (Familia_De(sesion.maquina).hd6_propio) return filtro;
    const QString bruto = QStringLiteral("Formato en Bruto (*.*)|*.*");
    return filtro.isEmpty() ? bruto : filtro + u'|' + bruto;
}

QStringList Patrones_Brutos(const Sesion_Elegida& sesion)
{
    const QString filtro = Filtro_Bruto(sesion);
    QStringList patrones;
    for (qint64 n = 2; n <= Contar_Trozos(filtro, QStringLiteral("|")); n += 2)
        patrones << Trozo(n, filtro, u'|');
    return patrones;
}

void Exportar_Fichero_Bruto(const Sesion_Elegida& sesion)
{
    const QString filtro = Filtro_Bruto(sesion);
    if (filtro.isNull()) return;
    // An open-style dialog on purpose: it doesn't ask before a file is written over.
    const auto elegido = [&] {
        for (;;) {
            auto e = Interfaz_Actual().Pedir_Fichero(
                {.titulo = QStringLiteral("Exportar %1 a Fichero").arg(sesion.wope),
                 .filtro = filtro,
                 .carpeta = Ruta_Aplicacion});
            if (!e || !e->nombre.isEmpty()) return e;
        }
    }();
    if (!elegido) return;
    Escribir_Bruto({.id = sesion.id,
                    .maquina = sesion.maquina,
                    .patron = Trozo(2 * qint64(elegido->indice_filtro), filtro, u'|'),
                    .fichero = elegido->nombre,
                    .generales = Incluir_Generales(),
                    .temporal = Temporal_Bruto()});
}

bool Incluir_Generales()
{
    return Perfil::Leer(Ini(), SECCION, GENERALES, NO) == SI;
}

void Poner_Incluir_Generales(bool incluir)
{
    try {
        Perfil::Escribir(Ini(), SECCION, GENERALES, incluir ? SI : NO);
    } catch (...) {
        Informe_Error(QStringLiteral("No se pudo guardar la elección"), Error_En_Curso());
    }
}

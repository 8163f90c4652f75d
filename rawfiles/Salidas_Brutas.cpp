#include "rawfiles/Salidas_Brutas.h"

#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "rawfiles/estaciones/Angulos.h"
#include "rawfiles/estaciones/Bronex.h"
#include "rawfiles/estaciones/BronexCOD.h"
#include "rawfiles/estaciones/Cartomap.h"
#include "rawfiles/estaciones/Desplazamientos.h"
#include "rawfiles/Exportar_Datos.h"
#include "rawfiles/Exportar_Nivel_Ign.h"
#include "rawfiles/Exportar_Puntos.h"
#include "rawfiles/Exportar_Ter_Plt.h"
#include "rawfiles/Fichero_Destino.h"
#include "rawfiles/Peticiones_Rawfiles.h"

#include <algorithm>
#include <QFile>
#include <QFileInfo>

namespace {

template <Forma_Bruta FORMA> bool Puntos(const Tarea_Bruta& t, QString& aviso)
{
    Falta_En_Bruto falta;
    if (!Exportar_Puntos(t.id, t.fichero, FORMA, t.generales, falta)) return false;
    aviso = Texto_Falta(falta, t.maquina);
    return true;
}

bool Datos_Serie_B(const Tarea_Bruta& t, QString&)
{
    return Exportar_Datos_Modo(t.id, t.fichero, 1);
}

bool Datos_Nivel(const Tarea_Bruta& t, QString&)
{
    return Exportar_Datos(t.id, t.fichero);
}

bool Nivel_Ign(const Tarea_Bruta& t, QString&)
{
    return Exportar_Nivel_Ign(t.id, t.fichero);
}

// The lines that "*.plt" left, which stay when they could not be converted.
bool Cartomap(const Tarea_Bruta& t, QString&)
{
    if (!Exportar_Cartomap(t.temporal, t.fichero)) return false;
    QFile::remove(t.temporal);
    return true;
}

// A layout of the session itself; lines that waited for another run go.
template <bool (*EXPORTAR)(qint64, const QString&)>
bool Disposicion_De(const Tarea_Bruta& t, QString&)
{
    const bool hecho = EXPORTAR(t.id, t.fichero);
    QFile::remove(t.temporal);
    return hecho;
}

// The lines wait for "*.ctm": the chosen file itself is not written.
bool Plt(const Tarea_Bruta& t, QString& aviso)
{
    QFile::remove(t.temporal);
    if (!Exportar_Ter_Plt(t.id, t.temporal, t.patron)) return false;
    aviso = QStringLiteral("Las líneas quedan preparadas para el paso a CARTOMAP (*.ctm)");
    return true;
}

// The end of the two branches that hand the temporary over.
bool Entregar_Temporal(const Tarea_Bruta& t, QString&)
{
    try {
        Fichero_Destino::Comprobar(t.fichero);
        Fichero_Destino::Comprobar_Distinto(t.temporal, t.fichero);
        Ficheros::Copiar(t.temporal, t.fichero);
        QFile::remove(t.temporal);
        return true;
    } catch (...) {
        Informe_Error(QStringLiteral("Se produjo un error al exportar un Fichero"),
                      Error_En_Curso());
        return false;
    }
}

bool Ter(const Tarea_Bruta& t, QString& aviso)
{
    // An empty session writes nothing: what an earlier run left is not its file.
    QFile::remove(t.temporal);
    if (!Exportar_Ter_Plt(t.id, t.temporal, t.patron)) return false;
    return !QFileInfo::exists(t.temporal) || Entregar_Temporal(t, aviso);
}

const QString FINALIZADA = QStringLiteral("Exportación a Fichero Finalizada");

const Salida_Bruta SALIDAS[] = {
    {Serie::A, "*.hd6", Puntos<Forma_Bruta::Maquina>, FINALIZADA},
    {Serie::A, "", Puntos<Forma_Bruta::Lineas>, FINALIZADA},
    {Serie::B, "*.ctm", Cartomap, "Exportación a Fichero CVT finalizada"},
    {Serie::B, "*.top", Disposicion_De<Exportar_Bronex>, ""},
    {Serie::B, "*.ang", Disposicion_De<Exportar_Angulos>, ""},
    {Serie::B, "*.plt", Plt, "Exportación a Fichero PLT finalizada"},
    {Serie::B, "*.hd6", Datos_Serie_B, FINALIZADA},
    {Serie::B, "*.*", Datos_Serie_B, FINALIZADA},
    {Serie::B, "*.lea", Disposicion_De<Exportar_Desplazamientos>, ""},
    {Serie::B, "*.ter", Ter, "Exportación a Fichero CLIP finalizada"},
    {Serie::B, "*.tpc", Disposicion_De<Exportar_BronexCOD>, ""},
    {Serie::B, "", Entregar_Temporal, "Exportación a Fichero finalizada"},
    {Serie::Nivel, "*.txt", Nivel_Ign, FINALIZADA},
    {Serie::Nivel, "", Datos_Nivel, FINALIZADA},
};

} // namespace

std::span<const Salida_Bruta> Salidas_Brutas()
{
    return SALIDAS;
}

const Salida_Bruta* Salida_Bruta_De(const Familia& familia, const QString& patron)
{
    const auto fila = std::ranges::find_if(SALIDAS, [&](const Salida_Bruta& s) {
        return s.serie == familia.serie && (s.patron.isEmpty() || s.patron == patron);
    });
    return fila == std::end(SALIDAS) ? nullptr : fila;
}

bool Escribir_Bruto(const Tarea_Bruta& tarea)
{
    Peticiones_De_Rawfiles().Poner_Aviso(QString());
    const Salida_Bruta* const salida = Salida_Bruta_De(Familia_De(tarea.maquina), tarea.patron);
    QString aviso;
    if (!salida || !salida->escribir(tarea, aviso)) return false;
    if (!salida->cierre.isEmpty()) Interfaz_Actual().Mensaje(salida->cierre, Icono::Informacion);
    Peticiones_De_Rawfiles().Poner_Aviso(aviso);
    return true;
}

QString Temporal_Bruto()
{
    return En_Instalacion(QStringLiteral("Miraldos.$$$"));
}

#include "transfer/enlace/Rescate.h"

#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/plataforma.h"
#include "core/Reloj.h"
#include "core/Sesiones.h"
#include "transfer/Proceso_Recepcion.h"
#include "transfer/Series.h"

#include <algorithm>
#include <QRegularExpression>

namespace {

constexpr int DIAS_RESCATADA = 30;
const QString RESCATADA = QStringLiteral(".rescatada");

// A journal of which a session is being made, or which goes: no download writes it meanwhile.
class Diario_Tomado {
public:
    explicit Diario_Tomado(const QString& ruta) : fichero(ruta)
    {
        if (!fichero.open(QIODevice::ReadOnly)) throw Ficheros::Error_De(fichero);
        if (!plataforma::Marcar_En_Uso(fichero))
            throw Error_Ejecucion(70, "La recepción " + ruta + " está en curso");
    }

private:
    QFile fichero;
};

bool En_Curso(const QString& ruta)
{
    QFile fichero(ruta);
    return fichero.open(QIODevice::ReadOnly) && !plataforma::Marcar_En_Uso(fichero);
}

bool En_Log(const QString& ruta)
{
    return QFileInfo(ruta).canonicalPath() == QFileInfo(En_Instalacion("LOG")).canonicalFilePath();
}

void Barrer_Rescatadas()
{
    const QDateTime limite = Reloj_Actual().Ahora().addDays(-DIAS_RESCATADA);
    const QDir carpeta(En_Instalacion("LOG"));
    for (const QFileInfo& f : carpeta.entryInfoList({"*" + RESCATADA}, QDir::Files))
        if (f.lastModified() < limite) QFile::remove(f.filePath());
}

// The thirty days count from now.
void Apartar(const QString& ruta)
{
    QString apartada = ruta + RESCATADA;
    for (int n = 2; QFile::exists(apartada); ++n)
        apartada = ruta + u'-' + QString::number(n) + RESCATADA;
    QFile fichero(ruta);
    if (fichero.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        fichero.setFileTime(Reloj_Actual().Ahora(), QFileDevice::FileModificationTime);
    fichero.close();
    if (!fichero.rename(apartada))
        Anotar("Rescate",
               "No se puede cambiar el nombre de " + ruta + ": " + fichero.errorString());
}

QStringList Lineas_De(const QString& sesion)
{
    QStringList lineas;
    for (Recorrido r = Base_Datos->Recorrer(
             "SELECT Datos FROM Registros WHERE ID = ? ORDER BY Secuencia", {sesion.toLongLong()});
         r.Siguiente();)
        lineas << r.Texto(0);
    return lineas;
}

// Sessions that a storing of the same reception left without their count: their lines are the
// beginning of one that is whole now.
QStringList Torsos(const Rescate& diario, const QStringList& enteras)
{
    if (!diario.momento.isValid()) return {};
    QStringList torsos, candidatas;
    for (Recorrido r = Base_Datos->Recorrer(
             "SELECT ID FROM Sesiones WHERE Maquina = ? AND OPE = ? AND NPuntos IS NULL AND "
             "Fecha >= ? ORDER BY ID",
             {diario.maquina, diario.operacion, diario.momento});
         r.Siguiente();)
        candidatas << r.Texto(0);
    for (const QString& candidata : std::as_const(candidatas)) {
        if (enteras.contains(candidata)) continue;
        const QStringList comienzo = Lineas_De(candidata);
        if (std::ranges::any_of(enteras, [&](const QString& entera) {
                return Lineas_De(entera).mid(0, comienzo.size()) == comienzo;
            }))
            torsos << candidata;
    }
    return torsos;
}

void Ofrecer_Sustituir(const Rescate& diario, const QStringList& enteras)
{
    for (const QString& torso : Torsos(diario, enteras)) {
        const qsizetype lineas = Lineas_De(torso).size();
        if (Interfaz_Actual().Preguntar(
                QStringLiteral(
                    "La sesión %1 quedó a medias de esta misma recepción (%2 registros), "
                    "¿ Desea eliminarla ?")
                    .arg(torso)
                    .arg(lineas)))
            Eliminar_Sesion(torso.toLongLong());
    }
}

void Comprobar_Origen(const Rescate& diario, const Datos_Recepcion& datos, bool forzar)
{
    if (!diario.maquina.isEmpty() && diario.maquina != datos.maquina)
        throw Error_Ejecucion(5, QStringLiteral("La recepción es de un %1 y no de un %2")
                                     .arg(diario.maquina, datos.maquina));
    if (forzar) return;
    if (!diario.maquina.isEmpty() && diario.operacion != datos.operacion)
        throw Error_Ejecucion(
            5, QStringLiteral("La recepción es de la operación %1 y no de la %2; hay que forzarla")
                   .arg(diario.operacion)
                   .arg(datos.operacion));
    if (diario.fichero.endsWith(RESCATADA))
        throw Error_Ejecucion(5, "La recepción ya se hizo sesión; hay que forzarla");
}

} // namespace

Rescate Leer_Rescate(const QString& fichero)
{
    static const QRegularExpression forma(QStringLiteral(
        "^recepcion_(\\d{8}_\\d{6})_(.+)_(\\d+)(?:-\\d+)?\\.dia(?:(?:-\\d+)?\\.rescatada)?$"));
    const QFileInfo f(fichero);
    Rescate r;
    r.fichero = fichero;
    r.bytes = f.size();
    r.momento = f.lastModified();
    r.en_curso = En_Curso(fichero);
    const auto partes = forma.match(f.fileName());
    if (partes.hasMatch() && Familia_De(partes.captured(2)).serie != Serie::Ninguna) {
        r.momento = QDateTime::fromString(partes.captured(1), "yyyyMMdd_HHmmss");
        r.maquina = partes.captured(2);
        r.operacion = partes.captured(3).toInt();
    }
    return r;
}

QList<Rescate> Rescates()
{
    Barrer_Rescatadas();
    QList<Rescate> lista;
    const QDir carpeta(En_Instalacion("LOG"));
    for (const QFileInfo& f : carpeta.entryInfoList({"*.dia"}, QDir::Files, QDir::Name))
        lista << Leer_Rescate(f.filePath());
    return lista;
}

Contenido_Diario Leer_Contenido(const QString& fichero, const QString& maquina)
{
    const QByteArray bytes = Ficheros::Leer(fichero);
    const Familia& familia = Familia_De(maquina);
    const Serie_En_Linea* const serie = Serie_De(familia);
    if (!serie) return {};
    // A receiver of its own: the journal may be read while a download is under way.
    const std::unique_ptr<Receptor> receptor = serie->receptor();
    for (const char c : bytes)
        if (receptor->Recibir(c).fin) break;
    Contenido_Diario contenido;
    contenido.buffer = receptor->Rescatable();
    contenido.faltas = receptor->Faltas_De_Rescate();
    contenido.registros = contenido.buffer.count(familia.separador_registro);
    contenido.falta = Frase_Faltas(contenido.faltas, serie->unidad);
    return contenido;
}

QString Leer_Diario(const QString& fichero, const QString& maquina)
{
    return Leer_Contenido(fichero, maquina).buffer;
}

Resultado_Recepcion Rescatar(const QString& fichero, Datos_Recepcion datos, bool forzar)
{
    const Rescate diario = Leer_Rescate(fichero);
    Resultado_Recepcion r;
    {
        const Diario_Tomado tomado(fichero);
        Comprobar_Origen(diario, datos, forzar);
        const Contenido_Diario contenido = Leer_Contenido(fichero, datos.maquina);
        datos.buffer = contenido.buffer;
        if (datos.buffer.isEmpty())
            throw Error_Ejecucion(62, "El fichero " + fichero +
                                          " no contiene ningún registro completo");
        r = Procesar_Recepcion(datos);
        r.faltas += contenido.faltas;
        if (!r.guardada || r.error || r.faltas.interrumpida) return r;
        Base_Datos->Sincronizar();
        if (En_Log(fichero) && !fichero.endsWith(RESCATADA)) Apartar(fichero);
    }
    if (!diario.maquina.isEmpty()) Ofrecer_Sustituir(diario, r.sesiones);
    return r;
}

void Quitar_Diario(const QString& fichero)
{
    {
        const Diario_Tomado tomado(fichero);
    }
    QFile f(fichero);
    if (!f.remove()) throw Ficheros::Error_De(f);
}

#include "transfer/enlace/Rescate.h"

#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "transfer/Proceso_Recepcion.h"
#include "transfer/Series.h"

#include <QRegularExpression>

namespace {

// @param terminada  set when the instrument had ended the transmission
QString Leer(const QString& fichero, const QString& maquina, bool& terminada)
{
    const QByteArray bytes = Ficheros::Leer(fichero);
    terminada = false;
    const Serie_En_Linea* const serie = Serie_De(Familia_De(maquina));
    if (!serie) return {};
    // A receiver of its own: the journal may be read while a download is under way.
    const std::unique_ptr<Receptor> receptor = serie->receptor();
    for (const char c : bytes) {
        if (terminada) break;
        terminada = receptor->Recibir(c).fin;
    }
    return terminada ? receptor->Buffer() : receptor->Rescatable();
}

} // namespace

QList<Rescate> Rescates()
{
    static const QRegularExpression forma(
        QStringLiteral("^recepcion_(\\d{8}_\\d{6})_(.+)_(\\d+)(?:-\\d+)?\\.dia$"));
    QList<Rescate> lista;
    const QDir carpeta(En_Instalacion("LOG"));
    for (const QFileInfo& f : carpeta.entryInfoList({"*.dia"}, QDir::Files, QDir::Name)) {
        Rescate r;
        r.fichero = f.filePath();
        r.bytes = f.size();
        r.momento = f.lastModified();
        if (const auto m = forma.match(f.fileName()); m.hasMatch()) {
            r.momento = QDateTime::fromString(m.captured(1), "yyyyMMdd_HHmmss");
            r.maquina = m.captured(2);
            r.operacion = m.captured(3).toInt();
        }
        lista << r;
    }
    return lista;
}

QString Leer_Diario(const QString& fichero, const QString& maquina)
{
    bool terminada = false;
    return Leer(fichero, maquina, terminada);
}

Resultado_Recepcion Rescatar(const QString& fichero, Datos_Recepcion datos)
{
    bool terminada = false;
    datos.buffer = Leer(fichero, datos.maquina, terminada);
    datos.rescatada = true;
    datos.cortada = !terminada;
    if (datos.buffer.isEmpty())
        throw Error_Ejecucion(62,
                              "El fichero " + fichero + " no contiene ningún registro completo");
    Resultado_Recepcion r = Procesar_Recepcion(datos);
    if (r.completa && !r.sesiones.isEmpty() && Base_Datos) {
        Base_Datos->Sincronizar();
        QFile::remove(fichero);
    }
    return r;
}

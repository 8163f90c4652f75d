#include "transfer/Rescate.h"

#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "transfer/Recepcion.h"

#include <QRegularExpression>

namespace {

// @param terminada  set when the instrument had ended the transmission
QString Leer(const QString& fichero, const QString& maquina, bool& terminada)
{
    const QByteArray bytes = Ficheros::Leer(fichero);
    Recepcion = {};
    terminada = false;
    const Salida_Recepcion comm{[](const QByteArray&) {}, [&terminada] { terminada = true; }};
    for (const char c : bytes) {
        if (terminada) break;
        Recibir_Caracter(c, maquina, comm);
    }
    const Estado_Recepcion leido = std::exchange(Recepcion, {});
    if (maquina == u"NV400") return leido.Acumulado;
    // The last record of a stream that broke off may lack its last figures.
    if (!terminada && (maquina == u"KRT300" || maquina == u"PX7"))
        return leido.Buffer.left(qMax<qsizetype>(leido.Buffer.lastIndexOf(u'_'), 0));
    return leido.Buffer;
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
        throw Error_Ejecucion(62, "El fichero " + fichero + " no contiene ningún registro completo");
    Resultado_Recepcion r = Procesar_Recepcion(datos);
    if (r.completa && !r.sesiones.isEmpty() && Base_Datos) {
        Base_Datos->Sincronizar();
        QFile::remove(fichero);
    }
    return r;
}

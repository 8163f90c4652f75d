#include "transfer/enlace/Diario_Recepcion.h"

#include "core/Ficheros.h"
#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/plataforma.h"
#include "transfer/enlace/Receptor.h"

#include <QTemporaryFile>

namespace {

// Less than the half second that is promised: a sync takes its time too.
constexpr int MS_AL_DISCO = 400;
constexpr qsizetype BYTES_POR_ENTREGA = 4096;
const QString EXTENSION = QStringLiteral(".dia");

QString Carpeta()
{
    return En_Instalacion("LOG");
}

// A write that was cut short reports nothing: the disk is full.
QString Motivo(const QFileDevice& fichero)
{
    return fichero.error() == QFileDevice::NoError ? Descripcion_Error(61)
                                                   : Ficheros::Error_De(fichero).descripcion;
}

} // namespace

Diario_Recepcion::Diario_Recepcion(QObject* padre) : QObject(padre)
{
    entrega.setSingleShot(true);
    entrega.setInterval(0);
    connect(&entrega, &QTimer::timeout, this, &Diario_Recepcion::Entregar);
    al_disco.setSingleShot(true);
    al_disco.setInterval(MS_AL_DISCO);
    connect(&al_disco, &QTimer::timeout, this, [this] {
        if (!Al_Disco()) al_disco.start();
    });
}

Diario_Recepcion::~Diario_Recepcion()
{
    Terminar(false);
}

void Diario_Recepcion::Empezar(const QString& m, int o, const QDateTime& t)
{
    Terminar(false);
    maquina = m;
    operacion = o;
    momento = t;
    bytes.clear();
    entregados = 0;
    conservado.clear();
    incompleto.clear();
    empezado = true;
}

void Diario_Recepcion::Anotar_Byte(char c)
{
    if (!empezado) return;
    bytes += c;
    if (c != Control::EOT) con_datos = true;
    if (bytes.size() - entregados >= BYTES_POR_ENTREGA)
        Entregar();
    else if (!entrega.isActive())
        entrega.start();
}

QString Diario_Recepcion::Nombre_En(const QString& carpeta) const
{
    const QString base = QStringLiteral("%1/recepcion_%2_%3_%4")
                             .arg(carpeta, momento.toString("yyyyMMdd_HHmmss"), maquina)
                             .arg(operacion);
    QString nombre = base + EXTENSION;
    for (int n = 2; QFile::exists(nombre); ++n)
        nombre = base + u'-' + QString::number(n) + EXTENSION;
    return nombre;
}

bool Diario_Recepcion::Abrir()
{
    if (fichero.isOpen()) return true;
    QDir().mkpath(Carpeta());
    fichero.setFileName(Nombre_En(Carpeta()));
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::Unbuffered | QIODevice::NewOnly))
        return false;
    plataforma::Marcar_En_Uso(fichero);
    plataforma::Sincronizar_Carpeta(Carpeta());
    return true;
}

void Diario_Recepcion::Poner_Fallo(const QString& motivo)
{
    if (motivo == fallo) return;
    fallo = motivo;
    if (!fallo.isEmpty())
        Anotar("Diario_Recepcion", "No se puede escribir " + fichero.fileName() + ": " + fallo);
    Q_EMIT fallo_cambiado();
}

bool Diario_Recepcion::Entregar()
{
    entrega.stop();
    if (entregados == bytes.size()) return true;
    if (!sin_sincronizar.isValid()) sin_sincronizar.start();
    if (!al_disco.isActive()) al_disco.start();
    bool bien = Abrir();
    if (bien) {
        const qint64 escritos =
            fichero.write(bytes.constData() + entregados, bytes.size() - entregados);
        entregados += qMax<qint64>(escritos, 0);
        bien = entregados == bytes.size();
    }
    Poner_Fallo(bien ? QString() : Motivo(fichero));
    // Bytes that come without a pause leave the timer no turn.
    if (bien && sin_sincronizar.hasExpired(MS_AL_DISCO)) return Al_Disco();
    return bien;
}

bool Diario_Recepcion::Al_Disco()
{
    if (!empezado) return true;
    sin_sincronizar.invalidate();
    if (!Entregar()) return false;
    al_disco.stop();
    sin_sincronizar.invalidate();
    if (!fichero.isOpen() || plataforma::Sincronizar(fichero)) return true;
    // What a disk refuses once it may take for written the next time: all of it goes out again.
    if (fichero.seek(0)) entregados = 0;
    Poner_Fallo(QStringLiteral("el disco no confirma lo escrito"));
    return false;
}

bool Diario_Recepcion::Terminar(bool guardada)
{
    if (!empezado) return true;
    const bool se_queda = !guardada && con_datos;
    const bool bien = !se_queda || Al_Disco();
    entrega.stop();
    al_disco.stop();
    sin_sincronizar.invalidate();
    if (fichero.isOpen()) {
        fichero.close();
        if (!se_queda)
            fichero.remove();
        else if (bien)
            conservado = fichero.fileName();
        else
            incompleto = fichero.fileName();
    }
    fichero.setFileName(QString());
    if (bien) bytes.clear();
    fallo.clear();
    empezado = con_datos = false;
    return bien;
}

QString Diario_Recepcion::Guardar_En(const QString& carpeta)
{
    QString destino = Nombre_En(carpeta);
    Ficheros::Escribir(destino, bytes);
    // What had got as far as LOG is the beginning of the same bytes.
    if (!incompleto.isEmpty()) QFile::remove(std::exchange(incompleto, QString()));
    conservado = destino;
    bytes.clear();
    return destino;
}

QString Diario_Recepcion::Impedimento()
{
    QDir().mkpath(Carpeta());
    QTemporaryFile prueba(Carpeta() + QStringLiteral("/prueba_XXXXXX"));
    const QByteArray bloque(BYTES_POR_ENTREGA, ' ');
    if (prueba.open() && prueba.write(bloque) == bloque.size() && prueba.flush()) return {};
    return Motivo(prueba);
}

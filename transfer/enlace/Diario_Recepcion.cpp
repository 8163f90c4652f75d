#include "transfer/enlace/Diario_Recepcion.h"

#include "core/ModEstTotal.h"
#include "core/ModLOG.h"
#include "core/plataforma.h"
#include "transfer/enlace/Receptor.h"

namespace {

constexpr int MS_AL_DISCO = 400;
const QString EXTENSION = QStringLiteral(".dia");

QString Nombre_Libre(const QString& base)
{
    QString nombre = base + EXTENSION;
    for (int n = 2; QFile::exists(nombre); ++n)
        nombre = base + u'-' + QString::number(n) + EXTENSION;
    return nombre;
}

} // namespace

Diario_Recepcion::Diario_Recepcion(QObject* padre) : QObject(padre)
{
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
    empezado = true;
}

void Diario_Recepcion::Anotar_Byte(char c)
{
    if (!empezado) return;
    pendiente += c;
    if (c != Control::EOT) con_datos = true;
    if (!al_disco.isActive()) al_disco.start();
}

bool Diario_Recepcion::Abrir()
{
    if (fichero.isOpen()) return true;
    const QString carpeta = En_Instalacion("LOG");
    if (!QDir().mkpath(carpeta)) return false;
    fichero.setFileName(Nombre_Libre(QStringLiteral("%1/recepcion_%2_%3_%4")
                                         .arg(carpeta, momento.toString("yyyyMMdd_HHmmss"), maquina)
                                         .arg(operacion)));
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::Unbuffered | QIODevice::NewOnly))
        return false;
    plataforma::Sincronizar_Carpeta(carpeta);
    return true;
}

bool Diario_Recepcion::Al_Disco()
{
    if (pendiente.isEmpty()) return true;
    bool bien = Abrir();
    if (bien) {
        const qint64 escritos = fichero.write(pendiente);
        if (escritos > 0) pendiente.remove(0, escritos);
        bien = plataforma::Sincronizar(fichero) && pendiente.isEmpty();
    }
    if (!bien && !fallo_anotado) {
        fallo_anotado = true;
        Anotar("Diario_Recepcion",
               "No se puede escribir " + fichero.fileName() + ": " + fichero.errorString());
    }
    return bien;
}

void Diario_Recepcion::Terminar(bool guardada)
{
    if (!empezado) return;
    al_disco.stop();
    if (!guardada && con_datos) Al_Disco();
    if (fichero.isOpen()) {
        fichero.close();
        if (guardada || !con_datos) fichero.remove();
    }
    fichero.setFileName(QString());
    pendiente.clear();
    empezado = con_datos = fallo_anotado = false;
}

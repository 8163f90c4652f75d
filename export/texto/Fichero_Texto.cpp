#include "export/texto/Fichero_Texto.h"

#include "core/Ansi.h"
#include "core/Ficheros.h"

#include <QFileInfo>

namespace {

constexpr qsizetype TRAMO = 64 * 1024;

const QString& Comprobado(const QString& ruta)
{
    if (!Es_Nombre_De_Fichero(ruta)) throw Error_Ejecucion::Con(53, ruta);
    if (!QFileInfo(ruta).absoluteDir().exists()) throw Error_Ejecucion::Con(76, ruta);
    return ruta;
}

} // namespace

Fichero_Texto::Fichero_Texto(const QString& ruta)
    : destino(Comprobado(ruta)), fichero(destino.Ruta())
{
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        throw Ficheros::Error_De(fichero);
    pendiente.reserve(TRAMO + 1024);
}

Fichero_Texto::~Fichero_Texto()
{
    // What an error elsewhere leaves behind: as far as it got.
    if (fichero.isOpen()) fichero.write(pendiente);
}

void Fichero_Texto::Linea(QStringView texto)
{
    Agregar(texto);
    Fin_De_Linea();
}

void Fichero_Texto::Agregar(QStringView texto)
{
    Ansi::Agregar_Bytes(pendiente, texto);
}

void Fichero_Texto::Agregar_Bytes(QByteArrayView bytes)
{
    pendiente.append(bytes.data(), bytes.size());
}

void Fichero_Texto::Agregar_Blancos(qsizetype cuantos)
{
    if (cuantos > 0) pendiente.append(cuantos, ' ');
}

void Fichero_Texto::Fin_De_Linea()
{
    pendiente += "\r\n";
    if (pendiente.size() >= TRAMO) Volcar();
}

void Fichero_Texto::Cerrar()
{
    Volcar();
    if (!fichero.flush()) throw Ficheros::Error_De(fichero);
    fichero.close();
    if (fichero.error() != QFileDevice::NoError) throw Ficheros::Error_De(fichero);
    destino.Terminar();
}

void Fichero_Texto::Volcar()
{
    const qint64 escritos = fichero.write(pendiente);
    if (escritos != pendiente.size()) {
        pendiente.clear();
        // A block that was written in part is a full disk that has not said so yet.
        if (fichero.error() == QFileDevice::NoError)
            throw Error_Ejecucion::Con(61, fichero.fileName());
        throw Ficheros::Error_De(fichero);
    }
    pendiente.clear();
}

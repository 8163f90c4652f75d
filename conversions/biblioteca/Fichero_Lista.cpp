#include "conversions/biblioteca/Fichero_Lista.h"

#include "conversions/biblioteca/Conversion.h"
#include "conversions/landxml/Lectores_LandXML.h"
#include "conversions/suelo/Destino.h"
#include "core/Ansi.h"
#include "core/Ficheros.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString& Ruta_Movida()
{
    static QString ruta;
    return ruta;
}

} // namespace

QString Fichero_Lista()
{
    if (!Ruta_Movida().isEmpty()) return Ruta_Movida();
    const QString nombre = QStringLiteral("$$$$.EJE");
#if defined(Q_OS_WIN)
    if (QFileInfo(QStringLiteral("C:/")).isWritable()) return "C:/" + nombre;
#endif
    return QDir(QDir::tempPath()).filePath(nombre);
}

void Mover_Fichero_Lista(const QString& ruta)
{
    Ruta_Movida() = ruta;
}

QByteArray Como_En_Lista(const QString& texto)
{
    QString linea = texto;
    for (QChar& c : linea)
        if (c < u' ') c = u' ';
    return Ansi::A_Bytes(linea);
}

int Listar_En_Fichero(const Peticion_Funcion& p, Informe_Lectura& informe,
                      QStringList (*listar)(QIODevice&))
{
    const QString lista = p.salida.isEmpty() ? Fichero_Lista() : p.salida;
    QByteArray bytes;
    int lineas = 0;
    try {
        if (Destino::Mismo_Fichero(p.entrada, lista)) {
            informe.Fallar(
                {QStringLiteral("El fichero destino debe ser diferente al origen"), 0, lista});
            return 0;
        }
        QFile fichero(p.entrada);
        Conversion::Abrir(fichero);
        const QStringList elecciones = listar(fichero);
        for (const QString& e : elecciones)
            bytes += Como_En_Lista(e) + "\r\n";
        lineas = int(elecciones.size());
    } catch (const Fallo_Conversion& f) {
        informe.Fallar(f);
    } catch (...) {
        informe.Fallar({Error_En_Curso().descripcion, 0, {}});
    }
    try {
        // The temporary folder is everybody's: a link left there must not lead the list elsewhere.
        if (QFileInfo(lista).isSymLink()) QFile::remove(lista);
        Ficheros::Escribir(lista, bytes);
        return lineas;
    } catch (const Error_Ejecucion& e) {
        informe.Fallar({"No se puede escribir la lista: " + e.descripcion, 0, {}});
        return 0;
    }
}

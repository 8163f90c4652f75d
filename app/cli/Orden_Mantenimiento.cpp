#include "app/cli/Instalacion.h"
#include "app/cli/Ordenes_Sesion.h"
#include "core/Configuracion.h"
#include "core/Copias.h"
#include "core/ModEstTotal.h"
#include "core/Sesiones.h"

#include <QDir>
#include <QFileInfo>

int Orden_Borrar(const Contexto& c, const QStringList& palabras)
{
    const int id = Numero_De(Argumentos(palabras, {}).Sueltos(1, 1).first(), "ID");
    const Instalacion instalacion(c);
    return Borrar_Sesion(instalacion.Elegir_Sesion(id)) ? HECHO : RECHAZADO;
}

int Orden_Compactar(const Contexto& c, const QStringList& palabras)
{
    Argumentos(palabras, {}).Sueltos(0, 0);
    const Instalacion instalacion(c);
    const Resultado_Compactacion r = Compactar_BD();
    if (r) return HECHO;
    c.Mensaje(QStringLiteral("No se ha podido compactar la base de datos: (%1) %2")
                  .arg(r.numero)
                  .arg(r.descripcion));
    if (r.Danada()) Copias::Avisar_Base_Danada();
    return RECHAZADO;
}

int Orden_Base(const Contexto& c, const QStringList& palabras)
{
    Argumentos(palabras, {}).Sueltos(0, 0);
    const Interfaz_Consola interfaz(c);
    Poner_Rutas(QDir::cleanPath(QDir(c.dir).absolutePath()));
    c.Linea(Lugar_De_La_Base());
    c.Fila({"Copia", "Fecha", "Sesiones", "Bytes", "Estado"});
    for (const Copias::Copia& copia : Copias::Lista())
        c.Fila({copia.fichero, Basico::Formato_Fecha(copia.momento, "DD/MM/YYYY HH:MM:SS"),
                QString::number(copia.sesiones), QString::number(copia.bytes),
                copia.sana ? "sana" : "dañada"});
    return HECHO;
}

int Orden_Recuperar(const Contexto& c, const QStringList& palabras)
{
    const QStringList sueltas = Argumentos(palabras, {}).Sueltos(0, 1);
    const Interfaz_Consola interfaz(c);
    Poner_Rutas(QDir::cleanPath(QDir(c.dir).absolutePath()));
    QString copia = sueltas.value(0);
    if (copia.isEmpty()) {
        const auto ultima = Copias::Ultima();
        if (!ultima) {
            c.Mensaje("No hay ninguna copia de la que recuperar la base de datos");
            return RECHAZADO;
        }
        copia = ultima->fichero;
    }
    const QString aparte = Copias::Recuperar(copia);
    Base_Datos.reset();
    c.Linea("Recuperada: " + copia);
    if (QFileInfo::exists(aparte)) c.Linea("La de antes: " + aparte);
    return HECHO;
}

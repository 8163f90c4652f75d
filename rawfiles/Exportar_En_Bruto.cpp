#include "rawfiles/Exportar_En_Bruto.h"

#include "core/ModEstTotal.h"
#include "rawfiles/Exportar_Datos.h"
#include "rawfiles/Exportar_Puntos.h"
#include "rawfiles/Fichero_Destino.h"
#include "rawfiles/Lineas_Sesion.h"
#include "rawfiles/Peticiones_Rawfiles.h"

#include <QFile>
#include <QFileInfo>

namespace {

// Asks until the name is a new one or may be replaced.
std::optional<QString> Pedir_Nombre(const Dialogo_Bruto& dialogo)
{
    for (;;) {
        const auto elegido = Interfaz_Actual().Pedir_Fichero(
            {.titulo = QStringLiteral("Introduzca el nombre del Fichero a Exportar"),
             .filtro = dialogo.filtro,
             .indice_filtro = 2,
             .carpeta = Ruta_Aplicacion,
             .guardar = true});
        if (!elegido) return std::nullopt;
        if (elegido->nombre.isEmpty() || !QFileInfo::exists(elegido->nombre) ||
            Interfaz_Actual().Preguntar(
                QStringLiteral("El Fichero existe, ¿ Desea Reemplazarlo ?")))
            return elegido->nombre;
    }
}

// What was to be replaced goes when there is nothing to put in its place.
void Retirar_Si_Vacia(qint64 id, const QString& ruta)
{
    Fichero_Destino::Comprobar(ruta);
    if (!Lineas_Sesion(id).Siguiente()) QFile::remove(ruta);
}

bool Escribir(const Sesion_Elegida& sesion, int opcion, bool generales, const QString& ruta,
              QString& aviso)
{
    Retirar_Si_Vacia(sesion.id, ruta);
    switch (Familia_De(sesion.maquina).serie) {
    case Serie::A: {
        Falta_En_Bruto falta;
        const Forma_Bruta forma = opcion == 0 ? Forma_Bruta::Maquina : Forma_Bruta::Lineas;
        const bool hecho = Exportar_Puntos(sesion.id, ruta, forma, generales, falta);
        aviso = Texto_Falta(falta, sesion.maquina);
        return hecho;
    }
    case Serie::B:
        return Exportar_Datos_Modo(sesion.id, ruta, 1);
    case Serie::Nivel:
        return Exportar_Datos(sesion.id, ruta);
    case Serie::Ninguna:
        break;
    }
    return true;
}

} // namespace

const Dialogo_Bruto& Dialogo_FrmExpBruto()
{
    static const Dialogo_Bruto unico{
        QStringLiteral("Exportar Fichero en Bruto"),
        {QStringLiteral("Formato \"&Lineas\""), QStringLiteral("Formato \"&Máquina\"")},
        QStringLiteral("Todos los archivos (*.*)|*.*|Archivos Formato Bruto (*.HD6)|*.HD6"),
        false,
        [](const Familia& f) { return f.serie != Serie::Nivel; }};
    return unico;
}

const Dialogo_Bruto& Dialogo_FrmExpBrut()
{
    static const Dialogo_Bruto unico{
        QStringLiteral("Exportar Fichero a Disco"),
        {QStringLiteral("Formato \"&Lineas\""), QStringLiteral("Formato HD-6")},
        QStringLiteral("Todos los archivos (*.*)|*.*|Archivos de texto (*.txt)|*.txt|"
                       "Archivos hd6 (*.hd6)|*.hd6"),
        true,
        [](const Familia& f) { return f.hd6_propio; }};
    return unico;
}

void Exportar_En_Bruto(const Dialogo_Bruto& dialogo, const Sesion_Elegida& sesion, int opcion,
                       bool generales, const std::function<void()>& ocultar)
{
    try {
        Peticiones_De_Rawfiles().Poner_Aviso(QString());
        const std::optional<QString> ruta = Pedir_Nombre(dialogo);
        if (!ruta) return;
        QString aviso;
        const bool escrito = !ruta->isEmpty() && Escribir(sesion, opcion, generales, *ruta, aviso);
        ocultar();
        Interfaz_Actual().Dejar_Pasar();
        if (!escrito && !(ruta->isEmpty() && dialogo.cierre_sin_nombre)) return;
        Interfaz_Actual().Mensaje(QStringLiteral("Exportación a Fichero en Bruto Finalizada"),
                                  Icono::Informacion);
        Peticiones_De_Rawfiles().Poner_Aviso(aviso);
    } catch (...) {
        Informe_Error(QStringLiteral("Se produjo un error al exportar el fichero en bruto"),
                      Error_En_Curso());
    }
}

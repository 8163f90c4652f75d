#include "core/Posicion.h"

#include "core/Basico.h"
#include "core/Error_Ejecucion.h"
#include "core/Interfaz.h"
#include "core/ModEstTotal.h"
#include "core/Perfil.h"

namespace {

constexpr int LARGO_VALOR = 50;
constexpr int MAXIMIZADA = 2;

void Informar(const QString& mensaje, const QString& fichero, const Error_Ejecucion& e)
{
    Interfaz_Actual().Mensaje(QStringLiteral("%1%2\r\n(%3)%4")
                                  .arg(mensaje, fichero, QString::number(e.numero), e.descripcion),
                              Icono::Critico);
}

} // namespace

void Leer_Posicion(Posicion_Ventana& v, const QString& fichero, const QString& seccion, int modo)
{
    const auto leer = [&](const char* clave, int defecto) {
        const QString valor = Perfil::Leer(fichero, seccion, QString::fromLatin1(clave),
                                           QString::number(defecto), LARGO_VALOR);
        return Basico::CInt(Basico::Trim(valor));
    };
    try {
        const int estado = leer("state", 0);
        if (estado < 0 || estado > MAXIMIZADA) throw Error_Ejecucion(380);
        v.estado = estado;
        if (estado != 0) return;
        if (modo >= 1) {
            v.top = leer("top", v.top);
            v.left = leer("left", v.left);
        }
        if (modo > 1) {
            v.height = leer("height", v.height);
            v.width = leer("width", v.width);
        }
    } catch (const Error_Ejecucion& e) {
        Informar(QStringLiteral("Se produjo un error al leer del fichero "), fichero, e);
    }
}

void Guardar_Posicion(const Posicion_Ventana& v, const QString& fichero, const QString& seccion,
                      int modo)
{
    QList<Perfil::Entrada> entradas;
    const auto anadir = [&](const QString& clave, int valor) {
        entradas << Perfil::Entrada{seccion, clave, QString::number(valor)};
    };
    anadir(QStringLiteral("state"), v.estado);
    if (v.estado == 0 && modo > 0) {
        anadir(QStringLiteral("top"), v.top);
        anadir(QStringLiteral("left"), v.left);
        if (modo > 1) {
            anadir(QStringLiteral("width"), v.width);
            anadir(QStringLiteral("height"), v.height);
        }
    }
    try {
        Perfil::Escribir_Todas(fichero, entradas);
    } catch (const Error_Ejecucion& e) {
        Informar(QStringLiteral("Se produjo un error al escribir en el fichero "), fichero, e);
    }
}

QString Fichero_Posicion()
{
    return En_Instalacion("Posicion.ini");
}

#include "codes/Mantenimiento_A.h"

#include "codes/Codigos.h"
#include "codes/Ficha_Libreria.h"
#include "codes/Peticiones_Codigos.h"
#include "core/Ayuda.h"
#include "core/ModEstTotal.h"
#include "transfer/Peticiones_Transfer.h"

#include <algorithm>
#include <utility>

namespace {

const Serie_Librerias& Serie_A()
{
    return Librerias_De(Serie::A);
}

// What is typed becomes a code: its first ten characters, blanks behind them being filling.
QString Recortar(const QString& escrito)
{
    return Basico::RTrim(escrito.left(LARGO_CODIGO));
}

// @return false, the box shown, for a text that the instrument doesn't take
bool Admitido(const QString& codigo)
{
    const QString motivo = Motivo_De_Texto(Serie_A(), codigo);
    if (!motivo.isEmpty()) Interfaz_Actual().Mensaje(motivo, Icono::Critico);
    return motivo.isEmpty();
}

// Asks until the code is one, is empty or is given up; the last two are the same.
QString Pedir_Codigo(const QString& titulo, const QString& texto, const QString& inicial = {})
{
    QString propuesta = inicial;
    for (;;) {
        const auto escrito = Interfaz_Actual().Pedir_Texto(titulo, texto, propuesta);
        if (!escrito) return {};
        propuesta = Recortar(*escrito);
        if (propuesta.isEmpty() || Admitido(propuesta)) return propuesta;
    }
}

} // namespace

Mantenimiento_A::Mantenimiento_A() : Mantenimiento_Librerias(Serie::A) {}

QStringList Mantenimiento_A::Nombres() const
{
    QStringList nombres;
    for (const Cabecera_Libreria& l : librerias)
        nombres << l.descripcion;
    return nombres;
}

QString Mantenimiento_A::Tag() const
{
    QStringList claves;
    for (const Cabecera_Libreria& l : librerias)
        claves << l.codigo;
    return claves.join(QChar(SEP_LISTA));
}

void Mantenimiento_A::Leer_Los_Codigos()
{
    Mantenimiento_Librerias::Leer_Los_Codigos();
    cambiado = false;
}

bool Mantenimiento_A::Soltar()
{
    return !cambiado || Interfaz_Actual().Preguntar(
                            "los cambios efectuados no han sido guardados, ¿ Desea Continuar ?");
}

void Mantenimiento_A::Actualizar()
{
    Mantenimiento_Librerias::Actualizar();
    if (esperada.isEmpty() || cambiado) return;
    const bool llegada =
        std::ranges::any_of(librerias, [&](const auto& l) { return l.codigo == esperada; });
    // The key outlives the list, which is read anew.
    if (llegada) Mostrar(std::exchange(esperada, QString()));
}

bool Mantenimiento_A::Hay_Codigo() const
{
    if (!Hay_Libreria()) return false;
    const bool hay = fila >= 0 && fila < codigos.size();
    if (!hay) Interfaz_Actual().Pitar();
    return hay;
}

bool Mantenimiento_A::Cabe_Otro() const
{
    if (!Hay_Libreria()) return false;
    if (codigos.size() < MAX_CODIGOS) return true;
    Interfaz_Actual().Mensaje(
        QStringLiteral("El aparato sólo guarda %1 códigos por librería").arg(MAX_CODIGOS),
        Icono::Exclamacion);
    return false;
}

void Mantenimiento_A::Meter(int lugar, const QString& codigo)
{
    if (codigo.isEmpty()) return;
    codigos.insert(lugar, {.codigo = codigo, .capa = {}});
    fila = lugar;
    cambiado = true;
}

void Mantenimiento_A::Anadir()
{
    if (!Cabe_Otro()) return;
    const QString codigo = Pedir_Codigo("Nuevo Código", "Introduzca el nuevo código");
    Meter(int(codigos.size()), codigo);
}

void Mantenimiento_A::Insertar()
{
    if (!Cabe_Otro()) return;
    const QString codigo = Pedir_Codigo("Insertar Código", "Introduzca código a insertar");
    Meter(qBound(0, fila, int(codigos.size())), codigo);
}

void Mantenimiento_A::Editar_Codigo()
{
    if (!Hay_Codigo()) return;
    const QString codigo =
        Pedir_Codigo("Editar Código", "Introduzca código a Editar", codigos[fila].codigo);
    if (codigo.isEmpty() || codigo == codigos[fila].codigo) return;
    codigos[fila].codigo = codigo;
    cambiado = true;
}

void Mantenimiento_A::Eliminar_Codigo()
{
    if (!Hay_Codigo() || !Interfaz_Actual().Preguntar("¿ Eliminar Código ?")) return;
    codigos.removeAt(fila);
    fila = qMin(fila, int(codigos.size()) - 1);
    cambiado = true;
}

bool Mantenimiento_A::Poner_Codigo(int cual, const QString& texto)
{
    if (cual < 0 || cual >= codigos.size()) return false;
    const QString codigo = Recortar(texto);
    if (codigo == codigos[cual].codigo) return true;
    if (codigo.isEmpty() || !Admitido(codigo)) return false;
    codigos[cual].codigo = codigo;
    cambiado = true;
    return true;
}

void Mantenimiento_A::Ordenar()
{
    if (!Hay_Libreria()) return;
    Lista_De_Codigos ordenados = codigos;
    Ordenar_Codigos(ordenados);
    if (ordenados == codigos) return;
    codigos = ordenados;
    fila = 0;
    cambiado = true;
}

void Mantenimiento_A::Guardar()
{
    if (!Hay_Libreria()) return;
    try {
        if (Guardar_Codigos(*Base_Datos, Serie_A(), Codigo(), codigos))
            cambiado = false;
        else
            Interfaz_Actual().Mensaje("No se puede guardar; la librería '" + Codigo() +
                                          "' ha sido eliminada",
                                      Icono::Exclamacion);
    } catch (...) {
        Informe_Error("Se produjo un error al guardar la librería", Error_En_Curso());
    }
}

void Mantenimiento_A::Recibir()
{
    if (!Sirve_Al_Aparato() ||
        !Interfaz_Actual().Preguntar("¿ Desea recibir la librería de Códigos ?"))
        return;
    const auto clave = Pedir_Clave("Descargar Librería de Códigos");
    if (!clave) return;
    esperada = *clave;
    Paso_Ayuda = 1;
    if (Ayuda_Visible)
        Peticiones_De_Transfer().Mostrar_Pasos("D", QString::number(int(Operacion::Libreria)));
    Peticiones_De_Codigos().Recibir_En_FrmSplash2({Destino::Base, *clave});
}

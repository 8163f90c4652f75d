#include "codes/Ficha_Codigo.h"

#include "codes/Codigos.h"
#include "core/ModEstTotal.h"

Ficha_Codigo::Ficha_Codigo(const QString& libreria_, const std::optional<Codigo_Libreria>& editado)
    : titulo(editado ? QStringLiteral("Editar código") : QStringLiteral("Crear código")),
      entidades(Leer_Entidades(*Base_Datos)), libreria(libreria_), es_nuevo(!editado)
{
    QStringList indices;
    for (const Entidad& e : entidades) {
        if (editado && e.indice == editado->entidad) entidad = int(nombres.size());
        nombres << e.descripcion;
        indices << QString::number(e.indice);
    }
    tag = indices.join(QChar(SEP_LISTA));
    if (!editado) {
        if (!entidades.isEmpty()) entidad = 0;
        return;
    }
    codigo = editado->codigo;
    capa = editado->capa;
    secuencia = editado->secuencia;
}

bool Ficha_Codigo::Aceptar()
{
    Interfaz& interfaz = Interfaz_Actual();
    if (entidad < 0 || entidad >= entidades.size()) {
        interfaz.Mensaje("Debe elegir una entidad", Icono::Exclamacion);
        return false;
    }
    const Codigo_Libreria nuevo{Basico::Trim(codigo), entidades[entidad].indice, Basico::Trim(capa),
                                secuencia};
    if (const QString motivo = Motivo_De_Codigo(Librerias_De(Serie::B), nuevo, entidades);
        !motivo.isEmpty()) {
        interfaz.Mensaje(motivo, Icono::Critico);
        return false;
    }
    try {
        if (Guardar(nuevo)) return true;
        interfaz.Mensaje(es_nuevo
                             ? QStringLiteral("No se puede guardar; la librería ha sido eliminada")
                             : QStringLiteral("No se puede guardar; el código ha sido eliminado"),
                         Icono::Exclamacion);
    } catch (...) {
        Informe_Error("Se produjo un error al guardar el código", Error_En_Curso());
    }
    return false;
}

bool Ficha_Codigo::Guardar(const Codigo_Libreria& nuevo)
{
    if (!es_nuevo) {
        if (!Cambiar_Codigo(*Base_Datos, libreria, nuevo)) return false;
        guardado = secuencia;
        return true;
    }
    if (!Buscar_Libreria(*Base_Datos, Librerias_De(Serie::B), libreria)) return false;
    guardado = Anadir_Codigo(*Base_Datos, libreria, nuevo);
    return true;
}

#include "codes/Mantenimiento_Librerias.h"

#include "codes/Codigos.h"
#include "codes/Ficha_Libreria.h"
#include "codes/Fichero_Libreria.h"
#include "codes/Peticiones_Codigos.h"
#include "core/Ayuda.h"
#include "core/ModEstTotal.h"
#include "transfer/Peticiones_Transfer.h"

#include <algorithm>
#include <QFileInfo>

Mantenimiento_Librerias::Mantenimiento_Librerias(Serie serie_) : serie(Librerias_De(serie_)) {}

Mantenimiento_Librerias::~Mantenimiento_Librerias() = default;

QString Mantenimiento_Librerias::Codigo() const
{
    return librerias.value(indice).codigo;
}

QString Mantenimiento_Librerias::Descripcion() const
{
    return librerias.value(indice).descripcion;
}

void Mantenimiento_Librerias::Cargar()
{
    Mostrar({});
}

bool Mantenimiento_Librerias::Elegir(int entrada)
{
    if (entrada == indice) return true;
    if (!Soltar()) return false;
    indice = entrada >= 0 && entrada < librerias.size() ? entrada : -1;
    Leer_Los_Codigos();
    return true;
}

bool Mantenimiento_Librerias::Listar(const QString& libreria)
{
    librerias = Listar_Librerias(*Base_Datos, serie);
    const auto hallada = std::ranges::find(librerias, libreria, &Cabecera_Libreria::codigo);
    const bool esta = hallada != librerias.end();
    indice = esta ? int(hallada - librerias.begin()) : librerias.isEmpty() ? -1 : 0;
    return esta;
}

void Mantenimiento_Librerias::Mostrar(const QString& libreria)
{
    Listar(libreria);
    Leer_Los_Codigos();
}

void Mantenimiento_Librerias::Actualizar()
{
    const int elegida = fila;
    const bool sigue = Listar(Codigo());
    if (!sigue || !Cambiado()) Leer_Los_Codigos();
    if (sigue) fila = qMin(elegida, int(codigos.size()) - 1);
}

void Mantenimiento_Librerias::Leer_Los_Codigos()
{
    codigos = indice < 0 ? Lista_De_Codigos() : Leer_Codigos(*Base_Datos, serie, Codigo());
    fila = codigos.isEmpty() ? -1 : 0;
}

bool Mantenimiento_Librerias::Hay_Libreria() const
{
    if (indice < 0) Interfaz_Actual().Pitar();
    return indice >= 0;
}

void Mantenimiento_Librerias::Con_Ficha(const std::optional<Cabecera_Libreria>& editada)
{
    Ficha_Libreria ficha(serie.serie, editada);
    Peticiones_De_Codigos().Mostrar_Ficha(ficha);
    if (ficha.Guardada().isEmpty()) return;
    if (editada)
        Actualizar();
    else
        Mostrar(ficha.Guardada());
}

void Mantenimiento_Librerias::Nueva()
{
    if (Soltar()) Con_Ficha({});
}

void Mantenimiento_Librerias::Editar()
{
    if (Hay_Libreria()) Con_Ficha(librerias[indice]);
}

void Mantenimiento_Librerias::Eliminar()
{
    if (Hay_Libreria() && Borrar_Libreria(serie, Codigo())) Cargar();
}

std::optional<QString> Mantenimiento_Librerias::Pedir_Clave(const QString& titulo,
                                                            const QString& inicial) const
{
    QString texto = QStringLiteral("Introduzca el nuevo código de la librería");
    QString propuesta = inicial.left(serie.ancho_codigo);
    for (;;) {
        const auto escrito = Interfaz_Actual().Pedir_Texto(titulo, texto, propuesta);
        if (!escrito) return std::nullopt;
        QString clave = Basico::Trim(escrito->left(serie.ancho_codigo));
        if (clave.isEmpty()) return std::nullopt;
        if (!Buscar_Libreria(*Base_Datos, serie, clave)) return clave;
        texto = QString::fromUtf16(CODIGO_EXISTE);
        propuesta = clave;
    }
}

void Mantenimiento_Librerias::Guardar_Nueva(const QString& clave, const QString& descripcion,
                                            const Lista_De_Codigos& lista)
{
    try {
        Crear_Libreria(*Base_Datos, serie, clave, descripcion.left(serie.ancho_descripcion), lista);
        Mostrar(clave);
    } catch (...) {
        Informe_Error("Se produjo un error al guardar la librería", Error_En_Curso());
    }
}

void Mantenimiento_Librerias::Copiar()
{
    if (!Hay_Libreria() || !Soltar()) return;
    // What was not saved has just been given up, so the copy is one of the stored library.
    const QString original = Codigo();
    if (const auto clave = Pedir_Clave("Copiar Librería de Códigos"))
        Guardar_Nueva(*clave, "Copia de " + Descripcion(),
                      Leer_Codigos(*Base_Datos, serie, original));
}

void Mantenimiento_Librerias::Importar()
{
    if (!Soltar()) return;
    const auto fichero = Interfaz_Actual().Pedir_Fichero(
        {.titulo = QStringLiteral("Importar librería de un Fichero de texto"),
         .filtro = QString::fromUtf16(FILTRO_LIBRERIAS),
         .carpeta = En_Instalacion("ficheros"),
         .extension = QStringLiteral("txt")});
    if (!fichero || fichero->nombre.isEmpty()) return;
    const auto lista = Abrir_Fichero_Libreria(serie, fichero->nombre);
    if (!lista) return;
    const QString nombre = QFileInfo(fichero->nombre).completeBaseName();
    if (const auto clave = Pedir_Clave("Importar Librería de Códigos", nombre))
        Guardar_Nueva(*clave, "Librería '" + *clave + "'", *lista);
}

void Mantenimiento_Librerias::Exportar()
{
    if (!Hay_Libreria()) return;
    const auto fichero = Interfaz_Actual().Pedir_Fichero(
        {.titulo = "Exportar librería '" + Codigo() + "' a Fichero de texto",
         .filtro = QString::fromUtf16(FILTRO_LIBRERIAS),
         .carpeta = En_Instalacion("ficheros"),
         .extension = QStringLiteral("txt"),
         .guardar = true});
    if (fichero && !fichero->nombre.isEmpty()) Exportar_Libreria(serie, codigos, fichero->nombre);
}

bool Mantenimiento_Librerias::Sirve_Al_Aparato() const
{
    if (Familia_Actual().librerias == serie.serie) return true;
    Interfaz_Actual().Mensaje("El modelo " + Nombre_Estacion +
                                  " no admite librerías de códigos de la serie " + serie.letra,
                              Icono::Exclamacion);
    return false;
}

void Mantenimiento_Librerias::Enviar()
{
    Interfaz& interfaz = Interfaz_Actual();
    if (indice < 0 || codigos.isEmpty()) {
        interfaz.Mensaje(
            "No hay ninguna librería seleccionada o \r\nla librería no contiene códigos",
            Icono::Exclamacion);
        return;
    }
    if (!Sirve_Al_Aparato() ||
        !interfaz.Preguntar("¿ Enviar la librería '" + Codigo() + "' a la máquina ?"))
        return;
    try {
        const QString texto = serie.texto_envio(Codigo(), codigos);
        if (texto.isEmpty()) return;
        Paso_Ayuda = 1;
        if (Ayuda_Visible)
            Peticiones_De_Transfer().Mostrar_Pasos("C", QString::number(int(Operacion::Libreria)));
        Peticiones_De_Codigos().Enviar(texto);
    } catch (...) {
        Informe_Error("Se produjo un error al enviar la librería", Error_En_Curso());
    }
}

void Mantenimiento_Librerias::Buscar(const QString& texto, bool siguiente)
{
    if (texto.isEmpty()) return;
    const int hallada = Buscar_Codigo(codigos, texto, fila + (siguiente ? 1 : 0));
    if (hallada < 0)
        Interfaz_Actual().Pitar();
    else
        fila = hallada;
}

#include "export/Dialogo_Exportar.h"

#include "core/Estado_Global.h"
#include "core/ModEstTotal.h"
#include "core/Perfil.h"
#include "core/Posicion.h"
#include "export/excel/Forma_Excel.h"
#include "export/GuardarN.h"
#include "export/Peticiones_Exportar.h"
#include "formats/ModFormatos.h"
#include "session/Separadores.h"

#include <optional>
#include <QFile>

namespace {

// What each entry of `VersionExcel` writes.
struct Entrada_Version {
    const char16_t* texto;
    std::optional<Version_Excel> forma; // none: what was in force stays
};
constexpr Entrada_Version VERSIONES[] = {
    {u"Excel 3.0", Version_Excel::Excel_3}, {u"Excel 4.0", Version_Excel::Excel_4},
    {u"Excel 95", Version_Excel::Excel_5},  {u"Excel 97", Version_Excel::Excel_8},
    {u"Excel 2000", std::nullopt},
};
constexpr int VERSION_INICIAL = 3;

// Where the check boxes of the dialog stand between two runs.
const QString SECCION = QStringLiteral("EXPORTAR"), CLAVE_NUMEROS = QStringLiteral("numeros");
const QString SI = QStringLiteral("SI"), NO = QStringLiteral("NO");

} // namespace

Peticiones_Exportar& Peticiones_De_Exportar()
{
    return Estado_Global::Unico<Peticiones_Exportar>();
}

QStringList Versiones_De_Libro()
{
    QStringList textos;
    for (const Entrada_Version& entrada : VERSIONES)
        if (entrada.forma) textos << QString::fromUtf16(entrada.texto);
    return textos;
}

Dialogo_Exportar::Dialogo_Exportar(const Trabajo_Exportar& t) : trabajo(t)
{
    for (const Salida_Exportar& salida : Salidas_Exportar()) {
        if (salida.opcion < 0) continue;
        activa << Se_Ofrece(salida, trabajo.formato);
    }
    numeros = Perfil::Leer(Fichero_Posicion(), SECCION, CLAVE_NUMEROS, NO) == SI;
    Tipo_Ficheros_Puntos = Salida_De("DXF")->formatos.contains(trabajo.formato);
    Reset();
    Elegir_Opcion(0);
}

const Salida_Exportar& Dialogo_Exportar::Elegida() const
{
    const Salida_Exportar* const salida = Salida_De_Opcion(opcion);
    return salida ? *salida : *Salida_De("mdb");
}

void Dialogo_Exportar::Reset()
{
    versiones.clear();
    version = -1;
    caracteres.clear();
    caracter = -1;
    caracter_visible = version_visible = false;
    fichero.clear();
}

void Dialogo_Exportar::Agregar_caracteres()
{
    caracteres.clear();
    for (const Fila_Separador& separador : Separadores())
        caracteres << separador.texto;
    tag_caracteres = Tag_Separador();
    caracter = 0;
}

void Dialogo_Exportar::Agregar_versiones()
{
    versiones.clear();
    for (const Entrada_Version& entrada : VERSIONES)
        versiones << QString::fromUtf16(entrada.texto);
    Elegir_Version(VERSION_INICIAL);
}

void Dialogo_Exportar::Elegir_Opcion(int indice)
{
    opcion = indice;
    caracter_visible = Elegida().pide_separador;
    version_visible = Elegida().pide_version;
    if (caracter_visible) Agregar_caracteres();
    if (version_visible) Agregar_versiones();
    fichero.clear();
    elegir_activo = true;
}

void Dialogo_Exportar::Elegir_Version(int indice)
{
    version = indice;
    if (indice < 0 || indice >= int(std::size(VERSIONES))) return;
    const auto forma = VERSIONES[indice].forma;
    if (forma) version_excel = QString::fromUtf16(Forma_De(*forma).nombre);
}

bool Dialogo_Exportar::Proponer_Fichero(const QString& nombre)
{
    if (QFile::exists(nombre) &&
        !Interfaz_Actual().Preguntar("El fichero ya existe, ¿ Desea reemplazarlo?",
                                     Icono::Exclamacion))
        return false;
    fichero = nombre;
    return true;
}

void Dialogo_Exportar::Elegir_Fichero()
{
    const Salida_Exportar& salida = Elegida();
    const QString patron = "*." + salida.extension;
    Peticion_Fichero peticion;
    peticion.titulo = "Guardar como ...";
    peticion.filtro = "Archivos " + salida.etiqueta + '(' + patron + ")|" + patron +
                      "| Todos los Archivos (*.*)|*.*";
    peticion.carpeta = En_Instalacion("ficheros");
    peticion.guardar = true;
    for (;;) {
        const auto elegido = Interfaz_Actual().Pedir_Fichero(peticion);
        if (!elegido || elegido->nombre.isEmpty() || Proponer_Fichero(elegido->nombre)) return;
    }
}

Opciones_Exportar Dialogo_Exportar::Opciones() const
{
    Opciones_Exportar opciones;
    opciones.nivel = trabajo.nivel;
    if (caracter_visible) {
        const QString separador = Trozo(caracter + 1, tag_caracteres, SEP_LISTA);
        opciones.texto = Opciones_Texto{separador, Incluir_Cabeceras}.Unir();
    }
    if (version_visible) {
        opciones.texto = Opciones_Libro{Incluir_Cabeceras, version_excel}.Unir();
        opciones.numeros = numeros;
    }
    return opciones;
}

void Dialogo_Exportar::Marcar_Numeros(bool si)
{
    numeros = si;
    try {
        Perfil::Escribir(Fichero_Posicion(), SECCION, CLAVE_NUMEROS, numeros ? SI : NO);
    } catch (...) {
        Informe_Error("Se produjo un error al escribir en el fichero " + Fichero_Posicion(),
                      Error_En_Curso());
    }
}

bool Dialogo_Exportar::Exportar(Avance_Exportar& avance)
{
    Interfaz& interfaz = Interfaz_Actual();
    if (fichero.isEmpty()) {
        interfaz.Pitar();
        return false;
    }
    const Salida_Exportar& salida = Elegida();
    if (salida.dialogo) {
        Trabajo_Exportar con_fichero = trabajo;
        con_fichero.fichero = fichero;
        if (const Abrir_Salida& abrir = salida.dialogo()) abrir(con_fichero);
        return false;
    }
    bool hecho = false;
    {
        const Cursor_De_Espera espera;
        interfaz.Repintar();
        hecho = Exportar_Sesion(trabajo.id, trabajo.maquina, trabajo.ope, salida.tipo,
                                trabajo.formato, fichero, Opciones(), avance);
    }
    if (salida.se_muestra)
        interfaz.Ver_Texto(fichero, Modo_En_Vigor().letra_fija);
    else if (hecho)
        interfaz.Mensaje("Sesión Exportada", Icono::Informacion);
    avance.Etiqueta({});
    return hecho;
}

#include "export/Dialogo_Exportar.h"

#include "core/Estado_Global.h"
#include "core/ModEstTotal.h"
#include "export/Peticiones_Exportar.h"
#include "formats/ModFormatos.h"

#include <QFile>

namespace {

// What each option writes: label and extension of its files, kind of the engine.
struct Clase_Fichero {
    const char* etiqueta;
    const char* extension;
    const char* tipo;
};
constexpr Clase_Fichero CLASES[] = {
    {"Texto", "Txt", "TxF"}, {"Texto", "Txt", "Txt"},  {"Excel", "xls", "Xls"},
    {"Autocad", "dxf", ""},  {"Access", "mdb", "mdb"},
};

const Clase_Fichero& Clase_De(int opcion)
{
    return CLASES[opcion >= 0 && opcion < Dialogo_Exportar::OPCIONES ? opcion
                                                                     : Dialogo_Exportar::ACCESS];
}

// Only these formats hold what a drawing needs; their names are the one thing that tells.
bool Es_Formato_De_Dibujo(const QString& formato)
{
    return QStringList{"NXYZ", "NXYZCOD", "NPXYZ", "NXYZREPLANTEO"}.contains(formato);
}

} // namespace

Peticiones_Exportar& Peticiones_De_Exportar()
{
    return Estado_Global::Unico<Peticiones_Exportar>();
}

Dialogo_Exportar::Dialogo_Exportar(const Trabajo_Exportar& t) : trabajo(t)
{
    for (int i = 0; i < OPCIONES; ++i)
        activa[std::size_t(i)] = Escritor_De(Clase_De(i).tipo) != nullptr;
    Tipo_Ficheros_Puntos = Es_Formato_De_Dibujo(trabajo.formato);
    activa[DXF] = Tipo_Ficheros_Puntos && Peticiones_De_Exportar().Abrir_DXF;
    Reset();
    Elegir_Opcion(FORMATEADO);
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
    caracteres = QStringList{" Espacio ( )", " Coma (,)", " Tabulación (|)"};
    tag_caracteres = QStringList{" ", ",", "\t"}.join(QChar(SEP_LISTA));
    caracter = 0;
}

void Dialogo_Exportar::Agregar_versiones()
{
    versiones = QStringList{"Excel 3.0", "Excel 4.0", "Excel 95", "Excel 97", "Excel 2000"};
    version = 3;
    version_excel = "Excel 8.0";
}

void Dialogo_Exportar::Elegir_Opcion(int indice)
{
    opcion = indice;
    caracter_visible = indice == FORMATEADO || indice == TEXTO;
    version_visible = indice == EXCEL;
    if (caracter_visible) Agregar_caracteres();
    if (version_visible) Agregar_versiones();
    fichero.clear();
    elegir_activo = true;
}

void Dialogo_Exportar::Elegir_Version(int indice)
{
    static const QStringList conexiones = {"Excel 3.0", "Excel 4.0", "Excel 5.0", "Excel 8.0"};
    version = indice;
    if (indice >= 0 && indice < conexiones.size()) version_excel = conexiones[indice];
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
    const Clase_Fichero& clase = Clase_De(opcion);
    const QString patron = QString("*.") + clase.extension;
    Peticion_Fichero peticion;
    peticion.titulo = "Guardar como ...";
    peticion.filtro = QString("Archivos ") + clase.etiqueta + '(' + patron + ")|" + patron +
                      "| Todos los Archivos (*.*)|*.*";
    peticion.carpeta = En_Instalacion("ficheros");
    peticion.guardar = true;
    for (;;) {
        const auto elegido = Interfaz_Actual().Pedir_Fichero(peticion);
        if (!elegido || elegido->nombre.isEmpty() || Proponer_Fichero(elegido->nombre)) return;
    }
}

QString Dialogo_Exportar::Opciones() const
{
    const QString titulos = Incluir_Cabeceras ? "S" : "N";
    if (caracter_visible)
        return Trozo(caracter + 1, tag_caracteres, SEP_LISTA) + QChar(SEP_LISTA) + titulos;
    if (version_visible) return titulos + QChar(SEP_LISTA) + version_excel;
    return {};
}

bool Dialogo_Exportar::Exportar(Avance_Exportar& avance)
{
    Interfaz& interfaz = Interfaz_Actual();
    if (fichero.isEmpty()) {
        interfaz.Pitar();
        return false;
    }
    if (opcion == DXF) {
        if (Peticiones_De_Exportar().Abrir_DXF) Peticiones_De_Exportar().Abrir_DXF(trabajo);
        return false;
    }
    bool hecho = false;
    {
        const Cursor_De_Espera espera;
        interfaz.Repintar();
        hecho = Exportar_Sesion(trabajo.id, trabajo.maquina, trabajo.ope, Clase_De(opcion).tipo,
                                trabajo.formato, fichero, Opciones(), avance);
    }
    if (opcion == FORMATEADO || opcion == TEXTO)
        interfaz.Ver_Texto(fichero, Clave_Estacion == u"NV400");
    else if (hecho)
        interfaz.Mensaje("Sesión Exportada", Icono::Informacion);
    avance.Etiqueta({});
    return hecho;
}

#include "formats/Formato_Nuevo.h"

#include "formats/Peticiones_Formatos.h"

Formato_Nuevo::Formato_Nuevo(const QString& familia, const std::optional<Sesion_Elegida>& s)
    : maquina(familia), sesion(s)
{
    titulo = "Crear formato nuevo";
}

void Formato_Nuevo::Crear()
{
    const Lista_Combo lista =
        Llenar_Combo("SELECT OPE.DesOPE as dOpe,OPE.OPE as NOpe from KRT2,OPE WHERE KRT2.OPE = "
                     "OPE.OPE AND Nombre = '" +
                         maquina + "' AND TIPOPE = 'D' ORDER BY OPE.DesOPE",
                     "dOpe", "NOpe");
    tipos = lista.textos;
    tag_tipos = lista.tag;
    tipo = tipos.isEmpty() ? -1 : 0;
    if (sesion)
        tipo = int(Buscar_Trozo(tag_tipos, QString::number(sesion->ope), QChar(SEP_LISTA))) - 1;
    Actualizar_Datos();
}

int Formato_Nuevo::Operacion() const
{
    if (tipo >= 0) return Trozo(tipo + 1, tag_tipos, SEP_LISTA).toInt();
    return sesion ? sesion->ope : -1;
}

void Formato_Nuevo::Elegir_Tipo(int entrada)
{
    tipo = entrada;
    Actualizar_Datos();
}

void Formato_Nuevo::Escribir_Nombre(const QString& texto)
{
    nombre = texto;
    indice_nombre = -1;
}

void Formato_Nuevo::Elegir_Nombre(int entrada)
{
    indice_nombre = entrada;
    nombre = nombres.value(entrada);
}

void Formato_Nuevo::Actualizar_Datos()
{
    listas.Vaciar();
    Escribir_Nombre({});
    try {
        nombres = Nombres_Formatos(*Base_Datos, maquina);
        Llenar_Listas();
    } catch (...) {
        Informe_Error("Se produjo un error al leer los campos disponibles", Error_En_Curso());
    }
}

void Formato_Nuevo::Llenar_Listas()
{
    if (sesion)
        Sacar_IDs(*Base_Datos, *sesion, true);
    else
        Sacar_Ids_Nuevo(*Base_Datos, maquina, Operacion());
    Ofrecer_Campos(*Base_Datos, maquina, listas, true, Generales::De_La_Familia, Operacion());
}

void Formato_Nuevo::Almacenar(const Formato& formato, bool nuevo)
{
    Guardar_Formato(*Base_Datos, formato, nuevo);
}

bool Formato_Nuevo::Guardar()
{
    if (!Depura(nombre)) return false;
    if (!Hay_Campos()) {
        Interfaz_Actual().Mensaje("No se han seleccionado campos para el formato", Icono::Critico);
        return false;
    }
    Formato formato;
    formato.maquina = maquina;
    formato.nombre = nombre;
    formato.descripcion = descripcion;
    formato.cabeceras = cabeceras;
    formato.modificable = modificable;
    formato.ope = Operacion();
    formato.ids = Cadena_Ids(formato.ope);
    formato.campos = listas.elegidos;
    try {
        Almacenar(formato, indice_nombre < 0);
    } catch (...) {
        Informe_Error("Se produjo un error al guardar el formato", Error_En_Curso());
        return false;
    }
    Incluir_Cabeceras = cabeceras;
    guardado = nombre;
    return true;
}

bool Formato_Nuevo::Aceptar(const std::function<void()>& ocultar)
{
    if (!Guardar()) return false;
    if (!sesion) return true;
    ocultar();
    // The format is stored whatever becomes of the export.
    if (Preparar(maquina) != Paso::Sigue) return true;
    Peticiones_De_Formatos().Abrir_Exportar({sesion->id, maquina, sesion->ope, guardado});
    return true;
}

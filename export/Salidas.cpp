#include "export/Salidas.h"

#include "export/excel/Escritor_Excel.h"
#include "export/Formatear_Datos.h"
#include "export/mdb/Escritor_MDB.h"
#include "export/nivel/Cargar_Nivel.h"
#include "export/nivel/Escritor_Nivel.h"
#include "export/Peticiones_Exportar.h"
#include "export/texto/Escritor_Texto.h"

#include <algorithm>

namespace {

constexpr Modo_Salida MODOS[] = {
    {Serie::A, Formatear_Datos, &Salida_Exportar::escribir, false, false},
    {Serie::B, Formatear_Datos, &Salida_Exportar::escribir, false, false},
    {Serie::Nivel, Cargar_Nivel, &Salida_Exportar::escribir_nivel, true, true},
    {Serie::Ninguna, Formatear_Datos, &Salida_Exportar::escribir, false, false},
};

QList<Salida_Exportar> Hacer_Salidas()
{
    return {
        {.tipo = "TxF",
         .palabra = "txf",
         .opcion = 0,
         .rotulo = "Texto Formateado",
         .etiqueta = "Texto",
         .extension = "Txt",
         .pide_separador = true,
         .se_muestra = true,
         .escribir = Escribir_Texto_Formateado,
         .escribir_nivel = Escribir_Nivel_Texto},
        {.tipo = "Txt",
         .palabra = "txt",
         .opcion = 1,
         .rotulo = "Texto",
         .etiqueta = "Texto",
         .extension = "Txt",
         .pide_separador = true,
         .se_muestra = true,
         .escribir = Escribir_Texto_Separado,
         .escribir_nivel = Escribir_Nivel_Texto},
        {.tipo = "Xls",
         .palabra = "xls",
         .opcion = 2,
         .rotulo = "Ms-Excel",
         .etiqueta = "Excel",
         .extension = "xls",
         .pide_version = true,
         .escribir = Escribir_Excel,
         .escribir_nivel = Escribir_Nivel_Excel},
        // Only these formats hold what a drawing needs; their names are the one thing that tells.
        {.tipo = "DXF",
         .palabra = "dxf",
         .opcion = 3,
         .rotulo = "DXF (Autocad)",
         .etiqueta = "Autocad",
         .extension = "dxf",
         .formatos = {"NXYZ", "NXYZCOD", "NPXYZ", "NXYZREPLANTEO"},
         .dialogo = []() -> const Abrir_Salida& { return Peticiones_De_Exportar().Abrir_DXF; }},
        {.tipo = "mdb",
         .palabra = "mdb",
         .opcion = 4,
         .rotulo = "Access (.mdb)",
         .etiqueta = "Access",
         .extension = "mdb",
         .escribir = Escribir_MDB,
         .escribir_nivel = Escribir_MDB},
        // The format dialogs go straight to it.
        {.tipo = "Papel",
         .palabra = {},
         .rotulo = "Impresión",
         .dialogo = []() -> const Abrir_Salida& {
             return Peticiones_De_Formatos().Abrir_Imprimir;
         }},
    };
}

} // namespace

const QList<Salida_Exportar>& Salidas_Exportar()
{
    static const QList<Salida_Exportar> salidas = Hacer_Salidas();
    return salidas;
}

const Salida_Exportar* Salida_De(const QString& tipo)
{
    for (const Salida_Exportar& salida : Salidas_Exportar())
        if (salida.tipo.compare(tipo, Qt::CaseInsensitive) == 0) return &salida;
    return nullptr;
}

const Salida_Exportar* Salida_De_Opcion(int opcion)
{
    for (const Salida_Exportar& salida : Salidas_Exportar())
        if (salida.opcion == opcion && opcion >= 0) return &salida;
    return nullptr;
}

QList<const Salida_Exportar*> Salidas_Por_Palabra()
{
    QList<const Salida_Exportar*> salidas;
    for (const Salida_Exportar& salida : Salidas_Exportar())
        if (!salida.palabra.isEmpty() && (salida.escribir || salida.escribir_nivel))
            salidas << &salida;
    return salidas;
}

const Modo_Salida& Modo_De(Serie serie)
{
    return *std::ranges::find(MODOS, serie, &Modo_Salida::serie);
}

const Modo_Salida& Modo_En_Vigor()
{
    return Modo_De(Familia_Actual().serie);
}

Escritor Escritor_De(const QString& tipo)
{
    const Salida_Exportar* const salida = Salida_De(tipo);
    return salida ? salida->*Modo_En_Vigor().escritor : nullptr;
}

bool Se_Ofrece(const Salida_Exportar& salida, const QString& formato)
{
    if (!salida.formatos.isEmpty() && !salida.formatos.contains(formato)) return false;
    return salida.dialogo ? bool(salida.dialogo()) : salida.*Modo_En_Vigor().escritor != nullptr;
}

#include "export/impresion/Dialogo_Imprimir.h"

#include "core/Estado_Global.h"
#include "core/Ficheros.h"
#include "core/Ficheros_Propios.h"
#include "core/ModEstTotal.h"
#include "export/Renglon.h"
#include "export/Salidas.h"
#include "formats/ModFormatos.h"

Peticiones_Impresion& Peticiones_De_Impresion()
{
    return Estado_Global::Unico<Peticiones_Impresion>();
}

Dialogo_Imprimir::Dialogo_Imprimir(const Trabajo_Exportar& trabajo,
                                   const Opciones_Exportar& opciones, Avance_Exportar& avance)
    : bd(Base::Abrir(Fichero_MDB)), nombre(trabajo.formato),
      con_marca(Modo_En_Vigor().campos_con_marca)
{
    const Origen_Exportar origen{*bd,         trabajo.id,      trabajo.maquina,
                                 trabajo.ope, trabajo.formato, Cargar_Campos_Exportar(),
                                 opciones,    avance};
    datos = Modo_En_Vigor().formatear(origen);
    parametros.cabeceras = Incluir_Cabeceras;
}

QByteArray Dialogo_Imprimir::Renderizar() const
{
    return Renderiza_Pagina(*bd, datos, parametros, con_marca);
}

QList<Pagina> Dialogo_Imprimir::Paginas(const QByteArray& texto) const
{
    return Cortar_Paginas(Leer_RTF(texto), Papel::A4(parametros.Apaisada()));
}

QStringList Dialogo_Imprimir::Columnas() const
{
    if (!parametros.columnas.isEmpty()) return parametros.columnas;
    QStringList titulos;
    for (const QString& campo : datos.campos)
        titulos << Titulo_De(campo);
    return titulos;
}

bool Dialogo_Imprimir::Pedir_Trabajo()
{
    const auto dado = Peticiones_De_Impresion().Pedir_Trabajo(ultimo);
    if (!dado) return false;
    ultimo = *dado;
    parametros.trabajo = dado;
    return true;
}

bool Dialogo_Imprimir::Editar_Columnas()
{
    const auto dadas = Peticiones_De_Impresion().Editar_Columnas(Columnas());
    if (!dadas) return false;
    parametros.columnas = *dadas;
    return true;
}

void Dialogo_Imprimir::Comprobar_Anchura() const
{
    if (parametros.anchura <= 0)
        throw Error_Ejecucion(5, "La anchura de página debe ser mayor que cero");
}

Impreso Dialogo_Imprimir::Para_Imprimir() const
{
    return {nombre, Paginas(Renderizar()), parametros.Apaisada()};
}

bool Dialogo_Imprimir::Imprimir() const
{
    try {
        Comprobar_Anchura();
        const Peticiones_Impresion& pide = Peticiones_De_Impresion();
        if (pide.Hay_Impresora()) {
            const Cursor_De_Espera espera;
            pide.Imprimir(Para_Imprimir());
            return true;
        }
        for (;;) {
            const auto elegido =
                Interfaz_Actual().Pedir_Fichero({.titulo = "No hay impresora: guardar como ...",
                                                 .filtro = "Documento PDF (*.pdf)|*.pdf",
                                                 .carpeta = En_Instalacion("ficheros"),
                                                 .extension = "pdf",
                                                 .guardar = true});
            if (!elegido || elegido->nombre.isEmpty()) return false;
            if (QFile::exists(elegido->nombre) &&
                !Interfaz_Actual().Preguntar("El fichero ya existe, ¿ Desea reemplazarlo?",
                                             Icono::Exclamacion))
                continue;
            const Cursor_De_Espera espera;
            Comprobar_Destino(elegido->nombre);
            pide.Guardar_PDF(Para_Imprimir(), elegido->nombre);
            return true;
        }
    } catch (...) {
        Informe_Error("Se produjo un error al imprimir", Error_En_Curso());
        return false;
    }
}

void Dialogo_Imprimir::Guardar(const QString& fichero) const
{
    Comprobar_Anchura();
    Comprobar_Destino(fichero);
    if (fichero.endsWith(u".pdf", Qt::CaseInsensitive))
        Peticiones_De_Impresion().Guardar_PDF(Para_Imprimir(), fichero);
    else
        Ficheros::Escribir(fichero, Renderizar());
}

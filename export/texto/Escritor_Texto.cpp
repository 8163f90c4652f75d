#include "export/texto/Escritor_Texto.h"

#include "export/Filas_Marcadas.h"
#include "export/Renglon.h"
#include "export/texto/Fichero_Texto.h"
#include "export/Trampa_Escritor.h"

#include <algorithm>
#include <utility>

namespace {

constexpr Aviso_De_Fallo SIN_NOMBRE[] = {
    {53, u"Debe especificar un nombre correcto para el Fichero de Salida", Icono::Exclamacion,
     u"Atención"},
};
constexpr Fallos_Escritor DEL_SEPARADO = {u"Se produjo un error al Guardar un Fichero de Texto",
                                          SIN_NOMBRE};

// What both writers have in common: the options, the file, the marked rows and the progress.
class Texto_En_Curso {
public:
    explicit Texto_En_Curso(const Tarea_Exportar& t)
        : tarea(t), opciones(Opciones_Texto::De(t.origen.opciones.texto)), fichero(t.fichero),
          marcadas(t.origen.bd, t.datos.lineas_especiales)
    {
    }

    // Behind the titles stands an empty line; titles there are even without columns.
    void Escribir_Titulos(std::span<const qsizetype> anchos = {}, bool con_marca = false)
    {
        if (!opciones.titulos) return;
        Renglon titulos(opciones.separador);
        titulos.Poner_Titulos(tarea.datos.campos, anchos, con_marca);
        fichero.Linea(titulos.Texto());
        fichero.Fin_De_Linea();
    }

    // The text of a marked row in place of its first cell. @return false for an ordinary row
    bool Poner_Marcada(const Columna_Exportar& primera, std::size_t fila)
    {
        const Marca_Fila* const marca = Marca_De(primera.Vista(fila).Primera());
        if (!marca) return false;
        Abrir_Celda();
        fichero.Agregar(marcadas.Siguiente(*marca, ":\r\n") + "\r\n");
        return true;
    }

    // A cell, with blanks up to `ancho` characters.
    void Poner(const Vista_Celda& celda, qsizetype ancho)
    {
        Abrir_Celda();
        fichero.Agregar_Bytes(celda.pagina);
        if (!celda.unidades.isEmpty()) fichero.Agregar(celda.unidades);
        fichero.Agregar_Blancos(ancho - celda.Largo());
    }

    template <typename De_Fila> void Para_Cada_Fila(De_Fila&& de_fila)
    {
        const std::size_t total = tarea.datos.Numero_De_Filas();
        Marcador marcador(tarea.origen.avance, qint64(total));
        for (std::size_t r = 0; r < total; ++r) {
            de_fila(r);
            // A line without any cell isn't written.
            if (std::exchange(con_celdas, false)) fichero.Fin_De_Linea();
            marcador.Paso();
        }
        marcador.Terminar();
        fichero.Cerrar();
    }

    const Tarea_Exportar& tarea;
    const Opciones_Texto opciones;

private:
    void Abrir_Celda()
    {
        if (std::exchange(con_celdas, true)) fichero.Agregar(opciones.separador);
    }

    Fichero_Texto fichero;
    Textos_Marcados marcadas;
    bool con_celdas = false; // the line has one already
};

void Escribir_Formateado(Texto_En_Curso& t)
{
    const Datos_Formateados& datos = t.tarea.datos;
    const Filas_Exportar& filas = datos.filas;
    const bool con_marca = t.tarea.campos_con_marca;
    std::vector<qsizetype> anchos;
    (con_marca ? Anchos_Titulos : Anchos_Columna)(datos.campos, filas, anchos, t.opciones.titulos);
    t.Escribir_Titulos(anchos, con_marca);
    // The filling of a cell stays where its title is shorter.
    for (std::size_t c = 0; c < filas.size(); ++c)
        if (filas[c].Igualada()) anchos[c] = std::max(anchos[c], filas[c].Ancho());
    t.Para_Cada_Fila([&](std::size_t r) {
        for (std::size_t c = t.Poner_Marcada(filas[0], r) ? 1 : 0; c < filas.size(); ++c)
            t.Poner(filas[c].Vista(r), anchos[c]);
    });
}

void Escribir_Separado(Texto_En_Curso& t)
{
    const Filas_Exportar& filas = t.tarea.datos.filas;
    t.Escribir_Titulos();
    t.Para_Cada_Fila([&](std::size_t r) {
        if (t.Poner_Marcada(filas[0], r)) return;
        for (const Columna_Exportar& columna : filas) {
            const Vista_Celda celda = columna.Vista(r);
            if (!celda.Blanca()) t.Poner(celda, celda.Largo() + columna.Relleno(r));
        }
    });
}

bool Escribir(const Tarea_Exportar& tarea, const Fallos_Escritor& fallos,
              void (*escribir)(Texto_En_Curso&))
{
    return Con_Trampa(fallos, [&] {
        Texto_En_Curso texto(tarea);
        escribir(texto);
    });
}

} // namespace

const Fallos_Escritor FALLOS_DEL_FORMATEADO = {
    u"Se produjo un error al Guardar un Fichero de Texto formateado", SIN_NOMBRE};

bool Escribir_Texto_Formateado(const Tarea_Exportar& tarea)
{
    return Escribir(tarea, FALLOS_DEL_FORMATEADO, Escribir_Formateado);
}

bool Escribir_Texto_Separado(const Tarea_Exportar& tarea)
{
    return Escribir(tarea, DEL_SEPARADO, Escribir_Separado);
}

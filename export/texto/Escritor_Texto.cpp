#include "export/texto/Escritor_Texto.h"

#include "export/Filas_Marcadas.h"
#include "export/Renglon.h"
#include "export/texto/Fichero_Texto.h"
#include "export/Trampa_Escritor.h"

#include <algorithm>

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
        : tarea(t), opciones(Opciones_Texto::De(t.origen.opciones.texto)),
          renglon(opciones.separador), fichero(t.fichero),
          marcadas(t.origen.bd, t.datos.lineas_especiales)
    {
    }

    // Behind the titles stands an empty line; titles there are even without columns.
    void Escribir_Titulos()
    {
        fichero.Linea(renglon.Texto());
        fichero.Fin_De_Linea();
        renglon.Vaciar();
    }
    // The text of a marked row in place of its first cell. @return false for an ordinary row
    bool Poner_Marcada(const QString& celda)
    {
        const Marca_Fila* const marca = Marca_De(celda);
        if (marca) renglon.Poner(marcadas.Siguiente(*marca, ":\r\n") + "\r\n");
        return marca;
    }
    template <typename De_Fila> void Para_Cada_Fila(De_Fila&& de_fila)
    {
        const std::size_t total = tarea.datos.Numero_De_Filas();
        Marcador marcador(tarea.origen.avance, qint64(total));
        for (std::size_t r = 0; r < total; ++r) {
            de_fila(r);
            // A line without any cell isn't written.
            if (!renglon.Vacio()) fichero.Linea(renglon.Texto());
            renglon.Vaciar();
            marcador.Paso();
        }
        marcador.Terminar();
        fichero.Cerrar();
    }

    const Tarea_Exportar& tarea;
    const Opciones_Texto opciones;
    Renglon renglon;

private:
    Fichero_Texto fichero;
    Textos_Marcados marcadas;
};

void Escribir_Formateado(Texto_En_Curso& t)
{
    const Datos_Formateados& datos = t.tarea.datos;
    const Filas_Exportar& filas = datos.filas;
    const bool con_marca = t.tarea.campos_con_marca;
    std::vector<qsizetype> anchos;
    (con_marca ? Anchos_Titulos : Anchos_Columna)(datos.campos, filas, anchos, t.opciones.titulos);
    if (t.opciones.titulos) {
        t.renglon.Poner_Titulos(datos.campos, anchos, con_marca);
        t.Escribir_Titulos();
    }
    t.Para_Cada_Fila([&](std::size_t r) {
        for (std::size_t c = t.Poner_Marcada(filas[0][r]) ? 1 : 0; c < filas.size(); ++c)
            t.renglon.Poner(filas[c][r], anchos[c]);
    });
}

void Escribir_Separado(Texto_En_Curso& t)
{
    const Filas_Exportar& filas = t.tarea.datos.filas;
    if (t.opciones.titulos) {
        t.renglon.Poner_Titulos(t.tarea.datos.campos);
        t.Escribir_Titulos();
    }
    t.Para_Cada_Fila([&](std::size_t r) {
        if (t.Poner_Marcada(filas[0][r])) return;
        for (const auto& columna : filas) {
            const QString& celda = columna[r];
            if (std::ranges::any_of(celda, [](QChar c) { return c != u' '; }))
                t.renglon.Poner(celda);
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

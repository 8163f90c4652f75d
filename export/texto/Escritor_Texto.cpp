#include "export/Escritor_Texto.h"

#include "core/ModEstTotal.h"
#include "export/texto/Fichero_Texto.h"
#include "session/Texto_Nivel.h"

#include <algorithm>

namespace {

// A level field keeps its name in so many characters; behind them stands its mark.
constexpr qsizetype ANCHO_NOMBRE_NIVEL = 40;

std::size_t Numero_De_Filas(const Filas_Exportar& filas)
{
    return filas.empty() ? 0 : filas.front().size();
}

// What both writers have in common: the options, the file, the marked rows and the progress.
class Escritura {
public:
    explicit Escritura(const Tarea_Exportar& t)
        : tarea(t), con_titulos(Trozo(2, t.opciones, SEP_LISTA) == u"S"),
          sep(Trozo(1, t.opciones, SEP_LISTA)), fichero(t.fichero)
    {
    }

    // One more cell of the line, parted from the one before, with blanks up to `ancho`.
    void Poner(QStringView texto, qsizetype ancho = 0)
    {
        if (en_linea) fichero.Agregar(sep);
        en_linea = true;
        fichero.Agregar(texto);
        if (texto.size() < ancho) fichero.Agregar_Blancos(ancho - texto.size());
    }
    // The text of a marked row in place of its first cell, with the next of the kept lines.
    void Poner_Marcada(const QString& celda)
    {
        const bool cabecera = celda.front() == QChar(SEP_LISTA);
        const QString entrada = tarea.datos.lineas_especiales.value(siguiente_especial++);
        Poner((cabecera ? "Cabecera:\r\n" : "Resumen:\r\n") +
              Linea_Campos_Nivel(tarea.bd, entrada, cabecera ? "t" : "w") + "\r\n");
    }
    // A line without any cell isn't written.
    void Cerrar_Linea()
    {
        if (en_linea) fichero.Fin_De_Linea();
        en_linea = false;
    }
    // Behind the titles stands an empty line; titles there are even without columns.
    void Cerrar_Titulos()
    {
        fichero.Fin_De_Linea();
        fichero.Fin_De_Linea();
        en_linea = false;
    }
    void Cerrar() { fichero.Cerrar(); }

    template <typename De_Fila> void Para_Cada_Fila(De_Fila&& de_fila)
    {
        const std::size_t total = Numero_De_Filas(tarea.datos.filas);
        tarea.avance.Maximo(qint64(total));
        for (std::size_t r = 0; r < total; ++r) {
            de_fila(r);
            Cerrar_Linea();
            const qint64 hechas = qint64(r + 1);
            if (hechas % PASOS_POR_REPINTADO != 0) continue;
            tarea.avance.Valor(hechas);
            Interfaz_Actual().Repintar();
        }
        tarea.avance.Valor(qint64(total));
    }

    const Tarea_Exportar& tarea;
    const bool con_titulos;

private:
    const QString sep;
    Fichero_Texto fichero;
    bool en_linea = false;
    qsizetype siguiente_especial = 0;
};

// Runs a writer with the one exit that reports its errors.
template <typename Cuerpo> bool Escribir(const QString& mensaje, Cuerpo&& cuerpo)
{
    try {
        cuerpo();
        return true;
    } catch (...) {
        const Error_Ejecucion error = Error_En_Curso();
        if (error.numero == 53)
            Interfaz_Actual().Mensaje(
                "Debe especificar un nombre correcto para el Fichero de Salida", Icono::Exclamacion,
                "Atención");
        else
            Informe_Error(mensaje, error);
        return false;
    }
}

void Escribir_Formateado(Escritura& e)
{
    const Filas_Exportar& filas = e.tarea.datos.filas;
    const bool nivel = Clave_Estacion == u"NV400";
    std::vector<qsizetype> anchos;
    (nivel ? Anchos_Titulos : Anchos_Columna)(e.tarea.campos, filas, anchos, e.con_titulos);
    if (e.con_titulos) {
        for (std::size_t c = 0; c < anchos.size(); ++c) {
            const QString& campo = e.tarea.campos[qsizetype(c)];
            e.Poner(nivel ? Basico::Trim(campo.left(ANCHO_NOMBRE_NIVEL)) : campo, anchos[c]);
        }
        e.Cerrar_Titulos();
    }
    e.Para_Cada_Fila([&](std::size_t r) {
        std::size_t c = 0;
        if (Es_Fila_Marcada(filas[0][r])) {
            e.Poner_Marcada(filas[0][r]);
            c = 1;
        }
        for (; c < filas.size(); ++c)
            e.Poner(filas[c][r], anchos[c]);
    });
    e.Cerrar();
}

void Escribir_Separado(Escritura& e)
{
    const Filas_Exportar& filas = e.tarea.datos.filas;
    if (e.con_titulos) {
        for (const QString& campo : e.tarea.campos)
            e.Poner(campo);
        e.Cerrar_Titulos();
    }
    e.Para_Cada_Fila([&](std::size_t r) {
        if (Es_Fila_Marcada(filas[0][r])) return e.Poner_Marcada(filas[0][r]);
        for (const auto& columna : filas) {
            const QString& celda = columna[r];
            if (std::ranges::any_of(celda, [](QChar c) { return c != u' '; })) e.Poner(celda);
        }
    });
    e.Cerrar();
}

} // namespace

bool Es_Fila_Marcada(const QString& primera_celda)
{
    return primera_celda.startsWith(QChar(SEP_LISTA)) || primera_celda.startsWith(QChar(SEP_CAMPO));
}

QString Linea_Campos_Nivel(Base& bd, const QString& linea, const QString& id)
{
    return Texto_Campos(bd, id, linea);
}

void Anchos_Columna(const QStringList& campos, const Filas_Exportar& filas,
                    std::vector<qsizetype>& anchos, bool con_titulos)
{
    anchos.assign(filas.size(), 0);
    for (std::size_t c = 0; c < filas.size(); ++c) {
        if (con_titulos) anchos[c] = campos[qsizetype(c)].size();
        for (const QString& celda : filas[c])
            anchos[c] = std::max(anchos[c], celda.size());
    }
}

void Anchos_Titulos(const QStringList& campos, const Filas_Exportar& filas,
                    std::vector<qsizetype>& anchos, bool con_titulos)
{
    anchos.assign(filas.size(), 0);
    if (!con_titulos) return;
    for (std::size_t c = 0; c < filas.size(); ++c)
        anchos[c] = Basico::Trim(campos[qsizetype(c)]).size();
}

bool Escribir_Texto_Formateado(const Tarea_Exportar& tarea)
{
    return Escribir("Se produjo un error al Guardar un Fichero de Texto formateado", [&] {
        Escritura e(tarea);
        Escribir_Formateado(e);
    });
}

bool Escribir_Texto_Separado(const Tarea_Exportar& tarea)
{
    return Escribir("Se produjo un error al Guardar un Fichero de Texto", [&] {
        Escritura e(tarea);
        Escribir_Separado(e);
    });
}

#include "export/Escritor_Texto.h"

#include "core/ModEstTotal.h"
#include "export/Fichero_Texto.h"
#include "session/Texto_Nivel.h"

#include <algorithm>

namespace {

constexpr std::size_t FILAS_POR_REPINTADO = 512;
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
        : tarea(t), sep(Trozo(1, t.opciones, SEP_LISTA)),
          con_titulos(Trozo(2, t.opciones, SEP_LISTA) == u"S"), fichero(t.fichero)
    {
    }

    // A line is built with a separator in front of each part; the first goes.
    void Linea(const QString& texto) { fichero.Linea(QStringView(texto).mid(1)); }
    void Linea_Vacia() { fichero.Linea(u""); }
    void Cerrar() { fichero.Cerrar(); }

    // Text of a marked row, with the next of the kept lines.
    QString Texto_Marcado(const QString& celda)
    {
        const bool cabecera = celda.front() == QChar(SEP_LISTA);
        const QString entrada = tarea.datos.lineas_especiales.value(siguiente_especial++);
        return (cabecera ? "Cabecera:\r\n" : "Resumen:\r\n") +
               Linea_Campos_Nivel(tarea.bd, entrada, cabecera ? "t" : "w");
    }

    template <typename De_Fila> void Para_Cada_Fila(De_Fila&& de_fila)
    {
        const std::size_t total = Numero_De_Filas(tarea.datos.filas);
        tarea.avance.Maximo(qint64(total));
        QString linea;
        for (std::size_t r = 0; r < total; ++r) {
            linea.resize(0);
            de_fila(r, linea);
            if (!linea.isEmpty()) Linea(linea);
            if ((r + 1) % FILAS_POR_REPINTADO != 0) continue;
            tarea.avance.Valor(qint64(r + 1));
            Interfaz_Actual().Repintar();
        }
        tarea.avance.Valor(qint64(total));
    }

    const Tarea_Exportar& tarea;
    const QString sep;
    const bool con_titulos;

private:
    Fichero_Texto fichero;
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

void Agregar_Rellena(QString& linea, const QString& sep, const QString& texto, qsizetype ancho)
{
    linea += sep;
    linea += texto;
    for (qsizetype n = texto.size(); n < ancho; ++n)
        linea += u' ';
}

void Escribir_Formateado(Escritura& e)
{
    const Filas_Exportar& filas = e.tarea.datos.filas;
    const bool nivel = Clave_Estacion == u"NV400";
    std::vector<qsizetype> anchos;
    (nivel ? Anchos_Titulos : Anchos_Columna)(e.tarea.campos, filas, anchos, e.con_titulos);
    if (e.con_titulos) {
        QString titulos;
        for (std::size_t c = 0; c < anchos.size(); ++c) {
            const QString& campo = e.tarea.campos[qsizetype(c)];
            Agregar_Rellena(titulos, e.sep,
                            nivel ? Basico::Trim(campo.left(ANCHO_NOMBRE_NIVEL)) : campo,
                            anchos[c]);
        }
        e.Linea(titulos);
        e.Linea_Vacia();
    }
    e.Para_Cada_Fila([&](std::size_t r, QString& linea) {
        std::size_t c = 0;
        if (Es_Fila_Marcada(filas[0][r])) {
            linea += e.sep + e.Texto_Marcado(filas[0][r]) + "\r\n";
            c = 1;
        }
        for (; c < filas.size(); ++c)
            Agregar_Rellena(linea, e.sep, filas[c][r], anchos[c]);
    });
    e.Cerrar();
}

void Escribir_Separado(Escritura& e)
{
    const Filas_Exportar& filas = e.tarea.datos.filas;
    if (e.con_titulos) {
        QString titulos;
        for (const QString& campo : e.tarea.campos)
            titulos += e.sep + campo;
        e.Linea(titulos);
        e.Linea_Vacia();
    }
    e.Para_Cada_Fila([&](std::size_t r, QString& linea) {
        if (Es_Fila_Marcada(filas[0][r])) {
            linea += e.sep + e.Texto_Marcado(filas[0][r]) + "\r\n";
            return;
        }
        for (const auto& columna : filas) {
            const QString& celda = columna[r];
            if (std::ranges::all_of(celda, [](QChar c) { return c == u' '; })) continue;
            linea += e.sep;
            linea += celda;
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

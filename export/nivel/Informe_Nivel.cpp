#include "export/nivel/Informe_Nivel.h"

#include <algorithm>
#include <span>

namespace {

using Clase = Linea_Informe::Clase;

QString Fecha_Y_Hora(const QString& valor)
{
    constexpr qsizetype CIFRAS = 10, DE_FECHA = 6;
    if (valor.size() != CIFRAS) return valor;
    return Fecha_De_Nivel(valor.left(DE_FECHA)) + ' ' + Hora_De_Nivel(valor.mid(DE_FECHA));
}

// A column of the lines of rings and change points.
struct Columna {
    const char16_t* titulo;
    int campo;
    int ancho;
    Lado lado = Lado::Derecha;
    QString (*escribir)(const QString&) = nullptr;
};
constexpr Columna DE_ANILLO[] = {
    {u"Nº Señal ", 3, 8},     {u"Fecha y Hora   ", 4, 16, Lado::Izquierda, Fecha_Y_Hora},
    {u"Inc.Z Anillo", 5, 12}, {u"Inc.Z Total", 6, 11},
    {u"Long Anillo", 7, 11},  {u"Long Total", 8, 10},
    {u"Cota      ", 9, 10},   {u"Codigo 1         ", 10, 16},
};
constexpr Columna DE_CAMBIO[] = {
    {u"Nº Señal", 2, 8},
    {u"P.Cambio", 3, 8},
    {u"Fecha y Hora    ", 4, 16, Lado::Izquierda, Fecha_Y_Hora},
    {u"Inc.Z Anillo", 5, 12},
    {u"Inc.Z Total", 6, 11},
    {u"Long Anillo", 7, 11},
    {u"Long Total", 8, 10},
    {u"Cota      ", 9, 10},
    {u"Codigo 1         ", 10, 16},
};

// The kinds of line that have columns of their own, each with its box of the dialog.
struct Linea_Propia {
    QChar tipo;
    bool Opciones_Nivel::*casilla;
    std::span<const Columna> columnas;
    Clase titulos, valores;
};
const Linea_Propia PROPIAS[] = {
    {u'w', &Opciones_Nivel::nivelacion, DE_ANILLO, Clase::Titulos_Anillo, Clase::Anillo},
    {u'v', &Opciones_Nivel::anillo, DE_CAMBIO, Clase::Titulos_Cambio, Clase::Cambio},
};

constexpr QChar FIN_NIVELACION = u'u';
constexpr char16_t TITULO_FIN[] = u"Fin de Nivelacion    ";

class Informe {
public:
    Informe(const Datos_Nivel& d, const std::function<void(const Linea_Informe&)>& l)
        : datos(d), linea(l)
    {
    }

    void Blanco() { linea({}); }

    void Titulos(Clase clase, const std::vector<Campo_De_Informe>& campos, Lado lado)
    {
        Linea_Informe l{clase, {}};
        for (const Campo_De_Informe& campo : campos)
            l.celdas << Celda_Informe{campo.nombre, campo.digitos, lado};
        linea(l);
    }

    void Valores(Clase clase, const std::vector<Campo_De_Informe>& campos, qsizetype registro,
                 Lado lado)
    {
        Linea_Informe l{clase, {}};
        for (const Campo_De_Informe& campo : campos)
            l.celdas << Celda_Informe{datos.Valor(registro, campo), campo.digitos, lado};
        linea(l);
    }

    void Propia(const Linea_Propia& propia, qsizetype registro)
    {
        Linea_Informe titulos{propia.titulos, {}}, valores{propia.valores, {}};
        for (const Columna& c : propia.columnas) {
            const QString valor = datos.Celda(registro, c.campo);
            titulos.celdas << Celda_Informe{QString::fromUtf16(c.titulo)};
            valores.celdas << Celda_Informe{c.escribir ? c.escribir(valor) : valor, c.ancho,
                                            c.lado};
        }
        Blanco();
        linea(titulos);
        linea(valores);
    }

    // Levels put their counts before the moment or leave them out: it is the one of ten digits.
    void Fin(qsizetype registro)
    {
        constexpr int PRIMERO = 2, ULTIMO = 4;
        int donde = PRIMERO;
        while (donde < ULTIMO && datos.Celda(registro, donde).size() != 10)
            ++donde;
        const QString momento = datos.Celda(registro, donde);
        Blanco();
        linea({Clase::Titulos_Fin, {Celda_Informe{QString::fromUtf16(TITULO_FIN)}}});
        linea({Clase::Fin,
               {Celda_Informe{Fecha_De_Nivel(momento.left(6))},
                Celda_Informe{Hora_De_Nivel(momento.mid(6))},
                Celda_Informe{datos.Celda(registro, donde + 1)}}});
    }

private:
    const Datos_Nivel& datos;
    const std::function<void(const Linea_Informe&)>& linea;
};

void Hacer_Cabecera(const Datos_Nivel& datos, bool titulos, Informe& informe)
{
    if (datos.cabecera.empty() || datos.lineas.isEmpty()) return;
    if (titulos) informe.Titulos(Clase::Titulos_Cabecera, datos.cabecera, Lado::Izquierda);
    informe.Valores(Clase::Cabecera, datos.cabecera, 0, Lado::Izquierda);
    informe.Blanco();
}

} // namespace

QString Celda_Informe::En_Su_Ancho() const
{
    if (ancho <= 0) return texto;
    return lado == Lado::Izquierda ? texto.leftJustified(ancho, u' ', true)
                                   : texto.right(ancho).rightJustified(ancho);
}

void Hacer_Informe(const Datos_Nivel& datos, bool titulos, const Opciones_Nivel& opciones,
                   Avance_Exportar& avance, const std::function<void(const Linea_Informe&)>& linea)
{
    Informe informe(datos, linea);
    Hacer_Cabecera(datos, titulos, informe);
    // A format without detail gives the head alone.
    if (datos.detalle.empty()) return;
    if (titulos) {
        informe.Titulos(Clase::Titulos_Detalle, datos.detalle, Lado::Derecha);
        informe.Blanco();
    }
    Marcador marcador(avance, datos.lineas.size());
    for (qsizetype r = 0; r < datos.lineas.size(); ++r) {
        const QChar tipo = datos.Tipo(r);
        const auto propia = std::ranges::find(PROPIAS, tipo, &Linea_Propia::tipo);
        if (propia != std::end(PROPIAS)) {
            if (opciones.*(propia->casilla)) informe.Propia(*propia, r);
        } else if (tipo == FIN_NIVELACION) {
            informe.Fin(r);
        } else if (Es_Medicion_Nivel(tipo)) {
            informe.Valores(Clase::Detalle, datos.detalle, r, Lado::Derecha);
        }
        marcador.Paso();
    }
    marcador.Terminar();
}

#include "export/impresion/Renderiza_Pagina.h"

#include "core/Basico.h"
#include "export/Filas_Marcadas.h"
#include "export/impresion/Texto_RTF.h"
#include "export/Renglon.h"

#include <numeric>

namespace {

constexpr char FIN[] = "\r\n";
const QString SEPARADOR = QStringLiteral(" ");

QByteArray Blancos(qsizetype cuantos)
{
    return QByteArray(std::max<qsizetype>(cuantos, 0), ' ');
}

// Half of what the columns leave of the page, rounded as the machine rounds.
QByteArray Margen(const Parametros_Hoja& p, const std::vector<qsizetype>& anchos)
{
    if (!p.centrar) return {};
    const qsizetype total = std::accumulate(anchos.begin(), anchos.end(), qsizetype(0));
    return Blancos(qsizetype(Basico::Redondear_Par(double(p.anchura - total) / 2)));
}

void Poner_Cabeza(QByteArray& rtf, const Parametros_Hoja& p)
{
    const auto linea = [&](const char* palabras, const QString& texto) {
        rtf += palabras;
        RTF::Agregar(rtf, texto);
        rtf += FIN;
    };
    rtf += QByteArray(RTF::ABRIR) + FIN + RTF::COLORES + FIN;
    if (p.con_titulo) linea(RTF::TITULO, p.titulo);
    if (p.con_subtitulo) linea(RTF::SUBTITULO, p.subtitulo);
    if (p.trabajo)
        linea(RTF::SUBTITULO,
              "Trabajo:  " + p.trabajo->trabajo + "   Nombre:  " + p.trabajo->nombre + "   ");
}

void Poner_Cabeceras(QByteArray& rtf, const QStringList& titulos,
                     const std::vector<qsizetype>& anchos, const QByteArray& margen)
{
    rtf += RTF::PARRAFO + margen;
    if (!margen.isEmpty()) rtf += RTF::TRAS_MARGEN;
    for (qsizetype c = 0; c < titulos.size(); ++c) {
        const QString titulo = Titulo_De(titulos[c]);
        if (c == 0) rtf += RTF::PRIMERA_CABECERA;
        RTF::Agregar(rtf, titulo);
        // The blank ends the word before it; those of the width are the ones that show.
        rtf += RTF::TRAS_CABECERA + Blancos(anchos[std::size_t(c)] - titulo.size());
    }
    rtf += FIN;
}

} // namespace

QByteArray Renderiza_Pagina(Base& bd, const Datos_Formateados& datos, const Parametros_Hoja& p,
                            bool con_marca)
{
    QStringList titulos = p.columnas.isEmpty() ? datos.campos : p.columnas;
    titulos.resize(datos.campos.size());
    std::vector<qsizetype> anchos;
    (con_marca ? Anchos_Titulos : Anchos_Columna)(titulos, datos.filas, anchos, p.cabeceras);
    const QByteArray margen = Margen(p, anchos);

    QByteArray rtf;
    Poner_Cabeza(rtf, p);
    if (p.cabeceras) Poner_Cabeceras(rtf, titulos, anchos, margen);
    Textos_Marcados marcadas(bd, datos.lineas_especiales);
    Renglon renglon(SEPARADOR);
    for (std::size_t fila = 0; fila < datos.Numero_De_Filas(); ++fila) {
        if (const Marca_Fila* const marca = Marca_De(datos.filas[0].Vista(fila).Primera())) {
            rtf += RTF::FILA_MARCADA;
            RTF::Agregar(rtf, marcadas.Siguiente(*marca, {}));
        } else {
            for (std::size_t c = 0; c < datos.filas.size(); ++c)
                renglon.Poner(datos.filas[c].Celda(fila), anchos[c]);
            rtf += RTF::FILA + margen;
            RTF::Agregar(rtf, renglon.Texto());
            renglon.Vaciar();
        }
        rtf += FIN;
    }
    return rtf + RTF::CERRAR + FIN;
}

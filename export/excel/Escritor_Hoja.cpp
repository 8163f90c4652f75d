#include "export/excel/Escritor_Hoja.h"

#include "core/Ansi.h"
#include <algorithm>
#include <cmath>
#include <limits>

using namespace Biff;

namespace {

constexpr quint16 ANCHO_COLUMNA = 10;    ///< of columns without one of their own, in characters
constexpr quint16 ANCHO_PROPIO = 0x0002; ///< bit of a column's grbit: set by the user

/// A record whose body is one 16-bit number.
struct Ajuste {
    quint16 id, valor;
};
constexpr Ajuste CALCULO[] = {
    {CALCMODE, 1}, {CALCCOUNT, 100}, {REFMODE, 1}, {ITERATION, 0}, {SAVERECALC, 1}};
constexpr double DELTA_CALCULO = 0.001;
constexpr Ajuste IMPRESION[] = {{PRINTHEADERS, 0}, {PRINTGRIDLINES, 0}, {GRIDSET, 1}};
constexpr quint16 OPCIONES_HOJA = 0x04C1; ///< page breaks shown, summaries below and to the right

struct Guts_Nada {
    U16 dx_rw_gut, dy_col_gut, i_level_rw_mac, i_level_col_mac;
};

} // namespace

Escritor_Hoja::Escritor_Hoja(const Hoja_Excel& h, const Forma_Excel& f, const Estilos_Libro& e,
                             Tabla_Cadenas& c, Salida_Biff& s)
    : hoja(h), forma(f), estilos(e), cadenas(c), salida(s)
{
    indice.usado = hoja.Rango_Usado();
}

void Escritor_Hoja::Escribir_Ajustes()
{
    for (const Ajuste& a : CALCULO)
        salida.Escribir_Como(a.id, U16(a.valor));
    salida.Escribir_Como(DELTA, F64(DELTA_CALCULO));
    for (const Ajuste& a : IMPRESION)
        salida.Escribir_Como(a.id, U16(a.valor));
    salida.Escribir_Como(GUTS, Guts_Nada{});
    salida.Escribir(DefaultRowHeight{quint16(0), FILA_ALTO_NORMAL});
    salida.Escribir_Como(WSBOOL, U16(OPCIONES_HOJA));
    if (forma.compuesto) {
        salida.Escribir_Bytes(HEADER);
        salida.Escribir_Bytes(FOOTER);
        salida.Escribir_Como(HCENTER, U16(0));
        salida.Escribir_Como(VCENTER, U16(0));
        salida.Escribir(Setup{PAPEL_A4, 100, 1, 1, 1, PAGINA_VERTICAL, 300, 300, 0.5, 0.5, 1});
    }
    indice.ancho_columnas = salida.Posicion();
    salida.Escribir(DefColWidth{ANCHO_COLUMNA});
    for (const auto& [columna, ancho] : hoja.Anchos())
        salida.Escribir(ColInfo{quint16(columna), quint16(columna),
                                quint16(std::lround(ancho * ANCHO_UNIDADES)), XF_NORMAL,
                                ANCHO_PROPIO, quint16(0)});
}

void Escritor_Hoja::Escribir_Dimensiones()
{
    const Rango u = indice.usado.Vacio() ? Rango{0, 0, -1, -1} : indice.usado;
    const auto hasta_fila = u.fila_hasta + 1, hasta_columna = u.columna_hasta + 1;
    if (forma.unicode)
        salida.Escribir(Dimensions_8{quint32(u.fila), quint32(hasta_fila), quint16(u.columna),
                                     quint16(hasta_columna), quint16(0)});
    else
        salida.Escribir(Dimensions_345{quint16(u.fila), quint16(hasta_fila), quint16(u.columna),
                                       quint16(hasta_columna), quint16(0)});
}

void Escritor_Hoja::Escribir_Celdas()
{
    Escribir_Dimensiones();
    const Rango& u = indice.usado;
    for (int desde = u.fila; desde <= u.fila_hasta; desde += FILAS_POR_BLOQUE)
        Escribir_Filas(desde, std::min(desde + FILAS_POR_BLOQUE - 1, u.fila_hasta));
}

void Escritor_Hoja::Escribir_Filas(int desde, int hasta)
{
    const qsizetype primera_fila = salida.Posicion();
    for (int fila = desde; fila <= hasta; ++fila) {
        const auto& celdas = hoja.Fila(fila);
        Row r{};
        r.rw = quint16(fila);
        r.col_mic = celdas.empty() ? quint16(0) : celdas.front().columna;
        r.col_mac = celdas.empty() ? quint16(0) : quint16(celdas.back().columna + 1);
        r.mi_y_rw = FILA_ALTO_NORMAL;
        r.grbit = FILA_OPCIONES;
        r.ixfe = XF_NORMAL;
        salida.Escribir(r);
    }
    std::vector<qsizetype> inicios;
    for (int fila = desde; fila <= hasta; ++fila) {
        inicios.push_back(salida.Posicion());
        Escribir_Fila(hoja.Fila(fila), fila);
    }
    if (forma.compuesto) Escribir_Bloque(primera_fila, inicios);
}

// The first place is told from behind the first ROW, each other from the place before it.
void Escritor_Hoja::Escribir_Bloque(qsizetype primera_fila, const std::vector<qsizetype>& inicios)
{
    QByteArray lugares;
    qsizetype antes = primera_fila + qsizetype(sizeof(Cabeza) + sizeof(Row));
    for (const qsizetype inicio : inicios) {
        if (inicio - antes > std::numeric_limits<quint16>::max()) {
            indice.posible = false;
            return;
        }
        lugares += Bytes_De(U16(quint16(inicio - antes)));
        antes = inicio;
    }
    indice.bloques.push_back(salida.Posicion());
    salida.Escribir(DbCell{quint32(salida.Posicion() - primera_fila)}, lugares);
}

void Escritor_Hoja::Escribir_Fila(const std::vector<Celda_Situada>& celdas, int fila)
{
    for (std::size_t i = 0; i < celdas.size();) {
        const Celda_Situada& celda = celdas[i];
        const Lugar_Celda lugar{quint16(fila), celda.columna, estilos.Xf_De(celda)};
        switch (celda.tipo) {
        case Celda::Tipo::Nada:
            i += Escribir_Vacias(celdas, i, fila);
            continue;
        case Celda::Tipo::Texto:
            Escribir_Texto(lugar, celda.texto);
            break;
        case Celda::Tipo::Numero:
            salida.Escribir(Number{lugar, celda.numero});
            break;
        }
        ++i;
    }
}

void Escritor_Hoja::Escribir_Texto(const Lugar_Celda& lugar, const QString& texto)
{
    if (forma.unicode) {
        salida.Escribir(LabelSst{lugar, cadenas.Lugar(texto)});
        return;
    }
    const QByteArray bytes = Ansi::A_Bytes(texto);
    salida.Escribir(Label{lugar, quint16(bytes.size())}, bytes);
}

// Empty cells side by side share a record in the later forms. @return how many were written
std::size_t Escritor_Hoja::Escribir_Vacias(const std::vector<Celda_Situada>& celdas,
                                           std::size_t primera, int fila)
{
    std::size_t ultima = primera;
    while (forma.compuesto && ultima + 1 < celdas.size() &&
           celdas[ultima + 1].tipo == Celda::Tipo::Nada &&
           celdas[ultima + 1].columna == celdas[ultima].columna + 1)
        ++ultima;
    if (ultima == primera) {
        salida.Escribir(
            Blank{{quint16(fila), celdas[primera].columna, estilos.Xf_De(celdas[primera])}});
        return 1;
    }
    QByteArray aspectos;
    for (std::size_t i = primera; i <= ultima; ++i)
        aspectos += Bytes_De(U16(estilos.Xf_De(celdas[i])));
    aspectos += Bytes_De(U16(celdas[ultima].columna));
    salida.Escribir(MulBlank{quint16(fila), celdas[primera].columna}, aspectos);
    return ultima - primera + 1;
}

void Escritor_Hoja::Escribir_Vista(bool elegida)
{
    const quint16 marcas = quint16(VISTA_NORMAL | (elegida ? VISTA_ELEGIDA : 0));
    if (forma.unicode)
        salida.Escribir(Window2_8{marcas, quint16(0), quint16(0), COLOR_REJILLA_8, quint16(0),
                                  quint16(0), quint32(0)});
    else
        salida.Escribir(Window2_345{marcas, quint16(0), quint16(0), quint32(0)});
    Selection s{};
    s.pnn = PANEL_UNICO;
    s.cref = 1;
    salida.Escribir(s);
}

#include "conversions/ejes/Geometria_Eje.h"
#include "conversions/ejes/Lectores_Eje.h"
#include "conversions/ejes/Singulares.h"
#include "core/Ansi.h"

#include <array>
#include <cmath>

using namespace Campos_Fuente;

namespace {

/// A radius of this size stands for a straight.
constexpr double RADIO_RECTA = 999999;
constexpr qsizetype LINEAS_PUNTO = 3;
/// Records are cards of some eighty columns; a format beyond this is no format.
constexpr qsizetype ANCHO_MAXIMO = 1024;

struct Columna {
    qsizetype desde, ancho;
    bool texto;
};
using Columnas = std::vector<Columna>;
/// The columns of each line of a record.
using Formato = std::vector<Columnas>;

/// Reads a whole number at `i`; `defecto` when there is none. Big ones are cut above the widest
/// line.
qsizetype Entero(QByteArrayView t, qsizetype& i, qsizetype defecto)
{
    if (i >= t.size() || t[i] < '0' || t[i] > '9') return defecto;
    qsizetype n = 0;
    for (; i < t.size() && t[i] >= '0' && t[i] <= '9'; ++i)
        n = std::min(n * 10 + (t[i] - '0'), ANCHO_MAXIMO + 1);
    return n;
}

/// Reads "(3F12.3/F12.3,F12.9,F12.3/F12.9,F12.9,4A4)": items nFw.d, nDw.d, nEw.d, nAw, nX, "/" for
/// the next line. @return nothing when it holds another item or more lines than a point has
std::optional<Formato> Leer_Formato(QByteArrayView t)
{
    Formato formato(1);
    qsizetype ancho_linea = 0;
    for (qsizetype i = 0; i < t.size();) {
        const char c = t[i];
        if (c == ')') return formato;
        if (c == '(' || c == ',' || c == ' ') {
            ++i;
        } else if (c == '/') {
            if (qsizetype(formato.size()) > LINEAS_PUNTO) return {};
            formato.emplace_back();
            ancho_linea = 0;
            ++i;
        } else {
            const qsizetype veces = Entero(t, i, 1);
            const char item = i < t.size() ? char(t[i++] & ~0x20) : '\0';
            const qsizetype ancho = Entero(t, i, 1);
            if (i < t.size() && t[i] == '.') Entero(t, ++i, 0);
            const bool texto = item == 'A', hueco = item == 'X';
            if (!texto && !hueco && item != 'F' && item != 'D' && item != 'E') return {};
            if (ancho == 0 || ancho_linea + veces * ancho > ANCHO_MAXIMO) return {};
            for (qsizetype n = 0; n < veces; ++n) {
                if (!hueco) formato.back().push_back({ancho_linea, ancho, texto});
                ancho_linea += ancho;
            }
        }
    }
    return {};
}

QByteArrayView Recorte(QByteArrayView linea, const Columna& c)
{
    if (c.desde >= linea.size()) return {};
    return linea.sliced(c.desde, std::min(c.ancho, linea.size() - c.desde));
}

/// The first numbers of a line by its columns; a blank one is 0.
bool Leer_Numeros(QByteArrayView linea, const Columnas& columnas,
                  std::initializer_list<double*> destinos)
{
    auto columna = columnas.begin();
    for (double* destino : destinos) {
        if (columna == columnas.end() || columna->texto) return false;
        const QByteArrayView campo = Recortar(Recorte(linea, *columna++));
        const auto n = campo.isEmpty() ? std::optional(0.0) : Numero(campo);
        if (!n) return false;
        *destino = *n;
    }
    return true;
}

/// The horizontal code is the first half of the record's text.
QByteArray Codigo_Horizontal(QByteArrayView linea, const Columnas& columnas)
{
    QByteArray texto;
    qsizetype ancho = 0;
    for (const Columna& c : columnas) {
        if (!c.texto) continue;
        ancho += c.ancho;
        texto += Recorte(linea, c);
        texto = texto.leftJustified(ancho, ' ');
    }
    return texto.left(ancho / 2).trimmed().toUpper();
}

using Registro = std::array<QByteArray, LINEAS_PUNTO>;

enum class Clase_Registro { Fin, Saltado, Punto, Ilegible };

Clase_Registro Leer_Registro(const Registro& lineas, const Formato& formato, Fila_Singular& f)
{
    if (!Leer_Numeros(lineas[0], formato[0], {&f.punto.x, &f.punto.y}))
        return Clase_Registro::Ilegible;
    if (f.punto.x == 0 && f.punto.y == 0) return Clase_Registro::Fin;
    const QByteArray codigo = Codigo_Horizontal(lineas[2], formato[2]);
    if (codigo.isEmpty() || !QByteArrayView("PTCS").contains(codigo[0]) || codigo.startsWith("CAL"))
        return Clase_Registro::Saltado;
    if (!Leer_Numeros(lineas[1], formato[1], {&f.pk, &f.azimut, &f.radio}))
        return Clase_Registro::Ilegible;
    if (std::abs(f.radio) >= RADIO_RECTA) f.radio = 0;
    f.clase = codigo.mid(1, 1) == "S" ? Clase_Elemento::Clotoide
              : f.radio != 0          ? Clase_Elemento::Arco
                                      : Clase_Elemento::Recta;
    return Clase_Registro::Punto;
}

/// Steps to the first string under a format of three lines. @return its format, and its name
std::optional<Formato> Buscar_Cadena(Texto_Fuente& fuente, QString& nombre)
{
    std::optional<Formato> formato;
    while (fuente.Siguiente()) {
        const QByteArrayView linea = Recortar(fuente.Linea());
        if (Empieza_Por(linea, "001FORMAT")) {
            formato = Leer_Formato(linea.sliced(9));
        } else if (linea.startsWith("080,") && formato &&
                   qsizetype(formato->size()) == LINEAS_PUNTO) {
            nombre = Ansi::A_Texto(Por_Separador(linea, ',')[1]);
            return formato;
        }
    }
    return {};
}

/// @return true when the line closes the string without a record of zeros
bool Es_Cierre(QByteArrayView linea)
{
    const QByteArrayView t = Recortar(linea);
    return t == "999" || Empieza_Por(t, "FINISH") || t.startsWith("080,");
}

} // namespace

Eje Leer_Eje_Mxroad(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    QString nombre;
    const auto formato = Buscar_Cadena(fuente, nombre);
    if (!formato)
        throw Fallo_Conversion{QStringLiteral("No hay ninguna cadena de alineación (080)"), 0, {}};
    std::vector<Fila_Singular> filas;
    while (fuente.Siguiente() && !Es_Cierre(fuente.Linea())) {
        Registro lineas;
        Fila_Singular f;
        f.linea = fuente.Numero();
        f.texto = fuente.Texto();
        lineas[0] = fuente.Linea().toByteArray();
        qsizetype leidas = 1;
        // Within a record an empty line is a line of blank numbers.
        while (leidas < LINEAS_PUNTO && fuente.Siguiente_Tal_Cual())
            lineas[size_t(leidas++)] = fuente.Linea().toByteArray();
        const Clase_Registro clase = Leer_Registro(lineas, *formato, f);
        if (clase == Clase_Registro::Fin) break;
        if (clase == Clase_Registro::Ilegible || leidas < LINEAS_PUNTO) {
            informe.Omitir(f.linea, f.texto, QStringLiteral("Punto ilegible, se omite"));
        } else if (clase == Clase_Registro::Punto) {
            filas.push_back(std::move(f));
        }
    }
    for (size_t i = 0; i + 1 < filas.size(); ++i)
        filas[i].longitud = filas[i + 1].pk - filas[i].pk;
    Eje eje = Componer_Singulares(filas, true, informe);
    eje.nombre = nombre;
    return eje;
}

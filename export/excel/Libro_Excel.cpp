#include "export/excel/Libro_Excel.h"

#include "core/Ansi.h"
#include "core/Error_Ejecucion.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int MAX_NOMBRE_HOJA = 31;
constexpr double MAX_ANCHO = 255;

Error_Ejecucion Error_Con_Detalle(int numero, const QString& detalle)
{
    return Error_Ejecucion::Con(numero, detalle);
}

void Comprobar_Lugar(int fila, int columna, int filas, int columnas)
{
    if (fila < 0 || columna < 0) throw Error_Ejecucion(9);
    if (fila >= filas)
        throw Error_Con_Detalle(3437, QStringLiteral("no caben más de %1 filas").arg(filas));
    if (columna >= columnas)
        throw Error_Con_Detalle(3190, QStringLiteral("no caben más de %1 columnas").arg(columnas));
}

} // namespace

Rango Rango::Unido(const Rango& otro) const
{
    if (Vacio()) return otro;
    if (otro.Vacio()) return *this;
    return {std::min(fila, otro.fila), std::min(columna, otro.columna),
            std::max(fila_hasta, otro.fila_hasta), std::max(columna_hasta, otro.columna_hasta)};
}

void Hoja_Excel::Ampliar_Uso(const Rango& rango)
{
    uso_ampliado = uso_ampliado.Unido({std::max(rango.fila, 0), std::max(rango.columna, 0),
                                       std::min(rango.fila_hasta, MAX_FILAS - 1),
                                       std::min(rango.columna_hasta, MAX_COLUMNAS - 1)});
}

Celda& Hoja_Excel::En(int fila, int columna)
{
    Comprobar_Lugar(fila, columna, MAX_FILAS, MAX_COLUMNAS);
    if (std::size_t(fila) >= filas.size()) filas.resize(std::size_t(fila) + 1);
    auto& celdas = filas[std::size_t(fila)];
    // A table is filled from left to right.
    if (celdas.empty() || celdas.back().columna < columna) {
        celdas.emplace_back().columna = quint16(columna);
        return celdas.back();
    }
    auto lugar = std::lower_bound(celdas.begin(), celdas.end(), columna,
                                  [](const Celda_Situada& c, int n) { return c.columna < n; });
    if (lugar->columna != columna) {
        lugar = celdas.insert(lugar, Celda_Situada{});
        lugar->columna = quint16(columna);
    }
    return *lugar;
}

Celda Celda::De(const QString& texto)
{
    Celda celda;
    celda.tipo = Tipo::Texto;
    celda.texto = texto;
    return celda;
}

Celda Celda::De(double numero)
{
    Celda celda;
    celda.tipo = Tipo::Numero;
    celda.numero = numero;
    return celda;
}

void Hoja_Excel::Poner(int fila, int columna, const QString& texto)
{
    Celda& celda = En(fila, columna);
    celda.tipo = Celda::Tipo::Texto;
    celda.texto = texto;
    celda.numero = 0;
}

void Hoja_Excel::Poner(int fila, int columna, double numero)
{
    if (!std::isfinite(numero)) throw Error_Ejecucion(5);
    Celda& celda = En(fila, columna);
    celda.tipo = Celda::Tipo::Numero;
    celda.texto.clear();
    celda.numero = numero;
}

void Hoja_Excel::Poner(int fila, int columna, const Celda& celda)
{
    if (!std::isfinite(celda.numero)) throw Error_Ejecucion(5);
    En(fila, columna) = celda;
}

template <class Accion> static void Recorrer(const Rango& rango, Accion accion)
{
    for (int fila = rango.fila; fila <= rango.fila_hasta; ++fila)
        for (int columna = rango.columna; columna <= rango.columna_hasta; ++columna)
            accion(fila, columna);
}

void Hoja_Excel::Poner_Negrita(const Rango& rango)
{
    Recorrer(rango, [this](int fila, int columna) { En(fila, columna).negrita = true; });
}

void Hoja_Excel::Poner_Como_Texto(const Rango& rango)
{
    Recorrer(rango, [this](int fila, int columna) { En(fila, columna).como_texto = true; });
}

void Hoja_Excel::Quitar(const Rango& rango)
{
    Comprobar_Lugar(rango.fila, rango.columna, MAX_FILAS, MAX_COLUMNAS);
    for (int fila = rango.fila; fila <= rango.fila_hasta && fila < int(filas.size()); ++fila)
        std::erase_if(filas[std::size_t(fila)], [&](const Celda_Situada& c) {
            return c.columna >= rango.columna && c.columna <= rango.columna_hasta;
        });
}

void Hoja_Excel::Poner_Ancho(int columna, double caracteres)
{
    Comprobar_Lugar(0, columna, MAX_FILAS, MAX_COLUMNAS);
    if (!(caracteres >= 0 && caracteres <= MAX_ANCHO)) throw Error_Ejecucion(5);
    anchos[columna] = caracteres;
}

const Celda& Hoja_Excel::Leer(int fila, int columna) const
{
    static const Celda vacia;
    const auto& celdas = Fila(fila);
    const auto lugar =
        std::lower_bound(celdas.begin(), celdas.end(), columna,
                         [](const Celda_Situada& c, int n) { return c.columna < n; });
    return lugar != celdas.end() && lugar->columna == columna ? *lugar : vacia;
}

const std::vector<Celda_Situada>& Hoja_Excel::Fila(int fila) const
{
    static const std::vector<Celda_Situada> ninguna;
    return fila >= 0 && std::size_t(fila) < filas.size() ? filas[std::size_t(fila)] : ninguna;
}

Rango Hoja_Excel::Abarcar(int fila, int columna, bool (*cuenta)(const Celda&)) const
{
    Rango rango{fila, columna, -1, -1};
    for (int f = 0; f < int(filas.size()); ++f)
        for (const Celda_Situada& celda : Fila(f)) {
            if (!cuenta(celda)) continue;
            rango.fila = std::min(rango.fila, f);
            rango.columna = std::min<int>(rango.columna, celda.columna);
            rango.fila_hasta = f;
            rango.columna_hasta = std::max<int>(rango.columna_hasta, celda.columna);
        }
    return rango.fila_hasta < 0 ? Rango{} : rango;
}

Rango Hoja_Excel::Rango_Usado() const
{
    return Abarcar(MAX_FILAS, MAX_COLUMNAS, [](const Celda&) { return true; }).Unido(uso_ampliado);
}

Rango Hoja_Excel::Rango_Con_Valores() const
{
    return Abarcar(0, 0, [](const Celda& celda) { return celda.tipo != Celda::Tipo::Nada; });
}

bool Nombre_Hoja_Valido(QStringView nombre)
{
    if (nombre.isEmpty() || nombre.size() > MAX_NOMBRE_HOJA) return false;
    if (nombre.startsWith(u'\'') || nombre.endsWith(u'\'')) return false;
    return std::none_of(nombre.begin(), nombre.end(),
                        [](QChar c) { return c < u' ' || QStringView(u":\\/?*[]").contains(c); });
}

static bool Mismo_Nombre(const Hoja_Excel& hoja, const QString& nombre)
{
    return hoja.nombre.compare(nombre, Qt::CaseInsensitive) == 0;
}

Hoja_Excel& Libro_Excel::Agregar_Hoja(const QString& nombre)
{
    if (!Nombre_Hoja_Valido(nombre)) throw Error_Con_Detalle(3125, nombre);
    for (const Hoja_Excel& hoja : hojas)
        if (Mismo_Nombre(hoja, nombre)) throw Error_Con_Detalle(3010, nombre);
    return hojas.emplace_back(nombre);
}

const Hoja_Excel& Libro_Excel::Hoja(int indice) const
{
    if (indice < 0 || indice >= Numero_Hojas()) throw Error_Ejecucion(9);
    return hojas[std::size_t(indice)];
}

Hoja_Excel& Libro_Excel::Hoja(int indice)
{
    return const_cast<Hoja_Excel&>(std::as_const(*this).Hoja(indice));
}

Hoja_Excel& Libro_Excel::Hoja(const QString& nombre)
{
    for (Hoja_Excel& hoja : hojas)
        if (Mismo_Nombre(hoja, nombre)) return hoja;
    throw Error_Con_Detalle(3011, nombre);
}

static void Comprobar_Celdas(const Hoja_Excel& hoja, const Forma_Excel& forma)
{
    const Rango usado = hoja.Rango_Usado();
    if (!usado.Vacio())
        Comprobar_Lugar(usado.fila_hasta, usado.columna_hasta, forma.filas, forma.columnas);
    for (int fila = 0; fila <= usado.fila_hasta; ++fila)
        for (const Celda_Situada& celda : hoja.Fila(fila))
            // A text never gets longer in the page's bytes, but a pair of surrogates is one there.
            if (celda.texto.size() > forma.caracteres &&
                (forma.unicode || Ansi::A_Bytes(celda.texto).size() > forma.caracteres))
                throw Error_Con_Detalle(
                    3163,
                    QStringLiteral("hoja \"%1\", fila %2, columna %3: %4 caracteres, y la forma "
                                   "%5 admite %6")
                        .arg(hoja.nombre)
                        .arg(fila + 1)
                        .arg(celda.columna + 1)
                        .arg(celda.texto.size())
                        .arg(QStringView(forma.nombre))
                        .arg(forma.caracteres));
}

void Libro_Excel::Comprobar(const Forma_Excel& forma) const
{
    if (hojas.empty()) throw Error_Con_Detalle(3251, QStringLiteral("el libro no tiene hojas"));
    if (Numero_Hojas() > forma.hojas)
        throw Error_Con_Detalle(3251, QStringLiteral("la forma %1 admite %2 hojas, y hay %3")
                                          .arg(QStringView(forma.nombre))
                                          .arg(forma.hojas)
                                          .arg(Numero_Hojas()));
    for (auto hoja = hojas.begin(); hoja != hojas.end(); ++hoja) {
        // A name that the page cannot hold would get question marks, which no name may have.
        if (!Nombre_Hoja_Valido(hoja->nombre) ||
            (forma.compuesto && !forma.unicode && !Ansi::Cabe(hoja->nombre)))
            throw Error_Con_Detalle(3125, hoja->nombre);
        if (std::any_of(hojas.begin(), hoja,
                        [&](const Hoja_Excel& otra) { return Mismo_Nombre(otra, hoja->nombre); }))
            throw Error_Con_Detalle(3010, hoja->nombre);
        Comprobar_Celdas(*hoja, forma);
    }
}

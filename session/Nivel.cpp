#include "session/Nivel.h"

#include "core/Basico.h"

#include <algorithm>
#include <array>

namespace {

// Divisors by unit digit, in the order 1, 2, 3, 7, 8.
struct Regla {
    QStringView tipos;
    std::initializer_list<int> campos;
    std::array<double, 5> divisores;
    QStringView dibujo;
};

const Regla REGLAS[] = {
    {u"b", {4}, {1e3, 1e4, 1e5, 1e6, 1e7}, u"##0.0000"},
    {u"c", {19}, {1e3, 1e4, 1e5, 1e6, 1e7}, u"##0.0000"},
    {u"ghijfk", {2}, {1e3, 1e4, 1e5, 1e4, 1e5}, u"0.00000"},
    {u"ghijfk", {3}, {100, 100, 1e3, 100, 1e3}, u"##0.000"},
    {u"ghijfk", {4}, {1e3, 1e3, 1e4, 1e4, 1e5}, u"##0.0000"},
    {u"wv", {5, 6, 9}, {1e3, 1e3, 1e4, 1e4, 1e5}, u"0.00000"},
    {u"wv", {7, 8}, {100, 100, 1e3, 100, 1e3}, u"0.000"},
};

// Tenths, whatever the unit.
const Regla REGLA_6 = {u"ghijfk", {6}, {10, 10, 10, 10, 10}, u"###0.0"};

const Regla* Buscar_Regla(QChar tipo, int n)
{
    const auto vale = [&](const Regla& r) {
        return r.tipos.contains(tipo) && std::ranges::count(r.campos, n) != 0;
    };
    for (const Regla& r : REGLAS)
        if (vale(r)) return &r;
    return vale(REGLA_6) ? &REGLA_6 : nullptr;
}

double Divisor(const Regla& regla, QChar unidad)
{
    if (&regla == &REGLA_6) return regla.divisores.front();
    const qsizetype cual = QStringView(u"12378").indexOf(unidad);
    return cual < 0 ? 0 : regla.divisores[std::size_t(cual)];
}

QChar Unidad(QStringView linea)
{
    return linea.size() > 3 ? linea[3] : QChar();
}

} // namespace

QChar Tipo_NV400(QStringView linea)
{
    return linea.isEmpty() ? QChar() : linea.front();
}

QString Texto_Campo_NV400(QStringView linea, int n)
{
    if (n < 1) return {};
    qsizetype inicio = 0;
    for (int k = 0; k < n; ++k) {
        const qsizetype coma = linea.indexOf(u',', inicio);
        if (coma < 0) return {};
        inicio = coma + 1;
    }
    qsizetype fin = inicio;
    while (fin < linea.size() - 1 && linea[fin] != u',')
        ++fin;
    return linea.mid(inicio, fin - inicio).toString();
}

std::optional<double> Divisor_NV400(QChar tipo, int n, QChar unidad)
{
    const Regla* const regla = Buscar_Regla(tipo, n);
    if (!regla) return std::nullopt;
    return Divisor(*regla, unidad);
}

QString Campo_NV400(const QString& linea, int n)
{
    if (n == 0) return linea.left(1);
    QString crudo = Texto_Campo_NV400(linea, n);
    const Regla* const regla = Buscar_Regla(Tipo_NV400(linea), n);
    if (!regla) return crudo;
    const double divisor = Divisor(*regla, Unidad(linea));
    const double valor = divisor == 0 ? 0 : Basico::Val(crudo) / divisor;
    return Basico::Formato(valor, regla->dibujo.toString()).replace(u',', u'.');
}

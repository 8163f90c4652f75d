#include "core/Decimal.h"

#include "core/Error_Ejecucion.h"
#include "core/Numero_Escrito.h"

#include <algorithm>
#include <array>

namespace {

constexpr int CIFRAS = 18;

constexpr std::array<quint64, CIFRAS + 1> Potencias()
{
    std::array<quint64, CIFRAS + 1> p{1};
    for (std::size_t i = 1; i < p.size(); ++i)
        p[i] = p[i - 1] * 10;
    return p;
}

constexpr auto POTENCIA = Potencias();
constexpr quint64 UNO = POTENCIA[CIFRAS];

bool Es_Cifra(QChar c)
{
    return c >= u'0' && c <= u'9';
}

quint64 Cifra(QChar c)
{
    return quint64(c.unicode() - u'0');
}

bool Son_Cifras(QStringView t)
{
    return std::ranges::all_of(t, Es_Cifra);
}

// Sign at the head of a text, taken off. @return true for "-"
bool Quitar_Signo(QStringView& t)
{
    if (t.isEmpty() || (t.front() != u'-' && t.front() != u'+')) return false;
    const bool negativo = t.front() == u'-';
    t = t.mid(1);
    return negativo;
}

} // namespace

Decimal Decimal::De_Partes(bool negativo, QStringView entera, QStringView fraccion)
{
    Decimal d;
    for (const QChar c : entera) {
        d.entera = d.entera * 10 + Cifra(c);
        if (d.entera >= UNO) throw Error_Ejecucion(6);
    }
    const qsizetype n = std::min<qsizetype>(fraccion.size(), CIFRAS);
    for (const QChar c : fraccion.left(n))
        d.fraccion = d.fraccion * 10 + Cifra(c);
    d.fraccion *= POTENCIA[std::size_t(CIFRAS - n)];
    // What doesn't fit still tells a true half from a little more than a half.
    const QStringView resto = fraccion.mid(n);
    if (d.fraccion % 5 == 0 && std::ranges::any_of(resto, [](QChar c) { return c != u'0'; }))
        ++d.fraccion;
    d.negativo = negativo && (d.entera != 0 || d.fraccion != 0);
    return d;
}

Decimal Decimal::De_Miles(qint64 miles)
{
    Decimal d;
    const quint64 absoluto = miles < 0 ? quint64(-(miles + 1)) + 1 : quint64(miles);
    d.negativo = miles < 0;
    d.entera = absoluto / 1000;
    d.fraccion = absoluto % 1000 * POTENCIA[CIFRAS - 3];
    return d;
}

std::optional<Decimal> Decimal::De_Cifras(QStringView cifras, int decimales)
{
    if (cifras.isEmpty() || !Son_Cifras(cifras)) return std::nullopt;
    if (cifras.size() >= decimales) {
        const qsizetype corte = cifras.size() - decimales;
        return De_Partes(false, cifras.left(corte), cifras.mid(corte));
    }
    const QString llenas = QString(decimales - cifras.size(), u'0') + cifras.toString();
    return De_Partes(false, {}, llenas);
}

std::optional<Decimal> Decimal::Leer(QStringView texto)
{
    QStringView t = texto.trimmed();
    const bool signo = Quitar_Signo(t);
    const auto marca = std::ranges::find_if(t, [](QChar c) { return c == u'.' || c == u','; });
    const qsizetype corte = marca - t.begin();
    const QStringView entera = t.left(corte);
    const QStringView fraccion = corte < t.size() ? t.mid(corte + 1) : QStringView();
    if (entera.isEmpty() && fraccion.isEmpty()) return std::nullopt;
    if (!Son_Cifras(entera) || !Son_Cifras(fraccion)) return std::nullopt;
    return De_Partes(signo, entera, fraccion);
}

Decimal Decimal::Prefijo(QStringView texto)
{
    const Numero_Escrito n = Leer_Numero(texto, {.blancos = true});
    const QStringView entera(n.entera), fraccion(n.fraccion);
    if (!n.Hay()) return {};
    if (n.exponente.isEmpty()) return De_Partes(n.negativo, entera, fraccion);

    qint64 exponente = 0;
    for (const char16_t c : n.exponente)
        exponente = std::min<qint64>(exponente * 10 + qint64(Cifra(c)), 1000);
    const QString todas = entera.toString() + fraccion.toString();
    const qint64 punto = entera.size() + (n.exponente_negativo ? -exponente : exponente);
    if (punto <= 0) return De_Partes(n.negativo, {}, QString(-punto, u'0') + todas);
    const QString llenas = todas + QString(std::max<qint64>(0, punto - todas.size()), u'0');
    return De_Partes(n.negativo, QStringView(llenas).left(punto), QStringView(llenas).mid(punto));
}

Decimal Decimal::Absoluto() const
{
    Decimal d = *this;
    d.negativo = false;
    return d;
}

Decimal Decimal::operator-() const
{
    Decimal d = *this;
    d.negativo = !negativo && (entera != 0 || fraccion != 0);
    return d;
}

Decimal Decimal::operator+(const Decimal& otro) const
{
    Decimal suma = *this;
    if (negativo == otro.negativo) {
        suma.entera += otro.entera;
        suma.fraccion += otro.fraccion;
        if (suma.fraccion >= UNO) {
            suma.fraccion -= UNO;
            ++suma.entera;
        }
        if (suma.entera >= UNO) throw Error_Ejecucion(6);
        return suma;
    }
    const bool gana_este = Absoluto() >= otro.Absoluto();
    const Decimal& mayor = gana_este ? *this : otro;
    const Decimal& menor = gana_este ? otro : *this;
    suma = mayor;
    suma.entera -= menor.entera;
    if (suma.fraccion < menor.fraccion) {
        suma.fraccion += UNO;
        --suma.entera;
    }
    suma.fraccion -= menor.fraccion;
    if (suma.entera == 0 && suma.fraccion == 0) suma.negativo = false;
    return suma;
}

bool Decimal::operator<(const Decimal& otro) const
{
    if (negativo != otro.negativo) return negativo;
    const bool menor = entera != otro.entera ? entera < otro.entera : fraccion < otro.fraccion;
    return negativo ? !menor && *this != otro : menor;
}

quint64 Decimal::Redondeados(int n) const
{
    const quint64 unidad = POTENCIA[std::size_t(CIFRAS - n)];
    quint64 cifras = fraccion / unidad;
    const quint64 resto = fraccion % unidad;
    if (resto * 2 > unidad || (resto * 2 == unidad && resto != 0 && cifras % 2 == 1)) ++cifras;
    return cifras % POTENCIA[std::size_t(n)];
}

std::optional<qint64> Decimal::En_Unidades(int n) const
{
    const quint64 unidad = POTENCIA[std::size_t(CIFRAS - n)];
    // What is below 10^18 fits.
    if (fraccion % unidad != 0 || entera >= unidad) return std::nullopt;
    const auto unidades = qint64(entera * POTENCIA[std::size_t(n)] + fraccion / unidad);
    return negativo ? -unidades : unidades;
}

QString Decimal::Decimales(int n) const
{
    return n == 0 ? QString() : QString::number(Redondeados(n)).rightJustified(n, u'0');
}

QString Decimal::Texto_Fijo(int n) const
{
    // Written from its end: at most 18 digits on each side, the point and the sign.
    std::array<char16_t, 2 * CIFRAS + 2> letras;
    auto p = letras.end();
    quint64 resto = Redondeados(n);
    for (int i = 0; i < n; ++i, resto /= 10)
        *--p = char16_t(u'0' + resto % 10);
    *--p = u'.';
    resto = entera;
    do {
        *--p = char16_t(u'0' + resto % 10);
        resto /= 10;
    } while (resto != 0);
    if (negativo) *--p = u'-';
    return QStringView(p, letras.end()).toString();
}

QString Decimal::Texto() const
{
    QString texto = (negativo ? QStringLiteral("-") : QString()) + QString::number(entera);
    if (fraccion == 0) return texto;
    texto += u'.' + Decimales(CIFRAS);
    while (texto.endsWith(u'0'))
        texto.chop(1);
    return texto;
}

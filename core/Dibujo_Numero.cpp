#include "core/Dibujo_Numero.h"

#include <algorithm>
#include <cmath>

namespace {

// A decimal reading of at most 15 digits: value = 0.d1d2d3... x 10^punto.
struct Decimal15 {
    bool negativo = false;
    QByteArray cifras;
    int punto = 0;
};

Decimal15 Leer_15(double x)
{
    Decimal15 d;
    d.negativo = std::signbit(x) && x != 0;
    if (x == 0 || !std::isfinite(x)) return d;
    const QByteArray e = QByteArray::number(std::fabs(x), 'e', 14);
    const qsizetype marca = e.indexOf('e');
    d.cifras = e.left(marca);
    d.cifras.remove(1, 1);
    d.punto = e.mid(marca + 1).toInt() + 1;
    return d;
}

// The digits with exactly `decimales` behind the mark, half away from zero.
// @return integer digits without leading zeros, then the decimals
std::pair<QByteArray, QByteArray> Redondear(const Decimal15& d, int decimales)
{
    QByteArray todo = d.cifras;
    int punto = d.punto;
    if (punto < 0) {
        todo.prepend(QByteArray(-punto, '0'));
        punto = 0;
    }
    const qsizetype largo = punto + decimales;
    if (todo.size() > largo) {
        const bool sube = todo[largo] >= '5';
        todo.truncate(largo);
        if (sube) {
            qsizetype i = largo;
            while (i > 0 && todo[i - 1] == '9')
                todo[--i] = '0';
            if (i > 0) {
                ++todo[i - 1];
            } else {
                todo.prepend('1');
                ++punto;
            }
        }
    } else {
        todo.append(QByteArray(largo - todo.size(), '0'));
    }
    QByteArray entera = todo.left(punto);
    qsizetype ceros = 0;
    while (ceros < entera.size() && entera[ceros] == '0')
        ++ceros;
    return {entera.mid(ceros), todo.mid(punto)};
}

bool Es_Marca(QChar c)
{
    return c == u'0' || c == u'#' || c == u'.';
}

} // namespace

Dibujo_Numero::Dibujo_Numero(const QString& dibujo)
{
    qsizetype primera = 0;
    while (primera < dibujo.size() && !Es_Marca(dibujo[primera]))
        ++primera;
    qsizetype ultima = dibujo.size();
    while (ultima > primera && !Es_Marca(dibujo[ultima - 1]))
        --ultima;
    antes = dibujo.left(primera);
    despues = dibujo.mid(ultima);
    const QStringView marcas = QStringView(dibujo).mid(primera, ultima - primera);
    const qsizetype punto = marcas.indexOf(u'.');
    const QStringView de_entera = punto < 0 ? marcas : marcas.left(punto);
    const QStringView de_decimal = punto < 0 ? QStringView() : marcas.mid(punto + 1);
    con_marca = punto >= 0;
    const qsizetype cero = de_entera.indexOf(u'0');
    minimo = cero < 0 ? 0 : int(de_entera.size() - cero);
    decimales = int(de_decimal.size());
    fijos = int(de_decimal.lastIndexOf(u'0')) + 1;
    const auto son_ceros = [](QStringView t) {
        return !t.isEmpty() && std::ranges::all_of(t, [](QChar c) { return c == u'0'; });
    };
    de_ceros = marcas.size() == dibujo.size() && son_ceros(de_entera) && son_ceros(de_decimal);
}

QString Dibujo_Numero::Texto(double numero) const
{
    const Decimal15 d = Leer_15(numero);
    auto [entera, de_decimal] = Redondear(d, decimales);
    if (entera.size() < minimo) entera.prepend(QByteArray(minimo - entera.size(), '0'));
    while (de_decimal.size() > fijos && de_decimal.endsWith('0'))
        de_decimal.chop(1);
    QString texto = d.negativo ? QStringLiteral("-") : QString();
    texto += antes + QString::fromLatin1(entera);
    if (con_marca) texto += u',' + QString::fromLatin1(de_decimal);
    return texto + despues;
}

std::optional<Dibujo_Numero::Solo_Ceros> Dibujo_Numero::De_Ceros() const
{
    if (!de_ceros) return std::nullopt;
    return Solo_Ceros{minimo, decimales};
}

#include "core/Basico.h"

#include "core/Error_Ejecucion.h"
#include "core/Numero_Escrito.h"

#include <cmath>
#include <limits>

namespace {

// Number in the Spanish form, made plain ("1.234,5" -> "1234.5"); empty when it is no number.
QByteArray Numero_Llano(const QString& texto)
{
    constexpr Grafia ESPANOLA{.marca = u',', .blancos_tras_signo = true, .puntos_de_miles = true};
    const QStringView t = QStringView(texto).trimmed();
    const Numero_Escrito n = Leer_Numero(t, ESPANOLA);
    return n.Hay() && n.leidos == t.size() ? n.Llano() : QByteArray();
}

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

QString Texto_Fijo(const QString& dibujo, const Decimal15& d)
{
    const auto es_marca = [](QChar c) { return c == u'0' || c == u'#' || c == u'.'; };
    qsizetype primera = 0;
    while (primera < dibujo.size() && !es_marca(dibujo[primera]))
        ++primera;
    qsizetype ultima = dibujo.size();
    while (ultima > primera && !es_marca(dibujo[ultima - 1]))
        --ultima;
    const QString marcas = dibujo.mid(primera, ultima - primera);
    const qsizetype punto = marcas.indexOf(u'.');
    const QString de_entera = punto < 0 ? marcas : marcas.left(punto);
    const QString de_decimal = punto < 0 ? QString() : marcas.mid(punto + 1);

    auto [entera, decimales] = Redondear(d, int(de_decimal.size()));
    const qsizetype cero = de_entera.indexOf(u'0');
    const qsizetype minimo = cero < 0 ? 0 : de_entera.size() - cero;
    if (entera.size() < minimo) entera.prepend(QByteArray(minimo - entera.size(), '0'));
    const qsizetype fijos = de_decimal.lastIndexOf(u'0') + 1;
    while (decimales.size() > fijos && decimales.endsWith('0'))
        decimales.chop(1);

    QString texto = d.negativo ? QStringLiteral("-") : QString();
    texto += dibujo.left(primera) + QString::fromLatin1(entera);
    if (punto >= 0) texto += u',' + QString::fromLatin1(decimales);
    return texto + dibujo.mid(ultima);
}

} // namespace

double Basico::Val(QStringView texto)
{
    const Numero_Escrito n = Leer_Numero(texto, {.blancos = true});
    bool bien = false;
    const double x = n.Hay() ? n.Llano().toDouble(&bien) : 0.0;
    return bien && std::isfinite(x) ? x : 0.0;
}

QString Basico::Mid(const QString& texto, qint64 desde, qint64 cuantos)
{
    if (desde < 1 || cuantos < 0) throw Error_Ejecucion(5);
    return texto.mid(desde - 1, cuantos);
}

QString Basico::Mid(const QString& texto, qint64 desde)
{
    if (desde < 1) throw Error_Ejecucion(5);
    return texto.mid(desde - 1);
}

QString Basico::Left(const QString& texto, qint64 n)
{
    if (n < 0) throw Error_Ejecucion(5);
    return texto.left(n);
}

QString Basico::Right(const QString& texto, qint64 n)
{
    if (n < 0) throw Error_Ejecucion(5);
    return texto.right(n);
}

QString Basico::Trim(const QString& texto)
{
    return LTrim(RTrim(texto));
}

QString Basico::LTrim(const QString& texto)
{
    qsizetype i = 0;
    while (i < texto.size() && texto[i] == u' ')
        ++i;
    return i == 0 ? texto : texto.mid(i);
}

QString Basico::RTrim(const QString& texto)
{
    qsizetype n = texto.size();
    while (n > 0 && texto[n - 1] == u' ')
        --n;
    return n == texto.size() ? texto : texto.left(n);
}

QString Basico::Space(qint64 n)
{
    if (n < 0) throw Error_Ejecucion(5);
    return QString(n, u' ');
}

qint64 Basico::InStr(qint64 desde, QStringView texto, QStringView buscado)
{
    if (desde < 1) throw Error_Ejecucion(5);
    if (texto.isEmpty() || desde > texto.size()) return 0;
    if (buscado.isEmpty()) return desde;
    return texto.indexOf(buscado, desde - 1) + 1;
}

double Basico::Fix(double x)
{
    return std::trunc(x);
}

double Basico::Redondear_Par(double x)
{
    const double suelo = std::floor(x);
    const double resto = x - suelo;
    if (resto < 0.5) return suelo;
    if (resto > 0.5) return suelo + 1;
    return std::fmod(suelo, 2) == 0 ? suelo : suelo + 1;
}

int Basico::CInt(double x)
{
    const double r = Redondear_Par(x);
    if (!(r >= -32768 && r <= 32767)) throw Error_Ejecucion(6);
    return int(r);
}

qint64 Basico::CLng(double x)
{
    const double r = Redondear_Par(x);
    if (!(r >= std::numeric_limits<qint32>::min() && r <= std::numeric_limits<qint32>::max()))
        throw Error_Ejecucion(6);
    return qint64(r);
}

int Basico::CInt(const QString& texto)
{
    return CInt(CDbl(texto));
}

qint64 Basico::CLng(const QString& texto)
{
    return CLng(CDbl(texto));
}

double Basico::CDbl(const QString& texto)
{
    const QByteArray llano = Numero_Llano(texto);
    bool bien = false;
    const double x = llano.toDouble(&bien);
    if (llano.isEmpty() || (!bien && !std::isinf(x))) throw Error_Ejecucion(13);
    if (!std::isfinite(x)) throw Error_Ejecucion(6);
    return x;
}

bool Basico::IsNumeric(const QString& texto)
{
    return !Numero_Llano(texto).isEmpty();
}

QString Basico::Texto_Numero(double x, bool coma)
{
    QByteArray t = QByteArray::number(x, 'g', 15);
    if (const qsizetype e = t.indexOf('e'); e >= 0) {
        t[e] = 'E';
    } else if (!coma) {
        // Str writes no zero before the point.
        if (t.startsWith("0.")) t.remove(0, 1);
        if (t.startsWith("-0.")) t.remove(1, 1);
    }
    if (coma) t.replace('.', ',');
    return QString::fromLatin1(t);
}

QString Basico::Formato(double numero, const QString& dibujo)
{
    return Texto_Fijo(dibujo, Leer_15(numero));
}

QString Basico::Formato(const QString& texto, const QString& dibujo)
{
    return IsNumeric(texto) ? Formato(CDbl(texto), dibujo) : texto;
}

QString Basico::Formato_Fecha(const QDateTime& fecha, const QString& dibujo)
{
    QString texto;
    bool tras_hora = false;
    const auto dos = [](int n) { return QStringLiteral("%1").arg(n, 2, 10, QChar(u'0')); };
    for (qsizetype i = 0; i < dibujo.size();) {
        const QString resto = dibujo.mid(i).toUpper();
        if (resto.startsWith(u"YYYY")) {
            texto += QStringLiteral("%1").arg(fecha.date().year(), 4, 10, QChar(u'0'));
            i += 4;
        } else if (resto.startsWith(u"YY")) {
            texto += dos(fecha.date().year() % 100);
            i += 2;
        } else if (resto.startsWith(u"DD")) {
            texto += dos(fecha.date().day());
            i += 2;
        } else if (resto.startsWith(u"HH")) {
            texto += dos(fecha.time().hour());
            tras_hora = true;
            i += 2;
        } else if (resto.startsWith(u"NN") || (resto.startsWith(u"MM") && tras_hora)) {
            texto += dos(fecha.time().minute());
            tras_hora = false;
            i += 2;
        } else if (resto.startsWith(u"MM")) {
            texto += dos(fecha.date().month());
            i += 2;
        } else if (resto.startsWith(u"SS")) {
            texto += dos(fecha.time().second());
            i += 2;
        } else {
            texto += dibujo[i++];
        }
    }
    return texto;
}

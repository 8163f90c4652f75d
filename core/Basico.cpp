#include "core/Basico.h"

#include "core/Dibujo_Numero.h"
#include "core/Error_Ejecucion.h"
#include "core/Numero_Escrito.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// So many characters of a number hold at most 15 digits, which a double holds exactly.
constexpr qsizetype CIFRAS_EXACTAS = 15;
constexpr double POTENCIAS[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

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
    const auto x = Leer_Numero_Espanol(texto);
    if (!x) throw Error_Ejecucion(13);
    return *x;
}

std::optional<double> Basico::Numero_O_Nada(QStringView texto)
{
    const QStringView t = texto.trimmed();
    const bool negativo = t.startsWith(u'-');
    quint64 cifras = 0;
    qsizetype cuantas = 0, decimales = -1;
    bool llano = t.size() <= CIFRAS_EXACTAS;
    for (qsizetype i = negativo ? 1 : 0; llano && i < t.size(); ++i) {
        if (t[i] >= u'0' && t[i] <= u'9') {
            cifras = cifras * 10 + quint64(t[i].unicode() - u'0');
            ++cuantas;
            if (decimales >= 0) ++decimales;
        } else if ((t[i] == u'.' || t[i] == u',') && decimales < 0 && cuantas > 0) {
            decimales = 0;
        } else {
            llano = false;
        }
    }
    if (!llano || cuantas == 0) {
        try {
            return Leer_Numero_Espanol(t.toString().replace(u'.', u','));
        } catch (const Error_Ejecucion&) {
            return std::nullopt; // a number, but none that fits
        }
    }
    // Both are exact, so that the quotient is the nearest number, as any good reading gives it.
    const double x = double(cifras) / POTENCIAS[std::max<qsizetype>(decimales, 0)];
    return negativo ? -x : x;
}

double Basico::Leer_Numero(QStringView texto)
{
    const auto numero = Numero_O_Nada(texto);
    return numero ? *numero : CDbl(texto.toString().replace(u'.', u','));
}

bool Basico::IsNumeric(const QString& texto)
{
    return Es_Numero_Espanol(texto);
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
    return Dibujo_Numero(dibujo).Texto(numero);
}

void Basico::Agregar_Fijo(QByteArray& bytes, double numero, int decimales)
{
    // The 15-digit reading moves a number by less than this part of itself: farther from a half
    // than that, it rounds as the number itself does.
    constexpr double HOLGURA = 1e-14, ENTERO_EXACTO = 1e13;
    if (decimales >= 0 && decimales <= 6) {
        const double escalado = std::fabs(numero) * POTENCIAS[decimales];
        const double suelo = std::floor(escalado), resto = escalado - suelo;
        if (escalado < ENTERO_EXACTO && std::fabs(resto - 0.5) > HOLGURA * (escalado + 1)) {
            char cifras[24];
            char* const fin = std::end(cifras);
            char* i = fin;
            quint64 n = quint64(suelo) + (resto > 0.5 ? 1 : 0);
            for (int d = 0; n > 0 || d <= decimales; ++d, n /= 10) {
                if (d == decimales && d > 0) *--i = '.';
                *--i = char('0' + n % 10);
            }
            if (numero < 0) *--i = '-';
            bytes.append(i, fin - i);
            return;
        }
    }
    QString dibujo = QStringLiteral("0");
    if (decimales > 0) dibujo += u'.' + QString(decimales, u'0');
    bytes += Formato(numero, dibujo).replace(u',', u'.').toLatin1();
}

QString Basico::Formato(const QString& texto, const QString& dibujo)
{
    const auto x = Leer_Numero_Espanol(texto);
    return x ? Formato(*x, dibujo) : texto;
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

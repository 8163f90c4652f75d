#include "core/Basico.h"

#include "core/Dibujo_Numero.h"
#include "core/Error_Ejecucion.h"
#include "core/Numero_Escrito.h"

#include <cmath>
#include <limits>

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

#include "conversions/suelo/Campos_Fuente.h"

#include "core/Ansi.h"

#include <charconv>
#include <cmath>

namespace Campos_Fuente {

namespace {

constexpr double NUMERO_MAXIMO = 1e15;

bool Es_Blanco(char c)
{
    return c == ' ' || c == '\t' || c == '\r';
}
bool Es_Cifra(char c)
{
    return c >= '0' && c <= '9';
}
bool Es_Letra(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// Copies the characters of a number in the form that std::from_chars takes.
/// @return false when the grammar is broken
bool Normalizar(QByteArrayView campo, Marca marca, QVarLengthArray<char, 64>& s)
{
    qsizetype i = 0;
    const qsizetype n = campo.size();
    const auto cifras = [&] {
        qsizetype cuantas = 0;
        for (; i < n && Es_Cifra(campo[i]); ++i, ++cuantas)
            s.append(campo[i]);
        return cuantas;
    };
    const auto signo = [&] {
        if (i == n || (campo[i] != '+' && campo[i] != '-')) return;
        if (campo[i] == '-') s.append('-');
        ++i;
    };
    signo();
    qsizetype hay = cifras();
    if (i < n && (campo[i] == '.' || (campo[i] == ',' && marca == Marca::Punto_O_Coma))) {
        s.append('.');
        ++i;
        hay += cifras();
    }
    if (hay == 0) return false;
    if (i < n && (campo[i] == 'E' || campo[i] == 'e' || campo[i] == 'D' || campo[i] == 'd')) {
        s.append('e');
        ++i;
        signo();
        if (cifras() == 0) return false;
    }
    return i == n;
}

} // namespace

QByteArrayView Recortar(QByteArrayView t)
{
    const char* inicio = t.begin();
    const char* fin = t.end();
    while (inicio < fin && Es_Blanco(*inicio))
        ++inicio;
    while (inicio < fin && Es_Blanco(fin[-1]))
        --fin;
    return {inicio, fin - inicio};
}

Lista Por_Blancos(QByteArrayView linea)
{
    Lista campos;
    const char* p = linea.data();
    const char* const final = p + linea.size();
    while (p < final) {
        while (p < final && Es_Blanco(*p))
            ++p;
        const char* inicio = p;
        while (p < final && !Es_Blanco(*p))
            ++p;
        if (p > inicio) campos.append(QByteArrayView(inicio, p - inicio));
    }
    return campos;
}

Lista Por_Separador(QByteArrayView linea, char separador)
{
    Lista campos;
    const char* inicio = linea.begin();
    for (const char* p = inicio; p < linea.end(); ++p) {
        if (*p != separador) continue;
        campos.append(Recortar(QByteArrayView(inicio, p - inicio)));
        inicio = p + 1;
    }
    campos.append(Recortar(QByteArrayView(inicio, linea.end() - inicio)));
    return campos;
}

namespace {

constexpr int CIFRAS_EXACTAS = 15;
constexpr double POTENCIAS[CIFRAS_EXACTAS + 1] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                  1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// Reads plain decimals of at most 15 digits, which nearly all numbers are: mantissa and power of
/// ten are exact in a double, so their quotient is the nearest one to the text.
/// @param p  moved behind what was read
/// @return false when no such number stands at `p`
bool Leer_Llano(const char*& p, const char* fin, Marca marca, double& valor)
{
    const char* q = p;
    const bool negativo = q < fin && *q == '-';
    if (q < fin && (*q == '-' || *q == '+')) ++q;
    quint64 mantisa = 0;
    const char* const primera = q;
    for (unsigned c; q < fin && (c = unsigned(*q) - '0') <= 9; ++q)
        mantisa = mantisa * 10 + c;
    qsizetype cifras = q - primera, decimales = 0;
    if (q < fin && (*q == '.' || (*q == ',' && marca == Marca::Punto_O_Coma))) {
        const char* const tras_marca = ++q;
        for (unsigned c; q < fin && (c = unsigned(*q) - '0') <= 9; ++q)
            mantisa = mantisa * 10 + c;
        decimales = q - tras_marca;
        cifras += decimales;
    }
    if (cifras == 0 || cifras > CIFRAS_EXACTAS) return false;
    const double absoluto = double(mantisa) / POTENCIAS[decimales];
    valor = negativo ? -absoluto : absoluto;
    p = q;
    return true;
}

} // namespace

std::optional<QByteArrayView> Numeros_Llanos(QByteArrayView linea, char separador, Marca marca,
                                             std::span<double> valores)
{
    const char* p = linea.begin();
    const char* const fin = linea.end();
    for (size_t i = 0;; ++i) {
        while (p < fin && Es_Blanco(*p))
            ++p;
        if (i == valores.size()) return QByteArrayView(p, fin - p);
        if (!Leer_Llano(p, fin, marca, valores[i])) return {};
        const char* const tras_numero = p;
        while (p < fin && Es_Blanco(*p))
            ++p;
        if (p == fin) {
            if (i + 1 < valores.size()) return {};
        } else if (separador == ' ' ? p == tras_numero : *p++ != separador) {
            return {};
        }
    }
}

std::optional<double> Numero(QByteArrayView campo, Marca marca)
{
    campo = Recortar(campo);
    double valor = 0;
    const char* p = campo.begin();
    if (Leer_Llano(p, campo.end(), marca, valor) && p == campo.end()) return valor;
    QVarLengthArray<char, 64> s;
    if (!Normalizar(campo, marca, s)) return {};
    const auto r = std::from_chars(s.data(), s.data() + s.size(), valor);
    if (r.ec != std::errc() || std::abs(valor) >= NUMERO_MAXIMO) return {};
    return valor;
}

std::optional<double> Numero_PK(QByteArrayView campo, Marca marca)
{
    if (const auto simple = Numero(campo, marca)) return simple;
    QByteArrayView t = Recortar(campo);
    const bool negativo = t.startsWith('-');
    if (negativo || t.startsWith('+')) t = t.sliced(1);
    const qsizetype mas = t.indexOf('+');
    if (mas < 1 || mas + 1 == t.size() || !Es_Cifra(t[mas + 1])) return {};
    for (const char c : t.first(mas))
        if (!Es_Cifra(c)) return {};
    const auto kilometros = Numero(t.first(mas), marca);
    const auto metros = Numero(t.sliced(mas + 1), marca);
    if (!kilometros || !metros) return {};
    const double pk = *kilometros * 1000 + *metros;
    return negativo ? -pk : pk;
}

bool Numeros(const Lista& campos, qsizetype desde, std::initializer_list<double*> destinos,
             Marca marca)
{
    for (double* destino : destinos) {
        *destino = 0;
        if (desde < campos.size()) {
            const auto n = Numero(campos[desde], marca);
            if (!n) return false;
            *destino = *n;
        }
        ++desde;
    }
    return true;
}

std::optional<double> Sexagesimal_A_Gon(QByteArrayView campo)
{
    QByteArrayView t = Recortar(campo);
    if (!Numero(t)) return {};
    const bool negativo = t.startsWith('-');
    if (negativo || t.startsWith('+')) t = t.sliced(1);
    QByteArray cifras;
    qsizetype enteras = -1;
    for (const char c : t) {
        if (Es_Cifra(c)) {
            cifras += c;
        } else if ((c == '.' || c == ',') && enteras < 0) {
            enteras = cifras.size();
        } else {
            return {};
        }
    }
    if (enteras < 0) enteras = cifras.size();
    // The places are cut from the digits themselves: 45.30 as a binary fraction lies below 30'.
    while (cifras.size() < enteras + 4)
        cifras += '0';
    const double grados = enteras > 0 ? *Numero(cifras.first(enteras)) : 0;
    const double minutos = cifras.mid(enteras, 2).toInt();
    const double segundos =
        *Numero(cifras.mid(enteras + 2, 2) + '.' + cifras.mid(enteras + 4) + '0');
    if (minutos >= 60 || segundos >= 60) return {};
    const double gon = (grados + minutos / 60 + segundos / 3600) * 10 / 9;
    return negativo ? -gon : gon;
}

bool Es_Comentario(QByteArrayView linea)
{
    const QByteArrayView t = Recortar(linea);
    if (t.isEmpty()) return false;
    const char c = t.front();
    if (c == '*' || c == ';' || c == '#' || Es_Letra(c)) return true;
    const int codigo = static_cast<unsigned char>(c);
    return codigo >= 128 && Ansi::Caracter(codigo).isLetter();
}

bool Empieza_Por(QByteArrayView texto, QByteArrayView inicio)
{
    return texto.size() >= inicio.size() && Iguales(texto.first(inicio.size()), inicio);
}

bool Iguales(QByteArrayView a, QByteArrayView b)
{
    return a.size() == b.size() && a.compare(b, Qt::CaseInsensitive) == 0;
}

std::optional<QString> Nombre_Eje(QByteArrayView linea)
{
    QByteArrayView t = Recortar(linea);
    if (!Empieza_Por(t, "EJE")) return {};
    t = Recortar(t.sliced(3));
    if (!t.startsWith(':')) return {};
    return Ansi::A_Texto(Recortar(t.sliced(1)));
}

} // namespace Campos_Fuente

#include "session/Desplazamiento.h"

#include "core/Familia.h"
#include "core/ModEstTotal.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

// Sign at the head of a text, taken off. @return true for "-"
bool Separar_Signo(QStringView& t)
{
    if (t.isEmpty() || (t.front() != u'+' && t.front() != u'-')) return false;
    const bool negativo = t.front() == u'-';
    t = t.mid(1);
    return negativo;
}

// Digits of a number that a sum of two 64-bit integers holds with room to spare.
constexpr qsizetype CIFRAS_ENTERO = 16;
constexpr qint64 LIMITE_UNIDADES = 1'000'000'000'000'000'000;

bool Es_Signo_O_Cifra(QChar c)
{
    return c == u'+' || c == u'-' || (c >= u'0' && c <= u'9');
}

// The integer that a run of digits alone is.
std::optional<qint64> Entero_De(QStringView cifras)
{
    if (cifras.isEmpty() || cifras.size() > CIFRAS_ENTERO) return std::nullopt;
    qint64 n = 0;
    for (const QChar c : cifras) {
        if (c < u'0' || c > u'9') return std::nullopt;
        n = n * 10 + (c.unicode() - u'0');
    }
    return n;
}

// `n` units of the last of `decimales` decimals, as decimal text.
void Escribir_Unidades(qint64 n, int decimales, QString& en)
{
    std::array<char16_t, 48> letras;
    auto p = letras.end();
    auto resto = quint64(std::abs(n));
    for (int i = 0; i < decimales; ++i, resto /= 10)
        *--p = char16_t(u'0' + resto % 10);
    *--p = u'.';
    do {
        *--p = char16_t(u'0' + resto % 10);
        resto /= 10;
    } while (resto != 0);
    if (n < 0) *--p = u'-';
    en.resize(letras.end() - p);
    std::copy(p, letras.end(), reinterpret_cast<char16_t*>(en.data()));
}

QString Desplazamiento_Aceptado(const Familia& familia, const QString& texto,
                                const QString& formato)
{
    if (familia.desplazamiento_fijo) return Forma_Fija(texto, formato);
    return texto.isEmpty() ? QStringLiteral("0") : texto;
}

} // namespace

Anchos_Numero Anchos_Numero::Leer(QStringView formato)
{
    const auto ancho = [](QStringView t) {
        t = t.trimmed();
        int n = 0;
        for (qsizetype i = 0; i < t.size() && t[i] >= u'0' && t[i] <= u'9'; ++i)
            n = std::min(n * 10 + int(t[i].unicode() - u'0'), 18);
        return n;
    };
    const qsizetype coma = formato.indexOf(u',');
    if (coma < 0) return {ancho(formato), 0};
    return {ancho(formato.left(coma)), ancho(formato.mid(coma + 1))};
}

Decimal Valor_Desplazamiento(const QString& texto, const QString& formato)
{
    const Anchos_Numero anchos = Anchos_Numero::Leer(formato);
    QStringView t = QStringView(texto).trimmed();
    const bool negativo = Separar_Signo(t);
    const auto fija = t.size() == anchos.enteros + anchos.decimales
                          ? Decimal::De_Cifras(t, anchos.decimales)
                          : std::nullopt;
    const Decimal numero = fija ? *fija : Decimal::Prefijo(t);
    return negativo ? -numero : numero;
}

Desplazamientos Desplazamientos::En_Vigor()
{
    return {Desp_X, Desp_Y, Desp_Z};
}

const QString* Desplazamientos::De_Marca(QStringView marca) const
{
    const auto es = [&](QStringView cual) { return marca.compare(cual, Qt::CaseInsensitive) == 0; };
    return es(u"CX") ? &x : es(u"CY") ? &y : es(u"CZ") ? &z : nullptr;
}

Sumador::Sumador(const Familia& familia, const QString& desp, const QString& formato_desp,
                 const QString& posdigit, const QString& formato_suma)
    : serie(familia.serie), desplazamiento(Valor_Desplazamiento(desp, formato_desp)),
      anchos(Anchos_Numero::Leer(formato_desp)),
      decimales_campo(Anchos_Numero::Leer(posdigit).decimales),
      decimales_suma(Anchos_Numero::Leer(formato_suma).decimales),
      unidades(desplazamiento.En_Unidades(decimales_suma))
{
    // Only what can't outgrow its integer together with a coordinate of `CIFRAS_ENTERO`.
    if (unidades && std::abs(*unidades) >= LIMITE_UNIDADES) unidades.reset();
}

// A sign and digits that hold no point of their own.
Decimal Sumador::Valor_Sin_Punto(QStringView valor) const
{
    QStringView t = valor.trimmed();
    const bool negativo = Separar_Signo(t);
    t = t.right(anchos.enteros + anchos.decimales).trimmed();
    auto numero = Decimal::De_Cifras(t, decimales_campo);
    if (!numero && t.contains(u'.')) numero = Decimal::Leer(t);
    if (!numero) throw Error_Ejecucion(13);
    return negativo ? -*numero : *numero;
}

QString Sumador::Sumar(QStringView valor, bool de_cable) const
{
    if (valor.isEmpty() || (serie != Serie::A && serie != Serie::B)) return {};
    const Decimal coordenada = serie == Serie::A ? Valor_Sin_Punto(valor) : Decimal::Prefijo(valor);
    const Decimal suma = coordenada + desplazamiento;
    if (!de_cable || serie != Serie::A) return suma.Texto_Fijo(decimales_suma);
    return (suma.Negativo() ? u'-' : u'+') +
           QString::number(suma.Entera()).rightJustified(6, u'0') + suma.Decimales(decimales_suma);
}

// A sign and digits alone, as nearly every coordinate is, in units of the sum's last decimal: then
// nothing is rounded and a plain integer is exact.
std::optional<qint64> Sumador::Unidades_De(QStringView valor) const
{
    if (serie == Serie::B) return Unidades_Con_Punto(valor);
    if (decimales_campo != decimales_suma || !Es_Signo_O_Cifra(valor.front())) return std::nullopt;
    const bool negativo = Separar_Signo(valor);
    const auto n = Entero_De(valor.right(anchos.enteros + anchos.decimales));
    return n && negativo ? -*n : n;
}

std::optional<qint64> Sumador::Unidades_Con_Punto(QStringView valor) const
{
    const bool negativo = Separar_Signo(valor);
    const qsizetype punto = valor.indexOf(u'.');
    if (punto < 1) return std::nullopt;
    const QStringView entera = valor.left(punto), fraccion = valor.mid(punto + 1);
    if (fraccion.isEmpty() || fraccion.size() > decimales_suma ||
        entera.size() + decimales_suma > CIFRAS_ENTERO)
        return std::nullopt;
    const auto e = Entero_De(entera), f = Entero_De(fraccion);
    if (!e || !f) return std::nullopt;
    qint64 n = *e, f_llena = *f;
    for (int i = 0; i < decimales_suma; ++i)
        n *= 10;
    for (qsizetype i = fraccion.size(); i < decimales_suma; ++i)
        f_llena *= 10;
    n += f_llena;
    return negativo ? -n : n;
}

void Sumador::Sumar(QStringView valor, QString& en) const
{
    const bool con_coordenadas = serie == Serie::A || serie == Serie::B;
    if (unidades && con_coordenadas && decimales_suma > 0 && !valor.isEmpty())
        if (const auto n = Unidades_De(valor))
            return Escribir_Unidades(*n + *unidades, decimales_suma, en);
    en = Sumar(valor);
}

QString Sumar_Desplazamiento(const Familia& familia, const QString& modo,
                             const QString& desplazamiento, const QString& formato_desp,
                             const QString& valor, const QString& posdigit,
                             const QString& formato_suma)
{
    return Sumador(familia, desplazamiento, formato_desp, posdigit, formato_suma)
        .Sumar(valor, modo == u"C");
}

QString Forma_Fija(const QString& texto, const QString& formato)
{
    const auto [e, d] = Anchos_Numero::Leer(formato);
    QStringView t = texto;
    const bool negativo = Separar_Signo(t);
    // Deliberate: one zero fewer than the fixed form has digits.
    if (t.isEmpty()) return QString(std::max(0, e + d - 1), u'0');

    QString cifras;
    if (const qsizetype punto = t.indexOf(u'.'); punto >= 0) {
        const QString entera = t.left(punto).toString().rightJustified(e, u'0').right(e);
        cifras = entera + t.mid(punto + 1).toString().leftJustified(d, u'0', true);
    } else {
        cifras = (t.toString() + QString(d, u'0')).right(e + d).rightJustified(e + d, u'0');
        if (cifras.count(u'0') == cifras.size()) return cifras;
    }
    return negativo ? u'-' + cifras : cifras;
}

Efecto_Tecla Tecla_Desplazamiento(const QString& texto, qsizetype caret, QChar tecla)
{
    if ((tecla >= u'0' && tecla <= u'9') || tecla == u'\b') return {.pasa = true, .texto = {}};
    // Deliberate: a sign wipes what was typed before it, so that it comes first.
    if (tecla == u'-') {
        if (texto.contains(u'-')) return {.pita = true, .texto = {}};
        return {.texto = QStringLiteral("-"), .caret = caret + 1};
    }
    return {.pasa = tecla == u'.' && !texto.contains(u'.'), .texto = {}};
}

QString Teclear_Desplazamiento(const QString& tecleado)
{
    QString texto;
    for (const QChar tecla : tecleado) {
        const Efecto_Tecla efecto = Tecla_Desplazamiento(texto, texto.size(), tecla);
        if (efecto.texto)
            texto = *efecto.texto;
        else if (efecto.pasa && tecla == u'\b')
            texto.chop(1);
        else if (efecto.pasa)
            texto += tecla;
    }
    return texto;
}

void Quitar_Desplazamientos()
{
    Desp_X = Desp_Y = Desp_Z = QStringLiteral("0");
}

void Poner_Desplazamientos(const QString& x, const QString& y, const QString& z,
                           const QString& formato)
{
    // The user types for the model in force: its own files have this form.
    const Familia& familia = Familia_Actual();
    Desp_X = Desplazamiento_Aceptado(familia, x, formato);
    Desp_Y = Desplazamiento_Aceptado(familia, y, formato);
    Desp_Z = Desplazamiento_Aceptado(familia, z, formato);
}

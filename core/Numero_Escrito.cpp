#include "core/Numero_Escrito.h"

#include "core/Error_Ejecucion.h"

#include <cmath>

namespace {

bool Es_Cifra(QChar c)
{
    return c >= u'0' && c <= u'9';
}

class Lector {
public:
    Lector(QStringView t, const Grafia& g) : texto(t), grafia(g) { Saltar_Blancos(); }

    Numero_Escrito Leer()
    {
        Numero_Escrito n;
        const bool con_signo = Tomar_Signo(n.negativo);
        while (con_signo && grafia.blancos_tras_signo && Es(u' '))
            ++i;
        Tomar_Cifras(n.entera, grafia.puntos_de_miles);
        if (Es(grafia.marca)) {
            Avanzar();
            Tomar_Cifras(n.fraccion, false);
        }
        n.leidos = i;
        if (!n.Hay() || !(Es(u'e') || Es(u'E') || Es(u'd') || Es(u'D'))) return n;
        Avanzar();
        Tomar_Signo(n.exponente_negativo);
        Tomar_Cifras(n.exponente, false);
        if (!n.exponente.isEmpty()) n.leidos = i;
        return n;
    }

private:
    bool Es(char16_t c) const { return i < texto.size() && texto[i] == c; }

    void Saltar_Blancos()
    {
        while (grafia.blancos && (Es(u' ') || Es(u'\t') || Es(u'\n')))
            ++i;
    }

    void Avanzar()
    {
        ++i;
        Saltar_Blancos();
    }

    bool Tomar_Signo(bool& negativo)
    {
        if (!Es(u'+') && !Es(u'-')) return false;
        negativo = Es(u'-');
        Avanzar();
        return true;
    }

    void Tomar_Cifras(Numero_Escrito::Cifras& cifras, bool con_puntos)
    {
        for (; i < texto.size(); Avanzar()) {
            if (Es_Cifra(texto[i]))
                cifras.append(texto[i].unicode());
            else if (!con_puntos || !Es(u'.') || cifras.isEmpty())
                return;
        }
    }

    QStringView texto;
    const Grafia& grafia;
    qsizetype i = 0;
};

void Anadir(QByteArray& llano, const Numero_Escrito::Cifras& cifras)
{
    for (const char16_t c : cifras)
        llano += char(c);
}

} // namespace

QByteArray Numero_Escrito::Llano() const
{
    QByteArray llano;
    if (negativo) llano += '-';
    Anadir(llano, entera);
    if (!fraccion.isEmpty()) llano += '.';
    Anadir(llano, fraccion);
    if (exponente.isEmpty()) return llano;
    llano += exponente_negativo ? "e-" : "e";
    Anadir(llano, exponente);
    return llano;
}

Numero_Escrito Leer_Numero(QStringView texto, const Grafia& grafia)
{
    return Lector(texto, grafia).Leer();
}

// Number in the Spanish form, made plain ("1.234,5" -> "1234.5"); empty when it is no number.
static QByteArray Numero_Llano(QStringView texto)
{
    constexpr Grafia ESPANOLA{.marca = u',', .blancos_tras_signo = true, .puntos_de_miles = true};
    const QStringView t = texto.trimmed();
    const Numero_Escrito n = Leer_Numero(t, ESPANOLA);
    return n.Hay() && n.leidos == t.size() ? n.Llano() : QByteArray();
}

std::optional<double> Leer_Numero_Espanol(QStringView texto)
{
    const QByteArray llano = Numero_Llano(texto);
    if (llano.isEmpty()) return std::nullopt;
    bool bien = false;
    const double x = llano.toDouble(&bien);
    if (!bien && !std::isinf(x)) throw Error_Ejecucion(13);
    if (!std::isfinite(x)) throw Error_Ejecucion(6);
    return x;
}

bool Es_Numero_Espanol(QStringView texto)
{
    return !Numero_Llano(texto).isEmpty();
}

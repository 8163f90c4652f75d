#include "core/jet/Fichas_Sql.h"

#include <algorithm>
#include <iterator>
#include <QByteArrayView>

namespace {

struct Palabra {
    QByteArrayView texto;
    Pieza pieza;
};

// In alphabetical order: looked up by halves.
constexpr Palabra PALABRAS[] = {
    {"ALL", Pieza::All},
    {"AS", Pieza::As},
    {"AVG", Pieza::Resumir},
    {"BY", Pieza::By},
    {"COUNT", Pieza::Resumir},
    {"CROSS", Pieza::Cross},
    {"DISTINCT", Pieza::Distinct},
    {"EXCEPT", Pieza::Combinar},
    {"FROM", Pieza::From},
    {"FULL", Pieza::Full},
    {"GROUP", Pieza::Group},
    {"HAVING", Pieza::Having},
    {"INNER", Pieza::Inner},
    {"INTERSECT", Pieza::Combinar},
    {"ISNULL", Pieza::Isnull},
    {"JOIN", Pieza::Join},
    {"LEFT", Pieza::Left},
    {"LIMIT", Pieza::Limit},
    {"MAX", Pieza::Resumir},
    {"MIN", Pieza::Resumir},
    {"ON", Pieza::On},
    {"ORDER", Pieza::Order},
    {"OUTER", Pieza::Outer},
    {"RIGHT", Pieza::Right},
    {"SELECT", Pieza::Select},
    {"SET", Pieza::Set},
    {"SUM", Pieza::Resumir},
    {"TOTAL", Pieza::Resumir},
    {"UNION", Pieza::Combinar},
    {"VALUES", Pieza::Values},
    {"WHERE", Pieza::Where},
};
constexpr qsizetype LARGO_MAXIMO = 9;

char Mayuscula(char c)
{
    return c >= 'a' && c <= 'z' ? char(c - 'a' + 'A') : c;
}

Pieza Reconocer(QByteArrayView palabra)
{
    if (palabra.size() > LARGO_MAXIMO) return Pieza::Otra;
    char grande[LARGO_MAXIMO];
    std::transform(palabra.begin(), palabra.end(), grande, Mayuscula);
    const QByteArrayView buscada(grande, palabra.size());
    const auto* const it =
        std::lower_bound(std::begin(PALABRAS), std::end(PALABRAS), buscada,
                         [](const Palabra& p, QByteArrayView b) { return p.texto.compare(b) < 0; });
    return it != std::end(PALABRAS) && it->texto == buscada ? it->pieza : Pieza::Otra;
}

Pieza Simbolo(char c)
{
    switch (c) {
    case '(':
        return Pieza::Abre;
    case ')':
        return Pieza::Cierra;
    case ',':
        return Pieza::Coma;
    case '.':
        return Pieza::Punto;
    case ';':
        return Pieza::Punto_Y_Coma;
    case '*':
        return Pieza::Asterisco;
    default:
        return Pieza::Otra;
    }
}

bool Es_Cifra(char c)
{
    return c >= '0' && c <= '9';
}

bool Es_Letra(char c)
{
    const char m = Mayuscula(c);
    return (m >= 'A' && m <= 'Z') || c == '_' || c == '$' || static_cast<unsigned char>(c) > 127;
}

bool Es_Blanco(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

class Lector {
public:
    explicit Lector(const QByteArray& texto) : s(texto), n(int(texto.size())) {}

    std::vector<Ficha_Sql> Leer()
    {
        std::vector<Ficha_Sql> fichas;
        fichas.reserve(std::size_t(n) / 4 + 4);
        int nivel = 0;
        while (Saltar_Blancos()) {
            Ficha_Sql f{Clase_Ficha::Simbolo, Pieza::Otra, i, i, nivel};
            Tomar(f);
            if (f.pieza == Pieza::Cierra) f.nivel = --nivel;
            if (f.pieza == Pieza::Abre) ++nivel;
            f.fin = i;
            fichas.push_back(f);
        }
        return fichas;
    }

private:
    void Tomar(Ficha_Sql& f)
    {
        const char c = s[i];
        if (c == '\'' || c == '"') {
            f.clase = Clase_Ficha::Texto;
            Hasta_Comilla(c);
        } else if (c == '[') {
            f.clase = Clase_Ficha::Nombre;
            i = Hasta([](char d) { return d != ']'; }, i);
            if (i < n) ++i;
        } else if (Es_Cifra(c) || (c == '.' && i + 1 < n && Es_Cifra(s[i + 1]))) {
            f.clase = Clase_Ficha::Numero;
            Numero();
        } else if (Es_Letra(c)) {
            f.clase = Clase_Ficha::Palabra;
            i = Hasta([](char d) { return Es_Letra(d) || Es_Cifra(d); }, i);
            f.pieza = Reconocer(QByteArrayView(s.constData() + f.ini, i - f.ini));
        } else {
            if (c == '?') f.clase = Clase_Ficha::Hueco;
            f.pieza = Simbolo(c);
            ++i;
        }
    }

    template <class Sigue> int Hasta(Sigue sigue, int k) const
    {
        while (k < n && sigue(s[k]))
            ++k;
        return k;
    }

    bool Saltar_Blancos()
    {
        i = Hasta(Es_Blanco, i);
        return i < n;
    }

    void Hasta_Comilla(char comilla)
    {
        for (++i; i < n; ++i)
            if (s[i] == comilla) {
                if (i + 1 < n && s[i + 1] == comilla) {
                    ++i;
                    continue;
                }
                ++i;
                return;
            }
    }

    void Numero()
    {
        i = Hasta([](char d) { return Es_Cifra(d) || d == '.'; }, i);
        if (i >= n || Mayuscula(s[i]) != 'E') return;
        int k = i + 1;
        if (k < n && (s[k] == '+' || s[k] == '-')) ++k;
        const int fin = Hasta(Es_Cifra, k);
        if (fin > k) i = fin;
    }

    const QByteArray& s;
    const int n;
    int i = 0;
};

} // namespace

std::vector<Ficha_Sql> Leer_Fichas(const QByteArray& sql)
{
    return Lector(sql).Leer();
}

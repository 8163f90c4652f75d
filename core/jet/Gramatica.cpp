#include "core/jet/Gramatica.h"

#include "core/Error_Ejecucion.h"

#include <algorithm>
#include <iterator>

namespace {

// What may stand before a bracket, the functions that the program's SQL has,
// and the words after which a bracket encloses a condition, a list or a query.
constexpr const char* ANTE_PARENTESIS[] = {
    "ALL",      "AND",       "AS",     "AVG",    "BETWEEN", "BY",     "CASE", "COUNT",
    "DISTINCT", "ELSE",      "EXCEPT", "EXISTS", "FROM",    "HAVING", "IIF",  "IN",
    "INSTR",    "INTERSECT", "IS",     "ISNULL", "JOIN",    "LCASE",  "LEFT", "LEN",
    "LIKE",     "LIMIT",     "LTRIM",  "MAX",    "MID",     "MIN",    "NOT",  "ON",
    "OR",       "RIGHT",     "RTRIM",  "SELECT", "SET",     "SUM",    "THEN", "TRIM",
    "UCASE",    "UNION",     "VAL",    "VALUES", "WHEN",    "WHERE",
};

// Statements of the engine's language; the store's own (PRAGMA) are SQLite's.
constexpr const char* ORDENES[] = {"DELETE", "INSERT", "SELECT", "UPDATE"};

template <std::size_t N> bool Esta(const char* const (&lista)[N], const QByteArray& palabra)
{
    return std::any_of(std::begin(lista), std::end(lista),
                       [&](const char* p) { return palabra.compare(p, Qt::CaseInsensitive) == 0; });
}

class Gramatica {
public:
    Gramatica(const QByteArray& f, const std::vector<Ficha_Sql>& fs) : fuente(f), fichas(fs) {}

    void Comprobar() const
    {
        if (fichas.empty() || !Esta(ORDENES, Texto(0))) return;
        for (std::size_t k = 0; k < fichas.size(); ++k) {
            if (Mal_Simbolo(k)) throw Error_Ejecucion::Con(3075, QString::fromUtf8(fuente));
            if (Funcion_Desconocida(k))
                throw Error_Ejecucion::Con(3085, QString::fromUtf8(Texto(k)));
        }
    }

private:
    QByteArray Texto(std::size_t k) const
    {
        return k < fichas.size() ? fuente.mid(fichas[k].ini, fichas[k].fin - fichas[k].ini)
                                 : QByteArray();
    }

    bool Es_Texto(std::size_t k) const
    {
        return k < fichas.size() && fichas[k].clase == Clase_Ficha::Texto;
    }

    bool Pegada(std::size_t k) const
    {
        return k + 1 < fichas.size() && fichas[k + 1].ini == fichas[k].fin;
    }

    bool Mal_Simbolo(std::size_t k) const
    {
        if (fichas[k].clase != Clase_Ficha::Simbolo) return false;
        switch (fuente[fichas[k].ini]) {
        case '&':
            return true;
        case '-':
            return Pegada(k) && Texto(k + 1) == "-";
        case '/':
            return Pegada(k) && Texto(k + 1) == "*";
        case '+':
            return Es_Texto(k + 1) || (k > 0 && Es_Texto(k - 1));
        default:
            return false;
        }
    }

    bool Funcion_Desconocida(std::size_t k) const
    {
        if (fichas[k].clase != Clase_Ficha::Palabra || Texto(k + 1) != "(") return false;
        // Behind INTO it is a table with its columns.
        if (k > 0 && Texto(k - 1).compare("INTO", Qt::CaseInsensitive) == 0) return false;
        return !Esta(ANTE_PARENTESIS, Texto(k));
    }

    const QByteArray& fuente;
    const std::vector<Ficha_Sql>& fichas;
};

} // namespace

void Comprobar_Gramatica(const QByteArray& fuente, const std::vector<Ficha_Sql>& fichas)
{
    Gramatica(fuente, fichas).Comprobar();
}

#include "core/jet/Traductor.h"

#include "core/jet/Esquema.h"

#include <limits>

namespace {

enum class Clase { Palabra, Nombre, Numero, Texto, Simbolo, Hueco };

struct Ficha {
    Clase clase;
    int ini, fin; // bytes of the source
    int nivel;    // open brackets around it
};

bool Es_Letra(unsigned char c)
{
    return std::isalpha(c) || c == '_' || c == '$' || c > 127;
}

bool Es_Cifra(unsigned char c)
{
    return c >= '0' && c <= '9';
}

class Lector {
public:
    explicit Lector(const QByteArray& texto) : s(texto) {}

    std::vector<Ficha> Leer()
    {
        std::vector<Ficha> fichas;
        int nivel = 0;
        while (Saltar_Blancos()) {
            const int ini = i;
            const char c = s[i];
            Clase clase = Clase::Simbolo;
            if (c == ')') --nivel;
            const int de = nivel;
            if (c == '\'' || c == '"') {
                clase = Clase::Texto;
                Hasta_Comilla(c);
            } else if (c == '[') {
                clase = Clase::Nombre;
                Hasta_Corchete();
            } else if (Es_Cifra(c) || (c == '.' && i + 1 < s.size() && Es_Cifra(s[i + 1]))) {
                clase = Clase::Numero;
                Numero();
            } else if (Es_Letra(c)) {
                clase = Clase::Palabra;
                while (i < s.size() && (Es_Letra(s[i]) || Es_Cifra(s[i])))
                    ++i;
            } else {
                if (c == '?') clase = Clase::Hueco;
                if (c == '(') ++nivel;
                ++i;
            }
            fichas.push_back({clase, ini, i, de});
        }
        return fichas;
    }

private:
    bool Saltar_Blancos()
    {
        while (i < s.size() && std::isspace(static_cast<unsigned char>(s[i])))
            ++i;
        return i < s.size();
    }

    void Hasta_Comilla(char comilla)
    {
        for (++i; i < s.size(); ++i)
            if (s[i] == comilla) {
                if (i + 1 < s.size() && s[i + 1] == comilla) {
                    ++i;
                    continue;
                }
                ++i;
                return;
            }
    }

    void Hasta_Corchete()
    {
        while (i < s.size() && s[i] != ']')
            ++i;
        if (i < s.size()) ++i;
    }

    void Numero()
    {
        while (i < s.size() && (Es_Cifra(s[i]) || s[i] == '.'))
            ++i;
        if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
            int k = i + 1;
            if (k < s.size() && (s[k] == '+' || s[k] == '-')) ++k;
            if (k < s.size() && Es_Cifra(s[k])) {
                while (k < s.size() && Es_Cifra(s[k]))
                    ++k;
                i = k;
            }
        }
    }

    const QByteArray& s;
    int i = 0;
};

// One of the tables that a SELECT reads, as its columns are spoken of.
struct Origen {
    QString tabla;
    QByteArray alias;
};

class Traductor {
public:
    explicit Traductor(const QString& sql) : fuente(sql.toUtf8()), fichas(Lector(fuente).Leer()) {}

    Traduccion Hacer()
    {
        Partir();
        Traduccion t;
        if (!es_select || !Leer_Origenes() || agrupada) {
            t.completa = Emitir(0, n());
            return t;
        }
        const QByteArray filas = Filas_De_Origenes(false);
        if (distinta && orden < 0 && !Hay_Asterisco())
            t.completa = Distintas_En_Orden();
        else
            t.completa = Con_Orden(0, filas);
        if (origenes.size() == 1 && !distinta && !Hay_Hueco(lista, desde)) Una_Tabla(t, filas);
        return t;
    }

private:
    int n() const { return int(fichas.size()); }

    bool Es(int k, const char* palabra) const
    {
        if (k < 0 || k >= n()) return false;
        const Ficha& f = fichas[std::size_t(k)];
        return qsizetype(qstrlen(palabra)) == f.fin - f.ini &&
               qstrnicmp(fuente.constData() + f.ini, palabra, size_t(f.fin - f.ini)) == 0;
    }

    bool Es_Alguna(int k, std::initializer_list<const char*> palabras) const
    {
        for (const char* p : palabras)
            if (Es(k, p)) return true;
        return false;
    }

    bool Es_Nombre(int k) const
    {
        return k < n() && (fichas[std::size_t(k)].clase == Clase::Palabra ||
                           fichas[std::size_t(k)].clase == Clase::Nombre);
    }

    QByteArray Texto(int k) const
    {
        const Ficha& f = fichas[std::size_t(k)];
        return fuente.mid(f.ini, f.fin - f.ini);
    }

    // Finds the clauses of the outermost SELECT.
    void Partir()
    {
        es_select = Es(0, "SELECT");
        if (!es_select) return;
        lista = 1;
        if (Es_Alguna(1, {"DISTINCT", "ALL"})) {
            distinta = Es(1, "DISTINCT");
            lista = 2;
        }
        fin = n();
        if (fin > 0 && Es(fin - 1, ";")) --fin;
        for (int k = lista; k < fin; ++k) {
            const bool fuera = fichas[std::size_t(k)].nivel == 0;
            if (desde < 0 && Es_Alguna(k, {"COUNT", "SUM", "AVG", "MIN", "MAX", "TOTAL"}) &&
                Es(k + 1, "(") && !Dentro_De_Subconsulta(k))
                agrupada = true;
            if (!fuera) continue;
            if (desde < 0 && Es(k, "FROM")) desde = k;
            if (Es(k, "WHERE")) donde = k;
            if (Es_Alguna(k, {"GROUP", "HAVING", "UNION", "EXCEPT", "INTERSECT"})) agrupada = true;
            if (Es(k, "ORDER") && Es(k + 1, "BY")) orden = k;
            if (Es(k, "LIMIT")) limite = k;
        }
        if (desde < 0) es_select = false;
    }

    bool Dentro_De_Subconsulta(int k) const
    {
        const int nivel = fichas[std::size_t(k)].nivel;
        for (int j = k - 1; j >= lista; --j)
            if (fichas[std::size_t(j)].nivel <= nivel && nivel > 0 && Es(j, "SELECT")) return true;
        return false;
    }

    int Primera(std::initializer_list<int> marcas) const
    {
        int primera = fin;
        for (const int m : marcas)
            if (m >= 0) primera = qMin(primera, m);
        return primera;
    }

    // @return false when something else than tables of the program stands behind FROM
    bool Leer_Origenes()
    {
        const int hasta = Primera({donde, orden, limite});
        int k = desde + 1;
        while (k < hasta) {
            if (!Es_Nombre(k)) return false;
            const Esquema::Tabla* tabla = Esquema::Buscar_Tabla(Sin_Corchetes(Texto(k)));
            if (!tabla) return false;
            QByteArray alias = Texto(k++);
            if (Es(k, "AS")) ++k;
            if (k < hasta && Es_Nombre(k) && !Es_De_Union(k)) alias = Texto(k++);
            origenes.push_back({tabla->nombre, alias});
            if (Es(k, "ON"))
                while (k < hasta &&
                       !(fichas[std::size_t(k)].nivel == 0 && (Es(k, ",") || Es_De_Cruce(k))))
                    ++k;
            if (k >= hasta) break;
            if (Es(k, ",")) {
                ++k;
                continue;
            }
            if (!Es_De_Cruce(k)) return false;
            while (k < hasta && Es_De_Cruce(k))
                ++k;
        }
        return !origenes.empty();
    }

    bool Es_De_Cruce(int k) const
    {
        if (Es_Alguna(k, {"LEFT", "RIGHT"}) && Es(k + 1, "(")) return false;
        return Es_Alguna(k, {"LEFT", "RIGHT", "INNER", "OUTER", "CROSS", "FULL", "JOIN"});
    }

    bool Es_De_Union(int k) const { return Es(k, "ON") || Es_De_Cruce(k); }

    static QString Sin_Corchetes(const QByteArray& nombre)
    {
        return QString::fromUtf8(nombre.startsWith('[') ? nombre.mid(1, nombre.size() - 2)
                                                        : nombre);
    }

    QByteArray Filas_De_Origenes(bool primeras) const
    {
        QByteArray texto;
        for (const Origen& o : origenes) {
            if (!texto.isEmpty()) texto += ',';
            texto += primeras ? "min(" + o.alias + ".rowid)" : o.alias + ".rowid";
        }
        return texto;
    }

    bool Hay_Asterisco() const
    {
        for (int k = lista; k < desde; ++k)
            if (Es(k, "*") && (k == lista || Es_Alguna(k - 1, {".", ","}))) return true;
        return false;
    }

    bool Hay_Hueco(int a, int b) const
    {
        for (int k = a; k < b; ++k)
            if (fichas[std::size_t(k)].clase == Clase::Hueco) return true;
        return false;
    }

    // The whole query from token `a`, ordered last of all by insertion.
    Sentencia_Sql Con_Orden(int a, const QByteArray& filas) const
    {
        const int hasta = limite >= 0 ? limite : fin;
        Sentencia_Sql s = Emitir(a, hasta);
        s.sql += (orden >= 0 ? "," : " ORDER BY ") + filas;
        if (limite >= 0) Juntar(s, Emitir(limite, fin));
        return s;
    }

    Sentencia_Sql Distintas_En_Orden() const
    {
        Sentencia_Sql s = Emitir(lista, limite >= 0 ? limite : fin);
        s.sql.prepend("SELECT ");
        QByteArray grupo;
        for (int k = lista; k < desde;) {
            int hasta = k;
            while (hasta < desde && !(fichas[std::size_t(hasta)].nivel == 0 && Es(hasta, ",")))
                ++hasta;
            const int ultima = Sin_Alias(k, hasta);
            const bool constante = ultima == k + 1 && !Es_Nombre(k);
            if (!constante) {
                if (!grupo.isEmpty()) grupo += ',';
                grupo += Emitir(k, ultima).sql;
            }
            k = hasta + 1;
        }
        if (!grupo.isEmpty())
            s.sql += " GROUP BY " + grupo + " ORDER BY " + Filas_De_Origenes(true);
        else
            s.sql += " LIMIT 1";
        if (limite >= 0 && !grupo.isEmpty()) Juntar(s, Emitir(limite, fin));
        return s;
    }

    // End of a listed expression without its name: "x AS y", "x y".
    int Sin_Alias(int a, int b) const
    {
        if (b - a >= 3 && Es(b - 2, "AS")) return b - 2;
        if (b - a >= 2 && Es_Nombre(b - 1)) {
            const Ficha& antes = fichas[std::size_t(b - 2)];
            if (antes.clase != Clase::Simbolo || Es(b - 2, ")")) return b - 1;
        }
        return b;
    }

    void Una_Tabla(Traduccion& t, const QByteArray& filas) const
    {
        const QByteArray fila = origenes[0].alias + ".rowid";
        t.de_una_tabla = true;
        t.tabla = origenes[0].tabla;
        t.filas = Con_Orden(desde, filas);
        t.filas.sql.prepend("SELECT " + fila + ' ');
        const int hasta = Primera({donde, orden, limite});
        const QByteArray de = Emitir(desde, hasta).sql;
        t.una_fila = "SELECT " + Emitir(lista, desde).sql + ' ' + de + " WHERE " + fila + "=?";
        t.texto_filas_antes = "SELECT " + fila + ' ' + de + " WHERE (";
        t.texto_filas_despues = ")";
        if (donde >= 0)
            t.texto_filas_despues += " AND (" + Original(donde + 1, Primera({orden, limite})) + ')';
        t.texto_filas_despues += " ORDER BY " + filas;
    }

    QByteArray Original(int a, int b) const
    {
        if (a >= b) return {};
        const int ini = fichas[std::size_t(a)].ini;
        return fuente.mid(ini, fichas[std::size_t(b - 1)].fin - ini);
    }

    static void Juntar(Sentencia_Sql& s, const Sentencia_Sql& otra)
    {
        s.sql += ' ' + otra.sql;
        s.valores.insert(s.valores.end(), otra.valores.begin(), otra.valores.end());
    }

    // The tokens from `a` to before `b`, in SQLite's grammar.
    Sentencia_Sql Emitir(int a, int b) const
    {
        Sentencia_Sql s;
        s.sql.reserve(fuente.size() + 32);
        bool elevar = false;
        std::vector<bool> pila;
        for (int k = a; k < b; ++k) {
            const Ficha& f = fichas[std::size_t(k)];
            if (!s.sql.isEmpty() && f.ini > fichas[std::size_t(k) - 1].fin) s.sql += ' ';
            if (Es(k, "(")) pila.push_back(elevar);
            if (Es(k, ")") && !pila.empty()) {
                elevar = pila.back();
                pila.pop_back();
            }
            if (Es_Alguna(k, {"WHERE", "VALUES", "SET", "ON"}))
                elevar = !(es_select && k >= lista && k < desde);
            else if (Es_Alguna(k, {"SELECT", "ORDER", "GROUP", "HAVING"}))
                elevar = false;
            Emitir_Ficha(s, k, elevar);
        }
        return s;
    }

    void Emitir_Ficha(Sentencia_Sql& s, int k, bool elevar) const
    {
        const Ficha& f = fichas[std::size_t(k)];
        switch (f.clase) {
        case Clase::Hueco:
            s.sql += '?';
            s.valores.push_back({});
            return;
        case Clase::Texto:
            if (Cerrado(k)) return Emitir_Texto(s, Contenido(k), elevar);
            break;
        case Clase::Numero:
            if (elevar && Emitir_Numero(s, Texto(k))) return;
            break;
        case Clase::Palabra:
            if (Es_Alguna(k, {"LEFT", "RIGHT", "ISNULL"}) && Es(k + 1, "(")) {
                s.sql += '"' + Texto(k) + '"';
                return;
            }
            break;
        case Clase::Nombre:
        case Clase::Simbolo:
            break;
        }
        s.sql.append(fuente.constData() + f.ini, f.fin - f.ini);
    }

    bool Cerrado(int k) const
    {
        const Ficha& f = fichas[std::size_t(k)];
        return f.fin - f.ini >= 2 && fuente[f.fin - 1] == fuente[f.ini];
    }

    QByteArray Contenido(int k) const
    {
        const QByteArray t = Texto(k);
        const char comilla = t[0];
        return t.mid(1, t.size() - 2).replace(QByteArray(2, comilla), QByteArray(1, comilla));
    }

    static void Emitir_Texto(Sentencia_Sql& s, const QByteArray& contenido, bool elevar)
    {
        if (elevar) {
            s.sql += '?';
            s.valores.push_back({Valor_Sql::Tipo::Texto, contenido, 0, 0});
        } else if (contenido.contains('\0')) {
            // SQLite's text ends at a zero byte; the byte itself may stand in received data.
            s.sql += "CAST(x'" + contenido.toHex() + "' AS TEXT)";
        } else {
            QByteArray doblado = contenido;
            s.sql += '\'' + doblado.replace("'", "''") + '\'';
        }
    }

    static bool Emitir_Numero(Sentencia_Sql& s, const QByteArray& texto)
    {
        Valor_Sql v;
        bool bien = false;
        v.entero = texto.toLongLong(&bien);
        v.tipo = Valor_Sql::Tipo::Entero;
        if (!bien) {
            v.real = texto.toDouble(&bien);
            v.tipo = Valor_Sql::Tipo::Real;
        }
        if (!bien) return false;
        s.sql += '?';
        s.valores.push_back(v);
        return true;
    }

    QByteArray fuente;
    std::vector<Ficha> fichas;
    bool es_select = false, distinta = false, agrupada = false;
    int lista = 0, desde = -1, donde = -1, orden = -1, limite = -1, fin = 0;
    std::vector<Origen> origenes;
};

} // namespace

Traduccion Traducir(const QString& sql)
{
    return Traductor(sql).Hacer();
}

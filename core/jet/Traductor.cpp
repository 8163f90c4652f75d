#include "core/jet/Traductor.h"

#include "core/jet/Esquema.h"
#include "core/jet/Fichas_Sql.h"
#include "core/jet/Gramatica.h"

#include <algorithm>
#include <initializer_list>

namespace {

// One of the tables that a SELECT reads, as its columns are spoken of.
struct Origen {
    QString tabla;
    QByteArray alias;
};

class Traductor {
public:
    explicit Traductor(const QString& sql) : fuente(sql.toUtf8()), fichas(Leer_Fichas(fuente)) {}

    Traduccion Hacer()
    {
        Comprobar_Gramatica(fuente, fichas);
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

    const Ficha_Sql& En(int k) const { return fichas[std::size_t(k)]; }
    bool Fuera(int k) const { return En(k).nivel == 0; }
    bool Es(int k, Pieza pieza) const { return k >= 0 && k < n() && En(k).pieza == pieza; }

    bool Es_Alguna(int k, std::initializer_list<Pieza> piezas) const
    {
        return k >= 0 && k < n() &&
               std::find(piezas.begin(), piezas.end(), En(k).pieza) != piezas.end();
    }

    bool Es_Nombre(int k) const
    {
        return k < n() &&
               (En(k).clase == Clase_Ficha::Palabra || En(k).clase == Clase_Ficha::Nombre);
    }

    QByteArray Texto(int k) const
    {
        const Ficha_Sql& f = En(k);
        return fuente.mid(f.ini, f.fin - f.ini);
    }

    // Finds the clauses of the outermost SELECT.
    void Partir()
    {
        es_select = Es(0, Pieza::Select);
        if (!es_select) return;
        lista = 1;
        if (Es_Alguna(1, {Pieza::Distinct, Pieza::All})) {
            distinta = Es(1, Pieza::Distinct);
            lista = 2;
        }
        fin = n();
        if (fin > 0 && Es(fin - 1, Pieza::Punto_Y_Coma)) --fin;
        for (int k = lista; k < fin; ++k) {
            const bool fuera = Fuera(k);
            if (desde < 0 && Es(k, Pieza::Resumir) && Es(k + 1, Pieza::Abre) &&
                !Dentro_De_Subconsulta(k))
                agrupada = true;
            if (!fuera) continue;
            if (desde < 0 && Es(k, Pieza::From)) desde = k;
            if (Es(k, Pieza::Where)) donde = k;
            if (Es_Alguna(k, {Pieza::Group, Pieza::Having, Pieza::Combinar})) agrupada = true;
            if (Es(k, Pieza::Order) && Es(k + 1, Pieza::By)) orden = k;
            if (Es(k, Pieza::Limit)) limite = k;
        }
        if (desde < 0) es_select = false;
    }

    bool Dentro_De_Subconsulta(int k) const
    {
        const int nivel = En(k).nivel;
        for (int j = k - 1; j >= lista; --j)
            if (En(j).nivel <= nivel && nivel > 0 && Es(j, Pieza::Select)) return true;
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
            if (Es(k, Pieza::As)) ++k;
            if (k < hasta && Es_Nombre(k) && !Es_De_Union(k)) alias = Texto(k++);
            origenes.push_back({tabla->nombre, alias});
            if (Es(k, Pieza::On))
                while (k < hasta && !(Fuera(k) && (Es(k, Pieza::Coma) || Es_De_Cruce(k))))
                    ++k;
            if (k >= hasta) break;
            if (Es(k, Pieza::Coma)) {
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
        if (Es_Alguna(k, {Pieza::Left, Pieza::Right}) && Es(k + 1, Pieza::Abre)) return false;
        return Es_Alguna(k, {Pieza::Left, Pieza::Right, Pieza::Inner, Pieza::Outer, Pieza::Cross,
                             Pieza::Full, Pieza::Join});
    }

    bool Es_De_Union(int k) const { return Es(k, Pieza::On) || Es_De_Cruce(k); }

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
            if (Es(k, Pieza::Asterisco) &&
                (k == lista || Es_Alguna(k - 1, {Pieza::Punto, Pieza::Coma})))
                return true;
        return false;
    }

    bool Hay_Hueco(int a, int b) const
    {
        for (int k = a; k < b; ++k)
            if (En(k).clase == Clase_Ficha::Hueco) return true;
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
            while (hasta < desde && !(Fuera(hasta) && Es(hasta, Pieza::Coma)))
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
        if (b - a >= 3 && Es(b - 2, Pieza::As)) return b - 2;
        if (b - a >= 2 && Es_Nombre(b - 1)) {
            const Ficha_Sql& antes = En(b - 2);
            if (antes.clase != Clase_Ficha::Simbolo || Es(b - 2, Pieza::Cierra)) return b - 1;
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
        const int ini = En(a).ini;
        return fuente.mid(ini, En(b - 1).fin - ini);
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
            const Ficha_Sql& f = En(k);
            if (!s.sql.isEmpty() && f.ini > En(k - 1).fin) s.sql += ' ';
            if (Es(k, Pieza::Abre)) pila.push_back(elevar);
            if (Es(k, Pieza::Cierra) && !pila.empty()) {
                elevar = pila.back();
                pila.pop_back();
            }
            if (Es_Alguna(k, {Pieza::Where, Pieza::Values, Pieza::Set, Pieza::On}))
                elevar = !(es_select && k >= lista && k < desde);
            else if (Es_Alguna(k, {Pieza::Select, Pieza::Order, Pieza::Group, Pieza::Having}))
                elevar = false;
            Emitir_Ficha(s, k, elevar);
        }
        return s;
    }

    void Emitir_Ficha(Sentencia_Sql& s, int k, bool elevar) const
    {
        const Ficha_Sql& f = En(k);
        switch (f.clase) {
        case Clase_Ficha::Hueco:
            s.sql += '?';
            s.valores.push_back({});
            return;
        case Clase_Ficha::Texto:
            if (Cerrado(k)) return Emitir_Texto(s, Contenido(k), elevar);
            break;
        case Clase_Ficha::Numero:
            if (elevar && Emitir_Numero(s, Texto(k))) return;
            break;
        case Clase_Ficha::Palabra:
            if (Es_Alguna(k, {Pieza::Left, Pieza::Right, Pieza::Isnull}) &&
                Es(k + 1, Pieza::Abre)) {
                s.sql += '"' + Texto(k) + '"';
                return;
            }
            break;
        case Clase_Ficha::Nombre:
        case Clase_Ficha::Simbolo:
            break;
        }
        s.sql.append(fuente.constData() + f.ini, f.fin - f.ini);
    }

    bool Cerrado(int k) const
    {
        const Ficha_Sql& f = En(k);
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
    std::vector<Ficha_Sql> fichas;
    bool es_select = false, distinta = false, agrupada = false;
    int lista = 0, desde = -1, donde = -1, orden = -1, limite = -1, fin = 0;
    std::vector<Origen> origenes;
};

} // namespace

Traduccion Traducir(const QString& sql)
{
    return Traductor(sql).Hacer();
}

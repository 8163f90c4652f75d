#include "core/Trozos.h"

#include "core/Basico.h"

namespace {

// Where token `n` lies: its first place and the place behind its last; nothing when it isn't there.
struct Tramo {
    qsizetype desde = -1, hasta = -1;
    bool hay() const { return desde >= 0; }
};

template <typename Separador>
Tramo Situar(qint64 n, const QString& cadena, Separador sep, qsizetype largo_sep)
{
    if (n < 1 || largo_sep == 0) return n == 1 ? Tramo{0, cadena.size()} : Tramo{};
    qsizetype desde = 0;
    for (; n > 1; --n) {
        const qsizetype p = cadena.indexOf(sep, desde);
        if (p < 0) return {};
        desde = p + largo_sep;
    }
    const qsizetype p = cadena.indexOf(sep, desde);
    return {desde, p < 0 ? cadena.size() : p};
}

} // namespace

QString Trozo(qint64 n, const QString& cadena, const QString& sep)
{
    const Tramo t = Situar(n, cadena, QStringView(sep), sep.size());
    return t.hay() ? cadena.mid(t.desde, t.hasta - t.desde) : QString();
}

QString Trozo(qint64 n, const QString& cadena, QChar sep)
{
    const Tramo t = Situar(n, cadena, sep, 1);
    return t.hay() ? cadena.mid(t.desde, t.hasta - t.desde) : QString();
}

qint64 Contar_Trozos(const QString& cadena, const QString& sep)
{
    return sep.isEmpty() ? 1 : cadena.count(sep) + 1;
}

qint64 Buscar_Trozo(const QString& cadena, const QString& buscado, const QString& sep)
{
    const qint64 n = Contar_Trozos(cadena, sep);
    for (qint64 i = 1; i <= n; ++i)
        if (Trozo(i, cadena, sep) == buscado) return i;
    return 0;
}

QString Sacar_Trozo(qint64 n, QString& cadena, const QString& sep)
{
    const Tramo t = Situar(1, cadena, QStringView(sep), sep.size());
    QString primero = cadena.left(t.hasta);
    if (n != 1) cadena = t.hasta == cadena.size() ? QString() : cadena.mid(t.hasta + sep.size());
    return primero;
}

QString Cambiar_Trozo(const QString& cadena, const QString& nuevo, qint64 n, const QString& sep)
{
    const Tramo t = Situar(n, cadena, QStringView(sep), sep.size());
    return t.hay() ? cadena.left(t.desde) + nuevo + cadena.mid(t.hasta) : QString();
}

QString Insertar_Trozo(const QString& cadena, const QString& nuevo, qint64 n, const QString& sep)
{
    const Tramo t = Situar(n, cadena, QStringView(sep), sep.size());
    return t.hay() ? cadena.left(t.desde) + nuevo + sep + cadena.mid(t.desde)
                   : cadena + sep + nuevo;
}

QString Quitar_Trozo(const QString& cadena, qint64 n, const QString& sep)
{
    const Tramo t = Situar(n, cadena, QStringView(sep), sep.size());
    if (!t.hay()) return {};
    if (t.hasta < cadena.size()) return cadena.left(t.desde) + cadena.mid(t.hasta + sep.size());
    return cadena.left(t.desde == 0 ? 0 : t.desde - sep.size());
}

QString Reemplazar(const QString& cadena, const QString& buscado, const QString& nuevo)
{
    if (buscado.isEmpty()) return cadena;
    QString texto = cadena;
    return texto.replace(buscado, nuevo);
}

bool Contiene_Caracter(const QString& c, const QString& cadena)
{
    return c.size() == 1 && cadena.contains(c[0]);
}

int Valor_Tras_Caracter(const QString& c, const QString& cadena)
{
    const qsizetype p = c.isEmpty() ? -1 : cadena.indexOf(c);
    return p < 0 ? 99 : Basico::CInt(Basico::Val(cadena.mid(p + 1, 2)));
}

QString Rellenar_Ceros(const QString& valor, int n)
{
    return Basico::Right(QString(qMax(0, n - int(valor.size())), u'0') + valor, n);
}

QString Quitar_Espacios_Dobles(const QString& cadena)
{
    QString texto = Basico::Trim(cadena);
    while (texto.contains(QStringLiteral("  ")))
        texto.replace(QStringLiteral("  "), QStringLiteral(" "));
    return texto;
}

QString Lista_SQL(const QStringList& elementos)
{
    QString lista;
    for (qsizetype i = 0; i + 1 < elementos.size(); ++i)
        lista += (i ? QStringLiteral(",'") : QStringLiteral("'")) + Basico::Trim(elementos[i]) +
                 QStringLiteral("' ");
    return lista;
}

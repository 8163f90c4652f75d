#include "conversions/ejes/Geometria_Eje.h"
#include "conversions/ejes/Singulares.h"
#include "conversions/landxml/Documento_LandXML.h"
#include "conversions/landxml/Lectores_LandXML.h"
#include "conversions/suelo/Campos_Fuente.h"

#include <cmath>
#include <QSet>

using namespace Geometria_Eje;

namespace {

/// A point of an element: its own coordinates, or the name of a CgPoint.
struct Punto_Crudo {
    std::optional<Punto_Plano> punto;
    QString referencia;
};

/// An element as it stands in the file, in the file's unit.
struct Elemento_Crudo {
    QString tipo, giro, tipo_espiral, radio_inicio, radio_fin, longitud;
    Punto_Crudo inicio, fin, centro, pi;
    qint64 linea = 0;
};

struct Eje_Crudo {
    QString nombre, pk_inicio;
    std::vector<Elemento_Crudo> elementos;
    qint64 linea = 0;
};

/// CgPoints by name. A survey may hold millions: beyond `MAXIMO` they are let go, and those that an
/// element names are looked for in a second pass.
class Puntos_Cg {
public:
    static constexpr qsizetype MAXIMO = 50000;

    bool incompletos = false;
    QSet<QString> buscados; ///< when it isn't empty, only these are kept

    /// Notes the current element.
    void Anotar(Documento_LandXML& d)
    {
        if (buscados.isEmpty() && puntos.size() >= MAXIMO) {
            incompletos = true;
            return;
        }
        const QString nombre = d.Atributo("name");
        if (nombre.isEmpty() || (!buscados.isEmpty() && !buscados.contains(nombre))) return;
        if (puntos.contains(nombre)) return;
        const auto n = Lista_De_Numeros(d.Texto());
        if (n && n->size() >= 2) puntos.insert(nombre, {(*n)[1], (*n)[0]});
    }

    std::optional<Punto_Plano> Buscar(const QString& nombre) const
    {
        const auto i = puntos.find(nombre);
        return i == puntos.end() ? std::nullopt : std::optional(*i);
    }

private:
    QHash<QString, Punto_Plano> puntos;
};

Punto_Crudo Leer_Punto(Documento_LandXML& d)
{
    Punto_Crudo p;
    const QString referencia = d.Atributo("pntRef");
    const QString texto = d.Texto();
    if (texto.trimmed().isEmpty()) {
        p.referencia = referencia;
    } else if (const auto n = Lista_De_Numeros(texto); n && n->size() >= 2) {
        p.punto = Punto_Plano{(*n)[1], (*n)[0]};
    }
    return p;
}

Elemento_Crudo Leer_Elemento(Documento_LandXML& d)
{
    Elemento_Crudo e;
    e.tipo = d.Nombre().toString();
    e.linea = d.Linea();
    e.giro = d.Atributo("rot");
    e.tipo_espiral = d.Atributo("spiType");
    e.radio_inicio = d.Atributo("radiusStart");
    e.radio_fin = d.Atributo("radiusEnd");
    e.longitud = d.Atributo("length");
    while (d.Hijo()) {
        Punto_Crudo* destino = d.Se_Llama(u"Start")    ? &e.inicio
                               : d.Se_Llama(u"End")    ? &e.fin
                               : d.Se_Llama(u"Center") ? &e.centro
                               : d.Se_Llama(u"PI")     ? &e.pi
                                                       : nullptr;
        if (destino) {
            *destino = Leer_Punto(d);
        } else {
            d.Saltar();
        }
    }
    return e;
}

void Leer_Geometria(Documento_LandXML& d, Eje_Crudo& eje)
{
    static constexpr QStringView TIPOS[] = {u"Line", u"Curve", u"Spiral", u"IrregularLine",
                                            u"Chain"};
    while (d.Hijo()) {
        bool conocido = false;
        for (const QStringView tipo : TIPOS)
            conocido = conocido || d.Se_Llama(tipo);
        if (conocido) {
            eje.elementos.push_back(Leer_Elemento(d));
        } else {
            d.Saltar();
        }
    }
}

/// Turns the raw elements into an axis.
class Montaje {
public:
    Montaje(const Puntos_Cg& puntos_cg, double metros, Informe_Lectura& notas)
        : puntos(puntos_cg), escala(metros), informe(notas)
    {
    }

    Eje Montar(const Eje_Crudo& crudo)
    {
        eje.nombre = crudo.nombre;
        eje.pk_inicio = Numero_O(crudo.pk_inicio, crudo.linea) * escala;
        for (const Elemento_Crudo& e : crudo.elementos)
            Anadir(e);
        if (eje.elementos.empty())
            throw Fallo_Conversion{QStringLiteral("El eje no tiene ningún elemento válido"),
                                   crudo.linea, crudo.nombre};
        eje.azimut_fin = Final(eje.elementos.back()).azimut;
        return eje;
    }

private:
    const Puntos_Cg& puntos;
    double escala;
    Informe_Lectura& informe;
    Eje eje;
    bool hay_anterior = false;

    double Numero_O(const QString& texto, qint64 linea)
    {
        if (texto.isEmpty()) return 0;
        const auto n = Numero(texto);
        if (!n) informe.Omitir(linea, texto, QStringLiteral("El P.K. de inicio no es un número"));
        return n.value_or(0);
    }

    static std::optional<double> Numero(const QString& texto)
    {
        const QByteArray bytes = texto.toLatin1();
        return Campos_Fuente::Numero(bytes, Campos_Fuente::Marca::Punto);
    }

    std::optional<Punto_Plano> Situar(const Punto_Crudo& p) const
    {
        auto q = p.punto;
        if (!q && !p.referencia.isEmpty()) q = puntos.Buscar(p.referencia);
        if (q) q = Punto_Plano{q->x * escala, q->y * escala};
        return q;
    }

    /// 1/R of a radius attribute, without side; nothing when it is no radius.
    std::optional<double> Curvatura_De(const QString& radio) const
    {
        if (radio.compare(u"INF", Qt::CaseInsensitive) == 0 ||
            radio.compare(u"-INF", Qt::CaseInsensitive) == 0)
            return 0;
        const auto n = Numero(radio);
        if (!n) return {};
        return std::abs(Curvatura(*n * escala));
    }

    /// Side of `rot`: 1 right, -1 left, 0 unknown.
    static int Lado(const QString& giro)
    {
        return giro.compare(u"cw", Qt::CaseInsensitive) == 0    ? 1
               : giro.compare(u"ccw", Qt::CaseInsensitive) == 0 ? -1
                                                                : 0;
    }

    void Anadir(const Elemento_Crudo& crudo)
    {
        const auto inicio = Situar(crudo.inicio), fin = Situar(crudo.fin);
        if (!inicio || !fin) {
            informe.Omitir(crudo.linea, crudo.tipo,
                           QStringLiteral("Elemento sin principio o sin final, se omite"));
            return;
        }
        if (hay_anterior) Comprobar_Salto(crudo, eje.fin, *inicio, "del final del anterior");
        hay_anterior = true;
        eje.fin = *fin;
        Elemento_Eje e{Clase_Elemento::Recta,
                       *inicio,
                       Azimut(*inicio, *fin),
                       Distancia(*inicio, *fin),
                       0,
                       0,
                       0};
        QString defecto;
        if (crudo.tipo == u"Curve") {
            defecto = Hacer_Arco(crudo, *fin, e);
        } else if (crudo.tipo == u"Spiral") {
            defecto = Hacer_Clotoide(crudo, e);
        } else if (crudo.tipo != u"Line") {
            defecto = QStringLiteral("Elemento irregular");
        }
        if (!defecto.isEmpty())
            informe.Omitir(crudo.linea, crudo.tipo, defecto + ", se sustituye por una recta");
        if (e.longitud < LONGITUD_MINIMA) return;
        Comprobar_Salto(crudo, Final(e).punto, *fin, "de su propio final");
        eje.elementos.push_back(e);
    }

    void Comprobar_Salto(const Elemento_Crudo& crudo, Punto_Plano a, Punto_Plano b,
                         const char* de_que)
    {
        const double salto = Distancia(a, b);
        if (salto > SALTO_MAXIMO)
            informe.Omitir(crudo.linea, crudo.tipo,
                           QStringLiteral("El elemento queda a %1 m ").arg(salto, 0, 'f', 3) +
                               QString::fromLatin1(de_que));
    }

    /// Makes `e`, which holds the chord, an arc. @return why it can't, or an empty text
    QString Hacer_Arco(const Elemento_Crudo& crudo, Punto_Plano fin, Elemento_Eje& e) const
    {
        const auto centro = Situar(crudo.centro);
        if (!centro) return QStringLiteral("Curva sin centro");
        const int lado = Lado(crudo.giro);
        if (lado == 0) return QStringLiteral("Curva sin sentido de giro");
        const double radio = Distancia(*centro, e.inicio);
        if (std::abs(radio - Distancia(*centro, fin)) > SALTO_MAXIMO || radio < RADIO_MINIMO)
            return QStringLiteral("Curva con dos radios distintos");
        if (e.longitud < LONGITUD_MINIMA) return {};
        const double hacia_inicio = Azimut(*centro, e.inicio);
        double giro = lado * (Azimut(*centro, fin) - hacia_inicio);
        if (giro < 0) giro += 2 * std::numbers::pi;
        e.clase = Clase_Elemento::Arco;
        e.azimut = hacia_inicio + lado * std::numbers::pi / 2;
        e.k1 = e.k2 = lado / radio;
        e.longitud = radio * giro;
        return {};
    }

    /// Makes `e`, which holds the chord, a clothoid. @return why it can't, or an empty text
    QString Hacer_Clotoide(const Elemento_Crudo& crudo, Elemento_Eje& e) const
    {
        if (crudo.tipo_espiral.compare(u"clothoid", Qt::CaseInsensitive) != 0)
            return QStringLiteral("Curva de transición que no es clotoide");
        const auto pi = Situar(crudo.pi);
        const auto longitud = Numero(crudo.longitud);
        const auto k1 = Curvatura_De(crudo.radio_inicio), k2 = Curvatura_De(crudo.radio_fin);
        const int lado = Lado(crudo.giro);
        if (!pi || !longitud || !k1 || !k2 || lado == 0 || *longitud <= 0 || *k1 == *k2 ||
            Distancia(e.inicio, *pi) == 0)
            return QStringLiteral("Clotoide con datos imposibles");
        e.clase = Clase_Elemento::Clotoide;
        e.azimut = Azimut(e.inicio, *pi);
        e.longitud = *longitud * escala;
        e.k1 = lado * *k1;
        e.k2 = lado * *k2;
        e.A = std::sqrt(e.longitud / std::abs(e.k2 - e.k1));
        return {};
    }
};

/// Calls `geometria` at the CoordGeom of the current alignment; what it leaves is passed over.
/// @return true when there is one
bool Buscar_Geometria(Documento_LandXML& d, const std::function<void()>& geometria)
{
    bool hay = false;
    while (d.Hijo()) {
        if (d.Se_Llama(u"CoordGeom")) {
            hay = true;
            geometria();
        } else {
            d.Saltar();
        }
    }
    return hay;
}

/// Names that the elements refer to and no CgPoint has given yet.
QSet<QString> Sin_Punto(const Eje_Crudo& eje, const Puntos_Cg& puntos)
{
    QSet<QString> nombres;
    for (const Elemento_Crudo& e : eje.elementos)
        for (const Punto_Crudo* p : {&e.inicio, &e.fin, &e.centro, &e.pi})
            if (!p->referencia.isEmpty() && !puntos.Buscar(p->referencia)) nombres << p->referencia;
    return nombres;
}

void Buscar_Puntos(QIODevice& dispositivo, Puntos_Cg& puntos)
{
    if (!dispositivo.seek(0)) return;
    Documento_LandXML d(dispositivo);
    d.Recorrer([] {}, [&] { puntos.Anotar(d); });
}

} // namespace

QStringList Listar_Ejes_LandXML(QIODevice& dispositivo)
{
    QStringList nombres;
    Documento_LandXML d(dispositivo);
    d.Recorrer([&] {
        const QString nombre = d.Atributo("name");
        if (Buscar_Geometria(d, [&] { d.Saltar(); })) nombres << nombre;
    });
    return nombres;
}

Eje Leer_Eje_LandXML(QIODevice& dispositivo, int indice, Informe_Lectura& informe)
{
    std::optional<Eje_Crudo> elegido;
    Puntos_Cg puntos;
    int contados = 0;
    Documento_LandXML d(dispositivo);
    d.Recorrer(
        [&] {
            Eje_Crudo eje{d.Atributo("name"), d.Atributo("staStart"), {}, d.Linea()};
            const bool este = contados == indice;
            const bool hay =
                Buscar_Geometria(d, [&] { este ? Leer_Geometria(d, eje) : d.Saltar(); });
            if (hay && este) elegido = std::move(eje);
            if (hay) ++contados;
        },
        [&] { puntos.Anotar(d); });
    if (!elegido)
        throw Fallo_Conversion{QStringLiteral("El fichero no tiene el eje %1").arg(indice), 0, {}};
    if (puntos.incompletos) {
        puntos.buscados = Sin_Punto(*elegido, puntos);
        if (!puntos.buscados.isEmpty()) Buscar_Puntos(dispositivo, puntos);
    }
    return Montaje(puntos, d.Escala(), informe).Montar(*elegido);
}

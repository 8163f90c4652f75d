#include "conversions/puntos/Nivel_IGN.h"

#include "conversions/suelo/Campos_Fuente.h"
#include "conversions/suelo/Cifras.h"
#include "core/Ansi.h"
#include "session/Nivel.h"

#include <array>

namespace Nivel_IGN {

namespace {

QString Campo(QStringView linea, int n)
{
    return Texto_Campo_NV400(linea, n).trimmed();
}

// Number of a field in metres; nothing when it is empty. The raw number is an integer of the unit.
std::optional<double> En_Metros(const Texto_Fuente& fuente, const QString& linea, int n)
{
    const QString crudo = Campo(linea, n);
    if (crudo.isEmpty()) return {};
    const auto numero = Campos_Fuente::Numero(Ansi::A_Bytes(crudo), Campos_Fuente::Marca::Punto);
    if (!numero) fuente.Fallar(QStringLiteral("El campo %1 no es un número").arg(n));
    return *numero / Divisor_NV400(Tipo_NV400(linea), n, linea[3]).value();
}

class Lector {
public:
    Lector(Texto_Fuente& f, Informe_Lectura& i) : fuente(f), informe(i) {}

    Itinerario Leer()
    {
        bool primera = true;
        while (fuente.Siguiente()) {
            const QString linea = fuente.Texto();
            if (primera) libro.nombre = Campo(linea, 2);
            primera = false;
            Leer_Linea(linea);
        }
        Formar_Estaciones();
        if (libro.estaciones.empty())
            throw Fallo_Conversion{
                QStringLiteral("No hay ninguna estación completa (espalda y frente)"), 0, {}};
        return std::move(libro);
    }

private:
    struct Leida {
        char tipo = 0;
        Visual visual;
        qint64 linea = 0;
    };

    void Leer_Linea(const QString& linea)
    {
        const char tipo = Tipo_NV400(linea).toLatin1();
        switch (tipo) {
        case 'b':
            Exigir_Metros(linea);
            if (!hay_trabajo) libro.nombre = Campo(linea, 2);
            hay_trabajo = true;
            if (!libro.cota_salida) libro.cota_salida = En_Metros(fuente, linea, 4);
            break;
        case 'g':
        case 'h':
        case 'i':
        case 'j':
            Exigir_Metros(linea);
            Leer_Visual(tipo, linea);
            break;
        case 'w':
        case 'v':
            if (!hay_fecha) libro.fecha = Fecha(Campo(linea, 4));
            hay_fecha = true;
            break;
        default:
            break;
        }
    }

    void Leer_Visual(char tipo, const QString& linea)
    {
        const auto lectura = En_Metros(fuente, linea, 2);
        if (!lectura) fuente.Fallar(QStringLiteral("Falta la lectura de mira"));
        const double distancia = En_Metros(fuente, linea, 3).value_or(0);
        leidas.push_back({tipo, {*lectura, distancia, Campo(linea, 5)}, fuente.Numero()});
        if (tipo == 'h' || tipo == 'j') libro.dobles = true;
    }

    void Exigir_Metros(const QString& linea) const
    {
        const QChar unidad = linea.size() > 3 ? linea[3] : QChar();
        if (!QStringView(u"123").contains(unidad))
            fuente.Fallar(QStringLiteral("La unidad de la línea no es métrica"));
    }

    static QString Fecha(const QString& t)
    {
        if (t.size() != 10) return t;
        return QStringLiteral("%1/%2/%3 %4:%5")
            .arg(t.sliced(0, 2), t.sliced(2, 2), t.sliced(4, 2), t.sliced(6, 2), t.sliced(8, 2));
    }

    void Formar_Estaciones()
    {
        std::array<const Leida*, 4> lugar{}; // g, h, i, j
        const auto omitir = [&](const Leida& l, const QString& motivo) {
            informe.Omitir(l.linea, l.visual.punto, motivo);
        };
        for (const Leida& l : leidas) {
            const Leida*& sitio = lugar[std::size_t(l.tipo - 'g')];
            if (sitio) omitir(*sitio, QStringLiteral("Lectura repetida: vale la última"));
            sitio = &l;
            const auto& [g, h, i, j] = lugar;
            if (!g || !i || (libro.dobles && (!h || !j))) continue;
            Estacion e{g->visual, i->visual, {}, {}};
            if (libro.dobles) {
                e.espalda2 = h->visual;
                e.frente2 = j->visual;
            }
            libro.estaciones.push_back(e);
            lugar = {};
        }
        for (const Leida* l : lugar)
            if (l) omitir(*l, QStringLiteral("Lectura de una estación sin terminar"));
    }

    Texto_Fuente& fuente;
    Informe_Lectura& informe;
    Itinerario libro;
    std::vector<Leida> leidas;
    bool hay_trabajo = false, hay_fecha = false;
};

double Media(double primera, const std::optional<Visual>& segunda, double Visual::*campo)
{
    return segunda ? (primera + *segunda.*campo) / 2 : primera;
}

// What the form shows of a set-up, metres.
struct Calculo {
    double espalda, frente, desnivel;
};

Calculo Calcular(const Estacion& e)
{
    return {Media(e.espalda.distancia, e.espalda2, &Visual::distancia),
            Media(e.frente.distancia, e.frente2, &Visual::distancia),
            Media(e.espalda.lectura, e.espalda2, &Visual::lectura) -
                Media(e.frente.lectura, e.frente2, &Visual::lectura)};
}

QString Numero(double x, int decimales)
{
    return QString::fromLatin1(Cifras::Fijo(x, decimales));
}

constexpr std::array<int, 14> ANCHOS = {5, 10, 10, 3, 3, 9, 9, 9, 9, 9, 9, 10, 7, 10};
using Fila = std::array<QString, 14>;

QString Recortada(QString linea)
{
    while (linea.endsWith(u' '))
        linea.chop(1);
    return linea + QStringLiteral("\r\n");
}

QString Linea_De(const Fila& fila)
{
    QString linea;
    for (std::size_t i = 0; i < fila.size(); ++i)
        linea += (i ? QStringLiteral(" ") : QString()) + fila[i].rightJustified(ANCHOS[i]);
    return Recortada(linea);
}

Fila Fila_De(const Estacion& e, const Calculo& c, std::size_t numero)
{
    // The staffs leapfrog: the one in front stays where it is and is the one behind of the next.
    const bool impar = numero % 2 == 1;
    Fila fila = {QString::number(numero),    e.espalda.punto,   e.frente.punto,
                 impar ? "1" : "2",          impar ? "2" : "1", Numero(e.espalda.lectura, 5),
                 Numero(e.frente.lectura, 5)};
    if (e.espalda2 && e.frente2) {
        fila[7] = Numero(e.espalda2->lectura, 5);
        fila[8] = Numero(e.frente2->lectura, 5);
        const double dif =
            (e.espalda.lectura - e.frente.lectura) - (e.espalda2->lectura - e.frente2->lectura);
        fila[12] = Numero(dif * 1000, 2);
    }
    fila[9] = Numero(c.espalda, 3);
    fila[10] = Numero(c.frente, 3);
    fila[11] = Numero(c.desnivel, 5);
    return fila;
}

QString Cabecera(const Itinerario& libro, const QStringList& datos)
{
    // A line end inside a text would part the heading.
    const auto dato = [&](qsizetype i) {
        return datos.value(i).replace(u'\r', u' ').replace(u'\n', u' ');
    };
    const std::pair<const char16_t*, QString> lineas[] = {
        {u"TRABAJO: ", libro.nombre}, {u"INSTRUMENTO: ", dato(0)}, {u"MIRA 1: ", dato(1)},
        {u"MIRA 2: ", dato(2)},       {u"OPERADOR: ", dato(3)},    {u"EMPRESA: ", dato(4)},
        {u"FECHA: ", libro.fecha},
    };
    QString texto = QStringLiteral("IGN - LIBRETA DE NIVELACION\r\n");
    for (const auto& [etiqueta, valor] : lineas)
        texto += Recortada(QString::fromUtf16(etiqueta) + valor);
    return texto + QStringLiteral("\r\n");
}

} // namespace

Itinerario Leer(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    return Lector(fuente, informe).Leer();
}

QByteArray Escribir(const Itinerario& libro, const QStringList& datos)
{
    QString texto = Cabecera(libro, datos);
    texto += Linea_De({"EST", "P.ESP", "P.FRE", "ME", "MF", "ESP 1", "FRE 1", "ESP 2", "FRE 2",
                       "D.ESP", "D.FRE", "DESNIVEL", "DIF", "COTA"});
    Calculo total{0, 0, 0};
    for (std::size_t i = 0; i < libro.estaciones.size(); ++i) {
        const Calculo c = Calcular(libro.estaciones[i]);
        total.espalda += c.espalda;
        total.frente += c.frente;
        total.desnivel += c.desnivel;
        Fila fila = Fila_De(libro.estaciones[i], c, i + 1);
        if (libro.cota_salida) fila[13] = Numero(*libro.cota_salida + total.desnivel, 4);
        texto += Linea_De(fila);
    }
    Fila suma;
    suma[0] = QStringLiteral("TOTAL");
    suma[9] = Numero(total.espalda, 3);
    suma[10] = Numero(total.frente, 3);
    suma[11] = Numero(total.desnivel, 5);
    texto += Linea_De(suma);
    return Ansi::A_Bytes(texto);
}

} // namespace Nivel_IGN

#include "conversions/puntos/Lectores_Puntos.h"

#include "conversions/suelo/Campos_Fuente.h"
#include "core/Ansi.h"

#include <algorithm>
#include <cmath>

using namespace Campos_Fuente;

namespace {

constexpr double COTA_MAXIMA_NIVEL = 10000;
constexpr qsizetype NOMBRE_MAXIMO_NIVEL = 8;

// Names begin with letters, so only the signs mark a comment: a point that the office has put out
// of use must not reach the field.
bool Es_Comentario_De_Puntos(QByteArrayView linea)
{
    return QByteArrayView("*;#").contains(Recortar(linea).front());
}

QString Con_Punto(QByteArrayView numero)
{
    return Ansi::A_Texto(numero).replace(u',', u'.');
}

QString Unir(const Lista& campos, qsizetype desde)
{
    QString texto;
    for (qsizetype i = desde; i < campos.size(); ++i)
        texto += (i > desde ? QStringLiteral(" ") : QString()) + Ansi::A_Texto(campos[i]);
    return texto;
}

bool Son_Numeros(const Lista& campos, qsizetype desde, qsizetype cuantos)
{
    for (qsizetype i = desde; i < desde + cuantos; ++i)
        if (!Numero(campos[i])) return false;
    return true;
}

// A level line cut into fields, with the mark that its numbers may have.
struct Linea_Nivel {
    Lista campos;
    Marca marca = Marca::Punto_O_Coma;
};

Linea_Nivel Cortar(QByteArrayView linea)
{
    if (linea.contains(';')) return {Por_Separador(linea, ';'), Marca::Punto_O_Coma};
    if (linea.contains(',')) return {Por_Separador(linea, ','), Marca::Punto};
    return {Por_Blancos(linea), Marca::Punto_O_Coma};
}

bool Cabe_En_Nivel(const QString& texto)
{
    return std::ranges::all_of(texto, [](QChar c) { return c >= u' ' && c <= u'~' && c != u','; });
}

// @return why the level can't hold the point; empty when it can
QString Defecto(const Punto& p, std::optional<double> cota)
{
    if (p.nombre.isEmpty()) return QStringLiteral("El punto no tiene nombre");
    if (p.nombre.size() > NOMBRE_MAXIMO_NIVEL)
        return QStringLiteral("El nombre del punto pasa de 8 caracteres");
    if (!Cabe_En_Nivel(p.nombre))
        return QStringLiteral("El nombre tiene un carácter que el nivel no admite");
    if (!Cabe_En_Nivel(p.codigo))
        return QStringLiteral("El código tiene un carácter que el nivel no admite");
    if (!cota) return QStringLiteral("La cota no es un número");
    if (std::fabs(*cota) >= COTA_MAXIMA_NIVEL)
        return QStringLiteral("La cota no cabe en el nivel (10000 m o más)");
    return {};
}

} // namespace

Puntos Lectores_Puntos::Blancos(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    Puntos puntos;
    while (fuente.Siguiente()) {
        const Lista campos = Por_Blancos(fuente.Linea());
        if (Es_Comentario_De_Puntos(fuente.Linea())) {
            fuente.Omitir(informe, QStringLiteral("Comentario"));
            continue;
        }
        if (campos.size() < 4)
            fuente.Fallar(QStringLiteral("Faltan campos: nombre y tres coordenadas"));
        if (!Son_Numeros(campos, 1, 3))
            fuente.Fallar(QStringLiteral("Una coordenada no es un número"));
        if (campos[0].contains(','))
            fuente.Fallar(QStringLiteral("El nombre del punto tiene una coma"));
        puntos.lista.push_back({Ansi::A_Texto(campos[0]), Con_Punto(campos[1]),
                                Con_Punto(campos[2]), Con_Punto(campos[3]), Unir(campos, 4)});
    }
    if (puntos.lista.empty())
        throw Fallo_Conversion{QStringLiteral("El fichero no contiene ningún punto"), 0, {}};
    return puntos;
}

Puntos Lectores_Puntos::Nivel(Texto_Fuente& fuente, Informe_Lectura& informe)
{
    Puntos puntos;
    while (fuente.Siguiente()) {
        const bool por_separador = fuente.Linea().contains(';') || fuente.Linea().contains(',');
        if (!por_separador && Es_Comentario_De_Puntos(fuente.Linea())) continue;
        const auto [campos, marca] = Cortar(fuente.Linea());
        const qsizetype n = campos.size();
        const auto campo = [&c = campos](qsizetype i) {
            return i < c.size() ? c[i] : QByteArrayView();
        };
        const bool con_xy = n >= 4;
        Punto p{Ansi::A_Texto(campo(0)), con_xy ? Con_Punto(campo(1)) : QString(),
                con_xy ? Con_Punto(campo(2)) : QString(), Con_Punto(campo(con_xy ? 3 : 1)),
                Ansi::A_Texto(campo(con_xy ? 4 : 2))};
        const QString defecto = Defecto(p, Numero(campo(con_xy ? 3 : 1), marca));
        if (defecto.isEmpty())
            puntos.lista.push_back(std::move(p));
        else if (!Es_Comentario_De_Puntos(fuente.Linea()))
            fuente.Omitir(informe, defecto);
    }
    if (puntos.lista.empty())
        throw Fallo_Conversion{QStringLiteral("El fichero no contiene ningún punto válido"), 0, {}};
    return puntos;
}

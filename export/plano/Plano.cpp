#include "export/plano/Plano.h"

#include <algorithm>
#include <cmath>
#include <QHash>

namespace {

constexpr double VECES_LEJANO = 30;

double Mediana(std::vector<double> valores)
{
    const auto medio = valores.begin() + std::ptrdiff_t(valores.size() / 2);
    std::nth_element(valores.begin(), medio, valores.end());
    return *medio;
}

class Suma_Caja {
public:
    void Poner(Lugar_Plano l)
    {
        if (!caja) caja = Caja_Plano{l.x, l.y, l.x, l.y};
        caja->x0 = std::min(caja->x0, l.x);
        caja->x1 = std::max(caja->x1, l.x);
        caja->y0 = std::min(caja->y0, l.y);
        caja->y1 = std::max(caja->y1, l.y);
    }
    std::optional<Caja_Plano> caja;
};

} // namespace

double Distancia(Lugar_Plano a, Lugar_Plano b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

int Plano::Capa(const QString& nombre)
{
    for (int i = 0; i < capas.size(); ++i)
        if (capas[i].nombre == nombre) return i;
    capas.append({nombre, true});
    return int(capas.size()) - 1;
}

void Plano::Poner_Punto(const QString& nombre, Lugar_Plano lugar, std::optional<double> cota,
                        const QString& codigo)
{
    puntos.push_back({nombre, lugar, cota, Capa(QStringLiteral("PUNTOS")), 7});
    const auto rotular = [&](const QString& texto, const QString& capa, int renglon, int color) {
        if (!texto.isEmpty()) textos.push_back({texto, lugar, 0, renglon, Capa(capa), color});
    };
    rotular(nombre, QStringLiteral("NUMEROS"), 0, 1);
    if (cota) rotular(QString::number(*cota, 'f', 3), QStringLiteral("COTAS"), 1, 2);
    rotular(codigo, QStringLiteral("CODIGOS"), -1, 5);
}

void Plano::Marcar()
{
    if (puntos.empty()) return;
    QHash<QString, int> veces;
    std::vector<double> xs, ys, lejos;
    for (const Punto_De_Plano& p : puntos) {
        if (!p.nombre.isEmpty()) ++veces[p.nombre];
        xs.push_back(p.lugar.x);
        ys.push_back(p.lugar.y);
    }
    const Lugar_Plano medio{Mediana(std::move(xs)), Mediana(std::move(ys))};
    for (const Punto_De_Plano& p : puntos)
        lejos.push_back(Distancia(p.lugar, medio));
    const double limite = VECES_LEJANO * Mediana(lejos);
    for (std::size_t i = 0; i < puntos.size(); ++i) {
        puntos[i].repetido = veces.value(puntos[i].nombre) > 1;
        puntos[i].lejano = limite > 0 && lejos[i] > limite;
    }
}

std::optional<Caja_Plano> Plano::Caja() const
{
    Suma_Caja cerca, todo;
    for (const Punto_De_Plano& p : puntos) {
        if (!Visible(p.capa)) continue;
        todo.Poner(p.lugar);
        if (!p.lejano) cerca.Poner(p.lugar);
    }
    for (const Linea_Plano& l : lineas)
        if (Visible(l.capa))
            for (const Lugar_Plano v : l.vertices)
                cerca.Poner(v);
    for (const Texto_Plano& t : textos)
        if (Visible(t.capa) && t.altura > 0) cerca.Poner(t.lugar);
    return cerca.caja ? cerca.caja : todo.caja;
}

const Punto_De_Plano* Plano::Cercano(Lugar_Plano lugar, double radio) const
{
    const Punto_De_Plano* mejor = nullptr;
    for (const Punto_De_Plano& p : puntos) {
        if (!Visible(p.capa)) continue;
        const double d = Distancia(p.lugar, lugar);
        if (d > radio) continue;
        radio = d;
        mejor = &p;
    }
    return mejor;
}

std::optional<Lugar_Plano> Plano::Buscar(const QString& nombre) const
{
    const QString buscado = nombre.trimmed();
    if (buscado.isEmpty()) return std::nullopt;
    const auto es = [&](const QString& texto) {
        return texto.trimmed().compare(buscado, Qt::CaseInsensitive) == 0;
    };
    for (const Punto_De_Plano& p : puntos)
        if (es(p.nombre)) return p.lugar;
    for (const Texto_Plano& t : textos)
        if (es(t.texto)) return t.lugar;
    return std::nullopt;
}

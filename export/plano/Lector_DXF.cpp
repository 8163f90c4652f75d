#include "export/plano/Lector_DXF.h"

#include "core/Ansi.h"
#include "core/Error_Ejecucion.h"

#include <cmath>
#include <functional>
#include <numbers>
#include <QHash>

namespace {

constexpr int POR_CAPA = 256, BLANCO = 7;
constexpr int COMENTARIO = 999; // group that may stand before all others
constexpr double GRADO = std::numbers::pi / 180;

struct Grupo {
    int codigo = 0;
    QByteArrayView valor;
    int linea = 0; // of its value
};

class Grupos {
public:
    explicit Grupos(const QByteArray& b) : bytes(b) {}

    // @return false at the end of the file
    bool Siguiente(Grupo& grupo)
    {
        QByteArrayView codigo;
        if (!Linea(codigo)) return false;
        bool bien = false;
        grupo.codigo = codigo.trimmed().toByteArray().toInt(&bien);
        if (!bien) throw Error_Aqui("no es un código de grupo: " + QString::fromLatin1(codigo));
        if (!Linea(grupo.valor)) throw Error_Aqui("falta el valor del grupo");
        grupo.linea = linea;
        return true;
    }

    Error_Ejecucion Error_Aqui(const QString& motivo) const
    {
        return Error_Ejecucion(13, QStringLiteral("Línea %1: ").arg(linea) + motivo);
    }

private:
    bool Linea(QByteArrayView& texto)
    {
        if (i >= bytes.size()) return false;
        qsizetype fin = bytes.indexOf('\n', i);
        if (fin < 0) fin = bytes.size();
        texto = QByteArrayView(bytes).sliced(i, fin - i);
        if (texto.endsWith('\r')) texto.chop(1);
        i = fin + 1;
        ++linea;
        return true;
    }

    const QByteArray& bytes;
    qsizetype i = 0;
    int linea = 0;
};

// The groups of one entity.
struct Entidad {
    QByteArray clase;
    std::vector<Grupo> grupos;

    const Grupo* Buscar(int codigo) const
    {
        for (const Grupo& g : grupos)
            if (g.codigo == codigo) return &g;
        return nullptr;
    }
    static double Leer(const Grupo& g)
    {
        bool bien = false;
        const double x = g.valor.trimmed().toByteArray().toDouble(&bien);
        if (!bien || !std::isfinite(x))
            throw Error_Ejecucion(13, QStringLiteral("Línea %1: no es un número: ").arg(g.linea) +
                                          QString::fromLatin1(g.valor));
        return x;
    }
    std::optional<double> Numero(int codigo) const
    {
        const Grupo* const g = Buscar(codigo);
        return g ? std::optional(Leer(*g)) : std::nullopt;
    }
    QString Texto(int codigo) const
    {
        const Grupo* const g = Buscar(codigo);
        return g ? Ansi::A_Texto(g->valor) : QString();
    }
    Lugar_Plano En(int codigo) const
    {
        return {Numero(codigo).value_or(0), Numero(codigo + 10).value_or(0)};
    }
};

class Lector {
public:
    explicit Lector(const QByteArray& bytes) : grupos(bytes) {}

    Dibujo_Leido Leer()
    {
        bool acabado = false;
        while (grupos.Siguiente(grupo)) {
            if (grupo.codigo != 0) {
                if (!hay_algo && grupo.codigo != COMENTARIO)
                    throw grupos.Error_Aqui("el fichero no es un dibujo DXF");
                actual.grupos.push_back(grupo);
                continue;
            }
            hay_algo = true;
            Terminar();
            actual.clase = grupo.valor.trimmed().toByteArray();
            if (actual.clase == "EOF") {
                acabado = true;
                break;
            }
        }
        if (!hay_algo) throw Error_Ejecucion(62, "El dibujo está vacío");
        if (!acabado) throw Error_Ejecucion(62, "El dibujo está cortado: le falta el final");
        return std::move(leido);
    }

private:
    void Terminar()
    {
        Entidad entidad;
        std::swap(entidad, actual);
        if (entidad.clase == "SECTION")
            seccion = entidad.Texto(2);
        else if (entidad.clase == "ENDSEC")
            seccion.clear();
        else if (seccion == u"TABLES" && entidad.clase == "LAYER")
            colores[entidad.Texto(2)] = std::abs(int(entidad.Numero(62).value_or(BLANCO)));
        else if (seccion == u"ENTITIES" && !entidad.clase.isEmpty())
            Dibujar(entidad);
    }

    int Color(const Entidad& e) const
    {
        const int color = int(e.Numero(62).value_or(POR_CAPA));
        return color >= 1 && color < POR_CAPA ? color : colores.value(e.Texto(8), BLANCO);
    }

    void Dibujar(const Entidad& e)
    {
        static const QHash<QByteArray, void (Lector::*)(const Entidad&, int)> MODOS = {
            {"POINT", &Lector::Punto},       {"TEXT", &Lector::Texto},
            {"MTEXT", &Lector::Texto},       {"LINE", &Lector::Linea},
            {"LWPOLYLINE", &Lector::Ligera}, {"POLYLINE", &Lector::Abrir_Polilinea},
            {"VERTEX", &Lector::Vertice},    {"SEQEND", &Lector::Cerrar_Polilinea},
            {"CIRCLE", &Lector::Arco},       {"ARC", &Lector::Arco},
        };
        const auto modo = MODOS.find(e.clase);
        if (modo == MODOS.end())
            ++leido.pasadas;
        else
            (this->**modo)(e, leido.plano.Capa(e.Buscar(8) ? e.Texto(8) : QStringLiteral("0")));
    }

    void Punto(const Entidad& e, int capa)
    {
        leido.plano.puntos.push_back({{}, e.En(10), e.Numero(30), capa, Color(e)});
    }
    void Texto(const Entidad& e, int capa)
    {
        const QString texto = e.Texto(1);
        if (texto.trimmed().isEmpty()) return;
        leido.plano.textos.push_back(
            {texto, e.En(10), e.Numero(40).value_or(1), 0, capa, Color(e)});
    }
    void Poner_Linea(std::vector<Lugar_Plano> vertices, const Entidad& e, int capa)
    {
        if (vertices.size() > 1)
            leido.plano.lineas.push_back({std::move(vertices), capa, Color(e)});
    }
    void Linea(const Entidad& e, int capa) { Poner_Linea({e.En(10), e.En(11)}, e, capa); }
    static bool Cerrada(const Entidad& e) { return int(e.Numero(70).value_or(0)) & 1; }
    void Ligera(const Entidad& e, int capa)
    {
        std::vector<Lugar_Plano> vertices;
        for (const Grupo& g : e.grupos) {
            if (g.codigo == 10) vertices.push_back({Entidad::Leer(g), 0});
            if (g.codigo == 20 && !vertices.empty()) vertices.back().y = Entidad::Leer(g);
        }
        if (Cerrada(e) && !vertices.empty()) vertices.push_back(vertices.front());
        Poner_Linea(std::move(vertices), e, capa);
    }
    void Abrir_Polilinea(const Entidad& e, int)
    {
        polilinea = e;
        vertices_abiertos.clear();
    }
    void Vertice(const Entidad& e, int) { vertices_abiertos.push_back(e.En(10)); }
    void Cerrar_Polilinea(const Entidad&, int)
    {
        if (Cerrada(polilinea) && !vertices_abiertos.empty())
            vertices_abiertos.push_back(vertices_abiertos.front());
        Poner_Linea(std::move(vertices_abiertos), polilinea, leido.plano.Capa(polilinea.Texto(8)));
        vertices_abiertos.clear();
    }
    void Arco(const Entidad& e, int capa)
    {
        constexpr int CUERDAS = 72;
        const Lugar_Plano centro = e.En(10);
        const double radio = e.Numero(40).value_or(0), desde = e.Numero(50).value_or(0);
        double hasta = e.Numero(51).value_or(360);
        if (e.clase == "CIRCLE" || hasta <= desde) hasta += e.clase == "CIRCLE" ? 0 : 360;
        std::vector<Lugar_Plano> vertices;
        for (int i = 0; i <= CUERDAS; ++i) {
            const double a = (desde + (hasta - desde) * i / CUERDAS) * GRADO;
            vertices.push_back({centro.x + radio * std::cos(a), centro.y + radio * std::sin(a)});
        }
        Poner_Linea(std::move(vertices), e, capa);
    }

    Grupos grupos;
    Grupo grupo;
    Entidad actual, polilinea;
    std::vector<Lugar_Plano> vertices_abiertos;
    QString seccion;
    QHash<QString, int> colores;
    Dibujo_Leido leido;
    bool hay_algo = false;
};

} // namespace

Dibujo_Leido Leer_DXF(const QByteArray& bytes)
{
    return Lector(bytes).Leer();
}

#include "export/plano/Plano_De_Datos.h"

#include "core/Basico.h"
#include "core/Ficheros.h"
#include "export/dxf/Puntos_DXF.h"
#include "export/Formatear_Datos.h"
#include "export/plano/Lector_DXF.h"
#include "session/Desplazamiento.h"

#include <cmath>
#include <numbers>
#include <QSet>

namespace {

constexpr double GON = std::numbers::pi / 200;

// The fields that a plan is made of, by the places of this list.
enum Campo {
    PUNTO,
    VISADO,
    CODIGO,
    CODIGO_VISADO,
    X,
    Y,
    Z,
    COTA,
    ESTACION,
    X_EST,
    Y_EST,
    Z_EST,
    ALTURA_INST,
    ORIENTACION,
    ACIMUT_ATRAS,
    LECTURA_ATRAS,
    HORIZONTAL,
    VERTICAL,
    DISTANCIA,
    ALTURA_PRISMA
};
const QStringList CAMPOS = {"Punto",
                            "Punto Visado",
                            "Código",
                            "Código Visado",
                            "Coordenada X",
                            "Coordenada Y",
                            "Coordenada Z",
                            "Coordenada Z / Cota",
                            "Estación",
                            "Coordenada X Estación",
                            "Coordenada Y Estación",
                            "Coordenada Z Estación",
                            "Altura Instrumento",
                            "Orientación",
                            "Acimut Atrás",
                            "Lectura Atrás",
                            "Ángulo Horizontal",
                            "Ángulo Vertical",
                            "Distancia Geométrica",
                            "Altura Prisma"};

// One row of the session's table.
class Fila {
public:
    Fila(const Datos_Formateados& d, std::size_t f) : datos(d), fila(f) {}

    QString Texto(Campo campo) const { return datos.filas[campo].Celda(fila).trimmed(); }
    QString Texto(Campo campo, Campo otro) const
    {
        const QString texto = Texto(campo);
        return texto.isEmpty() ? Texto(otro) : texto;
    }
    std::optional<double> Numero(Campo campo) const
    {
        return Basico::Numero_O_Nada(datos.filas[campo].Celda(fila));
    }
    std::optional<Lugar_Plano> Sitio(Campo x, Campo y) const
    {
        const auto a = Numero(x), b = Numero(y);
        return a && b ? std::optional(Lugar_Plano{*a, *b}) : std::nullopt;
    }
    std::optional<double> Orientacion() const
    {
        if (const auto propia = Numero(ORIENTACION)) return propia;
        const auto acimut = Numero(ACIMUT_ATRAS), lectura = Numero(LECTURA_ATRAS);
        return acimut && lectura ? std::optional(*acimut - *lectura) : std::nullopt;
    }
    bool Con_Medida() const { return Numero(HORIZONTAL) && Numero(DISTANCIA); }

private:
    const Datos_Formateados& datos;
    std::size_t fila;
};

// A measured row's point. @return false when something that is needed is missing
bool Poner_Visado(Plano& plano, const Fila& f)
{
    const auto estacion = f.Sitio(X_EST, Y_EST);
    const auto orientacion = f.Orientacion();
    const auto vertical = f.Numero(VERTICAL);
    if (!estacion || !orientacion || !vertical) return false;
    const Visual visual{*f.Numero(HORIZONTAL), *vertical, *f.Numero(DISTANCIA)};
    const auto suelo = f.Numero(Z_EST), instrumento = f.Numero(ALTURA_INST),
               prisma = f.Numero(ALTURA_PRISMA);
    std::optional<double> cota;
    if (suelo && instrumento && prisma)
        cota = *suelo + *instrumento + visual.distancia * std::cos(visual.vertical * GON) - *prisma;
    plano.Poner_Punto(f.Texto(PUNTO, VISADO), Radiar(*estacion, *orientacion, visual), cota,
                      f.Texto(CODIGO, CODIGO_VISADO));
    return true;
}

void Poner_Estacion(Plano& plano, const Fila& f, QSet<QString>& puestas)
{
    const auto lugar = f.Sitio(X_EST, Y_EST);
    const QString nombre = f.Texto(ESTACION);
    const QString clave = QStringLiteral("%1 %2 %3")
                              .arg(nombre)
                              .arg(lugar ? lugar->x : 0, 0, 'f', 3)
                              .arg(lugar ? lugar->y : 0, 0, 'f', 3);
    if (!lugar || puestas.contains(clave)) return;
    puestas << clave;
    const int capa = plano.Capa(QStringLiteral("ESTACIONES"));
    plano.puntos.push_back({nombre, *lugar, f.Numero(Z_EST), capa, 3});
    plano.textos.push_back({nombre, *lugar, 0, 0, capa, 3});
}

} // namespace

Lugar_Plano Radiar(Lugar_Plano estacion, double orientacion, const Visual& v)
{
    const double reducida = v.distancia * std::sin(v.vertical * GON);
    const double acimut = (orientacion + v.horizontal) * GON;
    return {estacion.x + reducida * std::sin(acimut), estacion.y + reducida * std::cos(acimut)};
}

Plano_Hecho Plano_De_Sesion(Base& bd, const Sesion_Elegida& sesion)
{
    Quitar_Desplazamientos();
    const Opciones_Exportar opciones;
    Avance_Exportar callado;
    const Datos_Formateados datos =
        Formatear_Datos({bd, sesion.id, sesion.maquina, sesion.ope, {}, CAMPOS, opciones, callado});
    Plano_Hecho hecho;
    QSet<QString> estaciones;
    for (std::size_t i = 0; i < datos.Numero_De_Filas(); ++i) {
        const Fila fila(datos, i);
        Poner_Estacion(hecho.plano, fila, estaciones);
        if (const auto lugar = fila.Sitio(X, Y)) {
            const auto z = fila.Numero(Z);
            hecho.plano.Poner_Punto(fila.Texto(PUNTO), *lugar, z ? z : fila.Numero(COTA),
                                    fila.Texto(CODIGO));
        } else if (!fila.Con_Medida() || !Poner_Visado(hecho.plano, fila)) {
            // A row of general data alone is no point.
            if (fila.Con_Medida() || !fila.Texto(PUNTO).isEmpty()) ++hecho.omitidos;
        }
    }
    hecho.plano.Marcar();
    return hecho;
}

std::optional<Plano_Hecho> Plano_De_Lista(const QByteArray& bytes,
                                          const Pedir_Separador_Lista& preguntar)
{
    const auto lista = Leer_Lista_Puntos(bytes, {}, std::nullopt, preguntar);
    if (!lista) return std::nullopt;
    Plano_Hecho hecho;
    Avance_Exportar callado;
    hecho.omitidos = Para_Cada_Punto(lista->datos, callado, [&](const Punto_Medido& p) {
        hecho.plano.Poner_Punto(p.nombre.trimmed().toString(), {p.x, p.y}, p.z,
                                p.codigo.trimmed().toString());
    });
    hecho.lineas_cortas = lista->lineas_cortas;
    hecho.plano.Marcar();
    return hecho;
}

std::optional<Plano_Hecho> Plano_De_Fichero(const QString& fichero,
                                            const Pedir_Separador_Lista& preguntar)
{
    const QByteArray bytes = Ficheros::Leer(fichero);
    // A drawing begins with a group, whose code is a line of digits alone.
    bool es_codigo = false;
    bytes.left(bytes.indexOf('\n')).trimmed().toInt(&es_codigo);
    if (!es_codigo && !fichero.endsWith(u".dxf", Qt::CaseInsensitive))
        return Plano_De_Lista(bytes, preguntar);
    Dibujo_Leido dibujo = Leer_DXF(bytes);
    return Plano_Hecho{std::move(dibujo.plano), dibujo.pasadas};
}

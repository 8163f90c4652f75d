#include "conversions/landxml/Documento_LandXML.h"
#include "conversions/landxml/Lectores_LandXML.h"
#include "conversions/rasantes/Resolver_Rasante.h"
#include "conversions/suelo/Campos_Fuente.h"

#include <cmath>

namespace {

/// The two halves of a curve count as equal within this, metres.
constexpr double ASIMETRIA = 0.001;

struct Vertice_Crudo {
    QString tipo, texto, longitud, entrada, salida, radio;
    qint64 linea = 0;
};

struct Perfil_Crudo {
    QString nombre;
    std::vector<Vertice_Crudo> vertices;
};

/// Profiles of the current alignment. @param con_vertices  without them only the names are read
std::vector<Perfil_Crudo> Leer_Perfiles(Documento_LandXML& d, bool con_vertices)
{
    std::vector<Perfil_Crudo> perfiles;
    const auto leer_vertice = [&](std::vector<Vertice_Crudo>& vertices) {
        static constexpr QStringView TIPOS[] = {u"PVI", u"ParaCurve", u"CircCurve",
                                                u"UnsymParaCurve"};
        bool conocido = false;
        for (const QStringView tipo : TIPOS)
            conocido = conocido || d.Se_Llama(tipo);
        if (!conocido) {
            d.Saltar();
            return;
        }
        Vertice_Crudo v{d.Nombre().toString(),
                        {},
                        d.Atributo("length"),
                        d.Atributo("lengthIn"),
                        d.Atributo("lengthOut"),
                        d.Atributo("radius"),
                        d.Linea()};
        v.texto = d.Texto();
        vertices.push_back(std::move(v));
    };
    while (d.Hijo()) {
        if (!d.Se_Llama(u"Profile")) {
            d.Saltar();
            continue;
        }
        while (d.Hijo()) {
            if (!d.Se_Llama(u"ProfAlign")) {
                d.Saltar();
                continue;
            }
            perfiles.push_back({d.Atributo("name"), {}});
            if (!con_vertices) {
                d.Saltar();
                continue;
            }
            while (d.Hijo())
                leer_vertice(perfiles.back().vertices);
        }
    }
    return perfiles;
}

QString Eleccion(const QString& alineacion, const std::vector<Perfil_Crudo>& perfiles, size_t i)
{
    return perfiles.size() == 1 ? alineacion : alineacion + u'/' + perfiles[i].nombre;
}

/// A length attribute in metres: 0 when it is missing, nothing when it is no number.
std::optional<double> Longitud(const QString& texto, double escala)
{
    if (texto.isEmpty()) return 0;
    const QByteArray bytes = texto.toLatin1();
    const auto n = Campos_Fuente::Numero(bytes, Campos_Fuente::Marca::Punto);
    return n ? std::optional(*n * escala) : std::nullopt;
}

/// @return nothing when the vertex can't be read
std::optional<Vertice_Fuente> Interpretar(const Vertice_Crudo& crudo, double escala,
                                          Informe_Lectura& informe)
{
    const auto n = Lista_De_Numeros(crudo.texto);
    const auto longitud = Longitud(crudo.longitud, escala);
    const auto entrada = Longitud(crudo.entrada, escala), salida = Longitud(crudo.salida, escala);
    const auto radio = Longitud(crudo.radio, escala);
    if (!n || n->size() < 2 || !longitud || !entrada || !salida || !radio) return {};
    Vertice_Fuente v;
    v.pk = (*n)[0] * escala;
    v.cota = (*n)[1] * escala;
    v.linea = crudo.linea;
    v.texto = crudo.texto;
    if (crudo.tipo == u"UnsymParaCurve") {
        v.valor = *entrada + *salida;
        if (std::abs(*entrada - *salida) > ASIMETRIA)
            informe.Omitir(crudo.linea, crudo.texto,
                           QStringLiteral("Acuerdo asimétrico, se toma simétrico"));
    } else if (crudo.tipo == u"CircCurve" && *longitud == 0) {
        v.dato = Dato_Acuerdo::Kv;
        v.valor = *radio;
    } else if (crudo.tipo != u"PVI") {
        v.valor = *longitud;
    }
    return v;
}

} // namespace

QStringList Listar_Rasantes_LandXML(QIODevice& dispositivo)
{
    QStringList elecciones;
    Documento_LandXML d(dispositivo);
    d.Recorrer([&] {
        const QString alineacion = d.Atributo("name");
        const auto perfiles = Leer_Perfiles(d, false);
        for (size_t i = 0; i < perfiles.size(); ++i)
            elecciones << Eleccion(alineacion, perfiles, i);
    });
    return elecciones;
}

Rasante Leer_Rasante_LandXML(QIODevice& dispositivo, const QString& eleccion,
                             Informe_Lectura& informe)
{
    const QByteArray buscada = Como_En_Lista(eleccion);
    std::optional<Perfil_Crudo> elegido;
    Documento_LandXML d(dispositivo);
    d.Recorrer([&] {
        const QString alineacion = d.Atributo("name");
        const bool puede = !elegido && buscada.startsWith(Como_En_Lista(alineacion));
        auto perfiles = Leer_Perfiles(d, puede);
        for (size_t i = 0; puede && !elegido && i < perfiles.size(); ++i)
            if (Como_En_Lista(Eleccion(alineacion, perfiles, i)) == buscada)
                elegido = std::move(perfiles[i]);
    });
    if (!elegido)
        throw Fallo_Conversion{QStringLiteral("El fichero no tiene esa rasante"), 0, eleccion};
    std::vector<Vertice_Fuente> vertices;
    for (const Vertice_Crudo& crudo : elegido->vertices) {
        if (auto v = Interpretar(crudo, d.Escala(), informe)) {
            vertices.push_back(std::move(*v));
        } else {
            informe.Omitir(crudo.linea, crudo.texto, QStringLiteral("Vértice ilegible, se omite"));
        }
    }
    Rasante rasante = Resolver_Rasante(vertices, informe);
    rasante.nombre = eleccion;
    return rasante;
}

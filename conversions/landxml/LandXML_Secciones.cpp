#include "conversions/landxml/Documento_LandXML.h"
#include "conversions/landxml/Lectores_LandXML.h"
#include "conversions/suelo/Campos_Fuente.h"

#include <QSet>

namespace {

/// The colon parts alignment and surface of a choice, so that none may stand in a name.
QString Sin_Dos_Puntos(QString nombre)
{
    return nombre.replace(u':', u'.');
}

QString Superficie(const Documento_LandXML& d)
{
    const QString nombre = d.Atributo("name");
    return nombre.isEmpty() ? QStringLiteral("Superficie") : Sin_Dos_Puntos(nombre);
}

/// @return true when the current element's points are slopes and distances, which are no profile
bool Por_Pendientes(const Documento_LandXML& d)
{
    return d.Atributo("dataFormat").compare(u"Slope Distance", Qt::CaseInsensitive) == 0;
}

/// Calls `superficie` at each surface of the current alignment's sections, with the section's
/// station attribute and its line.
void Recorrer_Superficies(Documento_LandXML& d,
                          const std::function<void(const QString& pk, qint64 linea)>& superficie)
{
    const auto en_seccion = [&] {
        const QString pk = d.Atributo("sta");
        const qint64 linea = d.Linea();
        while (d.Hijo()) {
            const bool es = d.Se_Llama(u"CrossSectSurf") || d.Se_Llama(u"DesignCrossSectSurf");
            if (es && !Por_Pendientes(d)) {
                superficie(pk, linea);
            } else {
                d.Saltar();
            }
        }
    };
    while (d.Hijo()) {
        if (!d.Se_Llama(u"CrossSects")) {
            d.Saltar();
            continue;
        }
        while (d.Hijo()) {
            if (d.Se_Llama(u"CrossSect")) {
                en_seccion();
            } else {
                d.Saltar();
            }
        }
    }
}

/// Points of the current surface, in the file's unit. A number that can't be read ends it all.
void Leer_Puntos(Documento_LandXML& d, std::vector<Punto_Seccion>& puntos)
{
    while (d.Hijo()) {
        const bool lista = d.Se_Llama(u"PntList2D");
        if ((!lista && !d.Se_Llama(u"CrossSectPnt")) || Por_Pendientes(d)) {
            d.Saltar();
            continue;
        }
        const qint64 linea = d.Linea();
        const QString texto = d.Texto();
        const auto n = Lista_De_Numeros(texto);
        if (!n || n->size() % 2 != 0 || (!lista && n->size() != 2))
            throw Fallo_Conversion{QStringLiteral("Puntos de perfil ilegibles"), linea, texto};
        for (size_t i = 0; i < n->size(); i += 2)
            puntos.push_back({(*n)[i], (*n)[i + 1]});
    }
}

double Leer_PK(const QString& texto, qint64 linea)
{
    const QByteArray bytes = texto.toLatin1();
    const auto pk = Campos_Fuente::Numero(bytes, Campos_Fuente::Marca::Punto);
    if (!pk)
        throw Fallo_Conversion{QStringLiteral("El P.K. del perfil no es un número"), linea, texto};
    return *pk;
}

struct Perfil_Crudo {
    double pk = 0;
    std::vector<Punto_Seccion> puntos;
};

} // namespace

QStringList Listar_Secciones_LandXML(QIODevice& dispositivo)
{
    QStringList elecciones;
    QSet<QString> vistas;
    Documento_LandXML d(dispositivo);
    d.Recorrer([&] {
        const QString alineacion = Sin_Dos_Puntos(d.Atributo("name"));
        Recorrer_Superficies(d, [&](const QString&, qint64) {
            const QString eleccion = alineacion + u':' + Superficie(d);
            d.Saltar();
            if (vistas.contains(eleccion)) return;
            vistas << eleccion;
            elecciones << eleccion;
        });
    });
    return elecciones;
}

Secciones Leer_Secciones_LandXML(QIODevice& dispositivo, const QString& alineacion,
                                 const QString& superficie, Informe_Lectura&)
{
    const auto clave = [](const QString& nombre) { return Como_En_Lista(Sin_Dos_Puntos(nombre)); };
    const QByteArray eje_buscado = clave(alineacion), superficie_buscada = clave(superficie);
    std::vector<Perfil_Crudo> perfiles;
    Documento_LandXML d(dispositivo);
    d.Recorrer([&] {
        if (clave(d.Atributo("name")) != eje_buscado) return;
        Recorrer_Superficies(d, [&](const QString& pk, qint64 linea) {
            if (Como_En_Lista(Superficie(d)) != superficie_buscada) {
                d.Saltar();
                return;
            }
            perfiles.push_back({Leer_PK(pk, linea), {}});
            Leer_Puntos(d, perfiles.back().puntos);
        });
    });
    const double escala = d.Escala();
    Secciones secciones;
    for (const Perfil_Crudo& perfil : perfiles) {
        if (perfil.puntos.empty()) continue;
        const size_t i = secciones.Abrir(perfil.pk * escala);
        for (const Punto_Seccion& p : perfil.puntos)
            secciones.Anadir(i, {p.desplazamiento * escala, p.cota * escala});
    }
    secciones.Ordenar();
    if (secciones.Vacia())
        throw Fallo_Conversion{QStringLiteral("El fichero no tiene esos perfiles"), 0,
                               alineacion + u':' + superficie};
    secciones.nombre = alineacion;
    return secciones;
}

#include "conversions/landxml/Documento_LandXML.h"

#include "conversions/suelo/Campos_Fuente.h"

#include <utility>

namespace {

QString En_Castellano(const QXmlStreamReader& xml)
{
    switch (xml.error()) {
    case QXmlStreamReader::PrematureEndOfDocumentError:
        return QStringLiteral("El fichero está vacío o incompleto");
    case QXmlStreamReader::NotWellFormedError:
        return QStringLiteral("El fichero no es un XML bien formado");
    default:
        return QStringLiteral("El fichero XML no se puede leer");
    }
}

} // namespace

Documento_LandXML::Documento_LandXML(QIODevice& dispositivo) : fuente(dispositivo), xml(&fuente) {}

void Documento_LandXML::Fallar()
{
    if (!fuente.Motivo().isEmpty()) throw Fallo_Conversion{fuente.Motivo(), xml.lineNumber(), {}};
    throw Fallo_Conversion{En_Castellano(xml), xml.lineNumber(), xml.errorString()};
}

void Documento_LandXML::Recorrer(const std::function<void()>& alineacion,
                                 const std::function<void()>& punto)
{
    if (!xml.readNextStartElement()) Fallar();
    if (!Se_Llama(u"LandXML"))
        throw Fallo_Conversion{QStringLiteral("El fichero no es LandXML"), xml.lineNumber(),
                               xml.name().toString()};
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        const QStringView nombre = xml.name();
        if (nombre == u"CgPoint") {
            if (punto) punto();
        } else if (nombre == u"Metric" || nombre == u"Imperial") {
            Leer_Unidad();
        } else if (nombre == u"Alignment") {
            alineacion();
        }
    }
    if (xml.hasError() || !fuente.Motivo().isEmpty()) Fallar();
}

void Documento_LandXML::Leer_Unidad()
{
    unidad = Atributo("linearUnit");
    if (unidad.isEmpty() && Se_Llama(u"Imperial")) unidad = QStringLiteral("foot");
}

double Documento_LandXML::Escala() const
{
    static constexpr std::pair<QStringView, double> UNIDADES[] = {{u"", 1},
                                                                  {u"meter", 1},
                                                                  {u"metre", 1},
                                                                  {u"millimeter", 0.001},
                                                                  {u"centimeter", 0.01},
                                                                  {u"kilometer", 1000},
                                                                  {u"foot", 0.3048},
                                                                  {u"USSurveyFoot", 1200.0 / 3937},
                                                                  {u"inch", 0.0254},
                                                                  {u"mile", 1609.344}};
    for (const auto& [nombre, metros] : UNIDADES)
        if (unidad.compare(nombre, Qt::CaseInsensitive) == 0) return metros;
    throw Fallo_Conversion{QStringLiteral("Unidad de longitud desconocida"), 0, unidad};
}

QString Documento_LandXML::Atributo(const QString& nombre) const
{
    return xml.attributes().value(nombre).trimmed().toString();
}

QString Documento_LandXML::Texto()
{
    return xml.readElementText(QXmlStreamReader::SkipChildElements);
}

std::optional<std::vector<double>> Lista_De_Numeros(const QString& texto)
{
    QByteArray bytes = texto.toLatin1();
    bytes.replace('\n', ' ');
    std::vector<double> numeros;
    for (const QByteArrayView campo : Campos_Fuente::Por_Blancos(bytes)) {
        const auto n = Campos_Fuente::Numero(campo, Campos_Fuente::Marca::Punto);
        if (!n) return {};
        numeros.push_back(*n);
    }
    return numeros;
}

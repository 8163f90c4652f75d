#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Banco_Conversion.h"
#include "tests/conversions/Camino_Azar.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

/// What the public schema (1.2) asks of the elements that the library writes: required attributes
/// and those allowed besides, the order and number of children, the form of the text.
struct Regla {
    QString obligados, admitidos;
    QString hijos; ///< expression over the children's names, each followed by a blank
    QString texto; ///< expression over the text; empty: no text
};

const QString NUMERO = "-?\\d+\\.\\d{4}";
const QString PUNTO_2D = NUMERO + ' ' + NUMERO;

const QHash<QString, Regla>& Esquema()
{
    static const QHash<QString, Regla> esquema = {
        {"LandXML", {"date time version", "", "Units Application Alignments ", ""}},
        {"Units", {"", "", "(Metric |Imperial )", ""}},
        {"Metric",
         {"areaUnit linearUnit volumeUnit temperatureUnit pressureUnit",
          "angularUnit directionUnit diameterUnit", "", ""}},
        {"Application", {"name", "", "", ""}},
        {"Alignments", {"", "name", "(Alignment )+", ""}},
        {"Alignment", {"name length staStart", "", "(CoordGeom )?(Profile )?(CrossSects )?", ""}},
        {"CoordGeom", {"", "", "((Line|Curve|Spiral) )+", ""}},
        {"Line", {"", "length staStart", "Start End ", ""}},
        {"Curve", {"rot", "length radius staStart crvType", "Start Center End ", ""}},
        {"Spiral",
         {"length radiusEnd radiusStart rot spiType", "constant staStart", "Start PI End ", ""}},
        {"Start", {"", "", "", PUNTO_2D}},
        {"Center", {"", "", "", PUNTO_2D}},
        {"PI", {"", "", "", PUNTO_2D}},
        {"End", {"", "", "", PUNTO_2D}},
        {"Profile", {"", "", "(ProfAlign )+", ""}},
        {"ProfAlign", {"name", "", "((PVI|ParaCurve) ){2,}", ""}},
        {"PVI", {"", "", "", PUNTO_2D}},
        {"ParaCurve", {"length", "", "", PUNTO_2D}},
        {"CrossSects", {"", "", "(CrossSect )+", ""}},
        {"CrossSect", {"sta", "", "(CrossSectSurf )+", ""}},
        {"CrossSectSurf", {"name", "", "PntList2D ", ""}},
        {"PntList2D", {"", "", "", PUNTO_2D + "( " + PUNTO_2D + ")+"}},
    };
    return esquema;
}

/// Values that an attribute may take; any number for those not listed.
const QHash<QString, QString>& Valores()
{
    static const QHash<QString, QString> valores = {
        {"name", ".+"},
        {"version", "1\\.2"},
        {"date", "\\d{4}-\\d\\d-\\d\\d"},
        {"time", "\\d\\d:\\d\\d:\\d\\d"},
        {"areaUnit", "squareMeter"},
        {"linearUnit", "meter"},
        {"volumeUnit", "cubicMeter"},
        {"temperatureUnit", "celsius|kelvin"},
        {"pressureUnit", "HPA|milliBars|mmHG|millimeterHG"},
        {"angularUnit", "radians|grads|decimal degrees|decimal dd\\.mm\\.ss"},
        {"directionUnit", "radians|grads|decimal degrees|decimal dd\\.mm\\.ss"},
        {"rot", "cw|ccw"},
        {"spiType", "clothoid"},
        {"radiusStart", "INF|" + NUMERO},
        {"radiusEnd", "INF|" + NUMERO},
    };
    return valores;
}

bool Entero(const QString& expresion, const QString& texto)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(expresion))
        .match(texto)
        .hasMatch();
}

/// Checks the current element and those below. @return what is wrong, or nothing
QString Revisar(QXmlStreamReader& xml)
{
    const QString nombre = xml.name().toString();
    if (!Esquema().contains(nombre)) return "elemento " + nombre;
    const Regla regla = Esquema()[nombre];
    QStringList faltan = regla.obligados.split(u' ', Qt::SkipEmptyParts);
    const QStringList admitidos = regla.admitidos.split(u' ', Qt::SkipEmptyParts);
    for (const QXmlStreamAttribute& a : xml.attributes()) {
        const QString atributo = a.name().toString();
        if (!faltan.removeOne(atributo) && !admitidos.contains(atributo))
            return nombre + " con " + atributo;
        if (!Entero(Valores().value(atributo, NUMERO), a.value().toString()))
            return nombre + u' ' + atributo + ": " + a.value().toString();
    }
    if (!faltan.isEmpty()) return nombre + " sin " + faltan[0];
    QString hijos, texto;
    for (xml.readNext(); !xml.isEndElement(); xml.readNext()) {
        if (xml.hasError()) return xml.errorString();
        if (xml.isCharacters()) texto += xml.text();
        if (!xml.isStartElement()) continue;
        hijos += xml.name().toString() + u' ';
        const QString error = Revisar(xml);
        if (!error.isEmpty()) return error;
    }
    if (!Entero(regla.hijos, hijos)) return nombre + " con los hijos " + hijos;
    if (!Entero(regla.texto, texto.trimmed())) return nombre + " con el texto " + texto;
    return {};
}

QString Revisar(const QByteArray& bytes)
{
    if (bytes.count("\r\n") != bytes.count('\n') || !bytes.endsWith("\r\n")) return "fin de linea";
    QXmlStreamReader xml(bytes);
    if (!xml.readNextStartElement()) return xml.errorString();
    if (xml.namespaceUri() != u"http://www.landxml.org/schema/LandXML-1.2") return "espacio";
    return Revisar(xml);
}

} // namespace

/// Files written as LandXML keep to the public schema, and to their numbers.
class TestEscritor_LandXML : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void el_revisor_ve_lo_que_falta();
    void todo_lo_que_se_escribe_es_del_esquema();
    void los_nombres_se_escapan();
    void la_fecha_es_la_del_reloj();
    void secciones_de_un_punto();

private:
    Banco_Conversion banco;
};

void TestEscritor_LandXML::el_revisor_ve_lo_que_falta()
{
    const QByteArray bueno = Banco_Conversion::Bytes_Muestra("eje1.eje.out.xml");
    QCOMPARE(Revisar(bueno), QString());
    for (const auto& [que, por] :
         {std::pair{" spiType=\"clothoid\"", ""}, std::pair{" version=\"1.2\"", ""},
          std::pair{"rot=\"cw\"", "rot=\"right\""},
          std::pair{" length=\"150.0000\"", " largo=\"1\""},
          std::pair{"<Application name=\"Miraldos\"/>", ""}, std::pair{"2000.0000 ", "2000.00 "},
          std::pair{"1.2\" date", "1.2\" hour"}}) {
        QVERIFY2(!Revisar(QByteArray(bueno).replace(que, por)).isEmpty(), que);
    }
}

void TestEscritor_LandXML::todo_lo_que_se_escribe_es_del_esquema()
{
    const std::pair<const char*, const char*> FUENTES[] = {
        {"aQSV2LandXML", "eje1.eje"},          {"aclipplt2LandXML", "eje1.plt"},
        {"aclipplt2LandXML", "eje1_mal.plt"},  {"aistram2LandXML", "eje1.asc"},
        {"aistramList2LandXML", "eje1.txt"},   {"aispol2LandXML", "eje1.htr"},
        {"rqsv2landxml", "eje1.ras"},          {"ristram2landxml", "eje1.alz"},
        {"traclip2landxml", "eje1_t.plt"},     {"tracliptrv2landxml", "eje1.rep"},
        {"traqsv2landxml", "eje1.tra"},        {"traistram2landxml", "eje1.trm"},
        {"trahtrazado2lamdxml", "eje1_ht.per"}};
    for (const auto& [funcion, muestra] : FUENTES) {
        const auto r = banco.Ejecutar(funcion, {Banco_Conversion::Muestra(muestra), "<salida>"});
        QVERIFY(r.salida);
        QCOMPARE(Revisar(*r.salida), QString());
    }
    for (quint32 semilla = 1; semilla <= 10; ++semilla) {
        const auto camino =
            Camino_Azar::Constructor(semilla, Camino_Azar::Clase::Con_Puntas).Hacer(6);
        const auto r = banco.Convertir("aQSV2LandXML", Camino_Azar::Qsv(camino));
        QCOMPARE(Revisar(*r.salida), QString());
    }
}

void TestEscritor_LandXML::los_nombres_se_escapan()
{
    const QByteArray htr = "EJE A<B>&\"C\" \xD1 \x80 \x01\nINICIO 0 0 0\nRECTA 10\n";
    const auto r = banco.Convertir("aQSV2LandXML", htr);
    QCOMPARE(Revisar(*r.salida), QString());
    QVERIFY2(
        r.salida->contains("<Alignment name=\"A&lt;B&gt;&amp;&quot;C&quot; \xC3\x91 \xE2\x82\xAC "),
        r.salida->constData());
    // Without a name of its own the axis has the file's, up to its last dot.
    const auto sin_nombre = banco.Convertir("aQSV2LandXML", "0 0 0 0 0 0 10\n", "ramal 2.bis.eje");
    QVERIFY(sin_nombre.salida->contains("<Alignment name=\"ramal 2.bis\" "));
}

void TestEscritor_LandXML::la_fecha_es_la_del_reloj()
{
    const QDateTime antes = QDateTime::currentDateTime();
    const auto r = banco.Convertir("rqsv2landxml", "0 1\n10 2\n");
    const QDateTime despues = QDateTime::currentDateTime();
    static const QRegularExpression reloj("date=\"([^\"]+)\" time=\"([^\"]+)\"");
    const auto m = reloj.match(QString::fromUtf8(*r.salida));
    const QDateTime escrita =
        QDateTime::fromString(m.captured(1) + u' ' + m.captured(2), u"yyyy-MM-dd HH:mm:ss");
    QVERIFY(escrita.isValid());
    QVERIFY(escrita.addSecs(1) > antes && escrita <= despues);
}

void TestEscritor_LandXML::secciones_de_un_punto()
{
    const auto r = banco.Convertir("traqsv2landxml", "0 1 5\n20 -1 5\n20 1 6\n50 1 5\n", "t.tra");
    QCOMPARE(r.numero, 1);
    QCOMPARE(Revisar(*r.salida), QString());
    QCOMPARE(r.salida->count("<CrossSect "), 1);
    QVERIFY(r.salida->contains("<CrossSect sta=\"20.0000\">"));
    const auto ninguna = banco.Convertir("traqsv2landxml", "0 1 5\n50 1 5\n", "t.tra");
    QCOMPARE(ninguna.numero, 0);
    QVERIFY(!ninguna.salida);
}

PRUEBA(TestEscritor_LandXML)
#include "TestEscritor_LandXML.moc"

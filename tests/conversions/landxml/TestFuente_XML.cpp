#include "conversions/landxml/Lectores_LandXML.h"
#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Banco_Conversion.h"
#include "tests/conversions/Piezas_LandXML.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QStringEncoder>

using namespace Piezas_LandXML;

/// What reaches the XML reader and what doesn't: pages, surfaces, dangers, damage.
class TestFuente_XML : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void codificaciones_data();
    void codificaciones();
    void una_superficie_enorme_en_un_texto();
    void las_superficies_no_estorban_data();
    void las_superficies_no_estorban();
    void peligros_data();
    void peligros();
    void textos_partidos_por_comentarios();
    void cortado_en_cada_byte();

private:
    Banco_Conversion banco;

    Banco_Conversion::Resultado Eje_De(const QByteArray& xml)
    {
        return banco.Ejecutar("alandxml2krt", {"0", banco.Poner("a.xml", xml), "<salida>"});
    }
};

void TestFuente_XML::codificaciones_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QByteArray>("nombre");
    const QString texto = QString::fromUtf8(Fichero(Alineacion("Eje Ñ €", EJE)));
    const auto con = [&](const char* codificacion, const QByteArray& cuerpo) {
        return "<?xml version=\"1.0\" encoding='" + QByteArray(codificacion) + "' ?>\r\n" + cuerpo;
    };
    const QByteArray ansi = "Eje \xD1 \x80", sin_euro = "Eje \xD1 \xA4";
    QByteArray pagina = texto.toLatin1();
    pagina.replace('?', char(0x80));
    QTest::newRow("UTF-8 sin declarar") << texto.toUtf8() << ansi;
    QTest::newRow("UTF-8") << con("UTF-8", texto.toUtf8()) << ansi;
    QTest::newRow("UTF-8 con marca") << "\xEF\xBB\xBF" + con("utf-8", texto.toUtf8()) << ansi;
    QTest::newRow("Windows-1252") << con("Windows-1252", pagina) << ansi;
    QTest::newRow("cp1252") << con("CP1252", pagina) << ansi;
    QTest::newRow("ISO-8859-1") << con("ISO-8859-1", QByteArray(pagina).replace(char(0x80), "\xA4"))
                                << sin_euro;
    QTest::newRow("ISO-8859-15") << con("ISO-8859-15",
                                        QByteArray(pagina).replace(char(0x80), "\xA4"))
                                 << ansi;
    QTest::newRow("UTF-16 que es UTF-8") << con("UTF-16", texto.toUtf8()) << ansi;
    for (const auto& [nombre, como] : {std::pair{"UTF-16 LE", QStringConverter::Utf16LE},
                                       std::pair{"UTF-16 BE", QStringConverter::Utf16BE}})
        for (const bool marca : {true, false}) {
            QStringEncoder codificador(como, marca ? QStringConverter::Flag::WriteBom
                                                   : QStringConverter::Flag::Default);
            const QString declarado = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\"?>");
            QTest::addRow("%s%s", nombre, marca ? " con marca" : "")
                << QByteArray(codificador(declarado + texto)) << ansi;
        }
}

void TestFuente_XML::codificaciones()
{
    QFETCH(QByteArray, xml);
    QFETCH(QByteArray, nombre);
    const auto lista =
        banco.Ejecutar("seleccionaEjeLandXML", {banco.Poner("a.xml", xml), "<salida>"});
    QCOMPARE(lista.numero, 1);
    QCOMPARE(*lista.salida, nombre + "\r\n");
    QCOMPARE(Eje_De(xml).numero, 1);
}

/// A text of many megabytes passes in pieces, also when the axis' own points are beside it.
void TestFuente_XML::una_superficie_enorme_en_un_texto()
{
    QByteArray lista;
    for (int i = 0; i < 400000; ++i)
        lista += QByteArray::number(i) + " 2.5\n";
    const QByteArray fuera = "<Surfaces><Surface><SourceData><DataPoints><PntList3D>" + lista +
                             "</PntList3D></DataPoints></SourceData></Surface></Surfaces>";
    const QByteArray seccion =
        "<CrossSects><CrossSect sta=\"0\"><CrossSectSurf name=\"T\"><PntList2D>" + lista +
        "</PntList2D></CrossSectSurf></CrossSect></CrossSects>";
    const QString f =
        banco.Poner("a.xml", "<LandXML>" + fuera + "<Alignments>" + Alineacion("E", EJE + seccion) +
                                 "</Alignments></LandXML>");
    QCOMPARE(banco.Ejecutar("alandxml2krt", {"0", f, "<salida>"}).numero, 1);
    const auto r = banco.Ejecutar("tralandxml2krt", {"E", "T", f, "<salida>"});
    QCOMPARE(r.numero, 1);
    const QByteArrayList lineas = r.salida->split('\n');
    QCOMPARE(lineas.size(), 400001);
    for (int i = 0; i < 400000; i += 997)
        QCOMPARE(lineas[i], "0.000," + QByteArray::number(i) + ".000,2.500\r");
}

void TestFuente_XML::las_superficies_no_estorban_data()
{
    QTest::addColumn<QByteArray>("superficies");
    QTest::newRow("ninguna") << QByteArray();
    QTest::newRow("vacia") << QByteArray("<Surfaces/>");
    QTest::newRow("vacia con atributos") << QByteArray("<Surfaces a='>' b=\"/\" />");
    QTest::newRow("sin nada") << QByteArray("<Surfaces></Surfaces>");
    QTest::newRow("con ejes dentro") << "<Surfaces>" + Alineacion("X", "<CoordGeom/>") +
                                            "<Units><Metric linearUnit=\"inch\"/>"
                                            "</Units></Surfaces>";
    QTest::newRow("con otra dentro")
        << QByteArray("<Surfaces><Surfaces x=\"1\"><P>1 2</P></Surfaces><b/></Surfaces>");
    QTest::newRow("con comentarios y textos")
        << QByteArray("<Surfaces><!-- </Surfaces> --><?a </Surfaces> ?><![CDATA[</Surfaces>]]>"
                      "<a b='</Surfaces>'/></Surfaces>");
    QTest::newRow("con prefijo") << QByteArray("<n:Surfaces xmlns:n=\"u\"><n:a/></n:Surfaces>");
    QTest::newRow("etiqueta partida") << QByteArray("<Surfaces\n a='1'\n><b\n/></Surfaces\n>");
    QTest::newRow("que no lo es") << QByteArray(
        "<SurfacesX><a/></SurfacesX><xSurfaces></xSurfaces>");
}

/// Whatever stands in them, the axis comes out, and its lines keep their numbers. Blanks in front
/// put every byte of them once at the edge of a block.
void TestFuente_XML::las_superficies_no_estorban()
{
    QFETCH(QByteArray, superficies);
    const qsizetype bloque = 65536;
    for (qsizetype i = 0; i < superficies.size() + 2; ++i) {
        QByteArray xml =
            "<LandXML>\n\n" + QByteArray(bloque - 11 - i, ' ') + superficies + "\n<Alignments>" +
            Alineacion("E", QByteArray(EJE).replace("</CoordGeom>", "\n<Chain/></CoordGeom>")) +
            "</Alignments></LandXML>";
        const qint64 linea = xml.left(xml.indexOf("<Chain/>")).count('\n') + 1;
        QBuffer buffer(&xml);
        buffer.open(QIODevice::ReadOnly);
        Informe_Lectura informe;
        const Eje eje = Leer_Eje_LandXML(buffer, 0, informe);
        QCOMPARE(eje.elementos.size(), size_t(1));
        QCOMPARE(eje.nombre, u"E");
        QCOMPARE(eje.elementos[0].longitud, 100.0);
        // Two line ends in its end tag are more than a file has.
        if (!superficies.contains("</Surfaces\n")) QCOMPARE(informe.Omisiones()[0].linea, linea);
    }
}

void TestFuente_XML::peligros_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("motivo");
    const QByteArray bueno = Fichero(Alineacion("E", EJE));
    QByteArray bomba = "<!DOCTYPE LandXML [<!ENTITY a \"xxxxxxxxxx\">";
    for (char c = 'b'; c <= 'm'; ++c)
        bomba += QByteArray("<!ENTITY ") + c + " \"" +
                 (QByteArray("&") + char(c - 1) + ';').repeated(10) + "\">";
    QTest::newRow("bomba") << bomba + "]>" + Fichero(Alineacion("&m;", EJE)) << "DTD";
    QTest::newRow("entidad de fuera")
        << "<!DOCTYPE LandXML [<!ENTITY x SYSTEM \"file:///etc/hostname\">]>" +
               Fichero(Alineacion("E", EJE + "<Feature>&x;</Feature>"))
        << "DTD";
    QTest::newRow("DTD de fuera") << "<!DOCTYPE LandXML SYSTEM \"http://127.0.0.1:1/x.dtd\">" +
                                         bueno
                                  << "DTD";
    QTest::newRow("DTD en UTF-16") << QByteArray([&] {
        QStringEncoder e(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
        return QByteArray(e(QString::fromLatin1("<!DOCTYPE LandXML []>" + bueno)));
    }()) << "DTD";
    QTest::newRow("entidad sin declarar")
        << QByteArray(bueno).replace("<End>", "<End>&nada; ") << "bien formado";
    QTest::newRow("anidado sin fin") << "<LandXML>" + QByteArray("<a>").repeated(200000) +
                                            QByteArray("</a>").repeated(200000) + "</LandXML>"
                                     << "anidados";
    QTest::newRow("etiqueta enorme")
        << "<LandXML><a b=\"" + QByteArray(100000, 'x') + "\"/></LandXML>"
        << "etiqueta";
    QTest::newRow("nombre enorme") << "<LandXML><" + QByteArray(70000, 'n') + ":a/></LandXML>"
                                   << "etiqueta";
    QTest::newRow("comentario enorme")
        << "<LandXML><!--" + QByteArray(5000000, '-').replace("--", "-x") + "--></LandXML>"
        << "comentario";
    QTest::newRow("vacio") << QByteArray() << "incompleto";
    QTest::newRow("cortado") << bueno.chopped(3) << "incompleto";
    QTest::newRow("cortado en las superficies")
        << QByteArray("<LandXML><Surfaces><Surface>1 2 3") << "incompleto";
    QTest::newRow("DTD en las superficies")
        << QByteArray("<LandXML><Surfaces><!DOCTYPE a></Surfaces></LandXML>") << "DTD";
    QTest::newRow("anidado en las superficies")
        << "<LandXML><Surfaces>" + QByteArray("<a>").repeated(1000) << "anidados";
    QTest::newRow("mal cerrado") << QByteArray(bueno).replace("</Line>", "</Lime>")
                                 << "bien formado";
    QTest::newRow("dos raices") << bueno + bueno << "bien formado";
    QTest::newRow("otra raiz") << QByteArray("<gpx><Alignments/></gpx>") << "no es LandXML";
    QTest::newRow("binario") << QByteArray("\x7F"
                                           "ELF\x02\x01\x01\0\0\0\0\0",
                                           12)
                             << "bien formado";
    QTest::newRow("UTF-8 roto") << QByteArray(bueno).replace("name=\"E\"", "name=\"\xD1\"")
                                << "bien formado";
    QTest::newRow("codificacion desconocida")
        << "<?xml version=\"1.0\" encoding=\"klingon\"?>" + bueno << "Codificación";
    QTest::newRow("unidad desconocida")
        << Fichero(Alineacion("E", EJE), "<Units><Metric linearUnit=\"vara\"/></Units>")
        << "Unidad";
    QTest::newRow("sin ejes") << Fichero("") << "no tiene el eje";
    QTest::newRow("eje sin elementos")
        << Fichero(Alineacion("E", "<CoordGeom/>")) << "ningún elemento";
}

void TestFuente_XML::peligros()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, motivo);
    QElapsedTimer reloj;
    reloj.start();
    const auto r = Eje_De(xml);
    QCOMPARE(r.numero, 0);
    QVERIFY(!r.salida);
    QVERIFY2(r.Motivo().contains(motivo), qPrintable(r.informe.Lineas().join(u'\n')));
    QVERIFY(reloj.elapsed() < 20000);
}

void TestFuente_XML::textos_partidos_por_comentarios()
{
    const QByteArray linea = "<Line><Start>1<!-- > - -->0<?p ?> 2<![CDATA[0]]></Start>"
                             "<End a='>' b=\"/>\">1&#48; 6<!-- -- x-->0</End></Line>";
    const QByteArray bien = QByteArray(linea).replace(" -- x", " x");
    const auto r = Eje_De(Fichero(Alineacion("E", "<CoordGeom>" + bien + "</CoordGeom>")));
    QCOMPARE(Banco_Conversion::En_Linea(*r.salida),
             "INI 0.000 20.000 10.000/REC 100.0000 40.000/FIN 40.000 60.000 10.000 100.0000");
    // Two dashes within a comment are no XML.
    QCOMPARE(Eje_De(Fichero(Alineacion("E", "<CoordGeom>" + linea + "</CoordGeom>"))).numero, 0);
}

void TestFuente_XML::cortado_en_cada_byte()
{
    const QByteArray entero = Banco_Conversion::Bytes_Muestra("eje1.xml");
    const qsizetype cuerpo = entero.lastIndexOf('>') + 1;
    for (qsizetype n = 0; n <= entero.size(); ++n) {
        QByteArray trozo = entero.left(n);
        QBuffer buffer(&trozo);
        buffer.open(QIODevice::ReadOnly);
        Informe_Lectura informe;
        bool leido = true;
        try {
            const Eje eje = Leer_Eje_LandXML(buffer, 0, informe);
            QCOMPARE(eje.elementos.size(), size_t(7));
        } catch (const Fallo_Conversion& f) {
            leido = false;
            QVERIFY(!f.motivo.isEmpty());
        }
        QCOMPARE(leido, n >= cuerpo);
    }
}

PRUEBA(TestFuente_XML)
#include "TestFuente_XML.moc"

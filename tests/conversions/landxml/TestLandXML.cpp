#include "conversions/biblioteca/Fichero_Lista.h"
#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Banco_Conversion.h"
#include "tests/conversions/Piezas_LandXML.h"

using namespace Piezas_LandXML;

class TestLandXML : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { Mover_Fichero_Lista(banco.Ruta("lista.eje")); }
    void cleanup() { Mover_Fichero_Lista({}); }

    void nombres_que_no_caben_en_la_pagina();
    void unidades_data();
    void unidades();
    void elementos_data();
    void elementos();
    void rasantes_data();
    void rasantes();
    void perfiles_data();
    void perfiles();
    void listas();
    void la_lista_se_hace_siempre();
    void puntos_detras_de_un_levantamiento();

private:
    Banco_Conversion banco;

    Banco_Conversion::Resultado Eje_De(const QByteArray& xml, const char* indice = "0")
    {
        return banco.Ejecutar("alandxml2krt", {indice, banco.Poner("a.xml", xml), "<salida>"});
    }
    /// Lines of the list file of a list function.
    QByteArray Lista(const char* funcion, const QByteArray& xml)
    {
        const auto r = banco.Ejecutar(funcion, {banco.Poner("a.xml", xml)});
        const QByteArray lista = Ficheros::Leer(Fichero_Lista());
        return lista.count('\n') == r.numero ? lista : "resultado " + QByteArray::number(r.numero);
    }
};

void TestLandXML::nombres_que_no_caben_en_la_pagina()
{
    const QByteArray perfil = "<Profile><ProfAlign name=\"R\"><PVI>0 1</PVI><PVI>9 2</PVI>"
                              "</ProfAlign></Profile>";
    const QByteArray xml = Fichero(Alineacion("Ω&#10;&lt;1", perfil));
    QCOMPARE(Lista("seleccionaRasanteLandXML", xml), "? <1\r\n");
    const auto r = banco.Ejecutar("rlandxml2krt", {"? <1", banco.Ruta("a.xml"), "<salida>"});
    QCOMPARE(Banco_Conversion::En_Linea(*r.salida), "0.000,1.000,0.000/9.000,2.000,0.000");
}

void TestLandXML::unidades_data()
{
    QTest::addColumn<QByteArray>("unidades");
    QTest::addColumn<double>("metros");
    const auto metrica = [](const char* u) {
        return QByteArray("<Units><Metric linearUnit=\"") + u + "\"/></Units>";
    };
    const auto imperial = [](const char* u) {
        return QByteArray("<Units><Imperial linearUnit=\"") + u + "\"/></Units>";
    };
    QTest::newRow("ninguna") << QByteArray() << 1.0;
    QTest::newRow("metrica sin unidad") << QByteArray("<Units><Metric/></Units>") << 1.0;
    QTest::newRow("meter") << metrica("meter") << 1.0;
    QTest::newRow("centimeter") << metrica("centimeter") << 0.01;
    QTest::newRow("millimeter") << metrica("millimeter") << 0.001;
    QTest::newRow("kilometer") << metrica("kilometer") << 1000.0;
    QTest::newRow("foot") << imperial("foot") << 0.3048;
    QTest::newRow("USSurveyFoot") << imperial("USSurveyFoot") << 1200.0 / 3937;
    QTest::newRow("inch") << imperial("inch") << 0.0254;
    QTest::newRow("mile") << imperial("mile") << 1609.344;
}

void TestLandXML::unidades()
{
    QFETCH(QByteArray, unidades);
    QFETCH(double, metros);
    const QByteArray dentro =
        "<Alignment name=\"E\" staStart=\"7\"><CoordGeom><Line><Start>0 0</Start><End>0 "
        "90</End></Line></CoordGeom><Profile><ProfAlign name=\"R\"><PVI>0 5</PVI><ParaCurve "
        "length=\"20\">50 8</ParaCurve><PVI>90 2</PVI></ProfAlign></Profile><CrossSects><CrossSect "
        "sta=\"30\"><CrossSectSurf name=\"T\"><PntList2D>-4 6 4 7</PntList2D></CrossSectSurf>"
        "</CrossSect></CrossSects></Alignment>";
    const auto n = [&](double x) { return QByteArray::number(x * metros, 'f', 3); };
    // The unit holds wherever it stands.
    for (const QByteArray& xml : {Fichero(dentro, unidades),
                                  Fichero(dentro).replace("</LandXML>", unidades + "</LandXML>")}) {
        const auto eje = Eje_De(xml);
        QCOMPARE(Banco_Conversion::En_Linea(*eje.salida),
                 "INI " + n(7) + " 0.000 0.000/REC 100.0000 " + n(90) + "/FIN " + n(97) + ' ' +
                     n(90) + " 0.000 100.0000");
        const QString fichero = banco.Ruta("a.xml");
        const auto rasante = banco.Ejecutar("rlandxml2krt", {"E", fichero, "<salida>"});
        QCOMPARE(Banco_Conversion::En_Linea(*rasante.salida),
                 n(0) + ',' + n(5) + ",0.000/" + n(50) + ',' + n(8) + ',' + n(20) + '/' + n(90) +
                     ',' + n(2) + ",0.000");
        const auto perfil = banco.Ejecutar("tralandxml2krt", {"E", "T", fichero, "<salida>"});
        QCOMPARE(Banco_Conversion::En_Linea(*perfil.salida),
                 n(30) + ',' + n(-4) + ',' + n(6) + '/' + n(30) + ',' + n(4) + ',' + n(7));
    }
}

void TestLandXML::elementos_data()
{
    QTest::addColumn<QByteArray>("elementos");
    QTest::addColumn<int>("resultado");
    QTest::addColumn<QByteArray>("esperado");
    // In every row the road ends on the straight from (0, 100) to (0, 150).
    const auto punto = [](const char* nombre, const char* texto) {
        return QByteArray("<") + nombre + '>' + texto + "</" + nombre + '>';
    };
    const auto extremos = [&](const QByteArray& tipo, const QByteArray& mas = {},
                              const QByteArray& atributos = {}) {
        return '<' + tipo + ' ' + atributos + '>' + punto("Start", "0 0 7") + mas +
               punto("End", "0 100") + "</" + tipo + '>';
    };
    const QByteArray recta("REC 100.0000 100.000");
    const QByteArray nada;
    const QByteArray centro = punto("Center", "0 50");
    const QByteArray espiral =
        "spiType=\"clothoid\" rot=\"cw\" length=\"101\" radiusStart=\"INF\" ";
    const QByteArray pi = punto("PI", "20 60");
    QTest::newRow("recta") << extremos("Line") << 1 << recta;
    QTest::newRow("otros hijos") << extremos("Line", "<Feature><Start>9 9</Start></Feature>") << 1
                                 << recta;
    QTest::newRow("direccion que no se lee") << extremos("Line", nada, "dir=\"17\"") << 1 << recta;
    QTest::newRow("semicirculo a la derecha")
        << extremos("Curve", centro, "rot=\"cw\"") << 1 << QByteArray("CIR 0.0000 157.080 50.000");
    QTest::newRow("semicirculo a la izquierda") << extremos("Curve", centro, "rot=\"CCW\"") << 1
                                                << QByteArray("CIR 200.0000 157.080 -50.000");
    QTest::newRow("curva sin centro") << extremos("Curve", nada, "rot=\"cw\"") << -1 << recta;
    QTest::newRow("curva sin sentido") << extremos("Curve", centro) << -1 << recta;
    QTest::newRow("curva de dos radios")
        << extremos("Curve", punto("Center", "0 50.03"), "rot=\"cw\"") << -1 << recta;
    QTest::newRow("curva de radio nulo")
        << QByteArray(
               "<Curve rot=\"cw\"><Start>0 0</Start><Center>0 0</Center><End>0 0</End></Curve>") +
               extremos("Line")
        << -1 << recta;
    QTest::newRow("curva sin longitud")
        << QByteArray("<Curve rot=\"cw\"><Start>0 0</Start><Center>9 0</Center><End>0 "
                      "0.0000001</End></Curve>") +
               extremos("Line")
        << 1 << recta;
    QTest::newRow("irregular") << extremos("IrregularLine", punto("PntList2D", "0 0 5 50 0 100"))
                               << -1 << recta;
    QTest::newRow("cadena") << QByteArray("<Chain>A B C</Chain>") + extremos("Line") << -1 << recta;
    QTest::newRow("sin final") << QByteArray("<Line><Start>3 3</Start></Line>") + extremos("Line")
                               << -1 << recta;
    QTest::newRow("punto ilegible")
        << QByteArray("<Line><Start>3 x</Start><End>0 0</End></Line>") + extremos("Line") << -1
        << recta;
    QTest::newRow("referencia que no hay")
        << QByteArray("<Line><Start pntRef=\"Z\"/><End>0 0</End></Line>") + extremos("Line") << -1
        << recta;
    QTest::newRow("texto antes que referencia")
        << QByteArray("<Line><Start pntRef=\"Z\">0 0</Start><End>0 100</End></Line>") << 1 << recta;
    QTest::newRow("espiral de otra clase")
        << extremos("Spiral", pi, espiral + "radiusEnd=\"90\"").replace("clothoid", "bloss") << -1
        << recta;
    for (const auto& [que, por] :
         {std::pair{"length=\"101\"", ""}, std::pair{"length=\"101\"", "length=\"-1\""},
          std::pair{"rot=\"cw\"", ""}, std::pair{"radiusEnd=\"90\"", "radiusEnd=\"noventa\""},
          std::pair{"radiusEnd=\"90\"", "radiusEnd=\"-INF\""},
          std::pair{"radiusEnd=\"90\"", "radiusEnd=\"0\""}, std::pair{"radiusEnd=\"90\"", ""},
          std::pair{"<PI>20 60</PI>", ""}, std::pair{"<PI>20 60</PI>", "<PI>0 0</PI>"}})
        QTest::addRow("espiral, %s por %s", que, por)
            << extremos("Spiral", pi, espiral + "radiusEnd=\"90\"").replace(que, por) << -1
            << recta;
    // R = 400, L = 40: the clothoid ends 0.666 m to the right of its tangent, 39.990 m along it.
    const auto clotoide = [&](const char* fin) {
        return QByteArray("<Spiral spiType=\"clothoid\" rot=\"cw\" length=\"40\" "
                          "radiusStart=\"INF\" radiusEnd=\"400\"><Start>0 60</Start><PI>0 "
                          "80</PI><End>") +
               fin + "</End></Spiral>" + "<Line><Start>" + fin + "</Start><End>0 100</End></Line>";
    };
    QTest::newRow("clotoide que acaba en su final")
        << clotoide("-0.666 99.990") << 1
        << QByteArray("CLO 100.0000 40.000 126.491 0.000 400.000");
    QTest::newRow("clotoide que no acaba en su final")
        << clotoide("-0.600 99.990") << -1
        << QByteArray("CLO 100.0000 40.000 126.491 0.000 400.000");
    QTest::newRow("salto entre elementos")
        << QByteArray("<Line><Start>0 0</Start><End>0 99.94</End></Line>") << -1
        << QByteArray("REC 100.0000 99.940");
    QTest::newRow("salto admitido")
        << QByteArray("<Line><Start>0 0</Start><End>0 99.951</End></Line>") << 1
        << QByteArray("REC 100.0000 99.951");
}

void TestLandXML::elementos()
{
    QFETCH(QByteArray, elementos);
    QFETCH(int, resultado);
    QFETCH(QByteArray, esperado);
    const auto r = Eje_De(Fichero(
        Alineacion("E", "<CoordGeom>" + elementos +
                            "<Line><Start>0 100</Start><End>0 150</End></Line></CoordGeom>")));
    QVERIFY2(r.salida, qPrintable(r.Motivo()));
    const QByteArrayList lineas = Banco_Conversion::En_Linea(*r.salida).split('/');
    QVERIFY(lineas[0].startsWith("INI 0.000 "));
    QCOMPARE(lineas[1], esperado);
    QCOMPARE(lineas[lineas.size() - 2], "REC 100.0000 50.000");
    QVERIFY(lineas.last().endsWith("150.000 0.000 100.0000"));
    QVERIFY2(r.numero == resultado, qPrintable(r.informe.Lineas().join(u'\n')));
}

void TestLandXML::rasantes_data()
{
    QTest::addColumn<QByteArray>("vertices");
    QTest::addColumn<int>("resultado");
    QTest::addColumn<QByteArray>("medio");
    QTest::newRow("parabola") << QByteArray("<ParaCurve length=\"20\">50 8</ParaCurve>") << 1
                              << QByteArray("50.000,8.000,20.000");
    QTest::newRow("circular por su longitud")
        << QByteArray("<CircCurve length=\"20\" radius=\"1\">50 8</CircCurve>") << 1
        << QByteArray("50.000,8.000,20.000");
    // θ = 0.06 + 0.06
    QTest::newRow("circular por su radio")
        << QByteArray("<CircCurve length=\"0\" radius=\"100\">50 8</CircCurve>") << 1
        << QByteArray("50.000,8.000,12.000");
    QTest::newRow("asimetrica igual")
        << QByteArray("<UnsymParaCurve lengthIn=\"10\" lengthOut=\"10.0009\">50 8</UnsymParaCurve>")
        << 1 << QByteArray("50.000,8.000,20.001");
    QTest::newRow("asimetrica")
        << QByteArray("<UnsymParaCurve lengthIn=\"5\" lengthOut=\"15\">50 8</UnsymParaCurve>") << -1
        << QByteArray("50.000,8.000,20.000");
    QTest::newRow("texto de tres lineas y otros hijos")
        << QByteArray(
               "<ParaCurve length=\"20\">\n50\n<!-- c -->8<Feature>x</Feature>\n</ParaCurve>")
        << 1 << QByteArray("50.000,8.000,20.000");
    QTest::newRow("longitud ilegible")
        << QByteArray("<PVI>50 8</PVI><ParaCurve length=\"x\">60 9</ParaCurve>") << -1
        << QByteArray("50.000,8.000,0.000");
    QTest::newRow("ilegible") << QByteArray("<PVI>50 8</PVI><PVI>60</PVI>") << -1
                              << QByteArray("50.000,8.000,0.000");
    QTest::newRow("solape") << QByteArray("<ParaCurve length=\"101\">50 8</ParaCurve>") << -1
                            << QByteArray("50.000,8.000,0.000");
}

void TestLandXML::rasantes()
{
    QFETCH(QByteArray, vertices);
    QFETCH(int, resultado);
    QFETCH(QByteArray, medio);
    const QString f = banco.Poner(
        "a.xml",
        Fichero(Alineacion("E", "<Profile><ProfSurf name=\"t\"><PntList2D>0 0 1 1</PntList2D>"
                                "</ProfSurf><ProfAlign name=\"R\"><PVI>0 5</PVI>" +
                                    vertices + "<PVI>100 5</PVI></ProfAlign></Profile>")));
    const auto r = banco.Ejecutar("rlandxml2krt", {"E", f, "<salida>"});
    QVERIFY2(r.salida, qPrintable(r.Motivo()));
    QCOMPARE(Banco_Conversion::En_Linea(*r.salida),
             "0.000,5.000,0.000/" + medio + "/100.000,5.000,0.000");
    QCOMPARE(r.numero, resultado);
    QCOMPARE(banco.Ejecutar("rlandxml2krt", {"E/R", f, "<salida>"}).numero, 0);
}

void TestLandXML::perfiles_data()
{
    QTest::addColumn<QByteArray>("secciones");
    QTest::addColumn<QByteArray>("esperado");
    const auto seccion = [](const char* pk, const QByteArray& dentro) {
        return QByteArray("<CrossSect sta=\"") + pk + "\">" + dentro + "</CrossSect>";
    };
    const auto superficie = [](const QByteArray& dentro, const char* nombre = "T") {
        return QByteArray("<CrossSectSurf name=\"") + nombre + "\">" + dentro + "</CrossSectSurf>";
    };
    QTest::newRow("ordena y junta")
        << seccion("10", superficie("<PntList2D>4 1 -4 2</PntList2D><PntList2D>0 3</PntList2D>")) +
               seccion("0", superficie("<PntList2D>1 1</PntList2D>")) +
               seccion("10.0003", superficie("<PntList2D>2 9</PntList2D>"))
        << QByteArray("10.000,-4.000,2.000/10.000,0.000,3.000/10.000,2.000,9.000/"
                      "10.000,4.000,1.000/0.000,1.000,1.000");
    QTest::newRow("proyecto por puntos")
        << seccion("5", "<DesignCrossSectSurf name=\"T\"><CrossSectPnt>-1 2</CrossSectPnt>"
                        "<CrossSectPnt code=\"B\">1 3</CrossSectPnt></DesignCrossSectSurf>")
        << QByteArray("5.000,-1.000,2.000/5.000,1.000,3.000");
    QTest::newRow("pendientes, se saltan")
        << seccion("5", "<DesignCrossSectSurf name=\"T\" dataFormat=\"Slope Distance\">"
                        "<CrossSectPnt>9 9</CrossSectPnt></DesignCrossSectSurf>") +
               seccion("6", superficie("<PntList2D>1 1</PntList2D>"))
        << QByteArray("6.000,1.000,1.000");
    QTest::newRow("lista en varias lineas")
        << seccion("5", superficie("<PntList2D>\r\n -1\t2\r\n 1\n3 \r\n</PntList2D>"))
        << QByteArray("5.000,-1.000,2.000/5.000,1.000,3.000");
    QTest::newRow("otra superficie")
        << seccion("5", superficie("<PntList2D>1 1</PntList2D>", "U")) << QByteArray();
    QTest::newRow("numero ilegible")
        << seccion("5", superficie("<PntList2D>1 1 2 x</PntList2D>")) << QByteArray();
    QTest::newRow("numeros impares")
        << seccion("5", superficie("<PntList2D>1 1 2</PntList2D>")) << QByteArray();
    QTest::newRow("pk ilegible") << seccion("cinco", superficie("<PntList2D>1 1</PntList2D>"))
                                 << QByteArray();
    QTest::newRow("sin puntos") << seccion("5", superficie("")) << QByteArray();
}

void TestLandXML::perfiles()
{
    QFETCH(QByteArray, secciones);
    QFETCH(QByteArray, esperado);
    const QString f = banco.Poner(
        "a.xml", Fichero(Alineacion("E", "<CrossSects>" + secciones + "</CrossSects>")));
    const auto r = banco.Ejecutar("tralandxml2krt", {"E", "T", f, "<salida>"});
    QCOMPARE(r.numero, esperado.isEmpty() ? 0 : 1);
    QCOMPARE(r.salida.has_value(), !esperado.isEmpty());
    if (r.salida) QCOMPARE(Banco_Conversion::En_Linea(*r.salida), esperado);
    QCOMPARE(r.Motivo().isEmpty(), r.numero != 0);
}

void TestLandXML::listas()
{
    const QByteArray perfil =
        "<Profile><ProfAlign name=\"uno\"/></Profile><Profile><ProfAlign name=\"dos\"/></Profile>";
    const QByteArray seccion =
        "<CrossSects><CrossSect sta=\"0\"><CrossSectSurf name=\"a:b\"/><CrossSectSurf/></CrossSect>"
        "<CrossSect sta=\"1\"><CrossSectSurf name=\"a:b\"><PntList2D>1 "
        "2</PntList2D></CrossSectSurf>"
        "</CrossSect></CrossSects>";
    const QByteArray xml = Fichero(Alineacion("A:1", perfil + seccion) + Alineacion("B", EJE) +
                                   Alineacion("C", "<CoordGeom/><Profile><ProfAlign name=\"x\"/>"
                                                   "</Profile>"));
    QCOMPARE(Lista("seleccionaEjeLandXML", xml), "B\r\nC\r\n");
    QCOMPARE(Lista("seleccionaRasanteLandXML", xml), "A:1/uno\r\nA:1/dos\r\nC\r\n");
    QCOMPARE(Lista("seleccionaTransverLandXML", xml), "A.1:a.b\r\nA.1:Superficie\r\n");
    const QString f = banco.Ruta("a.xml");
    QCOMPARE(banco.Ejecutar("tralandxml2krt", {"A.1", "a.b", f, "<salida>"}).numero, 1);
    QCOMPARE(Eje_De(xml, "0").numero, 1);
    for (const char* fuera : {"1", "2", "-1", "99999999999", "x"}) {
        const auto r = Eje_De(xml, fuera);
        QVERIFY2(r.numero == 0 && !r.salida && !r.Motivo().isEmpty(), fuera);
    }
}

void TestLandXML::la_lista_se_hace_siempre()
{
    Ficheros::Escribir(Fichero_Lista(), "vieja\r\n");
    QCOMPARE(Lista("seleccionaEjeLandXML", "<LandXML><Alignments>"), "");
    Ficheros::Escribir(Fichero_Lista(), "vieja\r\n");
    QCOMPARE(banco.Ejecutar("seleccionaEjeLandXML", {banco.Ruta("no_hay")}).numero, 0);
    QCOMPARE(Ficheros::Leer(Fichero_Lista()), "");
    // The list can't take the place of its source.
    const QString f = banco.Poner("a.xml", Fichero(Alineacion("B", EJE)));
    const auto r = banco.Ejecutar("seleccionaEjeLandXML", {f, f});
    QCOMPARE(r.numero, 0);
    QVERIFY(!r.Motivo().isEmpty());
    QCOMPARE(Ficheros::Leer(f), Fichero(Alineacion("B", EJE)));
    // Nor is it led elsewhere by a link.
    const QString ajeno = banco.Poner("ajeno", "no se toca");
    QFile::remove(Fichero_Lista());
    QVERIFY(QFile::link(ajeno, Fichero_Lista()));
    QCOMPARE(Lista("seleccionaEjeLandXML", Fichero(Alineacion("B", EJE))), "B\r\n");
    QCOMPARE(Ficheros::Leer(ajeno), "no se toca");
    QVERIFY(!QFileInfo(Fichero_Lista()).isSymLink());

    Mover_Fichero_Lista({});
    QVERIFY(Fichero_Lista().endsWith(u"$$$$.EJE"));
}

/// More points than are kept, those of the axis among the last and behind the alignment.
void TestLandXML::puntos_detras_de_un_levantamiento()
{
    QByteArray puntos = "<CgPoints>";
    for (int i = 0; i < 60000; ++i) {
        const QByteArray n = QByteArray::number(i);
        puntos += "<CgPoint name=\"P" + n + "\">" + n + " 5</CgPoint>";
    }
    puntos += "</CgPoints>";
    const QByteArray eje = Alineacion("E", "<CoordGeom><Line><Start pntRef=\"P3\"/>"
                                           "<End pntRef=\"P59999\"/></Line></CoordGeom>");
    const auto r = Eje_De("<LandXML><Alignments>" + eje + "</Alignments>" + puntos + "</LandXML>");
    QVERIFY2(r.numero == 1, qPrintable(r.informe.Lineas().join(u'\n')));
    QCOMPARE(Banco_Conversion::En_Linea(*r.salida), "INI 0.000 5.000 3.000/REC 0.0000 59996.000/"
                                                    "FIN 59996.000 5.000 59999.000 0.0000");
}

PRUEBA(TestLandXML)
#include "TestLandXML.moc"

#include "conversions/instrumento/Escritor_Instrumento.h"
#include "conversions/rasantes/Lectores_Rasante.h"
#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Banco_Conversion.h"

#include <QBuffer>
#include <QRandomGenerator>

/// What each reader of gradients makes of sound and damaged sources.
class TestRasantes : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void casos_data();
    void casos();
    void sin_rasante_no_hay_destino_data();
    void sin_rasante_no_hay_destino();
    void rasantes_al_azar_por_cada_origen();
    void cortadas_y_cambiadas();

private:
    Banco_Conversion banco;
};

void TestRasantes::casos_data()
{
    QTest::addColumn<QString>("funcion");
    QTest::addColumn<QByteArray>("fuente");
    QTest::addColumn<int>("resultado");
    QTest::addColumn<QByteArray>("esperado");

    QTest::newRow("qsv sin KV y con mas columnas")
        << "rqsv2krt" << QByteArray("* PK COTA KV\n0+000 100\n120 103,6 -1000 otra\n300 98.2\n")
        << 1 << QByteArray("0.000,100.000,0.000 120.000,103.600,60.000 300.000,98.200,0.000");
    QTest::newRow("qsv dos vertices")
        << "rqsv2krt" << QByteArray("1250 512.35\n1400 507.85\n") << 1
        << QByteArray("1250.000,512.350,0.000 1400.000,507.850,0.000");
    QTest::newRow("qsv ilegible y desordenado")
        << "rqsv2krt"
        << QByteArray("0 100 0\n50 1o1 0\n40\n100 103 0\n100 104 0\n90 1 0\n200 100 0\n") << -1
        << QByteArray("0.000,100.000,0.000 100.000,103.000,0.000 200.000,100.000,0.000");
    QTest::newRow("qsv KV en los extremos")
        << "rqsv2krt" << QByteArray("0 100 500\n100 103 0\n200 100 500\n") << -1
        << QByteArray("0.000,100.000,0.000 100.000,103.000,0.000 200.000,100.000,0.000");
    // Curves may touch; of two that overlap the first stays.
    QTest::newRow("qsv dos acuerdos que se tocan")
        << "rqsv2krt" << QByteArray("0 0 0\n100 5 1000\n200 0 1000\n300 5 0\n") << 1
        << QByteArray("0.000,0.000,0.000 100.000,5.000,100.000 200.000,0.000,100.000 "
                      "300.000,5.000,0.000");
    QTest::newRow("qsv solape")
        << "rqsv2krt" << QByteArray("0 0 0\n100 5 1200\n200 0 1200\n300 5 0\n") << -1
        << QByteArray("0.000,0.000,0.000 100.000,5.000,120.000 200.000,0.000,0.000 "
                      "300.000,5.000,0.000");

    // θ = 0.1 and half the curve 50 m: the leg behind has room for it to the millimetre.
    QTest::newRow("qsv el acuerdo llena el tramo siguiente")
        << "rqsv2krt" << QByteArray("0 0 0\n100 5 1000\n150 2.5 0\n") << 1
        << QByteArray("0.000,0.000,0.000 100.000,5.000,100.000 150.000,2.500,0.000");
    QTest::newRow("qsv el acuerdo no cabe hacia el siguiente")
        << "rqsv2krt" << QByteArray("0 0 0\n100 5 1000\n149.99 2.5005 0\n") << -1
        << QByteArray("0.000,0.000,0.000 100.000,5.000,0.000 149.990,2.501,0.000");
    QTest::newRow("qsv el acuerdo no cabe hacia el anterior")
        << "rqsv2krt" << QByteArray("0 0 0\n49.99 2.4995 1000\n149.99 -2.5005 0\n") << -1
        << QByteArray("0.000,0.000,0.000 49.990,2.499,0.000 149.990,-2.501,0.000");

    QTest::newRow("alz por elevaciones y pendientes")
        << "ristram2krt"
        << QByteArray("lo que sea\n0,100C,0R\n100,3P,0\n200,-3.0p,1000r\n300,100c,\n") << 1
        << QByteArray("0.000,100.000,0.000 100.000,103.000,0.000 200.000,100.000,30.000 "
                      "300.000,100.000,0.000");
    QTest::newRow("alz linea 2 que no es vertice")
        << "ristram2krt" << QByteArray("*ALZ\ntitulo\n0,100C,0R\n100,103C,0R\n") << 1
        << QByteArray("0.000,100.000,0.000 100.000,103.000,0.000");
    QTest::newRow("alz linea sin tres campos")
        << "ristram2krt" << QByteArray("*ALZ\n0,100C,0R\n50,101C\n100,103C,0R\n") << -1
        << QByteArray("0.000,100.000,0.000 100.000,103.000,0.000");
    QTest::newRow("alz pendiente en el primero")
        << "ristram2krt" << QByteArray("*ALZ\n0,3P,0R\n50,101C,0R\n100,103C,0R\n") << -1
        << QByteArray("50.000,101.000,0.000 100.000,103.000,0.000");
    // The slope counts from the vertex at 100, the one at 50 being none.
    QTest::newRow("alz pendiente detras de un vertice omitido")
        << "ristram2krt"
        << QByteArray("*ALZ\n0,100C,0R\n100,110C,0R\n50,999C,0R\n200,-1P,0R\n300,100C,0R\n") << -1
        << QByteArray("0.000,100.000,0.000 100.000,110.000,0.000 200.000,109.000,0.000 "
                      "300.000,100.000,0.000");
    QTest::newRow("alz marca sin valor")
        << "ristram2krt" << QByteArray("*ALZ\n0,100C,R\n50,101C,t\n60,101C,f\n100,103C,R\n") << 1
        << QByteArray("0.000,100.000,0.000 50.000,101.000,0.000 60.000,101.000,0.000 "
                      "100.000,103.000,0.000");
    QTest::newRow("alz marca desconocida")
        << "ristram2krt" << QByteArray("*ALZ\n0,100C,0R\n50,101C,5X\n60,101Z,0\n100,103C,0R\n")
        << -1 << QByteArray("0.000,100.000,0.000 100.000,103.000,0.000");
    QTest::newRow("alz bisectriz sin quiebro")
        << "ristram2krt" << QByteArray("*ALZ\n0,100C,0R\n50,101C,2F\n100,102C,0R\n") << -1
        << QByteArray("0.000,100.000,0.000 50.000,101.000,0.000 100.000,102.000,0.000");
    // θ = 0.06, f = 0.45: L = 8·f/θ.
    QTest::newRow("alz bisectriz")
        << "ristram2krt" << QByteArray("*ALZ\n0,100C,0R\n120,103.6C,0.45F\n300,98.2C,0R\n") << 1
        << QByteArray("0.000,100.000,0.000 120.000,103.600,60.000 300.000,98.200,0.000");

    // The sign of a bisector tells crest from sag, which the slopes tell too.
    QTest::newRow("alz bisectriz negativa")
        << "ristram2krt" << QByteArray("*ALZ\n0,100C,0R\n120,103.6C,-0.45F\n300,98.2C,0R\n") << 1
        << QByteArray("0.000,100.000,0.000 120.000,103.600,60.000 300.000,98.200,0.000");
    QTest::newRow("alz tangente negativa")
        << "ristram2krt" << QByteArray("*ALZ\n0,100C,0R\n120,103.6C,-30T\n300,98.2C,0R\n") << -1
        << QByteArray("0.000,100.000,0.000 120.000,103.600,0.000 300.000,98.200,0.000");

    const QByteArray fila = "3.0 60.0 1000.0 120 103.6 90 102.7 150 102.7 0.45 -6.0\n";
    QTest::newRow("istram")
        << "ristram2krt"
        << "EJE : 1\n7\n0+000 100\n" + fila + "pagina 2\nEJE : 1\n-3.0 300 98.2\n1 2\n"
        << 1 << QByteArray("0.000,100.000,0.000 120.000,103.600,60.000 300.000,98.200,0.000");
    QTest::newRow("istram longitud que no es la de su Kv")
        << "ristram2krt"
        << "0 100\n" + QByteArray(fila).replace("60.0 ", "61.0 ") + "-3 300 98.2\n"
        << -1 << QByteArray("0.000,100.000,0.000 120.000,103.600,61.000 300.000,98.200,0.000");
    QTest::newRow("istram longitud dentro del margen")
        << "ristram2krt"
        << "0 100\n" + QByteArray(fila).replace("60.0 ", "60.6 ") + "-3 300 98.2\n"
        << 1 << QByteArray("0.000,100.000,0.000 120.000,103.600,60.600 300.000,98.200,0.000");
    QTest::newRow("istram fila rota")
        << "ristram2krt"
        << "0 100\n" + QByteArray(fila).replace("103.6", "1O3.6") + "-3 300 98.2\n"
        << -1 << QByteArray("0.000,100.000,0.000 300.000,98.200,0.000");
    QTest::newRow("istram otro eje detras")
        << "ristram2krt"
        << "EJE : 1\n0 100\n" + fila + "-3 300 98.2\nEJE : 2\n0 5\n1 100 6\n"
        << 1 << QByteArray("0.000,100.000,0.000 120.000,103.600,60.000 300.000,98.200,0.000");
    // Without its last row the first axis ends all the same where the other's name stands.
    QTest::newRow("istram otro eje sin fila final del primero")
        << "ristram2krt"
        << "EJE : 1\n0 100\n" + fila + "EJE : 2\n-3 300 98.2\n"
        << -1 << QByteArray("0.000,100.000,0.000 120.000,103.600,0.000");
    QTest::newRow("istram el nombre antes de los vertices")
        << "ristram2krt"
        << "EJE : 1\nEJE : 2\n0 100\n" + fila + "-3 300 98.2\n"
        << 1 << QByteArray("0.000,100.000,0.000 120.000,103.600,60.000 300.000,98.200,0.000");
}

void TestRasantes::casos()
{
    QFETCH(QString, funcion);
    QFETCH(QByteArray, fuente);
    QFETCH(int, resultado);
    QFETCH(QByteArray, esperado);
    const auto r = banco.Convertir(funcion, fuente);
    QVERIFY2(r.salida, qPrintable(r.informe.Lineas().join(u'\n')));
    QCOMPARE(Banco_Conversion::En_Linea(*r.salida), QByteArray(esperado).replace(' ', '/'));
    QVERIFY2(r.numero == resultado, qPrintable(r.informe.Lineas().join(u'\n')));
}

void TestRasantes::sin_rasante_no_hay_destino_data()
{
    QTest::addColumn<QString>("funcion");
    QTest::addColumn<QByteArray>("fuente");
    QTest::newRow("qsv un vertice") << "rqsv2krt" << QByteArray("0 100 0\n");
    QTest::newRow("qsv siempre el mismo") << "rqsv2krt" << QByteArray("0 100 0\n0 101\n-5 3\n");
    QTest::newRow("alz un vertice") << "ristram2krt" << QByteArray("*ALZ\n0,100C,0R\n");
    QTest::newRow("istram sin filas") << "ristram2krt" << QByteArray("EJE : 1\nnada\n");
    QTest::newRow("istram solo el inicio") << "ristram2krt" << QByteArray("0 100\n");
}

void TestRasantes::sin_rasante_no_hay_destino()
{
    QFETCH(QString, funcion);
    QFETCH(QByteArray, fuente);
    const auto r = banco.Convertir(funcion, fuente);
    QCOMPARE(r.numero, 0);
    QVERIFY(!r.salida);
    QVERIFY(!r.Motivo().isEmpty());
}

/// One gradient, five sources: all must give its vertices. The elevations are whole millimetres, so
/// that no rounding decides.
void TestRasantes::rasantes_al_azar_por_cada_origen()
{
    const auto n = [](double x, int d = 6) { return QByteArray::number(x, 'f', d); };
    for (quint32 semilla = 1; semilla <= 40; ++semilla) {
        QRandomGenerator azar(semilla);
        struct Vertice {
            double pk, cota, longitud, theta;
        };
        std::vector<Vertice> v{{double(azar.bounded(5000)), azar.bounded(900000) / 1000.0, 0, 0}};
        const int cuantos = 2 + azar.bounded(8);
        double pendiente = 0;
        for (int i = 0; i < cuantos; ++i) {
            const double nueva = (azar.bounded(200) - 100) / 1000.0 + (i % 2 ? 0.005 : -0.005);
            const double lado = 150 + azar.bounded(300);
            v.back().theta = i == 0 ? 0 : std::abs(nueva - pendiente);
            if (i > 0 && v.back().theta > 1e-6) v.back().longitud = 20 + azar.bounded(120);
            pendiente = nueva;
            v.push_back({v.back().pk + lado, v.back().cota + nueva * lado, 0, 0});
        }
        QByteArray esperado, qsv, alz = "*ALZ\n", istram, xml;
        for (size_t i = 0; i < v.size(); ++i) {
            const Vertice& a = v[i];
            esperado += n(a.pk, 3) + ',' + n(a.cota, 3) + ',' + n(a.longitud, 3) + "\r\n";
            const double kv = a.theta > 0 && a.longitud > 0 ? a.longitud / a.theta : 0;
            qsv += n(a.pk) + ' ' + n(a.cota, 9) + ' ' + n(i % 2 ? kv : -kv, 9) + '\n';
            const double previa = i == 0 ? 0 : (a.cota - v[i - 1].cota) / (a.pk - v[i - 1].pk);
            alz +=
                n(a.pk) + ',' + (i % 3 == 1 ? n(previa * 100, 10) + 'P' : n(a.cota, 9) + 'C') + ',';
            alz += i % 3 == 0   ? n(kv, 9) + 'R'
                   : i % 3 == 1 ? n(a.longitud / 2) + 'T'
                                : n(a.longitud * a.theta / 8, 12) + 'F';
            alz += '\n';
            if (i == 0) {
                istram += n(a.pk) + ' ' + n(a.cota, 9) + '\n';
            } else if (i + 1 == v.size()) {
                istram += n(previa * 100) + ' ' + n(a.pk) + ' ' + n(a.cota, 9) + '\n';
            } else {
                istram += n(previa * 100) + ' ' + n(a.longitud) + ' ' + n(kv) + ' ' + n(a.pk) +
                          ' ' + n(a.cota, 9) + " 0 0 0 0 0 " + n(-a.theta * 100) + '\n';
            }
            const QByteArray par = n(a.pk) + ' ' + n(a.cota, 9);
            xml += a.longitud == 0 ? "<PVI>" + par + "</PVI>"
                   : i % 3 == 0
                       ? "<ParaCurve length=\"" + n(a.longitud) + "\">" + par + "</ParaCurve>"
                   : i % 3 == 1
                       ? "<CircCurve radius=\"" + n(kv, 9) + "\">" + par + "</CircCurve>"
                       : "<UnsymParaCurve lengthIn=\"" + n(a.longitud / 2) + "\" lengthOut=\"" +
                             n(a.longitud / 2) + "\">" + par + "</UnsymParaCurve>";
        }
        const auto comprobar = [&](const Banco_Conversion::Resultado& r, const char* origen) {
            QVERIFY2(r.numero == 1, qPrintable(origen + r.informe.Lineas().join(u'\n')));
            QVERIFY2(*r.salida == esperado, (*r.salida + "\n" + esperado).constData());
        };
        comprobar(banco.Convertir("rqsv2krt", qsv), "qsv");
        comprobar(banco.Convertir("ristram2krt", alz), "alz");
        comprobar(banco.Convertir("ristram2krt", istram), "istram");
        const QString fichero = banco.Poner(
            "r.xml", "<LandXML><Alignments><Alignment name=\"E\"><Profile><ProfSurf/><ProfAlign "
                     "name=\"R\">" +
                         xml + "</ProfAlign></Profile></Alignment></Alignments></LandXML>");
        comprobar(banco.Ejecutar("rlandxml2krt", {"E", fichero, "<salida>"}), "landxml");
        const auto ida = banco.Ejecutar("ristram2landxml",
                                        {banco.Poner("i.txt", istram), "<salida>"}, "ida.xml");
        QCOMPARE(ida.numero, 1);
        comprobar(banco.Ejecutar("rlandxml2krt", {"i", banco.Ruta("ida.xml"), "<salida>"}),
                  "vuelta");
    }
}

/// A source cut or changed at any byte gives a gradient of ascending stations or a reason.
void TestRasantes::cortadas_y_cambiadas()
{
    using Lector = Rasante (*)(Texto_Fuente&, Informe_Lectura&);
    const std::pair<const char*, Lector> MUESTRAS[] = {{"eje1.ras", Leer_Rasante_Qsv},
                                                       {"eje1.alz", Leer_Rasante_Istram_O_Alz},
                                                       {"eje1_ras.txt", Leer_Rasante_Istram_O_Alz}};
    int leidas = 0, rehusadas = 0;
    for (const auto& [muestra, leer] : MUESTRAS) {
        const auto probar = [&, lector = leer](QByteArray roto) {
            QBuffer buffer(&roto);
            buffer.open(QIODevice::ReadOnly);
            Texto_Fuente fuente(buffer);
            Informe_Lectura informe;
            try {
                const Rasante r = lector(fuente, informe);
                QVERIFY(r.vertices.size() >= 2);
                for (size_t v = 1; v < r.vertices.size(); ++v)
                    QVERIFY(r.vertices[v].pk > r.vertices[v - 1].pk && r.vertices[v].longitud >= 0);
                QVERIFY(!Escribir_Rasante_Instrumento(r, {}).contains('n'));
                ++leidas;
            } catch (const Fallo_Conversion& f) {
                QVERIFY(!f.motivo.isEmpty());
                ++rehusadas;
            }
        };
        Banco_Conversion::Con_Danos(Banco_Conversion::Bytes_Muestra(muestra), probar);
    }
    QVERIFY(leidas > 1000 && rehusadas > 100);
}

PRUEBA(TestRasantes)
#include "TestRasantes.moc"

#include "core/Error_Ejecucion.h"
#include "export/dxf/Puntos_DXF.h"
#include "export/plano/Lector_DXF.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

#include <random>

namespace {

QByteArray Dibujo(const QByteArray& entidades)
{
    return "0\nSECTION\n2\nENTITIES\n" + entidades + "0\nENDSEC\n0\nEOF\n";
}

} // namespace

class TestLector_DXF : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void el_dibujo_del_programa_vuelve();
    void las_capas_dan_su_color();
    void lineas_y_curvas();
    void lo_desconocido_se_cuenta();
    void lo_que_no_es_un_dibujo_se_dice_data();
    void lo_que_no_es_un_dibujo_se_dice();
    void un_dibujo_roto_no_lo_rompe();
};

void TestLector_DXF::el_dibujo_del_programa_vuelve()
{
    Interfaz_Guion interfaz;
    Avance_Exportar callado;
    Datos_Formateados datos;
    datos.campos = QStringList{"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z", "Código"};
    datos.filas = {{"P1", "P2"}, {"1.5", "2"}, {"3", "4"}, {"5", "6.25"}, {"Á", ""}};
    const Dibujo_Leido leido = Leer_DXF(Dibujar_Tabla(datos, Modo_DXF::Ambos, {}, callado).bytes);
    QCOMPARE(leido.pasadas, 0);
    const Plano& plano = leido.plano;
    QStringList capas, textos;
    for (const Capa_Plano& capa : plano.capas)
        capas << capa.nombre;
    QCOMPARE(capas, (QStringList{"PUNTOS_2D", "PUNTOS_3D", "NUMEROS", "COTAS", "CODIGOS"}));
    QCOMPARE(plano.puntos.size(), std::size_t(4));
    QCOMPARE(plano.puntos[0].lugar, (Lugar_Plano{1.5, 3}));
    QVERIFY(!plano.puntos[0].cota);
    QCOMPARE(plano.puntos[3].cota, 6.25);
    QCOMPARE(plano.puntos[1].color, 3);
    for (const Texto_Plano& t : plano.textos)
        textos << t.texto;
    QCOMPARE(textos, (QStringList{"P1", "5.000", "Á", "P2", "6.250"}));
    QCOMPARE(plano.textos[0].altura, 2.0);
    QCOMPARE(plano.textos[0].lugar, (Lugar_Plano{2.5, 3}));
    QCOMPARE(*plano.Buscar("p2"), (Lugar_Plano{3, 4}));
}

void TestLector_DXF::las_capas_dan_su_color()
{
    const Dibujo_Leido leido = Leer_DXF(
        "999\ncomentario\n0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n0\nLAYER\n2\nRÍO\n62\n-5\n"
        "0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n0\nPOINT\n10\n9\n20\n9\n0\nENDSEC\n"
        "0\nSECTION\n2\nENTITIES\n0\nPOINT\n8\nR\xCDO\n10\n1\n20\n2\n0\nPOINT\n10\n3\n20\n4\n"
        "62\n1\n0\nENDSEC\n0\nEOF\n");
    QCOMPARE(leido.plano.puntos.size(), std::size_t(2));
    QCOMPARE(leido.plano.puntos[1].color, 1);
    QCOMPARE(leido.plano.capas[1].nombre, QString("0"));
}

void TestLector_DXF::lineas_y_curvas()
{
    const Plano plano =
        Leer_DXF(
            Dibujo("0\nLINE\n8\nL\n10\n0\n20\n0\n11\n3\n21\n4\n"
                   "0\nLWPOLYLINE\n8\nL\n70\n1\n10\n0\n20\n0\n10\n1\n20\n0\n10\n1\n20\n1\n"
                   "0\nPOLYLINE\n8\nP\n70\n0\n0\nVERTEX\n10\n5\n20\n5\n0\nVERTEX\n10\n6\n20\n6\n"
                   "0\nSEQEND\n0\nCIRCLE\n10\n10\n20\n10\n40\n2\n"
                   "0\nARC\n10\n0\n20\n0\n40\n1\n50\n270\n51\n90\n"))
            .plano;
    QCOMPARE(plano.lineas.size(), std::size_t(5));
    QCOMPARE(Distancia(plano.lineas[0].vertices[0], plano.lineas[0].vertices[1]), 5.0);
    QCOMPARE(plano.lineas[1].vertices.size(), std::size_t(4));
    QCOMPARE(plano.lineas[1].vertices.back(), (Lugar_Plano{0, 0}));
    QCOMPARE(plano.lineas[2].vertices.size(), std::size_t(2));
    for (const Lugar_Plano v : plano.lineas[3].vertices)
        QVERIFY(std::abs(Distancia(v, {10, 10}) - 2) < 1e-9);
    QVERIFY(Distancia(plano.lineas[3].vertices.front(), plano.lineas[3].vertices.back()) < 1e-9);
    QVERIFY(Distancia(plano.lineas[4].vertices.back(), {0, 1}) < 1e-9);
    QVERIFY(Distancia(plano.lineas[4].vertices[36], {1, 0}) < 1e-9);
}

void TestLector_DXF::lo_desconocido_se_cuenta()
{
    const Dibujo_Leido leido =
        Leer_DXF(Dibujo("0\n3DFACE\n8\nX\n0\nTEXT\n10\n1\n20\n2\n1\n  \n0\nHATCH\n"));
    QCOMPARE(leido.pasadas, 2);
    QVERIFY(leido.plano.Vacio());
}

void TestLector_DXF::lo_que_no_es_un_dibujo_se_dice_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("numero");
    QTest::addColumn<QString>("motivo");
    QTest::newRow("vacío") << QByteArray() << 62 << "vacío";
    QTest::newRow("texto") << QByteArray("Hola\nadiós\n") << 13 << "Línea 1";
    QTest::newRow("otra cosa") << QByteArray("7\nadiós\n") << 13 << "no es un dibujo";
    QTest::newRow("cortado") << Dibujo({}).chopped(6) << 62 << "cortado";
    QTest::newRow("sin valor") << QByteArray("0\nSECTION\n2") << 13 << "falta el valor";
    QTest::newRow("letras") << Dibujo("0\nPOINT\n8\nA\n10\nx\n20\n1\n") << 13
                            << "Línea 10: no es un número";
}

void TestLector_DXF::lo_que_no_es_un_dibujo_se_dice()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, numero);
    QFETCH(QString, motivo);
    try {
        Leer_DXF(bytes);
        QFAIL("read");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, numero);
        QVERIFY2(e.descripcion.contains(motivo), qPrintable(e.descripcion));
    }
}

void TestLector_DXF::un_dibujo_roto_no_lo_rompe()
{
    const QByteArray entero =
        Dibujo("0\nPOLYLINE\n8\nP\n70\n1\n0\nVERTEX\n10\n5\n20\n5\n0\nVERTEX\n10\n6\n"
               "20\n6\n0\nSEQEND\n0\nARC\n10\n0\n20\n0\n40\n1\n50\n270\n51\n90\n");
    std::mt19937 azar(11);
    int leidos = 0;
    for (int v = 0; v < 3000; ++v) {
        QByteArray roto = entero;
        roto[qsizetype(azar() % quint32(roto.size()))] = char(azar());
        leidos += Numero_De_Error([&] { Leer_DXF(roto); }) == 0;
    }
    QVERIFY(leidos > 0 && leidos < 3000);
}

PRUEBA(TestLector_DXF)
#include "TestLector_DXF.moc"

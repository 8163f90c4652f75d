#include "conversions/ejes/Lectores_Eje.h"
#include "conversions/instrumento/Escritor_Instrumento.h"
#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Banco_Conversion.h"

#include <QBuffer>

namespace {

/// Rows of singular points with the columns of each layout put in order.
QByteArray Qsv(const char* pk, const char* x, const char* y, const char* az,
               const char* radio = "0", const char* A = "0", const char* longitud = "0")
{
    return QByteArray(pk) + ' ' + x + ' ' + y + ' ' + az + ' ' + radio + ' ' + A + ' ' + longitud +
           "\r\n";
}

} // namespace

/// What each reader of axes makes of sound and damaged sources.
class TestLectores_Eje : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void casos_data();
    void casos();
    void motivos_data();
    void motivos();
    void sin_eje_no_hay_destino_data();
    void sin_eje_no_hay_destino();
    void el_contenido_manda_data();
    void el_contenido_manda();
    void ejemplos_de_la_forma();
    void cortados_y_cambiados();
    void ajenos();

private:
    Banco_Conversion banco;
};

void TestLectores_Eje::casos_data()
{
    QTest::addColumn<QString>("funcion");
    QTest::addColumn<QByteArray>("fuente");
    QTest::addColumn<int>("resultado");
    QTest::addColumn<QByteArray>("esperado");

    // QSV: kinds and neighbours.
    const QByteArray recta = Qsv("0", "1000", "1000", "100", "0", "0", "100");
    QTest::newRow("qsv recta, con fin")
        << "aqtr2krt" << recta + Qsv("100", "1100", "1000", "100") << 1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 100.000 1100.000 1000.000 100.0000");
    QTest::newRow("qsv sin fila de fin")
        << "aqtr2krt" << recta << 1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 100.000 1100.000 1000.000 100.0000");
    QTest::newRow("qsv columnas que faltan y comas")
        << "aqtr2krt"
        << QByteArray("; nota\n0+000 1000,0 1000 100 0 0 1,0E2\n0+100\t1100 1000 100\n") << 1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 100.000 1100.000 1000.000 100.0000");
    QTest::newRow("qsv azimut que redondea a 400")
        << "aqtr2krt"
        << Qsv("0", "0", "0", "399.99996", "0", "0", "50") + Qsv("50", "0", "50", "399.99996") << 1
        << QByteArray("INI 0.000 0.000 0.000/REC 0.0000 50.000/FIN 50.000 0.000 50.000 0.0000");
    QTest::newRow("qsv longitud minima se deja")
        << "aqtr2krt"
        << recta + Qsv("100", "1100", "1000", "100", "50", "0", "0.0004") +
               Qsv("100.0004", "1100", "1000", "100")
        << 1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 100.000 1100.000 1000.000 100.0000");
    QTest::newRow("qsv el eje empieza en el primer elemento que queda")
        << "aqtr2krt"
        << Qsv("7", "1000", "1000", "100", "0", "0", "0.0004") +
               Qsv("20", "1000", "1000", "100", "0", "0", "100") + Qsv("120", "1100", "1000", "100")
        << 1
        << QByteArray("INI 20.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 120.000 1100.000 1000.000 100.0000");
    QTest::newRow("qsv salto tras una longitud minima")
        << "aqtr2krt"
        << recta + Qsv("100", "1100", "1000", "100", "50", "0", "0.0004") +
               Qsv("100.0004", "1100.06", "1000", "100")
        << -1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 100.000 1100.060 1000.000 100.0000");
    QTest::newRow("qsv longitud nula en medio")
        << "aqtr2krt"
        << Qsv("0", "1000", "1000", "100", "0", "0", "0") +
               Qsv("100", "1100", "1000", "100", "0", "0", "50") + Qsv("150", "1150", "1000", "100")
        << -1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/REC 100.0000 50.000/"
                      "FIN 150.000 1150.000 1000.000 100.0000");
    QTest::newRow("qsv fila ilegible")
        << "aqtr2krt"
        << recta + Qsv("100", "11x0", "1000", "100", "0", "0", "5") +
               Qsv("100", "1100", "1000", "100")
        << -1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 100.000 1100.000 1000.000 100.0000");
    QTest::newRow("qsv tres columnas")
        << "aqtr2krt" << recta + "100 1100 1000\r\n" + Qsv("100", "1100", "1000", "100") << -1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 100.000 1100.000 1000.000 100.0000");
    QTest::newRow("qsv salto") << "aqtr2krt" << recta + Qsv("100", "1100.06", "1000", "100") << -1
                               << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                                             "FIN 100.000 1100.060 1000.000 100.0000");
    QTest::newRow("qsv salto admitido")
        << "aqtr2krt" << recta + Qsv("100", "1100.049", "1000", "100") << 1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 100.000 1100.049 1000.000 100.0000");
    QTest::newRow("qsv clotoide entre rectas")
        << "aqtr2krt"
        << recta + Qsv("100", "1100", "1000", "100", "50", "40", "30") +
               Qsv("130", "1130", "1000", "100")
        << -1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/REC 100.0000 30.000/"
                      "FIN 130.000 1130.000 1000.000 100.0000");
    QTest::newRow("qsv elemento imposible al final")
        << "aqtr2krt" << recta + Qsv("100", "1100", "1000", "100", "50", "40", "30") << -1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 100.000 1100.000 1000.000 100.0000");
    // Left entry clothoid, left arc, egg clothoid to the curvature of the end's radius.
    QTest::newRow("qsv ovoide")
        << "aqtr2krt"
        << Qsv("1000", "500", "800", "200", "0", "0", "25.5") +
               Qsv("1025.5", "500", "774.5", "200", "0", "80", "40") +
               Qsv("1065.5", "501.665", "734.562", "192.0423", "-160", "0", "30") +
               Qsv("1095.5", "508.147", "705.300", "180.1056", "0", "80", "24") +
               Qsv("1119.5", "517.552", "683.273", "167.6915", "-100", "0", "0")
        << 1
        << QByteArray("INI 1000.000 500.000 800.000/REC 200.0000 25.500/"
                      "CLO 200.0000 40.000 80.000 0.000 -160.000/CIR 192.0423 30.000 -160.000/"
                      "CLO 180.1056 24.000 80.000 -160.000 -100.000/"
                      "FIN 1119.500 517.552 683.273 167.6915");
    // L = A²/R: k = 40/80² = 1/160, the side by the turn to the next row.
    QTest::newRow("qsv punta a la derecha")
        << "aqtr2krt"
        << Qsv("0", "0", "0", "0", "0", "80", "40") +
               Qsv("40", "1.665", "39.938", "7.9577", "0", "80", "40") +
               Qsv("80", "9.932", "79.045", "15.9155")
        << 1
        << QByteArray("INI 0.000 0.000 0.000/CLO 0.0000 40.000 80.000 0.000 160.000/"
                      "CLO 7.9577 40.000 80.000 160.000 0.000/FIN 80.000 9.932 79.045 15.9155");
    QTest::newRow("qsv punta a la izquierda")
        << "aqtr2krt"
        << Qsv("0", "0", "0", "0", "0", "80", "40") +
               Qsv("40", "-1.665", "39.938", "392.0423", "0", "-80", "40") +
               Qsv("80", "-9.932", "79.045", "384.0845")
        << 1
        << QByteArray("INI 0.000 0.000 0.000/CLO 0.0000 40.000 80.000 0.000 -160.000/"
                      "CLO 392.0423 40.000 80.000 -160.000 0.000/"
                      "FIN 80.000 -9.932 79.045 384.0845");
    QTest::newRow("qsv clotoide entre curvas contrarias")
        << "aqtr2krt"
        << Qsv("0", "0", "0", "0", "100", "0", "10") +
               Qsv("10", "0.500", "9.983", "6.3662", "0", "50", "20") +
               Qsv("30", "0.5", "29.9", "0", "-100", "0", "10")
        << -1
        << QByteArray("INI 0.000 0.000 0.000/CIR 0.0000 10.000 100.000/REC 0.0000 19.917/"
                      "CIR 0.0000 10.000 -100.000/FIN 39.917 0.000 39.883 393.6338");

    // ISTRAM: furniture, pages, end.
    QTest::newRow("istram paginas y otro eje")
        << "aistramList2krt"
        << QByteArray("EJE : 1\r\n1 2 3 4\r\n1 RECTA 100 0 1000 1000 100 0 1\r\nPAGINA 2\r\n"
                      " EJE : 1\r\n2 RECTA. 50 100 1100 1000 100\r\n150 1150 1000 100\r\n"
                      "EJE : 2\r\n1 RECTA 10 0 0 0 0\r\n10 0 10 0\r\n")
        << 1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/REC 100.0000 50.000/"
                      "FIN 150.000 1150.000 1000.000 100.0000");
    QTest::newRow("istram sin fila final, sigue otro eje")
        << "aistram2krt"
        << QByteArray("EJE : 1\nRECTA 100 0 1000 1000 100\nEJE : 2\nRECTA 10 0 0 0 0\n") << 1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 100.000 1100.000 1000.000 100.0000");
    QTest::newRow("istram curva sin radio")
        << "aistram2krt"
        << QByteArray(
               "RECTA 100 0 1000 1000 100\nCIRC. 50 100 1100 1000 0 100\n150 1150 1000 100\n")
        << -1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/REC 100.0000 50.000/"
                      "FIN 150.000 1150.000 1000.000 100.0000");
    QTest::newRow("istram fila rota")
        << "aistram2krt"
        << QByteArray(
               "1 RECTA 100 0 1000 1000 100\n2 RECTA 50 1o0 1100 1000 100\n100 1100 1000 100\n")
        << -1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 100.000 1100.000 1000.000 100.0000");

    // ISPOL
    QTest::newRow("ispol tipos")
        << "aispol2krt"
        << QByteArray(
               "0 1000 1000 100 R. 0 50\n50 1050 1000 100 1 0 50\n100 1100 1000 100 recta 0 0\n")
        << 1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 50.000/REC 100.0000 50.000/"
                      "FIN 100.000 1100.000 1000.000 100.0000");
    QTest::newRow("ispol tipo desconocido")
        << "aispol2krt"
        << QByteArray(
               "0 1000 1000 100 R 0 100\n50 1050 1000 100 ESPIRAL 0 50\n100 1100 1000 100 R 0 0\n")
        << -1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 100.000 1100.000 1000.000 100.0000");

    // HTRAZADO
    const QByteArray inicio = "PK 1+000\r\nINICIO 1000 1000 100\r\n";
    QTest::newRow("htrazado") << "ahtrazado2krt"
                              << inicio +
                                     "RECTA 100\r\nCURVA 100 50\r\nRECTA 60\r\nFIN\r\nbasura\r\n"
                              << 1
                              << QByteArray("INI 1000.000 1000.000 1000.000/REC 100.0000 100.000/"
                                            "CIR 100.0000 78.540 100.000/REC 150.0000 60.000/"
                                            "FIN 1238.540 1213.137 928.284 150.0000");
    QTest::newRow("htrazado sexagesimal")
        << "ahtrazado2krt"
        << QByteArray("ANGULOS SEXAGESIMAL\nINICIO 1000 1000 90.0000\nRECTA 100\nCURVA 100 45.0\n"
                      "RECTA 60\n")
        << 1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "CIR 100.0000 78.540 100.000/REC 150.0000 60.000/"
                      "FIN 238.540 1213.137 928.284 150.0000");
    QTest::newRow("htrazado 60 minutos")
        << "ahtrazado2krt"
        << QByteArray("ANGULOS SEXAGESIMAL\nINICIO 1000 1000 90\nRECTA 100\nCURVA 100 45.60\n")
        << -1
        << QByteArray("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 100.000 1100.000 1000.000 100.0000");
    for (const char* mala :
         {"TUNEL 5", "RECTA", "RECTA cien", "RECTA 0", "RECTA -5", "CURVA 0 50", "CURVA 100 0",
          "CURVA 100 -5", "CURVA 100", "CLOTOIDE 0 0 100", "CLOTOIDE -50 0 100",
          "CLOTOIDE 50 100 100", "CLOTOIDE 50 0 0", "CLOTOIDE 50 100 -100", "CLOTOIDE 50 100",
          "ANGULOS GRADOS", "PK 0", "INICIO_X"})
        QTest::addRow("htrazado %s", mala)
            << "ahtrazado2krt" << inicio + "RECTA 100\r\n" + mala + "\r\nFIN\r\n"
            << -1
            << QByteArray("INI 1000.000 1000.000 1000.000/REC 100.0000 100.000/"
                          "FIN 1100.000 1100.000 1000.000 100.0000");
    QTest::newRow("htrazado segundo eje")
        << "ahtrazado2krt"
        << inicio + "RECTA 100\r\nEJE 2\r\nPK 0\r\nINICIO 0 0 0\r\nRECTA 10\r\nFIN\r\n"
        << 1
        << QByteArray("INI 1000.000 1000.000 1000.000/REC 100.0000 100.000/"
                      "FIN 1100.000 1100.000 1000.000 100.0000");

    // CLIP
    QTest::newRow("plt campos que faltan")
        << "aclipplt2krt" << QByteArray("*PLT\n1+000\n0,0\n0,100,,\n100,100,0,0,0,\n") << 1
        << QByteArray("INI 1000.000 0.000 0.000/REC 0.0000 100.000/REC 100.0000 100.000/"
                      "FIN 1200.000 100.000 100.000 100.0000");
    QTest::newRow("plt vertice ilegible")
        << "aclipplt2krt" << QByteArray("x\n0\n0,0\nA,50\n0,100\n") << -1
        << QByteArray("INI 0.000 0.000 0.000/REC 0.0000 100.000/FIN 100.000 0.000 100.000 0.0000");
    QTest::newRow("plt coma decimal no vale")
        << "aclipplt2krt" << QByteArray("*PLT\n0\n0.0,0.0\n0.0,100.0\n50.0;5,60\n") << -1
        << QByteArray("INI 0.000 0.000 0.000/REC 0.0000 100.000/FIN 100.000 0.000 100.000 0.0000");
    QTest::newRow("plt curva en un extremo")
        << "aclipplt2krt" << QByteArray("*PLT\n0\n0,0,50,0,0\n0,100,0,0,20\n") << -1
        << QByteArray("INI 0.000 0.000 0.000/REC 0.0000 100.000/FIN 100.000 0.000 100.000 0.0000");
    QTest::newRow("plt la curva siguiente no cabe")
        << "aclipplt2krt" << QByteArray("*PLT\n0\n0,0\n0,100,60,0,0\n100,100,60,0,0\n100,200\n")
        << -1
        << QByteArray("INI 0.000 0.000 0.000/REC 0.0000 40.000/CIR 0.0000 94.248 60.000/"
                      "REC 100.0000 40.000/REC 0.0000 100.000/"
                      "FIN 274.248 100.000 200.000 0.0000");

    // The road turns by 199.98 gon, and by 199.995, where no curve is tried any more.
    QTest::newRow("plt media vuelta casi")
        << "aclipplt2krt" << QByteArray("*PLT\n0\n0,0\n0,1000,0.1,0,0\n0.314159,0.00005\n") << 1
        << QByteArray("INI 0.000 0.000 0.000/REC 0.0000 363.380/CIR 0.0000 0.314 0.100/"
                      "REC 199.9800 363.380/FIN 727.074 0.314 0.000 199.9800");
    QTest::newRow("plt media vuelta")
        << "aclipplt2krt" << QByteArray("*PLT\n0\n0,0\n0,1000,0.01,0,0\n0.07854,0.000003\n") << -1
        << QByteArray("INI 0.000 0.000 0.000/REC 0.0000 1000.000/REC 199.9950 1000.000/"
                      "FIN 2000.000 0.079 0.000 199.9950");

    // MXROAD
    const QByteArray genio =
        "GENIO X\r\n001FORMAT(3F12.3)\r\n080,SUP1\r\n"
        "       1.000       2.000       3.000\r\n"
        "       0.000       0.000       0.000\r\n"
        "001FORMAT(3F12.3/F12.3,F12.9,F12.3/F12.9,F12.9,4A4)\r\n080,MC10,7=12\r\n";
    const auto punto = [](const char* x, const char* pk, const char* radio, const char* codigo) {
        const auto campo = [](const char* t) { return QByteArray(t).rightJustified(12); };
        return campo(x) + campo("1000.000") + campo("") + "\r\n" + campo(pk) +
               campo("1.570796327") + campo(radio) + "\r\n" + campo("0") + campo("0") + codigo +
               "\r\n";
    };
    const QByteArray dos_rectas("INI 0.000 1000.000 1000.000/REC 100.0000 100.000/"
                                "REC 100.0000 50.000/FIN 150.000 1150.000 1000.000 100.0000");
    QTest::newRow("mxroad, otras cadenas antes, puntos que no son")
        << "amxroad2krt"
        << genio + punto("1000.000", "0.000", "999999.999", "T") +
               punto("1050.000", "50.000", "5.000", "CAL") +
               punto("1060.000", "60.000", "5.000", "XP") +
               punto("1100.000", "100.000", "0.000", "st") +
               punto("1150.000", "150.000", "1000000", "PT") +
               punto("0.000", "0.000", "0.000", "").replace("1000.000", "   0.000") + "999\r\n"
        << 1 << dos_rectas;
    QTest::newRow("mxroad, rectas de radio negativo y en el limite")
        << "amxroad2krt"
        << genio + punto("1000.000", "0.000", "-999999.999", "T") +
               punto("1100.000", "100.000", "-999999.000", "T") +
               punto("1150.000", "150.000", "999999.000", "T") + "999\r\n"
        << 1 << dos_rectas;
    QTest::newRow("mxroad, cierre sin registro de ceros")
        << "amxroad2krt"
        << genio + punto("1000.000", "0.000", "999999.999", "T") +
               punto("1100.000", "100.000", "999999.999", "T") +
               punto("1150.000", "150.000", "999999.999", "T") + "999\r\nFINISH\r\n"
        << 1 << dos_rectas;
    QTest::newRow("mxroad, numero ilegible")
        << "amxroad2krt"
        << genio + punto("1000.000", "0.000", "999999.999", "T") +
               punto("1100.000", "100.000", "999999.999", "T") +
               punto("1120.000", "12o.000", "999999.999", "T") +
               punto("1150.000", "150.000", "999999.999", "T") + "999\r\n"
        << -1 << dos_rectas;
    QTest::newRow("mxroad, registro cortado")
        << "amxroad2krt"
        << genio + punto("1000.000", "0.000", "999999.999", "T") +
               punto("1100.000", "100.000", "999999.999", "T") +
               punto("1150.000", "150.000", "999999.999", "T") +
               punto("1250.000", "250.000", "999999.999", "T").left(40)
        << -1 << dos_rectas;
}

void TestLectores_Eje::casos()
{
    QFETCH(QString, funcion);
    QFETCH(QByteArray, fuente);
    QFETCH(int, resultado);
    QFETCH(QByteArray, esperado);
    const auto r = banco.Convertir(funcion, fuente);
    QVERIFY2(r.salida, qPrintable(r.informe.Lineas().join(u'\n')));
    QCOMPARE(Banco_Conversion::En_Linea(*r.salida), esperado);
    QVERIFY2(r.numero == resultado, qPrintable(r.informe.Lineas().join(u'\n')));
}

void TestLectores_Eje::motivos_data()
{
    QTest::addColumn<QString>("funcion");
    QTest::addColumn<QByteArray>("fuente");
    QTest::addColumn<QString>("motivo");
    QTest::newRow("fila") << "aqtr2krt" << QByteArray("0 0 0 0 0 0 10\n\n0x 1 2 3\n10 0 10 0\n")
                          << "Línea 3: Fila ilegible, se omite: \"0x 1 2 3\"";
    QTest::newRow("curva sin radio")
        << "aispol2krt" << QByteArray("0 0 0 0 C 0 10\n10 0 10 0 R 0 0\n")
        << "Línea 1: Curva sin radio, se sustituye por una recta: \"0 0 0 0 C 0 10\"";
    QTest::newRow("salto") << "aqtr2krt" << QByteArray("0 0 0 0 0 0 10\n10 0 10.5 0\n")
                           << "Línea 1: El elemento acaba a 0.500 m del punto siguiente: "
                              "\"0 0 0 0 0 0 10\"";
    QTest::newRow("palabra") << "ahtrazado2krt" << QByteArray("INICIO 0 0 0\nRECTA 10\nTUNEL 7\n")
                             << "Línea 3: Palabra desconocida, la línea se omite: \"TUNEL 7\"";
}

void TestLectores_Eje::motivos()
{
    QFETCH(QString, funcion);
    QFETCH(QByteArray, fuente);
    QFETCH(QString, motivo);
    const auto r = banco.Convertir(funcion, fuente);
    QCOMPARE(r.numero, -1);
    QCOMPARE(r.informe.Lineas(), QStringList{motivo});
}

void TestLectores_Eje::sin_eje_no_hay_destino_data()
{
    QTest::addColumn<QString>("funcion");
    QTest::addColumn<QByteArray>("fuente");
    QTest::newRow("plt sin PK") << "aclipplt2krt" << QByteArray("*PLT\n");
    QTest::newRow("plt PK ilegible") << "aclipplt2krt" << QByteArray("*PLT\ncero\n0,0\n0,9\n");
    QTest::newRow("plt un vertice") << "aclipplt2krt" << QByteArray("*PLT\n0\n0,0\n");
    QTest::newRow("plt dos iguales") << "aclipplt2krt" << QByteArray("*PLT\n0\n5,5\n5,5.0001\n");
    QTest::newRow("qsv solo fin") << "aqtr2krt" << QByteArray("0 0 0 0 0 0 0\n");
    QTest::newRow("qsv nada legible") << "aqtr2krt" << QByteArray("1 2 3\n1 2\n");
    QTest::newRow("istram sin filas") << "aistram2krt" << QByteArray("1 2 3 4\nEJE : 1\n");
    QTest::newRow("htrazado antes de INICIO")
        << "ahtrazado2krt" << QByteArray("RECTA 5\nINICIO 0 0 0\nRECTA 5\n");
    QTest::newRow("htrazado sin elementos") << "ahtrazado2krt" << QByteArray("INICIO 0 0 0\nFIN\n");
    QTest::newRow("mxroad sin cadena") << "amxroad2krt" << QByteArray("GENIO\n999\nFINISH\n");
    QTest::newRow("mxroad formato de otra cosa")
        << "amxroad2krt" << QByteArray("GENIO\n001FORMAT(3I5/2I5/A4)\n080,A\n1 2 3\n");
    QTest::newRow("mxroad formato sin cerrar")
        << "amxroad2krt" << QByteArray("GENIO\n001FORMAT(3F12.3/3F12.3/4A4\n080,A\n1 2 3\n");
    QTest::newRow("mxroad formato enorme")
        << "amxroad2krt"
        << "GENIO\n001FORMAT(" + QByteArray("99999F0,").repeated(8000) + ")\n080,A\n1\n";
    QTest::newRow("mxroad un punto")
        << "amxroad2krt"
        << QByteArray("GENIO\n001FORMAT(3F4.0/3F4.0/2F4.0,4A4)\n080,A\n   1   2   3\n   0   0   0\n"
                      "   0   0T\n999\n");
}

void TestLectores_Eje::sin_eje_no_hay_destino()
{
    QFETCH(QString, funcion);
    QFETCH(QByteArray, fuente);
    const auto r = banco.Convertir(funcion, fuente);
    QCOMPARE(r.numero, 0);
    QVERIFY(!r.salida);
    QVERIFY(!r.Motivo().isEmpty());
}

void TestLectores_Eje::el_contenido_manda_data()
{
    QTest::addColumn<QString>("muestra");
    for (const char* m : {"eje1.plt", "eje1.htr", "eje1.txt", "eje1.asc", "eje1.res", "eje1.ali"})
        QTest::newRow(m) << m;
}

/// Six packages' files give their axis through every function of axes, whoever it was made for.
void TestLectores_Eje::el_contenido_manda()
{
    QFETCH(QString, muestra);
    for (const char* f : {"aclipplt2krt", "aqtr2krt", "aistram2krt", "aistramList2krt",
                          "ahtrazado2krt", "amxroad2krt", "aispol2krt"}) {
        const auto r = banco.Ejecutar(f, {Banco_Conversion::Muestra(muestra), "<salida>"});
        QCOMPARE(r.numero, 1);
        QCOMPARE(*r.salida, Banco_Conversion::Bytes_Muestra(muestra + ".ssh"));
    }
}

void TestLectores_Eje::ejemplos_de_la_forma()
{
    const QByteArray fuente = "INICIO 1000 1000 100\nRECTA 100\nCURVA 100 50\nRECTA 60\nFIN\n";
    const auto r =
        banco.Ejecutar("ahtrazado2krt", {banco.Poner("a.htr", fuente), "<salida>"}, "A.Hal");
    QCOMPARE(*r.salida, "1,0.000,1000.000,1000.000,100.0000,100.000,0.000,0.000,0.000\r\n"
                        "2,100.000,1100.000,1000.000,100.0000,78.540,100.000,100.000,0.000\r\n"
                        "1,178.540,1170.711,970.711,150.0000,60.000,0.000,0.000,0.000\r\n"
                        "9,238.540,1213.137,928.284,150.0000,0.000,0.000,0.000,0.000\r\n");
}

/// A source cut or changed at any byte gives a road with a beginning and an end, or a reason.
void TestLectores_Eje::cortados_y_cambiados()
{
    int leidos = 0, rehusados = 0;
    const auto probar = [&](QByteArray roto) {
        QBuffer buffer(&roto);
        buffer.open(QIODevice::ReadOnly);
        Texto_Fuente fuente(buffer);
        Informe_Lectura informe;
        try {
            const QByteArray ssh = Escribir_Ssh(Leer_Eje<Leer_Eje_Qsv>(fuente, informe));
            QVERIFY(ssh.startsWith("INI ") && ssh.contains("\r\nFIN "));
            QVERIFY(!ssh.contains("nan") && !ssh.contains("inf"));
            ++leidos;
        } catch (const Fallo_Conversion& f) {
            QVERIFY(!f.motivo.isEmpty());
            ++rehusados;
        }
    };
    for (const char* m : {"eje1.plt", "eje1.htr", "eje1.txt", "eje1.asc", "eje1.ali", "eje1.eje"})
        Banco_Conversion::Con_Danos(Banco_Conversion::Bytes_Muestra(m), probar);
    QVERIFY(leidos > 1000 && rehusados > 100);
}

void TestLectores_Eje::ajenos()
{
    for (const char* f : {"aclipplt2krt", "aqtr2krt", "aistram2krt", "ahtrazado2krt", "amxroad2krt",
                          "aispol2krt", "aQSV2LandXML", "ristram2krt", "rqsv2krt"})
        for (const auto& [nombre, bytes] : Banco_Conversion::Ajenos()) {
            const auto r = banco.Convertir(f, bytes);
            QVERIFY2(r.numero == 0, qPrintable(nombre));
            QVERIFY(!r.salida);
            QVERIFY(!r.Motivo().isEmpty());
        }
}

PRUEBA(TestLectores_Eje)
#include "TestLectores_Eje.moc"

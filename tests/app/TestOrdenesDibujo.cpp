#include "core/ModEstTotal.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/app/Correr.h"

#include <QFile>
#include <QProcess>

// The orders that draw, run in this process on an installation of the tests' own.
class TestOrdenesDibujo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { base.reset(); }
    void dxf_dibuja_la_sesion();
    void las_opciones_llegan_al_dibujo();
    void los_desplazamientos_se_suman();
    void un_fichero_que_existe_se_pregunta();
    void dxf_dice_que_falta_data();
    void dxf_dice_que_falta();
    void dxf_fichero_dibuja_la_lista();
    void imprimir_escribe_el_texto_de_la_vista();
    void imprimir_dice_que_falta_data();
    void imprimir_dice_que_falta();
    void el_programa_escribe_paginas_y_planos();

private:
    Salida En_La_Base(const QStringList& palabras) const
    {
        return Correr(QStringList{"--dir", base->Ruta(".")} + palabras);
    }
    std::unique_ptr<Base_De_Prueba> base;
};

void TestOrdenesDibujo::init()
{
    base = std::make_unique<Base_De_Prueba>();
    Poner_Instrumentos(*base);
    base->Escribir("EstTotal.ini", "KRTNOM=KRT300-1\r\nKRT=KRT300\r\nFIJO=True\r\n");
    const QList<std::pair<QString, QStringList>> formatos = {
        {"NXYZ", {"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z"}},
        {"PLANO", {"Punto", "Coordenada X", "Coordenada Y"}}};
    for (const auto& [nombre, campos] : formatos) {
        base->Fila("Formatos1", {{"Nombre", nombre},
                                 {"Maquina", "KRT300"},
                                 {"cabeceras", "NO"},
                                 {"Modificable", "SI"},
                                 {"ope", 1},
                                 {"Ids", "x y z "}});
        for (qsizetype i = 0; i < campos.size(); ++i)
            base->Fila(
                "Formatos2",
                {{"Nombre", nombre}, {"Maquina", "KRT300"}, {"sec", i}, {"Campo", campos[i]}});
    }
    Poner_Sesion(*base, 1, "KRT300", 1,
                 {{"P1", " x+001234567"},
                  {"P1", " y-000000500"},
                  {"P1", " z+000010250"},
                  {"P2", " x+000001000"}});
}

void TestOrdenesDibujo::dxf_dibuja_la_sesion()
{
    const Salida hecho = En_La_Base(
        {"dxf", "1", "--formato", "NXYZ", "--modo", "3D", "--salida", base->Ruta("a.dxf")});
    QCOMPARE(hecho.estado, int(HECHO));
    QCOMPARE(hecho.mensajes,
             QString("Sesión Exportada\nPuntos sin coordenadas, que no se han dibujado: 1\n"));
    QCOMPARE(base->Leer("a.dxf").count("POINT"), 1);
    QVERIFY(base->Leer("a.dxf").contains(" 30\r\n10.250\r\n"));
    // The order keeps no settings.
    QVERIFY(!QFile::exists(base->Ruta("DXF.Ini")));
}

void TestOrdenesDibujo::las_opciones_llegan_al_dibujo()
{
    const Salida hecho =
        En_La_Base({"dxf", "1", "--formato", "NXYZ", "--modo", "ambos", "--salida",
                    base->Ruta("a.dxf"), "--altura", "0.5", "--etiquetas", "6", "--inclinacion",
                    "-10", "--decimales", "1", "--colores", "11,12,13,14,15"});
    QCOMPARE(hecho.estado, int(HECHO));
    const QByteArray dibujo = base->Leer("a.dxf");
    for (const char* grupo :
         {"PUNTOS_2D\r\n 62\r\n 11", "PUNTOS_3D\r\n 62\r\n 12", "CODIGOS\r\n 62\r\n 13",
          "NUMEROS\r\n 62\r\n 14", "COTAS\r\n 62\r\n 15", " 40\r\n0.50\r\n", " 51\r\n-10\r\n",
          " 1\r\n10.3\r\n", " 10\r\n-0.250\r\n 20\r\n1235.317\r\n"})
        QVERIFY2(dibujo.contains(grupo), grupo);
}

void TestOrdenesDibujo::los_desplazamientos_se_suman()
{
    QCOMPARE(En_La_Base({"dxf", "1", "--formato", "NXYZ", "--modo", "2d", "--salida",
                         base->Ruta("a.dxf"), "--desplazamiento", "100,-200,0"})
                 .estado,
             int(HECHO));
    QVERIFY(base->Leer("a.dxf").contains(" 10\r\n99.500\r\n 20\r\n1034.567\r\n"));
}

void TestOrdenesDibujo::un_fichero_que_existe_se_pregunta()
{
    base->Escribir("a.dxf", "antes");
    const QStringList orden = {"dxf",    "1",  "--formato", "NXYZ",
                               "--modo", "2d", "--salida",  base->Ruta("a.dxf")};
    QCOMPARE(En_La_Base(orden).estado, int(RECHAZADO));
    QCOMPARE(base->Leer("a.dxf"), QByteArray("antes"));
    QCOMPARE(En_La_Base(QStringList{"--si"} + orden).estado, int(HECHO));
    QVERIFY(base->Leer("a.dxf").contains("POINT"));
}

void TestOrdenesDibujo::dxf_dice_que_falta_data()
{
    QTest::addColumn<QStringList>("opciones");
    QTest::addColumn<int>("estado");
    QTest::addColumn<QString>("mensaje");
    const QStringList bien = {"1", "--formato", "NXYZ", "--modo", "2d"};
    const auto sin = [](const QString& texto) {
        return QStringList{"--salida", "x.dxf"} + texto.split(' ');
    };
    QTest::newRow("modo") << sin("1 --formato NXYZ --modo 4d") << int(MAL_USO)
                          << "El modo es 2d, 3d o ambos: 4d";
    QTest::newRow("sin modo") << sin("1 --formato NXYZ") << int(MAL_USO) << "modo";
    QTest::newRow("sin salida") << bien << int(MAL_USO) << "salida";
    QTest::newRow("etiquetas") << sin("1 --formato NXYZ --modo 2d --etiquetas 7") << int(MAL_USO)
                               << "El formato va de 1 a 6";
    QTest::newRow("altura") << sin("1 --formato NXYZ --modo 2d --altura 2m") << int(MAL_USO)
                            << "No es un número: 2m";
    QTest::newRow("colores") << sin("1 --formato NXYZ --modo 2d --colores 1,2") << int(MAL_USO)
                             << "P2D,P3D,CODIGO,NUMERO,COTA";
    QTest::newRow("color 256") << sin("1 --formato NXYZ --modo 2d --colores 1,2,3,4,256")
                               << int(MAL_USO) << "1 a 255";
    QTest::newRow("sesión") << sin("9 --formato NXYZ --modo 2d") << int(RECHAZADO)
                            << "No existe la sesión 9";
    QTest::newRow("formato") << sin("1 --formato NADA --modo 2d") << int(RECHAZADO)
                             << "No existe el formato NADA";
    QTest::newRow("sin cota") << sin("1 --formato PLANO --modo 2d") << int(RECHAZADO)
                              << "Falta el campo \"Coordenada Z\"";
    QTest::newRow("lista sin fichero") << QStringList{"otra"} << int(MAL_USO) << "";
}

void TestOrdenesDibujo::dxf_dice_que_falta()
{
    QFETCH(QStringList, opciones);
    const Salida hecho = En_La_Base(QStringList{"dxf"} + opciones);
    QTEST(hecho.estado, "estado");
    QFETCH(QString, mensaje);
    QVERIFY2(hecho.mensajes.contains(mensaje), qPrintable(hecho.mensajes));
    QVERIFY(!QFile::exists("x.dxf"));
}

void TestOrdenesDibujo::dxf_fichero_dibuja_la_lista()
{
    base->Escribir("l.txt", "Punto Coordenada X Coordenada Y Coordenada Z\r\n\r\n"
                            "P1    1.5          2            3\r\nP2    1            2\r\n");
    const QStringList orden = {"dxf-fichero", base->Ruta("l.txt"), "--modo",     "3d",
                               "--salida",    base->Ruta("b.dxf"), "--separador"};
    const Salida hecho = En_La_Base(orden + QStringList{"espacio"});
    QCOMPARE(hecho.estado, int(HECHO));
    QVERIFY(hecho.mensajes.contains("no se han dibujado: 4\n"));
    QVERIFY(base->Leer("b.dxf").contains(" 10\r\n1.500\r\n 20\r\n2.000\r\n 30\r\n3.000\r\n"));
    QFile::remove(base->Ruta("b.dxf"));
    const Salida coma = En_La_Base(orden + QStringList{"coma"});
    QCOMPARE(coma.estado, int(RECHAZADO));
    QVERIFY(coma.mensajes.contains("Línea 1: falta el título"));
    QVERIFY(!QFile::exists(base->Ruta("b.dxf")));
    QCOMPARE(En_La_Base(orden + QStringList{"guion"}).estado, int(MAL_USO));
}

void TestOrdenesDibujo::imprimir_escribe_el_texto_de_la_vista()
{
    const Salida hecho =
        En_La_Base({"imprimir",          "1",         "--formato", "NXYZ",        "--salida",
                    base->Ruta("a.rtf"), "--titulo",  "Peñón",     "--subtitulo", "Dos",
                    "--trabajo",         "Presa",     "--nombre",  "Ana",         "--cabeceras",
                    "--centrar",         "--anchura", "80",        "--columnas",  "Nº,,Norte"});
    QCOMPARE(hecho.mensajes, QString());
    QCOMPARE(hecho.estado, int(HECHO));
    const QList<QByteArray> lineas = base->Leer("a.rtf").split('\n');
    QCOMPARE(lineas[2], QByteArray("\\deflang1034\\pard\\qc\\plain\\f2\\fs28\\b Pe\\'f1\\'f3n\r"));
    QCOMPARE(lineas[3], QByteArray("\\par \\pard\\qc\\plain\\f2\\fs20\\b Dos\r"));
    QCOMPARE(lineas[4], QByteArray("\\par \\pard\\qc\\plain\\f2\\fs20\\b Trabajo:  Presa   "
                                   "Nombre:  Ana   \r"));
    // The columns take 2 + 12 + 8 + 12 characters: "Punto" gave way to "Nº" and "Coordenada Y" to
    // "Norte", the others keep their names.
    const QString margen((80 - (2 + 12 + 8 + 12)) / 2, ' ');
    QVERIFY2(
        lineas[5].startsWith(("\\par " + margen).toLatin1() +
                             "\\pard\\plain\\f2\\fs16\\b \\pard\\plain\\f2\\fs16\\b\\ul N\\'ba"),
        lineas[5].constData());
    QVERIFY(lineas[5].contains("Coordenada X\\plain") && lineas[5].contains("Norte\\plain"));
    QVERIFY2(lineas[6].startsWith(("\\par \\pard\\plain\\f2\\fs16 " + margen).toLatin1() + "P1 "),
             lineas[6].constData());
    QCOMPARE(lineas.size(), 10);
}

void TestOrdenesDibujo::imprimir_dice_que_falta_data()
{
    QTest::addColumn<QStringList>("opciones");
    QTest::addColumn<int>("estado");
    QTest::addColumn<QString>("mensaje");
    QTest::newRow("otra extensión")
        << QStringList{"--salida", "x.doc"} << int(MAL_USO) << ".rtf o .pdf";
    QTest::newRow("anchura 0") << QStringList{"--salida", "x.rtf", "--anchura", "0"} << int(MAL_USO)
                               << "mayor que cero";
    QTest::newRow("anchura con letras")
        << QStringList{"--salida", "x.rtf", "--anchura", "a"} << int(MAL_USO) << "anchura";
    QTest::newRow("nombre sin trabajo") << QStringList{"--salida", "x.rtf", "--nombre", "Ana"}
                                        << int(MAL_USO) << "Debe introducir el Trabajo";
    QTest::newRow("columnas de más") << QStringList{"--salida", "x.rtf", "--columnas", "A,B,C,D,E"}
                                     << int(MAL_USO) << "Hay 4 columnas, y se dan 5 nombres";
}

void TestOrdenesDibujo::imprimir_dice_que_falta()
{
    QFETCH(QStringList, opciones);
    const Salida hecho = En_La_Base(QStringList{"imprimir", "1", "--formato", "NXYZ"} + opciones);
    QTEST(hecho.estado, "estado");
    QFETCH(QString, mensaje);
    QVERIFY2(hecho.mensajes.contains(mensaje), qPrintable(hecho.mensajes));
    QVERIFY(!QFile::exists("x.rtf"));
}

// What is drawn needs the graphics part, which the program brings up for these orders alone.
void TestOrdenesDibujo::el_programa_escribe_paginas_y_planos()
{
    const auto correr = [&](const QStringList& palabras) {
        QProcess p;
        p.start(QString(INSTALACION) + "/miraldos-cli",
                QStringList{"--dir", base->Ruta(".")} + palabras);
        if (!p.waitForFinished(60000)) return -1;
        return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -2;
    };
    QCOMPARE(correr({"imprimir", "1", "--formato", "NXYZ", "--salida", base->Ruta("a.pdf")}), 0);
    QVERIFY(base->Leer("a.pdf").startsWith("%PDF-"));
    const std::pair<const char*, const char*> planos[] = {
        {"p.png", "\x89PNG"}, {"p.pdf", "%PDF-"}, {"p.svg", "<?xml"}};
    for (const auto& [nombre, firma] : planos) {
        QCOMPARE(correr({"plano", "1", "--salida", base->Ruta(nombre), "--escala", "500"}), 0);
        QVERIFY2(base->Leer(nombre).startsWith(firma), nombre);
    }
    QCOMPARE(correr({"plano", "1", "--salida", base->Ruta("p.png")}), int(RECHAZADO));
    QCOMPARE(correr({"plano", "1", "--salida", base->Ruta("p.jpg")}), int(MAL_USO));
    QCOMPARE(correr({"plano", "1", "--salida", base->Ruta("q.png"), "--escala", "0"}),
             int(MAL_USO));
    QCOMPARE(correr({"plano", "9", "--salida", base->Ruta("q.png")}), int(RECHAZADO));
}

PRUEBA(TestOrdenesDibujo)
#include "TestOrdenesDibujo.moc"

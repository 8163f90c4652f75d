#include "core/Ansi.h"
#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Banco_Conversion.h"

class TestMonitorizacion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void muestras();
    void cabecera_data();
    void cabecera();
    void cabecera_de_lo_que_no_se_lee();
    void posiciones_data();
    void posiciones();
    void se_omite_data();
    void se_omite();
    void coordenadas_data();
    void coordenadas();
    void epocas();
    void los_textos_no_parten_la_tabla();
    void sin_lecturas_o_sin_coordenadas_data();
    void sin_lecturas_o_sin_coordenadas();
    void no_escribe_sobre_sus_fuentes();
    void ajenos_y_danados();

private:
    Banco_Conversion::Resultado Monitorizar(const QByteArray& lecturas,
                                            const QByteArray& coordenadas)
    {
        return banco.Ejecutar("procesaRobotizada",
                              {banco.Poner("l.dat", lecturas), banco.Poner("c.xyz", coordenadas),
                               "<salida>", "T", "D", "O", "20", "1/1/26", "8:00"});
    }
    // The rows of points.
    static QList<QByteArray> Filas(const Banco_Conversion::Resultado& r)
    {
        QList<QByteArray> filas = r.salida->split('\n').mid(9);
        filas.removeLast();
        for (QByteArray& f : filas)
            f.chop(1);
        return filas;
    }

    Banco_Conversion banco;
};

void TestMonitorizacion::muestras()
{
    const QString lecturas = Banco_Conversion::Muestra("lecturas.dat");
    const auto c = banco.Ejecutar("MyDll_procesaCabecera", {lecturas, "<salida>"});
    QCOMPARE(c.numero, 1);
    QCOMPARE(*c.salida, Banco_Conversion::Bytes_Muestra("cabecera.dat"));
    const auto r =
        banco.Ejecutar("MyDll_procesaRobotizada",
                       {lecturas, Banco_Conversion::Muestra("coord.xyz"), "<salida>", "PRESA",
                        "Coronación", "J. PEREZ", "18.5", "12/03/2004", "10:30"});
    QCOMPARE(r.numero, 1);
    QCOMPARE(*r.salida, Banco_Conversion::Bytes_Muestra("resultados.txt"));
    QVERIFY(r.informe.Lineas().isEmpty());
}

void TestMonitorizacion::cabecera_data()
{
    QTest::addColumn<QByteArray>("lecturas");
    QTest::addColumn<QByteArray>("salida");
    QTest::newRow("nada") << QByteArray("JOB X\r\n") << QByteArray("\r\n\r\n\r\n");
    QTest::newRow("de la primera epoca")
        << QByteArray("CIC 1,a,b\nCIC 2,c,d\nTMP 3\n") << QByteArray("3\r\na\r\nb\r\n");
    QTest::newRow("la hora de la epoca")
        << QByteArray("FEC hoy\nCIC 1,a,b\n") << QByteArray("\r\nhoy\r\nb\r\n");
    QTest::newRow("el primero de cada uno")
        << QByteArray("TMP 1\nTMP 2\nHOR 8\nHOR 9\n") << QByteArray("1\r\n\r\n8\r\n");
}

void TestMonitorizacion::cabecera()
{
    QFETCH(QByteArray, lecturas);
    const auto r = banco.Convertir("procesaCabecera", lecturas);
    QCOMPARE(r.numero, 1);
    QTEST(*r.salida, "salida");
}

void TestMonitorizacion::cabecera_de_lo_que_no_se_lee()
{
    const auto sin = banco.Ejecutar("procesaCabecera", {banco.Ruta("no.dat"), "<salida>"});
    QCOMPARE(sin.numero, 0);
    QCOMPARE(*sin.salida, QByteArray("\r\n\r\n\r\n"));
    const auto binario = banco.Convertir("procesaCabecera", QByteArray("TMP 3\n\0\n", 8));
    QCOMPARE(binario.numero, 0);
    QCOMPARE(*binario.salida, QByteArray("\r\n\r\n\r\n"));
    const QString fuente = banco.Poner("f.dat", "TMP 3\n");
    QCOMPARE(banco.Ejecutar("procesaCabecera", {fuente, fuente}).numero, 0);
    QCOMPARE(Ficheros::Leer(fuente), QByteArray("TMP 3\n"));
}

void TestMonitorizacion::posiciones_data()
{
    QTest::addColumn<QByteArray>("lecturas");
    QTest::addColumn<QByteArray>("columnas"); // measured x, y, z
    QTest::newRow("al norte, a la altura del aparato")
        << QByteArray("STN E,1.5\nSS P,0.5\nSD 0,100,10\n")
        << QByteArray("100.0000;210.0000;51.0000");
    QTest::newRow("al este") << QByteArray("STN E\nFS P\nSD 100,100,10\n")
                             << QByteArray("110.0000;200.0000;50.0000");
    QTest::newRow("orientada") << QByteArray("STN E\nBKB R,150,50\nSS P\nSD 100,100,10\n")
                               << QByteArray("100.0000;190.0000;50.0000");
    QTest::newRow("otra estacion quita la orientacion")
        << QByteArray("STN E\nBKB R,150,50\nSTN E\nSS P\nSD 100,100,10\n")
        << QByteArray("110.0000;200.0000;50.0000");
    QTest::newRow("cara II") << QByteArray("STN E\nSS P\nSD 300,300,10\n")
                             << QByteArray("110.0000;200.0000;50.0000");
    QTest::newRow("200 no es cara II")
        << QByteArray("STN E\nSS P\nSD 0,200,10\n") << QByteArray("100.0000;200.0000;40.0000");
    QTest::newRow("media de dos caras") << QByteArray("STN E\nSS P\nSD 100,100,10\nSD 300,300,11\n")
                                        << QByteArray("110.5000;200.0000;50.0000");
    QTest::newRow("media de dos punterias")
        << QByteArray("STN E\nSS P\nSD 100,100,10\nSS Q\nSD 0,100,1\nSS P\nSD 100,100,12\n")
        << QByteArray("111.0000;200.0000;50.0000");
    QTest::newRow("cenital de 50 gon")
        << QByteArray("STN E\nSS P\nSD 0,50,100\n") << QByteArray("100.0000;270.7107;120.7107");
    QTest::newRow("coordenadas propias") << QByteArray("STN X\nXYZ 1,2,3\nSS P\nSD 0,100,10\n")
                                         << QByteArray("1.0000;12.0000;3.0000");
    QTest::newRow("las del fichero mandan") << QByteArray("STN E\nXYZ 1,2,3\nSS P\nSD 0,100,10\n")
                                            << QByteArray("100.0000;210.0000;50.0000");
}

void TestMonitorizacion::posiciones()
{
    QFETCH(QByteArray, lecturas);
    QFETCH(QByteArray, columnas);
    const auto r = Monitorizar(lecturas, "E 100 200 50\n");
    QCOMPARE(r.numero, 1);
    QCOMPARE(Filas(r)[0], "P;1;1/1/26;8:00;;;;" + columnas + ";;;;");
}

void TestMonitorizacion::se_omite_data()
{
    QTest::addColumn<QByteArray>("lecturas");
    QTest::addColumn<QString>("motivo");
    const QString estacion = "Lectura desde una estación sin coordenadas u orientación";
    QTest::newRow("sin punto") << QByteArray("STN E\nSD 1,1,1\n") << "Lectura sin punto visado";
    QTest::newRow("el punto de otra estacion")
        << QByteArray("STN E\nSS Q\nSTN E\nSD 1,1,1\n") << "Lectura sin punto visado";
    QTest::newRow("sin estacion") << QByteArray("SS Q\nSD 1,1,1\n") << estacion;
    QTest::newRow("estacion desconocida") << QByteArray("STN Y\nSS Q\nSD 1,1,1\n") << estacion;
    QTest::newRow("lectura con letras")
        << QByteArray("STN E\nSS Q\nSD 1,x,1\n") << "La lectura tiene un campo sin número";
    QTest::newRow("lectura corta")
        << QByteArray("STN E\nSS Q\nSD 1,1\n") << "La lectura tiene un campo sin número";
    QTest::newRow("orientacion con letras")
        << QByteArray("STN E\nBKB R,x,0\nSS Q\nSD 1,1,1\n") << estacion;
    QTest::newRow("aparato con letras") << QByteArray("STN E,x\nSS Q\nSD 1,1,1\n") << estacion;
    QTest::newRow("prisma con letras")
        << QByteArray("STN E\nSS Q,x\nSD 1,1,1\n") << "Lectura sin punto visado";
    QTest::newRow("XYZ con letras") << QByteArray("STN Y\nXYZ 1,2,x\nSS Q\nSD 1,1,1\n") << estacion;
}

void TestMonitorizacion::se_omite()
{
    QFETCH(QByteArray, lecturas);
    QFETCH(QString, motivo);
    // The good reading behind stays; nothing of the bad one comes out.
    const auto r = Monitorizar(lecturas + "STN E\nSS P\nSD 0,100,10\n", "E 100 200 50\n");
    QCOMPARE(r.numero, 1);
    QCOMPARE(Filas(r).size(), 1);
    QVERIFY(Filas(r)[0].startsWith("P;"));
    QVERIFY(r.informe.Total() >= 1);
    QCOMPARE(r.informe.Omisiones().back().motivo, motivo);
}

void TestMonitorizacion::coordenadas_data()
{
    QTest::addColumn<QByteArray>("linea");
    QTest::newRow("blancos") << QByteArray("P 100 205 50 PRISMA");
    QTest::newRow("comas") << QByteArray("P, 100.0 ,205,50");
    QTest::newRow("puntos y comas") << QByteArray("P;100,0;205,0;50;COD");
    QTest::newRow("coma decimal entre blancos") << QByteArray("P 100,0 205,000 50,0");
    QTest::newRow("la ultima de un nombre repetido") << QByteArray("P 1 2 3\nP 100 205 50");
}

void TestMonitorizacion::coordenadas()
{
    QFETCH(QByteArray, linea);
    const auto r = Monitorizar("STN E\nSS P\nSD 0,100,10\n", "E 100 200 50\n" + linea + "\nmala\n");
    QCOMPARE(r.numero, 1);
    QCOMPARE(Filas(r)[0], QByteArray("P;1;1/1/26;8:00;100.0000;205.0000;50.0000;100.0000;210.0000;"
                                     "50.0000;0.0000;5.0000;0.0000;5.0000"));
    QCOMPARE(r.informe.Total(), 1);
    QCOMPARE(r.informe.Omisiones()[0].texto, QString("mala"));
}

void TestMonitorizacion::epocas()
{
    // Station and orientation last from one epoch to the next; each epoch has its own averages, in
    // the order of the first readings.
    const auto r =
        Monitorizar("STN E\nSS B\nSD 0,100,1\nCIC 1,f1,h1\nSS A\nSD 0,100,2\nSS B\n"
                    "SD 0,100,3\nSS A\nSD 0,100,4\nCIC 2,f2\nSS A\nSD 0,100,5\nCIC 3\nSD 0,100,6\n",
                    "E 0 0 0\n");
    QList<QByteArray> cortas;
    for (const QByteArray& f : Filas(r))
        cortas << f.split(';').mid(0, 4).join(';') + '=' + f.split(';')[8];
    QCOMPARE(cortas,
             (QList<QByteArray>{"B;1;1/1/26;8:00=1.0000", "A;1;f1;h1=3.0000", "B;1;f1;h1=3.0000",
                                "A;2;f2;=5.0000", "A;3;1/1/26;8:00=6.0000"}));
}

void TestMonitorizacion::los_textos_no_parten_la_tabla()
{
    const auto r =
        banco.Ejecutar("procesaRobotizada", {banco.Poner("l.dat", "STN E\nSS P;1\nSD 0,100,10\n"),
                                             banco.Poner("c.xyz", "E 1 2 3\n"), "<salida>", "a;b",
                                             "c\r\nd", "", "", "", ""});
    const auto lineas = r.salida->split('\n');
    QCOMPARE(lineas[1], QByteArray("Trabajo;a,b\r"));
    QCOMPARE(lineas[2], Ansi::A_Bytes(u"Descripción;c  d\r"));
    for (const QByteArray& fila : Filas(r))
        QCOMPARE(fila.count(';'), 13);
}

void TestMonitorizacion::sin_lecturas_o_sin_coordenadas_data()
{
    QTest::addColumn<QByteArray>("lecturas");
    QTest::addColumn<QByteArray>("coordenadas");
    QTest::addColumn<QString>("motivo");
    QTest::newRow("sin lecturas")
        << QByteArray("STN E\nSS P\n") << QByteArray("E 1 2 3\n")
        << "No hay ninguna lectura de un punto desde una estación conocida";
    QTest::newRow("sin coordenadas")
        << QByteArray("STN E\nXYZ 1,2,3\nSS P\nSD 1,1,1\n") << QByteArray("E 1 2\n")
        << "El fichero de coordenadas no contiene ninguna";
    QTest::newRow("coordenadas binarias")
        << QByteArray("STN E\nSS P\nSD 1,1,1\n") << QByteArray("E 1 2 3\n\0", 9)
        << "El fichero no es un texto de 8 bits (contiene bytes nulos)";
}

void TestMonitorizacion::sin_lecturas_o_sin_coordenadas()
{
    QFETCH(QByteArray, lecturas);
    QFETCH(QByteArray, coordenadas);
    const auto r = Monitorizar(lecturas, coordenadas);
    QCOMPARE(r.numero, 0);
    QVERIFY(!r.salida);
    QTEST(r.Motivo(), "motivo");
}

void TestMonitorizacion::no_escribe_sobre_sus_fuentes()
{
    const QString lecturas = banco.Poner("l.dat", "STN E\nSS P\nSD 0,100,10\n");
    const QString coordenadas = banco.Poner("c.xyz", "E 1 2 3\n");
    for (const QString& destino : {lecturas, coordenadas}) {
        Informe_Lectura informe;
        QCOMPARE(Ejecutar_Funcion(u"procesaRobotizada",
                                  {lecturas, coordenadas, destino, "", "", "", "", "", ""},
                                  informe),
                 0);
        QCOMPARE(Ficheros::Leer(coordenadas), QByteArray("E 1 2 3\n"));
        QVERIFY(Ficheros::Leer(lecturas).startsWith("STN"));
    }
}

void TestMonitorizacion::ajenos_y_danados()
{
    for (const auto& [nombre, bytes] : Banco_Conversion::Ajenos())
        for (const bool de_lecturas : {true, false}) {
            const auto r = de_lecturas ? Monitorizar(bytes, "E 1 2 3\n")
                                       : Monitorizar("STN E\nSS P\nSD 0,100,10\n", bytes);
            QVERIFY2(r.numero == 0 && !r.salida && !r.Motivo().isEmpty(), qPrintable(nombre));
        }
    const QByteArray entero = Banco_Conversion::Bytes_Muestra("lecturas.dat");
    const QByteArray coordenadas = Banco_Conversion::Bytes_Muestra("coord.xyz");
    for (qsizetype i = 0; i < entero.size(); ++i)
        for (const int byte : {0, 10, 44, 57}) {
            QByteArray roto = entero;
            roto[i] = static_cast<char>(byte);
            const auto r = Monitorizar(roto, coordenadas);
            QVERIFY(r.numero == 0 || r.numero == 1);
            QCOMPARE(r.salida.has_value(), r.numero == 1);
        }
}

PRUEBA(TestMonitorizacion)
#include "TestMonitorizacion.moc"

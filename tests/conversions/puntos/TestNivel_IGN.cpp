#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Banco_Conversion.h"

class TestNivel_IGN : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void muestra();
    void sin_pareja_no_hay_libreta();
    void lecturas_dobles();
    void lo_repetido_y_lo_que_falta();
    void la_primera_cota_de_salida_vale();
    void unidades_data();
    void unidades();
    void cabecera_data();
    void cabecera();
    void rechaza_data();
    void rechaza();
    void ajenos_y_danados();

private:
    Banco_Conversion::Resultado Libreta(const QByteArray& sesion)
    {
        return banco.Ejecutar("anivel2ing", {banco.Poner("sesion.lin", sesion), "<salida>", "NV-1",
                                             "M1", "M2", "OP", "EMP"});
    }
    // The lines behind the heading.
    QList<QByteArray> Tabla(const QByteArray& sesion)
    {
        const auto r = Libreta(sesion);
        return r.salida ? r.salida->split('\n').mid(9) : QList<QByteArray>();
    }

    Banco_Conversion banco;
};

void TestNivel_IGN::muestra()
{
    const auto r =
        banco.Ejecutar("MyDll_anivel2ing", {Banco_Conversion::Muestra("nivel.lin"), "<salida>",
                                            "NV-1234", "MIRA A", "MIRA B", "J. PEREZ", "TOPO SL"});
    QCOMPARE(r.numero, 1);
    QCOMPARE(*r.salida, Banco_Conversion::Bytes_Muestra("nivel_ign.txt"));
}

void TestNivel_IGN::sin_pareja_no_hay_libreta()
{
    const auto r = banco.Ejecutar(
        "anivel2ing", {Banco_Conversion::Muestra("libre.lin"), "<salida>", "", "", "", "", ""});
    QCOMPARE(r.numero, 0);
    QVERIFY(!r.salida);
    QCOMPARE(r.Motivo(), QString("No hay ninguna estación completa (espalda y frente)"));
}

void TestNivel_IGN::lecturas_dobles()
{
    // back 1.50000 and 1.50020, front 1.00000 and 1.00010: 0.50005 m; the pairs differ by -0.10 mm.
    const auto t =
        Tabla("b,03,OBRA,RN,,(,\ng,03,150000,20000,0,A,1,@,\nh,03,150020,20010,0,A,1,@,\n"
              "j,03,100010,21010,0,B,1,@,\ni,03,100000,21000,0,B,1,@,\n");
    QCOMPARE(t.size(), 4);
    QCOMPARE(
        t[1],
        QByteArray("    1          A          B   1   2   1.50000   1.00000   1.50020   1.00010    "
                   "20.005    21.005    0.50005   -0.10\r"));
    QCOMPARE(t[2],
             QByteArray("TOTAL                                                                   "
                        "       20.005    21.005    0.50005\r"));
}

void TestNivel_IGN::lo_repetido_y_lo_que_falta()
{
    // The second g replaces the first; the third set-up is never finished.
    const auto r =
        Libreta("b,02,OBRA,RN,1000000,(,\ng,02,99999,1000,0,X,1,@,\ng,02,20000,1000,0,A,1,@,\n"
                "i,02,10000,1100,0,B,1,@,\ni,02,5000,1200,0,C,1,@,\ng,02,10000,1300,0,B,1,@,\n"
                "g,02,1,1,0,C,1,@,\n");
    QCOMPARE(r.numero, 1);
    const auto t = r.salida->split('\n').mid(10);
    QCOMPARE(
        t[0],
        QByteArray("    1          A          B   1   2   2.00000   1.00000                     "
                   "   10.000    11.000    1.00000           101.0000\r"));
    QCOMPARE(
        t[1],
        QByteArray("    2          B          C   2   1   1.00000   0.50000                     "
                   "   13.000    12.000    0.50000           101.5000\r"));
    QVERIFY(t[2].startsWith("TOTAL"));
    QCOMPARE(r.informe.Total(), 2);
    QCOMPARE(r.informe.Omisiones()[0].linea, 2);
    QCOMPARE(r.informe.Omisiones()[1].linea, 7);

    // With one double reading anywhere, a set-up of two readings isn't one.
    QVERIFY(Tabla("g,03,1,1,0,A,1,@,\ni,03,1,1,0,B,1,@,\nh,03,1,1,0,B,1,@,\n").isEmpty());
}

void TestNivel_IGN::la_primera_cota_de_salida_vale()
{
    // The first benchmark without elevation passes the word to the next; a third changes nothing.
    const auto t = Tabla("b,03,OBRA,RN0,,(,\nb,03,OBRA,RN1,10000000,(,\nb,03,OBRA,RN2,90000000,(,\n"
                         "g,03,150000,1000,0,A,1,@,\ni,03,100000,1000,0,B,1,@,\n");
    QCOMPARE(t.size(), 4);
    QVERIFY2(t[1].endsWith("   100.5000\r"), t[1].constData());
}

void TestNivel_IGN::unidades_data()
{
    QTest::addColumn<char>("unidad");
    QTest::addColumn<QByteArray>("columnas");
    QTest::newRow("1") << '1'
                       << QByteArray(
                              "152.34500  98.76500                       251.200   249.800   "
                              "53.58000         10053.5800\r");
    QTest::newRow("2") << '2'
                       << QByteArray(
                              " 15.23450   9.87650                       251.200   249.800    "
                              "5.35800          1005.3580\r");
    QTest::newRow("3") << '3'
                       << QByteArray(
                              "  1.52345   0.98765                        25.120    24.980    "
                              "0.53580           100.5358\r");
}

void TestNivel_IGN::unidades()
{
    QFETCH(char, unidad);
    QFETCH(QByteArray, columnas);
    QByteArray s =
        "b,0u,O,RN,10000000,(,\ng,0u,152345,25120,0,RN1,3,@,\ni,0u,98765,24980,0,P1,2,],\n";
    s.replace("0u", QByteArray("0") + unidad);
    const auto t = Tabla(s);
    QCOMPARE(t.size(), 4);
    QCOMPARE(t[1].sliced(36), columnas);
}

void TestNivel_IGN::cabecera_data()
{
    QTest::addColumn<QByteArray>("sesion");
    QTest::addColumn<QByteArray>("trabajo");
    QTest::addColumn<QByteArray>("fecha");
    const QByteArray pareja = "g,03,1,1,0,A,1,@,\ni,03,1,1,0,B,1,@,\n";
    QTest::newRow("sin b ni fecha")
        << "f,03,NOMBRE,X,\n" + pareja << QByteArray("TRABAJO: NOMBRE") << QByteArray("FECHA:");
    QTest::newRow("el primer b y el primer w")
        << "x,03,NO,\n" + pareja +
               "b,03,OBRA1,A,,\nb,03,OBRA2,A,,\nv,03,1,P,0102031530,1,\nw,03,1,P,1111111111,1,\n"
        << QByteArray("TRABAJO: OBRA1") << QByteArray("FECHA: 01/02/03 15:30");
    QTest::newRow("fecha de otra forma") << pareja + "w,03,1,P,ayer,1,\n"
                                         << QByteArray("TRABAJO: 1") << QByteArray("FECHA: ayer");
}

void TestNivel_IGN::cabecera()
{
    QFETCH(QByteArray, sesion);
    const auto r = Libreta(sesion);
    QCOMPARE(r.numero, 1);
    const auto lineas = r.salida->split('\n');
    const QByteArray trabajo = lineas[1].chopped(1), fecha = lineas[7].chopped(1);
    QTEST(trabajo, "trabajo");
    QTEST(fecha, "fecha");
    QCOMPARE(lineas[8], QByteArray("\r"));
    QCOMPARE(lineas.mid(2, 5),
             (QList<QByteArray>{"INSTRUMENTO: NV-1\r", "MIRA 1: M1\r", "MIRA 2: M2\r",
                                "OPERADOR: OP\r", "EMPRESA: EMP\r"}));
}

void TestNivel_IGN::rechaza_data()
{
    QTest::addColumn<QByteArray>("sesion");
    QTest::addColumn<QString>("motivo");
    const QString unidad = QStringLiteral("La unidad de la línea no es métrica");
    for (const char* tipo : {"b", "g", "h", "i", "j"})
        for (const char* u : {"7", "8", "4", "", "x"})
            QTest::addRow("unidad %s de %s", u, tipo)
                << QByteArray("g,03,1,1,0,A,1,@,\ni,03,1,1,0,B,1,@,\n") + tipo + ",0" + u +
                       ",1,1,0,A,1,@,\n"
                << unidad;
    QTest::newRow("lectura con letras")
        << QByteArray("g,03,1a,1,0,A,1,@,\ni,03,1,1,0,B,1,@,\n") << "El campo 2 no es un número";
    QTest::newRow("sin lectura") << QByteArray("g,03,,1,0,A,1,@,\ni,03,1,1,0,B,1,@,\n")
                                 << "Falta la lectura de mira";
    QTest::newRow("distancia con letras")
        << QByteArray("g,03,1,x,0,A,1,@,\ni,03,1,1,0,B,1,@,\n") << "El campo 3 no es un número";
    QTest::newRow("cota con letras")
        << QByteArray("b,03,O,RN,x,(,\ng,03,1,1,0,A,1,@,\ni,03,1,1,0,B,1,\n")
        << "El campo 4 no es un número";
}

void TestNivel_IGN::rechaza()
{
    QFETCH(QByteArray, sesion);
    const auto r = Libreta(sesion);
    QCOMPARE(r.numero, 0);
    QVERIFY(!r.salida);
    QTEST(r.Motivo(), "motivo");
}

void TestNivel_IGN::ajenos_y_danados()
{
    for (const auto& [nombre, bytes] : Banco_Conversion::Ajenos()) {
        const auto r = Libreta(bytes);
        QVERIFY2(r.numero == 0 && !r.salida && !r.Motivo().isEmpty(), qPrintable(nombre));
    }
    const QByteArray entero = Banco_Conversion::Bytes_Muestra("nivel.lin");
    for (qsizetype i = 0; i < entero.size(); ++i)
        for (const int byte : {0, 10, 26, 44, 57, 255}) {
            QByteArray roto = entero;
            roto[i] = static_cast<char>(byte);
            const auto r = Libreta(roto);
            QVERIFY(r.numero == 0 || r.numero == 1);
            QCOMPARE(r.salida.has_value(), r.numero == 1);
        }
}

PRUEBA(TestNivel_IGN)
#include "TestNivel_IGN.moc"

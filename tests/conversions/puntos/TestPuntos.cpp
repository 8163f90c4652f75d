#include "core/Sumas.h"
#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Banco_Conversion.h"

#include <random>

class TestPuntos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void muestras_data();
    void muestras();
    void a_krt_data();
    void a_krt();
    void a_krt_rechaza_data();
    void a_krt_rechaza();
    void a_nivel_data();
    void a_nivel();
    void a_nivel_dice_lo_que_deja();
    void a_nivel_sin_puntos();
    void las_lineas_del_nivel_llevan_su_suma();
    void a_bronex_data();
    void a_bronex();
    void bronex_dice_lo_que_salta();
    void ajenos();
    void al_azar();
    void cada_byte_danado();

private:
    Banco_Conversion banco;
};

void TestPuntos::muestras_data()
{
    QTest::addColumn<QString>("funcion");
    QTest::addColumn<QString>("entrada");
    QTest::addColumn<QString>("esperado");
    QTest::addColumn<int>("resultado");
    QTest::newRow("puntos") << "MyDll_puntos2krt"
                            << "puntos.asc"
                            << "puntos.krt" << 1;
    QTest::newRow("malos") << "MyDll_puntos2krt"
                           << "malos.asc"
                           << "" << 0;
    QTest::newRow("nivel") << "MyDll_puntos2nivel"
                           << "nivel.asc"
                           << "nivel.x" << 1;
    QTest::newRow("nivel malo") << "MyDll_puntos2nivel"
                                << "nivelmal.asc"
                                << "nivelmal.x" << -1;
    QTest::newRow("bronex") << "MyDll_lectkrt2bronex"
                            << "cod.dat"
                            << "cod.tpc" << 1;
}

void TestPuntos::muestras()
{
    QFETCH(QString, funcion);
    QFETCH(QString, entrada);
    QFETCH(QString, esperado);
    QFETCH(int, resultado);
    const auto r = banco.Ejecutar(funcion, {Banco_Conversion::Muestra(entrada), "<salida>"});
    QCOMPARE(r.numero, resultado);
    QCOMPARE(r.salida.has_value(), resultado != 0);
    if (r.salida) QCOMPARE(*r.salida, Banco_Conversion::Bytes_Muestra(esperado));
    QCOMPARE(r.informe.Lineas().isEmpty(), resultado == 1);
}

void TestPuntos::a_krt_data()
{
    QTest::addColumn<QByteArray>("entrada");
    QTest::addColumn<QByteArray>("salida");
    QTest::newRow("los textos pasan")
        << QByteArray("P1 +1.50 -2 03\n") << QByteArray("P1,+1.50,-2,03,\r\n");
    QTest::newRow("exponente y coma")
        << QByteArray("P1 1,5E3 2D0 ,5 A\n") << QByteArray("P1,1.5E3,2D0,.5,A\r\n");
    QTest::newRow("codigo de varias palabras")
        << QByteArray("\t P1\t1 2 3  A \t B,C\r\n") << QByteArray("P1,1,2,3,A B,C\r\n");
    QTest::newRow("comentarios") << QByteArray("* titulo\n; x\n# y z\nP1 1 2 3\n")
                                 << QByteArray("P1,1,2,3,\r\n");
    QTest::newRow("puntos fuera de uso")
        << QByteArray("*1 1 2 3\nP1 1 2 3\n #P2 1 2 3 A\n;P3 1 2 3\n")
        << QByteArray("P1,1,2,3,\r\n");
    QTest::newRow("pagina") << QByteArray("\xD1o 1 2 3 \x80\n")
                            << QByteArray("\xD1o,1,2,3,\x80\r\n");
}

void TestPuntos::a_krt()
{
    QFETCH(QByteArray, entrada);
    QFETCH(QByteArray, salida);
    const auto r = banco.Convertir("puntos2krt", entrada);
    QCOMPARE(r.numero, 1);
    QCOMPARE(*r.salida, salida);
}

void TestPuntos::a_krt_rechaza_data()
{
    QTest::addColumn<QByteArray>("entrada");
    QTest::addColumn<int>("linea");
    QTest::addColumn<QString>("motivo");
    QTest::newRow("tres campos") << QByteArray("P1 1 2 3\nP2 1 2\n") << 2
                                 << "Faltan campos: nombre y tres coordenadas";
    QTest::newRow("letras") << QByteArray("P1 1 2 3a\n") << 1 << "Una coordenada no es un número";
    QTest::newRow("miles") << QByteArray("P1 1.000,5 2 3\n") << 1
                           << "Una coordenada no es un número";
    QTest::newRow("coma en el nombre")
        << QByteArray("P,1 1 2 3\n") << 1 << "El nombre del punto tiene una coma";
    QTest::newRow("por comas") << QByteArray("P1,1,2,3\n") << 1
                               << "Faltan campos: nombre y tres coordenadas";
    QTest::newRow("solo comentarios")
        << QByteArray("* a\n") << 0 << "El fichero no contiene ningún punto";
}

void TestPuntos::a_krt_rechaza()
{
    QFETCH(QByteArray, entrada);
    const auto r = banco.Convertir("puntos2krt", entrada);
    QCOMPARE(r.numero, 0);
    QVERIFY(!r.salida);
    QTEST(r.Motivo(), "motivo");
    const int linea = int(r.informe.Fallo()->linea);
    QTEST(linea, "linea");
}

void TestPuntos::a_nivel_data()
{
    QTest::addColumn<QByteArray>("entrada");
    QTest::addColumn<QString>("punto"); // of the one line that comes out, without frame
    QTest::addColumn<int>("resultado");
    QTest::newRow("dos campos") << QByteArray("RN1 1.5\n") << "RN1,,15000" << 1;
    // A comma is a separator wherever it stands: only ";" leaves it to be the decimal mark.
    QTest::newRow("una coma siempre separa") << QByteArray("RN1 1,5\n") << "RN1 1,,50000" << 1;
    QTest::newRow("tres con comas") << QByteArray("RN1, 1.5 ,CLAVO\n") << "RN1,CLAVO,15000" << 1;
    QTest::newRow("tres con punto y coma y coma decimal")
        << QByteArray("RN 1;1,5;CLAVO\n") << "RN 1,CLAVO,15000" << 1;
    QTest::newRow("cuatro con punto y coma")
        << QByteArray("R;1000,5;2000;-3\n") << "R,,-30000" << 1;
    QTest::newRow("cinco") << QByteArray("R 1 2 3 COD\n") << "R,COD,30000" << 1;
    QTest::newRow("x sin numero da igual") << QByteArray("R a b 3\n") << "R,,30000" << 1;
    QTest::newRow("medio que sube") << QByteArray("R 1.00005\n") << "R,,10001" << 1;
    QTest::newRow("medio que baja de cero") << QByteArray("R -1.00005\n") << "R,,-10001" << 1;
    QTest::newRow("cero sin signo") << QByteArray("R -0.00004\n") << "R,,0" << 1;
    QTest::newRow("la mayor") << QByteArray("R 9999.99999\n") << "R,,100000000" << 1;
    QTest::newRow("ocho caracteres") << QByteArray("ABCDEFGH 1\n") << "ABCDEFGH,,10000" << 1;
    QTest::newRow("nueve caracteres") << QByteArray("OK 1\nABCDEFGHI 1\n") << "OK,,10000" << -1;
    QTest::newRow("diez mil") << QByteArray("OK 1\nR 10000\nR -10000.0\n") << "OK,,10000" << -1;
    QTest::newRow("sin nombre") << QByteArray("OK 1\n,1,X\n") << "OK,,10000" << -1;
    QTest::newRow("sin cota") << QByteArray("OK 1\nR\n") << "OK,,10000" << -1;
    QTest::newRow("coma decimal entre comas") << QByteArray("OK 1\nR,1,5\n") << "OK,,10000" << 1;
    QTest::newRow("enie en el nombre") << QByteArray("OK 1\n\xD1 1\n") << "OK,,10000" << -1;
    QTest::newRow("enie en el codigo") << QByteArray("OK 1\nR 1 \xD1\n") << "OK,,10000" << -1;
    QTest::newRow("coma en el codigo") << QByteArray("OK 1\nR;1;A,B\n") << "OK,,10000" << -1;
    QTest::newRow("punto fuera de uso") << QByteArray("#P9 5\n*P8 5 X\nOK 1\n") << "OK,,10000" << 1;
    QTest::newRow("comentario") << QByteArray("* titulo\n; nota\n# otra\nOK 1\n") << "OK,,10000"
                                << 1;
}

void TestPuntos::a_nivel()
{
    QFETCH(QByteArray, entrada);
    QFETCH(QString, punto);
    QFETCH(int, resultado);
    const auto r = banco.Convertir("puntos2nivel", entrada);
    QCOMPARE(r.numero, resultado);
    const QList<QByteArray> lineas = r.salida->split('\n');
    QVERIFY(lineas.size() >= 4);
    QVERIFY2(lineas[1].startsWith("b,02," + punto.toLatin1() + ','), lineas[1].constData());
    // A row that names one point gives one line; "R,1,5" is a point of its own.
    QCOMPARE(lineas.size(), entrada.contains("R,1,5") ? 5 : 4);
}

void TestPuntos::a_nivel_dice_lo_que_deja()
{
    const auto r =
        banco.Ejecutar("puntos2nivel", {Banco_Conversion::Muestra("nivelmal.asc"), "<salida>"});
    QCOMPARE(r.informe.Total(), 2);
    QCOMPARE(r.informe.Omisiones()[0].linea, 4);
    QCOMPARE(r.informe.Omisiones()[0].motivo, QString("El nombre del punto pasa de 8 caracteres"));
    QCOMPARE(r.informe.Omisiones()[1].texto, QString("RN9 cota"));
    QCOMPARE(r.informe.Omisiones()[1].motivo, QString("La cota no es un número"));
}

void TestPuntos::a_nivel_sin_puntos()
{
    const auto r = banco.Convertir("puntos2nivel", "NOMBRELARGO1 3.2\n");
    QCOMPARE(r.numero, 0);
    QVERIFY(!r.salida);
    QCOMPARE(r.Motivo(), QString("El fichero no contiene ningún punto válido"));
}

void TestPuntos::las_lineas_del_nivel_llevan_su_suma()
{
    const auto r = banco.Convertir("puntos2nivel", "A 1\nB 2 C\nZ -3.0001 ~\n");
    for (const QByteArray& linea : r.salida->split('\n')) {
        if (linea.isEmpty()) continue;
        QVERIFY(linea.endsWith(",\r"));
        const QString contenido = QString::fromLatin1(linea.chopped(3));
        QVERIFY(contenido.endsWith(u','));
        QCOMPARE(QChar(linea[linea.size() - 3]), Suma_Nivel(contenido));
    }
}

void TestPuntos::a_bronex_data()
{
    QTest::addColumn<QByteArray>("entrada");
    QTest::addColumn<QByteArray>("salida");
    const QByteArray llena =
        "         E         P1          1          2          3        4        5 C\r\n";
    const QByteArray vacia = "         E         P1" + QByteArray(41, ' ') + "4        5\r\n";
    QTest::newRow("tabuladores") << QByteArray("E\tP1\t1\t2\t3\t4\t5\tC\n") << llena;
    QTest::newRow("punto y coma") << QByteArray("E;P1; 1;2 ;3;4;5;C\nE;P1;;;;4;5;\n")
                                  << llena + vacia;
    QTest::newRow("coma") << QByteArray("E,P1,1,2,3,4,5,C\nE,P1,qtr,qtr,qtr,4,5,qtr\n")
                          << llena + vacia;
    QTest::newRow("tabulador antes que coma")
        << QByteArray("E\tP1\t1\t2\t3\t4\t5\tC,D,,,,,,,\n") << llena.chopped(2) + ",D,,,,,,,\r\n";
    QTest::newRow("blancos") << QByteArray("  E   P1 1 2 3 4 5 C \n") << llena;
    QTest::newRow("lo largo no se corta")
        << QByteArray("ESTACION-LARGA P1 1 2 3 123456.789 5 C\n")
        << QByteArray("ESTACION-LARGA         P1          1          2          3 123456.789       "
                      " 5 C\r\n");
    QTest::newRow("lineas sin ocho celdas")
        << QByteArray("titulo\nE P1 1 2 3 4 5 C\nE P1 1 2 3 4 5\nE P1 1 2 3 4 5 C D\n") << llena;
    QTest::newRow("el separador es el de la primera linea")
        << QByteArray("E P1 1 2 3 4 5 C\nE;P1;1;2;3;4;5;C\n") << llena;
}

void TestPuntos::a_bronex()
{
    QFETCH(QByteArray, entrada);
    QFETCH(QByteArray, salida);
    const auto r = banco.Convertir("lectkrt2bronex", entrada);
    QCOMPARE(r.numero, 1);
    QCOMPARE(*r.salida, salida);
}

void TestPuntos::bronex_dice_lo_que_salta()
{
    const auto r = banco.Convertir("lectkrt2bronex", "a\nb c\n");
    QCOMPARE(r.numero, 0);
    QVERIFY(!r.salida);
    QCOMPARE(r.informe.Total(), 2);
    QCOMPARE(r.Motivo(), QString("Ninguna línea tiene ocho celdas"));
}

void TestPuntos::ajenos()
{
    for (const char* funcion : {"puntos2krt", "puntos2nivel", "lectkrt2bronex"})
        for (const auto& [nombre, bytes] : Banco_Conversion::Ajenos()) {
            const auto r = banco.Convertir(funcion, bytes);
            QVERIFY2(r.numero == 0 && !r.salida && !r.Motivo().isEmpty(),
                     qPrintable(QStringLiteral("%1: %2").arg(funcion, nombre)));
        }
}

// Every point comes out, in order, with the digits that stood in the source.
void TestPuntos::al_azar()
{
    std::mt19937 azar(7);
    const auto numero = [&](int hasta) {
        return QByteArray::number(std::uniform_int_distribution<int>(-hasta, hasta)(azar) / 1000.0,
                                  'f', std::uniform_int_distribution<int>(0, 6)(azar));
    };
    QByteArray entrada, esperado;
    for (int i = 0; i < 500; ++i) {
        const QByteArray nombre = "P" + QByteArray::number(i);
        const QByteArray x = numero(900000000), y = numero(900000000), z = numero(3000000);
        const QByteArray codigo =
            i % 3 ? QByteArray("C") + QByteArray::number(i % 17) : QByteArray();
        QByteArray linea = nombre + ' ' + x + "\t " + y + "  " + z + ' ' + codigo;
        if (i % 2) linea.replace('.', ',');
        entrada += linea + (i % 5 ? "\r\n" : "\n");
        esperado += nombre + ',' + x + ',' + y + ',' + z + ',' + codigo + "\r\n";
    }
    QCOMPARE(*banco.Convertir("puntos2krt", entrada).salida, esperado);
}

void TestPuntos::cada_byte_danado()
{
    const std::pair<const char*, const char*> casos[] = {
        {"puntos2krt", "puntos.asc"}, {"puntos2nivel", "nivel.asc"}, {"lectkrt2bronex", "cod.dat"}};
    for (const auto& [funcion, muestra] : casos) {
        const QByteArray entero = Banco_Conversion::Bytes_Muestra(muestra);
        for (qsizetype i = 0; i < entero.size(); ++i)
            for (const int byte : {0, 10, 26, 44, 59, 255}) {
                QByteArray roto = entero;
                roto[i] = static_cast<char>(byte);
                const auto r = banco.Convertir(funcion, roto);
                QVERIFY(r.numero >= -1 && r.numero <= 1);
                QCOMPARE(r.salida.has_value(), r.numero != 0);
                QCOMPARE(r.Motivo().isEmpty(), r.numero != 0);
            }
    }
}

PRUEBA(TestPuntos)
#include "TestPuntos.moc"

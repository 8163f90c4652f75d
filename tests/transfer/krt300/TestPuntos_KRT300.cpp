#include "core/Error_Ejecucion.h"
#include "core/Trozos.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "transfer/krt300/Puntos_KRT300.h"

class TestPuntos_KRT300 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void las_coordenadas_en_el_cable_data();
    void las_coordenadas_en_el_cable();
    void con_desplazamientos_data();
    void con_desplazamientos();
    void x13_data();
    void x13();
    void x13_no_toca_la_cota();
    void los_separadores_data();
    void los_separadores();
    void el_registro();
    void los_malos_data();
    void los_malos();
    void lo_que_no_vale_nombra_su_linea_data();
    void lo_que_no_vale_nombra_su_linea();
    void la_linea_corta_se_dice();
    void el_fichero_que_no_esta_se_dice_data();
    void el_fichero_que_no_esta_se_dice();
    void caben_8192();

private:
    QList<Punto_Envio> Leer(const QByteArray& fichero, const QString& separador = ",")
    {
        base->Escribir("p.asc", fichero);
        QList<Punto_Envio> puntos;
        leido = Leer_Puntos(base->Ruta("p.asc"), separador, puntos);
        return puntos;
    }

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
    bool leido = false;
};

void TestPuntos_KRT300::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    Clave_Estacion = "KRT300";
    Nombre_Estacion = "KRT-310";
    Proceso_Cancelado = false;
}

void TestPuntos_KRT300::cleanup()
{
    const QStringList quedan = interfaz->Textos();
    interfaz.reset();
    base.reset();
    QCOMPARE(quedan, QStringList());
}

void TestPuntos_KRT300::las_coordenadas_en_el_cable_data()
{
    QTest::addColumn<QByteArray>("escrita");
    QTest::addColumn<QString>("cable");
    QTest::newRow("normal") << QByteArray("1234.567") << "+001234567";
    QTest::newRow("coma decimal") << QByteArray("1234,567") << "+001234567";
    QTest::newRow("cero") << QByteArray("0") << "+000000000";
    QTest::newRow("menos cero") << QByteArray("-0") << "+000000000";
    QTest::newRow("negativa") << QByteArray("-0.5") << "-000000500";
    QTest::newRow("con mas") << QByteArray("+7") << "+000007000";
    QTest::newRow("sin entera") << QByteArray(".25") << "+000000250";
    QTest::newRow("sin decimales") << QByteArray("5.") << "+000005000";
    QTest::newRow("sube a la unidad") << QByteArray("0.9996") << "+000001000";
    QTest::newRow("baja") << QByteArray("0.9994") << "+000000999";
    QTest::newRow("la mitad se aleja") << QByteArray("0.0005") << "+000000001";
    QTest::newRow("la mitad se aleja en par") << QByteArray("0.0025") << "+000000003";
    QTest::newRow("la mitad negativa") << QByteArray("-0.0025") << "-000000003";
    QTest::newRow("menos de la mitad") << QByteArray("0.00249999999") << "+000000002";
    QTest::newRow("chica conserva el signo") << QByteArray("-0.0004") << "-000000000";
    QTest::newRow("seis enteras") << QByteArray("999999.999") << "+999999999";
    QTest::newRow("siete enteras") << QByteArray("1000000") << "+1000000000";
    QTest::newRow("la mayor") << QByteArray("9999999.998") << "+9999999998";
    QTest::newRow("la menor") << QByteArray("-9999999.998") << "-9999999998";
    QTest::newRow("sube al tope") << QByteArray("9999999.9985") << "+9999999999";
    QTest::newRow("ceros delante") << QByteArray("0000012.3") << "+000012300";
}

void TestPuntos_KRT300::las_coordenadas_en_el_cable()
{
    QFETCH(QByteArray, escrita);
    QFETCH(QString, cable);
    QList<Punto_Envio> puntos = Leer("P;" + escrita + ";1;" + escrita + "\r\n", ";");
    QCOMPARE(puntos.size(), 1);
    QCOMPARE(Comprobar_Puntos(puntos), QString());
    QCOMPARE(puntos[0].coordenadas[0], cable);
    QCOMPARE(puntos[0].coordenadas[1], QString("+000001000"));
    QCOMPARE(puntos[0].coordenadas[2], cable);
}

void TestPuntos_KRT300::con_desplazamientos_data()
{
    QTest::addColumn<QString>("desplazamiento");
    QTest::addColumn<QByteArray>("escrita");
    QTest::addColumn<QString>("suma");
    QTest::newRow("forma fija") << "0000012500" << QByteArray("1") << "13,5";
    QTest::newRow("forma fija negativa") << "-0000012500" << QByteArray("1") << "-11,5";
    QTest::newRow("como se escribe") << "12" << QByteArray("1,5") << "13,5";
    QTest::newRow("suma exacta") << "0.1" << QByteArray("0.2") << "0,3";
    QTest::newRow("se anulan") << "-1" << QByteArray("1") << "0";
    QTest::newRow("grande") << "-4500000.5" << QByteArray("4500000.25") << "-0,25";
}

void TestPuntos_KRT300::con_desplazamientos()
{
    QFETCH(QString, desplazamiento);
    QFETCH(QByteArray, escrita);
    QFETCH(QString, suma);
    const QByteArray linea = "P;" + escrita + ';' + escrita + ';' + escrita + "\r\n";
    QString* const ejes[] = {&Desp_X, &Desp_Y, &Desp_Z};
    for (int eje = 0; eje < 3; ++eje) {
        Desp_X = Desp_Y = Desp_Z = "0";
        *ejes[eje] = desplazamiento;
        const QList<Punto_Envio> puntos = Leer(linea, ";");
        for (int i = 0; i < 3; ++i)
            if (i == eje)
                QCOMPARE(puntos[0].coordenadas[i], suma);
            else
                QCOMPARE(puntos[0].coordenadas[i], QString(escrita).replace('.', ','));
    }
}

void TestPuntos_KRT300::x13_data()
{
    QTest::addColumn<QByteArray>("escrita");
    QTest::addColumn<QString>("queda");
    QTest::newRow("un millon") << QByteArray("1000000") << "0";
    QTest::newRow("cuatro millones") << QByteArray("4478296.086") << "478296,086";
    QTest::newRow("diez millones") << QByteArray("10500000.25") << "9500000,25";
    QTest::newRow("casi un millon") << QByteArray("999999.999") << "999999,999";
    QTest::newRow("entre medias") << QByteArray("999999.5") << "999999,5";
    QTest::newRow("negativa") << QByteArray("-4478296") << "-4478296";
}

void TestPuntos_KRT300::x13()
{
    QFETCH(QByteArray, escrita);
    QFETCH(QString, queda);
    const QByteArray linea = "P;" + escrita + ';' + escrita + ";1\r\n";
    QCOMPARE(Leer(linea, ";")[0].coordenadas[0], QString(escrita).replace('.', ','));
    Nombre_Estacion = "KRT-330X13";
    const Punto_Envio punto = Leer(linea, ";")[0];
    QCOMPARE(punto.coordenadas[0], queda);
    QCOMPARE(punto.coordenadas[1], queda);
}

// The rule looks at the sum, and leaves heights alone.
void TestPuntos_KRT300::x13_no_toca_la_cota()
{
    Nombre_Estacion = "KRT-330X13";
    Desp_X = "1000000";
    const Punto_Envio punto = Leer("P,5,5,2000000\r\n")[0];
    QCOMPARE(punto.coordenadas[0], QString("5"));
    QCOMPARE(punto.coordenadas[1], QString("5"));
    QCOMPARE(punto.coordenadas[2], QString("2000000"));
}

void TestPuntos_KRT300::los_separadores_data()
{
    QTest::addColumn<QByteArray>("fichero");
    QTest::addColumn<QString>("separador");
    QTest::addColumn<QString>("leidos");
    QTest::newRow("coma") << QByteArray("P1,1,2,3,ARB\r\nP2,4,5,6\r\n") << ","
                          << "P1/1/2/3/ARB P2/4/5/6/";
    QTest::newRow("blancos") << QByteArray("  P1   1,5 2  3   ARB X\n\n") << " "
                             << "P1/1,5/2/3/ARB";
    QTest::newRow("tabulador") << QByteArray("P 1\t1\t2\t3\t\r\n") << "\t"
                               << "P 1/1/2/3/";
    QTest::newRow("lineas en blanco") << QByteArray("\r\n   \r\nP1,1,2,3\r\n\t\r\n") << ","
                                      << "P1/1/2/3/";
    QTest::newRow("sin ultimo fin") << QByteArray("P1,1,2,3") << ","
                                    << "P1/1/2/3/";
    QTest::newRow("campos de mas") << QByteArray("P1,1,2,3,C,D\n") << ","
                                   << "P1/1/2/3/C";
    QTest::newRow("solo blancos") << QByteArray("  \r\n\r\n") << ","
                                  << "";
}

void TestPuntos_KRT300::los_separadores()
{
    QFETCH(QByteArray, fichero);
    QFETCH(QString, separador);
    QStringList leidos;
    for (const Punto_Envio& p : Leer(fichero, separador))
        leidos << QStringList{p.nombre, p.coordenadas[0], p.coordenadas[1], p.coordenadas[2],
                              p.codigo}
                      .join('/');
    QVERIFY(leido);
    QTEST(leidos.join(' '), "leidos");
}

void TestPuntos_KRT300::el_registro()
{
    QList<Punto_Envio> puntos = Leer("P1,400.456,500.123,10.025,ARB\r\nDIEZLETRAS,1,2,3\r\n");
    QCOMPARE(Comprobar_Puntos(puntos), QString());
    QCOMPARE(Registro_Punto(puntos[0]),
             QString("_+P1        _ x+000500123_ y+000400456_ z+000010025"));
    QCOMPARE(Registro_Punto(puntos[1]),
             QString("_+DIEZLETRAS_ x+000002000_ y+000001000_ z+000003000"));
}

void TestPuntos_KRT300::los_malos_data()
{
    QTest::addColumn<QByteArray>("fichero");
    QTest::addColumn<QString>("malos");
    QTest::newRow("ninguno") << QByteArray("A,1,2,3\n") << "";
    QTest::newRow("justo el tope")
        << QByteArray("A,9999999.999,2,3\nB,1,1,1\n") << "A|9999999,999|2|3";
    QTest::newRow("negativa") << QByteArray("A,1,-9999999.999,3\n") << "A|1|-9999999,999|3";
    QTest::newRow("la cota") << QByteArray("A,1,1,10000000\n") << "A|1|1|10000000";
    QTest::newRow("varios") << QByteArray("A,1,10000000,1\nB,1,1,1\nC,1,2,10000000.5\n")
                            << QString("A|1|10000000|1") + QChar(6) + "C|1|2|10000000,5";
}

void TestPuntos_KRT300::los_malos()
{
    QFETCH(QByteArray, fichero);
    QFETCH(QString, malos);
    QList<Punto_Envio> puntos = Leer(fichero);
    QCOMPARE(Comprobar_Puntos(puntos).replace(QChar(5), '|'), malos);
}

void TestPuntos_KRT300::lo_que_no_vale_nombra_su_linea_data()
{
    QTest::addColumn<QByteArray>("fichero");
    QTest::addColumn<int>("numero");
    QTest::addColumn<QString>("texto");
    QTest::newRow("letras") << QByteArray("P1,1,2,3\n\nP2,1,x,3\n") << 13
                            << "No coinciden los tipos (línea 3: P2,1,x,3)";
    QTest::newRow("vacia") << QByteArray("P1,,2,3\n") << 13
                           << "No coinciden los tipos (línea 1: P1,,2,3)";
    QTest::newRow("con exponente")
        << QByteArray("P1,1e3,2,3\n") << 13 << "No coinciden los tipos (línea 1: P1,1e3,2,3)";
    QTest::newRow("con millares") << QByteArray("P1;1.234,5;2;3\n") << 13 << "";
    QTest::newRow("once letras") << QByteArray("ONCE_LETRAS,1,2,3\n") << 5 << "";
    QTest::newRow("once sin marca") << QByteArray("P1,1,2,3\nONCELETRAS0,1,2,3\n") << 5
                                    << "El nombre tiene más de 10 caracteres (línea 2: "
                                       "ONCELETRAS0,1,2,3)";
    QTest::newRow("marca de registro")
        << QByteArray("P_1,1,2,3\n") << 5 << "El carácter '_' es reservado (línea 1: P_1,1,2,3)";
    QTest::newRow("con enye")
        << QByteArray("A\xD1O,1,2,3\n") << 5
        << "El carácter 'Ñ' no es aceptado por el aparato (línea 1: AÑO,1,2,3)";
    QTest::newRow("demasiadas cifras") << QByteArray("P1,1234567890123456789,2,3\n") << 6 << "";
    QTest::newRow("utf-8") << QByteArray("P1,1,2,3\nP2,1,2,3,ca\xC3\xB1o\n") << 321
                           << "El fichero está en UTF-8; guárdelo como texto ANSI (línea 2)";
    QTest::newRow("utf-8 con marca")
        << QByteArray("\xEF\xBB\xBFP1,1,2,3\n") << 321
        << "El fichero está en UTF-8; guárdelo como texto ANSI (línea 1)";
    QTest::newRow("utf-16") << QByteArray("\xFF\xFEP\0"
                                          "1\0",
                                          6)
                            << 321
                            << "El fichero está en UTF-16; guárdelo como texto ANSI (línea 1)";
    QTest::newRow("otra clase") << QByteArray("P1,1,2,3\nPK\3\4\0\0\n", 16) << 321
                                << "El fichero no es de texto ANSI (línea 2)";
}

void TestPuntos_KRT300::lo_que_no_vale_nombra_su_linea()
{
    QFETCH(QByteArray, fichero);
    QFETCH(int, numero);
    QFETCH(QString, texto);
    try {
        Leer(fichero, fichero.contains(';') ? ";" : ",");
        QFAIL("no error");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, numero);
        if (!texto.isEmpty()) QCOMPARE(e.descripcion, texto);
        QVERIFY2(e.descripcion.contains("línea"), qPrintable(e.descripcion));
    }
}

void TestPuntos_KRT300::la_linea_corta_se_dice()
{
    const QList<Punto_Envio> puntos = Leer("P1,1,2,3\r\nP2 1 2 3\r\nP3,1,2,3\r\n");
    QVERIFY(!leido);
    QCOMPARE(puntos.size(), 1);
    QCOMPARE(interfaz->cursor, 0);
    QCOMPARE(interfaz->Textos(),
             QStringList{"El formato del fichero especificado no es correcto en la linea:\r\n"
                         "P2 1 2 3Probablemente el separador especificado no sea válido"});
    interfaz->avisos.clear();
}

void TestPuntos_KRT300::el_fichero_que_no_esta_se_dice_data()
{
    QTest::addColumn<bool>("vacio");
    QTest::newRow("no esta") << false;
    QTest::newRow("sin un byte") << true;
}

void TestPuntos_KRT300::el_fichero_que_no_esta_se_dice()
{
    QFETCH(bool, vacio);
    if (vacio) base->Escribir("p.asc", {});
    QList<Punto_Envio> puntos;
    QVERIFY(!Leer_Puntos(base->Ruta("p.asc"), ",", puntos));
    QCOMPARE(interfaz->Textos(), QStringList{"El Fichero especificado no existe"});
    interfaz->avisos.clear();
}

void TestPuntos_KRT300::caben_8192()
{
    QByteArray fichero;
    for (int i = 1; i <= 8192; ++i)
        fichero += "P" + QByteArray::number(i) + ",1,2,3\r\n\r\n";
    QCOMPARE(Leer(fichero).size(), 8192);
    try {
        Leer(fichero + "SOBRA,1,2,3\r\n");
        QFAIL("no error");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, 9);
        QCOMPARE(e.descripcion,
                 QString("El fichero tiene más de 8192 puntos (línea 16385: SOBRA,1,2,3)"));
    }
}

PRUEBA(TestPuntos_KRT300)
#include "TestPuntos_KRT300.moc"

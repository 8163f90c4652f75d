#include "core/Familia.h"
#include "core/ModEstTotal.h"
#include "session/Desplazamiento.h"
#include "tests/apoyo/Prueba.h"

class TestDesplazamiento : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void el_texto_del_desplazamiento_se_lee_data();
    void el_texto_del_desplazamiento_se_lee();
    void la_forma_fija_es_la_de_sus_ficheros_data();
    void la_forma_fija_es_la_de_sus_ficheros();
    void la_forma_fija_vuelve_a_su_numero();
    void la_suma_sigue_a_la_familia_data();
    void la_suma_sigue_a_la_familia();
    void un_valor_que_no_es_numero_es_un_error();
    void las_teclas_se_filtran_data();
    void las_teclas_se_filtran();
    void teclear_es_tecla_a_tecla_data();
    void teclear_es_tecla_a_tecla();
    void aceptar_depende_de_la_familia_data();
    void aceptar_depende_de_la_familia();
};

void TestDesplazamiento::cleanup()
{
    Clave_Estacion.clear();
    Quitar_Desplazamientos();
}

void TestDesplazamiento::el_texto_del_desplazamiento_se_lee_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("numero");
    QTest::newRow("cero") << "0"
                          << "0";
    QTest::newRow("entero corto") << "12"
                                  << "12";
    QTest::newRow("con punto") << "12.5"
                               << "12.5";
    QTest::newRow("largo con punto") << "4500000.5"
                                     << "4500000.5";
    QTest::newRow("diez cifras") << "0000012500"
                                 << "12.5";
    QTest::newRow("diez cifras negativas") << "-0000012500"
                                           << "-12.5";
    QTest::newRow("diez cifras con mas") << "+0000012500"
                                         << "12.5";
    QTest::newRow("nueve cifras") << "000012500"
                                  << "12500";
    QTest::newRow("once cifras") << "00000012500"
                                 << "12500";
    QTest::newRow("nueve y un punto son su valor") << "000012.500"
                                                   << "12.5";
    QTest::newRow("vacio") << ""
                           << "0";
    QTest::newRow("signo solo") << "-"
                                << "0";
    QTest::newRow("punto delante") << "-.5"
                                   << "-0.5";
}

void TestDesplazamiento::el_texto_del_desplazamiento_se_lee()
{
    QFETCH(QString, texto);
    QTEST(Valor_Desplazamiento(texto, "7,3").Texto(), "numero");
}

void TestDesplazamiento::la_forma_fija_es_la_de_sus_ficheros_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("fija");
    QTest::newRow("decimal") << "12.5"
                             << "0000012500";
    QTest::newRow("decimal negativo") << "-12.5"
                                      << "-0000012500";
    QTest::newRow("entero") << "12"
                            << "0000012000";
    QTest::newRow("entero negativo") << "-12"
                                     << "-0000012000";
    QTest::newRow("mas") << "+12"
                         << "0000012000";
    QTest::newRow("punto delante") << ".5"
                                   << "0000000500";
    QTest::newRow("punto detras") << "7."
                                  << "0000007000";
    QTest::newRow("punto solo") << "."
                                << "0000000000";
    QTest::newRow("vacio") << ""
                           << "000000000";
    QTest::newRow("signo solo") << "-"
                                << "000000000";
    QTest::newRow("cero") << "0"
                          << "0000000000";
    QTest::newRow("menos cero") << "-0"
                                << "0000000000";
    QTest::newRow("sobran decimales") << "1.23456"
                                      << "0000001234";
    QTest::newRow("sobran enteros con punto") << "123456789.5"
                                              << "3456789500";
    QTest::newRow("sobran enteros") << "123456789"
                                    << "3456789000";
    QTest::newRow("siete enteros") << "4500000"
                                   << "4500000000";
}

void TestDesplazamiento::la_forma_fija_es_la_de_sus_ficheros()
{
    QFETCH(QString, texto);
    QTEST(Forma_Fija(texto, "7,3"), "fija");
}

void TestDesplazamiento::la_forma_fija_vuelve_a_su_numero()
{
    for (const char* texto : {"0", "12", "-12", "12.5", "-0.001", "9999999.999", "-4500000"})
        QCOMPARE(Valor_Desplazamiento(Forma_Fija(texto, "7,3"), "7,3"),
                 *Decimal::Leer(QString(texto)));
    QCOMPARE(Forma_Fija("1.5", "4,2"), QStringLiteral("000150"));
    QCOMPARE(Valor_Desplazamiento("000150", "4,2").Texto(), QStringLiteral("1.5"));
}

void TestDesplazamiento::la_suma_sigue_a_la_familia_data()
{
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QString>("modo");
    QTest::addColumn<QString>("desplazamiento");
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("posdigit");
    QTest::addColumn<QString>("suma");
    const auto fila = [](const char* nombre, const char* clave, const char* modo, const char* desp,
                         const char* valor, const char* posdigit, const char* suma) {
        QTest::newRow(nombre) << clave << modo << desp << valor << posdigit << suma;
    };
    fila("800 sin desplazar", "KRT800", "D", "0", "1234.567", "7,3", "1234.567");
    fila("800 entero", "KRT800", "D", "0", "12", "7,3", "12.000");
    fila("800 desplazado", "KRT800", "D", "12.5", "1000.25", "7,3", "1012.750");
    fila("800 negativo", "KRT800", "D", "-2000.5", "1000.25", "7,3", "-1000.250");
    fila("800 cruza el cero", "KRT800", "D", "-0.5", "0.25", "7,3", "-0.250");
    fila("800 exacto", "KRT800", "D", "0.2", "0.1", "7,3", "0.300");
    fila("800 medio al par", "KRT800", "D", "0", "1.0125", "7,3", "1.012");
    fila("800 medio impar", "KRT800", "D", "0", "1.0135", "7,3", "1.014");
    fila("800 llevada perdida", "KRT800", "D", "0", "0.9996", "7,3", "0.000");
    fila("800 llevada perdida negativa", "KRT800", "D", "0", "-0.9996", "7,3", "-0.000");
    fila("800 letras valen cero", "KRT800", "D", "1", "ABC", "7,3", "1.000");
    fila("800 modo C es D", "KRT800", "C", "1", "2", "7,3", "3.000");
    fila("800 vacio", "KRT800", "D", "1", "", "7,3", "");
    fila("800 desplazamiento fijo", "KRT800", "D", "0000012500", "1", "7,3", "13.500");
    fila("300 nueve cifras", "KRT300", "D", "0", "+001234567", "7,3", "1234.567");
    fila("300 diez cifras", "KRT300", "D", "0", "+4500000123", "7,3", "4500000.123");
    fila("300 negativo", "KRT300", "D", "0", "-001234567", "7,3", "-1234.567");
    fila("300 sin signo", "KRT300", "D", "0", "001234567", "7,3", "1234.567");
    fila("300 posdigit manda", "KRT300", "D", "0", "+001234567", "6,4", "123.457");
    fila("300 posdigit asterisco", "KRT300", "D", "0", "+0012", "*", "12.000");
    fila("300 menos cifras que decimales", "KRT300", "D", "0", "+5", "7,3", "0.005");
    fila("300 con punto", "KRT300", "D", "0", "+1234.5", "7,3", "1234.500");
    fila("300 las diez ultimas", "KRT300", "D", "0", "+991234567890", "7,3", "1234567.890");
    fila("300 desplazado fijo", "KRT300", "D", "0000012500", "+001234567", "7,3", "1247.067");
    fila("300 desplazado negativo", "KRT300", "D", "-0002000000", "+001234567", "7,3", "-765.433");
    fila("300 vacio", "KRT300", "D", "0000012500", "", "7,3", "");
    fila("300 de cable", "KRT300", "C", "0", "+001234567", "7,3", "+001234567");
    fila("300 de cable negativo", "KRT300", "C", "0", "-000000500", "7,3", "-000000500");
    fila("300 de cable cero", "KRT300", "C", "-0000000500", "+000000500", "7,3", "+000000000");
    fila("300 de cable grande", "KRT300", "C", "1000000000", "+000000001", "7,3", "+1000000001");
    fila("px7 como 300", "PX7", "D", "12.5", "+001234567", "7,3", "1247.067");
    fila("px7 de cable", "PX7", "C", "12.5", "+001234567", "7,3", "+001247067");
    fila("sin familia", "XX", "D", "1", "1.5", "7,3", "");
    fila("nivel sin forma", "NV400", "D", "1", "1.5", "7,3", "");
}

void TestDesplazamiento::la_suma_sigue_a_la_familia()
{
    QFETCH(QString, clave);
    QFETCH(QString, modo);
    QFETCH(QString, desplazamiento);
    QFETCH(QString, valor);
    QFETCH(QString, posdigit);
    QTEST(Sumar_Desplazamiento(Familia_De(clave), modo, desplazamiento, "7,3", valor, posdigit,
                               "7,3"),
          "suma");
}

void TestDesplazamiento::un_valor_que_no_es_numero_es_un_error()
{
    const auto sumar = [](const char* clave, const char* valor) {
        return Sumar_Desplazamiento(Familia_De(QString(clave)), "D", "0", "7,3", valor, "7,3",
                                    "7,3");
    };
    for (const char* valor : {"+00A234567", "+", "-", "+12.3.4", "+12 34"})
        QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, sumar("KRT300", valor));
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, sumar("KRT800", "1e30"));
}

void TestDesplazamiento::las_teclas_se_filtran_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("tecla");
    QTest::addColumn<QString>("efecto"); // what the key does, in words
    QTest::newRow("cifra") << "1"
                           << "7"
                           << "pasa";
    QTest::newRow("cero") << ""
                          << "0"
                          << "pasa";
    QTest::newRow("retroceso") << "1"
                               << "\b"
                               << "pasa";
    QTest::newRow("letra") << "1"
                           << "a"
                           << "nada";
    QTest::newRow("coma") << "1"
                          << ","
                          << "nada";
    QTest::newRow("blanco") << "1"
                            << " "
                            << "nada";
    QTest::newRow("mas") << ""
                         << "+"
                         << "nada";
    QTest::newRow("cifra de otro alfabeto") << ""
                                            << "٣"
                                            << "nada";
    QTest::newRow("primer punto") << "12"
                                  << "."
                                  << "pasa";
    QTest::newRow("segundo punto") << "1.2"
                                   << "."
                                   << "nada";
    QTest::newRow("menos primero") << ""
                                   << "-"
                                   << "pone - 3";
    QTest::newRow("menos borra las cifras") << "125"
                                            << "-"
                                            << "pone - 3";
    QTest::newRow("segundo menos pita") << "-125"
                                        << "-"
                                        << "pita";
}

void TestDesplazamiento::las_teclas_se_filtran()
{
    QFETCH(QString, texto);
    QFETCH(QString, tecla);
    const Efecto_Tecla e = Tecla_Desplazamiento(texto, 2, tecla[0]);
    QStringList hecho;
    if (e.pasa) hecho << "pasa";
    if (e.pita) hecho << "pita";
    if (e.texto) hecho << "pone" << *e.texto << QString::number(e.caret);
    if (hecho.isEmpty()) hecho << "nada";
    QTEST(hecho.join(' '), "efecto");
}

void TestDesplazamiento::teclear_es_tecla_a_tecla_data()
{
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<QString>("texto");
    QTest::newRow("numero") << "-12.5"
                            << "-12.5";
    QTest::newRow("signo tarde") << "12-5"
                                 << "-5";
    QTest::newRow("basura") << "a1b2,c.5.7"
                            << "12.57";
    QTest::newRow("retroceso") << "12\b\b\b3"
                               << "3";
    QTest::newRow("dos signos") << "-1-2"
                                << "-12";
}

void TestDesplazamiento::teclear_es_tecla_a_tecla()
{
    QFETCH(QString, tecleado);
    QTEST(Teclear_Desplazamiento(tecleado), "texto");
}

void TestDesplazamiento::aceptar_depende_de_la_familia_data()
{
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QString>("globales");
    QTest::newRow("KRT300") << "KRT300"
                            << "0000012500|000000000|-0000003000";
    QTest::newRow("PX7") << "PX7"
                         << "12.5|0|-3";
    QTest::newRow("KRT800") << "KRT800"
                            << "12.5|0|-3";
}

void TestDesplazamiento::aceptar_depende_de_la_familia()
{
    QFETCH(QString, clave);
    Clave_Estacion = clave;
    Poner_Desplazamientos("12.5", "", "-3", "7,3");
    QTEST(QStringList({Desp_X, Desp_Y, Desp_Z}).join('|'), "globales");
    Quitar_Desplazamientos();
    QCOMPARE(QStringList({Desp_X, Desp_Y, Desp_Z}).join('|'), QStringLiteral("0|0|0"));
}

PRUEBA(TestDesplazamiento)
#include "TestDesplazamiento.moc"

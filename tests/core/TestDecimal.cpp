#include "core/Decimal.h"
#include "core/Error_Ejecucion.h"
#include "tests/apoyo/Prueba.h"

class TestDecimal : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lee_un_numero_entero_o_nada_data();
    void lee_un_numero_entero_o_nada();
    void el_prefijo_es_el_de_val_data();
    void el_prefijo_es_el_de_val();
    void las_cifras_se_parten_por_la_derecha();
    void las_sumas_son_exactas_data();
    void las_sumas_son_exactas();
    void los_decimales_van_al_par_y_pierden_la_llevada_data();
    void los_decimales_van_al_par_y_pierden_la_llevada();
    void se_comparan_con_su_signo();
    void lo_que_no_cabe_desborda();
};

void TestDecimal::lee_un_numero_entero_o_nada_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("leido");
    QTest::newRow("entero") << "12"
                            << "12";
    QTest::newRow("punto") << "12.50"
                           << "12.5";
    QTest::newRow("coma") << "12,5"
                          << "12.5";
    QTest::newRow("punto delante") << ".5"
                                   << "0.5";
    QTest::newRow("punto detras") << "5."
                                  << "5";
    QTest::newRow("blancos alrededor") << "  -3.25 "
                                       << "-3.25";
    QTest::newRow("mas") << "+7"
                         << "7";
    QTest::newRow("menos cero") << "-0.000"
                                << "0";
    QTest::newRow("ceros") << "0001.100"
                           << "1.1";
    QTest::newRow("vacio") << ""
                           << "nada";
    QTest::newRow("punto solo") << "."
                                << "nada";
    QTest::newRow("letra") << "12A"
                           << "nada";
    QTest::newRow("dos puntos") << "1.2.3"
                                << "nada";
    QTest::newRow("blanco dentro") << "1 2"
                                   << "nada";
    QTest::newRow("dos signos") << "--1"
                                << "nada";
}

void TestDecimal::lee_un_numero_entero_o_nada()
{
    QFETCH(QString, texto);
    const auto d = Decimal::Leer(texto);
    QTEST(d ? d->Texto() : QStringLiteral("nada"), "leido");
}

void TestDecimal::el_prefijo_es_el_de_val_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("leido");
    QTest::newRow("entero") << "12"
                            << "12";
    QTest::newRow("cola") << "12.5abc"
                          << "12.5";
    QTest::newRow("coma corta") << "12,5"
                                << "12";
    QTest::newRow("dos puntos") << "0000012.500.000"
                                << "12.5";
    QTest::newRow("blancos dentro") << " 1 2 . 5"
                                    << "12.5";
    QTest::newRow("vacio") << ""
                           << "0";
    QTest::newRow("letras") << "abc"
                            << "0";
    QTest::newRow("signo") << "-7.25"
                           << "-7.25";
    QTest::newRow("exponente") << "1.25e3x"
                               << "1250";
    QTest::newRow("exponente menor") << "125D-4"
                                     << "0.0125";
    QTest::newRow("exponente sin cifras") << "2e+"
                                          << "2";
    QTest::newRow("exponente enorme de nada") << "0e999"
                                              << "0";
    QTest::newRow("solo signo") << "-"
                                << "0";
}

void TestDecimal::el_prefijo_es_el_de_val()
{
    QFETCH(QString, texto);
    QTEST(Decimal::Prefijo(texto).Texto(), "leido");
}

void TestDecimal::las_cifras_se_parten_por_la_derecha()
{
    QCOMPARE(Decimal::De_Cifras(u"001234567", 3)->Texto(), QStringLiteral("1234.567"));
    QCOMPARE(Decimal::De_Cifras(u"5", 3)->Texto(), QStringLiteral("0.005"));
    QCOMPARE(Decimal::De_Cifras(u"5", 0)->Texto(), QStringLiteral("5"));
    QVERIFY(!Decimal::De_Cifras(u"", 3));
    QVERIFY(!Decimal::De_Cifras(u"12.5", 3));
    QVERIFY(!Decimal::De_Cifras(u"-125", 3));
    QCOMPARE(Decimal::De_Miles(-1500).Texto(), QStringLiteral("-1.5"));
    QCOMPARE(Decimal::De_Miles(9999999999).Texto(), QStringLiteral("9999999.999"));
}

void TestDecimal::las_sumas_son_exactas_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<QString>("suma");
    QTest::newRow("decimos") << "0.1"
                             << "0.2"
                             << "0.3";
    QTest::newRow("llevada") << "0.999"
                             << "0.001"
                             << "1";
    QTest::newRow("prestada") << "1"
                              << "-0.001"
                              << "0.999";
    QTest::newRow("cruza el cero") << "0.25"
                                   << "-1.5"
                                   << "-1.25";
    QTest::newRow("se anulan") << "-12.5"
                               << "12.5"
                               << "0";
    QTest::newRow("negativos") << "-0.7"
                               << "-0.6"
                               << "-1.3";
    QTest::newRow("grande y chico") << "4500000.001"
                                    << "0.0005"
                                    << "4500000.0015";
    QTest::newRow("mayor negativo") << "-4500000.5"
                                    << "0.25"
                                    << "-4500000.25";
}

void TestDecimal::las_sumas_son_exactas()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    const Decimal x = *Decimal::Leer(a), y = *Decimal::Leer(b);
    QTEST((x + y).Texto(), "suma");
    QCOMPARE(y + x, x + y);
    QCOMPARE((x + y) - y, x);
}

void TestDecimal::los_decimales_van_al_par_y_pierden_la_llevada_data()
{
    QTest::addColumn<QString>("numero");
    QTest::addColumn<int>("n");
    QTest::addColumn<QString>("decimales");
    QTest::newRow("justos") << "1.234" << 3 << "234";
    QTest::newRow("se llenan") << "1.2" << 3 << "200";
    QTest::newRow("medio al par de abajo") << "0.0125" << 3 << "012";
    QTest::newRow("medio al par de arriba") << "0.0135" << 3 << "014";
    QTest::newRow("medio y algo") << "0.01250000000000000001" << 3 << "013";
    QTest::newRow("medio y algo muy lejos") << "0.012500000000000000000000001" << 3 << "013";
    QTest::newRow("la llevada se pierde") << "0.9996" << 3 << "000";
    QTest::newRow("negativo") << "-2.7182" << 3 << "718";
    QTest::newRow("ninguno") << "2.7" << 0 << "";
    QTest::newRow("todos") << "0.000000000000000001" << 18 << "000000000000000001";
}

void TestDecimal::los_decimales_van_al_par_y_pierden_la_llevada()
{
    QFETCH(QString, numero);
    QFETCH(int, n);
    QTEST(Decimal::Leer(numero)->Decimales(n), "decimales");
}

void TestDecimal::se_comparan_con_su_signo()
{
    const QStringList orden = {"-10", "-9.5", "-0.001", "0", "0.001", "9.5", "10"};
    for (qsizetype i = 0; i < orden.size(); ++i)
        for (qsizetype j = 0; j < orden.size(); ++j) {
            const Decimal a = *Decimal::Leer(orden[i]), b = *Decimal::Leer(orden[j]);
            QCOMPARE(a < b, i < j);
            QCOMPARE(a == b, i == j);
        }
    QCOMPARE(Decimal::Leer(u"-3")->Absoluto(), *Decimal::Leer(u"3"));
    QVERIFY(!(-Decimal()).Negativo());
}

void TestDecimal::lo_que_no_cabe_desborda()
{
    const QString nueves(18, u'9');
    QCOMPARE(Decimal::Leer(nueves)->Texto(), nueves);
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Decimal::Leer(nueves + u'9'));
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, Decimal::Prefijo(u"1e18"));
    QVERIFY_THROWS_EXCEPTION(Error_Ejecucion, *Decimal::Leer(nueves) + *Decimal::Leer(u"1"));
    QCOMPARE(Decimal::Leer(QString(40, u'0') + u'7')->Texto(), QStringLiteral("7"));
}

PRUEBA(TestDecimal)
#include "TestDecimal.moc"

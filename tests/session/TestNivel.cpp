#include "session/Nivel.h"
#include "tests/apoyo/Prueba.h"

class TestNivel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void campo_data();
    void campo();
    void divisores_data();
    void divisores();
    void el_divisor_de_lo_que_no_es_numero();
    void el_ultimo_caracter_no_es_de_nadie();
};

void TestNivel::campo_data()
{
    QTest::addColumn<QString>("linea");
    QTest::addColumn<int>("n");
    QTest::addColumn<QString>("valor");
    const QString c19 = QStringLiteral("c,03") + QString(17, u',') + QStringLiteral(",1234567,X,");
    QTest::newRow("letra") << "b,03,OBRA1,RN1,10000000,(," << 0 << "b";
    QTest::newRow("letra de una linea vacia") << "" << 0 << "";
    QTest::newRow("sin regla pasa") << "b,03,OBRA1,RN1,10000000,(," << 2 << "OBRA1";
    QTest::newRow("la unidad pasa") << "b,03,OBRA1,RN1,10000000,(," << 1 << "03";
    QTest::newRow("altura en b") << "b,03,OBRA1,RN1,10000000,(," << 4 << "100.0000";
    QTest::newRow("altura en b, decimas de mm") << "b,02,RN1,CLAVO,5001234,%," << 4 << "500.1234";
    QTest::newRow("altura negativa") << "b,02,P3,MAR,-12500,H," << 4 << "-1.2500";
    QTest::newRow("c 19") << c19 << 19 << "12.3457";
    QTest::newRow("c 18 no tiene regla") << c19 << 18 << "";
    QTest::newRow("lectura") << "g,03,152345,25120,0,RN1,3,@," << 2 << "1.52345";
    QTest::newRow("distancia") << "g,03,152345,25120,0,RN1,3,@," << 3 << "25.120";
    QTest::newRow("nombre del punto") << "g,03,152345,25120,0,RN1,3,@," << 5 << "RN1";
    QTest::newRow("campo 6 en decimas") << "g,03,152345,25120,0,RN1,3,@," << 6 << "0.3";
    QTest::newRow("campo 6 con unidad sin divisor") << "k,09,1,1,1,A,215,@," << 6 << "21.5";
    QTest::newRow("unidad sin divisor") << "g,05,152345,25120,0,RN1,3,@," << 2 << "0.00000";
    QTest::newRow("unidad que falta") << "g,0" << 2 << "0.00000";
    QTest::newRow("letras en el numero") << "g,03,x52345,25120,0,RN1,3,@," << 2 << "0.00000";
    QTest::newRow("numero y letras") << "g,03,152x45,25120,0,RN1,3,@," << 2 << "0.00152";
    QTest::newRow("medio lejos del cero") << "i,03,1,25,5,P,3,@," << 4 << "0.0005";
    QTest::newRow("medio que sube") << "b,03,O,R,15,(," << 4 << "0.0002";
    QTest::newRow("medio que baja de cero") << "b,03,O,R,-15,(," << 4 << "-0.0002";
    QTest::newRow("menos comas") << "g,03,152345," << 5 << "";
    QTest::newRow("numero de un campo que falta") << "g,03,152345," << 3 << "0.000";
    QTest::newRow("detras de la ultima coma") << "t,03,O," << 3 << "";
    QTest::newRow("mayuscula no es la letra") << "G,03,152345,25120,0,RN1,3,@," << 2 << "152345";
    QTest::newRow("numero de coma negativo") << "g,03,152345," << -1 << "";
}

void TestNivel::campo()
{
    QFETCH(QString, linea);
    QFETCH(int, n);
    QFETCH(QString, valor);
    QCOMPARE(Campo_NV400(linea, n), valor);
}

// Every row of the level's table of divisors, on the raw value 1234567.
void TestNivel::divisores_data()
{
    QTest::addColumn<QString>("tipos");
    QTest::addColumn<QList<int>>("campos");
    QTest::addColumn<QStringList>("valores"); // unit digits 1, 2, 3, 7, 8, then 4, which has none
    QTest::newRow("b") << "b" << QList<int>{4} << QStringList{"1234.5670", "123.4567", "12.3457",
                                                              "1.2346",    "0.1235",   "0.0000"};
    QTest::newRow("c") << "c" << QList<int>{19} << QStringList{"1234.5670", "123.4567", "12.3457",
                                                               "1.2346",    "0.1235",   "0.0000"};
    QTest::newRow("lectura") << "ghijfk" << QList<int>{2}
                             << QStringList{"1234.56700", "123.45670", "12.34567",
                                            "123.45670",  "12.34567",  "0.00000"};
    QTest::newRow("distancia") << "ghijfk" << QList<int>{3}
                               << QStringList{"12345.670", "12345.670", "1234.567",
                                              "12345.670", "1234.567",  "0.000"};
    QTest::newRow("cuarto") << "ghijfk" << QList<int>{4}
                            << QStringList{"1234.5670", "1234.5670", "123.4567",
                                           "123.4567",  "12.3457",   "0.0000"};
    QTest::newRow("sexto") << "ghijfk" << QList<int>{6}
                           << QStringList{"123456.7", "123456.7", "123456.7",
                                          "123456.7", "123456.7", "123456.7"};
    QTest::newRow("w v alturas") << "wv" << QList<int>{5, 6, 9}
                                 << QStringList{"1234.56700", "1234.56700", "123.45670",
                                                "123.45670",  "12.34567",   "0.00000"};
    QTest::newRow("w v distancias")
        << "wv" << QList<int>{7, 8}
        << QStringList{"12345.670", "12345.670", "1234.567", "12345.670", "1234.567", "0.000"};
}

void TestNivel::divisores()
{
    QFETCH(QString, tipos);
    QFETCH(QList<int>, campos);
    QFETCH(QStringList, valores);
    const QString unidades = QStringLiteral("123784");
    for (const QChar tipo : tipos)
        for (const int n : campos)
            for (int k = 0; k < unidades.size(); ++k) {
                const QString linea = tipo + QStringLiteral(",0") + unidades[k] +
                                      QString(n - 2, u',') + QStringLiteral(",1234567,=,");
                QVERIFY2(Campo_NV400(linea, n) == valores[k], qPrintable(linea));
            }
}

void TestNivel::el_divisor_de_lo_que_no_es_numero()
{
    QVERIFY(!Divisor_NV400(u'g', 5, u'1'));
    QVERIFY(!Divisor_NV400(QChar(), 2, u'1'));
    QVERIFY(!Divisor_NV400(u't', 2, u'1'));
    QCOMPARE(Divisor_NV400(u'g', 2, u'3'), std::optional<double>(1e5));
    QCOMPARE(Divisor_NV400(u'g', 2, u'9'), std::optional<double>(0));
    QCOMPARE(Divisor_NV400(u'g', 6, u'9'), std::optional<double>(10));
}

void TestNivel::el_ultimo_caracter_no_es_de_nadie()
{
    QCOMPARE(Texto_Campo_NV400(u"t,03,OBRA", 2), QString("OBR"));
    QCOMPARE(Texto_Campo_NV400(u"t,03,O", 2), QString());
    QCOMPARE(Texto_Campo_NV400(u"t,03,OBRA,", 2), QString("OBRA"));
    QCOMPARE(Campo_NV400(QStringLiteral("g,03,152345"), 2), QString("0.15234"));
    QCOMPARE(Texto_Campo_NV400(u"", 1), QString());
    QCOMPARE(Texto_Campo_NV400(u",", 1), QString());
}

PRUEBA(TestNivel)
#include "TestNivel.moc"

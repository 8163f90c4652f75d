#include "rawfiles/estaciones/Redondeo.h"
#include "tests/apoyo/Prueba.h"

class TestRedondeo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void redondear_data();
    void redondear();
};

void TestRedondeo::redondear_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<int>("decimales");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("tal cual") << "329.4595" << 4 << "329.4595";
    QTest::newRow("la mitad sube") << "0.00005" << 4 << "0.0001";
    QTest::newRow("bajo la mitad") << "0.000049999" << 4 << "0.0000";
    QTest::newRow("lo que en binario baja") << "1.0005" << 3 << "1.001";
    QTest::newRow("mas de quince cifras") << "123456789012.34565" << 4 << "123456789012.3457";
    QTest::newRow("el acarreo crece") << "399.99995" << 4 << "400.0000";
    QTest::newRow("nueves") << "999.9996" << 3 << "1000.000";
    QTest::newRow("entero") << "12" << 3 << "12.000";
    QTest::newRow("punto al final") << "12." << 3 << "12.000";
    QTest::newRow("sin entera") << ".5" << 4 << "0.5000";
    QTest::newRow("ceros delante") << "0012.5" << 1 << "12.5";
    QTest::newRow("signo mas") << "+1.5" << 1 << "1.5";
    QTest::newRow("negativo se aleja del cero") << "-1.00005" << 4 << "-1.0001";
    QTest::newRow("negativo que queda en cero") << "-0.00001" << 4 << "-0.0000";
    QTest::newRow("exponente") << "1.5E2" << 2 << "150.00";
    QTest::newRow("vacio") << "" << 4 << "";
    QTest::newRow("letras") << "abc" << 4 << "abc";
    QTest::newRow("un punto solo") << "." << 4 << ".";
    QTest::newRow("dos puntos") << "1.2.3" << 4 << "1.2.3";
    QTest::newRow("asterisco") << "*" << 4 << "*";
    QTest::newRow("blanco dentro") << "1 2" << 4 << "1 2";
}

void TestRedondeo::redondear()
{
    QFETCH(QString, texto);
    QFETCH(int, decimales);
    QFETCH(QString, esperado);
    QCOMPARE(Redondeo::Redondear(texto, decimales), esperado);
}

PRUEBA(TestRedondeo)
#include "TestRedondeo.moc"

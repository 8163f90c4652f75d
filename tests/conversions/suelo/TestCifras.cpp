#include "conversions/suelo/Cifras.h"
#include "tests/apoyo/Prueba.h"

#include <numbers>

class TestCifras : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void numeros_fijos();
    void azimutes();
};

void TestCifras::numeros_fijos()
{
    using Cifras::Fijo;
    QCOMPARE(Fijo(0, 3), "0.000");
    QCOMPARE(Fijo(-0.0004, 3), "0.000");
    QCOMPARE(Fijo(-0.0006, 3), "-0.001");
    QCOMPARE(Fijo(-100, 3), "-100.000");
    QCOMPARE(Fijo(-0.4, 0), "0");
    QCOMPARE(Fijo(1234567.8915, 3), "1234567.891");
    QCOMPARE(Fijo(1e300, 0).size(), 301);
}

void TestCifras::azimutes()
{
    const double gon = std::numbers::pi / 200;
    QCOMPARE(Cifras::Azimut(0), "0.0000");
    QCOMPARE(Cifras::Azimut(100 * gon), "100.0000");
    QCOMPARE(Cifras::Azimut(-50 * gon), "350.0000");
    QCOMPARE(Cifras::Azimut(850 * gon), "50.0000");
    QCOMPARE(Cifras::Azimut(399.99996 * gon), "0.0000");
    QCOMPARE(Cifras::Azimut(-0.00001 * gon), "0.0000");
    QCOMPARE(Cifras::Azimut(399.99994 * gon), "399.9999");
}

PRUEBA(TestCifras)
#include "TestCifras.moc"

#include "core/Sumas.h"
#include "tests/apoyo/Prueba.h"

class TestSumas : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void suma_xor_data();
    void suma_xor();
    void suma_del_nivel_data();
    void suma_del_nivel();
};

void TestSumas::suma_xor_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("suma");
    QTest::newRow("vacio") << ""
                           << "000";
    QTest::newRow("A") << "A"
                       << "065";
    QTest::newRow("AB") << "AB"
                        << "003";
    QTest::newRow("por encima de 127") << QStringLiteral("ñ") << "241";
    QTest::newRow("euro") << QStringLiteral("€") << "128";
}

void TestSumas::suma_xor()
{
    QFETCH(QString, texto);
    QFETCH(QString, suma);
    QCOMPARE(Suma_XOR(texto), suma);
}

void TestSumas::suma_del_nivel_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<char>("suma");
    // The fixed lines that the level and the program exchange carry their own sums.
    QTest::newRow("vacio") << "" << ' ';
    QTest::newRow("principio") << "A,01," << 'Z';
    QTest::newRow("fin") << "Z," << '&';
    QTest::newRow("aceptada") << QStringLiteral("\u0006,") << 'R';
    QTest::newRow("rechazada") << QStringLiteral("\u0015,") << '!';
    QTest::newRow("punto") << "b,02,P3,MAR,-12500," << 'H';
    QTest::newRow("codigo de la pagina") << QStringLiteral("€") << ' ';
}

void TestSumas::suma_del_nivel()
{
    QFETCH(QString, texto);
    QFETCH(char, suma);
    QCOMPARE(Suma_Nivel(texto), QChar::fromLatin1(suma));
}

PRUEBA(TestSumas)
#include "TestSumas.moc"

#include "export/excel/Numero_De_Celda.h"
#include "tests/apoyo/Prueba.h"

class TestNumero_De_Celda : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void los_numeros_llanos_data();
    void los_numeros_llanos();
    void lo_demas_es_texto_data();
    void lo_demas_es_texto();
};

void TestNumero_De_Celda::los_numeros_llanos_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<double>("numero");
    QTest::addColumn<int>("decimales");
    const auto fila = [](const char* texto, double numero, int decimales) {
        QTest::newRow(texto) << texto << numero << decimales;
    };
    fila("0", 0, 0);
    fila("7", 7, 0);
    fila("1234.500", 1234.5, 3);
    fila("-0.5", -0.5, 1);
    fila("+12.25", 12.25, 2);
    fila("  3.10   ", 3.1, 2);
    fila("0.000", 0, 3);
    fila("123456789012345", 123456789012345.0, 0);
    fila("0.000000000000000123456789012345", 1.23456789012345e-16, 30);
    fila("0.00123456789012345", 0.00123456789012345, 17);
}

void TestNumero_De_Celda::los_numeros_llanos()
{
    QFETCH(QString, texto);
    const auto celda = Numero_De_Celda(texto);
    QVERIFY(celda && celda->tipo == Celda::Tipo::Numero);
    QTEST(celda->numero, "numero");
    QTEST(int(celda->decimales), "decimales");
}

void TestNumero_De_Celda::lo_demas_es_texto_data()
{
    QTest::addColumn<QString>("texto");
    for (const char* texto : {"",
                              " ",
                              "NAN",
                              "inf",
                              "1E5",
                              "007",
                              "00.5",
                              "-01",
                              "12,5",
                              ".5",
                              "5.",
                              "-",
                              "+",
                              "--1",
                              "1 2",
                              "1.2.3",
                              "0x10",
                              "1-",
                              "1234567890123456",
                              "0.1234567890123456",
                              "0.0000000000000000000000000000001",
                              "\t1",
                              "P1",
                              "1.5m"})
        QTest::newRow(texto) << texto;
    QTest::newRow("digits of another script") << QString(QChar(0x0663));
}

void TestNumero_De_Celda::lo_demas_es_texto()
{
    QFETCH(QString, texto);
    QVERIFY(!Numero_De_Celda(texto));
}

PRUEBA(TestNumero_De_Celda)
#include "TestNumero_De_Celda.moc"

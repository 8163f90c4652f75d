#include "simulator/Libreta.h"
#include "tests/apoyo/Prueba.h"

using namespace simulador;

class TestLibreta : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void corta_registros_data();
    void corta_registros();
    void un_caracter_que_el_aparato_no_conoce();
    void un_fichero_que_falta();
    void va_y_vuelve();
};

void TestLibreta::corta_registros_data()
{
    QTest::addColumn<QByteArray>("texto");
    QTest::addColumn<QList<QByteArray>>("registros");
    using R = QList<QByteArray>;
    QTest::newRow("vacía") << QByteArray() << R{};
    QTest::newRow("blancos del registro") << QByteArray(" x+1 \n+P1\n") << R{" x+1 ", "+P1"};
    QTest::newRow("comentarios y huecos") << QByteArray("# nada\n\nA\n") << R{"A"};
    QTest::newRow("CR LF y sin fin") << QByteArray("A\r\nB") << R{"A", "B"};
    QTest::newRow("almohadilla del registro") << QByteArray("\\#1\n\\2\n") << R{"#1", "\\2"};
    QTest::newRow("UTF-8") << QByteArray("cSEÑAL\n")
                           << R{"cSE\xD1"
                                "AL"};
    QTest::newRow("Windows-1252") << QByteArray("cSE\xD1"
                                                "AL\n")
                                  << R{"cSE\xD1"
                                       "AL"};
    QTest::newRow("marca UTF-8") << QByteArray("\xEF\xBB\xBF# x\nA\n") << R{"A"};
}

void TestLibreta::corta_registros()
{
    QFETCH(QByteArray, texto);
    QFETCH(QList<QByteArray>, registros);
    const Libreta libreta = Cortar_Libreta(texto);
    QCOMPARE(libreta.motivo, QString());
    QCOMPARE(libreta.registros, registros);
}

void TestLibreta::un_caracter_que_el_aparato_no_conoce()
{
    QVERIFY(Cortar_Libreta("A\ncΩ\n").motivo.contains("la línea 2"));
}

void TestLibreta::un_fichero_que_falta()
{
    QVERIFY(Leer_Libreta("/no/hay/libreta.txt").motivo.startsWith("no se puede leer la libreta"));
}

void TestLibreta::va_y_vuelve()
{
    const QList<QByteArray> registros{"+P1", " x+001", "#4",
                                      "cSE\xD1"
                                      "AL",
                                      "\x80\x81"};
    QCOMPARE(Cortar_Libreta(Texto_Libreta(registros)).registros, registros);
}

PRUEBA(TestLibreta)
#include "TestLibreta.moc"

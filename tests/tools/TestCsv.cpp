#include "tests/apoyo/Prueba.h"
#include "tools/base/Csv.h"

class TestCsv : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void corta_celdas_y_filas_data();
    void corta_celdas_y_filas();
    void cuenta_las_lineas_desde_donde_empieza_la_fila();
    void dice_lo_que_no_se_puede_cortar_data();
    void dice_lo_que_no_se_puede_cortar();
};

void TestCsv::corta_celdas_y_filas_data()
{
    QTest::addColumn<QByteArray>("texto");
    QTest::addColumn<QList<QStringList>>("filas");
    using F = QList<QStringList>;
    QTest::newRow("vacío") << QByteArray() << F{};
    QTest::newRow("sin fin de línea") << QByteArray("a,b") << F{{"a", "b"}};
    QTest::newRow("dos filas") << QByteArray("a,b\nc,d\n") << F{{"a", "b"}, {"c", "d"}};
    QTest::newRow("CR LF") << QByteArray("a\r\nb\r\n") << F{{"a"}, {"b"}};
    QTest::newRow("celdas vacías") << QByteArray(",,\n") << F{{"", "", ""}};
    QTest::newRow("línea vacía") << QByteArray("a\n\nb\n") << F{{"a"}, {"b"}};
    QTest::newRow("coma entre comillas") << QByteArray("\"a,b\",c") << F{{"a,b", "c"}};
    QTest::newRow("comillas dobladas") << QByteArray("\"a\"\"b\"") << F{{"a\"b"}};
    QTest::newRow("comillas vacías") << QByteArray("\"\",x") << F{{"", "x"}};
    QTest::newRow("salto entre comillas") << QByteArray("\"a\nb\"\nc") << F{{"a\nb"}, {"c"}};
    QTest::newRow("marca UTF-8") << QByteArray("\xEF\xBB\xBFñ") << F{{QStringLiteral("ñ")}};
    QTest::newRow("CR suelto") << QByteArray("a\rb") << F{{"a\rb"}};
}

void TestCsv::corta_celdas_y_filas()
{
    QFETCH(QByteArray, texto);
    QFETCH(QList<QStringList>, filas);
    QList<Falta> faltas;
    QList<QStringList> cortadas;
    for (const Fila& f : Cortar_Csv(texto, "x.csv", faltas))
        cortadas << f.celdas;
    QCOMPARE(cortadas, filas);
    QVERIFY(faltas.isEmpty());
}

void TestCsv::cuenta_las_lineas_desde_donde_empieza_la_fila()
{
    QList<Falta> faltas;
    const QList<Fila> filas = Cortar_Csv("a\n\"b\nb\"\n\nc\n", "x.csv", faltas);
    QCOMPARE(filas.size(), 3);
    QCOMPARE(filas[0].linea, 1);
    QCOMPARE(filas[1].linea, 2);
    QCOMPARE(filas[2].linea, 5);
}

void TestCsv::dice_lo_que_no_se_puede_cortar_data()
{
    QTest::addColumn<QByteArray>("texto");
    QTest::addColumn<QString>("falta");
    QTest::newRow("comillas abiertas")
        << QByteArray("a\n\"b\nc\n") << "x.csv:2: comillas sin cerrar";
    QTest::newRow("texto detrás") << QByteArray("a\n\"b\"c\n")
                                  << "x.csv:2: texto tras las comillas de cierre";
    QTest::newRow("otra página") << QByteArray("a\n\xF1\n") << "x.csv: no es texto UTF-8";
}

void TestCsv::dice_lo_que_no_se_puede_cortar()
{
    QFETCH(QByteArray, texto);
    QFETCH(QString, falta);
    QList<Falta> faltas;
    Cortar_Csv(texto, "x.csv", faltas);
    QCOMPARE(faltas.size(), 1);
    QCOMPARE(faltas[0].Texto(), falta);
}

PRUEBA(TestCsv)
#include "TestCsv.moc"

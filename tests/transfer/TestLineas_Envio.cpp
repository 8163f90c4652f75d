#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Prueba.h"
#include "transfer/Lineas_Envio.h"

// What every file that is sent is held to.
class TestLineas_Envio : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void el_texto_de_la_pagina_pasa_data();
    void el_texto_de_la_pagina_pasa();
    void lo_que_no_es_texto_no_pasa_data();
    void lo_que_no_es_texto_no_pasa();
    void los_caracteres_aceptados();
    void una_linea_enorme_se_muestra_corta();

private:
    Base_De_Prueba base;
};

void TestLineas_Envio::el_texto_de_la_pagina_pasa_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lineas");
    QTest::newRow("ascii") << QByteArray("a\r\nb\n\nc") << QStringList({"a", "b", "", "c"});
    QTest::newRow("acentos de la pagina")
        << QByteArray("\xF1\xE1\n\xD1") << QStringList({"ñá", "Ñ"});
    QTest::newRow("utf-8 cortado no lo es") << QByteArray("a\xC3") << QStringList{"aÃ"};
    QTest::newRow("solo un fin") << QByteArray("\n") << QStringList{""};
}

void TestLineas_Envio::el_texto_de_la_pagina_pasa()
{
    QFETCH(QByteArray, bytes);
    base.Escribir("f.txt", bytes);
    QTEST(Leer_Lineas_Envio(base.Ruta("f.txt")), "lineas");
}

void TestLineas_Envio::lo_que_no_es_texto_no_pasa_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("numero");
    QTest::newRow("sin un byte") << QByteArray() << 53;
    QTest::newRow("utf-8") << QByteArray("a\n\xC3\xB1") << 321;
    QTest::newRow("utf-16 LE") << QByteArray("\xFF\xFE"
                                             "a\0",
                                             4)
                               << 321;
    QTest::newRow("utf-16 BE") << QByteArray("\xFE\xFF\0"
                                             "a",
                                             4)
                               << 321;
    QTest::newRow("utf-16 sin marca") << QByteArray("a\0\n\0", 4) << 321;
}

void TestLineas_Envio::lo_que_no_es_texto_no_pasa()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, numero);
    base.Escribir("f.txt", bytes);
    try {
        Leer_Lineas_Envio(base.Ruta("f.txt"));
        QFAIL("no error");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, numero);
    }
    for (const QString nombre : {"", "no.txt", "LOG"}) {
        try {
            Leer_Lineas_Envio(base.Ruta(nombre));
            QFAIL("no error");
        } catch (const Error_Ejecucion& e) {
            QCOMPARE(e.numero, nombre == u"no.txt" ? 53 : 75);
        }
    }
}

void TestLineas_Envio::los_caracteres_aceptados()
{
    for (int c = 0; c < 256; ++c)
        QCOMPARE(Primero_No_Aceptado(QString("a") + QChar(c) + "b").isEmpty(), c >= 32 && c <= 126);
    QCOMPARE(Primero_No_Aceptado(QStringLiteral("aé😀")), QString("é"));
    QCOMPARE(Primero_No_Aceptado(QStringLiteral("a😀é")), QStringLiteral("😀"));
}

void TestLineas_Envio::una_linea_enorme_se_muestra_corta()
{
    const Error_Ejecucion e = Error_De_Linea(13, 7, QString(100000, 'x'));
    QCOMPARE(e.descripcion, "No coinciden los tipos (línea 7: " + QString(60, 'x') + "...)");
}

PRUEBA(TestLineas_Envio)
#include "TestLineas_Envio.moc"

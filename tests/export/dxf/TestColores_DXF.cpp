#include "export/dxf/Colores_DXF.h"
#include "tests/apoyo/Prueba.h"

class TestColores_DXF : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void los_numeros_tienen_su_color_data();
    void los_numeros_tienen_su_color();
    void todos_caben();
};

void TestColores_DXF::los_numeros_tienen_su_color_data()
{
    QTest::addColumn<int>("numero");
    QTest::addColumn<QList<int>>("partes");
    QTest::newRow("rojo") << 1 << QList<int>{255, 0, 0};
    QTest::newRow("verde") << 3 << QList<int>{0, 255, 0};
    QTest::newRow("azul") << 5 << QList<int>{0, 0, 255};
    QTest::newRow("blanco") << 7 << QList<int>{255, 255, 255};
    QTest::newRow("10 es rojo") << 10 << QList<int>{255, 0, 0};
    QTest::newRow("30 es naranja") << 30 << QList<int>{255, 127, 0};
    QTest::newRow("50 es amarillo") << 50 << QList<int>{255, 255, 0};
    QTest::newRow("90 es verde") << 90 << QList<int>{0, 255, 0};
    QTest::newRow("170 es azul") << 170 << QList<int>{0, 0, 255};
    QTest::newRow("250 es gris") << 250 << QList<int>{51, 51, 51};
    QTest::newRow("255") << 255 << QList<int>{255, 255, 255};
    for (const int fuera : {0, -1, 256})
        QTest::addRow("%d", fuera) << fuera << QList<int>{255, 255, 255};
}

void TestColores_DXF::los_numeros_tienen_su_color()
{
    QFETCH(int, numero);
    const Color_RGB color = Color_De_Numero(numero);
    QTEST((QList<int>{color.rojo, color.verde, color.azul}), "partes");
}

void TestColores_DXF::todos_caben()
{
    for (int n = 1; n <= 255; ++n)
        for (const int parte :
             {Color_De_Numero(n).rojo, Color_De_Numero(n).verde, Color_De_Numero(n).azul})
            QVERIFY(parte >= 0 && parte <= 255);
    for (const Color_Con_Nombre& color : Colores_Con_Nombre())
        QVERIFY(color.numero >= 1 && color.numero <= 9 && !color.nombre.isEmpty());
}

PRUEBA(TestColores_DXF)
#include "TestColores_DXF.moc"

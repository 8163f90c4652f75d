#include "export/Opciones_Exportar.h"
#include "tests/apoyo/Prueba.h"

class TestOpciones_Exportar : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void las_del_texto();
    void las_del_libro();
};

void TestOpciones_Exportar::las_del_texto()
{
    QCOMPARE((Opciones_Texto{"\t", true}.Unir()), QStringLiteral("\t\u0006S"));
    QCOMPARE((Opciones_Texto{" ", false}.Unir()), QStringLiteral(" \u0006N"));
    const Opciones_Texto leidas = Opciones_Texto::De(" \u0006S");
    QVERIFY(leidas.titulos && leidas.separador == u" ");
    for (const char* sin : {"", ",", ",\6N", ",\6s", ",\6SI"})
        QVERIFY2(!Opciones_Texto::De(sin).titulos, sin);
}

void TestOpciones_Exportar::las_del_libro()
{
    QCOMPARE((Opciones_Libro{true, "Excel 8.0"}.Unir()), QStringLiteral("S\u0006Excel 8.0"));
    const Opciones_Libro leidas = Opciones_Libro::De("N\u0006Excel 5.0");
    QVERIFY(!leidas.titulos && leidas.conexion == u"Excel 5.0");
    QVERIFY(Opciones_Libro::De("S").titulos && Opciones_Libro::De("S").conexion.isEmpty());
}

PRUEBA(TestOpciones_Exportar)
#include "TestOpciones_Exportar.moc"

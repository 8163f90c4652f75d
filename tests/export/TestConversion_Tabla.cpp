#include "core/Error_Ejecucion.h"
#include "export/Conversion_Tabla.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

class TestConversion_Tabla : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void la_tabla_se_hace_libro();
    void el_libro_se_hace_texto();
};

void TestConversion_Tabla::la_tabla_se_hace_libro()
{
    const Tabla_Separada tabla = Leer_Tabla_Separada("P,X,3\n1,2.5,\nañ,x", u',');
    const Libro_Excel textos = Libro_De_Tabla(tabla, false), numeros = Libro_De_Tabla(tabla, true);
    QCOMPARE(textos.Hoja(0).nombre, QString("hoja1"));
    QCOMPARE(textos.Hoja(0).Leer(0, 2), Celda::De("3"));
    QCOMPARE(numeros.Hoja(0).Leer(0, 2), Celda::De("3"));
    QCOMPARE(textos.Hoja(0).Leer(1, 1), Celda::De("2.5"));
    QCOMPARE(numeros.Hoja(0).Leer(1, 1), Celda::De(2.5));
    QCOMPARE(numeros.Hoja(0).Leer(1, 2), Celda::De(""));
    QCOMPARE(numeros.Hoja(0).Leer(2, 1), Celda::De("x"));
    QCOMPARE(numeros.Hoja(0).Leer(2, 2), Celda());
    QCOMPARE(Numero_De_Error([] {
                 Libro_De_Tabla(Leer_Tabla_Separada(
                                    QByteArray("t\n") + QByteArray("x\n").repeated(65536), u','),
                                false);
             }),
             3437);
    QCOMPARE(Numero_De_Error(
                 [] { Libro_De_Tabla(Leer_Tabla_Separada(QByteArray(256, ','), u','), false); }),
             3190);
}

void TestConversion_Tabla::el_libro_se_hace_texto()
{
    Hoja_Excel h("hoja1");
    QCOMPARE(Texto_De_Hoja(h), QByteArray());
    h.Poner(1, 1, "a\tb\nc");
    h.Poner(1, 2, 12.5);
    h.Poner(3, 0, "ñ");
    h.Poner_Negrita({0, 0, 8, 8});
    QCOMPARE(Texto_De_Hoja(h), QByteArray("\t\t\n\ta b c\t12.5\n\t\t\nñ\t\t\n"));
}

PRUEBA(TestConversion_Tabla)
#include "TestConversion_Tabla.moc"

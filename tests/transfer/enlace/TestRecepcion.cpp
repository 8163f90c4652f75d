#include "tests/apoyo/Prueba.h"
#include "transfer/enlace/Recepcion.h"

// What a reception lacks, counted and in words.
class TestRecepcion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void cada_falta_cuenta_y_se_dice_data();
    void cada_falta_cuenta_y_se_dice();
    void las_faltas_se_suman();
};

void TestRecepcion::cada_falta_cuenta_y_se_dice_data()
{
    QTest::addColumn<Faltas_Recepcion>("faltas");
    QTest::addColumn<QString>("frase");
    const auto fila = [](const Faltas_Recepcion& faltas, const QString& frase) {
        QTest::newRow(qPrintable(frase)) << faltas << frase;
    };
    fila({.rechazadas = 1}, "1 trama rechazada y no repetida");
    fila({.rechazadas = 3}, "3 tramas rechazadas y no repetidas");
    fila({.abiertas = 1}, "1 trama sin terminar");
    fila({.desconocidas = 1}, "1 registro desconocido");
    fila({.desconocidas = 11}, "11 registros desconocidos");
    fila({.sueltas = 2}, "2 registros sin ninguna medición detrás");
    fila({.sin_fin = 1}, "1 byte detrás del último fin de línea");
    fila({.sin_fin = 30}, "30 bytes detrás del último fin de línea");
    fila({.cortadas = 2}, "2 registros cortados al ancho de su columna");
    fila({.sin_sesion = 4}, "4 líneas sin sesión");
    fila({.sin_acabar = true},
         "el aparato no dio por acabados los datos y el último registro puede "
         "estar incompleto");
    fila({.interrumpida = true}, "el guardado se canceló a medias");
    fila({.rechazadas = 1, .cortadas = 1},
         "1 trama rechazada y no repetida, 1 registro cortado al ancho de su columna");
}

void TestRecepcion::cada_falta_cuenta_y_se_dice()
{
    QFETCH(Faltas_Recepcion, faltas);
    QFETCH(QString, frase);
    QVERIFY(!faltas.Ninguna());
    QCOMPARE(Frase_Faltas(faltas, "trama"), frase);
    Resultado_Recepcion r;
    r.guardada = true;
    QVERIFY(r.Completa());
    r.faltas = faltas;
    QVERIFY(!r.Completa());
}

void TestRecepcion::las_faltas_se_suman()
{
    const Faltas_Recepcion una{1, 2, 3, 4, 5, 6, 7, true, false};
    Faltas_Recepcion suma = una;
    suma += {10, 20, 30, 40, 50, 60, 70, false, true};
    QCOMPARE(Frase_Faltas(suma, "línea"),
             Frase_Faltas({11, 22, 33, 44, 55, 66, 77, true, true}, "línea"));
    QVERIFY(Faltas_Recepcion().Ninguna());
    QCOMPARE(Frase_Faltas({}, "línea"), QString());
}

PRUEBA(TestRecepcion)
#include "TestRecepcion.moc"

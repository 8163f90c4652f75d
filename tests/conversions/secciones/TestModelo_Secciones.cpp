#include "conversions/secciones/Modelo_Secciones.h"
#include "tests/apoyo/Prueba.h"

class TestModelo_Secciones : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void las_secciones_se_juntan_y_ordenan();
    void entre_dos_estaciones_vale_la_que_vino_antes();
};

void TestModelo_Secciones::las_secciones_se_juntan_y_ordenan()
{
    Secciones s;
    const auto poner = [&](double pk, double d, double z) { s.Anadir(s.Abrir(pk), {d, z}); };
    poner(20, 0, 5);
    poner(0, 3, 1);
    poner(0, -3, 2);
    poner(20.0005, 0, 4);
    poner(20.0015, 1, 9);
    poner(0, 3, 0);
    s.Abrir(50);
    s.Ordenar();
    QCOMPARE(s.Lista().size(), size_t(3));
    QCOMPARE(s.Lista()[0].pk, 20.0);
    QCOMPARE(s.Lista()[0].puntos.size(), size_t(2));
    QCOMPARE(s.Lista()[0].puntos[0].cota, 5.0);
    QCOMPARE(s.Lista()[0].puntos[1].cota, 4.0);
    QCOMPARE(s.Lista()[1].puntos[0].desplazamiento, -3.0);
    QCOMPARE(s.Lista()[1].puntos[1].cota, 1.0);
    QCOMPARE(s.Lista()[1].puntos[2].cota, 0.0);
    QCOMPARE(s.Lista()[2].pk, 20.0015);
}

void TestModelo_Secciones::entre_dos_estaciones_vale_la_que_vino_antes()
{
    Secciones ascendentes, descendentes;
    ascendentes.Abrir(20.000);
    QCOMPARE(ascendentes.Abrir(20.001), size_t(1));
    QCOMPARE(ascendentes.Abrir(20.0005), size_t(0));
    descendentes.Abrir(20.001);
    QCOMPARE(descendentes.Abrir(20.000), size_t(1));
    QCOMPARE(descendentes.Abrir(20.0005), size_t(0));
}

PRUEBA(TestModelo_Secciones)
#include "TestModelo_Secciones.moc"

#include "export/plano/Plano.h"
#include "export/plano/Vista_Plano.h"
#include "tests/apoyo/Prueba.h"

namespace {

Plano Cuadrado()
{
    Plano plano;
    for (int x = 0; x <= 10; ++x)
        for (int y = 0; y <= 10; ++y)
            plano.Poner_Punto(QStringLiteral("%1-%2").arg(x).arg(y), {x * 10.0, y * 10.0}, 5.0,
                              "C");
    plano.Marcar();
    return plano;
}

} // namespace

class TestPlano : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void un_punto_lleva_sus_rotulos();
    void lo_repetido_y_lo_lejano_se_marcan();
    void la_caja_no_cuenta_lo_lejano();
    void lo_oculto_no_se_halla();
    void se_busca_por_el_nombre();
    void la_vista_va_y_vuelve();
    void el_zoom_deja_quieto_lo_de_debajo();
    void encajar_lo_muestra_todo_data();
    void encajar_lo_muestra_todo();
    void la_escala_que_cabe_data();
    void la_escala_que_cabe();
};

void TestPlano::un_punto_lleva_sus_rotulos()
{
    Plano plano;
    plano.Poner_Punto("P1", {1, 2}, 3.14159, "ARBOL");
    plano.Poner_Punto("P2", {1, 3}, std::nullopt, "");
    QCOMPARE(plano.puntos.size(), std::size_t(2));
    QStringList textos, capas;
    for (const Texto_Plano& t : plano.textos) {
        textos << t.texto;
        capas << plano.capas[t.capa].nombre;
    }
    QCOMPARE(textos, (QStringList{"P1", "3.142", "ARBOL", "P2"}));
    QCOMPARE(capas, (QStringList{"NUMEROS", "COTAS", "CODIGOS", "NUMEROS"}));
}

void TestPlano::lo_repetido_y_lo_lejano_se_marcan()
{
    Plano plano = Cuadrado();
    for (const Punto_De_Plano& p : plano.puntos)
        QVERIFY(!p.repetido && !p.lejano);
    plano.Poner_Punto("5-5", {51, 50}, {}, "");
    plano.Poner_Punto("LEJOS", {1e6, 1e6}, {}, "");
    plano.Poner_Punto("", {50, 51}, {}, "");
    plano.Poner_Punto("", {50, 52}, {}, "");
    plano.Marcar();
    int repetidos = 0, lejanos = 0;
    for (const Punto_De_Plano& p : plano.puntos) {
        repetidos += p.repetido;
        lejanos += p.lejano;
        QCOMPARE(p.repetido, p.nombre == "5-5");
    }
    QCOMPARE(repetidos, 2);
    QCOMPARE(lejanos, 1);
    // All on one spot: nothing is far off.
    Plano montones;
    for (int i = 0; i < 5; ++i)
        montones.Poner_Punto(QString::number(i), {7, 7}, {}, "");
    montones.Poner_Punto("otro", {9, 9}, {}, "");
    montones.Marcar();
    for (const Punto_De_Plano& p : montones.puntos)
        QVERIFY(!p.lejano);
    Plano().Marcar();
}

void TestPlano::la_caja_no_cuenta_lo_lejano()
{
    Plano plano = Cuadrado();
    plano.Poner_Punto("LEJOS", {1e6, 1e6}, {}, "");
    plano.Marcar();
    QCOMPARE(plano.Caja()->x1, 100.0);
    plano.lineas.push_back({{{-5, 0}, {0, 200}}, plano.Capa("L"), 7});
    QCOMPARE(plano.Caja()->x0, -5.0);
    QCOMPARE(plano.Caja()->y1, 200.0);
    plano.capas[plano.Capa("L")].visible = false;
    QCOMPARE(plano.Caja()->y1, 100.0);
    QVERIFY(!Plano().Caja());
}

void TestPlano::lo_oculto_no_se_halla()
{
    Plano plano = Cuadrado();
    QCOMPARE(plano.Cercano({51, 49}, 5)->nombre, QString("5-5"));
    QVERIFY(!plano.Cercano({55, 55}, 5));
    plano.capas[plano.Capa("PUNTOS")].visible = false;
    QVERIFY(!plano.Cercano({51, 49}, 5));
}

void TestPlano::se_busca_por_el_nombre()
{
    Plano plano = Cuadrado();
    plano.textos.push_back({"Fuente", {3, 4}, 1, 0, 0, 7});
    QCOMPARE(*plano.Buscar(" 10-3 "), (Lugar_Plano{100, 30}));
    QCOMPARE(*plano.Buscar("FUENTE"), (Lugar_Plano{3, 4}));
    QVERIFY(!plano.Buscar("11-11") && !plano.Buscar("  "));
}

void TestPlano::la_vista_va_y_vuelve()
{
    Vista_Plano vista;
    vista.Encajar({456000, 4478000, 457000, 4478500}, 800, 600);
    const Lugar_Plano p = vista.A_Pantalla({456123.25, 4478321.5});
    const Lugar_Plano vuelta = vista.A_Terreno(p.x, p.y);
    QVERIFY(std::abs(vuelta.x - 456123.25) < 1e-6 && std::abs(vuelta.y - 4478321.5) < 1e-6);
    // North is up, east to the right.
    QVERIFY(vista.A_Pantalla({456123, 4478400}).y < p.y);
    QVERIFY(vista.A_Pantalla({456200, 4478321}).x > p.x);
    vista.Arrastrar(10, -20);
    const Lugar_Plano movido = vista.A_Pantalla({456123.25, 4478321.5});
    QVERIFY(std::abs(movido.x - p.x - 10) < 1e-6 && std::abs(movido.y - p.y + 20) < 1e-6);
}

void TestPlano::el_zoom_deja_quieto_lo_de_debajo()
{
    Vista_Plano vista;
    vista.Encajar({0, 0, 100, 100}, 800, 600);
    const Lugar_Plano antes = vista.A_Terreno(123, 456);
    for (const double veces : {1.25, 4.0, 0.1, 3.0}) {
        const double escala = vista.Escala();
        vista.Acercar(veces, 123, 456);
        QCOMPARE(vista.Escala(), escala * veces);
        const Lugar_Plano ahora = vista.A_Terreno(123, 456);
        QVERIFY(Distancia(antes, ahora) < 1e-9);
    }
    for (int i = 0; i < 500; ++i)
        vista.Acercar(2, 10, 10);
    QVERIFY(std::isfinite(vista.Escala()));
}

void TestPlano::encajar_lo_muestra_todo_data()
{
    QTest::addColumn<QList<double>>("caja");
    QTest::newRow("ancha") << QList<double>{0, 0, 1000, 10};
    QTest::newRow("alta") << QList<double>{-5, -1000, 5, 1000};
    QTest::newRow("un punto") << QList<double>{7, 7, 7, 7};
}

void TestPlano::encajar_lo_muestra_todo()
{
    QFETCH(QList<double>, caja);
    Vista_Plano vista;
    vista.Encajar({caja[0], caja[1], caja[2], caja[3]}, 640, 400);
    for (const Lugar_Plano esquina :
         {Lugar_Plano{caja[0], caja[1]}, Lugar_Plano{caja[2], caja[3]}}) {
        const Lugar_Plano p = vista.A_Pantalla(esquina);
        QVERIFY(p.x >= 0 && p.x <= 640 && p.y >= 0 && p.y <= 400);
    }
    const Caja_Plano vista_caja = vista.En_Vista();
    QVERIFY(vista_caja.x0 <= caja[0] && vista_caja.y1 >= caja[3]);
}

void TestPlano::la_escala_que_cabe_data()
{
    QTest::addColumn<double>("ancho");
    QTest::addColumn<double>("alto");
    QTest::addColumn<double>("escala");
    QTest::newRow("justo") << 20.0 << 10.0 << 100.0; // 200 mm at 1:100
    QTest::newRow("algo más") << 20.1 << 10.0 << 200.0;
    QTest::newRow("por lo alto") << 1.0 << 250.0 << 1000.0;
    QTest::newRow("dos mil quinientos") << 450.0 << 10.0 << 2500.0;
    QTest::newRow("un punto") << 0.0 << 0.0 << 100.0;
    QTest::newRow("kilómetros") << 50000.0 << 10.0 << 250000.0;
}

void TestPlano::la_escala_que_cabe()
{
    QFETCH(double, ancho);
    QFETCH(double, alto);
    QTEST(Escala_Que_Cabe({0, 0, ancho, alto}, 200, 270), "escala");
}

PRUEBA(TestPlano)
#include "TestPlano.moc"

#include "conversions/ejes/Geometria_Eje.h"
#include "conversions/ejes/Poligonal.h"
#include "conversions/rasantes/Resolver_Rasante.h"
#include "conversions/suelo/Informe_Lectura.h"
#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Camino_Azar.h"

using namespace Geometria_Eje;

namespace {

/// The clothoid's closed series, from curvature 0: X = L Σ (-1)^n τ^2n / ((4n+1)(2n)!) along the
/// tangent, Y = L Σ (-1)^n τ^(2n+1) / ((4n+3)(2n+1)!) across it.
Punto_Plano Serie(double longitud, double tau)
{
    double X = 0, Y = 0, termino = 1;
    for (int n = 0; n < 60; ++n) {
        X += termino / (4 * n + 1);
        termino *= tau / (2 * n + 1);
        Y += termino / (4 * n + 3);
        termino *= -tau / (2 * n + 2);
    }
    return {Y * longitud, X * longitud};
}

bool Cerca(double a, double b, double margen)
{
    return std::abs(a - b) <= margen;
}

Vertice_Fuente V(double pk, double cota, Dato_Acuerdo dato = Dato_Acuerdo::Longitud,
                 double valor = 0)
{
    return {pk, cota, dato, valor, 0, {}};
}

} // namespace

class TestGeometria : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void valores_conocidos_de_clotoide();
    void valores_conocidos_de_tangentes();
    void la_clotoide_es_su_serie_data();
    void la_clotoide_es_su_serie();
    void el_ovoide_es_un_trozo_de_clotoide();
    void cualquier_elemento_por_otra_cuadratura();
    void ida_y_vuelta();
    void el_arco_gira_sobre_su_centro();
    void azimutes_y_giros();
    void interseccion_de_tangentes();
    void las_tangentes_llevan_de_lado_a_lado();
    void giro_que_no_llega_a_las_clotoides();
    void poligonal_de_casos_data();
    void poligonal_de_casos();
    void acuerdos_por_cada_dato_data();
    void acuerdos_por_cada_dato();
};

void TestGeometria::valores_conocidos_de_clotoide()
{
    const Clotoide_Local c = Clotoide_De(250, 120);
    QVERIFY(Cerca(c.longitud, 57.600, 0.00005));
    QVERIFY(Cerca(c.tau / GON, 7.3339, 0.00005));
    QVERIFY(Cerca(c.X, 57.5236, 0.00005));
    QVERIFY(Cerca(c.Y, 2.2097, 0.00005));
    QVERIFY(Cerca(c.p, 0.5527, 0.00005));
    QVERIFY(Cerca(c.q, 28.7873, 0.00005));
    QCOMPARE(Clotoide_De(250, 0).longitud, 0.0);
}

void TestGeometria::valores_conocidos_de_tangentes()
{
    const auto t = Tangentes_De(60 * GON, 300, 120, 150);
    QVERIFY(t);
    QVERIFY(Cerca(t->T1, 177.585, 0.0005));
    QVERIFY(Cerca(t->T2, 190.166, 0.0005));
    QVERIFY(Cerca(t->arco, 221.243, 0.0005));
    const auto circular = Tangentes_De(100 * GON, 300, 0, 0);
    QVERIFY(Cerca(circular->T1, 300, 1e-9) && Cerca(circular->T2, 300, 1e-9));
    QVERIFY(Cerca(circular->arco, 150 * std::numbers::pi, 1e-9));
}

void TestGeometria::la_clotoide_es_su_serie_data()
{
    QTest::addColumn<double>("longitud");
    QTest::addColumn<double>("radio");
    QTest::newRow("suave") << 60.0 << 1500.0;
    QTest::newRow("de carretera") << 57.6 << 250.0;
    QTest::newRow("de ramal") << 60.0 << 30.0;
    QTest::newRow("media vuelta") << 200.0 << 32.0;
    QTest::newRow("larga") << 5000.0 << 1500.0;
    QTest::newRow("minima") << 0.001 << 10.0;
}

void TestGeometria::la_clotoide_es_su_serie()
{
    QFETCH(double, longitud);
    QFETCH(double, radio);
    const Punto_Plano serie = Serie(longitud, longitud / (2 * radio));
    for (const double lado : {1.0, -1.0}) {
        const Elemento_Eje e{Clase_Elemento::Clotoide, {0, 0}, 0, longitud, 0, lado / radio, 0};
        const Situacion f = Final(e);
        QVERIFY(Cerca(f.punto.x, lado * serie.x, 1e-9));
        QVERIFY(Cerca(f.punto.y, serie.y, 1e-9));
        QVERIFY(Cerca(f.azimut, lado * longitud / (2 * radio), 1e-12));
    }
}

/// From curvature k1 to k2 the clothoid is what the whole one, from curvature 0, leaves behind k1.
void TestGeometria::el_ovoide_es_un_trozo_de_clotoide()
{
    const double k1 = 1 / 160.0, k2 = 1 / 100.0, longitud = 24;
    const double razon = (k2 - k1) / longitud;
    const double s1 = k1 / razon, s2 = k2 / razon;
    const Punto_Plano a = Serie(s1, s1 * k1 / 2), b = Serie(s2, s2 * k2 / 2);
    const Elemento_Eje e{Clase_Elemento::Clotoide, a, s1 * k1 / 2, longitud, k1, k2, 0};
    const Situacion f = Final(e);
    QVERIFY(Cerca(f.punto.x, b.x, 1e-9) && Cerca(f.punto.y, b.y, 1e-9));
    QVERIFY(Cerca(f.azimut, s2 * k2 / 2, 1e-12));
}

void TestGeometria::cualquier_elemento_por_otra_cuadratura()
{
    QRandomGenerator azar(20260101);
    for (int i = 0; i < 300; ++i) {
        const double radio = std::exp(azar.bounded(8.0)) * 5;
        const auto k = [&] { return (azar.bounded(2.0) - 1) / radio; };
        Elemento_Eje e{Clase_Elemento::Clotoide, {0, 0}, azar.bounded(7.0), 0, k(), k(), 0};
        e.longitud = std::min(radio * (0.01 + azar.bounded(20.0)), 10000.0);
        const Camino_Azar::Elemento otro{'K', 0, 0, 0, e.azimut, e.longitud, e.k1, e.k2};
        for (const double parte : {0.25, 1.0}) {
            const Situacion s = Avanzar(e, parte * e.longitud);
            const Camino_Azar::Punto p = Camino_Azar::En(otro, parte * e.longitud, 20000);
            QVERIFY(Cerca(s.punto.x, p.x, 1e-6) && Cerca(s.punto.y, p.y, 1e-6));
            QVERIFY(Cerca(s.azimut, p.azimut, 1e-9));
        }
    }
}

void TestGeometria::ida_y_vuelta()
{
    const Elemento_Eje ida{Clase_Elemento::Clotoide, {400000, 4500000}, 1.2, 80, -0.002, -0.02, 0};
    const Situacion f = Final(ida);
    const Elemento_Eje vuelta{
        Clase_Elemento::Clotoide, f.punto, f.azimut + std::numbers::pi, 80, 0.02, 0.002, 0};
    QVERIFY(Distancia(Final(vuelta).punto, ida.inicio) < 1e-8);
    QVERIFY(Distancia(Avanzar(ida, -10).punto, ida.inicio) > 9.99);
}

void TestGeometria::el_arco_gira_sobre_su_centro()
{
    for (const double k : {1 / 37.0, -1 / 800.0}) {
        const Elemento_Eje e{Clase_Elemento::Arco, {1000, 2000}, 5.1, 60, k, k, 0};
        const Punto_Plano c = Centro(e);
        for (const double s : {0.0, 11.0, 60.0})
            QVERIFY(Cerca(Distancia(c, Avanzar(e, s).punto), std::abs(1 / k), 1e-9));
        // A right-hand centre lies on the right.
        QVERIFY(Cerca(Giro(Azimut(e.inicio, c) - e.azimut), std::copysign(std::numbers::pi / 2, k),
                      1e-9));
    }
    const Elemento_Eje vuelta{Clase_Elemento::Arco, {5, 5}, 0, 20 * std::numbers::pi, 0.1, 0.1, 0};
    QVERIFY(Distancia(Final(vuelta).punto, vuelta.inicio) < 1e-9);
    // A radius without end is a straight.
    const Elemento_Eje recta{Clase_Elemento::Arco, {0, 0}, 0.7, 500, 1e-12, 1e-12, 0};
    QVERIFY(Distancia(Final(recta).punto, Polar({0, 0}, 0.7, 500)) < 1e-6);
}

void TestGeometria::azimutes_y_giros()
{
    QVERIFY(Cerca(Azimut({0, 0}, {0, 1}), 0, 1e-15));
    QVERIFY(Cerca(Azimut({0, 0}, {1, 0}), 100 * GON, 1e-15));
    QVERIFY(Cerca(Azimut({0, 0}, {-1, 0}), 300 * GON, 1e-15));
    QCOMPARE(Azimut({3, 3}, {3, 3}), 0.0);
    QVERIFY(Cerca(Giro(350 * GON), -50 * GON, 1e-12));
    QVERIFY(Cerca(Giro(-1000 * GON), 200 * GON, 1e-12));
    QCOMPARE(Giro(-std::numbers::pi), std::numbers::pi);
    QCOMPARE(Curvatura(0.0001), 0.0);
    QCOMPARE(Curvatura(-200), -0.005);
}

void TestGeometria::interseccion_de_tangentes()
{
    const Punto_Plano p = Interseccion({0, 0}, 0, {100, 100}, 100 * GON, 150);
    QVERIFY(Cerca(p.x, 0, 1e-9) && Cerca(p.y, 100, 1e-9));
    const Punto_Plano izquierda = Interseccion({0, 0}, 0, {-100, 100}, -100 * GON, 150);
    QVERIFY(Cerca(izquierda.x, 0, 1e-9) && Cerca(izquierda.y, 100, 1e-9));
    const Punto_Plano recta = Interseccion({0, 0}, 50 * GON, {70, 70}, 50 * GON + 9e-7, 100);
    QVERIFY(Distancia(recta, Polar({0, 0}, 50 * GON, 50)) < 1e-9);
}

void TestGeometria::las_tangentes_llevan_de_lado_a_lado()
{
    QRandomGenerator azar(77);
    for (int i = 0; i < 200; ++i) {
        const double giro = (1 + azar.bounded(185.0)) * GON;
        const double radio = 20 + azar.bounded(2000.0);
        const auto parametro = [&] {
            return azar.bounded(3) ? radio * std::sqrt(azar.bounded(0.98) * giro) : 0;
        };
        const double A1 = parametro(), A2 = parametro();
        const auto t = Tangentes_De(giro, radio, A1, A2);
        QVERIFY(t && t->arco >= 0);
        // From the entry tangent point, along the curve, to the exit leg.
        Situacion s{{0, -t->T1}, 0};
        for (const auto& [longitud, k1, k2] : {std::tuple{t->entrada.longitud, 0.0, 1 / radio},
                                               std::tuple{t->arco, 1 / radio, 1 / radio},
                                               std::tuple{t->salida.longitud, 1 / radio, 0.0}})
            if (longitud > 0)
                s = Final({Clase_Elemento::Clotoide, s.punto, s.azimut, longitud, k1, k2, 0});
        const double escala = 1e-9 * (t->T1 + t->T2);
        QVERIFY(Distancia(s.punto, Polar({0, 0}, giro, t->T2)) < 1e-7 + escala);
        QVERIFY(Cerca(s.azimut, giro, 1e-9));
    }
}

void TestGeometria::giro_que_no_llega_a_las_clotoides()
{
    const double tau = Clotoide_De(250, 120).tau;
    QVERIFY(Tangentes_De(2 * tau + 1e-9, 250, 120, 120));
    QVERIFY(!Tangentes_De(2 * tau - 1e-9, 250, 120, 120));
}

void TestGeometria::poligonal_de_casos_data()
{
    QTest::addColumn<QList<double>>("centro"); // x, y, R, A1, A2 of the middle vertex
    QTest::addColumn<QString>("clases");
    QTest::addColumn<bool>("valida");
    QTest::newRow("esquina") << QList<double>{0, 100, 0, 0, 0} << "RR" << true;
    QTest::newRow("arco") << QList<double>{0, 100, 50, 0, 0} << "RCR" << true;
    QTest::newRow("arco justo") << QList<double>{0, 100, 100, 0, 0} << "C" << true;
    QTest::newRow("no cabe") << QList<double>{0, 100, 100.01, 0, 0} << "RR" << false;
    QTest::newRow("cabe por un milimetro") << QList<double>{0, 100, 100.0009, 0, 0} << "C" << true;
    QTest::newRow("entrada sola") << QList<double>{0, 100, 50, 30, 0} << "RKCR" << true;
    QTest::newRow("salida sola") << QList<double>{0, 100, 50, 0, 30} << "RCKR" << true;
    QTest::newRow("clotoides y arco") << QList<double>{0, 100, 50, 30, 20} << "RKCKR" << true;
    QTest::newRow("radio negativo") << QList<double>{0, 100, -50, 0, 0} << "RR" << false;
    QTest::newRow("parametro negativo") << QList<double>{0, 100, 50, -30, 0} << "RR" << false;
    QTest::newRow("parametro sin radio") << QList<double>{0, 100, 0, 30, 30} << "RR" << false;
    QTest::newRow("clotoides que giran mas") << QList<double>{0, 100, 50, 70, 70} << "RR" << false;
    QTest::newRow("sin giro") << QList<double>{50, 50, 50, 0, 0} << "RR" << false;
    QTest::newRow("sobre el primero") << QList<double>{0, 0.0004, 50, 0, 0} << "R" << false;
}

void TestGeometria::poligonal_de_casos()
{
    QFETCH(QList<double>, centro);
    QFETCH(QString, clases);
    QFETCH(bool, valida);
    Informe_Lectura informe;
    const Eje eje =
        Componer_Poligonal({{{0, 0}, 0, 0, 0, 1, {}},
                            {{centro[0], centro[1]}, centro[2], centro[3], centro[4], 2, {}},
                            {{100, 100}, 0, 0, 0, 3, {}}},
                           0, informe);
    QString obtenidas;
    for (const Elemento_Eje& e : eje.elementos)
        obtenidas += QStringLiteral("RCK")[int(e.clase) - 1];
    QCOMPARE(obtenidas, clases);
    QCOMPARE(informe.Hay_Omisiones(), !valida);
    if (!valida) QCOMPARE(informe.Omisiones()[0].linea, 2);
    QVERIFY(Distancia(eje.fin, {100, 100}) < 1e-12);
    QVERIFY(Distancia(Final(eje.elementos.back()).punto, eje.fin) < 0.0011);
}

void TestGeometria::acuerdos_por_cada_dato_data()
{
    QTest::addColumn<int>("dato");
    QTest::addColumn<double>("valor");
    QTest::addColumn<double>("longitud");
    QTest::addColumn<bool>("valido");
    // Grades of +3 % and -3 %: θ = 0.06; the legs are 120 m and 180 m.
    QTest::newRow("longitud") << int(Dato_Acuerdo::Longitud) << 60.0 << 60.0 << true;
    QTest::newRow("Kv") << int(Dato_Acuerdo::Kv) << 1000.0 << 60.0 << true;
    QTest::newRow("Kv con signo") << int(Dato_Acuerdo::Kv) << -1000.0 << 60.0 << true;
    QTest::newRow("tangente") << int(Dato_Acuerdo::Tangente) << 30.0 << 60.0 << true;
    QTest::newRow("bisectriz") << int(Dato_Acuerdo::Bisectriz) << 0.45 << 60.0 << true;
    QTest::newRow("ninguno") << int(Dato_Acuerdo::Kv) << 0.0 << 0.0 << true;
    QTest::newRow("longitud negativa") << int(Dato_Acuerdo::Longitud) << -60.0 << 0.0 << false;
    QTest::newRow("hasta el vertice anterior")
        << int(Dato_Acuerdo::Longitud) << 240.0 << 240.0 << true;
    QTest::newRow("se pasa") << int(Dato_Acuerdo::Longitud) << 240.01 << 0.0 << false;
}

void TestGeometria::acuerdos_por_cada_dato()
{
    QFETCH(int, dato);
    QFETCH(double, valor);
    QFETCH(double, longitud);
    QFETCH(bool, valido);
    Informe_Lectura informe;
    const Rasante r = Resolver_Rasante(
        {V(0, 100), V(120, 103.6, Dato_Acuerdo(dato), valor), V(300, 98.2)}, informe);
    QVERIFY(Cerca(r.vertices[1].longitud, longitud, 1e-9));
    QCOMPARE(informe.Hay_Omisiones(), !valido);

    Informe_Lectura extremos;
    const Rasante e = Resolver_Rasante(
        {V(0, 100, Dato_Acuerdo(dato), valor), V(100, 103), V(200, 100, Dato_Acuerdo(dato), valor)},
        extremos);
    QCOMPARE(extremos.Total(), valor == 0 ? 0 : 2);
    QCOMPARE(e.vertices[0].longitud + e.vertices[2].longitud, 0.0);
}

PRUEBA(TestGeometria)
#include "TestGeometria.moc"

#include "export/plano/Plano_De_Datos.h"
#include "session/Desplazamiento.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

class TestPlano_De_Datos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void por_sus_coordenadas();
    void las_medidas_se_reducen();
    void sin_orientacion_no_hay_plano();
    void radiar_a_los_cuatro_vientos_data();
    void radiar_a_los_cuatro_vientos();
    void un_fichero_dice_lo_que_es();

private:
    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

void TestPlano_De_Datos::init()
{
    base = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    Clave_Estacion = "KRT300";
}

void TestPlano_De_Datos::cleanup()
{
    interfaz.reset();
    base.reset();
}

void TestPlano_De_Datos::por_sus_coordenadas()
{
    Poner_Instrumentos(*base);
    Poner_Sesion(*base, 1, "KRT300", 1,
                 {{"P1", " x+004478320433"},
                  {"P1", " y+000456191338"},
                  {"P1", " z+000617438"},
                  {"P1", "cARBOL"},
                  {"P2", " x+000001000"},
                  {"P2", " y+000002000"},
                  {"P3", "cNADA"}});
    Desp_X = "1000";
    const Plano_Hecho hecho = Plano_De_Sesion(*Base_Datos, {1, "KRT300", 1, {}});
    QCOMPARE(Desp_X, QString("0"));
    QCOMPARE(hecho.plano.puntos.size(), std::size_t(2));
    QCOMPARE(hecho.plano.puntos[1].lugar, (Lugar_Plano{2, 1}));
    QVERIFY(!hecho.plano.puntos[1].cota);
    QVERIFY(hecho.plano.puntos[0].cota.has_value());
    QCOMPARE(hecho.omitidos, 1);
}

// The field book's first point, whose coordinates were computed by who made the book.
void TestPlano_De_Datos::las_medidas_se_reducen()
{
    const Lugar_Plano estacion{456191.339, 4478320.433};
    const Lugar_Plano punto = Radiar(estacion, 309.6186, {329.4595, 101.9210, 29.798});
    QVERIFY2(Distancia(punto, {456174.183, 4478296.086}) < 0.002,
             qPrintable(QString("%1 %2").arg(punto.x, 0, 'f', 4).arg(punto.y, 0, 'f', 4)));
}

void TestPlano_De_Datos::sin_orientacion_no_hay_plano()
{
    const QStringList nombres[] = {{"Ángulo Horizontal", "Ángulo Vertical", "Distancia Geométrica",
                                    "Coordenada X Estación", "Coordenada Y Estación"}};
    int lugar = 0;
    for (const QString& nombre : nombres[0]) {
        const QString id(QChar(u'a' + lugar++));
        const QByteArray campo = nombre.toUtf8();
        Poner_Registro(*base, "KRT300", {0}, id, nombre, "P",
                       {{campo.constData(), 8, "5,3", ".", "0.000"}});
    }
    QList<Linea_De_Prueba> lineas;
    for (int i = 0; i < 5; ++i)
        lineas << Linea_De_Prueba{"P1", QString(QChar(u'a' + i)) + "+0001000"};
    Poner_Sesion(*base, 1, "KRT300", 0, lineas);
    const Plano_Hecho sin = Plano_De_Sesion(*Base_Datos, {1, "KRT300", 0, {}});
    QCOMPARE(sin.omitidos, 1);
    QVERIFY(std::ranges::none_of(sin.plano.puntos,
                                 [](const Punto_De_Plano& p) { return p.nombre == "P1"; }));
    Poner_Registro(*base, "KRT300", {0}, "o", "Orientación", "P",
                   {{"Orientación", 8, "5,3", ".", "0.000"}});
    Poner_Sesion(*base, 2, "KRT300", 0, lineas + QList<Linea_De_Prueba>{{"P1", "o+0001000"}});
    const Plano_Hecho con = Plano_De_Sesion(*Base_Datos, {2, "KRT300", 0, {}});
    QCOMPARE(con.omitidos, 0);
    QVERIFY(std::ranges::any_of(con.plano.puntos,
                                [](const Punto_De_Plano& p) { return p.nombre == "P1"; }));
}

void TestPlano_De_Datos::radiar_a_los_cuatro_vientos_data()
{
    QTest::addColumn<double>("orientacion");
    QTest::addColumn<double>("horizontal");
    QTest::addColumn<double>("este");
    QTest::addColumn<double>("norte");
    QTest::newRow("norte") << 0.0 << 0.0 << 0.0 << 10.0;
    QTest::newRow("este") << 0.0 << 100.0 << 10.0 << 0.0;
    QTest::newRow("sur, girado") << 350.0 << 250.0 << 0.0 << -10.0;
    QTest::newRow("oeste, orientación negativa") << -90.0 << 390.0 << -10.0 << 0.0;
}

void TestPlano_De_Datos::radiar_a_los_cuatro_vientos()
{
    QFETCH(double, orientacion);
    QFETCH(double, horizontal);
    QFETCH(double, este);
    QFETCH(double, norte);
    QVERIFY(Distancia(Radiar({5, 5}, orientacion, {horizontal, 100, 10}), {5 + este, 5 + norte}) <
            1e-9);
    // Along the slope: 50 gon from the zenith.
    QVERIFY(std::abs(Distancia(Radiar({5, 5}, orientacion, {horizontal, 50, 10}), {5, 5}) -
                     10 * std::sqrt(0.5)) < 1e-9);
}

void TestPlano_De_Datos::un_fichero_dice_lo_que_es()
{
    base->Escribir(
        "l.txt", "Punto,Coordenada X,Coordenada Y,Coordenada Z\r\nP1,1,2,3\r\nP2,x,2,3\r\nP3\r\n");
    base->Escribir("d.txt",
                   "0\nSECTION\n2\nENTITIES\n0\nPOINT\n8\nA\n10\n1\n20\n2\n0\nENDSEC\n0\nEOF\n");
    base->Escribir("malo.dxf", "esto no es un dibujo");
    const auto nunca = [] { return std::optional<QChar>(); };
    const auto lista = Plano_De_Fichero(base->Ruta("l.txt"), nunca);
    QCOMPARE(lista->plano.puntos.size(), std::size_t(1));
    QCOMPARE(lista->omitidos, 1);
    QCOMPARE(lista->lineas_cortas, QList<int>{4});
    QCOMPARE(Plano_De_Fichero(base->Ruta("d.txt"), nunca)->plano.capas[0].nombre, QString("A"));
    QVERIFY_ERROR(13, Plano_De_Fichero(base->Ruta("malo.dxf"), nunca));
    QVERIFY_ERROR(53, Plano_De_Fichero(base->Ruta("falta.dxf"), nunca));
    base->Escribir("raro.txt", "a;b;c\r\n");
    QVERIFY(!Plano_De_Fichero(base->Ruta("raro.txt"), nunca));
}

PRUEBA(TestPlano_De_Datos)
#include "TestPlano_De_Datos.moc"

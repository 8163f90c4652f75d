#include "core/ui/Dialogos.h"
#include "export/ui/Dialogos_Exportar.h"
#include "export/ui/FrmPlano.h"
#include "export/ui/Panel_Plano.h"
#include "export/ui/Pintor_Plano.h"
#include "export/ui/Visor_Plano.h"
#include "session/ui/frmDescargas.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Ventanas.h"

#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QWheelEvent>
#include <random>

namespace {

Plano Nube(int cuantos)
{
    Plano plano;
    std::mt19937 azar(5);
    for (int i = 0; i < cuantos; ++i)
        plano.Poner_Punto(QString::number(i),
                          {456000 + azar() % 100000 / 100.0, azar() % 80000 / 100.0},
                          double(azar() % 1000) / 10, "C" + QString::number(i % 7));
    plano.Marcar();
    return plano;
}

} // namespace

class TestFrmPlano : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { sala.reset(); }
    void una_sesion_se_ve_en_su_plano();
    void una_sesion_sin_puntos_se_dice();
    void las_capas_se_apagan();
    void un_punto_se_busca();
    void la_rueda_y_el_teclado_acercan();
    void se_mide_entre_dos_puntos();
    void treinta_mil_puntos_son_fluidos();
    void la_hoja_va_a_escala();
    void lo_que_no_cabe_se_dice();
    void cada_final_su_forma_data();
    void cada_final_su_forma();

private:
    std::unique_ptr<Sala_Ventanas> sala;
};

void TestFrmPlano::init()
{
    sala = std::make_unique<Sala_Ventanas>();
    Poner_Instrumentos(*sala);
    Clave_Estacion = "KRT300";
    Poner_Sesion(*sala, 1, "KRT300", 1,
                 {{"P1", " y+000001000"},
                  {"P1", " x+000002000"},
                  {"P1", "cARBOL"},
                  {"P2", " y+000005000"},
                  {"P2", " x+000005000"},
                  {"P3", "cNADA"}});
    Poner_Sesion(*sala, 2, "KRT300", 1, {{"P3", "cNADA"}});
    Conectar_Dialogos_Exportar();
}

void TestFrmPlano::una_sesion_se_ve_en_su_plano()
{
    Al_Abrirse abierta(
        [&](QWidget& w) {
            QCOMPARE(w.windowTitle(), QString("Plano de la sesión 1"));
            const Plano& plano = Hijo<Visor_Plano>(w, "Visor").Mostrado();
            QCOMPARE(plano.puntos.size(), std::size_t(2));
            QCOMPARE(plano.puntos[0].lugar, (Lugar_Plano{1, 2}));
            QCOMPARE(Hijo<QLabel>(w, "LblAvisos").text(), QString("2 puntos   sin dibujar: 1"));
            Hijo<QPushButton>(w, "BtnCan").click();
        },
        "FrmPlano");
    Puertas_De_Descargas().Ver_Plano({1, "KRT300", 1, {}});
    QCOMPARE(abierta.veces, 1);
    QVERIFY(!Dialogos::Cargado<FrmPlano>());
}

void TestFrmPlano::una_sesion_sin_puntos_se_dice()
{
    Puertas_De_Descargas().Ver_Plano({2, "KRT300", 1, {}});
    QCOMPARE(sala->Tomar_Avisos(),
             QStringList{"La sesión no tiene puntos con coordenadas que dibujar"});
    QVERIFY(!Dialogos::Visible<FrmPlano>());
}

void TestFrmPlano::las_capas_se_apagan()
{
    Panel_Plano panel;
    panel.Poner({Nube(5), 0}, "x");
    auto& capas = Hijo<QListWidget>(panel, "LstCapas");
    QCOMPARE(capas.count(), 4);
    capas.item(0)->setCheckState(Qt::Unchecked);
    QVERIFY(!panel.Visor().Mostrado().capas[0].visible);
    capas.item(0)->setCheckState(Qt::Checked);
    QVERIFY(panel.Visor().Mostrado().capas[0].visible);
}

void TestFrmPlano::un_punto_se_busca()
{
    Panel_Plano panel;
    panel.resize(800, 500);
    panel.show();
    panel.Poner({Nube(50), 0}, "x");
    Hijo<QLineEdit>(panel, "TxBuscar").setText("17");
    Hijo<QPushButton>(panel, "BtnBuscar").click();
    const Visor_Plano& visor = panel.Visor();
    const Lugar_Plano p = visor.Vista().A_Pantalla(visor.Mostrado().puntos[17].lugar);
    QVERIFY(std::abs(p.x - visor.width() / 2.0) < 1 && std::abs(p.y - visor.height() / 2.0) < 1);
    QVERIFY(Hijo<QLabel>(panel, "LblDicho").text().contains("Punto 17"));
    Hijo<QLineEdit>(panel, "TxBuscar").setText("no");
    QTest::keyClick(&Hijo<QLineEdit>(panel, "TxBuscar"), Qt::Key_Return);
    QCOMPARE(sala->interfaz.pitidos, 1);
    QCOMPARE(Hijo<QLabel>(panel, "LblDicho").text(), QString("No hay ningún punto no"));
}

void TestFrmPlano::la_rueda_y_el_teclado_acercan()
{
    Visor_Plano visor;
    visor.resize(600, 400);
    visor.show();
    visor.Poner(Nube(50));
    const double antes = visor.Vista().Escala();
    const Lugar_Plano debajo = visor.Vista().A_Terreno(100, 100);
    QWheelEvent rueda({100, 100}, visor.mapToGlobal(QPointF(100, 100)), {}, {0, 120}, {}, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&visor, &rueda);
    QVERIFY(visor.Vista().Escala() > antes);
    QVERIFY(Distancia(visor.Vista().A_Terreno(100, 100), debajo) < 1e-6);
    QTest::keyClick(&visor, Qt::Key_Home);
    QCOMPARE(visor.Vista().Escala(), antes);
    QTest::keyClick(&visor, Qt::Key_Plus);
    QVERIFY(visor.Vista().Escala() > antes);
    QTest::keyClick(&visor, Qt::Key_Minus);
    const Lugar_Plano medio = visor.Vista().A_Terreno(300, 200);
    QTest::keyClick(&visor, Qt::Key_Right);
    QVERIFY(visor.Vista().A_Terreno(300, 200).x > medio.x);
    QTest::keyClick(&visor, Qt::Key_Up);
    QVERIFY(visor.Vista().A_Terreno(300, 200).y > medio.y);
    // Dragging takes the ground along.
    const Lugar_Plano agarrado = visor.Vista().A_Terreno(200, 200);
    QTest::mousePress(&visor, Qt::LeftButton, {}, QPoint(200, 200));
    QTest::mouseMove(&visor, QPoint(250, 230));
    QTest::mouseRelease(&visor, Qt::LeftButton, {}, QPoint(250, 230));
    QVERIFY(Distancia(visor.Vista().A_Terreno(250, 230), agarrado) < 1e-6);
}

void TestFrmPlano::se_mide_entre_dos_puntos()
{
    Plano plano;
    plano.Poner_Punto("A", {0, 0}, {}, "");
    plano.Poner_Punto("B", {30, 40}, {}, "");
    Visor_Plano visor;
    visor.resize(600, 400);
    visor.show();
    visor.Poner(plano);
    QStringList dichos;
    connect(&visor, &Visor_Plano::dicho, this, [&](const QString& texto) { dichos << texto; });
    visor.Poner_Medida(true);
    for (const Lugar_Plano l : {Lugar_Plano{0, 0}, Lugar_Plano{30, 40}}) {
        const Lugar_Plano p = visor.Vista().A_Pantalla(l);
        // Near enough: the pointer takes the point itself.
        QTest::mouseClick(&visor, Qt::LeftButton, {}, QPoint(int(p.x) + 3, int(p.y) - 2));
    }
    QVERIFY2(dichos.last().startsWith("Distancia: 50.000 m"), qPrintable(dichos.last()));
}

void TestFrmPlano::treinta_mil_puntos_son_fluidos()
{
    const Plano plano = Nube(30000);
    QImage imagen(1000, 600, QImage::Format_RGB32);
    for (const double veces : {1.0, 8.0}) {
        Vista_Plano vista;
        vista.Encajar(*plano.Caja(), 1000, 600);
        vista.Acercar(veces, 500, 300);
        QPainter pintor(&imagen);
        QElapsedTimer reloj;
        reloj.start();
        Pintar_Plano(pintor, plano, vista, Aspecto_Pantalla(), 1000, 600);
        // A debug build on a busy machine; the release draws it in some hundredths.
        QVERIFY2(reloj.elapsed() < 6000, qPrintable(QString::number(reloj.elapsed())));
    }
}

void TestFrmPlano::la_hoja_va_a_escala()
{
    Plano plano;
    plano.lineas.push_back({{{0, 0}, {100, 0}}, plano.Capa("L"), 1});
    const Hoja_Plano hoja = Preparar_Hoja(plano, 500);
    QVERIFY(hoja.apaisada);
    // 100 m at 1:500 are 200 mm, at four pixels a point.
    const double PIXELES_POR_MM = 4 * 72 / 25.4;
    QImage imagen(842 * 4, 595 * 4, QImage::Format_RGB32);
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    pintor.scale(4, 4);
    Pintar_Hoja(pintor, plano, hoja);
    pintor.end();
    int x0 = imagen.width(), x1 = 0;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x) {
            const QColor c = imagen.pixelColor(x, y);
            if (c.red() < 200 || c.green() > 60) continue;
            x0 = std::min(x0, x);
            x1 = std::max(x1, x);
        }
    QVERIFY2(std::abs((x1 - x0) - 200 * PIXELES_POR_MM) < 6, qPrintable(QString::number(x1 - x0)));
    QCOMPARE(Preparar_Hoja(plano, 0).escala, 500.0);
}

void TestFrmPlano::lo_que_no_cabe_se_dice()
{
    QVERIFY_ERROR(5, Preparar_Hoja(Plano(), 0));
    try {
        Preparar_Hoja(Nube(50), 100);
        QFAIL("fits");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, 5);
        QVERIFY2(e.descripcion.startsWith("A escala 1:100 el plano no cabe"),
                 qPrintable(e.descripcion));
    }
}

void TestFrmPlano::cada_final_su_forma_data()
{
    QTest::addColumn<QString>("final");
    QTest::addColumn<QByteArray>("firma");
    QTest::newRow("png") << ".png" << QByteArray("\x89PNG");
    QTest::newRow("pdf") << ".PDF" << QByteArray("%PDF-");
    QTest::newRow("svg") << ".svg" << QByteArray("<?xml");
}

void TestFrmPlano::cada_final_su_forma()
{
    QFETCH(QString, final);
    QFETCH(QByteArray, firma);
    const Plano plano = Nube(30);
    const QString fichero = sala->Ruta("plano" + final);
    Guardar_Hoja(plano, Preparar_Hoja(plano, 0), fichero);
    QVERIFY(sala->Leer("plano" + final).startsWith(firma));
    QVERIFY_ERROR(5, Guardar_Hoja(plano, Preparar_Hoja(plano, 0), sala->Ruta("plano.jpg")));
    QVERIFY_ERROR(76, Guardar_Hoja(plano, Preparar_Hoja(plano, 0), sala->Ruta("no/hay" + final)));
}

PRUEBA(TestFrmPlano)
#include "TestFrmPlano.moc"

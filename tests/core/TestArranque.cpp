#include "core/Arranque.h"
#include "core/ModEstTotal.h"
#include "core/Reloj.h"
#include "core/Sucesos.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

namespace {

class Ventanas_De_Guion : public Ventanas_Arranque {
public:
    QStringList pasos;
    QSize pantalla{800, 600};

    Ventanas_De_Guion()
    {
        conexion = QObject::connect(&Sucesos::Unico(), &Sucesos::modelo_cambiado,
                                    [this] { pasos << "panel " + Nombre_Estacion; });
    }
    ~Ventanas_De_Guion() override { QObject::disconnect(conexion); }

    void Crear_Principal() override
    {
        pasos << "crear en " + QFileInfo(Ruta_Aplicacion).fileName();
    }
    void Puntero_De_Espera(bool espera) override { pasos << (espera ? "reloj" : "flecha"); }
    QSize Pantalla() const override { return pantalla; }
    void Poner_Logo(const QString& f) override { pasos << "logo " + QFileInfo(f).fileName(); }
    void Mostrar_Portada() override { pasos << "portada"; }
    void Quitar_Portada() override { pasos << "sin portada"; }
    void Mostrar_Principal() override { pasos << "principal" + Fichero_Log_Inicio; }
    void Pedir_Modelo() override { pasos << "modelo"; }

private:
    QMetaObject::Connection conexion;
};

// Notes the waits among the window's steps.
class Reloj_De_Guion : public Reloj {
public:
    explicit Reloj_De_Guion(QStringList& p) : pasos(p) {}
    QDateTime Ahora() const override { return QDateTime(QDate(2026, 3, 7), QTime(9, 5, 1)); }
    int Espera(int ms) const override
    {
        pasos << "espera " + QString::number(ms);
        return 0;
    }

private:
    QStringList& pasos;
};

} // namespace

class TestArranque : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void el_orden_del_arranque();
    void con_el_modelo_fijo_no_se_pregunta_data();
    void con_el_modelo_fijo_no_se_pregunta();
    void sin_logo_se_sigue();
    void sin_ajustes_se_acaba_antes_de_nada();
    void el_logo_de_cada_pantalla_data();
    void el_logo_de_cada_pantalla();

private:
    std::unique_ptr<Base_De_Prueba> p;
    std::unique_ptr<Interfaz_Guion> interfaz;
    std::unique_ptr<Ventanas_De_Guion> ventanas;
    std::unique_ptr<Reloj_De_Guion> reloj;
};

void TestArranque::init()
{
    p = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    ventanas = std::make_unique<Ventanas_De_Guion>();
    reloj = std::make_unique<Reloj_De_Guion>(ventanas->pasos);
    Poner_Reloj(reloj.get());
    p->Escribir("EstTotal.ini", "KRTNOM=KRT305\r\nKRT=KRT300\r\n");
    p->Escribir("bmp/logo800.bmp", "x");
    p->Escribir("bmp/logo640.bmp", "x");
}

void TestArranque::cleanup()
{
    Poner_Reloj(nullptr);
    reloj.reset();
    ventanas.reset();
    interfaz.reset();
    p.reset();
}

void TestArranque::el_orden_del_arranque()
{
    const QString ruta = std::exchange(Ruta_Aplicacion, QString());
    QVERIFY(Main(ruta + '/', *ventanas));
    QCOMPARE(Ruta_Aplicacion, ruta);
    QCOMPARE(ventanas->pasos, (QStringList{"crear en " + QFileInfo(ruta).fileName(), "panel KRT305",
                                           "reloj", "logo logo800.bmp", "portada", "espera 3000",
                                           "sin portada", "flecha", "principal", "modelo"}));
    QCOMPARE(Fichero_Log_Inicio, ruta + "/070326_0905.LOG");
}

void TestArranque::con_el_modelo_fijo_no_se_pregunta_data()
{
    QTest::addColumn<QByteArray>("linea");
    QTest::addColumn<bool>("pregunta");
    QTest::newRow("fijo") << QByteArray("FIJO=True\r\n") << false;
    QTest::newRow("no fijo") << QByteArray("FIJO=False\r\n") << true;
    QTest::newRow("ausente") << QByteArray() << true;
}

void TestArranque::con_el_modelo_fijo_no_se_pregunta()
{
    QFETCH(QByteArray, linea);
    QFETCH(bool, pregunta);
    p->Escribir("EstTotal.ini", "KRTNOM=KRT305\r\n" + linea);
    QVERIFY(Main(Ruta_Aplicacion, *ventanas));
    QCOMPARE(ventanas->pasos.contains("modelo"), pregunta);
    QVERIFY(ventanas->pasos.contains("panel KRT305"));
}

void TestArranque::sin_logo_se_sigue()
{
    QFile::remove(p->Ruta("bmp/logo800.bmp"));
    QVERIFY(Main(Ruta_Aplicacion, *ventanas));
    QVERIFY(ventanas->pasos.filter("logo").isEmpty());
    QVERIFY(ventanas->pasos.contains("principal"));
}

void TestArranque::sin_ajustes_se_acaba_antes_de_nada()
{
    QFile::remove(p->Ruta("EstTotal.ini"));
    QVERIFY(!Main(Ruta_Aplicacion, *ventanas));
    QCOMPARE(ventanas->pasos.size(), 1);
    QCOMPARE(interfaz->avisos.size(), 1);
}

void TestArranque::el_logo_de_cada_pantalla_data()
{
    QTest::addColumn<QSize>("pantalla");
    QTest::addColumn<QString>("logo");
    QTest::newRow("640x480") << QSize(640, 480) << "logo640.bmp";
    QTest::newRow("800x600") << QSize(800, 600) << "logo800.bmp";
    QTest::newRow("1024x768") << QSize(1024, 768) << "logo800.bmp";
    QTest::newRow("640x400") << QSize(640, 400) << "logo800.bmp";
    QTest::newRow("480x640") << QSize(480, 640) << "logo800.bmp";
}

void TestArranque::el_logo_de_cada_pantalla()
{
    QFETCH(QSize, pantalla);
    QFETCH(QString, logo);
    QCOMPARE(Fichero_Logo(pantalla), p->Ruta("bmp/" + logo));
    ventanas->pantalla = pantalla;
    QVERIFY(Main(Ruta_Aplicacion, *ventanas));
    QVERIFY(ventanas->pasos.contains("logo " + logo));
}

PRUEBA(TestArranque)
#include "TestArranque.moc"

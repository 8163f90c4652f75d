#include "core/ui/Dialogos.h"
#include "core/ui/Piezas.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Hijo.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

class frmPrueba : public Ventana {
public:
    frmPrueba() : Ventana("frmPrueba")
    {
        caja = Piezas::Caja("Txt");
        aceptar = Piezas::Boton("BtnAceptar", "&Aceptar");
        cerrar = Piezas::Boton("BtnCerrar", "&Cerrar");
        auto* const orden = new QVBoxLayout(this);
        orden->addWidget(caja);
        orden->addWidget(aceptar);
        orden->addWidget(cerrar);
        Poner_Botones(aceptar, cerrar);
        connect(aceptar, &QPushButton::clicked, this, [this] { ++aceptadas; });
        connect(cerrar, &QPushButton::clicked, this, &Ventana::Ocultar);
        ++hechas;
    }
    ~frmPrueba() override { ++destruidas; }
    void Con_Posicion(int modo) { Recordar_Posicion("PRUEBA", modo); }

    QLineEdit* caja;
    QPushButton *aceptar, *cerrar;
    int aceptadas = 0, activaciones = 0;
    inline static int hechas = 0, destruidas = 0, descargadas = 0;

protected:
    void Al_Activarse() override { ++activaciones; }
    void Al_Descargar() override { ++descargadas; }
};

} // namespace

class TestVentana : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void es_una_hasta_que_se_descarga();
    void ocultar_guarda_lo_escrito();
    void cerrar_el_marco_descarga();
    void descargar_oculta_tambien_descarga();
    void vive_en_el_area();
    void se_abre_con_su_tamano();
    void mostrar_otra_vez_la_trae();
    void modal_espera_hasta_que_se_oculta();
    void modal_acaba_al_descargarse();
    void la_segunda_espera_no_anida();
    void la_que_esta_en_el_area_puede_ser_modal();
    void intro_y_escape();
    void la_posicion_se_guarda_y_vuelve();
    void una_seccion_que_falta_deja_el_sitio();
    void maximizada_guarda_solo_el_estado();
    void minimizada_vuelve_minimizada();
    void fuera_de_16_bits_avisa_y_se_abre();
    void nunca_queda_fuera_del_area();
    void modo_1_no_toca_el_tamano();

private:
    std::unique_ptr<Interfaz_Guion> interfaz;
    std::unique_ptr<QMdiArea> area;
    std::unique_ptr<Base_De_Prueba> sala;
};

void TestVentana::init()
{
    sala = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    area = std::make_unique<QMdiArea>();
    area->resize(900, 700);
    area->show();
    Ventana::Poner_Area(area.get());
    frmPrueba::hechas = frmPrueba::destruidas = frmPrueba::descargadas = 0;
}

void TestVentana::cleanup()
{
    Limpiar_Ventanas();
    area.reset();
    QCOMPARE(interfaz->Textos(), QStringList());
    interfaz.reset();
    sala.reset();
}

void TestVentana::es_una_hasta_que_se_descarga()
{
    QVERIFY(!Dialogos::Cargado<frmPrueba>());
    auto& una = Dialogos::Unico<frmPrueba>();
    QCOMPARE(&Dialogos::Unico<frmPrueba>(), &una);
    una.Mostrar();
    QVERIFY(Dialogos::Visible<frmPrueba>());
    una.Descargar();
    // Gone at once for the others, destroyed when its handlers have ended.
    QVERIFY(!Dialogos::Cargado<frmPrueba>());
    QCOMPARE(frmPrueba::destruidas, 0);
    auto& otra = Dialogos::Unico<frmPrueba>();
    QVERIFY(&otra != &una);
    QCOMPARE(frmPrueba::hechas, 2);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(frmPrueba::destruidas, 1);
    QCOMPARE(Dialogos::Cargado<frmPrueba>(), &otra);
    QCOMPARE(frmPrueba::descargadas, 1);
    QVERIFY(area->subWindowList().isEmpty());
}

void TestVentana::ocultar_guarda_lo_escrito()
{
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.Mostrar();
    QTest::keyClicks(frm.caja, "hola");
    QTest::mouseClick(frm.cerrar, Qt::LeftButton);
    QVERIFY(!frm.isVisible());
    QVERIFY(!frm.Marco()->isVisible());
    QCOMPARE(frmPrueba::descargadas, 0);
    Dialogos::Unico<frmPrueba>().Mostrar();
    QVERIFY(frm.isVisible());
    QVERIFY(frm.Marco()->isVisible());
    QCOMPARE(frm.caja->text(), QString("hola"));
}

void TestVentana::cerrar_el_marco_descarga()
{
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.Mostrar();
    frm.Marco()->close();
    QVERIFY(!Dialogos::Cargado<frmPrueba>());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(frmPrueba::destruidas, 1);
    QCOMPARE(frmPrueba::descargadas, 1);
}

void TestVentana::descargar_oculta_tambien_descarga()
{
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.Mostrar();
    frm.Ocultar();
    frm.Descargar();
    QCOMPARE(frmPrueba::descargadas, 1);
    frm.Descargar();
    QCOMPARE(frmPrueba::descargadas, 1);
}

void TestVentana::vive_en_el_area()
{
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.setWindowTitle("Título");
    frm.Mostrar();
    QCOMPARE(area->subWindowList().size(), 1);
    QCOMPARE(area->subWindowList().constFirst()->windowTitle(), QString("Título"));
    QCOMPARE(frm.Marco(), area->subWindowList().constFirst());
    QVERIFY(frm.activaciones > 0);
}

void TestVentana::se_abre_con_su_tamano()
{
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.resize(432, 321);
    frm.Mostrar();
    QCOMPARE(frm.size(), QSize(432, 321));
}

void TestVentana::mostrar_otra_vez_la_trae()
{
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.Mostrar();
    frm.Mostrar();
    QCOMPARE(area->subWindowList().size(), 1);
    frm.Marco()->showMinimized();
    frm.Mostrar();
    QVERIFY(!frm.Marco()->isMinimized());
    frm.Marco()->showMaximized();
    frm.Mostrar();
    QVERIFY(frm.Marco()->isMaximized());
}

void TestVentana::modal_espera_hasta_que_se_oculta()
{
    auto& frm = Dialogos::Unico<frmPrueba>();
    Al_Abrirse abierta([&](QWidget& w) {
        QCOMPARE(&w, &frm);
        QTest::mouseClick(frm.cerrar, Qt::LeftButton);
    });
    frm.Mostrar_Modal();
    QCOMPARE(abierta.veces, 1);
    QCOMPARE(Dialogos::Cargado<frmPrueba>(), &frm);
    QVERIFY(!frm.isVisible());
    // And once more: the same dialog.
    Al_Abrirse otra([&](QWidget&) { frm.close(); });
    frm.Mostrar_Modal();
    QCOMPARE(otra.veces, 1);
    QVERIFY(!Dialogos::Cargado<frmPrueba>());
}

void TestVentana::modal_acaba_al_descargarse()
{
    const QPointer<frmPrueba> frm(&Dialogos::Unico<frmPrueba>());
    Al_Abrirse abierta([&](QWidget&) { frm->Descargar(); });
    frm->Mostrar_Modal();
    QCOMPARE(abierta.veces, 1);
    QVERIFY(!frm || frm->Descargada());
}

void TestVentana::la_segunda_espera_no_anida()
{
    auto& frm = Dialogos::Unico<frmPrueba>();
    int dentro = 0;
    Al_Abrirse abierta([&](QWidget&) {
        frm.Mostrar_Modal();
        frm.Mostrar();
        ++dentro;
        QVERIFY(frm.isVisible());
        frm.Ocultar();
    });
    frm.Mostrar_Modal();
    QCOMPARE(dentro, 1);
}

void TestVentana::la_que_esta_en_el_area_puede_ser_modal()
{
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.Mostrar();
    Al_Abrirse abierta([&](QWidget& w) {
        QVERIFY(w.isWindow());
        frm.Ocultar();
    });
    frm.Mostrar_Modal();
    QCOMPARE(abierta.veces, 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(area->subWindowList().isEmpty());
    frm.Mostrar();
    QCOMPARE(area->subWindowList().size(), 1);
    QVERIFY(!frm.isModal());
}

void TestVentana::intro_y_escape()
{
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.Mostrar();
    QTest::keyClick(frm.caja, Qt::Key_Return);
    QCOMPARE(frm.aceptadas, 1);
    QTest::keyClick(frm.caja, Qt::Key_Escape);
    QVERIFY(!frm.isVisible());
    QVERIFY(!frm.Marco()->isVisible());
    QCOMPARE(Dialogos::Cargado<frmPrueba>(), &frm);
}

void TestVentana::la_posicion_se_guarda_y_vuelve()
{
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.Con_Posicion(2);
    frm.Mostrar();
    frm.Marco()->setGeometry(120, 90, 333, 222);
    frm.Descargar();
    const QByteArray escrito = sala->Leer("Posicion.ini");
    QCOMPARE(escrito, QByteArray("[PRUEBA]\r\nstate=0\r\ntop=90\r\nleft=120\r\nwidth=333\r\nheight="
                                 "222\r\n"));
    auto& otra = Dialogos::Unico<frmPrueba>();
    otra.Con_Posicion(2);
    otra.Mostrar();
    QCOMPARE(otra.Marco()->geometry(), QRect(120, 90, 333, 222));
}

void TestVentana::una_seccion_que_falta_deja_el_sitio()
{
    sala->Escribir("Posicion.ini", "[OTRA]\r\nstate=2\r\ntop=5\r\n");
    auto& sin = Dialogos::Unico<frmPrueba>();
    sin.Mostrar();
    const QRect sitio = sin.Marco()->geometry();
    sin.Descargar();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto& con = Dialogos::Unico<frmPrueba>();
    con.Con_Posicion(2);
    con.Mostrar();
    QCOMPARE(con.Marco()->geometry(), sitio);
    QVERIFY(!con.Marco()->isMaximized() && !con.Marco()->isMinimized());
}

void TestVentana::maximizada_guarda_solo_el_estado()
{
    sala->Escribir("Posicion.ini",
                   "[PRUEBA]\r\nstate=0\r\ntop=11\r\nleft=12\r\nwidth=300\r\nheight=200\r\n");
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.Con_Posicion(2);
    frm.Mostrar();
    frm.Marco()->showMaximized();
    frm.Descargar();
    QCOMPARE(sala->Leer("Posicion.ini"),
             QByteArray("[PRUEBA]\r\nstate=2\r\ntop=11\r\nleft=12\r\nwidth=300\r\nheight=200\r\n"));
    auto& otra = Dialogos::Unico<frmPrueba>();
    otra.Con_Posicion(2);
    otra.Mostrar();
    QVERIFY(otra.Marco()->isMaximized());
}

void TestVentana::minimizada_vuelve_minimizada()
{
    sala->Escribir("Posicion.ini", "[PRUEBA]\r\nstate=1\r\n");
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.Con_Posicion(1);
    frm.Mostrar();
    QVERIFY(frm.Marco()->isMinimized());
}

void TestVentana::fuera_de_16_bits_avisa_y_se_abre()
{
    sala->Escribir("Posicion.ini", "[PRUEBA]\r\nstate=0\r\ntop=40000\r\nleft=10\r\n");
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.Con_Posicion(1);
    frm.Mostrar();
    QCOMPARE(interfaz->Textos(), QStringList("Se produjo un error al leer del fichero " +
                                             sala->Ruta("Posicion.ini") + "\r\n(6)Desbordamiento"));
    interfaz->avisos.clear();
    QVERIFY(frm.isVisible());
    QVERIFY(area->rect().intersects(frm.Marco()->geometry()));
}

void TestVentana::nunca_queda_fuera_del_area()
{
    sala->Escribir("Posicion.ini", "[PRUEBA]\r\nstate=0\r\ntop=30000\r\nleft=-20000\r\n");
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.Con_Posicion(1);
    frm.Mostrar();
    QVERIFY(area->viewport()->rect().intersects(frm.Marco()->geometry()));
    QVERIFY(frm.Marco()->y() < area->viewport()->height());
}

void TestVentana::modo_1_no_toca_el_tamano()
{
    sala->Escribir("Posicion.ini",
                   "[PRUEBA]\r\nstate=0\r\ntop=40\r\nleft=50\r\nwidth=700\r\nheight=600\r\n");
    auto& frm = Dialogos::Unico<frmPrueba>();
    frm.Con_Posicion(1);
    frm.Mostrar();
    QCOMPARE(frm.Marco()->pos(), QPoint(50, 40));
    QVERIFY(frm.Marco()->width() != 700);
}

PRUEBA(TestVentana)
#include "TestVentana.moc"

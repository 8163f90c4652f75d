#include "core/Configuracion.h"
#include "core/Sucesos.h"
#include "core/ui/About.h"
#include "core/ui/Dialogos.h"
#include "core/ui/FrmKRT.h"
#include "core/ui/FrmMain.h"
#include "core/ui/frmPantalla.h"
#include "core/ui/Frmutils.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Hijo.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <QToolBar>

class TestFrmMain : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void el_menu_esta_en_orden();
    void la_barra_tiene_seis_botones();
    void lo_que_no_esta_lo_dice();
    void la_entrada_hace_lo_suyo();
    void comunicaciones_y_ayuda_abren_su_pestana();
    void las_puertas_publicas();
    void el_panel_dice_el_modelo();
    void codigos_se_apaga_con_el_nivel();
    void cascada_y_mosaico();
    void convert_arranca_sin_esperar();
    void salir_y_cerrar_terminan();
    void el_fondo_que_falta_se_omite();
    void acerca_de_ensena_las_oficinas();
    void la_portada_se_va_al_pulsar();

private:
    QAction& Accion(const QString& nombre, int indice = -1)
    {
        return Hijo<QAction>(*frm, nombre, indice);
    }
    std::unique_ptr<Base_De_Prueba> sala;
    std::unique_ptr<Interfaz_Guion> interfaz;
    std::unique_ptr<FrmMain> frm;
};

void TestFrmMain::init()
{
    sala = std::make_unique<Base_De_Prueba>();
    sala->Fila("KRT", {{"Nombre", "KRT310"}, {"Clave", "KRT300"}, {"VelPuerto", "1200,9600"}});
    sala->Fila("KRT", {{"Nombre", "NV400"}, {"Clave", "NV400"}, {"VelPuerto", "9600"}});
    Nombre_Estacion = "KRT310";
    Clave_Estacion = "KRT300";
    Puerto = "COM1";
    Velocidad = "9600";
    Bits_Datos = "8";
    Paridad = "None";
    Bits_Parada = "1";
    Vel_Puerto = "1200,9600";
    interfaz = std::make_unique<Interfaz_Guion>();
    frm = std::make_unique<FrmMain>();
    frm->show();
}

void TestFrmMain::cleanup()
{
    Limpiar_Ventanas();
    frm.reset();
    QCOMPARE(interfaz->Textos(), QStringList());
    interfaz.reset();
    sala.reset();
}

void TestFrmMain::el_menu_esta_en_orden()
{
    QStringList arbol;
    const std::function<void(const QList<QAction*>&, int)> bajar =
        [&](const QList<QAction*>& acciones, int nivel) {
            for (const QAction* const a : acciones) {
                const QObject* const quien = a->menu() ? static_cast<const QObject*>(a->menu()) : a;
                QString indice;
                if (quien->property("Index").isValid())
                    indice = "(" + quien->property("Index").toString() + ")";
                arbol << QString(nivel, u'.') + quien->objectName() + indice + "=" + a->text();
                if (a->menu()) bajar(a->menu()->actions(), nivel + 1);
            }
        };
    bajar(frm->menuBar()->actions(), 0);
    QCOMPARE(arbol, QStringList({
                        "Estacion=Estación",
                        ".Transfer=Transferencias",
                        ".Sesiones=Sesiones",
                        ".Formatos=Formatos",
                        ".config=Configuración",
                        "..Comuni=Comunicaciones",
                        "..Ayudas=Ayuda",
                        ".Mnu_Conersiones=Conversiones",
                        "..Mnu_ConvDXF=Convertir a DXF",
                        "..Mnu_ConvEst=Convertir a Std. Survey",
                        "..Mnu_ConvLandxml=Convertir a LandXML",
                        "..Mnu_ConvRob=Monitorizar Robotizada",
                        "Mnuven=Ventana",
                        ".Mnuven1(1)=&Cascada",
                        ".Mnuven1(2)=&Mosaico",
                        "mnu_Convert=&Convert",
                        ".mnu_ConvertConvertir= Convertir a DXF",
                        "Ayuda=Ayuda",
                        ".Acerca=Acerca de ...",
                    }));
}

void TestFrmMain::la_barra_tiene_seis_botones()
{
    QStringList botones;
    const auto acciones = Hijo<QToolBar>(*frm, "Toolbar1").actions();
    for (const QAction* const a : acciones)
        botones << a->property("Index").toString() + "=" + a->text() + "|" + a->toolTip();
    QCOMPARE(botones, QStringList({"1=Transferencias)|Carga/Desarga de Datos a/desde la máquina",
                                   "2=Configuración|Configuración", "3=Descargas|Descargas",
                                   "4=Formatos|Formatos", "5=Códigos|Códigos", "6=Salir|Salir"}));
}

void TestFrmMain::lo_que_no_esta_lo_dice()
{
    Accion("Mnu_ConvDXF").trigger();
    QCOMPARE(interfaz->avisos.size(), 1);
    QCOMPARE(interfaz->avisos[0].icono, Icono::Informacion);
    QCOMPARE(interfaz->avisos[0].texto,
             QString("Convertir a DXF todavía no está disponible en esta versión"));
    interfaz->avisos.clear();
}

void TestFrmMain::la_entrada_hace_lo_suyo()
{
    int veces = 0;
    frm->Al_Elegir("Transfer", [&] { ++veces; });
    frm->Al_Elegir("Toolbar1(1)", [&] { veces += 10; });
    Accion("Transfer").trigger();
    Accion("Toolbar1", 1).trigger();
    QCOMPARE(veces, 11);
}

void TestFrmMain::comunicaciones_y_ayuda_abren_su_pestana()
{
    Accion("Comuni").trigger();
    auto* const utils = Dialogos::Cargado<Frmutils>();
    QVERIFY(utils && utils->isVisible());
    auto& pestanas = Hijo<QTabWidget>(*utils, "SSTab1");
    QCOMPARE(pestanas.currentIndex(), 0);
    Accion("Ayudas").trigger();
    QCOMPARE(pestanas.currentIndex(), 1);
    QCOMPARE(Dialogos::Cargado<Frmutils>(), utils);
    Accion("Toolbar1", 2).trigger();
    QCOMPARE(pestanas.currentIndex(), 0);
    QCOMPARE(Hijo<QMdiArea>(*frm, "Area").subWindowList().size(), 1);
}

void TestFrmMain::las_puertas_publicas()
{
    frm->Mostrar_FrmKRT();
    QVERIFY(Dialogos::Visible<FrmKRT>());
    QVERIFY(!Dialogos::Cargado<FrmKRT>()->isModal());
    frm->Mostrar_Frmutils_Ayuda();
    auto& pestanas = Hijo<QTabWidget>(*Dialogos::Cargado<Frmutils>(), "SSTab1");
    QCOMPARE(pestanas.currentIndex(), 1);
    Dialogos::Cargado<Frmutils>()->Ocultar();
    frm->Mostrar_Frmutils();
    QVERIFY(Dialogos::Visible<Frmutils>());
    QCOMPARE(pestanas.currentIndex(), 1);
}

void TestFrmMain::el_panel_dice_el_modelo()
{
    auto& panel = Hijo<QLabel>(*frm, "Panel1");
    QCOMPARE(panel.text(), QString("Modelo Estación : KRT310  "));
    Nombre_Estacion = "Otro";
    QCOMPARE(panel.text(), QString("Modelo Estación : KRT310  "));
    Q_EMIT Sucesos::Unico().modelo_cambiado();
    QCOMPARE(panel.text(), QString("Modelo Estación : Otro  "));
}

void TestFrmMain::codigos_se_apaga_con_el_nivel()
{
    QAction& codigos = Accion("Toolbar1", 5);
    QVERIFY(codigos.isEnabled());
    Cargar_Estacion("NV400");
    QVERIFY(!codigos.isEnabled());
    // Whatever else was passed last switches it on again, a model that isn't there too.
    Cargar_Estacion("Nivel NV400");
    QVERIFY(codigos.isEnabled());
    Cargar_Estacion("NV400");
    Cargar_Estacion("KRT310");
    QVERIFY(codigos.isEnabled());
}

void TestFrmMain::cascada_y_mosaico()
{
    Accion("Comuni").trigger();
    frm->Mostrar_FrmKRT();
    auto& area = Hijo<QMdiArea>(*frm, "Area");
    Accion("Mnuven1", 2).trigger();
    const QRect hueco = area.viewport()->rect();
    auto ventanas = area.subWindowList(QMdiArea::CreationOrder);
    QCOMPARE(ventanas.size(), 2);
    QCOMPARE(ventanas[0]->geometry(), QRect(0, 0, hueco.width() / 2, hueco.height()));
    QCOMPARE(ventanas[1]->geometry(),
             QRect(hueco.width() / 2, 0, hueco.width() / 2, hueco.height()));
    Accion("Mnuven1", 1).trigger();
    QVERIFY(ventanas[0]->pos() != ventanas[1]->pos());
    QVERIFY(ventanas[0]->geometry().intersects(ventanas[1]->geometry()));
}

void TestFrmMain::convert_arranca_sin_esperar()
{
    Accion("mnu_ConvertConvertir").trigger();
    QCOMPARE(interfaz->arrancados, QStringList(sala->Ruta("Convert.exe") + "|"));
}

void TestFrmMain::salir_y_cerrar_terminan()
{
    Accion("Toolbar1", 6).trigger();
    QCOMPARE(interfaz->terminado, QList<int>{0});
    frm->close();
    QCOMPARE(interfaz->terminado, (QList<int>{0, 0}));
    // Nothing is written at the end of a run.
    QVERIFY(!QFile::exists(sala->Ruta("Posicion.ini")));
    QVERIFY(!QFile::exists(sala->Ruta("EstTotal.ini")));
}

void TestFrmMain::el_fondo_que_falta_se_omite()
{
    frm->Poner_Fondo(sala->Ruta("bmp/logo800.bmp"));
    const QImage sin = frm->grab().toImage();
    QImage logo(60, 40, QImage::Format_RGB32);
    logo.fill(Qt::red);
    QVERIFY(logo.save(sala->Ruta("bmp/logo800.bmp")));
    frm->Poner_Fondo(sala->Ruta("bmp/logo800.bmp"));
    const QImage con = frm->grab().toImage();
    const QPoint centro = Hijo<QMdiArea>(*frm, "Area").geometry().center();
    QVERIFY(sin.pixelColor(centro) != QColor(Qt::red));
    QCOMPARE(con.pixelColor(centro), QColor(Qt::red));
}

void TestFrmMain::acerca_de_ensena_las_oficinas()
{
    QCoreApplication::setApplicationVersion("4.5.6");
    QSet<QString> direcciones;
    Al_Abrirse caja([&](QWidget& w) {
        QCOMPARE(Hijo<QLabel>(w, "version").text(), QString("Versión 4.5.6"));
        for (const char* b : {"central", "centro", "norte", "levante", "andalucia"}) {
            QTest::mouseClick(&Hijo<QPushButton>(w, b), Qt::LeftButton);
            direcciones << Hijo<QLabel>(w, "lblDireccion").text() +
                               Hijo<QLabel>(w, "lblPoblacion").text() +
                               Hijo<QLabel>(w, "lblTelefono").text() +
                               Hijo<QLabel>(w, "lblFax").text();
        }
        QTest::keyClick(&w, Qt::Key_Escape);
    });
    Accion("Acerca").trigger();
    QCOMPARE(caja.veces, 1);
    QCOMPARE(direcciones.size(), 5);
    QVERIFY(!Dialogos::Cargado<About>());
}

void TestFrmMain::la_portada_se_va_al_pulsar()
{
    QCoreApplication::setApplicationVersion("4.5.6");
    auto& una = Dialogos::Unico<frmPantalla>();
    una.show();
    QCOMPARE(Hijo<QLabel>(una, "lblVersion").text(), QString("Versión 4.5.6"));
    QCOMPARE(Hijo<QLabel>(una, "lblAdvertencia").text(),
             QString("Advertencia: todos los derechos reservados"));
    QCOMPARE(Hijo<QLabel>(una, "lblPlataforma").text(), QString("Windows 32 bits"));
    QTest::mouseClick(&Hijo<QFrame>(una, "Frame1"), Qt::LeftButton);
    QVERIFY(!Dialogos::Cargado<frmPantalla>());
    auto& otra = Dialogos::Unico<frmPantalla>();
    otra.show();
    QTest::keyClick(&otra, Qt::Key_Space);
    QVERIFY(!Dialogos::Cargado<frmPantalla>());
}

PRUEBA(TestFrmMain)
#include "TestFrmMain.moc"

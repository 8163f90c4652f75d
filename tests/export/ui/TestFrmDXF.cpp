#include "core/ui/Dialogos.h"
#include "export/Peticiones_Exportar.h"
#include "export/ui/Dialogos_Exportar.h"
#include "export/ui/ExportDXF.h"
#include "export/ui/FrmDXF.h"
#include "formats/ModFormatos.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Ventanas.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

static void Ordenar(FrmDXF& frm)
{
    for (auto* const caja : frm.findChildren<QGridLayout*>())
        caja->activate();
    QCoreApplication::processEvents();
}

class TestFrmDXF : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void los_textos_son_los_suyos();
    void cada_boton_su_modo_data();
    void cada_boton_su_modo();
    void los_ajustes_se_guardan_al_cerrar();
    void un_ajuste_imposible_no_dibuja();
    void la_muestra_sigue_a_los_ajustes();
    void ver_al_terminar_arranca_el_visor();
    void una_lista_pasa_a_este_dialogo();

private:
    void Con_Dialogo(const std::function<void(FrmDXF&)>& hacer);
    std::unique_ptr<Sala_Ventanas> sala;
};

void TestFrmDXF::init()
{
    sala = std::make_unique<Sala_Ventanas>();
    Poner_Instrumentos(*sala);
    Clave_Estacion = "KRT300";
    Poner_Sesion(*sala, 1, "KRT300", 1,
                 {{"P1", " y+0001234567"}, {"P1", " x+0007654321"}, {"P1", " z-0000000500"}});
    Poner_Campos_Exportar({"Punto", "Coordenada X", "Coordenada Y", "Coordenada Z"});
    Peticiones_De_Exportar() = {};
    Conectar_Dialogos_Exportar();
}

void TestFrmDXF::cleanup()
{
    Peticiones_De_Exportar() = {};
    sala.reset();
}

void TestFrmDXF::Con_Dialogo(const std::function<void(FrmDXF&)>& hacer)
{
    Al_Abrirse abierta(
        [&](QWidget& w) {
            auto& frm = dynamic_cast<FrmDXF&>(w);
            hacer(frm);
            Hijo<QPushButton>(frm, "BtSalir").click();
        },
        "FrmDXF");
    Peticiones_De_Exportar().Abrir_DXF({1, "KRT300", 1, "NXYZ", sala->Ruta("ficheros/a.dxf")});
    QCOMPARE(abierta.veces, 1);
    QVERIFY(!Dialogos::Cargado<FrmDXF>());
}

void TestFrmDXF::los_textos_son_los_suyos()
{
    Con_Dialogo([](FrmDXF& frm) {
        QVERIFY(frm.isModal());
        QCOMPARE(frm.windowTitle(), QString("Conversión a DXF"));
        const std::pair<const char*, const char*> botones[] = {{"Bt2D", "Transformar 2D"},
                                                               {"Bt3D", "Transformar 3D"},
                                                               {"Bt2D3D", "Transformar 2D 3D"},
                                                               {"BtSalir", "Salir"}};
        for (const auto& [nombre, texto] : botones)
            QCOMPARE(Hijo<QPushButton>(frm, nombre).text(), QString(texto));
        const char* const opciones[] = {"Color del Punto 2D", "Color del Punto 3D",
                                        "Color del Código", "Color del Número", "Color de la Cota"};
        for (int i = 0; i < 5; ++i)
            QCOMPARE(Hijo<QRadioButton>(frm, QStringLiteral("Option%1").arg(i + 1)).text(),
                     QString(opciones[i]));
        QCOMPARE(Hijo<QComboBox>(frm, "CbFormato").currentText(), QString("1"));
        QCOMPARE(Hijo<QLineEdit>(frm, "TxAltura").text(), QString("2"));
        QCOMPARE(Hijo<QLineEdit>(frm, "TxDecimales").text(), QString("3"));
    });
}

void TestFrmDXF::cada_boton_su_modo_data()
{
    QTest::addColumn<QString>("boton");
    QTest::addColumn<QList<int>>("cuentas"); // PUNTOS, PUNTOS_2D, PUNTOS_3D, elevations
    QTest::newRow("2d") << "Bt2D" << QList<int>{1, 0, 0, 0};
    QTest::newRow("3d") << "Bt3D" << QList<int>{1, 0, 0, 1};
    QTest::newRow("ambos") << "Bt2D3D" << QList<int>{0, 1, 1, 1};
}

void TestFrmDXF::cada_boton_su_modo()
{
    QFETCH(QString, boton);
    Con_Dialogo([&](FrmDXF& frm) { Hijo<QPushButton>(frm, boton).click(); });
    QCOMPARE(sala->Tomar_Avisos(), QStringList{"Sesión Exportada"});
    const QByteArray dibujo = sala->Leer("ficheros/a.dxf");
    QTEST((QList<int>{int(dibujo.count("PUNTOS\r")), int(dibujo.count("PUNTOS_2D\r")),
                      int(dibujo.count("PUNTOS_3D\r")), int(dibujo.count(" 30\r\n-0.500"))}),
          "cuentas");
    QVERIFY(dibujo.contains(" 10\r\n1234.567\r\n 20\r\n7654.321\r\n"));
}

void TestFrmDXF::los_ajustes_se_guardan_al_cerrar()
{
    Con_Dialogo([](FrmDXF& frm) {
        Hijo<QComboBox>(frm, "CbFormato").setCurrentIndex(3);
        Hijo<QLineEdit>(frm, "TxAltura").setText("0,5");
        Hijo<QLineEdit>(frm, "TxInclinacion").setText("15");
        Hijo<QLineEdit>(frm, "TxDecimales").setText("1");
        Hijo<QRadioButton>(frm, "Option3").click();
        Hijo<QSpinBox>(frm, "TxColor").setValue(30);
        Hijo<QRadioButton>(frm, "Option5").click();
        QCOMPARE(Hijo<QSpinBox>(frm, "TxColor").value(), 2);
        Hijo<QPushButton>(frm, "Color", 6).click();
        QCOMPARE(Hijo<QSpinBox>(frm, "TxColor").value(), 6);
    });
    QCOMPARE(sala->Leer("DXF.Ini"),
             QByteArray("7\r\n3\r\n30\r\n1\r\n6\r\n4\r\n\r\n0,5\r\n15\r\n1\r\n"));
    Con_Dialogo([](FrmDXF& frm) {
        QCOMPARE(Hijo<QComboBox>(frm, "CbFormato").currentText(), QString("4"));
        QCOMPARE(Hijo<QLineEdit>(frm, "TxAltura").text(), QString("0,5"));
        Hijo<QRadioButton>(frm, "Option3").click();
        QCOMPARE(Hijo<QSpinBox>(frm, "TxColor").value(), 30);
    });
}

void TestFrmDXF::un_ajuste_imposible_no_dibuja()
{
    Con_Dialogo([](FrmDXF& frm) {
        Hijo<QLineEdit>(frm, "TxAltura").setText("0");
        Hijo<QPushButton>(frm, "Bt2D").click();
    });
    QCOMPARE(sala->Tomar_Avisos(),
             QStringList{"La altura del texto debe ser un número mayor que cero"});
    QVERIFY(sala->Leer("ficheros/a.dxf").isEmpty());
    // What can't be is not kept either.
    QVERIFY(sala->Leer("DXF.Ini").contains("\r\n2\r\n0\r\n3\r\n"));
}

void TestFrmDXF::la_muestra_sigue_a_los_ajustes()
{
    Con_Dialogo([](FrmDXF& frm) {
        auto& numero = Hijo<QLabel>(frm, "LblNPunto");
        auto& cota = Hijo<QLabel>(frm, "LblCota");
        auto& codigo = Hijo<QLabel>(frm, "LblCodigo");
        auto& punto = Hijo<QLabel>(frm, "LblPto");
        QCOMPARE(cota.text(), QString("125.438"));
        for (int formato = 0; formato < 6; ++formato) {
            Hijo<QComboBox>(frm, "CbFormato").setCurrentIndex(formato);
            Ordenar(frm);
            const Alturas_Etiquetas a = Disposicion_DXF(formato + 1);
            QCOMPARE(numero.y() < cota.y(), a.numero > a.cota);
            QCOMPARE(codigo.y() < cota.y(), a.codigo > a.cota);
            QCOMPARE(codigo.y() < numero.y(), a.codigo > a.numero);
            QVERIFY(punto.x() < numero.x());
        }
        Hijo<QLineEdit>(frm, "TxDecimales").setText("1");
        QCOMPARE(cota.text(), QString("125.4"));
        Hijo<QRadioButton>(frm, "Option5").click();
        Hijo<QSpinBox>(frm, "TxColor").setValue(1);
        QCOMPARE(cota.palette().color(QPalette::WindowText), QColor(255, 0, 0));
        QVERIFY(!numero.font().italic());
        Hijo<QLineEdit>(frm, "TxInclinacion").setText("20");
        QVERIFY(numero.font().italic());
    });
}

void TestFrmDXF::ver_al_terminar_arranca_el_visor()
{
    Con_Dialogo([](FrmDXF& frm) {
        Hijo<QCheckBox>(frm, "ChkVer").setChecked(true);
        Hijo<QPushButton>(frm, "Bt3D").click();
    });
    sala->Tomar_Avisos();
    QCOMPARE(sala->interfaz.arrancados,
             QStringList{sala->Ruta("Convert.exe") + '|' + sala->Ruta("ficheros/a.dxf")});
}

void TestFrmDXF::una_lista_pasa_a_este_dialogo()
{
    sala->Escribir("ficheros/l.txt",
                   "Punto,Coordenada X,Coordenada Y,Coordenada Z\r\nP1,1,2,3\r\n");
    sala->interfaz.ficheros = {Fichero_Elegido{sala->Ruta("ficheros/l.txt")},
                               Fichero_Elegido{sala->Ruta("ficheros/b.dxf")}};
    auto& lista = Dialogos::Unico<ExportDXF>();
    lista.Mostrar();
    QCOMPARE(lista.windowTitle(), QString("Exportación de Ficheros de DXF"));
    Hijo<QPushButton>(lista, "BtnElegir").click();
    Hijo<QPushButton>(lista, "BtnSalida").click();
    QCOMPARE(Hijo<QLineEdit>(lista, "TxEntrada").text(), sala->Ruta("ficheros/l.txt"));
    QCOMPARE(Hijo<QLineEdit>(lista, "TxSalida").text(), sala->Ruta("ficheros/b.dxf"));
    Al_Abrirse abierta(
        [&](QWidget& w) {
            Hijo<QPushButton>(w, "Bt2D").click();
            w.close();
        },
        "FrmDXF");
    Hijo<QPushButton>(lista, "BtnExportar").click();
    QCOMPARE(abierta.veces, 1);
    QCOMPARE(sala->Tomar_Avisos(), QStringList{"Sesión Exportada"});
    QCOMPARE(sala->Leer("ficheros/b.dxf").count("POINT"), 1);
    Hijo<QPushButton>(lista, "BtnSalir").click();
    QVERIFY(!Dialogos::Cargado<ExportDXF>());
}

PRUEBA(TestFrmDXF)
#include "TestFrmDXF.moc"

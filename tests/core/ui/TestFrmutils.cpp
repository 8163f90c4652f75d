#include "core/Copias.h"
#include "core/Sesiones.h"
#include "core/Sucesos.h"
#include "core/ui/Dialogos.h"
#include "core/ui/FrmCopias.h"
#include "core/ui/FrmKRT.h"
#include "core/ui/Frmutils.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Hijo.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>

class TestFrmutils : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void los_textos_son_los_suyos();
    void ensena_los_ajustes();
    void la_lista_de_puertos_tiene_su_repeticion();
    void los_modelos_van_por_nombre_con_sus_claves();
    void una_velocidad_ajena_toma_la_primera();
    void elegir_otro_modelo_cambia_las_velocidades();
    void aceptar_guarda_y_descarga();
    void un_modelo_desconocido_corta_la_carga();
    void un_valor_fuera_de_su_lista_avisa();
    void cerrar_oculta_y_guarda_lo_tocado();
    void la_ayuda_es_la_suya();
    void guarda_su_sitio_al_descargarse();
    void dice_donde_esta_la_base_y_vuelve_a_una_copia();
    void krt_va_en_el_orden_de_la_tabla();
    void krt_ensena_la_foto();
    void krt_sin_elegir_pita_y_sigue();
    void krt_acepta_para_esta_vez();

private:
    template <typename T> T& De(const char* nombre)
    {
        return Hijo<T>(Dialogos::Unico<Frmutils>(), nombre);
    }
    std::unique_ptr<Base_De_Prueba> sala;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

void TestFrmutils::init()
{
    sala = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    sala->Fila("KRT", {{"Nombre", "Zeta"},
                       {"Clave", "KRT300"},
                       {"VelPuerto", "1200,9600"},
                       {"Foto", "zeta.png"}});
    sala->Fila("KRT", {{"Nombre", "Alfa"},
                       {"Clave", "KRT800"},
                       {"VelPuerto", "2400,4800"},
                       {"Foto", "falta.png"}});
    sala->Fila("KRT",
               {{"Nombre", "NV400"}, {"Clave", "NV400"}, {"VelPuerto", "300"}, {"Foto", ""}});
    sala->Escribir("EstTotal.ini", "[COMUNICACIONES]\r\nPORT=COM2\r\nHARD=x\r\n");
    Nombre_Estacion = "Zeta";
    Clave_Estacion = "KRT300";
    Vel_Puerto = "1200,9600";
    Puerto = "COM2";
    Velocidad = "9600";
    Bits_Datos = "7";
    Paridad = "Even";
    Bits_Parada = "2";
    Modelo_Fijo = true;
    Ayuda_Visible = true;
    Offset_Cargas = true;
    Mostrar_Cabeceras = true;
}

void TestFrmutils::cleanup()
{
    Limpiar_Ventanas();
    QCOMPARE(interfaz->Textos(), QStringList());
    interfaz.reset();
    sala.reset();
}

void TestFrmutils::los_textos_son_los_suyos()
{
    auto& frm = Dialogos::Unico<Frmutils>();
    QCOMPARE(frm.windowTitle(), QString("Configuración"));
    QCOMPARE(De<QTabWidget>("SSTab1").tabText(0), QString(" Comunicaciones"));
    QCOMPARE(De<QTabWidget>("SSTab1").tabText(1), QString(".Otras Opciones         "));
    QCOMPARE(De<QGroupBox>("fraConnection").title(), QString("Preferencias de la conexión"));
    QStringList rotulos;
    const auto etiquetas = De<QGroupBox>("fraConnection").findChildren<QLabel*>();
    for (const QLabel* const r : etiquetas)
        rotulos << r->text();
    for (const char* r :
         {"Puerto:", "Velocidad:", "Bits de datos:", "Paridad:", "Bits de parada:", "Modelo:"})
        QVERIFY2(rotulos.contains(r), r);
    const char* const casillas[][2] = {
        {"Check1", ""},
        {"Check2", " Mostrar ayuda en Cargas y Descargas"},
        {"Check3", " Mostrar Recordatorio de configuración del Puerto"},
        {"Check4", "Mostrar Diálogo de Entrada de Desplazamientos en Cargas"},
        {"Check5", "Mostrar Diálogo de Entrada de Desplazamientos en Exportaciones"},
        {"Check6", "Incluir cabeceras y resúmenes de los trabajos del nivel digital NV400"}};
    for (const auto& c : casillas)
        QCOMPARE(De<QCheckBox>(c[0]).text(), QString(c[1]));
    QCOMPARE(De<QPushButton>("Command2").text(), QString("&Aceptar"));
    QCOMPARE(De<QPushButton>("Command1").text(), QString("&Cerrar"));
}

void TestFrmutils::ensena_los_ajustes()
{
    QCOMPARE(De<QComboBox>("Combo5").currentText(), QString("COM2"));
    QCOMPARE(De<QComboBox>("Combo1").currentText(), QString("9600"));
    QCOMPARE(De<QComboBox>("Combo2").currentText(), QString("7"));
    QCOMPARE(De<QComboBox>("Combo3").currentText(), QString("Even"));
    QCOMPARE(De<QComboBox>("Combo4").currentText(), QString("2"));
    QCOMPARE(De<QComboBox>("Combo6").currentText(), QString("Zeta"));
    QString marcadas;
    for (int i = 1; i <= 6; ++i)
        marcadas += De<QCheckBox>(qPrintable(QString("Check%1").arg(i))).isChecked() ? '1' : '0';
    QCOMPARE(marcadas, QString("110101"));
}

void TestFrmutils::la_lista_de_puertos_tiene_su_repeticion()
{
    auto& combo = De<QComboBox>("Combo5");
    QStringList lista;
    for (int i = 0; i < combo.count(); ++i)
        lista << combo.itemText(i);
    QCOMPARE(lista.join(' '), QString("COM1 COM2 COM3 COM4 COM5 COM6 COM7 COM8 COM9 COM10 COM10 "
                                      "COM12 COM11 COM14 COM15 COM16"));
    for (const int lugar : {9, 10}) {
        De<QComboBox>("Combo5").setCurrentIndex(lugar);
        QTest::mouseClick(&De<QPushButton>("Command2"), Qt::LeftButton);
        QVERIFY(sala->Leer("EstTotal.ini").contains("PORT=COM10\r\n"));
        QCOMPARE(Puerto, QString("COM10"));
    }
}

void TestFrmutils::los_modelos_van_por_nombre_con_sus_claves()
{
    auto& combo = De<QComboBox>("Combo6");
    QStringList lista;
    for (int i = 0; i < combo.count(); ++i)
        lista << combo.itemText(i);
    QCOMPARE(lista, QStringList({"Alfa", "NV400", "Zeta"}));
    QCOMPARE(combo.property("Tag").toString(), QString("KRT800\6NV400\6KRT300"));
}

void TestFrmutils::una_velocidad_ajena_toma_la_primera()
{
    Velocidad = "57600";
    QCOMPARE(De<QComboBox>("Combo1").currentText(), QString("1200"));
    Dialogos::Unico<Frmutils>().Cargar_Combo1("110,57600,300");
    QCOMPARE(De<QComboBox>("Combo1").count(), 3);
    QCOMPARE(De<QComboBox>("Combo1").currentText(), QString("57600"));
}

void TestFrmutils::elegir_otro_modelo_cambia_las_velocidades()
{
    De<QComboBox>("Combo6").setCurrentText("Alfa");
    QCOMPARE(De<QComboBox>("Combo1").itemText(0), QString("2400"));
    QCOMPARE(De<QComboBox>("Combo1").currentText(), QString("2400"));
    QCOMPARE(De<QComboBox>("Combo2").currentText(), QString("7"));
    QCOMPARE(De<QComboBox>("Combo3").currentText(), QString("Even"));
    QCOMPARE(De<QComboBox>("Combo4").currentText(), QString("2"));
    // Nothing is taken before the dialog is accepted.
    QCOMPARE(Clave_Estacion, QString("KRT300"));
}

void TestFrmutils::aceptar_guarda_y_descarga()
{
    QSignalSpy modelo(&Sucesos::Unico(), &Sucesos::modelo_cambiado);
    QSignalSpy guardados(&Sucesos::Unico(), &Sucesos::ajustes_guardados);
    De<QComboBox>("Combo6").setCurrentText("Alfa");
    De<QComboBox>("Combo3").setCurrentText("None");
    De<QTabWidget>("SSTab1").setCurrentIndex(1);
    De<QCheckBox>("Check1").setChecked(false);
    QTest::mouseClick(&De<QCheckBox>("Check3"), Qt::LeftButton, {},
                      QPoint(8, De<QCheckBox>("Check3").height() / 2));
    QVERIFY(De<QCheckBox>("Check3").isChecked());
    QTest::mouseClick(&De<QPushButton>("Command2"), Qt::LeftButton);
    QVERIFY(!Dialogos::Cargado<Frmutils>());
    QCOMPARE(Nombre_Estacion, QString("Alfa"));
    QCOMPARE(Clave_Estacion, QString("KRT800"));
    QCOMPARE(Velocidad, QString("2400"));
    QCOMPARE(Paridad, QString("None"));
    QVERIFY(!Modelo_Fijo && Ayuda_Recuerde && Ayuda_Visible);
    QCOMPARE(modelo.size(), 1);
    QCOMPARE(guardados.size(), 1);
    QCOMPARE(sala->Leer("EstTotal.ini"),
             QByteArray("[COMUNICACIONES]\r\nPORT=COM2\r\nVELOCIDAD=2400\r\nBITS=7\r\nPARIDAD=None"
                        "\r\nSTOP=2\r\n[ESTACION]\r\nKRTNOM=Alfa\r\nKRT=KRT800\r\n[INI]\r\nFIJO="
                        "False\r\n[AYUDA]\r\nVisible=SI\r\nRecuerde=SI\r\n[OFFSET]\r\nCargas=SI\r\n"
                        "Exportar=NO\r\n[CABECERAS]\r\nMostrar=SI\r\n"));
}

void TestFrmutils::un_modelo_desconocido_corta_la_carga()
{
    Nombre_Estacion = "Desaparecido";
    auto& frm = Dialogos::Unico<Frmutils>();
    QCOMPARE(interfaz->avisos.size(), 1);
    QCOMPARE(interfaz->avisos[0].texto,
             QString("Se ha encontrado en el fichero ini una máquina no definida"));
    QCOMPARE(interfaz->avisos[0].icono, Icono::Critico);
    interfaz->avisos.clear();
    QCOMPARE(De<QComboBox>("Combo6").currentText(), QString("Alfa"));
    QVERIFY(De<QCheckBox>("Check1").isChecked());
    for (const char* c : {"Check2", "Check3", "Check4", "Check5", "Check6"})
        QVERIFY(!De<QCheckBox>(c).isChecked());
    QTest::mouseClick(&Hijo<QPushButton>(frm, "Command2"), Qt::LeftButton);
    QVERIFY(sala->Leer("EstTotal.ini").contains("Visible=NO\r\n"));
    QVERIFY(!Ayuda_Visible && !Offset_Cargas && !Mostrar_Cabeceras);
}

void TestFrmutils::un_valor_fuera_de_su_lista_avisa()
{
    Paridad = "Mark";
    auto& frm = Dialogos::Unico<Frmutils>();
    QCOMPARE(interfaz->Textos(),
             QStringList("Se produjo un error al leer el fichero de inicialización\rProbablemente "
                         "el fichero tenga un formato incorrecto o haya sido manipulado"));
    interfaz->avisos.clear();
    frm.Mostrar();
    QVERIFY(frm.isVisible());
    // As far as it came.
    QCOMPARE(De<QComboBox>("Combo2").currentText(), QString("7"));
    QCOMPARE(De<QComboBox>("Combo4").currentText(), QString());
}

void TestFrmutils::cerrar_oculta_y_guarda_lo_tocado()
{
    auto& frm = Dialogos::Unico<Frmutils>();
    frm.Mostrar();
    De<QComboBox>("Combo5").setCurrentText("COM7");
    QTest::mouseClick(&De<QPushButton>("Command1"), Qt::LeftButton);
    QVERIFY(!frm.isVisible());
    QCOMPARE(Puerto, QString("COM2"));
    QVERIFY(!QFile::exists(sala->Ruta("Posicion.ini")));
    QCOMPARE(&Dialogos::Unico<Frmutils>(), &frm);
    QCOMPARE(De<QComboBox>("Combo5").currentText(), QString("COM7"));
}

void TestFrmutils::la_ayuda_es_la_suya()
{
    QTest::mouseClick(&De<QPushButton>("btnAyuda"), Qt::LeftButton);
    QCOMPARE(interfaz->arrancados,
             QStringList(sala->Ruta("ayudaweb.exe") + "|" + sala->Ruta("Ayuda,config.htm")));
}

void TestFrmutils::guarda_su_sitio_al_descargarse()
{
    auto& frm = Dialogos::Unico<Frmutils>();
    frm.Mostrar();
    frm.move(33, 44);
    frm.Descargar();
    QCOMPARE(sala->Leer("Posicion.ini"),
             QByteArray("[CONFIGURACION]\r\nstate=0\r\ntop=44\r\nleft=33\r\n"));
}

void TestFrmutils::dice_donde_esta_la_base_y_vuelve_a_una_copia()
{
    QCOMPARE(De<QLabel>("LblBase").text(), Lugar_De_La_Base());
    Nueva_Sesion("Obra", 0);
    QVERIFY(Compactar_BD());
    Eliminar_Sesion(1);
    QFile::remove(sala->Ruta("MDB/copias/sobra"));
    sala->Escribir("MDB/copias/EstTotal_2001-01-01.mdb", "rota");
    interfaz->respuestas = {false, true};
    const Al_Abrirse abierta(
        [&](QWidget& w) {
            auto& lista = Hijo<QListWidget>(w, "LstCopias");
            auto& recuperar = Hijo<QPushButton>(w, "BtnRecuperar");
            QCOMPARE(lista.count(), 3);
            for (int i = 0; i < lista.count(); ++i) {
                lista.setCurrentRow(i);
                QCOMPARE(recuperar.isEnabled(), !lista.item(i)->text().contains("dañada"));
            }
            for (int i = 0; i < lista.count() && !recuperar.isEnabled(); ++i)
                lista.setCurrentRow(i);
            recuperar.click(); // the question is answered with no
            QCOMPARE(Ultima_Sesion(), QString());
            for (int i = 0; i < lista.count() && !recuperar.isEnabled(); ++i)
                lista.setCurrentRow(i);
            recuperar.click();
        },
        "FrmCopias");
    De<QPushButton>("BtnRecuperar").click();
    QCOMPARE(abierta.veces, 1);
    QCOMPARE(Ultima_Sesion(), QStringLiteral("1"));
    QCOMPARE(interfaz->avisos.size(), 3);
    interfaz->avisos.clear();
    QVERIFY(!Dialogos::Cargado<FrmCopias>());
}

void TestFrmutils::krt_va_en_el_orden_de_la_tabla()
{
    auto& frm = Dialogos::Unico<FrmKRT>();
    QCOMPARE(frm.windowTitle(), QString("Seleccione modelo de aparato"));
    auto& lista = Hijo<QListWidget>(frm, "List1");
    QCOMPARE(lista.count(), 3);
    QCOMPARE(lista.item(0)->text(), QString("Zeta"));
    QCOMPARE(lista.item(1)->text(), QString("Alfa"));
    QCOMPARE(lista.property("Tag").toString(), QString("zeta.png\6falta.png\6"));
    QCOMPARE(Hijo<QPushButton>(frm, "BtnSalir").text(), QString("&Aceptar"));
}

void TestFrmutils::krt_ensena_la_foto()
{
    QImage foto(20, 20, QImage::Format_RGB32);
    foto.fill(Qt::blue);
    QVERIFY(foto.save(sala->Ruta("bmphlp/zeta.png")));
    auto& frm = Dialogos::Unico<FrmKRT>();
    auto& lista = Hijo<QListWidget>(frm, "List1");
    auto& imagen = Hijo<QLabel>(frm, "Image1");
    lista.setCurrentRow(0);
    QVERIFY(!imagen.pixmap().isNull());
    lista.setCurrentRow(1);
    QVERIFY(imagen.pixmap().isNull());
    lista.setCurrentRow(0);
    lista.setCurrentRow(2);
    QVERIFY(imagen.pixmap().isNull());
}

void TestFrmutils::krt_sin_elegir_pita_y_sigue()
{
    auto& frm = Dialogos::Unico<FrmKRT>();
    Al_Abrirse abierta([&](QWidget&) {
        QTest::mouseClick(&Hijo<QPushButton>(frm, "BtnSalir"), Qt::LeftButton);
        QCOMPARE(interfaz->pitidos, 1);
        QVERIFY(frm.isVisible());
        Hijo<QListWidget>(frm, "List1").setCurrentRow(1);
        QTest::mouseClick(&Hijo<QPushButton>(frm, "BtnSalir"), Qt::LeftButton);
    });
    frm.Mostrar_Modal();
    QCOMPARE(abierta.veces, 1);
    QVERIFY(!Dialogos::Cargado<FrmKRT>());
}

void TestFrmutils::krt_acepta_para_esta_vez()
{
    const QByteArray antes = sala->Leer("EstTotal.ini");
    QStringList cargadas;
    const auto oir = connect(&Sucesos::Unico(), &Sucesos::estacion_cargada, this,
                             [&](const QString& v) { cargadas << v; });
    QSignalSpy modelo(&Sucesos::Unico(), &Sucesos::modelo_cambiado);
    auto& frm = Dialogos::Unico<FrmKRT>();
    frm.Mostrar();
    Hijo<QListWidget>(frm, "List1").setCurrentRow(1);
    QTest::keyClick(&Hijo<QListWidget>(frm, "List1"), Qt::Key_Return);
    disconnect(oir);
    QVERIFY(!Dialogos::Cargado<FrmKRT>());
    QCOMPARE(Clave_Estacion, QString("KRT800"));
    QCOMPARE(Nombre_Estacion, QString("Alfa"));
    // The family key is what the model's row is looked for with: it isn't found.
    QCOMPARE(cargadas, QStringList("KRT800"));
    QCOMPARE(Vel_Puerto, QString("1200,9600"));
    QCOMPARE(modelo.size(), 1);
    QCOMPARE(sala->Leer("EstTotal.ini"), antes);
}

PRUEBA(TestFrmutils)
#include "TestFrmutils.moc"

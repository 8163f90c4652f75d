#include "core/ui/Dialogos.h"
#include "export/Peticiones_Exportar.h"
#include "export/ui/Dialogos_Exportar.h"
#include "export/ui/FrmExportar.h"
#include "formats/ModFormatos.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Ventanas.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

class TestFrmExportar : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void los_textos_son_los_suyos();
    void al_abrir_texto_formateado();
    void cada_opcion_ensena_lo_suyo();
    void el_separador_elegido_llega_al_fichero();
    void solo_cuatro_formatos_van_al_dibujo_data();
    void solo_cuatro_formatos_van_al_dibujo();
    void el_dibujo_va_a_su_dialogo();
    void sin_fichero_pita();
    void elegir_pide_hasta_que_vale();
    void cambiar_de_opcion_borra_el_nombre();
    void exportar_escribe_y_ensena();
    void excel_2000_guarda_la_version_en_vigor();
    void no_se_cierra_a_media_exportacion();
    void cerrar_y_ayuda();

private:
    /// Opens the dialog and runs `hacer` on it, once; then closes it.
    void Con_Dialogo(const std::function<void(FrmExportar&)>& hacer,
                     const QString& formato = "NXYZCOD");
    void Pulsar(const char* boton)
    {
        QTest::mouseClick(&Hijo<QPushButton>(Dialogos::Unico<FrmExportar>(), boton),
                          Qt::LeftButton);
    }
    std::unique_ptr<Sala_Ventanas> sala;
};

void TestFrmExportar::init()
{
    sala = std::make_unique<Sala_Ventanas>();
    Poner_Instrumentos(*sala);
    Clave_Estacion = "KRT300";
    Poner_Sesion(*sala, 1, "KRT300", 1,
                 {{"P1", " y+0001234567"}, {"P1", " x+0007654321"}, {"P2", " y-0000000500"}});
    Poner_Campos_Exportar({"Punto", "Coordenada X", "Coordenada Y"});
    Incluir_Cabeceras = false;
    Peticiones_De_Exportar() = {};
    Conectar_Dialogos_Exportar();
}

void TestFrmExportar::cleanup()
{
    Peticiones_De_Exportar() = {};
    sala.reset();
}

void TestFrmExportar::Con_Dialogo(const std::function<void(FrmExportar&)>& hacer,
                                  const QString& formato)
{
    Al_Abrirse abierta(
        [&](QWidget& w) {
            auto& frm = dynamic_cast<FrmExportar&>(w);
            hacer(frm);
            frm.close();
        },
        "FrmExportar");
    Peticiones_De_Formatos().Abrir_Exportar({1, "KRT300", 1, formato});
    QCOMPARE(abierta.veces, 1);
    QVERIFY(!Dialogos::Cargado<FrmExportar>());
}

void TestFrmExportar::los_textos_son_los_suyos()
{
    Con_Dialogo([](FrmExportar& frm) {
        QVERIFY(frm.isModal());
        QCOMPARE(frm.windowTitle(), QString("Guardar/Exportar Archivo"));
        const char* const textos[] = {"Texto Formateado", "Texto", "Ms-Excel", "DXF (Autocad)"};
        for (int i = 0; i < 4; ++i)
            QCOMPARE(Hijo<QRadioButton>(frm, "OptFor", i).text(), QString(textos[i]));
        QCOMPARE(Hijo<QLabel>(frm, "Label4").text(), QString("Caracter de Separación :"));
        QCOMPARE(Hijo<QLabel>(frm, "Label3").text(), QString("Versión Excel :"));
        QCOMPARE(Hijo<QPushButton>(frm, "BtnElegir").toolTip(),
                 QString("Seleccione Fichero de Salida"));
        QCOMPARE(Hijo<QPushButton>(frm, "BtnExportar").text(), QString("&Exportar"));
        QCOMPARE(Hijo<QPushButton>(frm, "BtnSalir").text(), QString("&Cerrar"));
        QCOMPARE(Hijo<QPushButton>(frm, "btnAyuda").text(), QString("&Ayuda"));
    });
}

void TestFrmExportar::al_abrir_texto_formateado()
{
    Con_Dialogo([](FrmExportar& frm) {
        QVERIFY(Hijo<QRadioButton>(frm, "OptFor", 0).isChecked());
        auto& caracter = Hijo<QComboBox>(frm, "Caracter");
        QVERIFY(caracter.isVisible());
        QStringList textos;
        for (int i = 0; i < caracter.count(); ++i)
            textos << caracter.itemText(i);
        QCOMPARE(textos, QStringList({" Espacio ( )", " Coma (,)", " Tabulación (|)"}));
        QCOMPARE(caracter.currentIndex(), 0);
        QCOMPARE(caracter.property("Tag").toString(), QString(" \6,\6\t"));
        QVERIFY(!Hijo<QComboBox>(frm, "VersionExcel").isVisible());
        QVERIFY(Hijo<QLineEdit>(frm, "Text1").text().isEmpty());
        QVERIFY(Hijo<QPushButton>(frm, "BtnElegir").isEnabled());
    });
}

void TestFrmExportar::cada_opcion_ensena_lo_suyo()
{
    Con_Dialogo([](FrmExportar& frm) {
        Hijo<QRadioButton>(frm, "OptFor", 1).click();
        QVERIFY(Hijo<QComboBox>(frm, "Caracter").isVisible());
        QVERIFY(Hijo<QLabel>(frm, "Label4").isVisible());
        QVERIFY(!Hijo<QLabel>(frm, "Label3").isVisible());
        auto& excel = Hijo<QRadioButton>(frm, "OptFor", 2);
        // An output that isn't built is barred.
        QCOMPARE(excel.isEnabled(), Escritor_De("Xls") != nullptr);
        if (!excel.isEnabled()) return;
        excel.click();
        QVERIFY(!Hijo<QComboBox>(frm, "Caracter").isVisible());
        QVERIFY(Hijo<QComboBox>(frm, "VersionExcel").isVisible());
        QCOMPARE(Hijo<QComboBox>(frm, "VersionExcel").currentText(), QString("Excel 97"));
        QCOMPARE(Hijo<QComboBox>(frm, "VersionExcel").count(), 5);
    });
}

void TestFrmExportar::el_separador_elegido_llega_al_fichero()
{
    sala->interfaz.ficheros = {Fichero_Elegido{sala->Ruta("ficheros/a.txt")}};
    Con_Dialogo([&](FrmExportar& frm) {
        Hijo<QRadioButton>(frm, "OptFor", 1).click();
        auto& caracter = Hijo<QComboBox>(frm, "Caracter");
        caracter.setFocus();
        QTest::keyClick(&caracter, Qt::Key_Down);
        Pulsar("BtnElegir");
        Pulsar("BtnExportar");
    });
    QVERIFY(sala->Leer("ficheros/a.txt").contains("P1,"));
}

void TestFrmExportar::solo_cuatro_formatos_van_al_dibujo_data()
{
    QTest::addColumn<QString>("formato");
    QTest::addColumn<bool>("dibujo");
    for (const char* f : {"NXYZ", "NXYZCOD", "NPXYZ", "NXYZREPLANTEO"})
        QTest::newRow(f) << f << true;
    for (const char* f : {"nxyz", "NXYZ2", "Otro", ""})
        QTest::newRow(f) << f << false;
}

void TestFrmExportar::solo_cuatro_formatos_van_al_dibujo()
{
    QFETCH(QString, formato);
    QFETCH(bool, dibujo);
    // Without a drawing dialog nothing goes there.
    Peticiones_De_Exportar().Abrir_DXF = nullptr;
    Con_Dialogo(
        [](FrmExportar& frm) { QVERIFY(!Hijo<QRadioButton>(frm, "OptFor", 3).isEnabled()); },
        formato);
    Peticiones_De_Exportar().Abrir_DXF = [](const Trabajo_Exportar&) {};
    Con_Dialogo(
        [&](FrmExportar& frm) {
            QCOMPARE(Hijo<QRadioButton>(frm, "OptFor", 3).isEnabled(), dibujo);
        },
        formato);
}

void TestFrmExportar::el_dibujo_va_a_su_dialogo()
{
    QStringList dibujados;
    Peticiones_De_Exportar().Abrir_DXF = [&](const Trabajo_Exportar& t) {
        dibujados << QString::number(t.id) + t.maquina + QString::number(t.ope) + t.formato;
    };
    sala->interfaz.ficheros = {Fichero_Elegido{sala->Ruta("ficheros/a.dxf")}};
    Con_Dialogo([&](FrmExportar& frm) {
        Hijo<QRadioButton>(frm, "OptFor", 3).click();
        QVERIFY(!Hijo<QComboBox>(frm, "Caracter").isVisible());
        Pulsar("BtnElegir");
        Pulsar("BtnExportar");
    });
    QCOMPARE(dibujados, QStringList("1KRT3001NXYZCOD"));
    QVERIFY(!QFile::exists(sala->Ruta("ficheros/a.dxf")));
    QCOMPARE(sala->interfaz.vistos, QStringList());
}

void TestFrmExportar::sin_fichero_pita()
{
    Con_Dialogo([&](FrmExportar& frm) {
        Pulsar("BtnExportar");
        QCOMPARE(sala->interfaz.pitidos, 1);
        QVERIFY(frm.isVisible());
    });
    QCOMPARE(sala->interfaz.vistos, QStringList());
    QCOMPARE(sala->interfaz.cursor, 0);
}

void TestFrmExportar::elegir_pide_hasta_que_vale()
{
    sala->Escribir("ficheros/hay.txt", "antes");
    const QString hay = sala->Ruta("ficheros/hay.txt");
    sala->interfaz.ficheros = {Fichero_Elegido{hay}, Fichero_Elegido{hay}, std::nullopt};
    sala->interfaz.respuestas = {false, true};
    Con_Dialogo([&](FrmExportar& frm) {
        Pulsar("BtnElegir");
        QCOMPARE(Hijo<QLineEdit>(frm, "Text1").text(), hay);
        // A cancelled choice leaves the name that stood there.
        Pulsar("BtnElegir");
        QCOMPARE(Hijo<QLineEdit>(frm, "Text1").text(), hay);
    });
    QCOMPARE(sala->interfaz.avisos.value(0).icono, Icono::Exclamacion);
    const QString pregunta = "El fichero ya existe, ¿ Desea reemplazarlo?";
    QCOMPARE(sala->Tomar_Avisos(), QStringList({pregunta, pregunta}));
    const Peticion_Fichero& p = sala->interfaz.peticiones[0];
    QCOMPARE(p.titulo, QString("Guardar como ..."));
    QCOMPARE(p.filtro, QString("Archivos Texto(*.Txt)|*.Txt| Todos los Archivos (*.*)|*.*"));
    QCOMPARE(p.carpeta, sala->Ruta("ficheros"));
    QVERIFY(p.guardar && p.extension.isEmpty());
    QCOMPARE(sala->Leer("ficheros/hay.txt"), QByteArray("antes"));
}

void TestFrmExportar::cambiar_de_opcion_borra_el_nombre()
{
    sala->interfaz.ficheros = {Fichero_Elegido{sala->Ruta("ficheros/a.txt")}};
    Con_Dialogo([&](FrmExportar& frm) {
        Pulsar("BtnElegir");
        QVERIFY(!Hijo<QLineEdit>(frm, "Text1").text().isEmpty());
        Hijo<QRadioButton>(frm, "OptFor", 1).click();
        QVERIFY(Hijo<QLineEdit>(frm, "Text1").text().isEmpty());
    });
}

void TestFrmExportar::exportar_escribe_y_ensena()
{
    const QString fichero = sala->Ruta("ficheros/a.txt");
    sala->interfaz.ficheros = {Fichero_Elegido{fichero}};
    Con_Dialogo([&](FrmExportar& frm) {
        Pulsar("BtnElegir");
        // With the name chosen the next step is at hand.
        auto& exportar = Hijo<QPushButton>(frm, "BtnExportar");
        QVERIFY(frm.focusWidget() == &exportar);
        QTest::keyClick(&exportar, Qt::Key_Return);
        QCOMPARE(Hijo<QLabel>(frm, "LblMsg").text(), QString());
        QCOMPARE(Hijo<QProgressBar>(frm, "Pb1").value(), 0);
        QVERIFY(frm.isVisible());
    });
    QCOMPARE(sala->interfaz.vistos, QStringList(fichero));
    QCOMPARE(sala->interfaz.cursor, 0);
    QVERIFY(sala->interfaz.repintados > 0);
    const QByteArray escrito = sala->Leer("ficheros/a.txt");
    QCOMPARE(escrito.count("\r\n"), 2);
    QVERIFY(escrito.startsWith("P1 "));
}

void TestFrmExportar::excel_2000_guarda_la_version_en_vigor()
{
    if (!Escritor_De("Xls")) return;
    Con_Dialogo([&](FrmExportar& frm) {
        Hijo<QRadioButton>(frm, "OptFor", 2).click();
        auto& version = Hijo<QComboBox>(frm, "VersionExcel");
        version.setFocus();
        QTest::keyClick(&version, Qt::Key_Up);
        QCOMPARE(version.currentText(), QString("Excel 95"));
        QTest::keyClick(&version, Qt::Key_End);
        QCOMPARE(version.currentText(), QString("Excel 2000"));
    });
}

void TestFrmExportar::no_se_cierra_a_media_exportacion()
{
    sala->interfaz.ficheros = {Fichero_Elegido{sala->Ruta("ficheros/a.txt")}};
    Con_Dialogo([&](FrmExportar& frm) {
        Pulsar("BtnElegir");
        int intentos = 0;
        connect(&Hijo<QProgressBar>(frm, "Pb1"), &QProgressBar::valueChanged, this, [&](int valor) {
            if (valor == 0) return;
            ++intentos;
            frm.close();
        });
        Pulsar("BtnExportar");
        QVERIFY(frm.isVisible());
        QVERIFY(Dialogos::Cargado<FrmExportar>());
        QVERIFY(intentos > 0);
    });
}

void TestFrmExportar::cerrar_y_ayuda()
{
    Con_Dialogo([&](FrmExportar&) {
        Pulsar("btnAyuda");
        Pulsar("BtnSalir");
        QVERIFY(!Dialogos::Cargado<FrmExportar>());
    });
    QVERIFY(sala->interfaz.arrancados[0].endsWith("Ayuda,expnuevo.htm"));
}

PRUEBA(TestFrmExportar)
#include "TestFrmExportar.moc"

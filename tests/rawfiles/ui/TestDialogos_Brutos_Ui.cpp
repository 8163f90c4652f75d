#include "core/Familia.h"
#include "core/ui/Dialogos.h"
#include "rawfiles/ModFBruto.h"
#include "rawfiles/ui/Dialogos_Brutos.h"
#include "rawfiles/ui/FrmExpBrut.h"
#include "rawfiles/ui/FrmExpBruto.h"
#include "rawfiles/ui/FrmImpBru.h"
#include "rawfiles/ui/Peticion.h"
#include "session/ui/frmDescargas.h"
#include "tests/apoyo/Hijo.h"
#include "tests/apoyo/Prueba.h"
#include "tests/rawfiles/Banco_Bruto.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>

// The dialogs of raw files and their doors in the browser.
class TestDialogos_Brutos_Ui : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void los_dos_de_exportar_data();
    void los_dos_de_exportar();
    void exportar_escribe_y_se_esconde();
    void exportar_cancelado_se_queda();
    void la_casilla_se_recuerda();
    void importar_lo_que_muestra();
    void importar_una_libreta();
    void importar_avisa_y_se_queda();
    void importar_otra_familia_se_queda();
    void peticion_los_cinco_textos();
    void peticion_cerrada_no_da_nada();
    void el_navegador_guarda_e_importa();
    void el_menu_de_la_rejilla();
    void el_menu_sin_filas_pita();
    void el_aviso_bajo_la_rejilla();

private:
    frmDescargas& Navegador();
    QMenu& Menu();
    QString Entrada(const QByteArray& bytes)
    {
        banco->Escribir("entrada.txt", bytes);
        return banco->Ruta("entrada.txt");
    }
    static void Pulsar(const QObject& donde, const char* boton)
    {
        QTest::mouseClick(&Hijo<QPushButton>(donde, boton), Qt::LeftButton);
    }
    std::unique_ptr<QMdiArea> area;
    std::unique_ptr<Banco_Bruto> banco;
};

void TestDialogos_Brutos_Ui::init()
{
    area = std::make_unique<QMdiArea>();
    area->resize(1000, 700);
    area->show();
    Ventana::Poner_Area(area.get());
    banco = std::make_unique<Banco_Bruto>();
    Conectar_Dialogos_Brutos();
}

void TestDialogos_Brutos_Ui::cleanup()
{
    Limpiar_Ventanas();
    banco.reset();
    area.reset();
}

frmDescargas& TestDialogos_Brutos_Ui::Navegador()
{
    auto& frm = Dialogos::Unico<frmDescargas>();
    frm.Mostrar();
    return frm;
}

QMenu& TestDialogos_Brutos_Ui::Menu()
{
    auto& rejilla = Hijo<QTableView>(Navegador(), "DBGrid1");
    Q_EMIT rejilla.customContextMenuRequested(QPoint(5, 5));
    return Hijo<QMenu>(Navegador(), "Menu");
}

void TestDialogos_Brutos_Ui::los_dos_de_exportar_data()
{
    QTest::addColumn<bool>("disco");
    QTest::addColumn<QString>("maquina");
    QTest::addColumn<bool>("segunda");
    QTest::newRow("bruto KRT300") << false << "KRT300" << true;
    QTest::newRow("bruto PX7") << false << "PX7" << true;
    QTest::newRow("bruto KRT800") << false << "KRT800" << true;
    QTest::newRow("bruto NV400") << false << "NV400" << false;
    QTest::newRow("disco KRT300") << true << "KRT300" << true;
    QTest::newRow("disco PX7") << true << "PX7" << false;
    QTest::newRow("disco KRT800") << true << "KRT800" << false;
}

void TestDialogos_Brutos_Ui::los_dos_de_exportar()
{
    QFETCH(bool, disco);
    QFETCH(QString, maquina);
    QFETCH(bool, segunda);
    const auto sesion = banco->Guardar(maquina, 0, QStringList{"h1"});
    Al_Abrirse abierto([&](QWidget& w) {
        QCOMPARE(w.objectName(), disco ? QString("FrmExpBrut") : QString("FrmExpBruto"));
        QCOMPARE(w.windowTitle(), disco ? QString("Exportar Fichero a Disco")
                                        : QString("Exportar Fichero en Bruto"));
        QCOMPARE(Hijo<QGroupBox>(w, "Frame1").title(), QString("Tipo de Exportación"));
        QCOMPARE(Hijo<QRadioButton>(w, "OptFor", 0).text(), QString("Formato \"&Lineas\""));
        QCOMPARE(Hijo<QRadioButton>(w, "OptFor", 1).text(),
                 disco ? QString("Formato HD-6") : QString("Formato \"&Máquina\""));
        QVERIFY(Hijo<QRadioButton>(w, "OptFor", 0).isChecked());
        QCOMPARE(Hijo<QRadioButton>(w, "OptFor", 1).isEnabled(), segunda);
        QCOMPARE(Hijo<QCheckBox>(w, "ChkGenerales").isVisible(),
                 Familia_De(maquina).serie == Serie::A);
        Pulsar(w, "BtnCan");
    });
    if (disco)
        Dialogos::Unico<FrmExpBrut>().Abrir(sesion);
    else
        Dialogos::Unico<FrmExpBruto>().Abrir(sesion);
    QCOMPARE(abierto.veces, 1);
}

void TestDialogos_Brutos_Ui::exportar_escribe_y_se_esconde()
{
    const auto sesion = banco->Guardar("KRT300", 0, QList<Linea_De_Prueba>{{"P", "h1", "EE1"}});
    banco->interfaz.ficheros.push_back(Fichero_Elegido{banco->Ruta("salida")});
    Al_Abrirse abierto([&](QWidget& w) {
        Hijo<QRadioButton>(w, "OptFor", 1).click();
        Hijo<QCheckBox>(w, "ChkGenerales").click();
        QTest::keyClick(&w, Qt::Key_Return);
    });
    Dialogos::Unico<FrmExpBruto>().Abrir(sesion);
    QCOMPARE(banco->Leer("salida"), QByteArray("EE1\r\n+P\r\nh1\r\n"));
    QCOMPARE(banco->Avisos(), QStringList{"Exportación a Fichero en Bruto Finalizada"});
    QVERIFY(!Dialogos::Visible<FrmExpBruto>());
}

void TestDialogos_Brutos_Ui::exportar_cancelado_se_queda()
{
    const auto sesion = banco->Guardar("KRT300", 0, QStringList{"h1"});
    banco->interfaz.ficheros.push_back(std::nullopt);
    Al_Abrirse abierto([&](QWidget& w) {
        Pulsar(w, "BtnAce");
        QVERIFY(w.isVisible());
        QTest::keyClick(&w, Qt::Key_Escape);
    });
    Dialogos::Unico<FrmExpBrut>().Abrir(sesion);
    QCOMPARE(abierto.veces, 1);
}

void TestDialogos_Brutos_Ui::la_casilla_se_recuerda()
{
    const auto sesion = banco->Guardar("KRT300", 0, QStringList{"h1"});
    for (const bool antes : {false, true}) {
        Al_Abrirse abierto([&](QWidget& w) {
            QCOMPARE(Hijo<QCheckBox>(w, "ChkGenerales").isChecked(), antes);
            QCOMPARE(Hijo<QCheckBox>(w, "ChkGenerales").text(),
                     QString("Incluir los registros generales"));
            if (!antes) Hijo<QCheckBox>(w, "ChkGenerales").click();
            Pulsar(w, "BtnCan");
        });
        Dialogos::Unico<FrmExpBruto>().Abrir(sesion);
        QCOMPARE(Incluir_Generales(), true);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void TestDialogos_Brutos_Ui::importar_lo_que_muestra()
{
    Al_Abrirse abierto([&](QWidget& w) {
        QCOMPARE(w.windowTitle(), QString("Importar Fichero en Bruto"));
        QCOMPARE(Hijo<QGroupBox>(w, "Frame1").title(), QString("Formato del Fichero:"));
        QCOMPARE(Hijo<QGroupBox>(w, "Frame2").title(), QString("Datos del Fichero a Importar:"));
        const char* const textos[] = {"Formato Máquina", "Formato Lineas", "Formato HD-6"};
        for (int i = 0; i < 3; ++i)
            QCOMPARE(Hijo<QRadioButton>(w, "OptFor", i).text(), QString(textos[i]));
        QVERIFY(Hijo<QRadioButton>(w, "OptFor", 1).isChecked());
        QCOMPARE(Hijo<QPushButton>(w, "BtnSel").toolTip(),
                 QString("Seleccione el Fichero a Importar"));
        const auto& tipos = Hijo<QComboBox>(w, "CbTipo");
        QCOMPARE(tipos.currentIndex(), 2);
        QCOMPARE(tipos.itemText(1), QString("Datos de Coordenadas"));
        QCOMPARE(tipos.property("Tag").toString(), QString("0\0061\0062"));
        QCOMPARE(Hijo<QLineEdit>(w, "Text2").maxLength(), 50);
        Pulsar(w, "BtnCan");
    });
    Puertas_De_Descargas().Importar_Bruto();
    QCOMPARE(abierto.veces, 1);
}

void TestDialogos_Brutos_Ui::importar_una_libreta()
{
    banco->Familia("PX7");
    banco->interfaz.ficheros = {std::nullopt, Fichero_Elegido{Entrada("_+P_h+1_")}};
    Al_Abrirse abierto([&](QWidget& w) {
        QVERIFY(Hijo<QRadioButton>(w, "OptFor", 0).isChecked());
        Hijo<QLineEdit>(w, "Text1").setText("antes");
        Pulsar(w, "BtnSel");
        QCOMPARE(Hijo<QLineEdit>(w, "Text1").text(), QString("antes"));
        Pulsar(w, "BtnSel");
        QCOMPARE(Hijo<QLineEdit>(w, "Text1").text(), banco->Ruta("entrada.txt"));
        QTest::keyClicks(&Hijo<QLineEdit>(w, "Text2"), "Obra");
        Pulsar(w, "BtnAce");
    });
    Puertas_De_Descargas().Importar_Bruto();
    QCOMPARE(banco->Avisos(), QStringList{"Importación desde Fichero Bruto Finalizada"});
    QCOMPARE(banco->Filas("1"), QStringList{"P|h+1|"});
    QCOMPARE(banco->Columna("SELECT NFichero FROM Sesiones"), QStringList{"Obra"});
    QVERIFY(!Dialogos::Cargado<FrmImpBru>());
}

void TestDialogos_Brutos_Ui::importar_avisa_y_se_queda()
{
    Al_Abrirse abierto([&](QWidget& w) {
        Pulsar(w, "BtnAce");
        QVERIFY(w.isVisible());
        Hijo<QLineEdit>(w, "Text1").setText(banco->Ruta("no hay"));
        Pulsar(w, "BtnAce");
        QVERIFY(w.isVisible());
        QTest::keyClick(&w, Qt::Key_Escape);
    });
    Puertas_De_Descargas().Importar_Bruto();
    QCOMPARE(banco->Avisos(), (QStringList{"Debe especificar un nombre de fichero",
                                           "El Fichero especificado no existe"}));
}

void TestDialogos_Brutos_Ui::importar_otra_familia_se_queda()
{
    banco->interfaz.respuestas = {false};
    Al_Abrirse abierto([&](QWidget& w) {
        Hijo<QLineEdit>(w, "Text1").setText(Entrada("STN E,1\r\nSD 1,2,3\r\n"));
        Pulsar(w, "BtnAce");
        QVERIFY(w.isVisible());
        Pulsar(w, "BtnCan");
    });
    Puertas_De_Descargas().Importar_Bruto();
    QCOMPARE(banco->Avisos().size(), 1);
    QCOMPARE(banco->Columna("SELECT ID FROM Sesiones"), QStringList{});
}

void TestDialogos_Brutos_Ui::peticion_los_cinco_textos()
{
    Al_Abrirse abierto([&](QWidget& w) {
        QCOMPARE(w.windowTitle(), QString("Conversión IGN"));
        const char* const rotulos[] = {"Número Serie", "Nombre Mira 1", "Nombre Mira 2", "Operador",
                                       "Empresa"};
        for (int i = 0; i < 5; ++i) {
            auto& caja = Hijo<QLineEdit>(w, QString("dato%1").arg(i + 1));
            const auto hijos = w.findChildren<QLabel*>();
            const auto suyo =
                std::ranges::find_if(hijos, [&](const QLabel* l) { return l->buddy() == &caja; });
            QVERIFY(suyo != hijos.end());
            QCOMPARE((*suyo)->text(), QString(rotulos[i]));
            QTest::keyClicks(&caja, QString("texto %1").arg(i + 1));
        }
        Pulsar(w, "Aceptar");
    });
    QCOMPARE(Peticiones_De_Rawfiles().Pedir_Datos_IGN().value_or(QStringList()),
             (QStringList{"texto 1", "texto 2", "texto 3", "texto 4", "texto 5"}));
    QCOMPARE(Dialogos::Unico<Peticion>().Dato3, QString("texto 3"));
}

void TestDialogos_Brutos_Ui::peticion_cerrada_no_da_nada()
{
    Al_Abrirse abierto([&](QWidget& w) {
        Hijo<QLineEdit>(w, "dato1").setText("x");
        QTest::keyClick(&w, Qt::Key_Escape);
    });
    QVERIFY(!Peticiones_De_Rawfiles().Pedir_Datos_IGN());
    QCOMPARE(abierto.veces, 1);
}

void TestDialogos_Brutos_Ui::el_navegador_guarda_e_importa()
{
    banco->Guardar("KRT300", 0, QStringList{"h1"});
    auto& frm = Navegador();
    banco->interfaz.ficheros.push_back(Fichero_Elegido{banco->Ruta("salida"), 1});
    Pulsar(frm, "BtnExpBru");
    QCOMPARE(banco->Leer("salida"), QByteArray("_h1_\r\n"));
    QCOMPARE(banco->Avisos(), QStringList{"Exportación a Fichero Finalizada"});
    Al_Abrirse abierto([&](QWidget& w) {
        Hijo<QLineEdit>(w, "Text1").setText(Entrada("+P\r\nh+1\r\n"));
        Hijo<QComboBox>(w, "CbTipo").setCurrentIndex(0);
        Pulsar(w, "BtnAce");
    });
    Pulsar(frm, "BtnImpBrud1");
    QCOMPARE(banco->Avisos(), QStringList{"Importación desde Fichero Bruto Finalizada"});
    const auto& rejilla = Hijo<QTableView>(frm, "DBGrid1");
    QCOMPARE(rejilla.model()->rowCount(), 2);
    QCOMPARE(rejilla.currentIndex().row(), 0);
    QCOMPARE(rejilla.model()->index(0, 0).data().toString(), QString("2"));
}

void TestDialogos_Brutos_Ui::el_menu_de_la_rejilla()
{
    banco->Guardar("KRT300", 0, QStringList{"h1"});
    const QMenu& menu = Menu();
    QStringList nombres;
    for (const QAction* a : menu.actions())
        if (!a->isSeparator()) nombres << a->objectName();
    QCOMPARE(nombres, (QStringList{"MnuBtnVerdatos", "MnuBtnNuevoformato", "MnuBtnFormatoExistente",
                                   "MnuBtnPrn", "MnuBtnPlano", "MnuBtnExpBru", "MnuBtnImpBrud1",
                                   "MnuBtnEliminar", "MnuBtnCan", "MnubtnAyuda", "MnuExpBruto",
                                   "MnuExpBrut", "MnuGenerales"}));
    for (const auto& [entrada, dialogo] :
         {std::pair{"MnuExpBruto", "FrmExpBruto"}, std::pair{"MnuExpBrut", "FrmExpBrut"}}) {
        Al_Abrirse abierto([&](QWidget& w) { Pulsar(w, "BtnCan"); }, dialogo);
        Hijo<QAction>(menu, entrada).trigger();
        QCOMPARE(abierto.veces, 1);
    }
    QVERIFY(!Hijo<QAction>(menu, "MnuGenerales").isChecked());
    Hijo<QAction>(menu, "MnuGenerales").trigger();
    QVERIFY(Incluir_Generales());
    banco->interfaz.respuestas = {false};
    Hijo<QAction>(menu, "MnuBtnEliminar").trigger();
    QCOMPARE(banco->Avisos(), QStringList{"Desea Eliminar la Descarga ?"});
}

void TestDialogos_Brutos_Ui::el_menu_sin_filas_pita()
{
    banco->Familia("KRT800");
    const QMenu& menu = Menu();
    QVERIFY(!menu.findChild<QAction*>("MnuGenerales"));
    Hijo<QAction>(menu, "MnuExpBruto").trigger();
    Hijo<QAction>(menu, "MnuExpBrut").trigger();
    Hijo<QAction>(menu, "MnuBtnExpBru").trigger();
    QCOMPARE(banco->interfaz.pitidos, 3);
}

void TestDialogos_Brutos_Ui::el_aviso_bajo_la_rejilla()
{
    banco->Guardar("KRT300", 0, QList<Linea_De_Prueba>{{"P", "h1", "EE1"}});
    auto& frm = Navegador();
    auto& aviso = Hijo<QLabel>(frm, "LblAviso");
    QVERIFY(!aviso.isVisible());
    banco->interfaz.ficheros = {Fichero_Elegido{banco->Ruta("salida"), 1},
                                Fichero_Elegido{banco->Ruta("salida"), 1}};
    Pulsar(frm, "BtnExpBru");
    QVERIFY(aviso.isVisible());
    QCOMPARE(aviso.text(), QString("El fichero no incluye los registros generales: Clase E (1)"));
    Poner_Incluir_Generales(true);
    Pulsar(frm, "BtnExpBru");
    QVERIFY(!aviso.isVisible());
    QCOMPARE(banco->Avisos().size(), 2);
}

PRUEBA(TestDialogos_Brutos_Ui)
#include "TestDialogos_Brutos_Ui.moc"

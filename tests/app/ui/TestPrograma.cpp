#include "app/ventanas/Aplicacion.h"
#include "app/ventanas/Programa.h"
#include "app/ventanas/Ventanas.h"
#include "app/ventanas/Visor_Ayuda.h"
#include "conversions/ui/frmConvEst.h"
#include "core/Configuracion.h"
#include "core/Reloj.h"
#include "core/ui/Dialogos.h"
#include "core/ui/FrmKRT.h"
#include "core/ui/FrmMain.h"
#include "core/ui/frmPantalla.h"
#include "formats/ui/Frmformatos.h"
#include "formats/ui/FrmFormatosNV400.h"
#include "session/ui/frmDescargas.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Ventanas.h"
#include "transfer/ui/FrmIni.h"

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBrowser>

class TestPrograma : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void el_arranque_pide_el_modelo_y_salir_acaba();
    void con_modelo_fijo_no_se_pide();
    void cerrar_al_pedir_el_modelo_no_acaba();
    void sin_ini_se_dice_y_no_se_abre();
    void un_fallo_sin_atrapar_acaba_la_vez();
    void un_fallo_al_pedir_el_modelo_acaba_la_vez();
    void convert_que_falta_es_un_fallo();
    void dos_fallos_son_una_caja();
    void las_entradas_abren_sus_dialogos();
    void los_formatos_de_la_barra_miran_la_familia();
    void cada_entrada_hace_lo_suyo();
    void la_portada_se_pinta();
    void la_pagina_del_argumento_data();
    void la_pagina_del_argumento();
    void el_visor_ensena_las_paginas();

private:
    void Preparar(const QByteArray& fijo = "False") const
    {
        Poner_Instrumentos(*base);
        base->Escribir("EstTotal.ini", "PORT=COM1\r\nVELOCIDAD=9600\r\nBITS=8\r\nPARIDAD=None\r\n"
                                       "STOP=1\r\nKRTNOM=KRT300-1\r\nKRT=KRT300\r\nFIJO=" +
                                           fijo + "\r\n");
    }
    static FrmMain* Principal()
    {
        const auto ventanas = QApplication::topLevelWidgets();
        for (QWidget* const v : ventanas)
            if (auto* const principal = qobject_cast<FrmMain*>(v)) return principal;
        return nullptr;
    }
    static void Salir() { Hijo<QAction>(*Principal(), "Toolbar1", 6).trigger(); }
    /// Runs `hacer` once the main window is on the screen and no dialog stands before it.
    static std::shared_ptr<QTimer> En_Marcha(std::function<void()> hacer)
    {
        auto reloj = std::make_shared<QTimer>();
        connect(reloj.get(), &QTimer::timeout, reloj.get(), [r = reloj.get(), hacer] {
            const bool solo_el_programa = QThread::currentThread()->loopLevel() == 1;
            if (!solo_el_programa || !Principal() || !Principal()->isVisible() ||
                QApplication::activeModalWidget())
                return;
            r->stop();
            hacer();
        });
        reloj->start(10);
        return reloj;
    }
    QString Fallos() const
    {
        QString textos;
        const auto ficheros = QDir(base->Ruta("LOG")).entryList({"FALLO_*.LOG"});
        for (const QString& f : ficheros)
            textos += QString::fromLatin1(base->Leer("LOG/" + f));
        return textos;
    }

    std::unique_ptr<Base_De_Prueba> base;
    std::unique_ptr<Reloj_Rapido> reloj;
};

void TestPrograma::init()
{
    base = std::make_unique<Base_De_Prueba>();
    reloj = std::make_unique<Reloj_Rapido>(1000);
    Poner_Reloj(reloj.get());
}

void TestPrograma::cleanup()
{
    Poner_Reloj(nullptr);
    Limpiar_Ventanas();
    base.reset();
    // A run that ended before its loop began would end the loops of the next test.
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
}

void TestPrograma::el_arranque_pide_el_modelo_y_salir_acaba()
{
    Preparar();
    QString panel;
    Al_Abrirse modelo(
        [&](QWidget& w) {
            QVERIFY(Principal()->isVisible());
            QVERIFY(!Dialogos::Cargado<frmPantalla>());
            Hijo<QListWidget>(w, "List1").setCurrentRow(1);
            QTest::mouseClick(&Hijo<QPushButton>(w, "BtnSalir"), Qt::LeftButton);
        },
        "FrmKRT");
    const auto marcha = En_Marcha([&] {
        panel = Hijo<QLabel>(*Principal(), "Panel1").text();
        Salir();
    });
    QCOMPARE(Ejecutar_Programa(Ruta_Aplicacion), 0);
    QCOMPARE(modelo.veces, 1);
    QCOMPARE(panel, QString("Modelo Estación : KRT800-1  "));
    QVERIFY(!Principal());
    QVERIFY(!Base_Datos);
    QCOMPARE(Fallos(), QString());
}

void TestPrograma::con_modelo_fijo_no_se_pide()
{
    Preparar("True");
    Al_Abrirse modelo([](QWidget&) {}, "FrmKRT");
    QString panel;
    const auto marcha = En_Marcha([&] {
        panel = Hijo<QLabel>(*Principal(), "Panel1").text();
        Principal()->close();
    });
    QCOMPARE(Ejecutar_Programa(Ruta_Aplicacion), 0);
    QCOMPARE(modelo.veces, 0);
    QCOMPARE(panel, QString("Modelo Estación : KRT300-1  "));
}

void TestPrograma::cerrar_al_pedir_el_modelo_no_acaba()
{
    Preparar();
    Al_Abrirse modelo([](QWidget& w) { w.close(); }, "FrmKRT");
    QString panel;
    const auto marcha = En_Marcha([&] {
        panel = Hijo<QLabel>(*Principal(), "Panel1").text();
        Salir();
    });
    QCOMPARE(Ejecutar_Programa(Ruta_Aplicacion), 0);
    QCOMPARE(panel, QString("Modelo Estación : KRT300-1  "));
}

void TestPrograma::sin_ini_se_dice_y_no_se_abre()
{
    QString texto;
    Al_Abrirse caja([&](QWidget& w) {
        texto = dynamic_cast<QMessageBox&>(w).text();
        QVERIFY(!Principal() || !Principal()->isVisible());
        w.close();
    });
    QCOMPARE(Ejecutar_Programa(Ruta_Aplicacion), ESTADO_FALLO);
    QVERIFY2(texto.startsWith("Se Produjo un error al leer el Fichero .ini EstTotal.ini\n(53) "),
             qPrintable(texto));
}

void TestPrograma::un_fallo_sin_atrapar_acaba_la_vez()
{
    Preparar("True");
    QString texto;
    Al_Abrirse caja([&](QWidget& w) {
        texto = dynamic_cast<QMessageBox&>(w).text();
        QCOMPARE(dynamic_cast<QMessageBox&>(w).icon(), QMessageBox::Critical);
        w.close();
    });
    const auto marcha = En_Marcha([&] {
        Base_Datos->BeginTrans();
        Base_Datos->Execute("DELETE FROM KRT");
        throw Error_Ejecucion(11);
    });
    QCOMPARE(Ejecutar_Programa(Ruta_Aplicacion), ESTADO_FALLO);
    QCOMPARE(texto, QString("Se produjo el error '11' en tiempo de ejecución:\nDivisión por cero"));
    QVERIFY(Fallos().contains("(11) Divisi"));
    // What was under way is undone.
    Base_Datos = Base::Abrir(Fichero_MDB);
    QCOMPARE(base->Columna("SELECT COUNT(*) FROM KRT"), QStringList("4"));
}

void TestPrograma::un_fallo_al_pedir_el_modelo_acaba_la_vez()
{
    Preparar();
    QStringList textos;
    Al_Abrirse modelo([&](QWidget&) { throw std::bad_alloc(); }, "FrmKRT");
    Al_Abrirse caja(
        [&](QWidget& w) {
            textos << dynamic_cast<QMessageBox&>(w).text();
            w.close();
        },
        "Caja");
    QCOMPARE(Ejecutar_Programa(Ruta_Aplicacion), ESTADO_FALLO);
    QCOMPARE(textos, QStringList("Se produjo el error '7' en tiempo de ejecución:\nMemoria "
                                 "insuficiente"));
}

void TestPrograma::convert_que_falta_es_un_fallo()
{
    Preparar("True");
    QString texto;
    Al_Abrirse caja([&](QWidget& w) {
        texto = dynamic_cast<QMessageBox&>(w).text();
        w.close();
    });
    const auto marcha =
        En_Marcha([&] { Hijo<QAction>(*Principal(), "mnu_ConvertConvertir").trigger(); });
    QCOMPARE(Ejecutar_Programa(Ruta_Aplicacion), ESTADO_FALLO);
    QVERIFY2(texto.startsWith("Se produjo el error '53'"), qPrintable(texto));
}

void TestPrograma::dos_fallos_son_una_caja()
{
    Interfaz_Guion interfaz;
    interfaz.al_avisar = [](const auto&) { Fallo_Sin_Atrapar(Error_Ejecucion(5)); };
    Fallo_Sin_Atrapar(Error_Ejecucion(13));
    QCOMPARE(interfaz.Textos(), QStringList("Se produjo el error '13' en tiempo de ejecución:\rNo "
                                            "coinciden los tipos"));
    QCOMPARE(interfaz.terminado, QList<int>{ESTADO_FALLO});
    QVERIFY(Fallos().contains("(13)") && Fallos().contains("(5)"));
}

void TestPrograma::las_entradas_abren_sus_dialogos()
{
    Preparar();
    Clave_Estacion = "KRT300";
    Nombre_Estacion = "KRT300-1";
    Interfaz_Guion interfaz;
    FrmMain principal;
    Conectar_Entradas(principal);
    principal.show();
    Hijo<QAction>(principal, "Transfer").trigger();
    QVERIFY(Dialogos::Visible<FrmIni>());
    Hijo<QAction>(principal, "Toolbar1", 1).trigger();
    Hijo<QAction>(principal, "Sesiones").trigger();
    QVERIFY(Dialogos::Visible<frmDescargas>());
    Dialogos::Cargado<frmDescargas>()->setWindowTitle("Otro");
    Hijo<QAction>(principal, "Sesiones").trigger();
    QCOMPARE(Dialogos::Cargado<frmDescargas>()->windowTitle(), QString("Otro"));
    Hijo<QAction>(principal, "Toolbar1", 3).trigger();
    QCOMPARE(Dialogos::Cargado<frmDescargas>()->windowTitle(), QString("Descargas"));
    Hijo<QAction>(principal, "Toolbar1", 4).trigger();
    QCOMPARE(Dialogos::Cargado<Frmformatos>()->windowTitle(), QString("Mantenimiento de Formatos"));
    Hijo<QAction>(principal, "Formatos").trigger();
    QCOMPARE(Dialogos::Cargado<Frmformatos>()->windowTitle(), QString("Formatos Disponibles"));
    Hijo<QAction>(principal, "Mnu_ConvEst").trigger();
    QCOMPARE(Dialogos::Cargado<frmConvEst>()->windowTitle(),
             QString("Conversión a formato Estandar Survey"));
    Hijo<QAction>(principal, "Mnu_ConvLandxml").trigger();
    QCOMPARE(Dialogos::Cargado<frmConvEst>()->windowTitle(),
             QString("Conversión a formato LandXML"));
    QCOMPARE(Ventana::Area()->subWindowList().size(), 4);
    QCOMPARE(interfaz.Textos(), QStringList());
    Limpiar_Ventanas();
}

void TestPrograma::los_formatos_de_la_barra_miran_la_familia()
{
    Preparar();
    Clave_Estacion = "NV400";
    Interfaz_Guion interfaz;
    FrmMain principal;
    Conectar_Entradas(principal);
    principal.show();
    Hijo<QAction>(principal, "Toolbar1", 4).trigger();
    QVERIFY(!Dialogos::Cargado<Frmformatos>());
    QCOMPARE(Dialogos::Cargado<FrmFormatosNV400>()->windowTitle(),
             QString("Mantenimiento de Formatos"));
    QVERIFY(interfaz.avisos.isEmpty());
    Hijo<QAction>(principal, "Formatos").trigger();
    QVERIFY(Dialogos::Visible<Frmformatos>());
    Limpiar_Ventanas();
}

void TestPrograma::cada_entrada_hace_lo_suyo()
{
    Preparar();
    Interfaz_Guion interfaz;
    QVERIFY(Cargar_Configuracion(Ruta_Aplicacion));
    Interfaz_Qt ventanas;
    Conectar_Dialogos(ventanas);
    FrmMain principal;
    Conectar_Entradas(principal);
    // Every entry opens a dialog or does its work; none says that it is not there.
    for (const QString& entrada : principal.Entradas()) {
        if (entrada == "Toolbar1(6)" || entrada == "Acerca") continue;
        const qsizetype dialogos = Ventana::Cargadas().size();
        static const QRegularExpression forma("^(\\w+)(?:\\((\\d+)\\))?$");
        const auto partes = forma.match(entrada);
        const int indice = partes.captured(2).isEmpty() ? -1 : partes.captured(2).toInt();
        // The monitoring asks for its files before it shows anything.
        if (entrada == "Mnu_ConvRob") interfaz.ficheros = {std::nullopt};
        Hijo<QAction>(principal, partes.captured(1), indice).trigger();
        QVERIFY2(interfaz.avisos.isEmpty(), qPrintable(entrada + interfaz.Textos().join(' ')));
        QVERIFY(Ventana::Cargadas().size() >= dialogos);
    }
    Limpiar_Ventanas();
}

void TestPrograma::la_portada_se_pinta()
{
    Interfaz_Qt interfaz;
    Poner_Interfaz(&interfaz);
    Arranque_Qt ventanas;
    ventanas.Mostrar_Portada();
    auto* const portada = Dialogos::Cargado<frmPantalla>();
    QVERIFY(portada && portada->isVisible());
    QVERIFY(portada->windowHandle()->isExposed());
    ventanas.Quitar_Portada();
    QVERIFY(!Dialogos::Cargado<frmPantalla>());
    QVERIFY(ventanas.Pantalla().width() > 0);
}

void TestPrograma::la_pagina_del_argumento_data()
{
    QTest::addColumn<QString>("argumento");
    QTest::addColumn<QString>("pagina");
    QTest::newRow("corriente") << "/x/Ayuda,config.htm"
                               << "/x/Ayuda/config.htm";
    QTest::newRow("con blancos") << "/mis cosas/Ayuda,config.htm"
                                 << "/mis cosas/Ayuda/config.htm";
    QTest::newRow("coma en la carpeta") << "/a,b/Ayuda,config.htm"
                                        << "/a,b/Ayuda/config.htm";
    QTest::newRow("barras del otro sistema") << "C:\\M\\Ayuda,x.htm"
                                             << "C:/M/Ayuda/x.htm";
    QTest::newRow("sin coma") << "/x/Ayuda/config.htm"
                              << "/x/Ayuda/config.htm";
}

void TestPrograma::la_pagina_del_argumento()
{
    QFETCH(QString, argumento);
    QFETCH(QString, pagina);
    QCOMPARE(Pagina_De_Argumento(argumento), pagina);
}

void TestPrograma::el_visor_ensena_las_paginas()
{
    QDir(Ruta_Aplicacion).mkpath("Ayuda");
    base->Escribir("Ayuda/uno.htm",
                   "<html><head><meta charset='utf-8'><title>Página uno</title></head><body><p>"
                   "Texto <a href='index.htm'>índice</a></p></body></html>");
    base->Escribir("Ayuda/index.htm",
                   "<html><head><title>Todo</title></head><body>x</body></html>");
    Visor_Ayuda visor;
    visor.Abrir(Pagina_De_Argumento(base->Ruta("Ayuda,uno.htm")));
    visor.show();
    auto& navegador = Hijo<QTextBrowser>(visor, "Navegador");
    QCOMPARE(visor.windowTitle(), QString("Página uno"));
    QVERIFY(navegador.toPlainText().contains("Texto índice"));
    QVERIFY(!Hijo<QAction>(visor, "Atras").isEnabled());
    Hijo<QAction>(visor, "Indice").trigger();
    QCOMPARE(visor.windowTitle(), QString("Todo"));
    Hijo<QAction>(visor, "Atras").trigger();
    QCOMPARE(visor.windowTitle(), QString("Página uno"));
    Hijo<QAction>(visor, "Adelante").trigger();
    QCOMPARE(visor.windowTitle(), QString("Todo"));
    visor.Abrir(base->Ruta("Ayuda/falta.htm"));
    QVERIFY(navegador.toPlainText().startsWith("No se encuentra la página de ayuda"));
}

PRUEBA(TestPrograma)
#include "TestPrograma.moc"

#include "core/Error_Ejecucion.h"
#include "core/ui/Dialogos.h"
#include "core/ui/FrmProc.h"
#include "core/ui/Interfaz_Qt.h"
#include "core/ui/Traductor_Qt.h"
#include "tests/apoyo/Hijo.h"
#include "tests/apoyo/Prueba.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>

class TestInterfaz_Qt : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void la_caja_tiene_texto_icono_y_titulo_data();
    void la_caja_tiene_texto_icono_y_titulo();
    void preguntar_devuelve_el_boton();
    void los_botones_hablan_espanol();
    void la_caja_de_texto_distingue_cancelar_de_vacio();
    void el_dialogo_de_fichero_devuelve_nombre_y_filtro();
    void el_dialogo_de_fichero_no_pregunta_por_el_que_existe();
    void el_dialogo_de_fichero_cancelado_no_da_nada();
    void los_textos_de_los_controles_son_espanoles_data();
    void los_textos_de_los_controles_son_espanoles();
    void los_filtros_data();
    void los_filtros();
    void el_proceso_es_modal_y_no_bloquea();
    void el_proceso_cancelado_sigue_en_pie();
    void cerrar_el_marco_del_proceso_cancela();
    void procesos_anidados_son_uno();
    void repintar_pinta_lo_pendiente();
    void arrancar_lo_que_no_hay_es_53();
    void terminar_acaba_los_bucles_de_dentro();
};

void TestInterfaz_Qt::init()
{
    QCoreApplication::installTranslator(new Traductor_Qt(INSTALACION "/idioma", this));
    Proceso_Cancelado = false;
}

void TestInterfaz_Qt::cleanup()
{
    Limpiar_Ventanas();
    const auto traductores = findChildren<Traductor_Qt*>();
    for (Traductor_Qt* const t : traductores)
        delete t;
}

void TestInterfaz_Qt::la_caja_tiene_texto_icono_y_titulo_data()
{
    QTest::addColumn<int>("icono");
    QTest::addColumn<int>("dibujo");
    QTest::newRow("critica") << 16 << int(QMessageBox::Critical);
    QTest::newRow("pregunta") << 32 << int(QMessageBox::Question);
    QTest::newRow("exclamacion") << 48 << int(QMessageBox::Warning);
    QTest::newRow("informacion") << 64 << int(QMessageBox::Information);
    QTest::newRow("sin icono") << 0 << int(QMessageBox::NoIcon);
}

void TestInterfaz_Qt::la_caja_tiene_texto_icono_y_titulo()
{
    QFETCH(int, icono);
    QFETCH(int, dibujo);
    Interfaz_Qt interfaz;
    QString texto, titulo;
    int visto = -1;
    Al_Abrirse caja([&](QWidget& w) {
        auto& mensaje = dynamic_cast<QMessageBox&>(w);
        texto = mensaje.text();
        titulo = mensaje.windowTitle();
        visto = mensaje.icon();
        mensaje.button(QMessageBox::Ok)->click();
    });
    interfaz.Mensaje("uno\r(5) <b>dos</b>\r\ntres", Icono(icono), {});
    QCOMPARE(caja.veces, 1);
    QCOMPARE(texto, QString("uno\n(5) <b>dos</b>\ntres"));
    QCOMPARE(titulo, QString("Miraldos"));
    QCOMPARE(visto, dibujo);
}

void TestInterfaz_Qt::preguntar_devuelve_el_boton()
{
    Interfaz_Qt interfaz;
    for (const auto boton : {QMessageBox::Yes, QMessageBox::No}) {
        Al_Abrirse caja([&](QWidget& w) {
            QCOMPARE(w.windowTitle(), QString("Atención"));
            dynamic_cast<QMessageBox&>(w).button(boton)->click();
        });
        QCOMPARE(interfaz.Preguntar("?", Icono::Pregunta, "Atención"), boton == QMessageBox::Yes);
    }
    Al_Abrirse escape([](QWidget& w) { QTest::keyClick(&w, Qt::Key_Escape); });
    QVERIFY(!interfaz.Preguntar("?", Icono::Pregunta, {}));
}

void TestInterfaz_Qt::los_botones_hablan_espanol()
{
    Interfaz_Qt interfaz;
    QStringList textos;
    const auto leer = [&](QWidget& w) {
        const auto botones = w.findChildren<QPushButton*>();
        for (const QPushButton* const b : botones)
            if (b->isVisible()) textos << b->text().remove('&');
        QTest::keyClick(&w, Qt::Key_Escape);
    };
    {
        Al_Abrirse caja(leer);
        interfaz.Preguntar("?", Icono::Pregunta, {});
    }
    {
        Al_Abrirse caja(leer);
        interfaz.Mensaje("!", Icono::Ninguno, {});
    }
    {
        Al_Abrirse caja(leer);
        interfaz.Pedir_Texto("t", "l", {});
    }
    {
        Al_Abrirse caja(leer);
        interfaz.Pedir_Fichero({.titulo = "Elija", .guardar = true});
    }
    {
        Al_Abrirse caja(leer);
        interfaz.Pedir_Fichero({.titulo = "Elija"});
    }
    textos.sort();
    QCOMPARE(textos, QStringList({"Abrir", "Aceptar", "Aceptar", "Cancelar", "Cancelar", "Cancelar",
                                  "Guardar", "No", "Sí"}));
}

void TestInterfaz_Qt::la_caja_de_texto_distingue_cancelar_de_vacio()
{
    Interfaz_Qt interfaz;
    Al_Abrirse escrita([](QWidget& w) {
        auto& caja = Hijo<QLineEdit>(w, {});
        QCOMPARE(caja.text(), QString("antes"));
        caja.clear();
        QTest::keyClicks(&caja, "Num");
        QTest::keyClick(&caja, Qt::Key_Return);
    });
    QCOMPARE(interfaz.Pedir_Texto("t", "l", "antes"), std::optional<QString>("Num"));
    Al_Abrirse vacia([](QWidget& w) { QTest::keyClick(&w, Qt::Key_Return); });
    QCOMPARE(interfaz.Pedir_Texto("t", "l", {}), std::optional<QString>(""));
    Al_Abrirse cancelada([](QWidget& w) { QTest::keyClick(&w, Qt::Key_Escape); });
    QVERIFY(!interfaz.Pedir_Texto("t", "l", "x").has_value());
}

void TestInterfaz_Qt::el_dialogo_de_fichero_devuelve_nombre_y_filtro()
{
    const QTemporaryDir carpeta;
    Interfaz_Qt interfaz;
    Peticion_Fichero peticion{.titulo = "Guardar como ...",
                              .filtro = "Archivos Texto(*.Txt)|*.Txt| Todos los Archivos (*.*)|*.*",
                              .indice_filtro = 2,
                              .carpeta = carpeta.path(),
                              .guardar = true};
    Al_Abrirse caja([&](QWidget& w) {
        auto& dialogo = dynamic_cast<QFileDialog&>(w);
        QCOMPARE(dialogo.windowTitle(), QString("Guardar como ..."));
        QCOMPARE(dialogo.selectedNameFilter(), QString("Todos los Archivos (*)"));
        QCOMPARE(QDir(dialogo.directory()), QDir(carpeta.path()));
        auto& nombre = Hijo<QLineEdit>(w, "fileNameEdit");
        QTest::keyClicks(&nombre, "salida.dat");
        QTest::keyClick(&nombre, Qt::Key_Return);
    });
    const auto elegido = interfaz.Pedir_Fichero(peticion);
    QVERIFY(elegido.has_value());
    QCOMPARE(QFileInfo(elegido->nombre).fileName(), QString("salida.dat"));
    QCOMPARE(elegido->indice_filtro, 2);

    // Without a folder of its own the next dialog opens where the last name was chosen.
    peticion.carpeta.clear();
    peticion.guardar = false;
    Al_Abrirse otra([&](QWidget& w) {
        QCOMPARE(QDir(dynamic_cast<QFileDialog&>(w).directory()), QDir(carpeta.path()));
        QTest::keyClick(&w, Qt::Key_Escape);
    });
    QVERIFY(!interfaz.Pedir_Fichero(peticion).has_value());
    QCOMPARE(otra.veces, 1);
}

void TestInterfaz_Qt::el_dialogo_de_fichero_no_pregunta_por_el_que_existe()
{
    const QTemporaryDir carpeta;
    QFile fichero(carpeta.filePath("hay.txt"));
    QVERIFY(fichero.open(QIODevice::WriteOnly));
    fichero.close();
    Interfaz_Qt interfaz;
    Al_Abrirse caja([&](QWidget& w) {
        auto& nombre = Hijo<QLineEdit>(w, "fileNameEdit");
        QTest::keyClicks(&nombre, "hay");
        QTest::keyClick(&nombre, Qt::Key_Return);
    });
    const auto elegido = interfaz.Pedir_Fichero({.titulo = "x",
                                                 .filtro = "Texto|*.txt",
                                                 .carpeta = carpeta.path(),
                                                 .extension = "txt",
                                                 .guardar = true});
    QVERIFY(elegido.has_value());
    QCOMPARE(QFileInfo(elegido->nombre).fileName(), QString("hay.txt"));
}

void TestInterfaz_Qt::el_dialogo_de_fichero_cancelado_no_da_nada()
{
    Interfaz_Qt interfaz;
    Al_Abrirse caja([&](QWidget& w) { QTest::keyClick(&w, Qt::Key_Escape); });
    QVERIFY(!interfaz.Pedir_Fichero({.titulo = "x", .filtro = "Texto|*.txt"}).has_value());
}

void TestInterfaz_Qt::los_textos_de_los_controles_son_espanoles_data()
{
    QTest::addColumn<QByteArray>("contexto");
    QTest::addColumn<QByteArray>("texto");
    QTest::addColumn<QString>("espanol");
    const auto caso = [](const char* contexto, const char* texto, const char* espanol) {
        QTest::addRow("%s %s", contexto, texto)
            << QByteArray(contexto) << QByteArray(texto) << QString(espanol);
    };
    for (const char* contexto : {"QPlatformTheme", "QShortcut"})
        caso(contexto, "Cancel", "Cancelar");
    caso("QPlatformTheme", "&Yes", "&Sí");
    caso("QPlatformTheme", "OK", "Aceptar");
    caso("QFileDialog", "Files of type:", "Ficheros de tipo:");
    caso("QLineEdit", "&Paste", "&Pegar");
    caso("QMdiSubWindow", "&Restore", "&Restaurar");
    // What the toolkit's own translation lacks or has wrong.
    caso("QFileDialog", "Choose", "Elegir");
    caso("QFileDialog", "Go to the parent directory", "Ir al directorio superior");
    caso("QFileDialog", "File Folder", "Carpeta de archivos");
    caso("QFileDialog", "No such text", "No such text");
}

void TestInterfaz_Qt::los_textos_de_los_controles_son_espanoles()
{
    QFETCH(QByteArray, contexto);
    QFETCH(QByteArray, texto);
    QTEST(QCoreApplication::translate(contexto.constData(), texto.constData()), "espanol");
}

void TestInterfaz_Qt::los_filtros_data()
{
    QTest::addColumn<QString>("filtro");
    QTest::addColumn<QStringList>("filtros");
    QTest::newRow("patron en la descripcion")
        << "Archivos Texto(*.Txt)|*.Txt" << QStringList{"Archivos Texto (*.Txt)"};
    QTest::newRow("sin patron") << "Puntos|*.asc;*.krt" << QStringList{"Puntos (*.asc *.krt)"};
    QTest::newRow("todos") << " Todos (*.*)|*.*" << QStringList{"Todos (*)"};
    QTest::newRow("dos") << "A|*.a|B|*.b" << QStringList{"A (*.a)", "B (*.b)"};
    QTest::newRow("vacio: nada que elegir") << "" << QStringList{" (/)"};
}

void TestInterfaz_Qt::los_filtros()
{
    QFETCH(QString, filtro);
    QFETCH(QStringList, filtros);
    QCOMPARE(Filtros_De_Dialogo(filtro), filtros);
}

void TestInterfaz_Qt::el_proceso_es_modal_y_no_bloquea()
{
    Interfaz_Qt interfaz;
    Poner_Interfaz(&interfaz);
    {
        const Proceso proceso("Contando", 50);
        auto* const frm = Dialogos::Cargado<FrmProc>();
        QVERIFY(frm && frm->isVisible());
        QCOMPARE(frm->windowModality(), Qt::ApplicationModal);
        QCOMPARE(frm->windowTitle(), QString("Procesando Fichero"));
        QCOMPARE(Hijo<QLabel>(*frm, "LblMsg").text(), QString("Contando"));
        QCOMPARE(Hijo<QPushButton>(*frm, "BtnCan").text(), QString("&Cancelar"));
        auto& barra = Hijo<QProgressBar>(*frm, "PB1");
        interfaz.Proceso_Avanzar(50);
        QCOMPARE(barra.value(), barra.maximum());
        interfaz.Proceso_Etiqueta("Otra", 5000000000LL);
        QCOMPARE(barra.value(), 0);
        QTest::qWait(60);
        interfaz.Proceso_Avanzar(2500000000LL);
        QCOMPARE(barra.value() * 2, barra.maximum());
    }
    QVERIFY(!Dialogos::Cargado<FrmProc>());
}

void TestInterfaz_Qt::el_proceso_cancelado_sigue_en_pie()
{
    Interfaz_Qt interfaz;
    interfaz.Proceso_Abrir("x", 10);
    auto& frm = Dialogos::Unico<FrmProc>();
    QTest::mouseClick(&Hijo<QPushButton>(frm, "BtnCan"), Qt::LeftButton);
    QVERIFY(Proceso_Cancelado);
    QVERIFY(frm.isVisible());
    interfaz.Proceso_Cerrar();
}

void TestInterfaz_Qt::cerrar_el_marco_del_proceso_cancela()
{
    Interfaz_Qt interfaz;
    interfaz.Proceso_Abrir("x", 10);
    auto& frm = Dialogos::Unico<FrmProc>();
    frm.close();
    QVERIFY(Proceso_Cancelado);
    QVERIFY(frm.isVisible());
    Proceso_Cancelado = false;
    QTest::keyClick(&frm, Qt::Key_Escape);
    QVERIFY(Proceso_Cancelado);
    interfaz.Proceso_Cerrar();
    QVERIFY(!Dialogos::Cargado<FrmProc>());
}

void TestInterfaz_Qt::procesos_anidados_son_uno()
{
    Interfaz_Qt interfaz;
    interfaz.Proceso_Abrir("fuera", 10);
    const auto* const frm = Dialogos::Cargado<FrmProc>();
    interfaz.Proceso_Abrir("dentro", 10);
    QCOMPARE(Dialogos::Cargado<FrmProc>(), frm);
    interfaz.Proceso_Cerrar();
    QVERIFY(frm->isVisible());
    interfaz.Proceso_Cerrar();
    QVERIFY(!Dialogos::Cargado<FrmProc>());
}

void TestInterfaz_Qt::repintar_pinta_lo_pendiente()
{
    Interfaz_Qt interfaz;
    class Pintada : public QWidget {
    public:
        int veces = 0;

    protected:
        void paintEvent(QPaintEvent*) override { ++veces; }
    } ventana;
    ventana.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ventana));
    const int antes = ventana.veces;
    ventana.update();
    QCOMPARE(ventana.veces, antes);
    interfaz.Repintar();
    QVERIFY(ventana.veces > antes);
}

void TestInterfaz_Qt::arrancar_lo_que_no_hay_es_53()
{
    Interfaz_Qt interfaz;
    const QTemporaryDir carpeta;
    try {
        interfaz.Arrancar(carpeta.filePath("nada.exe"), {"x"});
        QFAIL("started");
    } catch (const Error_Ejecucion& e) {
        QCOMPARE(e.numero, 53);
    }
#ifdef Q_OS_UNIX
    // The name ends as on the other platform: the program without the suffix is taken.
    const QString nota = carpeta.filePath("nota");
    QFile guion(carpeta.filePath("visor"));
    QVERIFY(guion.open(QIODevice::WriteOnly));
    guion.write("#!/bin/sh\nprintf '%s' \"$1\" > " + QFile::encodeName(nota) + "\n");
    guion.close();
    guion.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    interfaz.Arrancar(carpeta.filePath("visor.exe"), {"a b,c.htm"});
    QTRY_VERIFY(QFileInfo(nota).size() > 0);
    QFile leida(nota);
    QVERIFY(leida.open(QIODevice::ReadOnly));
    QCOMPARE(leida.readAll(), QByteArray("a b,c.htm"));
#endif
}

void TestInterfaz_Qt::terminar_acaba_los_bucles_de_dentro()
{
    Interfaz_Qt interfaz;
    Al_Abrirse caja([&](QWidget&) { interfaz.Terminar(3); });
    QVERIFY(!interfaz.Preguntar("?", Icono::Pregunta, {}));
    QVERIFY(interfaz.Terminada());
    QVERIFY(Proceso_Cancelado);
    interfaz.Terminar(0);
    QCOMPARE(interfaz.Estado(), 3);
    // From here on nobody is asked any more.
    QVERIFY(!interfaz.Preguntar("?", Icono::Pregunta, {}));
    interfaz.Mensaje("!", Icono::Critico, {});
    QVERIFY(!interfaz.Pedir_Texto("t", "l", "x").has_value());
    // The tests that follow in this process need loops that wait again.
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
}

PRUEBA(TestInterfaz_Qt)
#include "TestInterfaz_Qt.moc"

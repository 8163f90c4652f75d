#include "core/Sucesos.h"
#include "core/Sumas.h"
#include "core/ui/Dialogos.h"
#include "core/ui/FrmAyuda.h"
#include "session/ui/frmDescargas.h"
#include "tests/apoyo/Instrumentos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Puerto_Memoria.h"
#include "tests/apoyo/Sala_Ventanas.h"
#include "transfer/ui/Dialogos_Transfer.h"
#include "transfer/ui/FrmFic.h"
#include "transfer/ui/FrmIni.h"
#include "transfer/ui/FrmRecuerde.h"
#include "transfer/ui/FrmSplash.h"

#include <QCheckBox>
#include <QDropEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>

class TestTransferencias_Ui : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void las_listas_ofrecen_las_operaciones();
    void se_rellenan_al_activarse();
    void el_tamano_tiene_su_minimo_y_sus_reglas();
    void intro_en_la_lista_empieza();
    void el_doble_clic_no_empieza();
    void arrastrar_a_su_dibujo_empieza();
    void arrastrar_al_otro_dibujo_pita_data();
    void arrastrar_al_otro_dibujo_pita();
    void la_foto_es_la_del_modelo();
    void cerrar_guarda_sitio_y_tamano();
    void el_recordatorio_dice_los_ajustes();
    void el_recordatorio_se_apaga_al_momento();
    void el_nombre_no_queda_en_blanco();
    void cancelar_el_nombre_deja_todo_cerrado();
    void el_orden_de_una_descarga();
    void una_descarga_entera();
    void el_decimo_sondeo_avisa_y_cierra();
    void la_etiqueta_lleva_al_boton();
    void el_rayo_va_por_sus_sitios();
    void cerrar_a_medias_libera_el_puerto();
    void la_segunda_vez_trae_la_que_esta();
    void el_puerto_que_falla_no_abre_el_dialogo();

private:
    static QByteArray Trama(const QByteArray& datos);
    void Soltar(QWidget& donde, const QString& texto) const;
    /// Starts the first download and answers the name; afterwards the dialog stands.
    FrmSplash& Empezar(const QString& nombre = "Obra");

    std::unique_ptr<Sala_Ventanas> sala;
    QPointer<Puerto_Memoria> puerto;
    int puertos = 0;
};

void TestTransferencias_Ui::init()
{
    sala = std::make_unique<Sala_Ventanas>();
    Poner_Instrumentos(*sala);
    Clave_Estacion = "KRT300";
    Nombre_Estacion = "KRT300-1";
    Puerto = "COM2";
    Velocidad = "1200";
    Bits_Datos = "8";
    Paridad = "None";
    Bits_Parada = "1";
    puertos = 0;
    Conectar_Dialogos_Transfer();
    FrmSplash::Hacer_Puerto = [this] {
        auto nuevo = std::make_unique<Puerto_Memoria>();
        puerto = nuevo.get();
        ++puertos;
        return nuevo;
    };
}

void TestTransferencias_Ui::cleanup()
{
    sala.reset();
}

QByteArray TestTransferencias_Ui::Trama(const QByteArray& datos)
{
    const QByteArray dentro = datos + '0';
    const QByteArray suma = Suma_XOR(QString::fromLatin1(dentro)).toLatin1();
    return '\2' + dentro + suma + '\3';
}

void TestTransferencias_Ui::Soltar(QWidget& donde, const QString& texto) const
{
    QMimeData datos;
    datos.setText(texto);
    QDragEnterEvent entra(QPoint(5, 5), Qt::CopyAction, &datos, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&donde, &entra);
    QVERIFY(entra.isAccepted());
    QDropEvent suelta(QPointF(5, 5), Qt::CopyAction, &datos, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&donde, &suelta);
    QCoreApplication::processEvents();
}

FrmSplash& TestTransferencias_Ui::Empezar(const QString& nombre)
{
    auto& frm = Dialogos::Unico<FrmIni>();
    frm.Mostrar();
    Hijo<QListWidget>(frm, "LVI").setCurrentRow(0);
    Al_Abrirse pide(
        [&](QWidget& w) {
            Hijo<QLineEdit>(w, "Txt").insert(nombre);
            QTest::mouseClick(&Hijo<QPushButton>(w, "BtnAce"), Qt::LeftButton);
        },
        "FrmFic");
    QTest::keyClick(&Hijo<QListWidget>(frm, "LVI"), Qt::Key_Return);
    return Dialogos::Unico<FrmSplash>();
}

static QStringList Textos(const QListWidget& lista)
{
    QStringList textos;
    for (int i = 0; i < lista.count(); ++i)
        textos << lista.item(i)->text() + "=" + lista.item(i)->data(Qt::UserRole).toString();
    return textos;
}

void TestTransferencias_Ui::las_listas_ofrecen_las_operaciones()
{
    auto& frm = Dialogos::Unico<FrmIni>();
    frm.Mostrar();
    QCOMPARE(frm.windowTitle(), QString("Transferencias"));
    QCOMPARE(Textos(Hijo<QListWidget>(frm, "LVI")),
             QStringList({"Datos de medición=0", "Datos de coordenadas=1"}));
    QCOMPARE(Textos(Hijo<QListWidget>(frm, "LVD")),
             QStringList({"Datos de coordenadas=1", "Librería de códigos=2"}));
}

void TestTransferencias_Ui::se_rellenan_al_activarse()
{
    auto& frm = Dialogos::Unico<FrmIni>();
    frm.Mostrar();
    Clave_Estacion = "NV400";
    frm.Mostrar();
    QCOMPARE(Textos(Hijo<QListWidget>(frm, "LVI")), QStringList("Datos de medición=0"));
    QCOMPARE(Hijo<QListWidget>(frm, "LVD").count(), 0);
}

void TestTransferencias_Ui::el_tamano_tiene_su_minimo_y_sus_reglas()
{
    auto& frm = Dialogos::Unico<FrmIni>();
    frm.show();
    frm.resize(100, 100);
    QCOMPARE(frm.size(), QSize(420, 323));
    for (const QSize tamano : {QSize(420, 323), QSize(777, 555)}) {
        frm.resize(tamano);
        QCoreApplication::processEvents();
        const auto& marco = Hijo<QGroupBox>(frm, "Frame1");
        const auto& boton = Hijo<QPushButton>(frm, "Command1");
        QCOMPARE(marco.size(), tamano - QSize(20, 115));
        QCOMPARE(boton.x(), marco.x() + marco.width() - 75);
        QVERIFY(frm.rect().contains(boton.geometry()));
        QVERIFY(!marco.geometry().intersects(boton.geometry()));
    }
}

void TestTransferencias_Ui::intro_en_la_lista_empieza()
{
    FrmSplash& splash = Empezar();
    QVERIFY(splash.isVisible());
    QVERIFY(!splash.isModal());
    QVERIFY(!Dialogos::Visible<FrmIni>());
    QVERIFY(Dialogos::Cargado<FrmIni>());
    QVERIFY(puerto->abierto);
    QCOMPARE(puerto->numero, 2);
    QCOMPARE(puerto->ajustes, QString("1200,N,8,1"));
}

void TestTransferencias_Ui::el_doble_clic_no_empieza()
{
    auto& frm = Dialogos::Unico<FrmIni>();
    frm.Mostrar();
    auto& lista = Hijo<QListWidget>(frm, "LVI");
    const QPoint donde = lista.visualItemRect(lista.item(0)).center();
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, donde);
    QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, donde);
    QTest::keyClick(&lista, Qt::Key_Space);
    QCoreApplication::processEvents();
    QVERIFY(!Dialogos::Cargado<FrmFic>());
    QVERIFY(frm.isVisible());
}

void TestTransferencias_Ui::arrastrar_a_su_dibujo_empieza()
{
    auto& frm = Dialogos::Unico<FrmIni>();
    frm.Mostrar();
    Hijo<QListWidget>(frm, "LVI").setCurrentRow(1);
    Al_Abrirse pide([&](QWidget& w) { w.close(); }, "FrmFic");
    Soltar(Hijo<QLabel>(frm, "Image1"), "LVI");
    QCOMPARE(pide.veces, 1);
    QCOMPARE(sala->interfaz.pitidos, 0);
    frm.Mostrar();
    Hijo<QListWidget>(frm, "LVD").setCurrentRow(1);
    sala->Fila("CONVERT", {{"clave", "x"}});
    sala->interfaz.ficheros = {Fichero_Elegido{sala->Ruta("no.txt"), 1}};
    Soltar(Hijo<QLabel>(frm, "Image2"), "LVD");
    QCOMPARE(sala->Tomar_Avisos(), QStringList{"El Fichero especificado no existe"});
}

void TestTransferencias_Ui::arrastrar_al_otro_dibujo_pita_data()
{
    QTest::addColumn<QString>("dibujo");
    QTest::addColumn<QString>("texto");
    QTest::newRow("carga al PC") << "Image1"
                                 << "LVD";
    QTest::newRow("descarga al aparato") << "Image2"
                                         << "LVI";
    QTest::newRow("otra cosa") << "Image1"
                               << "hola";
}

void TestTransferencias_Ui::arrastrar_al_otro_dibujo_pita()
{
    QFETCH(QString, dibujo);
    QFETCH(QString, texto);
    auto& frm = Dialogos::Unico<FrmIni>();
    frm.Mostrar();
    Hijo<QListWidget>(frm, "LVI").setCurrentRow(0);
    Hijo<QListWidget>(frm, "LVD").setCurrentRow(0);
    Soltar(Hijo<QLabel>(frm, dibujo), texto);
    QCOMPARE(sala->interfaz.pitidos, 1);
    QVERIFY(frm.isVisible());
    QVERIFY(!Dialogos::Cargado<FrmFic>());
}

void TestTransferencias_Ui::la_foto_es_la_del_modelo()
{
    QImage foto(20, 20, QImage::Format_RGB32);
    foto.fill(Qt::blue);
    QVERIFY(foto.save(sala->Ruta("bmphlp/ini/a.png")));
    Base_Datos->Execute("UPDATE KRT SET Fotoini='a.png' WHERE Nombre='KRT300-1'");
    auto& frm = Dialogos::Unico<FrmIni>();
    auto& imagen = Hijo<QLabel>(frm, "Picture1");
    frm.Mostrar();
    QVERIFY(!imagen.pixmap().isNull());
    // The settings hand in the key, for which there is no model: the picture stays.
    Nombre_Estacion = "KRT800-1";
    Clave_Estacion = "KRT800";
    Q_EMIT Sucesos::Unico().modelo_cambiado();
    QVERIFY(!imagen.pixmap().isNull());
}

void TestTransferencias_Ui::cerrar_guarda_sitio_y_tamano()
{
    auto& frm = Dialogos::Unico<FrmIni>();
    frm.Mostrar();
    frm.Marco()->setGeometry(31, 32, 640, 480);
    QTest::mouseClick(&Hijo<QPushButton>(frm, "btnAyuda"), Qt::LeftButton);
    QVERIFY(sala->interfaz.arrancados[0].endsWith("Ayuda,transfer.htm"));
    QTest::mouseClick(&Hijo<QPushButton>(frm, "Command1"), Qt::LeftButton);
    QVERIFY(!Dialogos::Cargado<FrmIni>());
    QCOMPARE(sala->Leer("Posicion.ini"),
             QByteArray("[TRANSFERENCIAS]\r\nstate=0\r\ntop=32\r\nleft=31\r\nwidth=640\r\nheight="
                        "480\r\n"));
}

void TestTransferencias_Ui::el_recordatorio_dice_los_ajustes()
{
    auto& frm = Dialogos::Unico<FrmRecuerde>();
    QCOMPARE(Hijo<QLabel>(frm, "Label1").text(),
             QString("Conecte el aparato al puerto COM2 y configúrelo con los siguientes "
                     "parámetros:"));
    QStringList datos;
    for (int i = 0; i < 4; ++i)
        datos << Hijo<QLabel>(frm, "LblDat", i).text();
    QCOMPARE(datos, QStringList({"Velocidad: 1200", "Bits de Datos: 8", "Paridad: None",
                                 "Bit de Parada: 1"}));
}

void TestTransferencias_Ui::el_recordatorio_se_apaga_al_momento()
{
    Ayuda_Recuerde = true;
    auto& frm = Dialogos::Unico<FrmRecuerde>();
    auto& casilla = Hijo<QCheckBox>(frm, "Check1");
    QCOMPARE(casilla.text(), QString("No volver a mostrar la proxima vez"));
    casilla.click();
    QVERIFY(!Ayuda_Recuerde);
    QCOMPARE(sala->Leer("EstTotal.ini"), QByteArray("[AYUDA]\r\nRecuerde=NO\r\n"));
    casilla.click();
    QVERIFY(Ayuda_Recuerde);
    QCOMPARE(sala->Leer("EstTotal.ini"), QByteArray("[AYUDA]\r\nRecuerde=SI\r\n"));
    QTest::mouseClick(&Hijo<QPushButton>(frm, "BtnCont"), Qt::LeftButton);
    QVERIFY(!Dialogos::Cargado<FrmRecuerde>());
}

void TestTransferencias_Ui::el_nombre_no_queda_en_blanco()
{
    Al_Abrirse pide([&](QWidget& w) {
        QCOMPARE(w.windowTitle(), QString("Introduzca el nombre de Sesión"));
        auto& caja = Hijo<QLineEdit>(w, "Txt");
        QTest::keyClick(&caja, Qt::Key_Return);
        QCOMPARE(sala->Tomar_Avisos(),
                 QStringList("El Nombre del Fichero no puede quedar en blanco"));
        QVERIFY(w.isVisible());
        // The column takes no more.
        QTest::keyClicks(&caja, QString(60, 'x'));
        QCOMPARE(caja.text().size(), 50);
        caja.setText("La obra");
        QTest::keyClick(&caja, Qt::Key_Return);
    });
    QCOMPARE(Pedir_Nombre_Sesion(), QString("La obra"));
    // A new question begins empty.
    Al_Abrirse otra([&](QWidget& w) {
        QCOMPARE(Hijo<QLineEdit>(w, "Txt").text(), QString());
        QTest::mouseClick(&Hijo<QPushButton>(w, "BtnCan"), Qt::LeftButton);
    });
    QCOMPARE(Pedir_Nombre_Sesion(), QString());
}

void TestTransferencias_Ui::cancelar_el_nombre_deja_todo_cerrado()
{
    auto& frm = Dialogos::Unico<FrmIni>();
    frm.Mostrar();
    Hijo<QListWidget>(frm, "LVI").setCurrentRow(0);
    Al_Abrirse pide([&](QWidget& w) { QTest::keyClick(&w, Qt::Key_Escape); }, "FrmFic");
    QTest::keyClick(&Hijo<QListWidget>(frm, "LVI"), Qt::Key_Enter);
    QCOMPARE(pide.veces, 1);
    QVERIFY(!frm.isVisible());
    QVERIFY(Dialogos::Cargado<FrmIni>());
    QVERIFY(!Dialogos::Cargado<FrmSplash>());
    QCOMPARE(puertos, 0);
}

void TestTransferencias_Ui::el_orden_de_una_descarga()
{
    Ayuda_Recuerde = Ayuda_Visible = true;
    sala->Fila(
        "Ayudas",
        {{"Maquina", "KRT300-1"}, {"OPE", 0}, {"TipOpe", "D"}, {"Sec", 1}, {"Texto", "Encienda"}});
    QStringList orden;
    Al_Abrirse recuerde(
        [&](QWidget& w) {
            orden << w.objectName();
            QTest::keyClick(&w, Qt::Key_Return);
        },
        "FrmRecuerde");
    Al_Abrirse ayuda(
        [&](QWidget& w) {
            orden << w.objectName() + Hijo<QLabel>(w, "Label1").text();
            QVERIFY(!Dialogos::Cargado<FrmSplash>());
            QTest::mouseClick(&Hijo<QPushButton>(w, "BtnSiguiente"), Qt::LeftButton);
        },
        "FrmAyuda");
    FrmSplash& splash = Empezar();
    QCOMPARE(orden, QStringList({"FrmRecuerde", "FrmAyudaEncienda"}));
    QVERIFY(splash.isVisible());
}

void TestTransferencias_Ui::una_descarga_entera()
{
    FrmSplash& splash = Empezar("Día 1");
    auto& etiqueta = Hijo<QLabel>(splash, "Label1");
    auto& rayo = Hijo<QLabel>(splash, "Rayo");
    auto& boton = Hijo<QPushButton>(splash, "BtnIniciar");
    QCOMPARE(boton.text(), QString("Iniciar"));
    QCOMPARE(etiqueta.text(), QString("Pulse [&Iniciar] para comenzar la comunicación..."));
    QVERIFY(rayo.isHidden());
    QTest::mouseClick(&boton, Qt::LeftButton);
    QCOMPARE(etiqueta.text(), QString("Esperando Datos..."));
    QVERIFY(!boton.isEnabled());
    QCOMPARE(puerto->Tomar(), QByteArray("\5"));
    puerto->Llegan(Trama("_+P1        _ y+0001234567_ x+0007654321_ cARB"));
    QCOMPARE(etiqueta.text(), QString("Recibiendo datos ..."));
    QVERIFY(!rayo.isHidden());
    QCOMPARE(puerto->Tomar(), QByteArray("\6"));
    puerto->Llegan("\4");
    QVERIFY(!splash.isVisible());
    QCOMPARE(&Dialogos::Unico<FrmSplash>(), &splash);
    QCOMPARE(etiqueta.text(), QString("Pulse &Iniciar para empezar la descarga"));
    QVERIFY(rayo.isHidden());
    QVERIFY(!puerto->abierto);
    auto* const sesiones = Dialogos::Cargado<frmDescargas>();
    QVERIFY(sesiones && sesiones->isVisible());
    const auto* const modelo = Hijo<QTableView>(*sesiones, "DBGrid1").model();
    QCOMPARE(modelo->rowCount(), 1);
    QCOMPARE(modelo->index(0, 4).data().toString(), QString("Día 1"));
    QCOMPARE(Hijo<QTableView>(*sesiones, "DBGrid1").currentIndex().row(), 0);
    sala->Tomar_Avisos();
}

void TestTransferencias_Ui::el_decimo_sondeo_avisa_y_cierra()
{
    FrmSplash& splash = Empezar();
    QTest::mouseClick(&Hijo<QPushButton>(splash, "BtnIniciar"), Qt::LeftButton);
    for (int i = 0; i < 10; ++i)
        splash.La_Descarga().Tic();
    QCOMPARE(sala->interfaz.avisos.value(0).icono, Icono::Exclamacion);
    QCOMPARE(sala->Tomar_Avisos(),
             QStringList("Error de comunicación ,compruebe que el cable esta bien conectado a su "
                         "PC \r\n y que la configuración de Comunicaciones es correcta"));
    QVERIFY(!Dialogos::Cargado<FrmSplash>());
    QVERIFY(!Dialogos::Cargado<frmDescargas>());
}

void TestTransferencias_Ui::la_etiqueta_lleva_al_boton()
{
    FrmSplash& splash = Empezar();
    QCOMPARE(Hijo<QLabel>(splash, "Label1").buddy(), &Hijo<QPushButton>(splash, "BtnIniciar"));
    QTest::keyClick(&splash, Qt::Key_Return);
    QCOMPARE(Hijo<QLabel>(splash, "Label1").text(), QString("Esperando Datos..."));
}

void TestTransferencias_Ui::el_rayo_va_por_sus_sitios()
{
    FrmSplash& splash = Empezar();
    QTest::mouseClick(&Hijo<QPushButton>(splash, "BtnIniciar"), Qt::LeftButton);
    auto& rayo = Hijo<QLabel>(splash, "Rayo");
    QList<QPoint> sitios{rayo.mapTo(&splash, QPoint())};
    for (int i = 0; i < 46 * 7; ++i) {
        puerto->Llegan("x");
        const QPoint sitio = rayo.mapTo(&splash, QPoint());
        if (sitio != sitios.last()) sitios << sitio;
    }
    QCOMPARE(
        sitios,
        QList<QPoint>(
            {{52, 72}, {76, 70}, {92, 68}, {108, 63}, {124, 57}, {140, 53}, {152, 53}, {52, 72}}));
}

void TestTransferencias_Ui::cerrar_a_medias_libera_el_puerto()
{
    FrmSplash& splash = Empezar();
    QTest::mouseClick(&Hijo<QPushButton>(splash, "BtnIniciar"), Qt::LeftButton);
    puerto->Llegan(Trama("_+P1        "));
    sala->interfaz.respuestas = {false, true};
    QTest::keyClick(&splash, Qt::Key_Escape);
    QVERIFY(splash.isVisible());
    QVERIFY(puerto->abierto);
    QTest::keyClick(&splash, Qt::Key_Escape);
    QCOMPARE(sala->Tomar_Avisos(),
             QStringList(2, "La transferencia no ha terminado, ¿ Desea abandonarla ?"));
    QVERIFY(!Dialogos::Cargado<FrmSplash>());
    QVERIFY(!puerto->abierto);
    QCOMPARE(sala->Columna("SELECT ID FROM Sesiones"), QStringList());
    // What came stays in the journal.
    QCOMPARE(QDir(sala->Ruta("LOG")).entryList(QDir::Files).filter("KRT300").size(), 1);
}

void TestTransferencias_Ui::la_segunda_vez_trae_la_que_esta()
{
    FrmSplash& splash = Empezar();
    QTest::mouseClick(&Hijo<QPushButton>(splash, "BtnIniciar"), Qt::LeftButton);
    auto& frm = Dialogos::Unico<FrmIni>();
    frm.Mostrar();
    Hijo<QListWidget>(frm, "LVI").setCurrentRow(1);
    QTest::keyClick(&Hijo<QListWidget>(frm, "LVI"), Qt::Key_Return);
    QCOMPARE(sala->interfaz.pitidos, 1);
    QCOMPARE(&Dialogos::Unico<FrmSplash>(), &splash);
    QCOMPARE(qobject_cast<QMdiSubWindow*>(splash.Marco()), sala->area.activeSubWindow());
    QCOMPARE(puertos, 1);
}

void TestTransferencias_Ui::el_puerto_que_falla_no_abre_el_dialogo()
{
    FrmSplash::Hacer_Puerto = [] {
        auto nuevo = std::make_unique<Puerto_Memoria>();
        nuevo->error_al_abrir = 8005;
        return nuevo;
    };
    Empezar();
    QCOMPARE(sala->Tomar_Avisos(),
             QStringList("Se produjo un error al Abrir el Puerto; revise la configuración\r(8005) "
                         "El puerto ya está abierto"));
    QVERIFY(!Dialogos::Visible<FrmSplash>());
}

PRUEBA(TestTransferencias_Ui)
#include "TestTransferencias_Ui.moc"

#include "codes/ui/Dialogos_Codigos.h"
#include "codes/ui/frmCodCrear800.h"
#include "codes/ui/FrmCodigos.h"
#include "codes/ui/frmCodigos800.h"
#include "codes/ui/FrmCodMan800.h"
#include "codes/ui/FrmCodRecibir.h"
#include "codes/ui/FrmCREDLib1.h"
#include "core/ui/Dialogos.h"
#include "tests/apoyo/Hijo.h"
#include "tests/apoyo/Prueba.h"
#include "tests/codes/Sala_Librerias.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTableWidget>

// The dialogs of the code libraries, by the names of their controls.
class TestDialogos_Codigos : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void cada_familia_abre_la_suya();
    void los_textos_son_los_suyos();
    void serie_a_se_llena_y_se_vuelve_a_abrir();
    void serie_a_con_sus_botones();
    void serie_a_desde_el_teclado();
    void serie_a_pregunta_al_cambiar_y_al_cerrar();
    void serie_a_guarda_lo_que_ensena();
    void serie_a_crea_y_describe();
    void serie_a_envia_y_recibe();
    void lo_que_llega_no_quita_lo_tecleado();
    void buscar_va_a_la_fila();
    void serie_b_se_llena_y_se_vuelve_a_abrir();
    void serie_b_codigo_a_codigo();
    void serie_b_desde_el_teclado();
    void serie_b_crea_y_describe();
    void serie_b_envia();
    void sin_librerias_no_se_rompe_nada();
    void recibir_pide_el_destino();
    void recibir_cancelado();

private:
    template <typename T> static T& Abrir()
    {
        auto& frm = Dialogos::Unico<T>();
        frm.Mostrar();
        return frm;
    }
    static void Pulsar(QObject& donde, const char* boton)
    {
        QTest::mouseClick(&Hijo<QPushButton>(donde, boton), Qt::LeftButton);
    }
    static QStringList Columna(const QAbstractItemView& rejilla, int columna)
    {
        QStringList textos;
        for (int i = 0; i < rejilla.model()->rowCount(); ++i)
            textos << rejilla.model()->index(i, columna).data().toString();
        return textos;
    }
    static void Elegir(QObject& donde, int entrada)
    {
        auto& combo = Hijo<QComboBox>(donde, "Combo1");
        combo.setCurrentIndex(entrada);
        Q_EMIT combo.activated(entrada);
    }

    std::unique_ptr<Sala_Librerias> sala;
    std::unique_ptr<QMdiArea> area;
};

void TestDialogos_Codigos::init()
{
    sala = std::make_unique<Sala_Librerias>();
    area = std::make_unique<QMdiArea>();
    area->resize(1000, 700);
    area->show();
    Ventana::Poner_Area(area.get());
    Conectar_Dialogos_Codigos();
    Peticiones_De_Codigos().Enviar = [this](const QString& t) { sala->enviados << t; };
    Peticiones_De_Codigos().Recibir_En_FrmSplash2 = [this](const Destino_Libreria& d) {
        sala->en_splash2 << d;
    };
}

void TestDialogos_Codigos::cleanup()
{
    QCOMPARE(sala->interfaz.respuestas.size(), std::size_t(0));
    // A dialog that was left with changes asks once more.
    sala->interfaz.respuestas.assign(2, true);
    Limpiar_Ventanas();
    sala->interfaz.respuestas.clear();
    sala->interfaz.avisos.clear();
    area.reset();
    sala.reset();
}

void TestDialogos_Codigos::cada_familia_abre_la_suya()
{
    for (const auto& [familia, serie_b] :
         {std::pair{"KRT300", false}, {"PX7", false}, {"KRT800", true}, {"NV400", false}}) {
        Clave_Estacion = familia;
        Mostrar_Librerias();
        QCOMPARE(Dialogos::Visible<FrmCodigos>(), !serie_b);
        QCOMPARE(Dialogos::Visible<frmCodigos800>(), serie_b);
        QCOMPARE(Ventana::Cargadas().first()->windowTitle(),
                 QString("Mantenimiento de Librerías de Códigos"));
        Limpiar_Ventanas();
    }
}

void TestDialogos_Codigos::los_textos_son_los_suyos()
{
    auto& a = Abrir<FrmCodigos>();
    QCOMPARE(a.windowTitle(), QString("Librerías de Códigos"));
    struct Boton {
        const char *nombre, *texto, *consejo;
    };
    for (const Boton& b :
         {Boton{"BtnADDCod", "&Añadir", "Añadir un código al final de la lista"},
          {"BtnIns", "&Insertar", "Insertar un código antes del seleccionado"},
          {"BtnEdiCod", "&Editar", "Editar el valor del Código seleccionado"},
          {"BTnEli", "&Eliminar", "Elimar el código seleccionado"},
          {"BtnGua", "&Guardar", "Guardar  librería de códigos"},
          {"BtnEdi", "&Editar", "Editar descripción de  la librería de códigos"}}) {
        QCOMPARE(Hijo<QPushButton>(a, b.nombre).text(), QString(b.texto));
        QCOMPARE(Hijo<QPushButton>(a, b.nombre).toolTip(), QString(b.consejo));
    }
    QCOMPARE(Abrir<frmCodigos800>().windowTitle(), QString("Librerías de Códigos"));
    QCOMPARE(FrmCREDLib1().windowTitle(), QString("Crear/Editar Librería de códigos"));
    QCOMPARE(frmCodCrear800().windowTitle(), QString("Crear código"));
    QCOMPARE(FrmCodMan800().windowTitle(), QString("Crear/Editar Códigos"));
    FrmCodRecibir recibir;
    QCOMPARE(recibir.windowTitle(), QString("Recibir librería de Códigos"));
    QCOMPARE(Hijo<QRadioButton>(recibir, "OptDes", 0).text(), QString("Base de Datos MIRALDOS"));
    QCOMPARE(Hijo<QRadioButton>(recibir, "OptDes", 1).text(), QString("Fichero de Texto"));
}

void TestDialogos_Codigos::serie_a_se_llena_y_se_vuelve_a_abrir()
{
    for (int vez = 0; vez < 2; ++vez) {
        auto& frm = Abrir<FrmCodigos>();
        auto& combo = Hijo<QComboBox>(frm, "Combo1");
        QCOMPARE(combo.count(), 2);
        QCOMPARE(combo.currentText(), QString("De GEN"));
        QCOMPARE(combo.property("Tag").toString(), QString("GEN\6VACIA"));
        QCOMPARE(Hijo<QLabel>(frm, "lblDes").text(), QString("De GEN"));
        QCOMPARE(Columna(Hijo<QTableWidget>(frm, "MSF"), 1),
                 (QStringList{"ARBOL", "CASA", "MURO"}));
        Elegir(frm, 1);
        QCOMPARE(Hijo<QTableWidget>(frm, "MSF").rowCount(), 0);
        QCOMPARE(Hijo<QLabel>(frm, "LblCod").text(), QString("VACIA"));
        frm.Marco()->move(30 + vez, 40);
        Pulsar(frm, "BtnSal");
        QVERIFY(!Dialogos::Cargado<FrmCodigos>());
        QVERIFY(sala->Leer("Posicion.ini").contains("[CODIGOS]"));
        QVERIFY(sala->Leer("Posicion.ini").contains("left=" + QByteArray::number(30 + vez)));
    }
    QCOMPARE(Abrir<FrmCodigos>().Marco()->x(), 31);
}

void TestDialogos_Codigos::serie_a_con_sus_botones()
{
    auto& frm = Abrir<FrmCodigos>();
    auto& rejilla = Hijo<QTableWidget>(frm, "MSF");
    QVERIFY(!Hijo<QPushButton>(frm, "BtnGua").isEnabled());
    sala->interfaz.textos = {QString("FIN"), QString("EN MEDIO"), QString("CAMBIO")};
    sala->interfaz.respuestas = {true};
    Pulsar(frm, "BtnADDCod");
    QCOMPARE(rejilla.currentRow(), 3);
    QVERIFY(Hijo<QPushButton>(frm, "BtnGua").isEnabled());
    rejilla.setCurrentCell(1, 1);
    Pulsar(frm, "BtnIns");
    Pulsar(frm, "BtnEdiCod");
    rejilla.setCurrentCell(0, 1);
    Pulsar(frm, "BTnEli");
    QCOMPARE(Columna(rejilla, 1), (QStringList{"CAMBIO", "CASA", "MURO", "FIN"}));
    QCOMPARE(Columna(rejilla, 0), (QStringList{"1", "2", "3", "4"}));
    Pulsar(frm, "BtnOrd");
    QCOMPARE(Columna(rejilla, 1), (QStringList{"CAMBIO", "CASA", "FIN", "MURO"}));
    QCOMPARE(sala->Tomar_Avisos(), QStringList{"¿ Eliminar Código ?"});
}

void TestDialogos_Codigos::serie_a_desde_el_teclado()
{
    auto& frm = Abrir<FrmCodigos>();
    QApplication::setActiveWindow(area.get());
    auto& rejilla = Hijo<QTableWidget>(frm, "MSF");
    QTRY_COMPARE(QApplication::focusWidget(), &rejilla);
    const auto editor = [&] { return qobject_cast<QLineEdit*>(QApplication::focusWidget()); };
    // Enter and F2 open the cell, a letter replaces what it holds.
    for (const int tecla : {Qt::Key_Return, Qt::Key_F2}) {
        QTest::keyClick(&rejilla, Qt::Key(tecla));
        QVERIFY(editor());
        QCOMPARE(editor()->maxLength(), 10);
        // A key that the cell's box has no use for doesn't reach the grid's buttons.
        QTest::keyClick(editor(), Qt::Key_Insert);
        QTest::keyClick(editor(), Qt::Key_Escape);
        QTRY_COMPARE(QApplication::focusWidget(), &rejilla);
    }
    QVERIFY(!Hijo<QPushButton>(frm, "BtnGua").isEnabled());
    QTest::keyClick(&rejilla, Qt::Key_Down);
    QTest::keyClicks(&rejilla, "P");
    QVERIFY(editor());
    QTest::keyClicks(editor(), "OZO");
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(Columna(rejilla, 1), (QStringList{"ARBOL", "POZO", "MURO"}));
    QVERIFY(Hijo<QPushButton>(frm, "BtnGua").isEnabled());
    QTRY_COMPARE(QApplication::focusWidget(), &rejilla);
    // What is no code leaves the cell as it was.
    QTest::keyClick(&rejilla, Qt::Key_F2);
    QTest::keyClicks(editor(), "A_B");
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(!sala->interfaz.avisos.isEmpty());
    QCOMPARE(sala->Tomar_Avisos(), QStringList{"El carácter '_' es reservado"});
    QCOMPARE(Columna(rejilla, 1)[1], QString("POZO"));
    QTRY_COMPARE(QApplication::focusWidget(), &rejilla);
    sala->interfaz.textos = {QString("NUEVO")};
    QTest::keyClick(&rejilla, Qt::Key_Insert);
    QCOMPARE(Columna(rejilla, 1), (QStringList{"ARBOL", "NUEVO", "POZO", "MURO"}));
    sala->interfaz.respuestas = {true};
    QTest::keyClick(&rejilla, Qt::Key_Delete);
    QCOMPARE(Columna(rejilla, 1), (QStringList{"ARBOL", "POZO", "MURO"}));
    QTest::keyClick(&rejilla, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(sala->Codigos(Serie::A, "GEN"), (QStringList{"ARBOL", "POZO", "MURO"}));
    // With nothing left to save, Escape closes unasked.
    sala->Tomar_Avisos();
    QTest::keyClick(&frm, Qt::Key_Escape);
    QVERIFY(!Dialogos::Cargado<FrmCodigos>());
}

void TestDialogos_Codigos::serie_a_pregunta_al_cambiar_y_al_cerrar()
{
    const QString pregunta = "los cambios efectuados no han sido guardados, ¿ Desea Continuar ?";
    auto& frm = Abrir<FrmCodigos>();
    Hijo<QTableWidget>(frm, "MSF").item(0, 1)->setText("OTRO");
    sala->interfaz.respuestas = {false, false, false};
    Elegir(frm, 1);
    QCOMPARE(Hijo<QComboBox>(frm, "Combo1").currentIndex(), 0);
    QCOMPARE(Columna(Hijo<QTableWidget>(frm, "MSF"), 1)[0], QString("OTRO"));
    Pulsar(frm, "BtnSal");
    // The frame's own close box asks as well.
    frm.Marco()->close();
    QVERIFY(Dialogos::Visible<FrmCodigos>());
    QVERIFY(frm.Marco()->isVisible());
    QCOMPARE(sala->Tomar_Avisos(), QStringList(3, pregunta));
    sala->interfaz.respuestas = {true};
    frm.Marco()->close();
    QVERIFY(!Dialogos::Cargado<FrmCodigos>());
    QCOMPARE(sala->Tomar_Avisos(), QStringList{pregunta});
    QCOMPARE(sala->Codigos(Serie::A, "GEN")[0], QString("ARBOL"));
}

void TestDialogos_Codigos::serie_a_guarda_lo_que_ensena()
{
    auto& frm = Abrir<FrmCodigos>();
    Hijo<QTableWidget>(frm, "MSF").item(2, 1)->setText("OTRO");
    Pulsar(frm, "BtnGua");
    QVERIFY(!Hijo<QPushButton>(frm, "BtnGua").isEnabled());
    QCOMPARE(sala->Codigos(Serie::A, "GEN"), (QStringList{"ARBOL", "CASA", "OTRO"}));
    Elegir(frm, 1);
    Elegir(frm, 0);
    QCOMPARE(Columna(Hijo<QTableWidget>(frm, "MSF"), 1)[2], QString("OTRO"));
    QVERIFY(sala->interfaz.avisos.isEmpty());
}

void TestDialogos_Codigos::serie_a_crea_y_describe()
{
    auto& frm = Abrir<FrmCodigos>();
    const Al_Abrirse crear(
        [&](QWidget& w) {
            QCOMPARE(w.windowTitle(), QString("Crear Librería de Códigos"));
            QCOMPARE(QApplication::focusWidget(), &Hijo<QLineEdit>(w, "Text1"));
            QTest::keyClick(&w, Qt::Key_Return);
            QTest::keyClicks(&Hijo<QLineEdit>(w, "Text1"), "NUEVA LIBRERIA DE MAS DE VEINTE");
            QTest::keyClick(&w, Qt::Key_Return);
            QTest::keyClicks(&Hijo<QLineEdit>(w, "Text2"), "La nueva");
            QTest::keyClick(&w, Qt::Key_Return);
        },
        "FrmCREDLib1");
    Pulsar(frm, "BtnNueLib");
    QCOMPARE(crear.veces, 1);
    QCOMPARE(sala->Tomar_Avisos(),
             (QStringList{"El código de Librería no se puede dejar en blanco",
                          "La descripción de la Librería no se puede dejar en blanco"}));
    QCOMPARE(Hijo<QComboBox>(frm, "Combo1").currentText(), QString("La nueva"));
    QCOMPARE(Hijo<QLabel>(frm, "LblCod").text(), QString("NUEVA LIBRERIA DE MA"));
    const Al_Abrirse editar(
        [&](QWidget& w) {
            QCOMPARE(w.windowTitle(), QString("Editar Librería de Códigos"));
            QVERIFY(!Hijo<QLineEdit>(w, "Text1").isEnabled());
            Hijo<QLineEdit>(w, "Text2").setText("Otra");
            Pulsar(w, "BtnAce");
        },
        "FrmCREDLib1");
    Pulsar(frm, "BtnEdi");
    QCOMPARE(editar.veces, 1);
    QCOMPARE(Hijo<QLabel>(frm, "lblDes").text(), QString("Otra"));
    const Al_Abrirse cancelar([](QWidget& w) { Pulsar(w, "BtnCan"); }, "FrmCREDLib1");
    Pulsar(frm, "BtnEdi");
    QCOMPARE(Hijo<QLabel>(frm, "lblDes").text(), QString("Otra"));
    sala->interfaz.respuestas = {true};
    Pulsar(frm, "BtnEliLib");
    QCOMPARE(sala->Claves(Serie::A), (QStringList{"GEN", "VACIA"}));
    QCOMPARE(Hijo<QComboBox>(frm, "Combo1").count(), 2);
}

void TestDialogos_Codigos::serie_a_envia_y_recibe()
{
    auto& frm = Abrir<FrmCodigos>();
    sala->interfaz.respuestas = {true, true};
    sala->interfaz.textos = {QString("REC")};
    Pulsar(frm, "BtnEnvLib");
    QCOMPARE(sala->enviados.size(), 1);
    Pulsar(frm, "BtnRecLib");
    QCOMPARE(sala->en_splash2.size(), 1);
    QVERIFY(Guardar_Libreria("_:001EJE       _", Destino::Base, "REC").Completa());
    QCOMPARE(Hijo<QLabel>(frm, "LblCod").text(), QString("REC"));
    QCOMPARE(Columna(Hijo<QTableWidget>(frm, "MSF"), 1), QStringList{"EJE"});
}

void TestDialogos_Codigos::lo_que_llega_no_quita_lo_tecleado()
{
    auto& frm = Abrir<FrmCodigos>();
    Hijo<QTableWidget>(frm, "MSF").item(0, 1)->setText("OTRO");
    sala->Crear_A("LLEGA", {"X"});
    QCOMPARE(Hijo<QComboBox>(frm, "Combo1").count(), 3);
    QCOMPARE(Columna(Hijo<QTableWidget>(frm, "MSF"), 1)[0], QString("OTRO"));
    QVERIFY(Hijo<QPushButton>(frm, "BtnGua").isEnabled());
}

void TestDialogos_Codigos::buscar_va_a_la_fila()
{
    auto& frm = Abrir<FrmCodigos>();
    auto& caja = Hijo<QLineEdit>(frm, "TxtBuscar");
    auto& rejilla = Hijo<QTableWidget>(frm, "MSF");
    QTest::keyClicks(&caja, "a");
    QCOMPARE(rejilla.currentRow(), 0);
    QTest::keyClick(&caja, Qt::Key_Return);
    QCOMPARE(rejilla.currentRow(), 1);
    QTest::keyClick(&caja, Qt::Key_Return);
    QCOMPARE(rejilla.currentRow(), 0);
    QTest::keyClicks(&caja, "x");
    QCOMPARE(sala->interfaz.pitidos, 1);
    auto& b = Abrir<frmCodigos800>();
    QTest::keyClicks(&Hijo<QLineEdit>(b, "TxtBuscar"), "bor");
    QCOMPARE(Hijo<QTableView>(b, "DBGrid1").currentIndex().row(), 1);
}

void TestDialogos_Codigos::serie_b_se_llena_y_se_vuelve_a_abrir()
{
    for (int vez = 0; vez < 2; ++vez) {
        auto& frm = Abrir<frmCodigos800>();
        auto& rejilla = Hijo<QTableView>(frm, "DBGrid1");
        QStringList titulos;
        for (int i = 0; i < rejilla.model()->columnCount(); ++i)
            titulos << rejilla.model()->headerData(i, Qt::Horizontal).toString();
        QCOMPARE(titulos, (QStringList{"Código", "Entidad", "Capa"}));
        QCOMPARE(Columna(rejilla, 0), (QStringList{"EJE", "BORDE"}));
        QCOMPARE(Columna(rejilla, 1), (QStringList{"Línea", "Punto"}));
        QCOMPARE(Columna(rejilla, 2), (QStringList{"EJES", "CALZADA"}));
        QCOMPARE(Hijo<QLabel>(frm, "lblDes").text(), QString("Obra lineal"));
        Elegir(frm, 1);
        QCOMPARE(rejilla.model()->rowCount(), 0);
        Pulsar(frm, "BtnSal");
        QVERIFY(!Dialogos::Cargado<frmCodigos800>());
    }
    QVERIFY(sala->Leer("Posicion.ini").contains("[CODIGOS800]"));
}

void TestDialogos_Codigos::serie_b_codigo_a_codigo()
{
    auto& frm = Abrir<frmCodigos800>();
    auto& rejilla = Hijo<QTableView>(frm, "DBGrid1");
    const Al_Abrirse crear(
        [&](QWidget& w) {
            QCOMPARE(w.windowTitle(), QString("Crear código"));
            auto& entidad = Hijo<QComboBox>(w, "cmbEntidad");
            QCOMPARE(entidad.property("Tag").toString(), QString("1\0062"));
            QCOMPARE(entidad.count(), 2);
            QTest::keyClicks(&Hijo<QLineEdit>(w, "txtCodigo"), "A,");
            Pulsar(w, "BtnAce");
            Hijo<QLineEdit>(w, "txtCodigo").setText("ARCEN");
            entidad.setCurrentIndex(1);
            QTest::keyClicks(&Hijo<QLineEdit>(w, "txtCapa"), "CALZADA");
            QTest::keyClick(&w, Qt::Key_Return);
        },
        "FrmCodMan800");
    Pulsar(frm, "BtnADDCod");
    QCOMPARE(sala->Tomar_Avisos(), QStringList{"El carácter ',' es reservado"});
    QCOMPARE(Columna(rejilla, 0), (QStringList{"EJE", "BORDE", "ARCEN"}));
    QCOMPARE(rejilla.currentIndex().row(), 2);
    rejilla.selectRow(1);
    const Al_Abrirse editar(
        [&](QWidget& w) {
            QCOMPARE(w.windowTitle(), QString("Editar código"));
            QCOMPARE(Hijo<QLineEdit>(w, "txtCodigo").text(), QString("BORDE"));
            QCOMPARE(Hijo<QComboBox>(w, "cmbEntidad").currentText(), QString("Punto"));
            QCOMPARE(Hijo<QLineEdit>(w, "txtCapa").text(), QString("CALZADA"));
            Hijo<QLineEdit>(w, "txtCapa").setText("BORDES");
            Pulsar(w, "BtnAce");
        },
        "FrmCodMan800");
    Pulsar(frm, "BtnEdiCod");
    QCOMPARE(sala->Codigos(Serie::B, "CAR"),
             (QStringList{"1:EJE,2,EJES", "2:BORDE,1,BORDES", "3:ARCEN,2,CALZADA"}));
    QCOMPARE(rejilla.currentIndex().row(), 1);
    sala->interfaz.respuestas = {true, true};
    Pulsar(frm, "BTnEli");
    QCOMPARE(Columna(rejilla, 0), (QStringList{"EJE", "ARCEN"}));
    QCOMPARE(rejilla.currentIndex().row(), 1);
    Pulsar(frm, "BtnOrd");
    QCOMPARE(sala->Codigos(Serie::B, "CAR"), (QStringList{"1:ARCEN,2,CALZADA", "2:EJE,2,EJES"}));
}

void TestDialogos_Codigos::serie_b_desde_el_teclado()
{
    auto& frm = Abrir<frmCodigos800>();
    auto& rejilla = Hijo<QTableView>(frm, "DBGrid1");
    for (const auto& [tecla, titulo] : {std::pair{Qt::Key_Return, "Editar código"},
                                        {Qt::Key_F2, "Editar código"},
                                        {Qt::Key_Insert, "Crear código"}}) {
        QString visto;
        const Al_Abrirse salir(
            [&](QWidget& w) {
                visto = w.windowTitle();
                QTest::keyClick(&w, Qt::Key_Escape);
            },
            "FrmCodMan800");
        QTest::keyClick(&rejilla, tecla);
        QCOMPARE(visto, QString(titulo));
    }
    sala->interfaz.respuestas = {true};
    QTest::keyClick(&rejilla, Qt::Key_Down);
    QTest::keyClick(&rejilla, Qt::Key_Delete);
    QCOMPARE(sala->Codigos(Serie::B, "CAR"), QStringList{"1:EJE,2,EJES"});
    QTest::keyClick(&rejilla, Qt::Key_Escape);
    QVERIFY(!Dialogos::Cargado<frmCodigos800>());
}

void TestDialogos_Codigos::serie_b_crea_y_describe()
{
    auto& frm = Abrir<frmCodigos800>();
    const Al_Abrirse crear(
        [&](QWidget& w) {
            QCOMPARE(w.windowTitle(), QString("Crear librería de códigos"));
            Pulsar(w, "BtnAce");
            Hijo<QLineEdit>(w, "txtCod").setText("CAR");
            Pulsar(w, "BtnAce");
            Hijo<QLineEdit>(w, "txtDes").setText("d");
            Pulsar(w, "BtnAce");
            Hijo<QLineEdit>(w, "txtCod").setText("TUNEL");
            Pulsar(w, "BtnAce");
        },
        "frmCodCrear800");
    Pulsar(frm, "BtnNueLib");
    QCOMPARE(sala->Tomar_Avisos(), (QStringList{"El código de librería no se puede dejar en blanco",
                                                "La descripción no se puede dejar en blanco",
                                                "El Código ya existe, introduzca uno diferente"}));
    QCOMPARE(Hijo<QComboBox>(frm, "Combo1").currentText(), QString("TUNEL"));
    const Al_Abrirse editar(
        [&](QWidget& w) {
            QCOMPARE(w.windowTitle(), QString("Editar librería de códigos"));
            Hijo<QLineEdit>(w, "txtDes").setText("Túnel");
            Pulsar(w, "BtnAce");
        },
        "frmCodCrear800");
    Pulsar(frm, "BtnEdi");
    QCOMPARE(Hijo<QLabel>(frm, "lblDes").text(), QString("Túnel"));
}

void TestDialogos_Codigos::serie_b_envia()
{
    Clave_Estacion = "KRT800";
    auto& frm = Abrir<frmCodigos800>();
    sala->interfaz.respuestas = {true};
    Pulsar(frm, "BtnEnvLib");
    QCOMPARE(sala->enviados, QStringList{"EJE,2,EJES\r\nBORDE,1,CALZADA\r\n"});
    Elegir(frm, 1);
    sala->Tomar_Avisos();
    Pulsar(frm, "BtnEnvLib");
    QCOMPARE(
        sala->Tomar_Avisos(),
        QStringList{"No hay ninguna librería seleccionada o \r\nla librería no contiene códigos"});
}

void TestDialogos_Codigos::sin_librerias_no_se_rompe_nada()
{
    for (const char* tabla : {"Lib1", "LIB800", "LIB800_2"})
        Base_Datos->Execute(QStringLiteral("DELETE FROM %1").arg(tabla));
    for (Ventana* const frm : {static_cast<Ventana*>(&Abrir<FrmCodigos>()),
                               static_cast<Ventana*>(&Abrir<frmCodigos800>())}) {
        sala->interfaz.pitidos = 0;
        int pulsados = 0;
        for (const char* b : {"BtnADDCod", "BtnIns", "BtnEdiCod", "BTnEli", "BtnOrd", "BtnEdi",
                              "BtnEliLib", "BtnCopLib", "BtnExpLib"})
            if (auto* const boton = frm->findChild<QPushButton*>(b)) {
                boton->click();
                ++pulsados;
            }
        QCOMPARE(sala->interfaz.pitidos, pulsados);
        Pulsar(*frm, "BtnEnvLib");
        QCOMPARE(sala->Tomar_Avisos().size(), 1);
    }
}

void TestDialogos_Codigos::recibir_pide_el_destino()
{
    for (int vez = 0; vez < 2; ++vez) {
        const Al_Abrirse pedir(
            [&](QWidget& w) {
                auto& caja = Hijo<QLineEdit>(w, "Text1");
                auto& ubicar = Hijo<QPushButton>(w, "BtnSelFic");
                QVERIFY(Hijo<QRadioButton>(w, "OptDes", 0).isChecked());
                QCOMPARE(Hijo<QLabel>(w, "Label1").text(), QString("Librería:"));
                QVERIFY(!ubicar.isVisible());
                QTest::keyClick(&w, Qt::Key_Return);
                QTest::keyClicks(&caja, "GEN");
                QTest::keyClick(&w, Qt::Key_Return);
                Hijo<QRadioButton>(w, "OptDes", 1).click();
                QCOMPARE(Hijo<QLabel>(w, "Label1").text(), QString("Fichero:"));
                QVERIFY(ubicar.isVisible());
                sala->interfaz.ficheros = {Fichero_Elegido{sala->Ruta("recibida.txt")}};
                Pulsar(w, "BtnSelFic");
                QCOMPARE(caja.text(), sala->Ruta("recibida.txt"));
                Pulsar(w, "BtnAce");
            },
            "FrmCodRecibir");
        const auto destino = Pedir_Destino_Libreria();
        QVERIFY(destino);
        QCOMPARE(destino->destino, Destino::Fichero);
        QCOMPARE(destino->nombre, sala->Ruta("recibida.txt"));
        QCOMPARE(sala->Tomar_Avisos(),
                 (QStringList{"Debe especificar un nombre de fichero",
                              "La Librería de códigos ya existe en la Base de Datos"}));
    }
}

void TestDialogos_Codigos::recibir_cancelado()
{
    const Al_Abrirse salir(
        [](QWidget& w) {
            Hijo<QLineEdit>(w, "Text1").setText("X");
            QTest::keyClick(&w, Qt::Key_Escape);
        },
        "FrmCodRecibir");
    QVERIFY(!Peticiones_De_Codigos().Pedir_Destino());
    QCOMPARE(salir.veces, 1);
}

PRUEBA(TestDialogos_Codigos)
#include "TestDialogos_Codigos.moc"

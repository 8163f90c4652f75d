#include "core/ui/Dialogos.h"
#include "session/Peticiones_Sesion.h"
#include "session/ui/Dialogos_Sesion.h"
#include "session/ui/FrmErrCoord.h"
#include "session/ui/FrmOffset.h"
#include "session/ui/FrmSelSep.h"
#include "session/ui/FrmTxt.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Ventanas.h"

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

class TestDialogos_Pequenos_Ui : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { sala = std::make_unique<Sala_Ventanas>(); }
    void cleanup() { sala.reset(); }
    void separador_elegido_data();
    void separador_elegido();
    void separador_cancelado_es_vacio_data();
    void separador_cancelado_es_vacio();
    void el_arbol_tiene_sus_imagenes();
    void el_arbol_se_rehace();
    void desplazamientos_por_familia_data();
    void desplazamientos_por_familia();
    void desplazamiento_cargado_se_anula();
    void cancelar_los_desplazamientos_data();
    void cancelar_los_desplazamientos();
    void solo_los_ejes_del_formato();
    void las_teclas_data();
    void las_teclas();
    void el_segundo_signo_pita();
    void el_signo_borra_las_cifras();
    void lo_pegado_pasa_por_las_teclas();
    void el_foco_marca_todo();
    void el_visor_ensena_el_fichero();
    void el_visor_dice_que_falta();
    void el_visor_es_modal_sobre_lo_modal();

private:
    std::unique_ptr<Sala_Ventanas> sala;
};

void TestDialogos_Pequenos_Ui::separador_elegido_data()
{
    QTest::addColumn<int>("fila");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("separador");
    QTest::newRow("espacio") << 0 << "<Espacio>"
                             << " ";
    QTest::newRow("coma") << 1 << "<Coma (,)>"
                          << ",";
    QTest::newRow("tabulacion") << 2 << "<Tabulación>"
                                << "\t";
}

void TestDialogos_Pequenos_Ui::separador_elegido()
{
    QFETCH(int, fila);
    QFETCH(QString, texto);
    QFETCH(QString, separador);
    Conectar_Dialogos_Sesion();
    Al_Abrirse abierta([&](QWidget& w) {
        QCOMPARE(w.windowTitle(), QString("Seleccione Separador de Campos"));
        auto& combo = Hijo<QComboBox>(w, "Combo1");
        QCOMPARE(combo.count(), 3);
        QCOMPARE(combo.currentIndex(), 0);
        QCOMPARE(combo.itemText(fila), texto);
        QCOMPARE(combo.property("Tag").toString(), QString(" \6,\6\t"));
        combo.setCurrentIndex(fila);
        QTest::mouseClick(&Hijo<QPushButton>(w, "BtnAce"), Qt::LeftButton);
    });
    QCOMPARE(Peticiones_De_Sesion().Pedir_Separador(), separador);
    QVERIFY(!Dialogos::Visible<FrmSelSep>());
    QVERIFY(Dialogos::Cargado<FrmSelSep>());
}

void TestDialogos_Pequenos_Ui::separador_cancelado_es_vacio_data()
{
    QTest::addColumn<QString>("como");
    QTest::newRow("boton") << "boton";
    QTest::newRow("escape") << "escape";
    QTest::newRow("marco") << "marco";
}

void TestDialogos_Pequenos_Ui::separador_cancelado_es_vacio()
{
    QFETCH(QString, como);
    Conectar_Dialogos_Sesion();
    Al_Abrirse elegida([&](QWidget& w) { Hijo<QPushButton>(w, "BtnAce").click(); });
    QCOMPARE(Peticiones_De_Sesion().Pedir_Separador(), QString(" "));
    // What was chosen before doesn't come back.
    Al_Abrirse abierta([&](QWidget& w) {
        if (como == "boton") QTest::mouseClick(&Hijo<QPushButton>(w, "BtnCan"), Qt::LeftButton);
        if (como == "escape") QTest::keyClick(&w, Qt::Key_Escape);
        if (como == "marco") w.close();
    });
    QCOMPARE(Peticiones_De_Sesion().Pedir_Separador(), QString());
    QCOMPARE(abierta.veces, 1);
}

static QString Rama(const QTreeWidgetItem& nodo)
{
    QString texto = nodo.text(0) + '#' + nodo.data(0, Qt::UserRole).toString();
    QStringList hijos;
    for (int i = 0; i < nodo.childCount(); ++i)
        hijos << Rama(*nodo.child(i));
    return hijos.isEmpty() ? texto : texto + "(" + hijos.join(" ") + ")";
}

void TestDialogos_Pequenos_Ui::el_arbol_tiene_sus_imagenes()
{
    Conectar_Dialogos_Sesion();
    for (const auto& [nombre, color] : {std::pair("raiz", Qt::red),
                                        {"punto", Qt::green},
                                        {"coordenada", Qt::blue},
                                        {"desborda", Qt::yellow}}) {
        QImage dibujo(16, 16, QImage::Format_RGB32);
        dibujo.fill(color);
        QVERIFY(dibujo.save(sala->Ruta(QStringLiteral("bmp/arbol_%1.png").arg(nombre))));
    }
    const auto color = [](const QTreeWidgetItem& nodo) {
        return nodo.icon(0).pixmap(16, 16).toImage().pixelColor(8, 8);
    };
    Al_Abrirse abierta([&](QWidget& w) {
        QCOMPARE(w.windowTitle(), QString("Error en la carga de Coordenadas"));
        auto& arbol = Hijo<QTreeWidget>(w, "TV1");
        QCOMPARE(Rama(*arbol.topLevelItem(0)),
                 QString("Puntos/Coordenadas#1(P1#2(X: 10000000#4 Y: 9999999.999#3 Z: -10000000#4) "
                         "P2#2(X: 1#3 Y: 2#3 Z: #3))"));
        QCOMPARE(arbol.topLevelItemCount(), 1);
        const QTreeWidgetItem& punto = *arbol.topLevelItem(0)->child(0);
        QCOMPARE(color(*arbol.topLevelItem(0)), QColor(Qt::red));
        QCOMPARE(color(punto), QColor(Qt::green));
        QCOMPARE(color(*punto.child(1)), QColor(Qt::blue));
        QCOMPARE(color(*punto.child(0)), QColor(Qt::yellow));
        QCOMPARE(Hijo<QPushButton>(w, "BtnCer").text(), QString("&Aceptar"));
        QTest::mouseClick(&Hijo<QPushButton>(w, "BtnCer"), Qt::LeftButton);
    });
    Peticiones_De_Sesion().Mostrar_Puntos_Malos(
        "P1\00510000000\0059999999.999\005-10000000\6P2\0051\0052\5");
    QCOMPARE(abierta.veces, 1);
    QVERIFY(Dialogos::Cargado<FrmErrCoord>());
}

void TestDialogos_Pequenos_Ui::el_arbol_se_rehace()
{
    auto& frm = Dialogos::Unico<FrmErrCoord>();
    frm.Cargar_Datos("A\0051\0052\0053\6B\0051\0052\0053");
    frm.Cargar_Datos("C\0051\0052\0053");
    const QTreeWidgetItem* const raiz = Hijo<QTreeWidget>(frm, "TV1").topLevelItem(0);
    QCOMPARE(raiz->childCount(), 1);
    QCOMPARE(raiz->child(0)->childCount(), 3);
}

void TestDialogos_Pequenos_Ui::desplazamientos_por_familia_data()
{
    QTest::addColumn<QString>("familia");
    QTest::addColumn<QString>("teclas");
    QTest::addColumn<QString>("desplazamiento");
    QTest::newRow("KRT300 decimal") << "KRT300"
                                    << "12.5"
                                    << "0000012500";
    QTest::newRow("KRT300 negativo") << "KRT300"
                                     << "-12.5"
                                     << "-0000012500";
    QTest::newRow("KRT300 entero") << "KRT300"
                                   << "12"
                                   << "0000012000";
    QTest::newRow("KRT300 punto delante") << "KRT300"
                                          << ".5"
                                          << "0000000500";
    QTest::newRow("KRT300 vacio") << "KRT300"
                                  << ""
                                  << "000000000";
    QTest::newRow("KRT800") << "KRT800"
                            << "12.5"
                            << "12.5";
    QTest::newRow("KRT800 vacio") << "KRT800"
                                  << ""
                                  << "0";
    QTest::newRow("PX7") << "PX7"
                         << "-3"
                         << "-3";
}

void TestDialogos_Pequenos_Ui::desplazamientos_por_familia()
{
    QFETCH(QString, familia);
    QFETCH(QString, teclas);
    QFETCH(QString, desplazamiento);
    Conectar_Dialogos_Sesion();
    Clave_Estacion = familia;
    Al_Abrirse abierta([&](QWidget& w) {
        QCOMPARE(w.windowTitle(), QString("Aplicar Desplazamientos a Coordenadas"));
        QTest::keyClicks(&Hijo<QLineEdit>(w, "TxtCy"), teclas);
        QTest::mouseClick(&Hijo<QPushButton>(w, "BtnAce"), Qt::LeftButton);
    });
    QVERIFY(Peticiones_De_Sesion().Pedir_Desplazamientos(true, true, true, "7,3"));
    QCOMPARE(Desp_Y, desplazamiento);
    QVERIFY(!Dialogos::Cargado<FrmOffset>());
}

void TestDialogos_Pequenos_Ui::desplazamiento_cargado_se_anula()
{
    Desp_X = "5";
    Desp_Y = Desp_Z = "7";
    Dialogos::Unico<FrmOffset>();
    QCOMPARE(Desp_X + Desp_Y + Desp_Z, QString("000"));
}

void TestDialogos_Pequenos_Ui::cancelar_los_desplazamientos_data()
{
    separador_cancelado_es_vacio_data();
}

void TestDialogos_Pequenos_Ui::cancelar_los_desplazamientos()
{
    QFETCH(QString, como);
    Conectar_Dialogos_Sesion();
    Clave_Estacion = "KRT800";
    Al_Abrirse abierta([&](QWidget& w) {
        QTest::keyClicks(&Hijo<QLineEdit>(w, "TxtCx"), "9");
        if (como == "boton") QTest::mouseClick(&Hijo<QPushButton>(w, "BtnCan"), Qt::LeftButton);
        if (como == "escape") QTest::keyClick(&w, Qt::Key_Escape);
        if (como == "marco") w.close();
    });
    QVERIFY(!Peticiones_De_Sesion().Pedir_Desplazamientos(true, true, true, "7,3"));
    QCOMPARE(Desp_X, QString("0"));
    QCOMPARE(abierta.veces, 1);
}

void TestDialogos_Pequenos_Ui::solo_los_ejes_del_formato()
{
    Al_Abrirse abierta([&](QWidget& w) {
        QVERIFY(!Hijo<QLineEdit>(w, "TxtCx").isEnabled());
        QVERIFY(!Hijo<QLineEdit>(w, "TxtCy").isEnabled());
        QVERIFY(Hijo<QLineEdit>(w, "TxtCz").isEnabled());
        w.close();
    });
    Pedir_Desplazamientos(false, false, true, "7,3");
    QCOMPARE(abierta.veces, 1);
}

void TestDialogos_Pequenos_Ui::las_teclas_data()
{
    QTest::addColumn<QString>("teclas");
    QTest::addColumn<QString>("queda");
    QTest::newRow("cifras") << "1234567890"
                            << "1234567890";
    QTest::newRow("letras y signos") << "1a+,2 e;3"
                                     << "123";
    QTest::newRow("segundo punto") << "1.2.3"
                                   << "1.23";
    QTest::newRow("punto delante") << ".5"
                                   << ".5";
    QTest::newRow("signo delante") << "-1.5"
                                   << "-1.5";
}

void TestDialogos_Pequenos_Ui::las_teclas()
{
    QFETCH(QString, teclas);
    QFETCH(QString, queda);
    auto& caja = Hijo<QLineEdit>(Dialogos::Unico<FrmOffset>(), "TxtCx");
    QTest::keyClicks(&caja, teclas);
    QCOMPARE(caja.text(), queda);
    QTest::keyClick(&caja, Qt::Key_Backspace);
    QCOMPARE(caja.text(), queda.chopped(1));
    QCOMPARE(sala->interfaz.pitidos, 0);
}

void TestDialogos_Pequenos_Ui::el_segundo_signo_pita()
{
    auto& caja = Hijo<QLineEdit>(Dialogos::Unico<FrmOffset>(), "TxtCx");
    QTest::keyClicks(&caja, "-12");
    QTest::keyClicks(&caja, "-");
    QCOMPARE(caja.text(), QString("-12"));
    QCOMPARE(sala->interfaz.pitidos, 1);
}

void TestDialogos_Pequenos_Ui::el_signo_borra_las_cifras()
{
    auto& caja = Hijo<QLineEdit>(Dialogos::Unico<FrmOffset>(), "TxtCx");
    QTest::keyClicks(&caja, "12");
    QTest::keyClicks(&caja, "-");
    QCOMPARE(caja.text(), QString("-"));
    QTest::keyClicks(&caja, "7");
    QCOMPARE(caja.text(), QString("-7"));
}

void TestDialogos_Pequenos_Ui::lo_pegado_pasa_por_las_teclas()
{
    auto& caja = Hijo<QLineEdit>(Dialogos::Unico<FrmOffset>(), "TxtCx");
    QApplication::clipboard()->setText("1a2.5.0x");
    QTest::keyClick(&caja, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(caja.text(), QString("12.50"));
}

void TestDialogos_Pequenos_Ui::el_foco_marca_todo()
{
    auto& frm = Dialogos::Unico<FrmOffset>();
    frm.show();
    frm.activateWindow();
    auto& x = Hijo<QLineEdit>(frm, "TxtCx");
    auto& y = Hijo<QLineEdit>(frm, "TxtCy");
    QTest::keyClicks(&y, "123");
    x.setFocus();
    y.setFocus();
    QTRY_COMPARE(y.selectedText(), QString("123"));
    QTest::keyClicks(&y, "4");
    QCOMPARE(y.text(), QString("4"));
}

void TestDialogos_Pequenos_Ui::el_visor_ensena_el_fichero()
{
    sala->Escribir("ficheros/a.txt", "Estaci\xF3n 1\r\n\x80 2\r\n");
    const QString nombre = sala->Ruta("ficheros/a.txt");
    auto& frm = Dialogos::Unico<FrmTxt>();
    frm.Ver(nombre, true);
    QCOMPARE(frm.windowTitle(), "Fichero : " + nombre);
    auto& texto = Hijo<QPlainTextEdit>(frm, "RTB");
    QCOMPARE(texto.toPlainText(), QString("Estación 1\n€ 2\n"));
    QVERIFY(texto.isReadOnly());
    QVERIFY(!frm.isModal());
    frm.Marco()->resize(600, 500);
    const int ancho = texto.width(), alto = texto.height();
    frm.Marco()->resize(700, 620);
    QTRY_COMPARE(texto.width(), ancho + 100);
    QCOMPARE(texto.height(), alto + 120);
    auto& boton = Hijo<QPushButton>(frm, "BtnSal");
    QVERIFY(boton.mapTo(&frm, QPoint()).y() >= texto.mapTo(&frm, QPoint(0, texto.height())).y());
    QTest::mouseClick(&boton, Qt::LeftButton);
    QVERIFY(!Dialogos::Cargado<FrmTxt>());
}

void TestDialogos_Pequenos_Ui::el_visor_dice_que_falta()
{
    Dialogos::Unico<FrmTxt>().Ver(sala->Ruta("no_hay.txt"), false);
    QCOMPARE(sala->Tomar_Avisos().size(), 1);
    QCOMPARE(Hijo<QPlainTextEdit>(*Dialogos::Cargado<FrmTxt>(), "RTB").toPlainText(), QString());
}

void TestDialogos_Pequenos_Ui::el_visor_es_modal_sobre_lo_modal()
{
    sala->Escribir("a.txt", "x");
    int pasos = 0;
    Al_Abrirse visor(
        [&](QWidget& w) {
            ++pasos;
            w.close();
        },
        "FrmTxt");
    Al_Abrirse abierta(
        [&](QWidget& w) {
            Dialogos::Unico<FrmTxt>().Ver(sala->Ruta("a.txt"), false);
            QCOMPARE(pasos, 1);
            w.close();
        },
        "FrmSelSep");
    Pedir_Separador();
    QCOMPARE(pasos, 1);
}

PRUEBA(TestDialogos_Pequenos_Ui)
#include "TestDialogos_Pequenos_Ui.moc"

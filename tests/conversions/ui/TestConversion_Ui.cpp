#include "conversions/biblioteca/Fichero_Lista.h"
#include "conversions/biblioteca/Peticiones_Conversion.h"
#include "conversions/ui/Dialogos_Conversion.h"
#include "conversions/ui/EjeLandxml.h"
#include "conversions/ui/frmConvEst.h"
#include "core/Ficheros.h"
#include "core/ui/Dialogos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Ventanas.h"

#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace {

QString Muestra(const QString& nombre)
{
    return DATOS_PRUEBA "/conversions/" + nombre;
}

} // namespace

class TestConversion_Ui : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        sala = std::make_unique<Sala_Ventanas>();
        Mover_Fichero_Lista(sala->Ruta("$$$$.EJE"));
        Conectar_Dialogos_Conversion();
    }
    void cleanup()
    {
        sala.reset();
        Mover_Fichero_Lista({});
        Peticiones_De_Conversion() = {};
    }
    void los_dos_modos();
    void los_puntos_segun_el_modo();
    void cada_opcion_su_flujo_data();
    void cada_opcion_su_flujo();
    void cancelar_cierra();
    void cierra_tambien_si_se_cancela_el_fichero();
    void la_lista_se_ofrece_y_desaparece();
    void elegir_de_la_lista();
    void aceptar_sin_elegir();
    void cancelar_la_lista();
    void la_segunda_vez_es_otra_lista();

private:
    frmConvEst& Mostrar(int modo)
    {
        Mostrar_frmConvEst(modo);
        return *Dialogos::Cargado<frmConvEst>();
    }
    static void Pulsar(QWidget& w, const QString& boton)
    {
        QTest::mouseClick(&Hijo<QPushButton>(w, boton), Qt::LeftButton);
    }
    // A radio button takes clicks on its mark and its text alone.
    static void Marcar(QWidget& w, const QString& opcion)
    {
        auto& boton = Hijo<QRadioButton>(w, opcion);
        QTest::mouseClick(&boton, Qt::LeftButton, Qt::NoModifier, QPoint(8, boton.height() / 2));
        QVERIFY(boton.isChecked());
    }
    void Ficheros_Elegidos(const QString& origen, const QString& destino)
    {
        sala->interfaz.ficheros = {Fichero_Elegido{origen, 1}, Fichero_Elegido{destino, 1}};
    }

    std::unique_ptr<Sala_Ventanas> sala;
};

void TestConversion_Ui::los_dos_modos()
{
    frmConvEst& frm = Mostrar(0);
    QVERIFY(frm.isVisible());
    QCOMPARE(frm.objectName(), QString("frmConvEst"));
    QCOMPARE(frm.windowTitle(), QString("Conversión a formato Estandar Survey"));
    QCOMPARE(Hijo<QGroupBox>(frm, "Frame1").title(), QString("Tipo"));
    const std::pair<const char*, const char*> opciones[] = {
        {"alHor", "Alineaciones  Horizontales"},
        {"alVer", "Alineaciones Verticales"},
        {"transver", "Perfiles Transversales"},
        {"puntos", "Puntos"},
    };
    for (const auto& [nombre, texto] : opciones) {
        auto& opcion = Hijo<QRadioButton>(frm, nombre);
        QCOMPARE(opcion.text(), QString(texto));
        QVERIFY(opcion.isEnabled());
        QCOMPARE(opcion.isChecked(), QString(nombre) == u"alHor");
    }
    QCOMPARE(&Mostrar(1), &frm);
    QCOMPARE(frm.windowTitle(), QString("Conversión a formato LandXML"));
}

void TestConversion_Ui::los_puntos_segun_el_modo()
{
    frmConvEst& frm = Mostrar(0);
    auto& puntos = Hijo<QRadioButton>(frm, "puntos");
    Marcar(frm, "puntos");
    Mostrar(1);
    QVERIFY(!puntos.isEnabled());
    QVERIFY(Hijo<QRadioButton>(frm, "alHor").isChecked());
    Mostrar(0);
    QVERIFY(puntos.isEnabled());
    Pulsar(frm, "BtnCan");
    QVERIFY(!Hijo<QRadioButton>(Mostrar(1), "puntos").isEnabled());
}

void TestConversion_Ui::cada_opcion_su_flujo_data()
{
    QTest::addColumn<int>("modo");
    QTest::addColumn<QString>("opcion");
    QTest::addColumn<QString>("entrada");
    QTest::addColumn<QString>("esperado"); // bytes of a sample; empty: what LandXML begins with
    QTest::addColumn<QString>("aviso");
    const QString bien = "Fichero convertido correctamente";
    QTest::newRow("estandar, ejes") << 0 << "alHor"
                                    << "eje1.plt"
                                    << "eje1.plt.ssh"
                                    << "";
    QTest::newRow("estandar, rasantes") << 0 << "alVer"
                                        << "eje1.ras"
                                        << "eje1.ras.ssv"
                                        << "";
    QTest::newRow("estandar, perfiles") << 0 << "transver"
                                        << "eje1.tra"
                                        << "eje1.tra.ssp"
                                        << "";
    QTest::newRow("estandar, puntos") << 0 << "puntos"
                                      << "puntos.asc"
                                      << "puntos.krt"
                                      << "Generado correctamente fichero \r\n";
    QTest::newRow("landxml, ejes") << 1 << "alHor"
                                   << "eje1.eje"
                                   << "" << bien;
    QTest::newRow("landxml, rasantes") << 1 << "alVer"
                                       << "eje1.ras"
                                       << "" << bien;
    QTest::newRow("landxml, perfiles") << 1 << "transver"
                                       << "eje1.tra"
                                       << "" << bien;
}

void TestConversion_Ui::cada_opcion_su_flujo()
{
    QFETCH(int, modo);
    QFETCH(QString, opcion);
    QFETCH(QString, entrada);
    QFETCH(QString, esperado);
    QFETCH(QString, aviso);
    for (const int operacion : {6, 7, 8})
        sala->Fila("KRT2", {{"Nombre", "KRT800"},
                            {"OPE", operacion},
                            {"TipOpe", "C"},
                            {"DESOPE", QString::number(operacion)},
                            {"Conv", "T"}});
    sala->Fila("CONVERT", {{"Clave", "T"}, {"descripcion", "QSV"}, {"ext", "*.tra"}});
    frmConvEst& frm = Mostrar(modo);
    Marcar(frm, opcion);
    Ficheros_Elegidos(Muestra(entrada), sala->Ruta("destino.dat"));
    Pulsar(frm, "BtnAce");
    QVERIFY(!Dialogos::Cargado<frmConvEst>());
    const QByteArray hecho = sala->Leer("destino.dat");
    if (esperado.isEmpty())
        QVERIFY(hecho.startsWith("<?xml"));
    else
        QCOMPARE(hecho, Ficheros::Leer(Muestra(esperado)));
    const QString obtenido = sala->Tomar_Avisos().join(u'|');
    QVERIFY2(aviso.isEmpty() ? obtenido.isEmpty() : obtenido.startsWith(aviso),
             qPrintable(obtenido));
}

void TestConversion_Ui::cancelar_cierra()
{
    frmConvEst& frm = Mostrar(0);
    Pulsar(frm, "BtnCan");
    QVERIFY(!Dialogos::Cargado<frmConvEst>());
    frmConvEst& otra = Mostrar(1);
    QTest::keyClick(&otra, Qt::Key_Escape);
    QVERIFY(!Dialogos::Cargado<frmConvEst>());
    QVERIFY(sala->interfaz.peticiones.isEmpty());
}

void TestConversion_Ui::cierra_tambien_si_se_cancela_el_fichero()
{
    frmConvEst& frm = Mostrar(1);
    sala->interfaz.ficheros = {std::nullopt};
    Pulsar(frm, "BtnAce");
    QVERIFY(!Dialogos::Cargado<frmConvEst>());
    QVERIFY(sala->Tomar_Avisos().isEmpty());
}

void TestConversion_Ui::la_lista_se_ofrece_y_desaparece()
{
    sala->Escribir("$$$$.EJE", "EJE A\r\nEJE \xD1\r\n");
    EjeLandxml& frm = Dialogos::Unico<EjeLandxml>();
    QCOMPARE(frm.windowTitle(), QString("Selección de tramos desde LandXML"));
    auto& lista = Hijo<QListWidget>(frm, "listEjes");
    QCOMPARE(lista.count(), 2);
    QCOMPARE(lista.item(1)->text(), QStringLiteral("EJE Ñ"));
    QVERIFY(!QFile::exists(sala->Ruta("$$$$.EJE")));
}

void TestConversion_Ui::elegir_de_la_lista()
{
    sala->Escribir("$$$$.EJE", "EJE A\r\nEJE B\r\n");
    const Al_Abrirse abierta([](QWidget& w) {
        auto& lista = Hijo<QListWidget>(w, "listEjes");
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, Qt::NoModifier,
                          lista.visualItemRect(lista.item(1)).center());
        Pulsar(w, "BtnAce");
    });
    const Eleccion_LandXML eleccion = Peticiones_De_Conversion().Elegir_De_Lista();
    QVERIFY(eleccion.Hay());
    QCOMPARE(eleccion.indice, 1);
    QCOMPARE(eleccion.texto, QString("EJE B"));
    QVERIFY(!Dialogos::Cargado<EjeLandxml>());
}

void TestConversion_Ui::aceptar_sin_elegir()
{
    sala->Escribir("$$$$.EJE", "EJE A\r\n");
    const Al_Abrirse abierta([](QWidget& w) { Pulsar(w, "BtnAce"); });
    QVERIFY(!Peticiones_De_Conversion().Elegir_De_Lista().Hay());
    QCOMPARE(abierta.veces, 1);
}

void TestConversion_Ui::cancelar_la_lista()
{
    for (const bool con_escape : {false, true}) {
        sala->Escribir("$$$$.EJE", "EJE A\r\n");
        const Al_Abrirse abierta([&](QWidget& w) {
            Hijo<QListWidget>(w, "listEjes").setCurrentRow(0);
            con_escape ? QTest::keyClick(&w, Qt::Key_Escape) : Pulsar(w, "BtnCan");
        });
        QVERIFY(!Peticiones_De_Conversion().Elegir_De_Lista().Hay());
        QCOMPARE(abierta.veces, 1);
    }
}

void TestConversion_Ui::la_segunda_vez_es_otra_lista()
{
    for (const char* nombre : {"UNO", "DOS"}) {
        sala->Escribir("$$$$.EJE", nombre);
        const Al_Abrirse abierta([](QWidget& w) {
            Hijo<QListWidget>(w, "listEjes").setCurrentRow(0);
            Pulsar(w, "BtnAce");
        });
        QCOMPARE(Peticiones_De_Conversion().Elegir_De_Lista().texto, QString(nombre));
    }
}

PRUEBA(TestConversion_Ui)
#include "TestConversion_Ui.moc"

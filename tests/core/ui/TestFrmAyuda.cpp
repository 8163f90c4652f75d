#include "core/ui/Dialogos.h"
#include "core/ui/FrmAyuda.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Hijo.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

class TestFrmAyuda : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void sin_pasos_avisa_y_sigue();
    void recorre_los_pasos();
    void una_foto_que_falta_deja_el_texto();
    void un_texto_largo_se_corta_a_80();
    void la_casilla_escribe_al_momento();
    void cerrar_el_marco_acaba();

private:
    void Paso_De(int sec, const QString& texto, const QString& foto)
    {
        sala->Fila("Ayudas", {{"Maquina", "Zeta"},
                              {"OPE", 1},
                              {"TipOpe", "D"},
                              {"Sec", sec},
                              {"Texto", texto},
                              {"Foto", foto}});
    }
    std::unique_ptr<Base_De_Prueba> sala;
    std::unique_ptr<Interfaz_Guion> interfaz;
};

void TestFrmAyuda::init()
{
    sala = std::make_unique<Base_De_Prueba>();
    interfaz = std::make_unique<Interfaz_Guion>();
    Nombre_Estacion = "Zeta";
    Clave_Estacion = "KRT300";
    Ayuda_Visible = true;
    Paso_Ayuda = 1;
}

void TestFrmAyuda::cleanup()
{
    Limpiar_Ventanas();
    QCOMPARE(interfaz->Textos(), QStringList());
    interfaz.reset();
    sala.reset();
}

void TestFrmAyuda::sin_pasos_avisa_y_sigue()
{
    Dialogos::Unico<FrmAyuda>().Cargar("D", "1");
    QCOMPARE(interfaz->Textos(),
             QStringList("No hay ayuda disponible en esta máquina para esta acción"));
    QCOMPARE(interfaz->avisos[0].icono, Icono::Exclamacion);
    interfaz->avisos.clear();
    QVERIFY(!Dialogos::Cargado<FrmAyuda>());
}

void TestFrmAyuda::recorre_los_pasos()
{
    Paso_De(2, "segundo ", "");
    Paso_De(1, " primero", "");
    auto& frm = Dialogos::Unico<FrmAyuda>();
    QStringList vistos;
    Al_Abrirse abierta([&](QWidget&) {
        auto& atras = Hijo<QPushButton>(frm, "BtnAtras");
        auto& siguiente = Hijo<QPushButton>(frm, "BtnSiguiente");
        QCOMPARE(atras.text(), QString("&Atras"));
        QCOMPARE(siguiente.text(), QString("&Siguiente"));
        const auto& texto = Hijo<QLabel>(frm, "Label1");
        vistos << texto.text();
        QVERIFY(!atras.isEnabled());
        QTest::mouseClick(&siguiente, Qt::LeftButton);
        vistos << texto.text();
        QVERIFY(atras.isEnabled());
        QTest::mouseClick(&atras, Qt::LeftButton);
        vistos << texto.text();
        QTest::keyClick(&siguiente, Qt::Key_Return);
        QVERIFY(!frm.Descargada());
        QTest::mouseClick(&siguiente, Qt::LeftButton);
    });
    frm.Cargar("D", "1");
    QCOMPARE(abierta.veces, 1);
    QCOMPARE(vistos, QStringList({"primero", "segundo", "primero"}));
    QVERIFY(!Dialogos::Cargado<FrmAyuda>());
}

void TestFrmAyuda::una_foto_que_falta_deja_el_texto()
{
    QImage foto(20, 20, QImage::Format_RGB32);
    foto.fill(Qt::blue);
    QVERIFY(foto.save(sala->Ruta("bmphlp/uno.png")));
    Paso_De(1, "con foto", "uno.png");
    Paso_De(2, "sin foto", "no_esta.png");
    auto& frm = Dialogos::Unico<FrmAyuda>();
    Al_Abrirse abierta([&](QWidget&) {
        QVERIFY(!Hijo<QLabel>(frm, "Picture1").pixmap().isNull());
        QTest::mouseClick(&Hijo<QPushButton>(frm, "BtnSiguiente"), Qt::LeftButton);
        QVERIFY(Hijo<QLabel>(frm, "Picture1").pixmap().isNull());
        QCOMPARE(Hijo<QLabel>(frm, "Label1").text(), QString("sin foto"));
        frm.close();
    });
    frm.Cargar("D", "1");
    QCOMPARE(abierta.veces, 1);
}

void TestFrmAyuda::un_texto_largo_se_corta_a_80()
{
    Paso_De(1, QString(80, 'x') + QString(20, 'y'), "");
    auto& frm = Dialogos::Unico<FrmAyuda>();
    Al_Abrirse abierta([&](QWidget&) {
        QCOMPARE(Hijo<QLabel>(frm, "Label1").text(), QString(80, 'x'));
        frm.close();
    });
    frm.Cargar("D", "1");
    QCOMPARE(abierta.veces, 1);
}

void TestFrmAyuda::la_casilla_escribe_al_momento()
{
    Paso_De(1, "x", "");
    auto& frm = Dialogos::Unico<FrmAyuda>();
    Al_Abrirse abierta([&](QWidget&) {
        auto& casilla = Hijo<QCheckBox>(frm, "Check1");
        QCOMPARE(casilla.text(), QString("No volver a mostrar la proxima vez"));
        casilla.click();
        QCOMPARE(sala->Leer("EstTotal.ini"), QByteArray("[AYUDA]\r\nVisible=No\r\n"));
        QVERIFY(!Ayuda_Visible);
        casilla.click();
        QCOMPARE(sala->Leer("EstTotal.ini"), QByteArray("[AYUDA]\r\nVisible=SI\r\n"));
        QVERIFY(Ayuda_Visible);
        frm.close();
    });
    frm.Cargar("D", "1");
    QCOMPARE(abierta.veces, 1);
}

void TestFrmAyuda::cerrar_el_marco_acaba()
{
    Paso_De(1, "x", "");
    auto& frm = Dialogos::Unico<FrmAyuda>();
    Al_Abrirse abierta([&](QWidget& w) { QTest::keyClick(&w, Qt::Key_Escape); });
    frm.Cargar("D", "1");
    QCOMPARE(abierta.veces, 1);
    QVERIFY(!Dialogos::Cargado<FrmAyuda>());
}

PRUEBA(TestFrmAyuda)
#include "TestFrmAyuda.moc"

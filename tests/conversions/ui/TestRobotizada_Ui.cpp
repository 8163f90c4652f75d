#include "conversions/ui/Dialogos_Conversion.h"
#include "conversions/ui/frmRobotizada.h"
#include "core/ui/Dialogos.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Ventanas.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

class TestRobotizada_Ui : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { sala = std::make_unique<Sala_Ventanas>(); }
    void cleanup() { sala.reset(); }
    void cancelar_un_fichero_cierra();
    void los_textos_y_la_cabecera();
    void aceptar_escribe_lo_elegido();
    void abierta_no_vuelve_a_preguntar();

private:
    static QString Muestra(const QString& nombre) { return DATOS_PRUEBA "/conversions/" + nombre; }
    frmRobotizada* Abrir()
    {
        sala->interfaz.ficheros = {Fichero_Elegido{Muestra("lecturas.dat")},
                                   Fichero_Elegido{Muestra("coord.xyz")}};
        Mostrar_frmRobotizada();
        return Dialogos::Cargado<frmRobotizada>();
    }
    std::unique_ptr<Sala_Ventanas> sala;
};

void TestRobotizada_Ui::cancelar_un_fichero_cierra()
{
    sala->interfaz.ficheros = {std::nullopt};
    Mostrar_frmRobotizada();
    QVERIFY(!Dialogos::Cargado<frmRobotizada>());
    // The menu stays usable.
    QVERIFY(Abrir());
}

void TestRobotizada_Ui::los_textos_y_la_cabecera()
{
    frmRobotizada& f = *Abrir();
    QCOMPARE(f.windowTitle(), QString("Monitorizar Robotizada"));
    QCOMPARE(Hijo<QGroupBox>(f, "Frame1").title(), QString("Formato de Salida"));
    QVERIFY(!Hijo<QLineEdit>(f, "temperatura").text().isEmpty());
    QVERIFY(!Hijo<QLineEdit>(f, "Fecha").text().isEmpty());
    QVERIFY(!Hijo<QLineEdit>(f, "hora").text().isEmpty());
    for (const char* nombre : {"trabajo", "descripcion", "operario"})
        QVERIFY(Hijo<QLineEdit>(f, nombre).text().isEmpty());
    QVERIFY(Hijo<QRadioButton>(f, "ascii").isChecked());
    QStringList rotulos;
    for (const QLabel* r : f.findChildren<QLabel*>())
        rotulos << r->text();
    QCOMPARE(rotulos,
             (QStringList{"Trabajo", "Descripción", "Operario", "Temperatura", "Fecha", "Hora"}));
}

void TestRobotizada_Ui::aceptar_escribe_lo_elegido()
{
    frmRobotizada& f = *Abrir();
    QTest::keyClicks(&Hijo<QLineEdit>(f, "trabajo"), "PRESA");
    for (const auto& [opcion, fichero] : {std::pair{"ascii", "r.txt"}, {"Excel", "r.xls"}}) {
        Hijo<QRadioButton>(f, opcion).click();
        sala->interfaz.ficheros = {Fichero_Elegido{sala->Ruta(fichero)}};
        QTest::mouseClick(&Hijo<QPushButton>(f, "BtnAce"), Qt::LeftButton);
        QCOMPARE(sala->Tomar_Avisos(), QStringList{"Fichero generado correctamente"});
    }
    QVERIFY(sala->Leer("r.txt").contains("PRESA"));
    QVERIFY(sala->Leer("r.xls").startsWith("\xD0\xCF\x11\xE0"));
    QTest::mouseClick(&Hijo<QPushButton>(f, "BtnCan"), Qt::LeftButton);
    QVERIFY(!Dialogos::Cargado<frmRobotizada>());
}

void TestRobotizada_Ui::abierta_no_vuelve_a_preguntar()
{
    frmRobotizada* const f = Abrir();
    Hijo<QLineEdit>(*f, "trabajo").setText("A");
    Mostrar_frmRobotizada();
    QCOMPARE(Dialogos::Cargado<frmRobotizada>(), f);
    QCOMPARE(sala->interfaz.peticiones.size(), 2);
    QCOMPARE(Hijo<QLineEdit>(*f, "trabajo").text(), QString("A"));
}

PRUEBA(TestRobotizada_Ui)
#include "TestRobotizada_Ui.moc"

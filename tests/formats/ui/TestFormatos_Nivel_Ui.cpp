#include "core/Sucesos.h"
#include "core/ui/Dialogos.h"
#include "formats/ui/Dialogos_Formatos.h"
#include "formats/ui/FrmExistFormNV400.h"
#include "formats/ui/FrmFormatosNV400.h"
#include "formats/ui/FrmNuevoFormatoNV400.h"
#include "tests/apoyo/Nivel_De_Prueba.h"
#include "tests/apoyo/Prueba.h"
#include "tests/apoyo/Sala_Ventanas.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

// The level's three format dialogs, by the names of their controls.
class TestFormatos_Nivel_Ui : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void los_textos_son_los_suyos();
    void existente_ensena_las_dos_mitades();
    void existente_entrega_sus_casillas();
    void nuevo_se_guarda_con_sus_mitades();
    void mantenimiento_guarda_al_cambiar_de_mitad();
    void mantenimiento_se_cierra_con_otra_familia();

private:
    static QStringList Textos(const QListWidget& lista)
    {
        QStringList textos;
        for (int i = 0; i < lista.count(); ++i)
            textos << lista.item(i)->text();
        return textos;
    }
    static QStringList Elegidos(const QWidget& f) { return Textos(Hijo<QListWidget>(f, "List2")); }
    static void Pulsar(QWidget& f, const char* nombre)
    {
        QTest::mouseClick(&Hijo<QPushButton>(f, nombre), Qt::LeftButton);
    }
    static void Elegir(QWidget& f, const char* nombre, int indice)
    {
        auto& combo = Hijo<QComboBox>(f, nombre);
        combo.setCurrentIndex(indice);
        Q_EMIT combo.activated(indice);
    }
    std::unique_ptr<Sala_Ventanas> sala;
    QList<Trabajo_Exportar> salidas;
    const Sesion_Elegida sesion{1, "NV400", 0, "Niveles"};
};

void TestFormatos_Nivel_Ui::init()
{
    sala = std::make_unique<Sala_Ventanas>();
    Conectar_Dialogos_Formatos();
    salidas.clear();
    Peticiones_De_Formatos().Abrir_Exportar = [this](const Trabajo_Exportar& t) { salidas << t; };
    Clave_Estacion = "NV400";
    sala->Fila("OPE", {{"OPE", 0}, {"DESOPE", "Niveles"}});
    sala->Fila("KRT2", {{"Nombre", "NV400"}, {"OPE", 0}, {"TipOpe", "D"}, {"DESOPE", "Niveles"}});
    Nivel_De_Prueba::Poner_Campos(*sala);
    Base_Datos->Execute("UPDATE Campos SET Forsalida = '0.00000' WHERE Campo = 'Lectura'");
    Nivel_De_Prueba::Poner_Formato(*sala, "F", {"Trabajo", "Hora"}, {"Punto", "Cota"});
    Nivel_De_Prueba::Poner_Sesion(*sala, 1, Nivel_De_Prueba::Libreta("campo_nv400.txt"));
}

void TestFormatos_Nivel_Ui::cleanup()
{
    sala.reset();
}

void TestFormatos_Nivel_Ui::los_textos_son_los_suyos()
{
    auto& m = Dialogos::Unico<FrmFormatosNV400>();
    QCOMPARE(m.windowTitle(), QString("Formato del Nivel Digital"));
    auto& e = Dialogos::Unico<FrmExistFormNV400>();
    QCOMPARE(e.windowTitle(), QString("Formatos Nivel Digital"));
    QCOMPARE(Hijo<QCheckBox>(e, "ChkAnillo").text(), QString("Leer Anillo"));
    QCOMPARE(Hijo<QCheckBox>(e, "ChkNivelacion").text(), QString("Fin de Nivelación"));
    QCOMPARE(Hijo<QCheckBox>(e, "Check1").text(), QString(" Incluir Cabeceras"));
    auto& n = Dialogos::Unico<FrmNuevoFormatoNV400>();
    QCOMPARE(Hijo<QCheckBox>(n, "Check2").text(), QString(" Modificable"));
    for (const QWidget* f :
         {static_cast<QWidget*>(&m), static_cast<QWidget*>(&e), static_cast<QWidget*>(&n)}) {
        auto& combo = Hijo<QComboBox>(*f, "CbEstructura");
        QCOMPARE(combo.itemText(0), QString("Encabezado del Archivo"));
        QCOMPARE(combo.itemData(0).toString(), QString("0"));
        QCOMPARE(combo.itemText(1), QString("Detalle del Archivo"));
        QCOMPARE(combo.itemData(1).toString(), QString("1"));
    }
    const auto rotulos = [](const QWidget& f) {
        QStringList textos;
        for (const QLabel* r : f.findChildren<QLabel*>())
            textos << r->text();
        return textos;
    };
    QVERIFY(rotulos(m).contains("Estructura :") && rotulos(m).contains("Incluye Cabeceras :"));
    QVERIFY(rotulos(e).contains("Estructura :") && rotulos(e).contains("Estilo de Fichero"));
    for (const char* r : {"Estructura del Fichero", "Tipo:", "Nombre del formato:", "Descripción:"})
        QVERIFY2(rotulos(n).contains(r), r);
}

void TestFormatos_Nivel_Ui::existente_ensena_las_dos_mitades()
{
    // Twice: the second time is as the first.
    for (int vez = 0; vez < 2; ++vez) {
        Formato_Existente_Nivel modelo(sesion, "E");
        QVERIFY(modelo.Ver());
        Al_Abrirse abierta([&](QWidget& f) {
            QCOMPARE(Hijo<QLabel>(f, "LblEstilo").text(), QString("Espalda-Frente"));
            QVERIFY(!Hijo<QCheckBox>(f, "ChkAnillo").isChecked());
            Elegir(f, "CbFormatos", 0);
            QCOMPARE(Elegidos(f), (QStringList{"Trabajo", "Hora"}));
            Elegir(f, "CbEstructura", 1);
            QCOMPARE(Elegidos(f), (QStringList{"Punto", "Cota"}));
            const QStringList disponibles = Textos(Hijo<QListWidget>(f, "List1"));
            QVERIFY2(disponibles.contains("Lectura   0.00000"), qPrintable(disponibles.join('|')));
            QVERIFY(disponibles.contains("Tipo"));
            Hijo<QCheckBox>(f, "ChkAnillo").click();
            f.close();
        });
        Peticiones_De_Formatos().Mostrar_Existente_NV400(modelo);
        QCOMPARE(abierta.veces, 1);
        QVERIFY(salidas.isEmpty());
    }
}

void TestFormatos_Nivel_Ui::existente_entrega_sus_casillas()
{
    Formato_Existente_Nivel modelo(sesion, "E");
    QVERIFY(modelo.Ver());
    Al_Abrirse abierta([&](QWidget& f) {
        Elegir(f, "CbFormatos", 0);
        Hijo<QCheckBox>(f, "ChkNivelacion").click();
        Pulsar(f, "BtnAceptar");
    });
    Peticiones_De_Formatos().Mostrar_Existente_NV400(modelo);
    QCOMPARE(salidas.size(), 1);
    QVERIFY(!salidas[0].nivel.anillo && salidas[0].nivel.nivelacion);
}

void TestFormatos_Nivel_Ui::nuevo_se_guarda_con_sus_mitades()
{
    Formato_Nuevo_Nivel modelo("NV400", sesion);
    modelo.Crear();
    Al_Abrirse abierta([&](QWidget& f) {
        Hijo<QComboBox>(f, "Txt").setEditText("Mío");
        Hijo<QListWidget>(f, "List1").item(0)->setSelected(true);
        Pulsar(f, "BtnAgregar");
        Elegir(f, "CbEstructura", 1);
        QCOMPARE(Hijo<QComboBox>(f, "Txt").currentText(), QString("Mío"));
        Hijo<QListWidget>(f, "List1").item(2)->setSelected(true);
        Pulsar(f, "BtnAgregar");
        // Chosen it is shown by its name.
        QCOMPARE(Elegidos(f), QStringList{"Lectura"});
        Pulsar(f, "BtnAceptar");
    });
    Peticiones_De_Formatos().Mostrar_Nuevo_NV400(modelo);
    QCOMPARE(salidas.size(), 1);
    QCOMPARE(Campos_Mitad(*Base_Datos, "NV400", "Mío", Mitad_Nivel::Cabecera),
             QStringList{"Trabajo"});
    QCOMPARE(Campos_Mitad(*Base_Datos, "NV400", "Mío", Mitad_Nivel::Detalle),
             QStringList{"Lectura"});
}

void TestFormatos_Nivel_Ui::mantenimiento_guarda_al_cambiar_de_mitad()
{
    for (int vez = 0; vez < 2; ++vez) {
        auto& f = Dialogos::Unico<FrmFormatosNV400>();
        f.Mostrar();
        Elegir(f, "DBCombo1", 0);
        QCOMPARE(Hijo<QLabel>(f, "Label5").text(), QString("Si"));
        QCOMPARE(Elegidos(f).size(), 2 - vez);
        Hijo<QListWidget>(f, "List2").item(0)->setSelected(true);
        Pulsar(f, "BtnQuitar");
        Elegir(f, "CbEstructura", 1);
        QCOMPARE(Campos_Mitad(*Base_Datos, "NV400", "F", Mitad_Nivel::Cabecera).size(), 1 - vez);
        QCOMPARE(Elegidos(f), (QStringList{"Punto", "Cota"}));
        Hijo<QLineEdit>(f, "TxtDes").setText("");
        QTest::keyClicks(&Hijo<QLineEdit>(f, "TxtDes"), "Otra");
        Pulsar(f, "BtnGuardar");
        QCOMPARE(Elegidos(f), (QStringList{"Punto", "Cota"}));
        QCOMPARE(Buscar_Formato(*Base_Datos, "NV400", "F")->descripcion, QString("Otra"));
        Pulsar(f, "BtnSalir");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!Dialogos::Cargado<FrmFormatosNV400>());
    }
    QVERIFY(sala->Leer("Posicion.ini").contains("[FORMATOSNV400]"));
}

void TestFormatos_Nivel_Ui::mantenimiento_se_cierra_con_otra_familia()
{
    auto& f = Dialogos::Unico<FrmFormatosNV400>();
    f.Mostrar();
    Q_EMIT Sucesos::Unico().modelo_cambiado();
    QVERIFY(Dialogos::Cargado<FrmFormatosNV400>());
    Clave_Estacion = "KRT300";
    Q_EMIT Sucesos::Unico().modelo_cambiado();
    QVERIFY(!Dialogos::Cargado<FrmFormatosNV400>());
}

PRUEBA(TestFormatos_Nivel_Ui)
#include "TestFormatos_Nivel_Ui.moc"

#include "core/ModEstTotal.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Numero_De_Error.h"
#include "tests/apoyo/Prueba.h"

class TestModEstTotal : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void un_fichero_vacio_no_existe();
    void las_carpetas_conservan_su_nombre();
    void la_lista_de_identificadores();
    void un_combo_y_su_lista();
    void la_descripcion_de_una_operacion();
    void el_numero_del_puerto_data();
    void el_numero_del_puerto();
    void sin_base_se_dice();

private:
    std::unique_ptr<Base_De_Prueba> p;
};

void TestModEstTotal::init()
{
    p = std::make_unique<Base_De_Prueba>();
}

void TestModEstTotal::cleanup()
{
    p.reset();
}

void TestModEstTotal::un_fichero_vacio_no_existe()
{
    p->Escribir("vacio.txt", "");
    p->Escribir("lleno.txt", "x");
    QVERIFY(!FileExist(p->Ruta("vacio.txt")));
    QVERIFY(FileExist(p->Ruta("lleno.txt")));
    QVERIFY(!FileExist(p->Ruta("nada.txt")));
    QVERIFY(!FileExist(p->Ruta("MDB")));
    QVERIFY(!FileExist(QString()));
}

void TestModEstTotal::las_carpetas_conservan_su_nombre()
{
    QCOMPARE(En_Instalacion("EstTotal.ini"), Ruta_Aplicacion + "/EstTotal.ini");
    QCOMPARE(En_Instalacion("\\BMPHLP\\ini\\Foto.png"), Ruta_Aplicacion + "/bmphlp/ini/Foto.png");
    QCOMPARE(En_Instalacion("dat/plantilla.xls"), Ruta_Aplicacion + "/DAT/plantilla.xls");
    QCOMPARE(En_Instalacion("/log"), Ruta_Aplicacion + "/LOG");
    QCOMPARE(En_Instalacion("datos/x"), Ruta_Aplicacion + "/datos/x");
}

void TestModEstTotal::la_lista_de_identificadores()
{
    QCOMPARE(datosexport.size(), 31);
    datosexport[30] = "Z";
    QVERIFY(Existe_ID("Z"));
    QVERIFY(!Existe_ID("z"));
    QVERIFY(Existe_ID(""));
    Limpiar_IDs();
    QVERIFY(!Existe_ID("Z"));
    QCOMPARE(datosexport.size(), 31);
}

void TestModEstTotal::un_combo_y_su_lista()
{
    p->Fila("Lib1", {{"CoD", "b"}, {"Nombre", "Uno"}});
    p->Fila("Lib1", {{"CoD", "a"}, {"Nombre", "Dos"}});
    const Lista_Combo l = Llenar_Combo("SELECT * FROM Lib1", "Nombre", "Cod");
    QCOMPARE(l.textos, (QStringList{"Uno", "Dos"}));
    QCOMPARE(l.tag, QStringLiteral("b\u0006a"));
    const Lista_Combo nada = Llenar_Combo("SELECT * FROM KRT", "Nombre", "Clave");
    QVERIFY(nada.textos.isEmpty() && nada.tag.isEmpty());
    QVERIFY_ERROR(3265, Llenar_Combo("SELECT * FROM Lib1", "Nombre", "Nada"));
}

void TestModEstTotal::la_descripcion_de_una_operacion()
{
    const auto fila = [&](const char* nombre, int ope, const char* tipo, const char* texto) {
        p->Fila("KRT2", {{"Nombre", nombre}, {"OPE", ope}, {"TipOpe", tipo}, {"DESOPE", texto}});
    };
    fila("PX7", 4, "D", "de PX7");
    fila("KRT300", 4, "C", "de KRT300");
    fila("KRT300", 5, "C", "otra");
    Clave_Estacion = "KRT300";
    QCOMPARE(Descripcion_Operacion(4), QStringLiteral("de KRT300"));
    Clave_Estacion = "NV400";
    QCOMPARE(Descripcion_Operacion(4), QStringLiteral("de PX7"));
    QCOMPARE(Descripcion_Operacion(9), QString());
}

void TestModEstTotal::el_numero_del_puerto_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<int>("numero");
    QTest::newRow("COM1") << "COM1" << 1;
    QTest::newRow("COM12") << "COM12" << 2;
    QTest::newRow("COM10") << "COM10" << 0;
    QTest::newRow("vacio") << "" << 0;
    QTest::newRow("letra") << "COM" << 0;
}

void TestModEstTotal::el_numero_del_puerto()
{
    QFETCH(QString, texto);
    QFETCH(int, numero);
    QCOMPARE(Numero_Puerto(texto), numero);
}

// A compaction that could not open the database again leaves none.
void TestModEstTotal::sin_base_se_dice()
{
    Base_Datos.reset();
    QVERIFY(!Base_Datos);
    QCOMPARE(Numero_De_Error([] { Base_Datos->OpenRecordset("KRT"); }), 91);
    QCOMPARE(Numero_De_Error([] { (*Base_Datos).OpenRecordset("KRT"); }), 91);
}

PRUEBA(TestModEstTotal)
#include "TestModEstTotal.moc"

#include "conversions/biblioteca/Flujo_Diseno.h"
#include "tests/apoyo/Base_De_Prueba.h"
#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tests/conversions/Banco_Conversion.h"

/// What the conversion dialog and the sending of designs ask, convert and tell. Each kind of file
/// is sent in the tests of the sending.
class TestFlujo_Diseno : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void a_estandar_data();
    void a_estandar();
    void a_estandar_sin_tipos_de_fichero();
    void convertir_da_el_fichero_o_nada();

private:
    static void Elegir(Interfaz_Guion& guion, const QString& nombre, int indice = 1)
    {
        guion.ficheros.push_back(Fichero_Elegido{nombre, indice});
    }
    static QString Muestra(const QString& nombre) { return Banco_Conversion::Muestra(nombre); }

    Base_De_Prueba base;
};

void TestFlujo_Diseno::a_estandar_data()
{
    QTest::addColumn<int>("clase");
    QTest::addColumn<int>("operacion");
    QTest::addColumn<QString>("entrada");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("alineaciones") << 0 << 6 << "eje1.plt"
                                  << "eje1.plt.ssh";
    QTest::newRow("rasantes") << 1 << 8 << "eje1.ras"
                              << "eje1.ras.ssv";
    QTest::newRow("transversales") << 2 << 7 << "eje1.tra"
                                   << "eje1.tra.ssp";
    QTest::newRow("puntos") << 3 << 0 << "puntos.asc"
                            << "puntos.krt";
}

void TestFlujo_Diseno::a_estandar()
{
    QFETCH(int, clase);
    QFETCH(int, operacion);
    QFETCH(QString, entrada);
    QFETCH(QString, esperado);
    // The model in force has no designs: the files are those of the one that has.
    Clave_Estacion = "NV400";
    base.Fila("KRT2", {{"Nombre", "KRT800"},
                       {"OPE", operacion},
                       {"TipOpe", "C"},
                       {"DESOPE", "Cosas"},
                       {"Conv", "X,Y"}});
    if (clase == 0) {
        base.Fila("CONVERT", {{"Clave", "X"}, {"descripcion", "QSV (*.tra)"}, {"ext", "*.tra"}});
        base.Fila("CONVERT", {{"Clave", "Y"}, {"descripcion", "Otros"}, {"ext", "*.*"}});
    }
    Interfaz_Guion guion;
    Elegir(guion, Muestra(entrada));
    Elegir(guion, base.Ruta(esperado));
    Convertir_A_Estandar(Clase_Conversion(clase));
    QCOMPARE(base.Leer(esperado), Ficheros::Leer(Muestra(esperado)));
    if (clase == 3) {
        QCOMPARE(guion.avisos.size(), 1);
        QVERIFY(guion.Textos()[0].startsWith("Generado correctamente fichero"));
        return;
    }
    QCOMPARE(guion.peticiones[0].filtro, QString("QSV (*.tra)|*.tra|Otros|*.*"));
    QCOMPARE(guion.peticiones[0].titulo, QString("Cosas Seleccione Fichero"));
    QVERIFY(guion.avisos.isEmpty());
}

void TestFlujo_Diseno::a_estandar_sin_tipos_de_fichero()
{
    base.Columna("DELETE FROM KRT2");
    Interfaz_Guion guion;
    Convertir_A_Estandar(Clase_Conversion::Rasantes);
    QCOMPARE(guion.Textos(), QStringList{"No hay extensiones definidas para esta operación"});
    QCOMPARE(guion.terminado, QList<int>{1});
    QVERIFY(guion.peticiones.isEmpty());
}

void TestFlujo_Diseno::convertir_da_el_fichero_o_nada()
{
    Interfaz_Guion guion;
    Elegir(guion, Muestra("eje1.ras"));
    const auto temporal = Convertir_Diseno(Clase_Conversion::Rasantes, "x|*.x", 0, 8);
    QCOMPARE(temporal, std::optional(base.Ruta("miraldos.$$$")));
    QCOMPARE(base.Leer("miraldos.$$$"), Ficheros::Leer(Muestra("eje1.ras.ssv")));
    Elegir(guion, Muestra("eje1.ras"));
    Elegir(guion, base.Ruta("a"));
    QCOMPARE(Convertir_Diseno(Clase_Conversion::Rasantes, "x|*.x", 1, 8),
             std::optional(base.Ruta("a.ssv")));
    QVERIFY(guion.avisos.isEmpty());
    // Of the cross sections the chosen pattern decides, however it is written.
    for (const char* filtro : {"T|*.TRA", "T| *.tra "}) {
        Elegir(guion, Muestra("eje1.tra"));
        QVERIFY(Convertir_Diseno(Clase_Conversion::Transversales, filtro, 0, 7));
    }
    for (const char* filtro : {"T|tra", "T|*", "T|*.*", ""}) {
        Elegir(guion, Muestra("eje1.tra"));
        QVERIFY(!Convertir_Diseno(Clase_Conversion::Transversales, filtro, 0, 7));
    }
    QCOMPARE(guion.avisos.size(), 8);
}

PRUEBA(TestFlujo_Diseno)
#include "TestFlujo_Diseno.moc"

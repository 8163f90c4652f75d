#include "export/mdb/Escritor_MDB.h"

#include "tests/apoyo/Interfaz_Guion.h"
#include "tests/apoyo/Prueba.h"
#include "tests/export/mdb/Lectura_Jet.h"
#include "tests/export/Tabla_De_Exportar.h"

using namespace Tabla_De_Exportar;

class TestEscritor_MDB : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void la_base_es_la_de_siempre();
    void el_punto_de_un_nombre_es_un_blanco();
    void dos_nombres_que_se_vuelven_uno();
    void las_filas_marcadas_pierden_su_marca();
    void una_celda_de_mas_de_ochenta();
    void los_fallos_se_dicen_data();
    void los_fallos_se_dicen();

private:
    QString Ruta() const { return p->Ruta("ficheros/s.mdb"); }
    std::unique_ptr<Base_De_Prueba> p;
    std::unique_ptr<Interfaz_Guion> guion;
};

void TestEscritor_MDB::init()
{
    p = std::make_unique<Base_De_Prueba>();
    guion = std::make_unique<Interfaz_Guion>();
    Clave_Estacion = "KRT300";
}

void TestEscritor_MDB::cleanup()
{
    guion.reset();
    p.reset();
}

void TestEscritor_MDB::la_base_es_la_de_siempre()
{
    p->Escribir("ficheros/s.mdb", "lo de antes");
    QVERIFY(Escribir("MDB", Ruta(), Datos(FILAS), {}));
    QFile patron(DATOS_PRUEBA "/export/mdb_filas.txt");
    QVERIFY(patron.open(QIODevice::ReadOnly));
    QCOMPARE(Lectura_Jet::Mdbtools("mdb-tables", {"-1", Ruta()}), QString("Datos\n"));
    QCOMPARE(Lectura_Jet::Mdbtools("mdb-export", {"-Q", "-d", "|", Ruta(), "Datos"}),
             QString::fromUtf8(patron.readAll()));
    QVERIFY(!QFile::exists(Ruta() + ".parcial"));
    QVERIFY(Revisar_Mdb(p->Leer("ficheros/s.mdb")).isEmpty());
}

void TestEscritor_MDB::el_punto_de_un_nombre_es_un_blanco()
{
    QVERIFY(Escribir("MDB", Ruta(), Datos({{"a", "b"}}, {"Inc.Z.Total", "Cota"}), {}));
    const QString texto = Lectura_Jet::Mdbtools("mdb-export", {"-Q", "-d", "|", Ruta(), "Datos"});
    QCOMPARE(texto, QString("Inc Z Total|Cota\na|b\n"));
}

void TestEscritor_MDB::dos_nombres_que_se_vuelven_uno()
{
    QVERIFY(!Escribir("MDB", Ruta(), Datos({{"a", "b"}}, {"Inc.Z", "Inc Z"}), {}));
    QVERIFY(guion->avisos[0].texto.startsWith(
        "Se produjo un error al Exportar los Datos a .MDB\r(3191) "));
    QCOMPARE(guion->avisos[0].icono, Icono::Critico);
    QVERIFY(!QFile::exists(Ruta()));
}

void TestEscritor_MDB::las_filas_marcadas_pierden_su_marca()
{
    QVERIFY(
        Escribir("MDB", Ruta(), Datos({{"\6x", "a"}, {"\5", "b"}, {"c", "\6d"}}, {"A", "B"}), {}));
    const QList<QList<Lectura_Jet::Celda>> filas = Lectura_Jet::Cortar(p->Leer("ficheros/s.mdb"));
    QCOMPARE(filas.size(), 3);
    QCOMPARE(*filas[0][0], QString("x"));
    QCOMPARE(*filas[1][0], QString(" "));
    QCOMPARE(*filas[2][1], QString("\6d"));
}

void TestEscritor_MDB::una_celda_de_mas_de_ochenta()
{
    const QString larga(81, u'x');
    Datos_Formateados datos = Datos({{"a"}, {"b"}, {"c"}}, {"A"});
    datos.filas[0] = {"a", larga, "c"};
    QVERIFY(!Escribir("MDB", Ruta(), datos, {}));
    QVERIFY(guion->avisos[0].texto.contains("\r(3163) "));
    // The rows before it stay.
    QCOMPARE(Lectura_Jet::Exportar(Ruta(), "Datos"), QList<QStringList>{{"a"}});
    datos.filas[0] = {"a", larga.chopped(1), "c"};
    QVERIFY(Escribir("MDB", Ruta(), datos, {}));
    datos.filas[0] = {"a", larga.chopped(1), larga};
    QVERIFY(!Escribir("MDB", Ruta(), datos, {}));
    QCOMPARE(guion->avisos.size(), 2);
    QCOMPARE(Lectura_Jet::Exportar(Ruta(), "Datos").size(), 3);
    QCOMPARE(Lectura_Jet::Exportar(Ruta() + ".parcial", "Datos").size(), 2);
}

void TestEscritor_MDB::los_fallos_se_dicen_data()
{
    QTest::addColumn<QString>("fichero");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<Icono>("icono");
    const QString general = "Se produjo un error al Exportar los Datos a .MDB\r(";
    QTest::newRow("name") << "a*b.mdb"
                          << "Debe especificar un nombre de fichero válido" << Icono::Exclamacion;
    QTest::newRow("folder") << "no/s.mdb" << general + "3044) " << Icono::Critico;
    QTest::newRow("a folder") << "." << general + "75) " << Icono::Critico;
}

void TestEscritor_MDB::los_fallos_se_dicen()
{
    QFETCH(QString, fichero);
    QVERIFY(!Escribir("MDB", p->Ruta("ficheros/" + fichero), Datos(FILAS), {}));
    QCOMPARE(guion->avisos.size(), 1);
    QFETCH(QString, texto);
    QVERIFY2(guion->avisos[0].texto.startsWith(texto), qPrintable(guion->avisos[0].texto));
    QTEST(guion->avisos[0].icono, "icono");
}

PRUEBA(TestEscritor_MDB)
#include "TestEscritor_MDB.moc"
